#include "ui/ImportPanel.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"

#include <QAbstractItemView>

ImportPanel::ImportPanel(QWidget *parent, Takes takes, QString extension)
    : QFileDialog(parent)
    , m_takes(takes)
    , m_extension(std::move(extension))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setOption(DontUseNativeDialog); // the desktops' own panels take either files or one folder
    setFileMode(takes == Takes::FilesAndFolders ? ExistingFiles : Directory);
    setOption(ShowDirsOnly, takes == Takes::Folders);
    const auto mode =
        takes == Takes::Bundles ? QAbstractItemView::SingleSelection : QAbstractItemView::ExtendedSelection;
    for (const char *name : {"listView", "treeView"}) {
        if (auto *view = findChild<QAbstractItemView *>(QLatin1String(name)))
            view->setSelectionMode(mode);
    }
}

QStringList ImportPanel::selectedItems() const
{
    QStringList items;
    if (const auto *view = findChild<QAbstractItemView *>(QStringLiteral("listView"))) {
        for (const QModelIndex &row : view->selectionModel()->selectedRows())
            items.append(directory().absoluteFilePath(row.data().toString()));
    }
    return items.isEmpty() ? selectedFiles() : items;
}

void ImportPanel::accept()
{
    QStringList items = selectedItems();
    if (m_takes == Takes::Bundles) {
        items.removeIf([this](const QString &path) {
            return platform::extensionOf(path).compare(m_extension, Qt::CaseInsensitive) != 0;
        });
    }
    items.removeIf([](const QString &path) { return !platform::targetExists(path); });
    if (items.isEmpty())
        return QFileDialog::accept(); // a folder that was typed or is no bundle: goes there
    m_chosen = items;
    QDialog::accept();
}
