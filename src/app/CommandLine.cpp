#include "app/CommandLine.h"

#include "app/CreateCommand.h"
#include "app/SettingsCommand.h"
#include "app/SupportCommand.h"
#include "app/TemplateCommand.h"
#include "app/TerminalPresenter.h"
#include "parameters/VTProjectTableController.h"
#include "platform/ApplicationBundle.h"
#include "platform/Console.h"
#include "platform/NativePath.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTAuthorization.h"
#include "support/VTLog.h"
#include "templates/TemplateChoice.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using Verb = CommandRequest::Verb;

QString text(const char *source)
{
    return QCoreApplication::translate("CommandLine", source);
}

/// Goes through the words of one command; each option knows whether it takes a value.
class WordReader
{
public:
    WordReader(const QStringList &words, CommandRequest &request, QString &problem)
        : m_words(words)
        , m_request(request)
        , m_problem(problem)
    {
    }

    bool readOptions()
    {
        for (m_at = 1; m_at < m_words.size(); ++m_at) {
            if (!readOption())
                return false;
        }
        return true;
    }

private:
    bool readOption()
    {
        QString option = m_words[m_at];
        const bool takesWords = m_request.verb == Verb::Template || m_request.verb == Verb::Settings ||
                                m_request.verb == Verb::Parameters || m_request.verb == Verb::Logs ||
                                m_request.verb == Verb::Updates;
        if (takesWords && (m_request.withDashes || !option.startsWith(u'-') || isValue())) {
            m_request.arguments.append(option);
            return true;
        }
        m_inline = {};
        if (const qsizetype equals = option.indexOf(u'='); option.startsWith(QLatin1String("--")) && equals > 0) {
            m_inline = option.mid(equals + 1);
            option.truncate(equals);
        }
        if (option == u"--json")
            return takeSwitch(m_request.json);
        if (takesWords && option == u"--")
            return takeSwitch(m_request.withDashes);
        if (takesWords && option == u"--yes")
            return takeSwitch(m_request.yes);
        if (m_request.verb == Verb::Logs)
            return readLogsOption(option);
        if (m_request.verb == Verb::Template)
            return readTemplateOption(option);
        if (m_request.verb != Verb::Create)
            return fail(text("%1 does not know “%2”.").arg(m_words[0], option));
        if (option == u"--overwrite")
            return takeSwitch(m_request.overwrite);
        if (option == u"--dry-run")
            return takeSwitch(m_request.dryRun);
        if (option == u"--template")
            return takeValue(m_request.templateName);
        if (option == u"--in")
            return takeValue(m_request.inFolder);
        if (option == u"--set")
            return takeSetting();
        return fail(text("create does not know “%1”.").arg(option));
    }

    /// `settings set separatorChar -`: a value may begin with a dash.
    [[nodiscard]] bool isValue() const
    {
        return m_request.verb == Verb::Settings && m_request.arguments.size() == 2 &&
               m_request.arguments.constFirst() == u"set";
    }

    bool readLogsOption(const QString &option)
    {
        if (option == u"--task")
            return takeSwitch(m_request.task);
        if (option == u"--path")
            return takeSwitch(m_request.path);
        if (option == u"--to")
            return takeValue(m_request.toFolder);
        QString file;
        if (option != u"--include")
            return fail(text("logs does not know “%1”.").arg(option));
        if (!takeValue(file))
            return false;
        m_request.include.append(file);
        return true;
    }

    bool readTemplateOption(const QString &option)
    {
        if (option == u"--unset")
            return takeSwitch(m_request.unset);
        if (option == u"--from")
            return takeValue(m_request.fromFolder);
        return fail(text("template does not know “%1”.").arg(option));
    }

    bool takeSwitch(bool &flag)
    {
        if (!m_inline.isNull())
            return fail(text("“%1” takes no value.").arg(m_words[m_at]));
        flag = true;
        return true;
    }

    bool takeValue(QString &value)
    {
        if (m_inline.isNull() && ++m_at == m_words.size())
            return fail(text("“%1” needs a value.").arg(m_words.constLast()));
        value = m_inline.isNull() ? m_words[m_at] : m_inline;
        return true;
    }

    bool takeSetting()
    {
        QString setting;
        if (!takeValue(setting))
            return false;
        const qsizetype equals = setting.indexOf(u'=');
        if (equals <= 0)
            return fail(text("“--set %1” is not of the form TITLE=VALUE.").arg(setting));
        m_request.values.append({setting.first(equals), setting.mid(equals + 1)});
        return true;
    }

    bool fail(const QString &problem)
    {
        m_problem = problem;
        return false;
    }

    const QStringList &m_words;
    CommandRequest &m_request;
    QString &m_problem;
    qsizetype m_at = 0;
    QString m_inline;
};

