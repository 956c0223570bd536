#include "preferences/GeneralPane.h"

#include "platform/base/FormatString.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileTree.h"
#include "platform/plain/CopyMonitor.h"
#include "preferences/BoundSwitch.h"
#include "preferences/FolderChoice.h"
#include "preferences/PathField.h"
#include "support/FileOperations.h"
#include "support/Notifications.h"
#include "support/StudioCopy.h"
#include "support/VTAlert.h"
#include "support/VTLog.h"
#include "templates/StudioLibrary.h"
#include "templates/VTDataController.h"
#include "ui/LockedControls.h"
#include "ui_Prefs_Dialog.h"

using platform::formatString;
using platform::joined;

namespace {

constexpr std::chrono::seconds movePatience{10};
constexpr qsizetype mostNamed = 5;

constexpr std::chrono::seconds patienceForOld{2};
constexpr std::chrono::seconds patienceForServer{15}; // it may be asleep

QStringList bundlesIn(const QString &folder)
{
    QStringList names;
    for (const auto &entry : fileoperations::entriesOf(folder)) {
        if (entry.name.endsWith(QLatin1String(".tzt"), Qt::CaseInsensitive))
            names.append(entry.name);
    }
    return names;
}

} // namespace

GeneralPane::GeneralPane(Ui::Prefs_Dialog &ui, QWidget &window)
    : QObject(&window)
    , m_window(window)
    , m_path(new PathField(*ui.prefsTemplatePath, *ui.hintTemplates,
                           {settings::templateLocation, [] { return VTDataController::templateLocation(); },
                            [this](const QString &typed) {
                                modifyTemplatePath(typed);
                            }}))
    , m_shared(new PathField(*ui.prefsSharedPath, *ui.hintShared,
                             {settings::sharedSetup, [] { return settings::sharedSetup.text(); },
                              [this](const QString &typed) {
                                  useSharedSetup(typed);
                              }}))
{
    connect(ui.browseShared, &QPushButton::clicked, this, [this] {
        folderchoice::browse(m_window, tr("Choose the Shared Set-up"),
                             [this](const QString &path) { useSharedSetup(path); });
    });
    bindSwitch(*ui.autoOpenFolder, settings::autoOpenFolder);
    bindSwitch(*ui.autoQuit, settings::autoQuit);
    bindSwitch(*ui.autoExpandFolders, settings::autoExpandFolders);
    const auto grey = [this, &ui] {
        m_path->follow();
        m_shared->follow();
        greyWhere(studio::decidesTemplates(), {ui.prefsTemplatePath, ui.browseTemplates});
        greyWhere(settings::standard().isSetForMachine(settings::sharedSetup), {ui.prefsSharedPath, ui.browseShared});
        sayWhereGrey(*ui.hintGreyGeneral);
    };
    grey();
    connect(&Notifications::hub(), &Notifications::settingsWritten, this, grey);
    connect(ui.browseTemplates, &QPushButton::clicked, this, [this] {
        folderchoice::browse(m_window, tr("Choose the Template Library"),
                             [this](const QString &path) { modifyTemplatePath(path); });
    });
    if (!settings::holdForEveryUser())
        ui.hintAdmin->setText(
            tr("An administrator’s. It holds for you alone, unless an administrator sets it for every "
               "user of this computer. Switching one off asks for it."));
    bindProtection(*ui.prefsAdminPass, settings::requireAdminPassword);
    bindProtection(*ui.prefsAdminPassEditing, settings::requireAdminPasswordForEditing);
    bindProtection(*ui.prefsAdminPassPrefs, settings::requireAdminPasswordForPrefs);
}

void GeneralPane::tellWhyNot(const platform::Outcome &followed)
{
    if (followed.is(platform::Cause::Cancelled))
        return;
    const QString advice =
        followed.is(platform::Cause::Busy)
            ? tr("Another program takes over or uses a set-up just now. Please try again in a moment.")
            : tr("The folder needs a file “%1”, which “Tessaro setup export” writes.").arg(studio::setupFile);
    VTAlert::show({tr("This set-up cannot be used"), withCause(advice, followed)}, &m_window);
}

