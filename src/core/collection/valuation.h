#pragma once

#include "store/entities.h"
#include "store/recordcaptions.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

// The valuation screen's rules, apart from any screen: the web search address for an album,
// what a new value may be typed as and how it is read, and the texts of a row.
namespace Valuation {

inline const QString kNoSearchTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "No Search"));
inline const QString kNoSearchMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Required Fields Name Not Entered"));
inline const QString kNotSavedTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Record not Saved!"));
inline const QString kNoNewValueMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "New Value not Entered"));
// %1: the new value as typed.
inline const QString kUnreadableValueMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "New Value \"%1\" is not an amount."));
inline const QString kPageNotOpenedTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Page not Opened"));
// %1: the address.
inline const QString kNotAnAddressMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "\"%1\" is not a web address."));
inline const QString kCantSendTextTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Can't Send Text Message"));
inline const QString kCantSendTextMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Your device is not able to send text messages."));

// "what is a <artist> <name> vinyl record album worth" on the search engine: "&" is spelled
// "and", right single quotation marks go, every other character an address cannot hold as
// it is ('"', '%', '+', letters beyond ASCII) is percent-encoded, spaces become "+" and a
// doubled "+" one.
[[nodiscard]] QString searchAddress(const QString &artist, const QString &name);

// "Last valued Mar 5, 2024": the date of a record's newest quote; "Not valued yet" without one.
inline const QString kLastValued = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Last valued %1"));
inline const QString kNotValuedYet = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Not valued yet"));
[[nodiscard]] QString lastQuoteText(const std::optional<QDateTime> &lastQuoted);

// A new value as entered or pasted, read as the current locale writes amounts ("$12.50" in
// en_US, "12,50" in de_DE); nullopt when it does not read or does not fit a float.
[[nodiscard]] std::optional<float> parseNewValue(const QString &text);

// Copies held (the sum of quantities) and their value (quantity x value), summed in wide
// types so that no collection overflows them.
struct Totals
{
    qint64 copies = 0;
    double value = 0;
};
[[nodiscard]] QString copiesText(const Totals &totals);
[[nodiscard]] QString valueText(const Totals &totals);
// What the share button hands on: "Records held: 5\nTotal value: $55.00\n".
[[nodiscard]] QString shareText(const Totals &totals);

// The five lines of a row.
struct RowTexts
{
    QString name;
    QString artist;
    QString recordLabel;
    QString released;
    QString value;
};
[[nodiscard]] RowTexts rowTexts(const Vinyl &vinyl, const RecordCaptions &captions);

} // namespace Valuation
