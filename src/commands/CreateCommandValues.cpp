// create --values and --ask: values from a program, and from whoever sits at the terminal.
#include "commands/CommandLine.h"
#include "commands/CreateCommand.h"
#include "commands/TerminalOutput.h"
#include "creation/RequestCheck.h"
#include "platform/base/Console.h"
#include "platform/base/NativePath.h"
#include "platform/files/WholeFile.h"
#include "support/Settings.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QVariant>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CreateCommand)
};

/// One text or number, as it could have been typed; null for what is none.
QString typedWord(const QJsonValue &value)
{
    if (value.isString())
        return value.toString();
    const QVariant number = value.isDouble() ? value.toVariant() : QVariant();
    if (number.typeId() == QMetaType::LongLong) // every digit counts
        return QString::number(number.toLongLong());
    return number.isNull() ? QString() // a job number is no 41.0
                           : QString::number(number.toDouble(), 'f', QLocale::FloatingPointShortest);
}

/// The same of a list, too.
QString typedForm(const QJsonValue &value)
{
    if (!value.isArray())
        return typedWord(value);
    QString several = QStringLiteral("");
    const QJsonArray list = value.toArray();
    for (qsizetype i = 0; i < list.size(); ++i) {
        const QString word = typedWord(list[i]);
        if (word.isNull())
            return {};
        several += (i > 0 ? QStringLiteral(", ") : QString()) + word;
    }
    return several;
}

} // namespace

bool CreateCommand::readValues()
{
    const QString file = m_invocation.value("--values");
    if (file.isNull())
        return true;
    if (file == u"-" && m_invocation.value("--from") == u"-")
        return fail(ExitStatus::wrongUsage, Text::tr("Standard input can be only one of --values and --from."));
    const auto bytes = file == u"-" ? platform::readStandardInput(platform::largestWholeFile)
                                    : platform::readFile(platform::absolutePath(file));
    if (!bytes)
        return fail(bytes.outcome(), Text::tr("The values cannot be read."));
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(*bytes, &error);
    if (!document.isObject())
        return fail(ExitStatus::wrongUsage,
                    Text::tr("The values are no JSON object: %1")
                        .arg(error.error == QJsonParseError::NoError ? Text::tr("it does not begin with a brace")
                                                                     : error.errorString()));
    const QJsonObject object = document.object();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const QString typed = typedForm(*entry);
        if (typed.isNull() && !entry->isNull())
            return fail(ExitStatus::wrongUsage,
                        Text::tr("The value of “%1” is no text, no number and no list of them.").arg(entry.key()));
        if (!entry->isNull())
            m_values.append({entry.key(), typed});
    }
    return true;
}

/// One question for each required value that is missing, once more when the answer cannot be taken.
bool CreateCommand::askForMissing()
{
    while (m_invocation.has("--ask")) {
        const auto problem = problemOf(m_request, TooLongLevels::AreNamedElsewhere);
        if (!problem || problem->parameter < 0 || !m_request.parameters[problem->parameter].isBlank() ||
            m_request.parameters[problem->parameter].isLocked()) // no answer could be taken
            return true;
        const FilenameParameter &parameter = m_request.parameters[problem->parameter];
        const QStringList choices = parameter.choices();
        const QString offer =
            choices.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(choices.join(QStringLiteral(", ")));
        const auto answer = platform::askAtTerminal(parameter.title() + offer + QStringLiteral(": "));
        if (answer.outcome().is(platform::Cause::NotSupported))
            return fail(ExitStatus::wrongUsage, Text::tr("--ask needs a terminal to ask at."));
        if (!answer)
            return fail(ExitStatus::stopped, Text::tr("Stopped. Nothing was created."));
        const auto changed =
            withNamedValue(m_request, parameter.title(), answer->trimmed(), settings::strictNaming.isOn());
        if (changed)
            m_request = *changed;
        else
            complain(ExitStatus::done, changed.outcome().sentence());
    }
    return true;
}
