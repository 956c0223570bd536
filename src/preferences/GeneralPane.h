#pragma once

#include <QObject>

class QCheckBox;
class PathField;
class QWidget;

namespace platform {
class Outcome;
}

namespace Ui {
class Prefs_Dialog;
}

/** The General pane: the library's place, what happens after a project, and what is protected. Every control is bound
   to its setting, with the effect at once. Owned by its window; main thread only. */
class GeneralPane : public QObject
{
    Q_OBJECT

public:
    GeneralPane(Ui::Prefs_Dialog &ui, QWidget &window);

    /** Stores the location, makes the folder, and offers to move the templates there. */
    void modifyTemplatePath(const QString &typed);
    /** Takes a copy of the set-up in the folder, or leaves the present one when it is empty. */
    void useSharedSetup(const QString &typed);

Q_SIGNALS:
    /** Anything may be different now: templates, parameters, settings. */
    void sharedSetupChanged();
    /** The library lies elsewhere now. */
    void templateLocationChanged();

private:
    void tellWhyNot(const platform::Outcome &followed);
    enum class Move { No, Yes, Cancelled };
    [[nodiscard]] Move askToMove(const QString &from, const QString &to, qsizetype count);
    void moveTemplates(const QString &from, const QString &to, const QStringList &names);

    QWidget &m_window;
    PathField *m_path;
    PathField *m_shared;
};
