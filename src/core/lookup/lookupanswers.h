#pragma once

#include "store/result.h"

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QImage>
#include <QList>
#include <QString>

#include <optional>

// What the catalogue services answer, as plain values, and the pure functions that read
// those answers. Nothing here touches the network, so every rule is tested on fixed texts.

// A release date as precise as the catalogue knows it: "1998", "1998-03" or "1998-03-14".
struct LookupDate
{
    enum class Precision { None, Year, Month, Day };

    QDate firstDay; // the first day of what is known (1 January for a bare year); null when None
    Precision precision = Precision::None;

    [[nodiscard]] bool isKnown() const { return precision != Precision::None; }
    // Local midnight of the first day, as the record form keeps release dates; invalid when unknown.
    [[nodiscard]] QDateTime localMidnight() const
    {
        return isKnown() ? QDateTime(firstDay, QTime(0, 0)) : QDateTime();
    }

    bool operator==(const LookupDate &) const = default;
};

// One row of a search answer: enough to tell the collector's pressing from the others.
struct LookupCandidate
{
    QString releaseId;     // the MusicBrainz release id, for fetchRelease() and fetchCovers()
    QString title;
    QString artist;        // the artist credit, names joined with their join phrases
    QString label;         // of the first label entry
    QString catalogNumber; // of the first label entry
    QString date;          // as the catalogue wrote it: "1998", "1998-03" or "1998-03-14"
    QString country;
    QString format;        // media count × format: "2×12\" Vinyl", "12\" Vinyl + 7\" Vinyl"
    int trackCount = 0;
    QString barcode;
    int score = 0;         // how well the release matched the search, 0 to 100

    bool operator==(const LookupCandidate &) const = default;
};

struct LookupTrack
{
    QString title;
    QString number;   // as printed on the sleeve: "A1", "B3" (or "1", "2" on other media)
    int position = 0; // running order over the whole release, from 1
    int medium = 0;   // which disc (medium) it is on, from 1
    std::optional<qint64> lengthMs; // absent when the catalogue does not know it

    bool operator==(const LookupTrack &) const = default;
};

// A release as a record form would take it. The texts of doubleAlbum and recordSpeed are the
// form's own picker entries; empty where the release does not say.
struct LookupRelease
{
    LookupCandidate summary; // id, title (the album name), artist, label, catalog number, ...
    LookupDate releaseDate;
    QString producer;    // the release's producers, joined with ", "
    QString doubleAlbum; // "Single Album", "Double Album", "Triple Album" or "Quad Album"
    QString recordSpeed; // "33 RPM" for 12" vinyl, "45 RPM" for 7"; empty for anything else
    QList<LookupTrack> tracks;

    bool operator==(const LookupRelease &) const = default;
};

// The covers of a release; a null image where the archive has none.
struct LookupCovers
{
    QImage front;
    QImage back;
};

namespace LookupAnswers {

// Answers larger than these are not read: they come from outside and could be anything.
constexpr qint64 kMaxJsonBytes = 4 * 1024 * 1024;
constexpr qint64 kMaxImageBytes = 20 * 1024 * 1024;
// Cover pictures are at most this wide and high; the decoder may allocate at most this much.
constexpr int kMaxCoverSide = 5000;
constexpr int kImageAllocationLimitMb = 128;

// The rows of a release search answer (`release/?query=...`), best match first as the
// catalogue sent them. Rows without a release id are skipped; an answer that is no
// search answer at all gives the error to show.
[[nodiscard]] Result<QList<LookupCandidate>> candidatesFromSearch(const QByteArray &json);
// A release look-up answer (`release/<id>?inc=...`). Missing or odd fields are left empty.
[[nodiscard]] Result<LookupRelease> releaseFromLookup(const QByteArray &json);
// "1998", "1998-03", "1998-03-14"; anything else is an unknown date.
[[nodiscard]] LookupDate dateFromText(const QString &text);
// A cover picture from the archive's bytes, decoded within the limits above. `side` names the
// cover in the message (LookupTexts::kFront or kBack).
[[nodiscard]] Result<QImage> coverFromBytes(const QByteArray &bytes, const QString &side);

} // namespace LookupAnswers
