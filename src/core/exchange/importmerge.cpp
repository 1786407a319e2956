#include "exchange/importmerge.h"

#include "exchange/exchangeformat.h"
#include "exchange/fileattributes.h"
#include "store/coverchanges.h"
#include "store/logging.h"
#include "store/recordnumbers.h"
#include "store/snapshots.h"
#include "store/store.h"
#include "store/translations.h"
#include "store/valuehistory.h"

#include <QBuffer>
#include <QImageReader>
#include <QLocale>
#include <QScopeGuard>
#include <QSqlError>
#include <QSqlQuery>
#include <QtConcurrent/QtConcurrentRun>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

// Lines between two progress reports.
constexpr qint64 kProgressEvery = 256;
// Lines merged in one transaction: a cancel is heard within a batch, and a large file never
// makes one huge transaction. Each commit writes out every index page its batch touched, so a
// batch of 16,384 lines rather than 4,096 made a 32,767-record import about 8% faster.
constexpr qint64 kLinesPerBatch = 64 * kProgressEvery;

// Lines read in one go on the other core, while the lines before them are merged.
constexpr qint64 kLinesReadAhead = 512;

// How every JPEG picture begins; covers are JPEG as we write them.
const QByteArray kJpegStart("\xff\xd8\xff", 3);

// The picture a cover's text holds, or nullopt when it holds nothing the image readers take.
std::optional<QByteArray> readCover(QByteArrayView base64)
{
    std::optional<QByteArray> decoded = Exchange::decodeBase64(base64);
    if (!decoded || decoded->isEmpty())
        return std::nullopt;
    // Only pictures other than JPEG need the image readers' look.
    if (!decoded->startsWith(kJpegStart)) {
        QBuffer buffer(&*decoded);
        buffer.open(QIODevice::ReadOnly);
        if (!QImageReader(&buffer).canRead())
            return std::nullopt;
    }
    return decoded;
}

// A JPEG cover the record took from an exchange file is kept as its exchange encoding: exported
// again, it is written as it came rather than encoded once more, at a loss, into other bytes
// that the first collection would take for a new picture.
Result<void> keepCoversAsEncodings(Store &store, ImportFormat format, const Vinyl &v)
{
    if (format != ImportFormat::Exchange)
        return {};
    for (const auto &[side, cover] : {std::pair{CoverSide::Front, &v.frontImage}, std::pair{CoverSide::Back, &v.backImage}}) {
        if (*cover && (*cover)->startsWith(kJpegStart)) {
            if (auto r = store.keepExchangeEncoding(v.rowId, side, **cover, **cover); !r)
                return r;
        }
    }
    return {};
}

// Lines [from, to) of a file, read from its text: records come before tracks.
struct ReadLines
{
    QList<RecordLine> records;
    QList<std::array<std::optional<QByteArray>, 2>> covers; // each record line's front and back
    QList<TrackLine> tracks;
};

ReadLines readLines(const ImportFile &file, qint64 from, qint64 to)
{
    ReadLines read;
    const qint64 records = file.recordCount();
    const qint64 recordLines = std::clamp(records - from, qint64(0), to - from);
    read.records.reserve(recordLines);
    read.covers.reserve(recordLines);
    read.tracks.reserve(to - from - recordLines);
    for (qint64 next = from; next < std::min(to, records); ++next) {
        RecordLine line = file.record(next);
        auto &covers = read.covers.emplaceBack();
        for (auto [span, cover] : {std::pair{line.frontImage, &covers[0]}, std::pair{line.backImage, &covers[1]}}) {
            if (span.size > 0 && line.problem.isEmpty())
                *cover = readCover(file.span(span));
        }
        read.records.append(std::move(line));
    }
    for (qint64 next = std::max(from, records); next < to; ++next)
        read.tracks.append(file.track(next - records));
    return read;
}

Error sqlError(const QString &what, const QSqlError &error)
{
    return Error{what + u": "_s + error.text()};
}

