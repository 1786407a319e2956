#pragma once

#include "store/entities.h"
#include "store/result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <array>
#include <functional>
#include <memory>

class Store;
class StoreRows;

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
inline const QString kCancelled = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The export was cancelled."));
} // namespace ExportMessages

// Builds the exchange text of the whole store: records sorted by name, artist and release date,
// then tracks sorted by vinylID and trackNumber, reporting progress as it goes.
//
// Absent numbers are written as the 0 they read as; a release date is written in local time;
// covers are re-encoded as JPEG at quality 20 and written as base64. The re-encoding is kept
// beside each cover in the store, so only covers new since the last export are encoded again.
//
// Records and tracks are each read in one ordered pass, a record's covers with its attributes,
// and written from the stored bytes straight into the file's: the file is the only copy of the
// collection the export holds.
class ExchangeWriter
{
public:
    // Called with the lines written and the lines in all; returning false cancels.
    using Progress = std::function<bool(qint64 done, qint64 total)>;

    ExchangeWriter(Store &store, bool exportImages);
    ~ExchangeWriter();

    // The whole text at once; a cancel returns ExportMessages::kCancelled.
    static Result<QByteArray> build(Store &store, bool exportImages, int *unreadableImages = nullptr,
                                    const Progress &progress = {});
    // A cover as the exchange file carries it: JPEG at quality 20; empty when the bytes are not
    // a picture.
    [[nodiscard]] static QByteArray exchangeEncoding(const QByteArray &cover);

    // A track line without its line feed (exposed for tests of single fields).
    [[nodiscard]] static QString trackLine(const Track &track);

private:
    // Opens the passes over the records and tracks and counts them; writes the first marker line.
    Result<void> start();
    // Appends up to maxLines record or track lines.
    Result<void> writeSome(int maxLines);
    [[nodiscard]] bool finished() const { return m_finished; }
    [[nodiscard]] qint64 totalLines() const { return m_recordTotal + m_trackTotal; }

    Result<void> writeRecords(int maxLines, int *written);
    Result<void> writeTracks(int maxLines, int *written);
    struct Waiting;
    // Encodes the covers the waiting lines lack (on every core), keeps the encodings and appends
    // the lines.
    void writeWaiting(QList<Waiting> &waiting);
    // Appends a cover's base64, or reports it when it is not a picture.
    void writeCover(QByteArrayView encoding, int side, QByteArrayView name);

    Store &m_store;
    bool m_exportImages;
    QByteArray m_data;
    std::unique_ptr<StoreRows> m_records;
    std::unique_ptr<StoreRows> m_tracks;
    qint64 m_recordTotal = 0;
    qint64 m_trackTotal = 0;
    bool m_tracksStarted = false;
    bool m_finished = false;
    qint64 m_linesWritten = 0;
    int m_unreadableImages = 0;
    bool m_keepEncodings = true;
};
