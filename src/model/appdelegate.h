#pragma once

#include "appstate.h"
#include "backup.h"
#include "navigator.h"
#include "result.h"
#include "settings.h"
#include "store.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

class PlatformServices;
class Snapshots;
class QQmlEngine;
class QJSEngine;

// The application object: owns the one store (persistentContainer), the user defaults,
// the shared state, the navigator and the platform services for the whole run. Screens
// take everything they work on from here.
class AppDelegate : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(AppState *state READ state CONSTANT)
    Q_PROPERTY(Navigator *navigator READ navigator CONSTANT)
    // A collection that cannot be written is shown with readOnlyNotice; the screens' changes are off.
    Q_PROPERTY(bool readOnly READ readOnly CONSTANT)
    Q_PROPERTY(QString readOnlyNotice READ readOnlyNotice CONSTANT)

public:
    // Opens the store in dataDir (created when missing); the settings live beside it when a
    // data folder was chosen explicitly. Fails with the store's error.
    static Result<std::unique_ptr<AppDelegate>> create(const QString &dataDir, bool dataDirChosen,
                                                       std::unique_ptr<PlatformServices> platform);
    // The data folder: --data-dir, else PLATTERBOX_DATA_DIR, else the platform's app-data folder.
    [[nodiscard]] static QString resolveDataDir(const QString &option, bool *chosen = nullptr);
    ~AppDelegate() override;

    // The instance QML sees as the AppDelegate singleton: the one made last by create().
    [[nodiscard]] static AppDelegate *current();
    static AppDelegate *create(QQmlEngine *, QJSEngine *);

    [[nodiscard]] Store &persistentContainer() { return *m_store; }
    // Every change is written in its own transaction when it is made, so nothing is ever
    // pending here: this writes nothing and succeeds.
    Result<void> saveContext();

    [[nodiscard]] bool readOnly() const { return m_store->isReadOnly(); }
    // The message every change of a read-only collection gives; empty when it can be changed.
    [[nodiscard]] QString readOnlyNotice() const { return readOnly() ? m_store->readOnlyError().message : QString(); }

    [[nodiscard]] Settings &settings() { return m_settings; }
    [[nodiscard]] AppState *state() { return &m_state; }
    [[nodiscard]] Navigator *navigator() { return &m_navigator; }
    [[nodiscard]] PlatformServices &platform() { return *m_platform; }

    [[nodiscard]] QString dataDir() const { return m_dataDir; }
    // Where PDF files and full-size cover files go: <data folder>/Documents.
    [[nodiscard]] QString documentsDir() const;
    [[nodiscard]] static QString tempDir();
    // The live store and its cover files, for backups, restores and snapshots.
    [[nodiscard]] Backup::Paths backupPaths() const;
    // The snapshots kept before imports and restores, in <data folder>/Snapshots.
    [[nodiscard]] Snapshots snapshots() const;
    // After a restore or an undo replaced the collection: nothing shown from before stays.
    void collectionReplaced();

private:
    AppDelegate(QString dataDir, const QString &settingsFile, std::unique_ptr<Store> store,
                std::unique_ptr<PlatformServices> platform);

    QString m_dataDir;
    Settings m_settings;
    std::unique_ptr<Store> m_store;
    std::unique_ptr<PlatformServices> m_platform;
    AppState m_state;
    Navigator m_navigator;
};
