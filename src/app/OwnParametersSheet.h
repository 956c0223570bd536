#pragma once

#include "creation/TemplateRules.h"
#include "parameters/table/ParameterEditorModel.h"

#include <QDialog>

class QLabel;
class QTableWidget;
class VTTableView;

/** The parameters of one template: its own, and what becomes of the common ones. As a sheet; nothing is stored here.
   Main thread only. */
class OwnParametersSheet : public QDialog
{
    Q_OBJECT

public:
    OwnParametersSheet(const QString &templateName, const TemplateRules &rules, QWidget *parent);
    /** Puts what was chosen into the rules. */
    void takeInto(TemplateRules &rules) const;

public Q_SLOTS:
    void removeParameters();

private:
    enum class Common { AsEverywhere, Fixed, Hidden };
    void setUpOwn();
    void setUpCommon(const TemplateRules &rules);
    void addParameter();
    void showDetails();
    [[nodiscard]] Common kindOf(int row) const;
    void acceptIfPossible();

    FilenameParameters m_own;
    ParameterEditorModel m_model;
    VTTableView *m_table;
    QTableWidget *m_common;
    QLabel *m_problem;
};
