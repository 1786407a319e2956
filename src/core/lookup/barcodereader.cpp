#include "lookup/barcodereader.h"
#include "store/translations.h"

#include <QFileInfo>
#include <QImage>
#include <QImageReader>

// ZXing 1.4 gives text as UTF-8 only when asked; the wide-string default is on its way out.
#define ZX_USE_UTF8
#include <ZXing/ReadBarcode.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr ZXing::BarcodeFormats kSleeveFormats =
    ZXing::BarcodeFormat::EAN13 | ZXing::BarcodeFormat::EAN8 | ZXing::BarcodeFormat::UPCA | ZXing::BarcodeFormat::UPCE;

std::optional<Barcode::Format> formatOf(ZXing::BarcodeFormat format)
{
    switch (format) {
    case ZXing::BarcodeFormat::EAN13: return Barcode::Format::Ean13;
    case ZXing::BarcodeFormat::EAN8: return Barcode::Format::Ean8;
    case ZXing::BarcodeFormat::UPCA: return Barcode::Format::UpcA;
    case ZXing::BarcodeFormat::UPCE: return Barcode::Format::UpcE;
    default: return std::nullopt;
    }
}

// One byte of brightness a pixel. Transparent parts count as white paper: a picture with an
// alpha channel (a code cut out of a scan) would otherwise read as black bars on black.
QImage luminance(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return image.convertToFormat(QImage::Format_Grayscale8);
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    QImage gray(argb.size(), QImage::Format_Grayscale8);
    for (int y = 0; y < argb.height(); ++y) {
        const auto *in = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        uchar *out = gray.scanLine(y);
        for (int x = 0; x < argb.width(); ++x) {
            const int alpha = qAlpha(in[x]);
            out[x] = uchar((qGray(in[x]) * alpha + 255 * (255 - alpha)) / 255);
        }
    }
    return gray;
}

// The text with spaces and hyphens left out, or empty when anything else but digits remains.
QString digitsOf(const QString &code)
{
    QString digits;
    digits.reserve(code.size());
    for (const QChar c : code) {
        if (c.isSpace() || c == u'-')
            continue;
        if (c < u'0' || c > u'9')
            return {};
        digits += c;
    }
    return digits;
}

// The GS1 check digit of all digits but the last: weights 3 and 1 from the right.
QChar checkDigitOf(QStringView body)
{
    int sum = 0;
    for (qsizetype i = 0; i < body.size(); ++i) {
        const int digit = body[body.size() - 1 - i].unicode() - u'0';
        sum += i % 2 == 0 ? 3 * digit : digit;
    }
    return QChar(u'0' + (10 - sum % 10) % 10);
}

bool checkDigitMatches(const QString &digits)
{
    return !digits.isEmpty() && checkDigitOf(QStringView(digits).chopped(1)) == digits.back();
}

// The 12-digit UPC-A code an 8-digit UPC-E code stands for (number system 0 or 1), or an
// empty string.
QString expandUpcE(const QString &digits)
{
    if (digits.size() != 8 || (digits[0] != u'0' && digits[0] != u'1'))
        return {};
    const QStringView middle = QStringView(digits).mid(1, 6);
    const QChar last = middle[5];
    QString body;
    // The last of the six digits says where the zeros left out of the manufacturer and
    // product numbers go.
    if (last <= u'2')
        body = middle.left(2) + last + u"0000"_s + middle.mid(2, 3);
    else if (last == u'3')
        body = middle.left(3) + u"00000"_s + middle.mid(3, 2);
    else if (last == u'4')
        body = middle.left(4) + u"00000"_s + middle.mid(4, 1);
    else
        body = middle.left(5) + u"0000"_s + last;
    return digits[0] + body + digits[7];
}

} // namespace

QString Barcode::formatName() const
{
    switch (format) {
    case Format::Ean13: return u"EAN-13"_s;
    case Format::Ean8: return u"EAN-8"_s;
    case Format::UpcA: return u"UPC-A"_s;
    case Format::UpcE: return u"UPC-E"_s;
    }
    return {};
}

namespace BarcodeReader {

std::optional<Barcode> read(const QImage &image)
{
    if (image.isNull())
        return std::nullopt;
    const QImage gray = luminance(image);
    const ZXing::ImageView view(gray.constBits(), gray.width(), gray.height(), ZXing::ImageFormat::Lum,
                                int(gray.bytesPerLine()));
    const auto hints = ZXing::DecodeHints()
                           .setFormats(kSleeveFormats)
                           .setTryHarder(true)
                           .setTryRotate(true)
                           .setTryDownscale(true)
                           .setMaxNumberOfSymbols(1);
    for (const ZXing::Result &result : ZXing::ReadBarcodes(view, hints)) {
        const auto format = formatOf(result.format());
        if (!result.isValid() || !format)
            continue;
        return Barcode{QString::fromStdString(result.text()), *format};
    }
    return std::nullopt;
}

Result<Barcode> readFile(const QString &path)
{
    const QFileInfo info(path);
    const QString name = info.fileName();
    if (!info.exists())
        return Error{kFileNotFound.arg(name)};
    if (info.isDir())
        return Error{translated(kNotAPicture).arg(name, u"it is a folder"_s)};
    if (info.size() > kMaxFileBytes)
        return Error{kFileTooLarge.arg(name)};

    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (!reader.canRead() || size.isEmpty())
        return Error{translated(kNotAPicture).arg(name, reader.errorString())};
    // Checked from the header, before any pixel is decoded: a small file can still claim
    // a huge picture.
    const qint64 pixels = qint64(size.width()) * size.height();
    if (pixels > kMaxPixels) {
        const double scale = std::sqrt(double(kMaxPixels) / double(pixels));
        reader.setScaledSize(QSize(qMax(1, int(size.width() * scale)), qMax(1, int(size.height() * scale))));
    }
    const QImage image = reader.read();
    if (image.isNull())
        return Error{translated(kNotAPicture).arg(name, reader.errorString())};
    if (auto barcode = read(image))
        return *std::move(barcode);
    return Error{translated(kNoBarcode).arg(name)};
}

} // namespace BarcodeReader

namespace BarcodeDigits {

bool hasValidCheckDigit(const QString &code)
{
    const QString digits = digitsOf(code);
    switch (digits.size()) {
    case 8: return checkDigitMatches(digits) || checkDigitMatches(expandUpcE(digits));
    case 12:
    case 13: return checkDigitMatches(digits);
    default: return false;
    }
}

QStringList searchForms(const QString &code)
{
    const QString digits = digitsOf(code);
    QStringList forms;
    const auto addUpcA = [&forms](const QString &upcA) { forms << upcA << u'0' + upcA; };
    switch (digits.size()) {
    case 8:
        forms << digits;
        if (const QString upcA = expandUpcE(digits); checkDigitMatches(upcA))
            addUpcA(upcA);
        break;
    case 12:
        addUpcA(digits);
        break;
    case 13:
        forms << digits;
        if (digits.startsWith(u'0'))
            forms << digits.mid(1);
        break;
    }
    return forms;
}

} // namespace BarcodeDigits
