#include "snapshots.h"

#include "logging.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

Snapshots::Snapshots(QString dataDir, Backup::Paths paths) : m_dataDir(std::move(dataDir)), m_paths(std::move(paths)) {}

QString Snapshots::folder() const
{
    return QDir(m_dataDir).filePath(u"Snapshots"_s);
}

QStringList Snapshots::files() const
{
    // Named by the time they were taken, so the name order is the time order.
    QStringList names = QDir(folder()).entryList({u"*.sqlite"_s}, QDir::Files, QDir::Name);
    for (QString &name : names)
        name = QDir(folder()).filePath(name);
    return names;
}

Result<Backup::Info> Snapshots::take(const QString &kind, const QString &source, const Backup::Progress &progress)
{
    Backup::Info info;
    info.kind = kind;
    info.source = source;
    info.created = QDateTime::currentDateTime();
    const QString path = QDir(folder()).filePath(info.created.toString(u"yyyyMMdd-HHmmss-zzz"_s) + u".sqlite"_s);
    auto written = Backup::write(m_paths, path, info, false, progress);
    if (written)
        prune();
    return written;
}

std::optional<Snapshots::Snapshot> Snapshots::latest() const
{
    const QStringList all = files();
    for (auto it = all.crbegin(); it != all.crend(); ++it) {
        if (auto info = Backup::describe(*it))
            return Snapshot{*it, *info};
    }
    return std::nullopt;
}

Result<Backup::Info> Snapshots::undoLatest(const Backup::Progress &progress)
{
    const auto snapshot = latest();
    if (!snapshot)
        return Error{u"There is no import or restore to undo."_s};
    if (auto restored = Backup::restore(snapshot->path, m_paths, progress); !restored)
        return restored.error();
    QFile::remove(snapshot->path);
    removeUnnamedCoverFiles();
    return snapshot->info;
}

void Snapshots::prune()
{
    const QStringList all = files();
    for (qsizetype i = 0; i + kKept < all.size(); ++i)
        QFile::remove(all.at(i));
    removeUnnamedCoverFiles();
}

void Snapshots::removeUnnamedCoverFiles()
{
    QSet<QString> named;
    QStringList databases = files();
    databases.prepend(m_paths.store);
    for (const QString &database : std::as_const(databases)) {
        auto names = Backup::namedCoverFiles(database);
        if (!names)
            return; // when in doubt, keep every file
        for (const QString &name : std::as_const(*names))
            named.insert(name);
    }
    // Only the files the record screens write: a fresh UUID and ".jpg".
    static const QRegularExpression coverFile(
        u"^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}\\.jpg$"_s);
    const QDir documents(m_paths.documents);
    for (const QString &name : documents.entryList(QDir::Files)) {
        if (coverFile.match(name).hasMatch() && !named.contains(name)) {
            consoleLine(u"Cover file no longer needed: "_s + name);
            QFile::remove(documents.filePath(name));
        }
    }
}
