#include "support/VTAuthorization.h"

#include "platform/base/Console.h"
#include "platform/base/FormatString.h"
#include "platform/base/LocalTime.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/base/Users.h"
#include "platform/files/FileSystem.h"
#include "platform/process/AuthenticationAgent.h"
#include "platform/process/RightsHelper.h"
#include "platform/process/Secret.h"
#include "support/FileOperations.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "support/VTTask.h"

#include <chrono>
#include <ctime>
#include <optional>
#include <thread>

using platform::formatString;
using platform::printToConsole;

namespace {

/// A folder just made becomes visible to others a moment later.
constexpr std::chrono::microseconds pauseAfterCreating{500};

bool isRefused(const QString &path, const char *message)
{
    if (!VTLocalPaths::isPathSystemDirectory(path, VTLocalPaths::Match::Exact))
        return false;
    printToConsole(formatString(message, path));
    return true;
}

bool hasBothPaths(const QString &source, const QString &toPath, const char *operation)
{
    if (source.isNull())
        printToConsole(formatString("Error in %s: old path is null", operation));
    else if (toPath.isNull())
        printToConsole(formatString("Error in %s: new path is null", operation));
    return !source.isNull() && !toPath.isNull();
}

/// What this thread started last through the helper.
struct StartedTool
{
    VTAuthorization::Rights rights;
    platform::RightsHelper::Ticket ticket;
};
thread_local std::optional<StartedTool> lastTool;

void logTool(const platform::RightsHelper::ToolEnd &end)
{
    if (end.ok())
        VTLog::appendLog("Administrator tool %@: %@", end.tool, end.errorText);
    else
        VTLog::appendLog("Administrator tool %@ failed (%d): %@", end.tool, end.status, end.errorText);
}

} // namespace

VTAuthorization::VTAuthorization(UserInterface hasGUI)
    : m_hasGUI(hasGUI)
{
    // Nothing hands rights down to a process on this desktop; whoever runs it as root has them anyway.
    if (!platform::isSuperUser())
        m_userDirectory = VTLocalPaths::userDirectory();
}

VTAuthorization &VTAuthorization::sharedController(UserInterface hasGUI)
{
    static auto *shared = new VTAuthorization(hasGUI);
    return *shared;
}

VTAuthorization::Rights VTAuthorization::authRef() const
{
    const std::scoped_lock lock(m_mutex);
    return m_authRef;
}

void VTAuthorization::setAuthRef(Rights authRef)
{
    Rights before; // let go of outside the lock: that waits for the helper's end
    const std::scoped_lock lock(m_mutex);
    before = std::exchange(m_authRef, std::move(authRef));
}

bool VTAuthorization::isAuthorized() const
{
    const Rights rights = authRef();
    return platform::isSuperUser() || (rights && rights->isAlive());
}

bool VTAuthorization::canAuthorize() const
{
    return m_hasGUI == UserInterface::Yes || platform::isSuperUser();
}

bool VTAuthorization::authStart()
{
    if (isAuthorized())
        return true;
    if (m_hasGUI == UserInterface::No) {
        printToConsole("Unable to authorize");
        return false;
    }
    return platform::resultInBackground([this] { return obtain(); });
}

bool VTAuthorization::obtain()
{
    const std::scoped_lock asking(m_asking);
    if (isAuthorized())
        return true; // another thread has asked meanwhile
    bool wasDismissed = false;
    setAuthRef(platform::RightsHelper::start(logTool, &wasDismissed));
    m_wasDismissed = wasDismissed;
    return isAuthorized();
}

bool VTAuthorization::authStartWithUser(const QString &user, const QString &password)
{
    if (platform::isSuperUser())
        return true;
    if (user.isNull() || password.isNull())
        return false;
    const platform::Secret secret(password);
    return platform::resultInBackground([&] { return obtainWith(user, secret); });
}

bool VTAuthorization::obtainWith(const QString &user, const platform::Secret &password)
{
    const std::scoped_lock asking(m_asking);
    setAuthRef(nullptr);
    const platform::AuthenticationAgent agent(user, password);
    if (agent.error() != 0) {
        printToConsole(formatString("Unable to create authRef - error %d", agent.error()));
        return false;
    }
    setAuthRef(platform::RightsHelper::start(logTool));
    if (isAuthorized())
        return true;
    VTLog::appendLogAndPrint("Authorization failed. Invalid username or password");
    return false;
}

bool VTAuthorization::authAfresh()
{
    {
        const std::scoped_lock lock(m_mutex);
        if (m_authRef)
            m_authRef->retire();
        std::erase_if(m_retired, [](const Rights &rights) { return rights->hasEnded(); });
        if (m_authRef)
            m_retired.push_back(std::move(m_authRef));
        m_authRef = nullptr;
    }
    return authStart();
}

void VTAuthorization::authEnd()
{
    lastTool.reset();
    std::vector<Rights> all;
    {
        const std::scoped_lock lock(m_mutex);
        all.swap(m_retired);
        if (m_authRef)
            all.push_back(std::move(m_authRef));
        m_authRef = nullptr;
    }
    if (all.empty())
        return;
    platform::performInBackground([&] {
        for (const Rights &rights : all)
            rights->end(); // others may still hold it, waiting for their tools
        all.clear();
    });
}

