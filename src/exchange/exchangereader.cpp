#include "exchangereader.h"

#include "coverimageprovider.h"
#include "exchangeformat.h"
#include "logging.h"
#include "store.h"

#include <QBuffer>
#include <QImageReader>
#include <QSqlError>
#include <QSqlQuery>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Every attribute but the covers.
bool sameAttributes(const Vinyl &a, const Vinyl &b)
{
    const auto attributes = [](const Vinyl &v) {
        return std::tie(v.albumDuration, v.artist, v.backImagePath, v.cost, v.coverCondition, v.doubleAlbum,
                        v.frontImagePath, v.id, v.name, v.notes, v.producer, v.quantity, v.recordLabel,
                        v.recordSpeed, v.releaseDate, v.value, v.vinylCondition);
    };
    return attributes(a) == attributes(b);
}

bool sameValues(const Track &a, const Track &b)
{
    return std::tie(a.duration, a.song, a.trackNumber, a.vinylID, a.writtenBy)
           == std::tie(b.duration, b.song, b.trackNumber, b.vinylID, b.writtenBy);
}


// The fields of one line; positions past the end read as empty.
class Fields
{
public:
    explicit Fields(QStringView line) : m_fields(line.split(Exchange::kSeparator)) {}
    [[nodiscard]] QString at(int i) const { return view(i).toString(); }
    // The field in place in the line; for long fields (covers) that are read but not kept.
    [[nodiscard]] QStringView view(int i) const { return i < m_fields.size() ? m_fields.at(i) : QStringView(); }

private:
    QList<QStringView> m_fields;
};

std::optional<double> toDouble(const QString &text)
{
    bool ok = false;
    const double d = text.toDouble(&ok);
    return ok && std::isfinite(d) ? std::optional<double>(d) : std::nullopt;
}

std::optional<float> toFloat(const QString &text)
{
    bool ok = false;
    const float f = text.toFloat(&ok);
    return ok && std::isfinite(f) ? std::optional<float>(f) : std::nullopt;
}

std::optional<qint16> toInt16(const QString &text)
{
    bool ok = false;
    const short n = text.toShort(&ok);
    return ok ? std::optional<qint16>(n) : std::nullopt;
}

Error sqlError(const QString &what, const QSqlError &error)
{
    return Error{what + u": "_s + error.text()};
}

} // namespace

ExchangeReader::ExchangeReader(Store &store, QString document) : m_store(store), m_document(std::move(document)) {}

ExchangeReader::~ExchangeReader() = default;

double ExchangeReader::fraction() const
{
    const qint64 total = totalLines();
    return total > 0 ? double(m_next) / double(total) : 1.0;
}

Result<void> ExchangeReader::start()
{
    // A CR LF or a lone CR ends a line like a LF does.
    m_document.replace(u'\r', u'\n');
    m_recordLines.clear();
    m_trackLines.clear();
    m_next = 0;
    m_failed = false;
    m_counts = {};

    enum class Section { None, Records, Tracks } section = Section::None;
    bool seenRecords = false;
    qint64 number = 0;
    for (QStringView line : QStringView(m_document).split(u'\n')) {
        ++number;
        if (line == Exchange::kRecordMarker) {
            if (!seenRecords)
                section = Section::Records;
            seenRecords = true;
            continue;
        }
        if (line == Exchange::kTrackMarker) {
            if (section != Section::Tracks)
                consoleLine(ImportMessages::kFoundTracks);
            section = Section::Tracks;
            continue;
        }
        if (line.isEmpty())
            continue;
        if (section == Section::Records)
            m_recordLines.append({line, number});
        else if (section == Section::Tracks)
            m_trackLines.append({line, number});
    }
    return buildLookups();
}

