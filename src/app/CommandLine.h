#pragma once

#include <QStringList>
#include <optional>

/** What a command line asks for. A plain value. */
struct CommandRequest
{
    enum class Verb {
        Window,
        Create,
        Templates,
        Template,
        Parameters,
        Settings,
        Logs,
        Updates,
        ClearHistory,
        Help,
        Version
    };

    Verb verb = Verb::Window;
    QStringList files; ///< for the window
    bool json = false;
    // create only
    QString templateName; ///< null: as the pop-up would choose
    QString inFolder;     ///< null: the fixed location
    QList<std::pair<QString, QString>> values;
    bool overwrite = false;
    bool dryRun = false;
    // template, settings, parameters
    QStringList arguments; ///< what is to be done, then what with
    QString fromFolder;
    bool yes = false;
    bool unset = false;
    bool task = false;       ///< logs: the task log
    bool path = false;       ///< logs: only where it is
    QString toFolder;        ///< logs gather: null for the desktop
    QStringList include;     ///< logs gather
    bool withDashes = false; ///< "--" was there: what follows are plain words
};

/** Exit status of every command. */
namespace ExitStatus {
inline constexpr int done = 0;
inline constexpr int failed = 1; ///< or partly failed
inline constexpr int wrongUsage = 2;
inline constexpr int notOverwritten = 3; ///< exists and was not overwritten, or cancelled, or rights refused
} // namespace ExitStatus

/** Reads the words after the program's name. Nothing, with one sentence, when they cannot be understood. Pure. */
[[nodiscard]] std::optional<CommandRequest> readCommandLine(const QStringList &words, QString &problem);

[[nodiscard]] QString helpText();

/** Relative to the current folder, "." and ".." resolved as text. */
[[nodiscard]] QString absolutePath(const QString &path);

/** Carries out a command without a window; an application object without a display exists. Returns the exit status. */
[[nodiscard]] int runCommand(const CommandRequest &request);
