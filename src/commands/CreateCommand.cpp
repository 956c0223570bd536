#include "commands/CreateCommand.h"

#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/TerminalOutput.h"
#include "commands/TreeDrawing.h"
#include "creation/Unfinished.h"
#include "parameters/ParameterStore.h"
#include "parameters/ProjectNaming.h"
#include "parameters/ValueRules.h"
#include "platform/base/Interruption.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "support/Settings.h"
#include "support/VTFileManager.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "templates/TemplateChoice.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

using platform::joined;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CreateCommand)
};

QString listed(const QStringList &names)
{
    return names.isEmpty() ? Text::tr("There are none.")
                           : Text::tr("There are: %1.").arg(names.join(QStringLiteral(", ")));
}

QString remarkText(const PlanItem &item)
{
    switch (item.remark) {
    case PlanItem::Remark::NameTaken:
        return Text::tr("  (keeps this name: its new one is taken)");
    case PlanItem::Remark::NameTooLong:
        return Text::tr("  (keeps this name: its new one is too long)");
    case PlanItem::Remark::None:
        break;
    }
    return item.isRenamed() ? Text::tr("  (was %1)").arg(platform::forOneLine(item.oldName)) : QString();
}

QString drawn(const CreationPlan &plan, const QString &destination)
{
    QList<DrawnItem> items;
    plan.forEachItem([&](const PlanItem &item) {
        const auto depth = item.folder.isEmpty() ? 0 : static_cast<int>(item.folder.count(u'/')) + 1;
        const QString slash = item.kind == platform::FileKind::Folder ? QStringLiteral("/") : QString();
        items.append({depth, platform::forOneLine(item.newName) + slash + remarkText(item)});
    });
    return drawnTree(platform::forOneLine(destination), items);
}

} // namespace

/// As far as it is known in time: they may lie on a share whose server does not answer, and this project need not.
constexpr static std::chrono::seconds patienceForLeftovers{2};
static void tellOfLeftovers()
{
    struct Found
    {
        QList<Leftover> leftovers;
        QList<DoubtfulProject> doubtful;
    };
    const auto found = std::make_shared<Found>();
    const auto look = [found] {
        found->leftovers = leftovers();
        found->doubtful = doubtfulProjects();
    };
    if (!platform::performWithin(patienceForLeftovers, look, [] {}))
        return;
    const auto &left = found->leftovers;
    const auto &doubtful = found->doubtful;
    for (const Leftover &leftover : left)
        complain(ExitStatus::done, Text::tr("A creation was cut off. This is left of it: %1").arg(leftover.folder));
    if (!left.isEmpty())
        complain(ExitStatus::done, Text::tr("Tessaro clean-up --yes moves it to the Trash."));
    for (const DoubtfulProject &project : doubtful)
        complain(ExitStatus::done, project.project + QStringLiteral(": ") + descriptionOf(project));
    if (!doubtful.isEmpty())
        complain(ExitStatus::done, Text::tr("Tessaro clean-up --yes takes note of it."));
}

int commands::create(const Invocation &invocation)
{
    tellOfLeftovers();
    return CreateCommand(invocation).run();
}

int commands::cleanUp(const Invocation &invocation)
{
    int status = ExitStatus::done;
    for (const Leftover &leftover : leftovers()) {
        print(leftover.folder + u'\n');
        if (!invocation.has("--yes"))
            status = ExitStatus::notOverwritten;
        else if (const platform::Outcome away = putAway(leftover); !away.ok())
            status = complain(away);
    }
    for (const DoubtfulProject &doubtful : doubtfulProjects()) {
        print(doubtful.project + u'\n');
        complain(ExitStatus::done, descriptionOf(doubtful));
        if (invocation.has("--yes"))
            static_cast<void>(forget(doubtful)); // one that stays is said again
    }
    if (status == ExitStatus::notOverwritten)
        complain(status, Text::tr("Nothing was moved to the Trash; say --yes to do it."));
    return status;
}

CreateCommand::CreateCommand(const Invocation &invocation)
    : m_invocation(invocation)
    , m_isDryRun(invocation.has("--dry-run"))
{
}

int CreateCommand::run()
{
    VTLog::appendLog("Creating new project");
    if (!findTemplate() || !readParameters() || !parametersAreComplete() || !findDestination())
        return refused();
    VTLog::appendLog("Validated folder name: %@", m_request.relativePath());
    if (platform::kindOf(m_request.destination()) != platform::FileKind::Missing && !m_invocation.has("--overwrite")) {
        fail(ExitStatus::notOverwritten,
             Text::tr(
                 "A project with this name already exists: %1\nUse --overwrite to move it to the Trash and create it "
                 "anew.")
                 .arg(m_request.destination()));
        return refused();
    }
    return m_isDryRun ? printPlan() : create();
}

bool CreateCommand::fail(int status, const QString &problem)
{
    m_status = complain(status, problem);
    m_problems.append(platform::forDisplay(problem));
    return false;
}

