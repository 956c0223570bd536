#pragma once

#include "app/CommandLine.h"
#include "templates/TemplateLibrary.h"

class TerminalPresenter;

/** `Tessaro template ...`: what the template pane does, without a window. Questions are answered by --yes. */
class TemplateCommand
{
public:
    TemplateCommand(const CommandRequest &request, const TerminalPresenter &presenter)
        : m_request(request)
        , m_presenter(presenter)
    {
    }

    /** Returns the exit status. */
    [[nodiscard]] int run();

    /** One sentence when the words make no sense; null when they do. Pure. */
    [[nodiscard]] static QString problemOf(const CommandRequest &request);

private:
    [[nodiscard]] int create();
    [[nodiscard]] int duplicate();
    [[nodiscard]] int rename();
    [[nodiscard]] int remove();
    [[nodiscard]] int markDefault();
    [[nodiscard]] int show();
    [[nodiscard]] int import();
    [[nodiscard]] int structure();
    [[nodiscard]] int restore();

    [[nodiscard]] QString argument(int at) const { return m_request.arguments.value(at + 1); }
    /** Whether the template is in the library; says so when it is not. */
    [[nodiscard]] bool isKnown(const QString &name) const;
    [[nodiscard]] int statusOf(const library::Result &result) const;

    const CommandRequest &m_request;
    const TerminalPresenter &m_presenter;
};
