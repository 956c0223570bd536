#include "parameters/ParameterList.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <algorithm>
#include <array>

namespace parameterlist {
namespace {

using Kind = FilenameParameter::Kind;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ParameterEditor)
};

struct KindEntry
{
    Kind kind;
    const char *word; ///< on the command line
    const char *name; ///< in the window
};
constexpr std::array kinds{
    KindEntry{Kind::Text, "text", QT_TRANSLATE_NOOP("ParameterEditor", "Text")},
    KindEntry{Kind::Counter, "counter", QT_TRANSLATE_NOOP("ParameterEditor", "Counter")},
    KindEntry{Kind::Date, "date", QT_TRANSLATE_NOOP("ParameterEditor", "Date")},
    KindEntry{Kind::UserName, "user", QT_TRANSLATE_NOOP("ParameterEditor", "User name")},
    KindEntry{Kind::Choice, "choice", QT_TRANSLATE_NOOP("ParameterEditor", "Choice")},
};

const KindEntry &entryOf(Kind kind)
{
    const auto *found =
        std::find_if(kinds.begin(), kinds.end(), [&](const KindEntry &entry) { return entry.kind == kind; });
    return found == kinds.end() ? kinds[0] : *found;
}

struct ColumnEntry
{
    const char *key;  ///< in the record
    const char *word; ///< on the command line
};
/// In the order of the columns.
constexpr std::array<ColumnEntry, columnCount> columns{{{recordkey::title, "title"},
                                                        {recordkey::kind, "kind"},
                                                        {recordkey::defaultValue, "default"},
                                                        {recordkey::folder, "folder"},
                                                        {recordkey::savesHistory, "history"},
                                                        {recordkey::required, "required"},
                                                        {recordkey::locked, "locked"}}};

} // namespace

QString keyOf(Column column)
{
    return QLatin1String(columns[static_cast<std::size_t>(column)].key);
}

QString wordOf(Column column)
{
    return QLatin1String(columns[static_cast<std::size_t>(column)].word);
}

std::optional<Column> columnOfWord(const QString &word)
{
    const qsizetype found = columnWords().indexOf(word);
    return found < 0 ? std::nullopt : std::optional(static_cast<Column>(found));
}

QStringList columnWords()
{
    QStringList words;
    for (const ColumnEntry &entry : columns)
        words.append(QLatin1String(entry.word));
    return words;
}

QStringList kindNames()
{
    QStringList names;
    for (const KindEntry &entry : kinds)
        names.append(Text::tr(entry.name));
    return names;
}

QString nameOf(Kind kind)
{
    return Text::tr(entryOf(kind).name);
}

std::optional<Kind> kindNamed(const QString &name)
{
    const qsizetype found = kindNames().indexOf(name);
    return found < 0 ? std::nullopt : std::optional(kinds[static_cast<std::size_t>(found)].kind);
}

QString wordOf(Kind kind)
{
    return QLatin1String(entryOf(kind).word);
}

std::optional<Kind> kindOfWord(const QString &word)
{
    const qsizetype found = kindWords().indexOf(word);
    return found < 0 ? std::nullopt : std::optional(kinds[static_cast<std::size_t>(found)].kind);
}

QStringList kindWords()
{
    QStringList words;
    for (const KindEntry &entry : kinds)
        words.append(QLatin1String(entry.word));
    return words;
}

QVariant shownValue(const FilenameParameters &list, int row, Column column)
{
    const FilenameParameter parameter = list.value(row);
    switch (column) {
    case Column::Title:
        return parameter.title();
    case Column::Kind:
        return nameOf(parameter.kind());
    case Column::Default:
        return parameter.isAutomatic() ? Text::tr("(auto)") : parameter.defaultValue();
    case Column::Folder:
        return row == 0 || parameter.beginsFolder();
    case Column::History:
        return parameter.savesHistory();
    case Column::Required:
        return parameter.isRequired();
    case Column::Locked:
        return parameter.isLocked();
    }
    return {};
}

bool isEditable(const FilenameParameters &list, int row, Column column)
{
    const FilenameParameter parameter = list.value(row);
    switch (column) {
    case Column::Folder:
        return row != 0;
    case Column::Default:
        return !parameter.isAutomatic();
    case Column::History:
        return parameter.kind() != Kind::Choice;
    default:
        return true;
    }
}

FilenameParameters withNewParameter(FilenameParameters list, const QString &title)
{
    list.append(FilenameParameter(
        {{recordkey::title, title}, {recordkey::kind, 0LL}, {recordkey::value, QString(QLatin1String(""))}}));
    return list;
}

