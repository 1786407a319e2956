#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>

#include <optional>

// The four stored entities. Every attribute is optional: absent (NULL in the store) and
// the empty text are different values and several screens depend on the difference.
// Numbers read 0 when absent (see number()).

enum class Entity { Vinyl, Tracks, VinylCondition, CoverCondition };

enum class CoverSide { Front, Back };

struct Vinyl
{
    qint64 rowId = 0; // the store's identity of this object; 0 until inserted

    std::optional<double> albumDuration;
    std::optional<QString> artist;
    std::optional<QByteArray> backImage;
    std::optional<QString> backImagePath;
    // The number under the bars on the sleeve (EAN or UPC digits), as the collector or a
    // scan gave it.
    std::optional<QString> barcode;
    std::optional<float> cost;
    std::optional<QString> coverCondition;
    std::optional<QString> doubleAlbum;
    std::optional<QByteArray> frontImage;
    std::optional<QString> frontImagePath;
    std::optional<qint16> id;
    // The online music database's identity (a UUID) of the release the record was filled from.
    std::optional<QString> musicBrainzReleaseId;
    std::optional<QString> name;
    std::optional<QString> notes;
    std::optional<QString> producer;
    std::optional<qint16> quantity;
    std::optional<QString> recordLabel;
    std::optional<QString> recordSpeed;
    std::optional<QDateTime> releaseDate;
    std::optional<float> value;
    std::optional<QString> vinylCondition;

    // List fetches never read the cover BLOBs; such an object has imagesLoaded false and
    // an update of it leaves the stored covers untouched.
    bool imagesLoaded = false;
    // Read with FetchRequest::cardAttributesOnly(): the attributes a record card shows are
    // set, the rest read as absent. The store refuses to save such an object.
    bool cardAttributesOnly = false;
};

struct Track
{
    qint64 rowId = 0;

    std::optional<double> duration;
    std::optional<QString> song;
    std::optional<qint16> trackNumber;
    std::optional<qint16> vinylID;
    std::optional<QString> writtenBy;
};

// One grade of the VinylCondition or CoverCondition reference list.
struct Condition
{
    qint64 rowId = 0;
    std::optional<QString> condition;
};

// One dated value of a record, kept in its value history: each change of a record's value
// adds one, so the history shows what the record was worth when.
struct Quote
{
    qint64 rowId = 0;
    qint64 vinylRowId = 0; // the record's row identity, which backups and restores keep
    QDateTime quoted;
    double value = 0;
    QString source; // QuoteSources: where the value came from
};

// A record lent out: to whom, from which day and, once it is back, until which. Days are days of
// the collector's own calendar, kept as they were given whatever the time zone.
struct Loan
{
    qint64 rowId = 0;
    qint64 vinylRowId = 0;
    QString borrower;
    QDate lent;
    QDate due;      // invalid when none was given
    QDate returned; // invalid while the record is out
    QString note;

    [[nodiscard]] bool isOut() const { return !returned.isValid(); }
};

// A loan not yet returned, with what names its record.
struct LoanOut
{
    Loan loan;
    QString name;
    QString artist;
};

namespace QuoteSources {
inline const QString Edit = QStringLiteral("Edit");
inline const QString Valuation = QStringLiteral("Valuation");
inline const QString Import = QStringLiteral("Import");
// The value a record had when its store first kept a value history.
inline const QString Start = QStringLiteral("Start");
} // namespace QuoteSources

// An absent text reads as the empty text.
[[nodiscard]] inline QString text(const std::optional<QString> &value)
{
    return value.value_or(QString());
}

// An absent number reads as 0.
template<typename T>
[[nodiscard]] T number(const std::optional<T> &value)
{
    return value.value_or(T{});
}

[[nodiscard]] QString entityName(Entity entity);
