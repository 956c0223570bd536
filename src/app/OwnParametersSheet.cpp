#include "app/OwnParametersSheet.h"

#include "parameters/table/ParameterDetails.h"
#include "platform/base/NativePath.h"
#include "ui/FilePanels.h"
#include "ui/Icons.h"
#include "ui/VTTableView.h"
#include "ui/ValueCellDelegate.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int charactersWide = 96;
constexpr int linesHigh = 32;
constexpr int rowHeight = 28;

QLabel *heading(const QString &text)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

/// A reader that walks the table comes to the cell, not to what lies in it.
void putIn(QTableWidget &table, int row, int column, QWidget *control)
{
    auto *cell = new QTableWidgetItem;
    cell->setFlags(Qt::ItemIsEnabled);
    cell->setData(Qt::AccessibleTextRole, control->accessibleName());
    table.setItem(row, column, cell);
    table.setCellWidget(row, column, control);
}

} // namespace

OwnParametersSheet::OwnParametersSheet(const QString &templateName, const TemplateRules &rules, QWidget *parent)
    : QDialog(parent)
    , m_own(parametersFromVariant(rules.parameters))
    , m_model({[this] { return m_own; },
               [this](const ListChange &change) {
                   const auto list = change(m_own);
                   m_own = list.valueOr(m_own);
                   return list.outcome();
               }})
    , m_table(new VTTableView(this))
    , m_common(new QTableWidget(this))
    , m_problem(new QLabel(this))
{
    setWindowTitle(tr("Parameters of “%1”").arg(platform::forOneLine(templateName)));
    m_common->setTabKeyNavigation(false); // Tab would go around in it
    setWindowModality(Qt::WindowModal);
    setUpOwn();
    setUpCommon(rules);
    auto *add = new QToolButton;
    add->setIcon(icons::named("add"));
    add->setToolTip(tr("Add a parameter"));
    auto *remove = new QToolButton;
    remove->setIcon(icons::named("remove"));
    remove->setToolTip(tr("Remove the selected parameters"));
    for (QToolButton *button : {add, remove}) {
        button->setAutoRaise(true);
        button->setAccessibleName(button->toolTip());
    }
    auto *details = new QPushButton(tr("Its &Values…"));
    details->setObjectName(QStringLiteral("details"));
    details->setAutoDefault(false);
    connect(add, &QToolButton::clicked, this, &OwnParametersSheet::addParameter);
    connect(remove, &QToolButton::clicked, this, &OwnParametersSheet::removeParameters);
    connect(details, &QPushButton::clicked, this, &OwnParametersSheet::showDetails);
    auto *bar = new QHBoxLayout;
    bar->addWidget(add);
    bar->addWidget(remove);
    bar->addStretch();
    bar->addWidget(details);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    for (QPushButton *button : buttons->findChildren<QPushButton *>())
        button->setIcon({});
    connect(buttons, &QDialogButtonBox::accepted, this, &OwnParametersSheet::acceptIfPossible);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addWidget(heading(tr("Projects of this template have these parameters, after the common ones:")));
    column->addWidget(m_table, 3);
    column->addLayout(bar);
    column->addWidget(heading(tr("The common parameters in projects of this template:")));
    column->addWidget(m_common, 2);
    m_problem->setObjectName(QStringLiteral("problem"));
    m_problem->setWordWrap(true);
    m_problem->setTextFormat(Qt::PlainText);
    column->addWidget(m_problem);
    column->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * charactersWide, fontMetrics().height() * linesHigh);
}

void OwnParametersSheet::setUpOwn()
{
    m_table->setModel(&m_model);
    m_table->setItemDelegate(new ValueCellDelegate(m_table));
    m_table->setAccessibleName(tr("Parameters of the template"));
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                             QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
    m_table->setShowGrid(false);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(qMax(rowHeight, fontMetrics().height() + 12));
    auto *header = m_table->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    for (const auto stretched : {parameterlist::Column::Title, parameterlist::Column::Default})
        header->setSectionResizeMode(static_cast<int>(stretched), QHeaderView::Stretch);
    header->setSectionResizeMode(static_cast<int>(parameterlist::Column::Kind), QHeaderView::Fixed);
    m_table->setColumnWidth(static_cast<int>(parameterlist::Column::Kind),
                            fontMetrics().horizontalAdvance(tr("User name")) + 48);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setHighlightSections(false);
    m_table->setWatchDelegate(this);
    m_table->addWatchKeys(WatchKeys::deleteKeys(), "removeParameters");
}

