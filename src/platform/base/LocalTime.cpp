#include "platform/base/LocalTime.h"

#include "platform/base/NativePath.h"

#include <array>
#include <clocale>
#include <vector>

namespace platform {
namespace {

constexpr qsizetype longestWidth = 2; // digits: no name is as long as a hundred

constexpr std::size_t largestDate = std::size_t{1} << 20; // bytes: whatever is longer is no date

locale_t english()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

std::tm localTime(std::time_t moment)
{
    std::tm parts{};
    localtime_r(&moment, &parts);
    return parts;
}

/// "%e" pads with a blank in strftime; "%-d" is the same number without it.
QByteArray withUnpaddedDay(const QByteArray &format)
{
    QByteArray result;
    for (qsizetype i = 0; i < format.size(); ++i) {
        if (format[i] != '%' || i + 1 == format.size()) {
            result += format[i];
            continue;
        }
        ++i;
        result += format[i] == 'e' ? QByteArray("%-d") : QByteArray("%") + format[i];
    }
    return result;
}

} // namespace

QString dateDescription(std::time_t moment)
{
    const std::tm parts = localTime(moment);
    std::array<char, 40> buffer{};
    const std::size_t length = strftime_l(buffer.data(), buffer.size(), "%Y-%m-%d %H:%M:%S %z", &parts, english());
    return QString::fromLatin1(buffer.data(), static_cast<qsizetype>(length));
}

QString currentDateDescription()
{
    return dateDescription(std::time(nullptr));
}

QString formatDate(const QString &format, std::time_t moment)
{
    const std::tm parts = localTime(moment);
    // The mark at the end tells an empty result from a buffer that was too small: strftime answers 0 to both.
    const QByteArray marked = withUnpaddedDay(toNative(format)) + '|';
    std::vector<char> buffer(static_cast<std::size_t>(marked.size()) * 4 + 256);
    std::size_t length = 0;
    for (; length == 0 && buffer.size() < largestDate; buffer.resize(buffer.size() * 2))
        length = strftime_l(buffer.data(), buffer.size(), marked.constData(), &parts, english());
    return length == 0 ? QString() : fromNative(QByteArrayView(buffer.data(), static_cast<qsizetype>(length) - 1));
}

std::optional<std::time_t> dayOf(const QString &text, const QString &format)
{
    std::tm parts{};
    parts.tm_mday = 1; // for a month alone
    const QByteArray bytes = toNative(text);
    const char *end = strptime_l(bytes.constData(), toNative(format).constData(), &parts, english());
    if (!end || *end != '\0')
        return std::nullopt;
    parts.tm_hour = parts.tm_min = parts.tm_sec = 0;
    parts.tm_isdst = -1;
    const std::tm read = parts;
    const std::time_t moment = std::mktime(&parts);
    // mktime takes the 31st of April for the 1st of May.
    const bool isDay = parts.tm_mday == read.tm_mday && parts.tm_mon == read.tm_mon && parts.tm_year == read.tm_year;
    return moment == -1 || !isDay ? std::nullopt : std::optional(moment);
}

DateFormatProblem problemOfDateFormat(const QString &format)
{
    static const QLatin1String letters("aAbBcCdDeFgGhHIjklmMnpPrRsStTuUVwWxXyYzZ+");
    static const QLatin1String flags("_-0^#");
    bool hasDate = false;
    for (qsizetype i = 0; i < format.size(); ++i) {
        if (format[i] != u'%')
            continue;
        ++i;
        while (i < format.size() && flags.contains(format[i]))
            ++i;
        const qsizetype width = i;
        while (i < format.size() && format[i] >= u'0' && format[i] <= u'9') // no other script's digits
            ++i;
        if (i - width > longestWidth)
            return DateFormatProblem::UnknownLetter;
        if (i < format.size() && (format[i] == u'E' || format[i] == u'O')) // another calendar's form
            ++i;
        if (i == format.size())
            return DateFormatProblem::CutOff;
        if (format[i] == u'%')
            continue;
        if (!letters.contains(format[i]))
            return DateFormatProblem::UnknownLetter;
        hasDate = hasDate || !QLatin1String("nt").contains(format[i]);
    }
    return hasDate ? DateFormatProblem::None : DateFormatProblem::NoDate;
}

} // namespace platform
