#pragma once

#include <QString>
#include <QStringList>

/**
 * File operations with administrator rights, for when the ordinary attempt failed. It runs standard system tools, refuses
 * outright any system or standard folder, and asks for the rights at most once until authEnd(). As super-user no rights
 * are needed and the tools are run directly. For an ordinary user no service is connected that could lend the rights, so
 * every attempt ends as a refusal and the authorising operations behave as the plain ones.
 *
 * One object for the whole process, made on first use, never destroyed. Meant to be called from one thread at a time.
 */
class VTAuthorization
{
public:
    enum class UserInterface { No, Yes };
    enum class Async { No, Yes };

    /** Status of authExecTask(). */
    static constexpr int noRights = -1;
    static constexpr int toolMissing = -2;

    /** The first call decides whether the object may ask the user; later calls return it as it is. */
    static VTAuthorization &sharedController(UserInterface hasGUI = UserInterface::Yes);
    VTAuthorization(const VTAuthorization &) = delete;
    VTAuthorization &operator=(const VTAuthorization &) = delete;

    /** Obtains the rights. False when they are refused or cannot be had. */
    [[nodiscard]] bool authStart();
    void authEnd();
    [[nodiscard]] bool isAuthorized() const;
    [[nodiscard]] bool canAuthorize() const;

    bool authCopyFile(const QString &source, const QString &toPath);
    bool authMoveFile(const QString &source, const QString &toPath);
    bool authCreateDir(const QString &path);
    bool authRemoveFile(const QString &path);
    bool authTrashFile(const QString &path);

    /** 0 when the tool was started (and, when waited for, has ended); noRights, toolMissing. */
    int authExecTask(const QString &tool, const QStringList &parameters, Async async = Async::Yes);

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
    explicit VTAuthorization(UserInterface hasGUI) : m_hasGUI(hasGUI) {}
    bool run(const Command &command);

    UserInterface m_hasGUI;
};
