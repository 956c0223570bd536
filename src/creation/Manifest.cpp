#include "creation/Manifest.h"

#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/files/FileTree.h"
#include "platform/files/WholeFile.h"
#include "support/VTLocalPaths.h"

#include <QDataStream>
#include <QIODevice>
#include <QRandomGenerator>
#include <QSet>

#include <chrono>

using platform::Cause;
using platform::Outcome;
using platform::Result;

namespace {

/// "TsrH" and the format's number. What begins otherwise was written by another version, and is left alone.
constexpr quint32 mark = 0x54737248;
constexpr quint32 format = 2;
constexpr const char *headerEnding = ".project";
/// In the file's name, so that no header is read to count what was made together.
constexpr QChar batchMark(u'+');
constexpr auto streamVersion = QDataStream::Qt_6_0;
/// Names and numbers shrink to a third with the least effort, and in a few milliseconds.
constexpr int leastEffort = 1;

QString historyFolder()
{
    return VTLocalPaths::appSupportDirectory(VTLocalPaths::Domain::User) + QStringLiteral("/Vantrel/Tessaro/History");
}

/// In the order of time, by name: to the nanosecond, for a batch makes several projects within a millisecond.
QString newFile(const QString &batch)
{
    using namespace std::chrono;
    const auto now = system_clock::now().time_since_epoch();
    const auto passed = duration_cast<milliseconds>(now);
    const QString time =
        QDateTime::fromMSecsSinceEpoch(passed.count(), Qt::UTC).toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    const qint64 nanoseconds = duration_cast<std::chrono::nanoseconds>(now - passed).count();
    return platform::joined(historyFolder(), QStringLiteral("%1-%2-%3%4%5")
                                                 .arg(time)
                                                 .arg(nanoseconds, 6, 10, QLatin1Char('0'))
                                                 .arg(QRandomGenerator::global()->generate(), 0, 36)
                                                 .arg(batch.isEmpty() ? QString() : batchMark + batch)
                                                 .arg(QLatin1String(headerEnding)));
}

/// Paths as bytes: a name need not be UTF-8.
QVariantMap headerOf(const Manifest &manifest)
{
    QVariantList levels;
    for (const QString &level : manifest.levelsMade)
        levels.append(platform::toNative(level));
    QVariantMap header{{"project", platform::toNative(manifest.project)},
                       {"template", platform::toNative(manifest.templateName)},
                       {"made", manifest.made.toString(Qt::ISODateWithMs)},
                       {"device", QString::number(manifest.identity.device)},
                       {"inode", QString::number(manifest.identity.inode)},
                       {"parameters", variantFromParameters(manifest.parameters)},
                       {"levelsMade", levels}};
    if (!manifest.batch.isEmpty())
        header.insert("batch", manifest.batch);
    if (!manifest.oldInTrash.isNull())
        header.insert("oldInTrash", platform::toNative(manifest.oldInTrash));
    return header;
}

Manifest fromHeader(const QString &file, const QVariantMap &header)
{
    const auto path = [&](const char *key) {
        return platform::fromNative(header[QLatin1String(key)].toByteArray());
    };
    QStringList levels;
    for (const QVariant &level : header["levelsMade"].toList())
        levels.append(platform::fromNative(level.toByteArray()));
    return {file,
            path("project"),
            path("template"),
            QDateTime::fromString(header["made"].toString(), Qt::ISODateWithMs),
            {header["device"].toString().toULongLong(), header["inode"].toString().toULongLong()},
            parametersFromVariant(header["parameters"]),
            levels,
            header.contains("oldInTrash") ? path("oldInTrash") : QString(),
            header["batch"].toString()};
}

void writeFolder(QDataStream &stream, const platform::Tree &tree, std::uint32_t number, quint32 depth)
{
    const platform::TreeFolder &folder = tree.folders[number];
    for (std::size_t i = 0; i < folder.made.size(); ++i) {
        const platform::TreeItem &item = folder.items[i];
        const platform::MadeItem &made = folder.made[i];
        if (made.inode == 0)
            continue;
        stream << depth << QByteArray(folder.newNameOf(item)) << item.type << made.inode << made.modified << made.size;
        if (item.folder != 0)
            writeFolder(stream, tree, item.folder, depth + 1);
    }
}

Outcome write(const QString &file, const QByteArray &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << mark << format << value;
    return platform::replaceFile(file, bytes, platform::Waits::ForNothing);
}

Result<QByteArray> read(const QString &file)
{
    const Result<QByteArray> bytes = platform::readFile(file);
    if (!bytes)
        return bytes.outcome();
    QDataStream stream(*bytes);
    stream.setVersion(streamVersion);
    quint32 foundMark = 0;
    quint32 foundFormat = 0;
    QByteArray value;
    stream >> foundMark >> foundFormat >> value;
    const bool isWhole = stream.status() == QDataStream::Ok && foundMark == mark && foundFormat == format;
    return isWhole ? Result<QByteArray>(value) : Outcome::failure(Cause::Damaged, file);
}

/// The latest first.
QStringList headers()
{
    QStringList files;
    for (const platform::FolderEntry &entry : platform::listFolder(historyFolder()).valueOr({})) {
        if (entry.kind == platform::FileKind::File && entry.name.endsWith(QLatin1String(headerEnding)))
            files.prepend(platform::joined(historyFolder(), entry.name));
    }
    return files;
}

/// Beside the header, so that a list of projects reads no items.
QString itemsFile(const QString &header)
{
    return platform::withoutExtension(header) + QStringLiteral(".items");
}

Outcome forget(const QString &header)
{
    const Outcome gone = platform::removeTree(header);
    return gone.ok() ? platform::removeTree(itemsFile(header)) : gone;
}

} // namespace

