#include "support/Settings.h"

#include "platform/base/LocalTime.h"
#include "platform/base/NativePath.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileSystem.h"
#include "platform/files/WholeFile.h"
#include "support/StudioCopy.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"

#include <QCoreApplication>

using platform::Cause;
using platform::Outcome;
using platform::Result;

namespace settings {
namespace {

using Domain = VTLocalPaths::Domain;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Settings)
};

constexpr qsizetype longestSeparator = 10;

QVariant shippedParameters()
{
    const auto list = platform::readPropertyListFile(
        platform::ApplicationBundle::main().resource(QStringLiteral("Filename_Defaults.plist")));
    if (!list)
        VTLog::appendLog("Unable to read the shipped filename parameters: %@", list.outcome().description());
    return list.valueOr(QVariantList());
}

QVariant on()
{
    return 1LL;
}

QVariant minute()
{
    return 60LL;
}

QVariant yes()
{
    return true;
}

QVariant usersLibrary()
{
    return VTLocalPaths::appSupportDirectory(Domain::User) + QStringLiteral("/Vantrel/Tessaro/Templates");
}

QVariant usersDocuments()
{
    return VTLocalPaths::documentDirectory(Domain::User);
}

QVariant underscore()
{
    return QStringLiteral("_");
}

QVariant isoDate()
{
    return QStringLiteral("%Y-%m-%d");
}

QVariant editingTemplate()
{
    return QStringLiteral("Editing Template");
}

QString preferencesFile(Domain domain)
{
    return VTLocalPaths::prefsDirectory(domain) + QStringLiteral("/com.vantrel.Tessaro.plist");
}

Outcome refused(const QString &sentence)
{
    return Outcome::failure(Cause::Invalid, {}, sentence);
}

Result<QVariant> switchFrom(Type type, const QString &typed)
{
    static const QStringList onWords{"1", "on", "yes", "true"};
    static const QStringList offWords{"0", "off", "no", "false"};
    const QString word = typed.trimmed().toLower();
    const bool isOn = onWords.contains(word);
    if (!isOn && !offWords.contains(word))
        return refused(Text::tr("The value is on or off."));
    return type == Type::Boolean ? QVariant(isOn) : QVariant(isOn ? 1LL : 0LL);
}

Result<QVariant> pathFrom(const QString &typed)
{
    QString path = typed.trimmed();
    if (path == u"~" || path.startsWith(QLatin1String("~/")))
        path = VTLocalPaths::userDirectory() + path.mid(1);
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    if (!path.startsWith(u'/'))
        return refused(Text::tr("Please type the whole path, from the first slash on, or choose a folder."));
    if (platform::targetExists(path) && !platform::leadsToFolder(path))
        return refused(Text::tr("A file stands there. Please choose a folder."));
    return QVariant(path);
}

Result<QVariant> separatorFrom(const QString &typed)
{
    if (typed.contains(u'/') || typed.contains(u':'))
        return refused(Text::tr("Slashes and colons cannot be in a folder's name."));
    if (typed.size() > longestSeparator)
        return refused(Text::tr("At most ten characters."));
    return QVariant(typed);
}

Result<QVariant> dateFormatFrom(const QString &typed)
{
    switch (platform::problemOfDateFormat(typed)) {
    case platform::DateFormatProblem::None:
        return QVariant(typed);
    case platform::DateFormatProblem::NoDate:
        return refused(Text::tr("This gives no date. %Y is the year, %m the month, %d the day."));
    case platform::DateFormatProblem::CutOff:
        return refused(Text::tr("The percent sign at the end has no letter behind it."));
    case platform::DateFormatProblem::UnknownLetter:
        return refused(
            Text::tr("One of the percent signs has a letter behind it that stands for nothing. %Y is the year, "
                     "%m the month, %d the day."));
    }
    return refused({});
}

Result<QVariant> programFrom(const QString &typed)
{
    const QString path = typed.trimmed();
    if (path.isEmpty())
        return QVariant(path);
    if (path.startsWith(u'/') && platform::isExecutableFile(path))
        return QVariant(path);
    return refused(Text::tr("Please type the whole path of a program that may be run."));
}

constexpr qlonglong longestWait = 3600; // seconds

Result<QVariant> secondsFrom(const QString &typed)
{
    bool isNumber = false;
    const qlonglong seconds = typed.trimmed().toLongLong(&isNumber);
    if (!isNumber || seconds < 1 || seconds > longestWait)
        return refused(Text::tr("The value is a number of seconds, from 1 to %1.").arg(longestWait));
    return QVariant(seconds);
}

} // namespace

