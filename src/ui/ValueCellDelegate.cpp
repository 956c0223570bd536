#include "ui/ValueCellDelegate.h"

#include "platform/base/NativePath.h"
#include "ui/EditorFocus.h"
#include "ui/Icons.h"

#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

namespace {

/// Property of an editor: what it showed before anything was typed.
constexpr const char *textBefore = "textBefore";
constexpr int chevronSide = 16;
constexpr int margin = 8;
constexpr float hairlineOpacity = 0.15F;
constexpr float secondaryOpacity = 0.65F;
constexpr int accentWidth = 3;

CellEditor editorOf(const QModelIndex &index)
{
    const QVariant editor = index.data(CellRole::Editor);
    return editor.isValid() ? editor.value<CellEditor>() : CellEditor::Text;
}

QColor faint(QColor colour, float opacity)
{
    colour.setAlphaF(opacity);
    return colour;
}

QString textIn(const QWidget *editor)
{
    const auto *combo = qobject_cast<const QComboBox *>(editor);
    return combo ? combo->currentText() : qobject_cast<const QLineEdit *>(editor)->text();
}

} // namespace

void ValueCellDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->text = platform::forDisplay(option->text);
    option->decorationSize = QSize(16, 16);
    option->state &= ~QStyle::State_HasFocus; // the whole row is marked; a frame within it would be drawn twice
    if (!index.data(CellRole::Secondary).toBool())
        return;
    for (const auto role : {QPalette::Text, QPalette::HighlightedText})
        option->palette.setColor(role, faint(option->palette.color(role), secondaryOpacity));
}

void ValueCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    painter->save();
    painter->setPen(faint(option.palette.color(QPalette::Text), hairlineOpacity));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    if (option.state.testFlag(QStyle::State_Selected) && index.column() == 0)
        painter->fillRect(option.rect.x(), option.rect.y(), accentWidth, option.rect.height() - 1,
                          option.widget ? option.widget->palette().highlight() : option.palette.highlight());
    const bool offersItems = editorOf(index) != CellEditor::Text && index.flags().testFlag(Qt::ItemIsEditable);
    if (offersItems && !index.data(CellRole::Items).toStringList().isEmpty()) {
        const QRect place(option.rect.right() - margin - chevronSide, option.rect.center().y() - chevronSide / 2 + 1,
                          chevronSide, chevronSide);
        icons::named("chevron-down", icons::Tone::Secondary).paint(painter, place);
    }
    painter->restore();
}

QWidget *ValueCellDelegate::createCombo(QWidget *parent, const QModelIndex &index, CellEditor kind) const
{
    auto *combo = new QComboBox(parent);
    combo->setFrame(false);
    for (const QString &item : index.data(CellRole::Items).toStringList())
        combo->addItem(platform::forDisplay(item), item);
    if (kind == CellEditor::History) {
        combo->setEditable(true);
        combo->setInsertPolicy(QComboBox::NoInsert);
        combo->lineEdit()->setPlaceholderText(tr("(not set)"));
        combo->completer()->setCaseSensitivity(Qt::CaseSensitive);
    }
    return combo;
}

QWidget *ValueCellDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    const CellEditor kind = editorOf(index);
    QWidget *editor = nullptr;
    if (kind == CellEditor::Text) {
        auto *line = new QLineEdit(parent);
        line->setFrame(false);
        editor = line;
    } else {
        editor = createCombo(parent, index, kind);
    }
    editor->setAutoFillBackground(true);
    const QString name = index.data(CellRole::AccessibleName).toString();
    editor->setAccessibleName(name);
    if (auto *combo = qobject_cast<QComboBox *>(editor)) { // whose name, to a reader on this desktop, is its value
        combo->setAccessibleDescription(name);
        if (combo->lineEdit())
            combo->lineEdit()->setAccessibleName(name);
    }
    return editor;
}

bool ValueCellDelegate::eventFilter(QObject *editor, QEvent *event)
{
    if (leavesForAnotherWindow(*event))
        return false;
    const auto *combo = qobject_cast<QComboBox *>(editor);
    const auto *line = combo ? combo->lineEdit() : qobject_cast<QLineEdit *>(editor);
    const bool isUndo =
        event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Undo);
    if (!isUndo || !line || line->isUndoAvailable())
        return QStyledItemDelegate::eventFilter(editor, event);
    event->ignore(); // it would take the key all the same
    return true;
}

/// A value that changes while its editor is open shows there, unless something has been typed: that stays.
void ValueCellDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QVariant before = editor->property(textBefore);
    if (before.isValid() && before.toString() != textIn(editor))
        return;
    show(editor, index);
    editor->setProperty(textBefore, textIn(editor));
    auto *combo = qobject_cast<QComboBox *>(editor);
    if (auto *line = combo ? combo->lineEdit() : qobject_cast<QLineEdit *>(editor); line && before.isValid())
        line->selectAll();
}

void ValueCellDelegate::show(QWidget *editor, const QModelIndex &index) const
{
    const QString value = index.data(Qt::EditRole).toString();
    if (auto *combo = qobject_cast<QComboBox *>(editor)) {
        // A value that is not among the choices selects none: showing the first one would put it in by the back door.
        combo->setCurrentIndex(combo->findData(value));
        if (combo->isEditable())
            combo->setEditText(value);
    } else {
        qobject_cast<QLineEdit *>(editor)->setText(value);
    }
}

void ValueCellDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    auto *combo = qobject_cast<QComboBox *>(editor);
    if (combo && !combo->isEditable()) {
        if (combo->currentIndex() >= 0)
            model->setData(index, combo->currentData());
        return;
    }
    model->setData(index, textIn(editor));
}

void ValueCellDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                             const QModelIndex &) const
{
    editor->setGeometry(option.rect.adjusted(0, 0, 0, -1)); // the hairline stays
}
