#pragma once

#include "platform/base/Outcome.h"
#include "platform/files/FileLock.h"

#include <QList>
#include <optional>

/**
 * Notes of the projects under way, in the application-support folder, so that what a kill or a power cut leaves behind
 * is found again. A note is locked for as long as its creation lives, however that ends. Any thread.
 */
class CreationNote
{
public:
    /** Where the note cannot be made the project is made all the same. */
    CreationNote(const QString &folder, const QString &destination);
    /** The creation has come to an end of its own: the note goes, unless something was left behind. */
    ~CreationNote();
    void leaveSomethingBehind() { m_isToStay = true; }
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
};

/** All whose creation nobody carries on any more; those of which nothing is left are forgotten. */
[[nodiscard]] QList<Leftover> leftovers();
/** The hidden folder goes to the Trash, an empty place goes; where that fails, the note stays for the next time. */
platform::Outcome putAway(const Leftover &leftover);
/** Nobody is asked about it again; what lies there stays. */
platform::Outcome forget(const Leftover &leftover);
