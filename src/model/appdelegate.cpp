#include "appdelegate.h"

#include "coverimageprovider.h"
#include "platformservices.h"
#include "snapshots.h"

#include <QDir>
#include <QFileInfo>
#include <QJSEngine>
#include <QPointer>
#include <QStandardPaths>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;

namespace {
QPointer<AppDelegate> s_current;
}

AppDelegate::AppDelegate(QString dataDir, const QString &settingsFile, std::unique_ptr<Store> store,
                         std::unique_ptr<PlatformServices> platform)
    : m_dataDir(std::move(dataDir)), m_settings(settingsFile), m_store(std::move(store)), m_platform(std::move(platform))
{
    s_current = this;
}

AppDelegate::~AppDelegate() = default;

namespace {
// Without TZ the C library looks at /etc/localtime again on every local-time conversion, a
// file-system call per date a list shows. Naming that same file reads it once.
void pinLocalTimeZone()
{
    if (qEnvironmentVariableIsEmpty("TZ") && QFileInfo::exists(u"/etc/localtime"_s))
        qputenv("TZ", ":/etc/localtime");
}

// A report makes and drops a document and its pictures per page. By default the C library
// hands freed memory back to the system at once and asks for it again on the next page, which
// costs as much as the report's own work; keeping a little spare at the top of the heap stops that.
void keepFreedMemoryForReuse()
{
#ifdef __GLIBC__
    mallopt(M_TOP_PAD, 32 * 1024 * 1024);
#endif
}
} // namespace

Result<std::unique_ptr<AppDelegate>> AppDelegate::create(const QString &dataDir, bool dataDirChosen,
                                                         std::unique_ptr<PlatformServices> platform)
{
    pinLocalTimeZone();
    keepFreedMemoryForReuse();
    if (!QDir().mkpath(dataDir))
        return Error{u"Cannot create the data folder "_s + dataDir};
    auto store = Store::open(QDir(dataDir).filePath(Store::kFileName));
    if (!store)
        return store.error();
    const QString settingsFile = dataDirChosen ? QDir(dataDir).filePath(u"Platterbox.conf"_s) : QString();
    return std::unique_ptr<AppDelegate>(new AppDelegate(dataDir, settingsFile, std::move(store).value(), std::move(platform)));
}

QString AppDelegate::resolveDataDir(const QString &option, bool *chosen)
{
    QString dir = option;
    if (dir.isEmpty())
        dir = qEnvironmentVariable("PLATTERBOX_DATA_DIR");
    if (chosen)
        *chosen = !dir.isEmpty();
    if (dir.isEmpty())
        dir = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return QDir(dir).absolutePath();
}

AppDelegate *AppDelegate::current()
{
    return s_current.data();
}

AppDelegate *AppDelegate::create(QQmlEngine *, QJSEngine *)
{
    AppDelegate *app = current();
    if (app)
        QJSEngine::setObjectOwnership(app, QJSEngine::CppOwnership);
    return app;
}

Result<void> AppDelegate::saveContext()
{
    return {};
}

Backup::Paths AppDelegate::backupPaths() const
{
    return {m_store->filePath(), documentsDir(), QDir(m_dataDir).filePath(u"Snapshots"_s)};
}

Snapshots AppDelegate::snapshots() const
{
    return Snapshots(backupPaths());
}

void AppDelegate::collectionReplaced()
{
    CoverImageProvider::forgetAll();
    m_state.setCurrentRecord(Vinyl());
}

QString AppDelegate::documentsDir() const
{
    const QString dir = QDir(m_dataDir).filePath(u"Documents"_s);
    if (!m_store->isReadOnly())
        QDir().mkpath(dir);
    return dir;
}

QString AppDelegate::tempDir()
{
    return QStandardPaths::writableLocation(QStandardPaths::TempLocation);
}
