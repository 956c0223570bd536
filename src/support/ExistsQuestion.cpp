#include "support/ExistsQuestion.h"

#include "platform/base/MainThread.h"
#include "support/VTFileManager.h"

#include <QThreadPool>

void ExistsQuestion::ask(const QString &path, std::function<void(bool exists)> answer)
{
    forget();
    QThreadPool::globalInstance()->start(
        [path, answer = std::move(answer), number = *m_number, asker = std::weak_ptr(m_number)] {
            const bool exists = VTFileManager::fileExistsAtPath(path);
            const auto tell = [exists, answer, number, asker] {
                const auto last = asker.lock();
                if (last && *last == number)
                    answer(exists);
            };
            platform::MainThread::perform(tell, platform::Waiting::No);
        });
}