bool CreateCommand::fail(const platform::Outcome &failure, const QString &problem)
{
    return fail(exitStatusOf(failure), problem + u'\n' + failure.description());
}

int CreateCommand::refused()
{
    if (m_invocation.has("--json"))
        printObject({}, nullptr);
    return m_status;
}

bool CreateCommand::findLibrary(QString &location, QStringList &names)
{
    location = VTDataController::templateLocation();
    auto &store = VTDataController::sharedController();
    if (!m_isDryRun) {
        const platform::Outcome read = store.populateTemplates();
        names = store.templates();
        return read.ok() || !names.isEmpty() || fail(read, Text::tr("The template library cannot be read."));
    }
    if (platform::kindOf(location) == platform::FileKind::Missing) {
        // Before the first start there is no library yet, and a dry run makes none.
        platform::Result<platform::TemporaryFolder> unpacked =
            platform::TemporaryFolder::make(VTLocalPaths::tempDirectory());
        if (!unpacked)
            return fail(unpacked.outcome(), Text::tr("There is no room for the shipped templates."));
        m_unpacked.emplace(*std::move(unpacked));
        location = m_unpacked->path();
        const platform::Outcome installed = VTDataController::installShippedTemplates(location);
        if (!installed.ok())
            return fail(installed, Text::tr("The shipped templates cannot be unpacked."));
    }
    const auto found = VTDataController::templateNames(location);
    if (!found)
        return fail(found.outcome(), Text::tr("The template library cannot be read."));
    names = *found;
    return true;
}

bool CreateCommand::findTemplate()
{
    QString location;
    QStringList names;
    if (!findLibrary(location, names))
        return false;
    const QString wanted = m_invocation.value("--template");
    m_request.templateName = wanted.isNull() ? chosenTemplate(names) : wanted;
    if (wanted.isNull() && m_request.templateName.isNull())
        return fail(ExitStatus::failed, Text::tr("There is no template in %1.").arg(location));
    if (!names.contains(m_request.templateName))
        return fail(ExitStatus::wrongUsage,
                    Text::tr("There is no template “%1”. %2").arg(m_request.templateName, listed(names)));
    m_request.templateFiles = location + platform::formatString("/%@.tzt/Files", m_request.templateName);
    return true;
}

bool CreateCommand::readParameters()
{
    if (!m_isDryRun)
        keepDamagedParameters();
    m_request.parameters = currentParameters();
    m_request.separator = settings::separatorChar.text();
    for (const QString &setting : m_invocation.values("--set")) {
        if (!applyValue(setting))
            return false;
    }
    return true;
}

bool CreateCommand::applyValue(const QString &setting)
{
    const qsizetype equals = setting.indexOf(u'=');
    const QString title = setting.first(equals);
    const QString value = setting.mid(equals + 1);
    QStringList titles;
    for (const FilenameParameter &parameter : m_request.parameters)
        titles.append(parameter.title());
    const qsizetype row = titles.indexOf(title);
    QString problem;
    if (row < 0)
        problem = Text::tr("There is no parameter “%1”. %2").arg(title, listed(titles));
    else if (m_request.parameters[row].isLocked())
        problem = Text::tr("The parameter “%1” is locked.").arg(title);
    else if (m_request.parameters[row].kind() == FilenameParameter::Kind::Choice &&
             !m_request.parameters[row].choices().contains(value))
        problem = Text::tr("“%1” is not among the choices of “%2”. %3")
                      .arg(value, title, listed(m_request.parameters[row].choices()));
    if (!problem.isNull())
        return fail(ExitStatus::wrongUsage, problem);
    m_request = withTypedValue(m_request, row, value, settings::strictNaming.isOn());
    return true;
}

bool CreateCommand::parametersAreComplete()
{
    QString problem;
    if (const auto blank = naming::firstBlankRequired(m_request.parameters))
        problem = platform::formatString(Text::tr("'%@' cannot be left blank"), m_request.parameters[*blank].title()) +
                  u'\n' + Text::tr("Please fill in this parameter before creating a project.") + u' ' +
                  Text::tr("(--set \"%1=…\")").arg(m_request.parameters[*blank].title());
    else if (const auto counter = rules::firstCounterAtItsEnd(m_request.parameters))
        problem =
            platform::formatString(Text::tr("'%@' cannot count any further"), m_request.parameters[*counter].title()) +
            u'\n' +
            Text::tr("Its number has too many digits: counters end at 2147483646. A date in front of a number is "
                     "better a parameter of its own.");
    else if (m_request.relativePath().isEmpty())
        problem = Text::tr("Unable to create folder") + u'\n' + Text::tr("You must specify at least one parameter.");
    else if (naming::hasUnusableLevel(m_request.levels()))
        problem =
            Text::tr("Unable to create folder") + u'\n' +
            Text::tr(
                "The values give a folder level without a usable name (nothing, or dots only). Please change them.");
    else if (const QStringList tooLong = naming::tooLongLevels(m_request.levels());
             !tooLong.isEmpty() && !m_invocation.has("--dry-run")) // which names them itself
        problem = Text::tr("Unable to create folder") + u'\n' +
                  Text::tr("The name of a folder can have 255 bytes, and this one has %1. Please shorten a value.")
                      .arg(platform::toNative(tooLong.constFirst()).size());
    return problem.isNull() || fail(ExitStatus::failed, problem);
}

