#include "formatters.h"

#include <QLocale>
#include <QTimeZone>

#include <chrono>
#include <optional>

#include <unicode/datefmt.h>
#include <unicode/decimfmt.h>
#include <unicode/numfmt.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <charconv>
#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

QString fromIcu(const icu::UnicodeString &s)
{
    return QString(reinterpret_cast<const QChar *>(s.getBuffer()), s.length());
}

icu::UnicodeString toIcu(const QString &s)
{
    return icu::UnicodeString(reinterpret_cast<const char16_t *>(s.utf16()), int32_t(s.size()));
}

struct FormatterSet
{
    QString localeName;
    QByteArray zoneId;
    std::unique_ptr<icu::NumberFormat> currency;
    std::unique_ptr<icu::NumberFormat> twoDecimals;
    std::unique_ptr<icu::NumberFormat> plain;
    std::unique_ptr<icu::DateFormat> medium;
    std::unique_ptr<icu::DateFormat> longStyle;
    std::unique_ptr<icu::DateFormat> year;
    std::unique_ptr<icu::DateFormat> monthYear;
};

std::unique_ptr<icu::DateFormat> pattern(const char16_t *text, const icu::Locale &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(icu::UnicodeString(text), locale, status);
    return U_SUCCESS(status) ? std::move(format) : nullptr;
}

// The system time zone's id. Reading it touches several files, and dates are formatted per
// list row, so it is read again only when TZ changes or a few seconds have passed.
QByteArray systemZoneId()
{
    using Clock = std::chrono::steady_clock;
    thread_local QByteArray tz;
    thread_local QByteArray id;
    thread_local std::optional<Clock::time_point> readAt;
    const QByteArray env = qgetenv("TZ");
    const Clock::time_point now = Clock::now();
    if (!readAt || env != tz || now - *readAt > std::chrono::seconds(5)) {
        tz = env;
        id = QTimeZone::systemTimeZoneId();
        readAt = now;
    }
    return id;
}

// The set for the current locale and time zone, rebuilt only when either changes.
FormatterSet &formatters()
{
    thread_local FormatterSet set;
    const QString localeName = Formatters::icuLocaleName();
    const QByteArray zoneId = systemZoneId();
    if (set.currency && set.localeName == localeName && set.zoneId == zoneId)
        return set;

    set = FormatterSet{};
    set.localeName = localeName;
    set.zoneId = zoneId;
    const icu::Locale locale(localeName.toLatin1().constData());
    UErrorCode status = U_ZERO_ERROR;
    set.currency.reset(icu::NumberFormat::createCurrencyInstance(locale, status));
    status = U_ZERO_ERROR;
    set.twoDecimals.reset(icu::NumberFormat::createInstance(locale, status));
    if (set.twoDecimals) {
        set.twoDecimals->setMinimumFractionDigits(2);
        set.twoDecimals->setMaximumFractionDigits(2);
        set.twoDecimals->setGroupingUsed(true);
    }
    status = U_ZERO_ERROR;
    set.plain.reset(icu::NumberFormat::createInstance(locale, status));
    if (set.plain)
        set.plain->setParseIntegerOnly(false);
    set.medium.reset(icu::DateFormat::createDateInstance(icu::DateFormat::kMedium, locale));
    set.longStyle.reset(icu::DateFormat::createDateInstance(icu::DateFormat::kLong, locale));
    set.year = pattern(u"yyyy", locale);
    set.monthYear = pattern(u"MMMM-yyyy", locale);

    std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(zoneId.constData())));
    for (icu::DateFormat *f : {set.medium.get(), set.longStyle.get(), set.year.get(), set.monthYear.get()}) {
        if (f && zone && *zone != icu::TimeZone::getUnknown())
            f->setTimeZone(*zone);
    }
    return set;
}

QString formatNumber(const icu::NumberFormat *format, double value)
{
    if (!format)
        return QString::number(value, 'f', 2);
    icu::UnicodeString out;
    format->format(value, out);
    return fromIcu(out);
}

QString formatDate(const icu::DateFormat *format, const QDateTime &date)
{
    if (!format || !date.isValid())
        return {};
    icu::UnicodeString out;
    format->format(UDate(date.toMSecsSinceEpoch()), out);
    return fromIcu(out);
}

// Shortest round-trip text in the style of the platform's number description: plain
// decimal notation between 1e-4 and 2^significand bits, exponent notation outside, and
// always a fraction part or an exponent.
template<typename T>
QString shortestText(T value, double exponentFrom)
{
    if (std::isnan(value))
        return u"nan"_s;
    if (std::isinf(value))
        return value < 0 ? u"-inf"_s : u"inf"_s;
    char buffer[64];
    const double magnitude = std::fabs(double(value));
    const bool scientific = magnitude != 0 && (magnitude < 1e-4 || magnitude >= exponentFrom);
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value,
                                      scientific ? std::chars_format::scientific : std::chars_format::fixed);
    QString text = QString::fromLatin1(buffer, result.ptr - buffer);
    if (!scientific && !text.contains(u'.'))
        text += u".0"_s;
    return text;
}

} // namespace

namespace Formatters {

QString icuLocaleName()
{
    const QLocale locale;
    if (locale.language() == QLocale::C)
        return u"en_US"_s;
    return locale.name();
}

QString currency(double amount)
{
    return formatNumber(formatters().currency.get(), amount);
}

QString currencyOrZero(double amount)
{
    const QString text = currency(amount);
    return text.isEmpty() ? QStringLiteral("0") : text;
}

QString twoDecimals(double amount)
{
    return formatNumber(formatters().twoDecimals.get(), amount);
}

QString mediumDate(const QDateTime &date)
{
    return formatDate(formatters().medium.get(), date);
}

QString longDate(const QDateTime &date)
{
    return formatDate(formatters().longStyle.get(), date);
}

QString year(const QDateTime &date)
{
    return formatDate(formatters().year.get(), date);
}

QString monthYear(const QDateTime &date)
{
    return formatDate(formatters().monthYear.get(), date);
}

std::optional<QDateTime> parseMediumDate(const QString &text)
{
    const icu::DateFormat *format = formatters().medium.get();
    if (!format || text.trimmed().isEmpty())
        return std::nullopt;
    const icu::UnicodeString input = toIcu(text);
    icu::ParsePosition position(0);
    const UDate parsed = format->parse(input, position);
    if (position.getErrorIndex() >= 0 || position.getIndex() != input.length())
        return std::nullopt;
    const QDate day = QDateTime::fromMSecsSinceEpoch(qint64(parsed)).date();
    return QDateTime(day, QTime(0, 0));
}

std::optional<double> parseDecimal(const QString &text)
{
    const icu::NumberFormat *format = formatters().plain.get();
    if (!format || text.isEmpty())
        return std::nullopt;
    const icu::UnicodeString input = toIcu(text);
    icu::Formattable result;
    icu::ParsePosition position(0);
    format->parse(input, result, position);
    if (position.getErrorIndex() >= 0 || position.getIndex() != input.length())
        return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    const double value = result.getDouble(status);
    return U_SUCCESS(status) ? std::optional<double>(value) : std::nullopt;
}

QString shortest(double value)
{
    return shortestText(value, 9007199254740992.0); // 2^53
}

QString shortest(float value)
{
    return shortestText(value, 16777216.0); // 2^24
}

} // namespace Formatters
