#include "exchange/exchangewriter.h"

#include "exchange/exchangeformat.h"
#include "store/fetchrequest.h"
#include "store/formatters.h"
#include "store/logging.h"
#include "store/store.h"

#include <QBuffer>
#include <QImage>
#include <QtConcurrent/QtConcurrentMap>

using namespace Qt::StringLiterals;
namespace Msg = ExportMessages;

namespace {

// Tracks are read in blocks of vinylID values so that a large collection never sits in memory
// whole; each block is one indexed range fetch.
constexpr int kVinylIdBlock = 2048;
constexpr int kFirstBlockStart = -32768;
constexpr int kBlockCount = 65536 / kVinylIdBlock;

// Any text field except notes: written as stored, minus what would break the line.
QString textField(const std::optional<QString> &value, const QString &attribute, const QString &missingMessage,
                  bool logWhenAbsent = true)
{
    if (!value) {
        if (logWhenAbsent && !missingMessage.isEmpty())
            consoleLine(missingMessage);
        return {};
    }
    if (value->isEmpty()) {
        if (!missingMessage.isEmpty())
            consoleLine(missingMessage);
        return {};
    }
    if (Exchange::breaksLine(*value)) {
        consoleLine(Msg::kLineBreakerRemoved.arg(attribute));
        return Exchange::withoutLineBreakers(*value);
    }
    return *value;
}

template<typename T>
QString numberField(const std::optional<T> &value, const QString &missingMessage)
{
    if (!value)
        consoleLine(missingMessage);
    if constexpr (std::is_floating_point_v<T>)
        return Formatters::shortest(number(value));
    else
        return QString::number(number(value));
}

// What a record or a track line takes, about, without covers.
constexpr qint64 kRecordLineBytes = 200;
constexpr qint64 kTrackLineBytes = 48;

// Lines between two progress reports of build().
constexpr int kLinesPerStep = 256;

} // namespace

ExchangeWriter::ExchangeWriter(Store &store, bool exportImages) : m_store(store), m_exportImages(exportImages) {}

Result<void> ExchangeWriter::start()
{
    m_data.clear();
    m_records.clear();
    m_nextRecord = 0;
    m_trackBlock.clear();
    m_nextTrack = 0;
    m_blockIndex = -1;
    m_tracksStarted = false;
    m_finished = false;
    m_linesWritten = 0;
    m_unreadableImages = 0;

    auto records = m_store.fetchVinyl(
        FetchRequest(Entity::Vinyl).sortedBy(u"name"_s).sortedBy(u"artist"_s).sortedBy(u"releaseDate"_s));
    if (!records)
        return records.error();
    m_records = std::move(records).value();
    auto tracks = m_store.count(FetchRequest(Entity::Tracks));
    if (!tracks)
        return tracks.error();
    m_trackTotal = *tracks;
    // The file is made in memory: grown in steps, a large one would be copied again and again.
    qint64 expected = m_records.size() * kRecordLineBytes + m_trackTotal * kTrackLineBytes;
    if (m_exportImages) {
        auto covers = m_store.exchangeEncodingsSize();
        if (!covers)
            return covers.error();
        expected += *covers * 4 / 3; // base64
    }
    m_data.reserve(expected);
    m_data.append(Exchange::kRecordMarker.toUtf8()).append('\n');
    return {};
}

