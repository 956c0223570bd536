#include "platform/base/NativePath.h"

#include <QStringList>
#include <climits>
#include <unistd.h>

namespace platform {
namespace {

constexpr char16_t escapeBase = 0xDC00;

bool isEscapedByte(QChar character)
{
    return character.unicode() >= 0xDC80 && character.unicode() <= 0xDCFF;
}

/// Length of the valid UTF-8 sequence that starts at the position (shortest form, no surrogates), or 0.
qsizetype sequenceLength(QByteArrayView bytes, qsizetype at)
{
    const auto byte = [&](qsizetype i) {
        return i < bytes.size() ? static_cast<uchar>(bytes[i]) : 0u;
    };
    const uint first = byte(at);
    if (first < 0x80)
        return 1;
    const qsizetype length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4)
        return 0;
    for (qsizetype i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0) != 0x80)
            return 0;
    }
    const uint second = byte(at + 1);
    const bool bad = (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                     (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
    return bad ? 0 : length;
}

/// Index of the first escaped byte at or after the position, or -1. A low surrogate that ends a pair is no escape.
qsizetype nextEscape(const QString &path, qsizetype from)
{
    for (qsizetype i = from; i < path.size(); ++i) {
        if (path[i].isHighSurrogate() && i + 1 < path.size() && path[i + 1].isLowSurrogate())
            ++i;
        else if (isEscapedByte(path[i]))
            return i;
    }
    return -1;
}

} // namespace

QByteArray toNative(const QString &path)
{
    qsizetype escape = nextEscape(path, 0);
    if (escape < 0)
        return path.toUtf8();
    QByteArray bytes;
    qsizetype at = 0;
    for (; escape >= 0; escape = nextEscape(path, at)) {
        bytes += QStringView(path).sliced(at, escape - at).toUtf8();
        bytes += static_cast<char>(path[escape].unicode() - escapeBase);
        at = escape + 1;
    }
    return bytes + QStringView(path).sliced(at).toUtf8();
}

QString fromNative(QByteArrayView bytes)
{
    if (bytes.isValidUtf8())
        return QString::fromUtf8(bytes);
    QString path;
    qsizetype start = 0;
    for (qsizetype at = 0; at < bytes.size();) {
        if (const qsizetype length = sequenceLength(bytes, at)) {
            at += length;
            continue;
        }
        path += QString::fromUtf8(bytes.sliced(start, at - start));
        path += QChar(static_cast<char16_t>(escapeBase + static_cast<uchar>(bytes[at])));
        start = ++at;
    }
    return path + QString::fromUtf8(bytes.sliced(start));
}

QString forDisplay(const QString &path)
{
    QString shown = path;
    for (qsizetype i = nextEscape(shown, 0); i >= 0; i = nextEscape(shown, i + 1))
        shown[i] = QChar::ReplacementCharacter;
    return shown;
}

QString forOneLine(const QString &path)
{
    QString shown = forDisplay(path);
    for (QChar &character : shown) {
        if (character.category() == QChar::Other_Control)
            character = QChar::ReplacementCharacter;
    }
    return shown;
}

QString lastComponent(const QString &path)
{
    qsizetype end = path.size();
    while (end > 1 && path[end - 1] == u'/')
        --end;
    const qsizetype slash = end > 1 ? path.lastIndexOf(u'/', end - 1 - path.size()) : -1;
    return path.mid(slash + 1, end - slash - 1);
}

QString parentPath(const QString &path)
{
    qsizetype end = path.size();
    while (end > 1 && path[end - 1] == u'/')
        --end;
    const qsizetype slash = QStringView(path).first(end).lastIndexOf(u'/');
    return slash < 0 ? QString(QLatin1String("")) : slash == 0 ? QStringLiteral("/") : path.first(slash);
}

QString joined(const QString &folder, const QString &component)
{
    if (component.isEmpty())
        return folder;
    QString path = folder;
    while (path.endsWith(u'/'))
        path.chop(1);
    return component.startsWith(u'/') ? path + component : path + u'/' + component;
}

QString absolutePath(const QString &path)
{
    QString whole = path;
    if (!path.startsWith(u'/')) {
        char folder[PATH_MAX];
        whole = joined(getcwd(folder, sizeof folder) ? fromNative(folder) : QStringLiteral("/"), path);
    }
    QStringList steps;
    for (const QString &step : whole.split(u'/', Qt::SkipEmptyParts)) {
        if (step == u".." && !steps.isEmpty())
            steps.removeLast();
        else if (step != u"." && step != u"..")
            steps.append(step);
    }
    return u'/' + steps.join(u'/');
}

bool isInside(const QString &path, const QString &folder)
{
    return path.size() > folder.size() && path.startsWith(folder) &&
           (folder.endsWith(u'/') || path[folder.size()] == u'/');
}

QString extensionOf(const QString &path)
{
    const QString name = lastComponent(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot <= 0 ? QString(QLatin1String("")) : name.mid(dot + 1);
}

QString withoutExtension(const QString &path)
{
    const QString extension = extensionOf(path);
    return extension.isEmpty() ? path : path.chopped(extension.size() + 1);
}

} // namespace platform
