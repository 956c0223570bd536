// Whatever arrives from outside: never a crash, never something that breaks what holds everywhere else. Each target
// runs for as long as TESSARO_FUZZ_SECONDS says. Inputs that broke something once lie in found/ and begin every run.
#include "creation/CreationPlan.h"
#include "creation/Manifest.h"
#include "creation/ProjectRequest.h"
#include "creation/ProjectTable.h"
#include "harness/Fuzzer.h"
#include "harness/TemporaryHome.h"
#include "helper/Plan.h"
#include "helper/Protocol.h"
#include "parameters/ParameterList.h"
#include "parameters/ProjectNaming.h"
#include "parameters/ValueRules.h"
#include "platform/archive/ZipArchive.h"
#include "platform/base/FormatString.h"
#include "platform/base/LocalTime.h"
#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/desktop/Desktop.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"
#include "preferences/ShortcutFile.h"
#include "support/VTFileManager.h"
#include "templates/BatchRename.h"
#include "templates/IndentedList.h"
#include "templates/TemplateNode.h"
#include "templates/editor/TemplateTreeModel.h"

#include <QCoreApplication>
#include <QMimeData>
#include <QTest>
#include <QTextStream>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

/// Ends the program: the input that is under way then lies in its file.
void must(bool holds, const char *what)
{
    if (!holds)
        qFatal("%s", what);
}

/// Compared as they are stored: real numbers and dates lose what the format cannot hold.
QByteArray stored(const QVariant &value)
{
    return platform::writePropertyList(value);
}

bool isUsableName(const QString &name)
{
    return !name.isEmpty() && !name.contains(u'/') && !name.contains(QChar(u'\0')) && name != u"." && name != u"..";
}

QList<QByteArray> lists()
{
    const QVariantMap record{{"title", "Client"},
                             {"type", 2},
                             {"val", "Job-041"},
                             {"defaultVal", "a, b"},
                             {"folder", true},
                             {"saveHistory", true},
                             {"history", QVariantList{"x", "y"}},
                             {"disallowEmpty", 1},
                             {"locked", 0.5}};
    const QVariantMap other{{"title", "Date"}, {"type", 3}, {"val", "2026-11-22"}, {"defaultVal", "%Y-%m-%d"}};
    const QVariantList list{record, other, QVariantMap{{"title", "Kind"}, {"type", 5}, {"defaultVal", "a,b"}}};
    const QVariantMap shortcut{{"bundleIdentifier", "com.vantrel.Tessaro"},
                               {"commandId", "new"},
                               {"keyCode", 12},
                               {"modifiers", 256},
                               {"parameters", QVariantList{"a"}}};
    return {
        stored(list),
        stored(
            QVariantMap{{"filenameTemplate", list}, {"separatorChar", "_"}, {"launch", QDateTime::currentDateTime()}}),
        stored(QVariantMap{{"shortcuts", QVariantList{shortcut, shortcut}}}),
        stored(QVariantMap{
            {"data", QByteArray("\0\1\2", 3)}, {"real", 1.5}, {"text\u0001", "\u0002"}, {"big", quint64(1) << 63}})};
}

std::vector<const TemplateNode *> pointersTo(const TemplateNodes &nodes)
{
    std::vector<const TemplateNode *> pointers;
    for (const auto &node : nodes)
        pointers.push_back(node.get());
    return pointers;
}

const QList<QByteArray> listWords{"<array>",
                                  "</array>",
                                  "<dict>",
                                  "</dict>",
                                  "<key>title</key>",
                                  "<string>",
                                  "</string>",
                                  "<integer>-5</integer>",
                                  "<real>nan</real>",
                                  "<date>2026-13-41T99:00:00Z</date>",
                                  "&#0;",
                                  "&amp;",
                                  "<![CDATA[",
                                  "bplist00",
                                  "<true/>",
                                  "<data>AA==</data>",
                                  "\xff",
                                  "<integer>2147483647</integer>"};

} // namespace

class TestFuzz : public QObject
{
    Q_OBJECT

