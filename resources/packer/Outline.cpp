#include "Outline.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

namespace {

/// The label's bits within the flags word.
const QHash<QString, quint16> labels{
    {"grey", 2}, {"green", 4}, {"purple", 6}, {"blue", 8}, {"yellow", 10}, {"red", 12}, {"orange", 14},
};

} // namespace

std::optional<QList<OutlineEntry>> readOutline(const QString &text, QString &problem)
{
    static const QRegularExpression form(
        R"(^((?:  )*)((?:[^ <\[\]/:{]|\{[^<\[\]/}]*\})(?:[^<\[\]/:{]|\{[^<\[\]/}]*\})*?)(?:(/)| < ([^<\[\]]+?))(?: \[(\w+)\])?$)");
    QList<OutlineEntry> entries;
    QStringList folders;
    int number = 0;
    for (const QString &line : text.split('\n')) {
        ++number;
        if (line.trimmed().isEmpty() || line.startsWith('#'))
            continue;
        const auto match = form.match(line);
        const qsizetype depth = match.captured(1).size() / 2;
        const QString colour = match.captured(5);
        if (!match.hasMatch() || depth > folders.size() || (!colour.isEmpty() && !labels.contains(colour))) {
            problem = QStringLiteral("Line %1 cannot be read: %2").arg(number).arg(line);
            return std::nullopt;
        }
        folders = folders.first(depth);
        const QString path = (folders + QStringList{match.captured(2)}).join('/');
        entries.append({path, match.captured(4).isEmpty() ? QString() : match.captured(4), labels.value(colour)});
        if (!match.captured(3).isEmpty())
            folders.append(match.captured(2));
    }
    return entries;
}
