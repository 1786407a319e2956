#include "collection/recordform.h"

#include "store/currentrecord.h"
#include "store/formatters.h"
#include "store/recordcaptions.h"
#include "store/settings.h"
#include "store/store.h"
#include "store/translations.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QLocale>
#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace RecordForm {

namespace {

const QString kAsciiDigits = u"0123456789"_s;

// Digits of any script become 0-9, so a quantity typed with another script's digits reads.
QString asciiDigits(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        const int digit = c.digitValue();
        result.append(c.category() == QChar::Number_DecimalDigit && digit >= 0 ? QChar(u'0' + digit) : c);
    }
    return result;
}

// A null QString is stored as an absent value; an emptied field must store the empty text.
QString nonNullText(const QString &text)
{
    return text.isNull() ? u""_s : text;
}

bool onlyFrom(const QString &text, const QString &allowed)
{
    return std::all_of(text.cbegin(), text.cend(), [&](QChar c) { return allowed.contains(c); });
}

// sentence is an English template marked for translation, with %1 for the text typed.
Error notANumber(const char *sentence, const QString &text)
{
    return Error{translated(QString::fromUtf8(sentence)).arg(text)};
}

std::optional<QDateTime> parseReleaseDate(const QString &text)
{
    return Formatters::parseMediumDate(text);
}

// The parsed numbers of a form, so both screens read them in one place.
struct FormNumbers
{
    std::optional<qint16> quantity;
    std::optional<double> recordLength;
    std::optional<float> cost;
    std::optional<float> value;
};

Result<FormNumbers> parseNumbers(const RecordFormFields &fields)
{
    FormNumbers numbers;
    if (!fields.quantity.isEmpty()) {
        const auto quantity = parseQuantity(fields.quantity);
        if (!quantity)
            return quantity.error();
        numbers.quantity = quantity.value();
    }
    if (!fields.recordLength.isEmpty()) {
        const auto length = parseRecordLength(fields.recordLength);
        if (!length)
            return length.error();
        numbers.recordLength = length.value();
    }
    if (!fields.cost.isEmpty()) {
        const auto cost = parseMoney(kCostField, fields.cost);
        if (!cost)
            return cost.error();
        numbers.cost = cost.value();
    }
    if (!fields.value.isEmpty()) {
        const auto value = parseMoney(kValueField, fields.value);
        if (!value)
            return value.error();
        numbers.value = value.value();
    }
    return numbers;
}

Result<QByteArray> encodeJpeg(const QImage &image)
{
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    if (image.isNull() || !image.save(&buffer, "JPEG", 80) || data.isEmpty())
        return Error{QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The picture could not be stored as JPEG."))};
    return data;
}

} // namespace

bool acceptsInsertion(FilteredField field, FormScreen screen, const QString &inserted)
{
    switch (field) {
    case FilteredField::Quantity:
        if (screen == FormScreen::Add)
            return std::all_of(inserted.cbegin(), inserted.cend(),
                               [](QChar c) { return c.category() == QChar::Number_DecimalDigit; });
        return onlyFrom(inserted, kAsciiDigits);
    case FilteredField::Decimal:
        return onlyFrom(inserted, Formatters::numberFieldCharacters());
    case FilteredField::Notes:
        return onlyFrom(inserted, kNotesCharacters);
    case FilteredField::Barcode:
        return onlyFrom(inserted, kAsciiDigits);
    }
    return false;
}

QString insertedText(const QString &before, const QString &after)
{
    qsizetype prefix = 0;
    const qsizetype shorter = std::min(before.size(), after.size());
    while (prefix < shorter && before.at(prefix) == after.at(prefix))
        ++prefix;
    qsizetype suffix = 0;
    while (suffix < shorter - prefix && before.at(before.size() - 1 - suffix) == after.at(after.size() - 1 - suffix))
        ++suffix;
    return after.mid(prefix, after.size() - prefix - suffix);
}

bool hasRequiredFields(const RecordFormFields &fields)
{
    return !fields.name.isEmpty() && !fields.artist.isEmpty() && !fields.recordLabel.isEmpty();
}

QString trimSpacesAndTabs(const QString &text)
{
    const auto blank = [](QChar c) { return c == u' ' || c == u'\t'; };
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && blank(text.at(start)))
        ++start;
    while (end > start && blank(text.at(end - 1)))
        --end;
    return nonNullText(text.mid(start, end - start));
}

