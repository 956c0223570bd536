#include "app/CreateCommand.h"

#include "app/TerminalPresenter.h"
#include "parameters/ProjectNaming.h"
#include "parameters/ValueRules.h"
#include "parameters/VTProjectTableController.h"
#include "platform/Console.h"
#include "platform/NativePath.h"
#include "support/Settings.h"
#include "support/VTFileManager.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "templates/TemplateChoice.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using platform::joined;

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("CreateCommand", source);
}

QString listed(const QStringList &names)
{
    return names.isEmpty() ? text("There are none.") : text("There are: %1.").arg(names.join(QStringLiteral(", ")));
}

} // namespace

CreateCommand::CreateCommand(const CommandRequest &request, const TerminalPresenter &presenter)
    : m_request(request), m_presenter(presenter)
{}

CreateCommand::~CreateCommand() = default;

int CreateCommand::run()
{
    VTLog::appendLog("Creating new project");
    if (!findTemplate() || !readParameters() || !parametersAreComplete() || !findDestination())
        return refused();
    VTLog::appendLog("Validated folder name: %@", naming::pathName(m_levels));
    if (platform::kindOf(m_destination) != platform::FileKind::Missing && !m_request.overwrite) {
        refuse(ExitStatus::notOverwritten,
               text("A project with this name already exists: %1\nUse --overwrite to move it to the Trash and create it "
                    "anew.")
                   .arg(m_destination));
        return refused();
    }
    return m_request.dryRun ? printPlan() : create();
}

int CreateCommand::refuse(int status, const QString &problem)
{
    platform::writeToStandardError(problem + u'\n');
    m_problems.append(platform::forDisplay(problem));
    return m_status = status;
}

int CreateCommand::refused()
{
    if (m_request.json)
        printObject({}, nullptr);
    return m_status;
}

bool CreateCommand::findTemplate()
{
    QString location = VTDataController::templateLocation();
    QStringList names;
    if (!m_request.dryRun) {
        VTDataController::sharedController().populateTemplates();
        names = VTDataController::sharedController().templates();
    } else {
        if (!VTFileManager::fileExistsAtPath(location)) {
            // Before the first start there is no library yet, and a dry run makes none.
            m_unpacked = std::make_unique<QTemporaryDir>();
            location = m_unpacked->path();
            VTDataController::installShippedTemplates(location);
        }
        names = VTDataController::templateNames(location);
    }
    m_templateName = m_request.templateName.isNull() ? chosenTemplate(names) : m_request.templateName;
    if (!names.contains(m_templateName)) {
        refuse(m_request.templateName.isNull() ? ExitStatus::failed : ExitStatus::wrongUsage,
               m_request.templateName.isNull()
                   ? text("There is no template in %1.").arg(location)
                   : text("There is no template “%1”. %2").arg(m_request.templateName, listed(names)));
        return false;
    }
    m_filesFolder = location + platform::formatString("/%@.tzt/Files", m_templateName);
    return true;
}

bool CreateCommand::readParameters()
{
    const auto &defaults = settings::standard();
    if (m_request.dryRun) {
        m_parameters = rules::withDynamicValues(rules::asLoaded(storedParameters()),
                                                defaults.string(settings::dateFormat), VTLocalPaths::username(),
                                                std::time(nullptr));
    } else {
        m_table = std::make_unique<VTProjectTableController>();
        m_table->awakeFromNib();
        m_parameters = m_table->dataArray();
    }
    for (const auto &[title, value] : m_request.values) {
        if (!applyValue(title, value))
            return false;
    }
    m_levels = naming::pathComponents(m_parameters, defaults.string(settings::separatorChar));
    return true;
}

bool CreateCommand::applyValue(const QString &title, const QString &value)
{
    QStringList titles;
    for (const FilenameParameter &parameter : m_parameters)
        titles.append(parameter.title());
    const qsizetype row = titles.indexOf(title);
    QString problem;
    if (row < 0)
        problem = text("There is no parameter “%1”. %2").arg(title, listed(titles));
    else if (m_parameters[row].isLocked())
        problem = text("The parameter “%1” is locked.").arg(title);
    else if (m_parameters[row].kind() == FilenameParameter::Kind::Choice && !m_parameters[row].choices().contains(value))
        problem = text("“%1” is not among the choices of “%2”. %3").arg(value, title, listed(m_parameters[row].choices()));
    if (!problem.isNull()) {
        refuse(ExitStatus::wrongUsage, problem);
        return false;
    }
    if (!m_table) {
        const bool strict = settings::standard().boolean(settings::strictNaming);
        m_parameters[row] = rules::withTypedValue(m_parameters[row], value, strict);
        return true;
    }
    const auto column = VTProjectTableController::ValueColumn;
    const bool stored = m_table->setData(m_table->index(static_cast<int>(row), column), value, Qt::EditRole);
    m_parameters = m_table->dataArray();
    return stored;
}

