#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <span>

class TerminalPresenter;
class Invocation;

/** What a word of the command line is, for the shells that complete it. */
enum class Completes {
    Nothing,
    File,
    Folder,
    Template, ///< a template's name
    Title,    ///< a parameter's
    Value,    ///< TITLE=VALUE
};

/** An option of a verb. */
struct Option
{
    const char *name;               ///< "--in"
    const char *argument = nullptr; ///< "FOLDER"; with a "=" in it the value must have one, too; null: a switch
    const char *help = nullptr;     ///< in the context "Commands"
    bool repeats = false;
    Completes completes = Completes::Nothing;
    bool isRequired = false;
};

/** Who may have to agree before a verb does its work, where the settings say so. */
enum class Guard {
    None,        ///< nobody: it asks nothing of settings or library
    Start,       ///< as when the window starts
    Editing,     ///< and as before a template is changed
    Preferences, ///< and as before the preferences open
};
/** Whether a verb begins a log of its own. One that only asks something does not: five of them would empty the ring. */
enum class Logged { No, Yes };

/**
 * One verb of the command line: its words, what it takes, who guards it, its help and what it does. Everything that
 * reads, explains or completes a command line goes by these rows. A plain value.
 */
struct Verb
{
    const char *words;     ///< "template new"
    const char *arguments; ///< as the usage line writes them: "OLD NEW", "[NAME]", "PATH..."
    int least = 0;
    int most = 0;               ///< -1: any number
    const char *help = nullptr; ///< in the context "Commands"
    int (*run)(const Invocation &) = nullptr;
    std::span<const Option> options = {};
    Guard guard = Guard::Start;
    Logged logged = Logged::Yes;
    Completes completes = Completes::Nothing; ///< what its arguments are
    int valueAt = -1;                         ///< the argument that may begin with a dash; -1: none
    bool worksWithoutSettings = false;        ///< helps to find out what is wrong with them

    [[nodiscard]] QString name() const { return QLatin1String(words); }
    /** "Tessaro template rename OLD NEW [--yes]". */
    [[nodiscard]] QString usage() const;
    /** Null when the verb has no such option. */
    [[nodiscard]] const Option *option(const QString &name) const;
};

/** A word with which the window is started to do something with a folder. */
struct WindowWord
{
    const char *word;   ///< "--new-project-here"
    const char *action; ///< "new-project-here"
    const char *help;   ///< in the context "Commands"
};
[[nodiscard]] std::span<const WindowWord> windowWords();

/** All of them, in the order in which they are explained. */
[[nodiscard]] std::span<const Verb> verbs();

/** A verb with what it was given. A plain value. */
class Invocation
{
public:
    const Verb *verb = nullptr; ///< null: the window
    QStringList arguments;
    QStringList files;   ///< for the window
    QString action;      ///< what the window is to do: an identifier of the shortcut keys' list, or of windowWords()
    QString actionValue; ///< the folder that it is about; null without one

    [[nodiscard]] bool has(const char *option) const { return m_options.contains(QLatin1String(option)); }
    /** The option's value, the last one given; null without it. */
    [[nodiscard]] QString value(const char *option) const { return values(option).value(values(option).size() - 1); }
    [[nodiscard]] QStringList values(const char *option) const { return m_options.value(QLatin1String(option)); }
    /** Null when there are not so many. */
    [[nodiscard]] QString argument(int at) const { return arguments.value(at); }
    void add(const Option &option, const QString &value) { m_options[QLatin1String(option.name)].append(value); }

private:
    QHash<QString, QStringList> m_options;
};
