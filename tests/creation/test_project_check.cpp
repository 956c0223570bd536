// A project that is looked at: what it lacks, and nothing that it does not lack.
#include "creation/ProjectCheck.h"
#include "creation/ProjectCreation.h"
#include "creation/TemplateRules.h"
#include "harness/Answers.h"
#include "harness/StoredSettings.h"
#include "harness/TemporaryHome.h"
#include "parameters/ParameterStore.h"
#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/files/FileTree.h"
#include "platform/plain/CopyMonitor.h"
#include "support/VTLog.h"
#include "templates/VTDataController.h"

#include <QProcess>
#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

using namespace platform;

namespace {

class Host : public CreationHost
{
    void startProcessing() override {}
    void finishProcessing() override {}
    void incrementDynamicValues() override {}
    void reveal(const QString &) override {}
    void quitIfWanted() override {}
};

/// "complete", or what was found: "word path", one after the other.
QString shown(const ProjectCheck &check)
{
    if (!check.outcome.ok())
        return codeOf(check.outcome.cause());
    QStringList found;
    for (const CheckFinding &finding : check.findings)
        found << wordOf(finding.what) + ' ' + finding.path;
    return check.isComplete() ? "complete" : found.join(", ");
}

} // namespace

class TestProjectCheck : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_work;
    Answers m_presenter;

    static QString files(const QString &item = {}) { return joined(VTDataController::filesFolder("Test"), item); }
    QString project(const QString &item = {}) const { return joined(m_work->filePath("041/Promo"), item); }
    void create() const
    {
        Host host;
        const ProjectRequest request{storedParameters(), {}, "_", "Test", files(), m_work->path()};
        QVERIFY(ProjectCreation(host).createProject(request).ok());
    }
    ProjectCheck check(const QString &folder) const
    {
        CopyMonitor monitor;
        return checkProject(folder, "Test", files(), monitor);
    }
    /// In the project's folder.
    bool sh(const QString &script) const
    {
        return QProcess::execute("/bin/sh", {"-c", "cd '" + project() + "' && " + script}) == 0;
    }

