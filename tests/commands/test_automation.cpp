// The recipes of docs/automation.md run as they stand, and print what stands below them.
#include "harness/TemporaryHome.h"

#include <QCoreApplication>
#include <QDate>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <pwd.h>
#include <unistd.h>

namespace {

struct Recipe
{
    QString title;
    QString script;
    QString output;
};

QList<Recipe> recipes()
{
    QFile file(TESSARO_SOURCE_DIR "/docs/automation.md");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("docs/automation.md cannot be read");
    static const QRegularExpression form("^## (.+?)$.*?^```sh\n(.*?)^```$.*?^```text\n(.*?)^```$",
                                         QRegularExpression::MultilineOption |
                                             QRegularExpression::DotMatchesEverythingOption);
    QList<Recipe> found;
    for (const auto &match : form.globalMatch(QString::fromUtf8(file.readAll())))
        found.append({match.captured(1), match.captured(2), match.captured(3)});
    return found;
}

/// As it was written down: by anna, on that day.
QString asWritten(QString output)
{
    const passwd *user = getpwuid(geteuid());
    return output.replace(QDate::currentDate().toString(Qt::ISODate), "2026-11-22")
        .replace(u'_' + QString::fromLocal8Bit(user ? user->pw_name : "") + u'_', "_anna_");
}

} // namespace

class TestAutomation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fiveOfThem() { QCOMPARE(recipes().size(), 5); }

    void recipe_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("output");
        for (const Recipe &one : recipes())
            QTest::newRow(qPrintable(one.title)) << one.script << one.output;
    }

    void recipe()
    {
        QFETCH(QString, script);
        QFETCH(QString, output);
        const TemporaryHome home;
        QProcess shell;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("PATH", QCoreApplication::applicationDirPath() + u':' + environment.value("PATH"));
        shell.setProcessEnvironment(environment);
        shell.setWorkingDirectory(home.path());
        shell.start("/bin/bash", {"-euo", "pipefail", "-c", script});
        QVERIFY(shell.waitForFinished(120'000));
        const QByteArray complaints = shell.readAllStandardError();
        QCOMPARE(asWritten(QString::fromUtf8(shell.readAllStandardOutput())), output);
        QVERIFY2(shell.exitStatus() == QProcess::NormalExit && shell.exitCode() == 0, complaints.constData());
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestAutomation)
#include "test_automation.moc"
