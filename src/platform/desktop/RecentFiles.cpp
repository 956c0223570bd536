#include "platform/desktop/RecentFiles.h"

#include "platform/base/Console.h"
#include "platform/base/NativePath.h"
#include "platform/base/Users.h"
#include "platform/desktop/FileAddress.h"
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

/// The reader counts characters, and the file's bytes are to stay: an entry is found by its text.
Place entryOf(const QByteArray &list, const QByteArray &address)
{
    const qsizetype href = list.indexOf("href=\"" + address + '"');
    const qsizetype begin = href < 0 ? -1 : list.lastIndexOf("<bookmark ", href);
    if (begin < 0)
        return {};
    const qsizetype tagEnd = list.indexOf('>', href);
    if (tagEnd > 0 && list[tagEnd - 1] == '/')
        return {begin, tagEnd + 1};
    static const QByteArray closing = "</bookmark>";
    const qsizetype end = list.indexOf(closing, href);
    return {begin, end < 0 ? -1 : end + closing.size()};
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
    const QByteArray address = fileAddress(folder).toHtmlEscaped().toUtf8();
    QByteArray changed = list;
    if (const Place old = entryOf(changed, address); old.begin >= 0 && old.end > old.begin)
        changed.remove(old.begin, old.end - old.begin);
    const qsizetype end = changed.lastIndexOf("</xbel>");
    if (end < 0) // "<xbel/>"
        return {};
    const QByteArray moment = now.toUTC().toString(QStringLiteral("yyyy-MM-ddThh:mm:ss.zzz000Z")).toLatin1();
    return changed.insert(end, entryFor(address, moment));
}

void rememberForDesktop(const QString &folder)
{
    const QString data = qEnvironmentVariable("XDG_DATA_HOME", joined(homeFolder(), QStringLiteral(".local/share")));
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
