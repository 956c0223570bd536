#include "ui/WatchKeys.h"

#include "platform/base/Console.h"
#include "platform/base/FormatString.h"

#include <QKeyEvent>
#include <QMetaObject>

namespace {

// As the reference desktop numbers them.
constexpr char16_t backspace = 8;
constexpr char16_t deleteCharacter = 127;
constexpr char16_t deleteFunctionKey = 0xF73E;
constexpr char16_t forwardDelete = 0xF728;
constexpr char16_t deleteLine = 0xF73C;

} // namespace

QList<char16_t> WatchKeys::deleteKeys()
{
    return {backspace, deleteCharacter, deleteFunctionKey, forwardDelete, deleteLine};
}

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
    case Qt::Key_Backspace:
        return deleteCharacter;
    case Qt::Key_Delete:
        return forwardDelete;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return u'\t';
    case Qt::Key_Return:
        return u'\r';
    case Qt::Key_Enter:
        return 3;
    case Qt::Key_Escape:
        return 27;
    default:
        break;
    }
    if (event.key() >= Qt::Key_Space && event.key() <= Qt::Key_ydiaeresis) {
        const QChar key(static_cast<char16_t>(event.key()));
        return (event.modifiers() & Qt::ShiftModifier ? key : key.toLower()).unicode();
    }
    return event.text().isEmpty() ? 0 : event.text().front().unicode();
}
