#pragma once

#include "platform/base/Outcome.h"

#include <QString>

namespace platform {

/** A new folder that nobody else can enter (mode 0700), removed with all that lies in it when its owner lets go. */
class TemporaryFolder
{
public:
    /** Inside the folder, which exists. */
    [[nodiscard]] static Result<TemporaryFolder> make(const QString &inFolder);
    TemporaryFolder(TemporaryFolder &&other) noexcept
        : m_path(std::exchange(other.m_path, QString()))
    {
    }
    TemporaryFolder &operator=(TemporaryFolder &&) = delete;
    ~TemporaryFolder();

    [[nodiscard]] const QString &path() const { return m_path; }

private:
    explicit TemporaryFolder(QString path)
        : m_path(std::move(path))
    {
    }
    QString m_path;
};

} // namespace platform
