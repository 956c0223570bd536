#pragma once

#include <QStyledItemDelegate>

/** How a value is edited in its cell. */
enum class CellEditor {
    Text,
    History,
    Choices,
    Date,    ///< picked from a calendar
    Folder,  ///< chosen with a panel
    Several, ///< some of the items, with commas between them
    Lines,   ///< several values with commas between them, each on a line of its own while they are edited
};
Q_DECLARE_METATYPE(CellEditor)

/** What a model of values tells the delegate besides Qt's own roles. */
namespace CellRole {
enum : int {
    Editor = Qt::UserRole + 1, ///< CellEditor
    Items,                     ///< QStringList: what a history or a choice offers
    Hint,                      ///< QString: a few words at the right of the cell, beside its editor, too
    IsProblem,                 ///< bool: the hint gets a warning sign
    Secondary,                 ///< bool: filled in by the program, drawn fainter
    AccessibleName,            ///< QString: what the editor is called
    LabelColor,                ///< QColor behind the whole row; invalid without a label
    StemLength,                ///< int: how much of a name is selected when it is edited; invalid for all
    Subtitle,                  ///< QString: a second, smaller line
    SubtitleColor,             ///< QColor of that line
    Badges,                    ///< QStringList: icons at the right end of the row; invalid without any
    IsLink,                    ///< bool: the icon gets a badge
};
}

/** Draws the cells of a form and makes the editor that suits a value: a line, a line with memory, a list of
   choices, several lines. */
class ValueCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    [[nodiscard]] QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

Q_SIGNALS:
    /** At every key, before the value is taken in. One that is picked from a list is taken in at once. */
    void typed(const QModelIndex &index, const QString &text) const;
    /** Somebody has taken one out of the values that a history offers. */
    void itemRemoved(const QModelIndex &index, const QString &item) const;

protected:
    /** Undo, where an editor has nothing to take back, is the window's. */
    bool eventFilter(QObject *editor, QEvent *event) override;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    void show(QWidget *editor, const QModelIndex &index) const;
    void followTyping(QWidget &editor, const QModelIndex &index) const;
    [[nodiscard]] QWidget *createCombo(QWidget *parent, const QModelIndex &index, CellEditor kind) const;
};
