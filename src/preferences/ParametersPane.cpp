#include "preferences/ParametersPane.h"

#include "ui/LockedControls.h"

#include "parameters/table/ParameterDetails.h"

#include "parameters/ParameterList.h"
#include "parameters/ParameterStore.h"
#include "parameters/ValueRules.h"
#include "platform/base/LocalTime.h"
#include "support/Notifications.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "ui/FilePanels.h"
#include "ui/Icons.h"
#include "ui/ValueCellDelegate.h"
#include "ui_Prefs_Dialog.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QMimeData>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <ctime>
#include <memory>

using parameterlist::Column;

namespace {

constexpr int rowHeight = 28;
constexpr int longestSeparator = 10;
const QStringList separators{"_", "-", ".", " "};

/// A blank in a list would be an empty row.
class BlankNamer : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant &value, const QLocale &) const override
    {
        return value.toString() == u" " ? ParametersPane::tr("(blank)") : value.toString();
    }
};

} // namespace

ParametersPane::ParametersPane(Ui::Prefs_Dialog &ui, QWidget &window)
    : QObject(&window)
    , m_ui(ui)
    , m_window(window)
{
    setUpTable();
    m_ui.addParameter->setIcon(icons::named("add"));
    m_ui.removeParameter->setIcon(icons::named("remove"));
    connect(m_ui.addParameter, &QToolButton::clicked, this, &ParametersPane::addNewFilenameParam);
    connect(m_ui.removeParameter, &QToolButton::clicked, this, &ParametersPane::removeFilenameParam);
    connect(m_ui.parameterDetails, &QPushButton::clicked, this, &ParametersPane::showDetails);
    connect(m_ui.restoreParameters, &QPushButton::clicked, &m_parameters, &ParameterEditorModel::restoreDefaultParams);

    auto *separator = m_ui.separator;
    separator->addItems(separators);
    separator->lineEdit()->setAccessibleName(separator->accessibleName());
    separator->setInsertPolicy(QComboBox::NoInsert);
    separator->setItemDelegate(new BlankNamer(separator));
    separator->setEditText(settings::separatorChar.text());
    // Neither can be in a folder's name, so neither would be seen again.
    separator->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[^/:]{0,%1}").arg(longestSeparator)), separator));
    connect(separator, &QComboBox::editTextChanged, this, &ParametersPane::changeSeparator);
    connect(m_ui.dateFormatPopUp, &QComboBox::activated, this, &ParametersPane::changeDateFormat);
    connect(m_ui.dateFormatText, &QLineEdit::textChanged, this, &ParametersPane::changeCustomDateFormat);
    populateDateFormats();
    connect(&Notifications::hub(), &Notifications::settingsWritten, this, &ParametersPane::follow);
    greyWhatIsLocked();
}

void ParametersPane::greyWhatIsLocked()
{
    greyWhereLocked(settings::filenameTemplate, {m_ui.parameterTable, m_ui.addParameter, m_ui.removeParameter,
                                                 m_ui.parameterDetails, m_ui.restoreParameters});
    greyWhereLocked(settings::separatorChar, {m_ui.separator});
    greyWhereLocked(settings::dateFormat, {m_ui.dateFormatPopUp, m_ui.dateFormatText});
    sayWhereGrey(*m_ui.hintGreyParameters);
}

/// What is being typed here stays; it is stored when it is finished, and all else comes then.
void ParametersPane::follow()
{
    if (m_ui.parameterTable->indexWidget(m_ui.parameterTable->currentIndex()))
        return;
    greyWhatIsLocked();
    if (const QString separator = settings::separatorChar.text();
        m_ui.separator->currentText() != separator && !m_ui.separator->hasFocus()) {
        const QSignalBlocker quiet(m_ui.separator);
        m_ui.separator->setEditText(separator);
    }
    if (settings::dateFormat.text() != m_ui.dateFormatText->text() && !m_ui.dateFormatText->hasFocus())
        showDateFormat();
    m_parameters.reload();
}

