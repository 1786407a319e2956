#pragma once

#include "exchange/importfile.h"
#include "store/entities.h"
#include "store/result.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QPair>
#include <QString>

#include <functional>

class Snapshots;
class Store;

namespace ImportMessages {
// "%1" is the attribute, "%2" the line number in the file.
inline const QString kUnreadableImage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 on line %2 is not a readable image; left out."));
inline const QString kCancelled = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The import was cancelled; nothing was changed."));
// "%1" is why the collection could not be kept.
inline const QString kNotKept = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The collection could not be kept before the import, so nothing was imported. %1"));
// "%1 of %2" lines; "%3" what they did.
inline const QString kStopped = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The import was stopped after %1 of %2 lines of the file; those lines were imported (%3). "
    "Undo Last Import puts the collection back as it was before."));
// "%1" lines; follows the cause of an import that failed part of the way.
inline const QString kPartlyImported = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The first %1 lines of the file were imported before it; Undo Last Import puts the collection back as it was."));
inline const QString kNothingImported = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Nothing was imported; the collection is as it was."));
// Follows the problems listed: "%1" more lines were skipped.
inline const QString kMoreProblems = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "and %1 more"));
inline const QString kCompleted = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Data File Import Completed"));
} // namespace ImportMessages

// One field a line changes on a stored record or track, as the preview shows it.
struct FieldChange
{
    QString field; // the form's title: "Record Label"
    QString before;
    QString after;
};

// What one line of a file does to the store. A preview keeps one for every line of a file that
// can hold millions, so it is small: what an update changes and why a line is skipped are kept
// apart, for those lines only.
struct ImportOutcome
{
    enum Kind : quint8 { New, Updated, Unchanged, Problem };
    Kind kind = New;
    bool track = false;
    int index = 0;   // among the file's records or tracks
    int detail = -1; // in ImportMerge::Preview::details, for an update or a problem
};

struct ImportDetail
{
    QList<FieldChange> changes; // of an update
    QString problem;            // why a problem line is skipped, when not the line's own problem
};

struct ImportProblem
{
    qint64 line = 0;
    QString reason;
};

// What an import did, or a preview found it would do.
struct ImportCounts
{
    qint64 recordsAdded = 0;
    qint64 recordsUpdated = 0;
    qint64 recordsUnchanged = 0;
    qint64 tracksAdded = 0;
    qint64 tracksUpdated = 0;
    qint64 tracksUnchanged = 0;
    qint64 unreadableImages = 0;
    // The first lines skipped, in file order, up to kListedProblems; the rest are counted only,
    // since every line of a crafted file can be a problem.
    static constexpr qsizetype kListedProblems = 1000;
    QList<ImportProblem> problems;
    qint64 moreProblems = 0;
    // An import stopped by a cancel: the store holds the first linesApplied lines of the file.
    bool stopped = false;
    qint64 linesApplied = 0;

    [[nodiscard]] qint64 added() const { return recordsAdded + tracksAdded; }
    [[nodiscard]] qint64 updated() const { return recordsUpdated + tracksUpdated; }
    [[nodiscard]] qint64 unchanged() const { return recordsUnchanged + tracksUnchanged; }
    [[nodiscard]] qint64 problemCount() const { return problems.size() + moreProblems; }
};

// Merges the lines of an import file into the store, or only says what merging would do: a
// preview runs the very same decisions without writing.
//
// Records are matched by name and artist (no artist matches no artist) and tracks by vinylID
// and song, so importing the same file again updates rather than duplicates. Matching only ever finds what was stored before the
// import: a record or track that an earlier line of the file created or updated is not matched
// again, so two pressings of one album (or two tracks of one name) stay two. Where several
// stored records share a name and artist, the one whose id equals the line's is taken first;
// where several stored tracks share a vinylID and song, the one the line leaves as it is, else
// the oldest.
// A line that changes nothing writes nothing. Lines with a problem are skipped. A new record from
// a CSV file that gives it no number takes the next free one (tracks refer to records by it);
// exchange files keep the numbers they give.
class ImportMerge
{
public:
    enum class Mode { Preview, Apply };
    // Called with the lines done and the lines in all; returning false cancels.
    using Progress = std::function<bool(qint64 done, qint64 total)>;

    struct Preview
    {
        ImportCounts counts;
        QList<ImportOutcome> outcomes; // one per line: records first, then tracks
        QList<ImportDetail> details;
    };

    // What merging the file would do; the store is only read.
    static Result<Preview> preview(Store &store, const ImportFile &file, const Progress &progress = {});
    // Merges the file in batches of lines, each in one transaction, so the store always holds a
    // whole first part of the file: a cancel stops at the end of a batch (counts.stopped), an
    // error rolls its batch back and says how many lines were imported before it.
    static Result<ImportCounts> apply(Store &store, const ImportFile &file, const Progress &progress = {});
    // Keeps the store as a snapshot first, so that the import can be undone; nothing is applied
    // without one. `source` names the file in the snapshot.
    static Result<ImportCounts> applyAfterSnapshot(Store &store, const ImportFile &file, Snapshots &snapshots,
                                                   const QString &source, const Progress &progress = {});

    // "412 new, 23 updated, 1,380 unchanged, 4 problems", in the locale's digits.
    [[nodiscard]] static QString countsText(const ImportCounts &counts);
    // "Line 7: no name"
    [[nodiscard]] static QString problemText(const ImportProblem &problem);

private:
    ImportMerge(Store &store, const ImportFile &file, Mode mode);
    Result<void> run(const Progress &progress);
    // Merges lines [from, to); false when the progress asked to stop first.
    Result<bool> mergeLines(qint64 from, qint64 to, const Progress &progress);
    Result<void> buildLookups();
    // covers: the pictures of the line's front and back cover texts, nullopt where the line
    // gives none or one that cannot be read.
    Result<void> mergeRecord(const RecordLine &line, const std::array<std::optional<QByteArray>, 2> &covers, int index);
    Result<void> mergeTrack(const TrackLine &line, int index);
    // The stored record a line updates, taken out of the look-up so that no later line finds it.
    qint64 takeRecordMatch(const QString &name, const QString &artist, std::optional<qint16> id);
    // Counts a new, updated or unchanged line, and keeps its outcome for a preview.
    void record(ImportOutcome::Kind kind, bool track, int index, QList<FieldChange> changes = {});
    // A line skipped for its own problem, which a preview reads again from the line, or for
    // one the merge found.
    void skip(bool track, int index, qint64 line, const QString &problem, bool linesOwn);

    using RecordKey = QPair<QString, QString>; // name, artist
    using TrackKey = QPair<qint16, QString>;   // vinylID, song
    struct StoredRecord
    {
        qint64 rowId = 0;
        std::optional<qint16> id;
    };

    Store &m_store;
    const ImportFile &m_file;
    Mode m_mode;
    // What was stored before the import and not yet matched by a line.
    QMultiHash<RecordKey, StoredRecord> m_records;
    // The stored tracks with their values, so that a line that changes nothing writes nothing.
    QMultiHash<TrackKey, Track> m_tracks;
    int m_nextId = 1; // for new records that the file gives no number
    ImportCounts m_counts;
    QList<ImportOutcome> m_outcomes;
    QList<ImportDetail> m_details;
    QHash<QString, int> m_problemDetails; // the detail of each problem the merge found
    // The date of the values the import brings: one moment for the whole file.
    QDateTime m_started = QDateTime::currentDateTime();
};
