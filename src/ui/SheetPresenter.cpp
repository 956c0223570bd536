#include "ui/SheetPresenter.h"

#include "platform/NativePath.h"
#include "support/VTAlert.h"
#include "ui/Icons.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QWidget>
#include <memory>

namespace {

constexpr int pictureSide = 48;

} // namespace

void SheetPresenter::present(const Sheet &sheet, std::function<void(int)> answer)
{
    if (sheet.parentWindow) {
        sheet.parentWindow->raise();
        sheet.parentWindow->activateWindow();
    }
    auto *box = new QMessageBox(sheet.parentWindow);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    box->setText(platform::forDisplay(sheet.messageText));
    box->setInformativeText(platform::forDisplay(sheet.informativeText));
    auto *main = sheet.defaultButton.isNull() ? box->addButton(QMessageBox::Ok)
                                              : box->addButton(sheet.defaultButton, QMessageBox::AcceptRole);
    QPushButton *alternate =
        sheet.alternateButton.isNull() ? nullptr : box->addButton(sheet.alternateButton, QMessageBox::RejectRole);
    QPushButton *other =
        sheet.otherButton.isNull() ? nullptr : box->addButton(sheet.otherButton, QMessageBox::DestructiveRole);
    // Where one may cancel, work could be lost by going on: the Return key then does the safe thing.
    const bool mayCancel = alternate && sheet.alternateButton == tr("Cancel");
    const QIcon icon = mayCancel || !alternate ? icons::named("warning") : icons::application();
    box->setIconPixmap(icon.pixmap(pictureSide, pictureSide));
    box->setDefaultButton(mayCancel ? alternate : main);
    // Escape never goes on with what was asked, except where there is nothing to lose but the message.
    const bool harmless = !alternate || sheet.defaultButton == tr("OK");
    box->setEscapeButton(mayCancel ? alternate : other ? other : harmless ? main : alternate);
    for (auto *label : box->findChildren<QLabel *>()) // the box's own format reaches its first label only
        label->setTextFormat(Qt::PlainText);

    const auto answered = std::make_shared<bool>(false);
    const auto answerOnce = [this, alert = sheet.alert, answered, answer = std::move(answer)](int code) {
        if (std::exchange(*answered, true))
            return;
        if (const auto shown = m_shown.find(alert); shown != m_shown.end())
            shown->second.inputAllowed.reset();
        answer(code);
    };
    connect(box, &QMessageBox::finished, this, [=] {
        const QAbstractButton *clicked = box->clickedButton();
        answerOnce(clicked == other && other ? VTAlert::otherReturn
                   : clicked == alternate && alternate ? VTAlert::alternateReturn
                                                       : VTAlert::defaultReturn);
    });
    // A parent window that is destroyed takes its sheet along: whoever waits must hear of it.
    connect(box, &QObject::destroyed, this, [answerOnce] { answerOnce(VTAlert::otherReturn); });
    m_shown[sheet.alert] = {box, std::make_unique<platform::InputAllowed>()};
    box->open();
}

void SheetPresenter::orderOut(const VTAlert *alert)
{
    const auto shown = m_shown.find(alert);
    if (shown == m_shown.end())
        return;
    if (shown->second.box)
        shown->second.box->close();
    m_shown.erase(shown);
}