void OwnParametersSheet::setUpCommon(const TemplateRules &rules)
{
    const FilenameParameters common = storedParameters();
    m_common->setRowCount(static_cast<int>(common.size()));
    m_common->setColumnCount(3);
    m_common->setHorizontalHeaderLabels({tr("Title"), tr("Here"), tr("Value")});
    m_common->setAccessibleName(tr("Common parameters"));
    m_common->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_common->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_common->horizontalHeader()->setHighlightSections(false);
    m_common->verticalHeader()->hide();
    m_common->verticalHeader()->setDefaultSectionSize(qMax(rowHeight, fontMetrics().height() + 12));
    m_common->setShowGrid(false);
    m_common->setSelectionMode(QAbstractItemView::NoSelection);
    for (int row = 0; row < common.size(); ++row) {
        const QString title = common[row].title();
        auto *item = new QTableWidgetItem(title);
        item->setFlags(Qt::ItemIsEnabled);
        m_common->setItem(row, 0, item);
        auto *kind = new QComboBox;
        kind->addItems({tr("as everywhere"), tr("always"), tr("left out")});
        kind->setAccessibleName(tr("What becomes of %1").arg(title));
        auto *value = new QLineEdit(rules.fixed.value(title).toString());
        value->setAccessibleName(tr("Value of %1").arg(title));
        const auto wanted = rules.hidden.contains(title)  ? Common::Hidden
                            : rules.fixed.contains(title) ? Common::Fixed
                                                          : Common::AsEverywhere;
        kind->setCurrentIndex(static_cast<int>(wanted));
        const auto follow = [kind, value] {
            value->setEnabled(kind->currentIndex() == static_cast<int>(Common::Fixed));
        };
        connect(kind, &QComboBox::currentIndexChanged, value, follow);
        follow();
        putIn(*m_common, row, 1, kind);
        putIn(*m_common, row, 2, value);
    }
}

OwnParametersSheet::Common OwnParametersSheet::kindOf(int row) const
{
    return static_cast<Common>(static_cast<QComboBox *>(m_common->cellWidget(row, 1))->currentIndex());
}

void OwnParametersSheet::addParameter()
{
    const QModelIndex title = m_model.index(m_model.addNewFilenameParam(), 0);
    m_table->scrollTo(title);
    m_table->setCurrentIndex(title);
    m_table->setFocus();
    m_table->edit(title);
}

void OwnParametersSheet::removeParameters()
{
    QList<int> rows;
    for (const QModelIndex &row : m_table->selectionModel()->selectedRows())
        rows.append(row.row());
    if (!rows.isEmpty())
        m_model.remove(rows); // Cancel brings them back
}

void OwnParametersSheet::showDetails()
{
    m_table->finishEditing();
    const auto row = m_table->firstSelectedRow();
    if (!row)
        return;
    auto *details = new ParameterDetails(m_own.value(*row), this);
    whenLeft<ParameterDetails>(*details, *this, [this, row](const ParameterDetails &left, bool accepted) {
        if (accepted)
            m_model.replace(*row, left.parameter());
    });
    details->open();
}

/// With what is being typed.
void OwnParametersSheet::acceptIfPossible()
{
    m_table->finishEditing();
    QSet<QString> titles;
    QString problem;
    for (const FilenameParameter &parameter : std::as_const(m_own)) {
        if (parameter.title().isEmpty())
            problem = tr("Each parameter needs a title.");
        else if (titles.contains(parameter.title()))
            problem = tr("Two parameters are called “%1”.").arg(parameter.title());
        titles.insert(parameter.title());
    }
    m_problem->setText(problem);
    if (problem.isNull())
        accept();
}

void OwnParametersSheet::takeInto(TemplateRules &rules) const
{
    rules.parameters = variantFromParameters(m_own);
    for (int row = 0; row < m_common->rowCount(); ++row) { // titles that only others have stay as they are
        const QString title = m_common->item(row, 0)->text();
        rules.fixed.remove(title);
        rules.hidden.removeAll(title);
        if (kindOf(row) == Common::Hidden)
            rules.hidden.append(title);
        else if (kindOf(row) == Common::Fixed)
            rules.fixed.insert(title, static_cast<QLineEdit *>(m_common->cellWidget(row, 2))->text());
    }
}
