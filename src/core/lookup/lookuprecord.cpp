#include "lookup/lookuprecord.h"

#include "collection/recordform.h"
#include "store/fetchrequest.h"
#include "store/recordnumbers.h"
#include "store/store.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> unlessEmpty(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional<QString>(text);
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
    if (!release.summary.catalogNumber.isEmpty())
        v.notes = u"Catalog number: "_s + release.summary.catalogNumber;
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
    for (const LookupTrack &t : release.tracks) {
        if (number == std::numeric_limits<qint16>::max())
            break; // a track number is a 16-bit number; no release comes near it
        Track track;
        track.trackNumber = ++number;
        track.song = t.title;
        if (t.lengthMs)
            track.duration = minutes(*t.lengthMs);
        made.tracks.append(track);
    }
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

} // namespace LookedUp
