// Archives: a round trip loses nothing, and no entry lands outside the destination, however it is written.
#include "platform/AppleDouble.h"
#include "platform/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/FinderInfo.h"
#include "platform/NativePath.h"
#include "platform/ZipFormat.h"
#include "support/TemporaryHome.h"

#include <QCoreApplication>
#include <QTest>
#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace platform;

namespace {

/// A name that ends in "/" is a folder, one with a target a link, anything else a file with the contents "evil".
using Item = QPair<QByteArray, QByteArray>;

void writeArchive(const QString &path, const QList<Item> &items)
{
    archive *zip = archive_write_new();
    archive_write_set_format_zip(zip);
    archive_write_set_options(zip, "hdrcharset=UTF-8");
    archive_write_open_filename(zip, toNative(path).constData());
    for (const auto &[name, target] : items) {
        archive_entry *entry = archive_entry_new();
        const bool folder = name.endsWith('/');
        archive_entry_set_pathname_utf8(entry, name.constData());
        archive_entry_set_filetype(entry, folder ? AE_IFDIR : target.isEmpty() ? AE_IFREG : AE_IFLNK);
        archive_entry_set_perm(entry, folder ? 0755 : 06755);
        if (!target.isEmpty())
            archive_entry_set_symlink_utf8(entry, target.constData());
        const bool label = name.startsWith("__MACOSX");
        const QByteArray contents = folder || !target.isEmpty() ? "" : label ? appleDoubleWithFlags(12) : "evil";
        archive_entry_set_size(entry, contents.size());
        archive_write_header(zip, entry);
        archive_write_data(zip, contents.constData(), static_cast<size_t>(contents.size()));
        archive_entry_free(entry);
    }
    archive_write_free(zip);
}

QStringList namesBelow(const QString &folder, const QString &below = {})
{
    QStringList names;
    for (const FolderEntry &entry : listFolder(folder).value_or(QList<FolderEntry>())) {
        names.append(below + entry.name);
        if (entry.kind == FileKind::Folder)
            names += namesBelow(joined(folder, entry.name), below + entry.name + u'/');
    }
    return names;
}

} // namespace

