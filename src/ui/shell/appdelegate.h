#pragma once

#include "shell/appstate.h"
#include "shell/navigator.h"
#include "store/backup.h"
#include "store/datafolder.h"
#include "store/result.h"
#include "store/settings.h"
#include "store/store.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

class PlatformServices;
class Snapshots;
class QQmlEngine;
class QJSEngine;

// The application object: the collection's data folder (the one store, the user defaults,
// documents and snapshots) with what the screens add to it: the shared state, the navigator
// and the platform services for the whole run. Screens take everything they work on from here.
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
    // Opens the data folder dataDir (see DataFolder::open). Fails with the store's error.
    static Result<std::unique_ptr<AppDelegate>> create(const QString &dataDir, bool dataDirChosen,
                                                       std::unique_ptr<PlatformServices> platform);
    ~AppDelegate() override;

    // The instance QML sees as the AppDelegate singleton: the one made last by create().
    [[nodiscard]] static AppDelegate *current();
    static AppDelegate *create(QQmlEngine *, QJSEngine *);

    [[nodiscard]] DataFolder &dataFolder() { return *m_folder; }
    [[nodiscard]] Store &persistentContainer() { return m_folder->persistentContainer(); }
    // Every change is written in its own transaction when it is made, so nothing is ever
    // pending here: this writes nothing and succeeds.
    Result<void> saveContext();

    [[nodiscard]] bool readOnly() const { return m_folder->readOnly(); }
    // The message every change of a read-only collection gives; empty when it can be changed.
    [[nodiscard]] QString readOnlyNotice() const { return m_folder->readOnlyNotice(); }

    [[nodiscard]] Settings &settings() { return m_folder->settings(); }
    [[nodiscard]] AppState *state() { return &m_state; }
    [[nodiscard]] Navigator *navigator() { return &m_navigator; }
    [[nodiscard]] PlatformServices &platform() { return *m_platform; }

    [[nodiscard]] QString dataDir() const { return m_folder->dataDir(); }
    [[nodiscard]] QString documentsDir() const { return m_folder->documentsDir(); }
    [[nodiscard]] static QString tempDir() { return DataFolder::tempDir(); }
    [[nodiscard]] Backup::Paths backupPaths() const { return m_folder->backupPaths(); }
    [[nodiscard]] Snapshots snapshots() const;
    // After a restore or an undo replaced the collection: nothing shown from before stays.
    void collectionReplaced();

private:
    AppDelegate(std::unique_ptr<DataFolder> folder, std::unique_ptr<PlatformServices> platform);

    std::unique_ptr<DataFolder> m_folder;
    std::unique_ptr<PlatformServices> m_platform;
    AppState m_state;
    Navigator m_navigator;
};
