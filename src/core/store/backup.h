#pragma once

#include "store/result.h"

#include <QDateTime>
#include <QString>

#include <functional>

// A backup is one SQLite file: a consistent copy of the store made with SQLite's online backup
// API while the app runs, plus two tables of its own, PlatterboxBackup (what it is) and
// PlatterboxCoverFiles (the full-size cover files the store names, so nothing of the collection
// lives outside it). Restoring replaces the whole collection in one transaction.
//
// Every function opens connections of its own, so it may run on a worker thread while the app's
// store stays open; the caller keeps the app from writing meanwhile.
namespace Backup {

// What a backup holds, read from its PlatterboxBackup table.
struct Info
{
    QDateTime created;
    QString kind;   // "backup", or what a snapshot was taken before: "import", "restore"
    QString source; // the file imported or restored, for a snapshot
    qint64 records = 0;
    qint64 coverFiles = 0;
    int schemaVersion = 0;
    QString documents; // the folder the records' cover files were in
    int format = 0;
    QString checksum; // "sha256:" and the digest of the file, checked by inspect()
};

// Called with the work done and the work in all; returning false cancels.
using Progress = std::function<bool(qint64 done, qint64 total)>;

// Reports a share of a larger piece of work: from..to of the whole, counted in thousandths.
[[nodiscard]] Progress part(const Progress &progress, double from, double to);

struct Paths
{
    QString store;     // the live store file
    QString documents; // where the full-size cover files live
    QString snapshots; // where the snapshots of the store are kept
};

// Writes a backup of the store to target, replacing it only once the backup is complete (a
// cancelled or failed backup leaves no file). With coverFiles false only the store is kept
// (snapshots: their cover files stay in the documents folder while a snapshot names them).
Result<Info> write(const Paths &paths, const QString &target, Info info, bool coverFiles, const Progress &progress = {});

// The collector's backup of the collection with its cover files to target (kind "backup"). A
// target that is the store, one of its journal files or a snapshot is refused: a backup never
// replaces what it copies.
Result<Info> backUp(const Paths &paths, const QString &target, const Progress &progress = {});

// What a backup holds, read from its description; fails for a file that is not a Platterbox
// backup or whose schema this version cannot read.
Result<Info> describe(const QString &path);
// describe(), its content matches the checksum it carries, and SQLite's integrity check passes:
// what is checked before anything is restored.
Result<Info> inspect(const QString &path);

// Replaces everything in the store by the backup's collection and puts its cover files into the
// documents folder (the records' file paths follow them there). All or nothing: on an error or a
// cancel the store is as it was.
Result<void> restore(const QString &backupPath, const Paths &paths, const Progress &progress = {});

// The file names of the full-size cover files a store or backup file names (its records' paths
// inside documentsDir); used to keep the files a snapshot still needs.
Result<QStringList> namedCoverFiles(const QString &databasePath);

} // namespace Backup
