#include "ui/ValueCellDelegate.h"

#include "ui/Colours.h"

#include "platform/base/NativePath.h"
#include "ui/EditorFocus.h"
#include "ui/Icons.h"
#include "ui/PickEditor.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <functional>

namespace {

/// Property of an editor: what it showed before anything was typed.
constexpr const char *textBefore = "textBefore";
/// Property of an editor: a value that it offered was taken out of the history. Leaving it would put the same one back.
constexpr const char *itemWasRemoved = "itemWasRemoved";
constexpr int chevronSide = 16;
constexpr int margin = 8;
constexpr int signSide = 16;
constexpr int signGap = 4;
constexpr int rounding = 2; // a text is elided by fractions of a pixel
constexpr float hairlineOpacity = 0.15F;
constexpr float boxOpacity = 0.6F;
constexpr float disabledBoxOpacity = 0.25F;
constexpr int accentWidth = 3;
constexpr int linesShown = 7;

CellEditor editorOf(const QModelIndex &index)
{
    const QVariant editor = index.data(CellRole::Editor);
    return editor.isValid() ? editor.value<CellEditor>() : CellEditor::Text;
}

std::optional<PickEditor::From> pickedFrom(CellEditor kind)
{
    switch (kind) {
    case CellEditor::Date:
        return PickEditor::From::Calendar;
    case CellEditor::Folder:
        return PickEditor::From::Folders;
    case CellEditor::Several:
        return PickEditor::From::Several;
    default:
        return std::nullopt;
    }
}

QColor faint(QColor colour, float opacity)
{
    colour.setAlphaF(opacity);
    return colour;
}

/// How much of the cell's right end the hint takes, with its sign and a gap; at most half of the cell.
int hintWidth(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QString hint = index.data(CellRole::Hint).toString();
    if (hint.isEmpty())
        return 0;
    const int sign = index.data(CellRole::IsProblem).toBool() ? signSide + signGap : 0;
    return qMin(option.fontMetrics.horizontalAdvance(hint) + sign + 2 * margin + rounding, option.rect.width() / 2);
}

/// Where the list's sign is, if the cell has one.
int chevronWidth(const QModelIndex &index)
{
    const bool offersItems = editorOf(index) != CellEditor::Text && editorOf(index) != CellEditor::Lines &&
                             index.flags().testFlag(Qt::ItemIsEditable);
    return offersItems && !index.data(CellRole::Items).toStringList().isEmpty() ? chevronSide + margin : 0;
}

bool isGrey(const QStyleOptionViewItem &cell)
{
    return cell.widget && !cell.widget->isEnabled();
}

QColor textColor(const QStyleOptionViewItem &cell)
{
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    auto group = cell.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    if (isGrey(cell))
        group = QPalette::Disabled;
    return cell.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

/// A box to check that can be seen in every palette: the style's own has the colour of a dark background.
void drawBox(QPainter &painter, const QStyleOptionViewItem &cell, const QModelIndex &index)
{
    const QVariant check = index.data(Qt::CheckStateRole);
    if (!check.isValid())
        return;
    QStyleOptionViewItem option = cell;
    option.features |= QStyleOptionViewItem::HasCheckIndicator;
    const QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
    QRectF box(style->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, cell.widget));
    box.adjust(1.5, 1.5, -1.5, -1.5);
    const bool isEnabled = index.flags().testFlag(Qt::ItemIsUserCheckable);
    const QColor text = textColor(cell);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(faint(text, isEnabled ? boxOpacity : disabledBoxOpacity), 1));
    painter.drawRoundedRect(box, 2, 2);
    if (check.toInt() == Qt::Checked) {
        painter.setPen(QPen(faint(text, isEnabled ? 1.0F : boxOpacity), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const auto at = [&](double x, double y) {
            return QPointF(box.x() + x * box.width(), box.y() + y * box.height());
        };
        painter.drawPolyline(QPolygonF{at(0.22, 0.52), at(0.43, 0.74), at(0.8, 0.28)});
    }
    painter.restore();
}

void drawHint(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const int width = hintWidth(option, index);
    if (width == 0)
        return;
    const int right = option.rect.right() - chevronWidth(index);
    QRect place(right - width + margin, option.rect.y(), width - 2 * margin, option.rect.height());
    if (index.data(CellRole::IsProblem).toBool()) {
        icons::named("warning").paint(&painter,
                                      QRect(place.x(), place.center().y() - signSide / 2 + 1, signSide, signSide));
        place.setLeft(place.x() + signSide + signGap);
    }
    painter.setPen(isGrey(option)
                       ? textColor(option)
                       : secondaryText(option.palette.color(QPalette::Base), option.palette.color(QPalette::Text)));
    painter.drawText(
        place, Qt::AlignVCenter | Qt::AlignRight,
        option.fontMetrics.elidedText(index.data(CellRole::Hint).toString(), Qt::ElideRight, place.width()));
}

/// Over the rows below, or above where there is no room.
void placeLines(QWidget &editor, const QRect &cell)
{
    const int height = editor.fontMetrics().lineSpacing() * linesShown + margin;
    const int lowest = editor.parentWidget()->height() - height;
    editor.setGeometry(cell.x(), qMax(0, qMin(cell.y(), lowest)), cell.width(), height);
    editor.raise();
}

QString textIn(const QWidget *editor)
{
    if (const auto *lines = qobject_cast<const QPlainTextEdit *>(editor))
        return lines->toPlainText();
    const auto *combo = qobject_cast<const QComboBox *>(editor);
    return combo ? combo->currentText() : qobject_cast<const QLineEdit *>(editor)->text();
}

/// The open list of a history: Delete takes the marked value out of it. Owned by the combo box.
class HistoryList : public QObject
{
public:
    HistoryList(QComboBox &combo, std::function<void(const QString &)> removed)
        : QObject(&combo)
        , m_combo(combo)
        , m_removed(std::move(removed))
    {
        combo.view()->installEventFilter(this);
    }

    bool eventFilter(QObject *list, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Delete)
            return QObject::eventFilter(list, event);
        const int row = m_combo.view()->currentIndex().row();
        if (row < 0)
            return true;
        const QString text = m_combo.currentText(); // what is typed is no part of the list
        const QString item = m_combo.itemData(row).toString();
        m_combo.removeItem(row);
        m_combo.setEditText(text);
        m_combo.view()->setCurrentIndex(m_combo.model()->index(qMin(row, m_combo.count() - 1), 0));
        if (m_combo.count() == 0)
            m_combo.hidePopup();
        m_combo.setProperty(itemWasRemoved, true);
        m_removed(item);
        return true;
    }

private:
    QComboBox &m_combo;
    std::function<void(const QString &)> m_removed;
};

} // namespace

void ValueCellDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->text = platform::forDisplay(option->text);
    option->decorationSize = QSize(16, 16);
    option->features &= ~QStyleOptionViewItem::HasCheckIndicator; // drawBox() draws it
    option->state &= ~QStyle::State_HasFocus; // the whole row is marked; a frame within it would be drawn twice
    if (const int hint = hintWidth(*option, index); hint > 0)
        option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight,
                                                      option->rect.width() - hint - chevronWidth(index) - 2 * margin);
    if (!index.data(CellRole::Secondary).toBool() || isGrey(*option))
        return;
    // What cannot be changed is read all the same.
    for (const auto &[role, ground] :
         {std::pair(QPalette::Text, QPalette::Base), std::pair(QPalette::HighlightedText, QPalette::Highlight)})
        option->palette.setColor(role, secondaryText(option->palette.color(QPalette::Active, ground),
                                                     option->palette.color(QPalette::Active, role)));
}

void ValueCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    drawBox(*painter, option, index);
    painter->save();
    painter->setPen(faint(option.palette.color(QPalette::Active, QPalette::Text), hairlineOpacity));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    const bool hasKeys = option.widget && option.widget->hasFocus();
    if (option.state.testFlag(QStyle::State_Selected) && index.column() == 0 && hasKeys)
        painter->fillRect(option.rect.x(), option.rect.y(), accentWidth, option.rect.height() - 1,
                          option.widget->palette().highlight());
    // Where a row has several cells to be in, the one that has the keys is framed.
    if (option.state.testFlag(QStyle::State_HasFocus) && index.model()->columnCount() > 2) {
        painter->setPen(textColor(option));
        painter->drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -1.5, -2.5));
    }
    drawHint(*painter, option, index);
    if (chevronWidth(index) > 0) {
        const QRect place(option.rect.right() - margin - chevronSide, option.rect.center().y() - chevronSide / 2 + 1,
                          chevronSide, chevronSide);
        icons::named("chevron-down", icons::Tone::Secondary)
            .paint(painter, place, Qt::AlignCenter, isGrey(option) ? QIcon::Disabled : QIcon::Normal);
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
    if (kind == CellEditor::Lines) {
        auto *lines = new QPlainTextEdit(parent);
        lines->setTabChangesFocus(true);
        lines->setLineWrapMode(QPlainTextEdit::NoWrap);
        editor = lines;
    } else if (const auto picks = pickedFrom(kind)) {
        auto *line = new PickEditor(*picks, index.data(CellRole::Items).toStringList(), parent);
        line->setFrame(false);
        editor = line;
    } else if (kind == CellEditor::Text) {
        auto *line = new QLineEdit(parent);
        line->setFrame(false);
        editor = line;
    } else {
        editor = createCombo(parent, index, kind);
    }
    editor->setAutoFillBackground(true);
    followTyping(*editor, index);
    const QString name = index.data(CellRole::AccessibleName).toString();
    editor->setAccessibleName(name);
    const QString sentence = index.data(Qt::AccessibleDescriptionRole).toString();
    editor->setAccessibleDescription(sentence);
    if (auto *combo = qobject_cast<QComboBox *>(editor)) { // whose name, to a reader on this desktop, is its value
        combo->setAccessibleDescription(sentence.isEmpty() ? name : name + QStringLiteral(". ") + sentence);
        if (combo->lineEdit()) {
            combo->lineEdit()->setAccessibleName(name);
            combo->lineEdit()->setAccessibleDescription(sentence);
        }
    }
    return editor;
}

