#include "reports/coverpictures.h"

#include "store/store.h"

#include <QBuffer>
#include <QImageReader>
#include <QtConcurrent/QtConcurrentRun>

#include <sqlite3.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {
// Pictures kept for the records that share a cover: a few hundred covers at their printed size.
constexpr qint64 kKeptPictureBytes = 16 * 1024 * 1024;

// The covers the record form stores are JPEG or PNG; anything else is left to the reader.
QByteArray formatOf(const QByteArray &bytes)
{
    if (bytes.startsWith("\xFF\xD8\xFF"))
        return "jpeg";
    if (bytes.startsWith("\x89PNG\r\n\x1A\n"))
        return "png";
    return {};
}

quint32 bigEndian(const QByteArray &bytes, qsizetype at, int length)
{
    quint32 value = 0;
    for (int i = 0; i < length; ++i)
        value = value << 8 | quint8(bytes.at(at + i));
    return value;
}

// The size a JPEG or PNG file's header gives, read straight from its bytes: laying out a long
// report reads every cover's, and an image reader costs more to make than the read itself.
// Invalid when the header is not where these formats have it.
QSize sizeFromHeader(const QByteArray &bytes)
{
    if (bytes.startsWith("\x89PNG\r\n\x1A\n")) {
        if (bytes.size() < 24 || bytes.mid(12, 4) != "IHDR")
            return {};
        return {int(bigEndian(bytes, 16, 4)), int(bigEndian(bytes, 20, 4))};
    }
    // Markers follow the start of image; each but a few carries its length. The frame header
    // (SOF0 to SOF15, but DHT, JPG and DAC) holds precision, height and width.
    for (qsizetype at = 2; at + 4 <= bytes.size();) {
        if (quint8(bytes.at(at)) != 0xFF)
            return {};
        const quint8 marker = quint8(bytes.at(at + 1));
        if (marker == 0xFF) {
            ++at;
            continue;
        }
        if (marker == 0xD8 || marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7)) {
            at += 2;
            continue;
        }
        const qsizetype length = bigEndian(bytes, at + 2, 2);
        if (marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC) {
            if (at + 9 > bytes.size())
                return {};
            return {int(bigEndian(bytes, at + 7, 2)), int(bigEndian(bytes, at + 5, 2))};
        }
        if (marker == 0xD9 || marker == 0xDA || length < 2)
            return {};
        at += 2 + length;
    }
    return {};
}

QSize headerSize(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return {};
    if (const QByteArray format = formatOf(bytes); !format.isEmpty()) {
        if (const QSize size = sizeFromHeader(bytes); size.isValid() && !size.isEmpty())
            return size;
    }
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, formatOf(bytes));
    return reader.size();
}
} // namespace

CoverReader::CoverReader(const QString &storeFilePath)
{
    const QByteArray uri = Store::readerUri(storeFilePath).toUtf8();
    if (sqlite3_open_v2(uri.constData(), &m_connection, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX,
                        nullptr)
        != SQLITE_OK)
        return;
    // One read transaction while the reader lives: a report reads the covers of thousands of
    // records, and SQLite would otherwise take and drop its read lock for each.
    sqlite3_exec(m_connection, "BEGIN", nullptr, nullptr, nullptr);
    if (sqlite3_prepare_v3(m_connection, "SELECT frontImage, backImage FROM Vinyl WHERE rowid = ?", -1,
                           SQLITE_PREPARE_PERSISTENT, &m_statement, nullptr)
        != SQLITE_OK)
        m_statement = nullptr;
}

