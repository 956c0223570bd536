#include "preferences/VTShortcutKeyTableDelegate.h"

#include "platform/base/Console.h"
#include "platform/base/FormatString.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/KeyboardLayout.h"
#include "platform/desktop/SessionNotification.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileSystem.h"
#include "platform/files/WholeFile.h"
#include "preferences/VTShortcutKeyTableview.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "support/VTTask.h"
#include "ui/Icons.h"
#include "ui/ValueCellDelegate.h"

#include <QCoreApplication>
#include <QLabel>

using platform::printToConsole;

namespace {

struct KeyNames
{
    Q_DECLARE_TR_FUNCTIONS(KeyNames)
};

struct KeyName
{
    char16_t character;
    const char *name;
};
/// The navigation keys twice, as layouts give them; Return and Enter the wrong way round. Both must stay.
constexpr KeyName keyNames[]{
    {0xF700, QT_TRANSLATE_NOOP("KeyNames", "Up Arrow")},   {0xF701, QT_TRANSLATE_NOOP("KeyNames", "Down Arrow")},
    {0xF702, QT_TRANSLATE_NOOP("KeyNames", "Left Arrow")}, {0xF703, QT_TRANSLATE_NOOP("KeyNames", "Right Arrow")},
    {0xF729, QT_TRANSLATE_NOOP("KeyNames", "Home")},       {0xF72B, QT_TRANSLATE_NOOP("KeyNames", "End")},
    {0xF72C, QT_TRANSLATE_NOOP("KeyNames", "Page Up")},    {0xF72D, QT_TRANSLATE_NOOP("KeyNames", "Page Down")},
    {0x1E, QT_TRANSLATE_NOOP("KeyNames", "Up Arrow")},     {0x1F, QT_TRANSLATE_NOOP("KeyNames", "Down Arrow")},
    {0x1C, QT_TRANSLATE_NOOP("KeyNames", "Left Arrow")},   {0x1D, QT_TRANSLATE_NOOP("KeyNames", "Right Arrow")},
    {0x01, QT_TRANSLATE_NOOP("KeyNames", "Home")},         {0x04, QT_TRANSLATE_NOOP("KeyNames", "End")},
    {0x0B, QT_TRANSLATE_NOOP("KeyNames", "Page Up")},      {0x0C, QT_TRANSLATE_NOOP("KeyNames", "Page Down")},
    {0x03, QT_TRANSLATE_NOOP("KeyNames", "Return")},       {0x09, QT_TRANSLATE_NOOP("KeyNames", "Tab")},
    {0x19, QT_TRANSLATE_NOOP("KeyNames", "Backtab")},      {0x0D, QT_TRANSLATE_NOOP("KeyNames", "Enter")},
    {0x08, QT_TRANSLATE_NOOP("KeyNames", "Backspace")},    {0x7F, QT_TRANSLATE_NOOP("KeyNames", "Delete")},
    {0x1B, QT_TRANSLATE_NOOP("KeyNames", "Escape")},       {0x20, QT_TRANSLATE_NOOP("KeyNames", "Space")},
};

QString ownIdentifier()
{
    return platform::ApplicationBundle::main().informationString(QStringLiteral("CFBundleIdentifier"));
}

QVariantList commandList()
{
    const QString path =
        platform::joined(platform::ApplicationBundle::main().path(), QStringLiteral("Contents/VTKeys.plist"));
    return platform::readPropertyListFile(path).valueOr({}).toMap().value(QStringLiteral("VTKeys")).toList();
}

QString nameOrUnknown(const shortcuts::Shortcut &shortcut)
{
    const QString name = VTShortcutKeyTableDelegate::nameForKeyCode(shortcut.keyCode, shortcut.modifiers);
    return name.isNull() ? VTShortcutKeyTableDelegate::tr("Unknown") : name;
}

} // namespace

VTShortcutKeyTableDelegate &VTShortcutKeyTableDelegate::sharedController()
{
    static auto *shared = new VTShortcutKeyTableDelegate;
    return *shared;
}

QString VTShortcutKeyTableDelegate::managerPath()
{
    return VTLocalPaths::appSupportDirectory(VTLocalPaths::Domain::Local) +
           QStringLiteral("/Vantrel/Shared Resources/VTShortcutKeyManager");
}

void VTShortcutKeyTableDelegate::setViews(VTShortcutKeyTableview *tableView, QLabel *versionAlertText)
{
    m_tableView = tableView;
    const bool hasManager = platform::targetExists(managerPath());
    versionAlertText->setVisible(!hasManager);
    tableView->setEnabled(hasManager);
    tableView->setModel(this);
    connect(tableView, &VTShortcutKeyTableview::keyPressed, this, &VTShortcutKeyTableDelegate::keyChanged);
    connect(tableView, &VTShortcutKeyTableview::cleared, this, &VTShortcutKeyTableDelegate::clearShortcutKey);
    populateKeyData();
}

void VTShortcutKeyTableDelegate::populateKeyData()
{
    beginResetModel();
    m_rows.clear();
    const auto assigned = shortcuts::assignmentsOf(shortcuts::read().valueOr({}), ownIdentifier());
    for (const QVariant &value : commandList()) {
        const QVariantMap command = value.toMap();
        Row row{command.value("id").toString(), command.value("description").toString(), {}};
        if (row.identifier.isEmpty()) // nothing could ever call it
            continue;
        if (const auto shortcut = assigned.constFind(row.identifier); shortcut != assigned.cend())
            row.keyName = nameOrUnknown(*shortcut);
        m_rows.append(row);
    }
    endResetModel();
}

