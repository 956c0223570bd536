#pragma once

#include "templates/BatchRename.h"

#include <QDialog>
#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTableWidget;

/** Asks how several items are to be renamed, and shows what that gives while one types. As a sheet. */
class RenameSheet : public QDialog
{
    Q_OBJECT

public:
    /** The sentence that says why the names cannot be given; null when they can. */
    using Check = std::function<QString(const QStringList &names)>;

    RenameSheet(QList<RenamedItem> items, Check check, QWidget *parent);
    /** In the order of the items. */
    [[nodiscard]] const QStringList &names() const { return m_names; }

private:
    void follow();

    QList<RenamedItem> m_items;
    Check m_check;
    QStringList m_names;
    QLineEdit *m_find;
    QLineEdit *m_replacement;
    QSpinBox *m_first;
    QTableWidget *m_table;
    QLabel *m_problem;
    QPushButton *m_rename;
};
