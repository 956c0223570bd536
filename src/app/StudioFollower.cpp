#include "app/StudioFollower.h"

#include "platform/base/MainThread.h"
#include "support/Settings.h"
#include "support/StudioCopy.h"
#include "templates/StudioLibrary.h"

#include <QGuiApplication>
#include <QPointer>
#include <QTimer>

namespace {

constexpr qint64 betweenQuestions = 300'000; // milliseconds
constexpr std::chrono::seconds afterBusy{5};

} // namespace

StudioFollower::StudioFollower(QObject *parent)
    : QObject(parent)
    , m_date(studio::lastChange())
{
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive && m_sinceAsked.hasExpired(betweenQuestions))
            follow();
    });
}

void StudioFollower::follow()
{
    const bool isConcerned = !settings::sharedSetup.text().isEmpty() || studio::isInForce() || m_date.isValid();
    if (m_isAsking || !isConcerned)
        return;
    m_isAsking = true;
    m_sinceAsked.start();
    const auto followed = std::make_shared<studio::Followed>();
    platform::performBeside([followed] { *followed = studio::follow(); },
                            [followed, self = QPointer(this)] {
                                if (self)
                                    self->take(*followed);
                            });
}

void StudioFollower::take(const studio::Followed &followed)
{
    m_isAsking = false;
    if (followed.outcome.is(platform::Cause::Busy)) // what is in the way is soon over
        QTimer::singleShot(afterBusy, this, &StudioFollower::follow);
    QString said = followed.outcome.ok() ? QString() : studio::sentenceOf(followed);
    if (followed.isInPart)
        said += u' ' + followed.outcome.description();
    if (m_said != said && !said.isEmpty())
        Q_EMIT unreachable(said);
    m_said = said;
    // Another program may have exchanged it.
    const QDateTime date = studio::lastChange();
    if (std::exchange(m_date, date) != date || followed.hasChanged)
        Q_EMIT changed();
}
