// templates and template: what the template pane does, without a window. Questions are answered by --yes.
#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/TerminalOutput.h"
#include "commands/TreeDrawing.h"
#include "platform/base/NativePath.h"
#include "support/JsonPaths.h"
#include "support/Settings.h"
#include "support/VTFileManager.h"
#include "templates/EditingGuard.h"
#include "templates/ImportJobs.h"
#include "templates/TemplateChoice.h"
#include "templates/TemplateLibrary.h"
#include "templates/TemplateNode.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

using platform::Cause;
using platform::Outcome;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TemplateCommand)
};

constexpr int labelMask = 0x0E;

/// The library's templates, read anew; what went wrong on the way has been complained about.
platform::Result<QStringList> readLibrary()
{
    auto &store = VTDataController::sharedController();
    if (const Outcome read = store.populateTemplates(); !read.ok())
        return read;
    return store.templates();
}

/// Good when the library can be read and holds the template.
Outcome known(const QString &name)
{
    const auto names = readLibrary();
    if (!names)
        return names.outcome();
    if (names->contains(name))
        return {};
    return Outcome::failure(
        Cause::Invalid, {},
        Text::tr("There is no template “%1”. There are: %2.").arg(name, names->join(QStringLiteral(", "))));
}

/// A change has said itself what went wrong; the path of what was changed is printed.
int finish(const library::Change &change)
{
    if (change.outcome.ok() && change.isChanged)
        print(VTDataController::bundlePath(change.name) + u'\n');
    return exitStatusOf(change.outcome);
}

QJsonArray asJson(const TemplateNodes &nodes)
{
    QJsonArray list;
    for (const auto &node : nodes) {
        QJsonObject entry{{"folder", node->isFolderItem()}};
        insertPath(entry, QStringLiteral("name"), node->name());
        if (const char *label = VTFileManager::labelKey(node->colorIndex() & labelMask))
            entry.insert("label", QLatin1String(label));
        if (node->isFolderItem())
            entry.insert("children", asJson(static_cast<const VTFolderItem &>(*node).children()));
        list.append(entry);
    }
    return list;
}

void addDrawn(const TemplateNodes &nodes, int depth, QList<DrawnItem> &items)
{
    for (const auto &node : nodes) {
        const QString name = platform::forOneLine(node->name());
        items.append({depth, node->isFolderItem() ? name + u'/' : name});
        if (node->isFolderItem())
            addDrawn(static_cast<const VTFolderItem &>(*node).children(), depth + 1, items);
    }
}

} // namespace

int commands::listTemplates(const Invocation &invocation)
{
    const auto names = readLibrary();
    const QString marked = settings::defaultTemplate.text();
    const QString next = chosenTemplate(names.valueOr({}));
    QJsonArray list;
    QString lines;
    for (const QString &name : names.valueOr({})) {
        QJsonObject entry{{"default", name == marked}, {"next", name == next}};
        insertPath(entry, QStringLiteral("name"), name);
        list.append(entry);
        lines += (name == marked ? QStringLiteral("* ") : QStringLiteral("  ")) + name + u'\n';
    }
    if (invocation.has("--json"))
        print(list);
    else
        print(lines);
    return names ? ExitStatus::done : complain(names.outcome());
}

int commands::newTemplate(const Invocation &invocation)
{
    const QString wanted = invocation.argument(0);
    const QString name = VTFileManager::validateFilename(wanted);
    if (name != wanted)
        return complain(
            ExitStatus::wrongUsage,
            Text::tr("“%1” cannot be a template's name. Leave out slashes, colons, and dots at the beginning.")
                .arg(wanted));
    const auto names = readLibrary();
    if (!names)
        return complain(names.outcome());
    if (names->contains(name))
        return complain(ExitStatus::notOverwritten, Text::tr("There is a template “%1” already.").arg(name));
    return finish(library::createTemplate(name));
}

int commands::duplicateTemplate(const Invocation &invocation)
{
    const Outcome isKnown = known(invocation.argument(0));
    return isKnown.ok() ? finish(library::duplicateTemplate(invocation.argument(0))) : complain(isKnown);
}

int commands::renameTemplate(const Invocation &invocation)
{
    if (!studioAllowsEditing())
        return ExitStatus::notOverwritten;
    const Outcome isKnown = known(invocation.argument(0));
    return isKnown.ok() ? finish(library::renameTemplate(invocation.argument(0), invocation.argument(1)))
                        : complain(isKnown);
}

int commands::removeTemplate(const Invocation &invocation)
{
    if (const Outcome isKnown = known(invocation.argument(0)); !isKnown.ok())
        return complain(isKnown);
    const library::Change change = library::removeTemplate(invocation.argument(0));
    if (change.outcome.is(Cause::Declined))
        return complain(ExitStatus::notOverwritten,
                        Text::tr("Nothing was removed. Say --yes to move the template to the Trash."));
    return exitStatusOf(change.outcome);
}