QString VTShortcutKeyTableDelegate::nameOfKeyText(const QString &text)
{
    for (const KeyName &entry : keyNames) {
        if (!text.isEmpty() && text.front() == QChar(entry.character))
            return KeyNames::tr(entry.name);
    }
    return text;
}

QString VTShortcutKeyTableDelegate::nameForKeyCode(quint16 keyCode, quint16 modifiers)
{
    const platform::KeyText key = platform::textOfKeyCode(keyCode);
    if (!key.hasLayout)
        printToConsole("Couldn't find a suitable keyboard layout from which to translate");
    else if (!key.text)
        printToConsole(platform::formatString("Couldn't find a translation for the '%d' key code", keyCode));
    if (!key.text)
        return {};
    QString name;
    for (const auto &[mask, text] : {std::pair{shortcuts::control, "Ctrl+"}, std::pair{shortcuts::shift, "Shift+"},
                                     std::pair{shortcuts::option, "Alt+"}, std::pair{shortcuts::command, "Cmd+"}}) {
        if ((modifiers & mask) != 0)
            name += QLatin1String(text);
    }
    const QString keyText = nameOfKeyText(*key.text);
    return name + (keyText.size() == 1 ? keyText.toUpper() : keyText);
}

shortcuts::Shortcut VTShortcutKeyTableDelegate::shortcutOf(quint16 keyCode, Qt::KeyboardModifiers modifiers)
{
    quint16 mask = 0;
    for (const auto &[held, bit] :
         {std::pair{Qt::ShiftModifier, shortcuts::shift}, std::pair{Qt::ControlModifier, shortcuts::control},
          std::pair{Qt::AltModifier, shortcuts::option}, std::pair{Qt::MetaModifier, shortcuts::command}}) {
        if (modifiers.testFlag(held))
            mask |= bit;
    }
    return {keyCode, mask != 0 ? mask : static_cast<quint16>(shortcuts::shift | shortcuts::command)};
}

platform::Result<QVariantMap> VTShortcutKeyTableDelegate::readForChange()
{
    platform::Result<QVariantMap> file = shortcuts::read();
    if (!file && file.outcome().is(platform::Cause::Missing))
        return QVariantMap();
    if (!file) // other programs' entries may still be saved out of it
        VTLog::appendLog("The shortcut keys are not changed: %@. Please put it aside and try again.",
                         file.outcome().description());
    return file;
}

bool VTShortcutKeyTableDelegate::store(const QVariantMap &file)
{
    if (const platform::Outcome written = shortcuts::write(file); !written.ok()) {
        VTLog::appendLog("Unable to write the shortcut keys: %@", written.description());
        return false;
    }
    platform::postSessionNotification(QStringLiteral("VTShortcutKeysReload"));
    return true;
}

void VTShortcutKeyTableDelegate::setUpManager()
{
    if (platform::targetExists(managerPath()))
        VTTask::runTask(managerPath(), {QStringLiteral("-setup")});
    else
        printToConsole(
            "Unable to setup shortcut keys - shortcut key manager doesn't exist. Please reinstall this software.");
}

bool VTShortcutKeyTableDelegate::setKeyboardShortcut(const QString &commandIdentifier, const QStringList &parameters,
                                                     const shortcuts::Shortcut &shortcut)
{
    const auto file = readForChange();
    if (!file || !store(shortcuts::withAssignment(*file, {ownIdentifier(), commandIdentifier, parameters}, shortcut)))
        return false;
    setUpManager();
    return true;
}

void VTShortcutKeyTableDelegate::keyChanged(int row, quint16 keyCode, Qt::KeyboardModifiers modifiers)
{
    if (row < 0 || row >= m_rows.size())
        return;
    const shortcuts::Shortcut shortcut = shortcutOf(keyCode, modifiers);
    if (setKeyboardShortcut(m_rows[row].identifier, {}, shortcut))
        m_rows[row].keyName = nameOrUnknown(shortcut);
    Q_EMIT dataChanged(index(row, ShortcutColumn), index(row, ShortcutColumn));
}

void VTShortcutKeyTableDelegate::clearShortcutKey()
{
    const auto selected = m_tableView ? m_tableView->firstSelectedRow() : std::nullopt;
    if (selected && *selected < m_rows.size()) {
        const bool exists = platform::kindOf(shortcuts::filePath()) != platform::FileKind::Missing;
        const auto file = readForChange();
        const bool cleared =
            exists && file && store(shortcuts::without(*file, {ownIdentifier(), m_rows[*selected].identifier, {}}));
        if (cleared || !exists)
            m_rows[*selected].keyName = QString();
    }
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0, ShortcutColumn), index(static_cast<int>(m_rows.size()) - 1, ShortcutColumn));
    setUpManager();
}

int VTShortcutKeyTableDelegate::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int VTShortcutKeyTableDelegate::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant VTShortcutKeyTableDelegate::data(const QModelIndex &index, int role) const
{
    const Row row = m_rows.value(index.row());
    const bool isShortcut = index.column() == ShortcutColumn;
    if (role == Qt::DisplayRole)
        return isShortcut ? row.keyName : row.description;
    if (role == Qt::DecorationRole && !isShortcut)
        return icons::application();
    if (role == Qt::AccessibleTextRole)
        return isShortcut ? (row.keyName.isNull() ? tr("no shortcut") : row.keyName) : row.description;
    return {};
}

QVariant VTShortcutKeyTableDelegate::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == ShortcutColumn ? tr("Shortcut") : tr("Command");
}

Qt::ItemFlags VTShortcutKeyTableDelegate::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() == ShortcutColumn ? flags | Qt::ItemIsEditable : flags;
}