bool CreateCommand::findDestination()
{
    QString folder = m_invocation.value("--in");
    if (folder.isNull()) {
        folder = settings::fixedProjectLocationPath.text();
        if (!settings::useFixedProjectLocation.isOn() || folder.isEmpty())
            return fail(ExitStatus::wrongUsage,
                        Text::tr("No fixed project location is set. Say where to create the project "
                                 "with --in FOLDER."));
    } else {
        folder = platform::absolutePath(folder);
        if (!VTFileManager::isDirectoryAtPath(folder)) {
            // Not made: the path may be that of a drive that is not plugged in.
            const bool exists = VTFileManager::fileExistsAtPath(folder);
            return fail(
                ExitStatus::failed,
                (exists ? Text::tr("%1 is not a folder.") : Text::tr("The folder %1 does not exist.")).arg(folder));
        }
    }
    m_request.location = folder;
    return true;
}

int CreateCommand::printPlan()
{
    std::atomic<bool> stopped = false;
    const platform::Interruption interruption(stopped);
    const CreationPlan plan = planCreation(m_request.templateFiles, m_request.levels(), stopped);
    if (stopped)
        return complain(ExitStatus::stopped, Text::tr("Stopped."));
    for (const QString &level : plan.tooLongLevels)
        fail(ExitStatus::failed, Text::tr("The folder name is too long: %1").arg(level));
    for (const platform::Outcome &unreadable : plan.unreadable)
        fail(ExitStatus::failed,
             Text::tr("This folder of the template cannot be read: %1").arg(unreadable.description()));
    plan.forEachItem([&](const PlanItem &item) {
        if (item.remark != PlanItem::Remark::None)
            m_status = ExitStatus::failed;
    });
    if (m_invocation.has("--json"))
        printObject({}, &plan);
    else
        print(drawn(plan, m_request.destination()));
    return m_status;
}

int CreateCommand::create()
{
    ProjectCreation creation(*this);
    const platform::Interruption interruption(creation.stop());
    const CreationResult result = creation.createProject(m_request);
    m_request = result.request;
    m_problems += result.errors;
    for (const QString &note : result.notes)
        complain(ExitStatus::done, note);
    const bool isThere = VTFileManager::fileExistsAtPath(m_request.destination());
    if (result.stopped)
        fail(ExitStatus::stopped, Text::tr("Stopped. Nothing of the project was kept."));
    else if (result.cancelled)
        m_status = ExitStatus::notOverwritten;
    else if (!result.ok())
        m_status = ExitStatus::failed;
    else if (!isThere)
        fail(ExitStatus::failed, Text::tr("The project was made, and is gone: %1").arg(m_request.destination()));
    if (m_status == ExitStatus::failed)
        complain(m_status,
                 Text::tr("The log names each item and the cause: %1").arg(VTLog::sharedController().currentLogPath()));
    return report(result, isThere);
}

int CreateCommand::report(const CreationResult &result, bool isThere) const
{
    if (m_invocation.has("--json"))
        printObject(result, nullptr);
    else if (isThere && !result.cancelled && !result.stopped)
        print(m_request.destination() + u'\n');
    return m_status;
}

void CreateCommand::printObject(const CreationResult &result, const CreationPlan *plan) const
{
    const auto shown = [](const QString &name) {
        return platform::forDisplay(name);
    };
    QJsonObject object{
        {"project", shown(m_request.relativePath())},
        {"name", shown(m_request.name())},
        {"path", shown(m_request.destination())},
        {"template", shown(m_request.templateName)},
        {"folders", plan ? plan->folders() : result.folders},
        {"files", plan ? plan->files() : result.files},
        {"renamed", plan ? plan->renamed() : result.renamed},
        {"errors", QJsonArray::fromStringList(m_problems)},
        {"notes", QJsonArray::fromStringList(result.notes)},
    };
    if (plan) {
        static const QHash<PlanItem::Remark, QString> remarks{{PlanItem::Remark::NameTaken, "name taken"},
                                                              {PlanItem::Remark::NameTooLong, "name too long"}};
        QJsonArray items;
        plan->forEachItem([&](const PlanItem &item) {
            QJsonObject entry{{"path", shown(item.folder.isEmpty() ? item.newName : joined(item.folder, item.newName))},
                              {"was", shown(item.oldName)},
                              {"folder", item.kind == platform::FileKind::Folder}};
            if (const QString remark = remarks.value(item.remark); !remark.isNull())
                entry.insert("remark", remark);
            items.append(entry);
        });
        object.insert("items", items);
    }
    print(object);
}
