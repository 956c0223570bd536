#pragma once

#include "platform/desktop/StandardFolders.h"

#include <QString>

/**
 * Where each standard folder is, with one rule on top of the desktop's: as super-user (a start with administrator
 * rights) every user folder is that of the user who sits at the console, not the super-user's own. Also the guard that
 * tells whether a path is a folder the program must never remove, trash or move.
 *
 * Has no state; every operation may be called from any thread. A null string means: there is no such folder.
 */
class VTLocalPaths
{
public:
    VTLocalPaths() = delete;

    enum class Domain { User, Local };

    [[nodiscard]] static QString applicationDirectory(Domain domain);
    [[nodiscard]] static QString adminApplicationDirectory(Domain domain);
    [[nodiscard]] static QString documentDirectory(Domain domain);
    [[nodiscard]] static QString libraryDirectory(Domain domain);
    [[nodiscard]] static QString prefsDirectory(Domain domain);
    [[nodiscard]] static QString cacheDirectory(Domain domain);
    [[nodiscard]] static QString appSupportDirectory(Domain domain);
    [[nodiscard]] static QString logDirectory(Domain domain);
    [[nodiscard]] static QString desktopDirectory();
    [[nodiscard]] static QString systemLibraryDirectory();
    [[nodiscard]] static QString localDocumentationDirectory();
    [[nodiscard]] static QString movieDirectory();
    /** The `files` folder of the home Trash of the freedesktop Trash specification. */
    [[nodiscard]] static QString trashDirectory();
    [[nodiscard]] static QString userDirectory();
    [[nodiscard]] static QString tempDirectory();

    [[nodiscard]] static QString pathForDirectory(platform::FolderKind kind, platform::FolderDomain domain);

    [[nodiscard]] static QString username();
    [[nodiscard]] static QString currentConsoleUser();
    /** A path for a new temporary file; nothing is made. */
    [[nodiscard]] static QString tempFile();
    [[nodiscard]] static QString uuid();

    enum class Match { Prefixes, Exact };
    [[nodiscard]] static bool isPathSystemDirectory(const QString &path, Match match = Match::Prefixes);
    [[nodiscard]] static bool isPathOnTimeMachineVolume(const QString &path);
};
