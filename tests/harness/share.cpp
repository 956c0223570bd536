// Stands in for a network share: a file system in user space that passes everything on to a folder, takes its time for
// each call, and counts them. Only who may open /dev/fuse can mount it.
//
//   share FOLDER MOUNTPOINT DELAY-IN-MICROSECONDS COUNTS [HANG]
//
// COUNTS receives a line "CALL NUMBER" for each kind of call, and "most N" for the calls that were under way at a time,
// whenever the mount point is asked for the attribute user.counts, which also begins the count anew. While the file
// HANG exists, no call is answered: a server that does not answer any more. Ends when it is unmounted.
#define FUSE_USE_VERSION 35
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <fuse3/fuse.h>
#include <string>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

std::string source;
std::string countsFile;
std::string hangFile;
std::chrono::microseconds delay;

enum Call { Look, Make, Open, Read, Write, Close, List, Change, Attribute, Rename, Remove, Calls };
constexpr std::array<const char *, Calls> callNames{"look", "make",   "open",      "read",   "write", "close",
                                                    "list", "change", "attribute", "rename", "remove"};
std::array<std::atomic<long>, Calls> counts{};
std::atomic<long> underWay{0};
std::atomic<long> most{0};

/// The library asks for the attributes of what was just made, and sends them along with the same answer.
thread_local bool answersAlong = false;