class TestZip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home.emplace(); }

    void comesBackWhole()
    {
        const QString name = QStringLiteral("Gr\u00F6\u00DFe \U0001F600.txt");
        const QByteArray large(300'000, '\x5A');
        {
            ZipWriter zip(m_home->file("a.zip"));
            zip.addFolder("P.tzt", bundleBit | 4);
            zip.addFolder("P.tzt/empty", 0);
            zip.addFile("P.tzt/" + name, large, 10);
            zip.addFile("P.tzt/nothing", {}, 14);
            zip.addFile("bare/parents/x", "x", 0);
            QVERIFY(zip.finish());
        }
        // The user's library may lie behind a link of the user's own.
        QVERIFY(makeFolders(m_home->file("real")).ok());
        symlink("real", toNative(m_home->file("out")).constData());
        const ExtractReport report = extractZip(m_home->file("a.zip"), m_home->file("out"));
        QVERIFY2(report.ok(), qPrintable(report.problem));
        QCOMPARE(namesBelow(m_home->file("real")), QStringList({"bare", "bare/parents", "bare/parents/x", "P.tzt",
                                                                "P.tzt/empty", "P.tzt/" + name, "P.tzt/nothing"}));
        QVERIFY(readFile(m_home->file("real/P.tzt/" + name)) == large);
        QCOMPARE(flagsWordOf(m_home->file("real/P.tzt")), bundleBit | 4);
        QCOMPARE(flagsWordOf(m_home->file("real/P.tzt/" + name)), 10);
        QCOMPARE(flagsWordOf(m_home->file("real/P.tzt/nothing")), 14);
        QCOMPARE(flagsWordOf(m_home->file("real/P.tzt/empty")), 0);
    }

    void keepsInside_data()
    {
        QTest::addColumn<QList<Item>>("items");
        QTest::addColumn<QString>("refused");
        QTest::newRow("up on the way") << QList<Item>{{"a/../../evil", ""}} << "a/../../evil";
        QTest::newRow("up, as a folder") << QList<Item>{{"../evil/", ""}} << "../evil/";
        QTest::newRow("absolute") << QList<Item>{{"/tmp/evil", ""}} << "/tmp/evil";
        QTest::newRow("absolute link") << QList<Item>{{"l", "/tmp"}} << "l";
        QTest::newRow("link out and in again") << QList<Item>{{"l", "../out/x"}} << "l";
        QTest::newRow("through a good link") << QList<Item>{{"d/", ""}, {"l", "d"}, {"l/evil", ""}} << "l/evil";
        QTest::newRow("by way of a link")
            << QList<Item>{{"a/b/", ""}, {"a/b/d", "../.."}, {"a/b/l", "d/../outside"}} << "a/b/l";
        QTest::newRow("one that becomes a link later")
            << QList<Item>{{"a/b/", ""}, {"a/b/l", "d/../outside"}, {"a/b/d", "../.."}} << "a/b/l";
        QTest::newRow("label up") << QList<Item>{{"__MACOSX/../._outside", ""}} << "";
        QTest::newRow("label beside a link that was there") << QList<Item>{{"__MACOSX/there/._x", ""}} << "";
    }
    void keepsInside()
    {
        QFETCH(QList<Item>, items);
        const QString out = m_home->file("out");
        writeFile(m_home->file("outside/x"), "x");
        QVERIFY(makeFolders(out).ok());
        symlink("../outside", toNative(out + "/there").constData());
        writeArchive(m_home->file("a.zip"), items + QList<Item>{{"last", ""}});
        const ExtractReport report = extractZip(m_home->file("a.zip"), out);
        QVERIFY2(report.problem.isNull(), qPrintable(report.problem));
        QTEST(report.refused.join('\n'), "refused");
        QCOMPARE(readFile(out + "/last"), "evil"); // the rest goes on
        struct stat info
        {
        };
        stat(toNative(out + "/last").constData(), &info);
        QCOMPARE(info.st_mode & 07777, 0755u);
        QCOMPARE(namesBelow(m_home->path()).filter("evil"), QStringList());
        QCOMPARE(kindOf("/tmp/evil"), FileKind::Missing);
        QCOMPARE(flagsWordOf(m_home->file("outside")) + flagsWordOf(m_home->file("outside/x")), 0);
    }

    void takesLabelsFromAnywhereInTheArchive()
    {
        writeArchive(m_home->file("a.zip"), {{"__MACOSX/", ""},
                                             {"__MACOSX/._before", ""},
                                             {"before", ""},
                                             {"d/", ""},
                                             {"__MACOSX/._d", ""},
                                             {"__MACOSX/d/._missing", ""}});
        const QString out = m_home->file("out");
        QVERIFY(makeFolders(out).ok());
        QVERIFY(extractZip(m_home->file("a.zip"), out).ok());
        QCOMPARE(namesBelow(out), QStringList({"before", "d"}));
        QCOMPARE(flagsWordOf(out + "/before"), 12);
        QCOMPARE(flagsWordOf(out + "/d"), 12);
    }

    void saysWhyItEnded()
    {
        QVERIFY(!extractZip(m_home->file("missing.zip"), m_home->path()).ok());
        ZipWriter good(m_home->file("cut.zip"));
        good.addFile("x", QByteArray(100'000, 'x'), 0);
        QVERIFY(good.finish());
        writeFile(m_home->file("cut.zip"), readFile(m_home->file("cut.zip")).left(40));
        QVERIFY(!extractZip(m_home->file("cut.zip"), m_home->path()).ok());
        ZipWriter nowhere(m_home->path() + "/missing/a.zip");
        nowhere.addFile("x", "x", 0);
        QVERIFY(!nowhere.finish());
    }

private:
    std::optional<TemporaryHome> m_home;
};

TESSARO_TEST_MAIN(QCoreApplication, TestZip)
#include "test_zip.moc"
