#include "support/Settings.h"

#include "platform/ApplicationBundle.h"
#include "platform/LocalTime.h"
#include "platform/PropertyList.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QFile>
#include <ctime>

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
    static auto *defaults = new platform::UserDefaults(preferencesFile(VTLocalPaths::Domain::User),
                                                       preferencesFile(VTLocalPaths::Domain::Local),
                                                       [](const QString &problem) { VTLog::appendLog("%@", problem); });
    return *defaults;
}

const QList<Known> &known()
{
    using Type = Known::Type;
#define MEANING(text) QT_TRANSLATE_NOOP("Settings", text)
    static const QList<Known> table{
        {templateLocation, Type::Path, MEANING("folder of the template library"), false},
        {defaultTemplate, Type::Text, MEANING("template of new projects"), false},
        {useFixedProjectLocation, Type::Switch, MEANING("create every project in one folder"), false},
        {fixedProjectLocationPath, Type::Path, MEANING("that folder"), false},
        {separatorChar, Type::Separator, MEANING("between the values of one folder level"), false},
        {dateFormat, Type::DateFormat, MEANING("how dates are written"), false},
        {strictNaming, Type::Boolean, MEANING("only letters, digits, - and _"), false},
        {autoOpenFolder, Type::Switch, MEANING("open a new project's folder"), false},
        {autoQuit, Type::Switch, MEANING("quit after a project"), false},
        {autoExpandFolders, Type::Switch, MEANING("show every folder of a template opened"), false},
        {requireAdminPassword, Type::Switch, MEANING("ask for a password at the start"), true},
        {requireAdminPasswordForEditing, Type::Switch, MEANING("ask before templates are changed"), true},
        {requireAdminPasswordForPrefs, Type::Switch, MEANING("ask before settings are changed"), true},
    };
#undef MEANING
    return table;
}

std::optional<QVariant> valueFromText(const Known &setting, const QString &text, QString &problem)
{
    using Type = Known::Type;
    const auto say = [&](const char *sentence) {
        problem = QCoreApplication::translate("Settings", sentence);
        return std::nullopt;
    };
    static const QStringList on{"1", "on", "yes", "true"};
    static const QStringList off{"0", "off", "no", "false"};
    const bool isOn = on.contains(text.toLower());
    switch (setting.type) {
    case Type::Text:
        return text;
    case Type::Path:
        return text.startsWith(u'/') ? std::optional<QVariant>(text)
                                     : say("A folder's whole path is needed, from the first slash on.");
    case Type::Switch:
    case Type::Boolean:
        if (!isOn && !off.contains(text.toLower()))
            return say("The value is on or off.");
        return setting.type == Type::Boolean ? QVariant(isOn) : QVariant(isOn ? 1LL : 0LL);
    case Type::Separator:
        return text.contains(u'/') || text.contains(u':') ? say("Slashes and colons cannot be in a folder's name.")
               : text.size() > 10                         ? say("At most ten characters.")
                                                          : std::optional<QVariant>(text);
    case Type::DateFormat:
        return platform::formatDate(text, std::time(nullptr)).trimmed().isEmpty() || !text.contains(u'%') ||
                       (text.endsWith(u'%') && !text.endsWith(QLatin1String("%%")))
                   ? say("This gives no date. %Y is the year, %m the month, %d the day.")
                   : std::optional<QVariant>(text);
    }
    return std::nullopt;
}

void registerDefaults()
{
    using Domain = VTLocalPaths::Domain;
    standard().registerDefaults({
        {filenameTemplate, shippedParameters()},
        {templateLocation,
         VTLocalPaths::appSupportDirectory(Domain::User) + QStringLiteral("/Vantrel/Tessaro/Templates")},
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
