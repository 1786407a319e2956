#include "exchange/exchangewriter.h"

#include "exchange/exchangeformat.h"
#include "store/fetchrequest.h"
#include "store/formatters.h"
#include "store/logging.h"
#include "store/store.h"
#include "store/translations.h"

#include <QBuffer>
#include <QImage>
#include <QtConcurrent/QtConcurrentMap>

#include <charconv>
#include <cstring>

using namespace Qt::StringLiterals;
namespace Msg = ExportMessages;

namespace {

// A stored text's UTF-8 bytes; absent when the store holds none.
using Text = std::optional<QByteArrayView>;

Text textAt(const StoreRows &row, int column)
{
    return row.isNull(column) ? std::nullopt : Text(row.bytes(column));
}

// True when the text is ASCII without a character the field would change: it is written as stored.
// Anything else takes the way through QString, which says what it changed.
template<typename Changed>
bool isPlain(QByteArrayView text, Changed changed)
{
    for (const char c : text) {
        if ((uchar(c) & 0x80) || changed(c))
            return false;
    }
    return true;
}

bool breaksLine(char c)
{
    return c == '^' || c == '\n' || c == '\r';
}

// What cleaning the notes changes.
bool changedInNotes(char c)
{
    return breaksLine(c) || c == '&' || c == '\'';
}

// Any text field except notes: written as stored, minus what would break the line.
void appendText(QByteArray &out, Text value, QLatin1StringView attribute, const QString &missingMessage,
                bool logWhenAbsent = true)
{
    if (!value) {
        if (logWhenAbsent && !missingMessage.isEmpty())
            consoleLine(missingMessage);
        return;
    }
    if (value->isEmpty()) {
        if (!missingMessage.isEmpty())
            consoleLine(missingMessage);
        return;
    }
    if (isPlain(*value, breaksLine)) {
        out.append(*value);
        return;
    }
    const QString text = QString::fromUtf8(*value);
    if (Exchange::breaksLine(text)) {
        consoleLine(Msg::kLineBreakerRemoved.arg(attribute));
        out.append(Exchange::withoutLineBreakers(text).toUtf8());
    } else {
        out.append(text.toUtf8());
    }
}

// A 16-bit number's digits, without a string of their own: a track line holds two.
void appendDigits(QByteArray &out, qint16 value)
{
    char digits[8];
    out.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr - digits);
}

// Absent numbers are logged and written as the 0 they read as.
void appendInteger(QByteArray &out, const StoreRows &row, int column, const QString &missingMessage)
{
    if (row.isNull(column))
        consoleLine(missingMessage);
    // The attributes are 16-bit numbers, read as every other reader of the store reads them.
    appendDigits(out, qint16(row.integer(column)));
}

template<typename T>
void appendReal(QByteArray &out, const StoreRows &row, int column, const QString &missingMessage)
{
    if (row.isNull(column))
        consoleLine(missingMessage);
    Formatters::appendShortest(out, T(row.real(column)));
}

void appendInteger(QByteArray &out, std::optional<qint16> value, const QString &missingMessage)
{
    if (!value)
        consoleLine(missingMessage);
    appendDigits(out, number(value));
}

void appendReal(QByteArray &out, std::optional<double> value, const QString &missingMessage)
{
    if (!value)
        consoleLine(missingMessage);
    Formatters::appendShortest(out, number(value));
}

// The base64 digits of every 12 bits, two at a time: a cover's base64 is the bulk of the file.
constexpr auto kBase64Pairs = [] {
    constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::array<std::array<char, 2>, 4096> pairs{};
    for (int i = 0; i < 4096; ++i)
        pairs[i] = {digits[i >> 6], digits[i & 63]};
    return pairs;
}();

