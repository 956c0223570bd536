#include "ui/WatchKeys.h"

#include "platform/Console.h"
#include "platform/FormatString.h"

#include <QKeyEvent>
#include <QMetaObject>

void WatchKeys::add(const QList<char16_t> &keys, const QByteArray &selector)
{
    for (const char16_t key : keys)
        m_entries.append({key, selector});
}

bool WatchKeys::dispatch(char16_t character) const
{
    for (const Entry &entry : m_entries) {
        if (entry.keycode != character)
            continue;
        if (m_delegate && m_delegate->metaObject()->indexOfMethod(entry.selector + "()") >= 0)
            return QMetaObject::invokeMethod(m_delegate, entry.selector.constData(), Qt::DirectConnection);
        platform::printToConsole(
            platform::formatString("Selector %@ doesn't exist", QString::fromLatin1(entry.selector)));
    }
    return false;
}

char16_t WatchKeys::characterOf(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Backspace: return 127;
    case Qt::Key_Delete: return 63272;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return u'\t';
    case Qt::Key_Return: return u'\r';
    case Qt::Key_Enter: return 3;
    case Qt::Key_Escape: return 27;
    default: break;
    }
    if (event.key() >= Qt::Key_Space && event.key() <= Qt::Key_ydiaeresis) {
        const QChar key(static_cast<char16_t>(event.key()));
        return (event.modifiers() & Qt::ShiftModifier ? key : key.toLower()).unicode();
    }
    return event.text().isEmpty() ? 0 : event.text().front().unicode();
}
