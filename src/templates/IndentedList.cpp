#include "templates/IndentedList.h"

#include "platform/base/NativePath.h"
#include "support/VTFileManager.h"

#include <QCoreApplication>
#include <QRegularExpression>

using platform::Cause;
using platform::Outcome;

namespace indentedlist {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(IndentedList)
};

constexpr qsizetype tabWidth = 4;
constexpr qsizetype mostLines = 10'000; // a whole text that somebody had copied for something else

qsizetype widthOf(const QString &indentation)
{
    qsizetype width = 0;
    for (const QChar character : indentation)
        width += character == u'\t' ? tabWidth : 1;
    return width;
}

} // namespace

platform::Result<QStringList> foldersIn(const QString &text)
{
    // What leads to a name: blanks, the lines of a drawn tree, then perhaps a bullet.
    static const QRegularExpression form(
        QStringLiteral("^((?:[\\s\\x{A0}│├└─┬]|[|`](?:--)?)*(?:[-*•+–]\\s+)?)(.*?)/*\\s*$"));
    const QStringList lines = text.split(u'\n');
    if (lines.size() > mostLines)
        return Outcome::failure(Cause::Invalid, {}, Text::tr("The list has more than 10,000 lines."));
    QStringList folders;
    QList<std::pair<qsizetype, QString>> above; // how far each open folder is indented, and its path
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i].trimmed().isEmpty())
            continue;
        const auto match = form.match(lines[i]);
        const QString name = VTFileManager::validateFilename(match.captured(2));
        if (name.isEmpty() || name == u"." || name == u".." || platform::toNative(name).size() > platform::longestName)
            return Outcome::failure(Cause::Invalid, {},
                                    Text::tr("Line %1 gives no name for a folder: %2")
                                        .arg(i + 1)
                                        .arg(platform::forOneLine(lines[i].trimmed().left(60))));
        const qsizetype width = widthOf(match.captured(1));
        while (!above.isEmpty() && above.constLast().first >= width)
            above.removeLast();
        const QString path = above.isEmpty() ? name : above.constLast().second + u'/' + name;
        above.append({width, path});
        if (!folders.contains(path))
            folders.append(path);
    }
    return folders;
}

QString listOf(const QStringList &paths)
{
    QStringList lines;
    QStringList above;
    for (const QString &path : paths) {
        while (!above.isEmpty() && !platform::isInside(path, above.constLast()))
            above.removeLast();
        lines.append(QString(above.size() * tabWidth, u' ') + platform::forOneLine(platform::lastComponent(path)));
        above.append(path);
    }
    return lines.join(u'\n');
}

} // namespace indentedlist
