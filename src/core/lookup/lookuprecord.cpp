#include "lookup/lookuprecord.h"

#include "collection/recordform.h"
#include "lookup/lookuptexts.h"
#include "store/fetchrequest.h"
#include "store/recordnumbers.h"
#include "store/store.h"
#include "store/translations.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> unlessEmpty(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional<QString>(text);
}

// The notes hold only what the notes field takes: a catalog number with other signs keeps the rest.
QString notesText(const QString &text)
{
    QString kept;
    for (const QChar c : text)
        if (RecordForm::kNotesCharacters.contains(c))
            kept.append(c);
    return kept.trimmed();
}

// The picture kept in the record, as the add screen keeps a photo; none for a missing cover.
Result<std::optional<QByteArray>> keptCover(const QImage &image)
{
    if (image.isNull())
        return std::optional<QByteArray>();
    auto jpeg = RecordForm::thumbnailJpeg(image);
    if (!jpeg)
        return jpeg.error();
    return std::optional<QByteArray>(jpeg.value());
}

} // namespace

namespace LookedUp {

double minutes(qint64 lengthMs)
{
    return std::round(double(lengthMs) / 600.0) / 100.0;
}

Result<LookedUpRecord> record(const LookupRelease &release, const LookupCovers &covers)
{
    LookedUpRecord made;
    Vinyl &v = made.vinyl;
    v.name = unlessEmpty(release.summary.title);
    v.artist = unlessEmpty(release.summary.artist);
    if (release.releaseDate.isKnown())
        v.releaseDate = release.releaseDate.localMidnight();
    v.recordLabel = unlessEmpty(release.summary.label);
    v.producer = unlessEmpty(release.producer);
    v.doubleAlbum = unlessEmpty(release.doubleAlbum);
    v.recordSpeed = unlessEmpty(release.recordSpeed);
    v.barcode = unlessEmpty(release.summary.barcode);
    v.musicBrainzReleaseId = unlessEmpty(release.summary.releaseId);
    if (const QString catalogNumber = notesText(release.summary.catalogNumber); !catalogNumber.isEmpty())
        v.notes = u"Catalog number: "_s + catalogNumber;
    auto front = keptCover(covers.front);
    if (!front)
        return front.error();
    auto back = keptCover(covers.back);
    if (!back)
        return back.error();
    v.frontImage = *front;
    v.backImage = *back;
    v.imagesLoaded = true;

    qint16 number = 0;
    qint64 runLengthMs = 0;
    bool everyLengthKnown = !release.tracks.isEmpty();
    for (const LookupTrack &t : release.tracks) {
        // A length of a day or more is no track's: the answer is odd, so no run length is made.
        const bool known = t.lengthMs && *t.lengthMs > 0 && *t.lengthMs < 24 * 3600 * 1000;
        everyLengthKnown = everyLengthKnown && known;
        runLengthMs += known ? *t.lengthMs : 0;
        if (number == std::numeric_limits<qint16>::max())
            break; // a track number is a 16-bit number; no release comes near it
        Track track;
        track.trackNumber = ++number;
        track.song = t.title;
        if (t.lengthMs)
            track.duration = minutes(*t.lengthMs);
        made.tracks.append(track);
    }
    // The run length is the tracks' when the catalogue knows every one, to a tenth of a minute.
    if (everyLengthKnown)
        v.albumDuration = std::round(double(runLengthMs) / 6000.0) / 10.0;
    return made;
}

Result<std::optional<Vinyl>> inCollection(const Store &store, const LookupRelease &release)
{
    auto sameRelease = store.vinylOfRelease(release.summary.releaseId, QString());
    if (!sameRelease)
        return sameRelease.error();
    if (!sameRelease->isEmpty())
        return std::optional<Vinyl>(sameRelease->first());
    auto sameAlbum = store.fetchVinyl(FetchRequest(Entity::Vinyl)
                                          .where(Predicate::equal(u"name"_s, release.summary.title))
                                          .where(Predicate::equal(u"artist"_s, release.summary.artist))
                                          .limitedTo(1));
    if (!sameAlbum)
        return sameAlbum.error();
    return sameAlbum->isEmpty() ? std::optional<Vinyl>() : std::optional<Vinyl>(sameAlbum->first());
}

Result<void> add(Store &store, LookedUpRecord &record)
{
    return store.transaction([&]() -> Result<void> {
        // The number is chosen inside the transaction, so it is still free when written.
        const auto id = newRecordId(store);
        if (!id)
            return id.error();
        record.vinyl.id = id.value();
        if (auto r = store.insert(record.vinyl); !r)
            return r;
        for (Track &track : record.tracks) {
            track.vinylID = id.value();
            if (auto r = store.insert(track); !r)
                return r;
        }
        return {};
    });
}

Result<Vinyl> addCopy(Store &store, qint64 rowId)
{
    std::optional<Vinyl> stored;
    const auto done = store.transaction([&]() -> Result<void> {
        auto found = store.vinylByRowId(rowId, false);
        if (!found)
            return found.error();
        if (!found->has_value())
            return Error{LookupTexts::kRecordGone};
        Vinyl v = **found;
        const qint16 copies = std::max<qint16>(v.quantity.value_or(0), 1);
        if (copies == std::numeric_limits<qint16>::max())
            return Error{translated(LookupTexts::kTooManyCopies).arg(nameOf(v), QLocale().toString(int(copies)))};
        v.quantity = qint16(copies + 1);
        if (auto r = store.update(v); !r)
            return r;
        stored = v;
        return {};
    });
    if (!done)
        return done.error();
    return *stored;
}

QStringList details(const LookupCandidate &c)
{
    QStringList parts;
    const QString label = QStringList{c.label, c.catalogNumber}.join(u' ').trimmed();
    for (const QString &part : {label, c.date, c.country, c.format})
        if (!part.isEmpty())
            parts.append(part);
    if (c.trackCount > 0)
        parts.append(c.trackCount == 1 ? u"1 track"_s : u"%1 tracks"_s.arg(c.trackCount));
    return parts;
}

QString nameOf(const Vinyl &v)
{
    return u"\"%1\" by %2 (record %3)"_s.arg(text(v.name), text(v.artist)).arg(v.id.value_or(0));
}

} // namespace LookedUp
