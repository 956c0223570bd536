#include "commands/TerminalProgress.h"

#include "platform/base/Console.h"
#include "platform/base/NativePath.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TerminalProgress)
};

/// Back to the line's beginning, and nothing in it (ECMA-48, EL).
const QString cleared = QStringLiteral("\r\x1b[K");

} // namespace

TerminalProgress::TerminalProgress()
{
    LongWork::setPresenter(this);
}

TerminalProgress::~TerminalProgress()
{
    LongWork::setPresenter(nullptr);
}

QString TerminalProgress::line(const WorkState &state, int columns)
{
    QString text = state.what + QStringLiteral(": ") + state.amount();
    if (state.isStopping)
        text = state.what + QStringLiteral(": ") + Text::tr("stopping");
    else if (!state.folder.isEmpty())
        text += Text::tr(", in %1").arg(platform::forOneLine(state.folder));
    return text.size() < columns ? text : text.left(columns - 2) + u'…';
}

void TerminalProgress::show(const WorkState &state)
{
    if (const int columns = platform::columnsOfStandardError(); columns > 0)
        platform::writeToStandardError(cleared + line(state, columns));
}

void TerminalProgress::hide()
{
    if (platform::columnsOfStandardError() > 0)
        platform::writeToStandardError(cleared);
}
