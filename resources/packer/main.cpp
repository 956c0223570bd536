// Builds one shipped template: template_packer OUTLINE PROJECTS_FOLDER ARCHIVE. Its rules stand beside the outline, as
// JSON, in NAME.rules.json.
#include "Outline.h"

#include "platform/archive/ZipFormat.h"
#include "platform/base/PropertyList.h"
#include "platform/base/System.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

int fail(const QString &problem)
{
    QTextStream(stderr) << problem << '\n';
    return 1;
}

/// What the library keeps as Rules.plist; nothing without a file.
std::optional<QByteArray> rulesBeside(const QFileInfo &outline, QString &problem)
{
    QFile file(outline.path() + '/' + outline.completeBaseName() + ".rules.json");
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError)
        problem = file.fileName() + ": " + error.errorString();
    return platform::writePropertyList(document.object().toVariantMap());
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
    if (const auto rules = rulesBeside(QFileInfo(outlinePath), problem))
        archive.addFile(bundle + "/Rules.plist", *rules, 0);
    if (!problem.isNull())
        return fail(problem);
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
