// VTFileManager's operations on patterns of paths.
#include "support/VTFileManager.h"

#include "platform/base/NativePath.h"
#include "platform/files/FileSystem.h"
#include "support/VTLog.h"

using platform::FolderEntry;
using platform::joined;

namespace {

/// "?" is one character, also where that takes two units of UTF-16.
bool matches(QStringView pattern, QStringView name)
{
    qsizetype p = 0;
    qsizetype n = 0;
    qsizetype star = -1;
    qsizetype retry = 0;
    const auto width = [&](qsizetype at) {
        return name[at].isHighSurrogate() && at + 1 < name.size() && name[at + 1].isLowSurrogate() ? 2 : 1;
    };
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == u'*') {
            star = p++;
            retry = n;
        } else if (p < pattern.size() && pattern[p] == u'?') {
            n += width(n);
            ++p;
        } else if (p < pattern.size() && pattern[p] == name[n]) {
            ++n;
            ++p;
        } else if (star >= 0) {
            p = star + 1;
            n = retry += width(retry);
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == u'*')
        ++p;
    return p == pattern.size();
}

QList<FolderEntry> entriesOf(const QString &folder)
{
    const auto entries = platform::listFolder(folder);
    if (!entries && !entries.outcome().is(platform::Cause::NotAFolder)) // a file matches, but holds nothing
        VTLog::appendLog("A folder is left out of a search: %@", entries.outcome().description());
    return entries.valueOr({});
}

/// One step of a pattern: what of the candidates' contents goes on to the next.
QStringList step(const QStringList &candidates, const QString &component)
{
    QStringList found;
    for (const QString &candidate : candidates) {
        if (!component.contains(u'*')) {
            if (const QString path = joined(candidate, component); VTFileManager::fileExistsAtPath(path))
                found.append(path);
            continue;
        }
        for (const FolderEntry &entry : entriesOf(candidate)) {
            const QString path = joined(candidate, entry.name);
            if (matches(component, entry.name) && VTFileManager::fileExistsAtPath(path))
                found.append(path);
        }
    }
    return found;
}

} // namespace

QStringList VTFileManager::filesMatchingWildcardPath(const QString &pattern, const QString &fromBasePath)
{
    if (!pattern.contains(u'*'))
        return {fromBasePath.isNull() ? pattern : fromBasePath + u'/' + pattern};
    const QString base = fromBasePath.isNull() ? QStringLiteral("/") : fromBasePath;
    QStringList candidates{base};
    for (const QString &component : pattern.split(u'/', Qt::SkipEmptyParts))
        candidates = step(candidates, component);
    return candidates;
}

QString VTFileManager::decodeWildcardPath(const QString &pattern, const QString &fromBasePath)
{
    const QStringList found = filesMatchingWildcardPath(pattern, fromBasePath);
    return found.isEmpty() ? fromBasePath + u'/' + pattern : found.first();
}
