#include "exchange/csv.h"

using namespace Qt::StringLiterals;

namespace Csv {

namespace {

bool endsLine(char c)
{
    return c == '\n' || c == '\r';
}

// Moves `at` past a line end (CR LF, CR or LF) and `line` on by one.
void passLineEnd(QByteArrayView text, qsizetype &at, qint64 &line)
{
    at += text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n' ? 2 : 1;
    ++line;
}

// Reads one row from text[at], moving `at` past its line end and `line` on by the lines read.
// Commas, quotes and line ends are single bytes in UTF-8 and never part of another character,
// so the bytes are split as they stand. When `keep` is false no field is kept: `blank` tells
// whether all the row's fields are empty with every quote closed.
Row readRow(QByteArrayView text, qsizetype &at, qint64 &line, bool keep, bool &blank)
{
    const qsizetype size = text.size();
    Row row;
    row.line = line;
    if (keep)
        row.fields.reserve(16);
    blank = true;
    // Most fields are one run of bytes, read straight from the text; a field broken by a doubled
    // quote or a line break is joined first.
    QByteArrayView piece;
    QByteArray joined;
    int pieces = 0;
    const auto kept = [&]() { return keep && row.fields.size() < kMaxFields; };
    const auto append = [&](QByteArrayView bytes) {
        if (pieces == 0)
            piece = bytes;
        else if (pieces == 1)
            joined = piece.toByteArray() + bytes;
        else
            joined += bytes;
        ++pieces;
    };
    const auto take = [&](qsizetype from, qsizetype to) {
        if (to > from) {
            blank = false;
            if (kept())
                append(text.sliced(from, to - from));
        }
    };
    const auto endField = [&]() {
        ++row.count;
        if (kept())
            row.fields.append(pieces == 0 ? QString() : QString::fromUtf8(pieces == 1 ? piece : QByteArrayView(joined)));
        pieces = 0;
    };
    for (;;) {
        if (at < size && text[at] == '"') {
            const qint64 opened = line;
            bool closed = false;
            for (++at; at < size;) {
                qsizetype stop = at;
                while (stop < size && text[stop] != '"' && !endsLine(text[stop]))
                    ++stop;
                take(at, stop);
                at = stop;
                if (at == size)
                    break;
                if (text[at] == '"') {
                    if (at + 1 < size && text[at + 1] == '"') {
                        take(at, at + 1);
                        at += 2;
                        continue;
                    }
                    ++at;
                    closed = true;
                    break;
                }
                // CR LF, CR and LF inside a field all become one line feed.
                passLineEnd(text, at, line);
                blank = false;
                if (kept())
                    append("\n");
            }
            if (!closed) {
                row.error = u"the quote opened on line %1 is never closed"_s.arg(opened);
                blank = false;
                endField();
                return row;
            }
        }
        // An unquoted field, or what follows a closing quote, runs to the comma or line end.
        const qsizetype from = at;
        while (at < size && text[at] != ',' && !endsLine(text[at]))
            ++at;
        take(from, at);
        endField();
        if (at < size && text[at] == ',') {
            ++at;
            continue;
        }
        if (at < size)
            passLineEnd(text, at, line);
        return row;
    }
}

QByteArrayView withoutByteOrderMark(QByteArrayView utf8)
{
    return utf8.startsWith("\xEF\xBB\xBF") ? utf8.sliced(3) : utf8;
}

} // namespace

QList<RowStart> rowStarts(QByteArrayView utf8)
{
    if (utf8.size() >= kLargestFile)
        return {};
    const QByteArrayView text = withoutByteOrderMark(utf8);
    const qsizetype skipped = utf8.size() - text.size();
    QList<RowStart> starts;
    starts.reserve(text.count('\n') + 1);
    qsizetype at = 0;
    qint64 line = 1;
    while (at < text.size()) {
        const RowStart start{quint32(skipped + at), quint32(line)};
        bool blank = true;
        readRow(text, at, line, false, blank);
        if (!blank)
            starts.append(start);
    }
    starts.squeeze();
    return starts;
}

Row rowAt(QByteArrayView utf8, RowStart start)
{
    qsizetype at = start.offset;
    qint64 line = start.line;
    bool blank = true;
    return readRow(utf8, at, line, true, blank);
}

QList<Row> parse(QStringView text)
{
    const QByteArray utf8 = text.toUtf8();
    QList<Row> rows;
    for (const RowStart start : rowStarts(utf8))
        rows.append(rowAt(utf8, start));
    return rows;
}

QString rowProblem(const Row &row, qsizetype columns)
{
    if (!row.error.isEmpty())
        return u"the line cannot be read: "_s + row.error;
    if (row.count > columns)
        return u"the line cannot be read: it has %1 fields where the header has %2 (a comma outside quotes?)"_s
            .arg(row.count)
            .arg(columns);
    return {};
}

qsizetype column(const QStringList &header, const QString &name)
{
    for (qsizetype i = 0; i < header.size(); ++i) {
        if (header.at(i).trimmed().compare(name, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

QString field(const QString &text)
{
    const bool quoted = text.contains(u',') || text.contains(u'"') || text.contains(u'\n') || text.contains(u'\r')
                        || text.startsWith(u' ') || text.endsWith(u' ');
    if (!quoted)
        return text;
    QString doubled = text;
    doubled.replace(u"\""_s, u"\"\""_s);
    return u'"' + doubled + u'"';
}

QString line(const QStringList &fields)
{
    QString result;
    for (qsizetype i = 0; i < fields.size(); ++i) {
        if (i > 0)
            result += u',';
        result += field(fields.at(i));
    }
    return result + u"\r\n"_s;
}

} // namespace Csv
