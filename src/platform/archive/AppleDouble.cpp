#include "platform/archive/AppleDouble.h"

#include <QtEndian>

namespace platform {
namespace {

constexpr quint32 magic = 0x00051607;
constexpr quint32 version2 = 0x00020000;
constexpr quint32 finderInfoEntry = 9;
constexpr quint32 resourceForkEntry = 2;
constexpr qsizetype headerSize = 26;
constexpr qsizetype entrySize = 12;
constexpr qsizetype finderInfoSize = 32;
constexpr qsizetype flagsOffset = 8;

template <typename Number> void append(QByteArray &bytes, Number number)
{
    char buffer[sizeof number];
    qToBigEndian(number, buffer);
    bytes.append(buffer, sizeof buffer);
}

} // namespace

QByteArray appleDoubleWithFlags(quint16 flagsWord)
{
    QByteArray bytes;
    append(bytes, magic);
    append(bytes, version2);
    bytes.append("Mac OS X        ", 16);
    append(bytes, quint16{2});
    const auto dataStart = static_cast<quint32>(headerSize + 2 * entrySize);
    for (const quint32 number : {finderInfoEntry, dataStart, quint32{finderInfoSize}, resourceForkEntry,
                                 dataStart + quint32{finderInfoSize}, quint32{0}})
        append(bytes, number);
    QByteArray finderInfo(finderInfoSize, '\0');
    qToBigEndian(flagsWord, finderInfo.data() + flagsOffset);
    return bytes + finderInfo;
}

std::optional<quint16> flagsFromAppleDouble(const QByteArray &bytes)
{
    if (bytes.size() < headerSize || qFromBigEndian<quint32>(bytes.constData()) != magic)
        return std::nullopt;
    const auto entries = qFromBigEndian<quint16>(bytes.constData() + 24);
    for (qsizetype i = 0; i < entries && headerSize + (i + 1) * entrySize <= bytes.size(); ++i) {
        const char *entry = bytes.constData() + headerSize + i * entrySize;
        const auto offset = qsizetype{qFromBigEndian<quint32>(entry + 4)};
        const auto length = qsizetype{qFromBigEndian<quint32>(entry + 8)};
        if (qFromBigEndian<quint32>(entry) == finderInfoEntry && length >= finderInfoSize &&
            offset + finderInfoSize <= bytes.size())
            return qFromBigEndian<quint16>(bytes.constData() + offset + flagsOffset);
    }
    return std::nullopt;
}

} // namespace platform
