// Whose number is it: what a project asked for, what is stored by now, and what is stored afterwards.
#include "creation/ProjectRequest.h"
#include "harness/Records.h"
#include "harness/TemporaryHome.h"

#include <QTest>

namespace {

FilenameParameter counter(const QString &title, const QString &value)
{
    return FilenameParameter(record({{"title", title}, {"type", 2}, {"val", value}}));
}

FilenameParameter text(const QString &title, const QString &value, const QVariantMap &more = {})
{
    QVariantMap entries{{"title", title}, {"val", value}};
    entries.insert(more);
    return FilenameParameter(record(entries));
}

QStringList valuesOf(const FilenameParameters &list)
{
    QStringList values;
    for (const FilenameParameter &parameter : list)
        values << parameter.title() + '=' + parameter.value();
    return values;
}

} // namespace

class TestProjectRequest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers_data()
    {
        QTest::addColumn<FilenameParameters>("shown");
        QTest::addColumn<QString>("typed"); // for the first row, null: nothing
        QTest::addColumn<FilenameParameters>("stored");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("after");
        using List = FilenameParameters;
        const List job41{text("Client", "Acme"), counter("Job", "041")};
        QTest::newRow("nobody came between")
            << job41 << QString() << job41 << "Acme_041" << QStringList{"Client=Acme", "Job=042"};
        QTest::newRow("another has taken it; the client is still this project's")
            << job41 << QString() << List{text("Client", "Zulu"), counter("Job", "042")} << "Acme_042"
            << QStringList{"Client=Zulu", "Job=043"};
        QTest::newRow("rows were moved and added")
            << job41 << QString() << List{counter("Job", "050"), counter("Reel", "1"), text("Client", "Acme")}
            << "Acme_050" << QStringList{"Job=051", "Reel=1", "Client=Acme"};
        QTest::newRow("the counter was taken out of the list")
            << job41 << QString() << List{text("Client", "Acme")} << "Acme_041" << QStringList{"Client=Acme"};
        QTest::newRow("the counter has become a text")
            << job41 << QString() << List{text("Client", "Acme"), text("Job", "9")} << "Acme_041"
            << QStringList{"Client=Acme", "Job=9"};
        QTest::newRow("two of one title")
            << List{counter("N", "1"), counter("N", "5")} << QString() << List{counter("N", "1"), counter("N", "6")}
            << "1_6" << QStringList{"N=2", "N=7"};
        QTest::newRow("a typed number stays, and the next follows it")
            << List{counter("Job", "041")} << "100" << List{counter("Job", "042")} << "100" << QStringList{"Job=101"};
        QTest::newRow("a typed text without a default is kept")
            << List{text("T", "")} << "x" << List{text("T", "")} << "x" << QStringList{"T=x"};
        QTest::newRow("one with a default is this project's alone")
            << List{text("T", "d", {{"defaultVal", "d"}})} << "x" << List{text("T", "w", {{"defaultVal", "d"}})} << "x"
            << QStringList{"T=w"};
    }
    void numbers()
    {
        QFETCH(FilenameParameters, shown);
        QFETCH(QString, typed);
        QFETCH(FilenameParameters, stored);
        ProjectRequest request{shown, {}, "_", "Film", "/library/Film.tzt/Files", "/projects"};
        if (!typed.isNull())
            request = withTypedValue(request, 0, typed, false);
        request = withNextNumbers(request, stored);
        QTEST(request.relativePath(), "path");
        QCOMPARE(request.destination(), "/projects/" + request.relativePath());
        const FilenameParameters after = withNumbersTaken(stored, request);
        QTEST(valuesOf(after), "after");
        // Given up: the numbers are free again, but for those that another has moved on from.
        const FilenameParameters returned = withNumbersReturned(after, request);
        const FilenameParameters another = withNumbersTaken(after, withNextNumbers(request, after));
        for (qsizetype row = 0; row < stored.size(); ++row) {
            if (stored[row].kind() != FilenameParameter::Kind::Counter || typed == "100")
                continue;
            QCOMPARE(returned[row].value(), stored[row].value());
            QCOMPARE(withNumbersReturned(another, request)[row].value(), another[row].value());
        }
    }

    void whatIsTypedEntersTheHistory()
    {
        const FilenameParameters list{text("T", "old", {{"saveHistory", true}, {"history", QVariantList{"old"}}})};
        ProjectRequest request{list, {}, "_", {}, {}, {}};
        request = withTypedValue(request, 0, "new!", true);
        QCOMPARE(request.relativePath(), "new");
        const FilenameParameters elsewhere{text("T", "b", {{"saveHistory", true}, {"history", QVariantList{"b"}}})};
        QCOMPARE(withNumbersTaken(elsewhere, request)[0].history(), QStringList({"new", "b"}));
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestProjectRequest)
#include "test_project_request.moc"
