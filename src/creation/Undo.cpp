#include "creation/Undo.h"

#include "parameters/ParameterStore.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileTree.h"
#include "platform/files/Trash.h"
#include "platform/plain/CopyMonitor.h"
#include "support/VTLog.h"

#include <QCoreApplication>
#include <QHash>
#include <QRandomGenerator>
#include <QSet>

using platform::Cause;
using platform::joined;
using platform::Outcome;
using platform::Tree;
using platform::TreeFolder;
using platform::TreeItem;
using Why = KeptItem::Why;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Undo)
};

class Undo
{
public:
    Undo(const Manifest &manifest, std::vector<ManifestItem> items, platform::CopyMonitor &monitor)
        : m_manifest(manifest)
        , m_items(std::move(items))
        , m_monitor(monitor)
        , m_tree(platform::readTree(
              manifest.project, [](TreeFolder &) {}, monitor.cancelled))
        , m_isWhole(m_tree.folders.size(), false)
    {
    }

    Outcome run(QList<KeptItem> &kept)
    {
        compare(0, topItems());
        if (m_monitor.cancelled)
            return Outcome::failure(Cause::Cancelled, m_manifest.project);
        if (m_kept.isEmpty())
            return platform::moveToTrash(m_manifest.project);
        const Outcome moved = moveUntouched();
        kept = m_kept;
        return moved;
    }

private:
    [[nodiscard]] QList<std::size_t> topItems() const { return below(0, m_items.size(), 0); }

    [[nodiscard]] QList<std::size_t> below(std::size_t first, std::size_t last, quint32 depth) const
    {
        QList<std::size_t> found;
        for (std::size_t i = first; i < last && m_items[i].depth >= depth; ++i) {
            if (m_items[i].depth == depth)
                found.append(i);
        }
        return found;
    }

    /// True when all that stands in the folder is as it was made.
    bool compare(std::uint32_t number, const QList<std::size_t> &expected)
    {
        const TreeFolder &folder = m_tree.folders[number];
        const QString path = joined(m_manifest.project, m_tree.pathOf(number));
        QHash<QByteArray, std::size_t> byName;
        for (const std::size_t item : expected)
            byName.insert(m_items[item].name, item);
        bool isWhole = folder.error == 0;
        for (const TreeItem &item : folder.items) {
            const QByteArray name(folder.nameOf(item));
            const auto known = byName.constFind(name);
            isWhole =
                isSame(joined(path, platform::fromNative(name)), item, known == byName.cend() ? nullptr : &*known) &&
                isWhole;
        }
        if (folder.error != 0)
            keep(path, Why::Failed);
        m_isWhole[number] = isWhole;
        return isWhole;
    }

    bool isSame(const QString &path, const TreeItem &item, const std::size_t *known)
    {
        ++m_monitor.items;
        const platform::MadeItem now = platform::madeItemAt(path);
        if (!known || m_items[*known].type != item.type || m_items[*known].made.inode != now.inode)
            return keep(path, Why::Foreign);
        if (item.folder != 0)
            return compare(item.folder, below(*known + 1, m_items.size(), m_items[*known].depth + 1));
        return m_items[*known].made == now || keep(path, Why::Changed);
    }

    bool keep(const QString &path, Why why)
    {
        m_kept.append({path, why});
        m_isKept.insert(path);
        return false;
    }

    /// They go to the Trash as one item, in folders of the same names.
    Outcome moveUntouched()
    {
        const QString number = QString::number(QRandomGenerator::global()->generate(), 36);
        const QString gathered = m_manifest.project + QStringLiteral(" (undone ") + number + u')';
        const Outcome made = platform::makeNewFolder(gathered);
        if (!made.ok())
            return made;
        moveFrom(0, gathered);
        if (platform::removeEmptyFolder(gathered).ok())
            return {}; // nothing was untouched
        const Outcome trashed = platform::moveToTrash(gathered);
        if (!trashed.ok())
            putBack(gathered);
        return trashed;
    }

    /// Where there is no Trash, nothing has happened.
    void putBack(const QString &gathered)
    {
        for (const auto &[from, to] : std::as_const(m_moved)) {
            const Outcome back = platform::moveItem(to, from);
            if (!back.ok())
                VTLog::appendLog("%@ is left in %@: %@", from, to, back.description());
        }
        for (auto folder = m_gatheringFolders.crbegin(); folder != m_gatheringFolders.crend(); ++folder)
            static_cast<void>(platform::removeEmptyFolder(*folder)); // what could not go back is in it
        static_cast<void>(platform::removeEmptyFolder(gathered));
    }