private Q_SLOTS:
    void init()
    {
        m_work = std::make_unique<QTemporaryDir>();
        storeSetting(settings::templateLocation, m_work->filePath("Library"));
        storeSetting(settings::filenameTemplate,
                     QVariantList{QVariantMap{{"title", "Job"}, {"type", 2}, {"val", "041"}, {"folder", true}},
                                  QVariantMap{{"title", "Name"}, {"val", "Promo"}, {"folder", true}}});
        writeFile(files("Template.txt"), "contents");
        writeFile(files("empty"));
        writeFile(files("Footage/Template day/clip"), "film");
        writeFile(files("Footage/zz"), "film");
        writeFile(files("Sound/a"), "x");
        writeFile(files(fromNative("bad\xff/\xfe name")), "x");
        QCOMPARE(symlink("nowhere", toNative(files("link")).constData()), 0);
    }
    void cleanup()
    {
        static_cast<void>(QProcess::execute("/bin/chmod", {"-R", "u+rwX", m_work->path()}));
        QVERIFY(removeTree(m_work->path()).ok());
    }

    void whatIsFound_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("found");
        QTest::addColumn<int>("looked");
        const auto row = [](const char *name, const char *script, const QString &found, int looked = 11) {
            QTest::newRow(name) << script << found << looked;
        };
        row("nothing", "true", "complete");
        row("what was added and changed", "echo more >> Promo.txt; echo x > empty; mkdir new", "complete");
        row("links lead elsewhere", "ln -sf else link; mv Sound ../S; ln -s ../S Sound", "otherKind Sound", 10);
        row("an item", "rm Promo.txt", "missing Promo.txt");
        row("a link", "rm link", "missing link");
        row("a folder with all in it", "rm -r Footage", "missing Footage", 8);
        row("several", "rm -r 'Footage/Promo day' Sound/a", "missing Footage/Promo day, missing Sound/a", 10);
        row("a file for a folder", "rm -r Footage; echo x > Footage", "otherKind Footage", 8);
        row("a folder for a file", "rm Promo.txt; mkdir Promo.txt", "otherKind Promo.txt");
        row("emptied", ": > Promo.txt", "emptied Promo.txt");
        row("no UTF-8", "rm -r bad*", fromNative("missing bad\xff"), 10);
        row("below no UTF-8", "rm bad*/*", fromNative("missing bad\xff/\xfe name"));
        row("renamed inside", "mv Sound sound", "missing Sound", 10);
    }
    /// Of a project that is remembered, at its place and after it was renamed and moved.
    void whatIsFound()
    {
        QFETCH(QString, script);
        QFETCH(QString, found);
        QFETCH(int, looked);
        create();
        QVERIFY(sh(script));
        writeFile(files("in the template since"), "x");
        QVERIFY(sh("mkdir -p '../../else where' && mv ../Promo '../../else where/Other name'"));
        const QString moved = m_work->filePath("else where/Other name");
        for (const QString &place : {moved, project()}) {
            const ProjectCheck result = check(place);
            const auto sorted = [](const QString &list) {
                QStringList parts = list.split(", ");
                parts.sort();
                return parts;
            };
            QCOMPARE(sorted(shown(result)), sorted(found));
            QVERIFY(result.isRemembered);
            QCOMPARE(result.looked, looked);
            QVERIFY(place == project() || rename(toNative(moved).constData(), toNative(project()).constData()) == 0);
        }
    }

    void ofATemplate_data()
    {
        QTest::addColumn<QVariantMap>("rules");
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("found");
        QTest::addColumn<int>("notLooked");
        const QVariantMap plain;
        QTest::newRow("complete") << plain << "true"
                                  << "complete" << 0;
        QTest::newRow("emptied is not known") << plain << ": > Other.txt"
                                              << "complete" << 0;
        QTest::newRow("named after the project") << plain << "mv Other.txt Template.txt"
                                                 << "missing Other.txt" << 0;
        QTest::newRow("named after the project, below") << plain << "rm -r 'Footage/Other day'"
                                                        << "missing Footage/Other day" << 0;
        QTest::newRow("no UTF-8") << plain << "rm -r bad*" << fromNative("missing bad\xff") << 0;
        const QVariantList tests{QVariantMap{{"parameter", "Name"}, {"is", "is"}, {"value", "x"}}};
        const QVariantMap when{{"path", "Footage"}, {"when", QVariantMap{{"all", tests}}}};
        const QVariantMap repeat{{"path", "Sound"}, {"repeat", QVariantMap{{"count", "Job"}}}};
        const QVariantMap both{{"items", QVariantList{when, repeat}}};
        QTest::newRow("conditions and repeats") << both << "rm -r Footage Sound"
                                                << "complete" << 6;
        QTest::newRow("and the rest is looked for") << both << "rm -r Footage empty"
                                                    << "missing empty" << 6;
        QTest::newRow("names with values") << QVariantMap{{"fillNames", true}} << "mv '{Job}' 041"
                                           << "complete" << 2;
        QTest::newRow("braces without values") << plain << "rm -r '{Job}'"
                                               << "missing {Job}" << 0;
        const QVariantMap text{{"path", "empty"}, {"fillText", true}};
        QTest::newRow("texts with values") << QVariantMap{{"items", QVariantList{text}}} << "rm empty"
                                           << "missing empty" << 0;
    }
    /// A project that nobody remembers, as after it came from another machine.
    void ofATemplate()
    {
        QFETCH(QVariantMap, rules);
        QFETCH(QString, script);
        QFETCH(QString, found);
        QFETCH(int, notLooked);
        writeFile(files("{Job}/x"), "x");
        create();
        const QString copied =
            "mkdir ../../Other && cp -a . ../../Other && cd ../../Other && mv Promo.txt Other.txt && "
            "mv 'Footage/Promo day' 'Footage/Other day' && ";
        QVERIFY(sh(copied + script));
        if (!rules.isEmpty())
            writeFile(parentPath(files()) + "/Rules.plist", writePropertyList(rules));
        const ProjectCheck result = check(m_work->filePath("Other"));
        QCOMPARE(shown(result), found);
        QVERIFY(!result.isRemembered && result.templateName == "Test");
        QCOMPARE(result.notLooked, notLooked);
    }

    /// A folder that came after a project was deleted may get its number from the drive, and is another one for that.
    void aFolderIsNotTakenForAnother()
    {
        create();
        const auto identity = identityOf(project());
        QVERIFY(identity && removeTree(project()).ok());
        QTest::qWait(20); // the drive's clock ticks slowly
        QString same;
        for (int i = 0; same.isNull() && i < 200; ++i) {
            const QString other = m_work->filePath(QStringLiteral("other %1").arg(i));
            QVERIFY(makeNewFolder(other).ok());
            if (identityOf(other) == identity)
                same = other;
        }
        if (same.isNull())
            QSKIP("This drive gives no number twice.");
        QVERIFY(!check(same).isRemembered);
    }

    void whatCannotBeChecked()
    {
        create();
        CopyMonitor monitor;
        QCOMPARE(shown(check(m_work->filePath("gone"))), "missing");
        QCOMPARE(shown(check(project("Promo.txt"))), "notAFolder");
        QVERIFY(check(project("Promo.txt")).outcome.description().contains("folder")); // and that is said
        QVERIFY(makeNewFolder(m_work->filePath("strange")).ok());
        const ProjectCheck nothing = checkProject(m_work->filePath("strange"), {}, {}, monitor);
        QVERIFY(!nothing.isRemembered && nothing.templateName.isNull() && nothing.looked == 0);
        writeFile(parentPath(files()) + "/Rules.plist", "damaged");
        QCOMPARE(shown(check(m_work->filePath("strange"))), "damaged");
        QCOMPARE(shown(check(project())), "complete"); // needs no template
        monitor.cancelled = true;
        QCOMPARE(shown(checkProject(project(), "Test", files(), monitor)), "cancelled");
    }

    /// What lies behind a closed door is not said to be gone.
    void aFolderThatCannotBeRead()
    {
        if (geteuid() == 0)
            QSKIP("To the super-user permissions mean nothing.");
        create();
        QVERIFY(sh("chmod 0 Footage"));
        QStringList found = shown(check(project())).split(", ");
        found.sort();
        QCOMPARE(found, (QStringList{"unseen Footage/Promo day", "unseen Footage/zz"}));
        QVERIFY(sh("chmod 700 Footage && chmod 0 .."));
        QCOMPARE(shown(check(project())), "needsRights");
        QCOMPARE(chmod(toNative(parentPath(project())).constData(), 0700), 0);
        QVERIFY(sh("mkdir ../../Other"));
        QCOMPARE(chmod(toNative(files("Sound")).constData(), 0), 0);
        QCOMPARE(shown(check(m_work->filePath("Other"))), "needsRights"); // what the template has is not known
    }
};

int main(int argc, char **argv)
{
    prepareLocale();
    const TemporaryHome home;
    QCoreApplication application(argc, argv);
    VTLog::createNewLog();
    settings::registerDefaults();
    TestProjectCheck test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_project_check.moc"
