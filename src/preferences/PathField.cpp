#include "preferences/PathField.h"

#include "platform/base/NativePath.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

PathField::PathField(QLineEdit &line, QLabel &hint, Place place)
    : QObject(&line)
    , m_line(line)
    , m_hint(hint)
    , m_usualHint(hint.text())
    , m_place(std::move(place))
{
    line.installEventFilter(this);
    connect(&line, &QLineEdit::textEdited, this, &PathField::check);
    connect(&line, &QLineEdit::returnPressed, this, &PathField::apply, Qt::QueuedConnection);
    refresh();
}

QString PathField::shown() const
{
    return platform::forDisplay(m_place.inForce());
}

bool PathField::isChanged() const
{
    return m_line.text() != shown();
}

void PathField::refresh()
{
    m_line.setText(shown());
    m_hint.setText(m_usualHint);
}

void PathField::follow()
{
    if (!m_line.hasFocus() || !m_line.isModified())
        refresh();
}

void PathField::check()
{
    const auto path = settings::checked(m_place.setting, m_line.text());
    m_hint.setText(isChanged() && !path ? path.outcome().sentence() : m_usualHint);
}

void PathField::apply()
{
    check();
    if (isChanged() && settings::checked(m_place.setting, m_line.text()))
        m_place.apply(m_line.text());
}

bool PathField::eventFilter(QObject *, QEvent *event)
{
    const auto isEscape = [event] {
        return static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    };
    if (event->type() == QEvent::ShortcutOverride && isEscape() && isChanged()) {
        event->accept(); // else the window would take it and close
    } else if (event->type() == QEvent::KeyPress && isEscape() && isChanged()) {
        refresh();
        return true;
    } else if (event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
            QMetaObject::invokeMethod(this, &PathField::apply, Qt::QueuedConnection);
    }
    return false;
}
