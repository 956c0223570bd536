// Builds one shipped template: template_packer OUTLINE PROJECTS_FOLDER ARCHIVE
#include "Outline.h"

#include "platform/archive/ZipFormat.h"
#include "platform/base/System.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

namespace {

int fail(const QString &problem)
{
    QTextStream(stderr) << problem << '\n';
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    platform::prepareLocale();
    if (argc != 4)
        return fail("Usage: template_packer OUTLINE PROJECTS_FOLDER ARCHIVE");
    const QString outlinePath = QString::fromUtf8(argv[1]);
    QFile outline(outlinePath);
    if (!outline.open(QIODevice::ReadOnly))
        return fail(outlinePath + ": " + outline.errorString());
    QString problem;
    const auto entries = readOutline(QString::fromUtf8(outline.readAll()), problem);
    if (!entries)
        return fail(outlinePath + ": " + problem);

    const QString bundle = QFileInfo(outlinePath).completeBaseName() + ".tzt";
    platform::ZipWriter archive(QString::fromUtf8(argv[3]));
    archive.addFolder(bundle, 0);
    archive.addFolder(bundle + "/Files", 0);
    for (const OutlineEntry &entry : *entries) {
        const QString name = bundle + "/Files/" + entry.path;
        if (entry.source.isNull()) {
            archive.addFolder(name, entry.label);
            continue;
        }
        QFile source(QString::fromUtf8(argv[2]) + '/' + entry.source);
        if (!source.open(QIODevice::ReadOnly))
            return fail(outlinePath + ": " + entry.source + ": " + source.errorString());
        archive.addFile(name, source.readAll(), entry.label);
    }
    const platform::Outcome written = archive.finish();
    return written.ok() ? 0 : fail(QString::fromUtf8(argv[3]) + ": " + written.description());
}
