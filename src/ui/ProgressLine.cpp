#include "ui/ProgressLine.h"

#include "ui/Colours.h"

#include "platform/base/MainThread.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/LauncherEntry.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QWindow>

namespace {

constexpr int margin = 16;
constexpr int gap = 12;
constexpr int steps = 1000;
constexpr int barWidth = 160;
constexpr double smallFont = 0.85;

} // namespace

ProgressLine::ProgressLine(QWidget *parent)
    : QWidget(parent)
    , m_what(new QLabel)
    , m_amount(new QLabel)
    , m_bar(new QProgressBar)
    , m_cancel(new QPushButton(tr("Cancel")))
{
    setObjectName(QStringLiteral("progressLine"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(margin, 0, margin, margin);
    row->setSpacing(gap);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    for (QLabel *label : {m_what, m_amount}) {
        label->setTextFormat(Qt::PlainText);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // the window does not grow with a name
        texts->addWidget(label);
    }
    QFont small = m_amount->font();
    small.setPointSizeF(small.pointSizeF() * smallFont);
    m_amount->setFont(small);
    colourAmount();
    row->addLayout(texts, 1);
    row->addWidget(m_bar);
    row->addWidget(m_cancel);
    m_bar->setTextVisible(false);
    m_bar->setFixedWidth(barWidth);
    m_bar->setAccessibleName(tr("Progress"));
    m_cancel->setAutoDefault(false);
    m_cancel->setToolTip(tr("Stop the work (Escape)"));
    connect(m_cancel, &QPushButton::clicked, this, &ProgressLine::cancel);
    QWidget::hide();
    LongWork::setPresenter(this);
    platform::InputClosed::setException(
        [this](QObject *receiver, QEvent *event) { return comesThrough(receiver, event); });
}

ProgressLine::~ProgressLine()
{
    LongWork::setPresenter(nullptr);
    platform::InputClosed::setException({});
}

void ProgressLine::show(const WorkState &state)
{
    QStringList amount{state.amount(), platform::forOneLine(state.folder)};
    amount.removeAll(QString());
    setTexts(state.what, state.isStopping ? tr("Stopping…") : amount.join(QStringLiteral(" — ")));
    const double fraction = state.fraction();
    m_bar->setRange(0, fraction < 0 ? 0 : steps); // no range: it only moves
    m_bar->setValue(static_cast<int>(fraction * steps));
    m_cancel->setEnabled(!state.isStopping);
    if (!isVisible()) {
        QWidget::show();
        window()->layout()->activate(); // the texts are cut to the width that they have
        const QWidget *focused = window()->focusWidget();
        if (!focused || !focused->isEnabled())
            m_cancel->setFocus();
    }
    platform::showInLauncher(qMax(0.0, fraction));
}

/// Secondary text: a palette's own colour for that is missing where a dark one was made by hand.
void ProgressLine::colourAmount()
{
    QPalette faint;
    faint.setColor(QPalette::WindowText,
                   secondaryText(palette().color(QPalette::Window), palette().color(QPalette::WindowText)));
    m_amount->setPalette(faint);
}

void ProgressLine::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colourAmount();
}

void ProgressLine::setTexts(const QString &what, const QString &amount)
{
    for (const auto &[label, text] : {std::pair(m_what, what), std::pair(m_amount, amount)}) {
        label->setText(label->fontMetrics().elidedText(text, Qt::ElideMiddle, qMax(label->width(), 1)));
        label->setAccessibleName(text);
        label->setToolTip(text);
    }
}

void ProgressLine::hide()
{
    QWidget::hide();
    platform::showInLauncher({});
}

void ProgressLine::cancel()
{
    LongWork::cancelShown();
    m_cancel->setEnabled(false);
}

/// A window's events come first to the window itself, which hands them on to the widget.
bool ProgressLine::comesThrough(QObject *receiver, QEvent *event)
{
    if (!isVisible() || event->type() == QEvent::Close)
        return false;
    if (const auto *widget = qobject_cast<QWidget *>(receiver))
        return isAncestorOf(widget);
    if (receiver != window()->windowHandle())
        return false;
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        cancel();
        return false;
    }
    if (const auto *pointing = dynamic_cast<QSinglePointEvent *>(event))
        return m_cancel->rect().contains(m_cancel->mapFrom(window(), pointing->position().toPoint()));
    return event->isInputEvent() && m_cancel->hasFocus();
}
