#include "parameters/Tokens.h"

#include "parameters/ValueRules.h"
#include "platform/base/LocalTime.h"
#include "platform/base/NativePath.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <functional>

namespace tokens {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Tokens)
};

/// Each character with whether a word begins with it, and whether it belongs to one.
void forEachCharacter(const QString &text, const std::function<void(char32_t, bool begins)> &visit)
{
    bool isInside = false;
    for (const char32_t character : text.toUcs4()) {
        const bool isApostrophe = character == U'\'' || character == U'’'; // ends no word
        const bool belongs =
            QChar::isLetterOrNumber(character) || (isInside && (isApostrophe || QChar::isMark(character)));
        visit(character, belongs && !isInside);
        isInside = belongs;
    }
}

QString initials(const QString &text)
{
    QString letters;
    bool isFirst = false; // or a mark of it
    forEachCharacter(text, [&](char32_t character, bool begins) {
        isFirst = begins || (isFirst && QChar::isMark(character));
        if (isFirst)
            letters += QString::fromUcs4(&character, 1).toUpper();
    });
    return letters;
}

QString titled(const QString &text)
{
    QString result;
    forEachCharacter(text, [&](char32_t character, bool begins) {
        const QString letter = QString::fromUcs4(&character, 1);
        result += begins ? letter.toUpper() : letter;
    });
    return result;
}

/// Letters of Latin scripts that are no letter with a mark.
const QHash<char16_t, QString> &plainLetters()
{
    static const QHash<char16_t, QString> letters{
        {u'ß', "ss"}, {u'æ', "ae"}, {u'Æ', "AE"}, {u'œ', "oe"}, {u'Œ', "OE"}, {u'ø', "o"}, {u'Ø', "O"}, {u'ł', "l"},
        {u'Ł', "L"},  {u'đ', "d"},  {u'Đ', "D"},  {u'þ', "th"}, {u'Þ', "Th"}, {u'ð', "d"}, {u'Ð', "D"}, {u'ı', "i"}};
    return letters;
}

QString ascii(const QString &text)
{
    QString result;
    for (const QChar character : text.normalized(QString::NormalizationForm_KD)) {
        if (character.unicode() < 0x80)
            result += character;
        else
            result += plainLetters().value(character.unicode());
    }
    return result;
}

QString slug(const QString &text)
{
    QString result;
    for (const QChar character : ascii(text).toLower()) {
        if (character.isLetterOrNumber())
            result += character;
        else if (!result.isEmpty() && !result.endsWith(u'-'))
            result += u'-';
    }
    return result.endsWith(u'-') ? result.chopped(1) : result;
}

struct Change
{
    const char *word;
    QString (*apply)(const QString &);
};
constexpr std::array changeTable{
    Change{"upper",
           [](const QString &text) {
               return text.toUpper();
           }},
    Change{"lower",
           [](const QString &text) {
               return text.toLower();
           }},
    Change{"title", titled},
    Change{"initials", initials},
    Change{"ascii", ascii},
    Change{"slug", slug},
};

const Change *changeOf(const QString &word)
{
    const auto *found = std::find_if(changeTable.begin(), changeTable.end(),
                                     [&](const Change &change) { return word == QLatin1String(change.word); });
    return found == changeTable.end() ? nullptr : found;
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

/// The digits at the end of the value, in so many places: of "Job-41", too.
Filled asNumber(const Token &token, const QString &value)
{
    const auto start = std::find_if_not(value.crbegin(), value.crend(), isDigit).base() - value.cbegin();
    QString digits = value.mid(start);
    if (digits.isEmpty())
        return {{},
                value.isEmpty() ? Text::tr("“%1” has no value yet.").arg(token.title)
                                : Text::tr("“%1” is no number: %2").arg(token.title, value)};
    while (digits.size() > 1 && digits.startsWith(u'0'))
        digits.remove(0, 1);
    return {rules::padNumberString(digits, token.format.size())};
}

Filled asDate(const Token &token, const Value &value)
{
    if (platform::problemOfDateFormat(token.format) != platform::DateFormatProblem::None)
        return {{}, Text::tr("“%1” is no form of a date, as %Y-%m-%d is.").arg(token.format)};
    const auto moment = value.moment ? value.moment : platform::dayOf(value.text, QStringLiteral("%Y-%m-%d"));
    if (!moment)
        return {{},
                value.text.isEmpty() ? Text::tr("“%1” has no value yet.").arg(token.title)
                                     : Text::tr("“%1” is no date: %2").arg(token.title, value.text)};
    return {platform::formatDate(token.format, *moment)};
}

Filled formed(const Token &token, const Value &value)
{
    if (token.format.isNull())
        return {value.text};
    if (token.format.contains(u'%'))
        return asDate(token, value);
    const bool isNumber = !token.format.isEmpty() && token.format.count(u'0') == token.format.size() &&
                          token.format.size() <= platform::longestName;
    return isNumber ? asNumber(token, value.text)
                    : Filled{{},
                             Text::tr("“%1” is neither places of a number, as 000 is, nor a form of a date, as %Y is.")
                                 .arg(token.format)};
}

} // namespace

