#pragma once

#include "entities.h"

#include <QHash>
#include <QImage>

class Store;

// Covers for reports, decoded straight to the size they are printed at and kept, so a
// report of many records (or the same report built again) decodes each cover once.
class CoverPictures
{
public:
    // width: the printed width in points; pictures keep twice that many pixels.
    CoverPictures(Store &store, double width);

    [[nodiscard]] double width() const { return m_width; }
    // The record's cover, scaled; a null image when it has none or it cannot be decoded.
    [[nodiscard]] QImage cover(const Vinyl &vinyl, CoverSide side);
    // Decodes encoded cover bytes to the given pixel width (height keeps the aspect).
    [[nodiscard]] static QImage decodeScaled(const QByteArray &bytes, int pixelWidth);

private:
    Store &m_store;
    double m_width;
    QHash<qint64, QImage> m_cache; // rowId * 2 + side
};
