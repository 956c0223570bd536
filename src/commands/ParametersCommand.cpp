// parameters: the list of parameters and its values, without a window; and clear-history.
#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/TerminalOutput.h"
#include "parameters/ParameterList.h"
#include "parameters/ParameterStore.h"
#include "parameters/Tokens.h"
#include "parameters/ValueForms.h"
#include "parameters/ValueRules.h"
#include "platform/base/NativePath.h"
#include "platform/files/WholeFile.h"
#include "support/Settings.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

using parameterlist::Column;
using platform::Outcome;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ParametersCommand)
};

constexpr int kindColumn = 7;

QJsonObject asObject(const FilenameParameter &parameter)
{
    QJsonObject object{{"title", parameter.title()},         {"kind", parameterlist::wordOf(parameter.kind())},
                       {"value", parameter.value()},         {"beginsFolder", parameter.beginsFolder()},
                       {"required", parameter.isRequired()}, {"locked", parameter.isLocked()}};
    if (parameter.kind() == FilenameParameter::Kind::Choice)
        object.insert("choices", QJsonArray::fromStringList(parameter.choices()));
    return object;
}

/// The row of the parameter, or why it cannot be told.
platform::Result<int> rowOf(const FilenameParameters &list, const QString &title)
{
    QList<int> rows;
    for (int row = 0; row < list.size(); ++row) {
        if (list[row].title() == title)
            rows.append(row);
    }
    if (rows.size() == 1)
        return rows.first();
    return Outcome::failure(platform::Cause::Invalid, {},
                            (rows.isEmpty() ? Text::tr("There is no parameter “%1”.")
                                            : Text::tr("There are several parameters “%1”. Please give them titles of "
                                                       "their own, in the window."))
                                .arg(title));
}

/// What is stored for a column from its word on the command line.
platform::Result<QVariant> entryFromWord(Column column, const QString &word)
{
    switch (column) {
    case Column::Title:
    case Column::Default:
        return QVariant(word);
    case Column::Kind:
        if (const auto kind = parameterlist::kindOfWord(word))
            return QVariant(static_cast<qlonglong>(*kind));
        return Outcome::failure(platform::Cause::Invalid, {},
                                Text::tr("“%1” is no kind of parameter. There are: %2.")
                                    .arg(word, parameterlist::kindWords().join(QStringLiteral(", "))));
    default:
        return settings::checkedAs(column == Column::Locked ? settings::Type::Switch : settings::Type::Boolean, word);
    }
}

/// Changes the list as it is stored at that moment; what the change refuses is told.
int change(const ListChange &change)
{
    bool refused = false;
    const Outcome stored = changeParameters([&](FilenameParameters list) {
        auto changed = change(std::move(list));
        refused = !changed;
        return changed;
    });
    if (stored.ok())
        return ExitStatus::done;
    return refused ? complain(stored) : complain(stored, Text::tr("The parameters could not be stored."));
}

/// The same for what the studio may have locked.
int changeDefinitions(const ListChange &wanted)
{
    if (settings::filenameTemplate.isLocked())
        return complain(Outcome::failure(platform::Cause::Declined, {}, settings::lockedText()));
    return change(wanted);
}

Outcome invalid(const QString &sentence)
{
    return Outcome::failure(platform::Cause::Invalid, {}, sentence);
}

} // namespace

int commands::listParameters(const Invocation &invocation)
{
    const FilenameParameters parameters = currentParameters();
    qsizetype widest = 0;
    for (const FilenameParameter &parameter : parameters)
        widest = qMax(widest, parameter.title().size());
    QJsonArray list;
    QString lines;
    for (const FilenameParameter &parameter : parameters) {
        list.append(asObject(parameter));
        lines += QStringLiteral("%1 %2  %3  %4\n")
                     .arg(parameter.beginsFolder() ? QStringLiteral("/") : QStringLiteral(" "),
                          platform::forOneLine(parameter.title()).leftJustified(widest),
                          parameterlist::wordOf(parameter.kind()).leftJustified(kindColumn),
                          platform::forOneLine(parameter.value()));
    }
    if (invocation.has("--json"))
        print(list);
    else
        print(lines);
    return ExitStatus::done;
}

int commands::addParameter(const Invocation &invocation)
{
    return changeDefinitions([&](const FilenameParameters &stored) -> platform::Result<FilenameParameters> {
        FilenameParameters list = parameterlist::withNewParameter(stored, invocation.argument(0));
        const int row = static_cast<int>(list.size()) - 1;
        if (const QString kind = invocation.argument(1); !kind.isNull()) {
            const auto value = entryFromWord(Column::Kind, kind);
            if (!value)
                return value.outcome();
            list = parameterlist::withEntry(list, row, parameterlist::keyOf(Column::Kind), *value);
        }
        if (const QString value = invocation.argument(2); !value.isNull()) {
            list = parameterlist::withEntry(list, row, parameterlist::keyOf(Column::Default), value);
            list = parameterlist::withEntry(list, row, recordkey::value, list[row].choices().value(0, value));
        }
        return list;
    });
}

