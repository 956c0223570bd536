#pragma once

#include <QModelIndex>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <vector>

class QLineEdit;
class QTreeView;

/**
 * A line above an outline that leaves in sight only what has the text in its name, with the folders above, and what
 * lies below. Escape or an empty line shows everything again, opened as it was. Main thread only.
 */
class TreeFilter : public QObject
{
    Q_OBJECT

public:
    /** Neither is owned; the model is the view's by then. The line is hidden until it is wanted. */
    TreeFilter(QTreeView &view, QLineEdit &line, QObject *parent);
    /** Shows the line, with its text selected. */
    void begin();
    void end();
    /** The same, and the focus stays where it is. */
    void clear();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void apply();
    void deselectHidden();
    void carryOut();
    bool filter(const QModelIndex &parent, const QString &text, bool isBelowFound);
    void rememberOpen(const QModelIndex &parent, const QString &path);
    void openAgain(const QModelIndex &parent, const QString &path);

    QTreeView &m_view;
    QLineEdit &m_line;
    QTimer m_soon;
    bool m_isFiltering = false;
    struct Change
    {
        QModelIndex index;
        bool hides;
        bool opens;
    };
    std::vector<Change> m_changes; ///< of one filtering
    QSet<QPersistentModelIndex> m_hidden;
    QSet<QString> m_wasOpen; ///< names from the top on: a model that is reset keeps no indexes
};