void ParametersPane::setUpTable()
{
    auto *table = m_ui.parameterTable;
    table->setModel(&m_parameters);
    table->setItemDelegate(new ValueCellDelegate(table));
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                           QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
    table->setDragDropMode(QAbstractItemView::DragDrop);
    table->setDragDropOverwriteMode(false);
    table->setDefaultDropAction(Qt::MoveAction);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(qMax(rowHeight, table->fontMetrics().height() + 12));
    auto *header = table->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(static_cast<int>(Column::Kind), QHeaderView::Fixed);
    table->setColumnWidth(static_cast<int>(Column::Kind), table->fontMetrics().horizontalAdvance(tr("User name")) + 48);
    header->setSectionResizeMode(static_cast<int>(Column::Title), QHeaderView::Stretch);
    header->setSectionResizeMode(static_cast<int>(Column::Default), QHeaderView::Stretch);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setHighlightSections(false);
    const auto key = [&](const QList<QKeySequence> &keys, auto slot) {
        auto *action = new QAction(&m_window);
        action->setShortcuts(keys); // in an editor they are the line's own
        connect(action, &QAction::triggered, this, slot);
        m_window.addAction(action);
    };
    key({QKeySequence(Qt::CTRL | Qt::Key_Z)}, [this, table] {
        if (table->isEnabled())
            m_parameters.undo();
    });
    key({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)}, [this, table] {
        if (table->isEnabled())
            m_parameters.redo();
    });
    key({QKeySequence(Qt::ALT | Qt::Key_Up)}, [this] { moveSelected(-1); });
    key({QKeySequence(Qt::ALT | Qt::Key_Down)}, [this] { moveSelected(1); });
    table->setTabKeyNavigation(false); // Tab leads out of the table; the arrows lead around in it
    table->setWatchDelegate(this);
    table->addWatchKeys(WatchKeys::deleteKeys(), "removeFilenameParam");
    connect(&m_parameters, &ParameterEditorModel::listChanged, this, &ParametersPane::showPreview);
    connect(table, &QAbstractItemView::clicked, this, &ParametersPane::openKinds);
    connect(&m_parameters, &ParameterEditorModel::rowsDropped, this, [table](const QList<int> &rows) {
        table->clearSelection();
        for (const int row : rows)
            table->selectionModel()->select(table->model()->index(row, 0),
                                            QItemSelectionModel::Select | QItemSelectionModel::Rows);
    });
}

/// One click, as on any list to choose from.
void ParametersPane::openKinds(const QModelIndex &clicked)
{
    auto *table = m_ui.parameterTable;
    if (clicked.column() != static_cast<int>(Column::Kind) || !clicked.flags().testFlag(Qt::ItemIsEditable))
        return;
    if (!table->indexWidget(clicked))
        table->edit(clicked);
    if (auto *kinds = qobject_cast<QComboBox *>(table->indexWidget(clicked)))
        kinds->showPopup();
}

/// The order of the parameters, from the keyboard.
void ParametersPane::moveSelected(int by)
{
    auto *table = m_ui.parameterTable;
    const auto row = table->firstSelectedRow();
    if (!row || !table->isVisible() || !table->isEnabled() || *row + by < 0 || *row + by >= m_parameters.rowCount())
        return;
    const std::unique_ptr<QMimeData> dragged(m_parameters.mimeData({m_parameters.index(*row, 0)}));
    m_parameters.dropMimeData(dragged.get(), Qt::MoveAction, by < 0 ? *row - 1 : *row + 2, 0, {});
    table->setCurrentIndex(m_parameters.index(*row + by, 0));
}

void ParametersPane::finishEditing()
{
    m_ui.parameterTable->finishEditing();
}

void ParametersPane::addNewFilenameParam()
{
    auto *table = m_ui.parameterTable;
    const QModelIndex title = m_parameters.index(m_parameters.addNewFilenameParam(), 0);
    table->scrollTo(title);
    table->setCurrentIndex(title);
    table->setFocus();
    table->edit(title);
}