// The attributes that differ between before and after, in the form's order.
template<typename Entity>
QList<FieldChange> changes(const QList<FileAttribute<Entity>> &table, const Entity &before, const Entity &after,
                           bool withTexts)
{
    QList<FieldChange> list;
    for (const FileAttribute<Entity> &attribute : table) {
        if (FileAttributes::same(attribute, before, after))
            continue;
        if (withTexts)
            list.append({attribute.title, FileAttributes::shownText(attribute, before), FileAttributes::shownText(attribute, after)});
        else
            list.append(FieldChange{});
    }
    return list;
}

// Whether every attribute the line gives is the stored track's already.
bool leavesAsItIs(const Track &given, const Track &stored)
{
    for (const TrackAttribute &attribute : FileAttributes::tracks()) {
        if (FileAttributes::has(attribute, given) && !FileAttributes::same(attribute, given, stored))
            return false;
    }
    return true;
}

} // namespace

ImportMerge::ImportMerge(Store &store, const ImportFile &file, Mode mode) : m_store(store), m_file(file), m_mode(mode) {}

Result<ImportMerge::Preview> ImportMerge::preview(Store &store, const ImportFile &file, const Progress &progress)
{
    ImportMerge merge(store, file, Mode::Preview);
    if (auto r = merge.run(progress); !r)
        return r.error();
    return Preview{std::move(merge.m_counts), std::move(merge.m_outcomes), std::move(merge.m_details)};
}

Result<ImportCounts> ImportMerge::apply(Store &store, const ImportFile &file, const Progress &progress)
{
    ImportMerge merge(store, file, Mode::Apply);
    if (auto r = merge.run(progress); !r)
        return r.error();
    return merge.m_counts;
}

Result<ImportCounts> ImportMerge::applyAfterSnapshot(Store &store, const ImportFile &file, Snapshots &snapshots,
                                                    const QString &source, const Progress &progress)
{
    if (auto writable = store.checkWritable(); !writable)
        return writable.error();
    const auto keeping = [&](qint64, qint64) { return !progress || progress(0, file.lineCount()); };
    const auto taken = snapshots.take(Snapshots::kKindImport, source, keeping);
    if (!taken)
        return Error{translated(ImportMessages::kNotKept).arg(taken.errorMessage())};
    ImportMerge merge(store, file, Mode::Apply);
    auto merged = merge.run(progress);
    // The store keeps whole batches: the snapshot is worth keeping once one of them was written.
    if (merge.m_counts.linesApplied > 0)
        snapshots.keep();
    else
        snapshots.drop(*taken);
    if (!merged)
        return merged.error();
    return merge.m_counts;
}

Result<void> ImportMerge::run(const Progress &progress)
{
    const qint64 total = m_file.lineCount();
    if (m_mode == Mode::Preview) {
        m_outcomes.reserve(total);
        // One read transaction: every line's look-up reads the same store, and cheaply.
        return m_store.reading([&]() -> Result<void> {
            if (auto r = buildLookups(); !r)
                return r;
            auto merged = mergeLines(0, total, progress);
            if (!merged)
                return merged.error();
            if (!*merged)
                return Error{ImportMessages::kCancelled};
            return {};
        });
    }
    if (auto r = buildLookups(); !r)
        return r;
    for (qint64 from = 0; from < total; from += kLinesPerBatch) {
        const qint64 to = std::min(total, from + kLinesPerBatch);
        const ImportCounts before = m_counts;
        bool whole = true;
        auto batch = m_store.transaction([&]() -> Result<void> {
            auto merged = mergeLines(from, to, progress);
            if (!merged)
                return merged.error();
            whole = *merged;
            // A stopped batch is rolled back: the store keeps whole batches only.
            return whole ? Result<void>() : Error{ImportMessages::kCancelled};
        });
        if (!whole) {
            m_counts = before;
            m_counts.stopped = true;
            return {};
        }
        if (!batch) {
            return Error{batch.errorMessage() + u"\n\n"_s
                         + (from == 0 ? ImportMessages::kNothingImported
                                      : translated(ImportMessages::kPartlyImported).arg(QLocale().toString(from)))};
        }
        m_counts.linesApplied = to;
    }
    if (progress)
        progress(total, total);
    return {};
}

