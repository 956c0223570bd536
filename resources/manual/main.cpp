// Prints the user manual at build time: manual_printer MANUAL.md MANUAL.pdf
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextStream>
#include <QUrl>

namespace {

/// Pictures as wide as a page at most.
class Manual : public QTextDocument
{
public:
    explicit Manual(const QString &folder)
        : m_folder(folder)
    {
    }

    QVariant loadResource(int type, const QUrl &name) override
    {
        if (type != QTextDocument::ImageResource)
            return QTextDocument::loadResource(type, name);
        return QImage(m_folder + u'/' + name.path());
    }

    /// Chapters begin on pages of their own; pictures are given the width of the text.
    void layOut(double width)
    {
        for (QTextBlock block = begin(); block.isValid(); block = block.next()) {
            if (block.blockFormat().headingLevel() == 2) {
                QTextBlockFormat format = block.blockFormat();
                format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
                QTextCursor(block).setBlockFormat(format);
            }
            for (auto part = block.begin(); !part.atEnd(); ++part)
                fit(part.fragment(), width);
        }
    }

private:
    void fit(const QTextFragment &fragment, double width)
    {
        if (!fragment.charFormat().isImageFormat())
            return;
        QTextImageFormat format = fragment.charFormat().toImageFormat();
        const QImage image(m_folder + u'/' + format.name());
        if (image.isNull())
            qFatal("The picture %s is missing", qPrintable(format.name()));
        format.setWidth(qMin(width, double(image.width())));
        QTextCursor cursor(this);
        cursor.setPosition(fragment.position());
        cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }

    QString m_folder;
};

} // namespace

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
    pdf.setResolution(96); // the text's own: widths of pictures are in its pixels
    Manual manual(QFileInfo(source).path());
    manual.setDefaultFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    QString text = QString::fromUtf8(source.readAll());
    pdf.setTitle(text.section(u'\n', 0, 0).mid(2));
    manual.setMarkdown(text.remove(QRegularExpression(QStringLiteral("<!-- chapter: \\S+ -->\n"))));
    const QSizeF page(pdf.pageLayout().paintRectPixels(pdf.resolution()).size());
    manual.setPageSize(page);
    manual.layOut(page.width());
    manual.print(&pdf);
    return 0;
}
