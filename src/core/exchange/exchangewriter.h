#pragma once

#include "store/entities.h"
#include "store/result.h"

#include <QByteArray>
#include <QList>

#include <array>
#include <functional>

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
inline const QString kEncodingsNotKept = QStringLiteral("The covers' exchange encodings could not be kept: %1");
inline const QString kCancelled = QStringLiteral("The export was cancelled.");
} // namespace ExportMessages

// Builds the exchange text of the whole store: records sorted by name, artist and release date,
// then tracks sorted by vinylID and trackNumber, reporting progress as it goes.
//
// Absent numbers are written as the 0 they read as; a release date is written in local time;
// covers are re-encoded as JPEG at quality 20 and written as base64. The re-encoding is kept
// beside each cover in the store, so only covers new since the last export are encoded again.
class ExchangeWriter
{
public:
    // Called with the lines written and the lines in all; returning false cancels.
    using Progress = std::function<bool(qint64 done, qint64 total)>;

    ExchangeWriter(Store &store, bool exportImages);

    // The whole text at once; a cancel returns ExportMessages::kCancelled.
    static Result<QByteArray> build(Store &store, bool exportImages, int *unreadableImages = nullptr,
                                    const Progress &progress = {});
    // A cover as the exchange file carries it: JPEG at quality 20; empty when the bytes are not
    // a picture.
    [[nodiscard]] static QByteArray exchangeEncoding(const QByteArray &cover);

    // One line each, without the final line feed (exposed for tests of single fields).
    [[nodiscard]] QString recordLine(const Vinyl &vinyl);
    [[nodiscard]] static QString trackLine(const Track &track);
    // Appends a track line, without its line feed, to the file's bytes.
    static void appendTrackLine(QByteArray &out, const Track &track);

private:
    // Fetches the record list and counts the tracks; writes the first marker line.
    Result<void> start();
    // Appends up to maxLines record or track lines.
    Result<void> writeSome(int maxLines);
    [[nodiscard]] bool finished() const { return m_finished; }
    [[nodiscard]] qint64 totalLines() const { return m_records.size() + m_trackTotal; }

    Result<void> writeRecords(int maxLines, int *written);
    Result<void> writeTracks(int maxLines, int *written);
    Result<bool> fetchNextTrackBlock();
    // Front and back: absent without a cover, empty for a cover that is not a picture.
    using Encodings = std::array<std::optional<QByteArray>, 2>;
    // The encodings of the covers of records [from, to), made and kept where the store has none.
    Result<QList<Encodings>> encodingsOf(int from, int to);

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
    bool m_keepEncodings = true;
};
