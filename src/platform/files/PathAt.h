#pragma once

#include "platform/plain/UniqueDescriptor.h"

#include <QByteArray>
#include <QString>

namespace platform {

/**
 * A path in the form the *at() calls take, of any length. The kernel takes no path of PATH_MAX (4096) bytes or more;
 * such a path is opened in stretches and the rest is named relative to the last folder reached.
 * When a stretch cannot be opened, error() is its errno and folder() is a descriptor on which every call fails.
 */
class PathAt
{
public:
    /** With room, in bytes, for what the caller puts before the name. */
    explicit PathAt(const QString &path, int room = 0);

    [[nodiscard]] int folder() const { return m_folder; }
    [[nodiscard]] const char *name() const { return m_name.constData(); }
    [[nodiscard]] int error() const { return m_error; }

private:
    QByteArray m_name;
    UniqueDescriptor m_opened;
    int m_folder;
    int m_error = 0;
};

} // namespace platform
