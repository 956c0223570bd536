#pragma once

#include <QObject>
#include <QStringList>

namespace platform {

/**
 * One running instance for a desktop session, by org.freedesktop.Application under the name com.vantrel.Tessaro. The
 * first start takes the name and hears what later starts, the file manager and other programs ask of it; a later start
 * hands its files over and ends. Without a session bus every start is the first. Main thread.
 */
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /** What a start was asked to do: files to open (absolute paths), or an action with the folder that it is about;
       with neither the window just comes to the front. */
    struct Request
    {
        QStringList files{};
        QString action{};
        QString value{}; ///< null without one
    };
    /** Hands it to the instance that runs. False when there is none or it does not answer within three seconds. */
    [[nodiscard]] static bool handOver(const Request &request);

    /** Takes the name, where it is free. */
    explicit SingleInstance(QObject *parent = nullptr);
    ~SingleInstance() override;

Q_SIGNALS:
    void activated();
    void filesOpened(const QStringList &paths);
    /** The value is null without one. */
    void actionRequested(const QString &identifier, const QString &value);
};

} // namespace platform
