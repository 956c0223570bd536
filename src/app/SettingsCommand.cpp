#include "app/SettingsCommand.h"

#include "parameters/ParameterList.h"
#include "parameters/ProjectNaming.h"
#include "platform/Console.h"
#include "platform/NativePath.h"
#include "platform/PropertyList.h"
#include "support/VTAuthorization.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("SettingsCommand", source);
}

struct Action
{
    int least;
    int most;
    bool changes;
};
const QHash<QString, Action> settingsActions{{"get", {1, 1, false}}, {"set", {2, 2, true}}, {"unset", {1, 1, true}}};
const QHash<QString, Action> parameterActions{{"add", {1, 3, true}},     {"remove", {1, 1, true}},
                                              {"move", {2, 2, true}},    {"set", {3, 3, true}},
                                              {"export", {1, 1, false}}, {"import", {1, 1, true}}};

const QHash<QString, Action> &actionsOf(const CommandRequest &request)
{
    return request.verb == CommandRequest::Verb::Settings ? settingsActions : parameterActions;
}

/// The words by which kinds are called here, in every language.
const QHash<QString, FilenameParameter::Kind> kindWords{{"text", FilenameParameter::Kind::Text},
                                                        {"counter", FilenameParameter::Kind::Counter},
                                                        {"date", FilenameParameter::Kind::Date},
                                                        {"user", FilenameParameter::Kind::UserName},
                                                        {"choice", FilenameParameter::Kind::Choice}};
const QHash<QString, QString> keyWords{{"title", "title"},   {"kind", "type"},           {"default", "defaultVal"},
                                       {"folder", "folder"}, {"history", "saveHistory"}, {"required", "disallowEmpty"},
                                       {"locked", "locked"}};

/// The value of a parameter's key from its word; nothing when it is none.
std::optional<QVariant> entryFromWord(const QString &key, const QString &word)
{
    if (key == u"title" || key == u"default")
        return word;
    if (key == u"kind") {
        const auto kind = kindWords.constFind(word);
        return kind == kindWords.cend() ? std::nullopt : std::optional<QVariant>(static_cast<qlonglong>(*kind));
    }
    QString problem;
    const auto type = key == u"locked" ? settings::Known::Type::Switch : settings::Known::Type::Boolean;
    return settings::valueFromText({key, type, "", false}, word, problem);
}

/// What the window asks for before it opens its preferences, and before a protection is switched off.
bool administratorAgrees()
{
    auto &authorization = VTAuthorization::sharedController();
    authorization.authEnd();
    return authorization.authStart();
}

} // namespace

QString SettingsCommand::problemOf(const CommandRequest &request)
{
    if (request.arguments.isEmpty())
        return {};
    const QString what = request.arguments.constFirst();
    const auto action = actionsOf(request).constFind(what);
    if (action == actionsOf(request).cend())
        return text("There is no “%1” here.").arg(platform::forDisplay(what));
    const auto given = static_cast<int>(request.arguments.size()) - 1;
    return given < action->least || given > action->most
               ? text("“%1” was given %2 words, which is not what it takes.").arg(what).arg(given)
               : QString();
}

int SettingsCommand::run()
{
    if (m_request.arguments.isEmpty())
        return list();
    const QString what = m_request.arguments.constFirst();
    const bool isGuarded = settings::standard().equalsOne(settings::requireAdminPasswordForPrefs);
    if (actionsOf(m_request)[what].changes && isGuarded && !administratorAgrees())
        return refuse(ExitStatus::notOverwritten, text("Administrator rights are required here, and were refused."));
    if (m_request.verb == CommandRequest::Verb::Settings)
        return what == u"get" ? get() : what == u"set" ? set() : unset();
    static const QHash<QString, int (SettingsCommand::*)()> table{
        {"add", &SettingsCommand::add},           {"remove", &SettingsCommand::remove},
        {"move", &SettingsCommand::move},         {"set", &SettingsCommand::change},
        {"export", &SettingsCommand::exportList}, {"import", &SettingsCommand::importList}};
    return (this->*table[what])();
}

int SettingsCommand::refuse(int status, const QString &problem) const
{
    platform::writeToStandardError(problem + u'\n');
    return status;
}

const settings::Known *SettingsCommand::known(const QString &key) const
{
    for (const settings::Known &setting : settings::known()) {
        if (setting.key == key)
            return &setting;
    }
    refuse(ExitStatus::wrongUsage, text("There is no setting “%1”. Tessaro settings lists them.").arg(key));
    return nullptr;
}

int SettingsCommand::list()
{
    QJsonObject object;
    QString lines;
    for (const settings::Known &setting : settings::known()) {
        const QVariant value = settings::standard().value(setting.key);
        object.insert(setting.key, QJsonValue::fromVariant(value));
        lines += QStringLiteral("%1  %2  (%3)\n")
                     .arg(setting.key.leftJustified(30), value.toString(),
                          QCoreApplication::translate("Settings", setting.meaning));
    }
    platform::writeToStandardOutput(m_request.json ? QString::fromUtf8(QJsonDocument(object).toJson()) : lines);
    return ExitStatus::done;
}

int SettingsCommand::get()
{
    const settings::Known *setting = known(argument(0));
    if (!setting)
        return ExitStatus::wrongUsage;
    platform::writeToStandardOutput(settings::standard().value(setting->key).toString() + u'\n');
    return ExitStatus::done;
}

