#pragma once

#include "creation/TemplateRules.h"

#include <QScrollArea>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

/**
 * Shows and edits what a template says of its items beside its files: the rule of the selected one above, what holds
 * for the whole template below. Holds no rules of its own: what is changed is told, and what is stored comes back.
 * Main thread only.
 */
class RuleInspector : public QScrollArea
{
    Q_OBJECT

public:
    explicit RuleInspector(QWidget *parent = nullptr);

    struct State
    {
        TemplateRules rules;
        QString problem; ///< why they cannot be read; null: they can
        QString item;    ///< path below Files; null without one
        bool isFolder = false;
        QStringList gone;      ///< paths of rules whose item is not there
        QStringList titles;    ///< of the parameters
        bool isLoaded = false; ///< whether there is a template
    };
    void show(const State &state);
    /** Tells what has been typed and not been left yet. */
    void finishEditing();

Q_SIGNALS:
    void ruleEdited(const ItemRule &rule);
    void templateEdited(bool fillsNames, const QStringList &textPatterns);
    void goneRemoved(const QString &path);
    void setAsideWanted();
    void parametersWanted();

private:
    struct ConditionRow
    {
        QWidget *row;
        QComboBox *parameter;
        QComboBox *is;
        QLineEdit *value;
    };
    void buildItem(QVBoxLayout &column);
    void buildTemplate(QVBoxLayout &column);
    [[nodiscard]] QComboBox *titleBox(QWidget *parent, const QString &title) const;
    void showConditions();
    void showJoin();
    void addConditionRow(const Condition &condition);
    void showRepeat();
    void showGone();
    [[nodiscard]] ItemRule edited() const;
    void tellItem();
    void tellTemplate();

    State m_state;
    ItemRule m_rule;
    bool m_isShowing = false; ///< what changes is not typed
    QLabel *m_name = nullptr;
    QWidget *m_itemPart = nullptr;
    QLabel *m_made = nullptr;
    QComboBox *m_join = nullptr;
    QVBoxLayout *m_conditions = nullptr;
    QList<ConditionRow> m_rows;
    QPushButton *m_addCondition = nullptr;
    QComboBox *m_over = nullptr;
    QWidget *m_repeatPart = nullptr;
    QComboBox *m_repeatParameter = nullptr;
    QLineEdit *m_repeatName = nullptr;
    QLabel *m_repeatHint = nullptr;
    QCheckBox *m_fillsText = nullptr;
    QWidget *m_templatePart = nullptr;
    QCheckBox *m_fillsNames = nullptr;
    QLineEdit *m_patterns = nullptr;
    QVBoxLayout *m_gone = nullptr;
    QLabel *m_problem = nullptr;
    QPushButton *m_setAside = nullptr;
};
