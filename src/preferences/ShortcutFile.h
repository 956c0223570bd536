#pragma once

#include "platform/base/Outcome.h"

#include <QString>
#include <QStringList>
#include <QVariantMap>

/** The assignments of keys to commands, in the file that the maker's applications share. */
namespace shortcuts {

/** A key with its modifiers, as it is stored. */
struct Shortcut
{
    quint16 keyCode = 0;
    quint16 modifiers = 0; ///< the sum of the masks below

    bool operator==(const Shortcut &) const = default;
};
inline constexpr quint16 command = 0x100;
inline constexpr quint16 shift = 0x200;
inline constexpr quint16 option = 0x800;
inline constexpr quint16 control = 0x1000;

/** What an entry is found by: the command's identifier, or without one its parameters. */
struct Owner
{
    QString bundleIdentifier;
    QString commandIdentifier; ///< null: by parameters
    QStringList parameters;
};

// On the file's whole dictionary; every other entry and key stays. Pure.
/** The first entry of that owner is replaced; the new one goes to the end. */
[[nodiscard]] QVariantMap withAssignment(QVariantMap file, const Owner &owner, const Shortcut &shortcut);
[[nodiscard]] QVariantMap without(QVariantMap file, const Owner &owner);
/** By the commands' identifiers; of several for one command the last counts. */
[[nodiscard]] QHash<QString, Shortcut> assignmentsOf(const QVariantMap &file, const QString &bundleIdentifier);

/** Who else has the same keys: bundle identifiers and commands' identifiers (or parameters), in the file's order. */
struct Sharer
{
    QString bundleIdentifier;
    QString command;
};
[[nodiscard]] QList<Sharer> sharersOf(const QVariantMap &file, const Owner &owner, const Shortcut &shortcut);

/** "com.vantrel.shortcutkeys.plist" in the user's preferences folder. */
[[nodiscard]] QString filePath();

/** Cause::Missing when there is none yet; Cause::Damaged when it is none that we could change without losing something.
 */
[[nodiscard]] platform::Result<QVariantMap> read();
/** In one step, so that nobody sees half a file. */
platform::Outcome write(const QVariantMap &file);

} // namespace shortcuts
