// setup: what a studio shares with many computers.
#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/TerminalOutput.h"
#include "parameters/ParameterStore.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "support/JsonPaths.h"
#include "support/Settings.h"
#include "support/StudioCopy.h"
#include "templates/StudioLibrary.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

using platform::Outcome;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SetupCommand)
};

constexpr std::chrono::seconds patience{2};
/// A new server may be asleep.
constexpr std::chrono::seconds patienceToBegin{15};

QString setForAll()
{
    return Text::tr("It is set for every user of this computer; an administrator takes it away: %1")
        .arg(settings::sharedSetup.text());
}

QStringList lockedNow()
{
    QStringList locked;
    for (const QString &key : studio::sharedKeys()) {
        if (settings::standard().isLocked(key))
            locked.append(key);
    }
    return locked;
}

/// What everybody starts with, without what this user has typed. Defaults are in it, too: what is locked has a value.
QVariantMap sharedSettings(const QStringList &locked)
{
    QVariantMap shared;
    for (const settings::Setting *setting : settings::all()) {
        // A folder that nobody has chosen lies in this user's own home.
        const bool isChosen = settings::standard().usersValue(*setting).isValid() || locked.contains(*setting) ||
                              setting->type != settings::Type::Path;
        if (!studio::sharedKeys().contains(*setting) || !isChosen)
            continue;
        const QVariant value = setting->value();
        if (setting->type == settings::Type::Switch || setting->type == settings::Type::Boolean)
            shared.insert(*setting, static_cast<const settings::SwitchSetting *>(setting)->valueFor(
                                        static_cast<const settings::SwitchSetting *>(setting)->isOn()));
        else
            shared.insert(*setting, value.isValid() ? value : QVariant(QString()));
    }
    shared.insert(settings::filenameTemplate, variantFromParameters(withoutOwnValues(storedParameters())));
    return shared;
}

/// Null when one of them cannot be locked.
std::optional<QStringList> wantedLocks(const QString &given)
{
    if (given.isNull())
        return QStringList{settings::filenameTemplate, settings::separatorChar, settings::dateFormat,
                           settings::strictNaming};
    QStringList keys;
    for (const QString &word : given.split(u',', Qt::SkipEmptyParts)) {
        const QString key = word.trimmed() == u"parameters" ? QString(settings::filenameTemplate) : word.trimmed();
        if (!studio::sharedKeys().contains(key) && key != u"none")
            return std::nullopt;
        if (key != u"none")
            keys.append(key);
    }
    return keys;
}

} // namespace

void tellOfStudio()
{
    if (settings::sharedSetup.text().isEmpty() && !studio::isInForce())
        return;
    const studio::Followed followed = studio::followInTime(patience);
    if (!followed.outcome.ok())
        complain(ExitStatus::done, studio::sentenceOf(followed) + u'\n' + followed.outcome.description());
}

int commands::showSetup(const Invocation &invocation)
{
    tellOfStudio();
    const QString folder = settings::sharedSetup.text();
    if (invocation.has("--json")) {
        QJsonObject object{{"inForce", studio::isInForce()},
                           {"templates", studio::decidesTemplates()},
                           {"locked", QJsonArray::fromStringList(lockedNow())},
                           {"lastChange", studio::lastChange().toString(Qt::ISODate)}};
        insertPath(object, QStringLiteral("folder"), folder);
        print(object);
        return ExitStatus::done;
    }
    if (folder.isEmpty())
        print((studio::isInForce() ? Text::tr("The set-up was left; it counts until whatever uses it has finished.")
                                   : Text::tr("No set-up is shared.")) +
              u'\n');
    else
        print(Text::tr("Folder: %1\nTemplates: %2\nLocked: %3\nLast change: %4")
                  .arg(folder, studio::decidesTemplates() ? Text::tr("the studio’s") : Text::tr("your own"),
                       lockedNow().join(QStringLiteral(", ")), studio::lastChange().toString(Qt::ISODate)) +
              u'\n');
    return ExitStatus::done;
}

int commands::useSetup(const Invocation &invocation)
{
    const auto folder = settings::checked(settings::sharedSetup, platform::absolutePath(invocation.argument(0)));
    if (!folder)
        return complain(folder.outcome());
    auto &standard = settings::standard();
    const bool forAll = invocation.has("--all-users");
    const bool isMachines = standard.isSetForMachine(settings::sharedSetup);
    if (isMachines && !forAll)
        return complain(ExitStatus::failed, setForAll());
    const QVariant machines = isMachines ? settings::sharedSetup.value() : QVariant();
    const QVariant own = standard.usersValue(settings::sharedSetup);
    const Outcome stored = forAll ? standard.setMachineWideValue(settings::sharedSetup, *folder)
                                  : standard.setValue(settings::sharedSetup, *folder);
    if (!stored.ok())
        return complain(stored, Text::tr("The setting could not be stored."));
    const studio::Followed followed = studio::followInTime(patienceToBegin);
    if (followed.isInPart)
        complain(ExitStatus::done, studio::sentenceOf(followed) + u'\n' + followed.outcome.description());
    if (followed.outcome.ok() || followed.isInPart)
        return ExitStatus::done;
    // All stood there a moment ago; of what the folder held, some may have come.
    if (forAll)
        static_cast<void>(standard.setMachineWideValue(settings::sharedSetup, machines));
    static_cast<void>(own.isValid() ? standard.setValue(settings::sharedSetup, own)
                                    : standard.removeValue(settings::sharedSetup));
    static_cast<void>(studio::followInTime(patience));
    const bool isAtWork = followed.outcome.is(platform::Cause::Busy);
    return complain(followed.outcome, isAtWork ? Text::tr("Another program takes over or uses a set-up just now. "
                                                          "Please try again in a moment.")
                                               : Text::tr("This folder holds no set-up that can be used. Tessaro "
                                                          "setup export writes one."));
}

int commands::leaveSetup(const Invocation &)
{
    const Outcome stored = settings::standard().removeValue(settings::sharedSetup);
    if (!stored.ok())
        return complain(stored, Text::tr("The setting could not be stored."));
    if (!settings::sharedSetup.text().isEmpty())
        return complain(ExitStatus::failed, setForAll());
    const studio::Followed left = platform::resultInBackground([] { return studio::follow(); });
    return left.outcome.ok() ? ExitStatus::done : complain(left.outcome);
}

int commands::exportSetup(const Invocation &invocation)
{
    const auto locked = wantedLocks(invocation.value("--lock"));
    if (!locked)
        return complain(ExitStatus::wrongUsage, Text::tr("What can be locked: parameters, %1; or none.")
                                                    .arg(studio::sharedKeys().mid(1).join(QStringLiteral(", "))));
    const QString folder = platform::absolutePath(invocation.argument(0));
    if (!platform::leadsToFolder(folder))
        return complain(ExitStatus::failed, Text::tr("The folder %1 does not exist.").arg(folder));
    // Before the first start there is no library yet.
    if (const Outcome library = VTDataController::sharedController().populateTemplates(); !library.ok())
        return complain(library, Text::tr("The template library cannot be read."));
    const QVariantMap shared = sharedSettings(*locked);
    const Outcome written = platform::resultInBackground([&] { return studio::exportSetup(folder, shared, *locked); });
    if (!written.ok())
        return complain(written, Text::tr("The set-up could not be written."));
    print(platform::joined(folder, studio::setupFile) + u'\n');
    return ExitStatus::done;
}
