// The window, in a program of its own that Tessaro becomes when it is started without a verb: a command does without
// the toolkit that it brings along. Puts the parts together as main.cpp does.
#include "app/MainWindow.h"
#include "app/ManualWindow.h"
#include "app/TessaroAppDelegate.h"
#include "commands/CommandLine.h"
#include "commands/ProgramStart.h"
#include "platform/base/Console.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/desktop/DesktopAppearance.h"
#include "platform/desktop/DesktopPanels.h"
#include "platform/desktop/FontLoading.h"
#include "platform/desktop/SingleInstance.h"
#include "support/Translations.h"
#include "support/VTAlert.h"
#include "support/VTLog.h"
#include "ui/Appearance.h"
#include "ui/BoxStyle.h"
#include "ui/FocusRing.h"
#include "ui/Icons.h"
#include "ui/SheetPresenter.h"

#include <QApplication>
#include <cstdlib>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(main)
};

int runWindow(int &argc, char **argv, const platform::SingleInstance::Request &request)
{
    if (!platform::displayIsAvailable()) {
        const QCoreApplication application(argc, argv);
        translations::load();
        platform::writeToStandardError(Text::tr("Tessaro: there is no display for the window; “Tessaro create” makes a "
                                                "project without one (see --help).") +
                                       u'\n');
        return ExitStatus::failed;
    }
    platform::preferDesktopPanels();
    platform::FontLoading fonts;
    QApplication application(argc, argv);
    translations::load();
    QApplication::setApplicationName(QStringLiteral("Tessaro"));
    QApplication::setDesktopFileName(QStringLiteral("com.vantrel.Tessaro"));
    if (platform::SingleInstance::handOver(request))
        return ExitStatus::done;
    platform::SingleInstance instance;
    fonts.finish();
    platform::DesktopAppearance appearance;
    BoxStyle::use();
    followAppearance(appearance);
    FocusRing ring;
    openManualByKey();
    SheetPresenter sheets;
    VTAlert::setPresenter(&sheets);
    int status = ExitStatus::done;
    {
        TessaroAppDelegate delegate;
        sheets.setMainWindow([&] { return delegate.mainWindow(); });
        if (!delegate.awakeFromNib())
            return ExitStatus::done;
        if (qEnvironmentVariableIsSet("TESSARO_QUIT_AFTER_FIRST_PAINT")) // for the program that measures the start
            QObject::connect(delegate.mainWindow(), &MainWindow::firstPainted, &application, [] {
                static_cast<void>(platform::writeToStandardOutput(QStringLiteral("painted\n")));
                std::_Exit(0);
            });
        else
            QObject::connect(delegate.mainWindow(), &MainWindow::firstPainted, &delegate,
                             &TessaroAppDelegate::applicationDidFinishLaunching);
        using platform::SingleInstance;
        QObject::connect(&instance, &SingleInstance::activated, &delegate, &TessaroAppDelegate::bringToFront);
        QObject::connect(&instance, &SingleInstance::actionRequested, &delegate, &TessaroAppDelegate::performCommand);
        QObject::connect(&instance, &SingleInstance::filesOpened, &delegate, &TessaroAppDelegate::openFiles);
        if (!request.files.isEmpty())
            QObject::connect(delegate.mainWindow(), &MainWindow::firstPainted, &delegate,
                             [&] { delegate.openFiles(request.files); });
        if (!request.action.isEmpty())
            QObject::connect(
                delegate.mainWindow(), &MainWindow::firstPainted, &delegate,
                [&] { delegate.performCommand(request.action, request.value); }, Qt::QueuedConnection);
        delegate.mainWindow()->show();
        status = QApplication::exec();
        sheets.setMainWindow({});
    }
    VTAlert::setPresenter(nullptr);
    return status;
}

} // namespace

int main(int argc, char **argv)
{
    prepareProgram();
    const auto invocation = readCommandLine(wordsOf(argc, argv)); // Tessaro has read it before: it is no failure
    platform::SingleInstance::Request request;
    if (invocation) {
        for (const QString &file : invocation->files)
            request.files.append(platform::absolutePath(file));
        request.action = invocation->action;
        request.value = invocation->actionValue;
    }
    const int status = runWindow(argc, argv, request);
    VTLog::finishWriting();
    return status;
}