QString Manifest::name() const
{
    return platform::lastComponent(project);
}

Outcome remember(Manifest &manifest, const platform::Tree &tree)
{
    manifest.file = newFile(manifest.batch);
    QByteArray items;
    QDataStream stream(&items, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    writeFolder(stream, tree, 0, 0);
    Outcome kept = platform::makeFolders(historyFolder());
    if (kept.ok()) // first, so that a header is never without its items
        kept = write(itemsFile(manifest.file), qCompress(items, leastEffort));
    if (kept.ok())
        kept = write(manifest.file, platform::writePropertyList(headerOf(manifest)));
    if (manifest.batch.isEmpty())
        pruneHistory();
    return kept;
}

void pruneHistory()
{
    QSet<QString> creations;
    for (const QString &file : headers()) {
        const qsizetype mark = file.lastIndexOf(batchMark);
        creations.insert(mark < 0 ? file : file.mid(mark));
        if (creations.size() > rememberedProjects)
            static_cast<void>(forget(file)); // one that stays is one more that can be undone
    }
}

QList<Manifest> recentProjects()
{
    QList<Manifest> manifests;
    for (const QString &file : headers()) {
        // A property list: a stream of variants may ask for any type that there is, pictures too.
        const auto bytes = read(file);
        const auto header = bytes ? platform::readPropertyList(*bytes) : std::nullopt;
        if (header && !header->toMap().isEmpty())
            manifests.append(fromHeader(file, header->toMap()));
    }
    return manifests;
}

Result<std::vector<ManifestItem>> itemsOf(const Manifest &manifest)
{
    const QString file = itemsFile(manifest.file);
    const auto packed = read(file);
    if (!packed)
        return packed.outcome();
    const QByteArray items = qUncompress(*packed);
    if (items.isEmpty() && *packed != qCompress(QByteArray(), leastEffort))
        return Outcome::failure(Cause::Damaged, file);
    QDataStream itemStream(items);
    itemStream.setVersion(streamVersion);
    std::vector<ManifestItem> found;
    while (!itemStream.atEnd()) {
        ManifestItem item;
        itemStream >> item.depth >> item.name >> item.type >> item.made.inode >> item.made.modified >> item.made.size;
        const quint32 deepest = found.empty() ? 0 : found.back().depth + 1;
        const bool isName = !item.name.isEmpty() && !item.name.contains('/') && item.name != "." && item.name != "..";
        if (itemStream.status() != QDataStream::Ok || item.depth > deepest || !isName)
            return Outcome::failure(Cause::Damaged, file);
        found.push_back(std::move(item));
    }
    return found;
}

Outcome forget(const Manifest &manifest)
{
    return forget(manifest.file);
}