/// One call, from its arrival to its answer.
class Turn
{
public:
    explicit Turn(Call call)
    {
        const bool isAlong = std::exchange(answersAlong, call == Make) && call == Look;
        const long now = ++underWay;
        if (isAlong)
            return;
        ++counts[call];
        for (long before = most; now > before && !most.compare_exchange_weak(before, now);) {
        }
        std::this_thread::sleep_for(delay);
        while (!hangFile.empty() && access(hangFile.c_str(), F_OK) == 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    ~Turn() { --underWay; }
    Turn(const Turn &) = delete;
    Turn &operator=(const Turn &) = delete;
};

std::string below(const char *path)
{
    return source + path;
}

int answer(long result)
{
    return result < 0 ? -errno : static_cast<int>(result);
}

int fileOf(const fuse_file_info *info)
{
    return static_cast<int>(info->fh);
}

void report()
{
    if (most == 0) // asked twice for one question
        return;
    FILE *file = std::fopen(countsFile.c_str(), "w");
    if (!file)
        return;
    for (std::size_t i = 0; i < Calls; ++i)
        std::fprintf(file, "%s %ld\n", callNames[i], counts[i].exchange(0));
    std::fprintf(file, "most %ld\n", most.exchange(0));
    std::fclose(file);
}

/// What a client of a share keeps in mind for a moment: names and attributes.
void *begin(fuse_conn_info *, fuse_config *config)
{
    config->use_ino = 1;
    config->nullpath_ok = 0;
    config->entry_timeout = config->attr_timeout = 3;
    config->negative_timeout = 0;
    return nullptr;
}

int getAttributes(const char *path, struct stat *info, fuse_file_info *)
{
    const Turn turn(Look);
    return answer(lstat(below(path).c_str(), info));
}

int open_(const char *path, fuse_file_info *info)
{
    const Turn turn(Open);
    const int file = open(below(path).c_str(), info->flags & ~O_NOFOLLOW);
    info->fh = static_cast<unsigned long>(file);
    return file < 0 ? -errno : 0;
}

int create(const char *path, mode_t mode, fuse_file_info *info)
{
    const Turn turn(Make);
    const int file = open(below(path).c_str(), info->flags | O_CREAT, mode);
    info->fh = static_cast<unsigned long>(file);
    return file < 0 ? -errno : 0;
}

int read_(const char *, char *bytes, std::size_t size, off_t at, fuse_file_info *info)
{
    const Turn turn(Read);
    return answer(pread(fileOf(info), bytes, size, at));
}

int write_(const char *, const char *bytes, std::size_t size, off_t at, fuse_file_info *info)
{
    const Turn turn(Write);
    return answer(pwrite(fileOf(info), bytes, size, at));
}

int release(const char *, fuse_file_info *info) // the client does not wait for it
{
    return answer(close(fileOf(info)));
}

int flush(const char *, fuse_file_info *)
{
    const Turn turn(Close);
    return 0;
}

int sync(const char *, int, fuse_file_info *info)
{
    const Turn turn(Write);
    return answer(fsync(fileOf(info)));
}

int readFolder(const char *path, void *buffer, fuse_fill_dir_t fill, off_t, fuse_file_info *, fuse_readdir_flags)
{
    const Turn turn(List);
    DIR *folder = opendir(below(path).c_str());
    if (!folder)
        return -errno;
    while (const dirent *entry = readdir(folder)) {
        struct stat info
        {
        };
        info.st_ino = entry->d_ino;
        info.st_mode = DTTOIF(entry->d_type);
        fill(buffer, entry->d_name, &info, 0, fuse_fill_dir_flags{});
    }
    closedir(folder);
    return 0;
}

int makeFolder(const char *path, mode_t mode)
{
    const Turn turn(Make);
    return answer(mkdir(below(path).c_str(), mode));
}

int makeLink(const char *target, const char *path)
{
    const Turn turn(Make);
    return answer(symlink(target, below(path).c_str()));
}

int readLink(const char *path, char *target, std::size_t size)
{
    const Turn turn(Read);
    const ssize_t length = readlink(below(path).c_str(), target, size - 1);
    if (length < 0)
        return -errno;
    target[length] = '\0';
    return 0;
}

int removeFile(const char *path)
{
    const Turn turn(Remove);
    return answer(unlink(below(path).c_str()));
}

int removeFolder(const char *path)
{
    const Turn turn(Remove);
    return answer(rmdir(below(path).c_str()));
}

int move(const char *from, const char *to, unsigned flags)
{
    const Turn turn(Rename);
    return answer(renameat2(AT_FDCWD, below(from).c_str(), AT_FDCWD, below(to).c_str(), flags));
}

int changeMode(const char *path, mode_t mode, fuse_file_info *)
{
    const Turn turn(Change);
    return answer(fchmodat(AT_FDCWD, below(path).c_str(), mode, 0));
}

int changeOwner(const char *path, uid_t user, gid_t group, fuse_file_info *)
{
    const Turn turn(Change);
    return answer(fchownat(AT_FDCWD, below(path).c_str(), user, group, AT_SYMLINK_NOFOLLOW));
}

int changeSize(const char *path, off_t size, fuse_file_info *)
{
    const Turn turn(Change);
    return answer(truncate(below(path).c_str(), size));
}

int changeDates(const char *path, const timespec dates[2], fuse_file_info *)
{
    const Turn turn(Change);
    return answer(utimensat(AT_FDCWD, below(path).c_str(), dates, AT_SYMLINK_NOFOLLOW));
}

int getAttribute(const char *path, const char *name, char *value, std::size_t size)
{
    if (std::strcmp(path, "/") == 0 && std::strcmp(name, "user.counts") == 0) {
        report();
        return 0;
    }
    const Turn turn(Attribute);
    return answer(lgetxattr(below(path).c_str(), name, value, size));
}

int setAttribute(const char *path, const char *name, const char *value, std::size_t size, int flags)
{
    const Turn turn(Attribute);
    return answer(lsetxattr(below(path).c_str(), name, value, size, flags));
}

int listAttributes(const char *path, char *names, std::size_t size)
{
    const Turn turn(Attribute);
    return answer(llistxattr(below(path).c_str(), names, size));
}

int usage(const char *path, struct statvfs *info)
{
    const Turn turn(Look);
    return answer(statvfs(below(path).c_str(), info));
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 5) {
        std::fputs("Usage: share FOLDER MOUNTPOINT DELAY-IN-MICROSECONDS COUNTS [HANG]\n", stderr);
        return 2;
    }
    source = argv[1];
    delay = std::chrono::microseconds(std::atol(argv[3]));
    countsFile = argv[4];
    hangFile = argc > 5 ? argv[5] : "";
    fuse_operations calls{};
    calls.init = begin;
    calls.getattr = getAttributes;
    calls.open = open_;
    calls.create = create;
    calls.read = read_;
    calls.write = write_;
    calls.release = release;
    calls.flush = flush;
    calls.fsync = sync;
    calls.readdir = readFolder;
    calls.mkdir = makeFolder;
    calls.symlink = makeLink;
    calls.readlink = readLink;
    calls.unlink = removeFile;
    calls.rmdir = removeFolder;
    calls.rename = move;
    calls.chmod = changeMode;
    calls.chown = changeOwner;
    calls.truncate = changeSize;
    calls.utimens = changeDates;
    calls.getxattr = getAttribute;
    calls.setxattr = setAttribute;
    calls.listxattr = listAttributes;
    calls.statfs = usage;
    std::string foreground = "-f";
    std::string options = "-oallow_other,fsname=share";
    std::array<char *, 4> words{argv[0], foreground.data(), options.data(), argv[2]};
    return fuse_main(static_cast<int>(words.size()), words.data(), &calls, nullptr);
}
