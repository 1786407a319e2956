#include "coverpictures.h"

#include "store.h"

#include <QBuffer>
#include <QImageReader>

#include <cmath>

CoverPictures::CoverPictures(Store &store, double width) : m_store(store), m_width(width) {}

QImage CoverPictures::decodeScaled(const QByteArray &bytes, int pixelWidth)
{
    if (bytes.isEmpty() || pixelWidth <= 0)
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(false);
    const QSize size = reader.size();
    // JPEG decodes straight to a smaller size, much faster than decoding whole and scaling.
    if (size.isValid() && size.width() > pixelWidth) {
        const int height = std::max(1, int(std::lround(double(size.height()) * pixelWidth / size.width())));
        reader.setScaledSize(QSize(pixelWidth, height));
    }
    QImage image = reader.read();
    if (image.isNull())
        return {};
    if (image.width() != pixelWidth)
        image = image.scaledToWidth(pixelWidth, Qt::SmoothTransformation);
    return image.convertToFormat(QImage::Format_RGB32);
}

QImage CoverPictures::cover(const Vinyl &vinyl, CoverSide side)
{
    const qint64 key = vinyl.rowId * 2 + (side == CoverSide::Back ? 1 : 0);
    if (vinyl.rowId != 0) {
        if (auto found = m_cache.constFind(key); found != m_cache.constEnd())
            return *found;
    }
    QByteArray bytes;
    if (vinyl.imagesLoaded || vinyl.rowId == 0) {
        bytes = (side == CoverSide::Front ? vinyl.frontImage : vinyl.backImage).value_or(QByteArray());
    } else if (auto stored = m_store.coverImage(vinyl.rowId, side)) {
        bytes = *stored;
    }
    const QImage image = decodeScaled(bytes, int(std::ceil(m_width * 2)));
    if (vinyl.rowId != 0)
        m_cache.insert(key, image);
    return image;
}
