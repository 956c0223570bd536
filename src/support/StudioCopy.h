#pragma once

#include "platform/files/FileLock.h"

#include <QString>
#include <QStringList>
#include <memory>

/**
 * What a studio shares with many computers: one folder on a server with a file of settings and a folder of templates.
 * A program never works in that folder: it keeps a copy beside the user's own library, which counts as long as it is
 * there, and so a server that is away takes nothing with it. The copy follows in templates/StudioLibrary. Any thread.
 */
namespace studio {

/** The names in the shared folder. The file is a property list of settings, with "lockedSettings". */
inline const QString setupFile = QStringLiteral("Tessaro Setup.plist");
inline const QString templatesFolder = QStringLiteral("Templates");

/** Where the copy lies, and its parts. */
[[nodiscard]] QString copyFolder();
[[nodiscard]] QString copiedFile();
[[nodiscard]] QString copiedTemplates();

/** Whether there is a copy: what it says counts. */
[[nodiscard]] bool isInForce();
/** Whether the studio's templates are the library. */
[[nodiscard]] bool decidesTemplates();

/** Held while projects are made of the copy, from the first look at a template to the end: until then the copy stays as
    it is, whoever follows. Null where there is nothing to hold. */
using Use = std::shared_ptr<const platform::FileLock>;
/** Cause::Busy where the copy is being exchanged, and that takes longer than it should. Blocks; any thread. */
[[nodiscard]] platform::Result<Use> useCopy();
/** Whoever exchanges the copy has it for itself. Waits a second for those who use it, then Cause::Busy. */
[[nodiscard]] platform::Result<Use> changeCopy();

/** What may be shared. Programs to be run, protections and places of this computer are none of a server's business. */
[[nodiscard]] const QStringList &sharedKeys();

} // namespace studio
