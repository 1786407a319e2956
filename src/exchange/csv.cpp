#include "csv.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Csv {

namespace {

bool endsLine(QChar c)
{
    return c == u'\n' || c == u'\r';
}

// Reads one row from text[at], moving `at` past its line end and `line` on by the lines read.
Row readRow(QStringView text, qsizetype &at, qint64 &line)
{
    const qsizetype size = text.size();
    Row row;
    row.line = line;
    for (;;) {
        QString field;
        if (at < size && text[at] == u'"') {
            const qint64 opened = line;
            bool closed = false;
            for (++at; at < size;) {
                const QChar c = text[at];
                if (c == u'"') {
                    if (at + 1 < size && text[at + 1] == u'"') {
                        field += u'"';
                        at += 2;
                        continue;
                    }
                    ++at;
                    closed = true;
                    break;
                }
                if (endsLine(c)) {
                    // CR LF, CR and LF inside a field all become one line feed.
                    at += c == u'\r' && at + 1 < size && text[at + 1] == u'\n' ? 2 : 1;
                    field += u'\n';
                    ++line;
                    continue;
                }
                field += c;
                ++at;
            }
            if (!closed) {
                row.error = u"the quote opened on line %1 is never closed"_s.arg(opened);
                row.fields.append(field);
                return row;
            }
        }
        // An unquoted field, or what follows a closing quote, runs to the comma or line end.
        const qsizetype from = at;
        while (at < size && text[at] != u',' && !endsLine(text[at]))
            ++at;
        field += text.sliced(from, at - from);
        row.fields.append(field);
        if (at < size && text[at] == u',') {
            ++at;
            continue;
        }
        if (at < size) {
            at += text[at] == u'\r' && at + 1 < size && text[at + 1] == u'\n' ? 2 : 1;
            ++line;
        }
        return row;
    }
}

bool blank(const Row &row)
{
    return row.error.isEmpty() && std::all_of(row.fields.cbegin(), row.fields.cend(), [](const QString &f) { return f.isEmpty(); });
}

} // namespace

QList<Row> parse(QStringView text)
{
    if (text.startsWith(u'\xFEFF'))
        text = text.sliced(1);
    QList<Row> rows;
    qsizetype at = 0;
    qint64 line = 1;
    while (at < text.size()) {
        Row row = readRow(text, at, line);
        if (!blank(row))
            rows.append(std::move(row));
    }
    return rows;
}

QString rowProblem(const Row &row, qsizetype columns)
{
    if (!row.error.isEmpty())
        return u"the line cannot be read: "_s + row.error;
    if (row.fields.size() > columns)
        return u"the line cannot be read: it has %1 fields where the header has %2 (a comma outside quotes?)"_s
            .arg(row.fields.size())
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
