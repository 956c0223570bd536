// VTFileManager's operations on labels and locks, on patterns of paths, and its archives.
#include "support/VTFileManager.h"

#include "platform/FileSystem.h"
#include "platform/FinderInfo.h"
#include "platform/MainThread.h"
#include "platform/NativePath.h"
#include "platform/Trash.h"
#include "platform/ZipArchive.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QUuid>
#include <array>

using platform::FileKind;
using platform::FolderEntry;
using platform::joined;

namespace {

constexpr quint16 labelMask = 0x000E;

/// By the label's number, that is half the index.
constexpr std::array<LabelColor, 8> labelColors{{
    {0, 0, 0},
    {0, 0, 0.72},         // grey
    {0.2056, 0.5, 0.85},  // green
    {0.7917, 0.26, 0.86}, // purple
    {0.5789, 0.56, 0.98}, // blue
    {0.1388, 0.54, 0.95}, // yellow
    {0.0083, 0.54, 1.0},  // red
    {0.0888, 0.52, 0.98}, // orange
}};

void setLockedBelow(const QString &folder, bool locked)
{
    for (const FolderEntry &entry : platform::listFolder(folder).value_or(QList<FolderEntry>())) {
        const QString path = joined(folder, entry.name);
        if (entry.kind == FileKind::Folder)
            setLockedBelow(path, locked);
        else
            platform::setImmutable(path, locked);
    }
}

/// "?" is one character, also where that takes two units of UTF-16.
bool matches(QStringView pattern, QStringView name)
{
    qsizetype p = 0;
    qsizetype n = 0;
    qsizetype star = -1;
    qsizetype retry = 0;
    const auto width = [&](qsizetype at) {
        return name[at].isHighSurrogate() && at + 1 < name.size() && name[at + 1].isLowSurrogate() ? 2 : 1;
    };
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == u'*') {
            star = p++;
            retry = n;
        } else if (p < pattern.size() && pattern[p] == u'?') {
            n += width(n);
            ++p;
        } else if (p < pattern.size() && pattern[p] == name[n]) {
            ++n;
            ++p;
        } else if (star >= 0) {
            p = star + 1;
            n = retry += width(retry);
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == u'*')
        ++p;
    return p == pattern.size();
}

/// One step of a pattern: what of the candidates' contents goes on to the next.
QStringList step(const QStringList &candidates, const QString &component)
{
    QStringList found;
    for (const QString &candidate : candidates) {
        if (!component.contains(u'*')) {
            if (const QString path = joined(candidate, component); VTFileManager::fileExistsAtPath(path))
                found.append(path);
            continue;
        }
        for (const FolderEntry &entry : platform::listFolder(candidate).value_or(QList<FolderEntry>())) {
            const QString path = joined(candidate, entry.name);
            if (matches(component, entry.name) && VTFileManager::fileExistsAtPath(path))
                found.append(path);
        }
    }
    return found;
}

} // namespace

int VTFileManager::finderColorIndexForPath(const QString &path)
{
    return platform::flagsWordOf(path);
}

void VTFileManager::setFinderColorIndex(int index, const QString &path)
{
    platform::setFlagsWord(path, static_cast<quint16>(index), labelMask);
}

std::optional<LabelColor> VTFileManager::finderColorForPath(const QString &path)
{
    return finderColorForIndex(finderColorIndexForPath(path));
}

std::optional<LabelColor> VTFileManager::finderColorForIndex(int index)
{
    if (index < 2 || index > 15)
        return std::nullopt;
    return labelColors[static_cast<std::size_t>(index) / 2];
}

QString VTFileManager::labelName(int index)
{
    static constexpr std::array names{QT_TRANSLATE_NOOP("Labels", "grey"),   QT_TRANSLATE_NOOP("Labels", "green"),
                                      QT_TRANSLATE_NOOP("Labels", "purple"), QT_TRANSLATE_NOOP("Labels", "blue"),
                                      QT_TRANSLATE_NOOP("Labels", "yellow"), QT_TRANSLATE_NOOP("Labels", "red"),
                                      QT_TRANSLATE_NOOP("Labels", "orange")};
    if (index < 2 || index > 15)
        return {};
    return QCoreApplication::translate("Labels", names[static_cast<std::size_t>(index) / 2 - 1]);
}

bool VTFileManager::isFileLocked(const QString &path)
{
    return platform::isImmutable(path);
}

void VTFileManager::lockFile(const QString &path)
{
    platform::setImmutable(path, true);
}

void VTFileManager::unlockFile(const QString &path)
{
    platform::setImmutable(path, false);
}

void VTFileManager::lockFolder(const QString &folder)
{
    setLockedBelow(folder, true);
}

void VTFileManager::unlockFolder(const QString &folder)
{
    setLockedBelow(folder, false);
}

QStringList VTFileManager::filesMatchingWildcardPath(const QString &pattern, const QString &fromBasePath)
{
    if (!pattern.contains(u'*'))
        return {fromBasePath.isNull() ? pattern : fromBasePath + u'/' + pattern};
    const QString base = fromBasePath.isNull() ? QStringLiteral("/") : fromBasePath;
    QStringList candidates{base};
    for (const QString &component : pattern.split(u'/', Qt::SkipEmptyParts))
        candidates = step(candidates, component);
    return candidates;
}

QString VTFileManager::decodeWildcardPath(const QString &pattern, const QString &fromBasePath)
{
    const QStringList found = filesMatchingWildcardPath(pattern, fromBasePath);
    return found.isEmpty() ? fromBasePath + u'/' + pattern : found.first();
}

bool VTFileManager::compressFile(const QString &path, const QString &toDestinationFile)
{
    if (platform::kindOf(toDestinationFile) != FileKind::Missing && !trashFile(toDestinationFile, ShouldAuth::No)) {
        VTLog::appendLog("Unable to move %@ to the Trash", toDestinationFile);
        return false;
    }
    // Under another name until it is whole: half an archive is none.
    const QString growing = joined(platform::parentPath(toDestinationFile),
                                   u'.' + QUuid::createUuid().toString(QUuid::WithoutBraces) + QStringLiteral(".zip"));
    const platform::CompressReport report =
        platform::resultInBackground([&] { return platform::compressZip(path, growing); });
    for (const QString &skipped : report.skipped)
        VTLog::appendLog("Left out of the archive %@: %@", toDestinationFile, skipped);
    for (const QString &renamed : report.renamed)
        VTLog::appendLog("Name changed in the archive %@: %@", toDestinationFile, renamed);
    QString problem = report.problem;
    if (problem.isNull())
        problem = platform::moveItem(growing, toDestinationFile).description();
    if (problem.isNull())
        return true;
    VTLog::appendLog("Unable to compress %@: %@", path, problem);
    static_cast<void>(platform::removeOwnTree(growing).ok());
    return false;
}
