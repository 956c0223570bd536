#pragma once

#include <QObject>

class PathField;
class QWidget;

namespace Ui {
class Prefs_Dialog;
}

/** The Project pane: where projects go, and how their names are cleaned. Every control is bound to its setting, with
   the effect at once. Owned by its window; main thread only. */
class ProjectPane : public QObject
{
    Q_OBJECT

public:
    ProjectPane(Ui::Prefs_Dialog &ui, QWidget &window);

    /** Stores the location and makes the folder. */
    void modifyFixedPath(const QString &typed);

private:
    QWidget &m_window;
    PathField *m_path;
};
