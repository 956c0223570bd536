// What a creation will make, computed without the disk.
#include "creation/CreationPlan.h"

#include <QTest>

using platform::FileKind;

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
    }

    void followsRenamedFolders()
    {
        const TreeListing tree{{{"", "Template", FileKind::Folder},
                                {"Template", "Sub template", FileKind::Folder},
                                {"Template/Sub template", "template.txt", FileKind::File},
                                {"", "x.txt", FileKind::File}},
                               {}};
        const CreationPlan plan = planCreation(tree, {"Acme", "Promo"});
        const auto paths = [&](const auto &path) {
            QStringList found;
            for (const PlanItem &item : plan.items)
                found << path(item);
            return found;
        };
        QCOMPARE(paths([](const PlanItem &item) { return item.folder + '|' + item.newName; }),
                 QStringList({"|Promo", "Promo|Sub Promo", "Promo/Sub Promo|Promo.txt", "|x.txt"}));
        QCOMPARE(plan.renamed(), 3);
    }

    void marksCollisionsInListingOrder()
    {
        const TreeListing tree{{{"", "Promo.txt", FileKind::File},
                                {"", "TEMPLATE.txt", FileKind::File},
                                {"", "A Template", FileKind::File},
                                {"", "a template", FileKind::File},
                                {"", "A template", FileKind::File}},
                               {}};
        const CreationPlan plan = planCreation(tree, {"Promo"});
        QCOMPARE(plan.items[1].remark, PlanItem::Remark::NameTaken);
        QCOMPARE(plan.items[1].newName, QString("TEMPLATE.txt"));
        QCOMPARE(plan.items[2].newName, QString("A Promo"));
        QCOMPARE(plan.items[3].newName, QString("a Promo"));
        QCOMPARE(plan.items[4].remark, PlanItem::Remark::NameTaken);
    }

    void marksNamesThatAreTooLong()
    {
        const QString longName(128, QChar(u'ä')); // 256 bytes in 128 characters
        const TreeListing tree{{{"", "Template", FileKind::File}, {"", "Template.a", FileKind::File}}, {}};
        const CreationPlan fits = planCreation(tree, {QString(255, 'x')});
        QCOMPARE(fits.items[0].remark, PlanItem::Remark::None);
        QCOMPARE(fits.items[1].remark, PlanItem::Remark::NameTooLong);
        QVERIFY(fits.tooLongLevels.isEmpty());
        QCOMPARE(planCreation(tree, {longName}).tooLongLevels, QStringList{longName});
    }
};

QTEST_GUILESS_MAIN(TestCreationPlan)
#include "test_creation_plan.moc"
