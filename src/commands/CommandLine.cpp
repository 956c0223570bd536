#include "commands/CommandLine.h"

#include "commands/TerminalOutput.h"
#include "commands/TerminalPresenter.h"
#include "commands/TerminalProgress.h"
#include "platform/base/NativePath.h"
#include "support/AdministratorQuestion.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTAuthorization.h"
#include "support/VTLog.h"
#include "templates/EditingGuard.h"
#include "templates/TemplateLibrary.h"

#include <QCoreApplication>

using platform::Cause;
using platform::Outcome;
using platform::Result;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

/// Every verb knows these: help on itself, and a yes that a verb without questions has no use for.
const Option helpOption{"--help"};
const Option yesOption{"--yes"};

/// The verb whose words begin the line, the longest there is; how many words it has.
const Verb *verbOf(const QStringList &words, qsizetype &count)
{
    const Verb *found = nullptr;
    for (const Verb &verb : verbs()) {
        const QStringList own = verb.name().split(u' ');
        if (own.size() > count && words.first(qMin(own.size(), words.size())) == own) {
            found = &verb;
            count = own.size();
        }
    }
    return found;
}

/// "new, duplicate, rename": what can follow the first word; empty when no verb begins with it alone.
QStringList wordsAfter(const QString &first)
{
    QStringList words;
    for (const Verb &verb : verbs()) {
        if (verb.name().startsWith(first + u' '))
            words.append(verb.name().section(u' ', 1));
    }
    return words;
}

Outcome misused(const QString &sentence, const Verb *verb = nullptr)
{
    const QString usage = verb ? u'\n' + Text::tr("Usage: %1").arg(verb->usage()) : QString();
    return Outcome::failure(Cause::Invalid, {}, sentence + usage);
}

/// Goes through the words behind a verb's own.
class WordReader
{
public:
    WordReader(const QStringList &words, const Verb &verb)
        : m_words(words)
        , m_verb(verb)
    {
        m_invocation.verb = &verb;
    }

    Result<Invocation> read()
    {
        while (m_at < m_words.size()) {
            if (const Outcome taken = takeWord(m_words[m_at++]); !taken.ok())
                return taken;
        }
        if (m_invocation.has(helpOption.name))
            return m_invocation;
        if (const Outcome enough = checkWhatWasGiven(); !enough.ok())
            return enough;
        return m_invocation;
    }

private:
    Outcome checkWhatWasGiven() const
    {
        const auto given = static_cast<int>(m_invocation.arguments.size());
        if (given < m_verb.least || (m_verb.most >= 0 && given > m_verb.most) ||
            m_invocation.arguments.contains(QString()))
            return misused(
                Text::tr("“%1” was given %n words, which is not what it takes.", nullptr, given).arg(m_verb.name()),
                &m_verb);
        for (const Option &option : m_verb.options) {
            if (option.isRequired && !m_invocation.has(option.name))
                return misused(Text::tr("“%1” needs %2.").arg(m_verb.name(), QLatin1String(option.name)), &m_verb);
        }
        return {};
    }

    Outcome takeWord(const QString &word)
    {
        const bool isValue = m_verb.valueAt == m_invocation.arguments.size();
        if (m_plain || isValue || !word.startsWith(u'-') || word == u"-") {
            m_invocation.arguments.append(word);
            return {};
        }
        if (word == u"--") {
            m_plain = true;
            return {};
        }
        const qsizetype equals = word.startsWith(QLatin1String("--")) ? word.indexOf(u'=') : -1;
        const QString name = equals > 0 ? word.first(equals) : word == u"-h" ? QLatin1String(helpOption.name) : word;
        const Option *option = optionNamed(name);
        if (!option)
            return misused(Text::tr("%1 does not know “%2”.").arg(m_verb.name(), platform::forDisplay(word)), &m_verb);
        return takeOption(*option, equals > 0 ? word.mid(equals + 1) : QString());
    }

    const Option *optionNamed(const QString &name) const
    {
        if (name == QLatin1String(helpOption.name))
            return &helpOption;
        const Option *option = m_verb.option(name);
        return !option && name == QLatin1String(yesOption.name) ? &yesOption : option;
    }

    Outcome takeOption(const Option &option, QString value)
    {
        if (!option.argument) {
            if (!value.isNull())
                return misused(Text::tr("“%1” takes no value.").arg(QLatin1String(option.name)), &m_verb);
            m_invocation.add(option, {});
            return {};
        }
        if (value.isNull()) {
            if (m_at == m_words.size())
                return misused(Text::tr("“%1” needs a value.").arg(QLatin1String(option.name)), &m_verb);
            value = m_words[m_at++];
        }
        const QString form = QLatin1String(option.argument);
        if (form.contains(u'=') && value.indexOf(u'=') < 1)
            return misused(Text::tr("“%1 %2” is not of the form %3.").arg(QLatin1String(option.name), value, form),
                           &m_verb);
        m_invocation.add(option, value);
        return {};
    }

