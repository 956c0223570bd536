// history and undo.
#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/TerminalOutput.h"
#include "creation/BatchCreation.h"
#include "creation/Undo.h"
#include "platform/base/Interruption.h"
#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "support/JsonPaths.h"
#include "support/LongWork.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(HistoryCommand)
};

bool isAtItsPlace(const Manifest &manifest)
{
    return platform::identityOf(manifest.project) == manifest.identity;
}

QJsonObject asObject(const Manifest &manifest)
{
    QJsonObject object{{"made", manifest.made.toString(Qt::ISODate)}, {"isThere", isAtItsPlace(manifest)}};
    insertPath(object, QStringLiteral("path"), manifest.project);
    insertPath(object, QStringLiteral("name"), manifest.name());
    insertPath(object, QStringLiteral("template"), manifest.templateName);
    return object;
}

/// The latest project of that path or that name; without a word, the latest of all.
const Manifest *wanted(const QList<Manifest> &projects, const QString &word)
{
    const auto found = std::find_if(projects.begin(), projects.end(), [&](const Manifest &manifest) {
        return word.isNull() || manifest.project == platform::absolutePath(word) || manifest.name() == word;
    });
    return found == projects.end() ? nullptr : &*found;
}

int report(const Manifest &manifest, const UndoResult &result)
{
    if (result.outcome.is(platform::Cause::Missing))
        return complain(ExitStatus::failed,
                        Text::tr("The project is not at its place any more: %1").arg(manifest.project));
    if (!result.outcome.ok())
        return complain(result.outcome, Text::tr("%1 could not be undone.").arg(manifest.project));
    if (result.hadOldProject && !result.oldProject.ok())
        complain(
            ExitStatus::failed,
            Text::tr("The project that had its place is still in the Trash: %1").arg(result.oldProject.description()));
    for (const KeptItem &item : result.kept)
        complain(ExitStatus::failed, sentenceOf(item));
    if (!result.kept.isEmpty())
        return complain(ExitStatus::failed, Text::tr("This stays; the rest is in the Trash."));
    print(manifest.project + u'\n');
    return result.oldProject.ok() ? ExitStatus::done : ExitStatus::failed;
}

/// The latest first.
int undoAll(const QList<Manifest> &batch, platform::CopyMonitor &monitor)
{
    const LongWork work(Text::tr("Undoing projects: %L1").arg(batch.size()), monitor);
    int status = ExitStatus::done;
    const auto results = platform::resultInBackground([&] { return undoBatch(batch, monitor); });
    for (qsizetype i = 0; i < results.size(); ++i) {
        if (const int one = report(batch[batch.size() - 1 - i], results[i]); one != ExitStatus::done)
            status = one;
    }
    if (results.size() < batch.size())
        return complain(ExitStatus::stopped,
                        Text::tr("Stopped. Projects that stay: %L1").arg(batch.size() - results.size()));
    return status;
}

} // namespace

int commands::history(const Invocation &invocation)
{
    QJsonArray list;
    for (const Manifest &manifest : recentProjects()) {
        if (invocation.has("--json")) {
            list.append(asObject(manifest));
            continue;
        }
        const QString gone = isAtItsPlace(manifest) ? QString() : Text::tr("  (not there any more)");
        print(manifest.made.toString(QStringLiteral("yyyy-MM-dd hh:mm  ")) + platform::forOneLine(manifest.project) +
              gone + u'\n');
    }
    if (invocation.has("--json"))
        print(list);
    return ExitStatus::done;
}

int commands::undo(const Invocation &invocation)
{
    const QList<Manifest> projects = recentProjects();
    const QString word = invocation.argument(0);
    const Manifest *manifest = wanted(projects, word);
    if (!manifest && word.isNull())
        return complain(ExitStatus::failed, Text::tr("There is no project to undo."));
    if (!manifest)
        return complain(ExitStatus::wrongUsage,
                        Text::tr("“%1” is no project that is remembered. Tessaro history lists them.").arg(word));
    platform::CopyMonitor monitor;
    const platform::Interruption interruption(monitor.cancelled);
    const QList<Manifest> batch = word.isNull() ? batchOf(*manifest, projects) : QList<Manifest>();
    if (batch.size() > 1)
        return undoAll(batch, monitor);
    const LongWork work(Text::tr("Undoing %1").arg(platform::forOneLine(manifest->name())), monitor);
    return report(*manifest, platform::resultInBackground([&] { return undoCreation(*manifest, monitor); }));
}
