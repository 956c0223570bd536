#include "platform/base/FormatString.h"

namespace platform {
namespace {

/// A message is formatted twice, and then a name in it may look like a format: it must not fill the memory with zeros.
constexpr int mostDecimals = 40;

struct Directive
{
    int precision = -1;
    char16_t conversion = 0;
    qsizetype length = 0; ///< characters after the percent sign
};

Directive directiveAt(QStringView format, qsizetype at)
{
    Directive directive;
    qsizetype i = at;
    while (i < format.size() && (format[i].isDigit() || format[i] == u'-'))
        ++i;
    if (i < format.size() && format[i] == u'.') {
        directive.precision = 0;
        for (++i; i < format.size() && format[i].isDigit(); ++i)
            directive.precision = qMin(directive.precision * 10 + format[i].digitValue(), mostDecimals);
    }
    while (i < format.size() && format[i] == u'l')
        ++i;
    if (i < format.size()) {
        directive.conversion = format[i].unicode();
        directive.length = i - at + 1;
    }
    return directive;
}

QString textOf(const FormatValue *value, const Directive &directive)
{
    if (!value)
        return QStringLiteral("(null)");
    if (const auto *text = std::get_if<QString>(value))
        return text->isNull() ? QStringLiteral("(null)") : *text;
    if (const auto *number = std::get_if<qlonglong>(value))
        return directive.conversion == u'f' ? QString::number(static_cast<double>(*number), 'f', directive.precision)
                                            : QString::number(*number);
    const double real = std::get<double>(*value);
    if (directive.conversion == u'f')
        return QString::number(real, 'f', directive.precision < 0 ? 6 : directive.precision);
    return directive.conversion == u'@' ? QString::number(real) : QString::number(static_cast<qlonglong>(real));
}

} // namespace

QString formatted(QStringView format, const std::vector<FormatValue> &arguments)
{
    QString result;
    std::size_t next = 0;
    for (qsizetype i = 0; i < format.size(); ++i) {
        const Directive directive = format[i] == u'%' ? directiveAt(format, i + 1) : Directive{};
        if (directive.conversion == u'%' && directive.length == 1) {
            result += u'%';
        } else if (directive.conversion != 0 && QStringView(u"@sdiuf").contains(QChar(directive.conversion))) {
            result += textOf(next < arguments.size() ? &arguments[next] : nullptr, directive);
            ++next;
        } else {
            result += format[i];
            continue;
        }
        i += directive.length;
    }
    return result;
}

} // namespace platform
