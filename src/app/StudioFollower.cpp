#include "app/StudioFollower.h"

#include "platform/base/MainThread.h"
#include "support/Settings.h"
#include "support/StudioCopy.h"
#include "templates/StudioLibrary.h"

#include <QGuiApplication>
#include <QPointer>

namespace {

constexpr qint64 betweenQuestions = 300'000; // milliseconds

} // namespace

StudioFollower::StudioFollower(QObject *parent)
    : QObject(parent)
{
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive && (!m_sinceAsked.isValid() || m_sinceAsked.hasExpired(betweenQuestions)))
            follow();
    });
}

void StudioFollower::follow()
{
    if (m_isAsking || (settings::sharedSetup.text().isEmpty() && !studio::isInForce()))
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
    const platform::Outcome &outcome = followed.outcome;
    m_isAsking = false;
    if (outcome.is(platform::Cause::Busy)) // what was in the way is soon over
        m_sinceAsked.invalidate();
    const bool wasAway = std::exchange(m_isAway, !outcome.ok() && !outcome.is(platform::Cause::Busy));
    if (m_isAway && !wasAway)
        Q_EMIT unreachable(studio::sentenceOf(followed));
    if (followed.hasChanged)
        Q_EMIT changed();
}
