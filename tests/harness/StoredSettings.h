#pragma once

#include "support/Settings.h"

/** Stores a setting as another program would have left it; ends the test when it cannot. */
inline void storeSetting(const QString &key, const QVariant &value)
{
    if (const auto stored = settings::standard().setValue(key, value); !stored.ok())
        qFatal("%s", qPrintable(stored.description()));
}

inline void removeSetting(const QString &key)
{
    if (const auto removed = settings::standard().removeValue(key); !removed.ok())
        qFatal("%s", qPrintable(removed.description()));
}

/** As for a new user who has been greeted: the library and the projects lie in the folder, and nothing opens by itself.
 */
inline void storeFirstSettings(const QString &folder)
{
    settings::registerDefaults();
    for (const settings::Setting *setting : settings::all())
        removeSetting(*setting);
    storeSetting(settings::firstRun, false);
    storeSetting(settings::templateLocation, QString(folder + QStringLiteral("/Library")));
    storeSetting(settings::useFixedProjectLocation, 1LL);
    storeSetting(settings::fixedProjectLocationPath, QString(folder + QStringLiteral("/Projects")));
    storeSetting(settings::autoOpenFolder, 0LL);
}
