// What a creation will make, computed without the disk.
#include "app/CreationPlan.h"
#include "app/HelpPages.h"

#include <QTest>
#include <QUrlQuery>

using platform::FileKind;

class TestCreationPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesInProject_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected");
        QTest::newRow("stem") << "Template.fcp" << "Acme_Promo.fcp";
        QTest::newRow("in the middle, upper case") << "My TEMPLATE notes.txt" << "My Acme_Promo notes.txt";
        QTest::newRow("only in the extension") << "notes.template" << "notes.template";
        QTest::newRow("in both") << "template.template" << "Acme_Promo.Acme_Promo";
        QTest::newRow("twice") << "TemplateTemplate" << "Acme_PromoAcme_Promo";
        QTest::newRow("hidden, so no extension") << ".template" << ".Acme_Promo";
        QTest::newRow("last dot only") << "a.template.b" << "a.Acme_Promo.b";
        QTest::newRow("nothing to do") << "Footage" << "Footage";
        QTest::newRow("split word") << "temp late" << "temp late";
    }
    void namesInProject()
    {
        QFETCH(QString, name);
        QTEST(nameInProject(name, "Acme_Promo"), "expected");
    }

    void followsRenamedFolders()
    {
        const TemplateTree tree{{{"", "Template", FileKind::Folder},
                                 {"Template", "Sub template", FileKind::Folder},
                                 {"Template/Sub template", "template.txt", FileKind::File},
                                 {"", "x.txt", FileKind::File}},
                                {}};
        const CreationPlan plan = planCreation(tree, {"Acme", "Promo"});
        QCOMPARE(plan.items[1].folder, QString("Promo"));
        QCOMPARE(plan.items[2].folder, QString("Promo/Sub Promo"));
        QCOMPARE(plan.items[2].newName, QString("Promo.txt"));
        QCOMPARE(plan.folders(), 2);
        QCOMPARE(plan.files(), 2);
        QCOMPARE(plan.renamed(), 3);
        QCOMPARE(drawnPlan(plan, "/p/Acme/Promo"), QString("/p/Acme/Promo\n"
                                                           "├── Promo/  (was Template)\n"
                                                           "│   └── Sub Promo/  (was Sub template)\n"
                                                           "│       └── Promo.txt  (was template.txt)\n"
                                                           "└── x.txt\n"));
    }

    void marksCollisionsInListingOrder()
    {
        // The first one to be renamed gets the name; a sibling that had it all along keeps it.
        const TemplateTree tree{{{"", "Promo.txt", FileKind::File},
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
        const TemplateTree tree{{{"", "Template", FileKind::File}, {"", "Template.a", FileKind::File}}, {}};
        const CreationPlan fits = planCreation(tree, {QString(255, 'x')});
        QCOMPARE(fits.items[0].remark, PlanItem::Remark::None);
        QCOMPARE(fits.items[1].remark, PlanItem::Remark::NameTooLong);
        QVERIFY(fits.tooLongLevels.isEmpty());
        QCOMPARE(planCreation(tree, {longName}).tooLongLevels, QStringList{longName});
    }

    void drawsNamesOnOneLine()
    {
        const TemplateTree tree{{{"", "a\nb", FileKind::File}}, {}};
        QCOMPARE(drawnPlan(planCreation(tree, {"P"}), "/P").count('\n'), 2);
    }

    void helpAddresses()
    {
        const QUrl bug = help::addressOf(help::Page::ReportBug, {}, "2.0+b&c ü");
        QCOMPARE(bug.toEncoded(),
                 QByteArray("https://www.vantrel.example/support/bug?app=tessaro&version=2.0%2Bb%26c%20%C3%BC"));
        QVERIFY(!QUrlQuery(help::addressOf(help::Page::SuggestFeature, {}, "1")).hasQueryItem("version"));
        const QVariantMap own{{"reportBug", "https://help.example/x?team=7"}};
        QCOMPARE(help::addressOf(help::Page::ReportBug, own, "1").toEncoded(),
                 QByteArray("https://help.example/x?team=7&app=tessaro&version=1"));
    }
};

QTEST_GUILESS_MAIN(TestCreationPlan)
#include "test_creation_plan.moc"
