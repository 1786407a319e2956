#pragma once

#include "exchange/csv.h"
#include "exchange/importfile.h"

#include <QList>
#include <QString>
#include <QStringList>

// A Discogs collection export: a CSV file with the columns "Catalog#", "Artist", "Title",
// "Label", "Format", "Rating", "Released", "release_id", "CollectionFolder", "Date Added",
// "Collection Media Condition", "Collection Sleeve Condition", "Collection Notes", found by name
// in any order; other columns (the collector's own fields) are not read.
//
// Title becomes the name; Artist and Label the artist and recordLabel, without the " (2)" that
// site adds to tell namesakes apart (of "A, B" labels the first); Released the release date (a
// year, a year and month, or a full date; "0" is none); Format the album type and speed; the
// media and sleeve conditions the grades of the reference lists; Collection Notes, Catalog#
// and release_id the notes, each on a line of its own. The site lists each copy of a release
// on a row of its own: rows with one release_id become one record whose quantity counts them.
// A row that cannot be imported (no title, a date that is none) is a problem of its own and no
// copy; the release's record is its first row without a problem.
namespace DiscogsCsv {

// A condition text of the site and the reference-list grade it becomes ("" for none: the text
// is then kept in the notes).
struct ConditionGrade
{
    QString condition;
    QString grade;
};
// The one table of condition texts, best first.
[[nodiscard]] const QList<ConditionGrade> &conditionGrades();

// Whether a CSV header line is a Discogs collection export's.
[[nodiscard]] bool recognises(const QStringList &header);
// What the file lists: the collection, or the wantlist, whose notes column is "Notes" and
// whose rows are each an album of their own (a release listed twice is the same album twice).
enum class Export { Collection, Wantlist };

// Reads the rows of file.text after the header (rows.first()) into file.
void read(QList<Csv::RowStart> rows, ImportFile &file, Export kind = Export::Collection);

} // namespace DiscogsCsv
