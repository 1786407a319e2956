#pragma once

#include "store/result.h"

#include <QByteArray>
#include <QDate>

class Store;

// Synthetic albums for tests, the screen tour, the benchmark and `platterbox demo`: made-up
// names, artists, labels and producers, release dates over several decades, tracks, and
// drawn cover pictures (no real album art), and a value history of one to three quotes each
// between 2020 and 2024. The same seed gives the same collection.
struct SampleOptions
{
    int records = 100;
    int tracksPerRecord = 12;
    bool covers = true;
    quint32 seed = 1975;
    // Lends a few of the records out, as of this day (one overdue); none when invalid.
    QDate loansFrom;
    // Puts a few albums the collection lacks on the wantlist.
    bool wantlist = false;
};

// Adds the records (numbered on from the highest id) in one transaction.
Result<void> addSampleCollection(Store &store, const SampleOptions &options);

// A drawn 100 x 100 JPEG cover, the size the record form stores.
[[nodiscard]] QByteArray sampleCoverJpeg(int variant, bool front);
