#include "templates/editor/RuleInspector.h"

#include "parameters/ValueForms.h"
#include "platform/base/NativePath.h"
#include "ui/Icons.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int gap = 8;
constexpr int groupGap = 16;
constexpr int margin = 12;
constexpr int least = 260; // pixels: a condition's three parts side by side

QLabel *headingIn(QVBoxLayout &column, const QString &text)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    column.addWidget(label);
    return label;
}

QLabel *captionFor(QWidget &control, const QString &text)
{
    auto *label = new QLabel(text);
    label->setBuddy(&control);
    return label;
}

QLabel *hintIn(QVBoxLayout &column)
{
    auto *label = new QLabel;
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::PlaceholderText);
    column.addWidget(label);
    return label;
}

bool needsValue(Condition::Is is)
{
    return is != Condition::Is::IsEmpty && is != Condition::Is::IsNotEmpty;
}

void clear(QVBoxLayout &layout)
{
    while (QLayoutItem *item = layout.takeAt(0)) {
        if (QWidget *widget = item->widget()) {
            widget->hide();
            widget->deleteLater(); // one of its buttons may have been pressed just now
        }
        delete item; // NOLINT: taken out of the layout
    }
}

} // namespace

RuleInspector::RuleInspector(QWidget *parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setProperty("manualChapter", "rules");
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus); // what lies in it has the keys, and comes to light with them
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMinimumWidth(least);
    setAccessibleName(tr("Rules"));
    auto *contents = new QWidget;
    auto *column = new QVBoxLayout(contents);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(gap);
    m_problem = new QLabel;
    m_problem->setObjectName(QStringLiteral("rulesProblem"));
    m_problem->setWordWrap(true);
    m_problem->setTextFormat(Qt::PlainText);
    m_setAside = new QPushButton(tr("Put Them &Aside"));
    connect(m_setAside, &QPushButton::clicked, this, &RuleInspector::setAsideWanted);
    column->addWidget(m_problem);
    column->addWidget(m_setAside);
    m_name = headingIn(*column, {});
    buildItem(*column);
    column->addSpacing(groupGap);
    buildTemplate(*column);
    column->addStretch();
    setWidget(contents);
    show(State{});
}

void RuleInspector::buildItem(QVBoxLayout &column)
{
    m_itemPart = new QWidget;
    auto *part = new QVBoxLayout(m_itemPart);
    part->setContentsMargins({});
    part->setSpacing(gap);
    m_join = new QComboBox;
    m_join->addItems({tr("all of these are true"), tr("any of these is true")});
    m_join->setAccessibleName(tr("When it is made"));
    connect(m_join, &QComboBox::activated, this, &RuleInspector::tellItem);
    m_made = captionFor(*m_join, {});
    part->addWidget(m_made);
    part->addWidget(m_join);
    m_conditions = new QVBoxLayout;
    m_conditions->setSpacing(gap / 2);
    part->addLayout(m_conditions);
    m_addCondition = new QPushButton(tr("Add &Condition"));
    connect(m_addCondition, &QPushButton::clicked, this, [this] {
        addConditionRow({m_state.titles.value(0)});
        m_rows.constLast().parameter->setFocus();
        tellItem();
    });
    part->addWidget(m_addCondition, 0, Qt::AlignLeft);
    m_over = new QComboBox;
    m_over->addItems({tr("once"), tr("once for each number"), tr("once for each value")});
    m_over->setAccessibleName(tr("How often it is made"));
    connect(m_over, &QComboBox::activated, this, [this] {
        tellItem();
        showRepeat();
    });
    part->addWidget(captionFor(*m_over, tr("How &often:")));
    part->addWidget(m_over);
    m_repeatPart = new QWidget;
    auto *repeat = new QHBoxLayout(m_repeatPart);
    repeat->setContentsMargins({});
    m_repeatParameter = new QComboBox;
    m_repeatParameter->setAccessibleName(tr("Of the parameter"));
    m_repeatName = new QLineEdit;
    m_repeatName->setAccessibleName(tr("Called in names"));
    m_repeatName->setMaximumWidth(fontMetrics().averageCharWidth() * 6);
    connect(m_repeatParameter, &QComboBox::activated, this, &RuleInspector::tellItem);
    connect(m_repeatName, &QLineEdit::editingFinished, this, &RuleInspector::tellItem);
    repeat->addWidget(new QLabel(tr("of")));
    repeat->addWidget(m_repeatParameter, 1);
    repeat->addWidget(new QLabel(tr("as")));
    repeat->addWidget(m_repeatName);
    part->addWidget(m_repeatPart);
    m_repeatHint = hintIn(*part);
    m_fillsText = new QCheckBox(tr("Fill in values in its te&xt"));
    connect(m_fillsText, &QCheckBox::clicked, this, &RuleInspector::tellItem);
    part->addWidget(m_fillsText);
    column.addWidget(m_itemPart);
}

