#include "platform/ApplicationLauncher.h"

#include "platform/ApplicationBundle.h"
#include "platform/ChildProcess.h"
#include "platform/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/NativePath.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

namespace platform {

QString executableOf(const QString &bundlePath)
{
    const QString name = ApplicationBundle(bundlePath).informationString(QStringLiteral("CFBundleExecutable"));
    const QString path = joined(joined(bundlePath, QStringLiteral("Contents/MacOS")), name);
    return !name.isEmpty() && isExecutableFile(path) ? path : QString();
}

bool openWithDesktopEntry(const QString &desktopEntry, const QString &file)
{
    QFile entry(desktopEntry);
    if (!entry.open(QIODevice::ReadOnly))
        return false;
    QString command;
    for (const QByteArray &line : entry.readAll().split('\n')) {
        if (line.startsWith("Exec="))
            command = QString::fromUtf8(line.mid(5)).trimmed();
        if (line.startsWith("[Desktop Action"))
            break;
    }
    QStringList words = QProcess::splitCommand(command);
    if (words.isEmpty())
        return false;
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
    return isExecutableFile(path) && child.start(ChildProcess::Output::Discarded, ChildProcess::ErrorOutput::Discarded);
}

} // namespace platform
