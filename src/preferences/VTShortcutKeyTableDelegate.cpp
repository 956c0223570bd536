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
#include <array>

using platform::printToConsole;

namespace {

/// The list of keys speaks English, as every program reads it; what it says of our own commands is shown in the user's
/// language, and of others as it is.
[[maybe_unused]] constexpr std::array ownCommands{QT_TRANSLATE_NOOP("VTKeys", "New project"),
                                                  QT_TRANSLATE_NOOP("VTKeys", "Create the project"),
                                                  QT_TRANSLATE_NOOP("VTKeys", "Show the project pane"),
                                                  QT_TRANSLATE_NOOP("VTKeys", "Show the template pane"),
                                                  QT_TRANSLATE_NOOP("VTKeys", "New template"),
                                                  QT_TRANSLATE_NOOP("VTKeys", "Import a template"),
                                                  QT_TRANSLATE_NOOP("VTKeys", "Preferences")};

QString shownDescription(const QString &description)
{
    return QCoreApplication::translate("VTKeys", description.toUtf8().constData());
}

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

/// As the "shortcuts" specification of freedesktop.org writes keys; empty when the key has no name in this layout.
QString triggerOf(const shortcuts::Shortcut &shortcut)
{
    const QString symbol = platform::textOfKeyCode(shortcut.keyCode).symbol;
    if (symbol.isEmpty())
        return {};
    QString trigger;
    for (const auto &[mask, text] : {std::pair{shortcuts::control, "CTRL+"}, std::pair{shortcuts::shift, "SHIFT+"},
                                     std::pair{shortcuts::option, "ALT+"}, std::pair{shortcuts::command, "LOGO+"}}) {
        if ((shortcut.modifiers & mask) != 0)
            trigger += QLatin1String(text);
    }
    return trigger + symbol;
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

bool VTShortcutKeyTableDelegate::hasKeys()
{
    return !shortcuts::assignmentsOf(shortcuts::read().valueOr({}), ownIdentifier()).isEmpty();
}

VTShortcutKeyTableDelegate::VTShortcutKeyTableDelegate()
{
    connect(&m_desktop, &platform::GlobalShortcuts::activated, this, &VTShortcutKeyTableDelegate::commandRequested);
    connect(&m_desktop, &platform::GlobalShortcuts::failed, this, [this](const QString &reason) {
        VTLog::appendLog("The desktop's global shortcuts: %@", reason);
        m_refusal = reason;
        showState();
    });
}

void VTShortcutKeyTableDelegate::setViews(VTShortcutKeyTableview *tableView, QLabel *versionAlertText)
{
    m_tableView = tableView;
    m_stateText = versionAlertText;
    tableView->setModel(this);
    connect(tableView, &VTShortcutKeyTableview::keyPressed, this, &VTShortcutKeyTableDelegate::keyChanged);
    connect(tableView, &VTShortcutKeyTableview::cleared, this, &VTShortcutKeyTableDelegate::clearShortcutKey);
    populateKeyData();
    watchKeys();
}

void VTShortcutKeyTableDelegate::watchKeys()
{
    if (platform::targetExists(managerPath())) {
        m_watcher = Watcher::Manager;
        return showState();
    }
    showState();
    platform::GlobalShortcuts::ask(*this, [this](bool offered) {
        m_watcher = offered ? Watcher::Desktop : Watcher::Nobody;
        bindInDesktop();
        showState();
    });
}

void VTShortcutKeyTableDelegate::showState()
{
    if (!m_tableView || !m_stateText)
        return;
    QString state;
    if (!m_file.ok())
        state = tr("The shortcuts cannot be changed: %1 Please put that file aside and try again.")
                    .arg(m_file.description());
    else if (m_watcher == Watcher::Desktop && !m_refusal.isNull())
        state = tr("Your desktop does not watch these keys now: %1").arg(m_refusal);
    else if (m_watcher == Watcher::Desktop)
        state = tr("Your desktop watches these keys while Tessaro runs, and may ask you about them.");
    else if (m_watcher == Watcher::Nobody)
        state = tr("Nothing on this computer watches these keys: neither the shortcut key manager nor a desktop with "
                   "global shortcuts is there.");
    m_stateText->setText(state);
    m_stateText->setVisible(!state.isEmpty());
    m_tableView->setEnabled(m_watcher == Watcher::Manager || m_watcher == Watcher::Desktop);
}

/// The same keys for two commands: only one of them can have them.
QString VTShortcutKeyTableDelegate::sharerOf(const QVariantMap &file, const QString &identifier,
                                             const shortcuts::Shortcut &shortcut) const
{
    const auto sharers = shortcuts::sharersOf(file, {ownIdentifier(), identifier, {}}, shortcut);
    for (const shortcuts::Sharer &sharer : sharers) {
        if (sharer.bundleIdentifier != ownIdentifier())
            return platform::extensionOf(sharer.bundleIdentifier); // "com.vantrel.Clipwell"
        const auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                      [&](const Row &other) { return other.identifier == sharer.command; });
        if (row != m_rows.end())
            return row->description;
    }
    return {};
}

void VTShortcutKeyTableDelegate::populateKeyData()
{
    beginResetModel();
    m_rows.clear();
    const auto file = shortcuts::read();
    m_file = !file && !file.outcome().is(platform::Cause::Missing) ? file.outcome() : platform::Outcome();
    for (const QVariant &value : commandList()) {
        const QVariantMap command = value.toMap();
        if (!command.value("id").toString().isEmpty()) // nothing could ever call it
            m_rows.append(
                {command.value("id").toString(), shownDescription(command.value("description").toString()), {}});
    }
    const QVariantMap entries = file.valueOr({});
    const auto assigned = shortcuts::assignmentsOf(entries, ownIdentifier());
    for (Row &row : m_rows) {
        const auto shortcut = assigned.constFind(row.identifier);
        if (shortcut == assigned.cend())
            continue;
        row.keyName = nameOrUnknown(*shortcut);
        row.sharer = sharerOf(entries, row.identifier, *shortcut);
    }
    endResetModel();
    showState();
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
    m_file = shortcuts::write(file);
    if (!m_file.ok())
        VTLog::appendLog("Unable to write the shortcut keys: %@", m_file.description());
    else
        platform::postSessionNotification(QStringLiteral("VTShortcutKeysReload"));
    return m_file.ok();
}

void VTShortcutKeyTableDelegate::tellWatcher()
{
    if (platform::targetExists(managerPath()))
        VTTask::runTask(managerPath(), {QStringLiteral("-setup")});
    else if (m_watcher == Watcher::Desktop)
        bindInDesktop();
    else
        printToConsole(
            "Unable to setup shortcut keys - shortcut key manager doesn't exist. Please reinstall this software.");
}

void VTShortcutKeyTableDelegate::bindInDesktop()
{
    if (m_watcher != Watcher::Desktop)
        return;
    const auto assigned = shortcuts::assignmentsOf(shortcuts::read().valueOr({}), ownIdentifier());
    QList<platform::GlobalShortcuts::Shortcut> wanted;
    for (const QVariant &value : commandList()) {
        const QString identifier = value.toMap().value("id").toString();
        if (const auto shortcut = assigned.constFind(identifier); shortcut != assigned.cend())
            wanted.append(
                {identifier, shownDescription(value.toMap().value("description").toString()), triggerOf(*shortcut)});
    }
    m_refusal = QString();
    m_desktop.bind(wanted);
}

bool VTShortcutKeyTableDelegate::setKeyboardShortcut(const QString &commandIdentifier, const QStringList &parameters,
                                                     const shortcuts::Shortcut &shortcut)
{
    const auto file = readForChange();
    if (!file || !store(shortcuts::withAssignment(*file, {ownIdentifier(), commandIdentifier, parameters}, shortcut)))
        return false;
    tellWatcher();
    return true;
}

void VTShortcutKeyTableDelegate::keyChanged(int row, quint16 keyCode, Qt::KeyboardModifiers modifiers)
{
    if (row < 0 || row >= m_rows.size())
        return;
    static_cast<void>(
        setKeyboardShortcut(m_rows[row].identifier, {}, shortcutOf(keyCode, modifiers))); // the pane says what is
    showAnew();
}

void VTShortcutKeyTableDelegate::clearShortcutKey()
{
    const auto selected = m_tableView ? m_tableView->firstSelectedRow() : std::nullopt;
    if (selected && *selected < m_rows.size() &&
        platform::kindOf(shortcuts::filePath()) != platform::FileKind::Missing) {
        if (const auto file = readForChange())
            static_cast<void>(store(shortcuts::without(*file, {ownIdentifier(), m_rows[*selected].identifier, {}})));
    }
    showAnew();
    tellWatcher();
}

/// The rows stay; keys and who shares them may be others. What could not be stored stays said.
void VTShortcutKeyTableDelegate::showAnew()
{
    const auto selected = m_tableView ? m_tableView->firstSelectedRow() : std::nullopt;
    const platform::Outcome written = m_file;
    populateKeyData();
    if (m_file.ok() && !written.ok())
        m_file = written;
    if (selected)
        m_tableView->selectRow(*selected);
    showState();
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
    const QString keys = row.sharer.isNull() ? row.keyName : tr("%1 (also for “%2”)").arg(row.keyName, row.sharer);
    if (role == Qt::DisplayRole)
        return isShortcut ? keys : row.description;
    if (role == Qt::ToolTipRole && isShortcut && !row.sharer.isNull())
        return tr("Only one of the two can have these keys. Please press others for one of them.");
    if (role == Qt::DecorationRole && !isShortcut)
        return icons::application();
    if (role == Qt::AccessibleTextRole)
        return isShortcut ? (row.keyName.isNull() ? tr("no shortcut") : keys) : row.description;
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