// What they mean to people is translated in the context "Settings".
const TextSetting templateLocation{
    {"templateLocation", Type::Path, QT_TRANSLATE_NOOP("Settings", "folder of the template library"), usersLibrary}};
const TextSetting sharedSetup{
    {"sharedSetup", Type::PathOrNone, QT_TRANSLATE_NOOP("Settings", "folder of the set-up that your studio shares")}};
const TextSetting defaultTemplate{
    {"defaultTemplate", Type::TemplateName, QT_TRANSLATE_NOOP("Settings", "template of new projects")}};
const SwitchSetting useFixedProjectLocation{{"useFixedProjectLocation", Type::Switch,
                                             QT_TRANSLATE_NOOP("Settings", "create every project in one folder"),
                                             nullptr, Scope::User, On::WhenOne}};
const TextSetting fixedProjectLocationPath{
    {"fixedProjectLocationPath", Type::Path, QT_TRANSLATE_NOOP("Settings", "that folder"), usersDocuments}};
const TextSetting separatorChar{{"separatorChar", Type::Separator,
                                 QT_TRANSLATE_NOOP("Settings", "between the values of one folder level"), underscore}};
const TextSetting dateFormat{
    {"dateFormat", Type::DateFormat, QT_TRANSLATE_NOOP("Settings", "how dates are written"), isoDate}};
const SwitchSetting strictNaming{
    {"strictNaming", Type::Boolean, QT_TRANSLATE_NOOP("Settings", "only letters, digits, - and _")}};
const SwitchSetting autoOpenFolder{
    {"autoOpenFolder", Type::Switch, QT_TRANSLATE_NOOP("Settings", "open a new project's folder"), on}};
const SwitchSetting autoQuit{{"autoQuit", Type::Switch, QT_TRANSLATE_NOOP("Settings", "quit after a project")}};
const SwitchSetting autoExpandFolders{{"autoExpandFolders", Type::Switch,
                                       QT_TRANSLATE_NOOP("Settings", "show every folder of a template opened"), on,
                                       Scope::User, On::WhenOne}};
const TextSetting afterCreation{
    {"afterCreation", Type::Program,
     QT_TRANSLATE_NOOP("Settings", "program that gets each new project as JSON on its standard input")}};
const NumberSetting afterCreationSeconds{
    {"afterCreationSeconds", Type::Seconds, QT_TRANSLATE_NOOP("Settings", "how many seconds it may take"), minute}};
const SwitchSetting requireAdminPassword{{"requireAdminPassword", Type::Switch,
                                          QT_TRANSLATE_NOOP("Settings", "ask for a password at the start"), nullptr,
                                          Scope::Machine, On::WhenOne}};
const SwitchSetting requireAdminPasswordForEditing{{"requireAdminPasswordForEditing", Type::Switch,
                                                    QT_TRANSLATE_NOOP("Settings", "ask before templates are changed"),
                                                    nullptr, Scope::Machine, On::WhenOne}};
const SwitchSetting requireAdminPasswordForPrefs{{"requireAdminPasswordForPrefs", Type::Switch,
                                                  QT_TRANSLATE_NOOP("Settings", "ask before settings are changed"),
                                                  nullptr, Scope::Machine, On::WhenOne}};
const Setting filenameTemplate{"filenameTemplate", Type::Value, nullptr, shippedParameters};
const TextSetting selectedProjectTemplate{{"selectedProjectTemplate", Type::Text, nullptr, editingTemplate}};
const SwitchSetting firstRun{{"firstRun", Type::Boolean, nullptr, yes}};
const Setting studioParameterValues{"studioParameterValues", Type::Value};
const Setting ownParameterValues{"ownParameterValues", Type::Value};
const Setting recentLocations{"recentLocations", Type::Value};
const Setting pinnedLocations{"pinnedLocations", Type::Value};
const Setting mainWindowPlace{"mainWindowPlace", Type::Value};
const Setting preferencesPlace{"preferencesPlace", Type::Value};
const SwitchSetting showRules{{"showRules", Type::Boolean}};
const SwitchSetting showResult{{"showResult", Type::Boolean}};
const NumberSetting templateListWidth{{"templateListWidth", Type::Number}};
const Setting webAddresses{"webAddresses", Type::Value};
const Setting launch{"launch", Type::Value};
const Setting exit{"exit", Type::Value};

