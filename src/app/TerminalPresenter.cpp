#include "app/TerminalPresenter.h"

#include "platform/Console.h"
#include "support/VTAlert.h"

void TerminalPresenter::present(const Sheet &sheet, std::function<void(int)> answer)
{
    const bool isQuestion = !sheet.alternateButton.isNull();
    if (!isQuestion) {
        m_messages.append(sheet.messageText);
        const QString informative = sheet.informativeText.isEmpty() ? QString() : sheet.informativeText + u'\n';
        platform::writeToStandardError(sheet.messageText + u'\n' + informative);
    }
    answer(isQuestion && !m_goOn ? VTAlert::alternateReturn : VTAlert::defaultReturn);
}
