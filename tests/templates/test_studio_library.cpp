// What a studio shares: the copy that each computer keeps, what counts, and what nobody changes.
#include "creation/RequestCheck.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "parameters/ParameterStore.h"
#include "platform/base/PropertyList.h"
#include "platform/files/FileTree.h"
#include "platform/files/WholeFile.h"
#include "support/StudioCopy.h"
#include "templates/EditingGuard.h"
#include "templates/StudioLibrary.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

using platform::Cause;

namespace {

QVariantMap record(const QVariantMap &values)
{
    return values;
}

} // namespace

class TestStudioLibrary : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_work;
    QString shared(const QString &below = {}) const { return m_work->filePath("Server/" + below); }
    /// As the studio's folder is written by hand, or by a later version.
    void write(const QVariantMap &setup) const
    {
        QVERIFY(QDir().mkpath(shared()));
        QVERIFY(platform::writePropertyListFile(shared(studio::setupFile), setup).ok());
    }
    void use() const { storeSetting(settings::sharedSetup, m_work->filePath("Server")); }
    static QStringList listed()
    {
        return VTDataController::templateNames(VTDataController::templateLocation()).valueOr({});
    }

private Q_SLOTS:
    void init()
    {
        m_work = std::make_unique<QTemporaryDir>();
        storeFirstSettings(m_work->path());
        QVERIFY(studio::follow().outcome.ok()); // leaves what the case before has used
        QVERIFY(!studio::isInForce());
        writeFile(m_work->filePath("Library/Own.tzt/Files/own.txt"), "own");
        writeFile(shared("Templates/Film.tzt/Files/A/x.txt"), "one");
        write({{"separatorChar", "-"}, {"autoQuit", 1LL}, {"lockedSettings", QVariantList{"separatorChar"}}});
    }

    void defaultsAndLocks()
    {
        QCOMPARE(settings::separatorChar.text(), "_");
        use();
        QVERIFY(studio::follow().hasChanged);
        QVERIFY(!studio::follow().hasChanged); // the same once more
        QCOMPARE(settings::separatorChar.text(), "-");
        QVERIFY(settings::separatorChar.isLocked() && settings::autoQuit.isOn() && !settings::autoQuit.isLocked());
        QVERIFY(settings::separatorChar.store("+").is(Cause::Declined));
        QVERIFY(settings::separatorChar.reset().is(Cause::Declined));
        storeSetting(settings::separatorChar, "+"); // by an earlier version, or before
        QCOMPARE(settings::separatorChar.text(), "-");
        QVERIFY(settings::autoQuit.turn(false).ok()); // a default only
        QVERIFY(!settings::autoQuit.isOn());
        storeSetting(settings::sharedSetup, "");
        QVERIFY(studio::follow().hasChanged);
        QCOMPARE(settings::separatorChar.text(), "+");
        QVERIFY(!QDir(studio::copyFolder()).exists());
    }

    /// A server decides nothing about programs, passwords and places of this computer.
    void onlyWhatMayBeShared()
    {
        QVariantMap setup{{"afterCreation", "/tmp/evil"},
                          {"requireAdminPassword", 1LL},
                          {"templateLocation", "/"},
                          {"sharedSetup", "/elsewhere"},
                          {"firstRun", true}};
        setup.insert("lockedSettings", setup.keys());
        write(setup);
        use();
        QVERIFY(studio::follow().outcome.ok());
        QVERIFY(settings::afterCreation.text().isEmpty() && !settings::requireAdminPassword.isOn());
        QVERIFY(!settings::firstRun.isOn() && !settings::afterCreation.isLocked());
        QCOMPARE(settings::sharedSetup.text(), m_work->filePath("Server"));
        QVERIFY(settings::standard().value("lockedSettings").toList().isEmpty());
    }

    void templatesFollow()
    {
        QCOMPARE(listed(), QStringList{"Own"});
        use();
        QVERIFY(studio::follow().outcome.ok());
        QCOMPARE(listed(), QStringList{"Film"});
        const QString copy = VTDataController::filesFolder("Film");
        QCOMPARE(readFile(copy + "/A/x.txt"), "one");
        QVERIFY(!editingIsAllowed());
        // Changed, of the same length and, as a server's clock may go, a second later; added; gone.
        writeFile(shared("Templates/Film.tzt/Files/A/x.txt"), "two");
        QFile changed(shared("Templates/Film.tzt/Files/A/x.txt"));
        QVERIFY(changed.open(QIODevice::ReadWrite));
        QVERIFY(changed.setFileTime(QDateTime::currentDateTime().addSecs(10), QFileDevice::FileModificationTime));
        writeFile(shared("Templates/Film.tzt/Rules.plist"), platform::writePropertyList({}));
        writeFile(shared("Templates/New.tzt/Files/n.txt"), "n");
        writeFile(shared("Templates/.tessaro-staged-1/x"), "being copied by somebody");
        QVERIFY(studio::follow().hasChanged);
        QCOMPARE(listed(), QStringList({"Film", "New"}));
        QCOMPARE(readFile(copy + "/A/x.txt"), "two");
        QVERIFY(platform::removeTree(shared("Templates/Film.tzt")).ok());
        QVERIFY(studio::follow().hasChanged);
        QCOMPARE(listed(), QStringList{"New"});
        QVERIFY(platform::removeTree(shared("Templates")).ok()); // settings alone from now on
        QVERIFY(studio::follow().hasChanged);
        QCOMPARE(listed(), QStringList{"Own"});
        QVERIFY(editingIsAllowed() && settings::separatorChar.isLocked());
    }

    void serverIsAway()
    {
        use();
        QVERIFY(studio::follow().outcome.ok());
        QVERIFY(QFile::rename(m_work->filePath("Server"), m_work->filePath("Gone")));
        const auto followed = studio::follow();
        QVERIFY(followed.outcome.is(Cause::Missing) && !followed.hasChanged);
        QVERIFY(settings::separatorChar.isLocked() && studio::lastChange().isValid());
        QCOMPARE(listed(), QStringList{"Film"}); // the last copy
        QVERIFY(QFile::rename(m_work->filePath("Gone"), m_work->filePath("Server")));
        writeFile(shared(studio::setupFile), "nonsense");
        QVERIFY(studio::follow().outcome.is(Cause::Damaged));
        QVERIFY(settings::separatorChar.isLocked());
        QCOMPARE(readFile(shared(studio::setupFile)), "nonsense"); // nobody's to put aside
    }

    /// What a project is being made of stays as it is, and comes when that is over.
    void notWhileItIsUsed()
    {
        use();
        QVERIFY(studio::follow().outcome.ok());
        auto user =
            std::make_unique<ProjectRequest>(freshRequest(VTDataController::templateLocation(), "Film").valueOr({}));
        QVERIFY(user->use);
        writeFile(shared("Templates/Film.tzt/Files/A/new.txt"), "n");
        writeFile(shared("Templates/Other.tzt/Files/o.txt"), "o");
        write({{"separatorChar", "+"}});
        const auto followed = studio::follow();
        QVERIFY(followed.outcome.is(Cause::Busy) && !followed.hasChanged);
        QCOMPARE(listed(), QStringList{"Film"});
        QCOMPARE(settings::separatorChar.text(), "-");
        QVERIFY(!QDir(studio::copiedTemplates() + "/Film.tzt/Files/A").exists("new.txt"));
        // It has been copied, and is not copied again.
        const QString ready = studio::copyFolder() + "/.incoming/Other.tzt/Files/o.txt";
        const auto identity = platform::identityOf(ready);
        QVERIFY(identity);
        // Two may use it at a time, and neither waits for the other.
        QVERIFY(studio::useCopy());
        user.reset();
        QVERIFY(studio::follow().hasChanged);
        QCOMPARE(listed(), QStringList({"Film", "Other"}));
        QVERIFY(platform::identityOf(VTDataController::filesFolder("Other") + "/o.txt") == identity);
        QCOMPARE(settings::separatorChar.text(), "+");
        QVERIFY(!QDir(studio::copyFolder()).exists(".incoming"));
    }

    /// Left while somebody uses it, the copy goes when that is over; and a set-up that is chosen meanwhile stays.
    void notLeftWhileItIsUsed()
    {
        use();
        QVERIFY(studio::follow().outcome.ok());
        {
            const auto inUse = studio::useCopy();
            QVERIFY(inUse && *inUse);
            storeSetting(settings::sharedSetup, "");
            QVERIFY(studio::follow().outcome.is(Cause::Busy));
            QVERIFY(studio::isInForce());
        }
        QVERIFY(studio::follow().hasChanged);
        QVERIFY(!studio::isInForce());
    }

    /// Templates behind links come as what they lead to; links in them, and what may be executed, as they are.
    void linksAndPrograms()
    {
        writeFile(m_work->filePath("Elsewhere/Real.tzt/Files/tool.sh"), "#!/bin/sh");
        QVERIFY(QFile::link("tool.sh", m_work->filePath("Elsewhere/Real.tzt/Files/link")));
        QVERIFY(QFile::link(m_work->filePath("Elsewhere/Real.tzt"), shared("Templates/Linked.tzt")));
        use();
        QVERIFY(studio::follow().outcome.ok());
        QCOMPARE(listed(), QStringList({"Film", "Linked"}));
        const QString files = VTDataController::filesFolder("Linked");
        QVERIFY(!QFileInfo(files).isSymLink() && QFileInfo(files + "/link").isSymLink());
        QCOMPARE(chmod(m_work->filePath("Elsewhere/Real.tzt/Files/tool.sh").toUtf8(), 0755), 0);
        QVERIFY(studio::follow().hasChanged);
        QVERIFY(QFileInfo(files + "/tool.sh").isExecutable());
        QVERIFY(QFile::remove(m_work->filePath("Elsewhere/Real.tzt/Files/link")));
        QVERIFY(QFile::link("other", m_work->filePath("Elsewhere/Real.tzt/Files/link")));
        QVERIFY(studio::follow().hasChanged);
        QVERIFY(!studio::follow().hasChanged);
        QCOMPARE(platform::linkTarget(files + "/link"), "other");
        // The other server is away: what is here stays.
        QVERIFY(QFile::rename(m_work->filePath("Elsewhere"), m_work->filePath("Gone")));
        QVERIFY(studio::follow().outcome.is(Cause::Missing));
        QCOMPARE(listed(), QStringList({"Film", "Linked"}));
    }

    /// What the server lets nobody change comes, is replaced, and comes anew, wherever it was left.
    void closedFolders()
    {
        if (geteuid() == 0)
            QSKIP("to root everything is open");
        const auto close = [this](mode_t mode) {
            for (const char *folder : {"Templates/Film.tzt/Files/A", "Templates/Film.tzt/Files", "Templates/Film.tzt"})
                QCOMPARE(chmod(shared(folder).toUtf8(), mode), 0);
        };
        use();
        for (const char *text : {"first", "second", "the third one"}) {
            close(0755);
            writeFile(shared("Templates/Film.tzt/Files/A/x.txt"), text);
            close(0555);
            const auto inUse = studio::useCopy(); // what is on its way is replaced there, too
            const auto followed = *inUse ? studio::follow() : studio::Followed();
            QVERIFY2(!*inUse || followed.outcome.is(Cause::Busy), qPrintable(followed.outcome.description()));
            if (*inUse)
                continue;
            QVERIFY(studio::follow().outcome.ok());
        }
        QVERIFY(studio::follow().outcome.ok());
        QCOMPARE(readFile(VTDataController::filesFolder("Film") + "/A/x.txt"), "the third one");
        QVERIFY(!QDir(studio::copyFolder()).exists(".incoming"));
        close(0755);
    }

    /// A folder of templates that cannot be looked into is not taken for none, nor for an empty one.
    void templatesOutOfReach()
    {
        const QString templates = shared("Templates");
        QVERIFY(QFile::rename(templates, m_work->filePath("Away")));
        QVERIFY(QFile::link(templates, templates)); // leads to itself
        use();
        QVERIFY(!studio::follow().outcome.ok());
        QVERIFY(!studio::isInForce());
        QCOMPARE(listed(), QStringList{"Own"});
        QVERIFY(QFile::remove(templates) && QFile::rename(m_work->filePath("Away"), templates));
        QVERIFY(studio::follow().outcome.ok());
        QVERIFY(QFile::rename(templates, m_work->filePath("Away")));
        QVERIFY(QFile::link(m_work->filePath("nowhere"), templates));
        write({{"separatorChar", "+"}});
        const auto followed = studio::follow();
        QVERIFY(followed.isInPart);
        QCOMPARE(listed(), QStringList{"Film"});
        QCOMPARE(settings::separatorChar.text(), "+");
    }

    /// A template that cannot be read whole is not taken over in part.
    void templateThatCannotBeRead()
    {
        if (geteuid() == 0)
            QSKIP("to root everything can be read");
        use();
        QVERIFY(studio::follow().outcome.ok());
        writeFile(shared("Templates/Film.tzt/Files/B/secret.txt"), "s");
        QCOMPARE(chmod(shared("Templates/Film.tzt/Files/B").toUtf8(), 0), 0);
        writeFile(shared("Templates/Late.tzt/Files/l.txt"), "l");
        write({{"separatorChar", "+"}});
        QVERIFY(studio::follow().outcome.needsRights());
        QCOMPARE(listed(), QStringList({"Film", "Late"})); // the rest comes
        QCOMPARE(settings::separatorChar.text(), "+");
        QCOMPARE(chmod(shared("Templates/Film.tzt/Files/B").toUtf8(), 0755), 0);
        QVERIFY(!QDir(VTDataController::filesFolder("Film") + "/B").exists());
        QCOMPARE(readFile(VTDataController::filesFolder("Film") + "/A/x.txt"), "one");
        QVERIFY(studio::follow().outcome.ok());
        QCOMPARE(readFile(VTDataController::filesFolder("Film") + "/B/secret.txt"), "s");
    }

    /// Definitions are the studio's; values, numbers and memories each user's own.
    void parameters()
    {
        storeSetting(settings::filenameTemplate,
                     QVariantList{record({{"title", "Client"},
                                          {"val", "Acme"},
                                          {"saveHistory", true},
                                          {"history", QVariantList{"Acme", "Bolt"}}}),
                                  record({{"title", "Job"}, {"type", 2LL}, {"val", "041"}}),
                                  record({{"title", "Kind"}, {"type", 5LL}, {"val", "Old"}, {"defaultVal", "Old,New"}}),
                                  record({{"title", "Mine"}, {"val", "x"}})});
        write({{"filenameTemplate",
                QVariantList{record({{"title", "Job"}, {"type", 2LL}, {"val", "001"}}),
                             record({{"title", "Client"}, {"saveHistory", true}, {"disallowEmpty", true}}),
                             record({{"title", "Kind"}, {"type", 5LL}, {"val", "New"}, {"defaultVal", "New,Newer"}}),
                             record({{"title", "House"}, {"val", "TV"}, {"locked", true}})}},
               {"lockedSettings", QVariantList{"filenameTemplate"}}});
        use();
        QVERIFY(studio::follow().outcome.ok());
        const auto values = [] {
            QStringList all;
            for (const FilenameParameter &parameter : storedParameters())
                all.append(parameter.title() + '=' + parameter.value());
            return all;
        };
        QCOMPARE(values(), QStringList({"Job=041", "Client=Acme", "Kind=New", "House=TV"}));
        QCOMPARE(storedParameters()[1].history(), QStringList({"Acme", "Bolt"}));
        QVERIFY(storedParameters()[1].isRequired());
        QVERIFY(changeParameters([](FilenameParameters list) -> platform::Result<FilenameParameters> {
                    list[0].setValue("042");
                    list[1].setValue("Cell");
                    return list;
                }).ok());
        QCOMPARE(values(), QStringList({"Job=042", "Client=Cell", "Kind=New", "House=TV"}));
        // Another number of the studio's is no reason to count from there again.
        write({{"filenameTemplate", QVariantList{record({{"title", "Job"}, {"type", 2LL}, {"val", "500"}})}},
               {"lockedSettings", QVariantList{"filenameTemplate"}}});
        QVERIFY(studio::follow().outcome.ok());
        QCOMPARE(values(), QStringList{"Job=042"});
    }

    void exported()
    {
        const QString folder = m_work->filePath("New studio");
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(studio::exportSetup(folder, {{"separatorChar", "+"}, {"afterCreation", "/bin/sh"}}, {"separatorChar"})
                    .ok());
        const QVariantMap written =
            platform::readPropertyListFile(folder + '/' + studio::setupFile).valueOr({}).toMap();
        QCOMPARE(written.keys(), QStringList({"lockedSettings", "separatorChar"}));
        QCOMPARE(readFile(folder + "/Templates/Own.tzt/Files/own.txt"), "own");
        storeSetting(settings::sharedSetup, folder);
        QVERIFY(studio::follow().outcome.ok());
        QCOMPARE(settings::separatorChar.text(), "+");
        QCOMPARE(listed(), QStringList{"Own"});
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestStudioLibrary)
#include "test_studio_library.moc"
