#include "platform/desktop/ApplicationLauncher.h"

#include "platform/base/NativePath.h"
#include "platform/desktop/FileAddress.h"
#include "platform/files/ApplicationBundle.h"
#include "platform/files/FileSystem.h"
#include "platform/files/WholeFile.h"
#include "platform/process/ChildProcess.h"

#include <QProcess>
#include <QStandardPaths>

namespace platform {

QString executableOf(const QString &bundlePath)
{
    const QString name = ApplicationBundle(bundlePath).informationString(QStringLiteral("CFBundleExecutable"));
    const QString path = joined(joined(bundlePath, QStringLiteral("Contents/MacOS")), name);
    return !name.isEmpty() && isExecutableFile(path) ? path : QString();
}

QString registeredApplication(const QString &bundleIdentifier)
{
    const QString entry = bundleIdentifier + QStringLiteral(".desktop");
    const QString path = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, entry);
    return path.isEmpty() ? QString() : path;
}

Outcome openWithDesktopEntry(const QString &desktopEntry, const QString &file)
{
    const Result<QByteArray> entry = readFile(desktopEntry);
    if (!entry)
        return entry.outcome();
    QString command;
    for (const QByteArray &line : entry->split('\n')) {
        if (line.startsWith("Exec="))
            command = QString::fromUtf8(line.mid(5)).trimmed();
        if (line.startsWith("[Desktop Action"))
            break;
    }
    QStringList words = QProcess::splitCommand(command);
    if (words.isEmpty())
        return Outcome::failure(Cause::Damaged, desktopEntry);
    const QString program = words.takeFirst();
    const QString path = program.startsWith(u'/') ? program : QStandardPaths::findExecutable(program);
    bool isNamed = false;
    QStringList arguments;
    for (const QString &word : std::as_const(words)) {
        if (word.size() == 2 && word.startsWith(u'%')) {
            const QChar code = word[1];
            if (QStringLiteral("fFuU").contains(code) && !std::exchange(isNamed, true))
                arguments.append(code.toLower() == u'f' ? file : fileAddress(file));
        } else {
            arguments.append(word);
        }
    }
    if (!isNamed)
        arguments.append(file);
    ChildProcess child(path, arguments); // collects itself in the background
    return isExecutableFile(path) ? child.start(ChildProcess::Output::Discarded, ChildProcess::ErrorOutput::Discarded)
                                  : Outcome::failure(Cause::Missing, program);
}

} // namespace platform
