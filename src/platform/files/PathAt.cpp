#include "platform/files/PathAt.h"

#include "platform/base/NativePath.h"

#include <cerrno>
#include <climits>
#include <fcntl.h>

namespace platform {

PathAt::PathAt(const QString &path, int room)
    : m_name(toNative(path))
    , m_folder(AT_FDCWD)
{
    while (m_name.size() + room >= PATH_MAX) {
        const qsizetype cut = m_name.lastIndexOf('/', qMin<qsizetype>(PATH_MAX - 2, m_name.size() - 1));
        const QByteArray stretch = cut > 0 ? m_name.first(cut) : QByteArray();
        const int next = cut > 0 ? openat(m_folder, stretch.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC) : -1;
        if (next < 0) {
            m_error = cut > 0 ? errno : ENAMETOOLONG;
            m_folder = -1;
            m_name = "."; // with an absolute name the descriptor would be ignored
            return;
        }
        m_opened.reset(next);
        m_folder = next;
        m_name.remove(0, cut + 1);
    }
}

} // namespace platform
