#include "app/TemplateCommand.h"

#include "app/TerminalPresenter.h"
#include "platform/Console.h"
#include "platform/NativePath.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTFileManager.h"
#include "templates/EditingGuard.h"
#include "templates/ImportJobs.h"
#include "templates/TemplateNode.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using library::Outcome;

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("TemplateCommand", source);
}

/// What can be done, how many words each takes (-1: one or more), and whether an administrator may have to agree: the
/// same actions as in the window.
struct Action
{
    int least;
    int most;
    bool isGuarded;
};

const QHash<QString, Action> &actions()
{
    static const QHash<QString, Action> table{
        {"new", {1, 1, true}},      {"duplicate", {1, 1, true}}, {"rename", {2, 2, false}},
        {"remove", {1, 1, true}},   {"default", {0, 1, true}},   {"show", {1, 1, false}},
        {"import", {1, -1, false}}, {"structure", {1, 1, true}}, {"restore", {0, 0, false}},
    };
    return table;
}

QJsonArray treeAsJson(const TemplateNodes &nodes)
{
    QJsonArray list;
    for (const auto &node : nodes) {
        QJsonObject entry{{"name", platform::forDisplay(node->name())}, {"folder", node->isFolderItem()}};
        if (const QString label = VTFileManager::labelName(node->colorIndex() & 0x0E); !label.isNull())
            entry.insert("label", label);
        if (node->isFolderItem())
            entry.insert("children", treeAsJson(static_cast<const VTFolderItem &>(*node).children()));
        list.append(entry);
    }
    return list;
}

void drawTree(const TemplateNodes &nodes, const QString &indent, QString &lines)
{
    for (const auto &node : nodes) {
        const bool isLast = &node == &nodes.back();
        const QString name =
            platform::forDisplay(node->name()) + (node->isFolderItem() ? QStringLiteral("/") : QString());
        lines += indent + (isLast ? QStringLiteral("└── ") : QStringLiteral("├── ")) + name + u'\n';
        if (node->isFolderItem())
            drawTree(static_cast<const VTFolderItem &>(*node).children(),
                     indent + (isLast ? QStringLiteral("    ") : QStringLiteral("│   ")), lines);
    }
}

} // namespace

QString TemplateCommand::problemOf(const CommandRequest &request)
{
    const QString what = request.arguments.value(0);
    if (!actions().contains(what))
        return what.isNull()
                   ? text("template needs to be told what to do: new, duplicate, rename, remove, default, show, "
                          "import, structure or restore.")
                   : text("template cannot “%1”.").arg(platform::forDisplay(what));
    const Action action = actions()[what];
    const auto given = static_cast<int>(request.arguments.size()) - 1;
    if (given < action.least || (action.most >= 0 && given > action.most) || request.arguments.contains(QString()))
        return text("template %1 was given %2 names, which is not what it takes.").arg(what).arg(given);
    if ((what == u"structure") != !request.fromFolder.isNull())
        return text("--from FOLDER belongs to template structure, which needs it.");
    if (request.unset && (what != u"default" || given > 0))
        return text("--unset belongs to template default, without a name.");
    return {};
}

int TemplateCommand::run()
{
    static const QHash<QString, int (TemplateCommand::*)()> table{
        {"new", &TemplateCommand::create},          {"duplicate", &TemplateCommand::duplicate},
        {"rename", &TemplateCommand::rename},       {"remove", &TemplateCommand::remove},
        {"default", &TemplateCommand::markDefault}, {"show", &TemplateCommand::show},
        {"import", &TemplateCommand::import},       {"structure", &TemplateCommand::structure},
        {"restore", &TemplateCommand::restore},
    };
    const QString what = m_request.arguments.constFirst();
    VTDataController::sharedController().populateTemplates();
    const bool onlyPrints = what == u"default" && argument(0).isNull() && !m_request.unset;
    if (actions()[what].isGuarded && !onlyPrints && !editingIsAllowed()) {
        platform::writeToStandardError(text("Administrator rights are required here, and were refused.\n"));
        return ExitStatus::notOverwritten;
    }
    return (this->*table[what])();
}

bool TemplateCommand::isKnown(const QString &name) const
{
    const QStringList names = VTDataController::sharedController().templates();
    if (names.contains(name))
        return true;
    platform::writeToStandardError(
        text("There is no template “%1”. There are: %2.\n").arg(name, names.join(QStringLiteral(", "))));
    return false;
}

int TemplateCommand::statusOf(const library::Result &result) const
{
    switch (result.outcome) {
    case Outcome::Done:
        platform::writeToStandardOutput(VTDataController::bundlePath(result.name) + u'\n');
        [[fallthrough]];
    case Outcome::Unchanged:
        return ExitStatus::done;
    case Outcome::Declined:
        return ExitStatus::notOverwritten;
    default:
        return ExitStatus::failed;
    }
}

