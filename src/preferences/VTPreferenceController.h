#pragma once

#include <QMainWindow>
#include <QPointer>
#include <memory>

class GeneralPane;
class ParametersPane;
class ProjectPane;

namespace Ui {
class Prefs_Dialog;
}

/**
 * The preferences window: four panes that are swapped, each with a class of its own. One at a time: the delegate's menu
 * item is disabled while it is open. Main thread only.
 *
 * The delegate is any object; disablePrefsMenu() and enablePrefsMenu() are called where it has them.
 */
class VTPreferenceController : public QMainWindow
{
    Q_OBJECT

public:
    explicit VTPreferenceController(QObject *delegate, QWidget *parent = nullptr);
    ~VTPreferenceController() override;

    [[nodiscard]] QObject *delegate() const { return m_delegate; }
    void setDelegate(QObject *delegate) { m_delegate = delegate; }
    /** All of them, in their order. */
    [[nodiscard]] QStringList toolbarSelectableItemIdentifiers() const;

    /** Stores the location, makes the folder, and offers to move the templates there. */
    void modifyTemplatePath(const QString &path);
    void modifyFixedPath(const QString &path);

public Q_SLOTS:
    void toolbarGeneral();
    void toolbarProject();
    void toolbarParameters();
    void toolbarHotkeys();

Q_SIGNALS:
    void closed();
    /** The library lies elsewhere now. */
    void templateLocationChanged();
    /** Anything may be different now. */
    void sharedSetupChanged();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void awakeFromNib();
    void buildToolbar();
    void tellDelegate(const char *operation);
    void showPane(QWidget *pane, const char *logLine);

    std::unique_ptr<Ui::Prefs_Dialog> m_ui;
    QPointer<QObject> m_delegate;
    GeneralPane *m_general = nullptr;
    ProjectPane *m_project = nullptr;
    ParametersPane *m_parameters = nullptr;
    QList<QAction *> m_items;
    bool m_isOpen = true;
};
