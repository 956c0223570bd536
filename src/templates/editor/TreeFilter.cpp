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
    connect(&line, &QLineEdit::textChanged, this, &TreeFilter::apply);
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
    const QString text = m_line.text().trimmed();
    const bool wasFiltering = std::exchange(m_isFiltering, !text.isEmpty());
    if (m_isFiltering && !wasFiltering)
        rememberOpen({}, {});
    m_view.setUpdatesEnabled(false);
    filter({}, text, false);
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

/// Whether anything at or below the folder is found.
bool TreeFilter::filter(const QModelIndex &parent, const QString &text, bool isBelowFound)
{
    bool any = false;
    for (int row = 0; row < m_view.model()->rowCount(parent); ++row) {
        const QModelIndex index = m_view.model()->index(row, 0, parent);
        const bool isFound = text.isEmpty() || index.data().toString().contains(text, Qt::CaseInsensitive);
        const bool hasFound = filter(index, text, isBelowFound || isFound);
        m_view.setRowHidden(row, parent, !(isFound || hasFound || isBelowFound));
        if (!text.isEmpty() && hasFound)
            m_view.expand(index);
        any = any || isFound || hasFound;
    }
    return any;
}
