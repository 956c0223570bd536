#include "templates/BatchRename.h"

#include <QRegularExpression>

namespace {

QString withNumber(QString text, int number)
{
    static const QRegularExpression run(QStringLiteral("#+"));
    for (auto match = run.match(text); match.hasMatch(); match = run.match(text)) {
        const QString digits = QString::number(number).rightJustified(match.capturedLength(), u'0');
        text.replace(match.capturedStart(), match.capturedLength(), digits);
    }
    return text;
}

} // namespace

QStringList renamedItems(const QList<RenamedItem> &items, const RenamePattern &pattern)
{
    QStringList names;
    int number = pattern.first;
    for (const RenamedItem &item : items) {
        QString stem = item.name.left(item.stem);
        if (!stem.contains(pattern.find)) {
            names.append(item.name);
            continue;
        }
        const QString replacement = withNumber(pattern.replacement, number++);
        if (pattern.find.isEmpty())
            stem = replacement;
        else
            stem.replace(pattern.find, replacement);
        names.append(stem + item.name.mid(item.stem));
    }
    return names;
}
