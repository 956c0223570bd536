// The command, as a process of its own: what it prints, how it ends, and what it leaves alone.
#include "app/CommandLine.h"
#include "platform/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/NativePath.h"
#include "platform/PropertyList.h"
#include "platform/Trash.h"
#include "support/TemporaryHome.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>
#include <unistd.h>

namespace {

struct Outcome
{
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

QVariantMap record(const QVariantMap &entries)
{
    QVariantMap whole{{"title", "T"}, {"type", 0}, {"val", ""}, {"folder", false}};
    whole.insert(entries);
    return whole;
}

} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_home;

    QString settingsFile() const { return m_home->filePath("Library/Preferences/com.vantrel.Tessaro.plist"); }
    QString target() const { return m_home->filePath("Projects"); }
    static QString program() { return QCoreApplication::applicationDirPath() + "/Tessaro"; }

    std::unique_ptr<QProcess> start(const QStringList &words) const
    {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", m_home->path());
        environment.remove("DISPLAY");
        environment.remove("WAYLAND_DISPLAY");
        environment.remove("QT_QPA_PLATFORM");
        process->setProcessEnvironment(environment);
        process->setWorkingDirectory(m_home->path());
        process->start(program(), words);
        return process;
    }
    static Outcome finished(QProcess &process)
    {
        if (!process.waitForFinished(60000))
            return {};
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }
    Outcome run(const QStringList &words) const { return finished(*start(words)); }
    Outcome createIn(QStringList words) const { return run(QStringList{"create", "--in", target()} + words); }