/// What cannot be used is not kept: without a server nobody could say what would count.
void GeneralPane::useSharedSetup(const QString &typed)
{
    const QString before = settings::sharedSetup.text();
    const auto folder = settings::checked(settings::sharedSetup, typed);
    if (!folder || folder->toString() == before)
        return m_shared->refresh();
    VTLog::appendLog("User changed the shared set-up from %@ to %@", before, folder->toString());
    const platform::Outcome stored =
        folder->toString().isEmpty() ? settings::sharedSetup.reset() : settings::sharedSetup.store(*folder);
    const studio::Followed followed = stored.ok() ? studio::followInTime(patienceForServer) : studio::Followed{stored};
    if (!followed.outcome.ok() && (followed.isInPart || folder->toString().isEmpty())) {
        const bool isUsed = followed.outcome.is(platform::Cause::Busy);
        VTAlert::show(
            {isUsed ? tr("The studio’s set-up is still in use") : studio::sentenceOf(followed),
             isUsed ? withCause(tr("Your own counts again as soon as what uses it has finished."), followed.outcome)
                    : followed.outcome.description()},
            &m_window);
    } else if (!followed.outcome.ok()) {
        // It stood there a moment ago; where nothing did, nothing is to stand before the machine's.
        static_cast<void>(before.isEmpty() ? settings::sharedSetup.reset() : settings::sharedSetup.store(before));
        static_cast<void>(studio::followInTime(patienceForOld)); // an exchange may have begun
        tellWhyNot(followed.outcome);
    }
    m_shared->refresh();
    m_path->refresh();
    Q_EMIT sharedSetupChanged();
}

void GeneralPane::modifyTemplatePath(const QString &typed)
{
    if (studio::decidesTemplates()) // it has come since the line was drawn
        return m_path->refresh();
    const QString old = VTDataController::templateLocation();
    const auto path = folderchoice::usablePath(m_window, settings::templateLocation, typed);
    const bool isNew = path && !VTFileManager::fileExistsAtPath(*path);
    if (!path || *path == old || !folderchoice::makeFolder(m_window, *path))
        return m_path->refresh();
    VTLog::appendLog("User changed template path from %@ to %@. Asking user to confirm moving over old files.", old,
                     *path);
    struct Old
    {
        QStringList names;
        bool isEmpty = true;
    };
    const auto found = std::make_shared<Old>();
    const auto look = [old, found] {
        found->names = bundlesIn(old);
        found->isEmpty = VTFileManager::isFolderEmpty(old);
    };
    // From a library whose server is gone there is nothing to be moved.
    const bool isKnown = platform::performWithin(patienceForOld, look, [] {});
    const QStringList names = isKnown ? found->names : QStringList();
    const Move answer = !isKnown || found->isEmpty ? Move::No : askToMove(old, *path, names.size());
    if (answer == Move::Cancelled) {
        if (isNew)
            static_cast<void>(platform::removeEmptyFolder(*path)); // it was made for nothing
        return m_path->refresh();
    }
    static_cast<void>(settings::templateLocation.store(*path)); // logged; the field shows what is stored
    if (answer == Move::Yes)
        moveTemplates(old, *path, names);
    static_cast<void>(
        VTDataController::sharedController().populateTemplatesInTime()); // said and logged where it failed
    m_path->refresh();
    Q_EMIT templateLocationChanged();
}

GeneralPane::Move GeneralPane::askToMove(const QString &from, const QString &to, qsizetype count)
{
    const QString places = tr("Templates in %1: %2").arg(from).arg(count) + u'\n' + tr("New location: %1").arg(to);
    const int answer = VTAlert::show(
        {tr("Would you like to move your templates to the new location?"),
         tr("Any templates outside of the new backup location will not be displayed in the Templates pane.") +
             QStringLiteral("\n\n") + places,
         tr("Move"), tr("Don't Move"), tr("Cancel")},
        &m_window);
    return answer == VTAlert::defaultReturn     ? Move::Yes
           : answer == VTAlert::alternateReturn ? Move::No
                                                : Move::Cancelled;
}

/// What cannot be moved stays where it is; one message names all of it.
void GeneralPane::moveTemplates(const QString &from, const QString &to, const QStringList &names)
{
    VTLog::appendLog("User chose to move files");
    platform::CopyMonitor monitor;
    const LongWork work(tr("Moving %n templates", nullptr, static_cast<int>(names.size())), monitor);
    QStringList stayed;
    platform::Outcome first;
    for (const QString &name : names) {
        // What one has met, the others would meet: rights that were refused are not asked for again for each.
        const bool isHopeless = first.needsRights() || first.is(platform::Cause::NoSpace) ||
                                first.is(platform::Cause::Unreachable) || monitor.cancelled;
        const platform::Outcome moved =
            isHopeless ? first : fileoperations::moveFile(joined(from, name), joined(to, name), movePatience);
        if (moved.ok() && !isHopeless)
            continue;
        stayed.append(platform::forOneLine(name));
        if (first.ok())
            first = moved;
    }
    if (stayed.isEmpty())
        return;
    const auto others = static_cast<int>(qMax<qsizetype>(0, stayed.size() - mostNamed));
    const QString all = stayed.mid(0, mostNamed).join(QStringLiteral(", ")) +
                        (others > 0 ? tr(" and %n more", nullptr, others) : QString());
    VTAlert::show(
        {formatString(tr("Unable to move file %@ to %@"), joined(from, stayed.constFirst()), to),
         tr("These have stayed where they were: %1.").arg(all) + QStringLiteral("\n\n") + checkDestination(first)},
        &m_window);
}
