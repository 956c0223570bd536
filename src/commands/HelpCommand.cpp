// help, --version and the manual page, from the table of verbs.
#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/TerminalOutput.h"
#include "platform/base/NativePath.h"
#include "platform/files/ApplicationBundle.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Commands)
};

constexpr qsizetype helpColumn = 26;
constexpr qsizetype lineLength = 100;

QString versionText()
{
    return platform::ApplicationBundle::main().informationString(QStringLiteral("CFBundleShortVersionString"));
}

/// The text broken into lines that begin at the column; the first one goes behind what stands there.
QString wrapped(const QString &text, qsizetype column)
{
    QString lines;
    QString line;
    for (const QString &word : text.split(u' ')) {
        if (!line.isEmpty() && column + line.size() + 1 + word.size() > lineLength) {
            lines += line + u'\n' + QString(column, u' ');
            line.clear();
        }
        line += line.isEmpty() ? word : u' ' + word;
    }
    return lines + line;
}

QString entry(const QString &term, const QString &meaning, qsizetype indentation)
{
    const QString head = QString(indentation, u' ') + term;
    const bool fits = head.size() + 2 <= helpColumn;
    return (fits ? head.leftJustified(helpColumn) : head + u'\n' + QString(helpColumn, u' ')) +
           wrapped(meaning, helpColumn) + u'\n';
}

QString termOf(const Option &option)
{
    return option.argument ? QLatin1String(option.name) + u' ' + QLatin1String(option.argument)
                           : QString(QLatin1String(option.name));
}

QString withOptions(const Verb &verb, const QString &term, qsizetype indentation)
{
    QString text = entry(term, Text::tr(verb.help), indentation);
    for (const Option &option : verb.options)
        text += entry(termOf(option), Text::tr(option.help), indentation + 4);
    return text;
}

QString exitStatusText()
{
    return Text::tr(
        "Exit status: 0 done; 1 failed, or partly failed; 2 wrong usage; 3 the project or template exists and was "
        "not overwritten, the command was declined (--yes says yes), or the administrator's rights were "
        "refused; 4 stopped on the way (Ctrl+C): nothing was kept.");
}

QString wholeHelp()
{
    QString text = Text::tr("Tessaro starts media and production projects from templates.") + QStringLiteral("\n\n");
    text += entry(QStringLiteral("Tessaro"), Text::tr("Opens the window."), 2);
    text += entry(QStringLiteral("Tessaro FILE.tzt..."), Text::tr("Takes the templates in and shows them."), 2);
    for (const WindowWord &word : windowWords())
        text += entry(QStringLiteral("Tessaro %1 FOLDER").arg(QLatin1String(word.word)), Text::tr(word.help), 2);
    text += u'\n';
    for (const Verb &verb : verbs()) {
        const QString term = *verb.arguments ? verb.name() + u' ' + QLatin1String(verb.arguments) : verb.name();
        if (verb.help)
            text += withOptions(verb, term, 2);
    }
    return text + u'\n' + wrapped(exitStatusText(), 0) + u'\n';
}

/// As roff takes it: a dash is a dash, and a line does not begin with a full stop.
QString roff(QString text)
{
    text.replace(u'\\', QStringLiteral("\\e")).replace(u'-', QStringLiteral("\\-"));
    return text.startsWith(u'.') || text.startsWith(u'\'') ? QStringLiteral("\\&") + text : text;
}

} // namespace

QString helpOn(const Verb &verb)
{
    QString text = verb.usage() + QStringLiteral("\n\n");
    if (verb.help)
        text += wrapped(Text::tr(verb.help), 0) + u'\n';
    for (const Option &option : verb.options)
        text += entry(termOf(option), Text::tr(option.help), 2);
    return text;
}

int commands::help(const Invocation &invocation)
{
    if (invocation.arguments.isEmpty()) {
        print(wholeHelp());
        return ExitStatus::done;
    }
    const QString wanted = invocation.arguments.join(u' ');
    QString text;
    for (const Verb &verb : verbs()) {
        if (verb.name() == wanted || verb.name().startsWith(wanted + u' '))
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + helpOn(verb);
    }
    if (text.isEmpty())
        return complain(ExitStatus::wrongUsage,
                        Text::tr("“%1” is no command of Tessaro. Tessaro --help lists them.").arg(wanted));
    print(text);
    return ExitStatus::done;
}

int commands::version(const Invocation &)
{
    print(QStringLiteral("Tessaro %1\n").arg(versionText()));
    return ExitStatus::done;
}

int commands::printManualPage(const Invocation &)
{
    QString page = QStringLiteral(".TH TESSARO 1 \"\" \"Tessaro %1\"\n.SH NAME\nTessaro \\- %2\n.SH SYNOPSIS\n")
                       .arg(versionText(), roff(Text::tr("starts media and production projects from templates")));
    page += QStringLiteral(".B Tessaro\n.RI [ FILE.tzt ...]\n");
    for (const Verb &verb : verbs()) {
        if (verb.help)
            page += QStringLiteral(".br\n%1\n").arg(roff(verb.usage()));
    }
    page += QStringLiteral(".SH COMMANDS\n");
    for (const Verb &verb : verbs()) {
        if (!verb.help)
            continue;
        page += QStringLiteral(".SS %1\n%2\n").arg(roff(verb.usage()), roff(Text::tr(verb.help)));
        for (const Option &option : verb.options)
            page += QStringLiteral(".TP\n.B %1\n%2\n").arg(roff(termOf(option)), roff(Text::tr(option.help)));
    }
    print(page + QStringLiteral(".SH EXIT STATUS\n%1\n").arg(roff(exitStatusText())));
    return ExitStatus::done;
}
