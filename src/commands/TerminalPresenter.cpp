#include "commands/TerminalPresenter.h"

#include "platform/base/Console.h"
#include "support/VTAlert.h"

void TerminalPresenter::present(const Sheet &sheet, std::function<void(int)> answer)
{
    const bool isQuestion = !sheet.alternateButton.isNull();
    if (!isQuestion) {
        m_hasComplained = true;
        const QString informative = sheet.informativeText.isEmpty() ? QString() : sheet.informativeText + u'\n';
        platform::writeToStandardError(sheet.messageText + u'\n' + informative);
    }
    // Of three answers the second may be the worst: the question itself knows which one loses nothing.
    const int other = sheet.safeAnswer.value_or(VTAlert::alternateReturn);
    answer(isQuestion && !m_goOn ? other : VTAlert::defaultReturn);
}
