// Several programs at once on one library, one list of parameters, one log and one place for projects, beside an open
// window: nothing is lost, no number comes twice, and every line of the log is a line.
//
// For three seconds; for as long as TESSARO_TOGETHER_SECONDS says. With two programs, then with sixteen.
#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/files/FileSystem.h"
#include "platform/files/WholeFile.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QTextStream>
#include <atomic>
#include <mutex>
#include <thread>

class TestTogether : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_home;
    std::mutex m_mutex;
    QStringList m_projects;
    QStringList m_wrong;

    QString home(const QString &path) const { return m_home->filePath(path); }
    QString library(const QString &path) const
    {
        return home("Library/Application Support/Vantrel/Tessaro/Templates/" + path);
    }
    QString settingsFile() const { return home("Library/Preferences/com.vantrel.Tessaro.plist"); }

    std::unique_ptr<QProcess> start(const QStringList &words) const
    {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", m_home->path());
        environment.remove("XDG_DATA_HOME");
        process->setProcessEnvironment(environment);
        process->start(QCoreApplication::applicationDirPath() + "/Tessaro", words);
        return process;
    }
    /// What the command printed; what it should not have said is noted.
    QString run(const QStringList &words)
    {
        const auto process = start(words);
        process->waitForFinished(120'000);
        const QString said = QString::fromUtf8(process->readAllStandardOutput()).trimmed();
        if (process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0)
            return said;
        const std::scoped_lock lock(m_mutex);
        m_wrong << words.join(' ') + QStringLiteral(": %1 ").arg(process->exitCode()) +
                       QString::fromUtf8(process->readAllStandardError());
        return {};
    }
    void work(int number, const QDeadlineTimer &end)
    {
        for (int i = 0; !end.hasExpired(); ++i) {
            const QString own = QStringLiteral("%1-%2").arg(number).arg(i);
            switch (QRandomGenerator::global()->bounded(6)) {
            case 0:
                run({"settings", "set", "separatorChar", i % 2 == 0 ? "-" : "_"});
                break;
            case 1:
                run({"parameters", "add", "Title " + own, "text", own});
                run({"parameters", "remove", "Title " + own, "--yes"});
                break;
            case 2:
                run({"template", "new", "New " + own});
                run({"template", "rename", "New " + own, "Named " + own});
                run({"template", "remove", "Named " + own, "--yes"});
                break;
            default:
                const QString project =
                    run({"create", "--template", "Film", "--in", home("Projects"), "--set", "Name=" + own});
                const std::scoped_lock lock(m_mutex);
                if (!project.isNull())
                    m_projects << project;
            }
        }
    }
    void checkLogs()
    {
        static const QRegularExpression line(
            "^(\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d [+-]\\d{4} - .*|Log started: .*|Version: "
            ".*|Path: .*|System: .*|Running in .*|)$");
        int created = 0;
        const QString folder = home("Library/Logs/Vantrel");
        const auto files = platform::listFolder(folder).valueOr({});
        for (const auto &file : files) {
            if (!file.name.endsWith(u".task.log"))
                continue;
            for (const QByteArray &text : readFile(platform::joined(folder, file.name)).split('\n')) {
                if (!line.match(QString::fromUtf8(text)).hasMatch())
                    m_wrong << "a line of the log: " + QString::fromUtf8(text);
                created += text.endsWith("Template created successfully");
            }
        }
        if (files.size() < 6 && created != m_projects.size()) // nothing has been rotated away
            m_wrong << QStringLiteral("%1 projects, %2 in the log").arg(m_projects.size()).arg(created);
    }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        m_projects.clear();
        m_wrong.clear();
        for (const char *file : {"Sub/Template.txt", "a", "b"})
            writeFile(library(QStringLiteral("Film.tzt/Files/") + file), file);
        QVERIFY(platform::makeFolders(home("Projects")).ok());
        const QVariantList list{QVariantMap{{"title", "Job"}, {"type", 2}, {"val", "0001"}},
                                QVariantMap{{"title", "Name"}, {"saveHistory", true}}};
        writeFile(settingsFile(), platform::writePropertyList(QVariantMap{
                                      {"filenameTemplate", list}, {"firstRun", false}, {"autoOpenFolder", 0}}));
    }

    void nothingIsLost_data()
    {
        QTest::addColumn<int>("programs");
        QTest::newRow("two") << 2;
        QTest::newRow("sixteen") << 16;
    }
    void nothingIsLost()
    {
        QFETCH(int, programs);
        const int seconds = qEnvironmentVariableIntValue("TESSARO_TOGETHER_SECONDS");
        const auto window = start({});
        QVERIFY(window->waitForStarted());
        const QDeadlineTimer end(std::chrono::seconds(seconds > 0 ? seconds : 3));
        std::vector<std::thread> threads;
        for (int i = 0; i < programs; ++i)
            threads.emplace_back([this, i, &end] { work(i, end); });
        for (std::thread &thread : threads)
            thread.join();
        QVERIFY2(window->state() == QProcess::Running, window->readAllStandardError().constData());
        window->terminate();
        QVERIFY(window->waitForFinished());

        QSet<QString> numbers;
        for (const QString &project : std::as_const(m_projects)) {
            const QString name = platform::lastComponent(project);
            numbers.insert(name.left(4));
            if (readFile(project + "/Sub/" + name + ".txt") != "Sub/Template.txt" || readFile(project + "/b") != "b")
                m_wrong << "a project that is not whole: " + project;
        }
        if (numbers.size() != m_projects.size())
            m_wrong << QStringLiteral("%1 projects, %2 numbers").arg(m_projects.size()).arg(numbers.size());
        const auto list = platform::readPropertyListFile(settingsFile())->toMap()["filenameTemplate"].toList();
        if (list.size() != 2 || list[0].toMap()["val"].toInt() != m_projects.size() + 1)
            m_wrong << QStringLiteral("%1 parameters, the next number is %2")
                           .arg(list.size())
                           .arg(list.value(0).toMap()["val"].toString());
        if (platform::listFolder(library({}))->size() != 1 ||
            platform::listFolder(home("Projects"))->size() != m_projects.size())
            m_wrong << "something is left in the library, or beside the projects";
        checkLogs();
        if (seconds > 0)
            QTextStream(stdout) << programs << " programs: " << m_projects.size() << " projects\n";
        QVERIFY2(m_wrong.isEmpty(), qPrintable('\n' + m_wrong.join('\n')));
        QVERIFY(!m_projects.isEmpty());
    }
};

TESSARO_TEST_MAIN(QCoreApplication, TestTogether)
#include "test_together.moc"
