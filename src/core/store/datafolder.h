#pragma once

#include "store/backup.h"
#include "store/result.h"
#include "store/settings.h"
#include "store/store.h"

#include <QString>
#include <QStringList>

#include <memory>

class Snapshots;

// A collection's folder, which the app and the command line share: the one store
// (persistentContainer), the user defaults (beside the store when the folder was chosen), the
// documents (full-size cover files and PDF files) and the snapshots.
class DataFolder
{
public:
    // Opens the store in dir (created when missing); the settings live beside it when the
    // folder was chosen explicitly. Fails with the store's error.
    static Result<std::unique_ptr<DataFolder>> open(const QString &dir, bool chosen);
    // The folder: --data-dir, else PLATTERBOX_DATA_DIR, else the platform's app-data folder.
    [[nodiscard]] static QString resolve(const QString &option, bool *chosen = nullptr);
    // Reads "--data-dir DIR" (or "--data-dir=DIR") out of the arguments, removing it. A missing
    // or empty DIR sets malformed.
    [[nodiscard]] static QString takeOption(QStringList &arguments, bool *malformed = nullptr);
    ~DataFolder();

    [[nodiscard]] Store &persistentContainer() { return *m_store; }
    [[nodiscard]] const Store &persistentContainer() const { return *m_store; }
    [[nodiscard]] Settings &settings() { return m_settings; }

    [[nodiscard]] bool readOnly() const { return m_store->isReadOnly(); }
    // The message every change of a read-only collection gives; empty when it can be changed.
    [[nodiscard]] QString readOnlyNotice() const { return readOnly() ? m_store->readOnlyError().message : QString(); }

    [[nodiscard]] QString dataDir() const { return m_dir; }
    // Where PDF files and full-size cover files go: <data folder>/Documents.
    [[nodiscard]] QString documentsDir() const;
    [[nodiscard]] static QString tempDir();
    // The live store and its cover files, for backups, restores and snapshots.
    [[nodiscard]] Backup::Paths backupPaths() const;
    // The snapshots kept before imports and restores, in <data folder>/Snapshots.
    [[nodiscard]] Snapshots snapshots() const;

private:
    DataFolder(QString dir, const QString &settingsFile, std::unique_ptr<Store> store);

    QString m_dir;
    Settings m_settings;
    std::unique_ptr<Store> m_store;
};
