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
