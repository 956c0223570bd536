// parameters: the list of parameters and its values, without a window; and clear-history.
#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/TerminalOutput.h"
#include "parameters/ParameterList.h"
#include "parameters/ParameterStore.h"
#include "parameters/table/VTProjectTableController.h"
#include "platform/base/NativePath.h"
#include "platform/files/WholeFile.h"
#include "support/Settings.h"

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

int misused(const QString &sentence)
{
    return complain(ExitStatus::wrongUsage, sentence);
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

int finish(const FilenameParameters &list)
{
    const Outcome stored = storeParameters(list);
    return stored.ok() ? ExitStatus::done : complain(stored, Text::tr("The parameters could not be stored."));
}

} // namespace

int commands::listParameters(const Invocation &invocation)
{
    VTProjectTableController table;
    table.awakeFromNib();
    qsizetype widest = 0;
    for (const FilenameParameter &parameter : table.dataArray())
        widest = qMax(widest, parameter.title().size());
    QJsonArray list;
    QString lines;
    for (const FilenameParameter &parameter : table.dataArray()) {
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
    FilenameParameters list = parameterlist::withNewParameter(storedParameters(), invocation.argument(0));
    const int row = static_cast<int>(list.size()) - 1;
    if (const QString kind = invocation.argument(1); !kind.isNull()) {
        const auto value = entryFromWord(Column::Kind, kind);
        if (!value)
            return complain(value.outcome());
        list = parameterlist::withEntry(list, row, parameterlist::keyOf(Column::Kind), *value);
    }
    if (const QString value = invocation.argument(2); !value.isNull()) {
        list = parameterlist::withEntry(list, row, parameterlist::keyOf(Column::Default), value);
        list = parameterlist::withEntry(list, row, recordkey::value, list[row].choices().value(0, value));
    }
    return finish(list);
}

int commands::removeParameter(const Invocation &invocation)
{
    const FilenameParameters list = storedParameters();
    const auto row = rowOf(list, invocation.argument(0));
    if (!row)
        return complain(row.outcome());
    if (!invocation.has("--yes"))
        return complain(ExitStatus::notOverwritten,
                        Text::tr("Nothing was removed. This cannot be undone; say --yes to do it."));
    return finish(parameterlist::without(list, {*row}));
}

int commands::moveParameter(const Invocation &invocation)
{
    FilenameParameters list = storedParameters();
    const auto row = rowOf(list, invocation.argument(0));
    if (!row)
        return complain(row.outcome());
    bool isNumber = false;
    const int position = invocation.argument(1).toInt(&isNumber);
    if (!isNumber || position < 1 || position > list.size())
        return misused(Text::tr("The position is a number from 1 to %1.").arg(list.size()));
    list.move(*row, position - 1);
    return finish(list);
}

int commands::setParameter(const Invocation &invocation)
{
    const FilenameParameters list = storedParameters();
    const auto row = rowOf(list, invocation.argument(0));
    if (!row)
        return complain(row.outcome());
    const auto column = parameterlist::columnOfWord(invocation.argument(1));
    if (!column)
        return misused(Text::tr("A parameter has no “%1”. It has: %2.")
                           .arg(invocation.argument(1), parameterlist::columnWords().join(QStringLiteral(", "))));
    const auto value = entryFromWord(*column, invocation.argument(2));
    if (!value)
        return complain(value.outcome());
    return finish(parameterlist::withEntry(list, *row, parameterlist::keyOf(*column), *value));
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
    return finish(*list);
}

int commands::clearHistory(const Invocation &)
{
    VTProjectTableController table;
    table.awakeFromNib();
    table.clearHistory();
    return ExitStatus::done;
}
