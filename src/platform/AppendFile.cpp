#include "platform/AppendFile.h"

#include "platform/NativePath.h"

#include <fcntl.h>
#include <unistd.h>

namespace platform {

bool AppendFile::open(const QString &path)
{
    m_file.reset(::open(toNative(path).constData(), O_WRONLY | O_APPEND | O_CLOEXEC));
    return m_file.isOpen();
}

qint64 AppendFile::append(const QByteArray &bytes)
{
    return write(m_file.get(), bytes.constData(), static_cast<size_t>(bytes.size()));
}

} // namespace platform
