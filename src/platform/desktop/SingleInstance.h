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
    /** Hands the files (absolute paths; none: just come to the front) to the instance that runs. False when there is
       none or it does not answer within three seconds. */
    [[nodiscard]] static bool handOver(const QStringList &files);

    /** Takes the name, where it is free. */
    explicit SingleInstance(QObject *parent = nullptr);
    ~SingleInstance() override;

Q_SIGNALS:
    void activated();
    void filesOpened(const QStringList &paths);
    void actionRequested(const QString &identifier);
};

} // namespace platform
