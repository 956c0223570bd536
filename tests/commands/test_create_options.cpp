// create: values from a program, from whoever sits at the terminal, what is not remembered, and who is told of it.
#include "commands/OwnHome.h"
#include "harness/Records.h"

#include <QJsonArray>
#include <QTest>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// What a terminal shows and is typed at, for one command.
class Terminal
{
public:
    Terminal(const OwnHome &home, const QStringList &words)
        : m_master(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0)
            qFatal("No terminal");
        const QByteArray name = ptsname(m_master);
        m_process.setProcessEnvironment(home.environment());
        m_process.setWorkingDirectory(home.path("."));
        m_process.setChildProcessModifier([name] {
            setsid();
            const int terminal = open(name.constData(), O_RDWR); // becomes this session's own
            dup2(terminal, STDIN_FILENO);
            dup2(terminal, STDERR_FILENO);
        });
        m_process.setInputChannelMode(QProcess::ForwardedInputChannel);
        m_process.start(QCoreApplication::applicationDirPath() + "/Tessaro", words);
    }
    ~Terminal()
    {
        m_process.kill();
        m_process.waitForFinished();
        close(m_master);
    }
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    /// Waits until the last that is shown ends so; then types.
    bool answers(const QByteArray &question, const QByteArray &typed)
    {
        const bool isAsked = QTest::qWaitFor(
            [&] {
                char buffer[4096];
                int waiting = 0;
                while (ioctl(m_master, FIONREAD, &waiting) == 0 && waiting > 0)
                    shown += QByteArray(buffer, qMax<ssize_t>(read(m_master, buffer, sizeof buffer), 0));
                return shown.size() > m_answered && shown.endsWith(question);
            },
            20000);
        m_answered = shown.size();
        return isAsked && write(m_master, typed.constData(), static_cast<size_t>(typed.size())) == typed.size();
    }
    OwnHome::Ended ended()
    {
        if (!m_process.waitForFinished(20000))
            return {};
        const int status = m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
        return {status, m_process.readAllStandardOutput(), shown};
    }
    QByteArray shown;

private:
    qsizetype m_answered = 0; ///< of what is shown
    int m_master;
    QProcess m_process;
};

} // namespace

class TestCreateOptions : public QObject
{
    Q_OBJECT

    std::unique_ptr<OwnHome> m_home;