Result<qint16> parseQuantity(const QString &text)
{
    bool ok = false;
    const qint16 quantity = QLocale::c().toShort(asciiDigits(text), &ok);
    if (!ok)
        return notANumber(QT_TRANSLATE_NOOP("Platterbox", "Quantity \"%1\" is not a whole number from 0 to 32767."), text);
    return quantity;
}

Result<double> parseRecordLength(const QString &text)
{
    const auto length = Formatters::parseDecimal(text);
    if (!length)
        return notANumber(QT_TRANSLATE_NOOP("Platterbox", "Run Length \"%1\" is not a number of minutes."), text);
    return *length;
}

Result<float> parseMoney(const QString &fieldName, const QString &text)
{
    const auto amount = Formatters::parseAmount(text);
    if (!amount || !std::isfinite(float(*amount)))
        return Error{translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 \"%2\" is not an amount.")))
                         .arg(translated(fieldName), text)};
    return float(*amount);
}

QString quantityText(qint16 quantity)
{
    return QString::number(quantity);
}

QString recordLengthText(double minutes)
{
    return Formatters::shortestInLocale(minutes);
}

QString amountText(float amount)
{
    return Formatters::twoDecimals(double(amount));
}

Result<Vinyl> newVinylFromForm(const RecordFormFields &fields)
{
    const auto numbers = parseNumbers(fields);
    if (!numbers)
        return numbers.error();

    Vinyl vinyl;
    const auto setTrimmed = [](std::optional<QString> &attribute, const QString &text) {
        if (!text.isEmpty())
            attribute = trimSpacesAndTabs(text);
    };
    const auto setAsIs = [](std::optional<QString> &attribute, const QString &text) {
        if (!text.isEmpty())
            attribute = text;
    };
    setTrimmed(vinyl.name, fields.name);
    setTrimmed(vinyl.artist, fields.artist);
    if (!fields.releaseDate.isEmpty())
        vinyl.releaseDate = parseReleaseDate(fields.releaseDate);
    setTrimmed(vinyl.recordLabel, fields.recordLabel);
    vinyl.quantity = numbers->quantity;
    // The record length is the one number stored even when its field is empty.
    vinyl.albumDuration = numbers->recordLength.value_or(0.0);
    setTrimmed(vinyl.producer, fields.producer);
    setAsIs(vinyl.barcode, fields.barcode);
    setTrimmed(vinyl.vinylCondition, fields.vinylCondition);
    setTrimmed(vinyl.coverCondition, fields.coverCondition);
    setAsIs(vinyl.recordSpeed, fields.recordSpeed);
    setAsIs(vinyl.doubleAlbum, fields.doubleAlbum);
    vinyl.cost = numbers->cost;
    vinyl.value = numbers->value;
    setAsIs(vinyl.notes, fields.notes);
    return vinyl;
}

Result<void> applyFormToVinyl(const RecordFormFields &fields, Vinyl &vinyl)
{
    const auto numbers = parseNumbers(fields);
    if (!numbers)
        return numbers.error();

    // An emptied field clears its attribute; the required texts are never empty here.
    vinyl.name = trimSpacesAndTabs(fields.name);
    vinyl.artist = trimSpacesAndTabs(fields.artist);
    vinyl.releaseDate = fields.releaseDate.isEmpty() ? std::nullopt : parseReleaseDate(fields.releaseDate);
    vinyl.recordLabel = trimSpacesAndTabs(fields.recordLabel);
    // A number whose text is still the one the form showed keeps its stored value, so
    // that the shown rounding (two decimals for amounts) never changes a record.
    if (fields.quantity != quantityText(number(vinyl.quantity)))
        vinyl.quantity = numbers->quantity.value_or(0);
    if (fields.recordLength != recordLengthText(number(vinyl.albumDuration)))
        vinyl.albumDuration = numbers->recordLength.value_or(0.0);
    vinyl.producer = trimSpacesAndTabs(fields.producer);
    // An untouched barcode field keeps an absent barcode absent.
    if (fields.barcode != text(vinyl.barcode))
        vinyl.barcode = nonNullText(fields.barcode);
    vinyl.vinylCondition = trimSpacesAndTabs(fields.vinylCondition);
    vinyl.coverCondition = trimSpacesAndTabs(fields.coverCondition);
    vinyl.recordSpeed = nonNullText(fields.recordSpeed);
    vinyl.doubleAlbum = nonNullText(fields.doubleAlbum);
    if (fields.cost != amountText(number(vinyl.cost)))
        vinyl.cost = numbers->cost.value_or(0.0f);
    if (fields.value != amountText(number(vinyl.value)))
        vinyl.value = numbers->value.value_or(0.0f);
    vinyl.notes = trimSpacesAndTabs(fields.notes);
    return {};
}

