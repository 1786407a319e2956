#pragma once

#include "exchange/csv.h"
#include "exchange/importfile.h"
#include "store/result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

class Store;

// The collection as CSV files a spreadsheet opens: a header line of attribute names, then one
// line per record with every attribute but the pictures (numbers with a "." decimal point,
// dates as ISO 8601 dates). Tracks go to a second file or, on request, to a second section of
// the same file: a blank line, then their own header line.
//
// The import reads any CSV file whose header names a record's attributes, by attribute name
// ("recordLabel") or by the form's field title ("Record Label"), in any order, and likewise for
// tracks. What the export writes therefore comes back whole, the pictures aside.
namespace CollectionCsv {

enum class Section { None, Records, Tracks };

// What a header line heads: records when it names the album name, tracks when it names the
// vinylID and song (and no album name).
[[nodiscard]] Section sectionOf(const QStringList &header);
// Reads the rows of file.text (rows.first() is a header that sectionOf() knows) into file.
void read(QList<Csv::RowStart> rows, ImportFile &file);

struct Files
{
    QByteArray records; // UTF-8 with a byte-order mark, which spreadsheets look for
    QByteArray tracks;  // empty when the tracks are a section of the records file
};
// Called with the lines written and the lines in all; returning false cancels.
using Progress = std::function<bool(qint64 done, qint64 total)>;
// Records sorted by name, artist and release date, tracks by vinylID and trackNumber.
Result<Files> write(Store &store, bool tracksInRecordsFile, const Progress &progress = {});

// Where the tracks file goes beside the records file: "collection.csv" -> "collection-tracks.csv".
[[nodiscard]] QString tracksPath(const QString &recordsPath);

} // namespace CollectionCsv
