#include "templates/editor/TemplatePane.h"

#include "parameters/ParameterStore.h"
#include "support/Settings.h"
#include "support/StudioCopy.h"
#include "support/VTAlert.h"
#include "support/VTFileManager.h"
#include "templates/EditingGuard.h"
#include "templates/VTDataController.h"
#include "templates/editor/RuleInspector.h"
#include "templates/editor/TreeFilter.h"
#include "ui/ElidedLabel.h"
#include "ui/Icons.h"
#include "ui/VTImageTextCell.h"
#include "ui_TemplatePane.h"

#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int defaultListWidth = 240;
constexpr int rowHeight = 24;
constexpr int dotSide = 16;
constexpr int labelCount = 7;
constexpr double disabledOpacity = 0.35;

QColor labelColor(int tag)
{
    const auto color = VTFileManager::finderColorForIndex(tag * 2);
    return QColor::fromHsvF(static_cast<float>(color->hue), static_cast<float>(color->saturation),
                            static_cast<float>(color->brightness));
}

/// A dot in the label's colour; for none, a ring.
QIcon labelIcon(int tag, const QPalette &palette)
{
    QIcon icon;
    for (const auto &[ratio, mode] : {std::pair(1, QIcon::Normal),
                                      {2, QIcon::Normal},
                                      {3, QIcon::Normal},
                                      {1, QIcon::Disabled},
                                      {2, QIcon::Disabled},
                                      {3, QIcon::Disabled}}) {
        QPixmap pixmap(dotSide * ratio, dotSide * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(mode == QIcon::Normal ? 1
                                                 : disabledOpacity); // the style's own would shine in a dark palette
        QColor ring = palette.color(QPalette::WindowText);
        ring.setAlphaF(tag == 0 ? 0.7F : 0.3F);
        painter.setPen(QPen(ring, tag == 0 ? 1.25 : 1));
        painter.setBrush(tag == 0 ? QBrush(Qt::NoBrush) : QBrush(labelColor(tag)));
        painter.drawEllipse(QRectF(2.5, 2.5, dotSide - 5, dotSide - 5));
        painter.end();
        icon.addPixmap(pixmap, mode);
    }
    return icon;
}

constexpr QAbstractItemView::EditTriggers namesAreEdited =
    QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed;
/// Duplicate, rename, remove: of the items' commands those after the first.
constexpr qsizetype changingItems = 3;

QAction *addTo(QWidget &widget, const QString &text, const QList<QKeySequence> &keys)
{
    auto *action = new QAction(text, &widget);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut); // not while a name is typed, whose editor is a child of the view
    widget.addAction(action);
    return action;
}

} // namespace

