#pragma once

#include <QDateTime>
#include <QElapsedTimer>
#include <QObject>

namespace studio {
struct Followed;
}

/**
 * Keeps the copy of the studio's set-up up to date while the window is open: at its start, and when the user comes back
 * to it after a while. The server is asked on a thread of its own, one question at a time. Main thread.
 */
class StudioFollower : public QObject
{
    Q_OBJECT

public:
    explicit StudioFollower(QObject *parent = nullptr);

    /** Asks now, unless a question is under way. */
    void follow();

Q_SIGNALS:
    /** Templates, parameters or settings are different. */
    void changed();
    /** Said once for each time that something gets in the way, in words. */
    void unreachable(const QString &message);

private:
    void take(const studio::Followed &followed);

    bool m_isAsking = false;
    QString m_said;             ///< what is in the way; null: nothing
    QDateTime m_date;           ///< of the copy as this program has seen it
    QElapsedTimer m_sinceAsked; ///< not valid before the first time
};
