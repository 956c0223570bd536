#pragma once

#include "platform/base/Outcome.h"
#include "platform/base/UniqueDescriptor.h"

#include <QByteArray>
#include <QString>

namespace platform {

/** A file that is only ever added to. Several programs may add to the same one: a line is never torn. */
class AppendFile
{
public:
    /** The file must exist. */
    Outcome open(const QString &path);
    void close() { m_file.reset(); }
    [[nodiscard]] bool isOpen() const { return m_file.isOpen(); }
    /** All bytes, in one write where the system takes them whole. */
    Outcome append(const QByteArray &bytes);

private:
    QString m_path;
    UniqueDescriptor m_file;
};

} // namespace platform
