#include "commands/TerminalOutput.h"

#include "commands/CommandLine.h"
#include "platform/base/Console.h"
#include "platform/base/NativePath.h"
#include "support/JsonPaths.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// The first failure of standard output.
platform::Outcome &outputFailure()
{
    static platform::Outcome failure;
    return failure;
}

/// What programs are told of, when they want to be told.
struct Telling
{
    bool isWanted = false;
    bool hasPrinted = false;
    QJsonArray errors;
};
Telling &telling()
{
    static Telling state;
    return state;
}

void note(const char *code, const QString &message, const QString &item = {})
{
    if (!telling().isWanted)
        return;
    QJsonObject error{{"code", QLatin1String(code)}, {"message", platform::forDisplay(message)}};
    if (!item.isEmpty())
        insertPath(error, QStringLiteral("item"), item);
    telling().errors.append(error);
}

void printDocument(const QJsonDocument &document)
{
    print(QString::fromUtf8(document.toJson(QJsonDocument::Indented)));
}

} // namespace

void print(const QString &text)
{
    telling().hasPrinted = true;
    const platform::Outcome written = platform::writeToStandardOutput(text);
    if (outputFailure().ok())
        outputFailure() = written;
}

void print(const QJsonObject &object)
{
    printDocument(QJsonDocument(object));
}

void print(const QJsonArray &list)
{
    printDocument(QJsonDocument(list));
}

void printLine(const QJsonObject &object)
{
    print(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + u'\n');
}

void tellErrorsAsJson()
{
    telling().isWanted = true;
}

const char *codeOfStatus(int status)
{
    switch (status) {
    case ExitStatus::wrongUsage:
        return platform::codeOf(platform::Cause::Invalid);
    case ExitStatus::notOverwritten:
        return platform::codeOf(platform::Cause::Declined);
    case ExitStatus::stopped:
        return platform::codeOf(platform::Cause::Cancelled);
    default:
        return platform::codeOf(platform::Cause::Other);
    }
}

int complain(int status, const QString &sentence)
{
    platform::writeToStandardError(sentence + u'\n');
    if (status != ExitStatus::done)
        note(codeOfStatus(status), sentence);
    return status;
}

int complain(const platform::Outcome &failure, const QString &sentence)
{
    const QString why = failure.description();
    const QString whole = sentence.isEmpty() ? why : why.isEmpty() ? sentence : sentence + u'\n' + why;
    platform::writeToStandardError(whole + u'\n');
    note(platform::codeOf(failure.cause()), whole, failure.item());
    return exitStatusOf(failure);
}

int finished(int status)
{
    if (telling().isWanted && !telling().hasPrinted && status != ExitStatus::done)
        print(QJsonObject{{"status", status}, {"errors", telling().errors}});
    if (outputFailure().ok())
        return status;
    complain(outputFailure());
    return status == ExitStatus::done ? ExitStatus::failed : status;
}
