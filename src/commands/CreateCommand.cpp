#include "commands/CreateCommand.h"

#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/PlanOutput.h"
#include "commands/TerminalOutput.h"
#include "creation/ProjectJson.h"
#include "creation/RequestCheck.h"
#include "creation/Unfinished.h"
#include "parameters/ParameterStore.h"
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
#include <QJsonObject>

using platform::joined;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CreateCommand)
};

QString tooMany()
{
    return Text::tr("Repeats would make more than %1 items. Say --many if that is what you want.")
        .arg(mostRepeatedUnasked);
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
    tellOfStudio();
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
    if (m_invocation.has("--from"))
        return runTable();
    if (!readValues() || !findTemplate() || !makeRequest() || !askForMissing() || !parametersAreComplete() ||
        !findDestination())
        return refused();
    m_request.location = m_location;
    VTLog::appendLog("Validated folder name: %@", m_request.relativePath());
    if (platform::kindOf(m_request.destination()) != platform::FileKind::Missing && !m_invocation.has("--overwrite")) {
        fail(ExitStatus::notOverwritten,
             Text::tr(
                 "A project with this name already exists: %1\nUse --overwrite to move it to the Trash and create it "
                 "anew.")
                 .arg(m_request.destination()),
             platform::codeOf(platform::Cause::Exists));
        return refused();
    }
    return m_isDryRun ? printPlan() : create();
}

bool CreateCommand::fail(int status, const QString &problem, const char *code)
{
    m_status = complain(status, problem);
    return keep(problem, code ? code : codeOfStatus(status));
}

bool CreateCommand::fail(const platform::Outcome &failure, const QString &problem)
{
    m_status = complain(failure, problem);
    return keep(problem + u'\n' + failure.description(), platform::codeOf(failure.cause()));
}

bool CreateCommand::keep(const QString &problem, const char *code)
{
    if (m_code.isEmpty())
        m_code = QLatin1String(code);
    m_problems.append(platform::forDisplay(problem));
    return false;
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
    if (!findLibrary(m_library, m_templates))
        return false;
    const QString wanted = m_invocation.value("--template");
    m_templateName = wanted.isNull() ? chosenTemplate(m_templates) : wanted;
    return !m_templateName.isNull() || fail(ExitStatus::failed, Text::tr("There is no template in %1.").arg(m_library));
}

/// Everything but the folder it goes to.
platform::Result<ProjectRequest> CreateCommand::requestFor(const QString &templateName) const
{
    if (!m_templates.contains(templateName))
        return platform::Outcome::failure(
            platform::Cause::Invalid, {},
            Text::tr("There is no template “%1”. %2").arg(templateName, listed(m_templates)));
    const auto fresh = freshRequest(m_library, templateName);
    if (fresh.outcome().is(platform::Cause::Busy))
        return fresh.outcome();
    if (!fresh)
        return platform::Outcome::failure(
            fresh.outcome().cause(), {},
            Text::tr("The template’s rules cannot be read. Mend them, or remove the file.") + u'\n' +
                fresh.outcome().description());
    ProjectRequest request = *fresh;
    request.location = m_location;
    request.isRemembered = !m_invocation.has("--no-remember");
    for (const auto &[title, value] : m_values) {
        const auto changed = withNamedValue(request, title, value, settings::strictNaming.isOn());
        if (!changed)
            return changed.outcome();
        request = *changed;
    }
    for (const QString &setting : m_invocation.values("--set")) {
        const qsizetype equals = setting.indexOf(u'=');
        const auto changed =
            withNamedValue(request, setting.first(equals), setting.mid(equals + 1), settings::strictNaming.isOn());
        if (!changed)
            return changed.outcome();
        request = *changed;
    }
    return request;
}

bool CreateCommand::makeRequest()
{
    if (!m_isDryRun)
        keepDamagedParameters();
    const auto request = requestFor(m_templateName);
    if (!request)
        return fail(exitStatusOf(request.outcome()), request.outcome().sentence());
    m_request = *request;
    return true;
}