    const QStringList m_words;
    const Verb &m_verb;
    Invocation m_invocation;
    qsizetype m_at = 0;
    bool m_plain = false;
};

bool isAllowed(Guard guard)
{
    switch (guard) {
    case Guard::None:
    case Guard::Start:
        return true;
    case Guard::Editing:
        return editingIsAllowed();
    case Guard::Preferences:
        return !settings::requireAdminPasswordForPrefs.isOn() || administratorAgrees();
    }
    return false;
}

int refuseRights()
{
    return complain(ExitStatus::notOverwritten, Text::tr("Administrator rights are required here, and were refused."));
}

} // namespace

int exitStatusOf(const Outcome &outcome)
{
    switch (outcome.cause()) {
    case Cause::None:
        return ExitStatus::done;
    case Cause::Invalid:
        return ExitStatus::wrongUsage;
    case Cause::Exists:
    case Cause::Declined:
    case Cause::RightsRefused:
        return ExitStatus::notOverwritten;
    case Cause::Cancelled:
        return ExitStatus::stopped;
    default:
        return ExitStatus::failed;
    }
}

/// "--action ID", and what is done with a folder; nothing for other words.
static std::optional<Result<Invocation>> readWindowWords(const QStringList &words)
{
    Invocation window;
    for (const WindowWord &one : windowWords()) {
        if (words[0] == QLatin1String(one.word))
            window.action = QLatin1String(one.action);
    }
    const bool isAction = words[0] == u"--action";
    if (!isAction && window.action.isEmpty())
        return std::nullopt;
    if (words.size() != 2 || words[1].isEmpty())
        return Result<Invocation>(misused(Text::tr("“%1” needs a value.").arg(words[0])));
    if (isAction)
        window.action = words[1];
    else
        window.actionValue = platform::absolutePath(words[1]);
    return Result<Invocation>(window);
}

Result<Invocation> readCommandLine(const QStringList &words)
{
    if (words.isEmpty())
        return Invocation();
    qsizetype count = 0;
    if (const Verb *verb = verbOf(words, count))
        return WordReader(words.mid(count), *verb).read();
    if (const auto window = readWindowWords(words))
        return *window;
    const QString &first = words[0];
    if (!first.startsWith(u'-') && library::isTemplateFile(first)) {
        Invocation window;
        window.files = words;
        return window;
    }
    const QString shown = platform::forDisplay(first);
    if (const QStringList next = wordsAfter(first); !next.isEmpty())
        return misused(words.size() == 1
                           ? Text::tr("%1 needs to be told what to do: %2.").arg(shown, next.join(QLatin1String(", ")))
                           : Text::tr("%1 cannot “%2”. It can: %3.")
                                 .arg(shown, platform::forDisplay(words[1]), next.join(QLatin1String(", "))));
    return misused(Text::tr("“%1” is no command of Tessaro.").arg(shown));
}

int refuseCommandLine(const QStringList &words)
{
    if (words.contains(QLatin1String("--json")))
        tellErrorsAsJson();
    const Outcome why = readCommandLine(words).outcome();
    return finished(complain(exitStatusOf(why), QStringLiteral("Tessaro: ") + why.sentence() + u'\n' +
                                                    Text::tr("Tessaro --help lists what it understands.")));
}

int runCommand(const Invocation &invocation)
{
    if (invocation.has(helpOption.name)) {
        print(helpOn(*invocation.verb));
        return finished(ExitStatus::done);
    }
    if (invocation.has("--json"))
        tellErrorsAsJson();
    const bool changesNothing = invocation.has("--dry-run");
    if (changesNothing) // the log neither
        VTLog::sharedController().setLoggingDisabled(true);
    else if (invocation.verb->logged == Logged::Yes)
        VTLog::createNewTaskLog();
    else
        VTLog::joinTaskLog();
    if (invocation.verb->guard == Guard::None)
        return finished(invocation.verb->run(invocation));
    settings::registerDefaults();
    if (const platform::Outcome problem = settings::standard().problem();
        !problem.ok() && !invocation.verb->worksWithoutSettings)
        return finished(complain(
            problem,
            Text::tr("The settings cannot be read, and nothing is done without them: neither the parameters nor the "
                     "numbers that are taken are known.")));
    TerminalPresenter presenter(invocation.has("--overwrite") || invocation.has("--yes"));
    VTAlert::setPresenter(&presenter);
    const TerminalProgress progress;
    const bool mayStart = !settings::requireAdminPassword.isOn() || VTAuthorization::sharedController().authStart();
    const bool isRefused = !mayStart || !isAllowed(invocation.verb->guard);
    int status = !isRefused                  ? invocation.verb->run(invocation)
                 : presenter.hasComplained() ? ExitStatus::notOverwritten // more was said than that
                                             : refuseRights();
    if (status == ExitStatus::done && presenter.hasComplained()) // said while it went on
        status = ExitStatus::failed;
    VTAlert::setPresenter(nullptr);
    return finished(status);
}
