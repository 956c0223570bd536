#pragma once

#include "platform/base/Outcome.h"
#include "platform/files/Waits.h"
#include "platform/plain/UniqueDescriptor.h"

#include <QByteArray>
#include <QString>

namespace platform {

/**
 * A file that is only ever added to. Several programs may add to the same one: a line is never torn. As long as it is
 * open others can see that it is in use.
 */
class AppendFile
{
public:
    /** The file must exist. */
    Outcome open(const QString &path);
    void close() { m_file.reset(); }
    [[nodiscard]] bool isOpen() const { return m_file.isOpen(); }
    /** Whether the file that is open is still the one that stands at its path; true where that cannot be told. */
    [[nodiscard]] bool isInItsPlace() const;
    [[nodiscard]] quint64 size() const;
    /** Whether any program has the file open in this way. */
    [[nodiscard]] static bool isInUse(const QString &path);
    /** All bytes, in one write where the system takes them whole. */
    Outcome append(const QByteArray &bytes);
    /** What was added is on the disk, or on its way there (see replaceFile()). */
    Outcome waitFor(Waits waits);

private:
    QString m_path;
    UniqueDescriptor m_file;
};

} // namespace platform
