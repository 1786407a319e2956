#pragma once

#include "exchange/csv.h"
#include "exchange/importfile.h"
#include "exchange/importmerge.h"
#include "store/result.h"
#include "store/wantedalbums.h"

#include <QByteArray>
#include <QList>
#include <QString>

class Snapshots;
class Store;

// The wantlist as CSV files: the CSV file the collection export writes, with two more columns,
// "maxPrice" (a "." decimal point, whatever the locale) and "priority" (1, sought first, to 3),
// and a Discogs wantlist export ("Catalog#", "Artist", "Title", "Label", "Format", "Rating",
// "Released", "release_id", "Notes"), read as the Discogs collection export is: Catalog# and
// release_id are kept in the notes, never as the MusicBrainz release id.
//
// An import only adds: a line whose name and artist (case and surrounding spaces aside) are on
// the wantlist already, or on an earlier line of the file, is skipped, as is a line without a
// name or an artist. The wanted albums are added in one transaction, so a failed import adds none.
namespace WantlistCsv {

inline const QString kNoArtist = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "no artist"));
inline const QString kAlreadyWanted = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "already on the wantlist"));
// "%1" is the earlier line's number.
inline const QString kSameAsLine = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "the same album as line %1"));
// "%1" is the file's text.
inline const QString kNotAPriority = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Priority \"%1\" is not 1, 2 or 3"));
inline const QString kNotAWantlist =
    QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "no CSV header line that names record attributes, and no Discogs wantlist header"));

// One line of a file as a wanted album, or why it cannot be one.
struct WantedLine
{
    qint64 line = 0;
    WantedAlbum wanted;
    QString problem;
};

// A file read for the wantlist; its lines are read when asked for, as an import file's are.
class WantlistFile
{
public:
    // ImportFormat::Unknown, with no lines, for a text that is no CSV file of records.
    [[nodiscard]] ImportFormat format() const { return m_file.format; }
    [[nodiscard]] qsizetype count() const { return m_file.recordCount(); }
    [[nodiscard]] WantedLine line(qsizetype index) const;
    // Columns of the file that nothing is read from.
    [[nodiscard]] const QStringList &ignoredColumns() const { return m_file.ignoredColumns; }
    // "Discogs wantlist export: 4 albums", "CSV file: 1 album".
    [[nodiscard]] QString summary() const;

private:
    friend WantlistFile read(QByteArray utf8);
    ImportFile m_file;
    QList<Csv::RowStart> m_rows; // a CSV file's rows, its header first
    qsizetype m_maxPrice = -1;   // the columns of the two wantlist attributes; -1 when absent
    qsizetype m_priority = -1;
};

// Reads the UTF-8 bytes of a CSV file (TextFile::utf8 checks them).
[[nodiscard]] WantlistFile read(QByteArray utf8);

// What an import did, or would do.
struct WantlistCounts
{
    qint64 added = 0;
    QList<ImportProblem> problems; // the first ImportCounts::kListedProblems lines skipped
    qint64 moreProblems = 0;
    [[nodiscard]] qint64 skipped() const { return problems.size() + moreProblems; }
};

// What importing the file would do; the store is only read.
Result<WantlistCounts> preview(const Store &store, const WantlistFile &file);
// Adds the file's wanted albums in one transaction.
Result<WantlistCounts> apply(Store &store, const WantlistFile &file);
// Keeps the store as a snapshot first, as every import does, so that Undo Last Import takes the
// albums off again; `source` names the file in the snapshot.
Result<WantlistCounts> applyAfterSnapshot(Store &store, const WantlistFile &file, Snapshots &snapshots,
                                          const QString &source);

// "3 wanted albums added, 1 skipped", in the locale's digits.
[[nodiscard]] QString countsText(const WantlistCounts &counts);
// What a preview found: "3 wanted albums to add, 1 to skip".
[[nodiscard]] QString previewText(const WantlistCounts &counts);

// The wantlist as the import reads it back: a byte-order mark, the collection CSV's header with
// maxPrice and priority after it, one line per wanted album, sought first first.
Result<QByteArray> write(const Store &store);

} // namespace WantlistCsv
