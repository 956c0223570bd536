#include "ui/SheetPresenter.h"

#include "platform/base/NativePath.h"
#include "support/VTAlert.h"
#include "ui/Icons.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <QWidget>
#include <memory>

namespace {

constexpr int pictureSide = 48;

/// A sheet's buttons by what they answer; all but main may be null.
struct Buttons
{
    QPushButton *main;
    QPushButton *alternate;
    QPushButton *other;
    QPushButton *safe; ///< the one that loses nothing, where another does
};

/// With the first letter that no other button has as its key.
QString withMnemonic(const QString &title, QString &taken)
{
    const QString plain = QString(title).replace(u'&', QLatin1String("&&"));
    for (qsizetype i = 0; i < plain.size(); ++i) {
        if (!plain[i].isLetterOrNumber() || taken.contains(plain[i].toLower()))
            continue;
        taken.append(plain[i].toLower());
        return QString(plain).insert(i, u'&');
    }
    return plain;
}

Buttons addButtons(QMessageBox *box, const AlertPresenter::Sheet &sheet)
{
    QString taken = sheet.defaultButton.isNull() ? QStringLiteral("o") : QString(); // the desktop's own OK
    const auto add = [box, &taken](const QString &title, QMessageBox::ButtonRole role) {
        return title.isNull() ? nullptr : box->addButton(withMnemonic(title, taken), role);
    };
    Buttons buttons{};
    buttons.main = sheet.defaultButton.isNull() ? box->addButton(QMessageBox::Ok)
                                                : add(sheet.defaultButton, QMessageBox::AcceptRole);
    buttons.alternate = add(sheet.alternateButton, QMessageBox::RejectRole);
    buttons.other = add(sheet.otherButton, QMessageBox::DestructiveRole);
    buttons.main->setIcon({}); // some desktops draw pictures on their own OK, and on no other
    buttons.safe = !sheet.safeAnswer                               ? nullptr
                   : *sheet.safeAnswer == VTAlert::alternateReturn ? buttons.alternate
                   : *sheet.safeAnswer == VTAlert::otherReturn     ? buttons.other
                                                                   : buttons.main;
    return buttons;
}

/// Where an answer loses something, Return and Escape give the one that does not; else Escape never goes on with what
/// was asked.
void fill(QMessageBox *box, const AlertPresenter::Sheet &sheet, const Buttons &buttons)
{
    const auto [main, alternate, other, safe] = buttons;
    const bool isWarning = !sheet.isGoodNews && ((safe && safe != main) || !alternate);
    const QIcon icon = isWarning ? icons::named("warning") : icons::application();
    box->setIconPixmap(icon.pixmap(pictureSide, pictureSide));
    box->setText(platform::forDisplay(sheet.messageText));
    box->setInformativeText(platform::forDisplay(sheet.informativeText));
    box->setDefaultButton(safe ? safe : main);
    box->setEscapeButton(safe ? safe : other ? other : alternate ? alternate : main);
    for (auto *label : box->findChildren<QLabel *>()) // the box's own format reaches its first label only
        label->setTextFormat(Qt::PlainText);
}

/// Between the text and the buttons.
void addChoices(QMessageBox *box, const AlertPresenter::Sheet &sheet)
{
    auto *grid = qobject_cast<QGridLayout *>(box->layout());
    auto *buttons = box->findChild<QDialogButtonBox *>();
    if (sheet.choices.isEmpty() || !grid || !buttons)
        return;
    auto *group = new QGroupBox(sheet.choicesTitle, box);
    auto *column = new QVBoxLayout(group);
    for (int number = 0; number < sheet.choices.size(); ++number) {
        auto *choice = new QRadioButton(sheet.choices[number], group);
        choice->setChecked(number == *sheet.chosen);
        QObject::connect(choice, &QRadioButton::toggled, box, [number, chosen = sheet.chosen](bool isOn) {
            if (isOn)
                *chosen = number;
        });
        column->addWidget(choice);
    }
    const int row = grid->rowCount();
    grid->removeWidget(buttons);
    grid->addWidget(group, row - 1, 0, 1, grid->columnCount());
    grid->addWidget(buttons, row, 0, 1, grid->columnCount());
}

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
    const Buttons buttons = addButtons(box, sheet);
    fill(box, sheet, buttons);
    addChoices(box, sheet);

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
        answerOnce(clicked && clicked == buttons.other       ? VTAlert::otherReturn
                   : clicked && clicked == buttons.alternate ? VTAlert::alternateReturn
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
