#include "support/ExistsQuestion.h"

#include "platform/base/MainThread.h"
#include "support/VTFileManager.h"

void ExistsQuestion::ask(const QString &path, std::function<void(bool exists)> answer)
{
    m_state->path = path;
    m_state->answer = std::move(answer);
    ++m_state->number;
    if (!m_state->isUnderWay)
        begin(m_state);
}

void ExistsQuestion::begin(const std::shared_ptr<State> &state)
{
    state->isUnderWay = true;
    const auto exists = std::make_shared<bool>(false);
    platform::performBeside([path = state->path, exists] { *exists = VTFileManager::fileExistsAtPath(path); },
                            [exists, number = state->number, asked = std::weak_ptr(state)] {
                                const auto last = asked.lock();
                                if (!last)
                                    return;
                                last->isUnderWay = false;
                                if (last->number != number)
                                    begin(last); // another was asked meanwhile
                                else if (last->answer)
                                    std::exchange(last->answer, {})(*exists);
                            });
}
