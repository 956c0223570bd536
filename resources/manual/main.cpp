// Prints the user manual at build time: manual_printer MANUAL.md MANUAL.pdf
#include <QFile>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTextStream>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir runtime; // a build machine may have none, and Qt would complain
    qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
    const QGuiApplication application(argc, argv);
    QFile source(QCoreApplication::arguments().value(1));
    if (argc != 3 || !source.open(QIODevice::ReadOnly)) {
        QTextStream(stderr) << "Usage: manual_printer MANUAL.md MANUAL.pdf\n";
        return 1;
    }
    QPdfWriter pdf(QCoreApplication::arguments().at(2));
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
    pdf.setTitle(QStringLiteral("Tessaro User Manual"));
    QTextDocument manual;
    manual.setDefaultFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    manual.setMarkdown(QString::fromUtf8(source.readAll()));
    manual.print(&pdf);
    return 0;
}
