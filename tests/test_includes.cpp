// The rooms of the house: includes run downwards only, the desktop and the file system stay in the platform rooms, and
// what is called a core room knows no widgets.
#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QTest>

namespace {

/// The rooms, from the bottom up. Rooms of one level do not know of each other.
const QList<QStringList> levels{
    {"platform/plain"},
    {"helper"},
    {"platform/base"},
    {"platform/files"},
    {"platform/process", "platform/archive"},
    {"platform/process/bus", "platform/desktop"},
    {"support"},
    {"ui", "templates", "parameters", "diagnostics"},
    {"creation"},
    {"templates/editor", "parameters/table"},
    {"preferences"},
    {"app", "commands"},
    {"."},
};

/// Usable from a test, a command and a window alike.
const QStringList coreRooms{"support", "templates", "parameters", "creation", "helper"};

int levelOf(const QString &room)
{
    for (int i = 0; i < levels.size(); ++i) {
        if (levels[i].contains(room))
            return i;
    }
    return -1;
}

/// "templates/editor/TemplatePane.h" lies in templates/editor; null for what is none of ours.
QString roomOf(const QString &path)
{
    const QString folder = path.section('/', 0, -2);
    return folder.isEmpty() ? QString() : levelOf(folder) >= 0 ? folder : QString();
}

bool isPlatform(const QString &room)
{
    return room.startsWith("platform/") || room == "helper";
}

/// Headers of the operating system and of libraries that only the platform rooms may know.
const QRegularExpression systemHeader(
    "^(sys/|linux/|(unistd|fcntl|dirent|spawn|poll|pwd|grp|signal|termios|csignal|cerrno|errno|archive|archive_entry|"
    "langinfo)(\\.h)?$|plist/|gio/|glib|xcb/|xkbcommon/|QtDBus|QDBus)");

/// The toolkit's file classes do not know names that are no UTF-8, and their failures are no Outcome; errno is the
/// kernel's.
const QRegularExpression fileWord(
    "\\b(Q(File|Dir|FileInfo|SaveFile|LockFile|TemporaryDir|TemporaryFile|DirIterator)|errno|E(PERM|NOENT|IO|BADF|"
    "AGAIN|"
    "ACCES|BUSY|EXIST|XDEV|NODEV|NOTDIR|ISDIR|INVAL|MFILE|TXTBSY|FBIG|NOSPC|ROFS|PIPE|NAMETOOLONG|NOSYS|NOTEMPTY|LOOP|"
    "STALE|DQUOT|CANCELED|NOTSUP|OPNOTSUPP))\\b");

bool isWidgetHeader(const QString &included)
{
    static const QString folder = QLibraryInfo::path(QLibraryInfo::HeadersPath) + "/QtWidgets/";
    return included.startsWith("QtWidgets") || included.startsWith("ui_") || QFile::exists(folder + included);
}

QString withoutComments(QString source)
{
    static const QRegularExpression comments("//[^\n]*|/\\*.*?\\*/|\"(\\\\.|[^\"\\\\\n])*\"",
                                             QRegularExpression::DotMatchesEverythingOption);
    return source.remove(comments);
}

QStringList includesOf(const QString &source)
{
    QStringList includes;
    static const QRegularExpression include("^\\s*#\\s*include\\s*[\"<]([^\">]+)[\">]",
                                            QRegularExpression::MultilineOption);
    for (const auto &match : include.globalMatch(source))
        includes.append(match.captured(1));
    return includes;
}

QString complaint(const QString &room, const QString &included)
{
    const QString target = roomOf(included);
    if (!target.isNull() && target != room && levelOf(target) >= levelOf(room))
        return "runs up or sideways";
    if (!isPlatform(room) && systemHeader.match(included).hasMatch())
        return "brings the desktop out of the platform rooms";
    if ((coreRooms.contains(room) || room.startsWith("platform/")) && isWidgetHeader(included) &&
        room != "platform/desktop")
        return "brings widgets into a core room";
    return {};
}

QStringList complaintsAbout(const QString &relative, const QString &source)
{
    const QString room = relative.contains('/') ? relative.section('/', 0, -2) : QStringLiteral(".");
    if (levelOf(room) < 0)
        return {relative + ": an unknown room"};
    QStringList complaints;
    for (const QString &included : includesOf(source)) {
        if (const QString text = complaint(room, included); !text.isEmpty())
            complaints.append(relative + ": " + included + ' ' + text);
    }
    const auto word = isPlatform(room) ? QRegularExpressionMatch() : fileWord.match(withoutComments(source));
    if (word.hasMatch())
        complaints.append(relative + ": " + word.captured() + " belongs to the platform rooms");
    return complaints;
}

} // namespace

class TestIncludes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHouseHolds()
    {
        const QString root = QStringLiteral(TESSARO_SOURCE_DIR "/src/");
        QDirIterator files(root, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
        int checked = 0;
        QStringList complaints;
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            complaints += complaintsAbout(file.fileName().mid(root.size()), QString::fromUtf8(file.readAll()));
            ++checked;
        }
        QVERIFY2(checked > 100, "The sources were not found");
        QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join('\n')));
    }

    /// The tests lie as what they test does; what they share lies in harness/.
    void testsMirrorTheSources()
    {
        const QString root = QStringLiteral(TESSARO_SOURCE_DIR "/tests/");
        QDirIterator files(root, {"test_*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString relative = files.next().mid(root.size());
            const QString room = relative.contains('/') ? relative.section('/', 0, -2) : QStringLiteral(".");
            QVERIFY2(levelOf(room) >= 0, qPrintable(relative + " lies in no room of src/"));
        }
    }

    /// The test itself must be able to fail.
    void catchesWhatItIsFor()
    {
        QVERIFY(!complaint("support", "ui/Icons.h").isEmpty());
        QVERIFY(!complaint("helper", "platform/base/NativePath.h").isEmpty());
        QVERIFY(!complaint("platform/base", "platform/files/Trash.h").isEmpty());
        QVERIFY(!complaint("templates", "parameters/ProjectNaming.h").isEmpty());
        QVERIFY(!complaint("templates", "templates/editor/TemplatePane.h").isEmpty());
        QVERIFY(!complaint("app", "commands/CommandLine.h").isEmpty());
        QVERIFY(!complaint("support", "sys/stat.h").isEmpty());
        QVERIFY(!complaint("app", "QDBusConnection").isEmpty());
        QVERIFY(!complaint("creation", "QWidget").isEmpty());
        QVERIFY(!complaint("templates", "QMessageBox").isEmpty());
        QVERIFY(complaint("templates/editor", "QMenu").isEmpty());
        QVERIFY(complaint("app", "parameters/ProjectNaming.h").isEmpty());
        QVERIFY(complaint("platform/files", "sys/stat.h").isEmpty());
        QVERIFY(!complaintsAbout("app/X.cpp", "QFile file(path);").isEmpty());
        QVERIFY(!complaintsAbout("app/X.cpp", "if (error == ENOSPC)").isEmpty());
        QVERIFY(!complaintsAbout("elsewhere/X.cpp", "").isEmpty());
        QVERIFY(complaintsAbout("app/X.cpp", "QFileDialog panel; // unlike QFile\ntr(\"ENOSPC\");").isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestIncludes)
#include "test_includes.moc"
