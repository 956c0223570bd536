#pragma once

#include "ui/WatchKeys.h"

#include <QMenu>
#include <QTableView>
#include <functional>
#include <optional>



/**
 * A table whose controller reacts to single keys without subclassing, and whose context menu acts on the row that was
 * clicked, because a right click selects it first.
 */
class VTTableView : public QTableView
{
    Q_OBJECT

public:
    /** True: the event was handled. */
    using KeyHandler = std::function<bool(VTTableView &, QKeyEvent &)>;

    explicit VTTableView(QWidget *parent = nullptr);

    void addWatchKeys(const QList<char16_t> &keys, const QByteArray &selector) { m_watchKeys.add(keys, selector); }
    [[nodiscard]] const QList<WatchKeys::Entry> &watchKeys() const { return m_watchKeys.entries(); }
    /** Not owned. */
    void setWatchDelegate(QObject *delegate) { m_watchKeys.setDelegate(delegate); }
    void setKeyDownHandler(KeyHandler handler) { m_keyDown = std::move(handler); }
    void setKeyUpHandler(KeyHandler handler) { m_keyUp = std::move(handler); }
    /** Shown on a right click; not owned. */
    void setContextMenu(QMenu *menu) { m_menu = menu; }

    [[nodiscard]] std::optional<int> firstSelectedRow() const;
    /** Commits the value being typed, if any, and ends the edit. */
    void finishEditing();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    WatchKeys m_watchKeys;
    KeyHandler m_keyDown;
    KeyHandler m_keyUp;
    QPointer<QMenu> m_menu;
};
