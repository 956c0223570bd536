#include "support/RecentPlaces.h"

#include "support/Settings.h"

QStringList recentPlaces()
{
    return settings::recentLocations.value().toStringList();
}

void rememberPlace(const QString &folder)
{
    static_cast<void>(settings::recentLocations.change([&](const QVariant &stored) {
        QStringList places = stored.toStringList();
        places.removeAll(folder);
        places.prepend(folder);
        return platform::Result<QVariant>(
            QVariant(QVariantList(places.cbegin(), places.cbegin() + qMin(places.size(), rememberedPlaces))));
    }));
}

QStringList pinnedPlaces()
{
    return settings::pinnedLocations.value().toStringList();
}

void setPinned(const QString &folder, bool pinned)
{
    static_cast<void>(settings::pinnedLocations.change([&](const QVariant &stored) {
        QStringList places = stored.toStringList();
        places.removeAll(folder);
        if (pinned)
            places.append(folder);
        return platform::Result<QVariant>(QVariant(QVariantList(places.cbegin(), places.cend())));
    }));
}

void setNextPlace(const QString &folder)
{
    if (settings::useFixedProjectLocation.isOn())
        static_cast<void>(settings::fixedProjectLocationPath.store(folder));
    else
        rememberPlace(folder);
}

QString nextPlace()
{
    const QString fixed = settings::fixedProjectLocationPath.text();
    const QStringList places = recentPlaces();
    return places.isEmpty() || (settings::useFixedProjectLocation.isOn() && !fixed.isEmpty()) ? fixed
                                                                                              : places.constFirst();
}
