#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

/** A password in memory: not copyable, and overwritten when its owner lets go of it. */
class Secret
{
public:
    explicit Secret(const QString &text)
        : m_bytes(text.toUtf8())
    {
        m_bytes.detach();
    }
    ~Secret();
    Secret(const Secret &) = delete;
    Secret &operator=(const Secret &) = delete;

    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

} // namespace platform
