// A thousand templates with rules, made at random: what the window shows, what a dry run prints, as a tree and as JSON,
// and what is on the disk afterwards are the same.
#include "app/ResultModel.h"
#include "creation/BatchCreation.h"
#include "harness/Records.h"
#include "harness/TemporaryHome.h"
#include "parameters/ParameterStore.h"
#include "platform/base/NativePath.h"
#include "platform/base/System.h"
#include "platform/files/FileSystem.h"
#include "support/Settings.h"
#include "templates/RuleFile.h"
#include "templates/VTDataController.h"

#include <QApplication>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

namespace {

constexpr int templates = 1000;

/// The same at every run, so that a failure can be found again.
QRandomGenerator &chance()
{
    static QRandomGenerator generator(20261122);
    return generator;
}

template <typename T> T oneOf(const QList<T> &list)
{
    return list[chance().bounded(list.size())];
}

QString someName()
{
    static const QList<QString> pieces{"a",         "B",       "Template", "{Client}", "{Num:00}", "{n}",
                                       "{cam}",     "{List}x", "x.txt",    "é",        "{{n}}",    "{Client|upper}",
                                       "{Project}", "{gone}",  ".csv",     "1"};
    QString name;
    for (int i = chance().bounded(1, 4); i > 0; --i)
        name += chance().bounded(80) == 0 ? QStringLiteral("{gone}") : pieces[chance().bounded(pieces.size() - 3)];
    return name;
}

ItemRule someRule(const QString &path, bool isFile)
{
    ItemRule rule{path};
    const int kind = chance().bounded(10);
    if (kind < 3)
        rule.when = {
            oneOf<Conditions::Join>({Conditions::Join::All, Conditions::Join::Any}),
            {{oneOf<QString>({"Client", "Num", "List"}), oneOf(kindsOfConditions()), oneOf<QString>({"A", "1", ""})},
             {"Client", Condition::Is::Contains, "e"}}};
    if (kind == 3 || kind == 4)
        rule.repeat = {Repeat::Over::Numbers, "Num", "n"};
    if (kind == 5)
        rule.repeat = {Repeat::Over::Values, "List", "cam"};
    rule.fillsText = isFile && kind > 5;
    return rule;
}

void makeTemplate(const QString &bundle)
{
    TemplateRules rules{.fillsNames = chance().bounded(5) > 0};
    QStringList folders{QString()};
    for (int i = chance().bounded(2, 9); i > 0; --i) {
        const QString folder = oneOf(folders);
        const QString path = folder.isEmpty() ? someName() : folder + '/' + someName();
        const QString whole = bundle + "/Files/" + path;
        if (!platform::isMissing(whole))
            continue;
        const bool isFile = chance().bounded(2) == 0;
        if (isFile)
            writeFile(whole, "{Client};{Num:00} {n} {nobody}\r\n");
        else
            QVERIFY(platform::makeFolders(whole).ok());
        if (!isFile && path.count('/') < 2)
            folders.append(path);
        if (chance().bounded(3) == 0)
            rules.setRule(someRule(path, isFile));
    }
    QVERIFY(platform::makeFolders(bundle + "/Files").ok());
    QVERIFY(rulefile::change(bundle, [&](const QVariantMap &) { return variantFromRules(rules); }).ok());
}

QByteArray run(const QStringList &words, int *status = nullptr)
{
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + "/Tessaro", words);
    if (!process.waitForFinished(240'000))
        return {};
    if (status)
        *status = process.exitCode();
    return process.readAllStandardOutput();
}

QList<QJsonObject> objects(const QByteArray &lines)
{
    QList<QJsonObject> found;
    for (const QByteArray &line : lines.split('\n')) {
        if (!line.isEmpty())
            found << QJsonDocument::fromJson(line).object();
    }
    return found;
}

QStringList pathsIn(const QJsonObject &object)
{
    QStringList paths;
    for (const QJsonValue &item : object["items"].toArray())
        paths << item["path"].toString();
    paths.sort();
    return paths;
}

QStringList pathsIn(const QString &folder)
{
    QStringList paths;
    for (QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
         it.hasNext();)
        paths << it.next().mid(folder.size() + 1);
    paths.sort();
    return paths;
}

/// What is left out is no item, and neither are the folder levels.
void addPaths(const ResultModel &model, const QModelIndex &parent, const QString &folder, int levels,
              QStringList &paths)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString path = folder.isEmpty() ? index.data().toString() : folder + '/' + index.data().toString();
        if (levels > 0) {
            addPaths(model, index, {}, levels - 1, paths);
        } else if (index.siblingAtColumn(1).data().toString() != "left out") {
            paths << path;
            addPaths(model, index, path, 0, paths);
        }
    }
}

/// Of the drawing: each line's depth is where its name begins.
QMap<QString, QStringList> drawnProjects(const QString &text)
{
    QMap<QString, QStringList> projects;
    QString project;
    QStringList above;
    for (const QString &line : text.split('\n')) {
        const qsizetype mark = line.indexOf(QRegularExpression("[├└]── "));
        if (mark < 0) {
            project = line.isEmpty() ? project : line;
            continue;
        }
        QString name = line.mid(mark + 4);
        const bool isLeftOut = name.endsWith("  (left out)");
        name = name.section("  (", 0, 0);
        above = above.first(mark / 4);
        above << (name.endsWith('/') ? name.chopped(1) : name);
        if (!isLeftOut)
            projects[project] << above.join('/');
    }
    for (QStringList &paths : projects)
        paths.sort();
    return projects;
}

} // namespace

class TestRuledProjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSameEverywhere()
    {
        const QTemporaryDir work;
        settings::registerDefaults();
        QVERIFY(
            changeParameters([](const FilenameParameters &) {
                FilenameParameters list;
                for (const char *title : {"Client", "Num", "List"})
                    list.append(FilenameParameter(
                        {{recordkey::title, QString(title)}, {recordkey::kind, 0LL}, {recordkey::value, QString("")}}));
                for (const char *title : {"n", "cam"}) // outside of repeats the names are titles as any
                    list.append(FilenameParameter({{recordkey::title, QString(title)},
                                                   {recordkey::value, QString("7")},
                                                   {recordkey::outsideName, true}}));
                list.append(FilenameParameter({{recordkey::title, QString("Job")},
                                               {recordkey::kind, 2LL},
                                               {recordkey::value, QString("0001")},
                                               {recordkey::folder, true}}));
                return list;
            }).ok());
        const QString library = VTDataController::templateLocation();
        QByteArray table = "Template,Client,Num,List\n";
        for (int i = 0; i < templates; ++i) {
            const QString name = QStringLiteral("T%1").arg(i);
            makeTemplate(library + '/' + name + ".tzt");
            table += name.toUtf8() + ',' + oneOf<QByteArray>({"Acme", "b", "Template Ltd", "é"}) + ',' +
                     oneOf<QByteArray>({"0", "1", "2", "3", "1", "12", "x"}) + ",\"" +
                     oneOf<QByteArray>({"", "A", "A,B", "B, C,D", "A", "A, A"}) + "\"\n";
        }
        writeFile(work.filePath("t.csv"), table);
        const QString out = work.filePath("out");
        QVERIFY(platform::makeFolders(out).ok());
        const QStringList words{"create", "--from", work.filePath("t.csv"), "--in", out, "--go-on"};
        const QList<QJsonObject> dry = objects(run(words + QStringList{"--dry-run", "--json"}));
        const auto drawn = drawnProjects(QString::fromUtf8(run(words + QStringList{"--dry-run"})));
        QCOMPARE(dry.size(), templates);
        QVERIFY(pathsIn(out).isEmpty());

        QVERIFY(VTDataController::sharedController().populateTemplates().ok());
        const BatchBase base{[&](const QString &name) {
                                 ProjectRequest request;
                                 request.templateName = name;
                                 request.templateFiles = VTDataController::filesFolder(name);
                                 request.rules =
                                     std::make_shared<TemplateRules>(*readRules(VTDataController::bundlePath(name)));
                                 request.parameters = currentParameters(scopeOf(request));
                                 request.separator = settings::separatorChar.text();
                                 request.dateFormat = settings::dateFormat.text();
                                 request.moment = std::time(nullptr);
                                 request.location = out;
                                 return platform::Result<ProjectRequest>(request);
                             },
                             {}};
        const std::atomic<bool> never = false;
        ProjectBatch batch(*readTable(table), base);
        batch.lookAtDisk(never);
        const qsizetype flawed = batch.problemRows();
        QVERIFY2(flawed > templates / 20 && flawed < templates / 2, qPrintable(QString::number(flawed)));

        int status = 0;
        const QList<QJsonObject> made = objects(run(words + QStringList{"--json"}, &status));
        QCOMPARE(status, 1); // some rows have problems
        QCOMPARE(made.size(), templates - flawed);
        auto next = made.begin();
        for (int row = 0; row < templates; ++row) {
            const ProjectRequest request = batch.requestOf(row);
            const CreationPlan plan = planCreation(request.templateFiles, request.planInput(), never);
            const bool isFlawed = !batch.rows()[row].problems.isEmpty();
            QCOMPARE(dry[row]["path"].toString(), request.destination());
            QCOMPARE(!dry[row]["errors"].toArray().isEmpty(), isFlawed);
            ResultModel model;
            model.setPlan(plan);
            QCOMPARE(model.problemCount() > 0 && !plan.flaws.empty(), isFlawed);
            const QStringList paths = pathsIn(dry[row]);
            QStringList shown;
            addPaths(model, {}, {}, static_cast<int>(plan.levels.size()), shown);
            shown.sort();
            QCOMPARE(shown, paths);
            if (isFlawed)
                continue;
            QCOMPARE(drawn.value(request.destination()), paths);
            QCOMPARE((*next)["path"].toString(), request.destination());
            QCOMPARE((*next)["folders"].toInt() + (*next)["files"].toInt(), paths.size());
            ++next;
            QCOMPARE(pathsIn(request.destination()), paths);
            for (const RuledText &text : plan.texts) {
                const auto &folder = plan.tree.folders[text.folder];
                const QString name = QString::fromUtf8(folder.newNameOf(folder.items[text.item]));
                const QString path = plan.tree.newPathOf(text.folder);
                const QByteArray contents =
                    readFile(request.destination() + '/' + (path.isEmpty() ? name : path + '/' + name));
                QCOMPARE(contents, *textvalues::filled("{Client};{Num:00} {n} {nobody}\r\n", name, *text.values));
            }
        }
        QCOMPARE(QDir(out).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty(), false);
    }
};

TESSARO_TEST_MAIN(QApplication, TestRuledProjects)
#include "test_ruled_projects.moc"