    /// Runs what was found before, then what is made of it and of the seeds.
    void fuzz(QList<QByteArray> seeds, const QList<QByteArray> &words,
              const std::function<void(const QByteArray &)> &takes)
    {
        const QString found = QStringLiteral(TESSARO_SOURCE_DIR "/tests/harness/found/") + QTest::currentTestFunction();
        for (const auto &entry : platform::listFolder(found).valueOr({}))
            seeds.append(readFile(platform::joined(found, entry.name)));
        Fuzzer fuzzer(seeds, words);
        const QByteArray underWay = QByteArray("/tmp/tessaro-fuzz-") + QTest::currentTestFunction();
        const int calls = fuzzer.run(underWay, takes);
        QVERIFY(calls > 0);
        QFile::remove(QString::fromUtf8(underWay)); // what is left behind is what broke something
        if (qEnvironmentVariableIsSet("TESSARO_FUZZ_SECONDS"))
            QTextStream(stdout) << QTest::currentTestFunction() << ": " << calls << " inputs, " << fuzzer.kept()
                                << " that reach something of their own\n";
    }

private Q_SLOTS:
    void propertyLists()
    {
        fuzz(lists(), listWords, [](const QByteArray &bytes) {
            const auto value = platform::readPropertyList(bytes);
            if (!value)
                return;
            const QByteArray written = stored(*value);
            if (written.isEmpty()) // it holds what cannot be written
                return;
            const auto again = platform::readPropertyList(written);
            must(again.has_value(), "what was written is not read");
            if (stored(*again) != written)
                qFatal("Reading and writing change the value: %s\n%s", written.constData(), stored(*again).constData());
        });
    }

    void records()
    {
        fuzz(lists(), listWords, [](const QByteArray &bytes) {
            const auto value = platform::readPropertyList(bytes);
            if (!value)
                return;
            const QVariant list = value->toMap().value("filenameTemplate", *value);
            FilenameParameters parameters = parametersFromVariant(list);
            static_cast<void>(parameterlist::checkedList(list));
            for (int row = 0; row < parameters.size(); ++row) {
                for (int column = 0; column < parameterlist::columnCount; ++column)
                    static_cast<void>(
                        parameterlist::shownValue(parameters, row, static_cast<parameterlist::Column>(column)));
                static_cast<void>(rules::withTypedValue(parameters[row], parameters[row].defaultValue(), true));
                const QString next = rules::incrementNumber(parameters[row].value());
                must(next.size() + 1 >= parameters[row].value().size() || parameters[row].value().size() > 9,
                     "a number has become shorter");
            }
            parameters = rules::asLoaded(rules::withDynamicValues(parameters, {"2026-11-22", "Ann"}));
            ProjectRequest request;
            request.parameters = parameters;
            request.separator = value->toMap().value("separatorChar").toString();
            const QStringList levels = naming::pathComponents(parameters, request.separator);
            must(naming::problems(parameters, request.separator).size() == parameters.size(),
                 "a parameter without a verdict");
            if (!naming::hasUnusableLevel(levels)) {
                for (const QString &level : levels)
                    must(isUsableName(level), "a level that leads elsewhere");
            }
            const auto taken = withNumbersTaken(parameters, request);
            must(taken.size() == parameters.size(), "a parameter is lost");
            static_cast<void>(withNextNumbers(request, taken).relativePath());
            static_cast<void>(withNumbersReturned(taken, request));
            must(stored(variantFromParameters(parametersFromVariant(variantFromParameters(parameters)))) ==
                     stored(variantFromParameters(parameters)),
                 "a record does not come back");
        });
    }

