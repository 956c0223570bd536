#pragma once

#include <QFileDialog>

/**
 * Asks where something new is to be made: it chooses a folder, and the name is its caller's. Nothing is asked about
 * what stands there already, because the caller asks a question of its own afterwards. As a sheet; the caller takes it
 * over.
 */
class VTSavePanel : public QFileDialog
{
    Q_OBJECT

public:
    explicit VTSavePanel(QWidget *parent);

    /** Shown below the panel's own controls; the panel takes it over. */
    void setAccessoryView(QWidget *view);
    /** In the side bar, below home; those that are not there are left out. */
    void setRecentFolders(const QStringList &folders);
    /** The folder that would be chosen now: the selected one, else the one that is shown. */
    [[nodiscard]] QString chosenFolder() const;

Q_SIGNALS:
    void folderChanged(const QString &folder);
};
