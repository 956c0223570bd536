// VTFileManager's operations on labels and locks.
#include "support/VTFileManager.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FinderInfo.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <array>

using platform::FileKind;
using platform::FolderEntry;
using platform::joined;

namespace {

struct Labels
{
    Q_DECLARE_TR_FUNCTIONS(Labels)
};

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
    const auto entries = platform::listFolder(folder);
    if (!entries && !entries.outcome().is(platform::Cause::Missing) &&
        !entries.outcome().is(platform::Cause::NotAFolder))
        VTLog::appendLog("The locks below a folder stay as they are: %@", entries.outcome().description());
    for (const FolderEntry &entry : entries.valueOr({})) {
        const QString path = joined(folder, entry.name);
        if (entry.kind == FileKind::Folder)
            setLockedBelow(path, locked);
        else
            platform::setImmutable(path, locked);
    }
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
    const char *name = labelKey(index);
    return name ? Labels::tr(name) : QString();
}

const char *VTFileManager::labelKey(int index)
{
    static constexpr std::array names{QT_TRANSLATE_NOOP("Labels", "grey"),   QT_TRANSLATE_NOOP("Labels", "green"),
                                      QT_TRANSLATE_NOOP("Labels", "purple"), QT_TRANSLATE_NOOP("Labels", "blue"),
                                      QT_TRANSLATE_NOOP("Labels", "yellow"), QT_TRANSLATE_NOOP("Labels", "red"),
                                      QT_TRANSLATE_NOOP("Labels", "orange")};
    return index < 2 || index > 15 ? nullptr : names[static_cast<std::size_t>(index) / 2 - 1];
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
