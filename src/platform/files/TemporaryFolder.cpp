#include "platform/files/TemporaryFolder.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileTree.h"

#include <cstdlib>

namespace platform {

Result<TemporaryFolder> TemporaryFolder::make(const QString &inFolder)
{
    QByteArray path = toNative(joined(inFolder, QStringLiteral("tessaro-XXXXXX")));
    if (!mkdtemp(path.data()))
        return Outcome::fromErrno(inFolder);
    return TemporaryFolder(fromNative(path));
}

TemporaryFolder::~TemporaryFolder()
{
    if (!m_path.isNull())
        static_cast<void>(removeOwnTree(m_path)); // what stays lies in the temporary folder, which the system empties
}

} // namespace platform
