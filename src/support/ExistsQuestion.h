#pragma once

#include <QSet>
#include <QString>
#include <functional>
#include <memory>

/**
 * Asks again and again, for what changes as somebody types, whether something exists: on a worker, because it may lie
 * on a share that takes its time or has gone. Of one place one question is under way at a time, so that a server that
 * does not answer holds one thread and not one for each key, and other places are asked all the same. Main thread.
 */
class ExistsQuestion
{
public:
    /** Whether the path below the place exists. The answer comes later, by the event loop, unless another question was
        asked or this object has gone by then. */
    void ask(const QString &place, const QString &path, std::function<void(bool exists)> answer);
    /** The last question is not to be answered any more. */
    void forget() { m_state->answer = {}; }

private:
    struct State
    {
        QString place; ///< of the last question
        QString path;
        std::function<void(bool)> answer; ///< null: nobody waits for it any more
        quint64 number = 0;
        QSet<QString> underWay; ///< places that are being asked
    };
    static void begin(const std::shared_ptr<State> &state);

    std::shared_ptr<State> m_state = std::make_shared<State>();
};
