#pragma once

#include <QFileDialog>

/**
 * An open panel that takes several items at once, folders as well as files, as they are selected; as a sheet. It ends
 * with something chosen or not at all. The caller takes it over.
 */
class ImportPanel : public QFileDialog
{
    Q_OBJECT

public:
    enum class Takes { FilesAndFolders, Folders, Bundles };

    /** For bundles: folders whose names end in the extension, each chosen as one item, and archives of them
       (".tzt.zip"); other folders are entered. */
    ImportPanel(QWidget *parent, Takes takes, QString extension = {});
    /** Absolute paths, in the panel's order. */
    [[nodiscard]] const QStringList &chosen() const { return m_chosen; }

public Q_SLOTS:
    void accept() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isBundle(const QString &path) const;
    [[nodiscard]] QString pathOf(const QModelIndex &index) const;
    [[nodiscard]] QStringList selectedItems() const;

    Takes m_takes;
    QString m_extension;
    QStringList m_chosen;
};
