#include "creation/TextValues.h"

#include "platform/base/NativePath.h"
#include "platform/files/WholeFile.h"

#include <QCoreApplication>
#include <QSet>
#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>
#include <functional>

using platform::Cause;
using platform::Outcome;
using platform::Result;
using tokens::Filled;
using tokens::Token;
using tokens::Values;

namespace textvalues {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TextValues)
};

/// In characters: what stands longer between braces is no token.
constexpr qsizetype longestToken = 300;
/// Of a document that says its encoding: it does so at the beginning.
constexpr qsizetype headLength = 200;

enum class Encoding { Utf8, Utf16Little, Utf16Big, Latin1 };
enum class Format { Plain, Xml, Json, Table };

struct Decoded
{
    QByteArray mark; ///< of the byte order
    Encoding encoding = Encoding::Utf8;
    QString text;
};

QStringConverter::Encoding converterOf(Encoding encoding)
{
    return encoding == Encoding::Utf16Little ? QStringConverter::Utf16LE : QStringConverter::Utf16BE;
}

QByteArray encoded(const QString &text, Encoding encoding)
{
    switch (encoding) {
    case Encoding::Utf8:
        return text.toUtf8();
    case Encoding::Latin1:
        return text.toLatin1();
    case Encoding::Utf16Little:
    case Encoding::Utf16Big:
        break;
    }
    QStringEncoder encoder(converterOf(encoding), QStringConverter::Flag::Stateless);
    return encoder.encode(text);
}

bool saysLatin1(const QByteArray &contents)
{
    const QByteArray head = contents.first(qMin(headLength, contents.size())).toLower();
    return head.contains("encoding=\"iso-8859-1\"") || head.contains("encoding=\"windows-1252\"") ||
           head.contains("encoding=\"us-ascii\"") || head.contains("encoding='iso-8859-1'");
}

/// Nothing for what is no text. What is decoded comes back byte for byte.
std::optional<Decoded> decoded(const QByteArray &contents)
{
    for (const auto &[mark, encoding] : {std::pair(QByteArray("\xFF\xFE", 2), Encoding::Utf16Little),
                                         {QByteArray("\xFE\xFF", 2), Encoding::Utf16Big}}) {
        if (!contents.startsWith(mark))
            continue;
        QStringDecoder decoder(converterOf(encoding), QStringConverter::Flag::Stateless);
        const QString text = decoder.decode(contents.mid(mark.size()));
        const bool isExact = encoded(text, encoding) == contents.mid(mark.size());
        return isExact ? std::optional(Decoded{mark, encoding, text}) : std::nullopt;
    }
    if (contents.contains('\0'))
        return std::nullopt;
    const QByteArray mark("\xEF\xBB\xBF");
    const bool isMarked = contents.startsWith(mark);
    const QByteArray rest = isMarked ? contents.mid(mark.size()) : contents;
    const QString text = QString::fromUtf8(rest);
    if (text.toUtf8() == rest && !saysLatin1(contents))
        return Decoded{isMarked ? mark : QByteArray(), Encoding::Utf8, text};
    return Decoded{{}, Encoding::Latin1, QString::fromLatin1(contents)};
}

Format formatOf(const QString &name)
{
    static const QHash<QString, Format> formats{
        {"xml", Format::Xml},    {"kdenlive", Format::Xml}, {"mlt", Format::Xml},    {"fcpxml", Format::Xml},
        {"xmeml", Format::Xml},  {"svg", Format::Xml},      {"html", Format::Xml},   {"htm", Format::Xml},
        {"xhtml", Format::Xml},  {"plist", Format::Xml},    {"ttml", Format::Xml},   {"fdx", Format::Xml},
        {"xspf", Format::Xml},   {"opml", Format::Xml},     {"xmp", Format::Xml},    {"osp", Format::Json},
        {"json", Format::Json},  {"otio", Format::Json},    {"jsonl", Format::Json}, {"geojson", Format::Json},
        {"ipynb", Format::Json}, {"csv", Format::Table},    {"tsv", Format::Table},  {"tab", Format::Table},
    };
    return formats.value(platform::extensionOf(name).toLower(), Format::Plain);
}

QString forXml(const QString &value)
{
    return value.toHtmlEscaped().replace(u'\'', QLatin1String("&#39;"));
}