void ValueCellDelegate::followTyping(QWidget &editor, const QModelIndex &index) const
{
    const QPersistentModelIndex cell(index);
    const auto tell = [this, cell](const QString &text) {
        Q_EMIT typed(cell, text);
    };
    auto *combo = qobject_cast<QComboBox *>(&editor);
    if (auto *line = qobject_cast<QLineEdit *>(&editor))
        connect(line, &QLineEdit::textEdited, this, tell);
    if (auto *line = combo ? combo->lineEdit() : nullptr) {
        const auto tellCompleted = [line, tell] { // the completion comes after the key
            if (line->isVisible())
                tell(line->text());
        };
        connect(line, &QLineEdit::textEdited, this, tellCompleted, Qt::QueuedConnection);
    }
    if (!combo)
        return;
    if (combo->isEditable()) {
        connect(combo, &QComboBox::textActivated, this, tell);
        new HistoryList(*combo, [this, cell](const QString &item) { Q_EMIT itemRemoved(cell, item); });
    } else {
        connect(combo, &QComboBox::activated, this,
                [combo, self = const_cast<ValueCellDelegate *>(this)] { Q_EMIT self->commitData(combo); });
    }
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
    const bool isTyped = before.isValid() && before.toString() != textIn(editor);
    if (isTyped || (before.isValid() && index.data(Qt::EditRole).toString() == before.toString()))
        return; // something else of the row has changed
    show(editor, index);
    editor->setProperty(textBefore, textIn(editor));
    auto *combo = qobject_cast<QComboBox *>(editor);
    if (auto *line = combo ? combo->lineEdit() : qobject_cast<QLineEdit *>(editor); line && before.isValid())
        line->selectAll();
}

void ValueCellDelegate::show(QWidget *editor, const QModelIndex &index) const
{
    const QString value = index.data(Qt::EditRole).toString();
    if (auto *lines = qobject_cast<QPlainTextEdit *>(editor)) {
        lines->setPlainText(QString(value).replace(u',', u'\n'));
        return lines->moveCursor(QTextCursor::End);
    }
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
    const bool isUntouched = editor->property(textBefore).toString() == textIn(editor);
    if (!(isUntouched && editor->property(itemWasRemoved).toBool()))
        model->setData(index, textIn(editor));
}

void ValueCellDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                             const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    cell.fontMetrics = editor->fontMetrics();
    if (qobject_cast<QPlainTextEdit *>(editor))
        return placeLines(*editor, option.rect);
    const int hint = hintWidth(cell, index);
    // The hairline stays, and what a hint says of what is being typed.
    editor->setGeometry(option.rect.adjusted(0, 0, hint > 0 ? -hint - chevronWidth(index) : 0, -1));
}
