#include "store/formatters.h"

#include <QLocale>
#include <QTimeZone>

#include <chrono>
#include <optional>

#include <unicode/datefmt.h>
#include <unicode/dcfmtsym.h>
#include <unicode/decimfmt.h>
#include <unicode/dtptngen.h>
#include <unicode/numfmt.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>
#include <string_view>

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

// How the locale writes numbers, as its number formatters do.
struct NumberSymbols
{
    QString decimal = u"."_s;
    QString grouping = u","_s;
    QString currency = u"$"_s;
    QString currencyCode = u"USD"_s;
    QString digits = u"0123456789"_s;
    int groupSize = 3;
    int secondaryGroupSize = 3;
};

struct FormatterSet
{
    QString localeName;
    QByteArray zoneId;
    std::unique_ptr<icu::NumberFormat> currency;
    std::unique_ptr<icu::NumberFormat> twoDecimals;
    std::unique_ptr<icu::DateFormat> medium;
    std::unique_ptr<icu::DateFormat> longStyle;
    std::unique_ptr<icu::DateFormat> year;
    std::unique_ptr<icu::DateFormat> monthYear;
    std::unique_ptr<icu::DateFormat> dayAndMonth;
    NumberSymbols symbols;
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
    const icu::DecimalFormatSymbols symbols(locale, status);
    if (U_SUCCESS(status)) {
        using Symbol = icu::DecimalFormatSymbols::ENumberFormatSymbol;
        set.symbols.decimal = fromIcu(symbols.getSymbol(Symbol::kDecimalSeparatorSymbol));
        set.symbols.grouping = fromIcu(symbols.getSymbol(Symbol::kGroupingSeparatorSymbol));
        set.symbols.currency = fromIcu(symbols.getSymbol(Symbol::kCurrencySymbol));
        set.symbols.currencyCode = fromIcu(symbols.getSymbol(Symbol::kIntlCurrencySymbol));
        set.symbols.digits = fromIcu(symbols.getSymbol(Symbol::kZeroDigitSymbol));
        for (Symbol digit : {Symbol::kOneDigitSymbol, Symbol::kTwoDigitSymbol, Symbol::kThreeDigitSymbol,
                             Symbol::kFourDigitSymbol, Symbol::kFiveDigitSymbol, Symbol::kSixDigitSymbol,
                             Symbol::kSevenDigitSymbol, Symbol::kEightDigitSymbol, Symbol::kNineDigitSymbol})
            set.symbols.digits += fromIcu(symbols.getSymbol(digit));
    }
    if (const auto *decimal = dynamic_cast<const icu::DecimalFormat *>(set.twoDecimals.get())) {
        set.symbols.groupSize = std::max(1, decimal->getGroupingSize());
        set.symbols.secondaryGroupSize =
            decimal->getSecondaryGroupingSize() > 0 ? decimal->getSecondaryGroupingSize() : set.symbols.groupSize;
    }
    set.medium.reset(icu::DateFormat::createDateInstance(icu::DateFormat::kMedium, locale));
    set.longStyle.reset(icu::DateFormat::createDateInstance(icu::DateFormat::kLong, locale));
    set.year = pattern(u"yyyy", locale);
    set.monthYear = pattern(u"MMMM-yyyy", locale);
    // The locale's own order and words for a day of a month: "Apr 1", "1. Apr.", "1 avr.".
    status = U_ZERO_ERROR;
    if (std::unique_ptr<icu::DateTimePatternGenerator> generator(icu::DateTimePatternGenerator::createInstance(locale, status));
        U_SUCCESS(status)) {
        icu::UnicodeString best = generator->getBestPattern(icu::UnicodeString(u"MMMd"), status);
        if (U_SUCCESS(status))
            set.dayAndMonth = pattern(best.getTerminatedBuffer(), locale);
    }

