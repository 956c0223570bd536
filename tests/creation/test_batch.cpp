// Many projects from a table: how it is read, what each row gives, and that all of them come, and go, together.
#include "creation/BatchCreation.h"
#include "harness/TemporaryHome.h"
#include "parameters/ParameterStore.h"
#include "platform/base/System.h"
#include "platform/files/FileSystem.h"
#include "support/Settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>

namespace {

const std::atomic<bool> never = false;

QByteArray utf16(const QString &text)
{
    QByteArray bytes("\xFF\xFE");
    for (const QChar character : text)
        bytes.append(static_cast<char>(character.unicode() & 0xFF)).append(static_cast<char>(character.unicode() >> 8));
    return bytes;
}

FilenameParameter parameter(const char *title, FilenameParameter::Kind kind, const QString &value)
{
    return FilenameParameter({{recordkey::title, QString(title)},
                              {recordkey::kind, static_cast<qlonglong>(kind)},
                              {recordkey::value, value},
                              {recordkey::defaultValue, kind == FilenameParameter::Kind::Choice ? "Film,Spot" : ""}});
}

class Host : public CreationHost
{
public:
    void startProcessing() override { calls << "start"; }
    void finishProcessing() override { calls << "finish"; }
    void incrementDynamicValues() override { calls << "increment"; }
    void reveal(const QString &) override { calls << "reveal"; }
    void quitIfWanted() override { calls << "quit"; }
    QStringList calls;
};

} // namespace

class TestBatch : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_work;

    ProjectBatch batchOf(const QByteArray &table) const
    {
        const BatchBase base{[this](const QString &name) -> platform::Result<ProjectRequest> {
                                 if (name == "none")
                                     return platform::Outcome::failure(platform::Cause::Invalid, {},
                                                                       "no such template");
                                 ProjectRequest request;
                                 request.templateName = name;
                                 request.templateFiles = m_work->filePath(name + "/Files");
                                 request.parameters = storedParameters();
                                 request.separator = "_";
                                 request.location = m_work->filePath("out");
                                 request.rules = std::make_shared<TemplateRules>(
                                     name == "ruled" ? TemplateRules{.fillsNames = true} : TemplateRules());
                                 return request;
                             },
                             "plain"};
        ProjectBatch batch(*readTable(table), base);
        batch.lookAtDisk(never);
        return batch;
    }
    static QStringList shown(const ProjectBatch &batch)
    {
        QStringList lines;
        for (const BatchRow &row : batch.rows()) {
            QString line = row.project;
            for (const CellProblem &problem : row.problems)
                line += QStringLiteral(" !%1 %2").arg(problem.column).arg(problem.sentence.left(30));
            lines << line;
        }
        return lines;
    }