QString forJson(const QString &value)
{
    QString result;
    for (const QChar character : value) {
        if (character == u'"' || character == u'\\')
            result += u'\\';
        if (character.unicode() < 0x20)
            result += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        else
            result += character;
    }
    return result;
}

/// Control characters that XML 1.0 cannot hold in any way.
bool hasNoXml(const QString &value)
{
    return std::any_of(value.begin(), value.end(), [](QChar character) {
        const char16_t code = character.unicode();
        return (code < 0x20 && code != u'\t' && code != u'\n' && code != u'\r') || code == 0xFFFE || code == 0xFFFF;
    });
}

/// The token that begins at the brace; nothing where none of the values is meant.
std::optional<Token> tokenAt(QStringView text, qsizetype brace, const Values &values)
{
    const QStringView rest = text.sliced(brace + 1, qMin(longestToken, text.size() - brace - 1));
    const qsizetype end = rest.indexOf(u'}');
    if (end <= 0)
        return std::nullopt;
    const QStringView inside = rest.first(end);
    const bool isPlain = std::none_of(inside.begin(), inside.end(),
                                      [](QChar character) { return character == u'{' || character.unicode() < 0x20; });
    if (!isPlain)
        return std::nullopt;
    Token token = tokens::tokenOf(inside.toString());
    // Of a title that is not known a change tells what was meant; other braces are the text's own.
    const bool isMeant = values.find(token.whole) || values.find(token.title) ||
                         (!token.changes.isEmpty() && tokens::isChange(token.changes.constFirst()));
    return isMeant ? std::optional(std::move(token)) : std::nullopt;
}

void forEachToken(QStringView text, const Values &values, const std::function<void(qsizetype, const Token &)> &visit)
{
    for (qsizetype brace = text.indexOf(u'{'); brace >= 0; brace = text.indexOf(u'{', brace + 1)) {
        if (const auto token = tokenAt(text, brace, values)) {
            visit(brace, *token);
            brace += token->source.size() - 1;
        }
    }
}

class Filling
{
public:
    Filling(const QString &text, Format format, const Values &values)
        : m_text(text)
        , m_format(format)
        , m_values(values)
    {
    }

    Filled run()
    {
        m_format == Format::Table ? fillTable() : fill(0, m_text.size());
        return {m_result, m_problem};
    }

private:
    void fill(qsizetype first, qsizetype last)
    {
        qsizetype done = first;
        forEachToken(QStringView(m_text).sliced(first, last - first), m_values, [&](qsizetype at, const Token &token) {
            m_result += QStringView(m_text).sliced(done, first + at - done);
            m_result += asWritten(token, first + at);
            done = first + at + token.source.size();
        });
        m_result += QStringView(m_text).sliced(done, last - done);
    }

    QString asWritten(const Token &token, qsizetype at)
    {
        const Filled value = tokens::valueOf(token, m_values);
        if (!value.ok()) {
            m_problem = m_problem.isNull() ? value.problem : m_problem;
            return {};
        }
        switch (m_format) {
        case Format::Xml:
            if (hasNoXml(value.text) && m_problem.isNull())
                m_problem = Text::tr("%1 has a character that XML cannot hold.").arg(token.source);
            // Nothing is a mark in there but its end.
            return isInCharacterData(at)
                       ? QString(value.text).replace(QLatin1String("]]>"), QLatin1String("]]]]><![CDATA[>"))
                       : forXml(value.text);
        case Format::Json:
            return forJson(value.text);
        case Format::Table:
        case Format::Plain:
            break;
        }
        return value.text;
    }

    /// From where the last look was: a text has many tokens.
    bool isInCharacterData(qsizetype at)
    {
        while (m_lookedAt < at) {
            const QLatin1String wanted(m_isInData ? "]]>" : "<![CDATA[");
            const qsizetype next = m_text.indexOf(wanted, m_lookedAt);
            if (next < 0 || next >= at)
                break;
            m_isInData = !m_isInData;
            m_lookedAt = next + wanted.size();
        }
        return m_isInData;
    }