CoverReader::~CoverReader()
{
    sqlite3_finalize(m_statement);
    if (m_connection)
        sqlite3_exec(m_connection, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(m_connection);
}

QByteArray CoverReader::read(qint64 rowId, CoverSide side)
{
    if (rowId != m_rowId) {
        m_rowId = rowId;
        m_covers[0].clear();
        m_covers[1].clear();
        if (m_statement) {
            sqlite3_bind_int64(m_statement, 1, rowId);
            if (sqlite3_step(m_statement) == SQLITE_ROW) {
                for (int i : {0, 1}) {
                    const void *bytes = sqlite3_column_blob(m_statement, i);
                    m_covers[i] = QByteArray(static_cast<const char *>(bytes), sqlite3_column_bytes(m_statement, i));
                }
            }
            sqlite3_reset(m_statement);
        }
    }
    return m_covers[side == CoverSide::Back ? 1 : 0];
}

CoverPictures::CoverPictures(CoverReader *reader, double width) : m_reader(reader), m_width(width) {}

QSize CoverPictures::storedSize(const QByteArray &bytes)
{
    return headerSize(bytes);
}

int CoverPictures::pixelWidth() const
{
    return int(std::ceil(m_width * 2));
}

QSize CoverPictures::scaledSize(const QSize &original, int pixelWidth)
{
    if (!original.isValid() || original.isEmpty() || pixelWidth <= 0)
        return {};
    const int height = std::max(1, int(std::lround(double(original.height()) * pixelWidth / original.width())));
    return {pixelWidth, height};
}

QImage CoverPictures::decodeScaled(const QByteArray &bytes, int pixelWidth)
{
    if (bytes.isEmpty() || pixelWidth <= 0)
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    // Naming the format spares the reader asking every image plug-in.
    QImageReader reader(&buffer, formatOf(bytes));
    reader.setAutoTransform(false);
    const QSize target = scaledSize(reader.size(), pixelWidth);
    // JPEG decodes straight to a smaller size, much faster than decoding whole and scaling.
    if (target.isValid() && reader.size().width() > pixelWidth)
        reader.setScaledSize(target);
    QImage image = reader.read();
    if (image.isNull())
        return {};
    // A narrower picture stays as it is: the page scales it to its printed width.
    if (image.width() > pixelWidth) {
        const QSize size = scaledSize(image.size(), pixelWidth);
        if (image.size() != size)
            image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return image.convertToFormat(QImage::Format_RGB32);
}

QByteArray CoverPictures::bytesOf(const Vinyl &vinyl, CoverSide side)
{
    if (vinyl.imagesLoaded || vinyl.rowId == 0 || !m_reader)
        return (side == CoverSide::Front ? vinyl.frontImage : vinyl.backImage).value_or(QByteArray());
    return m_reader->read(vinyl.rowId, side);
}

CoverPicture CoverPictures::cover(const Vinyl &vinyl, CoverSide side, bool decode)
{
    const int index = side == CoverSide::Back ? 1 : 0;
    if (vinyl.rowId != m_lastRowId) {
        m_lastRowId = vinyl.rowId;
        m_last[0] = m_last[1] = {};
    }
    // Known from before: the record's picture is asked for again when its page is laid out again.
    if (const std::optional<CoverPicture> &known = m_last[index];
        vinyl.rowId != 0 && known && (!decode || !known->exists() || !known->image.isNull()))
        return *known;
    std::optional<CoverPicture> picture;
    QByteArray bytes;
    if (auto ahead = decode && vinyl.rowId != 0 ? decodedAhead(vinyl.rowId, index) : std::nullopt) {
        bytes = std::move(ahead->first);
        picture = std::move(ahead->second);
    } else {
        bytes = bytesOf(vinyl, side);
    }
    if (decode && !bytes.isEmpty()) {
        if (const CoverPicture *shared = kept(bytes))
            picture = *shared;
        if (!picture)
            picture = pictureOf(bytes, pixelWidth(), true);
        keep(bytes, *picture);
    } else if (!picture) {
        picture = pictureOf(bytes, pixelWidth(), decode);
    }
    m_last[index] = picture;
    return *picture;
}

const CoverPicture *CoverPictures::kept(const QByteArray &bytes) const
{
    const auto found = m_kept.constFind(bytes);
    return found == m_kept.cend() ? nullptr : &*found;
}

void CoverPictures::keep(const QByteArray &bytes, const CoverPicture &picture)
{
    if (picture.image.isNull() || m_kept.contains(bytes))
        return;
    m_kept.insert(bytes, picture);
    m_keptOrder.push_back(bytes);
    m_keptBytes += picture.image.sizeInBytes();
    while (m_keptBytes > kKeptPictureBytes && m_keptOrder.size() > 1) {
        m_keptBytes -= m_kept.take(m_keptOrder.front()).image.sizeInBytes();
        m_keptOrder.pop_front();
    }
}

CoverPicture CoverPictures::pictureOf(const QByteArray &bytes, int pixelWidth, bool decode)
{
    CoverPicture picture;
    if (decode)
        picture.image = decodeScaled(bytes, pixelWidth);
    picture.size = scaledSize(picture.image.isNull() ? headerSize(bytes) : picture.image.size(), pixelWidth);
    if (decode && picture.image.isNull() && picture.exists()) {
        // A picture whose data breaks off after its header: its place stays blank, so the page
        // keeps the layout it was given when only sizes were read.
        picture.image = QImage(picture.size, QImage::Format_RGB32);
        picture.image.fill(Qt::white);
    }
    return picture;
}

void CoverPictures::decodeAhead(const QList<const Vinyl *> &records)
{
    Batch batch;
    // Found by hash: compared one by one, covers from one camera or scanner share long headers.
    const auto decodingBefore = [this](const QByteArray &bytes) {
        return std::any_of(m_ahead.cbegin(), m_ahead.cend(),
                           [&](const Batch &pending) { return pending.decodingAt.contains(bytes); });
    };
    for (const Vinyl *vinyl : records) {
        if (vinyl->rowId == 0)
            continue;
        batch.rowIds.append(vinyl->rowId);
        for (CoverSide side : {CoverSide::Front, CoverSide::Back}) {
            QByteArray bytes = bytesOf(*vinyl, side);
            if (!bytes.isEmpty() && !kept(bytes) && !batch.decodingAt.contains(bytes) && !decodingBefore(bytes)) {
                batch.decodingAt.insert(bytes, batch.decoding.size());
                batch.decoding.append(bytes);
            }
            batch.covers.append(std::move(bytes));
        }
    }
    if (batch.rowIds.isEmpty())
        return;
    batch.pictures = QtConcurrent::run([bytes = batch.decoding, width = pixelWidth()] {
        QList<CoverPicture> pictures;
        pictures.reserve(bytes.size());
        for (const QByteArray &cover : bytes)
            pictures.append(pictureOf(cover, width, true));
        return pictures;
    });
    m_ahead.push_back(std::move(batch));
}

std::optional<std::pair<QByteArray, std::optional<CoverPicture>>> CoverPictures::decodedAhead(qint64 rowId, int side)
{
    for (std::size_t b = 0; b < m_ahead.size(); ++b) {
        const qsizetype at = m_ahead[b].rowIds.indexOf(rowId);
        if (at < 0)
            continue;
        // Records come in order: the batches before this one are done with.
        m_ahead.erase(m_ahead.begin(), m_ahead.begin() + qsizetype(b));
        QByteArray bytes = m_ahead.front().covers.at(2 * at + side);
        if (bytes.isEmpty() || kept(bytes))
            return std::pair{bytes, std::optional<CoverPicture>()};
        // Waits for the other thread, or decodes here when it has not started yet. A cover the
        // batch did not decode was decoded for an earlier record.
        Batch &batch = m_ahead.front();
        if (const qsizetype i = batch.decodingAt.value(bytes, -1); i >= 0)
            return std::pair{bytes, std::optional<CoverPicture>(batch.pictures.result().at(i))};
        return std::pair{bytes, std::optional<CoverPicture>()};
    }
    return std::nullopt;
}
