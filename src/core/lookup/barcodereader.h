#pragma once

#include "store/result.h"

#include <QString>
#include <QStringList>

#include <optional>

class QImage;

// The product codes printed on record sleeves.
struct Barcode
{
    enum class Format { Ean13, Ean8, UpcA, UpcE };

    QString digits;
    Format format = Format::Ean13;

    // "EAN-13", "EAN-8", "UPC-A" or "UPC-E".
    [[nodiscard]] QString formatName() const;
};

// Finds the product code in a photo of a sleeve or in a camera frame.
namespace BarcodeReader {

// Largest picture file read, and the most pixels decoded: a bigger photo is read scaled down,
// so a camera's full-size picture never needs more memory than a few frames.
inline constexpr qint64 kMaxFileBytes = 20 * 1024 * 1024;
inline constexpr qint64 kMaxPixels = 16'000'000;

// What readFile() says; %1 is the file's name.
inline const QString kFileNotFound = QStringLiteral("\"%1\" was not found.");
inline const QString kFileTooLarge = QStringLiteral("\"%1\" is too large to be a picture of a sleeve (at most 20 MB).");
// %2 is the picture reader's reason.
inline const QString kNotAPicture = QStringLiteral("\"%1\" could not be read as a picture (%2).");
inline const QString kNoBarcode =
    QStringLiteral("No barcode was found in \"%1\". Try a sharp photo with the whole code in view.");

// The first EAN-13, EAN-8, UPC-A or UPC-E code in the picture, in any orientation; nothing
// when there is none. Any QImage format; slow on large pictures, so not on the UI thread.
[[nodiscard]] std::optional<Barcode> read(const QImage &image);

// Reads a picture file and the code in it. Fails with a message fit for an alert when the file
// is missing, too large, not a picture, or shows no code.
[[nodiscard]] Result<Barcode> readFile(const QString &path);

} // namespace BarcodeReader

// Rules of the digits themselves, for codes read and codes typed (spaces and hyphens allowed).
namespace BarcodeDigits {

// The forms a catalogue may hold the code under, the code itself first: a UPC-A code also as
// its 13-digit EAN form (a leading 0), a 13-digit code starting with 0 also as its UPC-A form,
// a UPC-E code also as the UPC-A code it stands for (and that one's EAN form). Empty when the
// text is not 8, 12 or 13 digits.
[[nodiscard]] QStringList searchForms(const QString &code);

// Whether the last digit is the check digit of the others: 8 digits as EAN-8 or as UPC-E
// (whose check digit is the expanded UPC-A code's), 12 as UPC-A, 13 as EAN-13.
[[nodiscard]] bool hasValidCheckDigit(const QString &code);

} // namespace BarcodeDigits
