#include "exchange/exchangeformat.h"

#include <QLocale>
#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace Exchange {

bool hasLine(QByteArrayView text, QByteArrayView line)
{
    const auto endsLine = [](char c) { return c == '\n' || c == '\r'; };
    for (qsizetype at = text.indexOf(line); at >= 0; at = text.indexOf(line, at + 1)) {
        const qsizetype end = at + line.size();
        if ((at == 0 || endsLine(text[at - 1])) && (end == text.size() || endsLine(text[end])))
            return true;
    }
    return false;
}

bool hasRecordSection(QByteArrayView text)
{
    static const QByteArray marker = kRecordMarker.toUtf8();
    return hasLine(text, marker);
}

bool hasTrackSection(QByteArrayView text)
{
    static const QByteArray marker = kTrackMarker.toUtf8();
    return hasLine(text, marker);
}

QString shortenedLine(QByteArrayView line)
{
    constexpr qsizetype kLongest = 200;
    if (line.size() <= kLongest)
        return QString::fromUtf8(line);
    QStringList fields;
    for (qsizetype start = 0; start <= line.size();) {
        qsizetype end = line.indexOf(char(kSeparator.unicode()), start);
        if (end < 0)
            end = line.size();
        const QByteArrayView field = line.sliced(start, end - start);
        // A picture's base64 is ASCII: its bytes are its characters.
        fields.append(field.size() <= kLongest ? QString::fromUtf8(field)
                                               : u"[picture: %1 characters]"_s.arg(QLocale().toString(field.size())));
        start = end + 1;
    }
    return fields.join(kSeparator);
}

QString preview(QByteArrayView utf8, qsizetype maxCharacters)
{
    if (utf8.size() <= maxCharacters)
        return QString::fromUtf8(utf8);
    // A long text is shown as a labelled summary: its size, then its first lines with the
    // pictures' long base64 fields shortened, so the collector sees what the file holds.
    const QLocale locale;
    QString shown;
    qsizetype linesShown = 0;
    for (qsizetype start = 0; start < utf8.size() && shown.size() < maxCharacters; ++linesShown) {
        qsizetype end = utf8.indexOf('\n', start);
        if (end < 0)
            end = utf8.size();
        shown += shortenedLine(utf8.sliced(start, end - start)) + u'\n';
        start = end + 1;
    }
    const qsizetype lines = utf8.count('\n');
    return u"This file is too large to show whole: %1 in %2 lines. Its first %3 lines follow, with each "
           "picture shortened to its size.\n\n"_s
               .arg(locale.formattedDataSize(utf8.size()), locale.toString(lines), locale.toString(linesShown))
           + shown + (lines > linesShown ? u"\u2026\n(%1 more lines in the file)"_s.arg(locale.toString(lines - linesShown)) : QString());
}

QString cleanNotes(const QString &notes)
{
    QString cleaned = notes;
    // A CR or CR LF is a line break too; it must not end the record line.
    cleaned.replace(u"\r\n"_s, u"\n"_s);
    cleaned.replace(u'\r', u'\n');
    cleaned.remove(kSeparator);
    cleaned.replace(u'&', u"and"_s);
    cleaned.remove(u'\'');
    cleaned.replace(u'\n', u'~');
    return cleaned;
}

QString restoreNotes(const QString &field)
{
    QString notes = field;
    notes.replace(u'~', u'\n');
    return notes;
}

QString formatDate(const QDateTime &date)
{
    return date.toLocalTime().toString(kDateFormat);
}

std::optional<QDateTime> parseDate(QString field)
{
    field.remove(u" +0000"_s);
    QDateTime date = QDateTime::fromString(field, kDateFormat);
    if (!date.isValid())
        return std::nullopt;
    return date;
}

bool breaksLine(const QString &text)
{
    for (const QChar c : text) {
        if (c == kSeparator || c == u'\n' || c == u'\r')
            return true;
    }
    return false;
}

QString withoutLineBreakers(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (c != kSeparator && c != u'\n' && c != u'\r')
            result.append(c);
    }
    return result;
}

} // namespace Exchange

namespace Exchange {

std::optional<QByteArray> decodeBase64(QByteArrayView text)
{
    static constexpr auto kValues = [] {
        std::array<qint8, 128> values{};
        values.fill(-1);
        const char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
        for (int i = 0; i < 64; ++i)
            values[size_t(alphabet[i])] = qint8(i);
        return values;
    }();

    const qsizetype size = text.size();
    if (size % 4 != 0)
        return std::nullopt;
    qsizetype padding = 0;
    if (size > 0 && text[size - 1] == '=')
        padding = text[size - 2] == '=' ? 2 : 1;

    QByteArray bytes(size / 4 * 3 - padding, Qt::Uninitialized);
    char *out = bytes.data();
    char *const end = out + bytes.size();
    for (qsizetype i = 0; i < size; i += 4) {
        quint32 bits = 0;
        for (qsizetype k = i; k < i + 4; ++k) {
            const uchar c = uchar(text[k]);
            const int value = k >= size - padding ? 0 : (c < 128 ? kValues[c] : -1);
            if (value < 0)
                return std::nullopt;
            bits = bits << 6 | quint32(value);
        }
        for (int shift = 16; shift >= 0 && out < end; shift -= 8)
            *out++ = char(bits >> shift);
    }
    return bytes;
}

} // namespace Exchange
