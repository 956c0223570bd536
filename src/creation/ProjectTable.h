#pragma once

#include "platform/base/Outcome.h"

#include <QList>
#include <QStringList>

/**
 * A table of projects as spreadsheets write it: comma-separated values (RFC 4180) with commas, semicolons or tabs, in
 * UTF-8 or UTF-16 with or without a mark, or in Windows-1252; a first line "sep=;" is understood. The first record
 * names the columns. A plain value.
 */
struct ProjectTable
{
    QStringList columns; ///< titles, without blanks around
    struct Row
    {
        int line = 0;      ///< in the file, from 1
        QStringList cells; ///< as many as columns, or more where there are too many
    };
    QList<Row> rows; ///< those with anything in them
};

/** In rows; more are refused. */
inline constexpr qsizetype mostTableRows = 100'000;

/** Cause::Damaged, with one sentence that names the line, for what is no such table. Pure. */
[[nodiscard]] platform::Result<ProjectTable> readTable(const QByteArray &bytes);
