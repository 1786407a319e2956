#pragma once

#include <QByteArray>
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

// A calendar day in the medium style ("Mar 3, 2026"), and without its year ("Apr 1").
[[nodiscard]] QString mediumDay(QDate day);
[[nodiscard]] QString dayAndMonth(QDate day);

// Reads a medium-style date text back; the date at local midnight, or nullopt.
[[nodiscard]] std::optional<QDateTime> parseMediumDate(const QString &text);
// Reads a number as the current locale writes it: its digits, its decimal separator, its
// grouping separator between whole groups ("1,234.5" in en_US, "1.234,5" in de_DE, "1 234,5"
// in fr_FR, where any kind of space groups), a leading minus and an exponent. Grouping in the
// wrong place ("12.5" in de_DE) does not read: nullopt unless the whole text is a number.
[[nodiscard]] std::optional<double> parseDecimal(const QString &text);
// parseDecimal after dropping the currency signs a pasted amount may carry: "$" and the
// locale's symbol and code ("$12.50", "12,50 €").
[[nodiscard]] std::optional<double> parseAmount(const QString &text);
// The characters a number field lets the user type: 0-9, ".", and the locale's digits,
// decimal separator and grouping separator (every kind of space where a space groups).
[[nodiscard]] QString numberFieldCharacters();

// Shortest text that reads back to the same double, always with a fraction part or an
// exponent: 45.0, 45.5, 1e-05, 1e+16.
[[nodiscard]] QString shortest(double value);
// The same for a 32-bit float: 12.5 (not 12.5000000001).
[[nodiscard]] QString shortest(float value);
// shortest() appended to text that is being written, without a string of its own.
void appendShortest(QByteArray &out, double value);
void appendShortest(QByteArray &out, float value);
// shortest() with the locale's decimal separator, for a field to show: "45,5" in de_DE.
[[nodiscard]] QString shortestInLocale(double value);

// The ICU locale name used for the current QLocale ("en_US" for C/POSIX).
[[nodiscard]] QString icuLocaleName();

} // namespace Formatters
