#include "preferences/ShortcutFile.h"

#include "platform/files/WholeFile.h"
#include "support/VTLocalPaths.h"

#include <QHash>

using platform::Outcome;
using platform::Result;

namespace shortcuts {
namespace {

const QString watchlist = QStringLiteral("watchlist");

bool belongsTo(const QVariantMap &entry, const Owner &owner)
{
    if (entry.value("bundleid").toString() != owner.bundleIdentifier)
        return false;
    return owner.commandIdentifier.isNull() ? entry.value("commandparams").toStringList() == owner.parameters
                                            : entry.value("commandid").toString() == owner.commandIdentifier;
}

Shortcut shortcutIn(const QVariantMap &entry)
{
    return {static_cast<quint16>(entry.value("keycode").toUInt()),
            static_cast<quint16>(entry.value("modifiers").toUInt())};
}

} // namespace

QVariantMap without(QVariantMap file, const Owner &owner)
{
    QVariantList list = file.value(watchlist).toList();
    for (qsizetype i = 0; i < list.size(); ++i) {
        if (belongsTo(list[i].toMap(), owner)) {
            list.removeAt(i); // only the first
            break;
        }
    }
    file.insert(watchlist, list);
    return file;
}

QVariantMap withAssignment(QVariantMap file, const Owner &owner, const Shortcut &shortcut)
{
    QVariantMap entry{{"bundleid", owner.bundleIdentifier},
                      {"keycode", qlonglong{shortcut.keyCode}},
                      {"modifiers", qlonglong{shortcut.modifiers}}};
    if (!owner.commandIdentifier.isNull())
        entry.insert("commandid", owner.commandIdentifier);
    if (!owner.parameters.isEmpty())
        entry.insert("commandparams", QVariant(owner.parameters).toList());
    QVariantMap result = without(std::move(file), owner);
    result.insert(watchlist, result.value(watchlist).toList() + QVariantList{entry});
    return result;
}

QList<Sharer> sharersOf(const QVariantMap &file, const Owner &owner, const Shortcut &shortcut)
{
    QList<Sharer> sharers;
    for (const QVariant &value : file.value(watchlist).toList()) {
        const QVariantMap entry = value.toMap();
        if (shortcutIn(entry) != shortcut || belongsTo(entry, owner))
            continue;
        const QString called = entry.value("commandid").toString();
        sharers.append({entry.value("bundleid").toString(),
                        called.isEmpty() ? entry.value("commandparams").toStringList().join(u' ') : called});
    }
    return sharers;
}

QHash<QString, Shortcut> assignmentsOf(const QVariantMap &file, const QString &bundleIdentifier)
{
    QHash<QString, Shortcut> found;
    for (const QVariant &value : file.value(watchlist).toList()) {
        const QVariantMap entry = value.toMap();
        if (entry.value("bundleid").toString() == bundleIdentifier)
            found.insert(entry.value("commandid").toString(), shortcutIn(entry));
    }
    return found;
}

QString filePath()
{
    return VTLocalPaths::prefsDirectory(VTLocalPaths::Domain::User) + QStringLiteral("/com.vantrel.shortcutkeys.plist");
}

Result<QVariantMap> read()
{
    const Result<QVariant> value = platform::readPropertyListFile(filePath());
    if (!value)
        return value.outcome();
    const QVariantMap dictionary = value->toMap();
    const bool isShaped = !dictionary.contains(watchlist) || dictionary[watchlist].typeId() == QMetaType::QVariantList;
    if (value->typeId() != QMetaType::QVariantMap || !isShaped)
        return Outcome::failure(platform::Cause::Damaged, filePath());
    return dictionary;
}

Outcome write(const QVariantMap &file)
{
    return platform::writePropertyListFile(filePath(), file);
}

} // namespace shortcuts
