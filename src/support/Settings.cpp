#include "support/Settings.h"

#include "platform/ApplicationBundle.h"
#include "platform/PropertyList.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

#include <QFile>

namespace settings {
namespace {

QString preferencesFile(VTLocalPaths::Domain domain)
{
    return VTLocalPaths::prefsDirectory(domain) + QStringLiteral("/com.vantrel.Tessaro.plist");
}

QVariant shippedParameters()
{
    QFile file(platform::ApplicationBundle::main().resource(QStringLiteral("Filename_Defaults.plist")));
    const auto list = file.open(QIODevice::ReadOnly) ? platform::readPropertyList(file.readAll()) : std::nullopt;
    if (!list)
        VTLog::appendLog("Unable to read the shipped filename parameters");
    return list.value_or(QVariant(QVariantList()));
}

} // namespace

platform::UserDefaults &standard()
{
    static auto *defaults = new platform::UserDefaults(
        preferencesFile(VTLocalPaths::Domain::User), preferencesFile(VTLocalPaths::Domain::Local),
        [](const QString &problem) { VTLog::appendLog("%@", problem); });
    return *defaults;
}

void registerDefaults()
{
    using Domain = VTLocalPaths::Domain;
    standard().registerDefaults({
        {filenameTemplate, shippedParameters()},
        {templateLocation, VTLocalPaths::appSupportDirectory(Domain::User) + QStringLiteral("/Vantrel/Tessaro/Templates")},
        {selectedProjectTemplate, QStringLiteral("Editing Template")},
        {autoOpenFolder, 1LL},
        {fixedProjectLocationPath, VTLocalPaths::documentDirectory(Domain::User)},
        {separatorChar, QStringLiteral("_")},
        {autoExpandFolders, 1LL},
        {dateFormat, QStringLiteral("%Y-%m-%d")},
        {firstRun, true},
    });
}

} // namespace settings
