#pragma once

#include <QFileDialog>

/** An open panel that takes several items at once, folders as well as files, as they are selected; as a sheet. */
class ImportPanel : public QFileDialog
{
    Q_OBJECT

public:
    enum class Takes { FilesAndFolders, Folders, Bundles };

    /** For bundles: one folder whose name ends in the extension, chosen as one item. */
    ImportPanel(QWidget *parent, Takes takes, QString extension = {});
    /** Absolute paths, in the panel's order. */
    [[nodiscard]] const QStringList &chosen() const { return m_chosen; }

public Q_SLOTS:
    void accept() override;

private:
    [[nodiscard]] QStringList selectedItems() const;

    Takes m_takes;
    QString m_extension;
    QStringList m_chosen;
};
