// Lists of folders as people write them, and names given to several items at once.
#include "harness/TemporaryHome.h"
#include "templates/BatchRename.h"
#include "templates/IndentedList.h"

#include <QTest>

class TestNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void indentedLists_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("folders"); // empty: refused
        QTest::newRow("blanks and tabs") << "Shots\n  010\n\n      Comp\n  020\n\tPlates\r\nSound"
                                         << QStringList{"Shots",     "Shots/010",        "Shots/010/Comp",
                                                        "Shots/020", "Shots/020/Plates", "Sound"};
        QTest::newRow("a drawn tree") << "Job\n├── A-Cam/\n│   └── Day 1\n└── Sound"
                                      << QStringList{"Job", "Job/A-Cam", "Job/A-Cam/Day 1", "Job/Sound"};
        QTest::newRow("a tool's tree") << QString("Job\n├── A-Cam\n│\u00a0\u00a0 └── Day 1\n└── Sound")
                                       << QStringList{"Job", "Job/A-Cam", "Job/A-Cam/Day 1", "Job/Sound"};
        QTest::newRow("its plain one") << "Job\n|-- A-Cam\n|   `-- Day 1\n`-- Sound"
                                       << QStringList{"Job", "Job/A-Cam", "Job/A-Cam/Day 1", "Job/Sound"};
        QTest::newRow("bullets") << "- One\n  * Two\n  • Three" << QStringList{"One", "One/Two", "One/Three"};
        QTest::newRow("a list that begins indented") << "    A\n      B\n    C" << QStringList{"A", "A/B", "C"};
        QTest::newRow("out by a half") << "A\n    B\n  C" << QStringList{"A", "A/B", "A/C"};
        QTest::newRow("cleaned, accents, a dash in the name")
            << " Müll: 1/2 \n-5 dB" << QStringList{"Müll 12", "-5 dB"};
        QTest::newRow("the same folder twice") << "A\n  B\nA\n  C" << QStringList{"A", "A/B", "A/C"};
        QTest::newRow("no name") << "A\n  ///" << QStringList();
        QTest::newRow("outside") << "A\n  ..." << QStringList();
        QTest::newRow("too long") << "A\n" + QString(300, u'x') << QStringList();
    }
    void indentedLists()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, folders);
        const auto found = indentedlist::foldersIn(text);
        QCOMPARE(found ? *found : QStringList(), folders);
        if (!found)
            QVERIFY(found.outcome().description().contains("Line 2"));
    }

    void listsOfPaths()
    {
        const QStringList paths{"/t/A", "/t/A/B", "/t/A/B/C", "/t/AB", "/t/D/E"};
        const QString list = indentedlist::listOf(paths);
        QCOMPARE(list, "A\n    B\n        C\nAB\nE");
        QCOMPARE(*indentedlist::foldersIn(list), QStringList({"A", "A/B", "A/B/C", "AB", "E"}));
    }

    void severalNames_data()
    {
        QTest::addColumn<QString>("find");
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<int>("first");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("found in some") << "A"
                                       << "X" << 1 << QStringList{"X-Cam", "B.mov", "Xudio.d"};
        QTest::newRow("taken out") << "-Cam"
                                   << "" << 1 << QStringList{"A", "B.mov", "Audio.d"};
        QTest::newRow("numbered") << ""
                                  << "Day ## of ###" << 9
                                  << QStringList{"Day 09 of 009", "Day 10 of 010.mov", "Day 11 of 011"};
        QTest::newRow("numbers for what is found") << "A"
                                                   << "#" << 1 << QStringList{"1-Cam", "B.mov", "2udio.d"};
        QTest::newRow("not in the extension") << "mov"
                                              << "mp4" << 1 << QStringList{"A-Cam", "B.mov", "Audio.d"};
    }
    void severalNames()
    {
        QFETCH(QString, find);
        QFETCH(QString, replacement);
        QFETCH(int, first);
        const QList<RenamedItem> items{{"A-Cam", 5}, {"B.mov", 1}, {"Audio.d", 7}};
        QTEST(renamedItems(items, {find, replacement, first}), "names");
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestNames)
#include "test_names.moc"
