// Includes run downwards only, and the desktop stays in the platform room.
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

/// The rooms, from the bottom up. Rooms of one level do not know of each other.
const QList<QStringList> levels{
    {"helper"}, {"platform"}, {"support"}, {"ui"}, {"templates", "parameters", "diagnostics"}, {"preferences"}, {"app"}, {"."},
};

int levelOf(const QString &room)
{
    for (int i = 0; i < levels.size(); ++i) {
        if (levels[i].contains(room))
            return i;
    }
    return -1;
}

/// Headers of the operating system and of libraries that only the platform room may know.
const QRegularExpression systemHeader(
    "^(sys/|linux/|(unistd|fcntl|dirent|spawn|poll|pwd|grp|signal|termios|csignal|archive|archive_entry|langinfo)(\\.h)?$"
    "|plist/|gio/|glib|xcb/|xkbcommon/|QtDBus|QDBus)");

QStringList includesOf(const QString &path)
{
    QFile file(path);
    QStringList includes;
    if (!file.open(QIODevice::ReadOnly))
        return includes;
    static const QRegularExpression include("^\\s*#\\s*include\\s*[\"<]([^\">]+)[\">]");
    for (const QString &line : QString::fromUtf8(file.readAll()).split('\n')) {
        if (const auto match = include.match(line); match.hasMatch())
            includes.append(match.captured(1));
    }
    return includes;
}

} // namespace

class TestIncludes : public QObject
{
    Q_OBJECT

private:
    static QString complaint(const QString &room, const QString &included)
    {
        const QString target = included.section('/', 0, 0);
        const bool known = included.contains('/') && levelOf(target) >= 0;
        if (known && target != room && levelOf(target) >= levelOf(room))
            return "runs up or sideways";
        if (room != "platform" && room != "helper" && systemHeader.match(included).hasMatch())
            return "brings the desktop out of the platform room";
        return {};
    }

private Q_SLOTS:
    void runDownwards()
    {
        const QString root = QStringLiteral(TESSARO_SOURCE_DIR "/src/");
        QDirIterator files(root, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
        int checked = 0;
        QStringList complaints;
        while (files.hasNext()) {
            const QString path = files.next();
            const QString relative = path.mid(root.size());
            const QString room = relative.contains('/') ? relative.section('/', 0, 0) : QStringLiteral(".");
            QVERIFY2(levelOf(room) >= 0, qPrintable("An unknown room: " + relative));
            for (const QString &included : includesOf(path)) {
                ++checked;
                if (const QString text = complaint(room, included); !text.isEmpty())
                    complaints.append(relative + ": " + included + " " + text);
            }
        }
        QVERIFY2(checked > 100, "The sources were not found");
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join('\n')));
    }

    /// The test itself must be able to fail.
    void catchesWhatItIsFor()
    {
        QVERIFY(!complaint("support", "ui/Icons.h").isEmpty());
        QVERIFY(!complaint("helper", "platform/NativePath.h").isEmpty());
        QVERIFY(!complaint("templates", "parameters/ProjectNaming.h").isEmpty());
        QVERIFY(!complaint("support", "sys/stat.h").isEmpty());
        QVERIFY(!complaint("app", "QDBusConnection").isEmpty());
        QVERIFY(complaint("app", "parameters/ProjectNaming.h").isEmpty());
        QVERIFY(complaint("platform", "sys/stat.h").isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestIncludes)
#include "test_includes.moc"
