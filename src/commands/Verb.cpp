#include "commands/Verb.h"

#include "commands/Commands.h"

namespace {

constexpr Option json[] = {{"--json", nullptr, QT_TRANSLATE_NOOP("Commands", "print JSON")}};
constexpr Option yes[] = {{"--yes", nullptr, QT_TRANSLATE_NOOP("Commands", "without it nothing is done")}};
constexpr Option createOptions[] = {
    {"--template", "NAME", QT_TRANSLATE_NOOP("Commands", "the template; else the one that the window would choose"),
     false, Completes::Template},
    {"--in", "FOLDER",
     QT_TRANSLATE_NOOP("Commands", "the folder to create it in; else the fixed project location, when that is on"),
     false, Completes::Folder},
    {"--set", "TITLE=VALUE",
     QT_TRANSLATE_NOOP("Commands", "a parameter's value, as if typed into its row; may be repeated"), true,
     Completes::Value},
    {"--values", "FILE",
     QT_TRANSLATE_NOOP("Commands", "values as a JSON object from titles to values; - is standard input"), false,
     Completes::File},
    {"--ask", nullptr, QT_TRANSLATE_NOOP("Commands", "ask at the terminal for what is required and missing")},
    {"--from", "FILE",
     QT_TRANSLATE_NOOP("Commands", "a project for each row of a table (CSV; - is standard input), all or none"), false,
     Completes::File},
    {"--go-on", nullptr, QT_TRANSLATE_NOOP("Commands", "with --from: leave out rows with problems, make the others")},
    {"--overwrite", nullptr, QT_TRANSLATE_NOOP("Commands", "move an existing project of the name to the Trash first")},
    {"--many", nullptr, QT_TRANSLATE_NOOP("Commands", "make more than 10,000 items of repeats without a question")},
    {"--no-remember", nullptr,
     QT_TRANSLATE_NOOP("Commands", "leave values and counters out of the settings: nothing is remembered or counted")},
    {"--dry-run", nullptr, QT_TRANSLATE_NOOP("Commands", "print what would be made and change nothing")},
    {"--json", nullptr, QT_TRANSLATE_NOOP("Commands", "print one JSON object in place of the path")}};
constexpr Option checkOptions[] = {
    {"--template", "NAME", QT_TRANSLATE_NOOP("Commands", "what a project that is not remembered is compared with"),
     false, Completes::Template},
    {"--json", nullptr, QT_TRANSLATE_NOOP("Commands", "print JSON")}};
constexpr Option defaultOptions[] = {{"--unset", nullptr, QT_TRANSLATE_NOOP("Commands", "take the mark away")}};
constexpr Option structureOptions[] = {{"--from", "FOLDER",
                                        QT_TRANSLATE_NOOP("Commands", "the folder whose folders are made"), false,
                                        Completes::Folder, true}};
constexpr Option rulesOptions[] = {
    {"--set", "FILE", QT_TRANSLATE_NOOP("Commands", "the rules as JSON; - is standard input, {} takes them away"),
     false, Completes::File},
    {"--gone", nullptr, QT_TRANSLATE_NOOP("Commands", "remove rules whose item is gone")}};
constexpr Option setupOptions[] = {
    {"--all-users", nullptr, QT_TRANSLATE_NOOP("Commands", "for every user of this computer; needs root")}};
constexpr Option exportOptions[] = {
    {"--lock", "KEYS",
     QT_TRANSLATE_NOOP("Commands", "what nobody changes, with commas: parameters, keys of settings, or none; else "
                                   "parameters, separatorChar, dateFormat and strictNaming")}};
constexpr Option logOptions[] = {
    {"--task", nullptr, QT_TRANSLATE_NOOP("Commands", "the log of commands in place of the window's")},
    {"--path", nullptr, QT_TRANSLATE_NOOP("Commands", "print only where it is")}};
constexpr Option gatherOptions[] = {
    {"--to", "FOLDER", QT_TRANSLATE_NOOP("Commands", "where it goes; else the desktop"), false, Completes::Folder},
    {"--include", "FILE", QT_TRANSLATE_NOOP("Commands", "a file that goes along; may be repeated"), true,
     Completes::File}};

constexpr Verb table[] = {
    {.words = "create",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands", "Makes a project and prints its path."),
     .run = commands::create,
     .options = createOptions},
    {.words = "check",
     .arguments = "[FOLDER]",
     .least = 0,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands",
                               "Looks whether all that the creation made still stands in a project (the latest, or the "
                               "one in that folder), and names what is missing. Changes nothing."),
     .run = commands::check,
     .options = checkOptions,
     .logged = Logged::No,
     .completes = Completes::Folder},
    {.words = "clean-up",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP(
         "Commands", "Lists what creations that were cut off have left behind, and moves it to the Trash; names "
                     "the projects that a power cut has damaged."),
     .run = commands::cleanUp,
     .options = yes},
    {.words = "history",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands", "Lists the last hundred projects that were made, the latest first."),
     .run = commands::history,
     .options = json,
     .logged = Logged::No},
    {.words = "undo",
     .arguments = "[PROJECT]",
     .least = 0,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands",
                               "Moves what a creation made to the Trash, but for what was changed or added since; the "
                               "latest, or the one of that path or name."),
     .run = commands::undo,
     .completes = Completes::Folder},
    {.words = "templates",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands", "Lists the templates, one a line; the default is marked with a star."),
     .run = commands::listTemplates,
     .options = json,
     .logged = Logged::No},
    {.words = "template new",
     .arguments = "NAME",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Makes an empty template."),
     .run = commands::newTemplate,
     .guard = Guard::Editing},
    {.words = "template duplicate",
     .arguments = "NAME",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Copies a template under the next free name."),
     .run = commands::duplicateTemplate,
     .guard = Guard::Editing,
     .completes = Completes::Template},
    {.words = "template rename",
     .arguments = "OLD NEW",
     .least = 2,
     .most = 2,
     .help = QT_TRANSLATE_NOOP("Commands", "Gives a template another name."),
     .run = commands::renameTemplate,
     .completes = Completes::Template},
    {.words = "template remove",
     .arguments = "NAME",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Moves a template to the Trash."),
     .run = commands::removeTemplate,
     .options = yes,
     .guard = Guard::Editing,
     .completes = Completes::Template},
    {.words = "template default",
     .arguments = "[NAME]",
     .least = 0,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Marks the default template, or prints it."),
     .run = commands::defaultTemplate,
     .options = defaultOptions,
     .completes = Completes::Template},
    {.words = "template show",
     .arguments = "NAME",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Prints a template's tree."),
     .run = commands::showTemplate,
     .options = json,
     .logged = Logged::No,
     .completes = Completes::Template},
    {.words = "template rules",
     .arguments = "NAME",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands",
                               "Prints a template's rules as JSON, or takes them from a file; --gone removes those "
                               "whose item is not there any more."),
     .run = commands::templateRules,
     .options = rulesOptions,
     .completes = Completes::Template},
    {.words = "template import",
     .arguments = "PATH...",
     .least = 1,
     .most = -1,
     .help = QT_TRANSLATE_NOOP(
         "Commands", "Takes in bundles (NAME.tzt) and archives of them (NAME.tzt.zip); one of the same name goes "
                     "to the Trash."),
     .run = commands::importTemplates,
     .completes = Completes::File},
    {.words = "template export",
     .arguments = "NAME [FILE]",
     .least = 1,
     .most = 2,
     .help = QT_TRANSLATE_NOOP("Commands", "Writes a template as one archive, NAME.tzt.zip, and prints its path."),
     .run = commands::exportTemplate,
     .completes = Completes::Template},
    {.words = "template structure",
     .arguments = "NAME",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Makes a folder's folders in the template, without files."),
     .run = commands::importStructure,
     .options = structureOptions,
     .guard = Guard::Editing,
     .completes = Completes::Template},
    {.words = "template restore",
     .arguments = "",
     .help =
         QT_TRANSLATE_NOOP("Commands", "Puts back the templates that ship with Tessaro; changed ones go to the Trash."),
     .run = commands::restoreTemplates,
     .options = yes},
    {.words = "parameters",
     .arguments = "",
     .help =
         QT_TRANSLATE_NOOP("Commands", "Lists title, kind and value of each parameter; a / marks those that begin a "
                                       "folder level."),
     .run = commands::listParameters,
     .options = json,
     .logged = Logged::No},
    {.words = "parameters add",
     .arguments = "TITLE [KIND [DEFAULT]]",
     .least = 1,
     .most = 3,
     .help = QT_TRANSLATE_NOOP("Commands", "Adds a parameter. Kinds: text, counter, date, user, choice."),
     .run = commands::addParameter,
     .guard = Guard::Preferences,
     .valueAt = 2},
    {.words = "parameters set",
     .arguments = "TITLE KEY VALUE",
     .least = 3,
     .most = 3,
     .help = QT_TRANSLATE_NOOP(
         "Commands", "Changes a parameter. Keys: title, kind, default, folder, history, required, locked; form "
                     "(number, date, folder), pattern, message, computed, case (upper, lower, title), length, "
                     "several, in-name."),
     .run = commands::setParameter,
     .guard = Guard::Preferences,
     .completes = Completes::Title,
     .valueAt = 2},
    {.words = "parameters move",
     .arguments = "TITLE POSITION",
     .least = 2,
     .most = 2,
     .help = QT_TRANSLATE_NOOP("Commands", "Moves a parameter to a position, counted from 1."),
     .run = commands::moveParameter,
     .guard = Guard::Preferences,
     .completes = Completes::Title},
    {.words = "parameters remove",
     .arguments = "TITLE",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Removes a parameter. This cannot be undone."),
     .run = commands::removeParameter,
     .options = yes,
     .guard = Guard::Preferences,
     .completes = Completes::Title},
    {.words = "parameters export",
     .arguments = "FILE",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Writes the list into a property list."),
     .run = commands::exportParameters,
     .logged = Logged::No,
     .completes = Completes::File},
    {.words = "parameters import",
     .arguments = "FILE",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Replaces the whole list by that of a property list."),
     .run = commands::importParameters,
     .options = yes,
     .guard = Guard::Preferences,
     .completes = Completes::File},
    {.words = "clear-history",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands", "Forgets the values typed before."),
     .run = commands::clearHistory},
    {.words = "settings",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands", "Lists each setting with its value and meaning."),
     .run = commands::listSettings,
     .options = json,
     .logged = Logged::No},
    {.words = "settings get",
     .arguments = "KEY",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Prints a setting's value."),
     .run = commands::getSetting,
     .logged = Logged::No},
    {.words = "settings set",
     .arguments = "KEY VALUE",
     .least = 2,
     .most = 2,
     .help = QT_TRANSLATE_NOOP("Commands", "Changes a setting; the value is checked first, as in the window."),
     .run = commands::setSetting,
     .guard = Guard::Preferences,
     .valueAt = 1},
    {.words = "settings unset",
     .arguments = "KEY",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "The setting's default applies again."),
     .run = commands::unsetSetting,
     .guard = Guard::Preferences},
    {.words = "setup",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands", "Says which set-up your studio shares with this computer."),
     .run = commands::showSetup,
     .options = json,
     .logged = Logged::No},
    {.words = "setup use",
     .arguments = "FOLDER",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Takes templates, parameters and settings from a shared folder, and follows "
                                           "it from then on."),
     .run = commands::useSetup,
     .options = setupOptions,
     .guard = Guard::Preferences,
     .completes = Completes::Folder},
    {.words = "setup off",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands", "Goes back to your own templates, parameters and settings."),
     .run = commands::leaveSetup,
     .guard = Guard::Preferences},
    {.words = "setup export",
     .arguments = "FOLDER",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Writes the present templates, parameters and settings into a folder, for "
                                           "many computers to use."),
     .run = commands::exportSetup,
     .options = exportOptions,
     .completes = Completes::Folder},
    {.words = "logs",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands", "Prints the log of the window."),
     .run = commands::showLog,
     .options = logOptions,
     .logged = Logged::No,
     .worksWithoutSettings = true},
    {.words = "logs gather",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands",
                               "Puts logs, crash reports and settings into one archive, for a support request."),
     .run = commands::gatherLogs,
     .options = gatherOptions,
     .logged = Logged::No,
     .worksWithoutSettings = true},
    {.words = "updates check",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands", "Starts the updater's silent check."),
     .run = commands::checkForUpdates},
    {.words = "help",
     .arguments = "[VERB...]",
     .least = 0,
     .most = -1,
     .help = QT_TRANSLATE_NOOP("Commands", "Explains all verbs, or one; --help behind a verb does so, too."),
     .run = commands::help,
     .guard = Guard::None,
     .logged = Logged::No},
    {.words = "completion",
     .arguments = "bash|zsh|fish",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Prints what makes that shell complete Tessaro's words."),
     .run = commands::printCompletion,
     .guard = Guard::None,
     .logged = Logged::No},
    {.words = "complete",
     .arguments = "templates|titles|values [TITLE]",
     .least = 1,
     .most = 2,
     .run = commands::printWords,
     .logged = Logged::No},
    {.words = "manual-page",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands", "Prints the manual page, for man(1)."),
     .run = commands::printManualPage,
     .guard = Guard::None,
     .logged = Logged::No},
    {.words = "--help", .arguments = "", .run = commands::help, .guard = Guard::None, .logged = Logged::No},
    {.words = "-h", .arguments = "", .run = commands::help, .guard = Guard::None, .logged = Logged::No},
    {.words = "--version",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands", "Prints the version."),
     .run = commands::version,
     .guard = Guard::None,
     .logged = Logged::No},
};

constexpr WindowWord forTheWindow[] = {
    {"--new-project-here", "new-project-here",
     QT_TRANSLATE_NOOP("Commands", "Opens the window; the next project goes into the folder.")},
    {"--check-project", "check-project",
     QT_TRANSLATE_NOOP("Commands", "Opens the window, which says whether the project in the folder is complete.")}};

} // namespace

std::span<const WindowWord> windowWords()
{
    return forTheWindow;
}

std::span<const Verb> verbs()
{
    return table;
}

QString Verb::usage() const
{
    QString line = QStringLiteral("Tessaro ") + name();
    if (*arguments)
        line += u' ' + QLatin1String(arguments);
    for (const Option &one : options) {
        const QString word = one.argument ? QLatin1String(one.name) + u' ' + QLatin1String(one.argument)
                                          : QString(QLatin1String(one.name));
        line += (one.isRequired ? QStringLiteral(" %1") : QStringLiteral(" [%1]")).arg(word);
        if (one.repeats)
            line += QStringLiteral("...");
    }
    return line;
}

const Option *Verb::option(const QString &name) const
{
    for (const Option &one : options) {
        if (name == QLatin1String(one.name))
            return &one;
    }
    return nullptr;
}