TemplatePane::TemplatePane(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::TemplatePane>())
    , m_outline(m_history)
    , m_table(m_outline, m_history)
    , m_toggleDefault(new QAction(this))
    , m_addMenu(new QMenu(this))
    , m_studioLine(new ElidedLabel(this))
{
    m_ui->setupUi(this);
    m_ui->splitter->setStretchFactor(0, 0);
    m_ui->splitter->setStretchFactor(1, 1);
    const auto width = settings::templateListWidth.number();
    m_ui->splitter->setSizes({width > 0 ? static_cast<int>(width) : defaultListWidth, 10'000});
    connect(m_ui->splitter, &QSplitter::splitterMoved, this,
            [](int position) { static_cast<void>(settings::templateListWidth.store(qlonglong{position})); }); // no loss
    for (QToolButton *button : {m_ui->newTemplateButton, m_ui->addButton})
        button->setIcon(icons::named("add"));
    for (QToolButton *button : {m_ui->removeTemplateButton, m_ui->removeButton})
        button->setIcon(icons::named("remove"));
    m_studioLine->setText(settings::lockedText());
    m_ui->treeBarLayout->insertWidget(m_ui->treeBarLayout->indexOf(m_ui->treeBarSpacer), m_studioLine, 100);
    buildLabels();
    buildTable();
    buildOutline();
    buildInspector();
}

TemplatePane::~TemplatePane()
{
    m_outline.waitForImports();
}

void TemplatePane::awakeFromNib()
{
    m_outline.awakeFromNib();
    m_table.awakeFromNib();
}

void TemplatePane::buildTable()
{
    auto *table = m_ui->templateTable;
    table->setItemDelegate(new VTImageTextCell(table));
    table->horizontalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(qMax(rowHeight, fontMetrics().height() + 8));
    table->setShowGrid(false);
    table->setEditTriggers(namesAreEdited);
    table->setTabKeyNavigation(false);
    m_table.setViews(table, m_toggleDefault);

    auto *menu = new QMenu(this);
    const auto item = [&](const QString &text, const QList<QKeySequence> &keys, auto slot) {
        QAction *action = addTo(*table, text, keys);
        connect(action, &QAction::triggered, &m_table, slot);
        menu->addAction(action);
        return action;
    };
    using Table = VTTemplateTableController;
    m_changing = {item(tr("&New Template"), {}, &Table::createNewTemplate)};
    m_forTemplate = {item(tr("D&uplicate"), {Qt::CTRL | Qt::Key_D}, &Table::duplicateTemplate),
                     item(tr("Re&name"), {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}, &Table::editSelectedName),
                     item(tr("&Remove…"), {}, &Table::removeTemplate)};
    m_changing += m_forTemplate;
    menu->addSeparator();
    menu->addAction(m_toggleDefault);
    connect(m_toggleDefault, &QAction::triggered, &m_table, &Table::toggleDefault);
    m_forTemplate +=
        {m_toggleDefault, item(tr("&Show in File Manager"), {Qt::CTRL | Qt::Key_R}, &Table::revealTemplateInFinder)};
    m_listActions = m_forTemplate;
    table->setContextMenu(menu);

    connect(m_ui->newTemplateButton, &QToolButton::clicked, &m_table, &Table::createNewTemplate);
    connect(m_ui->removeTemplateButton, &QToolButton::clicked, &m_table, &Table::removeTemplate);
    connect(&m_table, &Table::selectionChanged, this, [this](bool any) {
        const bool mayChange = !greyForStudio();
        m_ui->newTemplateButton->setEnabled(mayChange);
        m_ui->removeTemplateButton->setEnabled(any && mayChange);
        m_changing.constFirst()->setEnabled(mayChange);
        for (QAction *action : std::as_const(m_forTemplate))
            action->setEnabled(any && (mayChange || !m_changing.contains(action)));
        if (settings::defaultTemplate.isLocked())
            m_toggleDefault->setEnabled(false);
    });
}

void TemplatePane::buildOutline()
{
    auto *outline = m_ui->outlineView;
    outline->setItemDelegate(new VTImageTextCell(outline));
    using Outline = VTTemplateOutlineController;
    const auto addItem = [this](const char *icon, const QString &text, auto slot) {
        QAction *action = m_addMenu->addAction(icons::named(icon), text);
        connect(action, &QAction::triggered, &m_outline, slot);
    };
    m_addMenu->addSeparator();
    addItem("folder", tr("New &Folder"), &Outline::addFolder);
    addItem("import", tr("Import F&iles and Folders…"), &Outline::showImportFileDialog);
    addItem("import", tr("Import Folder &Structure…"), &Outline::showImportFolderStructureDialog);
    m_outline.setViews({outline, m_ui->addButton, m_addMenu, m_ui->importSpinner});

    auto *menu = new QMenu(this);
    const auto item = [&](const QString &text, const QList<QKeySequence> &keys, auto slot) {
        QAction *action = addTo(*outline, text, keys);
        connect(action, &QAction::triggered, &m_outline, slot);
        menu->addAction(action);
        return action;
    };
    const QList<QAction *> adding{
        item(tr("New &Folder"), {Qt::CTRL | Qt::SHIFT | Qt::Key_N}, &Outline::addFolder),
        item(tr("New Folder &Beside"), {Qt::CTRL | Qt::ALT | Qt::Key_N}, &Outline::addFolderBeside)};
    menu->addSeparator();
    QAction *cut = item(tr("Cu&t"), {QKeySequence::Cut}, &Outline::cutItems);
    QAction *copy = item(tr("&Copy"), {QKeySequence::Copy}, &Outline::copyItems);
    m_paste = item(tr("&Paste"), {QKeySequence::Paste}, &Outline::paste);
    QAction *find = addTo(*this, tr("&Filter"), {QKeySequence::Find});
    find->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_editActions = {cut, copy, m_paste, find};
    menu->addSeparator();
    m_forItems = {item(tr("&Open"), {Qt::CTRL | Qt::Key_O}, &Outline::openSelectedFiles),
                  item(tr("D&uplicate"), {Qt::CTRL | Qt::Key_D}, &Outline::duplicateFiles),
                  item(tr("Re&name"), {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}, &Outline::editSelectedName),
                  item(tr("&Remove…"), {}, &Outline::removeFiles)};
    menu->addSeparator();
    menu->addMenu(labelMenu());
    m_forItems += item(tr("&Show in File Manager"), {Qt::CTRL | Qt::Key_R}, &Outline::revealFilesInFinder);
    m_changing += adding + m_labels + QList<QAction *>{cut, m_paste} + m_forItems.mid(1, changingItems);
    m_treeActions = adding + m_forItems;
    m_forItems += {cut, copy};
    outline->setContextMenu(menu);
    outline->setTopLevelName(tr("Drop here for the top level"));
    m_filter = new TreeFilter(*outline, *m_ui->filterLine, this);
    connect(find, &QAction::triggered, m_filter, &TreeFilter::begin);
    connect(&m_outline, &Outline::needsWholeTree, m_filter, &TreeFilter::clear);

    connect(m_ui->addButton, &QToolButton::clicked, this, [this] {
        m_table.finishEditing();
        m_outline.showAddPopUp();
    });
    connect(m_ui->removeButton, &QToolButton::clicked, &m_outline, &Outline::removeFiles);
    connect(&m_outline, &Outline::selectionChanged, this, [this, adding](qsizetype count, bool isLoaded) {
        const bool mayChange = !studio::decidesTemplates();
        for (QAction *action : adding + QList<QAction *>{m_paste})
            action->setEnabled(isLoaded && mayChange);
        setTreeSelection(count, isLoaded);
    });
}

void TemplatePane::buildInspector()
{
    m_rules = addTo(*this, tr("&Rules"), {Qt::CTRL | Qt::Key_I});
    m_rules->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_rules->setCheckable(true);
    m_rules->setIcon(icons::named("rules"));
    m_rules->setToolTip(tr("Rules of the template and its items (Ctrl+I)"));
    m_treeActions.append(m_rules);
    auto *button = new QToolButton(this);
    button->setDefaultAction(m_rules);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(tr("Rules"));
    m_ui->treeBarLayout->addWidget(button);
    connect(m_rules, &QAction::triggered, this, [this](bool shown) {
        showInspector(shown);
        static_cast<void>(settings::showRules.turn(shown)); // logged; it is shown all the same
    });
    using Outline = VTTemplateOutlineController;
    auto *inspector = m_ui->inspector;
    connect(&m_outline, &Outline::needsWholeTree, inspector, &RuleInspector::finishEditing); // before another template
    connect(&m_outline, &Outline::rulesChanged, this, &TemplatePane::updateInspector);
    connect(&m_outline, &Outline::selectionChanged, this, &TemplatePane::updateInspector);
    connect(inspector, &RuleInspector::ruleEdited, this, [this](const ItemRule &rule) {
        m_outline.changeRules(tr("Rule"), [&](TemplateRules &rules) { rules.setRule(rule); });
    });
    connect(inspector, &RuleInspector::templateEdited, this, [this](bool fillsNames, const QStringList &patterns) {
        m_outline.changeRules(tr("Rule"), [&](TemplateRules &rules) {
            rules.fillsNames = fillsNames;
            rules.textPatterns = patterns;
        });
    });
    connect(inspector, &RuleInspector::goneRemoved, this, [this](const QString &path) {
        m_outline.changeRules(tr("Rule"), [&](TemplateRules &rules) { rules.setRule({path}); });
    });
    connect(inspector, &RuleInspector::setAsideWanted, &m_outline, &Outline::setRulesAside);
    connect(inspector, &RuleInspector::parametersWanted, this, &TemplatePane::parametersWanted);
    showInspector(settings::showRules.isOn());
}

void TemplatePane::showInspector(bool shown)
{
    m_rules->setChecked(shown);
    m_ui->inspector->setVisible(shown);
    updateInspector();
}

void TemplatePane::updateInspector()
{
    if (m_ui->inspector->isHidden())
        return;
    RuleInspector::State state;
    const auto &read = m_outline.rules();
    state.rules = read.rules;
    state.isLoaded = !m_outline.baseFilename().isNull() && read.isRead;
    if (!read.problem.ok())
        state.problem = tr("The rules cannot be read: %1").arg(read.problem.description());
    state.item = m_outline.selectedItem();
    const TemplateNode *node = TemplateTreeModel::nodeAt(m_ui->outlineView->currentIndex());
    state.isFolder = node && node->isFolderItem();
    state.gone = read.gone;
    for (const FilenameParameter &parameter :
         storedParameters({{}, parametersFromVariant(state.rules.parameters), {}, state.rules.hidden}))
        state.titles.append(parameter.title());
    m_ui->inspector->show(state);
}

void TemplatePane::setTreeSelection(qsizetype count, bool isLoaded)
{
    const bool mayChange = !studio::decidesTemplates();
    m_ui->addButton->setEnabled(isLoaded && mayChange);
    m_ui->removeButton->setEnabled(count > 0 && mayChange);
    for (QAction *action : m_forItems + m_labels)
        action->setEnabled(count > 0 && (mayChange || !m_changing.contains(action)));
    const QString none =
        mayChange ? tr("Make a template with the plus sign on the left.") : tr("Your studio shares no templates yet.");
    const QString hint = m_table.rowCount() > 0 ? tr("Select a template on the left.") : none;
    const QString empty = mayChange ? tr("Drop files and folders here, or add a folder.") : tr("It is empty.");
    m_ui->outlineView->setPlaceholder(isLoaded ? empty : hint);
}

/// Whether the studio's templates are shown: all can be looked at, and nothing changed.
bool TemplatePane::greyForStudio()
{
    const bool isStudios = studio::decidesTemplates();
    m_studioLine->setVisible(isStudios);
    for (int i = 0; i < m_ui->labelsLayout->count(); ++i) // grey, they would only take its room
        m_ui->labelsLayout->itemAt(i)->widget()->setVisible(!isStudios);
    m_ui->inspector->widget()->setEnabled(!isStudios);
    m_ui->templateTable->setEditTriggers(isStudios ? QAbstractItemView::NoEditTriggers : namesAreEdited);
    m_ui->outlineView->setEditTriggers(isStudios ? QAbstractItemView::NoEditTriggers
                                                 : QAbstractItemView::EditTriggers(QAbstractItemView::EditKeyPressed));
    return isStudios;
}

void TemplatePane::buildLabels()
{
    for (int tag = 0; tag <= labelCount; ++tag) {
        const QString name = tag == 0 ? tr("No label") : tr("Label %1").arg(VTFileManager::labelName(tag * 2));
        auto *action = new QAction(name, this);
        action->setShortcut(Qt::CTRL | Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + tag));
        action->setShortcutContext(Qt::WidgetShortcut);
        m_ui->outlineView->addAction(action);
        connect(action, &QAction::triggered, &m_outline, [this, tag] { m_outline.colorCodeFiles(tag); });
        m_labels.append(action);
    }
    for (int place = 1; place <= labelCount + 1; ++place) { // the seven, then none
        QAction *action = m_labels[place % (labelCount + 1)];
        auto *button = new QToolButton(this);
        button->setDefaultAction(action);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
        button->setAccessibleName(action->text());
        m_ui->labelsLayout->addWidget(button);
    }
    drawLabels();
}

void TemplatePane::drawLabels()
{
    for (int tag = 0; tag <= labelCount; ++tag)
        m_labels[tag]->setIcon(labelIcon(tag, palette()));
}

QMenu *TemplatePane::labelMenu()
{
    auto *menu = new QMenu(tr("&Label"), this);
    menu->addActions(m_labels.mid(1));
    menu->addAction(m_labels.first());
    return menu;
}

void TemplatePane::finishEditing()
{
    m_ui->inspector->finishEditing();
    m_table.finishEditing();
    m_outline.finishEditing();
}

void TemplatePane::followDisk()
{
    if (isVisible() && !m_ui->templateTable->isEditing() && !m_outline.isEditing() && !m_outline.isImporting())
        m_table.readAnew();
}

void TemplatePane::undo()
{
    finishEditing();
    const QString name = m_history.undoName();
    if (name.isNull() || !editingIsAllowed())
        return;
    showAfter(m_history.undo(), tr("“%1” cannot be undone").arg(name));
}

void TemplatePane::redo()
{
    finishEditing();
    const QString name = m_history.redoName();
    if (name.isNull() || !editingIsAllowed())
        return;
    showAfter(m_history.redo(), tr("“%1” cannot be done again").arg(name));
}

void TemplatePane::showAfter(const platform::Outcome &outcome, const QString &sentence)
{
    m_table.readAnew();
    Q_EMIT m_table.populateTemplatePopUp();
    if (!outcome.ok() && !outcome.is(platform::Cause::Declined))
        VTAlert::show({sentence, outcome.description()});
}

void TemplatePane::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_labels.isEmpty())
        drawLabels();
}
