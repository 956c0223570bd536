#pragma once

#include "parameters/FilenameParameter.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

/** Asks what the values of one parameter must be, and what they become. As a sheet; what cannot be is said while one
   types. Main thread only. */
class ParameterDetails : public QDialog
{
    Q_OBJECT

public:
    ParameterDetails(FilenameParameter parameter, QWidget *parent);
    /** The parameter as it was given, with what has been chosen. */
    [[nodiscard]] FilenameParameter parameter() const;

private:
    [[nodiscard]] QString problem() const;
    void follow();

    FilenameParameter m_parameter;
    QComboBox *m_form;
    QComboBox *m_letterCase;
    QSpinBox *m_maxLength;
    QLineEdit *m_pattern;
    QLineEdit *m_message;
    QLineEdit *m_computed;
    QCheckBox *m_several;
    QCheckBox *m_inName;
    QLabel *m_problem;
    QPushButton *m_take;
};
