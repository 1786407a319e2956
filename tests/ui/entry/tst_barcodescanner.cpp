#include "barcodepicture.h"
#include "entry/barcodescanner.h"

#include <QSignalSpy>
#include <QTest>
#include <QVideoFrame>
#include <QVideoSink>

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

// A new camera frame showing the picture, as a VideoOutput's sink receives it (the sink tells
// only a frame that differs from the last).
QVideoFrame frameOf(const QImage &picture)
{
    const QImage argb = picture.convertToFormat(QImage::Format_ARGB32);
    QVideoFrame frame(QVideoFrameFormat(argb.size(), QVideoFrameFormat::pixelFormatFromImageFormat(argb.format())));
    if (!frame.map(QVideoFrame::WriteOnly))
        return {};
    for (int y = 0; y < argb.height(); ++y)
        std::memcpy(frame.bits(0) + y * frame.bytesPerLine(0), argb.constScanLine(y), argb.width() * 4);
    frame.unmap();
    return frame;
}

} // namespace

class BarcodeScannerTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsEachCodeOnceWhileItStaysInView()
    {
        QVideoSink sink;
        BarcodeScanner scanner;
        scanner.setVideoSink(&sink);
        QSignalSpy found(&scanner, &BarcodeScanner::found);
        const QImage sleeve = barcodePicture(ZXing::BarcodeFormat::EAN13, u"4006381333931"_s);
        const QImage other = barcodePicture(ZXing::BarcodeFormat::UPCA, u"036000291452"_s);

        for (int decodes = 0; decodes < 3; ++decodes) {
            QTRY_VERIFY((sink.setVideoFrame(frameOf(sleeve)), scanner.isDecoding()));
            // Arrives while a frame is decoded: dropped, never decoded later.
            sink.setVideoFrame(frameOf(other));
            QTRY_VERIFY(!scanner.isDecoding());
        }
        QCOMPARE(found.count(), 1);
        QCOMPARE(found.at(0), (QVariantList{u"4006381333931"_s, u"EAN-13"_s}));

        QTRY_VERIFY((sink.setVideoFrame(frameOf(other)), found.count() == 2));
        QCOMPARE(found.at(1), (QVariantList{u"036000291452"_s, u"UPC-A"_s}));

        // Scanning again from the start tells the first sleeve again.
        scanner.reset();
        QTRY_VERIFY((sink.setVideoFrame(frameOf(sleeve)), found.count() == 3));
        QCOMPARE(found.at(2).at(0), u"4006381333931"_s);
    }
};

QTEST_MAIN(BarcodeScannerTest)
#include "tst_barcodescanner.moc"
