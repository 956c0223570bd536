#include "parameters/ParameterList.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

namespace editor {
namespace {

using Kind = FilenameParameter::Kind;

QString text(const char *source)
{
    return QCoreApplication::translate("ParameterEditor", source);
}

struct KindName
{
    Kind kind;
    const char *name;
};
constexpr std::array kinds{
    KindName{Kind::Text, QT_TRANSLATE_NOOP("ParameterEditor", "Text")},
    KindName{Kind::Counter, QT_TRANSLATE_NOOP("ParameterEditor", "Counter")},
    KindName{Kind::Date, QT_TRANSLATE_NOOP("ParameterEditor", "Date")},
    KindName{Kind::UserName, QT_TRANSLATE_NOOP("ParameterEditor", "User name")},
    KindName{Kind::Choice, QT_TRANSLATE_NOOP("ParameterEditor", "Choice")},
};

} // namespace

QString keyOf(Column column)
{
    static const QStringList keys{"title", "type", "defaultVal", "folder", "saveHistory", "disallowEmpty", "locked"};
    return keys[static_cast<int>(column)];
}

QStringList kindNames()
{
    QStringList names;
    for (const KindName &entry : kinds)
        names.append(text(entry.name));
    return names;
}

QString nameOf(Kind kind)
{
    for (const KindName &entry : kinds) {
        if (entry.kind == kind)
            return text(entry.name);
    }
    return text(kinds[0].name);
}

std::optional<Kind> kindNamed(const QString &name)
{
    for (const KindName &entry : kinds) {
        if (text(entry.name) == name)
            return entry.kind;
    }
    return std::nullopt;
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
        return parameter.isAutomatic() ? text("(auto)") : parameter.defaultValue();
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
    list.append(FilenameParameter({{"title", title}, {"type", 0LL}, {"val", QString(QLatin1String(""))}}));
    return list;
}

FilenameParameters withEntry(FilenameParameters list, int row, const QString &key, const QVariant &value)
{
    if (row >= 0 && row < list.size())
        list[row].setEntry(key, value);
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

QString problemOf(const QVariant &list)
{
    if (list.typeId() != QMetaType::QVariantList)
        return text("The file does not hold a list of parameters.");
    int number = 0;
    for (const QVariant &entry : list.toList()) {
        ++number;
        if (entry.typeId() != QMetaType::QVariantMap || entry.toMap().value("title").typeId() != QMetaType::QString)
            return text("Entry %1 of the file is not a parameter with a title.").arg(number);
    }
    return {};
}

} // namespace editor
