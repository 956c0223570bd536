#include "commands/TerminalOutput.h"

#include "commands/CommandLine.h"
#include "platform/base/Console.h"

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

void printDocument(const QJsonDocument &document)
{
    print(QString::fromUtf8(document.toJson(QJsonDocument::Indented)));
}

} // namespace

void print(const QString &text)
{
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

int complain(int status, const QString &sentence)
{
    platform::writeToStandardError(sentence + u'\n');
    return status;
}

int complain(const platform::Outcome &failure, const QString &sentence)
{
    const QString why = failure.description();
    return complain(exitStatusOf(failure), sentence.isEmpty() ? why
                                           : why.isEmpty()    ? sentence
                                                              : sentence + u'\n' + why);
}

int finished(int status)
{
    if (outputFailure().ok())
        return status;
    complain(outputFailure());
    return status == ExitStatus::done ? ExitStatus::failed : status;
}