    void formats()
    {
        fuzz({"Creating %@ at %@...", "%0.2f GB, %i CPU(s), %ld %% %s", "%Y-%m-%d", "%e %B %Y %H:%M %z",
              "%-d%^a%10Y%Ey%s"},
             {"%", "%@", "%.999999999f", "%99999999999d", "%lld", "%E", "%O", "%c", "%+", "%0", "%_9", "\xff", "%%"},
             [](const QByteArray &bytes) {
                 const QString text = platform::fromNative(bytes);
                 const QString whole = platform::formatString(text, QStringLiteral("a"), 7, 2.5, QString());
                 must(!whole.isNull() || text.isEmpty(), "a format without a result");
                 if (bytes.size() < 2000 && !bytes.contains('\0') &&
                     platform::problemOfDateFormat(text) == platform::DateFormatProblem::None)
                     must(!platform::formatDate(text, 1'795'000'000).isNull(), "a good date format without a date");
             });
    }

    /// Rules as they come: read, written, carried out on a tree. Names that come out are names.
    void templateRules()
    {
        const QVariantMap item{
            {"path", "Day {n:00}"},
            {"when",
             QVariantMap{{"any", QVariantList{QVariantMap{{"parameter", "A"}, {"is", "isGreater"}, {"value", "1"}}}}}},
            {"repeat", QVariantMap{{"count", "N"}, {"as", "n"}}},
            {"text", true}};
        const QVariantMap list{{"path", "Day {n:00}/x.csv"}, {"repeat", QVariantMap{{"values", "L"}}}};
        const QByteArray seed = stored(QVariantMap{{"version", 1LL},
                                                   {"fillNames", true},
                                                   {"texts", QVariantList{"*.csv"}},
                                                   {"items", QVariantList{item, list}},
                                                   {"fixed", QVariantMap{{"A", "1"}}},
                                                   {"hidden", QVariantList{"B"}}});
        platform::Tree tree;
        tree.folders.resize(2);
        tree.folders[0].add("Day {n:00}", DT_DIR);
        tree.folders[0].add("Template {A}.txt", DT_REG);
        tree.folders[0].items[0].folder = 1;
        tree.folders[1].add("x.csv", DT_REG);
        tokens::Values values;
        for (const char *title : {"A", "B", "L", "N"})
            values.add(title, {title[0] == 'N' ? "3" : "a,b"});
        fuzz({seed}, {"<key>all</key>", "<key>any</key>", "isEmpty", "<true/>", "..", "/", "{n}", "contains"},
             [&](const QByteArray &bytes) {
                 const auto value = platform::readPropertyList(bytes);
                 const auto rules = rulesFromVariant(value.value_or(QVariant()).toMap());
                 if (!rules)
                     return must(!rules.outcome().sentence().isEmpty(), "rules are refused without a sentence");
                 const auto again = rulesFromVariant(variantFromRules(*rules));
                 must(again && *again == *rules, "rules change when they are written and read");
                 const std::atomic<bool> never = false;
                 const Expansion made = expanded(tree, *rules, RuledItems(tree, *rules), {"Promo", values, 50}, never);
                 must(made.tree.itemCount() <= 60, "more items than were allowed");
                 for (const platform::TreeFolder &folder : made.tree.folders) {
                     for (const platform::TreeItem &one : folder.items)
                         must(isUsableName(platform::fromNative(folder.newNameOf(one))),
                              "an item without a usable name");
                 }
             });
    }

    void tables()
    {
        fuzz({"A,B\n1,\"2\n\"\"\",3\r\n", "sep=;\nA;B\n1;2",
              QByteArray("\xFF\xFE"
                         "A\0\n\0"
                         "1\0",
                         8),
              "A\tB\r1\t\xe4"},
             {"\"", "\"\"", ",", ";", "\t", "\r\n", "\xEF\xBB\xBF", "\xFE\xFF", "sep=", "\n"},
             [](const QByteArray &bytes) {
                 const auto table = readTable(bytes);
                 if (!table)
                     return must(!table.outcome().sentence().isEmpty(), "a table is refused without a sentence");
                 must(!table->columns.isEmpty() && !table->rows.isEmpty(), "an empty table is one");
                 int line = 0;
                 for (const ProjectTable::Row &row : table->rows) {
                     must(row.cells.size() >= table->columns.size(), "a row lacks cells");
                     must(row.line > line, "lines are not in their order");
                     line = row.line;
                 }
             });
    }

    /// Every byte that is no token's stays.
    void texts()
    {
        tokens::Values values;
        values.add("A", {"<&\"'\n"});
        values.add("N", {"7"});
        fuzz({"{A},\"{N:000}\";x\n", "<a b='{A}'><![CDATA[{N}]]></a>", "{\"a\": \"{A|upper}\"}",
              QByteArray("\xFF\xFE{\0N\0}\0", 8)},
             {"{", "}", "{A}", "{N:00}", "{{", "|", ":", "<![CDATA[", "]]>", "\"", "%Y", "\xEF\xBB\xBF"},
             [&](const QByteArray &bytes) {
                 for (const char *name : {"a.txt", "a.xml", "a.json", "a.csv"}) {
                     const auto filled = textvalues::filled(bytes, name, values);
                     if (!filled)
                         must(!filled.outcome().sentence().isEmpty(), "a text is refused without a sentence");
                     else if (!bytes.contains('{'))
                         must(*filled == bytes, "a text without a token is changed");
                 }
                 const QString name = platform::fromNative(bytes);
                 const tokens::Filled filled = filledName(name, "Promo", values);
                 must(!filled.ok() ||
                          (!filled.text.isEmpty() && platform::toNative(filled.text).size() <= platform::longestName),
                      "a filled name that is none");
             });
    }

    void names()
    {
        fuzz({"Film", "..", "a/b:c", "Caf\xc3\xa9 \xf0\x9f\x8e\xac", "\xff\xfe", " . ", "a\nb", "Template.template"},
             {"/", ":", "\\", "..", ".", " ", "\n", "\t", "\xed\xa0\x80", "\xc0\x80", "\0", "template", "~", "%"},
             [](const QByteArray &bytes) {
                 const QString name = platform::fromNative(bytes);
                 must(platform::toNative(name) == bytes, "a name does not come back byte for byte");
                 const QString cleaned = VTFileManager::validateFilename(name);
                 must(!cleaned.contains(u'/'), "a cleaned name with a slash");
                 must(!cleaned.contains(QChar(u'\0')), "a cleaned name that the system would cut off");
                 must(!platform::toNative(platform::forOneLine(name)).contains('\n'), "a line of two lines");
                 const QStringList renamed =
                     renamedItems({{name, name.size()}, {cleaned, 0}}, {cleaned.left(2), name, 1});
                 must(renamed.size() == 2, "a renamed item is lost");
             });
    }

    void wildcards()
    {
        const QTemporaryDir folder;
        for (const char *path : {"/a/b1/x.txt", "/a/b2/y.txt", "/a/[b]/z", "/c/.hidden", "/a b/*"})
            writeFile(folder.path() + path);
        fuzz({"*/b?/*.txt", "a/*", "*", "/*/*", "../*", "[b]*", "c/.*"},
             {"*", "?", "/", "..", "[", "]", "\\", "{a,b}", "~", ".", "**"}, [&](const QByteArray &bytes) {
                 const QString pattern = platform::fromNative(bytes);
                 if (pattern.count(u'*') > 6 || pattern.startsWith(u'/') || pattern.contains(u"..") ||
                     bytes.contains('\0'))
                     return; // the whole computer would be looked through
                 for (const QString &match : VTFileManager::filesMatchingWildcardPath(pattern, folder.path())) {
                     must(match.startsWith(folder.path()), "a match outside of the base");
                     must(!pattern.contains(u'*') || !platform::isMissing(match), "a match that is not there");
                 }
             });
    }

    void helperMessages()
    {
        using namespace helper;
        const QByteArray run = QByteArray::fromStdString(*encode(
            {MessageType::Run, 7, 0, {"/bin/cp", "-f", "-p", "-R", "/tmp/tessaro-none/a", "/tmp/tessaro-none/b"}}));
        const QByteArray ended =
            QByteArray::fromStdString(*encode({MessageType::Ended, 1, -2, {std::string(300, 'x')}}));
        fuzz({run, ended, run + ended},
             {"\0\0\0\1", "\xff\xff\xff\xff", "/bin/rm", "-Rdf", "/bin/mv", "-f", "/../", "//"},
             [](const QByteArray &bytes) {
                 Decoder decoder;
                 decoder.add(bytes.constData(), static_cast<std::size_t>(bytes.size()));
                 Message message;
                 for (auto result = decoder.next(message); result == Decoder::Result::Complete;
                      result = decoder.next(message)) {
                     must(message.texts.size() <= maximumTexts && encode(message), "a message beyond the bounds");
                     if (message.texts.empty())
                         continue;
                     Plan plan;
                     const std::vector<std::string> words(message.texts.begin() + 1, message.texts.end());
                     const int refused = prepare(message.texts[0], words, "/home/nobody", plan);
                     must(refused == 0 || refused > 0, "a refusal without a reason");
                 }
             });
    }

    void archives()
    {
        const QTemporaryDir folder("/dev/shm/tessaro-fuzz-XXXXXX");
        writeFile(folder.filePath("T.tzt/Files/a/template.txt"), "template");
        writeFile(folder.filePath("T.tzt/Files/b \xc3\xa9"), QByteArray(3000, 'x'));
        must(symlink("a", folder.filePath("T.tzt/Files/link").toUtf8().constData()) == 0, "no link");
        must(platform::compressZip(folder.filePath("T.tzt"), folder.filePath("good.zip")).outcome.ok(), "no archive");
        const QByteArray good = readFile(folder.filePath("good.zip"));
        writeFile(folder.filePath("guard/victim"), "theirs");
        fuzz({good, good.left(good.size() / 2)},
             {"PK\1\2", "PK\3\4", "PK\5\6", "../guard/victim", "/tmp/x", "__MACOSX/._a", "\xff\xff\xff\xff"},
             [&](const QByteArray &bytes) {
                 const QString archive = folder.filePath("guard/in.zip");
                 QFile file(archive);
                 must(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "no room");
                 file.close();
                 const QString to = folder.filePath("guard/to");
                 must(platform::makeFolders(to).ok(), "no folder");
                 static_cast<void>(platform::extractZip(archive, to));
                 must(platform::removeOwnTree(to).ok(), "what was unpacked cannot be removed");
                 must(readFile(folder.filePath("guard/victim")) == "theirs", "another file was written");
                 must(platform::listFolder(folder.filePath("guard"))->size() == 2, "something beside the destination");
             });
    }

    void drags()
    {
        VTFolderItem node("A", "/x/A");
        TemplateNodes children;
        children.push_back(std::make_unique<VTFileItem>("b", "/x/A/b"));
        node.setChildren(std::move(children));
        const QByteArray good = archivedNodes({&node, &node});
        fuzz({good, "file:///a%20b/c\r\n# comment\r\nfile://host/d\r\n", "file:///bad%FF%0A.txt"},
             {"file:///", "%00", "%2F..", "\r\n", "\xff\xff\xff\xff", QByteArray(4, '\0'), "http://x/"},
             [](const QByteArray &bytes) {
                 const TemplateNodes nodes = nodesFromArchive(bytes);
                 const QByteArray packed = archivedNodes(pointersTo(nodes));
                 const TemplateNodes again = nodesFromArchive(packed);
                 must(archivedNodes(pointersTo(again)) == packed, "nodes do not come back");
                 QMimeData data;
                 data.setData("text/uri-list", bytes);
                 for (const QString &path : TemplateTreeModel::dropOf(data).paths)
                     static_cast<void>(platform::isMissing(path));
             });
    }

    void shortcutFiles()
    {
        fuzz(lists(), listWords, [](const QByteArray &bytes) {
            const auto value = platform::readPropertyList(bytes);
            if (!value)
                return;
            const QVariantMap file = value->toMap();
            const shortcuts::Owner owner{"com.vantrel.Tessaro", "new", {}};
            const shortcuts::Shortcut keys{12, shortcuts::command};
            static_cast<void>(shortcuts::sharersOf(file, owner, keys));
            const QVariantMap with = shortcuts::withAssignment(file, owner, keys);
            must(shortcuts::assignmentsOf(with, owner.bundleIdentifier).value("new") == keys, "an assignment is lost");
            const QVariantMap without = shortcuts::without(with, owner);
            must(!shortcuts::assignmentsOf(without, owner.bundleIdentifier).contains("new"), "an assignment stays");
            for (auto key = file.begin(); key != file.end(); ++key)
                must(with.contains(key.key()), "another key of the file is lost");
        });
    }

    void folderLists()
    {
        fuzz({"A\n  B\n  C/\nD", "- A\n\t* B\n", "├── A\n│   └── B\n└── C", "1. A\r\n 2. B"},
             {"\n", "\r\n", "  ", "\t", "- ", "├── ", "│   ", "../", "/", ".", "\xff", "\xe2\x94", "\xc2\xa0"},
             [](const QByteArray &bytes) {
                 const auto folders = indentedlist::foldersIn(QString::fromUtf8(bytes));
                 for (const QString &path : folders.valueOr({})) {
                     for (const QString &name : path.split(u'/'))
                         must(isUsableName(name), "a folder that leads elsewhere");
                 }
                 static_cast<void>(indentedlist::listOf(folders.valueOr({})));
             });
    }

    void manifests()
    {
        const QTemporaryDir project("/dev/shm/tessaro-fuzz-XXXXXX");
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", project.path().toUtf8());
        writeFile(project.filePath("P/a/b"), "x");
        const std::atomic<bool> never = false;
        platform::Tree tree = platform::readTree(
            project.filePath("P"), [](platform::TreeFolder &) {}, never);
        for (platform::TreeFolder &folder : tree.folders)
            folder.made.resize(folder.items.size(), {1, 2, 3});
        Manifest manifest;
        manifest.project = project.filePath("P");
        QVERIFY(remember(manifest, tree).ok());
        const QString items = platform::withoutExtension(manifest.file) + ".items";
        fuzz({readFile(items), readFile(manifest.file)}, {"TsrH", QByteArray(8, '\0'), "\xff\xff\xff\xff", "..", "a/b"},
             [&](const QByteArray &bytes) {
                 for (const QString &path : {items, manifest.file}) {
                     QFile file(path);
                     must(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "no room");
                 }
                 for (const Manifest &found : recentProjects())
                     static_cast<void>(found.name());
                 const auto read = itemsOf(manifest);
                 for (const ManifestItem &item : read.valueOr({}))
                     must(isUsableName(platform::fromNative(item.name)), "an item that leads elsewhere");
             });
        qputenv("HOME", home);
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestFuzz)
#include "test_fuzz.moc"
