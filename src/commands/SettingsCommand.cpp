// settings: what the preferences do, without a window.
#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/TerminalOutput.h"
#include "support/AdministratorQuestion.h"
#include "support/Settings.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QJsonObject>

using platform::Outcome;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SettingsCommand)
};

constexpr int keyColumn = 30;

int complainAboutKey(const QString &key)
{
    return complain(ExitStatus::wrongUsage,
                    Text::tr("There is no setting “%1”. Tessaro settings lists them.").arg(key));
}

/// A protection that is on is switched off only when an administrator agrees. The one of the start is switched on only
/// where rights can be had: else nothing would start any more.
bool mayChange(const settings::Setting &setting, bool isOffAfterwards)
{
    if (&setting == &settings::requireAdminPassword && !isOffAfterwards)
        return administratorAgrees();
    const bool isProtectedNow = setting.scope == settings::Scope::Machine && settings::standard().equalsOne(setting);
    return !isProtectedNow || !isOffAfterwards || administratorAgrees();
}

int refuseRights()
{
    return complain(ExitStatus::notOverwritten, Text::tr("Administrator rights are required here, and were refused."));
}

int finish(const Outcome &stored)
{
    return stored.ok() ? ExitStatus::done : complain(stored, Text::tr("The setting could not be stored."));
}

} // namespace

int commands::listSettings(const Invocation &invocation)
{
    QJsonObject object;
    QString lines;
    for (const settings::Setting *setting : settings::all()) {
        if (!setting->meaning)
            continue;
        const QVariant value = setting->value();
        object.insert(*setting, QJsonValue::fromVariant(value));
        lines += QStringLiteral("%1  %2  (%3)\n")
                     .arg(QString(*setting).leftJustified(keyColumn), value.toString(), settings::meaningOf(*setting));
    }
    if (invocation.has("--json"))
        print(object);
    else
        print(lines);
    return ExitStatus::done;
}

int commands::getSetting(const Invocation &invocation)
{
    const settings::Setting *setting = settings::forPeople(invocation.argument(0));
    if (!setting)
        return complainAboutKey(invocation.argument(0));
    print(setting->value().toString() + u'\n');
    return ExitStatus::done;
}

int commands::setSetting(const Invocation &invocation)
{
    const settings::Setting *setting = settings::forPeople(invocation.argument(0));
    if (!setting)
        return complainAboutKey(invocation.argument(0));
    settings::Facts facts;
    if (setting->type == settings::Type::TemplateName) {
        auto &store = VTDataController::sharedController();
        if (const Outcome read = store.populateTemplates(); !read.ok())
            return complain(read, Text::tr("The template library cannot be read."));
        facts.templates = store.templates();
    }
    const auto value = settings::checked(*setting, invocation.argument(1), facts);
    if (!value)
        return complain(value.outcome());
    if (!mayChange(*setting, *value == QVariant(0LL)))
        return refuseRights();
    return finish(setting->store(*value));
}

int commands::unsetSetting(const Invocation &invocation)
{
    const settings::Setting *setting = settings::forPeople(invocation.argument(0));
    if (!setting)
        return complainAboutKey(invocation.argument(0));
    if (!mayChange(*setting, true))
        return refuseRights();
    return finish(setting->reset());
}
