#include "commands/TerminalPresenter.h"

#include "commands/CommandLine.h"
#include "commands/TerminalOutput.h"
#include "support/VTAlert.h"

void TerminalPresenter::present(const Sheet &sheet, std::function<void(int)> answer)
{
    const bool isQuestion = !sheet.alternateButton.isNull();
    if (!isQuestion) {
        m_hasComplained = true;
        complain(ExitStatus::failed, sheet.informativeText.isEmpty()
                                         ? sheet.messageText
                                         : sheet.messageText + u'\n' + sheet.informativeText);
    }
    // Of three answers the second may be the worst: the question itself knows which one loses nothing.
    const int other = sheet.safeAnswer.value_or(VTAlert::alternateReturn);
    answer(isQuestion && !m_goOn ? other : VTAlert::defaultReturn);
}
