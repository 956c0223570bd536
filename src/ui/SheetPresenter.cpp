#include "ui/SheetPresenter.h"

#include "platform/base/NativePath.h"
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
    QWidget *window = sheet.parentWindow ? sheet.parentWindow : m_mainWindow ? m_mainWindow() : nullptr;
    if (window) {
        window->raise();
        window->activateWindow();
    }
    auto *box = new QMessageBox(window);
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
    // Where an answer loses something, Return and Escape give the one that does not; else Escape never goes on with
    // what was asked.
    QPushButton *safe = !sheet.safeAnswer                               ? nullptr
                        : *sheet.safeAnswer == VTAlert::alternateReturn ? alternate
                        : *sheet.safeAnswer == VTAlert::otherReturn     ? other
                                                                        : main;
    const QIcon icon = (safe && safe != main) || !alternate ? icons::named("warning") : icons::application();
    box->setIconPixmap(icon.pixmap(pictureSide, pictureSide));
    box->setDefaultButton(safe ? safe : main);
    box->setEscapeButton(safe ? safe : other ? other : alternate ? alternate : main);
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
        answerOnce(clicked == other && other           ? VTAlert::otherReturn
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
