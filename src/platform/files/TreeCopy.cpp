#include "platform/files/TreeCopy.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/JobStack.h"
#include "platform/files/PathAt.h"
#include "platform/plain/FileCopy.h"
#include "platform/plain/FolderReader.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

/// Files that one worker takes at a time: few, so that a flat folder keeps all busy, and a share's waiting is noticed
/// soon.
constexpr std::uint32_t filesPerJob = 8;
/// So many items that failed, and there is no hope for the others.
constexpr std::size_t mostFailures = 1000;

/// A folder on its way: open on both sides for as long as a job below it still needs it.
struct OpenFolder
{
    UniqueDescriptor source;
    UniqueDescriptor destination;
    struct stat info
    {
    };
    std::string path;            ///< below the source folder given by the caller; for messages
    TreeFolder *contents = &own; ///< what is copied of it
    TreeFolder own;              ///< where no tree was given, and it is read when its turn comes
    std::uint32_t number = 0;    ///< in the tree given
    std::size_t entry = 0;       ///< which of the caller's entries it belongs to
    std::atomic<int> unfinished{1};
};
using FolderPtr = std::shared_ptr<OpenFolder>;

/// Items of one folder from the first to before the last: exactly one folder, or files with folders between them that
/// have jobs of their own.
struct Job
{
    FolderPtr folder;
    std::uint32_t first;
    std::uint32_t last;
};

class TreeCopier
{
public:
    TreeCopier(QString sourceFolder, QString destinationFolder, CopyMonitor *monitor)
        : m_sourceFolder(std::move(sourceFolder))
        , m_destinationFolder(std::move(destinationFolder))
        , m_monitor(monitor)
    {
    }

    CopyReport run(const std::vector<NamePair> &names);
    TreeCopyReport run(Tree &tree);

private:
    [[nodiscard]] Outcome openRoot();
    void takeEntries(const std::vector<NamePair> &names);
    void workOff();
    [[nodiscard]] bool wouldCopyIntoItself(const char *entry) const;
    void perform(const Job &job);
    void copyFiles(const OpenFolder &folder, std::uint32_t first, std::uint32_t last);
    void descend(const FolderPtr &parent, std::uint32_t item);
    void distribute(const FolderPtr &folder);
    [[nodiscard]] bool makeFolder(const OpenFolder &parent, std::uint32_t item);
    void finish(const FolderPtr &folder);
    void fail(const OpenFolder &folder, std::uint32_t item, int error);
    void fail(std::size_t entry, const Outcome &outcome);
    void failInTree(std::uint32_t folder, std::uint32_t item, const Outcome &outcome);
    [[nodiscard]] bool isPointless(const OpenFolder &folder, std::uint32_t item) const;
    [[nodiscard]] std::size_t entryOf(const OpenFolder &folder, std::uint32_t item) const;
    [[nodiscard]] QString pathOf(const OpenFolder &folder, std::uint32_t item) const;
    void note(const EntryResult &result, const OpenFolder &folder, std::uint32_t item);
    void noteLosses(unsigned lost, const QString &path);
    void removeWhatFailed();

    const QString m_sourceFolder;
    const QString m_destinationFolder;
    CopyMonitor *const m_monitor; ///< null when nobody watches
    Tree *m_tree = nullptr;       ///< null: the entries, each read when its turn comes
    Manner m_manner = Manner::Exact;
    PlaceRights m_rights;
    FolderPtr m_root = std::make_shared<OpenFolder>();
    JobStack<Job> m_jobs;

    std::vector<std::atomic<char>> m_made;      ///< per caller's entry: this call made something under its name
    std::atomic<std::size_t> m_firstFailed = 0; ///< of the caller's entries
    std::atomic<bool> m_isOver = false;         ///< of a tree
    std::mutex m_mutex;                         ///< for what follows
    Outcome m_outcome;
    Losses m_losses;
    std::vector<TreeFailure> m_failures;
};

std::string below(const std::string &path, const char *name)
{
    return path.empty() ? std::string(name) : path + '/' + name;
}

CopyReport TreeCopier::run(const std::vector<NamePair> &names)
{
    m_made = std::vector<std::atomic<char>>(names.size());
    m_firstFailed = names.size();
    m_outcome = openRoot();
    if (!m_outcome.ok())
        return {0, m_outcome, {}};
    takeEntries(names);
    workOff();
    removeWhatFailed();
    return {m_firstFailed, m_outcome, m_losses};
}

