// What a real bash offers, and that what it puts on the line is the word that was meant.
#include "commands/OwnHome.h"
#include "harness/Records.h"

#include <QTest>

class TestCompletion : public QObject
{
    Q_OBJECT

    OwnHome m_home;

    OwnHome::Ended bash(const QString &script) const { return m_home.sh(script, {}, "/bin/bash"); }

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *name : {"Spot Größe", "O'Neil's", "q\"$x`y` z", "back\\slash", "Film", "Film Noir"})
            m_home.makeTemplate(name, {"x"});
        m_home.makeTemplate(platform::fromNative("bad\xff"), {"x"});
        m_home.setSettings(
            {{"filenameTemplate",
              QVariantList{
                  record({{"title", "Größe & so"}, {"type", 5}, {"defaultVal", "A b,O'c,A=d"}}),
                  record({{"title", "Name"}, {"saveHistory", true}, {"history", QStringList{"old one", "two\nlines"}}}),
                  record({{"title", "Locked"}, {"locked", true}})}}});
        writeFile(m_home.path("My Folder/a file.csv"));
    }

    /// As the shell splits a line, each word as it was typed; the last one is completed.
    void offers_data()
    {
        QTest::addColumn<QByteArrayList>("words");
        QTest::addColumn<QByteArrayList>("expected"); // as they stand on the line
        const auto row = [](const char *name, const QByteArrayList &words, const QByteArrayList &expected) {
            QTest::newRow(name) << words << expected;
        };
        row("verbs", {"che"}, {"check"});
        row("verbs of two words", {"tem"}, {"template", "templates"});
        row("their second", {"template", "re"}, {"remove", "rename", "restore"});
        row("options", {"create", "--no"}, {"--no-remember"});
        row("options of two words", {"template", "structure", "--f"}, {"--from"});
        row("options behind an option", {"logs", "--path", "--t"}, {"--task"});
        row("kinds of words", {"settings", "--j"}, {"--json"});
        row("nothing hidden", {"comple"}, {"completion"});
        row("templates", {"template", "show", "Fi"}, {"Film", "Film\\ Noir"});
        row("a blank", {"template", "show", "Film\\ "}, {"Film\\ Noir"});
        row("an apostrophe", {"template", "show", "O\\'"}, {"O\\'Neil\\'s"});
        row("marks", {"template", "show", "q"}, {"q\\\"\\$x\\`y\\`\\ z"});
        row("a backslash", {"template", "show", "back\\\\"}, {"back\\\\slash"});
        row("letters", {"create", "--template", "Spot\\ G"}, {"Spot\\ Größe"});
        row("no UTF-8", {"create", "--template", "bad"}, {"$'bad\\377'"});
        row("in apostrophes", {"template", "show", "'Spot"}, {"Spot Größe"});
        row("in apostrophes, another", {"template", "show", "'O"}, {"O'\\''Neil'\\''s"});
        row("in quotes", {"template", "show", "\"Film "}, {"Film Noir"});
        row("in quotes, marks", {"template", "show", "\"q"}, {"q\\\"\\$x\\`y\\` z"});
        row("titles", {"create", "--set", ""}, {"Größe\\ \\&\\ so=", "Name="});
        row("values", {"create", "--set", "Größe\\ \\&\\ so", "="}, {"A=d", "A\\ b", "O\\'c"});
        row("values, begun", {"create", "--set", "Größe\\ \\&\\ so", "=", "A\\ "}, {"A\\ b"});
        row("values typed before", {"create", "--set", "Name", "=", "o"}, {"old\\ one"});
        row("values of none", {"create", "--set", "No", "=", ""}, {});
        row("titles for a verb", {"parameters", "move", "Na"}, {"Name"});
        row("folders", {"create", "--in", "My"}, {"My Folder"}); // the shell itself marks these
    }
    void offers()
    {
        QFETCH(QByteArrayList, words);
        QFETCH(QByteArrayList, expected);
        QString line = "\"$T\"";
        for (QByteArray word : words)
            line += " '" + QString::fromUtf8(word.replace('\'', "'\\''")) + "'";
        const auto ended = bash("compopt() { :; }; eval \"$(\"$T\" completion bash)\"; COMP_WORDS=(" + line +
                                "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _tessaro; [ ${#COMPREPLY[@]} = 0 ] || "
                                "printf '%s\\n' \"${COMPREPLY[@]}\"");
        QByteArrayList offered = ended.output.split('\n');
        offered.removeLast();
        std::sort(offered.begin(), offered.end());
        std::sort(expected.begin(), expected.end());
        QCOMPARE(offered, expected);
        QCOMPARE(ended.errors, QByteArray());
    }

    /// Whoever presses the key twice has the names of another's making in the shell: none is carried out.
    void carriesNothingOut()
    {
        m_home.makeTemplate("$(touch broken) `touch broken` ;touch broken", {"x"});
        QCOMPARE(bash("compopt() { :; }; eval \"$(\"$T\" completion bash)\"; for word in '' \\' '\"'; do "
                      "COMP_WORDS=(\"$T\" template show \"$word\\$\"); COMP_CWORD=3; _tessaro; "
                      "for reply in \"${COMPREPLY[@]}\"; do eval \"printf '%s\\n' $word$reply$word\"; done; done")
                     .output,
                 QByteArray("$(touch broken) `touch broken` ;touch broken\n").repeated(3));
        QVERIFY(!platform::targetExists(m_home.path("broken")));
    }

    void words_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("titles") << "titles" << 0 << QByteArray("Größe & so\nName\n");
        QTest::newRow("values") << "values 'Größe & so'" << 0 << QByteArray("A b\nO'c\nA=d\n");
        QTest::newRow("history, a line each") << "values Name" << 0 << QByteArray("old one\n");
        QTest::newRow("unknown title") << "values name" << 0 << QByteArray();
        QTest::newRow("values of nothing") << "values" << 0 << QByteArray();
        QTest::newRow("unknown word") << "parameters" << 0 << QByteArray();
        QTest::newRow("no word") << "" << 2 << QByteArray();
    }
    void words()
    {
        QFETCH(QString, words);
        QFETCH(int, status);
        QFETCH(QByteArray, output);
        const auto ended = m_home.sh("\"$T\" complete " + words);
        QCOMPARE(ended.status, status);
        QCOMPARE(ended.output, output);
    }

    /// Each shell's own parser takes the script; bash is here wherever the tests are.
    void scripts()
    {
        QCOMPARE(bash("\"$T\" completion bash | bash -n && \"$T\" completion zsh | grep -c '^#compdef Tessaro'").output,
                 QByteArray("1\n"));
        QCOMPARE(m_home.sh("\"$T\" completion csh").status, 2);
        for (const char *words : {"complete --help", "help complete", "check --help"})
            QCOMPARE(m_home.sh(QStringLiteral("\"$T\" ") + words).status, 0);
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestCompletion)
#include "test_completion.moc"
