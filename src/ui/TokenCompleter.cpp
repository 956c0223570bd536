#include "ui/TokenCompleter.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>

TokenCompleter::TokenCompleter(QLineEdit &line, const QStringList &titles)
    : QObject(&line)
    , m_line(line)
    , m_completer(new QCompleter(titles, this))
{
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setWidget(&line); // not the line's own: it would complete the whole name
    connect(&line, &QLineEdit::textEdited, this, &TokenCompleter::follow);
    connect(m_completer, qOverload<const QString &>(&QCompleter::activated), this, &TokenCompleter::take);
}

/// In front of the cursor, with nothing closed behind it; -1 without one.
qsizetype TokenCompleter::openBrace() const
{
    const QString before = m_line.text().first(m_line.cursorPosition());
    const qsizetype brace = before.lastIndexOf(u'{');
    return brace > before.lastIndexOf(u'}') ? brace : -1;
}

void TokenCompleter::follow()
{
    const qsizetype brace = openBrace();
    const QString begun = brace < 0 ? QString() : m_line.text().mid(brace + 1, m_line.cursorPosition() - brace - 1);
    m_completer->setCompletionPrefix(begun);
    const bool isWhole = m_completer->completionCount() == 1 && m_completer->currentCompletion() == begun;
    if (brace < 0 || m_completer->completionCount() == 0 || isWhole)
        return m_completer->popup()->hide();
    m_completer->complete();
    m_completer->popup()->setCurrentIndex(m_completer->completionModel()->index(0, 0)); // Return takes it
}

void TokenCompleter::take(const QString &title)
{
    const qsizetype brace = openBrace();
    if (brace < 0)
        return;
    const int cursor = m_line.cursorPosition();
    const QString behind = m_line.text().mid(cursor);
    const QString closed = behind.startsWith(u'}') ? behind : u'}' + behind;
    const QString begin = m_line.text().first(brace + 1) + title;
    m_line.setText(begin + closed);
    m_line.setModified(true);
    m_line.setCursorPosition(static_cast<int>(begin.size()) + 1);
}
