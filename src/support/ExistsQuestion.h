#pragma once

#include <QString>
#include <functional>
#include <memory>

/**
 * Asks again and again, for what changes as somebody types, whether something exists: on a worker, because it may lie
 * on a share that takes its time or has gone. Main thread.
 */
class ExistsQuestion
{
public:
    /** The answer comes later, by the event loop, unless another question was asked or this object has gone by then. */
    void ask(const QString &path, std::function<void(bool exists)> answer);
    /** The last question is not to be answered any more. */
    void forget() { ++*m_number; }

private:
    std::shared_ptr<quint64> m_number = std::make_shared<quint64>(0); ///< of the last question
};