bool CreateCommand::parametersAreComplete()
{
    const auto tooLong = m_isDryRun ? TooLongLevels::AreNamedElsewhere : TooLongLevels::AreProblems;
    const auto problem = problemOf(m_request, tooLong);
    if (!problem)
        return true;
    const bool isBlank = problem->parameter >= 0 && m_request.parameters[problem->parameter].isBlank();
    const QString hint =
        isBlank ? u' ' + Text::tr("(--set \"%1=…\")").arg(m_request.parameters[problem->parameter].title()) : QString();
    return fail(ExitStatus::failed, problem->message + u'\n' + problem->informativeText + hint,
                platform::codeOf(platform::Cause::Invalid));
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
                (exists ? Text::tr("%1 is not a folder.") : Text::tr("The folder %1 does not exist.")).arg(folder),
                platform::codeOf(exists ? platform::Cause::NotAFolder : platform::Cause::Missing));
        }
    }
    m_location = folder;
    return true;
}

int CreateCommand::printPlan()
{
    std::atomic<bool> stopped = false;
    const platform::Interruption interruption(stopped);
    PlanInput input = m_request.planInput();
    if (m_invocation.has("--many"))
        input.mostRepeated = mostRepeated;
    const CreationPlan plan = planCreation(m_request.templateFiles, input, stopped);
    if (stopped)
        return complain(ExitStatus::stopped, Text::tr("Stopped."));
    for (const QString &level : plan.tooLongLevels)
        fail(ExitStatus::failed, Text::tr("The folder name is too long: %1").arg(level));
    for (const platform::Outcome &unreadable : plan.unreadable)
        fail(ExitStatus::failed,
             Text::tr("This folder of the template cannot be read: %1").arg(unreadable.description()));
    for (const Flaw &flaw : plan.flaws)
        fail(ExitStatus::failed, plan.pathOf(flaw) + QStringLiteral(": ") + flaw.sentence);
    if (plan.isCutOff && !m_invocation.has("--many"))
        fail(ExitStatus::notOverwritten, tooMany());
    plan.forEachItem([&](const PlanItem &item) {
        if (item.remark == PlanItem::Remark::NameTaken || item.remark == PlanItem::Remark::NameTooLong)
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
    if (m_invocation.has("--many"))
        creation.allowMany();
    const CreationResult result = creation.createProject(m_request);
    m_request = result.request;
    m_problems += result.errors;
    for (const QString &note : result.notes)
        complain(ExitStatus::done, note);
    const bool isThere = VTFileManager::fileExistsAtPath(m_request.destination());
    if (result.stopped)
        fail(ExitStatus::stopped, Text::tr("Stopped. Nothing of the project was kept."));
    else if (result.cancelled && result.isTooMany)
        fail(ExitStatus::notOverwritten, tooMany());
    else if (result.cancelled)
        m_status = ExitStatus::notOverwritten;
    else if (!result.ok())
        m_status = ExitStatus::failed;
    else if (!isThere)
        fail(ExitStatus::failed, Text::tr("The project was made, and is gone: %1").arg(m_request.destination()));
    if (m_status == ExitStatus::failed && !result.refused)
        complain(m_status,
                 Text::tr("The log names each item and the cause: %1").arg(VTLog::sharedController().currentLogPath()));
    return report(result, isThere);
}

int CreateCommand::report(const CreationResult &result, bool isThere) const
{
    if (m_invocation.has("--json"))
        printObject(result, nullptr);
    else if (isThere && !result.cancelled && !result.stopped && !result.refused)
        print(m_request.destination() + u'\n');
    return m_status;
}

void CreateCommand::printObject(const CreationResult &result, const CreationPlan *plan) const
{
    QJsonObject object = objectOf({m_request, m_problems, result, plan});
    object.insert("status", m_status);
    if (m_status != ExitStatus::done)
        object.insert("code", m_code.isEmpty() ? QLatin1String(codeOfStatus(m_status)) : m_code);
    print(object);
}