Result<bool> ImportMerge::mergeLines(qint64 from, qint64 to, const Progress &progress)
{
    const qint64 total = m_file.lineCount();
    const qint64 records = m_file.recordCount();
    // Reading a line (splitting it, converting its texts and dates) is a large part of merging
    // it: the next lines are read on the other core meanwhile.
    const auto readAhead = [this, to](qint64 start) {
        return QtConcurrent::run(readLines, std::cref(m_file), start, std::min(to, start + kLinesReadAhead));
    };
    QFuture<ReadLines> ahead = readAhead(from);
    // An early return waits for the lines being read: they are read from the file it holds.
    const auto waitForAhead = qScopeGuard([&ahead] {
        if (ahead.isValid())
            ahead.waitForFinished();
    });
    for (qint64 start = from; start < to; start += kLinesReadAhead) {
        const ReadLines read = ahead.takeResult();
        if (start + kLinesReadAhead < to)
            ahead = readAhead(start + kLinesReadAhead);
        const qint64 end = std::min(to, start + kLinesReadAhead);
        for (qint64 next = start; next < end; ++next) {
            if (progress && next % kProgressEvery == 0 && !progress(next, total))
                return false;
            auto r = next < records ? mergeRecord(read.records.at(next - start), read.covers.at(next - start), int(next))
                                    : mergeTrack(read.tracks.at(next - std::max(start, records)), int(next - records));
            if (!r)
                return r.error();
        }
    }
    if (m_mode == Mode::Preview && progress && !progress(total, total))
        return false;
    return true;
}

