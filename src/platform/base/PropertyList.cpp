#include "platform/base/PropertyList.h"

#include <QDateTime>
#include <QTimeZone>
#include <algorithm>
#include <memory>
#include <plist/plist.h>
#include <vector>

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

/// The binary form as far as the library must not see it unchecked: it follows every reference, so that a few lists
/// that each name the next one twice grow without bound, and it ends the program over keys that are no plain text.
class BinaryForm
{
public:
    explicit BinaryForm(const QByteArray &bytes)
        : m_bytes(bytes)
        , m_size(static_cast<quint64>(bytes.size()))
    {
    }
    [[nodiscard]] bool isSafe()
    {
        if (m_size < 8 + trailerSize)
            return false;
        const quint64 trailer = m_size - trailerSize;
        m_offsetSize = byteAt(trailer + 6);
        m_referenceSize = byteAt(trailer + 7);
        m_objects = number(trailer + 8, 8);
        m_table = number(trailer + 24, 8);
        const bool isSound = m_offsetSize >= 1 && m_offsetSize <= 8 && m_referenceSize >= 1 && m_referenceSize <= 8 &&
                             m_objects <= m_size && m_table <= m_size && m_objects * m_offsetSize <= m_size - m_table;
        return isSound && follow(number(trailer + 16, 8));
    }

private:
    static constexpr quint64 trailerSize = 32;
    /// All that the references come to, each counted as often as it is named.
    static constexpr quint64 maximumNodes = 1'000'000;

    [[nodiscard]] quint64 byteAt(quint64 at) const
    {
        return at < m_size ? static_cast<uchar>(m_bytes[static_cast<qsizetype>(at)]) : 0;
    }
    [[nodiscard]] quint64 number(quint64 at, quint64 count) const
    {
        quint64 value = 0;
        for (quint64 i = 0; i < count; ++i)
            value = value << 8 | byteAt(at + i);
        return value;
    }
    struct Object
    {
        quint64 kind = 0;   ///< the marker's upper half
        quint64 length = 0; ///< of a string or a container: what it counts
        quint64 body = 0;
    };
    /// Nothing for a reference, or a length, that leads out of the file.
    [[nodiscard]] std::optional<Object> object(quint64 reference) const
    {
        if (reference >= m_objects)
            return std::nullopt;
        const quint64 at = number(m_table + reference * m_offsetSize, m_offsetSize);
        const quint64 marker = byteAt(at);
        Object found{marker >> 4, marker & 0xF, at + 1};
        if (found.kind >= 4 && found.length == 0xF) { // a whole number of its own follows
            const quint64 bytes = quint64{1} << (byteAt(at + 1) & 0xF);
            found.length = bytes <= 8 ? number(at + 2, bytes) : m_size;
            found.body = at + 2 + bytes;
        }
        return at < m_table && found.length < m_size ? std::optional(found) : std::nullopt;
    }
    [[nodiscard]] bool isPlainKey(quint64 reference) const
    {
        const auto key = object(reference);
        if (!key || (key->kind != asciiText && key->kind != wideText))
            return false;
        const quint64 unit = key->kind == wideText ? 2 : 1;
        for (quint64 i = 0; i < key->length; ++i) {
            if (number(key->body + i * unit, unit) == 0)
                return false;
        }
        return true;
    }
    [[nodiscard]] bool follow(quint64 top)
    {
        qsizetype containers = 0;
        quint64 nodes = 0;
        std::vector<quint64> waiting{top};
        while (!waiting.empty()) {
            const auto found = object(waiting.back());
            waiting.pop_back();
            if (!found || ++nodes > maximumNodes)
                return false;
            if (found->kind < list)
                continue;
            const quint64 count = found->kind == dictionary ? found->length * 2 : found->length;
            if (++containers > maximumContainers || nodes + waiting.size() + count > maximumNodes)
                return false;
            for (quint64 i = 0; i < count; ++i) {
                const quint64 reference = number(found->body + i * m_referenceSize, m_referenceSize);
                if (found->kind == dictionary && i < found->length && !isPlainKey(reference))
                    return false;
                waiting.push_back(reference);
            }
        }
        return true;
    }

    static constexpr quint64 asciiText = 5;
    static constexpr quint64 wideText = 6;
    static constexpr quint64 list = 0xA; ///< and above: sets and dictionaries
    static constexpr quint64 dictionary = 0xD;

