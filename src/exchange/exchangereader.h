#pragma once

#include "entities.h"
#include "result.h"

#include <QHash>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringView>

#include <memory>

class Store;

namespace ImportMessages {
inline const QString kFoundTracks = QStringLiteral("Found [TRACKCOLLECTION]");
// "%1" is the attribute, "%2" the line number in the file.
inline const QString kUnreadableImage = QStringLiteral("%1 on line %2 is not a readable image; left out.");
} // namespace ImportMessages

// What an import did.
struct ImportCounts
{
    qint64 recordsAdded = 0;
    qint64 recordsUpdated = 0;
    qint64 tracksAdded = 0;
    qint64 tracksUpdated = 0;
    qint64 unreadableImages = 0;
};

// Merges an exchange text into the store. Records are matched by name and artist and tracks by
// vinylID and song, so importing the same file again updates rather than duplicates. A field
// that is empty in the file never changes the stored value.
//
// Matching only ever finds what was stored before the import: a record or track that an earlier
// line of the file created or updated is not matched again, so two pressings of one album (or
// two tracks of one name) stay two. Where several stored records share a name and artist, the
// one whose id equals the line's is taken first.
//
// Record lines are the non-empty lines between "[VINYLCOLLECTION]" and "[TRACKCOLLECTION]";
// a text without "[VINYLCOLLECTION]" adds no record. Track lines are the non-empty lines after
// "[TRACKCOLLECTION]". Missing trailing fields read as empty.
//
// The work is done in batches, each in one transaction: an import that stops (an error, or the
// screen going away) keeps the batches before it and never leaves half a batch behind.
class ExchangeReader
{
public:
    ExchangeReader(Store &store, QString document);
    ~ExchangeReader();
    ExchangeReader(const ExchangeReader &) = delete;
    ExchangeReader &operator=(const ExchangeReader &) = delete;

    // Splits the text into lines and builds the look-up tables of what is stored.
    Result<void> start();
    // Applies up to maxLines lines in one transaction.
    Result<void> importSome(int maxLines);
    [[nodiscard]] bool finished() const { return m_next >= totalLines(); }

    [[nodiscard]] qint64 totalLines() const { return m_recordLines.size() + m_trackLines.size(); }
    [[nodiscard]] qint64 linesDone() const { return m_next; }
    [[nodiscard]] double fraction() const;
    [[nodiscard]] const ImportCounts &counts() const { return m_counts; }

    // The whole import at once, batchLines lines per transaction (command line, tests).
    static Result<ImportCounts> importAll(Store &store, const QString &document, int batchLines = 500);

private:
    struct Line
    {
        QStringView text;
        qint64 number = 0; // 1-based line number in the file, for console lines
    };
    using RecordKey = QPair<QString, QString>; // name, artist
    using TrackKey = QPair<qint16, QString>;   // vinylID, song
    struct StoredRecord
    {
        qint64 rowId = 0;
        std::optional<qint16> id;
    };

    Result<void> buildLookups();
    Result<void> importRecord(const Line &line);
    Result<void> importTrack(const Line &line);
    std::optional<QByteArray> decodeImage(QStringView field, const QString &attribute, qint64 lineNumber);
    // The stored record a line updates, taken out of the look-up so that no later line finds it.
    qint64 takeRecordMatch(const RecordKey &key, std::optional<qint16> id);

    Store &m_store;
    QString m_document;
    QList<Line> m_recordLines;
    QList<Line> m_trackLines;
    qint64 m_next = 0;
    bool m_failed = false;
    // What was stored before the import and not yet matched by a line.
    QMultiHash<RecordKey, StoredRecord> m_records;
    // The stored tracks with their values, so that a line that changes nothing writes nothing.
    QMultiHash<TrackKey, Track> m_tracks;
    ImportCounts m_counts;
};
