#pragma once

#include "templates/TemplateChanges.h"

#include <QMutex>
#include <QStringList>
#include <functional>

/**
 * The template library: where it lies, the templates that ship with the program, and the list of names.
 *
 * A template is a folder NAME.tzt in the library whose folder Files is the tree that a project receives. One object for
 * the whole process, made on first use, never destroyed. The list may be read on any thread; the rest belongs to the
 * main thread.
 */
class VTDataController
{
public:
    enum class Force { No, Yes };

    static VTDataController &sharedController();
    VTDataController(const VTDataController &) = delete;
    VTDataController &operator=(const VTDataController &) = delete;

    /** The copy of the studio's, where that decides; else the user's choice, else the folder in the user's application
       support. Nothing is made. */
    [[nodiscard]] static QString templateLocation();
    /** The named template's folder in the library, and its tree in there. */
    [[nodiscard]] static QString bundlePath(const QString &templateName);
    [[nodiscard]] static QString filesFolder(const QString &templateName);
    /** The list last built, in listing order. */
    [[nodiscard]] QStringList templates() const;

    /** Installs the shipped templates: into a library that is new, or replacing their namesakes when forced. A folder
       that cannot be made has been said; the rest of a failure is for the caller. What was replaced is noted. */
    platform::Outcome populateDefaultTemplates(Force force = Force::No, DiskSteps *steps = nullptr);
    /** Makes sure that the library exists and builds the list. A library that cannot be read gives an empty list and
     * why; one whose drive has gone is Cause::Unreachable, and nothing is made in its place. */
    platform::Outcome populateTemplates();
    /** The same for the window: Cause::Unreachable when the library does not answer in time; `late` gets on
        the main thread how it was read after all. Main thread. */
    platform::Outcome populateTemplatesInTime(const std::function<void(const platform::Outcome &)> &late = {});

    /** Unpacks every shipped template into an existing folder; what stands there under the name goes to the Trash. Goes
       on after a failure and returns the first; the log names each. */
    static platform::Outcome installShippedTemplates(const QString &location, DiskSteps *steps = nullptr);
    /** The names of the templates in a library's folder, in listing order. */
    [[nodiscard]] static platform::Result<QStringList> templateNames(const QString &location);

private:
    VTDataController() = default;

    mutable QMutex m_mutex;
    QString m_waitedFor; ///< the library whose reading for the window has not ended; null for none
    QStringList m_templates;
};
