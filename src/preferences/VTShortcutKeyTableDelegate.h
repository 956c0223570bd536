#pragma once

#include "platform/desktop/GlobalShortcuts.h"
#include "preferences/ShortcutFile.h"

#include <QAbstractTableModel>
#include <QPointer>

class QLabel;
class VTShortcutKeyTableview;

/**
 * The commands and the keys that trigger them, in every program. The program does not watch the keyboard itself: a
 * manager, shared by the maker's applications, does, and is told of every change; where it is not installed, the
 * desktop, if it offers that. One object for the whole process.
 * Main thread only.
 */
class VTShortcutKeyTableDelegate : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { DescriptionColumn, ShortcutColumn, ColumnCount };

    static VTShortcutKeyTableDelegate &sharedController();

    /** The views go away with their window; then it lets go of them. */
    void setViews(VTShortcutKeyTableview *tableView, QLabel *versionAlertText);
    /** Where the desktop has to do it, hands it the keys that are assigned; commandRequested() comes for them. */
    void watchKeys();
    /** Reads the commands and their assignments anew. */
    void populateKeyData();

    /** False when the shared file could not be changed; it is then as it was, and the reason is logged. */
    bool setKeyboardShortcut(const QString &commandIdentifier, const QStringList &parameters,
                             const shortcuts::Shortcut &shortcut);

    /** "Shift+Cmd+S" by the layout in force; null when the key gives nothing in it. */
    [[nodiscard]] static QString nameForKeyCode(quint16 keyCode, quint16 modifiers);
    /** The name of a key by what it gives: some characters have names, all others are their own. */
    [[nodiscard]] static QString nameOfKeyText(const QString &text);
    /** What a key press is stored as; a bare key gets Shift and Cmd. */
    [[nodiscard]] static shortcuts::Shortcut shortcutOf(quint16 keyCode, Qt::KeyboardModifiers modifiers);

    [[nodiscard]] static QString managerPath();
    /** Whether any command has keys. */
    [[nodiscard]] static bool hasKeys();

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

public Q_SLOTS:
    /** A key was pressed in the selected row's cell. */
    void keyChanged(int row, quint16 keyCode, Qt::KeyboardModifiers modifiers);
    void clearShortcutKey();

Q_SIGNALS:
    void commandRequested(const QString &identifier);

private:
    enum class Watcher { Unknown, Manager, Desktop, Nobody };
    struct Row
    {
        QString identifier;
        QString description;
        QString keyName;     ///< null without a shortcut
        QString sharer = {}; ///< what else has the same keys, as people know it
    };
    VTShortcutKeyTableDelegate();
    [[nodiscard]] static platform::Result<QVariantMap> readForChange();
    [[nodiscard]] bool store(const QVariantMap &file);
    void tellWatcher();
    void bindInDesktop();
    void showState();
    void showAnew();
    [[nodiscard]] QString sharerOf(const QVariantMap &file, const QString &identifier,
                                   const shortcuts::Shortcut &shortcut) const;

    QList<Row> m_rows;
    QPointer<VTShortcutKeyTableview> m_tableView;
    QPointer<QLabel> m_stateText;
    platform::Outcome m_file; ///< how the shared file was last read or written
    Watcher m_watcher = Watcher::Unknown;
    QString m_refusal; ///< why the desktop does not watch the keys; null while it does
    platform::GlobalShortcuts m_desktop;
};
