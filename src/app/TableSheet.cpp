#include "app/TableSheet.h"

#include "creation/RequestCheck.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/WholeFile.h"
#include "ui/Icons.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int charactersWide = 130;
constexpr int linesHigh = 36;
constexpr int rowPadding = 12;
constexpr int firstColumnCharacters = 32;
constexpr int cellCharacters = 16;
constexpr std::size_t mostOpened = 2000;

} // namespace

void BatchModel::setBatch(ProjectBatch batch)
{
    const bool hasSameCells =
        batch.rows().size() == m_batch.rows().size() && batch.table().columns == m_batch.table().columns;
    if (!hasSameCells)
        beginResetModel();
    m_batch = std::move(batch);
    m_table = m_batch.table();
    if (!hasSameCells)
        endResetModel();
    else if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int BatchModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_batch.rows().size());
}

int BatchModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() || m_batch.rows().isEmpty() ? 0 : static_cast<int>(m_batch.table().columns.size()) + 1;
}

QString BatchModel::problemAt(const QModelIndex &index) const
{
    QStringList sentences;
    for (const CellProblem &problem : m_batch.rows()[index.row()].problems) { // in front all of the row, in sight
        if (index.column() == 0 || problem.column + 1 == index.column())
            sentences.append(problem.sentence);
    }
    return sentences.join(u'\n');
}

QVariant BatchModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const bool isProject = index.column() == 0;
    const QString problem = problemAt(index);
    const auto text = [&] {
        return isProject ? platform::forOneLine(m_batch.rows()[index.row()].project)
                         : m_table.rows[index.row()].cells.value(index.column() - 1);
    };
    switch (role) {
    case Qt::DisplayRole:
        return isProject && text().isEmpty() && problem.isEmpty() ? tr("no name") : text();
    case Qt::EditRole:
        return text();
    case Qt::DecorationRole:
        return problem.isEmpty() ? QVariant() : icons::named("warning");
    case Qt::ToolTipRole:
        return problem.isEmpty() ? QVariant(text()) : problem;
    case Qt::AccessibleTextRole:
        return problem.isEmpty() ? text() : text() + QStringLiteral(", ") + problem;
    default:
        return {};
    }
}

QVariant BatchModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole ? QVariant(m_batch.table().rows[section].line) : QVariant();
    const QString title = m_batch.table().columns.value(section - 1);
    const bool isUnknown = section > 0 && m_batch.unknownColumns().contains(title);
    if (role == Qt::DisplayRole)
        return section == 0 ? tr("Project") : title;
    if (role == Qt::ToolTipRole && isUnknown)
        return tr("No parameter is called like this: the column is not used.");
    return role == Qt::DecorationRole && isUnknown ? QVariant(icons::named("warning")) : QVariant();
}

Qt::ItemFlags BatchModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() > 0 ? flags | Qt::ItemIsEditable : flags;
}

bool BatchModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || index.column() == 0 || value == index.data(Qt::EditRole))
        return false;
    m_table.rows[index.row()].cells[index.column() - 1] = value.toString();
    Q_EMIT dataChanged(index, index);
    Q_EMIT tableEdited(m_table);
    return true;
}

TableSheet::TableSheet(BatchBase base, const QString &location, QWidget *parent)
    : QDialog(parent)
    , m_base(std::move(base))
    , m_location(location)
    , m_view(new QTableView(this))
    , m_treeView(new QTreeView(this))
    , m_place(new QLineEdit(this))
    , m_summary(new QLabel(this))
    , m_allOrNone(new QRadioButton(tr("&All of them, or none"), this))
    , m_goOn(new QRadioButton(tr("&Leave out rows with problems"), this))
{
    setWindowTitle(tr("Create From Table"));
    setWindowModality(Qt::WindowModal);
    setProperty("manualChapter", "many");
    build();
    m_view->setFocus(); // what comes first is the table
    connect(&m_model, &BatchModel::tableEdited, this, &TableSheet::look);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &TableSheet::showTree);
    for (QRadioButton *button : {m_allOrNone, m_goOn})
        connect(button, &QRadioButton::toggled, this, &TableSheet::showSummary);
    showSummary();
}

