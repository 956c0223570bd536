#include "templates/editor/RenameSheet.h"

#include "platform/base/NativePath.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr int largestNumber = 999'999;
constexpr int charactersWide = 80;
constexpr int linesHigh = 24;

} // namespace

RenameSheet::RenameSheet(QList<RenamedItem> items, Check check, QWidget *parent)
    : QDialog(parent)
    , m_items(std::move(items))
    , m_check(std::move(check))
    , m_find(new QLineEdit(this))
    , m_replacement(new QLineEdit(this))
    , m_first(new QSpinBox(this))
    , m_table(new QTableWidget(static_cast<int>(m_items.size()), 2, this))
    , m_problem(new QLabel(this))
{
    setWindowTitle(tr("Rename %n Items", nullptr, static_cast<int>(m_items.size())));
    setWindowModality(Qt::WindowModal);
    m_find->setPlaceholderText(tr("the whole name"));
    m_replacement->setPlaceholderText(tr("Day ## counts: Day 01, Day 02 …"));
    m_first->setRange(0, largestNumber);
    m_first->setValue(1);
    auto *form = new QFormLayout;
    form->addRow(tr("&Find:"), m_find);
    form->addRow(tr("Replace &with:"), m_replacement);
    form->addRow(tr("First &number:"), m_first);
    m_table->setHorizontalHeaderLabels({tr("Name"), tr("Becomes")});
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->verticalHeader()->hide();
    m_table->setShowGrid(false);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionMode(QAbstractItemView::NoSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setAccessibleName(tr("What the names become"));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        m_table->setItem(row, 0, new QTableWidgetItem(platform::forDisplay(m_items[row].name)));
        m_table->setItem(row, 1, new QTableWidgetItem);
    }
    m_problem->setObjectName(QStringLiteral("problem"));
    m_problem->setWordWrap(true);
    m_problem->setTextFormat(Qt::PlainText);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_rename = buttons->addButton(tr("&Rename"), QDialogButtonBox::AcceptRole);
    m_rename->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (QPushButton *button : buttons->findChildren<QPushButton *>())
        button->setIcon({});
    auto *column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(m_table);
    column->addWidget(m_problem);
    column->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * charactersWide, fontMetrics().height() * linesHigh);
    for (QLineEdit *line : {m_find, m_replacement})
        connect(line, &QLineEdit::textChanged, this, &RenameSheet::follow);
    connect(m_first, &QSpinBox::valueChanged, this, &RenameSheet::follow);
    m_replacement->setFocus();
    follow();
}

void RenameSheet::follow()
{
    const bool isEmpty = m_find->text().isEmpty() && m_replacement->text().isEmpty();
    m_names.clear();
    if (isEmpty) { // nothing has been asked for yet
        for (const RenamedItem &item : std::as_const(m_items))
            m_names.append(item.name);
    } else {
        m_names = renamedItems(m_items, {m_find->text(), m_replacement->text(), m_first->value()});
    }
    bool changes = false;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const bool changed = m_names[row] != m_items[row].name;
        m_table->item(row, 1)->setText(changed ? platform::forDisplay(m_names[row]) : QString());
        m_table->item(row, 1)->setData(Qt::AccessibleTextRole,
                                       changed ? platform::forDisplay(m_names[row]) : tr("stays as it is"));
        changes = changes || changed;
    }
    const QString problem = changes ? m_check(m_names) : QString();
    m_problem->setText(problem);
    m_rename->setEnabled(changes && problem.isNull());
}