    std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(zoneId.constData())));
    for (icu::DateFormat *f :
         {set.medium.get(), set.longStyle.get(), set.year.get(), set.monthYear.get(), set.dayAndMonth.get()}) {
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
// always a fraction part or an exponent. Written into buffer (64 characters); returns its length.
template<typename T>
qsizetype shortestText(T value, double exponentFrom, char *buffer)
{
    const auto copied = [buffer](std::string_view text) {
        std::copy(text.begin(), text.end(), buffer);
        return qsizetype(text.size());
    };
    if (std::isnan(value))
        return copied("nan");
    if (std::isinf(value))
        return copied(value < 0 ? "-inf" : "inf");
    const double magnitude = std::fabs(double(value));
    const bool scientific = magnitude != 0 && (magnitude < 1e-4 || magnitude >= exponentFrom);
    // Room for ".0" after the longest plain text.
    const auto result = std::to_chars(buffer, buffer + 62, value,
                                      scientific ? std::chars_format::scientific : std::chars_format::fixed);
    qsizetype size = result.ptr - buffer;
    if (!scientific && std::find(buffer, result.ptr, '.') == result.ptr) {
        buffer[size++] = '.';
        buffer[size++] = '0';
    }
    return size;
}

bool isSpaceLike(const QString &separator)
{
    return separator.size() == 1 && separator.front().isSpace();
}

// The characters that group digits: the locale's separator, or every space where a space
// groups, since a typed space and the formatter's narrow no-break space look alike.
QString groupingCharacters(const NumberSymbols &symbols)
{
    return isSpaceLike(symbols.grouping) ? u" \u00A0\u202F"_s : symbols.grouping;
}

// Whole groups: the last of `groupSize` digits, those before it of `secondaryGroupSize`, the
// first of one to that many.
bool wellGrouped(const QStringList &groups, const NumberSymbols &symbols)
{
    if (groups.size() == 1)
        return !groups.front().isEmpty();
    const qsizetype first = groups.front().size();
    if (first < 1 || first > std::max(symbols.groupSize, symbols.secondaryGroupSize))
        return false;
    for (qsizetype i = 1; i + 1 < groups.size(); ++i) {
        if (groups.at(i).size() != symbols.secondaryGroupSize)
            return false;
    }
    return groups.back().size() == symbols.groupSize;
}

bool allDigits(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

// The locale's number text as "-123.45e6", or nullopt when it is not one.
std::optional<QString> plainNumberText(const QString &text, const NumberSymbols &symbols)
{
    QString t;
    t.reserve(text.size());
    for (const QChar c : text) {
        if (c.category() == QChar::Other_Format) // direction marks around signs and symbols
            continue;
        const int digit = c.digitValue();
        t.append(c.category() == QChar::Number_DecimalDigit && digit >= 0 ? QChar(u'0' + digit) : c);
    }
    t = t.trimmed();

    QString plain;
    if (t.startsWith(u'-') || t.startsWith(QChar(0x2212))) {
        plain = u"-"_s;
        t.remove(0, 1);
    }
    QString exponent;
    if (const qsizetype e = t.indexOf(u'e', 0, Qt::CaseInsensitive); e >= 0) {
        exponent = t.mid(e + 1);
        t.truncate(e);
        const QStringView digits = QStringView(exponent).mid(exponent.startsWith(u'-') || exponent.startsWith(u'+') ? 1 : 0);
        if (digits.isEmpty() || !allDigits(digits))
            return std::nullopt;
    }
    QString whole = t;
    QString fraction;
    if (const qsizetype point = t.indexOf(symbols.decimal); !symbols.decimal.isEmpty() && point >= 0) {
        whole = t.left(point);
        fraction = t.mid(point + symbols.decimal.size());
        if (!allDigits(fraction))
            return std::nullopt;
    }
    if (whole.isEmpty() && fraction.isEmpty())
        return std::nullopt;
    if (!whole.isEmpty()) {
        const QString grouping = groupingCharacters(symbols);
        QStringList groups{QString()};
        for (const QChar c : std::as_const(whole)) {
            if (grouping.contains(c))
                groups.append(QString());
            else if (c >= u'0' && c <= u'9')
                groups.back().append(c);
            else
                return std::nullopt;
        }
        if (!wellGrouped(groups, symbols))
            return std::nullopt;
        whole = groups.join(QString());
    }
    plain += (whole.isEmpty() ? u"0"_s : whole);
    if (!fraction.isEmpty())
        plain += u'.' + fraction;
    if (!exponent.isEmpty())
        plain += u'e' + exponent;
    return plain;
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

QString mediumDay(QDate day)
{
    // Noon: the day is the same in every time zone the formatter might use.
    return day.isValid() ? mediumDate(QDateTime(day, QTime(12, 0))) : QString();
}

QString dayAndMonth(QDate day)
{
    return day.isValid() ? formatDate(formatters().dayAndMonth.get(), QDateTime(day, QTime(12, 0))) : QString();
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
    const auto plain = plainNumberText(text, formatters().symbols);
    if (!plain)
        return std::nullopt;
    bool ok = false;
    const double value = QLocale::c().toDouble(*plain, &ok);
    return ok && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

std::optional<double> parseAmount(const QString &text)
{
    const NumberSymbols &symbols = formatters().symbols;
    QString number = text;
    number.remove(u'$');
    for (const QString &sign : {symbols.currency, symbols.currencyCode}) {
        if (!sign.isEmpty())
            number.remove(sign);
    }
    return parseDecimal(number);
}

QString numberFieldCharacters()
{
    const NumberSymbols &symbols = formatters().symbols;
    QString characters = u"0123456789."_s + symbols.digits + symbols.decimal + groupingCharacters(symbols);
    std::sort(characters.begin(), characters.end());
    characters.erase(std::unique(characters.begin(), characters.end()), characters.end());
    return characters;
}

constexpr double kDoubleExponentFrom = 9007199254740992.0; // 2^53
constexpr double kFloatExponentFrom = 16777216.0;         // 2^24

QString shortest(double value)
{
    char buffer[64];
    return QString::fromLatin1(buffer, shortestText(value, kDoubleExponentFrom, buffer));
}

QString shortest(float value)
{
    char buffer[64];
    return QString::fromLatin1(buffer, shortestText(value, kFloatExponentFrom, buffer));
}

void appendShortest(QByteArray &out, double value)
{
    char buffer[64];
    out.append(buffer, shortestText(value, kDoubleExponentFrom, buffer));
}

void appendShortest(QByteArray &out, float value)
{
    char buffer[64];
    out.append(buffer, shortestText(value, kFloatExponentFrom, buffer));
}

QString shortestInLocale(double value)
{
    return shortest(value).replace(u'.', formatters().symbols.decimal);
}

} // namespace Formatters
