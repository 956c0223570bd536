#include "platform/files/TreeCopy.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileCopy.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/FolderReader.h"
#include "platform/files/PathAt.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <mutex>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace platform {
namespace {

/// Files that one worker takes at a time, so that one large flat folder keeps both busy.
constexpr std::size_t filesPerJob = 32;

/// A folder on its way: open on both sides for as long as a job below it still needs it.
struct OpenFolder
{
    UniqueDescriptor source;
    UniqueDescriptor destination;
    struct stat info
    {
    };
    std::string path; ///< below the source folder given by the caller; for messages
    std::atomic<int> unfinished{1};
    bool keepMetadata = true; ///< false for the caller's own destination folder
};
using FolderPtr = std::shared_ptr<OpenFolder>;

struct Entry
{
    std::string from;
    std::string to;
    unsigned char type;
    std::size_t item; ///< index of the caller's entry that this one belongs to
};

struct Job
{
    FolderPtr folder;
    std::vector<Entry> entries; ///< no folders, or exactly one folder
};

class TreeCopier
{
public:
    TreeCopier(QString sourceFolder, QString destinationFolder, const std::vector<NamePair> &names,
               CopyMonitor *monitor)
        : m_sourceFolder(std::move(sourceFolder))
        , m_destinationFolder(std::move(destinationFolder))
        , m_names(names)
        , m_monitor(monitor)
        , m_made(names.size())
        , m_firstFailed(names.size())
    {
    }

    CopyReport run();

private:
    [[nodiscard]] Outcome openRoot(const FolderPtr &root);
    [[nodiscard]] std::vector<Entry> rootEntries(const FolderPtr &root);
    [[nodiscard]] bool wouldCopyIntoItself(const FolderPtr &root, const Entry &entry) const;
    void work();
    void perform(Job job);
    void copyFiles(const FolderPtr &folder, const std::vector<Entry> &entries);
    void descend(const FolderPtr &parent, const Entry &entry);
    void distribute(const FolderPtr &folder, std::vector<Entry> entries);
    void finish(const FolderPtr &folder, std::size_t item);
    void push(Job job);
    void fail(std::size_t item, const Outcome &outcome);
    [[nodiscard]] Outcome failureAt(int error, const std::string &path) const;
    [[nodiscard]] bool isPointless(std::size_t item) const { return item >= m_firstFailed.load(); }
    void note(const EntryResult &result, const OpenFolder &folder, const Entry &entry);
    void removeWhatFailed();

