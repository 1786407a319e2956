#pragma once

#include "store/entities.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <memory>

// A file to import, read line by line into what each line asks of the store, whatever the
// file's format. Reading never touches the store; ImportMerge decides and applies.

enum class ImportFormat {
    Exchange,    // Platterbox's own exchange file
    Discogs,     // a Discogs collection export (CSV)
    Spreadsheet, // a CSV file whose header names record or track attributes
    Unknown,     // none of these: nothing to import
};

// Where a long field (a cover's base64) lies in the file's bytes; read only when it is merged.
struct TextSpan
{
    qsizetype from = 0;
    qsizetype size = 0;
};

// One record line of a file.
struct RecordLine
{
    qint64 line = 0; // where it starts in the file, 1-based
    // The attributes the line gives; those it leaves absent stay as they are on a stored record.
    Vinyl values;
    // Attributes the line clears on a stored record, by name (an exchange line's cost, value or
    // id that does not convert).
    QStringList cleared;
    TextSpan frontImage;
    TextSpan backImage;
    // Why the line is skipped ("no name", "Release Date "1975-13" is not a date"); empty when
    // it can be imported.
    QString problem;
    // What the preview tells about the line beyond its values ("2 copies: lines 5 and 9").
    QString remark;
};

// One track line of a file.
struct TrackLine
{
    qint64 line = 0;
    Track values; // the attributes the line gives
    QString problem;
};

// Where a line starts in the file's bytes, and its number.
struct LineStart
{
    qsizetype offset = 0;
    qint64 number = 0;
};

// The lines of a CSV file, kept in a compact form and read from the file's bytes when asked for.
class ImportLines
{
public:
    virtual ~ImportLines() = default;
    [[nodiscard]] virtual qsizetype recordCount() const = 0;
    [[nodiscard]] virtual qsizetype trackCount() const = 0;
    [[nodiscard]] virtual RecordLine record(QByteArrayView utf8, qsizetype index) const = 0;
    [[nodiscard]] virtual TrackLine track(QByteArrayView utf8, qsizetype index) const = 0;
};

struct ImportFile
{
    ImportFormat format = ImportFormat::Unknown;
    QByteArray text; // the whole file, UTF-8: covers are read from it in place
    // Lines are kept only as where they start (an exchange file) or in a CSV reader's compact
    // form, and read when asked for: a file can hold millions, and a line read whole weighs far
    // more than its bytes.
    QList<LineStart> recordStarts;
    QList<LineStart> trackStarts;
    std::shared_ptr<const ImportLines> lines;
    // Columns of a CSV file that nothing is read from.
    QStringList ignoredColumns;
    // What the preview tells about the whole file: how the file's texts were taken (condition
    // texts and the grades they became).
    QStringList remarks;

    [[nodiscard]] qsizetype recordCount() const { return lines ? lines->recordCount() : recordStarts.size(); }
    [[nodiscard]] RecordLine record(qsizetype index) const;
    [[nodiscard]] qsizetype trackCount() const { return lines ? lines->trackCount() : trackStarts.size(); }
    [[nodiscard]] TrackLine track(qsizetype index) const;
    [[nodiscard]] qint64 lineCount() const { return recordCount() + trackCount(); }
    [[nodiscard]] QByteArrayView span(TextSpan s) const { return QByteArrayView(text).sliced(s.from, s.size); }
};

namespace ImportFiles {

// "Platterbox exchange file", "Discogs collection export", "CSV file", "Not a file Platterbox can read".
[[nodiscard]] QString formatName(ImportFormat format);
// "Discogs collection export: 1,204 records", "Platterbox exchange file: 3 records, 41 tracks".
[[nodiscard]] QString summary(const ImportFile &file);

// Recognises the format from the text itself, never from a file name: an exchange file by its
// "[VINYLCOLLECTION]" or "[TRACKCOLLECTION]" line, a CSV file by its header line. A text that
// is none of these reads as ImportFormat::Unknown, with no lines. The bytes are UTF-8
// (TextFile::utf8 checks them).
[[nodiscard]] ImportFile read(QByteArray utf8);

} // namespace ImportFiles