QString tidyChoices(const QString &typed)
{
    static const QRegularExpression between(QStringLiteral("[,\\n\\r]"));
    QStringList choices;
    for (const QString &choice : typed.split(between)) {
        if (!choice.trimmed().isEmpty())
            choices.append(choice.trimmed());
    }
    return choices.join(u',');
}

FilenameParameters withEntry(FilenameParameters list, int row, const QString &key, const QVariant &value)
{
    if (row < 0 || row >= list.size())
        return list;
    FilenameParameter &parameter = list[row];
    parameter.setEntry(key, value);
    const bool changesChoices = key == QLatin1String(recordkey::kind) || key == QLatin1String(recordkey::defaultValue);
    if (changesChoices && parameter.kind() == FilenameParameter::Kind::Choice) {
        parameter.setEntry(QLatin1String(recordkey::defaultValue), tidyChoices(parameter.defaultValue()));
        if (!parameter.choices().contains(parameter.value()))
            parameter.setValue(parameter.choices().value(0));
    }
    return list;
}

FilenameParameters without(const FilenameParameters &list, const QList<int> &rows)
{
    FilenameParameters remaining;
    for (int row = 0; row < list.size(); ++row) {
        if (!rows.contains(row))
            remaining.append(list[row]);
    }
    return remaining;
}

std::optional<qsizetype> rowOfSame(const FilenameParameters &list, qsizetype row, const FilenameParameters &other)
{
    const QString title = list[row].title();
    const auto isSame = [&](const FilenameParameter &parameter) {
        return parameter.title() == title;
    };
    auto before = std::count_if(list.begin(), list.begin() + row, isSame);
    for (qsizetype i = 0; i < other.size(); ++i) {
        if (isSame(other[i]) && before-- == 0)
            return i;
    }
    return std::nullopt;
}

FilenameParameters withValuesOf(FilenameParameters wanted, const FilenameParameters &now)
{
    for (qsizetype row = 0; row < wanted.size(); ++row) {
        auto same = rowOfSame(wanted, row, now);
        if (!same && wanted.size() == now.size() && !rowOfSame(now, row, wanted))
            same = row; // renamed
        if (!same || wanted[row].kind() != now[*same].kind())
            continue;
        for (const char *key : {recordkey::value, recordkey::history}) {
            if (const QVariant entry = now[*same].entry(QLatin1String(key)); entry.isValid())
                wanted[row].setEntry(QLatin1String(key), entry);
        }
    }
    return wanted;
}

std::optional<Moved> moved(const FilenameParameters &list, QList<int> rows, int dropRow)
{
    std::sort(rows.begin(), rows.end());
    rows.removeIf([&](int row) { return row < 0 || row >= list.size(); });
    if (rows.isEmpty())
        return std::nullopt;
    Moved result{without(list, rows), {}};
    qsizetype target = dropRow;
    if (dropRow >= 0 && dropRow < list.size()) {
        target = result.list.indexOf(list[dropRow]);
        if (target < 0) // the row itself is among those that move
            target = list.size();
    }
    const qsizetype last = result.list.size() - 1; // taken once
    for (const int row : std::as_const(rows)) {
        const bool inside = target >= 0 && target <= last;
        result.list.insert(inside ? target : result.list.size(), list[row]);
        result.selection.append(static_cast<int>(inside ? target : result.list.size() - 1));
    }
    return result;
}

QStringList dateFormats()
{
    return {"%Y-%m-%d", "%y-%m-%e", "%m-%e-%y", "%m-%d-%Y", "%e-%m-%y",
            "%d-%m-%Y", "%Y-%m",    "%d-%B-%Y", "%d-%b-%Y", "%b%Y"};
}

platform::Result<FilenameParameters> checkedList(const QVariant &list)
{
    const auto damaged = [](const QString &sentence) {
        return platform::Outcome::failure(platform::Cause::Damaged, {}, sentence);
    };
    if (list.typeId() != QMetaType::QVariantList)
        return damaged(Text::tr("The file does not hold a list of parameters."));
    int number = 0;
    for (const QVariant &entry : list.toList()) {
        ++number;
        if (entry.typeId() != QMetaType::QVariantMap ||
            entry.toMap().value(QLatin1String(recordkey::title)).typeId() != QMetaType::QString)
            return damaged(Text::tr("Entry %1 of the file is not a parameter with a title.").arg(number));
    }
    return parametersFromVariant(list);
}

} // namespace parameterlist
