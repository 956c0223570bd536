#include "preferences/FolderChoice.h"

#include "platform/base/FormatString.h"
#include "support/FileOperations.h"
#include "support/VTAlert.h"
#include "ui/FilePanels.h"

#include <QCoreApplication>
#include <QFileDialog>

using platform::formatString;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(VTPreferenceController)
};

} // namespace

void folderchoice::browse(QWidget &window, const QString &title, std::function<void(const QString &)> chosen)
{
    auto *panel = new QFileDialog(&window, title);
    panel->setWindowModality(Qt::WindowModal);
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    makePlain(*panel);
    whenLeft<QFileDialog>(*panel, window, [chosen = std::move(chosen)](QFileDialog &left, bool accepted) {
        if (accepted)
            chosen(left.selectedFiles().value(0));
    });
    panel->open();
}

platform::Result<QString> folderchoice::usablePath(QWidget &window, const settings::Setting &setting,
                                                   const QString &typed)
{
    const auto path = settings::checked(setting, typed);
    if (path)
        return path->toString();
    VTAlert::show({formatString(Text::tr("“%@” cannot be used"), typed), path.outcome().sentence()}, &window);
    return path.outcome();
}

bool folderchoice::makeFolder(QWidget &window, const QString &path)
{
    if (VTFileManager::fileExistsAtPath(path))
        return true;
    const platform::Outcome made = fileoperations::createDirectory(path);
    if (!made.ok())
        VTAlert::show({formatString(Text::tr("Unable to create folder %@"), path), checkDestination(made)}, &window);
    return made.ok();
}
