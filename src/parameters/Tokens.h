#pragma once

#include "parameters/FilenameParameter.h"

#include <QHash>
#include <ctime>
#include <optional>
#include <string_view>

/**
 * Values in names and texts: a title in braces stands for its value, "{Client}", in a form behind a colon,
 * "{Date:%Y}", "{Number:000}", changed by words behind bars, "{Client|upper}". Pure; any thread.
 */
namespace tokens {

struct Value
{
    QString text;
    std::optional<std::time_t> moment = {}; ///< of a date, where it is known better than its text says
};

/** What titles stand for. Letter case does not count; of two with one title it is the first. */
class Values
{
public:
    Values() = default;
    /** A few more in front of those, which must live as long. */
    explicit Values(const Values *outer)
        : m_outer(outer)
    {
    }
    void add(const QString &title, const Value &value);
    /** Null where there is none. */
    [[nodiscard]] const Value *find(const QString &title) const;

private:
    QHash<QString, Value> m_values;
    const Values *m_outer = nullptr;
};

/** Those of the parameters; their dates are in the format of the settings. */
void addTo(Values &values, const FilenameParameters &parameters, const QString &dateFormat, std::time_t now);

/** A text with its values, or a sentence about the token that has none. */
struct Filled
{
    QString text;
    QString problem = {};
    [[nodiscard]] bool ok() const { return problem.isNull(); }
};

struct Token
{
    QString source; ///< with its braces
    QString whole;  ///< title and format: a title may have a colon itself
    QString title;
    QString format;      ///< "000" or "%Y"; null without one
    QStringList changes; ///< "upper", "initials"
};

/** Of what stands between the braces. */
[[nodiscard]] Token tokenOf(const QString &inside);
[[nodiscard]] Filled valueOf(const Token &token, const Values &values);
[[nodiscard]] bool isChange(const QString &word);
/** The words that change a value, in their order. */
[[nodiscard]] QStringList changes();

/** A part of a name: text, or a token. */
struct Piece
{
    QString text;
    std::optional<Token> token = {};
};
struct Pieces
{
    QList<Piece> pieces;
    QString problem = {}; ///< a brace that does not end
    [[nodiscard]] bool hasTokens() const;
};
/** Two braces stand for one that is meant. */
[[nodiscard]] Pieces piecesOf(const QString &name);
/** Whether it may have any; quick. */
[[nodiscard]] bool mayHaveTokens(std::string_view name);

/** Every token of the text. */
[[nodiscard]] Filled filled(const QString &text, const Values &values);

} // namespace tokens