    void moveFrom(std::uint32_t number, const QString &target)
    {
        const TreeFolder &folder = m_tree.folders[number];
        for (const TreeItem &item : folder.items) {
            const QString name = platform::fromNative(folder.nameOf(item));
            const QString path = joined(joined(m_manifest.project, m_tree.pathOf(number)), name);
            if (m_isKept.contains(path))
                continue;
            const bool isParted = item.folder != 0 && !m_isWhole[item.folder];
            const Outcome moved = isParted ? platform::makeNewFolder(joined(target, name))
                                           : platform::moveItem(path, joined(target, name));
            if (!moved.ok()) {
                VTLog::appendLog("Unable to move %@ to the Trash: %@", path, moved.description());
                keep(path, Why::Failed);
            } else if (isParted) {
                m_gatheringFolders.append(joined(target, name));
                moveFrom(item.folder, joined(target, name));
            } else {
                m_moved.append({path, joined(target, name)});
            }
        }
    }

    const Manifest &m_manifest;
    const std::vector<ManifestItem> m_items;
    platform::CopyMonitor &m_monitor;
    const Tree m_tree;
    std::vector<bool> m_isWhole; ///< by the folder's number
    QList<KeptItem> m_kept;
    QSet<QString> m_isKept;
    QList<std::pair<QString, QString>> m_moved; ///< from, to
    QStringList m_gatheringFolders;             ///< a folder before those in it
};

bool returnNumbers(const Manifest &manifest)
{
    ProjectRequest request;
    for (const FilenameParameter &parameter : manifest.parameters) {
        if (!parameter.isFixedByTemplate()) // it took no number
            request.parameters.append(parameter);
    }
    bool isReturned = false;
    ParameterScope scope{manifest.templateName}; // as far as it concerns numbers: those of the template's own
    for (const FilenameParameter &parameter : manifest.parameters) {
        if (parameter.isOwnOfTemplate())
            scope.own.append(parameter);
    }
    const Outcome changed =
        changeParameters(scope, [&](const FilenameParameters &list) -> platform::Result<FilenameParameters> {
            FilenameParameters returned = withNumbersReturned(list, request);
            isReturned = returned != list;
            return returned;
        });
    return changed.ok() && isReturned;
}

} // namespace

QString sentenceOf(const KeptItem &item, const QString &folder)
{
    const QString why = item.why == Why::Changed   ? Text::tr("it has been changed")
                        : item.why == Why::Foreign ? Text::tr("the creation has not made it")
                                                   : Text::tr("it cannot be moved to the Trash");
    const bool isBelow = !folder.isNull() && platform::isInside(item.path, folder);
    const QString path = isBelow ? item.path.mid(folder.size() + 1) : item.path;
    return platform::forDisplay(path) + QStringLiteral(": ") + why;
}

UndoResult undoCreation(const Manifest &manifest, platform::CopyMonitor &monitor)
{
    UndoResult result;
    if (platform::identityOf(manifest.project) != manifest.identity) {
        result.outcome = Outcome::failure(Cause::Missing, manifest.project);
        return result;
    }
    auto items = itemsOf(manifest);
    result.outcome = items.outcome();
    if (!items)
        return result;
    VTLog::appendLog("Undoing the creation of %@", manifest.project);
    monitor.itemsTotal = items->size();
    result.outcome = Undo(manifest, *std::move(items), monitor).run(result.kept);
    if (!result.outcome.ok())
        return result;
    for (const KeptItem &item : std::as_const(result.kept))
        VTLog::appendLog("%@ stays", item.path);
    if (result.kept.isEmpty()) {
        result.numbersReturned = returnNumbers(manifest);
        result.hadOldProject = !manifest.oldInTrash.isNull();
        if (result.hadOldProject)
            result.oldProject = platform::putBackFromTrash(manifest.oldInTrash, manifest.project);
        // The innermost first; one with something else in it stays, and so do those above it.
        for (auto level = manifest.levelsMade.crbegin(); level != manifest.levelsMade.crend(); ++level) {
            if (!platform::removeEmptyFolder(*level).ok())
                break;
        }
    }
    static_cast<void>(forget(manifest)); // one that stays finds its project gone
    return result;
}
