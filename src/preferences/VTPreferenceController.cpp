#include "preferences/VTPreferenceController.h"

#include "preferences/GeneralPane.h"
#include "preferences/ParametersPane.h"
#include "preferences/ProjectPane.h"
#include "support/VTLog.h"
#include "ui/Colours.h"
#include "ui/Icons.h"
#include "ui_Prefs_Dialog.h"

#include <QCloseEvent>
#include <QEvent>
#include <QKeyEvent>
#include <QToolButton>

namespace {

constexpr int toolbarIconSide = 24;

/// What is not self-evident is said small and fainter.
void dressHints(const QWidget &window)
{
    for (QLabel *label : window.findChildren<QLabel *>()) {
        if (!label->objectName().startsWith(QLatin1String("hint")))
            continue;
        QFont font = window.font();
        font.setPointSizeF(font.pointSizeF() * 0.9);
        label->setFont(font);
        QPalette palette = window.palette();
        palette.setColor(QPalette::WindowText,
                         secondaryText(palette.color(QPalette::Window), palette.color(QPalette::WindowText)));
        label->setPalette(palette);
    }
}

} // namespace

VTPreferenceController::VTPreferenceController(QObject *delegate, QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::Prefs_Dialog>())
    , m_delegate(delegate)
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->setupUi(this);
    dressHints(*this);
    awakeFromNib();
    // Every pane, at any font size and in any language, with the line about the studio where there is one.
    const int lines = m_ui->hintGreyGeneral->isHidden() ? 31 : 34;
    resize(fontMetrics().averageCharWidth() * 102, fontMetrics().height() * lines);
}

VTPreferenceController::~VTPreferenceController()
{
    hide(); // takes what is being typed while there is still something to take it to
    tellDelegate("enablePrefsMenu");
}

/// The desktop's colours and letters may change while they are open.
void VTPreferenceController::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        dressHints(*this);
}

void VTPreferenceController::tellDelegate(const char *operation)
{
    if (m_delegate && m_delegate->metaObject()->indexOfMethod(QByteArray(operation) + "()") >= 0)
        QMetaObject::invokeMethod(m_delegate, operation, Qt::DirectConnection);
}

void VTPreferenceController::awakeFromNib()
{
    tellDelegate("disablePrefsMenu");
    buildToolbar();
    m_general = new GeneralPane(*m_ui, *this);
    m_project = new ProjectPane(*m_ui, *this);
    m_parameters = new ParametersPane(*m_ui, *this);
    connect(m_general, &GeneralPane::templateLocationChanged, this, &VTPreferenceController::templateLocationChanged);
    connect(m_general, &GeneralPane::sharedSetupChanged, this, &VTPreferenceController::sharedSetupChanged);
    toolbarGeneral();
}

void VTPreferenceController::buildToolbar()
{
    m_ui->toolbar->setIconSize({toolbarIconSide, toolbarIconSide});
    const auto add = [this](const char *name, const char *icon, const QString &text, auto slot) {
        QAction *item = m_ui->toolbar->addAction(icons::named(icon), text);
        item->setObjectName(QLatin1String(name));
        item->setCheckable(true);
        item->setShortcut(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + m_items.size()));
        connect(item, &QAction::triggered, this, slot);
        m_items.append(item);
    };
    add("general", "preferences", tr("General"), &VTPreferenceController::toolbarGeneral);
    add("project", "new-project", tr("Project"), &VTPreferenceController::toolbarProject);
    add("parameters", "kind-text", tr("Parameters"), &VTPreferenceController::toolbarParameters);
    add("hotkeys", "hotkeys", tr("Hotkeys"), &VTPreferenceController::toolbarHotkeys);
    auto *close = new QAction(this);
    close->setShortcuts(QKeySequence::keyBindings(QKeySequence::Close));
    connect(close, &QAction::triggered, this, &QWidget::close);
    auto *quit = new QAction(this);
    quit->setShortcut(Qt::CTRL | Qt::Key_Q);
    connect(quit, &QAction::triggered, this, [this] {
        m_parameters->finishEditing();
        tellDelegate("quit");
    });
    addActions({close, quit});
}

QStringList VTPreferenceController::toolbarSelectableItemIdentifiers() const
{
    QStringList names;
    for (const QAction *item : m_items)
        names.append(item->objectName());
    return names;
}

void VTPreferenceController::showPane(QWidget *pane, const char *logLine)
{
    VTLog::appendLog(logLine);
    m_ui->panes->setCurrentWidget(pane);
    for (QAction *item : std::as_const(m_items))
        item->setChecked(m_items.indexOf(item) == m_ui->panes->currentIndex());
}

void VTPreferenceController::toolbarGeneral()
{
    showPane(m_ui->viewGeneral, "Switched to General prefs view");
}

void VTPreferenceController::toolbarProject()
{
    showPane(m_ui->viewProject, "Switched to Project prefs view");
}

void VTPreferenceController::toolbarParameters()
{
    showPane(m_ui->viewParameters, "Switched to Parameters prefs view");
}

void VTPreferenceController::toolbarHotkeys()
{
    showPane(m_ui->viewHotkeys, "Switched to Hotkeys prefs view");
}

void VTPreferenceController::modifyTemplatePath(const QString &path)
{
    m_general->modifyTemplatePath(path);
}

void VTPreferenceController::modifyFixedPath(const QString &path)
{
    m_project->modifyFixedPath(path);
}

/// What has a use of its own for Escape, an open list or an editor, has had it by then; as a shortcut it would come
/// first.
void VTPreferenceController::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QMainWindow::keyPressEvent(event);
}

void VTPreferenceController::closeEvent(QCloseEvent *event)
{
    m_parameters->finishEditing(); // what is still being typed counts, but for half a path
    QMainWindow::closeEvent(event);
    if (!event->isAccepted() || !std::exchange(m_isOpen, false))
        return;
    tellDelegate("enablePrefsMenu");
    ParameterEditorModel::notify();
    Q_EMIT closed();
}
