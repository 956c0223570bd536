#include "support/ExistsQuestion.h"

#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "support/VTFileManager.h"

void ExistsQuestion::ask(const QString &place, const QString &path, std::function<void(bool exists)> answer)
{
    m_state->place = place;
    m_state->path = path;
    m_state->answer = std::move(answer);
    ++m_state->number;
    begin(m_state);
}

void ExistsQuestion::begin(const std::shared_ptr<State> &state)
{
    const QString place = state->place;
    if (state->underWay.contains(place))
        return; // asked when that one is answered
    state->underWay.insert(place);
    const auto exists = std::make_shared<bool>(false);
    const QString path = platform::joined(place, state->path);
    platform::performBeside([path, exists] { *exists = VTFileManager::fileExistsAtPath(path); },
                            [exists, place, number = state->number, asked = std::weak_ptr(state)] {
                                const auto last = asked.lock();
                                if (!last)
                                    return;
                                last->underWay.remove(place);
                                if (!last->answer)
                                    return;
                                if (last->number == number)
                                    std::exchange(last->answer, {})(*exists);
                                else
                                    begin(last); // another was asked meanwhile
                            });
}
