#pragma once

#include "support/LongWork.h"

/** Long work as one line on standard error, written over again and again; only where that is a terminal. */
class TerminalProgress : public WorkPresenter
{
public:
    TerminalProgress();
    ~TerminalProgress() override;
    TerminalProgress(const TerminalProgress &) = delete;
    TerminalProgress &operator=(const TerminalProgress &) = delete;

    void show(const WorkState &state) override;
    void hide() override;

    /** "Creating Acme: 12 of 40 items, 3.1 MB of 9 MB, in Footage", never longer than the columns. Pure. */
    [[nodiscard]] static QString line(const WorkState &state, int columns);
};
