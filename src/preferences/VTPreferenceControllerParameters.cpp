// The Parameters pane: the list itself, the separator and the date format.
#include "preferences/VTPreferenceController.h"

#include "parameters/ProjectNaming.h"
#include "parameters/ValueRules.h"
#include "platform/LocalTime.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "ui/Icons.h"
#include "ui/ValueCellDelegate.h"
#include "ui_Prefs_Dialog.h"

#include <QHeaderView>
#include <QRegularExpressionValidator>
#include <ctime>

namespace {

constexpr int rowHeight = 28;
constexpr int longestSeparator = 10;
const QStringList separators{"_", "-", ".", " "};

} // namespace

void VTPreferenceController::bindParameters()
{
    auto *table = m_ui->parameterTable;
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
    table->verticalHeader()->setDefaultSectionSize(qMax(rowHeight, fontMetrics().height() + 12));
    auto *header = table->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(static_cast<int>(editor::Column::Kind), QHeaderView::Fixed);
    table->setColumnWidth(static_cast<int>(editor::Column::Kind),
                          fontMetrics().horizontalAdvance(tr("User name")) + 48);
    header->setSectionResizeMode(static_cast<int>(editor::Column::Title), QHeaderView::Stretch);
    header->setSectionResizeMode(static_cast<int>(editor::Column::Default), QHeaderView::Stretch);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setHighlightSections(false);
    m_ui->addParameter->setIcon(icons::named("add"));
    m_ui->removeParameter->setIcon(icons::named("remove"));
    connect(m_ui->addParameter, &QToolButton::clicked, this, &VTPreferenceController::addNewFilenameParam);
    connect(m_ui->removeParameter, &QToolButton::clicked, this, &VTPreferenceController::removeFilenameParam);
    connect(m_ui->restoreParameters, &QPushButton::clicked, &m_parameters, &ParameterEditorModel::restoreDefaultParams);
    table->setWatchDelegate(this);
    table->addWatchKeys({8, 127, 0xF73E, 0xF728, 0xF73C}, "removeFilenameParam");
    connect(&m_parameters, &ParameterEditorModel::listChanged, this, &VTPreferenceController::showPreview);
    connect(&m_parameters, &ParameterEditorModel::rowsDropped, this, [table](const QList<int> &rows) {
        table->clearSelection();
        for (const int row : rows)
            table->selectionModel()->select(table->model()->index(row, 0),
                                            QItemSelectionModel::Select | QItemSelectionModel::Rows);
    });

    auto *separator = m_ui->separator;
    separator->addItems(separators);
    separator->setEditText(settings::standard().string(settings::separatorChar));
    // Neither can be in a folder's name, so neither would be seen again.
    separator->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[^/:]{0,%1}").arg(longestSeparator)), separator));
    connect(separator, &QComboBox::editTextChanged, this, &VTPreferenceController::changeSeparator);
    connect(m_ui->dateFormatPopUp, &QComboBox::activated, this, &VTPreferenceController::changeDateFormat);
    connect(m_ui->dateFormatText, &QLineEdit::textChanged, this, &VTPreferenceController::changeCustomDateFormat);
}

void VTPreferenceController::addNewFilenameParam()
{
    auto *table = m_ui->parameterTable;
    const QModelIndex title = m_parameters.index(m_parameters.addNewFilenameParam(), 0);
    table->scrollTo(title);
    table->setCurrentIndex(title);
    table->setFocus();
    table->edit(title);
}

void VTPreferenceController::removeFilenameParam()
{
    QList<int> rows;
    for (const QModelIndex &row : m_ui->parameterTable->selectionModel()->selectedRows())
        rows.append(row.row());
    if (rows.isEmpty())
        return;
    const int answer =
        VTAlert::alertSheetWithMessageText(tr("Are you sure you wish to remove this parameter?"), tr("Remove"),
                                           tr("Cancel"), {}, tr("This cannot be undone."), this, VTAlert::Block::Yes);
    if (answer == VTAlert::defaultReturn)
        m_parameters.remove(rows);
}

void VTPreferenceController::changeSeparator(const QString &typed)
{
    settings::standard().setValue(settings::separatorChar, typed);
    ParameterEditorModel::notify();
    showPreview();
}

void VTPreferenceController::populateDateFormats()
{
    auto *popUp = m_ui->dateFormatPopUp;
    const std::time_t now = std::time(nullptr);
    for (const QString &format : editor::dateFormats())
        popUp->addItem(platform::formatDate(format, now), format);
    popUp->addItem(tr("Custom"));
    const QString stored = settings::standard().string(settings::dateFormat);
    const int known = popUp->findData(stored);
    popUp->setCurrentIndex(known >= 0 ? known : popUp->count() - 1);
    m_ui->dateFormatText->setText(stored);
    m_ui->dateFormatText->setVisible(known < 0);
    changeCustomDateFormat();
}

void VTPreferenceController::changeDateFormat()
{
    const QString format = m_ui->dateFormatPopUp->currentData().toString();
    m_ui->dateFormatText->setVisible(format.isNull());
    if (!format.isNull()) {
        m_ui->dateFormatText->setText(format);
        settings::standard().setValue(settings::dateFormat, format);
    } else {
        m_ui->dateFormatText->setFocus();
    }
    ParameterEditorModel::notify();
    changeCustomDateFormat();
}

/// While it is typed: the effect is said, and stored where it is one.
void VTPreferenceController::changeCustomDateFormat()
{
    const bool isCustom = m_ui->dateFormatText->isVisibleTo(this);
    const QString format = m_ui->dateFormatText->text();
    const QString today = rules::dateValue(format, std::time(nullptr));
    QString problem;
    if (today.trimmed().isEmpty() || format.count(u'%') == 0)
        problem = tr("This gives no date. %Y is the year, %m the month, %d the day.");
    else if (format.count(u'%') % 2 != 0 && format.endsWith(u'%'))
        problem = tr("The percent sign at the end has no letter behind it.");
    else if (today.contains(u'/') || today.contains(u':'))
        problem = tr("Slashes and colons are left out of folder names: it will be less than %1.").arg(today);
    m_ui->hintDate->setText(!isCustom ? QString() : problem.isNull() ? tr("Today: %1").arg(today) : problem);
    m_ui->hintDate->setVisible(isCustom);
    if (isCustom && format != settings::standard().string(settings::dateFormat) && !today.trimmed().isEmpty()) {
        settings::standard().setValue(settings::dateFormat, format);
        ParameterEditorModel::notify();
    }
    showPreview();
}

void VTPreferenceController::showPreview()
{
    const QString path = pathNameFromParameters();
    m_ui->parametersPreview->setPath(u'/' + path);
    m_ui->parametersPreview->setToolTip(path);
    m_ui->removeParameter->setEnabled(m_parameters.rowCount() > 0);
}
