#pragma once

#include "harness/TemporaryHome.h"
#include "platform/base/NativePath.h"
#include "platform/base/PropertyList.h"
#include "platform/files/FileSystem.h"
#include "platform/files/FileTree.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

/** A home folder in which commands are run, each a process of its own, by a shell that knows the program as "$T". */
class OwnHome
{
public:
    struct Ended
    {
        int status = -1;
        QByteArray output;
        QByteArray errors;
        [[nodiscard]] QJsonObject object() const { return QJsonDocument::fromJson(output).object(); }
    };

    OwnHome() { static_cast<void>(platform::makeFolders(path("Projects"))); }
    ~OwnHome() { static_cast<void>(platform::removeTree(m_folder.path())); }
    OwnHome(const OwnHome &) = delete;
    OwnHome &operator=(const OwnHome &) = delete;

    [[nodiscard]] QString path(const QString &below) const { return m_folder.filePath(below); }
    [[nodiscard]] QString settingsFile() const { return path("Library/Preferences/com.vantrel.Tessaro.plist"); }
    void setSettings(const QVariantMap &settings) const
    {
        writeFile(settingsFile(), platform::writePropertyList(settings));
    }
    /** The template's files lie in it, under their paths, each with its path as contents. */
    void makeTemplate(const QString &name, const QStringList &files) const
    {
        for (const QString &file : files)
            writeFile(path("Library/Application Support/Vantrel/Tessaro/Templates/" + name + ".tzt/Files/" + file),
                      file.toUtf8());
    }
    [[nodiscard]] QProcessEnvironment environment() const
    {
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        variables.insert("HOME", m_folder.path());
        variables.insert("T", QCoreApplication::applicationDirPath() + "/Tessaro");
        for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            variables.remove(variable);
        return variables;
    }
    [[nodiscard]] Ended sh(const QString &script, const QByteArray &input = {}, const QString &shell = "/bin/sh") const
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.setWorkingDirectory(m_folder.path());
        process.start(shell, {"-c", script});
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(60000))
            return {};
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

private:
    QTemporaryDir m_folder;
};