std::optional<Verb> verbOf(const QString &word)
{
    static const QHash<QString, Verb> verbs{
        {"create", Verb::Create},
        {"templates", Verb::Templates},
        {"parameters", Verb::Parameters},
        {"--help", Verb::Help},
        {"-h", Verb::Help},
        {"help", Verb::Help},
        {"--version", Verb::Version},
        {"template", Verb::Template},
        {"clear-history", Verb::ClearHistory},
        {"settings", Verb::Settings},
        {"logs", Verb::Logs},
        {"updates", Verb::Updates},
    };
    const auto verb = verbs.constFind(word);
    return verb == verbs.cend() ? std::nullopt : std::optional(*verb);
}

void printJson(const QJsonArray &list)
{
    platform::writeToStandardOutput(QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Indented)));
}

int listTemplates(const CommandRequest &request, const TerminalPresenter &presenter)
{
    auto &store = VTDataController::sharedController();
    store.populateTemplates();
    const QString marked = settings::standard().string(settings::defaultTemplate);
    const QString next = chosenTemplate(store.templates());
    QJsonArray list;
    QString lines;
    for (const QString &name : store.templates()) {
        list.append(
            QJsonObject{{"name", platform::forDisplay(name)}, {"default", name == marked}, {"next", name == next}});
        lines += (name == marked ? QStringLiteral("* ") : QStringLiteral("  ")) + name + u'\n';
    }
    if (request.json)
        printJson(list);
    else
        platform::writeToStandardOutput(lines);
    return presenter.messages().isEmpty() ? ExitStatus::done : ExitStatus::failed;
}

QString kindName(FilenameParameter::Kind kind)
{
    switch (kind) {
    case FilenameParameter::Kind::Counter:
        return QStringLiteral("counter");
    case FilenameParameter::Kind::Date:
        return QStringLiteral("date");
    case FilenameParameter::Kind::UserName:
        return QStringLiteral("user");
    case FilenameParameter::Kind::Choice:
        return QStringLiteral("choice");
    default:
        return QStringLiteral("text");
    }
}

QJsonObject parameterObject(const FilenameParameter &parameter)
{
    QJsonObject object{{"title", parameter.title()},         {"kind", kindName(parameter.kind())},
                       {"value", parameter.value()},         {"beginsFolder", parameter.beginsFolder()},
                       {"required", parameter.isRequired()}, {"locked", parameter.isLocked()}};
    if (parameter.kind() == FilenameParameter::Kind::Choice)
        object.insert("choices", QJsonArray::fromStringList(parameter.choices()));
    return object;
}

int listParameters(const CommandRequest &request)
{
    VTProjectTableController table;
    table.awakeFromNib();
    qsizetype widest = 0;
    for (const FilenameParameter &parameter : table.dataArray())
        widest = qMax(widest, parameter.title().size());
    QJsonArray list;
    QString lines;
    for (const FilenameParameter &parameter : table.dataArray()) {
        list.append(parameterObject(parameter));
        lines += QStringLiteral("%1 %2  %3  %4\n")
                     .arg(parameter.beginsFolder() ? QStringLiteral("/") : QStringLiteral(" "),
                          parameter.title().leftJustified(widest), kindName(parameter.kind()).leftJustified(7),
                          parameter.value());
    }
    if (request.json)
        printJson(list);
    else
        platform::writeToStandardOutput(lines);
    return ExitStatus::done;
}

int clearHistory()
{
    VTProjectTableController table;
    table.awakeFromNib();
    table.clearHistory();
    return ExitStatus::done;
}

} // namespace

std::optional<CommandRequest> readCommandLine(const QStringList &words, QString &problem)
{
    CommandRequest request;
    if (words.isEmpty())
        return request;
    const auto verb = verbOf(words[0]);
    if (!verb && !words[0].startsWith(u'-') && words[0].endsWith(QLatin1String(".tzt"), Qt::CaseInsensitive)) {
        request.files = words;
        return request;
    }
    if (!verb) {
        problem = text("“%1” is no command of Tessaro.").arg(platform::forDisplay(words[0]));
        return std::nullopt;
    }
    request.verb = *verb;
    if (!WordReader(words, request, problem).readOptions())
        return std::nullopt;
    if (request.verb == Verb::Template)
        problem = TemplateCommand::problemOf(request);
    else if (request.verb == Verb::Logs || request.verb == Verb::Updates)
        problem = SupportCommand::problemOf(request);
    else if (request.verb == Verb::Settings || request.verb == Verb::Parameters)
        problem = SettingsCommand::problemOf(request);
    return problem.isNull() ? std::optional(request) : std::nullopt;
}

QString absolutePath(const QString &path)
{
    return QDir::cleanPath(path.startsWith(u'/') ? path : platform::joined(QDir::currentPath(), path));
}

