#include "support/GlobalSettings.h"

#include "platform/files/WholeFile.h"
#include "support/VTLocalPaths.h"

QVariant globalsettings::value(const QString &key)
{
    const auto list = platform::readPropertyListFile(VTLocalPaths::prefsDirectory(VTLocalPaths::Domain::User) +
                                                     QStringLiteral("/com.vantrel.global.plist"));
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
