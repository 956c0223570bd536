#include "platform/files/FinderInfo.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/PathAt.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <linux/fs.h>
#include <optional>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace platform {
namespace {

constexpr const char *attributeName = "user.com.apple.FinderInfo";
constexpr std::size_t attributeSize = 32;
constexpr int prefixRoom = 32; ///< bytes: "/proc/self/fd/<number>/"
using Attribute = std::array<uchar, attributeSize>;

/// The path that the *xattr calls take: they know no folder descriptor, so a long path goes through /proc/self/fd.
QByteArray attributePath(const PathAt &at)
{
    return at.folder() == AT_FDCWD ? QByteArray(at.name())
                                   : "/proc/self/fd/" + QByteArray::number(at.folder()) + '/' + at.name();
}

/// An attribute's calls, for a path or an open item.
template <typename Get> std::optional<Attribute> readAttribute(Get get)
{
    Attribute attribute{};
    const ssize_t size = get(attribute.data(), attribute.size());
    if (size == attributeSize)
        return attribute;
    if (size >= 0)
        errno = ERANGE; // as when it is longer
    return std::nullopt;
}

template <typename Get> quint16 wordBy(Get get)
{
    const std::optional<Attribute> attribute = readAttribute(get);
    return attribute ? static_cast<quint16>((*attribute)[8] << 8 | (*attribute)[9]) : quint16{0};
}

template <typename Get, typename Set> bool setWordBy(Get get, Set set, quint16 word, quint16 mask)
{
    std::optional<Attribute> attribute = readAttribute(get);
    if (!attribute && errno != ENODATA) // of another size it belongs to someone else, and is not overwritten
        return false;
    if (!attribute)
        attribute.emplace().fill(0);
    const auto before = static_cast<quint16>((*attribute)[8] << 8 | (*attribute)[9]);
    const auto after = static_cast<quint16>((before & ~mask) | (word & mask));
    (*attribute)[8] = static_cast<uchar>(after >> 8);
    (*attribute)[9] = static_cast<uchar>(after & 0xFF);
    return set(attribute->data(), attribute->size()) == 0;
}

UniqueDescriptor openForFlags(const QString &path)
{
    const FileKind kind = kindOf(path);
    if (kind != FileKind::File && kind != FileKind::Folder) // opening a FIFO would wait, a device may act
        return {};
    const PathAt at(path);
    return UniqueDescriptor(openat(at.folder(), at.name(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
}

} // namespace

quint16 flagsWordOf(const QString &path)
{
    const PathAt at(path, prefixRoom);
    const QByteArray native = attributePath(at);
    return wordBy([&](void *to, std::size_t size) { return lgetxattr(native.constData(), attributeName, to, size); });
}

quint16 flagsWordOf(int descriptor)
{
    return wordBy([&](void *to, std::size_t size) { return fgetxattr(descriptor, attributeName, to, size); });
}

bool setFlagsWord(const QString &path, quint16 word, quint16 mask)
{
    const PathAt at(path, prefixRoom);
    const QByteArray native = attributePath(at);
    return setWordBy(
        [&](void *to, std::size_t size) { return lgetxattr(native.constData(), attributeName, to, size); },
        [&](const void *from, std::size_t size) { return lsetxattr(native.constData(), attributeName, from, size, 0); },
        word, mask);
}

bool setFlagsWord(int descriptor, quint16 word, quint16 mask)
{
    return setWordBy(
        [&](void *to, std::size_t size) { return fgetxattr(descriptor, attributeName, to, size); },
        [&](const void *from, std::size_t size) { return fsetxattr(descriptor, attributeName, from, size, 0); }, word,
        mask);
}

bool isImmutable(const QString &path)
{
    const PathAt at(path);
    struct statx info;
    if (statx(at.folder(), at.name(), AT_SYMLINK_NOFOLLOW, STATX_TYPE, &info) != 0)
        return false;
    return (info.stx_attributes & STATX_ATTR_IMMUTABLE) != 0;
}

void setImmutable(const QString &path, bool immutable)
{
    if (isImmutable(path) == immutable)
        return;
    const UniqueDescriptor file = openForFlags(path);
    int flags = 0;
    if (!file.isOpen() || ioctl(file.get(), FS_IOC_GETFLAGS, &flags) != 0)
        return;
    flags = immutable ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
    ioctl(file.get(), FS_IOC_SETFLAGS, &flags);
}

} // namespace platform
