// The project as it will be, seen while one types: the same as what is made.
#include "app/ResultPane.h"
#include "creation/CreationPlan.h"
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QLabel>
#include <QRandomGenerator>
#include <QTest>
#include <QTreeView>

namespace {

QStringList drawn(const QAbstractItemModel &model, const QModelIndex &parent = {}, int depth = 0)
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString remark = index.siblingAtColumn(1).data().toString();
        lines << QString(depth, u' ') + index.data().toString() + (remark.isEmpty() ? "" : " | " + remark);
        lines << drawn(model, index, depth + 1);
    }
    return lines;
}

QStringList namesOf(const CreationPlan &plan)
{
    QStringList names;
    plan.forEachItem([&](const PlanItem &item) {
        names << platform::joined(item.folder, item.newName) + QString::number(static_cast<int>(item.remark));
    });
    return names;
}

CreationPlan planOf(const QString &files, const QStringList &levels)
{
    const std::atomic<bool> never = false;
    return planCreation(files, {levels}, never);
}

} // namespace

class TestResult : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_work;
    QString files(const QString &path = {}) const { return platform::joined(m_work->filePath("T"), path); }

private Q_SLOTS:
    void init()
    {
        m_work = std::make_unique<QTemporaryDir>();
        for (const char *path : {"01 Footage/Template A.mov", "01 Footage/plain", "Template.txt", "template 2/x"})
            writeFile(files(path), "12345");
    }

    void rowsFollowThePlan()
    {
        ResultModel model;
        const QAbstractItemModelTester tester(&model);
        QCOMPARE(model.rowCount(), 0);
        model.setPlan(planOf(files(), {"Acme", "Promo"}));
        QCOMPARE(drawn(model),
                 QStringList({"Acme", " Promo", "  01 Footage", "   plain", "   Promo A.mov | was Template A.mov",
                              "  Promo 2 | was template 2", "   x", "  Promo.txt | was Template.txt"}));
        const QPersistentModelIndex kept = model.index(0, 0, model.index(0, 0));
        model.setInput({{"Acme", "Film"}});
        QVERIFY(kept.isValid()); // nothing was built anew
        QCOMPARE(drawn(model).value(4), "   Film A.mov | was Template A.mov");
        model.setInput({{"Film"}});
        QCOMPARE(drawn(model).value(0), "Film");
        QCOMPARE(drawn(model).value(1), " 01 Footage");
        model.setInput({});
        QCOMPARE(drawn(model).value(0), "01 Footage");
        QCOMPARE(model.problemCount(), 0);
    }

    void problemsInTheirOrder()
    {
        writeFile(files("01 Footage/Film A.mov"));
        writeFile(files("film.txt"));
        ResultModel model;
        model.setPlan(planOf(files(), {"Film"}));
        QCOMPARE(model.problemCount(), 1);
        QModelIndex problem = model.problemAfter({});
        QCOMPARE(problem.data().toString(), "Template A.mov");
        QCOMPARE(problem.siblingAtColumn(1).data().toString(), "the new name is taken");
        QCOMPARE(model.problemAfter(problem), problem);
        model.setInput({{QString(300, u'x')}});
        QCOMPARE(model.problemCount(), 4); // the level, and three names
        QCOMPARE(model.problemAfter({}).siblingAtColumn(1).data().toString(), "too long for a folder");
        model.setInput({{"Promo"}});
        QCOMPARE(model.problemCount(), 0);
    }

    /// With every key: the same as a plan that is made anew, whatever was typed before.
    void correctedIsAsNew()
    {
        auto &random = *QRandomGenerator::global();
        const QStringList pieces{"template", "Template", "a", "B", " ", ".", "x.txt", "\u00e9", "TEMPLATE.mov", "1"};
        for (int round = 0; round < 60; ++round) {
            const QTemporaryDir folder;
            for (int i = 0; i < 40; ++i) {
                QString path = folder.path();
                for (int depth = random.bounded(3); depth >= 0; --depth) {
                    QString name;
                    for (int k = random.bounded(1, 4); k > 0; --k)
                        name += pieces[random.bounded(pieces.size())];
                    path += u'/' + (name.trimmed().remove(u'.').isEmpty() ? QStringLiteral("n") : name);
                }
                if (platform::kindOf(platform::parentPath(path)) != platform::FileKind::File &&
                    platform::kindOf(path) == platform::FileKind::Missing &&
                    platform::makeFolders(platform::parentPath(path)).ok())
                    writeFile(path);
            }
            CreationPlan corrected = planOf(folder.path(), {"first"});
            for (const QLatin1String name : {QLatin1String("a"), QLatin1String("B"), QLatin1String("template"),
                                             QLatin1String(), QLatin1String("x")}) {
                const QStringList levels = name.isEmpty() ? QStringList() : QStringList{"L", QString(name)};
                planFor(corrected, {levels});
                QCOMPARE(namesOf(corrected), namesOf(planOf(folder.path(), levels)));
            }
        }
    }

    void thePane()
    {
        ResultPane pane;
        pane.resize(400, 400);
        pane.setTemplate(files());
        pane.setValues({"Acme", "Promo"}, m_work->path(), {});
        pane.show();
        auto *view = pane.findChild<QTreeView *>("resultTree");
        const auto text = [&](const char *label) {
            const auto *found = pane.findChild<QLabel *>(QLatin1String(label));
            return found->isVisible() ? found->text() : QString();
        };
        QTRY_COMPARE(drawn(*view->model()).size(), 8);
        QCOMPARE(text("resultNumbers"), QString("Folders: 2, files: 4, 20 bytes"));
        QVERIFY(!view->visualRect(view->model()->index(0, 0)).isEmpty());
        writeFile(m_work->filePath("Acme/Film/a"));
        pane.setValues({"Acme", "Film"}, m_work->path(), {});
        QTRY_VERIFY(text("resultPlace").contains("Trash"));
        pane.setValues({"Acme", "Fil"}, m_work->path(), {});
        QTRY_VERIFY(text("resultPlace").isEmpty());
        writeFile(files("new"));
        pane.followDisk();
        QTRY_COMPARE(drawn(*view->model()).size(), 9);
        writeFile(files("Fil.txt"));
        pane.followDisk();
        QTRY_VERIFY(text("resultProblems").contains("Names that cannot be given: 1"));
        pane.setTemplate({});
        QTRY_COMPARE(view->model()->rowCount(), 0);
    }
};

TESSARO_TEST_MAIN(QApplication, TestResult)
#include "test_result.moc"
