#include "commands/ProgramStart.h"

#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/process/CrashReport.h"
#include "support/VTLocalPaths.h"

QStringList wordsOf(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(platform::fromNative(argv[i]));
    return words;
}

void prepareProgram()
{
    platform::closeToOtherProcesses(); // it may be given administrator rights later
    platform::heedChildren();
    platform::prepareLocale();
    const QString reports =
        VTLocalPaths::logDirectory(VTLocalPaths::Domain::User) + QStringLiteral("/DiagnosticReports");
    platform::writeCrashReports(reports, QStringLiteral("Tessaro"),
                                platform::ApplicationBundle::main().informationString("CFBundleShortVersionString"));
}