Result<void> ImportMerge::buildLookups()
{
    // Only what is present can match: a record without a name matches no line. An empty
    // artist is an artist too: a line without one matches a record without one.
    auto keys = m_store.recordKeys();
    if (!keys)
        return keys.error();
    m_records.reserve(keys->size());
    for (auto &key : *keys)
        m_records.insert({std::move(key.name), std::move(key.artist)}, StoredRecord{key.rowId, key.id});
    QSqlQuery q(m_store.database());
    q.setForwardOnly(true);
    // Records without a name or artist hold numbers too.
    if (!q.exec(u"SELECT MAX(id) FROM Vinyl"_s) || !q.next())
        return sqlError(u"Cannot read the records"_s, q.lastError());
    int highestId = q.value(0).toInt();
    // Exchange lines keep their numbers (or none) and Discogs rows give none: only spreadsheet
    // lines take new ones, after the highest the file gives.
    if (m_file.format == ImportFormat::Spreadsheet) {
        for (qsizetype i = 0; i < m_file.recordCount(); ++i)
            highestId = std::max(highestId, int(number(m_file.record(i).values.id)));
    }
    m_nextId = highestId + 1;
    if (m_file.trackCount() == 0)
        return {};
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

void ImportMerge::record(ImportOutcome::Kind kind, bool track, int index, QList<FieldChange> changes)
{
    qint64 *const counts[2][3] = {
        {&m_counts.recordsAdded, &m_counts.recordsUpdated, &m_counts.recordsUnchanged},
        {&m_counts.tracksAdded, &m_counts.tracksUpdated, &m_counts.tracksUnchanged},
    };
    ++*counts[track][kind];
    if (m_mode != Mode::Preview)
        return;
    m_outcomes.append({kind, track, index, changes.isEmpty() ? -1 : int(m_details.size())});
    if (!changes.isEmpty())
        m_details.append({std::move(changes), {}});
}

void ImportMerge::skip(bool track, int index, qint64 line, const QString &problem, bool linesOwn)
{
    if (m_counts.problems.size() < ImportCounts::kListedProblems)
        m_counts.problems.append({line, problem});
    else
        ++m_counts.moreProblems;
    if (m_mode != Mode::Preview)
        return;
    int detail = -1;
    if (!linesOwn) {
        detail = m_problemDetails.value(problem, int(m_details.size()));
        if (detail == m_details.size()) {
            m_problemDetails.insert(problem, detail);
            m_details.append({{}, problem});
        }
    }
    m_outcomes.append({ImportOutcome::Problem, track, index, detail});
}

qint64 ImportMerge::takeRecordMatch(const QString &name, const QString &artist, std::optional<qint16> id)
{
    auto [first, last] = m_records.equal_range(RecordKey{name, artist});
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

Result<void> ImportMerge::mergeRecord(const RecordLine &line, const std::array<std::optional<QByteArray>, 2> &covers,
                                      int index)
{
    if (!line.problem.isEmpty()) {
        skip(false, index, line.line, line.problem, true);
        return {};
    }

    Vinyl v;
    const qint64 match = takeRecordMatch(text(line.values.name), text(line.values.artist), line.values.id);
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
    for (const RecordAttribute &attribute : FileAttributes::records()) {
        if (FileAttributes::has(attribute, line.values))
            FileAttributes::copy(attribute, line.values, v);
        else if (line.cleared.contains(attribute.name))
            FileAttributes::clear(attribute, v);
    }
    for (const auto &[span, picture, attribute, cover] :
         {std::tuple{line.frontImage, &covers[0], u"frontImage"_s, &v.frontImage},
          std::tuple{line.backImage, &covers[1], u"backImage"_s, &v.backImage}}) {
        if (span.size == 0)
            continue;
        if (*picture) {
            *cover = *picture;
        } else {
            ++m_counts.unreadableImages;
            consoleLine(translated(ImportMessages::kUnreadableImage).arg(attribute).arg(line.line));
        }
    }

    if (!updating) {
        if (!v.id && m_file.format != ImportFormat::Exchange) {
            if (m_nextId > std::numeric_limits<qint16>::max()) {
                skip(false, index, line.line, kNoRecordNumberLeft, false);
                return {};
            }
            v.id = qint16(m_nextId++);
        }
        if (m_mode == Mode::Apply) {
            if (auto r = m_store.insert(v); !r)
                return r;
            if (auto r = ValueHistory::noteSave(m_store, v, std::nullopt, QuoteSources::Import, m_started); !r)
                return r;
            if (auto r = keepCoversAsEncodings(m_store, m_file.format, v); !r)
                return r;
        }
        record(ImportOutcome::New, false, index);
        return {};
    }

    const bool withTexts = m_mode == Mode::Preview;
    QList<FieldChange> changed = changes(FileAttributes::records(), before, v, withTexts);
    std::optional<Result<std::array<ExchangeEncoding, 2>>> exported; // read when the line has a cover
    for (const auto &[side, cover, title] : {std::tuple{CoverSide::Front, &v.frontImage, u"Front Cover"_s},
                                             std::tuple{CoverSide::Back, &v.backImage, u"Back Cover"_s}}) {
        if (!*cover)
            continue;
        // An exported file carries the JPEG made of the stored picture rather than the picture
        // itself: that JPEG is the same cover, and the stored picture stays. It is looked at
        // first, as a file exported here and imported again holds nothing else.
        if (!exported)
            exported = m_store.exchangeEncodings(v.rowId);
        if (!*exported)
            return exported->error();
        const ExchangeEncoding &encoding = (**exported)[side == CoverSide::Front ? 0 : 1];
        if (encoding.kept == **cover) {
            cover->reset();
            continue;
        }
        // Without a kept encoding the stored picture came with it.
        auto stored = encoding.kept ? m_store.coverImage(v.rowId, side) : Result<QByteArray>(encoding.cover);
        if (!stored)
            return stored.error();
        if (*stored == **cover) {
            cover->reset();
            continue;
        }
        // The full-size file showed the old picture; the record keeps only the new one.
        (side == CoverSide::Front ? v.frontImagePath : v.backImagePath).reset();
        changed.append({title, stored->isEmpty() ? u"(none)"_s : u"a picture"_s, u"another picture"_s});
    }
    if (changed.isEmpty()) {
        record(ImportOutcome::Unchanged, false, index);
        return {};
    }
    if (m_mode == Mode::Apply) {
        if (auto r = m_store.update(v); !r)
            return r;
        if (auto r = ValueHistory::noteSave(m_store, v, before.value, QuoteSources::Import, m_started); !r)
            return r;
        if (auto r = keepCoversAsEncodings(m_store, m_file.format, v); !r)
            return r;
        if (v.frontImage || v.backImage)
            CoverChanges::changed(v.rowId);
    }
    record(ImportOutcome::Updated, false, index, withTexts ? changed : QList<FieldChange>());
    return {};
}

Result<void> ImportMerge::mergeTrack(const TrackLine &line, int index)
{
    if (!line.problem.isEmpty()) {
        skip(true, index, line.line, line.problem, true);
        return {};
    }
    const Track &given = line.values;
    // A song can recur on a record: of the stored tracks with the line's record and song, the
    // one the line leaves as it is, else the oldest. Only a few are looked at (the oldest of
    // those is taken), so that thousands of tracks of one song still merge in linear time.
    constexpr int kLookedAt = 16;
    auto match = m_tracks.end();
    if (given.vinylID) {
        auto [it, last] = m_tracks.equal_range(TrackKey{*given.vinylID, text(given.song)});
        for (int looked = 0; it != last && looked < kLookedAt; ++it, ++looked) {
            if (match == m_tracks.end() || it->rowId < match->rowId)
                match = it;
            if (leavesAsItIs(given, *it)) {
                match = it;
                break;
            }
        }
    }
    if (match == m_tracks.end()) {
        if (m_mode == Mode::Apply) {
            Track t = given;
            if (auto r = m_store.insert(t); !r)
                return r;
        }
        record(ImportOutcome::New, true, index);
        return {};
    }

    // Only the fields the line fills change; vinylID and song are what matched.
    const Track stored = *match;
    m_tracks.erase(match);
    Track merged = stored;
    Track update;
    update.rowId = stored.rowId;
    for (const TrackAttribute &attribute : FileAttributes::tracks()) {
        if (FileAttributes::has(attribute, given) && attribute.name != u"vinylID" && attribute.name != u"song") {
            FileAttributes::copy(attribute, given, merged);
            FileAttributes::copy(attribute, given, update);
        }
    }
    const bool withTexts = m_mode == Mode::Preview;
    QList<FieldChange> changed = changes(FileAttributes::tracks(), stored, merged, withTexts);
    if (changed.isEmpty()) {
        record(ImportOutcome::Unchanged, true, index);
        return {};
    }
    if (m_mode == Mode::Apply) {
        if (auto r = m_store.updateGiven(update); !r)
            return r;
    }
    record(ImportOutcome::Updated, true, index, withTexts ? changed : QList<FieldChange>());
    return {};
}

QString ImportMerge::countsText(const ImportCounts &counts)
{
    const QLocale locale;
    const qint64 problems = counts.problemCount();
    return translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 new, %2 updated, %3 unchanged, %4 %5"))).arg(locale.toString(counts.added()),
                                                           locale.toString(counts.updated()),
                                                           locale.toString(counts.unchanged()), locale.toString(problems),
                                                           problems == 1 ? translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "problem"))) : translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "problems"))));
}

QString ImportMerge::problemText(const ImportProblem &problem)
{
    return translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Line %1: %2"))).arg(problem.line).arg(translated(problem.reason));
}