    void setParameters(const QVariantList &parameters, QVariantMap settings = {}) const
    {
        settings.insert("filenameTemplate", parameters);
        m_home->setSettings(settings);
    }
    QByteArray settings() const { return readFile(m_home->settingsFile()); }
    QStringList projects() const
    {
        QStringList names;
        for (const auto &entry : platform::listFolder(m_home->path("Projects")).valueOr({}))
            names << entry.name;
        names.sort();
        return names;
    }
    /// Each project that it is told of becomes a file in the folder "told".
    QVariantMap program(const QByteArray &script = "cat > $$") const
    {
        const QString path = m_home->path("told/.program");
        writeFile(path, "#!/bin/sh\ncd '" + m_home->path("told").toUtf8() + "'\n" + script + '\n');
        if (chmod(path.toUtf8().constData(), 0755) != 0)
            qFatal("No program");
        return {{"afterCreation", path}};
    }
    QStringList told() const
    {
        QStringList names;
        for (const auto &entry : platform::listFolder(m_home->path("told")).valueOr({})) {
            if (!entry.name.startsWith('.'))
                names << QJsonDocument::fromJson(readFile(m_home->path("told/" + entry.name)))["name"].toString();
        }
        names.sort();
        return names;
    }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<OwnHome>();
        m_home->makeTemplate("Film", {"Template.txt", "A/b"});
    }

    void values_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("expected"); // the project's name, or the begin of what is said behind "!"
        const auto row = [](const char *name, const QByteArray &json, const char *expected) {
            QTest::newRow(name) << json << QString::fromUtf8(expected);
        };
        row("texts", R"({"Name": "Größe \ud83c\udfac", "No": "7"})", "Größe 🎬_7_A");
        row("nothing", "{}", "N_1_A");
        row("null leaves it alone", R"({"Name": null})", "N_1_A");
        row("an empty text", R"({"No": ""})", "N_A");
        row("a number", R"({"No": 41.0})", "N_41_A");
        row("a fraction", R"({"No": -0.5})", "N_-0.5_A");
        row("a power", R"({"No": 1e3})", "N_1000_A");
        row("a long number", R"({"No": 20261122000000001})", "N_20261122000000001_A");
        row("a list", R"({"Kinds": ["A", "C"]})", "N_1_A, C");
        row("a list of numbers", R"({"Name": [1, 20261122000000001]})", "1, 20261122000000001_1_A");
        row("an empty list", R"({"Kinds": []})", "N_1");
        row("a switch", R"({"No": true})", "!The value of “No”");
        row("an object", R"({"No": {"x": 1}})", "!The value of “No”");
        row("a list of objects", R"({"Kinds": ["A", {"x": 1}]})", "!The value of “Kinds”");
        row("a list with nothing in it", R"({"Kinds": ["A", null]})", "!The value of “Kinds”");
        row("an unknown title", R"({"name": "x"})", "!There is no parameter “name”. There are: Name, No, Kinds, L.");
        row("a locked one", R"({"L": "x"})", "!The parameter “L” is locked.");
        row("cut off", R"({"Name": "x")", "!The values are no JSON object: ");
        row("a list of values", "[1]", "!The values are no JSON object: ");
        row("nothing at all", "", "!The values are no JSON object: ");
        row("no text", "{\"Name\": \"\xff\"}", "!The values are no JSON object: ");
    }
    void values()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, expected);
        setParameters(
            {record({{"title", "Name"}, {"val", "N"}}), record({{"title", "No"}, {"val", "1"}}),
             record({{"title", "Kinds"}, {"type", 5}, {"defaultVal", "A,B,C"}, {"val", "A"}, {"several", true}}),
             record({{"title", "L"}, {"locked", true}})});
        writeFile(m_home->path("values.json"), json);
        for (const char *from : {"values.json", "-"}) {
            const auto ended =
                m_home->sh(QStringLiteral("\"$T\" create --in Projects --dry-run --json --values %1").arg(from), json);
            const QString said = ended.object()["errors"][0].toString();
            if (!expected.startsWith('!')) {
                QVERIFY2(ended.status == 0, ended.errors.constData());
                QCOMPARE(ended.object()["name"].toString(), expected);
            } else {
                QCOMPARE(ended.status, 2);
                QCOMPARE(ended.object()["code"].toString(), "invalid");
                QVERIFY2(said.startsWith(expected.mid(1)), qPrintable(said));
            }
        }
    }

    void valuesBesideOthers()
    {
        setParameters({record({{"title", "Name"}}), record({{"title", "No"}})});
        const QByteArray json = R"({"Name": "values", "No": 7})";
        QCOMPARE(m_home->sh("\"$T\" create --in Projects --values - --set Name=set", json).status, 0);
        writeFile(m_home->path("table.csv"), "Name\nrow 1\nrow 2\n");
        QCOMPARE(m_home->sh("\"$T\" create --in Projects --values - --from table.csv", json).status, 0);
        QCOMPARE(projects(), (QStringList{"row 1_7", "row 2_7", "set_7"}));
        QCOMPARE(m_home->sh("\"$T\" create --in Projects --values - --from -", json).status, 2);
        QCOMPARE(m_home->sh("\"$T\" create --in Projects --values - <&-").status, 1);
        QCOMPARE(projects().size(), 3);
    }

    void asks()
    {
        const QVariantList wanted{
            record({{"title", "Näme"}, {"disallowEmpty", true}}), record({{"title", "free"}}),
            record({{"title", "Kind"}, {"type", 5}, {"defaultVal", "A,B"}, {"disallowEmpty", true}})};
        setParameters(wanted);
        const QStringList words{"create", "--in", "Projects", "--ask", "--json"};
        {
            Terminal terminal(*m_home, words);
            QVERIFY(terminal.answers("Näme: ", "\n")); // once more
            QVERIFY(terminal.answers("\nNäme: ", "  Promo é\n"));
            QVERIFY(terminal.answers("Kind (A, B): ", "Z\n"));
            QVERIFY(terminal.answers("Kind (A, B): ", "B\n"));
            const auto ended = terminal.ended();
            QCOMPARE(ended.status, 0);
            QCOMPARE(ended.object()["name"].toString(), "Promo é_B"); // nothing but JSON on standard output
            QVERIFY(terminal.shown.contains("“Z” is not among the choices"));
        }
        QCOMPARE(m_home->sh("\"$T\" create --in Projects --ask --set Näme=x --set Kind=A </dev/null").status, 0);
        setParameters(wanted);
        const auto nobody = m_home->sh("\"$T\" create --in Projects --ask --json </dev/null");
        QVERIFY(nobody.status == 2 && nobody.object()["code"] == "invalid");
        const QByteArray before = settings();
        Terminal left(*m_home, words);
        QVERIFY(left.answers("Näme: ", "\x04")); // the end of what is typed
        QCOMPARE(left.ended().status, 4);
        QCOMPARE(projects(), (QStringList{"Promo é_B", "x_A"}));
        QCOMPARE(settings(), before);
    }

    /// Nobody is asked for what could not be answered.
    void asksForNoLockedOne()
    {
        setParameters({record({{"title", "Name"}, {"val", "x"}}),
                       record({{"title", "L"}, {"locked", true}, {"disallowEmpty", true}})});
        Terminal terminal(*m_home, {"create", "--in", "Projects", "--ask"});
        QCOMPARE(terminal.ended().status, 1);
    }

    void isNotRemembered_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QStringList>("made");
        QTest::newRow("one") << "--set Client=Acme" << QStringList{"041_Acme"};
        QTest::newRow("with a number of its own") << "--set Job=900" << QStringList{"900_Old"};
        QTest::newRow("several") << "--from table.csv" << QStringList{"041_row 1", "042_row 2", "043_row 3"};
        QTest::newRow("dry") << "--dry-run --set Client=Acme" << QStringList();
    }
    void isNotRemembered()
    {
        QFETCH(QString, words);
        QFETCH(QStringList, made);
        setParameters(
            {record({{"title", "Job"}, {"type", 2}, {"val", "041"}}),
             record({{"title", "Client"}, {"saveHistory", true}, {"val", "Old"}, {"history", QStringList{"Old"}}})});
        writeFile(m_home->path("table.csv"), "Client\nrow 1\nrow 2\nrow 3\n");
        const QByteArray before = settings();
        const auto ended = m_home->sh("\"$T\" create --in Projects --no-remember " + words);
        QVERIFY2(ended.status == 0, ended.errors.constData());
        QCOMPARE(projects(), made);
        QCOMPARE(settings(), before);
        if (made.isEmpty())
            return;
        QCOMPARE(m_home->sh("\"$T\" create --in Projects").output.trimmed(), m_home->path("Projects/041_Old").toUtf8());
        const QByteArray counted = settings();
        QCOMPARE(m_home->sh("\"$T\" undo '" + m_home->path("Projects/" + made[0]) + "'").status, 0);
        QCOMPARE(settings(), counted); // it took no number, and gives none back
        QCOMPARE(projects().size(), made.size());
    }

    void isTold_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<int>("status");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("one") << "--set Name=x" << 0 << QStringList{"x"};
        QTest::newRow("dry") << "--set Name=x --dry-run" << 0 << QStringList();
        QTest::newRow("several") << "--from good.csv" << 0 << QStringList{"a", "b", "c"};
        QTest::newRow("all or none") << "--from bad.csv" << 1 << QStringList();
        QTest::newRow("what can be made") << "--from bad.csv --go-on" << 1 << QStringList{"a", "c"};
        QTest::newRow("several, dry") << "--from good.csv --dry-run" << 0 << QStringList();
    }
    void isTold()
    {
        QFETCH(QString, words);
        QFETCH(int, status);
        QFETCH(QStringList, expected);
        if (geteuid() == 0)
            QSKIP("To the super-user permissions mean nothing.");
        setParameters({record({{"title", "In"}, {"folder", true}}), record({{"title", "Name"}, {"folder", true}})},
                      program());
        writeFile(m_home->path("good.csv"), "Name\na\nb\nc\n");
        writeFile(m_home->path("bad.csv"), "In,Name\n,a\nclosed,b\n,c\n"); // it is seen when it is made, and not before
        QCOMPARE(mkdir(m_home->path("Projects/closed").toUtf8().constData(), 0500), 0);
        const auto ended = m_home->sh("\"$T\" create --in Projects " + words);
        QVERIFY2(ended.status == status, ended.errors.constData());
        QCOMPARE(told(), expected);
    }

    /// The project stands, and its path is printed, whatever becomes of the program.
    void aProgramThatFails()
    {
        setParameters({record({{"title", "Name"}, {"val", "x"}})}, program("echo my words >&2; exit 3"));
        const auto ended = m_home->sh("\"$T\" create --in Projects");
        QCOMPARE(ended.status, 1);
        QVERIFY2(ended.errors.contains("status 3: my words"), ended.errors.constData());
        QCOMPARE(ended.output, m_home->path("Projects/x\n").toUtf8());
        const auto asJson = m_home->sh("\"$T\" create --in Projects --set Name=y --json");
        QVERIFY(asJson.status == 1 && asJson.object()["status"].toInt() == 1);
        QCOMPARE(asJson.object()["code"].toString(), "failed");
        QCOMPARE(projects(), (QStringList{"x", "y"}));
    }
    void aProgramThatIsStopped()
    {
        QVariantMap settings = program("echo $$ > .growing; mv .growing .pid; exec sleep 300");
        settings.insert("afterCreationSeconds", 3600);
        setParameters({record({{"title", "Name"}, {"val", "x"}})}, settings);
        const auto ended = m_home->sh("\"$T\" create --in Projects & until [ -e told/.pid ]; do sleep 0.05; done; "
                                      "kill -TERM $!; wait $!");
        QCOMPARE(ended.status, 1);
        QCOMPARE(projects(), QStringList{"x"});
        QTRY_VERIFY(kill(readFile(m_home->path("told/.pid")).toInt(), 0) != 0);
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestCreateOptions)
#include "test_create_options.moc"
