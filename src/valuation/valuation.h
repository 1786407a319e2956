#pragma once

#include "entities.h"

#include <QList>
#include <QString>

#include <optional>

// The valuation screen's rules, apart from any screen: the web search address for an album,
// what a new value may be typed as and how it is read, and the texts of a row.
namespace Valuation {

inline const QString kNoSearchTitle = QStringLiteral("No Search");
inline const QString kNoSearchMessage = QStringLiteral("Required Fields Name Not Entered");
inline const QString kNotSavedTitle = QStringLiteral("Record not Saved!");
inline const QString kNoNewValueMessage = QStringLiteral("New Value not Entered");

// "what is a <artist> <name> vinyl record album worth" on the search engine: spaces become
// "+", doubled "+" one, "&" is spelled "and" and right single quotation marks go.
[[nodiscard]] QString searchAddress(const QString &artist, const QString &name);

// Typing into the new value keeps only digits and points; a deletion is always accepted.
[[nodiscard]] bool acceptsTyped(const QString &replacement);
// A new value as entered or pasted: "$" signs are dropped, the rest must read as a number.
[[nodiscard]] std::optional<float> parseNewValue(QString text);

// Copies held (the sum of quantities) and their value (quantity x value), summed in wide
// types so that no collection overflows them.
struct Totals
{
    qint64 copies = 0;
    double value = 0;
};
[[nodiscard]] Totals totals(const QList<Vinyl> &records);
[[nodiscard]] QString copiesText(const Totals &totals);
[[nodiscard]] QString valueText(const Totals &totals);

// The five lines of a row.
struct RowTexts
{
    QString name;
    QString artist;
    QString recordLabel;
    QString released;
    QString value;
};
[[nodiscard]] RowTexts rowTexts(const Vinyl &vinyl);

} // namespace Valuation
