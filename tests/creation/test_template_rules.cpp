// What a template says beside its Files: what is made of its tree, what is said where it makes no sense, and how its
// file is kept.
#include "creation/CreationPlan.h"
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "templates/RuleFile.h"

#include <QCoreApplication>
#include <QTest>

namespace {

const std::atomic<bool> never = false;

tokens::Values values(const QMap<QString, QString> &given)
{
    tokens::Values values;
    values.add("Project", {"Promo"});
    for (auto value = given.begin(); value != given.end(); ++value)
        values.add(value.key(), {value.value()});
    return values;
}

ItemRule when(const QString &path, const QList<Condition> &tests, Conditions::Join join = Conditions::Join::All)
{
    return {path, {join, tests}};
}

ItemRule repeated(const QString &path, Repeat::Over over, const QString &parameter, const QString &name = "n")
{
    return {path, {}, {over, parameter, name}};
}

/// "Day 01", "-Drone" for what is left out, "!name: sentence" for what is wrong; in the order of the rows.
QStringList lines(const CreationPlan &plan)
{
    QStringList lines;
    plan.forEachItem([&](const PlanItem &item) {
        const QString path = item.folder.isEmpty() ? item.newName : item.folder + '/' + item.newName;
        if (item.remark == PlanItem::Remark::LeftOut)
            lines << '-' + path;
        else if (item.remark == PlanItem::Remark::Flawed)
            lines << '!' + path + ": " + item.flaw;
        else
            lines << path;
    });
    return lines;
}

} // namespace

class TestTemplateRules : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_work;
    QString bundle() const { return m_work->filePath("T.tzt"); }
    QString files(const QString &path = {}) const { return platform::joined(bundle() + "/Files", path); }
    void make(const QStringList &paths) const
    {
        for (const QString &path : paths) {
            if (path.endsWith('/'))
                QVERIFY(platform::makeFolders(files(path.chopped(1))).ok());
            else
                writeFile(files(path), "text");
        }
    }
    CreationPlan plan(const TemplateRules &rules, const QMap<QString, QString> &given) const
    {
        return planCreation(files(), {{"Acme", "Promo"}, values(given), std::make_shared<TemplateRules>(rules)}, never);
    }