RecordFormFields fieldsFromRecord(const CurrentRecord &record)
{
    RecordFormFields fields;
    fields.name = record.name;
    fields.artist = record.artist;
    fields.releaseDate = record.releaseDate ? Formatters::mediumDate(*record.releaseDate) : QString();
    fields.recordLabel = record.recordLabel;
    fields.quantity = quantityText(record.quantity);
    fields.recordLength = recordLengthText(record.albumDuration);
    fields.producer = record.producer;
    fields.barcode = record.barcode;
    fields.vinylCondition = record.vinylCondition;
    fields.coverCondition = record.coverCondition;
    fields.recordSpeed = record.recordSpeed;
    fields.doubleAlbum = record.doubleAlbum;
    fields.cost = amountText(record.cost);
    fields.value = amountText(record.value);
    fields.notes = record.notes;
    return fields;
}

Result<QString> shareText(const RecordFormFields &fields)
{
    const RecordCaptions captions = RecordCaptions::translatedNow();
    QString text;
    const auto line = [&text, &captions](const QString &label, const QString &fieldText) {
        text += label + (fieldText.isEmpty() ? captions.notAvailable : fieldText) + u'\n';
    };
    const auto currencyText = [](const QString &fieldName, const QString &fieldText) -> Result<QString> {
        const auto amount = parseMoney(fieldName, fieldText);
        if (!amount)
            return amount.error();
        return Formatters::currency(double(amount.value()));
    };

    line(captions.albumName, fields.name);
    // The artist line carries this label in every shared text; people who receive the
    // lines know it, so it stays.
    line(captions.yearIssued, fields.artist);
    line(captions.releaseDate, fields.releaseDate);
    line(captions.recordLabel, fields.recordLabel);
    line(captions.quantity, fields.quantity);
    line(captions.runLength, fields.recordLength);
    line(captions.producer, fields.producer);
    line(captions.vinylCondition, fields.vinylCondition);
    line(captions.coverCondition, fields.coverCondition);
    line(captions.recordSpeed, fields.recordSpeed);
    line(captions.singleDouble, fields.doubleAlbum);
    if (fields.cost.isEmpty()) {
        line(captions.cost, QString());
    } else {
        const auto cost = currencyText(kCostField, fields.cost);
        if (!cost)
            return cost.error();
        line(captions.cost, cost.value());
    }
    if (fields.value.isEmpty()) {
        line(captions.estimatedValue, QString());
    } else {
        const auto value = currencyText(kValueField, fields.value);
        if (!value)
            return value.error();
        line(captions.value, value.value());
    }
    line(captions.notes, fields.notes);
    return text;
}

Result<QStringList> conditionEntries(const Store &store)
{
    const auto grades = store.fetchConditions(FetchRequest(Entity::VinylCondition).sortedBy(u"condition"_s));
    if (!grades)
        return grades.error();
    QStringList entries;
    for (const Condition &grade : grades.value())
        entries.append(text(grade.condition));
    return entries;
}

QString datePickerStyle(const Settings &settings)
{
    QString style;
    if (settings.contains(SettingsKeys::UseDateWheel) && settings.boolValue(SettingsKeys::UseDateWheel))
        style = u"wheel"_s;
    if (settings.contains(SettingsKeys::UseDateCompact) && settings.boolValue(SettingsKeys::UseDateCompact))
        style = u"compact"_s;
    if (settings.contains(SettingsKeys::UseDateInline) && settings.boolValue(SettingsKeys::UseDateInline))
        style = u"inline"_s;
    return style;
}

Result<QByteArray> thumbnailJpeg(const QImage &image)
{
    if (image.isNull())
        return Error{QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "There is no picture to store."))};
    QImage square(100, 100, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    {
        QPainter painter(&square);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRect(0, 0, 100, 100), image);
    }
    return encodeJpeg(square);
}

Result<QByteArray> fullSizeJpeg(const QImage &image)
{
    return encodeJpeg(image);
}

QImage missingCoverPicture()
{
    return QImage(u":/resources/black-vinyl-record.png"_s);
}

Result<QImage> readPicture(const QString &filePath)
{
    QImageReader reader(filePath);
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    if (image.isNull())
        return Error{translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "\"%1\" could not be read as a picture (%2)."))).arg(QFileInfo(filePath).fileName(),
                                                                        reader.errorString())};
    return image;
}

} // namespace RecordForm
