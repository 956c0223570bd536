#pragma once

#include <QList>
#include <QString>
#include <optional>

/** One line of a template's outline. */
struct OutlineEntry
{
    QString path;   ///< below the template's Files folder, "/" between components
    QString source; ///< the project file that gives the contents; null for a folder
    quint16 label = 0;
};

/**
 * Reads an outline: two blanks of indentation a level, "Name/" for a folder, "Name < Project File" for a file, a
 * label's colour in square brackets at the end. Nothing, with a sentence naming the line, when a line cannot be read.
 */
[[nodiscard]] std::optional<QList<OutlineEntry>> readOutline(const QString &text, QString &problem);
