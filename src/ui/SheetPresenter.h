#pragma once

#include "platform/MainThread.h"
#include "support/AlertPresenter.h"

#include <QObject>
#include <QPointer>
#include <map>

class QMessageBox;

/** Shows alerts as window-modal sheets on their parent window. Main thread only; owned by main(). */
class SheetPresenter : public QObject, public AlertPresenter
{
    Q_OBJECT

public:
    void present(const Sheet &sheet, std::function<void(int)> answer) override;
    void orderOut(const VTAlert *alert) override;

private:
    struct Shown
    {
        QPointer<QMessageBox> box;
        std::unique_ptr<platform::InputAllowed> inputAllowed; ///< work may have closed the windows to input
    };
    std::map<const VTAlert *, Shown> m_shown;
};
