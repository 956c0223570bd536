#include "preferences/VTShortcutKeyTableview.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int leastRowHeight = 28;

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta ||
           key == Qt::Key_AltGr || key == Qt::Key_Super_L || key == Qt::Key_Super_R || key == Qt::Key_CapsLock ||
           key == Qt::Key_NumLock || key == Qt::Key_ScrollLock || key == Qt::Key_Hyper_L || key == Qt::Key_Hyper_R ||
           key == Qt::Key_Mode_switch || key == Qt::Key_unknown;
}

class CapturingDelegate : public QStyledItemDelegate
{
public:
    explicit CapturingDelegate(VTShortcutKeyTableview *view)
        : QStyledItemDelegate(view)
        , m_view(view)
    {
    }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const override
    {
        auto *editor = new VTShortcutKeyFieldEditor(parent);
        auto *view = m_view;
        connect(editor, &VTShortcutKeyFieldEditor::VTShortcutKeyChanged, view,
                [view, editor, row = index.row()](quint16 keyCode, Qt::KeyboardModifiers modifiers) {
                    Q_EMIT view->keyPressed(row, keyCode, modifiers);
                    Q_EMIT static_cast<CapturingDelegate *>(view->itemDelegate())
                        ->closeEditor(editor, QAbstractItemDelegate::NoHint); // one key press ends it
                });
        return editor;
    }
    void setEditorData(QWidget *, const QModelIndex &) const override {}
    void setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const override {}

protected:
    /// Tab, Return and Escape are keys like all others while one is captured.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        return event->type() == QEvent::FocusOut && QStyledItemDelegate::eventFilter(watched, event);
    }

private:
    VTShortcutKeyTableview *m_view;
};

} // namespace

VTShortcutKeyFieldEditor::VTShortcutKeyFieldEditor(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    setAccessibleName(tr("Press the keys of the shortcut"));
}

bool VTShortcutKeyFieldEditor::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept(); // the window's own shortcuts must not take it
        return true;
    }
    if (event->type() != QEvent::KeyPress)
        return QWidget::event(event);
    const auto *key = static_cast<QKeyEvent *>(event);
    if (!isModifier(key->key()))
        Q_EMIT VTShortcutKeyChanged(static_cast<quint16>(key->nativeScanCode()), key->modifiers());
    return true;
}

void VTShortcutKeyFieldEditor::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawText(rect().adjusted(4, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, tr("Press the keys…"));
}

VTShortcutKeyTableview::VTShortcutKeyTableview(QWidget *parent)
    : VTTableView(parent)
{
    setItemDelegate(new CapturingDelegate(this));
    setShowGrid(false);
    setTabKeyNavigation(false);
    setEditTriggers(DoubleClicked | EditKeyPressed);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(qMax(leastRowHeight, fontMetrics().height() + 12));
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
}

void VTShortcutKeyTableview::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    const auto row = firstSelectedRow();
    if (event->isAutoRepeat() && key != Qt::Key_Up && key != Qt::Key_Down)
        return; // a key that was captured and is still held: what it stands for has just been assigned
    if (key == Qt::Key_Backspace || key == Qt::Key_Delete)
        Q_EMIT cleared();
    else if (row && (key == Qt::Key_Return || key == Qt::Key_Enter))
        edit(model()->index(*row, 1));
    else
        VTTableView::keyPressEvent(event);
}
