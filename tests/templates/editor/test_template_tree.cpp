// The tree of a template in memory: what is read, what is shown of it, and what a drop on it means.
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/FinderInfo.h"
#include "support/VTFileManager.h"
#include "templates/editor/TemplateTreeModel.h"
#include "ui/VTImageTextCell.h"
#include "ui/ValueCellDelegate.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QColor>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <random>
#include <unistd.h>

using platform::joined;

namespace {

QStringList drawn(const TemplateNodes &nodes, const QString &indent = {})
{
    QStringList lines;
    for (const auto &node : nodes) {
        lines << indent + node->name() + (node->isFolderItem() ? "/" : "");
        if (node->isFolderItem())
            lines << drawn(static_cast<const VTFolderItem &>(*node).children(), indent + ' ');
    }
    return lines;
}

const VTFolderItem &folder(const TemplateNodes &nodes, std::size_t at)
{
    return static_cast<const VTFolderItem &>(*nodes[at]);
}

} // namespace

class TestTemplateTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(platform::removeTree(m_files).ok() && platform::makeFolders(m_files).ok()); }

    void readsWhatIsToBeShown()
    {
        for (const char *name : {"b.txt", "A/x", ".DS_Store", ".hidden/.DS_Store", ".hidden/seen",
                                 "Show.app/Contents/x", "bad\377name", "A/line\nend", "...."})
            writeFile(joined(m_files, platform::fromNative(name)), "x");
        QVERIFY(platform::makeFolders(joined(m_files, "marked/inside")).ok());
        QVERIFY(platform::setFlagsWord(joined(m_files, "marked"), platform::bundleBit, platform::bundleBit));
        QVERIFY(platform::makeFolders(joined(m_files, "empty")).ok());
        const auto link = [&](const char *target, const char *name) {
            QCOMPARE(symlink(target, platform::toNative(joined(m_files, name)).constData()), 0);
        };
        link("A", "linked"); // read through
        link("..", "A/up");  // back up the tree, and further up than its root: shown, not entered
        link("../../..", "A/out");
        link("nowhere", "dangling");
        QCOMPARE(drawn(nodesInFolder(m_files, nullptr)),
                 QStringList({".hidden/", " seen", "A/", " line\nend", " out/", " up/", " x", "b.txt",
                              platform::fromNative("bad\377name"), "dangling", "empty/", "linked/", " line\nend",
                              " out/", " up/", " x", "marked", "Show.app"}));
        QVERIFY(nodesInFolder(joined(m_files, "b.txt"), nullptr).empty()); // a bundle that is a plain file
    }

    void renamingCarriesTheSubtree()
    {
        writeFile(joined(m_files, "Shots/deep/x.mov"), "x");
        writeFile(joined(m_files, "Shots Extra/y"), "y");
        const TemplateNodes nodes = nodesInFolder(m_files, nullptr);
        nodes[0]->rename("/else/Takes");
        const auto &deep = folder(folder(nodes, 0).children(), 0);
        QCOMPARE(nodes[0]->name(), QString("Takes"));
        QCOMPARE(deep.children()[0]->filename(), QString("/else/Takes/deep/x.mov"));
        QCOMPARE(deep.children()[0]->name(), QString("x.mov"));
        nodes[0]->rename(joined(m_files, "Shots"));
        QCOMPARE(nodeWithFilename(joined(m_files, "Shots/deep"), nodes), &deep);
        QVERIFY(!nodeWithFilename(joined(m_files, "Shots Extra"), nodes)); // by plain text, as it must stay
    }

    void archivesTravel()
    {
        writeFile(joined(m_files, "A/B/x"), "x");
        writeFile(joined(m_files, "c"), "c");
        const TemplateNodes nodes = nodesInFolder(m_files, nullptr);
        const QByteArray archive = archivedNodes({nodes[0].get(), nodes[1].get()});
        const TemplateNodes copies = nodesFromArchive(archive);
        QCOMPARE(drawn(copies), drawn(nodes));
        QVERIFY(!folder(copies, 0).children()[0]->parent());
        QCOMPARE(folder(copies, 0).children()[0]->filename(), joined(m_files, "A/B"));
        // Damaged on its way: nothing, never a crash.
        std::mt19937 random(4);
        for (int i = 0; i < 3000; ++i) {
            QByteArray bad = archive.left(static_cast<qsizetype>(random() % static_cast<unsigned>(archive.size())));
            for (auto flips = random() % 4; flips > 0 && !bad.isEmpty(); --flips)
                bad[static_cast<qsizetype>(random() % static_cast<unsigned>(bad.size()))] = static_cast<char>(random());
            static_cast<void>(nodesFromArchive(bad));
        }
        QVERIFY(nodesFromArchive(archive.chopped(1)).empty());
    }

    void modelShowsAndForwards()
    {
        QStringList renamed;
        TemplateTreeModel model({[&](const QString &path, const QString &typed) { renamed << path + '|' + typed; },
                                 [](const TemplateDrop &, const TemplateNode *) { return DropOperation::Move; },
                                 [](const TemplateDrop &, const QString &) {
                                 }});
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        for (const char *name : {"A/x.tar.gz", "A/y", "B/z"})
            writeFile(joined(m_files, name), "x");
        model.setNodes(nodesInFolder(m_files, nullptr));
        const QModelIndex a = model.index(0, 0);
        const QModelIndex x = model.index(0, 0, a);
        QVERIFY(model.hasChildren(a) && !model.hasChildren(x));
        QCOMPARE(x.data(CellRole::StemLength), 5); // what is typed replaces "x.tar"
        QVERIFY(!x.data(CellRole::LabelColor).isValid());
        VTFileManager::setFinderColorIndex(12, joined(m_files, "A/x.tar.gz"));
        QCOMPARE(x.data(CellRole::LabelColor).value<QColor>().hsvHue(), 2); // read at drawing, not remembered
        QVERIFY(x.data(Qt::AccessibleTextRole).toString().contains("red"));

        QVERIFY(!model.setData(x, "x.tar.gz", Qt::EditRole));
        QVERIFY(model.setData(x, "new", Qt::EditRole));
        QTRY_COMPARE(renamed, QStringList(joined(m_files, "A/x.tar.gz") + "|new"));

        // A folder and what lies in it: the folder alone travels.
        const std::unique_ptr<QMimeData> data(model.mimeData({a, x, model.index(1, 0)}));
        QCOMPARE(drawn(nodesFromArchive(data->data(TemplateTreeModel::VTPboardType))),
                 QStringList({"A/", " x.tar.gz", " y", "B/", " z"}));
        writeFile(joined(m_files, "A/new"), "x");
        auto &node = static_cast<VTFolderItem &>(*TemplateTreeModel::nodeAt(a));
        model.setChildren(node, nodesInFolder(node.filename(), &node));
        QCOMPARE(model.rowCount(a), 3);
    }

    void dropsKeepEveryByte()
    {
        QMimeData data;
        data.setUrls({QUrl::fromEncoded("file:///a%20b/bad%FF%0A.txt"), QUrl("https://www.vantrel.example/x")});
        const TemplateDrop drop = TemplateTreeModel::dropOf(data);
        QVERIFY(drop.isFromOutside);
        QCOMPARE(drop.paths, QStringList(platform::fromNative("/a b/bad\377\n.txt")));
    }

    void cellGeometry()
    {
        const QSize icon(16, 12);
        const QRect bounds(10, 20, 200, 30);
        QCOMPARE(VTImageTextCell::cellSize({50, 18}, icon), QSize(69, 18));
        QCOMPARE(VTImageTextCell::cellSize({50, 18}, {}), QSize(53, 18));
        QCOMPARE(VTImageTextCell::imageRectForBounds(bounds, icon), QRect(13, 9, 16, 12));
        QCOMPARE(VTImageTextCell::titleRectForBounds(bounds, icon, true), QRect(29, 1, 181, 30));
        QCOMPARE(VTImageTextCell::titleRectForBounds(bounds, icon, false), QRect(29, 4, 181, 30));
        QVERIFY(VTImageTextCell::titleRectForBounds(bounds, {}, true).isNull());
        QCOMPARE(VTImageTextCell::textFrame(bounds, {}), QRect(17, 20, 193, 30));
        QCOMPARE(VTImageTextCell::shortenedSubtitle("ten chars!", 100, 100), QString("ten chars!"));
        QCOMPARE(VTImageTextCell::shortenedSubtitle("ten chars!", 100, 99), QString("ten chars..."));
    }

private:
    const TemporaryHome m_home;
    const QString m_files = m_home.file("Film.tzt/Files/x").chopped(2);
};

TESSARO_TEST_MAIN(QApplication, TestTemplateTree)
#include "test_template_tree.moc"