// Base64 of bytes (with padding), written straight after the text.
void appendBase64(QByteArray &out, QByteArrayView bytes)
{
    const qsizetype start = out.size();
    const qsizetype n = bytes.size();
    out.resize(start + (n + 2) / 3 * 4);
    char *to = out.data() + start;
    const auto *from = reinterpret_cast<const uchar *>(bytes.data());
    qsizetype i = 0;
    for (; i + 3 <= n; i += 3, to += 4) {
        const uint v = uint(from[i]) << 16 | uint(from[i + 1]) << 8 | from[i + 2];
        std::memcpy(to, kBase64Pairs[v >> 12].data(), 2);
        std::memcpy(to + 2, kBase64Pairs[v & 4095].data(), 2);
    }
    if (i < n) {
        const bool two = n - i == 2;
        const uint v = uint(from[i]) << 16 | (two ? uint(from[i + 1]) << 8 : 0u);
        std::memcpy(to, kBase64Pairs[v >> 12].data(), 2);
        to[2] = two ? kBase64Pairs[v & 4095][0] : '=';
        to[3] = '=';
    }
}

constexpr char kSeparator = char(Exchange::kSeparator.unicode());

// The columns of a record row: the fields of a record line in the file's order, then the covers
// (see Store::rows()).
enum RecordColumn {
    AlbumDuration = 1,
    Artist,
    Cost,
    CoverCondition,
    DoubleAlbum,
    Id,
    Name,
    Notes,
    Producer,
    Quantity,
    RecordLabel,
    RecordSpeed,
    ReleaseDate,
    Value,
    VinylCondition,
    FrontKept,
    FrontCover,
};
const QStringList kRecordAttributes = {u"albumDuration"_s, u"artist"_s,       u"cost"_s,        u"coverCondition"_s,
                                       u"doubleAlbum"_s,   u"id"_s,           u"name"_s,        u"notes"_s,
                                       u"producer"_s,      u"quantity"_s,     u"recordLabel"_s, u"recordSpeed"_s,
                                       u"releaseDate"_s,   u"value"_s,        u"vinylCondition"_s};
// A cover's columns: its kept encoding, then the cover itself when none is kept.
int keptColumn(int side)
{
    return FrontKept + 2 * side;
}
int coverColumn(int side)
{
    return FrontCover + 2 * side;
}

enum TrackColumn { Duration = 1, Song, TrackNumber, VinylID, WrittenBy };
const QStringList kTrackAttributes = {u"duration"_s, u"song"_s, u"trackNumber"_s, u"vinylID"_s, u"writtenBy"_s};

// A release date as Exchange::formatDate() writes it ("yyyy.MM.dd HH:mm:ss" in local time); the
// digits of a four-digit year are written here, as the locale's formatter takes longer than the
// rest of the record line.
QByteArray dateText(const QDateTime &date)
{
    const QDateTime local = date.toLocalTime();
    const QDate day = local.date();
    const QTime time = local.time();
    if (day.year() < 1000 || day.year() > 9999)
        return Exchange::formatDate(date).toUtf8();
    QByteArray text(19, Qt::Uninitialized);
    char *to = text.data();
    const auto digits = [&to](int value, int count) {
        for (int i = count - 1; i >= 0; --i, value /= 10)
            to[i] = char('0' + value % 10);
        to += count;
    };
    const auto put = [&to](char c) { *to++ = c; };
    digits(day.year(), 4);
    put('.');
    digits(day.month(), 2);
    put('.');
    digits(day.day(), 2);
    put(' ');
    digits(time.hour(), 2);
    put(':');
    digits(time.minute(), 2);
    put(':');
    digits(time.second(), 2);
    return text;
}

