// template rules: what a template says of its items beside its Files, as JSON.
#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/TerminalOutput.h"
#include "creation/CreationPlan.h"
#include "platform/base/Console.h"
#include "platform/base/NativePath.h"
#include "platform/files/WholeFile.h"
#include "templates/EditingGuard.h"
#include "templates/RuleFile.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

using platform::Cause;
using platform::Outcome;
using platform::Result;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RulesCommand)
};

/// In bytes: rules of many thousand items.
constexpr qint64 largestRules = qint64{16} * 1024 * 1024;
/// JSON holds no bytes: a path that is no UTF-8 is percent-encoded under this key.
const QString encodedPath = QStringLiteral("pathPercentEncoded");

QVariantMap withPathsForJson(QVariantMap stored)
{
    QVariantList entries = stored.value(QLatin1String(rulefile::items)).toList();
    for (QVariant &entry : entries) {
        QVariantMap map = entry.toMap();
        if (map.value(QLatin1String(rulefile::path)).typeId() != QMetaType::QByteArray)
            continue;
        const QByteArray path = map.take(QLatin1String(rulefile::path)).toByteArray();
        map.insert(encodedPath, QString::fromLatin1(path.toPercentEncoding("/")));
        entry = map;
    }
    if (!entries.isEmpty())
        stored.insert(QLatin1String(rulefile::items), entries);
    return stored;
}

QVariantMap withPathsFromJson(QVariantMap given)
{
    QVariantList entries = given.value(QLatin1String(rulefile::items)).toList();
    for (QVariant &entry : entries) {
        QVariantMap map = entry.toMap();
        if (!map.contains(encodedPath))
            continue;
        const QByteArray path = QByteArray::fromPercentEncoding(map.take(encodedPath).toString().toLatin1());
        entry = rulefile::withPath(map, platform::fromNative(path));
    }
    if (!entries.isEmpty())
        given.insert(QLatin1String(rulefile::items), entries);
    return given;
}

Result<TemplateRules> rulesFromJson(const QByteArray &json)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return Outcome::failure(
            Cause::Invalid, {},
            Text::tr("This is no JSON: %1, at byte %2.").arg(error.errorString()).arg(error.offset));
    if (!document.isObject())
        return Outcome::failure(Cause::Invalid, {}, Text::tr("Rules are one JSON object: { … }."));
    return rulesFromVariant(withPathsFromJson(document.object().toVariantMap()));
}

/// What is damaged is kept beside the new ones.
Outcome store(const QString &bundle, const TemplateRules &rules)
{
    const QVariantMap wanted = variantFromRules(rules);
    if (rulefile::read(bundle).outcome().is(Cause::Damaged)) {
        const Result<QString> aside = rulefile::setAside(bundle);
        if (!aside)
            return aside.outcome();
        complain(ExitStatus::done, Text::tr("The old rules were damaged; they are kept as %1.").arg(*aside));
    }
    return rulefile::change(bundle, [&](const QVariantMap &) { return Result<QVariantMap>(wanted); });
}

int takeRules(const QString &bundle, const QString &file)
{
    const Result<QByteArray> json = file == u"-" ? platform::readStandardInput(largestRules)
                                                 : platform::readFile(platform::absolutePath(file), largestRules);
    if (!json)
        return complain(json.outcome(), Text::tr("The rules cannot be read."));
    const Result<TemplateRules> rules = rulesFromJson(*json);
    if (!rules)
        return complain(ExitStatus::wrongUsage,
                        Text::tr("The rules were not changed.") + u'\n' + rules.outcome().sentence());
    const Outcome stored = store(bundle, *rules);
    return stored.ok() ? ExitStatus::done : complain(stored);
}

QStringList goneItems(const QString &name, const TemplateRules &rules)
{
    const std::atomic<bool> never = false;
    const platform::Tree tree = platform::readTree(
        VTDataController::filesFolder(name), [](platform::TreeFolder &) {}, never);
    return RuledItems(tree, rules).gone();
}

int removeGone(const QString &bundle, const QStringList &gone)
{
    const Outcome stored = rulefile::change(bundle, [&](QVariantMap rules) -> Result<QVariantMap> {
        for (const QString &path : gone)
            rules = rulefile::afterRemoval(rules, path);
        return rules;
    });
    return stored.ok() ? ExitStatus::done : complain(stored);
}

} // namespace

int commands::templateRules(const Invocation &invocation)
{
    const QString name = invocation.argument(0);
    auto &library = VTDataController::sharedController();
    if (const Outcome read = library.populateTemplates(); !read.ok())
        return complain(read);
    if (!library.templates().contains(name))
        return complain(ExitStatus::wrongUsage, Text::tr("There is no template “%1”.").arg(name));
    const QString bundle = VTDataController::bundlePath(name);
    const bool changes = invocation.has("--set") || invocation.has("--gone");
    if (changes && !editingIsAllowed())
        return complain(ExitStatus::notOverwritten,
                        Text::tr("Administrator rights are required here, and were refused."));
    if (invocation.has("--set")) {
        if (const int status = takeRules(bundle, invocation.value("--set")); status != ExitStatus::done)
            return status;
    }
    const Result<TemplateRules> rules = readRules(bundle);
    if (!rules)
        return complain(rules.outcome(), Text::tr("The template’s rules cannot be read; --set puts others in their "
                                                  "place and keeps them beside."));
    const QStringList gone = goneItems(name, *rules);
    if (invocation.has("--gone"))
        return removeGone(bundle, gone);
    for (const QString &path : gone)
        complain(ExitStatus::done, Text::tr("There is a rule for an item that is gone: %1").arg(path));
    if (!invocation.has("--set"))
        print(QJsonObject::fromVariantMap(withPathsForJson(variantFromRules(*rules))));
    return ExitStatus::done;
}
