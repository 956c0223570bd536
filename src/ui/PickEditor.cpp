#include "ui/PickEditor.h"

#include "ui/Icons.h"

#include <QAction>
#include <QCalendarWidget>
#include <QFileDialog>
#include <QKeyEvent>
#include <QListWidget>
#include <QPointer>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr int mostRows = 10;
constexpr int rowPadding = 8;

bool opens(const QKeyEvent &key)
{
    const bool isAltDown = key.key() == Qt::Key_Down && key.modifiers().testFlag(Qt::AltModifier);
    return isAltDown || key.key() == Qt::Key_F4;
}

} // namespace

PickEditor::PickEditor(From from, QStringList items, QWidget *parent)
    : QLineEdit(parent)
    , m_from(from)
    , m_items(std::move(items))
{
    const char *icon = from == From::Calendar ? "kind-date" : from == From::Folders ? "folder" : "chevron-down";
    const QString text = from == From::Calendar  ? tr("Pick a date (Alt+Down)")
                         : from == From::Folders ? tr("Choose a folder (Alt+Down)")
                                                 : tr("Check some (Alt+Down)");
    QAction *action = addAction(icons::named(icon, icons::Tone::Secondary), TrailingPosition);
    action->setText(text);
    action->setToolTip(text);
    connect(action, &QAction::triggered, this, &PickEditor::pick);
}

bool PickEditor::event(QEvent *event)
{
    // Before the table hears of it, to which the arrow means the next row.
    const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (!isKey || !opens(*static_cast<QKeyEvent *>(event)))
        return QLineEdit::event(event);
    event->accept();
    if (event->type() == QEvent::KeyPress)
        pick();
    return true;
}

void PickEditor::pick()
{
    switch (m_from) {
    case From::Calendar:
        return showCalendar();
    case From::Folders:
        return showFolders();
    case From::Several:
        return showItems();
    }
}

void PickEditor::take(const QString &value)
{
    setText(value);
    Q_EMIT textEdited(value);
}

/// Below the line, or above where there is no room. A child of it, so that the table does not take the line away.
QWidget *PickEditor::popUp(QWidget &contents)
{
    auto *frame = new QWidget(this, Qt::Popup);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(&contents);
    frame->setFixedSize(qMax(width(), contents.sizeHint().width() + 2), layout->sizeHint().height());
    QPoint place = mapToGlobal(QPoint(0, height()));
    const QRect room = screen()->availableGeometry();
    if (place.y() + frame->height() > room.bottom())
        place = mapToGlobal(QPoint(0, -frame->height()));
    frame->move(qMax(room.left(), qMin(place.x(), room.right() - frame->width())), place.y());
    frame->show();
    contents.setFocus();
    return frame;
}

void PickEditor::showCalendar()
{
    auto *calendar = new QCalendarWidget;
    calendar->setAccessibleName(tr("Date"));
    calendar->setVerticalHeaderFormat(QCalendarWidget::ISOWeekNumbers);
    const QDate date = QDate::fromString(text(), Qt::ISODate);
    calendar->setSelectedDate(date.isValid() ? date : QDate::currentDate());
    QWidget *frame = popUp(*calendar);
    const auto taken = [this, frame](QDate picked) {
        take(picked.toString(Qt::ISODate));
        frame->close();
    };
    connect(calendar, &QCalendarWidget::activated, this, taken);
    connect(calendar, &QCalendarWidget::clicked, this, taken);
}

void PickEditor::showFolders()
{
    auto *panel = new QFileDialog(window(), tr("Choose a folder"), text());
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    connect(panel, &QFileDialog::fileSelected, this, &PickEditor::take);
    panel->open();
}

void PickEditor::showItems()
{
    auto *list = new QListWidget;
    list->setAccessibleName(accessibleName());
    list->setFrameShape(QFrame::NoFrame);
    QStringList now;
    for (const QString &part : text().split(u','))
        now.append(part.trimmed());
    for (const QString &text : m_items) {
        auto *item = new QListWidgetItem(text, list);
        item->setSizeHint(QSize(0, fontMetrics().height() + rowPadding));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(now.contains(text) ? Qt::Checked : Qt::Unchecked);
    }
    const int rows = static_cast<int>(qMin<qsizetype>(mostRows, m_items.size()));
    list->setFixedHeight(rows * qMax(list->sizeHintForRow(0), 1) + 4);
    list->setCurrentRow(0);
    connect(list, &QListWidget::itemChanged, this, [this, list] {
        QStringList checked;
        for (int row = 0; row < list->count(); ++row) {
            if (list->item(row)->checkState() == Qt::Checked)
                checked.append(list->item(row)->text());
        }
        take(checked.join(QStringLiteral(", ")));
    });
    popUp(*list);
}