private Q_SLOTS:
    void init()
    {
        m_work = std::make_unique<QTemporaryDir>();
        writeFile(m_work->filePath("plain/Files/Template.txt"), "x");
        writeFile(m_work->filePath("ruled/Files/{Kind} {Client}.txt"), "x");
        QVERIFY(platform::makeFolders(m_work->filePath("out")).ok());
        using Kind = FilenameParameter::Kind;
        QVERIFY(changeParameters([](const FilenameParameters &) {
                    return FilenameParameters{parameter("Client", Kind::Text, ""),
                                              parameter("Job", Kind::Counter, "007"),
                                              parameter("Kind", Kind::Choice, "Film")};
                }).ok());
    }

    void tables_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("expected"); // cells with | and rows with /, or the begin of what is said behind "!"
        const auto row = [](const char *name, const QByteArray &bytes, const char *expected) {
            QTest::newRow(name) << bytes << QString::fromUtf8(expected);
        };
        row("commas", "A,B\n1,2\n", "A|B/1|2");
        row("semicolons and CRLF", "A;B\r\n1,5;2\r\n", "A|B/1,5|2");
        row("tabs, old line ends", "A\tB\r1\t2", "A|B/1|2");
        row("sep=", "sep=;\r\nA;B\r\n1;2", "A|B/1|2");
        row("mark",
            "\xEF\xBB\xBF"
            "A,B\n\xC3\xA4,2",
            "A|B/ä|2");
        row("UTF-16", utf16("A\tB\r\nä\t€"), "A|B/ä|€");
        row("Windows-1252", "A;B\n\xE4;\x80 \x96\n", "A|B/ä|€ –");
        row("quotes", "\"A\",\"B \"\"x\"\"\"\n\"1,\n2\", 3 \n", "A|B \"x\"/1,\n2|3");
        row("empty rows, missing cells", "\n,\nA,B\n\n,,\n1\n", "A|B/1|");
        row("one column", "A\n1\n2", "A/1/2");
        row("more cells", "A,B\n1,2,3", "A|B/1|2|3");
        row("blank columns behind", "A,B,,\n1,2,,\nA,B,,", "A|B/1|2/A|B");
        row("open to the end", "A,B\n1,2\n\"3,\n4", "!The quotes that are opened in line 3 ");
        row("twice", "A,A\n1,2", "!Two columns are called “A”");
        row("nothing", "", "!The table has no rows");
        row("titles only", "A,B\n", "!The table has no rows");
        row("no text", QByteArray("A\0B", 3), "!This is no table of text");
        row("too many", "A\n" + QByteArray("1\n").repeated(mostTableRows + 1), "!The table has more than");
    }
    void tables()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, expected);
        const auto table = readTable(bytes);
        if (expected.startsWith('!')) {
            QVERIFY2(!table && table.outcome().sentence().startsWith(expected.mid(1)),
                     qPrintable(table.outcome().sentence()));
            return;
        }
        QVERIFY(table);
        QStringList rows{table->columns.join('|')};
        for (const ProjectTable::Row &row : table->rows)
            rows << row.cells.join('|');
        QCOMPARE(rows.join('/'), expected);
    }

    void rowsAreCountedOn()
    {
        writeFile(m_work->filePath("out/Taken_010_Film/x"));
        const ProjectBatch batch =
            batchOf("Client,Job,Kind,Note,Template\nA,,,,\nB,,Spot,x,\nC,,Opera,,\nD,020,,,\nE,,,,\n"
                    "d,020,,,\nF,,,,none\n/,,,,ruled\n,,,,\nTaken,010,,,\nG,,,,ruled\n");
        QCOMPARE(shown(batch), QStringList({"A_007_Film", "B_008_Spot", "C_009_Film !2 “Opera” is not among the choic",
                                            "D_020_Film", "E_021_Film", "d_020_Film !-1 Line 5 makes the same project:",
                                            " !4 no such template", "_022_Film !-1 {Kind} {Client}.txt: {Client} ",
                                            "Taken_010_Film !-1 A project with this name alrea", "G_022_Film"}));
        QCOMPARE(batch.unknownColumns(), QStringList{"Note"});
        QCOMPARE(batch.problemRows(), 5);
        QCOMPARE(batch.requestOf(9).relativePath(), "G_022_Film");
    }

    void allOfThem()
    {
        const ProjectBatch batch = batchOf("Client,Template\nA,\nB,ruled\nC,\n");
        Host host;
        QStringList made;
        BatchResult result =
            BatchCreation(host, BatchManner::AllOrNone).run(batch, [&](qsizetype row, const CreationResult &one) {
                made << QString::number(row) + one.request.relativePath();
                QVERIFY(one.ok());
            });
        QCOMPARE(made, QStringList({"0A_007_Film", "1B_008_Film", "2C_009_Film"}));
        QCOMPARE(host.calls, QStringList({"start", "increment", "reveal", "quit", "finish"}));
        QVERIFY(platform::kindOf(m_work->filePath("out/B_008_Film/Film B.txt")) == platform::FileKind::File);
        QCOMPARE(storedParameters()[1].value(), "010");
        // One undo, numbers and all.
        const QList<Manifest> known = recentProjects();
        QCOMPARE(known.size(), 3);
        const QList<Manifest> together = ::batchOf(known[1], known);
        QCOMPARE(together.size(), 3);
        platform::CopyMonitor monitor;
        for (const UndoResult &undone : undoBatch(together, monitor))
            QVERIFY(undone.outcome.ok() && undone.kept.isEmpty());
        QVERIFY(QDir(m_work->filePath("out")).isEmpty());
        QCOMPARE(storedParameters()[1].value(), "007");
        QVERIFY(recentProjects().isEmpty());
    }

    /// What has come since the table was looked at keeps its place, and nothing of the others stays.
    void orNone()
    {
        const ProjectBatch batch = batchOf("Client\nA\nB\nC\n");
        writeFile(m_work->filePath("out/B_008_Film/mine"));
        Host host;
        const BatchResult none =
            BatchCreation(host, BatchManner::AllOrNone).run(batch, [](qsizetype, const CreationResult &) {});
        QVERIFY(none.takenBack && none.failed == 1 && none.left == 1 && none.made.isEmpty());
        QCOMPARE(QDir(m_work->filePath("out")).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList{"B_008_Film"});
        QCOMPARE(readFile(m_work->filePath("out/B_008_Film/mine")), QByteArray());
        QCOMPARE(storedParameters()[1].value(), "007");
    }

    void orTheRest()
    {
        const ProjectBatch batch = batchOf("Client,Kind\nA,\nB,Opera\nC,\n");
        Host host;
        const BatchResult rest =
            BatchCreation(host, BatchManner::GoOn).run(batch, [](qsizetype, const CreationResult &) {});
        QVERIFY(!rest.takenBack && rest.left == 1 && rest.failed == 0);
        QCOMPARE(rest.made.size(), 2);
        QCOMPARE(rest.made[1].name(), "C_008_Film"); // as it was shown
        QVERIFY(!host.calls.contains("quit"));
    }

    /// A batch is one of the creations that are remembered, however large it is.
    void isRememberedAsOne()
    {
        QByteArray table = "Client\n";
        for (int i = 0; i < rememberedProjects + 20; ++i)
            table += 'P' + QByteArray::number(i) + '\n';
        Host host;
        const BatchResult result =
            BatchCreation(host, BatchManner::AllOrNone).run(batchOf(table), [](qsizetype, const CreationResult &) {});
        QCOMPARE(result.made.size(), rememberedProjects + 20);
        const QList<Manifest> known = recentProjects();
        QCOMPARE(::batchOf(known.constFirst(), known).size(), rememberedProjects + 20);
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestBatch)
#include "test_batch.moc"
