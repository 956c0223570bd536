#include "creation/Workplace.h"

#include "parameters/ProjectNaming.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"

#include <QRandomGenerator>

using platform::Cause;
using platform::Outcome;

namespace {

QString hiddenName(const QString &name)
{
    const auto number = QString::number(QRandomGenerator::global()->generate64(), 36);
    const QString whole = QStringLiteral(".%1.tessaro-%2").arg(name, number);
    return platform::toNative(whole).size() <= platform::longestName ? whole
                                                                     : QStringLiteral(".tessaro-%1").arg(number);
}

} // namespace

Workplace::Workplace(const QString &destination, const QString &hidden)
    : m_destination(destination)
    , m_folder(destination)
{
    if (platform::kindOf(destination) == platform::FileKind::Folder) // else there is no place to take
        m_folder = hidden.isNull() ? hiddenFolderFor(destination) : hidden;
}

QString Workplace::hiddenFolderFor(const QString &destination)
{
    return platform::joined(platform::parentPath(destination), hiddenName(platform::lastComponent(destination)));
}

void Workplace::make()
{
    if (isHidden() && !platform::makeNewFolder(m_folder).ok())
        m_folder = m_destination;
}

QString Workplace::shown(const QString &path) const
{
    const bool isInside = isHidden() && (path == m_folder || path.startsWith(m_folder + u'/'));
    return isInside ? m_destination + path.mid(m_folder.size()) : path;
}

Outcome Workplace::shown(const Outcome &outcome) const
{
    return outcome.ok() ? outcome : Outcome::failure(outcome.cause(), shown(outcome.item()), outcome.sentence());
}

Outcome Workplace::putInPlace()
{
    if (!isHidden() || platform::replaceEmptyFolder(m_folder, m_destination).ok())
        return {};
    const auto entries = platform::listFolder(m_folder);
    if (!entries)
        return entries.outcome();
    Outcome first;
    for (const platform::FolderEntry &entry : *entries) {
        const Outcome moved =
            platform::moveItem(platform::joined(m_folder, entry.name), platform::joined(m_destination, entry.name));
        if (first.ok())
            first = moved;
    }
    return first.ok() ? platform::removeEmptyFolder(m_folder) : first;
}

Outcome Workplace::takeAway()
{
    if (!isHidden() && platform::kindOf(m_destination) == platform::FileKind::Missing)
        return {};   // it could not be made
    if (!isHidden()) // what is ours in it cannot be told from what is another's
        return Outcome::failure(Cause::Exists, m_destination);
    const Outcome removed = platform::removeOwnTree(m_folder);
    const Outcome emptied = platform::removeEmptyFolder(m_destination);
    return removed.ok() ? emptied : removed;
}
