// The desktop's list of recent files: other programs' entries lie in it, and one for each folder is enough.
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/RecentFiles.h"
#include "platform/files/FileTree.h"

#include <QCoreApplication>
#include <QTest>
#include <QXmlStreamReader>
#include <sys/stat.h>
#include <unistd.h>

using namespace platform;

namespace {

const QByteArray head = "<?xml version=\"1.0\"?>\n<!-- mine -->\n<xbel version=\"1.0\"\n      xmlns:bookmark=\"b\" "
                        "xmlns:mime='m'\n>\n";

/// As another program writes it.
QByteArray entry(const QByteArray &address)
{
    return "  <bookmark href=\"" + address +
           "\" added=\"2026-01-01T00:00:00Z\">\n    <title>a &gt; b</title>\n"
           "    <info><metadata owner=\"http://freedesktop.org\"><bookmark:applications>"
           "<bookmark:application name=\"gedit\" exec=\"&apos;gedit %u&apos;\"/></bookmark:applications></metadata>"
           "</info>\n  </bookmark>\n";
}

QByteArray with(const QByteArray &list, const QString &folder)
{
    return withRecentFolder(list, folder, QDateTime::fromSecsSinceEpoch(1'800'000'000));
}

/// The folders of a list, as a reader of XML finds them.
QStringList foldersIn(const QByteArray &list)
{
    QStringList folders;
    QXmlStreamReader reader(list);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.qualifiedName() != u"bookmark")
            continue;
        const QByteArray address = reader.attributes().value("href").toLatin1();
        folders << fromNative(QByteArray::fromPercentEncoding(address)).mid(7);
    }
    if (reader.hasError())
        return {reader.errorString()};
    return folders;
}

} // namespace

class TestRecentFiles : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_data;
    QString list() const { return m_data->filePath("recently-used.xbel"); }

private Q_SLOTS:
    void init()
    {
        m_data = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", m_data->path().toUtf8());
    }
    void cleanup()
    {
        qunsetenv("XDG_DATA_HOME");
        QVERIFY(removeTree(m_data->path()).ok());
    }

    void eachFolderStandsOnce_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QByteArray>("elsewhere"); // as the toolkit of other programs spells the same folder
        QTest::newRow("plain") << "/p/Acme" << QByteArray("file:///p/Acme");
        QTest::newRow("marks of XML") << "/p/\"A\" & <B>" << QByteArray("file:///p/%22A%22%20&amp;%20%3CB%3E");
        QTest::newRow("apostrophe and brackets") << "/p/O'Neil (2)" << QByteArray("file:///p/O&apos;Neil%20(2)");
        QTest::newRow("percent and letters") << "/p/100% Größe" << QByteArray("file:///p/100%25%20Gr%C3%B6%C3%9Fe");
        QTest::newRow("no UTF-8") << fromNative("/p/h\xff") << QByteArray("file:///p/h%FF");
        QTest::newRow("marks of addresses") << "/p/a#b?c;d+e" << QByteArray("file:///p/a%23b%3Fc;d+e");
    }
    void eachFolderStandsOnce()
    {
        QFETCH(QString, folder);
        QFETCH(QByteArray, elsewhere);
        const QByteArray others = entry("file:///p/Acme%202") + entry("file:///p");
        const QByteArray before = head + others + "</xbel>\n";
        const QByteArray once = with(before, folder);
        QVERIFY(once.startsWith(head + others) && once.endsWith("</xbel>\n"));
        QCOMPARE(foldersIn(once), (QStringList{"/p/Acme 2", "/p", folder}));
        QCOMPARE(with(once, folder), once); // however often it is used, the list does not grow
        const QByteArray known = with(head + entry(elsewhere) + others + "</xbel>\n", folder);
        QCOMPARE(foldersIn(known), (QStringList{"/p/Acme 2", "/p", folder}));
        QVERIFY(known.contains(others));
    }

    void whatIsNoListStays_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut off") << head + entry("file:///p/Acme");
        QTest::newRow("another document") << QByteArray("<html><xbel></xbel></html>");
        QTest::newRow("something behind it") << head + "</xbel><xbel></xbel>";
        QTest::newRow("bytes") << QByteArray("\xFF\xFE\0<", 4);
    }
    void whatIsNoListStays()
    {
        QFETCH(QByteArray, bytes);
        writeFile(list(), bytes);
        rememberForDesktop("/p/Acme");
        QCOMPARE(readFile(list()), bytes);
    }

    void theFile()
    {
        qputenv("XDG_DATA_HOME", m_data->filePath("new/data").toUtf8());
        const QString file = m_data->filePath("new/data/recently-used.xbel");
        rememberForDesktop("/p/Acme");
        rememberForDesktop("/p/Other");
        rememberForDesktop("/p/Acme");
        QCOMPARE(foldersIn(readFile(file)), (QStringList{"/p/Other", "/p/Acme"}));
    }

    /// By the rules of the desktop a variable that is empty or relative counts as none; its bytes are no text.
    void whereItLies_data()
    {
        QTest::addColumn<QByteArray>("variable");
        QTest::addColumn<QByteArray>("expected"); // below the home folder
        QTest::newRow("empty") << QByteArray("") << QByteArray(".local/share");
        QTest::newRow("relative") << QByteArray("data") << QByteArray(".local/share");
        QTest::newRow("no UTF-8") << QByteArray("d\xff") << QByteArray("d\xff");
    }
    void whereItLies()
    {
        QFETCH(QByteArray, variable);
        QFETCH(QByteArray, expected);
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", m_data->path().toUtf8());
        const QByteArray own = toNative(m_data->path()) + '/';
        qputenv("XDG_DATA_HOME", variable.startsWith('d') && variable != "data" ? own + variable : variable);
        rememberForDesktop("/p/Acme");
        qputenv("HOME", home);
        QCOMPARE(foldersIn(readFile(fromNative(own + expected + "/recently-used.xbel"))), QStringList{"/p/Acme"});
    }

    void aFolderThatCannotBeWritten()
    {
        if (geteuid() == 0)
            QSKIP("To the super-user permissions mean nothing.");
        const QByteArray before = head + "</xbel>\n";
        writeFile(list(), before);
        QCOMPARE(chmod(toNative(m_data->path()).constData(), 0500), 0);
        rememberForDesktop("/p/Acme");
        QCOMPARE(chmod(toNative(m_data->path()).constData(), 0700), 0);
        QCOMPARE(readFile(list()), before);
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestRecentFiles)
#include "test_recent_files.moc"
