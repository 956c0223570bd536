#pragma once

#include "support/AlertPresenter.h"

#include <QStringList>

/**
 * Alerts on the terminal: messages go to standard error, questions are answered by what the command line said, because
 * a command must never wait for someone who is not there. Main thread only.
 */
class TerminalPresenter : public AlertPresenter
{
public:
    /** Whether questions are answered with their default button (the one that goes on) or with the other. */
    explicit TerminalPresenter(bool goOn)
        : m_goOn(goOn)
    {
    }

    void present(const Sheet &sheet, std::function<void(int)> answer) override;
    void orderOut(const VTAlert *) override {}

    /** Whether a message, and not only questions, was shown so far. */
    [[nodiscard]] bool hasComplained() const { return m_hasComplained; }

private:
    bool m_goOn;
    bool m_hasComplained = false;
};
