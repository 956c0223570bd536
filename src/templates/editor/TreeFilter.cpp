#include "templates/editor/TreeFilter.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeView>

TreeFilter::TreeFilter(QTreeView &view, QLineEdit &line, QObject *parent)
    : QObject(parent)
    , m_view(view)
    , m_line(line)
{
    line.hide();
    line.setClearButtonEnabled(true);
    line.installEventFilter(this);
    // After the letter is drawn, and once for several that wait: a hundred thousand names take longer than a frame.
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &TreeFilter::apply);
    connect(&line, &QLineEdit::textChanged, this, [this] { m_soon.start(0); });
    const auto again = [this] {
        if (m_isFiltering)
            apply();
    };
    connect(view.model(), &QAbstractItemModel::modelReset, this, again);
    connect(view.model(), &QAbstractItemModel::rowsInserted, this, again);
}

void TreeFilter::begin()
{
    m_line.show();
    m_line.setFocus();
    m_line.selectAll();
}

void TreeFilter::end()
{
    clear();
    m_view.setFocus();
}

void TreeFilter::clear()
{
    m_line.clear();
    apply();
    m_line.hide();
}

bool TreeFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Escape:
        end();
        return true;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_soon.isActive())
            apply();
        m_view.setFocus();
        if (!m_view.currentIndex().isValid() || m_view.visualRect(m_view.currentIndex()).isEmpty())
            m_view.setCurrentIndex(m_view.indexAt(QPoint(1, 1)));
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void TreeFilter::rememberOpen(const QModelIndex &parent, const QString &path)
{
    for (int row = 0; row < m_view.model()->rowCount(parent); ++row) {
        const QModelIndex index = m_view.model()->index(row, 0, parent);
        if (!m_view.isExpanded(index))
            continue;
        const QString below = path + u'/' + index.data().toString();
        m_wasOpen.insert(below);
        rememberOpen(index, below);
    }
}

void TreeFilter::openAgain(const QModelIndex &parent, const QString &path)
{
    for (int row = 0; row < m_view.model()->rowCount(parent); ++row) {
        const QModelIndex index = m_view.model()->index(row, 0, parent);
        const QString below = path + u'/' + index.data().toString();
        if (!m_wasOpen.contains(below))
            continue;
        m_view.expand(index);
        openAgain(index, below);
    }
}

void TreeFilter::apply()
{
    m_soon.stop();
    const QString text = m_line.text().trimmed();
    const bool wasFiltering = std::exchange(m_isFiltering, !text.isEmpty());
    if (m_isFiltering && !wasFiltering)
        rememberOpen({}, {});
    m_view.setUpdatesEnabled(false);
    if (m_isFiltering)
        filter({}, text, false);
    carryOut();
    deselectHidden();
    if (!m_isFiltering && wasFiltering) {
        m_view.collapseAll();
        openAgain({}, {});
        m_wasOpen.clear();
        m_view.scrollTo(m_view.currentIndex());
    }
    m_view.setUpdatesEnabled(true);
}

/// What is not in sight is not meant by the next command.
void TreeFilter::deselectHidden()
{
    QItemSelection hidden;
    for (const QModelIndex &row : m_view.selectionModel()->selectedRows()) {
        for (QModelIndex above = row; above.isValid(); above = above.parent()) {
            if (m_view.isRowHidden(above.row(), above.parent())) {
                hidden.select(row, row);
                break;
            }
        }
    }
    m_view.selectionModel()->select(hidden, QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
}

/// Whether anything below the folder is found. What is to be hidden or shown is only noted: nothing is done to what
/// lies in a folder that is out of sight itself, which is most of a large tree.
bool TreeFilter::filter(const QModelIndex &parent, const QString &text, bool isBelowFound)
{
    bool any = false;
    const QAbstractItemModel &model = *m_view.model();
    for (int row = 0, count = model.rowCount(parent); row < count; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const bool isFound = text.isEmpty() || index.data().toString().contains(text, Qt::CaseInsensitive);
        const std::size_t before = m_changes.size();
        const bool hasFound = model.hasChildren(index) && filter(index, text, isBelowFound || isFound);
        const bool isInSight = isFound || hasFound || isBelowFound;
        if (!isInSight)
            m_changes.resize(before);
        m_changes.push_back({index, !isInSight, !text.isEmpty() && hasFound});
        any = any || isFound || hasFound;
    }
    return any;
}

/// What was hidden and is not to be any more is shown first; without a text that is all.
void TreeFilter::carryOut()
{
    QSet<QPersistentModelIndex> hidden;
    for (const Change &change : m_changes) {
        if (change.hides)
            hidden.insert(change.index);
    }
    for (const QPersistentModelIndex &index : std::as_const(m_hidden)) {
        if (index.isValid() && !hidden.contains(index))
            m_view.setRowHidden(index.row(), index.parent(), false);
    }
    for (const QPersistentModelIndex &index : std::as_const(hidden)) {
        if (!m_hidden.contains(index) || !m_view.isRowHidden(index.row(), index.parent()))
            m_view.setRowHidden(index.row(), index.parent(), true);
    }
    for (const Change &change : m_changes) {
        if (change.opens)
            m_view.expand(change.index);
    }
    m_hidden = std::move(hidden);
    m_changes.clear();
}
