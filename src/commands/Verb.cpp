#include "commands/Verb.h"

#include "commands/Commands.h"

namespace {

constexpr Option json[] = {{"--json", nullptr, QT_TRANSLATE_NOOP("Commands", "print JSON")}};
constexpr Option yes[] = {{"--yes", nullptr, QT_TRANSLATE_NOOP("Commands", "without it nothing is done")}};
constexpr Option createOptions[] = {
    {"--template", "NAME", QT_TRANSLATE_NOOP("Commands", "the template; else the one that the window would choose")},
    {"--in", "FOLDER",
     QT_TRANSLATE_NOOP("Commands", "the folder to create it in; else the fixed project location, when that is on"),
     false, Completes::Folder},
    {"--set", "TITLE=VALUE",
     QT_TRANSLATE_NOOP("Commands", "a parameter's value, as if typed into its row; may be repeated"), true},
    {"--overwrite", nullptr, QT_TRANSLATE_NOOP("Commands", "move an existing project of the name to the Trash first")},
    {"--dry-run", nullptr, QT_TRANSLATE_NOOP("Commands", "print what would be made and change nothing")},
    {"--json", nullptr, QT_TRANSLATE_NOOP("Commands", "print one JSON object in place of the path")}};
constexpr Option defaultOptions[] = {{"--unset", nullptr, QT_TRANSLATE_NOOP("Commands", "take the mark away")}};
constexpr Option structureOptions[] = {{"--from", "FOLDER",
                                        QT_TRANSLATE_NOOP("Commands", "the folder whose folders are made"), false,
                                        Completes::Folder, true}};
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
    {.words = "clean-up",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands",
                               "Lists what creations that were cut off have left behind, and moves it to the Trash."),
     .run = commands::cleanUp,
     .options = yes},
    {.words = "templates",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands", "Lists the templates, one a line; the default is marked with a star."),
     .run = commands::listTemplates,
     .options = json},
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
     .guard = Guard::Editing},
    {.words = "template rename",
     .arguments = "OLD NEW",
     .least = 2,
     .most = 2,
     .help = QT_TRANSLATE_NOOP("Commands", "Gives a template another name."),
     .run = commands::renameTemplate},
    {.words = "template remove",
     .arguments = "NAME",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Moves a template to the Trash."),
     .run = commands::removeTemplate,
     .options = yes,
     .guard = Guard::Editing},
    {.words = "template default",
     .arguments = "[NAME]",
     .least = 0,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Marks the default template, or prints it."),
     .run = commands::defaultTemplate,
     .options = defaultOptions},
    {.words = "template show",
     .arguments = "NAME",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Prints a template's tree."),
     .run = commands::showTemplate,
     .options = json},
    {.words = "template import",
     .arguments = "PATH...",
     .least = 1,
     .most = -1,
     .help = QT_TRANSLATE_NOOP("Commands", "Takes in bundles (NAME.tzt); one of the same name goes to the Trash."),
     .run = commands::importTemplates,
     .completes = Completes::File},
    {.words = "template structure",
     .arguments = "NAME",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Makes a folder's folders in the template, without files."),
     .run = commands::importStructure,
     .options = structureOptions,
     .guard = Guard::Editing},
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
     .options = json},
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
     .help =
         QT_TRANSLATE_NOOP("Commands", "Changes a parameter. Keys: title, kind, default, folder, history, required, "
                                       "locked."),
     .run = commands::setParameter,
     .guard = Guard::Preferences,
     .valueAt = 2},
    {.words = "parameters move",
     .arguments = "TITLE POSITION",
     .least = 2,
     .most = 2,
     .help = QT_TRANSLATE_NOOP("Commands", "Moves a parameter to a position, counted from 1."),
     .run = commands::moveParameter,
     .guard = Guard::Preferences},
    {.words = "parameters remove",
     .arguments = "TITLE",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Removes a parameter. This cannot be undone."),
     .run = commands::removeParameter,
     .options = yes,
     .guard = Guard::Preferences},
    {.words = "parameters export",
     .arguments = "FILE",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Writes the list into a property list."),
     .run = commands::exportParameters,
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
     .options = json},
    {.words = "settings get",
     .arguments = "KEY",
     .least = 1,
     .most = 1,
     .help = QT_TRANSLATE_NOOP("Commands", "Prints a setting's value."),
     .run = commands::getSetting},
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
    {.words = "logs",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands", "Prints the log of the window."),
     .run = commands::showLog,
     .options = logOptions,
     .logged = Logged::No},
    {.words = "logs gather",
     .arguments = "",
     .help = QT_TRANSLATE_NOOP("Commands",
                               "Puts logs, crash reports and settings into one archive, for a support request."),
     .run = commands::gatherLogs,
     .options = gatherOptions,
     .logged = Logged::No},
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

} // namespace

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
