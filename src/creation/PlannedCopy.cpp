#include "creation/PlannedCopy.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileTree.h"
#include "platform/files/WholeFile.h"
#include "platform/plain/CopyMonitor.h"
#include "support/FileOperations.h"

#include <algorithm>

using platform::Cause;
using platform::joined;
using platform::Outcome;
using platform::TreeFailure;
using platform::TreeFolder;
using platform::TreeItem;

namespace {

constexpr std::chrono::seconds patience{20};

class SecondTry
{
public:
    SecondTry(CreationPlan &plan, const QString &templateFiles, const QString &folder, PlannedCopy &result)
        : m_tree(plan.tree)
        , m_isRuled(plan.ruled != nullptr)
        , m_templateFiles(templateFiles)
        , m_folder(folder)
        , m_result(result)
    {
    }

    void perform(const TreeFailure &failure)
    {
        TreeFolder &folder = m_tree.folders[failure.folder];
        TreeItem &item = folder.items[failure.item];
        // What the tool copies as a whole comes without the template's rules.
        const bool isRuledFolder = m_isRuled && platform::kindOfType(item.type) == platform::FileKind::Folder;
        const bool isPointless = isRuledFolder || (m_rightsWereRefused && failure.outcome.needsRights());
        const Outcome copied = isPointless ? failure.outcome : copy(failure, folder, item);
        if (copied.ok())
            return;
        m_rightsWereRefused = m_rightsWereRefused || copied.needsRights();
        m_result.failures.append(copied);
    }

private:
    Outcome copy(const TreeFailure &failure, TreeFolder &folder, TreeItem &item)
    {
        // On a drive that takes Promo for promo the plan cannot know that the new name is taken; the old one is free.
        if (failure.outcome.is(Cause::Exists) && item.newName != item.name) {
            item.newName = item.name;
            item.remark = static_cast<unsigned char>(PlanItem::Remark::NameTaken);
        }
        const QString from =
            joined(joined(m_templateFiles, m_tree.pathOf(failure.folder)), platform::fromNative(folder.nameOf(item)));
        const QString to =
            joined(joined(m_folder, m_tree.newPathOf(failure.folder)), platform::fromNative(folder.newNameOf(item)));
        const Outcome copied = fileoperations::copyFile(from, to, patience);
        if (!copied.ok())
            return copied;
        static_cast<void>(platform::touchItem(to)); // the tool keeps dates; one that may not be set is an old date
        folder.made[failure.item] = platform::madeItemAt(to);
        if (platform::kindOfType(item.type) == platform::FileKind::Folder)
            m_result.copiedByTool.append(to);
        return copied;
    }

    platform::Tree &m_tree;
    const bool m_isRuled;
    const QString m_templateFiles;
    const QString m_folder;
    PlannedCopy &m_result;
    bool m_rightsWereRefused = false;
};

/// The folders that the plan could not read; the root is nobody's item.
std::vector<TreeFailure> unreadableFolders(const CreationPlan &plan, const QString &templateFiles)
{
    std::vector<TreeFailure> failures;
    plan.tree.forEachFolder([&](std::uint32_t number) {
        const TreeFolder &folder = plan.tree.folders[number];
        if (folder.error != 0 && number != 0)
            failures.push_back({folder.parent, folder.itemInOwn,
                                Outcome::fromNumber(folder.error, joined(templateFiles, plan.tree.pathOf(number)))});
    });
    return failures;
}

/// What cannot have its values is not left there without them.
void fillText(CreationPlan &plan, const RuledText &text, const QString &templateFiles, const QString &folder,
              PlannedCopy &result)
{
    TreeFolder &own = plan.tree.folders[text.folder];
    const TreeItem &item = own.items[text.item];
    const QString name = platform::fromNative(own.nameOf(item));
    const QString from = joined(joined(templateFiles, plan.tree.pathOf(text.folder)), name);
    const QString to =
        joined(joined(folder, plan.tree.newPathOf(text.folder)), platform::fromNative(own.newNameOf(item)));
    if (own.made.empty() || platform::isMissing(to)) // which has been told, or its folder
        return;
    const auto contents = platform::readFile(from, textvalues::largestText);
    const auto filled =
        contents ? textvalues::filled(*contents, name, *text.values) : platform::Result<QByteArray>(contents.outcome());
    Outcome outcome = filled.outcome();
    if (filled && *filled != *contents)
        outcome = platform::overwriteFile(to, *filled);
    if (outcome.ok()) {
        own.made[text.item] = platform::madeItemAt(to);
        return;
    }
    static_cast<void>(platform::removeTree(to)); // said as missing; what is left is the whole text of the template
    own.made[text.item] = platform::madeItemAt(to);
    result.failures.append(Outcome::failure(outcome.cause(), from, outcome.sentence()));
}

} // namespace

void fillTexts(CreationPlan &plan, const QString &templateFiles, const QString &folder,
               const std::atomic<bool> &cancelled, PlannedCopy &result)
{
    for (const RuledText &text : plan.texts) {
        if (cancelled)
            return;
        fillText(plan, text, templateFiles, folder, result);
    }
}

PlannedCopy carryOut(CreationPlan &plan, const QString &templateFiles, const QString &folder,
                     platform::CopyMonitor &monitor)
{
    PlannedCopy result;
    if (plan.tree.folders.front().error != 0) {
        result.failures = plan.unreadable;
        return result;
    }
    platform::TreeCopyReport report = platform::copyTree(templateFiles, folder, plan.tree, &monitor);
    result.losses = report.losses;
    std::vector<TreeFailure> failures = unreadableFolders(plan, templateFiles);
    std::move(report.failures.begin(), report.failures.end(), std::back_inserter(failures));
    if (!report.ended.ok()) { // no tool helps against a full disk; what had failed before is named all the same
        result.failures.append(report.ended);
        for (const TreeFailure &failure : failures)
            result.failures.append(failure.outcome);
        return result;
    }
    std::sort(failures.begin(), failures.end(), [](const TreeFailure &a, const TreeFailure &b) {
        return a.outcome.item() < b.outcome.item(); // of two workers nobody knows which one was first
    });
    const LongWork part(monitor);
    SecondTry secondTry(plan, templateFiles, folder, result);
    for (const TreeFailure &failure : failures) {
        if (monitor.cancelled) {
            result.failures = {Outcome::failure(Cause::Cancelled, folder)};
            break;
        }
        secondTry.perform(failure);
    }
    return result;
}
