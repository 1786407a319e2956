#pragma once

#include <QByteArray>
#include <QString>

// The same work done with nothing of ours in the way: the bare SQLite C API, or raw file I/O.
// Each returns the median time in ms over `runs` runs.
namespace Floors {

enum class Open { Untimed, Timed };

// prepare/step over a query, reading every column once, building nothing. With Open::Timed the
// connection is opened and closed within each timed run.
double select(const QString &storeFile, const QString &sql, int runs, Open open = Open::Untimed);
// One transaction of prepared inserts of the records and tracks of the source store, with
// these cover bytes on every record (as its covers and their exchange encodings) and the first
// quote of each record's value, into a fresh
// store file with the store's own tables, indexes and triggers.
double insert(const QString &folder, const QString &sourceStoreFile, const QByteArray &cover, int runs);
// One transaction of prepared updates rewriting every column of every record and track of the
// store file with the source store's, covers set to these bytes.
double update(const QString &storeFile, const QString &sourceStoreFile, const QByteArray &cover, int runs);
// Writing and reading back the same bytes.
double writeFile(const QString &path, const QByteArray &bytes, int runs);
double readFile(const QString &path, int runs);

} // namespace Floors
