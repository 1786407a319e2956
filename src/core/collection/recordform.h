#pragma once

#include "store/entities.h"
#include "store/result.h"

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>

struct CurrentRecord;
class Settings;
class Store;

// The rules of the record form shared by the add and the edit screen: what each field
// accepts, which fields are required, how the texts become attribute values and how a
// stored record is shown again.

// The two screens differ in a few rules; this says which one applies.
enum class FormScreen { Add, Edit };

// The form's texts, in screen order. Every field is text while it is edited; only saving
// turns the texts into attribute values.
struct RecordFormFields
{
    QString name;
    QString artist;
    QString releaseDate;
    QString recordLabel;
    QString quantity;
    QString recordLength;
    QString producer;
    QString barcode;
    QString vinylCondition;
    QString coverCondition;
    QString recordSpeed;
    QString doubleAlbum;
    QString cost;
    QString value;
    QString notes;

    bool operator==(const RecordFormFields &) const = default;
};

namespace RecordForm {

// Texts the user sees.
inline const QString kNotSavedTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Record not Saved!"));
inline const QString kRequiredFieldsMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Required Fields in RED not Entered"));
inline const QString kCameraTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Camera"));
inline const QString kNoCameraMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "There is no camera available"));
inline const QString kClipboardTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Clipboard"));
inline const QString kNoClipboardImageMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "There is no image in the Clipboard"));
inline const QString kPictureTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Picture not Loaded"));
inline const QString kCantSendTextTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Can't Send Text Message"));
inline const QString kCantSendTextMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Your device is not able to send text messages."));

// Picker entries that do not come from the store.
inline const QStringList kRecordSpeeds = {QStringLiteral("33 RPM"), QStringLiteral("45 RPM"), QStringLiteral("78 RPM")};
inline const QStringList kSingleDouble = {QStringLiteral("Single Album"), QStringLiteral("Double Album"),
                                          QStringLiteral("Triple Album"), QStringLiteral("Quad Album")};

// Everything the notes may hold: no line breaks, quotes, backslashes, "^" or "|", which the
// exchange file cannot carry, and no accented letters.
inline const QString kNotesCharacters = QStringLiteral(
    ".0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ,;:-=?!@#$%&*()[]{}/<>_+~`' ");

// The fields with a character filter.
enum class FilteredField { Quantity, Decimal, Notes, Barcode };

// Whether typing or pasting `inserted` into the field is accepted: every character must
// belong to the field's set. Deleting (nothing inserted) is always accepted. The add screen
// takes any decimal digit of any script in the quantity; the edit screen only 0-9. The
// decimal fields take the current locale's separators as well. The barcode takes 0-9 on both
// screens: the look-up compares it with the digits under the bars.
[[nodiscard]] bool acceptsInsertion(FilteredField field, FormScreen screen, const QString &inserted);
// The text an edit inserted: what the new text holds between the part it shares with the old
// text at the start and the part it shares at the end.
[[nodiscard]] QString insertedText(const QString &before, const QString &after);

// Name, artist and record label must not be empty; checked in that order.
[[nodiscard]] bool hasRequiredFields(const RecordFormFields &fields);

// Leading and trailing spaces and tabs removed; line breaks stay.
[[nodiscard]] QString trimSpacesAndTabs(const QString &text);

// Conversions of single field texts, read as the current locale writes numbers (see
// Formatters::parseDecimal); the error names the field.
[[nodiscard]] Result<qint16> parseQuantity(const QString &text);
[[nodiscard]] Result<double> parseRecordLength(const QString &text);
// Currency signs are dropped first: "$1,250.5" reads 1250.5 in en_US, "1.250,5 €" in de_DE.
// fieldName is kCostField or kValueField, translated in the error.
[[nodiscard]] Result<float> parseMoney(const QString &fieldName, const QString &text);
inline const QString kCostField = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Cost"));
inline const QString kValueField = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Value"));

// The texts the form shows for the numbers: "3", "45.5" ("45,5" in de_DE), "1,234.50".
[[nodiscard]] QString quantityText(qint16 quantity);
[[nodiscard]] QString recordLengthText(double minutes);
[[nodiscard]] QString amountText(float amount);

// A new record from the add screen's form. Only fields with text set their attribute (an
// empty record length stores 0); id and covers are the caller's. Fails, naming the field,
// when quantity, record length, cost or value does not read as a number that fits.
[[nodiscard]] Result<Vinyl> newVinylFromForm(const RecordFormFields &fields);
// The edit screen's form written over a stored record: empty texts clear the attribute
// (empty text, 0 or no date); a number field or the barcode still showing the record's own
// text keeps the stored value, and the attributes the form does not show (the release id)
// stay as they are. Fails as newVinylFromForm does, leaving `vinyl` unchanged.
[[nodiscard]] Result<void> applyFormToVinyl(const RecordFormFields &fields, Vinyl &vinyl);

// The form texts showing the current record: medium release date, plain quantity,
// shortest record length with a fraction digit, cost and value with two decimals.
[[nodiscard]] RecordFormFields fieldsFromRecord(const CurrentRecord &record);

// The lines shared as text, one per field, each ending in a line break. Fails, naming the
// field, when the cost or value text does not read as a number.
[[nodiscard]] Result<QString> shareText(const RecordFormFields &fields);

// The condition picker entries: every VinylCondition grade in code-point order. Both the
// record-condition and the cover-condition picker show this list.
[[nodiscard]] Result<QStringList> conditionEntries(const Store &store);

// The look of the release-date picker from the settings: "wheel", "compact" or "inline",
// a later switch overriding an earlier one; "" when none is on.
[[nodiscard]] QString datePickerStyle(const Settings &settings);

// The cover kept in the record: the picture squeezed into 100 x 100 (the aspect ratio is
// not kept), as JPEG of quality 80.
[[nodiscard]] Result<QByteArray> thumbnailJpeg(const QImage &image);
// The full-size picture as JPEG of quality 80.
[[nodiscard]] Result<QByteArray> fullSizeJpeg(const QImage &image);
// Stands in for a cover the record does not have when it is shared: the picture the lists
// show for a record without one.
[[nodiscard]] QImage missingCoverPicture();
// Reads a picture file; the error says why it cannot be used.
[[nodiscard]] Result<QImage> readPicture(const QString &filePath);

} // namespace RecordForm
