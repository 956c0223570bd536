#include "ui/ImportPanel.h"

#include "platform/base/NativePath.h"
#include "platform/base/Users.h"
#include "platform/files/FileSystem.h"
#include "ui/FilePanels.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

/// Where something was found, the next thing lies mostly.
QString &lastFolder()
{
    static QString folder;
    return folder;
}

} // namespace

ImportPanel::ImportPanel(QWidget *parent, Takes takes, QString extension)
    : QFileDialog(parent)
    , m_takes(takes)
    , m_extension(std::move(extension))
{
    setWindowModality(Qt::WindowModal);
    setFileMode(takes == Takes::Folders ? Directory : ExistingFiles);
    setOption(ShowDirsOnly, takes == Takes::Folders);
    if (takes == Takes::Bundles)
        setNameFilter(QStringLiteral("*.%1.zip").arg(m_extension));
    setOption(ReadOnly); // here nothing is made, renamed or removed
    setLabelText(Accept, tr("Import"));
    setOption(DontUseNativeDialog);
    makePlain(*this); // the desktops' own panels take either files or one folder
    setDirectory(platform::leadsToFolder(lastFolder()) ? lastFolder() : platform::homeFolder());
    for (const char *name : {"listView", "treeView"}) {
        auto *view = findChild<QAbstractItemView *>(QLatin1String(name));
        if (!view)
            continue;
        view->setSelectionMode(QAbstractItemView::ExtendedSelection);
        view->installEventFilter(this); // before the panel's own, which would enter a bundle as a folder
        view->viewport()->installEventFilter(this);
    }
    if (auto *newFolder = findChild<QWidget *>(QStringLiteral("newFolderButton")))
        newFolder->hide();
}

bool ImportPanel::isBundle(const QString &path) const
{
    const QString ending = u'.' + m_extension;
    return m_takes == Takes::Bundles && (path.endsWith(ending, Qt::CaseInsensitive) ||
                                         path.endsWith(ending + QStringLiteral(".zip"), Qt::CaseInsensitive));
}

/// A double click, or Return, on a bundle chooses what is selected: to the user it is one item.
bool ImportPanel::eventFilter(QObject *watched, QEvent *event)
{
    auto *view = qobject_cast<QAbstractItemView *>(watched);
    QModelIndex index;
    if (event->type() == QEvent::MouseButtonDblClick) {
        view = qobject_cast<QAbstractItemView *>(watched->parent());
        index = view ? view->indexAt(static_cast<QMouseEvent *>(event)->pos()) : QModelIndex();
    } else if (view && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        index = key == Qt::Key_Return || key == Qt::Key_Enter ? view->currentIndex() : QModelIndex();
    }
    if (!index.isValid() || !isBundle(pathOf(index)))
        return QFileDialog::eventFilter(watched, event);
    accept();
    return true;
}

QString ImportPanel::pathOf(const QModelIndex &index) const
{
    return platform::joined(directory().absolutePath(), index.siblingAtColumn(0).data(Qt::EditRole).toString());
}

QStringList ImportPanel::selectedItems() const
{
    QStringList items;
    if (const auto *view = findChild<QAbstractItemView *>(QStringLiteral("listView"))) {
        for (const QModelIndex &row : view->selectionModel()->selectedRows())
            items.append(pathOf(row));
    }
    const auto *edit = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    const bool isTyped = edit && edit->hasFocus();
    return items.isEmpty() || isTyped ? selectedFiles() : items;
}

void ImportPanel::accept()
{
    QStringList items = selectedItems();
    items.removeIf([](const QString &path) { return !platform::targetExists(path); });
    const QString folder = items.value(0);
    if (m_takes == Takes::Bundles)
        items.removeIf([this](const QString &path) { return !isBundle(path); });
    if (!items.isEmpty()) {
        m_chosen = items;
        lastFolder() = directory().absolutePath();
        return QDialog::accept(); // NOLINT(bugprone-parent-virtual-call): the panel's own would go into a bundle
    }
    if (!platform::leadsToFolder(folder) || folder == directory().absolutePath())
        return; // nothing that could be taken: the panel stays
    setDirectory(folder);
    if (auto *edit = findChild<QLineEdit *>(QStringLiteral("fileNameEdit")))
        edit->clear();
}
