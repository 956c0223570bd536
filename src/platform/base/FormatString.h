#pragma once

#include <QString>
#include <variant>
#include <vector>

namespace platform {

/** One argument of a format. */
using FormatValue = std::variant<QString, qlonglong, double>;

inline FormatValue toFormatValue(const QString &value)
{
    return value;
}
inline FormatValue toFormatValue(const char *value)
{
    return QString::fromUtf8(value);
}
inline FormatValue toFormatValue(double value)
{
    return value;
}
template <typename Integer>
requires std::is_integral_v<Integer> FormatValue toFormatValue(Integer value)
{
    return static_cast<qlonglong>(value);
}

/**
 * The program's one formatter: %@ and %s (text), %d, %i, %ld, %lld, %u (decimal), %f with a precision (%0.2f), %%.
 * A missing argument and a null text print "(null)"; an unknown directive stays as it is. Never the C library's, which
 * would read whatever lies on the stack. Pure; any thread.
 */
[[nodiscard]] QString formatted(QStringView format, const std::vector<FormatValue> &arguments);

template <typename... Arguments>
[[nodiscard]] QString formatString(const QString &format, const Arguments &...arguments)
{
    return formatted(format, {toFormatValue(arguments)...});
}

} // namespace platform