    void setSettings(const QVariantMap &settings) const
    {
        writeFile(settingsFile(), platform::writePropertyList(settings));
    }
    QVariantMap storedSettings() const
    {
        return platform::readPropertyList(readFile(settingsFile())).value_or(QVariant()).toMap();
    }
    QStringList everythingIn(const QString &folder) const
    {
        QStringList found;
        for (const auto &entry : platform::listFolder(folder).value_or(QList<platform::FolderEntry>())) {
            const QString path = folder + '/' + entry.name;
            found << path;
            if (entry.kind == platform::FileKind::Folder)
                found << everythingIn(path);
        }
        return found;
    }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        QVERIFY(platform::makeFolders(target()).ok());
    }

    void reading_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<bool>("understood");
        QTest::newRow("nothing: the window") << QStringList{} << true;
        QTest::newRow("bundles") << QStringList{"/a/b.tzt", "c.TZT"} << true;
        QTest::newRow("unknown command") << QStringList{"make"} << false;
        QTest::newRow("unknown option") << QStringList{"create", "--fast"} << false;
        QTest::newRow("value missing") << QStringList{"create", "--in"} << false;
        QTest::newRow("value after an equals sign") << QStringList{"create", "--in=/x", "--set=A=b=c"} << true;
        QTest::newRow("a setting without a title") << QStringList{"create", "--set", "=x"} << false;
        QTest::newRow("a setting without an equals sign") << QStringList{"create", "--set", "Client"} << false;
        QTest::newRow("a switch with a value") << QStringList{"create", "--json=1"} << false;
        QTest::newRow("another command's option") << QStringList{"templates", "--in", "/x"} << false;
    }
    void reading()
    {
        QFETCH(QStringList, words);
        QFETCH(bool, understood);
        QString problem;
        const auto request = readCommandLine(words, problem);
        QCOMPARE(request.has_value(), understood);
        QCOMPARE(problem.isEmpty(), understood);
        if (understood && words.contains("--set=A=b=c"))
            QCOMPARE(request->values, (QList<std::pair<QString, QString>>{{"A", "b=c"}}));
    }

    void aFirstProject()
    {
        const Outcome made = createIn({"--set", "Client=Acme & Söhne", "--set", "Project title=Größe 🎬"});
        QCOMPARE(made.errors, QByteArray());
        QCOMPARE(made.status, 0);
        const QString path = QString::fromUtf8(made.output).chopped(1);
        QVERIFY(path.startsWith(target() + "/Acme & Söhne_001/Größe 🎬_"));
        QVERIFY(platform::leadsToFolder(path));
        const QJsonObject next = QJsonDocument::fromJson(createIn({"--json"}).output).object();
        QVERIFY2(next["project"].toString().contains("_002/Untitled_"), "the counter has advanced");
        QVERIFY2(next["project"].toString().startsWith("Acme & Söhne"), "what has a history keeps its value");
        QCOMPARE(next["errors"].toArray().size(), 0);
        QCOMPARE(next["folders"].toInt() + next["files"].toInt(),
                 everythingIn(next["path"].toString()).size());
        QCOMPARE(next["template"].toString(), QString("Editing Template"));
    }

    void aDryRunChangesNothing()
    {
        const Outcome fresh = createIn({"--dry-run", "--set", "Client=Acme"});
        QCOMPARE(fresh.status, 0);
        QVERIFY(fresh.output.startsWith((target() + "/Acme_001/Untitled_").toUtf8()));
        QCOMPARE(everythingIn(m_home->path()), QStringList{target()});

        const QByteArray project = createIn({}).output.trimmed();
        const QStringList before = everythingIn(m_home->path());
        const QByteArray stored = readFile(settingsFile());
        QCOMPARE(createIn({"--dry-run", "--set", "Client=Other"}).status, 0);
        QCOMPARE(everythingIn(m_home->path()), before);
        QCOMPARE(readFile(settingsFile()), stored);

        // What it draws is what the run that follows makes.
        const QJsonObject plan = QJsonDocument::fromJson(createIn({"--dry-run", "--json"}).output).object();
        const QJsonObject made = QJsonDocument::fromJson(createIn({"--json"}).output).object();
        for (const char *key : {"project", "path", "folders", "files", "renamed"})
            QCOMPARE(plan[QLatin1String(key)], made[QLatin1String(key)]);
        for (const QJsonValue &item : plan["items"].toArray())
            QVERIFY(platform::targetExists(made["path"].toString() + '/' + item["path"].toString()));
    }

    void anExistingProject()
    {
        const QStringList same{"--set", "Job number=007"};
        const QString path = QString::fromUtf8(createIn(same).output).chopped(1);
        writeFile(path + "/work", "days of it");
        const Outcome refused = createIn(same);
        QCOMPARE(refused.status, 3);
        QVERIFY(refused.output.isEmpty() && refused.errors.contains("--overwrite"));
        QCOMPARE(readFile(path + "/work"), QByteArray("days of it"));
        QCOMPARE(createIn(same + QStringList{"--overwrite"}).status, 0);
        QVERIFY(!platform::targetExists(path + "/work"));
    }

    /// Of many that create the same project at once, one makes it and the others say that it exists.
    void manyAtOnce()
    {
        QCOMPARE(run({"templates"}).status, 0);
        std::vector<std::unique_ptr<QProcess>> processes;
        for (int i = 0; i < 6; ++i)
            processes.push_back(start({"create", "--in", target(), "--set", "Job number=100"}));
        QMap<int, int> statuses;
        for (const auto &process : processes)
            ++statuses[finished(*process).status];
        QCOMPARE(statuses, (QMap<int, int>{{0, 1}, {3, 5}}));
        const auto items = everythingIn(target()).size();
        QVERIFY(platform::removeTree(target()).ok());
        QVERIFY(platform::makeFolders(target()).ok());
        QCOMPARE(createIn({"--set", "Job number=100"}).status, 0);
        QCOMPARE(everythingIn(target()).size(), items); // neither mixed nor doubled
    }

    void refusals_data()
    {
        QTest::addColumn<QVariantMap>("settings");
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("said");
        const QVariantList locked{record({{"title", "Client"}, {"val", "x"}, {"locked", 1}})};
        const QVariantList choice{record({{"title", "Kind"}, {"type", 5}, {"val", "a"}, {"defaultVal", "a,b"}})};
        const QVariantList blank{record({{"title", "Name"}, {"disallowEmpty", true}}), record({{"val", "x"}})};
        const auto with = [](const QVariantList &parameters) { return QVariantMap{{"filenameTemplate", parameters}}; };
        const QStringList in{"create", "--in", "Projects"};
        QTest::newRow("unknown title") << QVariantMap() << in + QStringList{"--set", "Clint=x"} << 2
                                       << QByteArray("There are: Client, Job number, Project title");
        QTest::newRow("locked") << with(locked) << in + QStringList{"--set", "Client=y"} << 2 << QByteArray("is locked");
        QTest::newRow("no such choice") << with(choice) << in + QStringList{"--set", "Kind=c"} << 2
                                        << QByteArray("There are: a, b.");
        QTest::newRow("required") << with(blank) << in << 1
                                  << QByteArray("'Name' cannot be left blank\nPlease fill in this parameter before");
        QTest::newRow("all empty") << with({record({})}) << in << 1
                                   << QByteArray("Unable to create folder\nYou must specify at least one parameter.");
        for (const char *value : {"...", " ..", "/"}) // cleaned, they would lead out of the folder or name none
            QTest::newRow(value) << with({record({{"val", "x"}}), record({{"val", value}, {"folder", true}})}) << in << 1
                                 << QByteArray("Unable to create folder\nThe values give");
        QTest::newRow("no parameters") << with({}) << in << 1 << QByteArray("You must specify at least one parameter.");
        QTest::newRow("unknown template") << QVariantMap() << in + QStringList{"--template", "X"} << 2
                                          << QByteArray("There are: Documentary, Editing Template");
        QTest::newRow("nowhere") << QVariantMap() << QStringList{"create"} << 2 << QByteArray("--in FOLDER");
        QTest::newRow("fixed location switched off") << QVariantMap{{"useFixedProjectLocation", 0}} << QStringList{"create"}
                                                     << 2 << QByteArray("No fixed project location");
        QTest::newRow("no such folder") << QVariantMap() << QStringList{"create", "--in", "Unplugged"} << 1
                                        << QByteArray("does not exist");
        QTest::newRow("a file as the folder") << QVariantMap() << QStringList{"create", "--in", "/etc/passwd"} << 1
                                              << QByteArray("is not a folder");
        QTest::newRow("usage") << QVariantMap() << QStringList{"crate"} << 2 << QByteArray("--help");
        QTest::newRow("no display") << QVariantMap() << QStringList{} << 1 << QByteArray("Tessaro create");
        QTest::newRow("name too long") << with({record({{"val", QString(300, 'x')}})}) << in << 1
                                       << QByteArray("Unable to create folder");
    }
    void refusals()
    {
        QFETCH(QVariantMap, settings);
        QFETCH(QStringList, words);
        QFETCH(int, status);
        QFETCH(QByteArray, said);
        if (!settings.isEmpty())
            setSettings(settings);
        const Outcome outcome = run(words);
        QCOMPARE(outcome.status, status);
        QVERIFY2(outcome.errors.contains(said), outcome.errors.constData());
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(everythingIn(target()), QStringList());
    }

    void theFixedLocation()
    {
        setSettings({{"useFixedProjectLocation", 1}, {"fixedProjectLocationPath", target() + "/Fixed"}});
        const Outcome made = run({"create"});
        QCOMPARE(made.status, 0);
        QVERIFY(made.output.startsWith((target() + "/Fixed/001/").toUtf8()));
        QVERIFY(createIn({}).output.startsWith((target() + "/002/").toUtf8())); // what the command says wins
    }

    void valuesAreSetAsIfTyped()
    {
        setSettings({{"strictNaming", true},
                     {"filenameTemplate", QVariantList{record({{"title", "Client"}, {"saveHistory", true}})}}});
        QCOMPARE(createIn({"--set", "Client=Café Promo!"}).output.trimmed(), (target() + "/CafPromo").toUtf8());
        const QVariantMap client = storedSettings()["filenameTemplate"].toList().value(0).toMap();
        QCOMPARE(client["history"].toList(), QVariantList{"CafPromo"});
    }

    void administratorsRights()
    {
        setSettings({{"requireAdminPassword", 1}});
        const int expected = geteuid() == 0 ? 0 : 3; // no service lends rights to an ordinary user's process here
        for (const QStringList &words : {QStringList{"templates"}, QStringList{"parameters"},
                                         QStringList{"create", "--in", "Projects"}})
            QCOMPARE(run(words).status, expected);
        setSettings({{"requireAdminPassword", "1"}}); // the text is not the number
        QCOMPARE(run({"templates"}).status, 0);
    }

    void damagedSettings_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("no property list") << QByteArray("not a property list");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("parameters are a text") << platform::writePropertyList(QVariantMap{{"filenameTemplate", "oops"}});
        QTest::newRow("records are numbers")
            << platform::writePropertyList(QVariantMap{{"filenameTemplate", QVariantList{1, record({{"val", "x"}}), "y"}}});
        QTest::newRow("wrong types all over") << platform::writePropertyList(
            QVariantMap{{"separatorChar", QVariantList{}},
                        {"dateFormat", 7},
                        {"templateLocation", QVariantMap{}},
                        {"fixedProjectLocationPath", true},
                        {"filenameTemplate", QVariantList{QVariantMap{{"type", "x"}, {"val", QVariantList{}}},
                                                          QVariantMap{{"val", 41}, {"history", "h"}, {"locked", "no"}}}}});
    }
    void damagedSettings()
    {
        QFETCH(QByteArray, contents);
        writeFile(settingsFile(), contents);
        const Outcome made = createIn({});
        QCOMPARE(made.status, 0);
        if (!contents.startsWith("<?xml"))
            QCOMPARE(readFile(settingsFile() + ".damaged"), contents);
        if (contents.contains("oops"))
            QCOMPARE(storedSettings()["filenameTemplate.damaged"].toString(), QString("oops"));
    }

    void listings()
    {
        setSettings({{"defaultTemplate", "Photography"}});
        const QByteArray templates = run({"templates"}).output;
        QVERIFY(templates.contains("\n* Photography\n") && templates.contains("\n  Editing Template\n"));
        const QJsonArray list = QJsonDocument::fromJson(run({"templates", "--json"}).output).array();
        QCOMPARE(list.size(), templates.count('\n'));
        const QJsonArray parameters = QJsonDocument::fromJson(run({"parameters", "--json"}).output).array();
        QCOMPARE(parameters[1].toObject()["kind"].toString(), QString("counter"));
        QVERIFY(parameters[2].toObject()["beginsFolder"].toBool());
        QVERIFY(run({"parameters"}).output.contains("\n/ Project title"));
        QCOMPARE(run({"--version"}).status, 0);
        QVERIFY(run({"--help"}).output.contains("--dry-run"));
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestCommandLine)
#include "test_command_line.moc"
