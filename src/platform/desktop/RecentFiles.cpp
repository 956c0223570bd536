#include "platform/desktop/RecentFiles.h"

#include "platform/base/Console.h"
#include "platform/base/NativePath.h"
#include "platform/base/Users.h"
#include "platform/files/FileSystem.h"
#include "platform/files/WholeFile.h"

#include <QXmlStreamReader>

namespace platform {
namespace {

constexpr auto emptyList = R"(<?xml version="1.0" encoding="UTF-8"?>
<xbel version="1.0"
      xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks"
      xmlns:mime="http://www.freedesktop.org/standards/shared-mime-info"
>
</xbel>
)";

/// Where an element begins and ends, in bytes.
struct Place
{
    qsizetype begin = -1;
    qsizetype end = -1;
};

/// What each program writes in its own way: "&apos;", "%27" and "'" are one.
QByteArray pathIn(QByteArray href)
{
    href.replace("&apos;", "'").replace("&quot;", "\"").replace("&lt;", "<").replace("&gt;", ">").replace("&amp;", "&");
    return QByteArray::fromPercentEncoding(href);
}

/// The entry with the lines that are its own, so that none stay behind.
Place wholeLines(const QByteArray &list, Place entry)
{
    qsizetype begin = entry.begin;
    while (begin > 0 && (list[begin - 1] == ' ' || list[begin - 1] == '\t'))
        --begin;
    const bool isAlone = begin > 0 && list[begin - 1] == '\n' && list.mid(entry.end, 1) == "\n";
    return isAlone ? Place{begin, entry.end + 1} : entry;
}

/// The reader counts characters, and the file's bytes are to stay: an entry is found by its text.
Place entryOf(const QByteArray &list, const QString &folder)
{
    static const QByteArray closing = "</bookmark>";
    static const QByteArray attribute = "href=\"";
    const QByteArray wanted = "file://" + toNative(folder);
    for (qsizetype begin = list.indexOf("<bookmark "); begin >= 0; begin = list.indexOf("<bookmark ", begin + 1)) {
        const qsizetype tagEnd = list.indexOf('>', begin);
        const qsizetype href = list.indexOf(attribute, begin) + attribute.size();
        if (tagEnd < 0 || href < attribute.size() || href > tagEnd ||
            pathIn(list.mid(href, list.indexOf('"', href) - href)) != wanted)
            continue;
        if (list[tagEnd - 1] == '/')
            return wholeLines(list, {begin, tagEnd + 1});
        const qsizetype end = list.indexOf(closing, tagEnd);
        return end < 0 ? Place() : wholeLines(list, {begin, end + closing.size()});
    }
    return {};
}

bool isList(const QByteArray &list)
{
    QXmlStreamReader reader(list);
    bool isXbel = false;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && !isXbel) {
            if (reader.name() != u"xbel")
                return false;
            isXbel = true;
        }
    }
    return isXbel && !reader.hasError();
}

QByteArray entryFor(const QByteArray &address, const QByteArray &now)
{
    return "  <bookmark href=\"" + address + "\" added=\"" + now + "\" modified=\"" + now + "\" visited=\"" + now +
           "\">\n    <info>\n      <metadata owner=\"http://freedesktop.org\">\n"
           "        <mime:mime-type type=\"inode/directory\"/>\n        <bookmark:applications>\n"
           "          <bookmark:application name=\"Tessaro\" exec=\"&apos;Tessaro %u&apos;\" modified=\"" +
           now + "\" count=\"1\"/>\n        </bookmark:applications>\n      </metadata>\n    </info>\n  </bookmark>\n";
}

} // namespace

QByteArray withRecentFolder(const QByteArray &list, const QString &folder, const QDateTime &now)
{
    if (!isList(list))
        return {};
    // As other programs spell it, who compare addresses letter by letter.
    const QByteArray address = "file://" + toNative(folder).toPercentEncoding("/!$&'()*+,;=:@").replace('&', "&amp;");
    QByteArray changed = list;
    if (const Place old = entryOf(changed, folder); old.end > old.begin)
        changed.remove(old.begin, old.end - old.begin);
    const qsizetype end = changed.lastIndexOf("</xbel>");
    if (end < 0) // "<xbel/>"
        return {};
    const QByteArray moment = now.toUTC().toString(QStringLiteral("yyyy-MM-ddThh:mm:ss.zzz000Z")).toLatin1();
    return changed.insert(end, entryFor(address, moment));
}

void rememberForDesktop(const QString &folder)
{
    const QString wanted = fromNative(qgetenv("XDG_DATA_HOME")); // one that is not absolute counts as none
    const QString data = wanted.startsWith(u'/') ? wanted : joined(homeFolder(), QStringLiteral(".local/share"));
    const QString path = joined(data, QStringLiteral("recently-used.xbel"));
    const Result<QByteArray> list = isMissing(path) ? Result<QByteArray>(QByteArray(emptyList)) : readFile(path);
    const QByteArray changed = list ? withRecentFolder(*list, folder, QDateTime::currentDateTimeUtc()) : QByteArray();
    Outcome stored = list.outcome();
    if (stored.ok())
        stored = changed.isNull() ? Outcome::failure(Cause::Damaged, path) : makeFolders(data);
    if (stored.ok())
        stored = replaceFile(path, changed);
    if (!stored.ok())
        printToConsole(QStringLiteral("The desktop's list of recent files was left as it is: ") + stored.description());
}

} // namespace platform
