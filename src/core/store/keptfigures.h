#pragma once

#include <QString>
#include <QStringList>

// Figures the store keeps current itself, so the statistics read a few hundred rows instead of
// every record and every quote.
//
// `Tallies` holds, for each grouping (the whole collection, each artist, label, producer, speed,
// album type and grade), how many records it has, their copies, and what those copies cost and
// are worth in cents. `ValueSteps` holds, per quarter hour, how much the collection's value
// changed by the quotes of that quarter hour: a quote adds its record's copies times the
// difference from the record's previous quote. Quarter hours are in UTC, and every time zone's
// offset is a whole number of them, so a quarter hour falls on a single day wherever the
// collector is; the days are found when the figures are read, in the time zone of that moment.
//
// Triggers keep both current on every write, whichever code makes it, so no save can forget them.
namespace KeptFigures {

// The groupings kept in `Tallies.kind`; `kCollection` has one row, keyed by the empty text.
inline const QString kCollection = QStringLiteral("collection");

// The tables, their triggers, and the figures of what is stored already.
[[nodiscard]] QStringList schema();

// Takes the tables and triggers away: a step that makes the records' table anew must not meet
// triggers that name it, and a restore copies the records without counting each one.
// Every statement names the `main` schema, so a backup attached beside it is never touched.
[[nodiscard]] QStringList dropped();

// Empties both tables and works them out again from the records and quotes.
[[nodiscard]] QStringList recount();

// SQL for an amount kept in cents, as a number of the currency.
[[nodiscard]] QString amount(const QString &centsColumn);

} // namespace KeptFigures
