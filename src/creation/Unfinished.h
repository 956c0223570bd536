#pragma once

#include "platform/base/Outcome.h"
#include "platform/files/FileLock.h"

#include <QList>
#include <QStringList>
#include <optional>

/**
 * Notes of the projects under way, in the application-support folder, so that what a kill or a power cut leaves behind
 * is found again. A note is locked for as long as its creation lives, however that ends. That of a project that stands
 * is kept until its bytes must have reached the drive: after a power cut it says which projects are to be looked at.
 * Any thread.
 */
class CreationNote
{
public:
    /** Before the destination, and whichever of its levels, are made. Where the note cannot be made the project is made
       all the same. */
    CreationNote(const QString &folder, const QString &destination, const QString &templateFiles = {},
                 const QStringList &levels = {});
    /** The creation has come to an end of its own: the note goes, unless something was left behind. */
    ~CreationNote();
    void leaveSomethingBehind() { m_isToStay = true; }
    /** To be called before the project takes its place: by then the note has mostly arrived, and nothing is waited for.
     */
    void reachDisk() const;
    /** The project stands at its destination. */
    void placed();
    CreationNote(const CreationNote &) = delete;
    CreationNote &operator=(const CreationNote &) = delete;

private:
    QString m_file;
    std::optional<platform::FileLock> m_lock;
    bool m_isToStay = false;
};

/** What a creation that was cut off has left behind. */
struct Leftover
{
    QString note;
    QString folder;      ///< hidden; holds what had been copied
    QString destination; ///< the project's place; empty, or gone
    QStringList levels;  ///< the folders above it that were made for it, outermost first
};

/** All whose creation nobody carries on any more; those of which nothing is left are forgotten. */
[[nodiscard]] QList<Leftover> leftovers();
/** The hidden folder goes to the Trash, an empty place goes; where that fails, the note stays for the next time. */
platform::Outcome putAway(const Leftover &leftover);
/** Nobody is asked about it again; what lies there stays. */
platform::Outcome forget(const Leftover &leftover);

/** A project that was made shortly before the computer went down, and is not on its drive as it was made. */
struct DoubtfulProject
{
    QString note;
    QString project;
    bool isThere = true; ///< false: its folder is, and nothing in it
    QStringList cutOff;  ///< files whose contents are missing, or a part of them; by path below the project
};

/** Looks at the projects that were made shortly before the computer went down; those that are as they were made are
    forgotten. Blocks; any thread. */
[[nodiscard]] QList<DoubtfulProject> doubtfulProjects();
/** What is wrong with it, as a sentence. */
[[nodiscard]] QString descriptionOf(const DoubtfulProject &project);
platform::Outcome forget(const DoubtfulProject &project);