int commands::removeParameter(const Invocation &invocation)
{
    return changeDefinitions([&](const FilenameParameters &list) -> platform::Result<FilenameParameters> {
        const auto row = rowOf(list, invocation.argument(0));
        if (!row)
            return row.outcome();
        if (!invocation.has("--yes"))
            return Outcome::failure(platform::Cause::Declined, {},
                                    Text::tr("Nothing was removed. This cannot be undone; say --yes to do it."));
        return parameterlist::without(list, {*row});
    });
}

int commands::moveParameter(const Invocation &invocation)
{
    return changeDefinitions([&](FilenameParameters list) -> platform::Result<FilenameParameters> {
        const auto row = rowOf(list, invocation.argument(0));
        if (!row)
            return row.outcome();
        bool isNumber = false;
        const int position = invocation.argument(1).toInt(&isNumber);
        if (!isNumber || position < 1 || position > list.size())
            return invalid(Text::tr("The position is a number from 1 to %1.").arg(list.size()));
        list.move(*row, position - 1);
        return list;
    });
}

/// What values must be, by the same words as in the record, but for those that say it the other way round.
static platform::Result<FilenameParameters> withForm(FilenameParameters list, int row, const QString &word,
                                                     const QString &value)
{
    static const QMap<QString, QString> keys{
        {"form", recordkey::form},         {"pattern", recordkey::pattern},    {"message", recordkey::patternMessage},
        {"computed", recordkey::computed}, {"case", recordkey::letterCase},    {"length", recordkey::maxLength},
        {"several", recordkey::several},   {"in-name", recordkey::outsideName}};
    static const QMap<QString, QStringList> allowed{{"form", {"", "number", "date", "folder"}},
                                                    {"case", {"", "upper", "lower", "title"}},
                                                    {"several", {"yes", "no"}},
                                                    {"in-name", {"yes", "no"}}};
    if (!keys.contains(word))
        return invalid(Text::tr("A parameter has no “%1”. It has: %2.")
                           .arg(word, (parameterlist::columnWords() + keys.keys()).join(QStringLiteral(", "))));
    if (allowed.contains(word) && !allowed[word].contains(value))
        return invalid(
            Text::tr("“%1” cannot be that. It can be: %2.").arg(value, allowed[word].join(QStringLiteral(", "))));
    const qlonglong length = word == u"length" ? value.toLongLong() : 0;
    if (word == u"length" && (length < 0 || length > platform::longestName || value != QString::number(length)))
        return invalid(Text::tr("The length is a number from 0 (any) to 255."));
    if (const QString why = word == u"pattern" ? forms::problemOfPattern(value) : QString(); !why.isNull())
        return invalid(Text::tr("The pattern is no regular expression: %1").arg(why));
    if (const QString why = word == u"computed" ? tokens::piecesOf(value).problem : QString(); !why.isNull())
        return invalid(why);
    const bool isFlag = word == u"several" || word == u"in-name";
    const bool isSet = isFlag ? value == (word == u"several" ? u"yes" : u"no") : !value.isEmpty() && value != u"0";
    if (!isSet)
        list[row].removeEntry(keys[word]);
    else if (isFlag)
        list[row].setEntry(keys[word], true);
    else
        list[row].setEntry(keys[word], word == u"length" ? QVariant(length) : QVariant(value));
    return list;
}

int commands::setParameter(const Invocation &invocation)
{
    return changeDefinitions([&](const FilenameParameters &list) -> platform::Result<FilenameParameters> {
        const auto row = rowOf(list, invocation.argument(0));
        if (!row)
            return row.outcome();
        const auto column = parameterlist::columnOfWord(invocation.argument(1));
        if (!column)
            return withForm(list, *row, invocation.argument(1), invocation.argument(2));
        const auto value = entryFromWord(*column, invocation.argument(2));
        if (!value)
            return value.outcome();
        return parameterlist::withEntry(list, *row, parameterlist::keyOf(*column), *value);
    });
}

int commands::exportParameters(const Invocation &invocation)
{
    const QString path = platform::absolutePath(invocation.argument(0));
    const Outcome written = platform::writePropertyListFile(path, variantFromParameters(storedParameters()));
    return written.ok() ? ExitStatus::done : complain(written, Text::tr("The parameters could not be exported."));
}

int commands::importParameters(const Invocation &invocation)
{
    const auto file = platform::readPropertyListFile(platform::absolutePath(invocation.argument(0)));
    if (!file)
        return complain(file.outcome(), Text::tr("The parameters could not be imported."));
    const auto list = parameterlist::checkedList(*file);
    if (!list)
        return complain(list.outcome());
    if (!invocation.has("--yes"))
        return complain(ExitStatus::notOverwritten,
                        Text::tr("Nothing was changed. The list would be replaced; say --yes to do it."));
    return changeDefinitions([&](const FilenameParameters &) { return list; });
}

int commands::clearHistory(const Invocation &)
{
    VTLog::appendLog("Clearing history");
    const int status = change([](const FilenameParameters &list) { return rules::withHistoryCleared(list); });
    if (status == ExitStatus::done)
        VTLog::appendLog("History successfully cleared");
    return status;
}