    const QString m_sourceFolder;
    const QString m_destinationFolder;
    const std::vector<NamePair> &m_names;
    CopyMonitor *const m_monitor;          ///< null when nobody watches
    std::vector<std::atomic<char>> m_made; ///< per caller's entry: this call made something under its name
    std::atomic<std::size_t> m_firstFailed;

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Job> m_jobs; ///< a stack: depth first, which bounds the open folders
    int m_busy = 0;
    CopyReport m_report;
};

std::string below(const std::string &path, const std::string &name)
{
    return path.empty() ? name : path + '/' + name;
}

CopyReport TreeCopier::run()
{
    raiseDescriptorLimit();
    const auto root = std::make_shared<OpenFolder>();
    m_report.outcome = openRoot(root);
    if (!m_report.outcome.ok())
        return m_report;
    root->keepMetadata = false;
    distribute(root, rootEntries(root));
    finish(root, 0);
    {
        // A copy of one small file is over sooner than a thread is started.
        const bool worthASecond = m_jobs.size() > 1 || (m_jobs.size() == 1 && m_jobs[0].entries[0].type == DT_DIR);
        std::thread second;
        if (worthASecond)
            second = std::thread([this] { work(); });
        work();
        if (second.joinable())
            second.join();
    }
    m_report.copied = m_firstFailed;
    removeWhatFailed();
    return m_report;
}

Outcome TreeCopier::openRoot(const FolderPtr &root)
{
    // The caller's two folders may themselves be reached through links; only what lies below is never followed.
    const PathAt from(m_sourceFolder);
    root->source.reset(openat(from.folder(), from.name(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!root->source.isOpen()) // a folder that may be entered but not listed still gives its named entries
        root->source.reset(openat(from.folder(), from.name(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!root->source.isOpen())
        return Outcome::fromErrno(m_sourceFolder);
    const PathAt to(m_destinationFolder);
    root->destination.reset(openat(to.folder(), to.name(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    return root->destination.isOpen() ? Outcome() : Outcome::fromErrno(m_destinationFolder);
}

std::vector<Entry> TreeCopier::rootEntries(const FolderPtr &root)
{
    std::vector<Entry> entries;
    entries.reserve(m_names.size());
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        struct stat info;
        Entry entry{m_names[i].from.toStdString(), m_names[i].to.toStdString(), DT_UNKNOWN, i};
        if (fstatat(root->source.get(), entry.from.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0) {
            fail(i, failureAt(errno, entry.from));
            break;
        }
        entry.type = static_cast<unsigned char>(IFTODT(info.st_mode));
        if (entry.type == DT_DIR && wouldCopyIntoItself(root, entry)) {
            fail(i, Outcome::failure(Cause::IntoItself, joined(m_sourceFolder, fromNative(entry.from))));
            break;
        }
        entries.push_back(std::move(entry));
    }
    return entries;
}

bool TreeCopier::wouldCopyIntoItself(const FolderPtr &root, const Entry &entry) const
{
    struct stat source;
    if (fstatat(root->source.get(), entry.from.c_str(), &source, AT_SYMLINK_NOFOLLOW) != 0)
        return false;
    UniqueDescriptor ancestor(openat(root->destination.get(), ".", O_PATH | O_DIRECTORY | O_CLOEXEC));
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

void TreeCopier::push(Job job)
{
    const std::scoped_lock lock(m_mutex);
    m_jobs.push_back(std::move(job));
    m_changed.notify_one();
}

void TreeCopier::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return !m_jobs.empty() || m_busy == 0; });
        if (m_jobs.empty())
            return;
        Job job = std::move(m_jobs.back());
        m_jobs.pop_back();
        ++m_busy;
        lock.unlock();
        perform(std::move(job));
        lock.lock();
        if (--m_busy == 0)
            m_changed.notify_all();
    }
}

void TreeCopier::perform(Job job)
{
    if (job.entries[0].type == DT_DIR) {
        if (!isPointless(job.entries[0].item))
            descend(job.folder, job.entries[0]);
        return;
    }
    copyFiles(job.folder, job.entries);
    finish(job.folder, job.entries[0].item);
}

void TreeCopier::copyFiles(const FolderPtr &folder, const std::vector<Entry> &entries)
{
    for (const Entry &entry : entries) {
        if (isPointless(entry.item))
            return;
        note(copyEntry(folder->source.get(), entry.from.c_str(), folder->destination.get(), entry.to.c_str(),
                       entry.type, m_monitor),
             *folder, entry);
    }
}

/// Makes the folders among the entries, then hands out one job for each of them and one for each batch of files. The
/// folders are all made before the jobs run, so that nothing changes the parent's own dates after finish().
void TreeCopier::distribute(const FolderPtr &folder, std::vector<Entry> entries)
{
    std::vector<Job> jobs;
    std::vector<Entry> batch;
    const auto handOutBatch = [&] {
        if (batch.empty())
            return;
        ++folder->unfinished;
        jobs.push_back({folder, std::exchange(batch, {})});
    };
    for (Entry &entry : entries) {
        if (isPointless(entry.item))
            break;
        if (entry.type != DT_DIR) {
            batch.push_back(std::move(entry));
            if (batch.size() == filesPerJob)
                handOutBatch();
        } else {
            const bool made = mkdirat(folder->destination.get(), entry.to.c_str(), 0700) == 0;
            note({made ? 0 : errno, made, false}, *folder, entry);
            if (made)
                jobs.push_back({folder, {std::move(entry)}});
        }
    }
    handOutBatch();
    // Last in, first out: handed over backwards, the jobs are begun in the order of the entries.
    std::for_each(jobs.rbegin(), jobs.rend(), [this](Job &job) { push(std::move(job)); });
}

void TreeCopier::descend(const FolderPtr &parent, const Entry &entry)
{
    const auto folder = std::make_shared<OpenFolder>();
    folder->path = below(parent->path, entry.from);
    folder->source = openFolder(parent->source.get(), entry.from.c_str());
    if (!folder->source.isOpen() || fstat(folder->source.get(), &folder->info) != 0)
        return fail(entry.item, failureAt(errno, folder->path));
    folder->destination = openFolder(parent->destination.get(), entry.to.c_str());
    std::vector<RawEntry> raw;
    if (!folder->destination.isOpen() || !readFolder(folder->source.get(), raw))
        return fail(entry.item, failureAt(errno, folder->path));
    std::vector<Entry> entries;
    entries.reserve(raw.size());
    for (RawEntry &found : raw)
        entries.push_back({found.name, std::move(found.name), found.type, entry.item});
    distribute(folder, std::move(entries));
    finish(folder, entry.item);
}

void TreeCopier::finish(const FolderPtr &folder, std::size_t item)
{
    if (--folder->unfinished > 0 || !folder->keepMetadata || isPointless(item))
        return;
    const EntryResult result = copyMetadata(folder->source.get(), folder->destination.get(), folder->info, false);
    note(result, *folder, {"", "", DT_DIR, item});
}

void TreeCopier::note(const EntryResult &result, const OpenFolder &folder, const Entry &entry)
{
    if (result.made)
        m_made[entry.item] = 1;
    if (m_monitor && m_monitor->cancelled && result.error == 0)
        return fail(entry.item, failureAt(ECANCELED, below(folder.path, entry.from)));
    if (m_monitor && !entry.from.empty()) // with no name it is a folder's metadata, and the folder has been counted
        ++m_monitor->items;
    const std::string path =
        result.error != 0 || result.attributesLost ? below(folder.path, entry.from) : std::string();
    if (result.error != 0)
        return fail(entry.item, failureAt(result.error, path));
    const std::scoped_lock lock(m_mutex);
    if (result.attributesLost && m_report.attributesLost.isNull())
        m_report.attributesLost = joined(m_sourceFolder, fromNative(path));
}

Outcome TreeCopier::failureAt(int error, const std::string &path) const
{
    return Outcome::fromNumber(error, joined(m_sourceFolder, fromNative(path)));
}

void TreeCopier::fail(std::size_t item, const Outcome &outcome)
{
    const std::scoped_lock lock(m_mutex);
    if (item > m_firstFailed || (item == m_firstFailed && !m_report.outcome.ok()))
        return;
    m_firstFailed = item;
    m_report.outcome = outcome;
}

void TreeCopier::removeWhatFailed()
{
    for (std::size_t i = m_firstFailed; i < m_names.size(); ++i) {
        if (m_made[i] == 0)
            continue;
        const Outcome removed = removeOwnTree(joined(m_destinationFolder, fromNative(m_names[i].to)));
        static_cast<void>(removed); // on a drive that has vanished there is nothing left to remove; the failure is told
    }
}

} // namespace

CopyReport copyEntries(const QString &sourceFolder, const QString &destinationFolder,
                       const std::vector<NamePair> &entries, CopyMonitor *monitor)
{
    return TreeCopier(sourceFolder, destinationFolder, entries, monitor).run();
}

Outcome copyItem(const QString &source, const QString &destination, QString *attributesLost, CopyMonitor *monitor)
{
    const std::vector<NamePair> one{{toNative(lastComponent(source)), toNative(lastComponent(destination))}};
    const CopyReport report = copyEntries(parentPath(source), parentPath(destination), one, monitor);
    if (attributesLost)
        *attributesLost = report.attributesLost;
    const bool isTaken = report.outcome.is(Cause::Exists) && report.outcome.item() == source;
    return isTaken ? Outcome::fromNumber(EEXIST, destination) : report.outcome;
}

} // namespace platform
