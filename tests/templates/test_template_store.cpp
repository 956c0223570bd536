// The library: where it is, when the shipped templates arrive, what the list holds.
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/Trash.h"
#include "support/AlertPresenter.h"
#include "support/Settings.h"
#include "support/VTAlert.h"
#include "support/VTLocalPaths.h"
#include "templates/TemplateChoice.h"
#include "templates/VTDataController.h"

#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class Recorder : public AlertPresenter
{
public:
    QStringList messages;
    void present(const Sheet &sheet, std::function<void(int)> answer) override
    {
        messages << sheet.messageText;
        answer(VTAlert::defaultReturn);
    }
    void orderOut(const VTAlert *) override {}
};

} // namespace

class TestTemplateStore : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_work;
    Recorder m_alerts;
    static VTDataController &store() { return VTDataController::sharedController(); }
    QString library() const { return m_work->filePath("Library"); }

private Q_SLOTS:
    void init()
    {
        m_work = std::make_unique<QTemporaryDir>();
        m_alerts.messages.clear();
        VTAlert::setPresenter(&m_alerts);
        storeSetting(settings::templateLocation, library());
    }

    void location()
    {
        QCOMPARE(VTDataController::templateLocation(), library());
        const QString standard =
            VTLocalPaths::userDirectory() + "/Library/Application Support/Vantrel/Tessaro/Templates";
        storeSetting(settings::templateLocation, "");
        QCOMPARE(VTDataController::templateLocation(), standard);
        removeSetting(settings::templateLocation);
        QCOMPARE(VTDataController::templateLocation(), standard);
    }

    void installsIntoANewLibraryOnly()
    {
        QVERIFY(store().populateTemplates().ok());
        const QStringList shipped = store().templates();
        QVERIFY(shipped.contains("Editing Template"));
        QVERIFY(platform::leadsToFolder(VTDataController::filesFolder("Editing Template")));

        // What the user removes stays removed, until the library itself is gone.
        QVERIFY(platform::removeTree(library() + "/Editing Template.tzt").ok());
        QVERIFY(store().populateTemplates().ok());
        QVERIFY(!store().templates().contains("Editing Template"));
        QVERIFY(platform::removeTree(library()).ok());
        QVERIFY(store().populateTemplates().ok());
        QCOMPARE(store().templates(), shipped);
    }

    void forcedInstallationReplacesItsOwnOnly()
    {
        writeFile(library() + "/Editing Template.tzt/Files/mine.txt", "mine");
        writeFile(library() + "/Mine.tzt/Files/x");
        QVERIFY(store().populateDefaultTemplates(VTDataController::Force::Yes).ok());
        QCOMPARE(platform::kindOf(VTDataController::filesFolder("Editing Template") + "/mine.txt"),
                 platform::FileKind::Missing);
        QCOMPARE(platform::kindOf(VTDataController::filesFolder("Mine") + "/x"), platform::FileKind::File);
        QVERIFY(store().populateDefaultTemplates(VTDataController::Force::Yes).ok());
        int inTrash = 0;
        QByteArray kept;
        const auto trashed = platform::listFolder(platform::homeTrashFiles()).valueOr({});
        for (const auto &entry : trashed) {
            inTrash += entry.name.startsWith("Editing Template") ? 1 : 0;
            kept += readFile(platform::homeTrashFiles() + '/' + entry.name + "/Files/mine.txt");
        }
        // On another mount than the home the Trash is that mount's; then neither copy is in the home's.
        QVERIFY(inTrash == 2 || inTrash == 0);
        QCOMPARE(kept, inTrash == 2 ? QByteArray("mine") : QByteArray());
    }

    void listsWhatEndsInTheExtension()
    {
        for (const char *name : {"b.tzt/Files/x", "A.TZT/Files/x", "c.tzt.zip", ".hidden.tzt/Files/x", "tzt", ".tzt"})
            writeFile(library() + '/' + name);
        writeFile(library() + "/notes.tzt", "a plain file");
        writeFile(library() + '/' + platform::fromNative("\xff.tzt/Files/x"));
        QVERIFY(store().populateTemplates().ok());
        QCOMPARE(store().templates(), QStringList({".hidden", "A", "b", "notes", platform::fromNative("\xff")}));
    }

    void saysThatALibraryCannotBeMade()
    {
        writeFile(m_work->filePath("file"));
        storeSetting(settings::templateLocation, m_work->filePath("file/Library"));
        QVERIFY(!store().populateTemplates().ok());
        QCOMPARE(m_alerts.messages, QStringList{"Unable to create directory " + m_work->filePath("file/Library")});
        QVERIFY(store().templates().isEmpty());
    }

    /// Neither a new library in its place nor a question: the drive comes back.
    void aLibraryThatIsGone()
    {
        if (geteuid() == 0)
            QSKIP("The super-user may write anywhere");
        QVERIFY(platform::makeFolders(m_work->filePath("media")).ok());
        QCOMPARE(chmod(m_work->filePath("media").toUtf8().constData(), 0555), 0);
        storeSetting(settings::templateLocation, m_work->filePath("media/Drive/Library"));
        QVERIFY(store().populateTemplates().is(platform::Cause::Unreachable));
        QCOMPARE(chmod(m_work->filePath("media").toUtf8().constData(), 0755), 0);
        QVERIFY(m_alerts.messages.isEmpty() && store().templates().isEmpty());
        writeFile(m_work->filePath("media/Drive/Library/Film.tzt/Files/x"), "x");
        QVERIFY(store().populateTemplates().ok());
        QCOMPARE(store().templates(), QStringList("Film"));
    }

    void choice_data()
    {
        QTest::addColumn<QString>("marked");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("expected");
        QTest::newRow("the marked one wins over the last one") << "B"
                                                               << "C"
                                                               << "B";
        QTest::newRow("a marked one that is gone") << "gone"
                                                   << "C"
                                                   << "C";
        QTest::newRow("none marked") << ""
                                     << "C"
                                     << "C";
        QTest::newRow("neither exists") << "gone"
                                        << "lost"
                                        << "A";
        QTest::newRow("nothing stored") << QString() << QString() << "A";
    }
    void choice()
    {
        QFETCH(QString, marked);
        QFETCH(QString, last);
        QTEST(chosenTemplate({"A", "B", "C"}, marked, last), "expected");
        QVERIFY(chosenTemplate({}, marked, last).isNull());
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestTemplateStore)
#include "test_template_store.moc"