Result<void> ExchangeWriter::writeSome(int maxLines)
{
    int written = 0;
    if (m_nextRecord < m_records.size()) {
        if (auto r = writeRecords(maxLines, &written); !r)
            return r;
    }
    if (m_nextRecord >= m_records.size() && written < maxLines) {
        if (!m_tracksStarted) {
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

Result<QList<ExchangeWriter::Encodings>> ExchangeWriter::encodingsOf(int from, int to)
{
    QList<Encodings> encodings(to - from);
    struct Missing
    {
        int record;
        int side;
        QByteArray cover;
    };
    QList<Missing> missing;
    // One read transaction for the lot: SQLite would otherwise lock and unlock per record.
    const auto read = m_store.reading([&]() -> Result<void> {
        for (int i = from; i < to; ++i) {
            auto stored = m_store.exchangeEncodings(m_records.at(i).rowId);
            if (!stored)
                return stored.error();
            for (int side = 0; side < 2; ++side) {
                ExchangeEncoding &encoding = (*stored)[side];
                if (encoding.kept)
                    encodings[i - from][side] = std::move(*encoding.kept);
                else if (!encoding.cover.isEmpty())
                    missing.append({i, side, std::move(encoding.cover)});
            }
        }
        return {};
    });
    if (!read)
        return read.error();
    if (missing.isEmpty())
        return encodings;
    // Encoding covers is the costly part of a first export: spread it over the cores.
    const QList<QByteArray> made = QtConcurrent::blockingMapped<QList<QByteArray>>(
        missing, [](const Missing &m) { return exchangeEncoding(m.cover); });
    for (qsizetype k = 0; k < missing.size(); ++k)
        encodings[missing.at(k).record - from][missing.at(k).side] = made.at(k);
    if (m_keepEncodings) {
        const auto kept = m_store.transaction([&]() -> Result<void> {
            for (qsizetype k = 0; k < missing.size(); ++k) {
                const Missing &m = missing.at(k);
                const CoverSide side = m.side == 0 ? CoverSide::Front : CoverSide::Back;
                if (auto r = m_store.keepExchangeEncoding(m_records.at(m.record).rowId, side, m.cover, made.at(k)); !r)
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
    return encodings;
}

Result<void> ExchangeWriter::writeRecords(int maxLines, int *written)
{
    const int from = m_nextRecord;
    const int to = int(std::min<qint64>(m_records.size(), qint64(from) + maxLines));
    QList<Encodings> covers;
    if (m_exportImages) {
        auto encodings = encodingsOf(from, to);
        if (!encodings)
            return encodings.error();
        covers = std::move(*encodings);
    }
    constexpr char separator = char(Exchange::kSeparator.unicode());
    for (int i = from; i < to; ++i) {
        const Vinyl &v = m_records.at(i);
        m_data.append(recordLine(v).toUtf8());
        if (m_exportImages) {
            for (int side = 0; side < 2; ++side) {
                if (side == 1)
                    m_data.append(separator);
                const std::optional<QByteArray> &encoding = covers.at(i - from)[side];
                if (encoding && encoding->isEmpty()) {
                    ++m_unreadableImages;
                    consoleLine(Msg::kUnreadableImage.arg(side == 0 ? u"frontImage"_s : u"backImage"_s, text(v.name)));
                } else if (encoding) {
                    m_data.append(encoding->toBase64());
                }
            }
        } else {
            m_data.append(separator);
        }
        m_data.append('\n');
    }
    m_nextRecord = to;
    m_linesWritten += to - from;
    *written = to - from;
    return {};
}

Result<bool> ExchangeWriter::fetchNextTrackBlock()
{
    m_trackBlock.clear();
    m_nextTrack = 0;
    while (m_trackBlock.isEmpty()) {
        ++m_blockIndex;
        if (m_blockIndex >= kBlockCount)
            return false;
        FetchRequest request(Entity::Tracks);
        if (m_blockIndex == 0) {
            request.where(Predicate::equal(u"vinylID"_s, QVariant()));
        } else {
            const int start = kFirstBlockStart + (m_blockIndex - 1) * kVinylIdBlock;
            // The first and last blocks are open-ended, so no stored value is ever missed.
            if (m_blockIndex > 1)
                request.where(Predicate::atLeast(u"vinylID"_s, start));
            if (m_blockIndex < kBlockCount - 1)
                request.where(Predicate::lessThan(u"vinylID"_s, start + kVinylIdBlock));
        }
        request.sortedBy(u"vinylID"_s).sortedBy(u"trackNumber"_s);
        auto block = m_store.fetchTracks(request);
        if (!block)
            return block.error();
        m_trackBlock = std::move(block).value();
    }
    return true;
}

Result<void> ExchangeWriter::writeTracks(int maxLines, int *written)
{
    *written = 0;
    while (*written < maxLines) {
        if (m_nextTrack >= m_trackBlock.size()) {
            auto more = fetchNextTrackBlock();
            if (!more)
                return more.error();
            if (!*more) {
                m_finished = true;
                return {};
            }
        }
        appendTrackLine(m_data, m_trackBlock.at(m_nextTrack++));
        m_data.append('\n');
        ++m_linesWritten;
        ++*written;
    }
    return {};
}

QString ExchangeWriter::recordLine(const Vinyl &v)
{
    QString notes;
    if (v.notes && !v.notes->isEmpty())
        notes = Exchange::cleanNotes(*v.notes);
    else
        consoleLine(Msg::kNotes);
    QString releaseDate;
    if (v.releaseDate && v.releaseDate->isValid())
        releaseDate = Exchange::formatDate(*v.releaseDate);
    else
        consoleLine(Msg::kReleaseDate);

    const QStringList fields = {
        numberField(v.albumDuration, Msg::kAlbumDuration),
        textField(v.artist, u"artist"_s, Msg::kArtist),
        numberField(v.cost, Msg::kCost),
        textField(v.coverCondition, u"coverCondition"_s, Msg::kCoverCondition),
        textField(v.doubleAlbum, u"doubleAlbum"_s, Msg::kDoubleAlbum),
        numberField(v.id, Msg::kId),
        textField(v.name, u"name"_s, Msg::kName),
        notes,
        textField(v.producer, u"producer"_s, Msg::kProducer),
        numberField(v.quantity, Msg::kQuantity),
        textField(v.recordLabel, u"recordLabel"_s, Msg::kRecordLabel),
        textField(v.recordSpeed, u"recordSpeed"_s, Msg::kRecordSpeed),
        releaseDate,
        numberField(v.value, Msg::kValue),
        textField(v.vinylCondition, u"vinylCondition"_s, Msg::kVinylCondition),
    };
    // The two image fields follow; the caller appends them.
    return fields.join(Exchange::kSeparator) + Exchange::kSeparator;
}

QString ExchangeWriter::trackLine(const Track &t)
{
    QByteArray line;
    appendTrackLine(line, t);
    return QString::fromUtf8(line);
}

void ExchangeWriter::appendTrackLine(QByteArray &out, const Track &t)
{
    // Straight into the file's bytes: an export writes hundreds of thousands of these.
    constexpr char separator = char(Exchange::kSeparator.unicode());
    out.append(numberField(t.duration, Msg::kDuration).toLatin1()).append(separator);
    out.append(textField(t.song, u"song"_s, Msg::kSong, false).toUtf8()).append(separator);
    out.append(numberField(t.trackNumber, Msg::kTrackNumber).toLatin1()).append(separator);
    out.append(numberField(t.vinylID, Msg::kVinylID).toLatin1()).append(separator);
    out.append(textField(t.writtenBy, u"writtenBy"_s, Msg::kWrittenBy, false).toUtf8());
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
