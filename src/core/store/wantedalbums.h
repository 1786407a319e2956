#pragma once

#include "store/entities.h"
#include "store/result.h"

#include <QList>
#include <QString>

#include <optional>

class Store;

// An album the collector is looking for and does not own yet: a record's attributes (most of
// them empty; its number stays absent, only the collection gives one), the most the collector
// would pay and how keenly it is sought. It is kept apart from the records, so it never counts
// in the collection's lists, figures, reports or exchange file.
struct WantedAlbum
{
    qint64 rowId = 0;
    Vinyl album;
    std::optional<float> maxPrice;
    qint16 priority = 2; // 1, sought first, to 3
};

// The store's Wanted and WantedTracks tables. A wantlist holds what one collector is hunting
// for, a few hundred albums at most, so its reads are plain queries of the whole table.
namespace WantedAlbums {

inline constexpr qint16 kHighestPriority = 1;
inline constexpr qint16 kLowestPriority = 3;

// Adds the album with its tracks (their vinylID is not stored); sets wanted.rowId.
Result<void> insert(Store &store, WantedAlbum &wanted, const QList<Track> &tracks = {});
// Writes the album's attributes; its covers only when wanted.album.imagesLoaded.
Result<void> update(Store &store, const WantedAlbum &wanted);
// Adds tracks to a stored album.
Result<void> addTracks(Store &store, qint64 rowId, const QList<Track> &tracks);
// Removes the album and its tracks.
Result<void> remove(Store &store, qint64 rowId);

// The album with this row identity; nullopt when it is no longer on the wantlist.
Result<std::optional<WantedAlbum>> byRowId(const Store &store, qint64 rowId, bool withImages = true);
// Every wanted album without its covers, sought first first, then by artist and name.
Result<QList<WantedAlbum>> all(const Store &store);
// The album's tracks in track order.
Result<QList<Track>> tracks(const Store &store, qint64 rowId);
Result<qint64> count(const Store &store);

} // namespace WantedAlbums