Result<void> ExchangeReader::buildLookups()
{
    m_records.clear();
    m_tracks.clear();
    // Only what is present can match: a record without a name matches no line.
    QSqlQuery q(m_store.database());
    q.setForwardOnly(true);
    if (!q.exec(u"SELECT rowid, name, artist, id FROM Vinyl WHERE name IS NOT NULL AND artist IS NOT NULL ORDER BY rowid"_s))
        return sqlError(u"Cannot read the records"_s, q.lastError());
    m_records.reserve(m_recordLines.size());
    while (q.next()) {
        StoredRecord stored{q.value(0).toLongLong(), std::nullopt};
        if (!q.isNull(3))
            stored.id = qint16(q.value(3).toLongLong());
        m_records.insert(RecordKey{q.value(1).toString(), q.value(2).toString()}, stored);
    }
    if (!q.exec(u"SELECT rowid, vinylID, song, trackNumber, writtenBy, duration FROM Tracks "
                "WHERE vinylID IS NOT NULL AND song IS NOT NULL ORDER BY rowid"_s))
        return sqlError(u"Cannot read the tracks"_s, q.lastError());
    while (q.next()) {
        Track t;
        t.rowId = q.value(0).toLongLong();
        t.vinylID = qint16(q.value(1).toLongLong());
        t.song = q.value(2).toString();
        if (!q.isNull(3))
            t.trackNumber = qint16(q.value(3).toLongLong());
        if (!q.isNull(4))
            t.writtenBy = q.value(4).toString();
        if (!q.isNull(5))
            t.duration = q.value(5).toDouble();
        m_tracks.insert(TrackKey{*t.vinylID, *t.song}, t);
    }
    return {};
}

qint64 ExchangeReader::takeRecordMatch(const RecordKey &key, std::optional<qint16> id)
{
    auto [first, last] = m_records.equal_range(key);
    if (first == last)
        return 0;
    // The oldest stored record, unless one has the line's id.
    auto chosen = first;
    for (auto it = first; it != last; ++it) {
        if (id && it->id == id) {
            chosen = it;
            break;
        }
        if (it->rowId < chosen->rowId)
            chosen = it;
    }
    const qint64 rowId = chosen->rowId;
    m_records.erase(chosen);
    return rowId;
}

Result<void> ExchangeReader::importSome(int maxLines)
{
    if (m_failed)
        return Error{u"The import stopped after an error."_s};
    const qint64 end = std::min(totalLines(), m_next + std::max(1, maxLines));
    qint64 next = m_next;
    auto done = m_store.transaction([&]() -> Result<void> {
        for (; next < end; ++next) {
            const qint64 records = m_recordLines.size();
            auto r = next < records ? importRecord(m_recordLines.at(next)) : importTrack(m_trackLines.at(next - records));
            if (!r)
                return r;
        }
        return {};
    });
    if (!done) {
        // The batch was rolled back; the look-up tables may name rows that no longer exist.
        m_failed = true;
        return done;
    }
    m_next = end;
    return {};
}

std::optional<QByteArray> ExchangeReader::decodeImage(QStringView field, const QString &attribute, qint64 lineNumber)
{
    std::optional<QByteArray> decoded = Exchange::decodeBase64(field);
    bool readable = decoded && !decoded->isEmpty();
    // Covers are JPEG as we write them; only other pictures need the image readers' look.
    static const QByteArray jpegStart("\xff\xd8\xff", 3);
    if (readable && !decoded->startsWith(jpegStart)) {
        QBuffer buffer(&*decoded);
        buffer.open(QIODevice::ReadOnly);
        readable = QImageReader(&buffer).canRead();
    }
    if (!readable) {
        ++m_counts.unreadableImages;
        consoleLine(ImportMessages::kUnreadableImage.arg(attribute).arg(lineNumber));
        return std::nullopt;
    }
    return decoded;
}

