#pragma once

#include "platform/files/CopyOperation.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <chrono>
#include <optional>

/** Whether an operation that failed may go on with administrator rights. */
enum class ShouldAuth { No, Yes };

/** A label's colour, each part from 0 to 1; opaque. */
struct LabelColor
{
    double hue;
    double saturation;
    double brightness;
    bool operator==(const LabelColor &) const = default;
};

/**
 * The gateway to what belongs to the user, templates and projects: they are made, copied, moved, deleted and trashed
 * here, or in FileOperations.h, which does the same and says how it ended. It clears the locked flag of what it is
 * about to change, logs a failure and then tries the system's tool, with administrator rights where permission is what
 * is missing. The forms with a time-out wait after success until the effect can be seen. The program's own files
 * (settings, log) and the dates of a new project do not come this way.
 *
 * Has no state; every operation may be called from any thread and blocks it. On the main thread the work is done on a
 * worker while the event loop turns with the windows closed to input. Paths are absolute. No operation but the type
 * tests and fileSize() ever goes through a link. True is success; there being nothing to remove or to trash is success,
 * too.
 */
class VTFileManager
{
public:
    VTFileManager() = delete;
    using Seconds = std::chrono::seconds;

    // Type tests; the first three follow links.
    [[nodiscard]] static bool fileExistsAtPath(const QString &path);
    /** Packages count as folders. */
    [[nodiscard]] static bool isDirectoryAtPath(const QString &path);
    [[nodiscard]] static bool isPackageAtPath(const QString &path);
    [[nodiscard]] static bool isSymbolicLinkAtPath(const QString &path);

    // The core operations. A time-out of 0 looks once and does not wait.
    [[nodiscard]] static bool createDirectory(const QString &path, ShouldAuth shouldAuth = ShouldAuth::Yes);
    [[nodiscard]] static bool createDirectory(const QString &path, Seconds timeout);
    /** To exactly the destination path. */
    [[nodiscard]] static bool copyFile(const QString &source, const QString &toPath,
                                       ShouldAuth shouldAuth = ShouldAuth::Yes);
    [[nodiscard]] static bool copyFile(const QString &source, const QString &toPath, Seconds timeout);
    [[nodiscard]] static bool moveFile(const QString &source, const QString &toPath,
                                       ShouldAuth shouldAuth = ShouldAuth::Yes);
    [[nodiscard]] static bool moveFile(const QString &source, const QString &toPath, Seconds timeout);
    [[nodiscard]] static bool removeFile(const QString &path, ShouldAuth shouldAuth = ShouldAuth::Yes);
    [[nodiscard]] static bool removeFile(const QString &path, Seconds timeout);
    [[nodiscard]] static bool trashFile(const QString &path, ShouldAuth shouldAuth = ShouldAuth::Yes);
    [[nodiscard]] static bool trashFile(const QString &path, Seconds timeout);

    // Folders.
    /** Copies each item of a folder into another, existing one; stops at the first failure, of which nothing stays. */
    [[nodiscard]] static bool copyContentsOfDirectory(const QString &source, const QString &toPath, Seconds timeout);
    /** Mirrors a folder's whole path below the destination and returns the result, made or not. */
    static QString createDirectoryStructure(const QString &path, const QString &destination);
    /** Goes on after failures; true only when every item went. */
    [[nodiscard]] static bool trashDirectoryContents(const QString &folder, ShouldAuth shouldAuth = ShouldAuth::Yes);
    /** The paths sent to the Trash, whether or not they arrived. Names are compared exactly, types without case. */
    static QStringList trashFilesNamed(const QString &name, const QString &inFolder);
    static QStringList trashFilesOfType(const QString &type, const QString &inFolder);
    /** A tree of folders that holds nothing but folders and the file browser's own files (.DS_Store, Icon) is empty. */
    [[nodiscard]] static bool isFolderEmpty(const QString &folder);
    [[nodiscard]] static bool removeFolderIfEmpty(const QString &folder);

    // Names, dates and sizes.
    /** The path itself when it is free, else "Name 2.ext", "Name 3.ext" and so on. */
    [[nodiscard]] static QString uniqueFilename(const QString &path);
    /** A typed name without what the file system or the program cannot take; may come out empty. Pure. */
    [[nodiscard]] static QString validateFilename(const QString &name);
    /** The item's dates become now; a missing file is not made. A link's own dates, not its target's. */
    static bool touchFile(const QString &path);
    /** Bytes; of a folder, all that lies in it, through links (each folder entered once). 0 when it cannot be read. */
    [[nodiscard]] static quint64 fileSize(const QString &path);
    /** "1023 B", "1.50 KB", "2048.00 GB". Pure. */
    [[nodiscard]] static QString formatFileSize(double bytes);

    // Labels, that is bits 1 to 3 of the item's flags word; errors are ignored, links carry none.
    /** The whole flags word, unmasked: with no other flag set, 2 to 15 is a label. 0 when it cannot be read. */
    [[nodiscard]] static int finderColorIndexForPath(const QString &path);
    /** Leaves all other flags as they are. */
    static void setFinderColorIndex(int index, const QString &path);
    /** Nothing without a label, and for an item that has any other flag set. */
    [[nodiscard]] static std::optional<LabelColor> finderColorForPath(const QString &path);
    [[nodiscard]] static std::optional<LabelColor> finderColorForIndex(int index);

    /** The label's name for people, "red"; null for what is no label. */
    [[nodiscard]] static QString labelName(int index);
    /** The same for programs: in English, whatever the desktop speaks; nullptr for what is no label. */
    [[nodiscard]] static const char *labelKey(int index);

    // The locked flag; errors are ignored, links left alone.
    [[nodiscard]] static bool isFileLocked(const QString &path);
    static void lockFile(const QString &path);
    static void unlockFile(const QString &path);
    /** Everything below the folder, the folder itself not. */
    static void lockFolder(const QString &folder);
    static void unlockFolder(const QString &folder);

    // Patterns: a path whose components may hold "*" and, where they do, "?". Case counts, hidden items match.
    /** Only what exists; but a pattern without "*" comes back as it is, below the base (null: none), existing or not.
     */
    [[nodiscard]] static QStringList filesMatchingWildcardPath(const QString &pattern,
                                                               const QString &fromBasePath = {});
    /** The first match, or the pattern itself below the base. */
    [[nodiscard]] static QString decodeWildcardPath(const QString &pattern, const QString &fromBasePath);

    /** Writes a zip archive that holds the item under its own name, labels included; an archive that stands there goes
       to the Trash first. On failure nothing stands there. */
    [[nodiscard]] static bool compressFile(const QString &path, const QString &toDestinationFile);

    /**
     * Copies in the background; true when the copy was started. Main thread only. The delegate's slots or invokable
     * operations fileOperationProgress (at most once a second) and fileOperationFinished (once, also after a failure,
     * for which the delegate looks at the destination, and after a cancel) are called on the main thread with the
     * record, in the form that takes (QVariantMap, platform::CopyOperation::Ref), else in the one that takes
     * (QVariantMap).
     *
     * The record: "stage" (2 running, 3 complete), "source", "destination", "operationtype" ("copy"), and, as far as
     * they were given, "delegate", "object" and "object2"; while running also "bytesCompleted", "bytesTotal",
     * "itemsCompleted", "itemsTotal" and "throughput" (bytes a second).
     */
    [[nodiscard]] static bool copyFileWithProgress(const QString &source, const QString &destination, QObject *delegate,
                                                   const QVariant &object = {}, const QVariant &object2 = {});
    static void cancelFileOperation(const platform::CopyOperation::Ref &operation);
};
