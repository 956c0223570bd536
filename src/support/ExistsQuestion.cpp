#include "support/ExistsQuestion.h"

#include "platform/base/MainThread.h"
#include "support/VTFileManager.h"

void ExistsQuestion::ask(const QString &path, std::function<void(bool exists)> answer)
{
    forget();
    const auto exists = std::make_shared<bool>(false);
    platform::performBeside([path, exists] { *exists = VTFileManager::fileExistsAtPath(path); },
                            [exists, answer = std::move(answer), number = *m_number, asker = std::weak_ptr(m_number)] {
                                const auto last = asker.lock();
                                if (last && *last == number)
                                    answer(*exists);
                            });
}
