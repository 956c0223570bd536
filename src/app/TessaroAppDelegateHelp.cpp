// The Help menu.
#include "app/TessaroAppDelegate.h"

#include "app/MainWindow.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/ApplicationBundle.h"
#include "ui/Icons.h"

#include <QMessageBox>

void TessaroAppDelegate::helpUserManual()
{
    const QString manual = platform::ApplicationBundle::main().resource(QStringLiteral("Tessaro User Manual.pdf"));
    if (!manual.isNull())
        platform::openWithDefaultApplication(manual);
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
