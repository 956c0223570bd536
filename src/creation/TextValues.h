#pragma once

#include "parameters/Tokens.h"
#include "platform/base/Outcome.h"

#include <QByteArray>

/**
 * Values in the contents of text files. A token stands for its value only where its title is one of the values': all
 * other braces, which many formats are full of, are left, byte for byte, with the encoding and the line ends. Values
 * are written as the format takes them, by the name's extension: XML, JSON and tables of values have characters of
 * their own. Pure, but for readTextTokens().
 */
namespace textvalues {

/** No file that is larger gets values, in bytes. */
inline constexpr qint64 largestText = qint64{16} * 1024 * 1024;

/** The contents with values; Cause::Invalid with one sentence about the token that has none, Cause::NotSupported where
    the contents are no text. */
[[nodiscard]] platform::Result<QByteArray> filled(const QByteArray &contents, const QString &name,
                                                  const tokens::Values &values);

/** The same without the contents, for every key that is typed: what to look at. */
struct TextTokens
{
    QList<tokens::Token> tokens{}; ///< each once
    char16_t highest = 0xFFFF;     ///< character that its encoding can hold
    bool isXml = false;
    QString problem{}; ///< why it gets no values at all
};
/** Of a file; blocks, any thread. */
[[nodiscard]] TextTokens readTextTokens(const QString &path, const tokens::Values &values);
/** The first token without a value; null when each has one. */
[[nodiscard]] QString problemOf(const TextTokens &text, const tokens::Values &values);

} // namespace textvalues