int TemplateCommand::create()
{
    const QString name = VTFileManager::validateFilename(argument(0));
    if (name != argument(0)) {
        platform::writeToStandardError(
            text("“%1” cannot be a template's name. Leave out slashes, colons, and dots at the beginning.\n")
                .arg(argument(0)));
        return ExitStatus::wrongUsage;
    }
    if (VTDataController::sharedController().templates().contains(name)) {
        platform::writeToStandardError(text("There is a template “%1” already.\n").arg(name));
        return ExitStatus::notOverwritten;
    }
    return statusOf(library::createTemplate(name));
}

int TemplateCommand::duplicate()
{
    return isKnown(argument(0)) ? statusOf(library::duplicateTemplate(argument(0))) : ExitStatus::wrongUsage;
}

int TemplateCommand::rename()
{
    return isKnown(argument(0)) ? statusOf(library::renameTemplate(argument(0), argument(1))) : ExitStatus::wrongUsage;
}

int TemplateCommand::remove()
{
    if (!isKnown(argument(0)))
        return ExitStatus::wrongUsage;
    const library::Result result = library::removeTemplate(argument(0));
    if (result.outcome == Outcome::Declined)
        platform::writeToStandardError(text("Nothing was removed. Say --yes to move the template to the Trash.\n"));
    return result.isDone() ? ExitStatus::done : statusOf(result);
}

int TemplateCommand::markDefault()
{
    auto &defaults = settings::standard();
    const QString name = argument(0);
    if (m_request.unset)
        defaults.removeValue(settings::defaultTemplate);
    else if (name.isNull())
        platform::writeToStandardOutput(defaults.string(settings::defaultTemplate) + u'\n');
    else if (isKnown(name))
        defaults.setValue(settings::defaultTemplate, name);
    else
        return ExitStatus::wrongUsage;
    return ExitStatus::done;
}

int TemplateCommand::show()
{
    const QString name = argument(0);
    if (!isKnown(name))
        return ExitStatus::wrongUsage;
    const QString files = VTDataController::filesFolder(name);
    if (!VTFileManager::isDirectoryAtPath(files)) {
        platform::writeToStandardError(text("The template has no folder “Files”: %1\n").arg(files));
        return ExitStatus::failed;
    }
    const TemplateNodes nodes = nodesInFolder(files, nullptr);
    QString lines = name + u'\n';
    drawTree(nodes, {}, lines);
    const QJsonObject object{{"name", platform::forDisplay(name)}, {"items", treeAsJson(nodes)}};
    platform::writeToStandardOutput(m_request.json ? QString::fromUtf8(QJsonDocument(object).toJson()) : lines);
    return ExitStatus::done;
}

int TemplateCommand::import()
{
    int status = ExitStatus::done;
    for (const QString &path : m_request.arguments.mid(1)) {
        const QString bundle = absolutePath(path);
        if (platform::extensionOf(bundle).toLower() != u"tzt") {
            platform::writeToStandardError(
                text("%1 is not a template: its name does not end in “.tzt”.\n").arg(bundle));
            status = ExitStatus::failed;
        } else if (const int one = statusOf(library::addTemplate(bundle)); one != ExitStatus::done) {
            status = one;
        }
    }
    return status;
}

int TemplateCommand::structure()
{
    if (!isKnown(argument(0)))
        return ExitStatus::wrongUsage;
    const QString from = absolutePath(m_request.fromFolder);
    if (!VTFileManager::isDirectoryAtPath(from)) {
        platform::writeToStandardError(text("%1 is not a folder.\n").arg(from));
        return ExitStatus::failed;
    }
    const ImportHost nobody{[] {}, [](const QString &) {},
                            [] {
                            }};
    const bool done = importjobs::createFolderStructure({{from}, VTDataController::filesFolder(argument(0))}, nobody);
    if (!done)
        platform::writeToStandardError(text("Not all folders could be made.\n"));
    return done ? ExitStatus::done : ExitStatus::failed;
}

int TemplateCommand::restore()
{
    if (!m_request.yes) {
        platform::writeToStandardError(text("Nothing was restored. Say --yes to put back the templates that ship with "
                                            "Tessaro; changed ones go to the Trash.\n"));
        return ExitStatus::notOverwritten;
    }
    VTDataController::sharedController().populateDefaultTemplates(VTDataController::Force::Yes);
    return m_presenter.messages().isEmpty() ? ExitStatus::done : ExitStatus::failed;
}
