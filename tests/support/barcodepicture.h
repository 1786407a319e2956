#pragma once

#include <QImage>
#include <QString>

#include <ZXing/BitMatrix.h>
#include <ZXing/MultiFormatWriter.h>

// The code as a printer would put it on a sleeve: black on white, `module` pixels the narrowest
// bar, with the quiet zone of 15 bar widths each side that print rules ask for.
inline QImage barcodePicture(ZXing::BarcodeFormat format, const QString &contents, int module = 3)
{
    const ZXing::BitMatrix bits =
        ZXing::MultiFormatWriter(format).setMargin(30).encode(contents.toStdString(), 0, 0);
    QImage picture(bits.width(), bits.height(), QImage::Format_Grayscale8);
    for (int y = 0; y < bits.height(); ++y)
        for (int x = 0; x < bits.width(); ++x)
            picture.scanLine(y)[x] = bits.get(x, y) ? 0 : 255;
    // Linear codes come one pixel high.
    const int height = bits.height() == 1 ? 60 * module : bits.height() * module;
    return picture.scaled(bits.width() * module, height, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}
