#pragma once

#include <QByteArray>
#include <QString>

// The same work done with nothing of ours in the way: the bare SQLite C API, or raw file I/O.
// Each returns the median time in ms over `runs` runs.
namespace Floors {

// prepare/step over a query, reading every column once, building nothing.
double select(const QString &storeFile, const QString &sql, int runs);
// One transaction of prepared inserts of `records` records with `tracks` tracks each and,
// when covers is non-empty, these cover bytes on every record; into a fresh store file.
double insert(const QString &folder, int records, int tracks, const QByteArray &cover, int runs);
// Writing and reading back the same bytes.
double writeFile(const QString &path, const QByteArray &bytes, int runs);
double readFile(const QString &path, int runs);

} // namespace Floors
