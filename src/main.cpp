// Window or command line. The only place that puts the parts together.
#include "app/MainWindow.h"
#include "app/TessaroAppDelegate.h"
#include "commands/CommandLine.h"
#include "platform/base/Console.h"
#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/desktop/Desktop.h"
#include "platform/desktop/SingleInstance.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/process/CrashReport.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"
#include "support/VTLog.h"
#include "ui/Icons.h"
#include "ui/SheetPresenter.h"

#include <QApplication>
#include <cstdlib>

namespace {

QStringList wordsOf(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(platform::fromNative(argv[i])); // byte for byte: a path need not be valid UTF-8
    return words;
}

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(main)
};

int runWindow(int &argc, char **argv, const QStringList &files)
{
    if (!platform::displayIsAvailable()) {
        platform::writeToStandardError(Text::tr("Tessaro: there is no display for the window; “Tessaro create” makes a "
                                                "project without one (see --help).") +
                                       u'\n');
        return ExitStatus::failed;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tessaro"));
    QApplication::setDesktopFileName(QStringLiteral("com.vantrel.Tessaro"));
    if (platform::SingleInstance::handOver(files))
        return ExitStatus::done;
    platform::SingleInstance instance;
    SheetPresenter sheets;
    VTAlert::setPresenter(&sheets);
    int status = ExitStatus::done;
    {
        TessaroAppDelegate delegate;
        sheets.setMainWindow([&] { return delegate.mainWindow(); });
        if (!delegate.awakeFromNib())
            return ExitStatus::done;
        if (qEnvironmentVariableIsSet("TESSARO_QUIT_AFTER_FIRST_PAINT")) // for the program that measures the start
            QObject::connect(delegate.mainWindow(), &MainWindow::firstPainted, &application, [] { std::_Exit(0); });
        else
            QObject::connect(delegate.mainWindow(), &MainWindow::firstPainted, &delegate,
                             &TessaroAppDelegate::applicationDidFinishLaunching);
        using platform::SingleInstance;
        QObject::connect(&instance, &SingleInstance::activated, &delegate, &TessaroAppDelegate::bringToFront);
        QObject::connect(&instance, &SingleInstance::actionRequested, &delegate, &TessaroAppDelegate::performCommand);
        QObject::connect(&instance, &SingleInstance::filesOpened, &delegate, &TessaroAppDelegate::openFiles);
        if (!files.isEmpty())
            QObject::connect(delegate.mainWindow(), &MainWindow::firstPainted, &delegate,
                             [&] { delegate.openFiles(files); });
        delegate.mainWindow()->show();
        status = QApplication::exec();
        sheets.setMainWindow({});
    }
    VTAlert::setPresenter(nullptr);
    return status;
}

int runProgram(int argc, char **argv)
{
    const auto invocation = readCommandLine(wordsOf(argc, argv));
    if (!invocation) {
        platform::writeToStandardError(QStringLiteral("Tessaro: ") + invocation.outcome().sentence() + u'\n' +
                                       Text::tr("Tessaro --help lists what it understands.") + u'\n');
        return exitStatusOf(invocation.outcome());
    }
    if (!invocation->verb) {
        QStringList files;
        for (const QString &file : invocation->files)
            files.append(platform::absolutePath(file));
        return runWindow(argc, argv, files);
    }
    const QCoreApplication application(argc, argv);
    return runCommand(*invocation);
}

} // namespace

int main(int argc, char **argv)
{
    platform::prepareLocale();
    const QString reports =
        VTLocalPaths::logDirectory(VTLocalPaths::Domain::User) + QStringLiteral("/DiagnosticReports");
    platform::writeCrashReports(reports, QStringLiteral("Tessaro"),
                                platform::ApplicationBundle::main().informationString("CFBundleShortVersionString"));
    const int status = runProgram(argc, argv);
    VTLog::finishWriting();
    return status;
}
