// The shipped templates' readable sources, and the archives built from them.
#include "harness/TemporaryHome.h"
#include "platform/archive/ZipArchive.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FinderInfo.h"

#include "../../resources/packer/Outline.h"

#include <QDir>
#include <QTest>

class TestOutlines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads()
    {
        QString problem;
        const auto entries = readOutline("# for whom\n\nA b/ [red]\n  C/\n    T.x < S F.x [blue]\n  D/\nE/\n", problem);
        QVERIFY2(entries, qPrintable(problem));
        QCOMPARE(entries->size(), 5);
        QCOMPARE(entries->at(2).path, QString("A b/C/T.x"));
        QCOMPARE(entries->at(2).source, QString("S F.x"));
        QCOMPARE(entries->at(2).label, quint16(8));
        QCOMPARE(entries->at(3).path, QString("A b/D"));
        for (const char *text : {"A/\n    B/\n", "A.x < S\n  B/\n", "A/\n B/\n", "A/ [pink]\n", "A\n", "A/B/\n"})
            QVERIFY2(!readOutline(text, problem) && problem.startsWith("Line "), text);
    }

    /// Every shipped archive unpacks into one bundle of its own name, with what its outline says, labels included.
    void everyArchiveHoldsItsOutline()
    {
        const QDir outlines(TESSARO_SOURCE_DIR "/resources/templates");
        const QStringList names = outlines.entryList({"*.outline"}, QDir::Files);
        QVERIFY(names.contains("Editing Template.outline"));
        for (const QString &file : names) {
            const QString name = QFileInfo(file).completeBaseName();
            const QString archive = platform::ApplicationBundle::main().resource("Templates/" + name + ".zip");
            const QTemporaryDir target;
            const auto report = platform::extractZip(archive, target.path());
            QVERIFY2(report.ok(), qPrintable(name + ": " + report.outcome.description() + report.refused.join(", ")));
            QCOMPARE(platform::listFolder(target.path())->size(), 1);
            QString problem;
            const auto entries = readOutline(readFile(outlines.filePath(file)), problem);
            QVERIFY2(entries, qPrintable(problem));
            for (const OutlineEntry &entry : *entries) {
                const QString path = target.filePath(name + ".tzt/Files/" + entry.path);
                const auto kind = entry.source.isNull() ? platform::FileKind::Folder : platform::FileKind::File;
                QVERIFY2(platform::kindOf(path) == kind, qPrintable(path));
                QCOMPARE(platform::flagsWordOf(path), entry.label);
            }
        }
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestOutlines)
#include "test_outlines.moc"