// A record line up to its covers, each field followed by the separator.
void appendRecordFields(QByteArray &out, const StoreRows &row)
{
    // Notes and the date are looked at first, as they always were; the console lines keep that order.
    QByteArray cleanedNotes;
    QByteArrayView notes;
    if (const Text stored = textAt(row, Notes); stored && !stored->isEmpty()) {
        if (isPlain(*stored, changedInNotes))
            notes = *stored;
        else
            notes = cleanedNotes = Exchange::cleanNotes(QString::fromUtf8(*stored)).toUtf8();
    } else {
        consoleLine(Msg::kNotes);
    }
    QByteArray releaseDate;
    const std::optional<QDateTime> date =
        row.isNull(ReleaseDate) ? std::nullopt : std::optional(QDateTime::fromMSecsSinceEpoch(row.integer(ReleaseDate)));
    if (date && date->isValid())
        releaseDate = dateText(*date);
    else
        consoleLine(Msg::kReleaseDate);

    appendReal<double>(out, row, AlbumDuration, Msg::kAlbumDuration);
    out.append(kSeparator);
    appendText(out, textAt(row, Artist), "artist"_L1, Msg::kArtist);
    out.append(kSeparator);
    appendReal<float>(out, row, Cost, Msg::kCost);
    out.append(kSeparator);
    appendText(out, textAt(row, CoverCondition), "coverCondition"_L1, Msg::kCoverCondition);
    out.append(kSeparator);
    appendText(out, textAt(row, DoubleAlbum), "doubleAlbum"_L1, Msg::kDoubleAlbum);
    out.append(kSeparator);
    appendInteger(out, row, Id, Msg::kId);
    out.append(kSeparator);
    appendText(out, textAt(row, Name), "name"_L1, Msg::kName);
    out.append(kSeparator);
    out.append(notes).append(kSeparator);
    appendText(out, textAt(row, Producer), "producer"_L1, Msg::kProducer);
    out.append(kSeparator);
    appendInteger(out, row, Quantity, Msg::kQuantity);
    out.append(kSeparator);
    appendText(out, textAt(row, RecordLabel), "recordLabel"_L1, Msg::kRecordLabel);
    out.append(kSeparator);
    appendText(out, textAt(row, RecordSpeed), "recordSpeed"_L1, Msg::kRecordSpeed);
    out.append(kSeparator);
    out.append(releaseDate).append(kSeparator);
    appendReal<float>(out, row, Value, Msg::kValue);
    out.append(kSeparator);
    appendText(out, textAt(row, VinylCondition), "vinylCondition"_L1, Msg::kVinylCondition);
    out.append(kSeparator);
}

void appendTrack(QByteArray &out, std::optional<double> duration, Text song, std::optional<qint16> trackNumber,
                 std::optional<qint16> vinylID, Text writtenBy)
{
    appendReal(out, duration, Msg::kDuration);
    out.append(kSeparator);
    appendText(out, song, "song"_L1, Msg::kSong, false);
    out.append(kSeparator);
    appendInteger(out, trackNumber, Msg::kTrackNumber);
    out.append(kSeparator);
    appendInteger(out, vinylID, Msg::kVinylID);
    out.append(kSeparator);
    appendText(out, writtenBy, "writtenBy"_L1, Msg::kWrittenBy, false);
}

// What a record or a track line takes, about, without covers.
constexpr qint64 kRecordLineBytes = 200;
constexpr qint64 kTrackLineBytes = 48;

// Lines between two progress reports of build().
constexpr int kLinesPerStep = 256;

} // namespace

// A record line whose covers are not all encoded yet; the lines after it wait with it, so the
// file keeps its order.
struct ExchangeWriter::Waiting
{
    qint64 rowId = 0;
    QByteArray fields;
    QByteArray name;
    // Per side: the kept encoding, or the cover to encode.
    std::array<std::optional<QByteArray>, 2> encodings;
    std::array<QByteArray, 2> covers;
};

ExchangeWriter::ExchangeWriter(Store &store, bool exportImages) : m_store(store), m_exportImages(exportImages) {}

ExchangeWriter::~ExchangeWriter() = default;

