#include "store/snapshots.h"

#include "store/logging.h"

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

Snapshots::Snapshots(Backup::Paths paths) : m_paths(std::move(paths)) {}

QString Snapshots::folder() const
{
    return m_paths.snapshots;
}

namespace {

// A snapshot is named by a sequence number that only grows, then the UTC time it was taken
// ("0000000042-20261125T063000123Z.sqlite"): a change of time zone, daylight-saving time or a
// clock set back never reorders them. Earlier versions named them by local time alone
// ("20261125-063000-123.sqlite"); those are older than any numbered one.
const QRegularExpression kNumbered(u"^(\\d{10})-\\d{8}T\\d{9}Z\\.sqlite$"_s);

qint64 sequenceOf(const QString &name)
{
    const auto match = kNumbered.match(name);
    return match.hasMatch() ? match.captured(1).toLongLong() : 0;
}

} // namespace

QStringList Snapshots::files() const
{
    const QDir dir(folder());
    QStringList names = dir.entryList({u"*.sqlite"_s}, QDir::Files, QDir::Name);
    std::stable_sort(names.begin(), names.end(),
                     [](const QString &a, const QString &b) { return sequenceOf(a) < sequenceOf(b); });
    for (QString &name : names)
        name = dir.filePath(name);
    return names;
}

Result<Snapshots::Snapshot> Snapshots::take(const QString &kind, const QString &source, const Backup::Progress &progress)
{
    qint64 last = 0;
    for (const QString &path : files())
        last = std::max(last, sequenceOf(QFileInfo(path).fileName()));
    Backup::Info info;
    info.kind = kind;
    info.source = source;
    info.created = QDateTime::currentDateTimeUtc();
    const QString name = u"%1-%2.sqlite"_s.arg(last + 1, 10, 10, QLatin1Char('0'))
                             .arg(info.created.toString(u"yyyyMMdd'T'HHmmsszzz'Z'"_s));
    const QString path = QDir(folder()).filePath(name);
    auto written = Backup::write(m_paths, path, info, false, progress);
    if (!written)
        return written.error();
    return Snapshot{path, *written};
}

void Snapshots::keep()
{
    const QStringList all = files();
    for (qsizetype i = 0; i + kKept < all.size(); ++i)
        QFile::remove(all.at(i));
    removeUnnamedCoverFiles();
}

void Snapshots::drop(const Snapshot &snapshot)
{
    QFile::remove(snapshot.path);
}

Result<void> Snapshots::restore(const QString &backupPath, const Backup::Progress &progress)
{
    auto taken = take(kKindRestore, QFileInfo(backupPath).fileName(), Backup::part(progress, 0.0, 0.3));
    if (!taken)
        return Error{u"The collection could not be kept before the restore: "_s + taken.errorMessage()};
    // A restore replaces everything in one transaction or nothing.
    if (auto restored = Backup::restore(backupPath, m_paths, Backup::part(progress, 0.3, 1.0)); !restored) {
        drop(*taken);
        return restored;
    }
    keep();
    return {};
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