void ParametersPane::removeFilenameParam()
{
    QList<int> rows;
    for (const QModelIndex &row : m_ui.parameterTable->selectionModel()->selectedRows())
        rows.append(row.row());
    if (rows.isEmpty())
        return;
    const int answer = VTAlert::show({tr("Are you sure you wish to remove this parameter?"),
                                      tr("Ctrl+Z brings it back for as long as this window is open."),
                                      tr("Remove"),
                                      tr("Cancel"),
                                      {},
                                      VTAlert::alternateReturn},
                                     &m_window);
    if (answer == VTAlert::defaultReturn)
        m_parameters.remove(rows);
}

void ParametersPane::showDetails()
{
    finishEditing();
    const auto row = m_ui.parameterTable->firstSelectedRow();
    if (!row)
        return;
    const FilenameParameter shown = m_parameters.list().value(*row);
    auto *details = new ParameterDetails(shown, &m_window);
    whenLeft<ParameterDetails>(*details, *this, [this, shown, row](const ParameterDetails &left, bool accepted) {
        const FilenameParameters now = m_parameters.list();
        if (accepted && *row < now.size() && now[*row].title() == shown.title())
            m_parameters.replace(*row, left.parameter());
    });
    details->open();
}

void ParametersPane::changeSeparator(const QString &typed)
{
    if (!settings::checked(settings::separatorChar, typed))
        return;
    static_cast<void>(settings::separatorChar.store(typed)); // logged; the preview shows what is stored
    ParameterEditorModel::notify();
    showPreview();
}

void ParametersPane::populateDateFormats()
{
    auto *popUp = m_ui.dateFormatPopUp;
    const std::time_t now = std::time(nullptr);
    for (const QString &format : parameterlist::dateFormats())
        popUp->addItem(platform::formatDate(format, now), format);
    popUp->addItem(tr("Custom"));
    showDateFormat();
}

void ParametersPane::showDateFormat()
{
    auto *popUp = m_ui.dateFormatPopUp;
    const QString stored = settings::dateFormat.text();
    const int known = popUp->findData(stored);
    popUp->setCurrentIndex(known >= 0 ? known : popUp->count() - 1);
    m_ui.dateFormatText->setText(stored);
    m_ui.dateFormatText->setVisible(known < 0);
    changeCustomDateFormat();
}

void ParametersPane::changeDateFormat()
{
    const QString format = m_ui.dateFormatPopUp->currentData().toString();
    m_ui.dateFormatText->setVisible(format.isNull());
    if (!format.isNull()) {
        m_ui.dateFormatText->setText(format);
        static_cast<void>(settings::dateFormat.store(format)); // logged; the preview shows what is stored
    } else {
        m_ui.dateFormatText->setFocus();
    }
    ParameterEditorModel::notify();
    changeCustomDateFormat();
}

/// While it is typed: the effect is said, and stored where it is one.
void ParametersPane::changeCustomDateFormat()
{
    const bool isCustom = m_ui.dateFormatText->isVisibleTo(&m_window);
    const QString format = m_ui.dateFormatText->text();
    const QString today = rules::dateValue(format, std::time(nullptr));
    const auto checked = settings::checked(settings::dateFormat, format);
    QString hint = checked ? tr("Today: %1").arg(today) : checked.outcome().sentence();
    if (checked && (today.contains(u'/') || today.contains(u':')))
        hint = tr("Slashes and colons are left out of folder names: it will be less than %1.").arg(today);
    m_ui.hintDate->setText(isCustom ? hint : QString());
    m_ui.hintDate->setVisible(isCustom);
    if (isCustom && checked && format != settings::dateFormat.text()) {
        static_cast<void>(settings::dateFormat.store(format)); // logged; the preview shows what is stored
        ParameterEditorModel::notify();
    }
    showPreview();
}

void ParametersPane::showPreview()
{
    const QString path = pathNameFromParameters();
    m_ui.parametersPreview->setPath(u'/' + path);
    m_ui.parametersPreview->setToolTip(path);
    m_ui.removeParameter->setEnabled(m_parameters.rowCount() > 0 && m_ui.parameterTable->isEnabled());
}
