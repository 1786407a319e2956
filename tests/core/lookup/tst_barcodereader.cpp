#include "barcodepicture.h"
#include "lookup/barcodereader.h"
#include "testsupport.h"

#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QImage noise(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const int level = 90 + random.bounded(120);
            picture.setPixel(x, y, qRgb(level, level - 20, level - 40));
        }
    return picture;
}

// A hand-held photo: the sleeve's code small and off-centre on a busy background, a few
// degrees askew and slightly out of focus.
QImage photoOf(const QImage &code)
{
    QImage photo = noise(QSize(1600, 1200));
    QPainter painter(&photo);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(1050, 300);
    painter.rotate(5);
    painter.drawImage(0, 0, code);
    painter.end();
    return photo.scaled(photo.size() * 0.6, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .scaled(photo.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

const QString kEan13 = u"4006381333931"_s;
const QString kUpcA = u"036000291452"_s;

} // namespace

class BarcodeReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void readsEachSleeveFormat_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<QString>("digits");
        QTest::addColumn<int>("pictureFormat");
        QTest::addColumn<int>("turn");
        QTest::addColumn<QString>("formatName");
        using F = ZXing::BarcodeFormat;
        using I = QImage;
        QTest::newRow("EAN-13, one bit a pixel") << int(F::EAN13) << kEan13 << int(I::Format_Mono) << 0 << u"EAN-13"_s;
        QTest::newRow("EAN-8, clear paper") << int(F::EAN8) << u"96385074"_s << int(I::Format_ARGB32) << 0 << u"EAN-8"_s;
        QTest::newRow("UPC-A, RGB") << int(F::UPCA) << kUpcA << int(I::Format_RGB888) << 0 << u"UPC-A"_s;
        QTest::newRow("UPC-E, grey") << int(F::UPCE) << u"01234565"_s << int(I::Format_Grayscale8) << 0 << u"UPC-E"_s;
        QTest::newRow("EAN-13 upright") << int(F::EAN13) << kEan13 << int(I::Format_RGB32) << 90 << u"EAN-13"_s;
        QTest::newRow("UPC-A upside down") << int(F::UPCA) << kUpcA << int(I::Format_RGB32) << 180 << u"UPC-A"_s;
    }
    void readsEachSleeveFormat()
    {
        QFETCH(int, format);
        QFETCH(QString, digits);
        QFETCH(int, pictureFormat);
        QFETCH(int, turn);
        QFETCH(QString, formatName);
        QImage picture = barcodePicture(ZXing::BarcodeFormat(format), digits)
                             .convertToFormat(QImage::Format(pictureFormat))
                             .transformed(QTransform().rotate(turn));
        if (picture.hasAlphaChannel()) {
            // Only the bars are painted; the paper is see-through.
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x)
                    if (qGray(picture.pixel(x, y)) > 128)
                        picture.setPixel(x, y, qRgba(0, 0, 0, 0));
        }
        const auto barcode = BarcodeReader::read(picture);
        QVERIFY(barcode);
        QCOMPARE(barcode->digits, digits);
        QCOMPARE(barcode->formatName(), formatName);
    }

    void picturesWithoutASleeveCodeGiveNone_data()
    {
        QTest::addColumn<QImage>("picture");
        QTest::newRow("no picture") << QImage();
        QTest::newRow("QR code of the digits") << barcodePicture(ZXing::BarcodeFormat::QRCode, kEan13, 6);
    }
    void picturesWithoutASleeveCodeGiveNone()
    {
        QFETCH(QImage, picture);
        QVERIFY(!BarcodeReader::read(picture));
    }

    void readsFilesOrSaysWhyNot_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("error");
        const QString notAPicture = BarcodeReader::kNotAPicture.section(u'(', 0, 0);
        const QByteArray png = encodedPicture(barcodePicture(ZXing::BarcodeFormat::EAN13, kEan13), "PNG");
        // A camera's full-size photo, read scaled down.
        QImage large(5000, 4000, QImage::Format_Grayscale8);
        large.fill(Qt::white);
        QPainter(&large).drawImage(2000, 1500, barcodePicture(ZXing::BarcodeFormat::EAN13, kEan13, 6));
        const QImage photo = photoOf(barcodePicture(ZXing::BarcodeFormat::EAN13, kEan13));
        QTest::newRow("JPEG hand-held photo") << u"sleeve.jpg"_s << encodedPicture(photo, "JPEG") << QString();
        QTest::newRow("20 megapixels") << u"large.png"_s << encodedPicture(large, "PNG") << QString();
        QTest::newRow("missing") << QString() << QByteArray() << BarcodeReader::kFileNotFound.arg(u"missing.png"_s);
        QTest::newRow("text") << u"notes.png"_s << "Side A\n"_ba << notAPicture.arg(u"notes.png"_s);
        QTest::newRow("cut short") << u"short.png"_s << png.left(png.size() / 2) << notAPicture.arg(u"short.png"_s);
        QTest::newRow("no code") << u"cat.png"_s << encodedPicture(noise(QSize(200, 100)), "PNG")
                                 << BarcodeReader::kNoBarcode.arg(u"cat.png"_s);
        QTest::newRow("over 20 MB") << u"huge.jpg"_s << QByteArray(BarcodeReader::kMaxFileBytes + 1, 'x')
                                    << BarcodeReader::kFileTooLarge.arg(u"huge.jpg"_s);
    }
    void readsFilesOrSaysWhyNot()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, error);
        QTemporaryDir dir;
        QString path = dir.filePath(u"missing.png"_s);
        if (!name.isEmpty()) {
            path = dir.filePath(name);
            QVERIFY(writeBytes(path, content));
        }
        const auto barcode = BarcodeReader::readFile(path);
        if (error.isEmpty()) {
            QVERIFY2(barcode.ok(), qPrintable(barcode.errorMessage()));
            QCOMPARE(barcode->digits, kEan13);
        } else {
            QVERIFY(!barcode.ok());
            QVERIFY2(barcode.errorMessage().startsWith(error), qPrintable(barcode.errorMessage()));
        }
    }

    void digitRules_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<bool>("checkDigitValid");
        QTest::addColumn<QStringList>("searchForms");
        const QStringList upcA{kUpcA, u'0' + kUpcA};
        QTest::newRow("UPC-A") << kUpcA << true << upcA;
        QTest::newRow("UPC-A typed with spaces") << u" 0 36000 29145 2"_s << true << upcA;
        QTest::newRow("UPC-A, digits swapped")
            << u"036000219452"_s << false << QStringList{u"036000219452"_s, u"0036000219452"_s};
        QTest::newRow("EAN-13 of a UPC-A") << u"0-036000-291452"_s << true << QStringList{upcA[1], upcA[0]};
        QTest::newRow("EAN-13") << kEan13 << true << QStringList{kEan13};
        QTest::newRow("EAN-13, last digit wrong") << u"4006381333932"_s << false << QStringList{u"4006381333932"_s};
        QTest::newRow("EAN-8") << u"96385074"_s << true << QStringList{u"96385074"_s};
        // Where the zeros left out of a UPC-E code go depends on its sixth digit.
        QTest::newRow("UPC-E ...0")
            << u"01234505"_s << true << QStringList{u"01234505"_s, u"012000003455"_s, u"0012000003455"_s};
        QTest::newRow("UPC-E ...3")
            << u"01234531"_s << true << QStringList{u"01234531"_s, u"012300000451"_s, u"0012300000451"_s};
        QTest::newRow("UPC-E ...4")
            << u"11234540"_s << true << QStringList{u"11234540"_s, u"112340000050"_s, u"0112340000050"_s};
        QTest::newRow("UPC-E ...7")
            << u"01234572"_s << true << QStringList{u"01234572"_s, u"012345000072"_s, u"0012345000072"_s};
        QTest::newRow("UPC-E, last digit wrong") << u"01234573"_s << false << QStringList{u"01234573"_s};
        QTest::newRow("letters") << u"03600029145X"_s << false << QStringList();
        QTest::newRow("14 digits") << u"04006381333931"_s << false << QStringList();
    }
    void digitRules()
    {
        QFETCH(QString, code);
        QFETCH(bool, checkDigitValid);
        QFETCH(QStringList, searchForms);
        QCOMPARE(BarcodeDigits::hasValidCheckDigit(code), checkDigitValid);
        QCOMPARE(BarcodeDigits::searchForms(code), searchForms);
    }
};

QTEST_GUILESS_MAIN(BarcodeReaderTest)
#include "tst_barcodereader.moc"
