// The command, as a process of its own: what it prints, how it ends, and what it leaves alone.
#include "commands/CommandLine.h"
#include "commands/Verb.h"
#include "harness/Records.h"
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/WholeFile.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Outcome
{
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_home;

    QString settingsFile() const { return m_home->filePath("Library/Preferences/com.vantrel.Tessaro.plist"); }
    QString target() const { return m_home->filePath("Projects"); }

    std::unique_ptr<QProcess> start(const QStringList &words) const
    {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", m_home->path());
        for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(variable);
        process->setProcessEnvironment(environment);
        process->setWorkingDirectory(m_home->path());
        process->start(QCoreApplication::applicationDirPath() + "/Tessaro", words);
        return process;
    }
    static Outcome finished(QProcess &process)
    {
        if (!process.waitForFinished(60000))
            return {};
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }
    Outcome run(const QStringList &words) const { return finished(*start(words)); }
    Outcome inShell(const QString &script) const
    {
        QProcess shell;
        shell.setWorkingDirectory(m_home->path());
        shell.start("/bin/sh", {"-c", script, QCoreApplication::applicationDirPath() + "/Tessaro"});
        return finished(shell);
    }
    Outcome createIn(QStringList words) const { return run(QStringList{"create", "--in", target()} + words); }

    void setSettings(const QVariantMap &settings) const
    {
        writeFile(settingsFile(), platform::writePropertyList(settings));
    }
    QStringList everythingIn(const QString &folder) const
    {
        QStringList found;
        for (const auto &entry : platform::listFolder(folder).valueOr({})) {
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

    void templates()
    {
        const QString library = m_home->filePath("Library/Application Support/Vantrel/Tessaro/Templates/");
        QCOMPARE(run({"template", "new", "Film"}).output, library.toUtf8() + "Film.tzt\n");
        QCOMPARE(run({"template", "new", "Film"}).status, 3);
        QCOMPARE(run({"template", "new", "a/b"}).status, 2);
        writeFile(m_home->filePath("from/A/B/x"), "x");
        QCOMPARE(run({"template", "structure", "Film", "--from", "from"}).status, 0);
        QCOMPARE(
            run({"template", "show", "Film"}).output,
            QByteArray("Film\n\u2514\u2500\u2500 from/\n    \u2514\u2500\u2500 A/\n        \u2514\u2500\u2500 B/\n"));
        const auto tree = QJsonDocument::fromJson(run({"template", "show", "Film", "--json"}).output).object();
        QCOMPARE(tree["items"].toArray()[0].toObject()["name"].toString(), "from");
        QCOMPARE(run({"template", "default", "Film"}).status, 0);
        QCOMPARE(run({"template", "rename", "Film", "Feature"}).status, 0);
        QCOMPARE(run({"template", "default"}).output, QByteArray("Feature\n"));
        QCOMPARE(run({"template", "duplicate", "Feature"}).status, 0);
        QCOMPARE(run({"template", "remove", "Feature"}).status, 3); // nobody said yes
        QVERIFY(platform::targetExists(library + "Feature.tzt"));
        QCOMPARE(run({"template", "remove", "Feature", "--yes"}).status, 0);
        QVERIFY(!platform::targetExists(library + "Feature.tzt"));
        writeFile(m_home->filePath("Two.tzt/Files/x"), "x");
        const Outcome imported = run({"template", "import", "Two.tzt", "none.tzt"});
        QCOMPARE(imported.status, 1);
        QVERIFY(imported.output.endsWith("Two.tzt\n") && imported.errors.contains("none.tzt is not a template"));
        QCOMPARE(run({"template", "restore"}).status, 3);
        QCOMPARE(run({"template", "remove"}).status, 2);
        QCOMPARE(run({"clear-history"}).status, 0);
        // Where an administrator has to agree and nobody can be asked: not done, and said so.
        setSettings({{"requireAdminPasswordForEditing", 1}});
        if (getuid() == 0)
            QSKIP("Nobody has to agree to what the super-user does.");
        QCOMPARE(run({"template", "new", "Guarded"}).status, 3);
        QCOMPARE(run({"template", "rename", "Two", "Too"}).status, 0); // not guarded in the window either
    }

    void settingsAndParameters()
    {
        QCOMPARE(run({"settings", "set", "separatorChar", "-"}).status, 0);
        QCOMPARE(run({"settings", "get", "separatorChar"}).output, QByteArray("-\n"));
        for (const QStringList &bad : {QStringList{"separatorChar", "a/b"},
                                       {"autoQuit", "maybe"},
                                       {"dateFormat", "%"},
                                       {"templateLocation", "relative"},
                                       {"no such key", "1"}})
            QCOMPARE(run(QStringList{"settings", "set"} + bad).status, 2);
        QVERIFY(run({"settings", "set", "defaultTemplate", "Nope"}).errors.contains("Photography"));
        QCOMPARE(run({"settings", "unset", "separatorChar"}).status, 0);
        const auto all = QJsonDocument::fromJson(run({"settings", "--json"}).output).object();
        QCOMPARE(all["separatorChar"].toString(), "_");

        QCOMPARE(run({"parameters", "add", "Reel", "choice", "A,B"}).status, 0);
        QCOMPARE(run({"parameters", "move", "Reel", "1"}).status, 0);
        QCOMPARE(run({"parameters", "set", "Reel", "required", "on"}).status, 0);
        QCOMPARE(run({"parameters", "set", "Reel", "kind", "no kind"}).status, 2);
        QCOMPARE(run({"parameters", "move", "Reel", "99"}).status, 2);
        const auto first = [&] {
            return QJsonDocument::fromJson(run({"parameters", "--json"}).output).array()[0].toObject();
        };
        QCOMPARE(first()["title"].toString(), "Reel");
        QVERIFY(first()["required"].toBool() && first()["choices"].toArray().size() == 2);
        QCOMPARE(run({"parameters", "export", "list.plist"}).status, 0);
        QCOMPARE(run({"parameters", "remove", "Reel"}).status, 3);
        QCOMPARE(run({"parameters", "remove", "Reel", "--yes"}).status, 0);
        writeFile(m_home->filePath("bad.plist"), "not one");
        QCOMPARE(run({"parameters", "import", "bad.plist", "--yes"}).status, 1);
        QCOMPARE(run({"parameters", "import", "list.plist", "--yes"}).status, 0);
        QCOMPARE(first()["title"].toString(), "Reel");
        if (getuid() == 0)
            QSKIP("Nobody has to agree to what the super-user does.");
        setSettings({{"requireAdminPasswordForPrefs", 1}}); // as the window's preferences are
        QCOMPARE(run({"settings", "set", "autoQuit", "on"}).status, 3);
        QCOMPARE(run({"parameters", "add", "X"}).status, 3);
        QCOMPARE(run({"settings", "get", "autoQuit"}).status, 0);
        QCOMPARE(run({"settings", "unset", "requireAdminPasswordForPrefs"}).status, 3);
    }

    void aStudiosSetup()
    {
        const QString server = m_home->filePath("Server");
        QVERIFY(QDir().mkpath(server) && QDir().mkpath(target()));
        const auto state = [&] {
            return QJsonDocument::fromJson(run({"setup", "--json"}).output).object();
        };
        QCOMPARE(run({"setup", "export", server, "--lock", "nonsense"}).status, 2);
        QCOMPARE(run({"setup", "export", server, "--lock", "parameters,autoQuit"}).status, 0); // before the first start
        const auto written = platform::readPropertyListFile(server + "/Tessaro Setup.plist").valueOr({}).toMap();
        QVERIFY(written.contains("autoQuit"));                  // what is locked has a value
        QVERIFY(!written.contains("fixedProjectLocationPath")); // this user's own folder is nobody else's
        QVERIFY(QDir(server + "/Templates").exists("Photography.tzt"));
        QVERIFY(platform::removeTree(server + "/Templates/Photography.tzt").ok());
        QVERIFY(QFile::link("/nowhere/Gone.tzt", server + "/Templates/Gone.tzt"));

        const Outcome used = run({"setup", "use", server});
        QVERIFY(used.status == 0 && used.errors.contains("Gone.tzt"));
        QVERIFY(state()["inForce"].toBool() && state()["templates"].toBool());
        QCOMPARE(state()["locked"].toArray(), (QJsonArray{"filenameTemplate", "autoQuit"}));
        QVERIFY(!run({"templates"}).output.contains("Photography"));
        QCOMPARE(run({"settings", "set", "autoQuit", "on"}).status, 3);
        QCOMPARE(run({"template", "new", "Mine"}).status, 3);
        QVERIFY(platform::removeTree(server + "/Templates/Gone.tzt").ok());
        QVERIFY(createIn({"--set", "Project title=One"}).errors.isEmpty());

        QCOMPARE(run({"setup", "use", m_home->filePath("Projects")}).status, 1); // holds no set-up
        QCOMPARE(state()["folder"].toString(), server);
        QVERIFY(QFile::rename(server, server + " away"));
        const Outcome made = createIn({"--set", "Project title=Two"});
        QVERIFY(made.status == 0 && made.errors.contains("cannot be reached"));
        QCOMPARE(run({"setup", "off"}).status, 0);
        QVERIFY(!state()["inForce"].toBool());
        QVERIFY(run({"templates"}).output.contains("Photography"));
    }

    void aFirstProject()
    {
        const Outcome made = createIn({"--set", "Client=Acme & Söhne", "--set", "Project title=Größe 🎬"});
        QVERIFY(made.status == 0 && made.errors.isEmpty());
        QVERIFY(QString::fromUtf8(made.output).startsWith(target() + "/Acme & Söhne_001/Größe 🎬_"));
        const QJsonObject next = QJsonDocument::fromJson(createIn({"--json"}).output).object();
        QVERIFY(
            next["project"].toString().startsWith("Acme & Söhne_002/Untitled_")); // counted; what has a history stays
        QCOMPARE(next["folders"].toInt() + next["files"].toInt(), everythingIn(next["path"].toString()).size());
    }

    void aDryRunChangesNothing()
    {
        const Outcome fresh = createIn({"--dry-run", "--set", "Client=Acme"});
        QVERIFY(fresh.status == 0 && fresh.output.startsWith((target() + "/Acme_001/Untitled_").toUtf8()));
        QCOMPARE(everythingIn(m_home->path()), QStringList{target()});
        QCOMPARE(createIn({}).status, 0);
        const QStringList before = everythingIn(m_home->path());
        const QByteArray stored = readFile(settingsFile());
        const QJsonObject plan = QJsonDocument::fromJson(createIn({"--dry-run", "--json"}).output).object();
        QCOMPARE(everythingIn(m_home->path()), before);
        QCOMPARE(readFile(settingsFile()), stored);
        const QJsonObject made = QJsonDocument::fromJson(createIn({"--json"}).output).object();
        for (const char *key : {"project", "path", "folders", "files", "renamed"})
            QCOMPARE(plan[QLatin1String(key)], made[QLatin1String(key)]);
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

    void historyAndUndo()
    {
        QCOMPARE(run({"undo"}).status, 1);
        const auto made = [&](const char *client) {
            return QString::fromUtf8(createIn({"--set", QString("Client=") + client}).output).trimmed();
        };
        const QString first = made("First");
        const QString second = made("Second");
        const QByteArrayList lines = run({"history"}).output.trimmed().split('\n');
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines[0].endsWith(second.toUtf8()) && lines[1].endsWith(first.toUtf8()));
        QCOMPARE(run({"undo", "nothing of the name"}).status, 2);
        const Outcome undone = run({"undo"});
        QCOMPARE(undone.status, 0);
        QCOMPARE(undone.output, second.toUtf8() + '\n');
        QVERIFY(!platform::targetExists(second));
        QCOMPARE(platform::listFolder(target())->size(), 1); // the level above it came with it
        writeFile(first + "/mine", "work");
        const Outcome kept = run({"undo", first});
        QCOMPARE(kept.status, 1);
        QVERIFY(kept.errors.contains((first + "/mine").toUtf8()));
        QCOMPARE(everythingIn(first), QStringList{first + "/mine"});
        QCOMPARE(QJsonDocument::fromJson(run({"history", "--json"}).output).array().size(), 0);
        QVERIFY(made("Third").contains("Third_002")); // 001 is still taken, by what stayed
    }

    /// Each gets a number of its own and files of its own name, and no parameter that is added meanwhile is lost.
    void twelveAtOnce()
    {
        QCOMPARE(run({"templates"}).status, 0);
        std::vector<std::unique_ptr<QProcess>> creations;
        std::vector<std::unique_ptr<QProcess>> additions;
        for (int i = 0; i < 12; ++i) {
            creations.push_back(start({"create", "--in", target(), "--set", QString("Client=C%1").arg(i)}));
            additions.push_back(start({"parameters", "add", QString("Extra %1").arg(i)}));
        }
        QStringList numbers;
        for (const auto &creation : creations) {
            const Outcome outcome = finished(*creation);
            QVERIFY2(outcome.status == 0, outcome.errors.constData());
            const QString path = QString::fromUtf8(outcome.output).trimmed();
            const QString level = platform::lastComponent(platform::parentPath(path));
            numbers << level.section('_', 1);
            const QString name = platform::lastComponent(path);
            const QStringList made = everythingIn(path);
            QVERIFY(!made.isEmpty());
            for (const QString &item : made) {
                const QString itemName = platform::lastComponent(item);
                QVERIFY2(!itemName.contains("Untitled") || itemName.contains(name), qPrintable(item));
            }
        }
        std::sort(numbers.begin(), numbers.end());
        QStringList wanted;
        for (int i = 1; i <= 12; ++i)
            wanted << QString("%1").arg(i, 3, 10, QChar('0'));
        QCOMPARE(numbers, wanted);
        QCOMPARE(platform::listFolder(target())->size(), 12);
        for (const auto &addition : additions)
            QCOMPARE(finished(*addition).status, 0);
        QCOMPARE(run({"parameters"}).output.count("Extra "), 12);
    }

    /// Killed at any moment there is no half project; asked to end there is none, and no number is lost.
    void endsInTheMiddle_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("Ctrl+C") << SIGINT;
        QTest::newRow("kill") << SIGTERM;
        QTest::newRow("kill -9") << SIGKILL;
    }
    void endsInTheMiddle()
    {
        QFETCH(int, signal);
        constexpr int count = 3000;
        const QString library = m_home->filePath("Library/Application Support/Vantrel/Tessaro/Templates");
        for (int i = 0; i < count; ++i)
            writeFile(library + QString("/Big.tzt/Files/%1/Template %2").arg(i % 30).arg(i), "x");
        int stopped = 0;
        for (int delay = 5; delay <= 105; delay += 20) {
            auto process = start({"create", "--in", target(), "--template", "Big"});
            QVERIFY(process->waitForStarted());
            QTest::qSleep(delay);
            ::kill(static_cast<pid_t>(process->processId()), signal);
            QVERIFY(process->waitForFinished());
            const bool wasDone = process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
            stopped += wasDone ? 0 : 1;
            qsizetype made = 0;
            for (const QString &item : everythingIn(target())) {
                const bool isSeen = !item.contains("/."); // what is being built is hidden
                made += isSeen && platform::lastComponent(item).contains("Untitled") ? 1 : 0;
            }
            const qsizetype whole = count + 1; // the project's own folder, too
            QVERIFY2(made == 0 || made == 1 || made == whole, qPrintable(QString::number(made)));
            if (signal != SIGKILL && !wasDone && process->exitStatus() == QProcess::NormalExit) {
                QCOMPARE(process->exitCode(), 4);
                QCOMPARE(everythingIn(target()), QStringList());
            }
            const QStringList hidden = everythingIn(target()).filter(QRegularExpression(R"(/\.[^/]*tessaro-\w+$)"));
            const Outcome left = run({"clean-up"});
            QCOMPARE(left.output, hidden.isEmpty() ? QByteArray() : hidden[0].toUtf8() + '\n');
            QCOMPARE(left.status, hidden.isEmpty() ? 0 : 3);
            if (!hidden.isEmpty()) {
                QVERIFY(createIn({}).errors.contains(hidden[0].toUtf8()));
                QCOMPARE(run({"clean-up", "--yes"}).status, 0);
                QVERIFY(!platform::targetExists(hidden[0]));
                QCOMPARE(run({"clean-up"}).output, QByteArray());
            }
            QVERIFY(platform::removeTree(target()).ok() && platform::makeFolders(target()).ok());
        }
        QVERIFY(stopped > 0);
    }

    /// To look is not to change.
    void aListingStoresNothing()
    {
        setSettings({{"filenameTemplate", QVariantList{record({{"val", "typed"}, {"defaultVal", "d"}})}}});
        const QByteArray before = readFile(settingsFile());
        QVERIFY(run({"parameters"}).output.contains("d\n"));
        QCOMPARE(readFile(settingsFile()), before);
    }

    void refusals_data()
    {
        QTest::addColumn<QVariantMap>("settings");
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("said");
        const QStringList in{"create", "--in", "Projects"};
        const auto row = [](const char *said, int status, const QStringList &words, const QVariantMap &settings = {}) {
            QTest::newRow(said) << settings << words << status << QByteArray(said);
        };
        const auto with = [](const QVariantList &parameters) {
            return QVariantMap{{"filenameTemplate", parameters}};
        };
        row("There are: Client, Job number, Project title", 2, in + QStringList{"--set", "Clint=x"});
        row("is locked", 2, in + QStringList{"--set", "T=y"}, with({record({{"val", "x"}, {"locked", 1}})}));
        row("There are: a, b.", 2, in + QStringList{"--set", "T=c"},
            with({record({{"type", 5}, {"defaultVal", "a,b"}})}));
        row("'T' cannot be left blank\nPlease", 1, in,
            with({record({{"disallowEmpty", true}}), record({{"val", "x"}})}));
        row("You must specify at least one parameter.", 1, in, with({record({})}));
        for (const char *value : {"...", " ..", "/"}) // cleaned, they would lead out of the folder or name none
            row("The values give", 1, in, with({record({{"val", "x"}}), record({{"val", value}, {"folder", true}})}));
        row("There are: Commercial, Documentary, Editing Template", 2, in + QStringList{"--template", "X"});
        row("--in FOLDER", 2, {"create"});
        row("No fixed project location", 2, {"create"}, {{"useFixedProjectLocation", 0}});
        row("does not exist", 1, {"create", "--in", "Unplugged"});
        row("is not a folder", 1, {"create", "--in", "/etc/passwd"});
        for (const char *words :
             {"crate", "create --fast", "create --in", "create --set =x", "create --json=1", "templates --in /x"})
            row("--help", 2, QString(words).split(' '));
        row("Tessaro create", 1, {}); // no display
        row("Unable to create folder", 1, in, with({record({{"val", QString(300, 'x')}})}));
        row("Unable to create folder", 1, in, with({record({{"val", "  "}})})); // blanks name no folder
        row("'No' cannot count any further", 1, in,
            with({record({{"title", "No"}, {"type", 2}, {"val", "3026112201"}})}));
        row("'No' cannot count any further", 1, in,
            with({record({{"title", "No"}, {"type", 2}, {"val", "J-2147483647"}})}));
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

    void wordsOfTheWindow_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QStringList>("expected"); // action and folder; of one word where it is refused
        const QString here = QDir::currentPath();
        const QString bad = platform::fromNative("h\xff");
        const auto row = [](const char *name, const QStringList &words, const QStringList &expected) {
            QTest::newRow(name) << words << expected;
        };
        row("action", {"--action", "create"}, {"create", {}});
        row("like an option", {"--action", "--json"}, {"--json", {}});
        row("project", {"--new-project-here", "/p/a b"}, {"new-project-here", "/p/a b"});
        row("check", {"--check-project", "/p/../q//"}, {"check-project", "/q"});
        row("where it was started", {"--check-project", "."}, {"check-project", here});
        row("no UTF-8", {"--new-project-here", bad}, {"new-project-here", here + '/' + bad});
        row("like an option, too", {"--new-project-here", "--help"}, {"new-project-here", here + "/--help"});
        for (const char *word : {"--action", "--new-project-here", "--check-project"}) {
            row(word, {word}, {"refused"});
            QTest::addRow("%s of nothing", word) << QStringList{word, ""} << QStringList{"refused"};
            QTest::addRow("%s of two", word) << QStringList{word, "a", "b"} << QStringList{"refused"};
        }
        row("behind a verb", {"create", "--check-project", "/p"}, {"refused"});
    }
    /// What the desktop's launcher and the file browsers start.
    void wordsOfTheWindow()
    {
        QFETCH(QStringList, words);
        QFETCH(QStringList, expected);
        const auto read = readCommandLine(words);
        if (expected.size() == 1) {
            QVERIFY(read.outcome().is(platform::Cause::Invalid) && !read.outcome().sentence().isEmpty());
            return;
        }
        QVERIFY2(read, qPrintable(read.outcome().sentence()));
        QVERIFY(!read->verb && read->files.isEmpty());
        QCOMPARE((QStringList{read->action, read->actionValue}), expected);
        QCOMPARE(run(words).status, 1); // without a display it is said, and nothing is begun
    }

    void valuesAreSetAsIfTyped()
    {
        setSettings({{"useFixedProjectLocation", 1},
                     {"fixedProjectLocationPath", target() + "/Fixed"},
                     {"strictNaming", true},
                     {"filenameTemplate", QVariantList{record({{"title", "Client"}, {"saveHistory", true}})}}});
        QCOMPARE(run({"create", "--set", "Client=Café Promo!"}).output.trimmed(),
                 (target() + "/Fixed/CafPromo").toUtf8());
        const QVariantMap stored = platform::readPropertyList(readFile(settingsFile())).value_or(QVariant()).toMap();
        QCOMPARE(stored["filenameTemplate"].toList().value(0).toMap()["history"].toList(), QVariantList{"CafPromo"});
        QCOMPARE(createIn({}).output.trimmed(), (target() + "/CafPromo").toUtf8()); // what the command says wins
    }

    void administratorsRights()
    {
        setSettings({{"requireAdminPassword", 1}});
        const int expected = geteuid() == 0 ? 0 : 3; // no service lends rights to an ordinary user's process here
        QCOMPARE(createIn({}).status, expected);
    }

    void damagedSettings()
    {
        writeFile(settingsFile(), "not a property list");
        QCOMPARE(createIn({}).status, 0);
        QCOMPARE(readFile(settingsFile() + ".damaged"), QByteArray("not a property list"));
        const QVariantMap oddRecord{{"type", "x"}, {"val", QVariantList{}}, {"history", "h"}, {"locked", "no"}};
        setSettings({{"separatorChar", QVariantList{}},
                     {"dateFormat", 7},
                     {"templateLocation", QVariantMap{}},
                     {"filenameTemplate", QVariantList{1, oddRecord, QVariantMap{{"val", 41}}}}});
        QCOMPARE(createIn({}).status, 0);
    }

    /// Bytes that are no UTF-8, wherever they come from: the home folder, a file's name.
    void bytesOfAnyKind()
    {
        const QString home = "bad=$(printf 'h\\377'); mkdir -p \"$bad\"; export HOME=\"$PWD/$bad\"; ";
        QCOMPARE(inShell(home + "\"$0\" settings set separatorChar +").status, 0);
        QCOMPARE(inShell(home + "\"$0\" settings get separatorChar").output, "+\n");
        const QString folder = platform::joined(m_home->path(), platform::fromNative("h\xff"));
        QVERIFY(platform::targetExists(folder + "/Library/Preferences/com.vantrel.Tessaro.plist"));
        QVERIFY(platform::targetExists(folder + "/Library/Logs/Vantrel/Tessaro.1.task.log"));
        QCOMPARE(inShell(home + "\"$0\" parameters export \"$bad.plist\"").status, 0);
        QVERIFY(platform::readPropertyListFile(folder + ".plist").ok());
        QCOMPARE(inShell("\"$0\" --help >/dev/full").status, 1);
    }

    /// Where no thread is to be had the work is done without one.
    void worksWithoutThreads()
    {
        if (geteuid() == 0)
            QSKIP("The super-user may always have another.");
        const QString home = "HOME='" + m_home->path() + "' ";
        const QString limited = "ulimit -u 1; " + home + "exec \"$0\" ";
        QCOMPARE(run({"templates"}).status, 0);
        const Outcome made = inShell(limited + "create --in '" + target() + "' --set Client=Acme");
        QVERIFY2(made.status == 0, made.errors.constData());
        QVERIFY(everythingIn(target()).size() > 3);
        QCOMPARE(inShell(limited + "template duplicate Photography").status, 0);
        QCOMPARE(inShell(limited + "template restore --yes").status, 0);
    }

    void templatesThatAreNone()
    {
        const QString library = m_home->filePath("Library/Application Support/Vantrel/Tessaro/Templates");
        QCOMPARE(run({"template", "new", "Film"}).status, 0);
        QVERIFY(platform::makeFolders(m_home->filePath("Bare.tzt")).ok());
        const Outcome imported = run({"template", "import", "Bare.tzt"});
        QVERIFY(imported.status == 1 && imported.errors.contains("folder \u201CFiles\u201D"));
        QVERIFY(!platform::targetExists(library + "/Bare.tzt"));
        // What lies behind a link is not changed from here.
        writeFile(m_home->filePath("elsewhere/Files/x"), "x");
        writeFile(m_home->filePath("from/A/x"), "x");
        QCOMPARE(symlink(m_home->filePath("elsewhere").toUtf8(), (library + "/Linked.tzt").toUtf8()), 0);
        const Outcome behind = run({"template", "structure", "Linked", "--from", "from"});
        QVERIFY(behind.status == 1 && behind.errors.contains("Linked.tzt is a link"));
        QCOMPARE(everythingIn(m_home->filePath("elsewhere")).size(), 2);
    }

    /// A library that cannot be written to, a folder of a template that cannot be read: said, and no success.
    void whatCannotBeDoneIsSaid()
    {
        if (geteuid() == 0)
            QSKIP("Nothing is closed to the super-user");
        const QString library = m_home->filePath("Library/Application Support/Vantrel/Tessaro/Templates");
        QCOMPARE(run({"templates"}).status, 0);
        writeFile(library + "/Film.tzt/Files/closed/x");
        writeFile(library + "/Film.tzt/Files/two\nlines");
        QCOMPARE(chmod((library + "/Film.tzt/Files/closed").toUtf8().constData(), 0), 0);
        const Outcome shown = run({"template", "show", "Film"});
        QVERIFY(shown.status == 1 && shown.errors.contains("closed: Permission denied"));
        QCOMPARE(shown.output.count('\n'), 3); // a line end in a name tears nothing
        const Outcome made = createIn({"--template", "Film", "--set", "Client=Acme"});
        QCOMPARE(made.status, 1);
        QCOMPARE(chmod(library.toUtf8().constData(), 0555), 0);
        const Outcome restored = run({"template", "restore", "--yes"});
        QCOMPARE(chmod(library.toUtf8().constData(), 0755), 0);
        QCOMPARE(chmod((library + "/Film.tzt/Files/closed").toUtf8().constData(), 0755), 0);
        QCOMPARE(restored.status, 1);
        QVERIFY(restored.errors.contains("Permission denied"));
        QVERIFY(platform::leadsToFolder(library + "/Photography.tzt/Files"));
    }

    /// Neither made nor listed as if the defaults were the user's own.
    void settingsThatCannotBeRead()
    {
        if (geteuid() == 0)
            QSKIP("Nothing is closed to the super-user");
        QCOMPARE(run({"parameters", "add", "Reel"}).status, 0);
        QCOMPARE(chmod(settingsFile().toUtf8().constData(), 0), 0);
        const QStringList before = everythingIn(target());
        for (const QStringList &words :
             {QStringList{"create", "--in", target()}, {"parameters"}, {"settings"}, {"templates"}, {"undo"}}) {
            const Outcome refused = run(words);
            QVERIFY2(refused.status == 1 && refused.output.isEmpty(), qPrintable(words.first()));
            QVERIFY(refused.errors.contains("com.vantrel.Tessaro.plist: Permission denied"));
        }
        QCOMPARE(everythingIn(target()), before);
        QCOMPARE(run({"logs", "--task"}).status, 0);
        QCOMPARE(chmod(settingsFile().toUtf8().constData(), 0600), 0);
        QVERIFY(run({"parameters"}).output.contains("Reel"));
    }

    /// Everything about the verbs comes from one table: each explains itself, and the shells take what they are given.
    void verbsExplainThemselves()
    {
        for (const Verb &verb : verbs()) {
            if (!verb.help)
                continue;
            const Outcome help = run(verb.name().split(' ') + QStringList{"--help"});
            QVERIFY2(help.status == 0 && help.output.startsWith(verb.usage().toUtf8() + '\n'), verb.words);
            for (const Option &option : verb.options)
                QVERIFY2(help.output.contains(option.name), option.name);
        }
        QCOMPARE(everythingIn(m_home->path()), QStringList{target()}); // no log, no settings
        QVERIFY(run({"settings", "set", "separatorChar"}).errors.contains("Usage: Tessaro settings set KEY VALUE\n"));
        QVERIFY(run({"template", "sow", "Film"}).errors.contains("show"));
        QVERIFY(run({"template", "structure", "Film"}).errors.contains("--from"));
        const QString script = m_home->filePath("completion");
        writeFile(script, run({"completion", "bash"}).output +
                              "COMP_WORDS=(Tessaro template re); COMP_CWORD=2; _tessaro; echo \"${COMPREPLY[*]}\"\n");
        QProcess bash;
        bash.start("/bin/bash", {script});
        QCOMPARE(finished(bash).output, "rename remove restore\n");
        QVERIFY(run({"completion", "fish"}).output.contains("-l dry-run"));
        QVERIFY(run({"manual-page"}).output.startsWith(".TH TESSARO 1"));
    }

    void listings()
    {
        setSettings({{"defaultTemplate", "Photography"}});
        const QByteArray templates = run({"templates"}).output;
        QVERIFY(templates.contains("\n* Photography\n") && templates.contains("\n  Editing Template\n"));
        QCOMPARE(QJsonDocument::fromJson(run({"templates", "--json"}).output).array().size(), templates.count('\n'));
        QCOMPARE(QJsonDocument::fromJson(run({"parameters", "--json"}).output)[1]["kind"].toString(), "counter");
        QVERIFY(run({"--help"}).output.contains("--dry-run"));
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestCommandLine)
#include "test_command_line.moc"
