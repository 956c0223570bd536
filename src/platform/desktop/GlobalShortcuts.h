#pragma once

#include <QDBusObjectPath>
#include <QList>
#include <QObject>
#include <QString>
#include <functional>

namespace platform {

/**
 * Keys that work in every program, as the desktop itself offers them: its portal
 * org.freedesktop.portal.GlobalShortcuts, version 1 (flatpak.github.io/xdg-desktop-portal). They work while this
 * process runs, and it is the desktop that asks the user about them. Main thread.
 */
class GlobalShortcuts : public QObject
{
    Q_OBJECT

public:
    explicit GlobalShortcuts(QObject *parent = nullptr);
    ~GlobalShortcuts() override;

    struct Shortcut
    {
        QString identifier;
        QString description;
        QString trigger; ///< the wanted keys, as the "shortcuts" specification writes them: "CTRL+ALT+a"; may be empty

        bool operator==(const Shortcut &) const = default;
    };

    /** Whether the desktop offers them; answered by the event loop, never when the context has gone. */
    static void ask(QObject &context, std::function<void(bool offered)> answer);

    /** In place of the ones before; the same ones are not asked for again while they hold. What goes wrong is told by
        failed(), and none hold then. A portal that is started anew is asked anew. */
    void bind(const QList<Shortcut> &shortcuts);

Q_SIGNALS:
    void activated(const QString &identifier);
    void failed(const QString &reason);

private:
    void createSession();
    void closeSession();
    void bindInSession();
    void fail(const QString &reason);
    void request(const char *method, QVariantList arguments, QVariantMap options, const char *answer);

private Q_SLOTS:
    void sessionCreated(uint response, const QVariantMap &results);
    void shortcutsBound(uint response, const QVariantMap &results);
    void sessionClosed();
    void ownerChanged(const QString &service, const QString &before, const QString &now);
    void shortcutActivated(const QDBusObjectPath &session, const QString &identifier, qulonglong timestamp,
                           const QVariantMap &options);

private:
    QList<Shortcut> m_shortcuts;
    QString m_session; ///< its object path; empty without one
    int m_requests = 0;
};

} // namespace platform