private Q_SLOTS:
    void init() { m_work = std::make_unique<QTemporaryDir>(); }

    void whatIsMade()
    {
        make({"Day {n:00}/Cam {cam}/Template {n}.txt", "Drone/x", "Template.txt", "{Client}/y", "{{n}}"});
        TemplateRules rules{.fillsNames = true};
        rules.items = {repeated("Day {n:00}", Repeat::Over::Numbers, "Days"),
                       repeated("Day {n:00}/Cam {cam}", Repeat::Over::Values, "Cams", "cam"),
                       when("Drone", {{"Kind", Condition::Is::Contains, "aerial"}})};
        const QMap<QString, QString> given{
            {"Days", "2"}, {"Cams", "A,, B "}, {"Kind", "Interview"}, {"Client", "TEMPLATE Ltd"}};
        const CreationPlan some = plan(rules, given);
        QCOMPARE(lines(some), QStringList({"Day 01", "Day 01/Cam A", "Day 01/Cam A/Promo 1.txt", "Day 01/Cam B",
                                           "Day 01/Cam B/Promo 1.txt", "Day 02", "Day 02/Cam A",
                                           "Day 02/Cam A/Promo 2.txt", "Day 02/Cam B", "Day 02/Cam B/Promo 2.txt",
                                           "-Drone", "Promo.txt", "TEMPLATE Ltd", "TEMPLATE Ltd/y", "{n}"}));
        QCOMPARE(some.folders(), 7);
        QCOMPARE(some.files(), 7);
        QCOMPARE(some.repeated.size(), 6U);
        // Corrected with a key, the same as made anew; the shape says whether there are other rows.
        for (const QMap<QString, QString> &next :
             {QMap<QString, QString>{{"Days", "2"}, {"Cams", "C,D"}, {"Kind", "x"}, {"Client", "Z"}},
              QMap<QString, QString>{{"Days", "0"}, {"Cams", ""}, {"Kind", "Aerial"}, {"Client", ""}}}) {
            CreationPlan corrected = some;
            planFor(corrected, {{"Acme", "Promo"}, values(next)});
            const CreationPlan anew = plan(rules, next);
            QCOMPARE(lines(corrected), lines(anew));
            QCOMPARE(corrected.shape == some.shape, next["Days"] == "2");
        }
        CreationPlan copied = some;
        dropLeftOut(copied);
        QVERIFY(!lines(copied).join(' ').contains("Drone"));
        QCOMPARE(copied.files(), some.files());
    }

    /// Marks of our own in a name are the name's.
    void strangeNames()
    {
        const QString mark = QString(QChar(0xFDD0)) + QChar(0xFDD1);
        make({mark + "{A}" + mark});
        QCOMPARE(lines(plan({.fillsNames = true}, {{"A", "x"}})), QStringList{mark + "x" + mark});
    }

    /// Of a text that a condition leaves out at first, too.
    void textsAreLookedAtWhateverIsMade()
    {
        make({"a.txt"});
        writeFile(files("a.txt"), "{Number:%Q}");
        TemplateRules rules;
        rules.items = {
            {.path = "a.txt", .when = {Conditions::Join::All, {{"Kind", Condition::Is::Is, "x"}}}, .fillsText = true}};
        CreationPlan corrected = plan(rules, {{"Kind", "y"}, {"Number", "1"}});
        QVERIFY(corrected.flaws.empty() && corrected.leftOut == 1);
        planFor(corrected, {{"Acme", "Promo"}, values({{"Kind", "x"}, {"Number", "1"}})});
        QCOMPARE(corrected.flaws.size(), 1U);
    }

    void anEmptyListLeavesOut()
    {
        make({"Reel {n}/x"});
        TemplateRules rules;
        rules.items = {repeated("Reel {n}", Repeat::Over::Values, "L")};
        QCOMPARE(lines(plan(rules, {{"L", ""}})), QStringList{"-Reel {n}"});
    }

    /// A rule of an item that cannot be read is not one of an item that is gone.
    void unreadableIsNotGone()
    {
        make({"A/x"});
        TemplateRules rules;
        rules.items = {{.path = "A/x", .fillsText = true}, {.path = "B/x", .fillsText = true}};
        platform::Tree tree = platform::readTree(
            files(), [](platform::TreeFolder &) {}, never);
        QCOMPARE(RuledItems(tree, rules).gone(), QStringList{"B/x"});
        tree.folders[1].error = EACCES;
        tree.folders[1].items.clear();
        QCOMPARE(RuledItems(tree, rules).gone(), QStringList{"B/x"});
        tree.folders[0].error = EIO;
        QVERIFY(RuledItems(tree, rules).gone().isEmpty());
    }

    /// Without rules, braces are what they are.
    void nothingWithoutRules()
    {
        make({"{Client}", "{n", "Template {n}"});
        const QStringList expected{"Promo {n}", "{Client}", "{n"};
        QStringList found = lines(plan({}, {}));
        found.sort();
        QCOMPARE(found, expected);
        QVERIFY(!plan({}, {}).ruled);
        QCOMPARE(lines(plan(TemplateRules{.textPatterns = {"*.none"}}, {})).size(), 3); // names are not filled in
    }

    void conditions_data()
    {
        QTest::addColumn<int>("is");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QString>("holds"); // or the begin of the sentence
        using Is = Condition::Is;
        const auto row = [](const char *name, Is is, const char *value, const char *wanted, const char *holds) {
            QTest::newRow(name) << static_cast<int>(is) << QString(value) << QString(wanted) << QString(holds);
        };
        row("is", Is::Is, "aerial", "Aerial", "yes");
        row("is not", Is::IsNot, "aerial", "Aerial", "no");
        row("contains", Is::Contains, "Interview, Aerial", "aerial", "yes");
        row("empty", Is::IsEmpty, "", "", "yes");
        row("not empty", Is::IsNotEmpty, "", "", "no");
        row("greater", Is::IsGreater, "010", "9", "yes");
        row("with a comma", Is::IsGreater, "2,5", "2.4", "yes");
        row("not yet", Is::IsGreater, "", "9", "no");
        row("dates", Is::IsGreater, "2026-11-21", "2026-09-30", "yes");
        row("no number", Is::IsGreater, "many", "9", "“P” is compared by size");
    }
    void conditions()
    {
        QFETCH(int, is);
        QFETCH(QString, value);
        QFETCH(QString, wanted);
        QFETCH(QString, holds);
        const Verdict verdict =
            verdictOf(Conditions{.tests = {{"P", static_cast<Condition::Is>(is), wanted}}}, values({{"P", value}}));
        const QString answer = verdict.problem.isNull() ? (verdict.holds ? "yes" : "no") : verdict.problem;
        QVERIFY2(answer.startsWith(holds), qPrintable(answer));
    }

    void allAndAny()
    {
        const QList<Condition> tests{{"A", Condition::Is::Is, "1"}, {"B", Condition::Is::Is, "1"}};
        const tokens::Values one = values({{"A", "1"}, {"B", "0"}});
        QVERIFY(!verdictOf(Conditions{Conditions::Join::All, tests}, one).holds);
        QVERIFY(verdictOf(Conditions{Conditions::Join::Any, tests}, one).holds);
        QVERIFY(verdictOf(Conditions{Conditions::Join::Any, {}}, one).holds);
        QVERIFY(!verdictOf(Conditions{.tests = {{"gone", Condition::Is::IsEmpty}}}, one).problem.isNull());
    }

    void whatIsWrong()
    {
        make({"{A}", "{B}", "{Clinet}", "{Long}", "{Path}", "{Dots}", "{Empty}", "taken", "{T}", "Cam", "Days {n}",
              "Lists/"});
        TemplateRules rules{.fillsNames = true};
        rules.items = {
            repeated("Cam", Repeat::Over::Values, "A list"), repeated("Days {n}", Repeat::Over::Numbers, "A"),
            when("Lists", {{"gone", Condition::Is::IsEmpty}}), when("not there", {{"A", Condition::Is::Is}})};
        const CreationPlan wrong = plan(rules, {{"A", "same"},
                                                {"B", "same"},
                                                {"Long", QString(256, 'x')},
                                                {"Path", "../x"},
                                                {"Dots", ".."},
                                                {"Empty", ""},
                                                {"T", "taken"},
                                                {"A list", "1,2"}});
        QStringList found = lines(wrong).filter(QRegularExpression("^!"));
        found.sort();
        const QStringList expected{"!Cam: Another item here gets the name “Cam”",
                                   "!Days {n}: “A” is no number to count to: same",
                                   "!Lists: A condition asks for the parameter “gone”",
                                   "!same: Another item here gets the name “same”",
                                   "!taken: Another item here gets the name “taken”",
                                   "!{Clinet}: There is no parameter “Clinet”.",
                                   "!{Dots}: The name would be “..”",
                                   "!{Empty}: The name would be empty",
                                   "!{Long}: The name would have 256 bytes",
                                   "!{Path}: {Path} puts a “/” into the name"};
        QCOMPARE(found.size(), expected.size());
        for (qsizetype i = 0; i < found.size(); ++i)
            QVERIFY2(found[i].startsWith(expected[i]), qPrintable(found[i]));
        QCOMPARE(wrong.flaws.size(), 10U);
        QVERIFY(!wrong.firstFlaw().isNull());
        QCOMPARE(wrong.gone, QStringList{"not there"});
    }

    /// The same word in several names is treated as in a template without rules.
    void namesWithTheWordTemplate()
    {
        make({"Template {A}.mov", "template.txt", "Promo.txt"});
        const CreationPlan plan = this->plan({.fillsNames = true}, {{"A", "my template"}});
        QStringList found = lines(plan);
        found.sort();
        QCOMPARE(found, QStringList({"Promo my template.mov", "Promo.txt", "template.txt"}));
        QVERIFY(plan.flaws.empty()); // "template.txt" keeps its name, and says so
    }

    void repeatsHaveAnEnd()
    {
        make({"{a}/{b}/{c}/x"});
        TemplateRules rules;
        rules.items = {repeated("{a}", Repeat::Over::Numbers, "N", "a"),
                       repeated("{a}/{b}", Repeat::Over::Numbers, "N", "b"),
                       repeated("{a}/{b}/{c}", Repeat::Over::Numbers, "N", "c")};
        const CreationPlan many = plan(rules, {{"N", "1000000"}}); // to the third
        QVERIFY(many.isCutOff);
        QVERIFY(many.tree.itemCount() <= mostRepeatedUnasked);
        QVERIFY(!plan(rules, {{"N", "12"}}).isCutOff);
        QCOMPARE(plan(rules, {{"N", "12"}}).files(), 1728);
        for (const char *value : {"1000001", "-1", "2.5", "99999999999999999999", "x", ""})
            QVERIFY2(plan(rules, {{"N", value}}).flaws.size() == 1, value);
    }

    void textsAreLookedAtBefore()
    {
        make({"a.csv", "b.txt", "c.bin", "{n}/d.csv"});
        writeFile(files("a.csv"), "{Number:000} {not a title}");
        writeFile(files("b.txt"), "{Clinet|upper}");
        writeFile(files("c.bin"), QByteArray("a\0{Number}", 10));
        writeFile(files("{n}/d.csv"), "{n:00}");
        TemplateRules rules{.textPatterns = {"*.CSV"}};
        rules.items = {{.path = "b.txt", .fillsText = true},
                       {.path = "c.bin", .fillsText = true},
                       repeated("{n}", Repeat::Over::Values, "L")};
        const auto flaws = [&](const QMap<QString, QString> &given) {
            return lines(plan(rules, given)).filter(QRegularExpression("^!"));
        };
        const QStringList always{"!b.txt: There is no parameter “Clinet”.",
                                 "!c.bin: This is no text: no values can be filled in."};
        QCOMPARE(flaws({{"Number", "7"}, {"L", "1,2"}}), always);
        QCOMPARE(flaws({{"Number", "x"}, {"L", "1,y"}}), QStringList({"!a.csv: “Number” is no number: x"}) + always +
                                                             QStringList{"!y/d.csv: “n” is no number: y"});
    }

    void isReadAndWritten()
    {
        TemplateRules rules{.fillsNames = true, .textPatterns = {"*.csv", "*.txt"}};
        rules.items = {
            repeated("a", Repeat::Over::Values, "L", "cam"),
            repeated("b", Repeat::Over::Numbers, "N"),
            when("c", {{"A", Condition::Is::IsGreater, "1"}, {"B", Condition::Is::IsEmpty}}, Conditions::Join::Any),
            {.path = "d", .fillsText = true, .rest = {{"later", "kept"}}}};
        rules.parameters = {QVariantMap{{"title", "Own"}, {"type", 2LL}}};
        rules.fixed = {{"Kind", "Film"}};
        rules.hidden = {"Client"};
        rules.rest = {{"of a later version", 1LL}};
        QVERIFY(platform::makeFolders(bundle()).ok());
        QVERIFY(rulefile::change(bundle(), [&](const QVariantMap &) { return variantFromRules(rules); }).ok());
        QVERIFY(*readRules(bundle()) == rules);
        QVERIFY(rulefile::change(bundle(), [&](const QVariantMap &) { return QVariantMap(); }).ok());
        QVERIFY(platform::isMissing(rulefile::pathIn(bundle())));
        QVERIFY(readRules(bundle())->isEmpty());
    }

    void isRefused_data()
    {
        QTest::addColumn<QVariantMap>("stored");
        QTest::addColumn<QString>("sentence");
        const auto item = [](const char *name, const QVariantMap &entry, const char *sentence) {
            QVariantMap whole = entry;
            whole.insert("path", "x");
            QTest::newRow(name) << QVariantMap{{"items", QVariantList{whole}}} << "Item 1 (x): " + QString(sentence);
        };
        QTest::newRow("later") << QVariantMap{{"version", 2LL}} << "These rules are of a later version";
        QTest::newRow("kind") << QVariantMap{{"fillNames", "yes"}} << "“fillNames” is not of the right kind";
        QTest::newRow("list") << QVariantMap{{"items", QVariantList{1LL}}} << "“items” holds something";
        QTest::newRow("path") << QVariantMap{{"items", QVariantList{QVariantMap{{"path", "a/../b"}}}}}
                              << "Item 1 (a/../b): its path names no item";
        item("condition",
             {{"when", QVariantMap{{"all", QVariantList{QVariantMap{{"parameter", "A"}, {"is", "like"}}}}}}},
             "“like” is no condition");
        item("none of both", {{"when", QVariantMap{{"not", QVariantList()}}}}, "“when” takes “all” or “any”");
        item("repeat", {{"repeat", QVariantMap{{"until", "A"}}}}, "“repeat” names no parameter");
        item("its name", {{"repeat", QVariantMap{{"count", "A"}, {"as", "a}"}}}}, "“a}” cannot be the name");
    }
    void isRefused()
    {
        QFETCH(QVariantMap, stored);
        QFETCH(QString, sentence);
        const auto rules = rulesFromVariant(stored);
        QVERIFY(!rules && rules.outcome().sentence().startsWith(sentence));
    }

    void aDamagedFile()
    {
        writeFile(rulefile::pathIn(bundle()), "nonsense");
        QVERIFY(readRules(bundle()).outcome().is(platform::Cause::Damaged));
        QVERIFY(
            rulefile::change(bundle(), [](const QVariantMap &) { return QVariantMap(); }).is(platform::Cause::Damaged));
        const auto aside = rulefile::setAside(bundle());
        QVERIFY(aside && readFile(*aside) == "nonsense");
        QVERIFY(readRules(bundle())->isEmpty());
    }

    void followsItsItems()
    {
        const auto paths = [](const QVariantMap &rules) {
            QStringList found;
            for (const QVariant &entry : rules.value("items").toList())
                found << rulefile::pathOf(entry.toMap());
            return found;
        };
        QVariantMap rules{{"fillNames", true}};
        QVariantList entries;
        for (const char *path : {"a", "a/b", "a b", "c"})
            entries.append(rulefile::withPath({{"text", true}}, path));
        entries.append(rulefile::withPath({}, platform::fromNative("caf\xE9")));
        rules.insert("items", entries);
        const QString bytes = platform::fromNative("caf\xE9");
        QCOMPARE(paths(rulefile::afterMove(rules, "a", "d/e")), QStringList({"d/e", "d/e/b", "a b", "c", bytes}));
        QCOMPARE(paths(rulefile::afterMove(rules, bytes, "x")).constLast(), "x");
        QCOMPARE(paths(rulefile::afterRemoval(rules, "a")), QStringList({"a b", "c", bytes}));
        const QVariantMap copied = rulefile::afterCopy(rules, "a", "a 2");
        QCOMPARE(paths(copied), QStringList({"a", "a/b", "a b", "c", bytes, "a 2", "a 2/b"}));
        QVERIFY(copied.value("items").toList().constLast().toMap().value("text").toBool());
        QCOMPARE(rulefile::afterMove({}, "a", "b"), QVariantMap());
        // What was said of an item that is gone does not come over the one that takes its place.
        QCOMPARE(paths(rulefile::afterMove(rules, "a", "c")), QStringList({"c", "c/b", "a b", bytes}));
    }
};

QTEST_GUILESS_MAIN(TestTemplateRules)
#include "test_template_rules.moc"
