#include "reports/coverpictures.h"

#include "store/store.h"

#include <QAtomicInteger>
#include <QBuffer>
#include <QImageReader>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {
QAtomicInteger<quint64> s_readerCount;

// The covers the record form stores are JPEG or PNG; anything else is left to the reader.
QByteArray formatOf(const QByteArray &bytes)
{
    if (bytes.startsWith("\xFF\xD8\xFF"))
        return "jpeg";
    if (bytes.startsWith("\x89PNG\r\n\x1A\n"))
        return "png";
    return {};
}

QSize headerSize(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, formatOf(bytes));
    return reader.size();
}
} // namespace

CoverReader::CoverReader(const QString &storeFilePath)
    : m_connectionName(u"platterbox-report-covers-"_s + QString::number(++s_readerCount))
{
    QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_connectionName);
    Store::configureReader(db, storeFilePath);
    if (db.open()) {
        m_query = std::make_unique<QSqlQuery>(db);
        if (!m_query->prepare(u"SELECT frontImage, backImage FROM Vinyl WHERE rowid = ?"_s))
            m_query.reset();
    }
}

CoverReader::~CoverReader()
{
    m_query.reset();
    {
        QSqlDatabase db = QSqlDatabase::database(m_connectionName, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(m_connectionName);
}

QByteArray CoverReader::read(qint64 rowId, CoverSide side)
{
    if (rowId != m_rowId) {
        m_rowId = rowId;
        m_covers[0].clear();
        m_covers[1].clear();
        if (m_query) {
            m_query->bindValue(0, rowId);
            if (m_query->exec() && m_query->next()) {
                m_covers[0] = m_query->value(0).toByteArray();
                m_covers[1] = m_query->value(1).toByteArray();
            }
            m_query->finish();
        }
    }
    return m_covers[side == CoverSide::Back ? 1 : 0];
}

CoverPictures::CoverPictures(CoverReader *reader, double width) : m_reader(reader), m_width(width) {}

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
    const QSize size = target.isValid() ? target : scaledSize(image.size(), pixelWidth);
    if (image.size() != size)
        image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
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
    const QByteArray bytes = bytesOf(vinyl, side);
    CoverPicture picture;
    if (decode)
        picture.image = decodeScaled(bytes, pixelWidth());
    picture.size = picture.image.isNull() ? scaledSize(headerSize(bytes), pixelWidth()) : picture.image.size();
    if (decode && picture.image.isNull() && picture.exists()) {
        // A picture whose data breaks off after its header: its place stays blank, so the page
        // keeps the layout it was given when only sizes were read.
        picture.image = QImage(picture.size, QImage::Format_RGB32);
        picture.image.fill(Qt::white);
    }
    m_last[index] = picture;
    return picture;
}