void Values::add(const QString &title, const Value &value)
{
    const QString key = title.toCaseFolded();
    if (!m_values.contains(key))
        m_values.insert(key, value);
}

const Value *Values::find(const QString &title) const
{
    const auto found = m_values.constFind(title.toCaseFolded());
    if (found != m_values.cend())
        return &*found;
    return m_outer ? m_outer->find(title) : nullptr;
}

void addTo(Values &values, const FilenameParameters &parameters, const QString &dateFormat, std::time_t now)
{
    const QString today = rules::dateValue(dateFormat, now);
    for (const FilenameParameter &parameter : parameters) {
        Value value{parameter.value()};
        if (parameter.kind() == FilenameParameter::Kind::Date)
            value.moment = value.text == today ? now : platform::dayOf(value.text, dateFormat);
        values.add(parameter.title(), value);
    }
}

Token tokenOf(const QString &inside)
{
    QStringList parts = inside.split(u'|');
    const QString first = parts.takeFirst();
    Token token{u'{' + inside + u'}', first.trimmed(), first.trimmed(), {}, {}};
    if (const qsizetype colon = first.indexOf(u':'); colon >= 0) {
        token.title = first.first(colon).trimmed();
        token.format = first.mid(colon + 1).trimmed();
        token.format = token.format.isNull() ? QLatin1String("") : token.format;
    }
    for (const QString &part : std::as_const(parts))
        token.changes.append(part.trimmed());
    return token;
}

Filled valueOf(const Token &token, const Values &values)
{
    const Value *asNamed = values.find(token.whole);
    const Value *value = asNamed ? asNamed : values.find(token.title);
    if (!value)
        return {{}, Text::tr("There is no parameter “%1”.").arg(token.title)};
    Filled result = asNamed ? Filled{value->text} : formed(token, *value);
    for (const QString &word : token.changes) {
        const Change *change = changeOf(word);
        if (!change)
            return {{},
                    Text::tr("“%1” changes no value. There are: %2.").arg(word, changes().join(QStringLiteral(", ")))};
        if (result.ok())
            result.text = change->apply(result.text);
    }
    return result;
}

bool isChange(const QString &word)
{
    return changeOf(word);
}

QStringList changes()
{
    QStringList words;
    for (const Change &change : changeTable)
        words.append(QLatin1String(change.word));
    return words;
}

bool Pieces::hasTokens() const
{
    return std::any_of(pieces.begin(), pieces.end(), [](const Piece &piece) { return piece.token.has_value(); });
}

Pieces piecesOf(const QString &name)
{
    Pieces result;
    QString text;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const QChar character = name[i];
        const bool isDoubled = i + 1 < name.size() && name[i + 1] == character;
        if (isDoubled && (character == u'{' || character == u'}')) {
            text += character;
            ++i;
            continue;
        }
        if (character != u'{') {
            text += character;
            continue;
        }
        const qsizetype end = name.indexOf(u'}', i);
        if (end < 0) {
            result.problem = Text::tr("A “{” without its “}”. Two of them, “{{”, stand for one that is meant.");
            return result;
        }
        if (!text.isEmpty())
            result.pieces.append({std::exchange(text, {})});
        result.pieces.append({{}, tokenOf(name.mid(i + 1, end - i - 1))});
        i = end;
    }
    if (!text.isEmpty())
        result.pieces.append({text});
    return result;
}

bool mayHaveTokens(std::string_view name)
{
    return name.find_first_of("{}") != std::string_view::npos;
}

Filled filled(const QString &text, const Values &values)
{
    const Pieces all = piecesOf(text);
    Filled result{QLatin1String(""), all.problem};
    for (const Piece &piece : all.pieces) {
        const Filled part = piece.token ? valueOf(*piece.token, values) : Filled{piece.text};
        if (!part.ok())
            return part;
        result.text += part.text;
    }
    return result;
}

} // namespace tokens
