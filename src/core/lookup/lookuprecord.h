#pragma once

#include "lookup/lookupanswers.h"
#include "store/entities.h"
#include "store/result.h"

#include <QList>
#include <QString>

#include <optional>

class Store;

// A release found in the catalogue, as a new record of the collection: what choosing it on the
// add screen fills in, and what adding it from the command line stores.
struct LookedUpRecord
{
    Vinyl vinyl;        // without a record number (id) until it is added
    QList<Track> tracks; // in running order, numbered from 1; vinylID set when added
};

namespace LookedUp {

// The record a release makes: album name, artist, release date, label, producer, album type,
// speed, the barcode and release id, the catalog number in the notes, the tracks with their
// durations in minutes (and their sum as the run length when every track has one), and the covers as the record keeps them. Conditions, quantity, cost and
// value stay as a new record has them (absent).
[[nodiscard]] Result<LookedUpRecord> record(const LookupRelease &release, const LookupCovers &covers = {});

// A track's duration in minutes, as the track form keeps it: 3:30 is 3.5 (two decimals).
[[nodiscard]] double minutes(qint64 lengthMs);

// The stored record that already holds this release: the one with its release id, else one
// with the same album name and artist. None when the collection does not have it.
[[nodiscard]] Result<std::optional<Vinyl>> inCollection(const Store &store, const LookupRelease &release);

// Adds the record with a fresh record number and its tracks, in one transaction.
Result<void> add(Store &store, LookedUpRecord &record);

// One more copy of a stored record: its quantity raised by one, where a record without a
// quantity counts as one copy. At the largest quantity a record holds it fails, the store
// unchanged. Returns the record as stored.
Result<Vinyl> addCopy(Store &store, qint64 rowId);

// What tells a candidate from the others, the empty ones left out: label and catalog number,
// date, country, format and track count ("Harbour Light Records HLR-041", "2019-04-12", "SE",
// "12\" Vinyl", "6 tracks").
[[nodiscard]] QStringList details(const LookupCandidate &candidate);

// A stored record named for a message: "\"Salt Roads\" by Ana Ström & The Quiet (record 1)".
[[nodiscard]] QString nameOf(const Vinyl &vinyl);

} // namespace LookedUp