Result<void> ExchangeWriter::start()
{
    m_data.clear();
    m_tracks.reset();
    m_tracksStarted = false;
    m_finished = false;
    m_linesWritten = 0;
    m_unreadableImages = 0;

    auto records = m_store.count(FetchRequest(Entity::Vinyl));
    if (!records)
        return records.error();
    m_recordTotal = *records;
    auto tracks = m_store.count(FetchRequest(Entity::Tracks));
    if (!tracks)
        return tracks.error();
    m_trackTotal = *tracks;
    // The lines' room is made at once; the covers' grows with them (doubling, so a large file is
    // moved a few times), as the passes over the rows needed to size them would cost more.
    m_data.reserve(m_recordTotal * kRecordLineBytes + m_trackTotal * kTrackLineBytes);
    auto rows = m_store.rows(
        FetchRequest(Entity::Vinyl).sortedBy(u"name"_s).sortedBy(u"artist"_s).sortedBy(u"releaseDate"_s),
        kRecordAttributes, m_exportImages);
    if (!rows)
        return rows.error();
    m_records = std::move(*rows);
    m_data.append(Exchange::kRecordMarker.toUtf8()).append('\n');
    return {};
}

Result<void> ExchangeWriter::writeSome(int maxLines)
{
    int written = 0;
    if (m_records) {
        if (auto r = writeRecords(maxLines, &written); !r)
            return r;
    }
    if (!m_records && written < maxLines) {
        if (!m_tracksStarted) {
            auto rows = m_store.rows(FetchRequest(Entity::Tracks).sortedBy(u"vinylID"_s).sortedBy(u"trackNumber"_s),
                                     kTrackAttributes);
            if (!rows)
                return rows.error();
            m_tracks = std::move(*rows);
            m_data.append(Exchange::kTrackMarker.toUtf8()).append('\n');
            m_tracksStarted = true;
        }
        int trackLines = 0;
        if (auto r = writeTracks(maxLines - written, &trackLines); !r)
            return r;
    }
    return {};
}

QByteArray ExchangeWriter::exchangeEncoding(const QByteArray &cover)
{
    const QImage image = QImage::fromData(cover);
    if (image.isNull())
        return {};
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "JPEG", 20))
        return {};
    return jpeg;
}

void ExchangeWriter::writeCover(QByteArrayView encoding, int side, QByteArrayView name)
{
    if (encoding.isEmpty()) {
        ++m_unreadableImages;
        consoleLine(translated(Msg::kUnreadableImage).arg(side == 0 ? u"frontImage"_s : u"backImage"_s, QString::fromUtf8(name)));
    } else {
        appendBase64(m_data, encoding);
    }
}

Result<void> ExchangeWriter::writeRecords(int maxLines, int *written)
{
    QList<Waiting> waiting;
    *written = 0;
    while (*written < maxLines) {
        auto more = m_records->next();
        if (!more)
            return more.error();
        if (!*more) {
            m_records.reset();
            break;
        }
        ++*written;
        const StoreRows &row = *m_records;
        if (!m_exportImages) {
            appendRecordFields(m_data, row);
            m_data.append(kSeparator).append('\n');
            continue;
        }
        // A cover without a kept encoding is to be encoded; an empty cover is none.
        const auto toEncode = [&row](int side) { return row.isNull(keptColumn(side)) && !row.bytes(coverColumn(side)).isEmpty(); };
        if (waiting.isEmpty() && !toEncode(0) && !toEncode(1)) {
            appendRecordFields(m_data, row);
            for (int side = 0; side < 2; ++side) {
                if (side == 1)
                    m_data.append(kSeparator);
                if (!row.isNull(keptColumn(side)))
                    writeCover(row.bytes(keptColumn(side)), side, row.bytes(Name));
            }
            m_data.append('\n');
            continue;
        }
        Waiting line;
        line.rowId = row.integer(0);
        appendRecordFields(line.fields, row);
        line.name = row.bytes(Name).toByteArray();
        for (int side = 0; side < 2; ++side) {
            if (!row.isNull(keptColumn(side)))
                line.encodings[side] = row.bytes(keptColumn(side)).toByteArray();
            else if (toEncode(side))
                line.covers[side] = row.bytes(coverColumn(side)).toByteArray();
        }
        waiting.append(std::move(line));
    }
    if (!waiting.isEmpty())
        writeWaiting(waiting);
    m_linesWritten += *written;
    return {};
}

