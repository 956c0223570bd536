#pragma once

#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "platform/files/WholeFile.h"

#include <QMap>
#include <QSet>
#include <QStringList>
#include <QTest>
#include <algorithm>

/** What the verbs that write may change in a home, and the verbs themselves, for the tests that disturb them. */
namespace verbs {

/// What counts of a home: by path, what stands there.
struct State
{
    QMap<QString, QByteArray> library;
    QMap<QString, QByteArray> projects;
    QMap<QString, QByteArray> archives;
    QVariant settings;
    bool operator==(const State &) const = default;
};

inline QMap<QString, QByteArray> treeOf(const QString &folder)
{
    QMap<QString, QByteArray> tree;
    for (const auto &entry : platform::listFolder(folder).valueOr({})) {
        if (entry.name.startsWith(u".tessaro-") || entry.name.contains(u".tessaro-"))
            continue;
        const QString path = platform::joined(folder, entry.name);
        const bool isFolder = entry.kind == platform::FileKind::Folder;
        tree[entry.name] = isFolder ? "folder" : readFile(path);
        const auto below = isFolder ? treeOf(path) : QMap<QString, QByteArray>();
        for (auto item = below.begin(); item != below.end(); ++item)
            tree[entry.name + u'/' + item.key()] = item.value();
    }
    return tree;
}

inline QString inLibrary(const QString &home, const QString &path)
{
    return home + "/Library/Application Support/Vantrel/Tessaro/Templates/" + path;
}

/// What was packed or written out; of an archive, which holds dates and logs, whether it is whole.
inline QMap<QString, QByteArray> archivesOf(const QString &folder)
{
    QMap<QString, QByteArray> archives;
    const auto tree = treeOf(folder);
    for (auto item = tree.begin(); item != tree.end(); ++item) {
        const bool isArchive = item.key().endsWith(u".zip");
        const bool isWhole = item.value().startsWith("PK") && item.value().right(22).startsWith("PK\5\6");
        archives[isArchive ? "archive" : item.key()] =
            isArchive ? QByteArray(isWhole ? "whole" : "half") : item.value();
    }
    return archives;
}

inline State stateOf(const QString &home)
{
    const auto settings = platform::readPropertyListFile(home + "/Library/Preferences/com.vantrel.Tessaro.plist");
    return {treeOf(inLibrary(home, {})), treeOf(home + "/Projects"), archivesOf(home + "/Out"),
            settings.valueOr(QVariant())};
}

inline QMap<QString, QByteArray> onlyOf(const QMap<QString, QByteArray> &tree, const QString &bundle)
{
    QMap<QString, QByteArray> part;
    for (auto item = tree.begin(); item != tree.end(); ++item) {
        if (item.key() == bundle || item.key().startsWith(bundle + u'/'))
            part[item.key()] = item.value();
    }
    return part;
}

/// Each template is the old one or the new one; a command that changes several may have come to some of them.
inline bool isOldOrNew(const State &found, const State &before, const State &after)
{
    QSet<QString> bundles;
    for (const auto &library : {found.library, before.library, after.library}) {
        for (const QString &path : library.keys())
            bundles.insert(path.section(u'/', 0, 0));
    }
    return std::all_of(bundles.begin(), bundles.end(), [&](const QString &bundle) {
        const auto part = onlyOf(found.library, bundle);
        return part == onlyOf(before.library, bundle) || part == onlyOf(after.library, bundle);
    });
}

inline QStringList hiddenBelow(const QString &folder)
{
    QStringList found;
    for (const auto &entry : platform::listFolder(folder).valueOr({})) {
        if (entry.name.contains(u".tessaro-"))
            found << platform::joined(folder, entry.name);
        else if (entry.kind == platform::FileKind::Folder)
            found << hiddenBelow(platform::joined(folder, entry.name));
    }
    return found;
}

/// What no verb may leave: hidden items anywhere, and anything in the place for temporary files.
inline QStringList leftBehind(const QString &home)
{
    QStringList found = hiddenBelow(home);
    for (const auto &entry : platform::listFolder(home + "/tmp").valueOr({}))
        found << platform::joined(home + "/tmp", entry.name);
    return found;
}

/// The verbs that write, for a home that prepare() has filled.
inline void rows(const QString &home)
{
    QTest::addColumn<QStringList>("words");
    const QString in = home + "/In/";
    QTest::newRow("create") << QStringList{"create", "--in",  home + "/Projects", "--template",
                                           "Film",   "--set", "Client=Acme"};
    QTest::newRow("import") << QStringList{"template", "import", in + "New.tzt"};
    QTest::newRow("import over an old one") << QStringList{"template", "import", in + "Film.tzt"};
    QTest::newRow("new") << QStringList{"template", "new", "Empty"};
    QTest::newRow("duplicate") << QStringList{"template", "duplicate", "Film"};
    QTest::newRow("rename") << QStringList{"template", "rename", "Film", "Feature"};
    QTest::newRow("structure") << QStringList{"template", "structure", "Film", "--from", in + "Shots"};
    QTest::newRow("remove") << QStringList{"template", "remove", "Film", "--yes"};
    QTest::newRow("rules") << QStringList{"template", "rules", "Film", "--set", in + "rules.json"};
    QTest::newRow("create with rules") << QStringList{"create", "--in",  home + "/Projects", "--template",
                                                      "Ruled",  "--set", "Client=Acme"};
    QTest::newRow("restore") << QStringList{"template", "restore", "--yes"};
    QTest::newRow("export") << QStringList{"template", "export", "Film", home + "/Out"};
    QTest::newRow("gather") << QStringList{"logs", "gather", "--to", home + "/Out"};
    QTest::newRow("export parameters") << QStringList{"parameters", "export", home + "/Out/list.plist"};
    QTest::newRow("set") << QStringList{"settings", "set", "separatorChar", "-"};
    QTest::newRow("parameter") << QStringList{"parameters", "add", "Reel", "text", "x"};
}

/// Templates, things to take in, and a place for projects; the shipped templates have been restored there before.
inline void prepare(const QString &home)
{
    for (const auto &entry : platform::listFolder(inLibrary(home, {})).valueOr({})) {
        if (entry.name != u"Photography.tzt")
            QVERIFY(platform::removeTree(inLibrary(home, entry.name)).ok());
    }
    QVERIFY(platform::removeTree(platform::joined(home, ".local")).ok());
    for (int i = 0; i < 6; ++i) {
        const QString file = QStringLiteral("/Files/%1/template %2").arg(i / 3).arg(i);
        writeFile(inLibrary(home, "Film.tzt") + file, "film");
        writeFile(home + "/In/Film.tzt" + file + " new", "newer");
        writeFile(home + "/In/New.tzt" + file, "new");
        writeFile(home + QStringLiteral("/In/Shots/%1/A/B %2/x").arg(i / 3).arg(i));
    }
    writeFile(inLibrary(home, "Ruled.tzt/Files/{Client} {n}/template.txt"), "{Client} {n}\n");
    writeFile(inLibrary(home, "Ruled.tzt/Files/Drone/x"), "x");
    QVERIFY(platform::writePropertyListFile(
                inLibrary(home, "Ruled.tzt/Rules.plist"),
                QVariantMap{{"fillNames", true},
                            {"texts", QVariantList{"*.txt"}},
                            {"items", QVariantList{QVariantMap{{"path", "{Client} {n}"},
                                                               {"repeat", QVariantMap{{"count", "Job number"}}}}}}})
                .ok());
    writeFile(home + "/In/rules.json", "{\"fillNames\": true}");
    writeFile(home + "/In/table.csv", "Client,Template,Job number\nAcme,Ruled,001\nBolt,Film,\nCody,Ruled,\n");
    for (const char *folder : {"/Projects", "/tmp", "/Out"})
        QVERIFY(platform::makeFolders(home + QLatin1String(folder)).ok());
}

} // namespace verbs
