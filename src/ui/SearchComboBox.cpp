#include "ui/SearchComboBox.h"

#include <QAbstractItemModel>
#include <QFrame>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QScreen>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

namespace {

constexpr int longEnough = 20;  // entries, from which on they are searched rather than looked through
constexpr int shownAtOnce = 16; // rows

/// The open list. Goes when it is closed.
class SearchPopup : public QFrame
{
public:
    explicit SearchPopup(QComboBox &box)
        : QFrame(&box, Qt::Popup)
        , m_box(box)
        , m_line(new QLineEdit(this))
        , m_list(new QListView(this))
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setFrameShape(StyledPanel);
        m_found.setSourceModel(box.model());
        m_found.setFilterCaseSensitivity(Qt::CaseInsensitive);
        m_list->setModel(&m_found);
        m_list->setUniformItemSizes(true);
        m_list->setFrameShape(NoFrame);
        m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
        m_list->setFocusPolicy(Qt::NoFocus); // the keys go to the line, which hands on those that walk
        m_list->setAccessibleName(box.accessibleName());
        m_line->setPlaceholderText(SearchComboBox::tr("Search"));
        m_line->setAccessibleName(SearchComboBox::tr("Search"));
        m_line->setClearButtonEnabled(true);
        m_line->installEventFilter(this);
        setFocusProxy(m_line);
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(4, 4, 4, 4);
        column->setSpacing(4);
        column->addWidget(m_line);
        column->addWidget(m_list);
        connect(m_line, &QLineEdit::textChanged, this, [this](const QString &text) {
            m_found.setFilterFixedString(text);
            mark(m_found.index(0, 0));
        });
        connect(m_list, &QListView::clicked, this, &SearchPopup::take);
        mark(m_found.mapFromSource(box.model()->index(box.currentIndex(), 0)));
    }

    bool eventFilter(QObject *line, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return QFrame::eventFilter(line, event);
        const auto *key = static_cast<QKeyEvent *>(event);
        const int page = qMax(1, m_list->height() / qMax(1, m_list->sizeHintForRow(0)) - 1);
        switch (key->key()) {
        case Qt::Key_Up:
            return walk(-1);
        case Qt::Key_Down:
            return walk(1);
        case Qt::Key_PageUp:
            return walk(-page);
        case Qt::Key_PageDown:
            return walk(page);
        case Qt::Key_Return:
        case Qt::Key_Enter:
            take(m_list->currentIndex());
            return true;
        default:
            return QFrame::eventFilter(line, event);
        }
    }

    QSize sizeHint() const override
    {
        const int rows = m_list->sizeHintForRow(0) * shownAtOnce;
        return {m_box.width(), rows + m_line->sizeHint().height() + 3 * 4 + 2 * frameWidth()};
    }

private:
    void mark(const QModelIndex &index)
    {
        m_list->setCurrentIndex(index);
        m_list->scrollTo(index);
    }
    bool walk(int rows)
    {
        mark(m_found.index(qBound(0, m_list->currentIndex().row() + rows, m_found.rowCount() - 1), 0));
        return true;
    }
    void take(const QModelIndex &index)
    {
        if (!index.isValid())
            return;
        const int row = m_found.mapToSource(index).row();
        QPointer box(&m_box);
        close();
        box->setCurrentIndex(row);
        Q_EMIT box->activated(row);
    }

    QComboBox &m_box;
    QLineEdit *m_line;
    QListView *m_list;
    QSortFilterProxyModel m_found;
};

} // namespace

void SearchComboBox::showPopup()
{
    if (count() < longEnough)
        return QComboBox::showPopup();
    auto *popup = new SearchPopup(*this);
    popup->adjustSize();
    const QRect room = screen()->availableGeometry();
    QPoint place = mapToGlobal(QPoint(0, height()));
    place.setY(qMax(room.top(), qMin(place.y(), room.bottom() - popup->height())));
    popup->move(place);
    popup->show();
    popup->setFocus();
}