int commands::defaultTemplate(const Invocation &invocation)
{
    const QString name = invocation.argument(0);
    const bool unset = invocation.has("--unset");
    if (name.isNull() && !unset) {
        print(settings::defaultTemplate.text() + u'\n');
        return ExitStatus::done;
    }
    if (!name.isNull() && unset)
        return complain(ExitStatus::wrongUsage, Text::tr("--unset belongs to template default, without a name."));
    if (!editingIsAllowed())
        return complain(ExitStatus::notOverwritten,
                        Text::tr("Administrator rights are required here, and were refused."));
    const Outcome isKnown = unset ? Outcome() : known(name);
    if (!isKnown.ok())
        return complain(isKnown);
    const Outcome stored = unset ? settings::defaultTemplate.reset() : settings::defaultTemplate.store(name);
    return stored.ok() ? ExitStatus::done : complain(stored);
}

int commands::showTemplate(const Invocation &invocation)
{
    const QString name = invocation.argument(0);
    if (const Outcome isKnown = known(name); !isKnown.ok())
        return complain(isKnown);
    const QString files = VTDataController::filesFolder(name);
    if (!VTFileManager::isDirectoryAtPath(files))
        return complain(ExitStatus::failed, Text::tr("The template has no folder “Files”: %1").arg(files));
    const ReadNodes read = readNodes(files);
    if (invocation.has("--json")) {
        QJsonObject object{{"items", asJson(read.nodes)}};
        insertPath(object, QStringLiteral("name"), name);
        print(object);
    } else {
        QList<DrawnItem> items;
        addDrawn(read.nodes, 0, items);
        print(drawnTree(platform::forOneLine(name), items));
    }
    int status = ExitStatus::done;
    for (const Outcome &unreadable : read.unreadable)
        status = complain(unreadable, Text::tr("This folder of the template cannot be read:"));
    return status;
}

int commands::importTemplates(const Invocation &invocation)
{
    if (!studioAllowsEditing())
        return ExitStatus::notOverwritten;
    int status = ExitStatus::done;
    for (const QString &path : invocation.arguments) {
        const QString bundle = platform::absolutePath(path);
        const int one =
            library::isTemplateFile(bundle)
                ? finish(library::addTemplate(bundle))
                : complain(
                      ExitStatus::failed,
                      Text::tr("%1 is not a template: its name ends neither in “.tzt” nor in “.tzt.zip”.").arg(bundle));
        if (one != ExitStatus::done)
            status = one;
    }
    return status;
}

int commands::exportTemplate(const Invocation &invocation)
{
    const QString name = invocation.argument(0);
    if (const Outcome isKnown = known(name); !isKnown.ok())
        return complain(isKnown);
    const QString given = invocation.argument(1).isNull() ? name : invocation.argument(1);
    const QString file = platform::absolutePath(library::exportFile(name, given));
    if (platform::kindOf(file) != platform::FileKind::Missing)
        return complain(ExitStatus::notOverwritten, Text::tr("%1 exists already. Please say another name.").arg(file));
    if (const Outcome exported = library::exportTemplate(name, file); !exported.ok()) // it has said why
        return exported.is(Cause::Cancelled) ? ExitStatus::stopped : ExitStatus::failed;
    print(file + u'\n');
    return ExitStatus::done;
}

int commands::importStructure(const Invocation &invocation)
{
    if (const Outcome isKnown = known(invocation.argument(0)); !isKnown.ok())
        return complain(isKnown);
    const QString from = platform::absolutePath(invocation.value("--from"));
    if (!VTFileManager::isDirectoryAtPath(from))
        return complain(ExitStatus::failed, Text::tr("%1 is not a folder.").arg(from));
    const QString bundle = VTDataController::bundlePath(invocation.argument(0));
    for (const QString &path : {bundle, VTDataController::filesFolder(invocation.argument(0))}) {
        if (platform::kindOf(path) == platform::FileKind::Link)
            return complain(ExitStatus::failed,
                            Text::tr("%1 is a link; what it leads to is not changed from here.").arg(path));
        if (!VTFileManager::isDirectoryAtPath(path))
            return complain(ExitStatus::failed, Text::tr("This is no template, it lacks the folder %1.").arg(path));
    }
    const ImportHost nobody{[] {}, [](const QString &) {},
                            [] {
                            }};
    const Outcome made =
        importjobs::createFolderStructure({{from}, VTDataController::filesFolder(invocation.argument(0))}, nobody);
    if (made.ok())
        return ExitStatus::done;
    complain(made, Text::tr("Not all folders could be made."));
    return ExitStatus::failed;
}

int commands::restoreTemplates(const Invocation &invocation)
{
    if (!studioAllowsEditing())
        return ExitStatus::notOverwritten;
    if (!invocation.has("--yes"))
        return complain(ExitStatus::notOverwritten,
                        Text::tr("Nothing was restored. Say --yes to put back the templates that ship with Tessaro; "
                                 "changed ones go to the Trash."));
    const Outcome restored =
        VTDataController::sharedController().populateDefaultTemplates(VTDataController::Force::Yes);
    if (restored.ok())
        return ExitStatus::done;
    complain(restored, Text::tr("Not all templates could be restored."));
    return ExitStatus::failed;
}
