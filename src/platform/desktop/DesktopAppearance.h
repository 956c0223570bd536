#pragma once

#include <QDBusVariant>
#include <QObject>

class QDBusPendingCallWatcher;

namespace platform {

/** How the desktop wants programs to look. */
struct Appearance
{
    enum class Scheme { Any, Dark, Light };
    Scheme scheme = Scheme::Any;
    bool isHighContrast = false;

    bool operator==(const Appearance &) const = default;
};

/**
 * What the user has chosen for all programs, at the start and whenever it changes: the desktop's portal
 * org.freedesktop.portal.Settings, "color-scheme" and "contrast" of org.freedesktop.appearance
 * (flatpak.github.io/xdg-desktop-portal). Nobody waits for it; without a portal it is Any for ever. Main thread.
 */
class DesktopAppearance : public QObject
{
    Q_OBJECT

public:
    explicit DesktopAppearance(QObject *parent = nullptr);

    /** As far as it is known by now. */
    [[nodiscard]] const Appearance &current();

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void ask();
    void takeAnswer();
    void take(const QString &key, const QVariant &value);

    Appearance m_current;
    QDBusPendingCallWatcher *m_asked = nullptr; ///< null: answered
};

} // namespace platform