TableSheet::~TableSheet()
{
    *m_isOver = true;
}

void TableSheet::build()
{
    auto *open = new QPushButton(tr("&Open…"));
    auto *pasted = new QPushButton(tr("&Paste"));
    // As in a spreadsheet; a line that is being typed in takes the key for itself.
    connect(new QShortcut(QKeySequence::Paste, this), &QShortcut::activated, pasted, &QPushButton::click);
    connect(open, &QPushButton::clicked, this, &TableSheet::chooseFile);
    connect(pasted, &QPushButton::clicked, this, &TableSheet::paste);
    auto *hint = new QLabel(tr("The first row names parameters, each other one is a project (CSV, or a spreadsheet’s "
                               "cells). A column “Template” chooses the template."));
    hint->setWordWrap(true);
    auto *top = new QHBoxLayout;
    top->addWidget(hint, 1);
    top->addWidget(open);
    top->addWidget(pasted);
    m_place->setReadOnly(true);
    m_place->setAccessibleName(tr("The folder that the projects go to"));
    auto *choose = new QPushButton(tr("&Choose…"));
    connect(choose, &QPushButton::clicked, this, &TableSheet::choosePlace);
    auto *place = new QHBoxLayout;
    place->addWidget(new QLabel(tr("In:")));
    place->addWidget(m_place, 1);
    place->addWidget(choose);
    m_summary->setWordWrap(true);
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setObjectName(QStringLiteral("summary"));
    m_allOrNone->setChecked(true);
    auto *manner = new QHBoxLayout;
    manner->addWidget(m_allOrNone);
    manner->addWidget(m_goOn);
    manner->addStretch();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_create = buttons->addButton(tr("Create Pro&jects"), QDialogButtonBox::AcceptRole);
    m_create->setDefault(true);
    for (QPushButton *button : buttons->findChildren<QPushButton *>())
        button->setIcon({});
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(builtTables(), 1);
    column->addWidget(m_summary);
    column->addLayout(place);
    column->addLayout(manner);
    column->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * charactersWide, fontMetrics().height() * linesHigh);
}

QWidget *TableSheet::builtTables()
{
    m_view->setModel(&m_model);
    m_view->setAccessibleName(tr("Projects"));
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setTabKeyNavigation(false);
    m_view->setWordWrap(false);
    m_view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowPadding);
    m_view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_view->horizontalHeader()->setHighlightSections(false);
    m_treeView->setModel(&m_tree);
    m_treeView->setAccessibleName(tr("The project of the selected row"));
    m_treeView->setHeaderHidden(true);
    m_treeView->setUniformRowHeights(true);
    m_treeView->header()->setStretchLastSection(false);
    m_treeView->header()->setSectionResizeMode(ResultModel::NameColumn, QHeaderView::Stretch);
    m_treeView->hideColumn(ResultModel::RemarkColumn); // there is no room; the tool tips say it
    auto *splitter = new QSplitter;
    splitter->addWidget(m_view);
    splitter->addWidget(m_treeView);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    splitter->setChildrenCollapsible(false);
    return splitter;
}

BatchManner TableSheet::manner() const
{
    return m_goOn->isChecked() ? BatchManner::GoOn : BatchManner::AllOrNone;
}

