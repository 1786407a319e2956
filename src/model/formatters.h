#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

// Number and date texts shared by every screen, in the current locale (QLocale's default;
// a C/POSIX locale counts as en_US). The ICU formatters behind them are built once per
// thread and locale, never per row.
namespace Formatters {

// 12.5 -> "$12.50" (en_US).
[[nodiscard]] QString currency(double amount);
// The currency text, or "0" when the formatter gives nothing.
[[nodiscard]] QString currencyOrZero(double amount);
// 1234.5 -> "1,234.50": grouping and exactly two fraction digits.
[[nodiscard]] QString twoDecimals(double amount);
// Medium date style, no time: "Mar 5, 1975".
[[nodiscard]] QString mediumDate(const QDateTime &date);
// Long date style, no time: "March 5, 1975".
[[nodiscard]] QString longDate(const QDateTime &date);
// "yyyy": "1975".
[[nodiscard]] QString year(const QDateTime &date);
// "MMMM-yyyy": "March-1975".
[[nodiscard]] QString monthYear(const QDateTime &date);

// Reads a medium-style date text back; the date at local midnight, or nullopt.
[[nodiscard]] std::optional<QDateTime> parseMediumDate(const QString &text);
// Reads a number with the locale's plain decimal formatter ("1,234.5" in en_US); nullopt
// unless the whole text is a number.
[[nodiscard]] std::optional<double> parseDecimal(const QString &text);

// Shortest text that reads back to the same double, always with a fraction part or an
// exponent: 45.0, 45.5, 1e-05, 1e+16.
[[nodiscard]] QString shortest(double value);
// The same for a 32-bit float: 12.5 (not 12.5000000001).
[[nodiscard]] QString shortest(float value);

// The ICU locale name used for the current QLocale ("en_US" for C/POSIX).
[[nodiscard]] QString icuLocaleName();

} // namespace Formatters