int VTAuthorization::authExecTask(const QString &tool, const QStringList &parameters, Async async)
{
    lastTool.reset();
    if (!platform::targetExists(tool)) {
        printToConsole(formatString("Unable to execute task: path %@ doesn't exist", tool));
        return toolMissing;
    }
    if (platform::isSuperUser()) {
        if (async == Async::Yes)
            VTTask::runTaskAndReturn(tool, parameters);
        else
            VTTask::runTask(tool, parameters);
        return 0;
    }
    const QStringList resolved = platform::RightsHelper::withoutLinks(parameters);
    if (!authStart())
        return noRights;
    const Rights rights = authRef();
    if (!rights)
        return noRights; // given back by another thread meanwhile
    const auto ticket = platform::resultInBackground([&] { return rights->run(tool, resolved); });
    if (ticket.error != 0) {
        const auto refusal = platform::Outcome::fromNumber(ticket.error, tool + u' ' + parameters.join(u' '));
        VTLog::appendLog("Administrator tool refused: %@", refusal.description());
        return ticket.error;
    }
    lastTool = {rights, ticket};
    if (async == Async::No)
        static_cast<void>(lastToolSucceeded());
    return 0;
}

bool VTAuthorization::lastToolSucceeded()
{
    const std::optional<StartedTool> tool = std::exchange(lastTool, std::nullopt);
    if (!tool)
        return true;
    return platform::resultInBackground([&] { return tool->rights->waitFor(tool->ticket).ok(); });
}

bool VTAuthorization::run(const Command &command)
{
    return authExecTask(command.tool, command.arguments) == 0;
}

VTAuthorization::Command VTAuthorization::copyCommand(const QString &source, const QString &toPath)
{
    return {"/bin/cp", {"-f", "-p", "-R", source, toPath}};
}

VTAuthorization::Command VTAuthorization::moveCommand(const QString &source, const QString &toPath)
{
    return {"/bin/mv", {"-f", source, toPath}};
}

VTAuthorization::Command VTAuthorization::createDirCommand(const QString &path)
{
    return {"/bin/mkdir", {"-p", path}};
}

VTAuthorization::Command VTAuthorization::removeCommand(const QString &path)
{
    return {"/bin/rm", {"-Rdf", path}};
}

bool VTAuthorization::authCopyFile(const QString &source, const QString &toPath)
{
    return hasBothPaths(source, toPath, "authCopyFile") && !platform::isMissing(source) &&
           run(copyCommand(source, toPath));
}

bool VTAuthorization::authMoveFile(const QString &source, const QString &toPath)
{
    return hasBothPaths(source, toPath, "authMoveFile") &&
           !isRefused(source, "Unable to move path %@ because it is a system directory.") &&
           !platform::isMissing(source) && run(moveCommand(source, toPath));
}

bool VTAuthorization::authCreateDir(const QString &path)
{
    const bool started = run(createDirCommand(path));
    if (started && !platform::isSuperUser())
        std::this_thread::sleep_for(pauseAfterCreating);
    return started;
}

bool VTAuthorization::authRemoveFile(const QString &path)
{
    return !isRefused(path, "Unable to delete path %@ because it is a system directory.") && run(removeCommand(path));
}

QString VTAuthorization::trashTarget(const QString &path) const
{
    const QString name = platform::lastComponent(path);
    // The second never arises, because the folder is recorded for ordinary users only.
    const QString target = platform::isSuperUser() && !m_userDirectory.isNull()
                               ? m_userDirectory + formatString("/.Trash/%@", name)
                               : platform::joined(VTLocalPaths::trashDirectory(), name);
    if (!platform::targetExists(target))
        return target;
    // Without an extension the name ends in a dot: this must stay.
    return formatString("%@_%@.%@", platform::withoutExtension(target),
                        platform::formatDate("%Y%m%d%H%M%S", std::time(nullptr)), platform::extensionOf(path));
}

bool VTAuthorization::authTrashFile(const QString &path, DeleteOnRootAccount deleteOnRootAccount)
{
    if (isRefused(path, "Unable to trash path %@ because it is a system directory."))
        return false;
    const QString target = trashTarget(path);
    // The target and not the item: this must stay.
    if (m_userDirectory.isNull() && deleteOnRootAccount == DeleteOnRootAccount::Yes && platform::isSuperUser())
        return authRemoveFile(target);
    return authMoveFile(path, target);
}

bool VTAuthorization::authMoveFolderContents(const QString &folder, const QString &toPath)
{
    if (isRefused(folder, "Unable to move contents of path %@ because it is a system directory."))
        return false;
    bool all = true;
    for (const auto &entry : fileoperations::entriesOf(folder))
        all = authMoveFile(platform::joined(folder, entry.name), platform::joined(toPath, entry.name)) && all;
    return all;
}

bool VTAuthorization::authTrashFolderContents(const QString &folder, DeleteOnRootAccount deleteOnRootAccount)
{
    if (isRefused(folder, "Unable to trash folder contents of path %@ because it is a system directory."))
        return false;
    const bool isDeleted =
        m_userDirectory.isNull() && deleteOnRootAccount == DeleteOnRootAccount::Yes && platform::isSuperUser();
    bool all = true;
    for (const auto &entry : fileoperations::entriesOf(folder)) {
        const QString path = platform::joined(folder, entry.name);
        const bool done = isDeleted ? authExecTask("/bin/rm", {"-R", "-f", path}) == 0 : authTrashFile(path);
        all = done && all;
    }
    return all;
}
