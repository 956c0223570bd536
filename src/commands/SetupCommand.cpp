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

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>

using platform::Outcome;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SetupCommand)
};

QString unreachable(const Outcome &why)
{
    const QString copy =
        studio::isInForce()
            ? Text::tr("The copy of %1 is used.").arg(QLocale().toString(studio::lastChange(), QLocale::ShortFormat))
            : Text::tr("There is no copy yet; your own set-up is used.");
    return Text::tr("The studio’s set-up cannot be reached.") + u' ' + copy + u'\n' + why.description();
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

/// What everybody starts with, without what this user has typed.
QVariantMap sharedSettings()
{
    QVariantMap shared;
    for (const QString &key : studio::sharedKeys())
        shared.insert(key, settings::standard().value(key));
    shared.insert(settings::strictNaming, settings::strictNaming.valueFor(settings::strictNaming.isOn()));
    shared.insert(settings::filenameTemplate, variantFromParameters(withoutOwnValues(storedParameters())));
    for (auto entry = shared.begin(); entry != shared.end();)
        entry = entry->isValid() ? std::next(entry) : shared.erase(entry);
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
    constexpr std::chrono::seconds patience{2};
    const auto followed = std::make_shared<studio::Followed>();
    const bool isOver = platform::performWithin(
        patience, [followed] { *followed = studio::follow(); }, [] {});
    const Outcome silence = Outcome::failure(platform::Cause::Unreachable, settings::sharedSetup.text());
    if (const Outcome &outcome = isOver ? followed->outcome : silence;
        !outcome.ok() && !outcome.is(platform::Cause::Busy))
        complain(ExitStatus::done, unreachable(outcome));
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
        print(Text::tr("No set-up is shared.") + u'\n');
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
    const bool forAll = invocation.has("--all-users");
    const QVariant before = settings::sharedSetup.value();
    const auto put = [&](const QVariant &value) {
        return forAll ? settings::standard().setMachineWideValue(settings::sharedSetup, value)
                      : settings::standard().setValue(settings::sharedSetup, value);
    };
    if (const Outcome stored = put(*folder); !stored.ok())
        return complain(stored, Text::tr("The setting could not be stored."));
    const studio::Followed followed = platform::resultInBackground([] { return studio::follow(); });
    if (followed.outcome.ok())
        return ExitStatus::done;
    static_cast<void>(put(before)); // it stood there a moment ago
    return complain(followed.outcome, Text::tr("This folder holds no set-up that can be used. Tessaro setup export "
                                               "writes one."));
}

int commands::leaveSetup(const Invocation &)
{
    const Outcome stored = settings::standard().removeValue(settings::sharedSetup);
    if (!stored.ok())
        return complain(stored, Text::tr("The setting could not be stored."));
    if (!settings::sharedSetup.text().isEmpty())
        return complain(ExitStatus::failed, Text::tr("It is set for every user of this computer; an administrator "
                                                     "takes it away: %1")
                                                .arg(settings::sharedSetup.text()));
    const studio::Followed left = studio::follow();
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
    const QVariantMap shared = sharedSettings();
    const Outcome written = platform::resultInBackground([&] { return studio::exportSetup(folder, shared, *locked); });
    if (!written.ok())
        return complain(written, Text::tr("The set-up could not be written."));
    print(platform::joined(folder, studio::setupFile) + u'\n');
    return ExitStatus::done;
}