const QList<const Setting *> &all()
{
    static const QList<const Setting *> rows{&templateLocation,
                                             &sharedSetup,
                                             &defaultTemplate,
                                             &useFixedProjectLocation,
                                             &fixedProjectLocationPath,
                                             &separatorChar,
                                             &dateFormat,
                                             &strictNaming,
                                             &autoOpenFolder,
                                             &autoQuit,
                                             &autoExpandFolders,
                                             &afterCreation,
                                             &afterCreationSeconds,
                                             &requireAdminPassword,
                                             &requireAdminPasswordForEditing,
                                             &requireAdminPasswordForPrefs,
                                             &filenameTemplate,
                                             &studioParameterValues,
                                             &selectedProjectTemplate,
                                             &firstRun,
                                             &recentLocations,
                                             &pinnedLocations,
                                             &mainWindowPlace,
                                             &preferencesPlace,
                                             &showResult,
                                             &showRules,
                                             &templateListWidth,
                                             &webAddresses,
                                             &launch,
                                             &exit};
    return rows;
}

const Setting *forPeople(const QString &key)
{
    for (const Setting *setting : all()) {
        if (setting->meaning && key == QLatin1String(setting->key))
            return setting;
    }
    return nullptr;
}

QString meaningOf(const Setting &setting)
{
    return Text::tr(setting.meaning);
}

QVariant Setting::value() const
{
    return settings::standard().value(*this);
}

bool Setting::isLocked() const
{
    return settings::standard().isLocked(*this);
}

QString lockedText()
{
    return Text::tr("Set by your studio");
}

Outcome Setting::store(const QVariant &value) const
{
    if (isLocked())
        return Outcome::failure(Cause::Declined, *this, lockedText());
    return scope == Scope::Machine ? settings::standard().setMachineWideValue(*this, value)
                                   : settings::standard().setValue(*this, value);
}

Outcome Setting::change(const platform::UserDefaults::Change &change) const
{
    return settings::standard().changeValue(*this, change);
}

Outcome Setting::reset() const
{
    if (isLocked())
        return Outcome::failure(Cause::Declined, *this, lockedText());
    return scope == Scope::Machine ? settings::standard().setMachineWideValue(*this, {})
                                   : settings::standard().removeValue(*this);
}

QString TextSetting::text() const
{
    return settings::standard().string(*this);
}

bool SwitchSetting::isOn() const
{
    if (on == On::WhenOne)
        return settings::standard().equalsOne(*this);
    return type == Type::Boolean ? settings::standard().boolean(*this) : settings::standard().integer(*this) != 0;
}

QVariant SwitchSetting::valueFor(bool wanted) const
{
    return type == Type::Boolean ? QVariant(wanted) : QVariant(wanted ? 1LL : 0LL);
}

Outcome SwitchSetting::turn(bool wanted) const
{
    return store(valueFor(wanted));
}

qlonglong NumberSetting::number() const
{
    return settings::standard().integer(*this);
}

Result<QVariant> checkedAs(Type type, const QString &typed)
{
    switch (type) {
    case Type::Path:
        return pathFrom(typed);
    case Type::PathOrNone:
        return typed.trimmed().isEmpty() ? QVariant(QString()) : pathFrom(typed);
    case Type::Switch:
    case Type::Boolean:
        return switchFrom(type, typed);
    case Type::Separator:
        return separatorFrom(typed);
    case Type::DateFormat:
        return dateFormatFrom(typed);
    case Type::Program:
        return programFrom(typed);
    case Type::Seconds:
        return secondsFrom(typed);
    default:
        return QVariant(typed);
    }
}

Result<QVariant> checked(const Setting &setting, const QString &typed, const Facts &facts)
{
    if (setting.type == Type::TemplateName && !facts.templates.contains(typed))
        return refused(Text::tr("There is no template “%1”. There are: %2.")
                           .arg(typed, facts.templates.join(QStringLiteral(", "))));
    return checkedAs(setting.type, typed);
}

platform::UserDefaults &standard()
{
    static auto *defaults = [] {
        auto *made = new platform::UserDefaults(preferencesFile(Domain::User), preferencesFile(Domain::Local),
                                                [](const QString &problem) { VTLog::appendLog("%@", problem); });
        QStringList protections;
        for (const Setting *setting : all()) {
            if (setting->scope == Scope::Machine)
                protections.append(*setting);
        }
        protections.append(sharedSetup);
        made->letMachineDecide(protections);
        made->setShared(studio::copiedFile());
        return made;
    }();
    return *defaults;
}

bool holdForEveryUser()
{
    const QString file = preferencesFile(Domain::Local);
    return platform::isWritable(platform::targetExists(file) ? file : platform::parentPath(file));
}

QString userFile()
{
    return preferencesFile(Domain::User);
}

void registerDefaults()
{
    QVariantMap defaults;
    for (const Setting *setting : all()) {
        if (setting->standard)
            defaults.insert(*setting, setting->standard());
    }
    standard().registerDefaults(defaults);
}

} // namespace settings
