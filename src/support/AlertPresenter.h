#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>

class QWidget;
class VTAlert;

/** What shows alerts. Called on the main thread only. */
class AlertPresenter
{
public:
    struct Sheet
    {
        const VTAlert *alert = nullptr; ///< tells sheets apart; only valid while the sheet is up
        QString messageText;
        QString informativeText;
        QString defaultButton; ///< null: the desktop's own title
        QString alternateButton;
        QString otherButton;
        std::optional<int> safeAnswer; ///< where an answer loses something: the one that loses nothing
        bool isGoodNews = false;
        QWidget *parentWindow = nullptr; ///< null: the main window
        QString choicesTitle{};          ///< above them
        QStringList choices{};           ///< one of them is picked before the sheet is answered; empty: none
        std::shared_ptr<int> chosen{};   ///< which; there where there are choices
    };

    virtual ~AlertPresenter() = default;
    /** Shows the sheet and returns; or answers before it returns. Calls the function once with 1, 0 or -1. */
    virtual void present(const Sheet &sheet, std::function<void(int)> answer) = 0;
    /** Takes the sheet away, whether it was answered or not. */
    virtual void orderOut(const VTAlert *alert) = 0;
};
