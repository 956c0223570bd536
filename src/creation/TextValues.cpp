#include "creation/TextValues.h"

#include "platform/base/NativePath.h"
#include "platform/files/WholeFile.h"

#include <QCoreApplication>
#include <QRegularExpression>
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
/// Of a document that says its encoding: it does so at the beginning, in bytes.
constexpr qsizetype headLength = 1024;
constexpr char16_t lastOfAscii = 0x7F;
constexpr char16_t lastOfLatin1 = 0xFF;

enum class Encoding { Utf8, Utf16Little, Utf16Big, Latin1 };
enum class Format { Plain, Xml, Json, Table };

struct Decoded
{
    QByteArray mark; ///< of the byte order
    Encoding encoding = Encoding::Utf8;
    QString text;
    char16_t highest = 0xFFFF; ///< character that a value may have
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

/// As XML and HTML say it, in small letters; empty where nothing is said.
QString declaredEncoding(const QByteArray &contents)
{
    static const QRegularExpression declaration(
        QStringLiteral("(?:<\\?xml[^>]*encoding|<meta[^>]*charset)\\s*=\\s*[\"']?([a-z0-9_.:-]+)"),
        QRegularExpression::CaseInsensitiveOption);
    const QString head = QString::fromLatin1(contents.first(qMin(headLength, contents.size())));
    return declaration.match(head).captured(1).toLower();
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
    const QString declared = declaredEncoding(contents);
    if (text.toUtf8() == rest && (isMarked || declared.isEmpty() || declared == u"utf-8" || declared == u"utf8"))
        return Decoded{isMarked ? mark : QByteArray(), Encoding::Utf8, text};
    // Byte for byte. What is beyond ASCII is another letter in each encoding, and this one may not be known.
    const bool isWestern = declared == u"iso-8859-1" || declared == u"latin1";
    return Decoded{{}, Encoding::Latin1, QString::fromLatin1(contents), isWestern ? lastOfLatin1 : lastOfAscii};
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

bool hasBeyond(const QString &value, char16_t highest)
{
    return std::any_of(value.begin(), value.end(), [&](QChar character) { return character.unicode() > highest; });
}

/// Control characters that XML 1.0 cannot hold in any way.
bool hasNoXml(const QString &value)
{
    return std::any_of(value.begin(), value.end(), [](QChar character) {
        const char16_t code = character.unicode();
        return (code < 0x20 && code != u'\t' && code != u'\n' && code != u'\r') || code == 0xFFFE || code == 0xFFFF;
    });
}

QString problemOfCharacters(const Token &token, const QString &value, char16_t highest, bool isXml)
{
    if (hasBeyond(value, highest))
        return Text::tr("%1 has characters that this file, which is no UTF-8, cannot hold. Please save it as UTF-8.")
            .arg(token.source);
    return isXml && hasNoXml(value) ? Text::tr("%1 has a character that XML cannot hold.").arg(token.source)
                                    : QString();
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
    Filling(const Decoded &decoded, Format format, const Values &values)
        : m_text(decoded.text)
        , m_highest(decoded.highest)
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
        if (m_problem.isNull())
            m_problem = problemOfCharacters(token, value.text, m_highest, m_format == Format::Xml);
        switch (m_format) {
        case Format::Xml:
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
    const char16_t m_highest;
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

} // namespace

Result<QByteArray> filled(const QByteArray &contents, const QString &name, const Values &values)
{
    const auto text = decoded(contents);
    if (!text)
        return noText();
    const Filled result = Filling(*text, formatOf(name), values).run();
    if (!result.ok())
        return Outcome::failure(Cause::Invalid, {}, result.problem);
    return text->mark + encoded(result.text, text->encoding);
}

TextTokens readTextTokens(const QString &path, const Values &values)
{
    const Result<QByteArray> contents = platform::readFile(path, largestText);
    if (!contents && !contents.outcome().is(Cause::Missing)) // a file that cannot be read is told of when it is copied
        return TextTokens{.problem = Text::tr("Values cannot be filled in: %1").arg(contents.outcome().sentence())};
    const auto text = decoded(contents.valueOr({}));
    if (!text)
        return TextTokens{.problem = noText().sentence()};
    TextTokens result{{}, text->highest, formatOf(path) == Format::Xml};
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
        const Filled value = tokens::valueOf(token, values);
        const QString problem =
            value.ok() ? problemOfCharacters(token, value.text, text.highest, text.isXml) : value.problem;
        if (!problem.isNull())
            return problem;
    }
    return text.problem;
}

} // namespace textvalues
