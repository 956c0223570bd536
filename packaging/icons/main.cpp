// Draws an icon at a size, at build time: icon_printer ICON.svg SIZE ICON.png
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTextStream>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir runtime; // a build machine may have none, and Qt would complain
    qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
    const QGuiApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    const int size = words.value(2).toInt();
    QSvgRenderer icon(words.value(1));
    if (words.size() != 4 || size <= 0 || !icon.isValid()) {
        QTextStream(stderr) << "Usage: icon_printer ICON.svg SIZE ICON.png\n";
        return 1;
    }
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    icon.render(&painter, QRectF(0, 0, size, size));
    painter.end();
    return image.save(words[3], "png") ? 0 : 1;
}
