#pragma once

#include <QVariantMap>

/** A stored parameter: a text without a value, but for what the entries say. */
inline QVariantMap record(const QVariantMap &entries)
{
    QVariantMap whole{{"title", "T"}, {"type", 0}, {"val", ""}, {"folder", false}};
    whole.insert(entries);
    return whole;
}
