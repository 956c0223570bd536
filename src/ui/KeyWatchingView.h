#pragma once

#include "ui/WatchKeys.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <functional>
#include <optional>

/**
 * What the program's table and its outline have in common: single keys that a controller reacts to without subclassing,
 * and a context menu that acts on the row that was clicked, because a right click selects it first.
 */
template <typename Base> class KeyWatchingView : public Base
{
public:
    /** True: the event was handled. */
    using KeyHandler = std::function<bool(QAbstractItemView &, QKeyEvent &)>;

    using Base::Base;

    void addWatchKeys(const QList<char16_t> &keys, const QByteArray &selector) { m_watchKeys.add(keys, selector); }
    [[nodiscard]] const QList<WatchKeys::Entry> &watchKeys() const { return m_watchKeys.entries(); }
    /** Not owned. */
    void setWatchDelegate(QObject *delegate) { m_watchKeys.setDelegate(delegate); }
    void setKeyDownHandler(KeyHandler handler) { m_keyDown = std::move(handler); }
    void setKeyUpHandler(KeyHandler handler) { m_keyUp = std::move(handler); }
    /** Shown on a right click; not owned. */
    void setContextMenu(QMenu *menu) { m_menu = menu; }

    /** Whether an editor is open: its model must not be reset then. */
    [[nodiscard]] bool isEditing() const { return Base::indexWidget(Base::currentIndex()) != nullptr; }

    /** Commits the value being typed, if any, and ends the edit. */
    void finishEditing()
    {
        // Not asked by the view's state: that ends when a row elsewhere is removed, and the editor stays.
        QWidget *editor = Base::indexWidget(Base::currentIndex());
        if (!editor)
            return;
        Base::commitData(editor);
        Base::closeEditor(editor, QAbstractItemDelegate::NoHint);
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (Base::state() == Base::EditingState)
            return Base::keyPressEvent(event);
        if (m_keyDown && !m_keyDown(*this, *event))
            Base::keyPressEvent(event);
        if (!m_watchKeys.dispatch(WatchKeys::characterOf(*event)) && !m_keyDown)
            Base::keyPressEvent(event);
    }

    void keyReleaseEvent(QKeyEvent *event) override
    {
        if (Base::state() != Base::EditingState && m_keyUp && m_keyUp(*this, *event))
            return;
        Base::keyReleaseEvent(event);
    }

    void contextMenuEvent(QContextMenuEvent *event) override
    {
        // The menu key means what is selected.
        if (event->reason() != QContextMenuEvent::Keyboard && !prepareMenuAt(Base::indexAt(event->pos())))
            return;
        if (m_menu)
            m_menu->popup(event->globalPos());
        else
            Base::contextMenuEvent(event);
    }

    /** Selects what was clicked; the index is invalid beside the rows. False when there is no menu there. */
    virtual bool prepareMenuAt(const QModelIndex &clicked) = 0;

private:
    WatchKeys m_watchKeys;
    KeyHandler m_keyDown;
    KeyHandler m_keyUp;
    QPointer<QMenu> m_menu;
};
