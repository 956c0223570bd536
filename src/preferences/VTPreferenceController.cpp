// The preferences window, its General and its Project pane.
#include "preferences/VTPreferenceController.h"

#include "platform/FileSystem.h"
#include "platform/FormatString.h"
#include "platform/NativePath.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTAuthorization.h"
#include "support/VTFileManager.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"
#include "ui/Icons.h"
#include "ui_Prefs_Dialog.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QToolButton>

using platform::formatString;
using platform::joined;

namespace {

constexpr int toolbarIconSide = 24;
constexpr std::chrono::seconds movePatience{10};

/// What is not self-evident is said small and fainter.
void dressHints(const QWidget &window)
{
    for (QLabel *label : window.findChildren<QLabel *>()) {
        if (!label->objectName().startsWith(QLatin1String("hint")))
            continue;
        QFont font = label->font();
        font.setPointSizeF(font.pointSizeF() * 0.9);
        label->setFont(font);
        QPalette palette = label->palette();
        QColor faint = palette.color(QPalette::WindowText);
        faint.setAlphaF(0.7F);
        palette.setColor(QPalette::WindowText, faint);
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
    resize(fontMetrics().averageCharWidth() * 92, fontMetrics().height() * 31); // every pane, at any font size
    awakeFromNib();
}

VTPreferenceController::~VTPreferenceController()
{
    hide(); // takes what is being typed while there is still something to take it to
    tellDelegate("enablePrefsMenu");
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
    bindGeneral();
    bindProject();
    bindParameters();
    toolbarGeneral();
    populateDateFormats();
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
    close->setShortcuts({QKeySequence(QKeySequence::Close), QKeySequence(Qt::Key_Escape)});
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
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

void VTPreferenceController::bindSwitch(QCheckBox *box, const QString &key, const QVariant &on, const QVariant &off)
{
    box->setChecked(settings::standard().boolean(key));
    connect(box, &QCheckBox::toggled, this,
            [key, on, off](bool checked) { settings::standard().setValue(key, checked ? on : off); });
}

void VTPreferenceController::bindAdminSwitch(QCheckBox *box, const QString &key)
{
    if (settings::standard().equalsOne(key))
        box->setChecked(true);
    connect(box, &QCheckBox::clicked, this, [this, box, key](bool on) { prefsToggleAdminPass(box, key, on); });
}

void VTPreferenceController::prefsToggleAdminPass(QCheckBox *box, const QString &key, bool on)
{
    auto &authorization = VTAuthorization::sharedController();
    if (!on) { // asked afresh each time, never taken from an earlier one
        authorization.authEnd();
        if (!authorization.authStart()) {
            box->setChecked(true);
            return;
        }
    }
    settings::standard().setMachineWideValue(key, on ? 1LL : 0LL);
}

void VTPreferenceController::bindGeneral()
{
    m_ui->prefsTemplatePath->setText(platform::forDisplay(VTDataController::templateLocation()));
    connect(m_ui->prefsTemplatePath, &QLineEdit::editingFinished, this, [this] {
        if (m_ui->prefsTemplatePath->text() != platform::forDisplay(VTDataController::templateLocation()))
            modifyTemplatePath(m_ui->prefsTemplatePath->text());
    });
    connect(m_ui->browseTemplates, &QPushButton::clicked, this,
            [this] { browse(tr("Choose the Template Library"), &VTPreferenceController::modifyTemplatePath); });
    bindSwitch(m_ui->autoOpenFolder, settings::autoOpenFolder, 1LL, 0LL);
    bindSwitch(m_ui->autoQuit, settings::autoQuit, 1LL, 0LL);
    bindSwitch(m_ui->autoExpandFolders, settings::autoExpandFolders, 1LL, 0LL);
    bindAdminSwitch(m_ui->prefsAdminPass, settings::requireAdminPassword);
    bindAdminSwitch(m_ui->prefsAdminPassEditing, settings::requireAdminPasswordForEditing);
    bindAdminSwitch(m_ui->prefsAdminPassPrefs, settings::requireAdminPasswordForPrefs);
}

void VTPreferenceController::bindProject()
{
    auto &defaults = settings::standard();
    m_ui->prefsFixedPath->setText(platform::forDisplay(defaults.string(settings::fixedProjectLocationPath)));
    connect(m_ui->prefsFixedPath, &QLineEdit::editingFinished, this, [this] {
        if (m_ui->prefsFixedPath->isModified())
            modifyFixedPath(m_ui->prefsFixedPath->text());
        m_ui->prefsFixedPath->setModified(false);
    });
    connect(m_ui->browseFixed, &QPushButton::clicked, this,
            [this] { browse(tr("Choose the Project Location"), &VTPreferenceController::modifyFixedPath); });
    bindSwitch(m_ui->useFixedProjectLocation, settings::useFixedProjectLocation, 1LL, 0LL);
    m_ui->useFixedProjectLocation->setChecked(defaults.equalsOne(settings::useFixedProjectLocation));
    bindSwitch(m_ui->strictNaming, settings::strictNaming, true, false);
}

void VTPreferenceController::browse(const QString &title, void (VTPreferenceController::*chosen)(const QString &))
{
    auto *panel = new QFileDialog(this, title);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    connect(panel, &QDialog::accepted, this, [this, panel, chosen] {
        panel->hide();
        (this->*chosen)(panel->selectedFiles().value(0));
    });
    panel->open();
}

QString VTPreferenceController::usablePath(const QString &typed)
{
    QString path = typed.trimmed();
    if (path == u"~" || path.startsWith(QLatin1String("~/")))
        path = VTLocalPaths::userDirectory() + path.mid(1);
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    QString problem;
    if (!path.startsWith(u'/'))
        problem = tr("Please type the whole path, from the first slash on, or choose a folder.");
    else if (VTFileManager::fileExistsAtPath(path) && !VTFileManager::isDirectoryAtPath(path))
        problem = tr("A file stands there. Please choose a folder.");
    if (problem.isNull())
        return path;
    VTAlert::alertSheetWithMessageText(formatString(tr("“%@” cannot be used"), typed), problem, this);
    return {};
}

void VTPreferenceController::makeFolder(const QString &path)
{
    if (VTFileManager::fileExistsAtPath(path) || VTFileManager::createDirectory(path))
        return;
    VTAlert::alertSheetWithMessageText(
        formatString(tr("Unable to create folder %@"), path),
        tr("Please check that you have write permissions for the destination directory."), this);
}

void VTPreferenceController::modifyTemplatePath(const QString &typed)
{
    const QString old = VTDataController::templateLocation();
    const QString path = usablePath(typed);
    if (path.isNull() || path == old) {
        m_ui->prefsTemplatePath->setText(platform::forDisplay(old));
        return;
    }
    settings::standard().setValue(settings::templateLocation, path);
    makeFolder(path);
    VTLog::appendLog("User changed template path from %@ to %@. Asking user to confirm moving over old files.", old,
                     path);
    if (!VTFileManager::isFolderEmpty(old))
        moveTemplates(old, path);
    VTDataController::sharedController().populateTemplates();
    m_ui->prefsTemplatePath->setText(platform::forDisplay(VTDataController::templateLocation()));
    Q_EMIT templateLocationChanged();
}

void VTPreferenceController::moveTemplates(const QString &from, const QString &to)
{
    const int answer = VTAlert::alertSheetWithMessageText(
        tr("Would you like to move your templates to the new location?"), tr("Move"), tr("Don't Move"), {},
        tr("Any templates outside of the new backup location will not be displayed in the Templates pane."), this,
        VTAlert::Block::Yes);
    if (answer != VTAlert::defaultReturn)
        return;
    VTLog::appendLog("User chose to move files");
    for (const auto &entry : platform::listFolder(from).value_or(QList<platform::FolderEntry>())) {
        const QString source = joined(from, entry.name);
        if (!entry.name.endsWith(QLatin1String(".tzt"), Qt::CaseInsensitive) ||
            VTFileManager::moveFile(source, joined(to, entry.name), movePatience))
            continue;
        VTAlert::alertSheetWithMessageText(
            formatString(tr("Unable to move file %@ to %@"), source, to),
            tr("Please check that you have write permissions for the destination directory."), this);
    }
}

void VTPreferenceController::modifyFixedPath(const QString &typed)
{
    const QString path = usablePath(typed);
    if (!path.isNull()) {
        settings::standard().setValue(settings::fixedProjectLocationPath, path);
        makeFolder(path);
        VTLog::appendLog("User changed project location path to %@.", path);
    }
    m_ui->prefsFixedPath->setText(
        platform::forDisplay(settings::standard().string(settings::fixedProjectLocationPath)));
}

void VTPreferenceController::closeEvent(QCloseEvent *event)
{
    // What is still being typed counts.
    if (QWidget *typing = focusWidget())
        typing->clearFocus();
    m_ui->parameterTable->finishEditing();
    QMainWindow::closeEvent(event);
    if (!event->isAccepted() || !std::exchange(m_isOpen, false))
        return;
    tellDelegate("enablePrefsMenu");
    ParameterEditorModel::notify();
    Q_EMIT closed();
}
