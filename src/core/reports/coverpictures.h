#pragma once

#include "store/entities.h"

#include <QByteArray>
#include <QFuture>
#include <QHash>
#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

#include <deque>
#include <memory>
#include <optional>
#include <utility>

struct sqlite3;
struct sqlite3_stmt;

// Reads stored covers over a read-only connection of its own to the store file, so a report
// can be laid out on any thread; one thread at a time uses a reader.
class CoverReader
{
public:
    explicit CoverReader(const QString &storeFilePath);
    ~CoverReader();
    CoverReader(const CoverReader &) = delete;
    CoverReader &operator=(const CoverReader &) = delete;

    // The encoded cover; empty when the record has none or it cannot be read.
    [[nodiscard]] QByteArray read(qint64 rowId, CoverSide side);

private:
    sqlite3 *m_connection = nullptr;
    sqlite3_stmt *m_statement = nullptr; // both covers of a record, prepared once
    // The covers of the last record read: its other side is asked for next.
    qint64 m_rowId = 0;
    QByteArray m_covers[2];
};

// A cover as a report shows it: its size in pixels at the printed width and, when it was
// decoded, the picture: at that size, or smaller when the stored picture is narrower (an
// enlarged copy adds no detail, only pixels to draw; it prints at the same size).
struct CoverPicture
{
    QSize size;
    QImage image;
    [[nodiscard]] bool exists() const { return size.isValid(); }
};

// Covers for reports, read one at a time at the size they are printed at. Besides the last
// record's covers, only the pictures decoded lately are kept (a few megabytes), so a report of
// any length holds little more than the covers of the page being drawn. Records that share a
// cover (copies of one album, a picture used for many) decode it once and get the same picture,
// which a PDF writer embeds once.
class CoverPictures
{
public:
    // width: the printed width in points; pictures have twice that many pixels. Records
    // without their covers loaded have them read through `reader` (none: such records show
    // no covers).
    CoverPictures(CoverReader *reader, double width);

    [[nodiscard]] double width() const { return m_width; }
    [[nodiscard]] int pixelWidth() const;
    // The record's cover; with decode false only its size is known (enough to lay a page out).
    // No size when the record has none or its picture cannot be read.
    [[nodiscard]] CoverPicture cover(const Vinyl &vinyl, CoverSide side, bool decode = true);
    // Reads the covers of these stored records now and decodes them on another thread, so the
    // pictures are ready when cover() asks for them while this thread draws. Batches are kept
    // until a record of a later one is asked for.
    void decodeAhead(const QList<const Vinyl *> &records);

    // The size of an encoded cover as its header gives it, without decoding it; invalid when
    // the bytes are not a picture.
    [[nodiscard]] static QSize storedSize(const QByteArray &bytes);
    // The size a picture of `original` pixels has at the given pixel width.
    [[nodiscard]] static QSize scaledSize(const QSize &original, int pixelWidth);
    // Decodes encoded cover bytes to at most the given pixel width (height keeps the aspect);
    // null when they are not a picture.
    [[nodiscard]] static QImage decodeScaled(const QByteArray &bytes, int pixelWidth);

private:
    struct Batch
    {
        QList<qint64> rowIds;
        QList<QByteArray> covers;   // front and back of each record
        QList<QByteArray> decoding; // the covers not decoded before, each once
        QHash<QByteArray, qsizetype> decodingAt; // where each is in `decoding`
        QFuture<QList<CoverPicture>> pictures; // of `decoding`
    };

    [[nodiscard]] QByteArray bytesOf(const Vinyl &vinyl, CoverSide side);
    [[nodiscard]] static CoverPicture pictureOf(const QByteArray &bytes, int pixelWidth, bool decode);
    // The record's cover if it is in a batch decoded ahead: its bytes, and the picture when
    // it was decoded there.
    [[nodiscard]] std::optional<std::pair<QByteArray, std::optional<CoverPicture>>> decodedAhead(qint64 rowId,
                                                                                                 int side);
    // The picture of these bytes decoded lately; keeps the one given.
    [[nodiscard]] const CoverPicture *kept(const QByteArray &bytes) const;
    void keep(const QByteArray &bytes, const CoverPicture &picture);

    CoverReader *m_reader;
    double m_width;
    // The covers of the last record asked for: a page laid out again starts with them.
    qint64 m_lastRowId = 0;
    std::optional<CoverPicture> m_last[2]; // front, back; none until read
    std::deque<Batch> m_ahead;
    // Pictures decoded lately, by their encoded bytes, oldest first in m_keptOrder.
    QHash<QByteArray, CoverPicture> m_kept;
    std::deque<QByteArray> m_keptOrder;
    qint64 m_keptBytes = 0;
};
