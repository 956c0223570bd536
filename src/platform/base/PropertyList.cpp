#include "platform/base/PropertyList.h"

#include <QDateTime>
#include <QTimeZone>
#include <QtEndian>
#include <memory>
#include <plist/plist.h>

namespace platform {
namespace {

constexpr qsizetype maximumSize = qsizetype{16} * 1024 * 1024;
constexpr qsizetype maximumContainers = 5000;

struct PlistDeleter
{
    void operator()(void *node) const { plist_free(node); }
};
using PlistPtr = std::unique_ptr<void, PlistDeleter>;

/// Property lists count seconds from the first instant of 2001, UTC.
QDateTime epoch()
{
    return QDateTime(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());
}

qsizetype containersInXml(const QByteArray &bytes)
{
    return bytes.count("<dict") + bytes.count("<array");
}

/// Counts the objects of the binary form whose marker says list, set or dictionary. Any depth of nesting needs as many.
qsizetype containersInBinary(const QByteArray &bytes)
{
    constexpr qsizetype trailerSize = 32;
    if (bytes.size() < 8 + trailerSize)
        return maximumContainers + 1;
    const char *trailer = bytes.constData() + bytes.size() - trailerSize;
    const auto offsetSize = static_cast<quint64>(static_cast<uchar>(trailer[6]));
    const auto objects = qFromBigEndian<quint64>(trailer + 8);
    const auto table = qFromBigEndian<quint64>(trailer + 24);
    const auto size = static_cast<quint64>(bytes.size());
    if (offsetSize < 1 || offsetSize > 8 || objects > size || table > size || objects * offsetSize > size - table)
        return maximumContainers + 1;
    qsizetype containers = 0;
    for (quint64 i = 0; i < objects; ++i) {
        quint64 offset = 0;
        for (quint64 byte = 0; byte < offsetSize; ++byte)
            offset = offset << 8 | static_cast<uchar>(bytes[static_cast<qsizetype>(table + i * offsetSize + byte)]);
        if (offset < size && static_cast<uchar>(bytes[static_cast<qsizetype>(offset)]) >> 4 >= 0xA)
            ++containers;
    }
    return containers;
}

QVariant fromNode(plist_t node);

QString stringOf(plist_t node)
{
    char *text = nullptr;
    plist_get_string_val(node, &text);
    const QString result = QString::fromUtf8(text);
    free(text);
    return result.isNull() ? QString(QLatin1String("")) : result;
}

QVariantMap mapOf(plist_t node)
{
    QVariantMap map;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    for (;;) {
        char *key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(node, iterator, &key, &value);
        if (!value)
            break;
        map.insert(QString::fromUtf8(key), fromNode(value));
        free(key);
    }
    free(iterator);
    return map;
}

QVariantList listOf(plist_t node)
{
    QVariantList list;
    for (uint32_t i = 0; i < plist_array_get_size(node); ++i)
        list.append(fromNode(plist_array_get_item(node, i)));
    return list;
}

QVariant fromNode(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT: {
        // The library has no signed integers: a negative one comes back as its two's complement.
        uint64_t value = 0;
        plist_get_uint_val(node, &value);
        return static_cast<qlonglong>(value);
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_STRING:
        return stringOf(node);
    case PLIST_ARRAY:
        return listOf(node);
    case PLIST_DICT:
        return mapOf(node);
    case PLIST_DATE: {
        int32_t seconds = 0;
        int32_t microseconds = 0;
        plist_get_date_val(node, &seconds, &microseconds);
        return epoch().addSecs(seconds).addMSecs(microseconds / 1000);
    }
    case PLIST_DATA: {
        char *data = nullptr;
        uint64_t length = 0;
        plist_get_data_val(node, &data, &length);
        const QByteArray bytes(data, static_cast<qsizetype>(length));
        free(data);
        return bytes;
    }
    default:
        return {};
    }
}

QByteArray writableText(const QString &text)
{
    QString clean;
    clean.reserve(text.size());
    for (const QChar character : text) {
        const char16_t unit = character.unicode();
        const bool allowed = unit >= 0x20 || unit == u'\t' || unit == u'\n' || unit == u'\r';
        if (allowed && unit != 0xFFFE && unit != 0xFFFF)
            clean.append(character);
    }
    return clean.toUtf8();
}

plist_t toNode(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return plist_new_bool(value.toBool());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return plist_new_uint(static_cast<uint64_t>(value.toLongLong()));
    case QMetaType::Double:
        return plist_new_real(value.toDouble());
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return plist_new_data(bytes.constData(), static_cast<uint64_t>(bytes.size()));
    }
    case QMetaType::QDateTime:
        return plist_new_date(static_cast<int32_t>(epoch().secsTo(value.toDateTime())), 0);
    case QMetaType::QVariantMap: {
        const plist_t node = plist_new_dict();
        const QVariantMap map = value.toMap();
        for (auto item = map.cbegin(); item != map.cend(); ++item)
            plist_dict_set_item(node, writableText(item.key()).constData(), toNode(item.value()));
        return node;
    }
    case QMetaType::QStringList:
    case QMetaType::QVariantList: {
        const plist_t node = plist_new_array();
        for (const QVariant &item : value.toList())
            plist_array_append_item(node, toNode(item));
        return node;
    }
    default:
        return plist_new_string(writableText(value.toString()).constData());
    }
}

} // namespace

std::optional<QVariant> readPropertyList(const QByteArray &bytes)
{
    const bool binary = bytes.startsWith("bplist");
    if (bytes.isEmpty() || bytes.size() > maximumSize ||
        (binary ? containersInBinary(bytes) : containersInXml(bytes)) > maximumContainers)
        return std::nullopt;
    plist_t node = nullptr;
    const auto size = static_cast<uint32_t>(bytes.size());
    if (binary)
        plist_from_bin(bytes.constData(), size, &node);
    else
        plist_from_xml(bytes.constData(), size, &node);
    const PlistPtr owner(node);
    return node ? std::optional<QVariant>(fromNode(node)) : std::nullopt;
}

QByteArray writePropertyList(const QVariant &value)
{
    const PlistPtr node(toNode(value));
    char *xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(node.get(), &xml, &length);
    const QByteArray bytes(xml, static_cast<qsizetype>(length));
    free(xml);
    return bytes;
}

} // namespace platform