void RuleInspector::buildTemplate(QVBoxLayout &column)
{
    m_templatePart = new QWidget;
    auto *part = new QVBoxLayout(m_templatePart);
    part->setContentsMargins({});
    part->setSpacing(gap);
    headingIn(*part, tr("The whole template"));
    m_fillsNames = new QCheckBox(tr("&Fill in values in names"));
    m_fillsNames->setToolTip(tr("{Client}, {Date:%Y}, {Number:000}, {Client|upper}, {Project}, {Level:1}"));
    connect(m_fillsNames, &QCheckBox::clicked, this, &RuleInspector::tellTemplate);
    part->addWidget(m_fillsNames);
    m_patterns = new QLineEdit;
    m_patterns->setPlaceholderText(QStringLiteral("*.csv, *.txt, *.kdenlive"));
    connect(m_patterns, &QLineEdit::editingFinished, this, &RuleInspector::tellTemplate);
    part->addWidget(captionFor(*m_patterns, tr("Va&lues in the text of:")));
    part->addWidget(m_patterns);
    auto *parameters = new QPushButton(tr("Its Pa&rameters…"));
    parameters->setObjectName(QStringLiteral("ownParameters"));
    connect(parameters, &QPushButton::clicked, this, &RuleInspector::parametersWanted);
    part->addWidget(parameters, 0, Qt::AlignLeft);
    m_gone = new QVBoxLayout;
    m_gone->setSpacing(gap / 2);
    part->addLayout(m_gone);
    column.addWidget(m_templatePart);
}

void RuleInspector::finishEditing()
{
    tellItem();
    tellTemplate();
}

void RuleInspector::show(const State &state)
{
    if (state.item != m_state.item) // what is typed in a line belongs to the item before
        tellItem();
    const bool isSameItem = state.item == m_state.item && state.titles == m_state.titles;
    const bool isSameRule = isSameItem && state.rules.ruleOf(state.item) == m_rule;
    m_state = state;
    m_rule = state.rules.ruleOf(state.item);
    m_isShowing = true;
    const bool canBeEdited = state.isLoaded && state.problem.isNull();
    m_problem->setText(state.problem);
    m_problem->setVisible(!state.problem.isNull());
    m_setAside->setVisible(!state.problem.isNull());
    m_name->setText(!state.item.isNull() ? platform::forOneLine(platform::lastComponent(state.item))
                    : state.isLoaded     ? tr("Select one item for its rules.")
                                         : tr("No template is selected."));
    m_itemPart->setVisible(canBeEdited && !state.item.isNull());
    m_addCondition->setEnabled(!state.titles.isEmpty());
    m_over->setEnabled(!state.titles.isEmpty());
    m_templatePart->setVisible(canBeEdited);
    if (!isSameRule) { // else somebody may be typing in it
        showConditions();
        m_over->setCurrentIndex(static_cast<int>(m_rule.repeat.over));
        showRepeat();
    }
    m_fillsText->setVisible(!state.isFolder);
    m_fillsText->setChecked(m_rule.fillsText);
    m_fillsNames->setChecked(state.rules.fillsNames);
    if (!m_patterns->isModified()) // else somebody is typing in it
        m_patterns->setText(state.rules.textPatterns.join(QStringLiteral(", ")));
    showGone();
    m_isShowing = false;
}

/// One that is gone from the parameters stays to be seen.
QComboBox *RuleInspector::titleBox(QWidget *parent, const QString &title) const
{
    auto *box = new QComboBox(parent);
    box->addItems(m_state.titles);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(6);
    if (box->findText(title) < 0 && !title.isEmpty())
        box->insertItem(0, icons::named("warning"), title);
    box->setCurrentIndex(qMax(0, box->findText(title)));
    return box;
}

void RuleInspector::showConditions()
{
    clear(*m_conditions);
    m_rows.clear();
    m_join->setCurrentIndex(static_cast<int>(m_rule.when.join));
    for (const Condition &condition : std::as_const(m_rule.when.tests))
        addConditionRow(condition);
    showJoin();
}

/// How conditions go together is a question from the second one on.
void RuleInspector::showJoin()
{
    m_made->setText(m_rows.isEmpty() ? tr("Made always.") : tr("&Made if:"));
    m_join->setVisible(m_rows.size() > 1);
}

