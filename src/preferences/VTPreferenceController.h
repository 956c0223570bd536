#pragma once

#include "parameters/ParameterEditorModel.h"

#include <QMainWindow>
#include <QPointer>
#include <memory>

class QCheckBox;

namespace Ui {
class Prefs_Dialog;
}

/**
 * The preferences window and its controller: four panes that are swapped, every control bound to its setting, with the
 * effect at once. One at a time: the delegate's menu item is disabled while it is open. Main thread only.
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
    void addNewFilenameParam();
    void removeFilenameParam();

Q_SIGNALS:
    void closed();
    /** The library lies elsewhere now. */
    void templateLocationChanged();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void awakeFromNib();
    void buildToolbar();
    void bindGeneral();
    void bindProject();
    void bindParameters();
    void bindSwitch(QCheckBox *box, const QString &key, const QVariant &on, const QVariant &off);
    void bindAdminSwitch(QCheckBox *box, const QString &key);
    void prefsToggleAdminPass(QCheckBox *box, const QString &key, bool on);
    void browse(const QString &title, void (VTPreferenceController::*chosen)(const QString &));
    /** The path as it can be used, absolute and without "~"; null, after a message, when it cannot be. */
    [[nodiscard]] QString usablePath(const QString &typed);
    void makeFolder(const QString &path);
    void moveTemplates(const QString &from, const QString &to);
    void populateDateFormats();
    void changeDateFormat();
    void changeCustomDateFormat();
    void changeSeparator(const QString &typed);
    void showPreview();
    void tellDelegate(const char *operation);
    void showPane(QWidget *pane, const char *logLine);

    std::unique_ptr<Ui::Prefs_Dialog> m_ui;
    QPointer<QObject> m_delegate;
    ParameterEditorModel m_parameters;
    QList<QAction *> m_items;
    bool m_isOpen = true;
};
