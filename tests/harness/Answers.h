#pragma once

#include "support/AlertPresenter.h"
#include "support/VTAlert.h"

#include <QStringList>

/** Answers questions with what it is told to, in turn; the last answer stays. Messages are only noted. */
class Answers : public AlertPresenter
{
public:
    explicit Answers(QList<int> wanted = {})
        : answers(std::move(wanted))
    {
        VTAlert::setPresenter(this);
    }
    ~Answers() override { VTAlert::setPresenter(nullptr); }

    QList<int> answers;
    QStringList asked;    ///< questions and messages
    QStringList messages; ///< without the questions
    QStringList reasons;  ///< their informative texts

    void present(const Sheet &sheet, std::function<void(int)> answer) override
    {
        asked << sheet.messageText;
        const bool isQuestion = !sheet.alternateButton.isNull();
        if (!isQuestion) {
            messages << sheet.messageText;
            reasons << sheet.informativeText;
        }
        answer(!isQuestion || answers.isEmpty() ? 1 : answers.size() > 1 ? answers.takeFirst() : answers.first());
    }
    void orderOut(const VTAlert *) override {}
};