void RuleInspector::addConditionRow(const Condition &condition)
{
    auto *row = new QWidget;
    auto *column = new QVBoxLayout(row);
    column->setContentsMargins({});
    column->setSpacing(gap / 2);
    auto *upper = new QHBoxLayout;
    auto *lower = new QHBoxLayout;
    ConditionRow parts{row, titleBox(row, condition.parameter), new QComboBox(row), new QLineEdit(row)};
    parts.parameter->setAccessibleName(tr("Parameter"));
    for (const Condition::Is is : kindsOfConditions())
        parts.is->addItem(nameOf(is));
    parts.is->setCurrentIndex(static_cast<int>(kindsOfConditions().indexOf(condition.is)));
    parts.is->setAccessibleName(tr("Comparison"));
    parts.value->setText(condition.value);
    parts.value->setAccessibleName(tr("Value"));
    parts.value->setVisible(needsValue(condition.is));
    auto *remove = new QToolButton(row);
    remove->setIcon(icons::named("remove"));
    remove->setAutoRaise(true);
    remove->setToolTip(tr("Remove this condition"));
    remove->setAccessibleName(remove->toolTip());
    upper->addWidget(parts.parameter, 1);
    upper->addWidget(remove);
    lower->addWidget(parts.is);
    lower->addWidget(parts.value, 1);
    column->addLayout(upper);
    column->addLayout(lower);
    connect(parts.parameter, &QComboBox::activated, this, &RuleInspector::tellItem);
    connect(parts.is, &QComboBox::activated, this, [this, value = parts.value](int index) {
        value->setVisible(needsValue(kindsOfConditions().value(index)));
        tellItem();
    });
    connect(parts.value, &QLineEdit::editingFinished, this, &RuleInspector::tellItem);
    connect(remove, &QToolButton::clicked, this, [this, row] {
        m_rows.removeIf([&](const ConditionRow &other) { return other.row == row; });
        m_addCondition->setFocus();
        tellItem();
        showConditions();
    });
    m_conditions->addWidget(row);
    row->show(); // at once: it may get the focus
    m_rows.append(parts);
    showJoin();
}

void RuleInspector::showRepeat()
{
    const bool repeats = m_over->currentIndex() != 0;
    m_repeatPart->setVisible(repeats);
    m_repeatHint->setVisible(repeats);
    m_repeatParameter->clear();
    m_repeatParameter->addItems(m_state.titles);
    const QString &wanted = m_rule.repeat.parameter;
    if (!wanted.isEmpty() && m_repeatParameter->findText(wanted) < 0)
        m_repeatParameter->insertItem(0, icons::named("warning"), wanted);
    m_repeatParameter->setCurrentIndex(qMax(0, m_repeatParameter->findText(wanted)));
    m_repeatName->setText(m_rule.repeat.name);
    const QString name = m_rule.repeat.name;
    m_repeatHint->setText(m_over->currentIndex() == 1
                              ? tr("Its name has the number as {%1}, or {%1:00} with two places.").arg(name)
                              : tr("Its name has the value as {%1}.").arg(name));
}

void RuleInspector::showGone()
{
    clear(*m_gone);
    if (m_state.gone.isEmpty())
        return;
    auto *caption = new QLabel(tr("Rules of items that are gone:"));
    caption->setWordWrap(true);
    m_gone->addWidget(caption);
    for (const QString &path : std::as_const(m_state.gone)) {
        auto *row = new QWidget;
        auto *line = new QHBoxLayout(row);
        line->setContentsMargins({});
        auto *label = new QLabel(platform::forOneLine(path));
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        auto *remove = new QToolButton;
        remove->setIcon(icons::named("remove"));
        remove->setAutoRaise(true);
        remove->setToolTip(tr("Remove the rule of %1").arg(platform::forOneLine(path)));
        remove->setAccessibleName(remove->toolTip());
        connect(remove, &QToolButton::clicked, this, [this, path] { Q_EMIT goneRemoved(path); });
        line->addWidget(label, 1);
        line->addWidget(remove);
        m_gone->addWidget(row);
    }
}

ItemRule RuleInspector::edited() const
{
    ItemRule rule = m_rule;
    rule.when.join = m_join->currentIndex() == 1 ? Conditions::Join::Any : Conditions::Join::All;
    rule.when.tests.clear();
    for (const ConditionRow &row : m_rows) {
        const Condition::Is is = kindsOfConditions().value(row.is->currentIndex());
        rule.when.tests.append({row.parameter->currentText(), is, needsValue(is) ? row.value->text() : QString()});
    }
    if (rule.when.tests.isEmpty())
        rule.when.join = Conditions::Join::All;
    rule.repeat = {};
    rule.repeat.over = static_cast<Repeat::Over>(m_over->currentIndex());
    if (rule.repeat.over != Repeat::Over::Nothing) {
        const QString chosen = m_repeatParameter->currentText();
        const QString name = m_repeatName->text().trimmed();
        const bool isName = !name.isEmpty() && !name.contains(u'{') && !name.contains(u'}') && !name.contains(u':') &&
                            !name.contains(u'|');
        rule.repeat.parameter = chosen.isEmpty() ? m_state.titles.value(0) : chosen;
        rule.repeat.name = isName ? name : m_rule.repeat.name;
    }
    rule.fillsText = m_fillsText->isChecked();
    return rule;
}

void RuleInspector::tellItem()
{
    if (m_isShowing || m_state.item.isNull())
        return;
    const ItemRule rule = edited();
    if (rule == m_rule)
        return;
    m_rule = rule; // what comes back is no news then
    Q_EMIT ruleEdited(rule);
}

void RuleInspector::tellTemplate()
{
    m_patterns->setModified(false);
    const QStringList patterns = forms::parts(m_patterns->text());
    if (!m_isShowing &&
        (m_fillsNames->isChecked() != m_state.rules.fillsNames || patterns != m_state.rules.textPatterns))
        Q_EMIT templateEdited(m_fillsNames->isChecked(), patterns);
}