QString helpText()
{
    return text(
        "Tessaro starts media and production projects from templates.\n"
        "\n"
        "  Tessaro                   the window\n"
        "  Tessaro create            a project, without a window\n"
        "      --template NAME       the template (default: the one the window would choose)\n"
        "      --in FOLDER           the folder to create the project in (default: the fixed project location,\n"
        "                            when it is switched on)\n"
        "      --set TITLE=VALUE     a parameter's value, as if typed into its row; may be repeated\n"
        "      --overwrite           move an existing project of the name to the Trash first\n"
        "      --dry-run             print what would be made and change nothing\n"
        "      --json                print one JSON object instead of the project's path\n"
        "  Tessaro templates         the templates, one a line; the default is marked with a star\n"
        "      --json\n"
        "  Tessaro template new NAME             an empty template\n"
        "  Tessaro template duplicate NAME\n"
        "  Tessaro template rename OLD NEW\n"
        "  Tessaro template remove NAME [--yes]  moves it to the Trash; without --yes nothing is done\n"
        "  Tessaro template default [NAME]       marks the default template, or prints it\n"
        "      --unset                           takes the mark away\n"
        "  Tessaro template show NAME [--json]   its tree\n"
        "  Tessaro template import PATH...       takes in bundles (NAME.tzt); one of the same name goes to the\n"
        "                                        Trash\n"
        "  Tessaro template structure NAME --from FOLDER\n"
        "                                        makes the folder's folders in the template, without files\n"
        "  Tessaro template restore [--yes]      the templates that ship with Tessaro; changed ones go to the\n"
        "                                        Trash\n"
        "  Tessaro clear-history     forgets the values typed before\n"
        "  Tessaro FILE.tzt          takes the template in and shows it\n"
        "  Tessaro parameters        title, kind and value of each parameter; a / marks those that begin a\n"
        "      --json                folder level\n"
        "  Tessaro parameters add TITLE [KIND [DEFAULT]]   kinds: text, counter, date, user, choice\n"
        "  Tessaro parameters set TITLE KEY VALUE          keys: title, kind, default, folder, history,\n"
        "                                                  required, locked\n"
        "  Tessaro parameters move TITLE POSITION          counted from 1\n"
        "  Tessaro parameters remove TITLE [--yes]\n"
        "  Tessaro parameters export FILE                  as a property list\n"
        "  Tessaro parameters import FILE [--yes]          replaces the whole list\n"
        "  Tessaro settings [--json]                       each setting with its value and meaning\n"
        "  Tessaro settings get KEY\n"
        "  Tessaro settings set KEY VALUE                  checked before it is stored\n"
        "  Tessaro settings unset KEY                      the default applies again\n"
        "  Tessaro logs [--task] [--path]                  the log of the window, or of commands; or where it is\n"
        "  Tessaro logs gather [--to FOLDER] [--include FILE]...\n"
        "                                                  logs, crash reports and settings in one archive, for a\n"
        "                                                  support request; on the desktop unless told otherwise\n"
        "  Tessaro updates check                           starts the updater's silent check\n"
        "  Tessaro --help            this text\n"
        "  Tessaro --version\n"
        "\n"
        "Exit status: 0 done; 1 failed, or partly failed; 2 wrong usage; 3 the project or template exists and was\n"
        "not overwritten, the command was cancelled (--yes says yes), or the administrator's rights were refused.\n");
}

int runCommand(const CommandRequest &request)
{
    if (request.verb == Verb::Help) {
        platform::writeToStandardOutput(helpText());
        return ExitStatus::done;
    }
    if (request.verb == Verb::Version) {
        const auto &bundle = platform::ApplicationBundle::main();
        platform::writeToStandardOutput(
            QStringLiteral("Tessaro %1\n").arg(bundle.informationString("CFBundleShortVersionString")));
        return ExitStatus::done;
    }
    if (request.dryRun) // a dry run changes nothing, the log neither
        VTLog::sharedController().setLoggingDisabled(true);
    else if (request.verb != Verb::Logs) // whose log is to be seen, not a new one
        VTLog::createNewTaskLog();
    settings::registerDefaults();
    TerminalPresenter presenter(request.overwrite || request.yes);
    VTAlert::setPresenter(&presenter);
    if (settings::standard().equalsOne(settings::requireAdminPassword) &&
        !VTAuthorization::sharedController().authStart()) {
        platform::writeToStandardError(text("Administrator rights are required here, and were refused.\n"));
        return ExitStatus::notOverwritten;
    }
    int status = ExitStatus::done;
    if (request.verb == Verb::Create)
        status = CreateCommand(request, presenter).run();
    else if (request.verb == Verb::Template)
        status = TemplateCommand(request, presenter).run();
    else if (request.verb == Verb::Logs || request.verb == Verb::Updates)
        status = SupportCommand(request).run();
    else if (request.verb == Verb::Settings || !request.arguments.isEmpty())
        status = SettingsCommand(request).run();
    else if (request.verb == Verb::ClearHistory)
        status = clearHistory();
    else if (request.verb == Verb::Templates)
        status = listTemplates(request, presenter);
    else
        status = listParameters(request);
    VTAlert::setPresenter(nullptr);
    return status;
}
