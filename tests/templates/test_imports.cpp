// Imports into a template, and changes to the library: nothing is lost on the way, whatever is answered.
#include "harness/Answers.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "platform/archive/ZipArchive.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "support/Settings.h"
#include "support/VTFileManager.h"
#include "support/VTLog.h"
#include "templates/ImportJobs.h"
#include "templates/TemplateLibrary.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QTest>
#include <unistd.h>

using platform::Cause;
using platform::joined;
using platform::targetExists;

namespace {

const ImportHost nobody{[] {}, [](const QString &) {},
                        [] {
                        }};

bool isUnchanged(const library::Change &change)
{
    return change.outcome.ok() && !change.isChanged;
}

} // namespace

class TestImports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        static_cast<void>(m_home.file("Library/Logs/x"));
        VTLog::createNewLog();
    }
    void init()
    {
        for (const char *folder : {"in", "Templates", ".local/share/Trash"})
            QVERIFY(platform::removeTree(joined(m_home.path(), folder)).ok());
        storeSetting(settings::templateLocation, joined(m_home.path(), "Templates"));
        QVERIFY(platform::makeFolders(m_files).ok() && platform::makeFolders(m_in).ok());
        m_answers = std::make_unique<Answers>();
    }
    void cleanup() { m_answers.reset(); }

    void asksBeforeItOverwrites()
    {
        for (const char *name : {"a", "b", "c"})
            writeFile(joined(m_in, name), "new");
        const QStringList sources{joined(m_in, "a"), joined(m_in, "b"), joined(m_in, "c")};
        const auto contents = [&] {
            return readFile(m_files + "/a") + readFile(m_files + "/b") + readFile(m_files + "/c");
        };
        const auto run = [&](QList<int> answers) {
            for (const char *name : {"a", "b"})
                writeFile(joined(m_files, name), "old");
            QVERIFY(platform::removeTree(m_files + "/c").ok());
            m_answers->answers = std::move(answers);
            m_answers->asked.clear();
            static_cast<void>(importjobs::copyFiles({sources, m_files}, nobody));
        };
        run({-1, 1});
        QCOMPARE(contents(), QByteArray("oldnewnew"));
        QCOMPARE(m_answers->asked,
                 QStringList({"a already exists in this location. Are you sure you wish to overwrite it?",
                              "b already exists in this location. Are you sure you wish to overwrite it?"}));
        run({0}); // all
        QCOMPARE(contents(), QByteArray("newnewnew"));
        QCOMPARE(m_answers->asked.size(), 1);
    }

    /// Drops that would delete what they are to copy.
    void neverDestroysItsSource()
    {
        writeFile(m_files + "/A/A/x", "deep");
        writeFile(m_files + "/kept", "kept");
        QCOMPARE(symlink("Files", platform::toNative(joined(platform::parentPath(m_files), "Alias")).constData()), 0);
        const QString alias = joined(platform::parentPath(m_files), "Alias");
        QVERIFY(importjobs::copyFiles({{m_files + "/kept", alias + "/kept"}, m_files}, nobody).ok()); // onto itself
        QVERIFY(importjobs::copyFiles({{m_files + "/A/A"}, m_files}, nobody)
                    .is(Cause::IntoItself)); // would replace the folder it lies in
        QVERIFY(importjobs::copyFiles({{joined(m_home.path(), "Templates")}, m_files}, nobody)
                    .is(Cause::IntoItself)); // holds the destination
        writeFile(m_files + "/gone", "still here");
        QVERIFY(
            importjobs::copyFiles({{joined(m_in, "gone")}, m_files}, nobody).is(Cause::Missing)); // vanished meanwhile
        QCOMPARE(m_answers->asked.filter("overwrite"), QStringList());
        QCOMPARE(m_answers->asked.size(), 3);
        QCOMPARE(readFile(m_files + "/kept") + readFile(m_files + "/A/A/x") + readFile(m_files + "/gone"),
                 QByteArray("keptdeepstill here"));
        QVERIFY(!targetExists(m_files + "/Templates"));
    }

    void takesOnlyTheFolders()
    {
        for (const char *name : {"A/B/C/x", "A/D/y", "A/Show.app/Contents/x", "A/.hidden/z", "Empty/file"})
            writeFile(joined(m_in, name), "x");
        QCOMPARE(symlink("..", platform::toNative(m_in + "/A/D/up").constData()), 0);
        VTFileManager::setFinderColorIndex(6, m_in + "/A/B");
        VTFileManager::setFinderColorIndex(10, m_in);
        QCOMPARE(importjobs::structurePaths({m_in + "/A", m_in + "/Empty"}).folders,
                 QStringList({"/A/.hidden", "/A/B/C", "/A/D", m_in + "/Empty"}));
        QVERIFY(importjobs::createFolderStructure({{m_in + "/A"}, m_files}, nobody).ok());
        QVERIFY(targetExists(m_files + "/A/B/C") && targetExists(m_files + "/A/D"));
        QVERIFY(!targetExists(m_files + "/A/B/C/x") && !targetExists(m_files + "/A/Show.app"));
        QCOMPARE(VTFileManager::finderColorIndexForPath(m_files + "/A/B"), 6);
        QCOMPARE(VTFileManager::finderColorIndexForPath(m_files), 10); // the chosen folder's parent, as it must stay
        // The last source wins, also where it has no folder of the name.
        QVERIFY(platform::makeFolders(m_in + "/other/E/F").ok());
        QVERIFY(importjobs::createFolderStructure({{m_in + "/A", m_in + "/other/E"}, m_files}, nobody).ok());
        QCOMPARE(VTFileManager::finderColorIndexForPath(m_files + "/A/B"), 0);
    }

    void theLibrary()
    {
        auto &store = VTDataController::sharedController();
        const auto names = [&] {
            static_cast<void>(store.populateTemplates());
            return store.templates();
        };
        QCOMPARE(library::createTemplate("Untitled").name, QString("Untitled"));
        QCOMPARE(library::createTemplate("Untitled").name, QString("Untitled 2"));
        QCOMPARE(library::duplicateTemplate("Film").name, QString("Film Duplicate"));
        QCOMPARE(library::duplicateTemplate("Film").name, QString("Film Duplicate 2"));
        storeSetting(settings::defaultTemplate, "Film");
        QCOMPARE(library::renameTemplate("Film", "Untitled").outcome.cause(), Cause::Exists);
        QCOMPARE(library::renameTemplate("Film", " :/ ").outcome.cause(), Cause::Invalid);
        QVERIFY(isUnchanged(library::renameTemplate("Film", "Film")));
        QCOMPARE(library::renameTemplate("Film", QString(300, 'n')).outcome.cause(), Cause::NameTooLong);
        QVERIFY(library::renameTemplate("Film", "film").isChanged);
        QVERIFY(library::isDefaultTemplate("film"));
        // On this file system the other letter case may be another template: it is never overwritten.
        writeFile(VTDataController::filesFolder("Film") + "/mine", "mine");
        QVERIFY(!library::renameTemplate("film", "Film").isChanged);
        QCOMPARE(readFile(VTDataController::filesFolder("Film") + "/mine"), QByteArray("mine"));
        QVERIFY(names().contains("film"));

        m_answers->answers = {0};
        QCOMPARE(library::removeTemplate("film").outcome.cause(), Cause::Declined);
        m_answers->answers = {1};
        QVERIFY(library::removeTemplate("film").isChanged);
        QVERIFY(!names().contains("film") && targetExists(joined(m_home.path(), ".local/share/Trash/files/film.tzt")));
        QCOMPARE(settings::standard().string(settings::defaultTemplate), QString("film")); // the mark stays
    }

    void bundlesComeIn()
    {
        writeFile(m_in + "/Film.tzt/Files/new", "new");
        writeFile(m_files + "/old", "old");
        QVERIFY(library::addTemplate(m_in + "/Film.tzt/").isChanged);
        QVERIFY(targetExists(m_files + "/new") && !targetExists(m_files + "/old"));
        QVERIFY(targetExists(joined(m_home.path(), ".local/share/Trash/files/Film.tzt/Files/old")));
        QVERIFY(isUnchanged(library::addTemplate(VTDataController::bundlePath("Film"))));
        // By another name, or no folder at all: what stands there stays.
        QCOMPARE(symlink("Templates", platform::toNative(joined(m_home.path(), "Alias")).constData()), 0);
        QVERIFY(isUnchanged(library::addTemplate(joined(m_home.path(), "Alias/Film.tzt"))));
        QVERIFY(platform::removeTree(m_in + "/Film.tzt").ok());
        writeFile(m_in + "/Film.tzt", "a plain file");
        QCOMPARE(library::addTemplate(m_in + "/Film.tzt").outcome.cause(), Cause::NotAFolder);
        QVERIFY(targetExists(m_files + "/new"));
    }

    /// Out as an archive and in again it is the same; what is no archive of a template changes nothing.
    void archivesGoOutAndIn()
    {
        writeFile(m_files + "/Sub/é template.txt", "text");
        QVERIFY(VTFileManager::createDirectory(m_files + "/Empty"));
        VTFileManager::setFinderColorIndex(6, m_files + "/Empty");
        const QString archive = joined(m_home.path(), "out/Film by mail.tzt.zip");
        QVERIFY(VTFileManager::createDirectory(joined(m_home.path(), "out")));
        QVERIFY(library::isTemplateFile(archive) && library::isTemplateFile("/x/Film.TZT/"));
        QVERIFY(!library::isTemplateFile("/x/Film.zip") && !library::isTemplateFile("/x/tzt"));
        QVERIFY(library::exportTemplate("Film", archive).ok());
        m_answers->answers = {1};
        QVERIFY(library::removeTemplate("Film").isChanged);
        const library::Change added = library::addTemplate(archive);
        QVERIFY(added.isChanged && added.name == "Film");
        QCOMPARE(readFile(m_files + "/Sub/é template.txt"), "text");
        QCOMPARE(VTFileManager::finderColorIndexForPath(m_files + "/Empty"), 6);
        // Cut off in the middle, or without a template in it.
        const QByteArray whole = readFile(archive);
        writeFile(archive, whole.left(whole.size() / 2));
        m_answers->answers = {1, 1};
        QVERIFY(!library::addTemplate(archive).outcome.ok());
        QVERIFY(platform::compressZip(m_files, joined(m_home.path(), "out/none.tzt.zip")).outcome.ok());
        QCOMPARE(library::addTemplate(joined(m_home.path(), "out/none.tzt.zip")).outcome.cause(), Cause::Invalid);
        QCOMPARE(readFile(m_files + "/Sub/é template.txt"), "text");
    }

    /// As they are shown: the ending plays no part.
    void inTheOrderOfTheirNames()
    {
        for (const char *name : {"Film Duplicate 2", "Film Duplicate", "film 10"})
            static_cast<void>(m_home.file(QString("Templates/%1.tzt/Files/x").arg(name)));
        const auto found = VTDataController::templateNames(joined(m_home.path(), "Templates"));
        QCOMPARE(*found, QStringList({"Film", "film 10", "Film Duplicate", "Film Duplicate 2"}));
    }

private:
    const TemporaryHome m_home;
    const QString m_files = joined(m_home.path(), "Templates/Film.tzt/Files");
    const QString m_in = joined(m_home.path(), "in");
    std::unique_ptr<Answers> m_answers;
};

TESSARO_TEST_MAIN(QCoreApplication, TestImports)
#include "test_imports.moc"
