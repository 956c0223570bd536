#pragma once

#include "support/ExistsQuestion.h"

#include <QWidget>

class QLabel;

/**
 * The line in the destination panel: the whole path of what will be made, and a warning where it exists already.
 * Whether it does is asked on a worker, for a share may take its time. Main thread.
 */
class BrowseAccessory : public QWidget
{
    Q_OBJECT

public:
    /** What will be made, below the folder that is chosen: "Acme/041_Promo". */
    explicit BrowseAccessory(QString relativePath, QWidget *parent = nullptr);
    void setFolder(const QString &folder);

private:
    QString m_relativePath;
    QLabel *m_path;
    QLabel *m_warning;
    QWidget *m_sign;
    ExistsQuestion m_exists;
};
