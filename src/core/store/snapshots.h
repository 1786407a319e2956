#pragma once

#include "store/backup.h"

#include <optional>

// The store as it was before each import and restore, kept in the data folder ("Snapshots/",
// the newest three), so that the last one can be undone. A snapshot holds the store only: the
// full-size cover files it names stay in the documents folder until no snapshot and no record
// names them any more.
class Snapshots
{
public:
    static constexpr int kKept = 3;
    static inline const QString kKindImport = QStringLiteral("import");
    static inline const QString kKindRestore = QStringLiteral("restore");

    struct Snapshot
    {
        QString path;
        Backup::Info info;
    };

    explicit Snapshots(Backup::Paths paths);

    [[nodiscard]] QString folder() const;
    // Keeps the store as it is now, right before an import or restore of the file `source`
    // changes it. Once the store changed, keep() makes it the newest of the kept snapshots;
    // when the change failed or was cancelled before changing anything, drop() lets it go, so a
    // refused import never pushes out a snapshot worth undoing.
    Result<Snapshot> take(const QString &kind, const QString &source, const Backup::Progress &progress = {});
    void keep();
    void drop(const Snapshot &snapshot);
    // Replaces the collection by the backup's, keeping the store before it as a snapshot.
    Result<void> restore(const QString &backupPath, const Backup::Progress &progress = {});
    // The newest snapshot, if any.
    [[nodiscard]] std::optional<Snapshot> latest() const;
    // Puts the store back as the newest snapshot has it and lets that snapshot go, so a second
    // undo goes back one import further.
    Result<Backup::Info> undoLatest(const Backup::Progress &progress = {});

private:
    // The snapshot files, oldest first.
    [[nodiscard]] QStringList files() const;
    void removeUnnamedCoverFiles();

    Backup::Paths m_paths;
};
