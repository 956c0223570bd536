#include "app/StudioFollower.h"

#include "platform/base/MainThread.h"
#include "support/Settings.h"
#include "support/StudioCopy.h"
#include "templates/StudioLibrary.h"

#include <QGuiApplication>
#include <QLocale>
#include <QPointer>

namespace {

constexpr qint64 betweenQuestions = 300'000; // milliseconds

} // namespace

StudioFollower::StudioFollower(QObject *parent)
    : QObject(parent)
{
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive && m_sinceAsked.hasExpired(betweenQuestions))
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
                                    self->take(followed->outcome, followed->hasChanged);
                            });
}

void StudioFollower::take(const platform::Outcome &outcome, bool hasChanged)
{
    m_isAsking = false;
    const bool wasAway = std::exchange(m_isAway, !outcome.ok() && !outcome.is(platform::Cause::Busy));
    if (m_isAway && !wasAway)
        Q_EMIT unreachable(studio::isInForce()
                               ? tr("The studio’s set-up cannot be reached. The copy of %1 is used.")
                                     .arg(QLocale().toString(studio::lastChange(), QLocale::ShortFormat))
                               : tr("The studio’s set-up cannot be reached. Your own is used."));
    if (hasChanged)
        Q_EMIT changed();
}
