// Window or command line. The only place that puts the parts together.
#include "app/CommandLine.h"
#include "app/MainWindow.h"
#include "app/TessaroAppDelegate.h"
#include "platform/ApplicationBundle.h"
#include "platform/Console.h"
#include "platform/CrashReport.h"
#include "platform/Desktop.h"
#include "platform/NativePath.h"
#include "platform/SingleInstance.h"
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

int runWindow(int &argc, char **argv, const QStringList &files)
{
    if (!platform::displayIsAvailable()) {
        platform::writeToStandardError("Tessaro: there is no display for the window; “Tessaro create” makes a project "
                                       "without one (see --help).\n");
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
    }
    VTAlert::setPresenter(nullptr);
    return status;
}

int runProgram(int argc, char **argv)
{
    QString problem;
    const auto request = readCommandLine(wordsOf(argc, argv), problem);
    if (!request) {
        platform::writeToStandardError("Tessaro: " + problem + "\nTessaro --help lists what it understands.\n");
        return ExitStatus::wrongUsage;
    }
    if (request->verb == CommandRequest::Verb::Window) {
        QStringList files;
        for (const QString &file : request->files)
            files.append(absolutePath(file));
        return runWindow(argc, argv, files);
    }
    const QCoreApplication application(argc, argv);
    return runCommand(*request);
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
