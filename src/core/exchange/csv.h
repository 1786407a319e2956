#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

// Comma-separated values as RFC 4180 has them: fields in double quotes may hold commas, line
// breaks and doubled quotes; lines end in CR LF or LF. Spreadsheets and web sites write them.
namespace Csv {

// A row keeps its first kMaxFields fields and counts the rest: no file that can be imported
// has more columns, and a crafted row can hold millions.
constexpr qsizetype kMaxFields = 1024;

struct Row
{
    QStringList fields;
    qsizetype count = 0; // the fields in the row, kept or not
    qint64 line = 0; // the file line the row starts on, 1-based
    // Why the row cannot be read (a quote that is never closed); empty when it can.
    QString error;
};

// Where a row starts in a file's UTF-8 bytes, and the file line it starts on (1-based). A file
// can hold millions of rows, so a row is kept as this and read when asked for.
struct RowStart
{
    quint32 offset = 0;
    quint32 line = 0;
};
// Files this large or larger are not read as CSV: offsets and rows are counted in 31 bits.
constexpr qsizetype kLargestFile = 0x7fffffff;

// Where every row of the UTF-8 bytes starts, blank rows left out as parse() leaves them; empty
// for a file of kLargestFile bytes or more.
[[nodiscard]] QList<RowStart> rowStarts(QByteArrayView utf8);
// The row that starts there in the bytes.
[[nodiscard]] Row rowAt(QByteArrayView utf8, RowStart start);

// Every row of the text. A leading byte-order mark is dropped; a line break inside quotes
// becomes a line feed; blank lines and rows of empty fields are left out. A quote inside an
// unquoted field is taken as it stands ("7"" single" written without quotes reads 7" single).
[[nodiscard]] QList<Row> parse(QStringView text);

// Why a row under a header of `columns` fields cannot be read ("" when it can): a quote never
// closed, or more fields than the header names (a comma outside quotes).
[[nodiscard]] QString rowProblem(const Row &row, qsizetype columns);
// The position of a header field, any letter case, spaces around it ignored; -1 when absent.
[[nodiscard]] qsizetype column(const QStringList &header, const QString &name);

// One field as written: quoted when it holds a comma, quote, CR or LF (or starts or ends with a
// space, which some spreadsheets would drop), quotes doubled.
[[nodiscard]] QString field(const QString &text);
// One line of fields, ending in CR LF.
[[nodiscard]] QString line(const QStringList &fields);

} // namespace Csv
