#pragma once

#include "platform/UniqueDescriptor.h"

#include <QByteArray>
#include <QString>

namespace platform {

/** A file that is only ever added to. Several programs may add to the same one: a line is never torn. */
class AppendFile
{
public:
    /** The file must exist. False when it cannot be opened. */
    bool open(const QString &path);
    void close() { m_file.reset(); }
    [[nodiscard]] bool isOpen() const { return m_file.isOpen(); }
    /** All bytes in one write. Their number, or -1. */
    [[nodiscard]] qint64 append(const QByteArray &bytes);

private:
    UniqueDescriptor m_file;
};

} // namespace platform