void ExchangeWriter::writeWaiting(QList<Waiting> &waiting)
{
    struct Missing
    {
        Waiting *line;
        int side;
    };
    QList<Missing> missing;
    for (Waiting &line : waiting) {
        for (int side = 0; side < 2; ++side) {
            if (!line.covers[side].isEmpty())
                missing.append({&line, side});
        }
    }
    // Encoding covers is the costly part of a first export: spread it over the cores.
    const QList<QByteArray> made = QtConcurrent::blockingMapped<QList<QByteArray>>(
        missing, [](const Missing &m) { return exchangeEncoding(m.line->covers[m.side]); });
    for (qsizetype k = 0; k < missing.size(); ++k)
        missing.at(k).line->encodings[missing.at(k).side] = made.at(k);
    if (m_keepEncodings && !missing.isEmpty()) {
        const auto kept = m_store.transaction([&]() -> Result<void> {
            for (qsizetype k = 0; k < missing.size(); ++k) {
                const Missing &m = missing.at(k);
                const CoverSide side = m.side == 0 ? CoverSide::Front : CoverSide::Back;
                if (auto r = m_store.keepExchangeEncoding(m.line->rowId, side, m.line->covers[m.side], made.at(k)); !r)
                    return r;
            }
            return {};
        });
        // A store that cannot be written to (read-only, busy) still exports; it only encodes again.
        if (!kept) {
            consoleLine(Msg::kEncodingsNotKept.arg(kept.errorMessage()));
            m_keepEncodings = false;
        }
    }
    for (const Waiting &line : waiting) {
        m_data.append(line.fields);
        for (int side = 0; side < 2; ++side) {
            if (side == 1)
                m_data.append(kSeparator);
            if (line.encodings[side])
                writeCover(*line.encodings[side], side, line.name);
        }
        m_data.append('\n');
    }
}

Result<void> ExchangeWriter::writeTracks(int maxLines, int *written)
{
    *written = 0;
    StoreRows &row = *m_tracks;
    while (*written < maxLines) {
        auto more = row.next();
        if (!more)
            return more.error();
        if (!*more) {
            m_tracks.reset();
            m_finished = true;
            return {};
        }
        const auto int16At = [&row](int column) {
            return row.isNull(column) ? std::nullopt : std::optional<qint16>(qint16(row.integer(column)));
        };
        appendTrack(m_data, row.isNull(Duration) ? std::nullopt : std::optional<double>(row.real(Duration)),
                    textAt(row, Song), int16At(TrackNumber), int16At(VinylID), textAt(row, WrittenBy));
        m_data.append('\n');
        ++m_linesWritten;
        ++*written;
    }
    return {};
}

QString ExchangeWriter::trackLine(const Track &t)
{
    const auto utf8 = [](const std::optional<QString> &text) {
        return text ? std::optional<QByteArray>(text->toUtf8()) : std::nullopt;
    };
    const std::optional<QByteArray> song = utf8(t.song);
    const std::optional<QByteArray> writtenBy = utf8(t.writtenBy);
    const auto view = [](const std::optional<QByteArray> &bytes) { return bytes ? Text(*bytes) : std::nullopt; };
    QByteArray line;
    appendTrack(line, t.duration, view(song), t.trackNumber, t.vinylID, view(writtenBy));
    return QString::fromUtf8(line);
}

Result<QByteArray> ExchangeWriter::build(Store &store, bool exportImages, int *unreadableImages,
                                         const Progress &progress)
{
    ExchangeWriter writer(store, exportImages);
    if (auto r = writer.start(); !r)
        return r.error();
    while (!writer.finished()) {
        if (progress && !progress(writer.m_linesWritten, writer.totalLines()))
            return Error{Msg::kCancelled};
        if (auto r = writer.writeSome(kLinesPerStep); !r)
            return r.error();
    }
    if (progress)
        progress(writer.totalLines(), writer.totalLines());
    if (unreadableImages)
        *unreadableImages = writer.m_unreadableImages;
    return std::move(writer.m_data);
}