Result<void> ExchangeReader::importRecord(const Line &line)
{
    using namespace Exchange;
    const Fields f(line.text);
    const QString name = f.at(Name);
    const QString artist = f.at(Artist);

    Vinyl v;
    const qint64 match = takeRecordMatch(RecordKey{name, artist}, toInt16(f.at(Id)));
    if (match != 0) {
        // Covers are left unread: a line replaces them or leaves them as they are.
        auto stored = m_store.vinylByRowId(match, false);
        if (!stored)
            return stored.error();
        if (*stored)
            v = **stored;
    }
    const bool updating = v.rowId != 0;
    const Vinyl before = v;
    v.imagesLoaded = !updating;

    // An empty field leaves the attribute as it was. A number that does not convert leaves it
    // too, except cost, value and id, which it clears on a stored record.
    auto apply = [&f](int field, auto &&set) {
        const QString text = f.at(field);
        if (!text.isEmpty())
            set(text);
    };
    apply(AlbumDuration, [&](const QString &t) { if (auto d = toDouble(t)) v.albumDuration = d; });
    apply(Artist, [&](const QString &t) { v.artist = t; });
    apply(Cost, [&](const QString &t) { v.cost = toFloat(t); });
    apply(CoverConditionField, [&](const QString &t) { v.coverCondition = t; });
    apply(DoubleAlbum, [&](const QString &t) { v.doubleAlbum = t; });
    apply(Id, [&](const QString &t) { v.id = toInt16(t); });
    apply(Name, [&](const QString &t) { v.name = t; });
    apply(Notes, [&](const QString &t) { v.notes = restoreNotes(t); });
    apply(Producer, [&](const QString &t) { v.producer = t; });
    apply(Quantity, [&](const QString &t) { if (auto n = toInt16(t)) v.quantity = n; });
    apply(RecordLabel, [&](const QString &t) { v.recordLabel = t; });
    apply(RecordSpeed, [&](const QString &t) { v.recordSpeed = t; });
    apply(ReleaseDate, [&](const QString &t) { if (auto d = parseDate(t)) v.releaseDate = d; });
    apply(Value, [&](const QString &t) { v.value = toFloat(t); });
    apply(VinylConditionField, [&](const QString &t) { v.vinylCondition = t; });
    for (const auto &[field, attribute, cover] : {std::tuple{FrontImage, u"frontImage"_s, &v.frontImage},
                                                  std::tuple{BackImage, u"backImage"_s, &v.backImage}}) {
        if (const QStringView text = f.view(field); !text.isEmpty()) {
            if (auto bytes = decodeImage(text, attribute, line.number))
                *cover = std::move(bytes);
        }
    }

    if (updating) {
        // A line that changes nothing writes nothing: importing the same file again only reads.
        bool coversChanged = false;
        for (const auto &[side, cover] : {std::pair{CoverSide::Front, &v.frontImage}, std::pair{CoverSide::Back, &v.backImage}}) {
            if (!*cover)
                continue;
            auto stored = m_store.coverImage(v.rowId, side);
            if (!stored)
                return stored.error();
            if (*stored == **cover) {
                cover->reset();
            } else {
                // The full-size file showed the old picture; the record keeps only the new one.
                coversChanged = true;
                (side == CoverSide::Front ? v.frontImagePath : v.backImagePath).reset();
            }
        }
        if (coversChanged || !sameAttributes(before, v)) {
            if (auto r = m_store.update(v); !r)
                return r;
        }
        ++m_counts.recordsUpdated;
        if (v.frontImage || v.backImage)
            CoverImageProvider::forget(v.rowId);
        return {};
    }
    if (auto r = m_store.insert(v); !r)
        return r;
    ++m_counts.recordsAdded;
    return {};
}

Result<void> ExchangeReader::importTrack(const Line &line)
{
    using namespace Exchange;
    const Fields f(line.text);
    const QString song = f.at(Song);
    const std::optional<qint16> vinylID = toInt16(f.at(VinylID));
    const std::optional<double> duration = toDouble(f.at(Duration));
    const std::optional<qint16> trackNumber = toInt16(f.at(TrackNumber));
    const QString writtenBy = f.at(WrittenBy);

    const auto match = vinylID ? m_tracks.find(TrackKey{*vinylID, song}) : m_tracks.end();
    if (match != m_tracks.end()) {
        // Only the fields the line fills change; vinylID and song are what matched.
        const Track stored = *match;
        m_tracks.erase(match);
        Track given;
        given.rowId = stored.rowId;
        given.duration = duration;
        given.trackNumber = trackNumber;
        if (!writtenBy.isEmpty())
            given.writtenBy = writtenBy;
        Track merged = stored;
        merged.duration = given.duration ? given.duration : merged.duration;
        merged.trackNumber = given.trackNumber ? given.trackNumber : merged.trackNumber;
        merged.writtenBy = given.writtenBy ? given.writtenBy : merged.writtenBy;
        if (!sameValues(merged, stored)) {
            if (auto r = m_store.updateGiven(given); !r)
                return r;
        }
        ++m_counts.tracksUpdated;
        return {};
    }

    Track t;
    t.trackNumber = trackNumber;
    t.vinylID = vinylID;
    if (!song.isEmpty())
        t.song = song;
    if (!writtenBy.isEmpty())
        t.writtenBy = writtenBy;
    t.duration = duration;
    if (auto r = m_store.insert(t); !r)
        return r;
    ++m_counts.tracksAdded;
    return {};
}

Result<ImportCounts> ExchangeReader::importAll(Store &store, const QString &document, int batchLines)
{
    ExchangeReader reader(store, document);
    if (auto r = reader.start(); !r)
        return r.error();
    while (!reader.finished()) {
        if (auto r = reader.importSome(batchLines); !r)
            return r.error();
    }
    return reader.counts();
}
