#pragma once

#include "creation/ProjectRequest.h"
#include "platform/files/Tree.h"

#include <QDateTime>
#include <vector>

/** One item that a creation made. */
struct ManifestItem
{
    quint32 depth = 0; ///< 0: in the project's own folder; an item follows the folder that it lies in
    QByteArray name;   ///< byte for byte
    quint8 type = 0;   ///< DT_REG and so on (readdir(3))
    platform::MadeItem made;
};

/**
 * What one creation made, kept in the application-support folder for the last hundred projects, so that it can be found
 * again and undone. A plain value, but for its items, which are read when they are needed.
 */
struct Manifest
{
    QString file; ///< where it is kept
    QString project;
    QString templateName;
    QDateTime made;
    platform::FileIdentity identity; ///< of the project's folder: another one at its place is another project
    FilenameParameters parameters;   ///< with the numbers that the project took
    QStringList levelsMade;          ///< the folders above it that came with it, outermost first
    QString oldInTrash;              ///< where the project lies that had its place; null where there was none
    QString batch{};                 ///< what was made together has one name; empty for what was made alone

    [[nodiscard]] QString name() const;
};

/** How many are kept; what was made together counts as one. */
inline constexpr qsizetype rememberedProjects = 100;

/** Keeps it, with what the tree says was made; the oldest goes, unless it is of a batch. Gives it its file. Blocks; any
    thread. */
platform::Outcome remember(Manifest &manifest, const platform::Tree &tree);
/** The oldest go: after a batch. Blocks; any thread. */
void pruneHistory();
/** The latest first; one that cannot be read is left out. Blocks; any thread. */
[[nodiscard]] QList<Manifest> recentProjects();
[[nodiscard]] platform::Result<std::vector<ManifestItem>> itemsOf(const Manifest &manifest);
platform::Outcome forget(const Manifest &manifest);
