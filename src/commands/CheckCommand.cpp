// check: whether all that was made still stands.
#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/TerminalOutput.h"
#include "creation/ProjectCheck.h"
#include "creation/RequestCheck.h"
#include "platform/base/Interruption.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/plain/CopyMonitor.h"
#include "support/JsonPaths.h"
#include "support/LongWork.h"
#include "templates/TemplateChoice.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CheckCommand)
};

QJsonObject asObject(const ProjectCheck &check)
{
    QJsonObject object{{"complete", check.isComplete()},
                       {"remembered", check.isRemembered},
                       {"looked", check.looked},
                       {"notLooked", check.notLooked}};
    insertPath(object, QStringLiteral("path"), check.project);
    insertPath(object, QStringLiteral("template"), check.templateName);
    QJsonArray findings;
    for (const CheckFinding &finding : check.findings) {
        QJsonObject one{{"what", wordOf(finding.what)}};
        insertPath(one, QStringLiteral("path"), finding.path);
        findings.append(one);
    }
    object.insert("findings", findings);
    return object;
}

int report(const ProjectCheck &check, bool asJson)
{
    if (!check.outcome.ok())
        return complain(check.outcome);
    if (!check.isRemembered && check.templateName.isNull())
        return complain(ExitStatus::failed,
                        Text::tr("Tessaro does not remember this project, and there is no template to compare it "
                                 "with: %1")
                            .arg(check.project));
    const int status = check.isComplete() ? ExitStatus::done : ExitStatus::failed;
    if (asJson) {
        print(asObject(check));
        return status;
    }
    if (!check.isRemembered)
        complain(ExitStatus::done,
                 Text::tr("Not remembered; compared with the template “%1”.").arg(check.templateName));
    if (check.notLooked > 0)
        complain(ExitStatus::done, Text::tr("Items that depend on values, not looked for: %L1").arg(check.notLooked));
    for (const CheckFinding &finding : check.findings)
        print(sentenceOf(finding) + u'\n');
    if (check.isComplete())
        print(Text::tr("Complete. Items: %L1").arg(check.looked) + u'\n');
    return status;
}

} // namespace

int commands::check(const Invocation &invocation)
{
    QString project = invocation.argument(0);
    if (project.isNull()) {
        const QList<Manifest> projects = recentProjects();
        if (projects.isEmpty())
            return complain(ExitStatus::failed, Text::tr("There is no project to check."));
        project = projects.constFirst().project;
    }
    auto &store = VTDataController::sharedController();
    static_cast<void>(store.populateTemplates()); // without a library what is remembered can be checked
    const QString wanted = invocation.value("--template");
    if (!wanted.isNull() && !store.templates().contains(wanted))
        return complain(ExitStatus::wrongUsage,
                        Text::tr("There is no template “%1”. %2").arg(wanted, listed(store.templates())));
    const QString name = wanted.isNull() ? chosenTemplate(store.templates()) : wanted;
    const QString files = name.isNull() ? QString() : VTDataController::filesFolder(name);
    platform::CopyMonitor monitor;
    const platform::Interruption interruption(monitor.cancelled);
    ProjectCheck check;
    {
        const QString path = platform::absolutePath(project);
        const LongWork work(Text::tr("Checking %1").arg(platform::forOneLine(platform::lastComponent(path))), monitor);
        check = platform::resultInBackground([&] { return checkProject(path, name, files, monitor); });
    }
    return report(check, invocation.has("--json"));
}
