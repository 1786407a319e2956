#pragma once

#include "entities.h"
#include "result.h"

#include <QByteArray>
#include <QList>

class Store;

// Console lines of the writer. The user never sees them.
namespace ExportMessages {
inline const QString kArtist = QStringLiteral("Artist is missing or empty.");
inline const QString kCoverCondition = QStringLiteral("Condition is missing or empty.");
inline const QString kDoubleAlbum = QStringLiteral("Double Album is missing or empty.");
inline const QString kName = QStringLiteral("Album Name is missing or empty.");
inline const QString kNotes = QStringLiteral("Notes is missing or empty.");
inline const QString kProducer = QStringLiteral("Producer is missing or empty.");
inline const QString kRecordLabel = QStringLiteral("Record Label is missing or empty.");
inline const QString kRecordSpeed = QStringLiteral("Record Speed is missing or empty.");
inline const QString kReleaseDate = QStringLiteral("Release Date is missing or empty.");
inline const QString kVinylCondition = QStringLiteral("Vinyl Condition is missing or empty.");
inline const QString kAlbumDuration = QStringLiteral("albumDuration is empty.");
inline const QString kCost = QStringLiteral("AlbumCost is missing or empty.");
inline const QString kId = QStringLiteral("id is missing or empty.");
inline const QString kQuantity = QStringLiteral("Quantity is missing or empty.");
inline const QString kValue = QStringLiteral("Value is missing or empty.");
inline const QString kDuration = QStringLiteral("Duration is missing or empty.");
inline const QString kSong = QStringLiteral("Song is missing or empty.");
inline const QString kTrackNumber = QStringLiteral("Track Number is missing or empty.");
inline const QString kVinylID = QStringLiteral("Vinyl ID is missing or empty.");
inline const QString kWrittenBy = QStringLiteral("Written By is missing or empty.");
// "%1" is the attribute name.
inline const QString kLineBreakerRemoved = QStringLiteral("A caret or line break was removed from %1.");
inline const QString kUnreadableImage = QStringLiteral("%1 of \"%2\" is not a readable image; left out.");
} // namespace ExportMessages

// Builds the exchange text of the whole store: records sorted by name, artist and release date,
// then tracks sorted by vinylID and trackNumber. It works in steps so that a screen can build a
// large collection without freezing: start(), then writeSome() until finished(). build() does
// it all at once.
//
// Absent numbers are written as the 0 they read as; a release date is written in local time;
// covers are re-encoded as JPEG at quality 20 and written as base64.
class ExchangeWriter
{
public:
    ExchangeWriter(Store &store, bool exportImages);

    // Fetches the record list and counts the tracks; writes the first marker line.
    Result<void> start();
    // Appends up to maxLines record or track lines.
    Result<void> writeSome(int maxLines);
    [[nodiscard]] bool finished() const { return m_finished; }

    [[nodiscard]] qint64 linesWritten() const { return m_linesWritten; }
    [[nodiscard]] qint64 totalLines() const { return m_records.size() + m_trackTotal; }
    // Fraction done, 0 to 1.
    [[nodiscard]] double fraction() const;
    // Covers left out because their bytes are not a readable image.
    [[nodiscard]] int unreadableImages() const { return m_unreadableImages; }

    // The text built so far, UTF-8.
    [[nodiscard]] const QByteArray &data() const { return m_data; }

    // The whole text at once (command line, tests).
    static Result<QByteArray> build(Store &store, bool exportImages, int *unreadableImages = nullptr);

    // One line each, without the final line feed (exposed for tests of single fields).
    [[nodiscard]] QString recordLine(const Vinyl &vinyl);
    [[nodiscard]] static QString trackLine(const Track &track);

private:
    Result<void> writeRecords(int maxLines, int *written);
    Result<void> writeTracks(int maxLines, int *written);
    Result<bool> fetchNextTrackBlock();
    Result<void> loadCovers(int from, int to);
    QString imageField(const std::optional<QByteArray> &image, const QString &attribute, const Vinyl &vinyl);

    Store &m_store;
    bool m_exportImages;
    QByteArray m_data;
    QList<Vinyl> m_records;
    int m_nextRecord = 0;
    qint64 m_trackTotal = 0;
    QList<Track> m_trackBlock;
    int m_nextTrack = 0;
    int m_blockIndex = -1; // -1: tracks without a vinylID; then blocks of vinylID ranges
    bool m_tracksStarted = false;
    bool m_finished = false;
    qint64 m_linesWritten = 0;
    int m_unreadableImages = 0;
};