    /// Cell by cell: one that gets a mark of the table's own is put into quotes.
    void fillTable()
    {
        const QChar separator = separatorOf(m_text);
        qsizetype start = 0;
        while (start <= m_text.size() && m_problem.isNull()) {
            const bool isQuoted = start < m_text.size() && m_text[start] == u'"';
            const qsizetype end = endOfCell(start, separator, isQuoted);
            fillCell(start, end, isQuoted, separator);
            if (end == m_text.size())
                return;
            m_result += m_text[end];
            start = end + 1;
        }
    }

    static QChar separatorOf(const QString &text)
    {
        const qsizetype end = text.indexOf(u'\n');
        const QStringView line = QStringView(text).first(end < 0 ? text.size() : end);
        const QList<QChar> candidates{u',', u';', u'\t'};
        return *std::max_element(candidates.begin(), candidates.end(),
                                 [&](QChar a, QChar b) { return line.count(a) < line.count(b); });
    }

    qsizetype endOfCell(qsizetype start, QChar separator, bool isQuoted) const
    {
        bool isInside = isQuoted;
        for (qsizetype i = isQuoted ? start + 1 : start; i < m_text.size(); ++i) {
            const QChar character = m_text[i];
            if (isQuoted && character == u'"')
                isInside = !isInside;
            else if (!isInside && (character == separator || character == u'\n' || character == u'\r'))
                return i;
        }
        return m_text.size();
    }

    void fillCell(qsizetype start, qsizetype end, bool isQuoted, QChar separator)
    {
        const qsizetype before = m_result.size();
        bool hasToken = false;
        qsizetype done = start;
        forEachToken(QStringView(m_text).sliced(start, end - start), m_values, [&](qsizetype at, const Token &token) {
            hasToken = true;
            m_result += QStringView(m_text).sliced(done, start + at - done);
            QString value = asWritten(token, start + at);
            m_result += isQuoted ? value.replace(u'"', QLatin1String("\"\"")) : value;
            done = start + at + token.source.size();
        });
        m_result += QStringView(m_text).sliced(done, end - done);
        const QString cell = m_result.mid(before);
        const bool needsQuotes =
            cell.contains(separator) || cell.contains(u'"') || cell.contains(u'\n') || cell.contains(u'\r');
        if (hasToken && !isQuoted && needsQuotes) {
            m_result.truncate(before);
            m_result += u'"' + QString(cell).replace(u'"', QLatin1String("\"\"")) + u'"';
        }
    }

    const QString &m_text;
    const Format m_format;
    const Values &m_values;
    QString m_result;
    QString m_problem;
    qsizetype m_lookedAt = 0;
    bool m_isInData = false;
};

Outcome noText()
{
    return Outcome::failure(Cause::NotSupported, {}, Text::tr("This is no text: no values can be filled in."));
}

bool canBeWritten(const QString &text, Encoding encoding)
{
    return encoding != Encoding::Latin1 ||
           std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() <= 0xFF; });
}

} // namespace

Result<QByteArray> filled(const QByteArray &contents, const QString &name, const Values &values)
{
    const auto text = decoded(contents);
    if (!text)
        return noText();
    const Filled result = Filling(text->text, formatOf(name), values).run();
    if (!result.ok())
        return Outcome::failure(Cause::Invalid, {}, result.problem);
    if (!canBeWritten(result.text, text->encoding))
        return Outcome::failure(
            Cause::NotSupported, {},
            Text::tr(
                "A value has characters that this file, which is no UTF-8, cannot hold. Please save it as UTF-8."));
    return text->mark + encoded(result.text, text->encoding);
}

TextTokens readTextTokens(const QString &path, const Values &values)
{
    const Result<QByteArray> contents = platform::readFile(path, largestText);
    if (!contents && !contents.outcome().is(Cause::Missing)) // a file that cannot be read is told of when it is copied
        return {{}, Text::tr("Values cannot be filled in: %1").arg(contents.outcome().sentence())};
    const auto text = decoded(contents.valueOr({}));
    if (!text)
        return {{}, noText().sentence()};
    TextTokens result;
    QSet<QString> seen;
    forEachToken(text->text, values, [&](qsizetype, const Token &token) {
        if (!seen.contains(token.source))
            result.tokens.append(token);
        seen.insert(token.source);
    });
    return result;
}

QString problemOf(const TextTokens &text, const Values &values)
{
    for (const Token &token : text.tokens) {
        if (const Filled value = tokens::valueOf(token, values); !value.ok())
            return value.problem;
    }
    return text.problem;
}

} // namespace textvalues