int SettingsCommand::set()
{
    const settings::Known *setting = known(argument(0));
    if (!setting)
        return ExitStatus::wrongUsage;
    QString problem;
    const auto value = settings::valueFromText(*setting, argument(1), problem);
    if (!value)
        return refuse(ExitStatus::wrongUsage, problem);
    auto &defaults = settings::standard();
    if (!setting->isProtection)
        return defaults.setValue(setting->key, *value) ? ExitStatus::done : ExitStatus::failed;
    if (*value == QVariant(0LL) && defaults.equalsOne(setting->key) && !administratorAgrees())
        return refuse(ExitStatus::notOverwritten, text("Administrator rights are required here, and were refused."));
    return defaults.setMachineWideValue(setting->key, *value) ? ExitStatus::done : ExitStatus::failed;
}

int SettingsCommand::unset()
{
    const settings::Known *setting = known(argument(0));
    if (!setting)
        return ExitStatus::wrongUsage;
    auto &defaults = settings::standard();
    if (setting->isProtection && defaults.equalsOne(setting->key) && !administratorAgrees())
        return refuse(ExitStatus::notOverwritten, text("Administrator rights are required here, and were refused."));
    return defaults.removeValue(setting->key) ? ExitStatus::done : ExitStatus::failed;
}

std::optional<int> SettingsCommand::rowOf(const FilenameParameters &list, const QString &title) const
{
    QList<int> rows;
    for (int row = 0; row < list.size(); ++row) {
        if (list[row].title() == title)
            rows.append(row);
    }
    if (rows.size() == 1)
        return rows.first();
    refuse(ExitStatus::wrongUsage,
           (rows.isEmpty() ? text("There is no parameter “%1”.")
                           : text("There are several parameters “%1”. Please give them titles of "
                                  "their own, in the window."))
               .arg(title));
    return std::nullopt;
}

int SettingsCommand::store(const FilenameParameters &list) const
{
    return settings::standard().setValue(settings::filenameTemplate, variantFromParameters(list)) ? ExitStatus::done
                                                                                                  : ExitStatus::failed;
}

int SettingsCommand::add()
{
    FilenameParameters list = editor::withNewParameter(storedParameters(), argument(0));
    const int row = static_cast<int>(list.size()) - 1;
    if (const QString kind = argument(1); !kind.isNull()) {
        const auto value = entryFromWord("kind", kind);
        if (!value)
            return refuse(ExitStatus::wrongUsage, text("“%1” is no kind of parameter.").arg(kind));
        list = editor::withEntry(list, row, "type", *value);
    }
    if (const QString value = argument(2); !value.isNull()) {
        list = editor::withEntry(list, row, "defaultVal", value);
        list = editor::withEntry(list, row, "val", list[row].choices().value(0, value));
    }
    return store(list);
}

int SettingsCommand::remove()
{
    const FilenameParameters list = storedParameters();
    const auto row = rowOf(list, argument(0));
    if (!row)
        return ExitStatus::wrongUsage;
    if (!m_request.yes)
        return refuse(ExitStatus::notOverwritten,
                      text("Nothing was removed. This cannot be undone; say --yes to do it."));
    return store(editor::without(list, {*row}));
}

int SettingsCommand::move()
{
    FilenameParameters list = storedParameters();
    const auto row = rowOf(list, argument(0));
    bool isNumber = false;
    const int position = argument(1).toInt(&isNumber);
    if (!row)
        return ExitStatus::wrongUsage;
    if (!isNumber || position < 1 || position > list.size())
        return refuse(ExitStatus::wrongUsage, text("The position is a number from 1 to %1.").arg(list.size()));
    list.move(*row, position - 1);
    return store(list);
}

int SettingsCommand::change()
{
    const FilenameParameters list = storedParameters();
    const auto row = rowOf(list, argument(0));
    if (!row)
        return ExitStatus::wrongUsage;
    const QString key = argument(1);
    const auto value = keyWords.contains(key) ? entryFromWord(key, argument(2)) : std::nullopt;
    if (!value)
        return refuse(ExitStatus::wrongUsage, keyWords.contains(key)
                                                  ? text("“%1” cannot be “%2”.").arg(key, argument(2))
                                                  : text("A parameter has no “%1”.").arg(key));
    return store(editor::withEntry(list, *row, keyWords[key], *value));
}

int SettingsCommand::exportList()
{
    const QByteArray bytes = platform::writePropertyList(variantFromParameters(storedParameters()));
    QSaveFile file(argument(0));
    if (!bytes.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return ExitStatus::done;
    return refuse(ExitStatus::failed, text("%1 cannot be written: %2").arg(argument(0), file.errorString()));
}

int SettingsCommand::importList()
{
    QFile file(argument(0));
    if (!file.open(QIODevice::ReadOnly))
        return refuse(ExitStatus::failed, text("%1 cannot be read: %2").arg(argument(0), file.errorString()));
    const auto list = platform::readPropertyList(file.readAll());
    const QString problem = list ? editor::problemOf(*list) : text("The file is not a property list.");
    if (!problem.isNull())
        return refuse(ExitStatus::failed, problem);
    if (!m_request.yes)
        return refuse(ExitStatus::notOverwritten,
                      text("Nothing was changed. The list would be replaced; say --yes to do it."));
    return store(parametersFromVariant(*list));
}
