#pragma once

#include "platform/base/MainThread.h"
#include "support/AlertPresenter.h"

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>

class QMessageBox;

/** Shows alerts as window-modal sheets on their parent window. Main thread only; owned by main(). */
class SheetPresenter : public QObject, public AlertPresenter
{
    Q_OBJECT

public:
    /** Gives what sheets without a window of their own hang on, asked for each; null: nothing yet. */
    using WindowSource = std::function<QWidget *()>;
    void setMainWindow(WindowSource mainWindow) { m_mainWindow = std::move(mainWindow); }
    void present(const Sheet &sheet, std::function<void(int)> answer) override;
    void orderOut(const VTAlert *alert) override;

private:
    struct Shown
    {
        QPointer<QMessageBox> box;
        std::unique_ptr<platform::InputAllowed> inputAllowed; ///< work may have closed the windows to input
    };
    WindowSource m_mainWindow;
    std::map<const VTAlert *, Shown> m_shown;
};
