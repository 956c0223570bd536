// What a creation will make, computed before anything is made.
#include "creation/CreationPlan.h"

#include "harness/TemporaryHome.h"

#include <QTest>
#include <dirent.h>
#include <unistd.h>

namespace {

const std::atomic<bool> never = false;

platform::TreeFolder named(const QByteArrayList &names, const QString &project)
{
    platform::TreeFolder folder;
    for (const QByteArray &name : names)
        folder.add(name.constData(), DT_REG);
    nameItems(folder, project);
    return folder;
}

/// Each with its remark's number, where there is one.
QStringList newNames(const platform::TreeFolder &folder)
{
    QStringList names;
    for (const platform::TreeItem &item : folder.items)
        names << folder.newNameOf(item) + (item.remark ? QStringLiteral(" (%1)").arg(item.remark) : QString());
    return names;
}

} // namespace

class TestCreationPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesInProject()
    {
        QCOMPARE(nameInProject("My TEMPLATE notes.txt", "Acme_Promo"), "My Acme_Promo notes.txt");
        QCOMPARE(nameInProject("notes.template", "Acme_Promo"), "notes.template"); // only in the extension
        QCOMPARE(nameInProject("template.template", "Acme_Promo"), "Acme_Promo.Acme_Promo");
        QCOMPARE(nameInProject("TemplateTemplate", "Acme_Promo"), "Acme_PromoAcme_Promo");
        QCOMPARE(nameInProject(".template", "Acme_Promo"), ".Acme_Promo");
        QCOMPARE(nameInProject("a.template.b", "Acme_Promo"), "a.Acme_Promo.b");
        QCOMPARE(nameInProject("01. Template", "Acme_Promo"), "01. Acme_Promo");
        QCOMPARE(nameInProject("v1.2 template", "Acme_Promo"), "v1.2 Acme_Promo");
    }

    void followsRenamedFolders()
    {
        const TemporaryHome home;
        writeFile(home.file("tree/Template/Sub template/template.txt"));
        writeFile(home.file("tree/x.txt"));
        QCOMPARE(symlink("Template", (home.path() + "/tree/link").toUtf8().constData()), 0);
        const CreationPlan plan = planCreation(home.file("tree"), {{"Acme", "Promo"}}, never);
        QStringList items;
        plan.forEachItem([&](const PlanItem &item) { items << item.folder + '|' + item.newName; });
        QCOMPARE(items, QStringList({"|link", "|Promo", "Promo|Sub Promo", "Promo/Sub Promo|Promo.txt", "|x.txt"}));
        QVERIFY(plan.renamed() == 3 && plan.folders() == 2 && plan.files() == 3 && plan.unreadable.isEmpty());
        const auto missing = planCreation(home.path() + "/none", {{"Promo"}}, never).unreadable;
        QVERIFY(missing.size() == 1 && missing[0].is(platform::Cause::Missing));
    }

    void marksCollisionsInListingOrder()
    {
        const platform::TreeFolder folder =
            named({"Promo.txt", "TEMPLATE.txt", "A Template", "a template", "A template"}, "Promo");
        QCOMPARE(newNames(folder),
                 QStringList({"Promo.txt", "TEMPLATE.txt (1)", "A Promo", "a Promo", "A template (1)"}));
        // A name that is given up is free for the next.
        QCOMPARE(newNames(named({"template", "template2"}, "template2")), QStringList({"template (1)", "template22"}));
        QCOMPARE(newNames(named({"template2", "template"}, "template2")), QStringList({"template22", "template2"}));
    }

    void marksNamesThatAreTooLong()
    {
        const TemporaryHome home;
        const QString longName(128, QChar(u'ä')); // 256 bytes in 128 characters
        QCOMPARE(newNames(named({"Template", "Template.a"}, QString(255, 'x'))),
                 QStringList({QString(255, 'x'), "Template.a (2)"}));
        QCOMPARE(planCreation(home.path(), {{longName}}, never).tooLongLevels, QStringList{longName});
        QVERIFY(planCreation(home.path(), {{QString(255, 'x')}}, never).tooLongLevels.isEmpty());
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestCreationPlan)
#include "test_creation_plan.moc"
