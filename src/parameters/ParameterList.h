#pragma once

#include "parameters/FilenameParameter.h"
#include "platform/base/Outcome.h"

#include <optional>

/** The list of parameters as it is edited: what the editor shows and what its changes make of the list. Pure. */
namespace parameterlist {

/** The record's key that a column shows. */
enum class Column { Title, Kind, Default, Folder, History, Required, Locked };
inline constexpr int columnCount = 7;
[[nodiscard]] QString keyOf(Column column);
/** The word by which the command line calls the column, in every language. */
[[nodiscard]] QString wordOf(Column column);
[[nodiscard]] std::optional<Column> columnOfWord(const QString &word);
[[nodiscard]] QStringList columnWords();

/** The kinds in the order of their numbers; the second plain text, which is the same as the first, is not offered. */
[[nodiscard]] QStringList kindNames();
[[nodiscard]] QString nameOf(FilenameParameter::Kind kind);
[[nodiscard]] std::optional<FilenameParameter::Kind> kindNamed(const QString &name);
/** The word by which the command line calls the kind, in every language. */
[[nodiscard]] QString wordOf(FilenameParameter::Kind kind);
[[nodiscard]] std::optional<FilenameParameter::Kind> kindOfWord(const QString &word);
[[nodiscard]] QStringList kindWords();

/** As shown: the first parameter always begins a folder, what the program fills in says "(auto)", a choice list keeps
   no history. */
[[nodiscard]] QVariant shownValue(const FilenameParameters &list, int row, Column column);
[[nodiscard]] bool isEditable(const FilenameParameters &list, int row, Column column);

[[nodiscard]] FilenameParameters withNewParameter(FilenameParameters list, const QString &title);
/** Choices as they are kept: commas or line ends between them, without blanks around and empty ones. */
[[nodiscard]] QString tidyChoices(const QString &typed);
/** A choice list's default is tidied, and its value one of the choices: the first where it is none. */
[[nodiscard]] FilenameParameters withEntry(FilenameParameters list, int row, const QString &key, const QVariant &value);
[[nodiscard]] FilenameParameters without(const FilenameParameters &list, const QList<int> &rows);

/** Where a row's parameter is in another list: the first of the same title, of several the same one of them. */
[[nodiscard]] std::optional<qsizetype> rowOfSame(const FilenameParameters &list, qsizetype row,
                                                 const FilenameParameters &other);

/** An earlier or later state of the list, with the values and histories that its parameters have now: a counter has
   moved on meanwhile, and a number must not come twice. Found by title; where only titles differ, by row. */
[[nodiscard]] FilenameParameters withValuesOf(FilenameParameters wanted, const FilenameParameters &now);

struct Moved
{
    FilenameParameters list;
    QList<int> selection; ///< where the moved ones are now
};
/**
 * The rows dropped above a row of the list (its size: at the end). Several that are dropped together arrive in reverse
 * order, and a row dropped just above itself goes to the end; both must stay. Nothing when no row is given.
 */
[[nodiscard]] std::optional<Moved> moved(const FilenameParameters &list, QList<int> rows, int dropRow);

/** The date formats that are offered, in their order. */
[[nodiscard]] QStringList dateFormats();

/** A list read from elsewhere; Cause::Damaged, with one sentence, when it cannot be one. */
[[nodiscard]] platform::Result<FilenameParameters> checkedList(const QVariant &list);

} // namespace parameterlist
