#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

namespace platform {
class RightsHelper;
class Secret;
} // namespace platform

/**
 * File operations with administrator rights, for when the ordinary attempt failed. It runs standard system tools,
 * refuses outright any system or standard folder, and asks for the rights at most once until authEnd(). As super-user
 * no rights are needed and the tools are run directly; for anyone else the desktop asks for an administrator's password
 * and the program's privileged helper runs them.
 *
 * One object for the whole process, made on first use, never destroyed. Thread-safe. What may ask a person blocks its
 * caller until the answer; on the main thread the event loop turns meanwhile, with the windows closed to input.
 */
class VTAuthorization
{
public:
    enum class UserInterface { No, Yes };
    enum class Async { No, Yes };
    enum class DeleteOnRootAccount { No, Yes };
    /** The handle of the obtained rights; empty when there are none. Copies share them. */
    using Rights = std::shared_ptr<platform::RightsHelper>;

    /** Status of authExecTask(): 0 is success, any other value the errno that the helper refused the tool with (EPIPE:
        it is gone; EACCES: a tool that is not on its list; EPERM: a system folder). */
    static constexpr int noRights = -1;
    static constexpr int toolMissing = -2;

    /** The first call decides whether the object may ask the user; later calls return it as it is. */
    static VTAuthorization &sharedController(UserInterface hasGUI = UserInterface::Yes);
    VTAuthorization(const VTAuthorization &) = delete;
    VTAuthorization &operator=(const VTAuthorization &) = delete;

    /** Obtains the rights, asking the user. False when they are refused, dismissed or cannot be had. */
    [[nodiscard]] bool authStart();
    /** The same with the given administrator's name and password and without asking. Blocks for a few seconds. */
    [[nodiscard]] bool authStartWithUser(const QString &user, const QString &password);
    /** Asks again, also when the rights are held: for what must be agreed to each time. What runs with the rights that
       were held runs to its end; refused, there are none afterwards. */
    [[nodiscard]] bool authAfresh();
    /** Gives the rights back. Tools that still run are ended, and the log says which. */
    void authEnd();
    [[nodiscard]] bool isAuthorized() const;
    [[nodiscard]] bool canAuthorize() const;
    /** Whether the question was dismissed when the rights were last asked for and not had. */
    [[nodiscard]] bool wasDismissed() const { return m_wasDismissed; }

    // Each returns as soon as its tool has been started: true says no more than that. lastToolSucceeded() says the
    // rest.
    bool authCopyFile(const QString &source, const QString &toPath);
    bool authMoveFile(const QString &source, const QString &toPath);
    /** Each item of the folder; goes on after failures. True when all were started. */
    bool authMoveFolderContents(const QString &folder, const QString &toPath);
    bool authCreateDir(const QString &path);
    bool authRemoveFile(const QString &path);
    bool authTrashFile(const QString &path, DeleteOnRootAccount deleteOnRootAccount = DeleteOnRootAccount::No);
    bool authTrashFolderContents(const QString &folder,
                                 DeleteOnRootAccount deleteOnRootAccount = DeleteOnRootAccount::No);

    /** Waiting, 0 still says only that the tool ran to its end, however it went. */
    int authExecTask(const QString &tool, const QStringList &parameters, Async async = Async::Yes);

    /** Waits for the tool that this thread started last through the helper, and says whether it did its work. True when
        there is none: the super-user's tools are not watched. */
    [[nodiscard]] bool lastToolSucceeded();

    [[nodiscard]] Rights authRef() const;
    void setAuthRef(Rights authRef);
    [[nodiscard]] UserInterface hasGUI() const { return m_hasGUI; }
    void setHasGUI(UserInterface hasGUI) { m_hasGUI = hasGUI; }

    /** Where an item of the name goes in the user's Trash; a name that is taken gets the time of day. */
    [[nodiscard]] QString trashTarget(const QString &path) const;

    /** A tool and its arguments as the operations above run them. */
    struct Command
    {
        QString tool;
        QStringList arguments;
    };
    [[nodiscard]] static Command copyCommand(const QString &source, const QString &toPath);
    [[nodiscard]] static Command moveCommand(const QString &source, const QString &toPath);
    [[nodiscard]] static Command createDirCommand(const QString &path);
    [[nodiscard]] static Command removeCommand(const QString &path);

private:
    explicit VTAuthorization(UserInterface hasGUI);
    bool run(const Command &command);
    [[nodiscard]] bool obtain();
    [[nodiscard]] bool obtainWith(const QString &user, const platform::Secret &password);

    UserInterface m_hasGUI;
    QString m_userDirectory; ///< recorded for ordinary users only
    std::atomic<bool> m_wasDismissed = false;
    std::mutex m_asking;        ///< held while the rights are asked for, so that two threads ask once
    mutable std::mutex m_mutex; ///< guards m_authRef
    Rights m_authRef;
    std::vector<Rights> m_retired; ///< tools of theirs may still run
};
