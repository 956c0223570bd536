#pragma once

#include "parameters/table/ParameterEditorModel.h"

#include <QObject>

class QWidget;

namespace Ui {
class Prefs_Dialog;
}

/** The Parameters pane: the list itself, the separator and the date format. What is changed is stored at once, and the
   project pane follows. Owned by its window; main thread only. */
class ParametersPane : public QObject
{
    Q_OBJECT

public:
    ParametersPane(Ui::Prefs_Dialog &ui, QWidget &window);

    /** Takes in what is being typed. */
    void finishEditing();

public Q_SLOTS:
    void addNewFilenameParam();
    void removeFilenameParam();
    /** What the values of the selected parameter must be. */
    void showDetails();

private:
    void setUpTable();
    void moveSelected(int by);
    void openKinds(const QModelIndex &clicked);
    void greyWhatIsLocked();
    void follow();
    void populateDateFormats();
    void showDateFormat();
    void changeDateFormat();
    void changeCustomDateFormat();
    void changeSeparator(const QString &typed);
    void showPreview();

    Ui::Prefs_Dialog &m_ui;
    QWidget &m_window;
    ParameterEditorModel m_parameters;
};
