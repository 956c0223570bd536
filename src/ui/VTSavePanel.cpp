#include "ui/VTSavePanel.h"

#include "platform/base/Users.h"
#include "platform/desktop/DesktopPanels.h"
#include "platform/files/FileSystem.h"
#include "ui/FilePanels.h"

#include <QFileSystemModel>
#include <QGridLayout>
#include <QLineEdit>
#include <QUrl>

VTSavePanel::VTSavePanel(QWidget *parent)
    : QFileDialog(parent)
{
    setFileMode(Directory);
    // In a sandbox only the desktop's panel hands a folder over; elsewhere ours says what will be made in it.
    setOptions(platform::isSandboxed() ? ShowDirsOnly : DontUseNativeDialog | ShowDirsOnly);
    setWindowModality(Qt::WindowModal);
    setLabelText(Accept, tr("Create Here"));
    setLabelText(FileName, tr("Folder:"));
    makePlain(*this);
    const auto tell = [this] {
        Q_EMIT folderChanged(chosenFolder());
    };
    connect(this, &QFileDialog::currentChanged, this, tell);
    if (const auto *files = findChild<QFileSystemModel *>()) // directoryEntered() knows only some ways to get there
        connect(files, &QFileSystemModel::rootPathChanged, this, tell, Qt::QueuedConnection);
    if (auto *edit = findChild<QLineEdit *>(QStringLiteral("fileNameEdit")))
        connect(edit, &QLineEdit::textChanged, this, tell);
}

void VTSavePanel::setAccessoryView(QWidget *view)
{
    if (auto *grid = qobject_cast<QGridLayout *>(layout()))
        grid->addWidget(view, grid->rowCount(), 0, 1, grid->columnCount());
}

void VTSavePanel::setRecentFolders(const QStringList &folders)
{
    QList<QUrl> places{QUrl::fromLocalFile(platform::homeFolder())};
    for (const QString &folder : folders) {
        const QUrl place = QUrl::fromLocalFile(folder);
        if (!places.contains(place) && platform::leadsToFolder(folder))
            places.append(place);
    }
    setSidebarUrls(places);
}

QString VTSavePanel::chosenFolder() const
{
    const QString chosen = selectedFiles().value(0);
    return platform::leadsToFolder(chosen) ? chosen : directory().absolutePath();
}
