// What programs read of commands: errors as JSON, and an output that cannot be written.
#include "commands/OwnHome.h"
#include "harness/Records.h"

#include <QJsonArray>
#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

class TestOutput : public QObject
{
    Q_OBJECT

    std::unique_ptr<OwnHome> m_home;

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<OwnHome>();
        m_home->makeTemplate("Film", {"Template.txt", "A/b"});
        m_home->setSettings({{"filenameTemplate", QVariantList{record({{"title", "Name"}, {"val", "x"}})}}});
    }

    void errorsAsJson_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");
        const auto row = [](const char *words, int status, const char *code) {
            QTest::newRow(words) << QString(words) << status << QString(code);
        };
        row("templates --json --fast", 2, "invalid");
        row("history --json extra", 2, "invalid");
        row("undo --json", 2, "invalid");
        row("no-verb --json", 2, "invalid");
        row("template show None --json", 2, "invalid");
        row("check gone --json", 1, "missing");
        row("check /etc/passwd --json", 1, "notAFolder");
        row("check --json", 1, "failed"); // none was made yet
        row("check Projects --template None --json", 2, "invalid");
        row("create --json --in gone", 1, "missing");
        row("create --json --in /etc/passwd", 1, "notAFolder");
        row("create --json", 2, "invalid");
        row("create --json --in Projects --template None", 2, "invalid");
        row("create --json --in Projects --values gone.json", 1, "missing");
        row("create --json --in Projects --values Projects", 1, "isAFolder");
        row("create --json --in Projects --from gone.csv", 1, "missing");
        row("create --json --in Projects --set Name=Taken", 3, "exists");
        row("create --json --in Projects --set Name=", 1, "invalid");
        row("create --json --in Projects --set", 2, "invalid");
    }
    void errorsAsJson()
    {
        QFETCH(QString, words);
        QFETCH(int, status);
        QFETCH(QString, code);
        writeFile(m_home->path("Projects/Taken/x"));
        const auto ended = m_home->sh("\"$T\" " + words);
        QCOMPARE(ended.status, status);
        QVERIFY(!ended.errors.isEmpty()); // for people as ever
        QJsonParseError error{};
        const QJsonObject object = QJsonDocument::fromJson(ended.output, &error).object(); // one document, no more
        QVERIFY2(error.error == QJsonParseError::NoError, ended.output.constData());
        QCOMPARE(object["status"].toInt(), status);
        const QJsonObject first = object["errors"][0].toObject();
        QCOMPARE(object.contains("code") ? object["code"].toString() : first["code"].toString(), code);
        QVERIFY(!object["errors"].toArray().isEmpty());
    }

    void whatIsShutIsNamed()
    {
        if (geteuid() == 0)
            QSKIP("To the super-user permissions mean nothing.");
        const QByteArray file = m_home->settingsFile().toUtf8();
        QCOMPARE(chmod(file.constData(), 0), 0);
        for (const char *words : {"templates --json", "settings --json", "create --json --in Projects"}) {
            const auto ended = m_home->sh(QStringLiteral("\"$T\" ") + words);
            QCOMPARE(ended.status, 1);
            QCOMPARE(ended.object()["errors"][0]["code"].toString(), "needsRights");
            QCOMPARE(ended.object()["errors"][0]["item"].toString().toUtf8(), file);
        }
        QCOMPARE(chmod(file.constData(), 0600), 0);
    }

    void checks()
    {
        QCOMPARE(m_home->sh("\"$T\" create --in Projects").status, 0);
        for (const char *words : {"check", "check Projects/x", "check Projects/x/", "check Projects/../Projects/x//"})
            QCOMPARE(m_home->sh(QStringLiteral("\"$T\" ") + words).output, QByteArray("Complete. Items: 3\n"));
        QCOMPARE(m_home->sh("cd Projects/x && rm -r A && \"$T\" check .").output, QByteArray("A: is missing\n"));
        QVERIFY(m_home->sh("printf y > \"$(printf 'Projects/x/A')\"; \"$T\" check --json").object()["complete"] ==
                false);
        const QJsonObject bad =
            m_home->sh("b=$(printf 'Projects/h\\377'); mkdir \"$b\"; \"$T\" check --json --template Film \"$b\"")
                .object();
        QCOMPARE(bad["findings"].toArray().size(), 2);
        QVERIFY(bad["pathEncoded"].toString().endsWith("/Projects/h%FF") && !bad["remembered"].toBool());
        QCOMPARE(bad["findings"][1]["pathEncoded"].toString(), "h%FF.txt");
        QCOMPARE(bad["template"].toString(), "Film");
    }

    void outputThatCannotBeWritten_data()
    {
        QTest::addColumn<QString>("words");
        for (const char *words :
             {"create --in Projects", "create --in Projects --json", "create --in Projects --from table.csv",
              "check Projects/made", "check Projects/made --json", "check gone --json", "history --json", "templates",
              "completion bash", "complete templates", "help", "--version", "no-verb --json"})
            QTest::newRow(words) << QString(words);
    }
    /// It is said, and what is printed gets into no file instead.
    void outputThatCannotBeWritten()
    {
        QFETCH(QString, words);
        writeFile(m_home->path("table.csv"), "Name\na\nb\n");
        QCOMPARE(m_home->sh("\"$T\" create --in Projects --no-remember --set Name=made").status, 0);
        const QByteArray was = m_home->sh("\"$T\" settings --json").output;
        for (const char *output : {" >/dev/full", " >&-"}) {
            const auto ended = m_home->sh("\"$T\" " + words + output);
            QVERIFY2(ended.status == (words.startsWith("no-verb") ? 2 : 1), output);
            QVERIFY(!ended.errors.isEmpty());
            const auto files = m_home->sh("cd Projects; find . -type f ! -name '.*' -exec sh -c 'for f; do "
                                          "printf \"%s \" \"${f##*/}\"; cat \"$f\"; echo; done' - {} + | sort -u");
            for (const QByteArray &line : files.output.trimmed().split('\n'))
                QVERIFY2(line == "b A/b" || line.endsWith(".txt Template.txt"), line.constData());
            QCOMPARE(m_home->sh("\"$T\" settings --json").output, was);
            static_cast<void>(m_home->sh("rm -rf Projects/x Projects/a Projects/b"));
        }
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestOutput)
#include "test_output.moc"
