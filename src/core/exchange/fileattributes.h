#pragma once

#include "store/entities.h"
#include "store/result.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>
#include <variant>

// The attributes of records and tracks as import and export files name them: the attribute's
// own name ("recordLabel"), the title the form gives its field ("Record Label"), and how its
// value reads and writes as text. One table serves the CSV export, the CSV import and the
// import preview, so what one writes the other reads back.
template<typename Entity>
struct FileAttribute
{
    using Member = std::variant<std::optional<QString> Entity::*, std::optional<QDateTime> Entity::*,
                                std::optional<qint16> Entity::*, std::optional<double> Entity::*,
                                std::optional<float> Entity::*>;
    QString name;
    QString title;
    Member member;
};

using RecordAttribute = FileAttribute<Vinyl>;
using TrackAttribute = FileAttribute<Track>;

namespace FileAttributes {

// Every record attribute but the covers and their file paths, in the order the form shows them
// (the record number first), then the barcode and the release id of the look-up.
[[nodiscard]] const QList<RecordAttribute> &records();
// Every track attribute: vinylID, trackNumber, song, duration, writtenBy.
[[nodiscard]] const QList<TrackAttribute> &tracks();

// The attribute a column header names: its name or its form title, any letter case, spaces
// around it ignored. nullptr for any other header.
template<typename Entity>
[[nodiscard]] const FileAttribute<Entity> *find(const QList<FileAttribute<Entity>> &table, const QString &header);

// The value as a file holds it: numbers with a "." decimal point (shortest text that reads
// back the same), dates as ISO 8601 dates ("1975-03-05", the local calendar date), texts as
// they are; "" when absent.
template<typename Entity>
[[nodiscard]] QString fileText(const FileAttribute<Entity> &attribute, const Entity &object);
// The value as the preview shows it: dates in the medium style, amounts with two decimals;
// "(none)" when absent.
template<typename Entity>
[[nodiscard]] QString shownText(const FileAttribute<Entity> &attribute, const Entity &object);
// Reads a file's text into the attribute. Numbers take a "." decimal point or the locale's;
// dates take the ISO forms (year, year-month, full date, date and time) or the locale's medium
// style. The error says why, naming the field: "Quantity "two" is not a number".
template<typename Entity>
Result<void> read(const FileAttribute<Entity> &attribute, const QString &text, Entity &into);

template<typename Entity>
[[nodiscard]] bool has(const FileAttribute<Entity> &attribute, const Entity &object);
template<typename Entity>
[[nodiscard]] bool same(const FileAttribute<Entity> &attribute, const Entity &a, const Entity &b);
// Sets the attribute of `to` to the value `from` holds.
template<typename Entity>
void copy(const FileAttribute<Entity> &attribute, const Entity &from, Entity &to);
template<typename Entity>
void clear(const FileAttribute<Entity> &attribute, Entity &object);

// A year ("1975"), a year and month ("1975-03"), a full date ("1975-03-05"; a "00" month or
// day reads as the first) or an ISO date and time, as local time; nullopt for anything else.
[[nodiscard]] std::optional<QDateTime> parseIsoDate(const QString &text);
// Whether parseIsoDate reads the text, without making its date: a check on every line of a file.
[[nodiscard]] bool isIsoDate(const QString &text);

// A value as a problem quotes it: at most kExcerptLength characters, a longer one cut and ending
// in "…", so that a problem never holds a whole line of a file.
constexpr qsizetype kExcerptLength = 40;
[[nodiscard]] QString excerpt(const QString &text);

} // namespace FileAttributes
