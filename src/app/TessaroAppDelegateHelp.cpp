// The Help menu.
#include "app/TessaroAppDelegate.h"

#include "app/MainWindow.h"
#include "app/ManualWindow.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/ApplicationBundle.h"
#include "support/Translations.h"
#include "support/VTAlert.h"
#include "ui/Icons.h"

#include <QMessageBox>

void TessaroAppDelegate::helpUserManual()
{
    const auto &bundle = platform::ApplicationBundle::main();
    const QString name = QStringLiteral("Tessaro User Manual.pdf");
    const QString own = bundle.resource(translations::language() + QStringLiteral(".lproj/") + name);
    const QString manual = own.isNull() ? bundle.resource(name) : own;
    if (manual.isNull() || platform::openWithDefaultApplication(manual))
        return;
    const int answer = VTAlert::show({tr("The manual cannot be opened"),
                                      tr("This desktop has no program for PDF files. The same text can be read here."),
                                      tr("Show It Here"),
                                      tr("Cancel"),
                                      {},
                                      VTAlert::defaultReturn});
    if (answer == VTAlert::defaultReturn)
        showManual();
}

void TessaroAppDelegate::showManual()
{
    if (!ManualWindow::openForFocus())
        VTAlert::show({tr("The manual cannot be opened"), tr("It is missing; please install Tessaro again.")});
}

void TessaroAppDelegate::helpAppHome()
{
    platform::openAddress(help::addressOf(help::Page::ApplicationHome));
}

void TessaroAppDelegate::helpMoreProducts()
{
    platform::openAddress(help::addressOf(help::Page::MoreProducts));
}

void TessaroAppDelegate::helpLumadexHome()
{
    platform::openAddress(help::addressOf(help::Page::ProductFamily));
}

void TessaroAppDelegate::helpReportBug()
{
    platform::openAddress(help::addressOf(help::Page::ReportBug));
}

void TessaroAppDelegate::helpSuggestFeature()
{
    platform::openAddress(help::addressOf(help::Page::SuggestFeature));
}

void TessaroAppDelegate::helpVTHome()
{
    platform::openAddress(help::addressOf(help::Page::MakerHome));
}

void TessaroAppDelegate::showAbout()
{
    auto *box = new QMessageBox(m_window.get());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    box->setWindowTitle(tr("About Tessaro"));
    box->setIconPixmap(icons::application().pixmap(64, 64));
    box->setText(
        tr("Tessaro %1").arg(platform::ApplicationBundle::main().informationString("CFBundleShortVersionString")));
    box->setInformativeText(tr("Starts media and production projects from templates.\n\n© Vantrel"));
    box->open();
}
