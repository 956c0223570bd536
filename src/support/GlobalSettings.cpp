#include "support/GlobalSettings.h"

#include "platform/PropertyList.h"
#include "support/VTLocalPaths.h"

#include <QFile>

QVariant globalsettings::value(const QString &key)
{
    QFile file(VTLocalPaths::prefsDirectory(VTLocalPaths::Domain::User) + QStringLiteral("/com.vantrel.global.plist"));
    const auto list = file.open(QIODevice::ReadOnly) ? platform::readPropertyList(file.readAll()) : std::nullopt;
    return list ? list->toMap().value(key) : QVariant();
}

bool globalsettings::isOn(const QString &key)
{
    const QVariant found = value(key);
    switch (found.typeId()) {
    case QMetaType::QString:
        return found.toString() == u"1";
    case QMetaType::Bool:
        return found.toBool();
    case QMetaType::LongLong:
    case QMetaType::Double:
        return found.toDouble() == 1;
    default:
        return false;
    }
}