void TableSheet::chooseFile()
{
    auto *panel =
        new QFileDialog(this, tr("Choose a table"), {}, tr("Tables (*.csv *.tsv *.txt *.tab);;All files (*)"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    connect(panel, &QFileDialog::fileSelected, this, &TableSheet::openFile);
    panel->open();
}

void TableSheet::choosePlace()
{
    auto *panel = new QFileDialog(this, tr("Choose a destination"), m_location);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    connect(panel, &QFileDialog::fileSelected, this, [this](const QString &folder) {
        m_location = folder;
        m_table.rows.isEmpty() ? showSummary() : look(m_table);
    });
    panel->open();
}

void TableSheet::openFile(const QString &path)
{
    const auto bytes = platform::resultInBackground([&] { return std::optional(platform::readFile(path)); });
    if (*bytes)
        read(**bytes);
    else
        tell(bytes->outcome().description());
}

void TableSheet::paste()
{
    read(QApplication::clipboard()->text().toUtf8());
}

void TableSheet::read(const QByteArray &bytes)
{
    const auto table = readTable(bytes);
    if (!table)
        return tell(table.outcome().sentence());
    look(*table);
}

/// One at a time; what has changed meanwhile is looked at once more.
void TableSheet::look(const ProjectTable &table)
{
    m_table = table;
    const quint64 look = ++m_looks;
    if (std::exchange(m_isLooking, true))
        return;
    const auto batch = std::make_shared<ProjectBatch>();
    BatchBase base = m_base;
    base.project = [project = m_base.project, location = m_location](const QString &name) {
        const auto request = project(name);
        if (!request)
            return request;
        ProjectRequest placed = *request;
        placed.location = location;
        return platform::Result<ProjectRequest>(placed);
    };
    platform::performBeside(
        [batch, base, table, cancelled = m_isOver] {
            *batch = ProjectBatch(table, base);
            batch->lookAtDisk(*cancelled);
        },
        [sheet = QPointer(this), batch, look] {
            if (!sheet)
                return;
            sheet->m_isLooking = false;
            if (look != sheet->m_looks)
                return sheet->m_table.rows.isEmpty() ? sheet->m_create->setEnabled(false) : sheet->look(sheet->m_table);
            sheet->show(std::move(*batch));
        });
    showSummary();
}

void TableSheet::show(ProjectBatch batch)
{
    const bool isFirst = m_model.batch().table().columns != batch.table().columns;
    m_model.setBatch(std::move(batch));
    const int letter = fontMetrics().averageCharWidth();
    for (int column = 0; column < m_model.columnCount() && isFirst; ++column)
        m_view->setColumnWidth(column, letter * (column == 0 ? firstColumnCharacters : cellCharacters));
    if (!m_view->currentIndex().isValid() && m_model.rowCount() > 0)
        m_view->setCurrentIndex(m_model.index(0, 0));
    showTree();
    showSummary();
}

void TableSheet::tell(const QString &problem)
{
    ++m_looks; // the table before is not what was asked for
    m_table = {};
    m_model.setBatch({});
    m_tree.setPlan({});
    showSummary();
    m_summary->setText(problem);
}

void TableSheet::showSummary()
{
    m_place->setText(m_location.isEmpty() ? tr("Please choose a folder.") : platform::forOneLine(m_location));
    const ProjectBatch &batch = m_model.batch();
    const qsizetype problems = batch.problemRows();
    const qsizetype good = batch.rows().size() - problems;
    QStringList lines;
    if (m_isLooking)
        lines.append(tr("Looking at the table…"));
    else if (!batch.rows().isEmpty())
        lines.append(problems == 0 ? tr("Projects: %L1").arg(good)
                                   : tr("Projects: %L1, with problems: %L2").arg(good).arg(problems));
    if (!batch.unknownColumns().isEmpty())
        lines.append(tr("No parameter is called: %1").arg(batch.unknownColumns().join(QStringLiteral(", "))));
    m_summary->setText(lines.join(QStringLiteral(" — ")));
    const bool mayBegin = good > 0 && (problems == 0 || manner() == BatchManner::GoOn);
    m_create->setEnabled(mayBegin && !m_isLooking && !m_location.isEmpty());
}

void TableSheet::showTree()
{
    const int row = m_view->currentIndex().row();
    if (row < 0 || row >= m_model.rowCount()) {
        ++m_trees;
        return m_tree.setPlan({});
    }
    const auto plan = std::make_shared<CreationPlan>();
    const quint64 asked = ++m_trees;
    const ProjectRequest request = m_model.batch().requestOf(row);
    platform::performBeside(
        [plan, request, cancelled = m_isOver] {
            if (!request.templateFiles.isEmpty())
                *plan = planCreation(request.templateFiles, request.planInput(), *cancelled);
        },
        [sheet = QPointer(this), plan, asked] {
            if (!sheet || sheet->m_trees != asked)
                return;
            sheet->m_tree.setPlan(std::move(*plan));
            if (sheet->m_tree.plan().tree.itemCount() <= mostOpened)
                sheet->m_treeView->expandAll();
        });
}
