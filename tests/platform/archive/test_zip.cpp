// Archives: a round trip loses nothing, and no entry lands outside the destination, however it is written.
#include "harness/TemporaryHome.h"
#include "platform/archive/AppleDouble.h"
#include "platform/archive/ZipFormat.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/FinderInfo.h"

#include <QCoreApplication>
#include <QTest>
#include <archive.h>
#include <archive_entry.h>
#include <fcntl.h>
#include <random>
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

QByteArray noise(int size)
{
    QByteArray bytes(size, '\0');
    std::mt19937 random(7);
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    return bytes;
}

QStringList namesBelow(const QString &folder, const QString &below = {})
{
    QStringList names;
    for (const FolderEntry &entry : listFolder(folder).valueOr({})) {
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
            QVERIFY(zip.finish().ok());
        }
        // The user's library may lie behind a link of the user's own.
        QVERIFY(makeFolders(m_home->file("real")).ok());
        symlink("real", toNative(m_home->file("out")).constData());
        const ExtractReport report = extractZip(m_home->file("a.zip"), m_home->file("out"));
        QVERIFY2(report.ok(), qPrintable(report.outcome.description()));
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
        QTest::newRow("link out, hidden by dots") << QList<Item>{{"./././l", "../outside"}} << "./././l";
        QTest::newRow("link out, hidden by slashes") << QList<Item>{{"a//b", "../../outside"}} << "a//b";
        QTest::newRow("absolute link") << QList<Item>{{"l", "/tmp"}} << "l";
        QTest::newRow("link out and in again") << QList<Item>{{"l", "../out/x"}} << "l";
        QTest::newRow("through a good link") << QList<Item>{{"d/", ""}, {"l", "d"}, {"l/evil", ""}} << "l/evil";
        QTest::newRow("by way of a link")
            << QList<Item>{{"a/b/", ""}, {"a/b/d", "../.."}, {"a/b/l", "d/../outside"}} << "a/b/l";
        QTest::newRow("one that becomes a link later")
            << QList<Item>{{"a/b/", ""}, {"a/b/l", "d/../outside"}, {"a/b/d", "../.."}} << "a/b/l";
        QTest::newRow("a file where a folder is to be") << QList<Item>{{"a", ""}, {"a/evil", ""}} << "a/evil";
        QTest::newRow("a folder where a file is") << QList<Item>{{"a", ""}, {"a/", ""}} << "a";
        QTest::newRow("the destination itself") << QList<Item>{{"./", ""}} << "";
        QTest::newRow("the same twice") << QList<Item>{{"a", ""}, {"a", ""}} << "a";
        QTest::newRow("what stands there") << QList<Item>{{"there", ""}} << "there";
        const QString deep = QString("a/").repeated(32'000) + 'x';
        QTest::newRow("deeper than anything") << QList<Item>{{deep.toUtf8(), ""}} << deep;
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
        QVERIFY2(report.outcome.ok(), qPrintable(report.outcome.description()));
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

    /// Packed from disk and unpacked again: nothing is missing, and what cannot be packed is named.
    void packsWhatLiesOnDisk()
    {
        const QString tree = m_home->file("Tree \u00FC");
        const QString odd = fromNative("bad\377\n.txt");
        writeFile(tree + "/script.sh", "#!/bin/sh\n");
        writeFile(tree + '/' + odd, "odd");
        writeFile(tree + "/noise", noise(300'000));
        QVERIFY(makeFolders(tree + "/empty").ok() && makeFolders(tree + "/closed").ok());
        QVERIFY(setFlagsWord(tree + "/noise", 6, 0x000E) && setFlagsWord(tree + "/empty", 0x4C, 0xFFFF));
        QVERIFY(symlink("../script.sh", toNative(tree + "/empty/link").constData()) == 0);
        QVERIFY(mkfifo(toNative(tree + "/fifo").constData(), 0600) == 0);
        chmod(toNative(tree + "/script.sh").constData(), 0750);
        chmod(toNative(tree + "/closed").constData(), 0500);
        chmod(toNative(tree + "/noise").constData(), 0444); // a label on what its owner may only read
        const timespec times[2] = {{0, UTIME_NOW}, {981'173'106, 0}};
        for (const char *dated : {"/script.sh", "/empty"})
            utimensat(AT_FDCWD, toNative(tree + dated).constData(), times, 0);

        const CompressReport packed = compressZip(tree, m_home->file("a.zip"));
        QVERIFY2(packed.outcome.ok(), qPrintable(packed.outcome.description()));
        QCOMPARE(packed.skipped, QStringList("Tree \u00FC/fifo"));
        QCOMPARE(packed.renamed, QStringList("Tree \u00FC/" + odd));
        QVERIFY(makeFolders(m_home->file("out")).ok());
        const ExtractReport report = extractZip(m_home->file("a.zip"), m_home->file("out"));
        QVERIFY2(report.ok(), qPrintable(report.outcome.description() + report.refused.join(' ')));
        QVERIFY(removeTree(tree + "/fifo").ok());
        const QString back = m_home->file("out/Tree \u00FC");
        QVERIFY(moveItem(tree + '/' + odd, tree + '/' + forDisplay(odd)).ok());
        QCOMPARE(namesBelow(back), namesBelow(tree));
        for (const QString &name : namesBelow(tree)) {
            struct stat before;
            struct stat after;
            QCOMPARE(lstat(toNative(joined(tree, name)).constData(), &before), 0);
            QCOMPARE(lstat(toNative(joined(back, name)).constData(), &after), 0);
            QCOMPARE(after.st_mode, before.st_mode);
            QCOMPARE(after.st_mtim.tv_sec / 2, before.st_mtim.tv_sec / 2);
            QCOMPARE(linkTarget(joined(back, name)), linkTarget(joined(tree, name)));
            QCOMPARE(readFile(joined(back, name)), readFile(joined(tree, name)));
            QCOMPARE(flagsWordOf(joined(back, name)) & 0x000E, flagsWordOf(joined(tree, name)) & 0x000E);
        }
        for (const QString &top : {tree, back})
            chmod(toNative(top + "/closed").constData(), 0700);
    }

    void manyEntries()
    {
        ZipWriter zip(m_home->file("a.zip"));
        for (int i = 0; i < 66'000; ++i)
            zip.addFile(QStringLiteral("d/%1").arg(i), {}, 0);
        QVERIFY(zip.finish().ok());
        QVERIFY(makeFolders(m_home->file("out")).ok());
        QVERIFY(extractZip(m_home->file("a.zip"), m_home->file("out")).ok());
        QCOMPARE(listFolder(m_home->file("out/d"))->size(), 66'000);
    }

    /// Whatever is wrong with it: it is said, and nothing of the archive stays behind.
    void leavesNothingOfABadArchive()
    {
        {
            ZipWriter zip(m_home->file("good.zip"));
            zip.addFile("first", "good", 0);
            zip.addFile("second", noise(50'000), 2);
            zip.addFile("third", QByteArray(1000, 'x'), 0);
            QVERIFY(zip.finish().ok());
        }
        const QByteArray good = readFile(m_home->file("good.zip"));
        QList<QByteArray> bad;
        for (const double part : {0.0001, 0.3, 0.7, 0.95, 0.999})
            bad.append(good.first(static_cast<qsizetype>(static_cast<double>(good.size()) * part)));
        const auto patched = [&](qsizetype at, const QByteArray &bytes) {
            QByteArray copy = good;
            copy.replace(at, bytes.size(), bytes);
            bad.append(copy);
        };
        patched(20'000, "\x55\xAA\x55");                              // the checksum is wrong
        patched(good.indexOf("PK\3\4", 4) + 6, QByteArray("\11", 1)); // encrypted, says the entry
        QVERIFY(makeFolders(m_home->file("out")).ok());
        for (const QByteArray &bytes : bad) {
            writeFile(m_home->file("bad.zip"), bytes);
            const ExtractReport report = extractZip(m_home->file("bad.zip"), m_home->file("out"));
            QVERIFY2(!report.outcome.ok(), qPrintable(QString::number(bad.indexOf(bytes))));
            QCOMPARE(namesBelow(m_home->file("out")), QStringList());
        }
        // A trap: a little more than a gigabyte from a megabyte.
        writeFile(m_home->file("zeros"), {});
        QCOMPARE(truncate(toNative(m_home->file("zeros")).constData(), (off_t{1} << 30) + 1), 0);
        QVERIFY(compressZip(m_home->file("zeros"), m_home->file("trap.zip")).outcome.ok());
        QVERIFY(extractZip(m_home->file("trap.zip"), m_home->file("out")).outcome.description().contains("honest"));
        QCOMPARE(namesBelow(m_home->file("out")), QStringList());
        QVERIFY(!extractZip(m_home->file("missing.zip"), m_home->file("out")).ok());
        QVERIFY(!compressZip(m_home->file("missing"), m_home->file("x.zip")).outcome.ok());
        QVERIFY(!compressZip(m_home->file("out"), m_home->path() + "/missing/x.zip").outcome.ok());
    }

private:
    std::optional<TemporaryHome> m_home;
};

TESSARO_TEST_MAIN(QCoreApplication, TestZip)
#include "test_zip.moc"
