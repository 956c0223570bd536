#include "parameters/table/ParameterDetails.h"

#include "parameters/Tokens.h"
#include "parameters/ValueForms.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int mostCharacters = 255;
constexpr int charactersWide = 68;

QLineEdit *lineWith(const QString &text, const QString &placeholder, QWidget *parent)
{
    auto *line = new QLineEdit(text, parent);
    line->setPlaceholderText(placeholder);
    return line;
}

} // namespace

ParameterDetails::ParameterDetails(FilenameParameter parameter, QWidget *parent)
    : QDialog(parent)
    , m_parameter(std::move(parameter))
    , m_form(new QComboBox(this))
    , m_letterCase(new QComboBox(this))
    , m_maxLength(new QSpinBox(this))
    , m_pattern(lineWith(m_parameter.pattern(), QStringLiteral("[A-Z]{3}-[0-9]{3}"), this))
    , m_message(lineWith(m_parameter.patternMessage(), tr("Three letters, a dash, three digits"), this))
    , m_computed(lineWith(m_parameter.computed(), QStringLiteral("{Client|initials}-{Number:000}"), this))
    , m_several(new QCheckBox(tr("Several &choices at once"), this))
    , m_inName(new QCheckBox(tr("Part of the project’s &name"), this))
    , m_problem(new QLabel(this))
{
    setWindowTitle(tr("Values of “%1”").arg(m_parameter.title()));
    setWindowModality(Qt::WindowModal);
    for (const auto &[name, key] : {std::pair(tr("Any text"), QString()),
                                    {tr("A whole number"), forms::number},
                                    {tr("A date from a calendar"), forms::date},
                                    {tr("A folder from a panel"), forms::folder}})
        m_form->addItem(name, key);
    m_form->setCurrentIndex(qMax(0, m_form->findData(m_parameter.form())));
    for (const auto &[name, key] : {std::pair(tr("As typed"), QString()),
                                    {tr("CAPITALS"), QStringLiteral("upper")},
                                    {tr("small letters"), QStringLiteral("lower")},
                                    {tr("Each Word Capital"), QStringLiteral("title")}})
        m_letterCase->addItem(name, key);
    m_letterCase->setCurrentIndex(qMax(0, m_letterCase->findData(m_parameter.letterCase())));
    m_maxLength->setRange(0, mostCharacters);
    m_maxLength->setSpecialValueText(tr("any"));
    m_maxLength->setValue(static_cast<int>(m_parameter.maxLength()));
    m_several->setChecked(m_parameter.takesSeveral());
    auto *form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->addRow(tr("&Value:"), m_form);
    form->addRow(tr("&Letters:"), m_letterCase);
    form->addRow(tr("&Most characters:"), m_maxLength);
    form->addRow(tr("&Pattern:"), m_pattern);
    form->addRow(tr("&Said when it does not fit:"), m_message);
    form->addRow(tr("Computed &from others:"), m_computed);
    form->addRow(QString(), m_several);
    form->addRow(QString(), m_inName);
    m_inName->setChecked(!m_parameter.isOutsideName());
    const bool isChoice = m_parameter.kind() == FilenameParameter::Kind::Choice;
    const bool isText =
        m_parameter.kind() == FilenameParameter::Kind::Text || m_parameter.kind() == FilenameParameter::Kind::OtherText;
    for (QWidget *row : QList<QWidget *>{m_form, m_computed})
        row->setEnabled(isText);
    m_several->setEnabled(isChoice);
    m_problem->setObjectName(QStringLiteral("problem"));
    m_problem->setWordWrap(true);
    m_problem->setTextFormat(Qt::PlainText);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_take = buttons->button(QDialogButtonBox::Ok);
    for (QPushButton *button : buttons->findChildren<QPushButton *>())
        button->setIcon({});
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(m_problem);
    column->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * charactersWide, sizeHint().height());
    for (QLineEdit *line : {m_pattern, m_computed})
        connect(line, &QLineEdit::textChanged, this, &ParameterDetails::follow);
    follow();
}

FilenameParameter ParameterDetails::parameter() const
{
    FilenameParameter wanted = m_parameter;
    const auto take = [&](const char *key, const QVariant &value, bool isThere) {
        if (isThere)
            wanted.setEntry(QLatin1String(key), value);
        else
            wanted.removeEntry(QLatin1String(key));
    };
    const auto takeText = [&](const char *key, const QString &text) {
        take(key, text, !text.isEmpty());
    };
    takeText(recordkey::form, m_form->currentData().toString());
    takeText(recordkey::letterCase, m_letterCase->currentData().toString());
    take(recordkey::maxLength, static_cast<qlonglong>(m_maxLength->value()), m_maxLength->value() > 0);
    takeText(recordkey::pattern, m_pattern->text());
    takeText(recordkey::patternMessage, m_message->text());
    takeText(recordkey::computed, m_computed->text());
    take(recordkey::several, true, m_several->isChecked());
    take(recordkey::outsideName, true, !m_inName->isChecked());
    return wanted;
}

QString ParameterDetails::problem() const
{
    if (const QString why = forms::problemOfPattern(m_pattern->text()); !why.isNull())
        return tr("The pattern is no regular expression: %1").arg(why);
    return tokens::piecesOf(m_computed->text()).problem;
}

void ParameterDetails::follow()
{
    const QString why = problem();
    m_problem->setText(why);
    m_take->setEnabled(why.isNull());
}
