#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPointer>

class QKeyEvent;

/**
 * Single keys that a view hands to its controller: each entry is a character as typed without modifiers and the name of
 * an invokable method. A key registered twice has two entries, and the first whose receiver answers wins.
 */
class WatchKeys
{
public:
    struct Entry
    {
        char16_t keycode; ///< a character, not a hardware key code
        QByteArray selector;
    };

    /** What the delete keys give, in every form in which a keyboard may give it. */
    [[nodiscard]] static QList<char16_t> deleteKeys();

    void add(const QList<char16_t> &keys, const QByteArray &selector);
    [[nodiscard]] const QList<Entry> &entries() const { return m_entries; }
    void setDelegate(QObject *delegate) { m_delegate = delegate; }
    [[nodiscard]] QObject *delegate() const { return m_delegate; }

    /** True when an entry's method was called. A method that the delegate lacks is told to the console. */
    [[nodiscard]] bool dispatch(char16_t character) const;

    /** The character of the key without modifiers but Shift; delete keys give those of the reference desktop. */
    [[nodiscard]] static char16_t characterOf(const QKeyEvent &event);

private:
    QList<Entry> m_entries;
    QPointer<QObject> m_delegate;
};
