// Window or command line.
#include "commands/CommandLine.h"
#include "commands/ProgramStart.h"
#include "platform/base/Console.h"
#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/files/ApplicationBundle.h"
#include "support/Translations.h"
#include "support/VTLog.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(main)
};

/// Returns only when there is no window to be had.
int becomeWindow(int argc, char **argv)
{
    const QString program =
        platform::joined(platform::ApplicationBundle::main().path(), QStringLiteral("Contents/MacOS/Tessaro"));
    const platform::Outcome failure = platform::becomeProgram(program, argv);
    const QCoreApplication application(argc, argv);
    translations::load();
    platform::writeToStandardError(
        Text::tr("Tessaro: the window cannot be started; please install Tessaro again. %1").arg(failure.description()) +
        u'\n');
    return ExitStatus::failed;
}

int runProgram(int argc, char **argv)
{
    const auto invocation = readCommandLine(wordsOf(argc, argv));
    if (!invocation) {
        const QCoreApplication application(argc, argv);
        translations::load();
        return refuseCommandLine(wordsOf(argc, argv));
    }
    if (!invocation->verb)
        return becomeWindow(argc, argv);
    const QCoreApplication application(argc, argv);
    translations::load();
    return runCommand(*invocation);
}

} // namespace

int main(int argc, char **argv)
{
    prepareProgram();
    const int status = runProgram(argc, argv);
    VTLog::finishWriting();
    return status;
}
