// VTFileManager's type tests, and the given face of its core operations.
#include "support/VTFileManager.h"

#include "platform/files/FileSystem.h"
#include "platform/files/Packages.h"
#include "support/FileOperations.h"

bool VTFileManager::fileExistsAtPath(const QString &path)
{
    return platform::targetExists(path);
}

bool VTFileManager::isDirectoryAtPath(const QString &path)
{
    return platform::leadsToFolder(path);
}

bool VTFileManager::isPackageAtPath(const QString &path)
{
    return platform::isPackage(path);
}

bool VTFileManager::isSymbolicLinkAtPath(const QString &path)
{
    return platform::kindOf(path) == platform::FileKind::Link;
}

bool VTFileManager::createDirectory(const QString &path, ShouldAuth shouldAuth)
{
    return fileoperations::createDirectory(path, shouldAuth).ok();
}

bool VTFileManager::createDirectory(const QString &path, Seconds timeout)
{
    return fileoperations::createDirectory(path, timeout).ok();
}

bool VTFileManager::copyFile(const QString &source, const QString &toPath, ShouldAuth shouldAuth)
{
    return fileoperations::copyFile(source, toPath, shouldAuth).ok();
}

bool VTFileManager::copyFile(const QString &source, const QString &toPath, Seconds timeout)
{
    return fileoperations::copyFile(source, toPath, timeout).ok();
}

bool VTFileManager::moveFile(const QString &source, const QString &toPath, ShouldAuth shouldAuth)
{
    return fileoperations::moveFile(source, toPath, shouldAuth).ok();
}

bool VTFileManager::moveFile(const QString &source, const QString &toPath, Seconds timeout)
{
    return fileoperations::moveFile(source, toPath, timeout).ok();
}

bool VTFileManager::removeFile(const QString &path, ShouldAuth shouldAuth)
{
    return fileoperations::removeFile(path, shouldAuth).ok();
}

bool VTFileManager::removeFile(const QString &path, Seconds timeout)
{
    return fileoperations::removeFile(path, timeout).ok();
}

bool VTFileManager::trashFile(const QString &path, ShouldAuth shouldAuth)
{
    return fileoperations::trashFile(path, shouldAuth).ok();
}

bool VTFileManager::trashFile(const QString &path, Seconds timeout)
{
    return fileoperations::trashFile(path, timeout).ok();
}
