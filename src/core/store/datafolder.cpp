#include "store/datafolder.h"

#include "store/snapshots.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {
// Without TZ the C library looks at /etc/localtime again on every local-time conversion, a
// file-system call per date a list shows. Naming that same file reads it once.
void pinLocalTimeZone()
{
    if (qEnvironmentVariableIsEmpty("TZ") && QFileInfo::exists(u"/etc/localtime"_s))
        qputenv("TZ", ":/etc/localtime");
}

} // namespace

DataFolder::DataFolder(QString dir, const QString &settingsFile, std::unique_ptr<Store> store)
    : m_dir(std::move(dir)), m_settings(settingsFile), m_store(std::move(store))
{
}

DataFolder::~DataFolder() = default;

Result<std::unique_ptr<DataFolder>> DataFolder::open(const QString &dir, bool chosen)
{
    pinLocalTimeZone();
    if (!QDir().mkpath(dir))
        return Error{u"Cannot create the data folder "_s + dir};
    auto store = Store::open(QDir(dir).filePath(Store::kFileName));
    if (!store)
        return store.error();
    const QString settingsFile = chosen ? QDir(dir).filePath(u"Platterbox.conf"_s) : QString();
    return std::unique_ptr<DataFolder>(new DataFolder(dir, settingsFile, std::move(store).value()));
}

QString DataFolder::resolve(const QString &option, bool *chosen)
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

QString DataFolder::takeOption(QStringList &arguments, bool *malformed)
{
    bool found = false;
    bool bad = false;
    QString dir;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &a = arguments[i];
        if (a == u"--data-dir"_s) {
            found = true;
            bad = i + 1 >= arguments.size();
            dir = bad ? QString() : arguments[i + 1];
            arguments.remove(i, bad ? 1 : 2);
            break;
        }
        if (a.startsWith(u"--data-dir="_s)) {
            found = true;
            dir = a.mid(11);
            arguments.removeAt(i);
            break;
        }
    }
    // An empty folder name must not quietly mean the collector's own collection.
    if (found && dir.trimmed().isEmpty())
        bad = true;
    if (malformed)
        *malformed = bad;
    return bad ? QString() : dir;
}

QString DataFolder::documentsDir() const
{
    const QString dir = QDir(m_dir).filePath(u"Documents"_s);
    if (!m_store->isReadOnly())
        QDir().mkpath(dir);
    return dir;
}

QString DataFolder::tempDir()
{
    return QStandardPaths::writableLocation(QStandardPaths::TempLocation);
}

Backup::Paths DataFolder::backupPaths() const
{
    return {m_store->filePath(), documentsDir(), QDir(m_dir).filePath(u"Snapshots"_s)};
}

Snapshots DataFolder::snapshots() const
{
    return Snapshots(backupPaths());
}