bool CreateCommand::parametersAreComplete()
{
    QString problem;
    if (const auto blank = naming::firstBlankRequired(m_parameters))
        problem = platform::formatString(text("'%@' cannot be left blank"), m_parameters[*blank].title()) + u'\n' +
                  text("Please fill in this parameter before creating a project.") + u' ' +
                  text("(--set \"%1=…\")").arg(m_parameters[*blank].title());
    else if (naming::pathName(m_levels).isEmpty())
        problem = text("Unable to create folder") + u'\n' + text("You must specify at least one parameter.");
    else if (naming::hasUnusableLevel(m_levels))
        problem = text("Unable to create folder") + u'\n' +
                  text("The values give a folder level without a usable name (nothing, or dots only). Please change them.");
    if (problem.isNull())
        return true;
    refuse(ExitStatus::failed, problem);
    return false;
}

bool CreateCommand::findDestination()
{
    const auto &defaults = settings::standard();
    QString folder = m_request.inFolder;
    if (folder.isNull()) {
        folder = defaults.string(settings::fixedProjectLocationPath);
        if (!defaults.equalsOne(settings::useFixedProjectLocation) || folder.isEmpty()) {
            refuse(ExitStatus::wrongUsage,
                   text("No fixed project location is set. Say where to create the project with --in FOLDER."));
            return false;
        }
    } else {
        folder = absolutePath(folder);
        if (!VTFileManager::isDirectoryAtPath(folder)) {
            // Not made: the path may be that of a drive that is not plugged in.
            const bool exists = VTFileManager::fileExistsAtPath(folder);
            refuse(ExitStatus::failed, (exists ? text("%1 is not a folder.") : text("The folder %1 does not exist."))
                                           .arg(folder));
            return false;
        }
    }
    m_destination = joined(folder, naming::pathName(m_levels));
    return true;
}

int CreateCommand::printPlan()
{
    const TemplateTree tree = readTemplateTree(m_filesFolder);
    const CreationPlan plan = planCreation(tree, m_levels);
    for (const QString &level : plan.tooLongLevels)
        refuse(ExitStatus::failed, text("The folder name is too long: %1").arg(level));
    for (const QString &unreadable : tree.unreadable)
        refuse(ExitStatus::failed, text("This folder of the template cannot be read: %1")
                                       .arg(joined(m_filesFolder, unreadable)));
    for (const PlanItem &item : plan.items) {
        if (item.remark != PlanItem::Remark::None)
            m_status = ExitStatus::failed;
    }
    if (m_request.json)
        printObject({}, &plan);
    else
        platform::writeToStandardOutput(drawnPlan(plan, m_destination));
    return m_status;
}

int CreateCommand::create()
{
    const CreationResult result = ProjectCreation(*this).createTemplate(m_templateName, m_destination);
    m_problems += result.errors;
    if (!result.errors.isEmpty())
        platform::writeToStandardError(
            text("The log names each item and the cause: %1\n").arg(VTLog::sharedController().currentLogPath()));
    if (result.cancelled)
        m_status = ExitStatus::notOverwritten;
    else if (!result.ok())
        m_status = ExitStatus::failed;
    if (m_request.json)
        printObject(result, nullptr);
    else if (VTFileManager::fileExistsAtPath(m_destination) && !result.cancelled)
        platform::writeToStandardOutput(m_destination + u'\n');
    return m_status;
}

void CreateCommand::incrementDynamicValues()
{
    m_table->incrementDynamicValues();
}

void CreateCommand::printObject(const CreationResult &result, const CreationPlan *plan) const
{
    const auto shown = [](const QString &name) { return platform::forDisplay(name); };
    QJsonObject object{
        {"project", shown(naming::pathName(m_levels))},
        {"name", shown(naming::projectName(m_levels))},
        {"path", shown(m_destination)},
        {"template", shown(m_templateName)},
        {"folders", plan ? plan->folders() : result.folders},
        {"files", plan ? plan->files() : result.files},
        {"renamed", plan ? plan->renamed() : result.renamed},
        {"errors", QJsonArray::fromStringList(m_problems)},
    };
    if (plan) {
        static const QHash<PlanItem::Remark, QString> remarks{{PlanItem::Remark::NameTaken, "name taken"},
                                                              {PlanItem::Remark::NameTooLong, "name too long"}};
        QJsonArray items;
        for (const PlanItem &item : plan->items) {
            QJsonObject entry{{"path", shown(item.folder.isEmpty() ? item.newName : joined(item.folder, item.newName))},
                              {"was", shown(item.oldName)},
                              {"folder", item.kind == platform::FileKind::Folder}};
            if (const QString remark = remarks.value(item.remark); !remark.isNull())
                entry.insert("remark", remark);
            items.append(entry);
        }
        object.insert("items", items);
    }
    platform::writeToStandardOutput(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Indented)));
}