    const QByteArray &m_bytes;
    const quint64 m_size;
    quint64 m_offsetSize = 0;
    quint64 m_referenceSize = 0;
    quint64 m_objects = 0;
    quint64 m_table = 0;
};

/// The library hands dates out as 32 bits; as text it has all of them.
QDateTime dateOf(plist_t node)
{
    const PlistPtr copy(plist_copy(node));
    char *xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(copy.get(), &xml, &length);
    const QByteArray text(xml, static_cast<qsizetype>(length));
    free(xml);
    const qsizetype start = text.indexOf("<date>") + 6;
    return QDateTime::fromString(QString::fromLatin1(text.mid(start, text.indexOf("</date>") - start)), Qt::ISODate);
}

plist_t dateNode(const QDateTime &date)
{
    const qint64 seconds = epoch().secsTo(date);
    if (static_cast<int32_t>(seconds) == seconds)
        return plist_new_date(static_cast<int32_t>(seconds), 0);
    const QByteArray xml =
        "<plist version=\"1.0\"><date>" + date.toUTC().toString(Qt::ISODate).toLatin1() + "</date></plist>";
    plist_t node = nullptr;
    plist_from_xml(xml.constData(), static_cast<uint32_t>(xml.size()), &node);
    return node;
}

QVariant fromNode(plist_t node);

QString stringOf(plist_t node)
{
    // Not its own copy: over one that holds U+0000 the library ends the program.
    uint64_t length = 0;
    const char *text = plist_get_string_ptr(node, &length);
    QString result = text ? QString::fromUtf8(text, static_cast<qsizetype>(length)) : QString();
    result.remove(QChar(u'\0')); // no name and no line of a file can hold it
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
    case PLIST_UID: { // as XML writes it
        uint64_t value = 0;
        plist_get_uid_val(node, &value);
        return QVariantMap{{QStringLiteral("CF$UID"), static_cast<qlonglong>(value)}};
    }
    case PLIST_DATE: {
        int32_t seconds = 0;
        int32_t microseconds = 0;
        plist_get_date_val(node, &seconds, &microseconds);
        const QDateTime date = dateOf(node);
        return date.isValid() && epoch().secsTo(date) != seconds
                   ? date
                   : epoch().addSecs(seconds).addMSecs(microseconds / 1000);
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

bool fitsXml(QChar character)
{
    const char16_t unit = character.unicode();
    return (unit >= 0x20 && unit != 0xFFFE && unit != 0xFFFF) || unit == u'\t' || unit == u'\n' || unit == u'\r';
}

bool fitsXml(const QVariant &value)
{
    const auto textFits = [](const QString &text) {
        return std::all_of(text.begin(), text.end(), [](QChar character) { return fitsXml(character); });
    };
    if (value.typeId() == QMetaType::QVariantMap) {
        const QVariantMap map = value.toMap();
        return std::all_of(map.keyBegin(), map.keyEnd(), textFits) &&
               std::all_of(map.begin(), map.end(), [](const QVariant &item) { return fitsXml(item); });
    }
    if (value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList) {
        const QVariantList list = value.toList();
        return std::all_of(list.begin(), list.end(), [](const QVariant &item) { return fitsXml(item); });
    }
    return value.typeId() != QMetaType::QString || textFits(value.toString());
}

/// Texts end at U+0000 for the library.
QByteArray writableText(const QString &text)
{
    return QString(text).remove(QChar(u'\0')).toUtf8();
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
        return dateNode(value.toDateTime());
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
        (binary ? !BinaryForm(bytes).isSafe() : containersInXml(bytes) > maximumContainers))
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
    const bool asXml = fitsXml(value);
    char *written = nullptr;
    uint32_t length = 0;
    if (asXml)
        plist_to_xml(node.get(), &written, &length);
    else
        plist_to_bin(node.get(), &written, &length);
    const QByteArray bytes(written, static_cast<qsizetype>(length));
    free(written);
    // What could not be read again is not written.
    const bool isReadable = bytes.size() <= maximumSize &&
                            (asXml ? containersInXml(bytes) <= maximumContainers : BinaryForm(bytes).isSafe());
    return isReadable ? bytes : QByteArray();
}

} // namespace platform
