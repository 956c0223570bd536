#include "platform/files/AppendFile.h"

#include "platform/base/WholeWrite.h"
#include "platform/files/PathAt.h"

#include <fcntl.h>

namespace platform {

Outcome AppendFile::open(const QString &path)
{
    m_path = path;
    const PathAt at(path);
    m_file.reset(openat(at.folder(), at.name(), O_WRONLY | O_APPEND | O_CLOEXEC));
    return m_file.isOpen() ? Outcome() : Outcome::fromErrno(path);
}

Outcome AppendFile::append(const QByteArray &bytes)
{
    const bool written = writeWhole(m_file.get(), bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return written ? Outcome() : Outcome::fromErrno(m_path);
}

} // namespace platform