TreeCopyReport TreeCopier::run(Tree &tree)
{
    m_tree = &tree;
    m_manner = Manner::Fresh;
    m_root->contents = &tree.folders.front();
    m_outcome = openRoot();
    if (!m_outcome.ok())
        return {{}, m_outcome, {}};
    m_rights = placeRightsOf(openFolder(m_root->destination.get(), ".").get());
    workOff();
    return {std::move(m_failures), m_outcome, m_losses};
}

void TreeCopier::workOff()
{
    raiseDescriptorLimit();
    distribute(m_root);
    // A copy of one small file is over sooner than a thread is started.
    const std::deque<Job> &jobs = m_jobs.waiting();
    const bool worthASecond =
        jobs.size() > 1 || (jobs.size() == 1 && m_root->contents->items[jobs[0].first].type == DT_DIR);
    m_jobs.workOff([this](const Job &job) { perform(job); }, worthASecond ? Workers::Two : Workers::One);
}

Outcome TreeCopier::openRoot()
{
    // The caller's two folders may themselves be reached through links; only what lies below is never followed.
    const PathAt from(m_sourceFolder);
    m_root->source.reset(openat(from.folder(), from.name(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!m_root->source.isOpen()) // a folder that may be entered but not listed still gives its named entries
        m_root->source.reset(openat(from.folder(), from.name(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!m_root->source.isOpen())
        return Outcome::fromErrno(m_sourceFolder);
    const PathAt to(m_destinationFolder);
    m_root->destination.reset(openat(to.folder(), to.name(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    return m_root->destination.isOpen() ? Outcome() : Outcome::fromErrno(m_destinationFolder);
}

void TreeCopier::takeEntries(const std::vector<NamePair> &names)
{
    TreeFolder &root = m_root->own;
    for (const NamePair &name : names) {
        struct stat info;
        const bool isThere = fstatat(m_root->source.get(), name.from.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0;
        const int error = isThere ? 0 : errno;
        root.add(name.from.constData(),
                 static_cast<unsigned char>(isThere ? IFTODT(info.st_mode) : mode_t{DT_UNKNOWN}));
        const auto item = static_cast<std::uint32_t>(root.items.size() - 1);
        if (name.to != name.from)
            root.rename(root.items[item], {name.to.constData(), static_cast<std::size_t>(name.to.size())});
        if (!isThere)
            return fail(*m_root, item, error);
        if (root.items[item].type == DT_DIR && wouldCopyIntoItself(name.from.constData()))
            return fail(item, Outcome::failure(Cause::IntoItself, pathOf(*m_root, item)));
    }
}

bool TreeCopier::wouldCopyIntoItself(const char *entry) const
{
    struct stat source;
    if (fstatat(m_root->source.get(), entry, &source, AT_SYMLINK_NOFOLLOW) != 0)
        return false;
    UniqueDescriptor ancestor(openat(m_root->destination.get(), ".", O_PATH | O_DIRECTORY | O_CLOEXEC));
    struct stat previous
    {
    };
    for (struct stat info; ancestor.isOpen() && fstat(ancestor.get(), &info) == 0; previous = info) {
        if (info.st_dev == source.st_dev && info.st_ino == source.st_ino)
            return true;
        if (info.st_dev == previous.st_dev && info.st_ino == previous.st_ino)
            return false; // the root folder is its own parent
        ancestor.reset(openat(ancestor.get(), "..", O_PATH | O_DIRECTORY | O_CLOEXEC));
    }
    return false;
}

void TreeCopier::perform(const Job &job)
{
    const bool isFolder = job.last == job.first + 1 && job.folder->contents->items[job.first].type == DT_DIR;
    if (!isFolder)
        copyFiles(*job.folder, job.first, job.last);
    else if (!isPointless(*job.folder, job.first))
        descend(job.folder, job.first);
    finish(job.folder);
}

void TreeCopier::copyFiles(const OpenFolder &folder, std::uint32_t first, std::uint32_t last)
{
    const TreeFolder &contents = *folder.contents;
    for (std::uint32_t i = first; i < last; ++i) {
        const TreeItem &item = contents.items[i];
        if (item.type == DT_DIR)
            continue;
        if (isPointless(folder, i))
            return;
        note(copyEntry({folder.source.get(), contents.nameOf(item), folder.destination.get(), contents.newNameOf(item),
                        item.type, m_manner, m_monitor}),
             folder, i);
    }
}

/// Makes the folders among the items, then hands out one job for each of them and one for each batch of files. The
/// folders are all made before the jobs run, so that nothing changes the parent's own dates after finish().
void TreeCopier::distribute(const FolderPtr &folder)
{
    TreeFolder &contents = *folder->contents;
    if (m_tree)
        contents.made.resize(contents.items.size());
    const auto count = static_cast<std::uint32_t>(contents.items.size());
    std::vector<Job> jobs;
    std::uint32_t first = 0;
    std::uint32_t files = 0;
    const auto handOutBatch = [&](std::uint32_t last) {
        if (files > 0)
            jobs.push_back({folder, first, last});
        first = last;
        files = 0;
    };
    for (std::uint32_t i = 0; i < count; ++i) {
        if (isPointless(*folder, i)) {
            handOutBatch(i);
            break;
        }
        if (contents.items[i].type == DT_DIR) {
            if (makeFolder(*folder, i))
                jobs.push_back({folder, i, i + 1});
        } else if (++files == filesPerJob) {
            handOutBatch(i + 1);
        }
    }
    handOutBatch(count);
    folder->unfinished += static_cast<int>(jobs.size());
    // Last in, first out: handed over backwards, the jobs are begun in the order of the entries.
    std::for_each(jobs.rbegin(), jobs.rend(), [this](Job &job) { m_jobs.push(std::move(job)); });
    finish(folder);
}

/// False where it could not be made, or is not to be: a folder that was not to be read is not made as an empty one.
bool TreeCopier::makeFolder(const OpenFolder &parent, std::uint32_t item)
{
    const TreeItem &made = parent.contents->items[item];
    if (m_tree && m_tree->folders[made.folder].error != 0)
        return false;
    const bool isMade = mkdirat(parent.destination.get(), parent.contents->newNameOf(made), 0700) == 0;
    note({isMade ? 0 : errno, isMade}, parent, item);
    return isMade;
}

void TreeCopier::descend(const FolderPtr &parent, std::uint32_t item)
{
    const auto folder = std::make_shared<OpenFolder>();
    const TreeFolder &above = *parent->contents;
    const char *name = above.nameOf(above.items[item]);
    const char *newName = above.newNameOf(above.items[item]);
    folder->path = below(parent->path, name);
    folder->entry = entryOf(*parent, item);
    folder->number = above.items[item].folder;
    if (m_tree)
        folder->contents = &m_tree->folders[folder->number];
    folder->source = openFolder(parent->source.get(), name);
    if (folder->source.isOpen() && fstat(folder->source.get(), &folder->info) == 0)
        folder->destination = openFolder(parent->destination.get(), newName);
    const bool isRead = folder->destination.isOpen() &&
                        (m_tree || readFolder(folder->source.get(), [&](const char *found, unsigned char type) {
                             folder->own.add(found, type);
                         }));
    if (!isRead) {
        const int error = errno;
        if (m_tree) // it is as empty as it was made
            unlinkat(parent->destination.get(), newName, AT_REMOVEDIR);
        return fail(*parent, item, error);
    }
    if (m_monitor)
        m_monitor->enter(name);
    distribute(folder);
}

/// One of the folder's jobs is done. With the last of them it gets its mode and its dates: all in it is made by then,
/// and the folders in it are open.
void TreeCopier::finish(const FolderPtr &folder)
{
    if (--folder->unfinished > 0 || folder == m_root || isPointless(*folder, 0))
        return;
    const EntryResult result =
        finishFolder(folder->source.get(), folder->destination.get(), folder->info, m_manner, m_rights);
    const QString path =
        result.error != 0 || result.lost != LostNothing ? joined(m_sourceFolder, fromNative(folder->path)) : QString();
    noteLosses(result.lost, path);
    const Outcome failure = Outcome::fromNumber(result.error, path);
    if (m_tree)
        m_tree->folders[folder->contents->parent].made[folder->contents->itemInOwn] = result.made;
    if (!failure.ok())
        m_tree ? failInTree(folder->contents->parent, folder->contents->itemInOwn, failure)
               : fail(folder->entry, failure);
}

std::size_t TreeCopier::entryOf(const OpenFolder &folder, std::uint32_t item) const
{
    return &folder == m_root.get() ? item : folder.entry;
}

bool TreeCopier::isPointless(const OpenFolder &folder, std::uint32_t item) const
{
    return m_tree ? m_isOver.load() : entryOf(folder, item) >= m_firstFailed;
}

QString TreeCopier::pathOf(const OpenFolder &folder, std::uint32_t item) const
{
    const TreeFolder &contents = *folder.contents;
    return joined(m_sourceFolder, fromNative(below(folder.path, contents.nameOf(contents.items[item]))));
}

void TreeCopier::note(const EntryResult &result, const OpenFolder &folder, std::uint32_t item)
{
    if (result.isMade && !m_tree)
        m_made[entryOf(folder, item)] = 1;
    if (m_tree)
        folder.contents->made[item] = result.made;
    if (result.error != 0 && result.isMade && m_tree)
        unlinkat(folder.destination.get(), folder.contents->newNameOf(folder.contents->items[item]), 0);
    if (m_monitor && m_monitor->cancelled && result.error == 0)
        return fail(folder, item, ECANCELED);
    if (m_monitor)
        ++m_monitor->items;
    if (result.error != 0)
        return fail(folder, item, result.error);
    noteLosses(result.lost, result.lost ? pathOf(folder, item) : QString());
}

void TreeCopier::noteLosses(unsigned lost, const QString &path)
{
    if (lost == LostNothing)
        return;
    const std::scoped_lock lock(m_mutex);
    for (const auto &[loss, lostBy] : {std::pair(LostLabels, &m_losses.labels),
                                       {LostMode, &m_losses.modes},
                                       {LostOwner, &m_losses.owners},
                                       {LostDates, &m_losses.dates}}) {
        if ((lost & loss) != 0)
            lostBy->add(path);
    }
}

void TreeCopier::fail(const OpenFolder &folder, std::uint32_t item, int error)
{
    const Outcome outcome = Outcome::fromNumber(error, pathOf(folder, item));
    m_tree ? failInTree(folder.number, item, outcome) : fail(entryOf(folder, item), outcome);
}

void TreeCopier::fail(std::size_t entry, const Outcome &outcome)
{
    const std::scoped_lock lock(m_mutex);
    if (entry > m_firstFailed || (entry == m_firstFailed && !m_outcome.ok()))
        return;
    m_firstFailed = entry;
    m_outcome = outcome;
}

void TreeCopier::failInTree(std::uint32_t folder, std::uint32_t item, const Outcome &outcome)
{
    const bool concernsAll = outcome.is(Cause::Cancelled) || outcome.is(Cause::NoSpace) || outcome.is(Cause::ReadOnly);
    m_tree->folders[folder].made[item] = {};
    const std::scoped_lock lock(m_mutex);
    if (!concernsAll)
        m_failures.push_back({folder, item, outcome});
    if (m_outcome.ok() && (concernsAll || m_failures.size() >= mostFailures))
        m_outcome = outcome;
    m_isOver = m_isOver || !m_outcome.ok();
}

void TreeCopier::removeWhatFailed()
{
    for (std::size_t i = m_firstFailed; i < m_made.size(); ++i) {
        if (m_made[i] == 0)
            continue;
        const TreeFolder &root = m_root->own;
        const Outcome removed = removeOwnTree(joined(m_destinationFolder, fromNative(root.newNameOf(root.items[i]))));
        static_cast<void>(removed); // on a drive that has vanished there is nothing left to remove; the failure is told
    }
}

} // namespace

CopyReport copyEntries(const QString &sourceFolder, const QString &destinationFolder,
                       const std::vector<NamePair> &entries, CopyMonitor *monitor)
{
    return TreeCopier(sourceFolder, destinationFolder, monitor).run(entries);
}

void Loss::add(const QString &item)
{
    if (++count <= named)
        items.append(item);
}

Outcome copyItem(const QString &source, const QString &destination, Losses *losses, CopyMonitor *monitor)
{
    const std::vector<NamePair> one{{toNative(lastComponent(source)), toNative(lastComponent(destination))}};
    const CopyReport report = copyEntries(parentPath(source), parentPath(destination), one, monitor);
    if (losses)
        *losses = report.losses;
    const bool isTaken = report.outcome.is(Cause::Exists) && report.outcome.item() == source;
    return isTaken ? Outcome::fromNumber(EEXIST, destination) : report.outcome;
}

TreeCopyReport copyTree(const QString &sourceFolder, const QString &destinationFolder, Tree &tree, CopyMonitor *monitor)
{
    return TreeCopier(sourceFolder, destinationFolder, monitor).run(tree);
}

} // namespace platform
