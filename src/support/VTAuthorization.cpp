#include "support/VTAuthorization.h"

#include "platform/Console.h"
#include "platform/FileSystem.h"
#include "platform/FormatString.h"
#include "platform/LocalTime.h"
#include "platform/NativePath.h"
#include "platform/Users.h"
#include "support/VTLocalPaths.h"
#include "support/VTTask.h"

#include <chrono>
#include <ctime>
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

} // namespace

VTAuthorization &VTAuthorization::sharedController(UserInterface hasGUI)
{
    static auto *shared = new VTAuthorization(hasGUI);
    return *shared;
}

bool VTAuthorization::isAuthorized() const
{
    return platform::isSuperUser();
}

bool VTAuthorization::canAuthorize() const
{
    return m_hasGUI == UserInterface::Yes || platform::isSuperUser();
}

bool VTAuthorization::authStart()
{
    if (isAuthorized())
        return true;
    if (m_hasGUI == UserInterface::No)
        printToConsole("Unable to authorize");
    return false;
}

void VTAuthorization::authEnd()
{
    // The super-user's rights are not lent, so there is nothing to give back.
}

int VTAuthorization::authExecTask(const QString &tool, const QStringList &parameters, Async async)
{
    if (!platform::targetExists(tool)) {
        printToConsole(formatString("Unable to execute task: path %@ doesn't exist", tool));
        return toolMissing;
    }
    if (!authStart())
        return noRights;
    if (async == Async::Yes)
        VTTask::runTaskAndReturn(tool, parameters);
    else
        VTTask::runTask(tool, parameters);
    return 0;
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
    return hasBothPaths(source, toPath, "authCopyFile") && run(copyCommand(source, toPath));
}

bool VTAuthorization::authMoveFile(const QString &source, const QString &toPath)
{
    return hasBothPaths(source, toPath, "authMoveFile") &&
           !isRefused(source, "Unable to move path %@ because it is a system directory.") &&
           run(moveCommand(source, toPath));
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
    const QString target = platform::joined(VTLocalPaths::trashDirectory(), platform::lastComponent(path));
    if (!platform::targetExists(target))
        return target;
    // Without an extension the name ends in a dot: this must stay.
    return formatString("%@_%@.%@", platform::withoutExtension(target),
                        platform::formatDate("%Y%m%d%H%M%S", std::time(nullptr)), platform::extensionOf(path));
}

bool VTAuthorization::authTrashFile(const QString &path)
{
    return !isRefused(path, "Unable to trash path %@ because it is a system directory.") &&
           authMoveFile(path, trashTarget(path));
}
