#pragma once

#include <QFileDialog>

/**
 * A save panel that never asks whether to replace an existing item, because its caller asks a question of its own
 * afterwards, and never walks into a folder of the suggested name instead of ending.
 */
class VTSavePanel : public QFileDialog
{
    Q_OBJECT

public:
    explicit VTSavePanel(QWidget *parent);

    void setSuggestedName(const QString &name) { selectFile(name); }
    /** Shown below the panel's own controls; the panel takes it over. */
    void setAccessoryView(QWidget *view);
    /** The folder and name that were chosen; valid once the panel was accepted. */
    [[nodiscard]] QString chosenPath() const { return m_chosenPath; }

protected:
    void accept() override;
    void done(int result) override;

private:
    QString m_chosenPath;
};
