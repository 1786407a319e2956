#include "collection/statistics.h"
#include "entry/editvinylviewcontroller.h"
#include "exchange/exchangereader.h"
#include "exchange/exchangewriter.h"
#include "exchange/importfile.h"
#include "exchange/importmerge.h"
#include "shell/appdelegate.h"
#include "store/backup.h"
#include "store/fetchrequest.h"
#include "store/snapshots.h"
#include "store/wantedalbums.h"
#include "testsupport.h"

#include <QDir>
#include <QFile>
#include <QDeadlineTimer>
#include <QImage>
#include <QProcess>
#include <QSqlDatabase>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray jpeg(Qt::GlobalColor colour, int size)
{
    return encodedPicture(solidPicture(QSize(size, size), colour), "JPEG", 80);
}

QByteArray exportOf(Store &store)
{
    return ExchangeWriter::build(store, true).valueOr({});
}

// Each record's barcode and release id, which the exchange file does not carry: "number:
// barcode release id" by record number, "-" for an absent one.
QStringList lookUpAttributes(Store &store)
{
    QStringList lines;
    for (const Vinyl &v : store.fetchVinyl(FetchRequest(Entity::Vinyl).sortedBy(u"id"_s)).valueOr({}))
        lines << u"%1: %2 %3"_s.arg(number(v.id)).arg(v.barcode.value_or(u"-"_s), v.musicBrainzReleaseId.value_or(u"-"_s));
    return lines;
}

// The whole collection but its cover files, as text to compare.
QByteArray collectionOf(Store &store)
{
    return exportOf(store) + lookUpAttributes(store).join(u'\n').toUtf8();
}

// Two pressings of one album with covers and a full-size front file, and their tracks.
void fillCollection(TestApp &t)
{
    for (int i = 1; i <= 2; ++i) {
        Vinyl v = t.addVinyl(u"Kind of Blue"_s, u"Miles Davis"_s, u"Label %1"_s.arg(i), qint16(i));
        v.notes = u"Pressing %1: l'édition & co\nsecond line"_s.arg(i);
        v.value = 12.5f * float(i);
        v.releaseDate = QDateTime(QDate(1959, 8, 17), QTime(0, 0));
        v.frontImage = jpeg(Qt::blue, 100);
        v.backImage = jpeg(Qt::red, 100);
        v.barcode = u"501234567890%1"_s.arg(i);
        v.musicBrainzReleaseId = i == 1 ? std::optional<QString>(u"4f1c2a3b-0d5e-4c6f-9a8b-7e6d5c4b3a21"_s) : u""_s;
        const QString file = QDir(t.app().documentsDir()).filePath(u"0000000%1-AAAA-BBBB-CCCC-DDDDDDDDDDDD.jpg"_s.arg(i));
        QVERIFY(writeBytes(file, jpeg(Qt::blue, 600)));
        v.frontImagePath = file;
        QVERIFY(t.store().update(v).ok());
        Quote quote{0, v.rowId, QDateTime(QDate(2024, 3, i), QTime(9, 0)), double(*v.value), QuoteSources::Edit};
        QVERIFY(t.store().insert(quote).ok());
        for (int n = 1; n <= 3; ++n) {
            Track track;
            track.vinylID = qint16(i);
            track.trackNumber = qint16(n);
            track.song = u"So What"_s;
            QVERIFY(t.store().insert(track).ok());
        }
    }
}

// Every record's value history: "number: value source date", by record number.
QStringList valueHistory(Store &store)
{
    QStringList lines;
    for (const Vinyl &v : store.fetchVinyl(FetchRequest(Entity::Vinyl).sortedBy(u"id"_s)).valueOr({})) {
        for (const Quote &q : store.quotes(v.rowId).valueOr({}))
            lines << u"%1: %2 %3 %4"_s.arg(number(v.id)).arg(q.value).arg(q.source, q.quoted.date().toString(Qt::ISODate));
    }
    return lines;
}

// Imports one new record "Album <n>" through the import screen's path, snapshot included.
Result<ImportCounts> importAlbum(TestApp &t, int n, const Backup::Progress &progress = {})
{
    const QString line = u"[VINYLCOLLECTION]\n0.0^Artist %1^0.0^^^9^Album %1^^^1^^^^0.0^^^\n"_s.arg(n);
    Snapshots snapshots = t.app().snapshots();
    return ImportMerge::applyAfterSnapshot(t.store(), ImportFiles::read(line.toUtf8()), snapshots,
                                           u"file %1.csv"_s.arg(n), progress);
}

QStringList snapshotFiles(TestApp &t)
{
    return QDir(t.app().snapshots().folder()).entryList(QDir::Files, QDir::Name);
}

// Many records with long notes, so that a backup or a restore takes long enough to be killed
// half-way.
void fillMany(TestApp &t, const QString &artist)
{
    QVERIFY(t.store().transaction([&]() -> Result<void> {
        for (int i = 1; i <= 3000; ++i) {
            Vinyl v = t.addVinyl(u"Album %1"_s.arg(i), artist);
            v.notes = QString(400, QLatin1Char('n'));
            if (auto r = t.store().update(v); !r)
                return r;
        }
        return {};
    }).ok());
}

// Flips every bit of the byte at offset.
void flipByte(const QString &path, qint64 offset)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(offset));
    char byte = 0;
    QVERIFY(file.getChar(&byte));
    QVERIFY(file.seek(offset));
    QVERIFY(file.putChar(char(~byte)));
}

} // namespace

class TestBackup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    // Backup, then restore into an empty data folder: the same export to the byte, the same
    // cover files, and the records name the files in their new folder. A restored record names
    // only files of the documents folder; other paths a backup holds are dropped.
    void restoreIntoAnEmptyFolderGivesTheSameCollection()
    {
        TestApp source;
        fillCollection(source);
        const QString documents = source.app().documentsDir();
        const QStringList crafted{u"/etc/passwd"_s, documents + u"/../Platterbox.sqlite"_s, documents + u"/sub/x.jpg"_s,
                                  documents + u"/.."_s};
        for (const QString &path : crafted) {
            Vinyl v = source.addVinyl(path, u"Crafted"_s);
            v.frontImage = jpeg(Qt::blue, 100);
            v.frontImagePath = path;
            QVERIFY(source.store().update(v).ok());
        }
        WantedAlbum wanted;
        wanted.album.name = u"Copper Weather"_s;
        wanted.album.artist = u"Ada Lindqvist"_s;
        wanted.maxPrice = 30.0f;
        Track song;
        song.song = u"Tidewater"_s;
        QVERIFY(WantedAlbums::insert(source.store(), wanted, {song}).ok());
        QTemporaryDir out;
        const QString file = out.filePath(u"collection.platterbox"_s);
        auto written = Backup::write(source.app().backupPaths(), file, {}, true);
        QVERIFY2(written.ok(), qPrintable(written.errorMessage()));
        QCOMPARE(written->records, 6);
        QCOMPARE(written->coverFiles, 2);

        TestApp target;
        target.addVinyl(u"Replaced"_s, u"Whoever"_s);
        WantedAlbum replaced;
        replaced.album.name = u"Replaced"_s;
        QVERIFY(WantedAlbums::insert(target.store(), replaced).ok());
        auto restored = Backup::restore(file, target.app().backupPaths());
        QVERIFY2(restored.ok(), qPrintable(restored.errorMessage()));
        // The wantlist comes back with the collection, its tracks too.
        const auto wantlist = [](Store &store) {
            QStringList albums;
            for (const WantedAlbum &w : WantedAlbums::all(store).valueOr({}))
                albums << text(w.album.name) + u'/' + QString::number(w.maxPrice.value_or(-1)) + u'/'
                              + QString::number(WantedAlbums::tracks(store, w.rowId).valueOr({}).size());
            return albums;
        };
        QCOMPARE(wantlist(target.store()), QStringList{u"Copper Weather/30/1"_s});
        QCOMPARE(collectionOf(target.store()), collectionOf(source.store()));
        QCOMPARE(valueHistory(target.store()), valueHistory(source.store()));
        // The figures the store keeps are the restored collection's, not the replaced one's.
        QCOMPARE(statisticsJson(*StatisticsQueries::compute(target.store())),
                 statisticsJson(*StatisticsQueries::compute(source.store())));
        for (const Vinyl &v : target.store().fetchVinyl(FetchRequest(Entity::Vinyl)).valueOr({})) {
            const QString path = text(v.frontImagePath);
            QCOMPARE(path.isEmpty(), v.artist == u"Crafted"_s);
            if (path.isEmpty())
                continue;
            QVERIFY2(path.startsWith(target.app().documentsDir() + u'/'), qPrintable(path));
            QCOMPARE(fileBytes(path), fileBytes(QDir(source.app().documentsDir()).filePath(QFileInfo(path).fileName())));
        }
    }

    void backupsAreRefusedOrUpgraded_data()
    {
        const QString today = QDate::currentDate().toString(Qt::ISODate);
        QTest::addColumn<QString>("kind"); // "backup": this collection's, then changed by sql
        QTest::addColumn<QStringList>("sql");
        QTest::addColumn<QString>("message");
        // The value history after an upgraded restore.
        QTest::addColumn<QStringList>("history");
        QTest::newRow("a text file") << u"text"_s << QStringList() << u"is not a Platterbox backup"_s << QStringList();
        QTest::newRow("a store that is not a backup") << u"store"_s << QStringList() << u"is not a Platterbox backup"_s << QStringList();
        QTest::newRow("described as a backup, holding other tables")
            << u"other"_s
            << QStringList{u"CREATE TABLE PlatterboxBackup (key TEXT PRIMARY KEY, value TEXT)"_s,
                           u"INSERT INTO PlatterboxBackup VALUES ('format', '1')"_s, u"CREATE TABLE Vinyl (title TEXT)"_s,
                           u"PRAGMA user_version = %1"_s.arg(Store::kSchemaVersion)}
            << u"is not a Platterbox backup: its table Vinyl has no column"_s << QStringList();
        QTest::newRow("an index that no longer matches its table")
            << u"backup"_s
            << QStringList{u"PRAGMA writable_schema = ON"_s,
                           u"UPDATE sqlite_master SET sql = replace(sql, 'Vinyl(name', 'Vinyl(artist') "
                           "WHERE name = 'VinylByName'"_s}
            << u"is damaged"_s << QStringList();
        QTest::newRow("from a newer version") << u"backup"_s << QStringList{u"PRAGMA user_version = 99"_s}
                                              << u"newer version of Platterbox"_s << QStringList();
        QTest::newRow("missing") << u"missing"_s << QStringList() << u"is not a file"_s << QStringList();
        // Written before backups carried a checksum.
        QTest::newRow("from an older version, upgraded")
            << u"backup"_s
            << QStringList{u"DROP TABLE Quotes"_s, u"DROP INDEX VinylByVinylCondition"_s,
                           u"DROP INDEX VinylByCoverCondition"_s, u"PRAGMA user_version = 3"_s,
                           u"UPDATE PlatterboxBackup SET value = '1' WHERE key = 'format'"_s,
                           u"DELETE FROM PlatterboxBackup WHERE key = 'checksum'"_s}
            << QString() << QStringList{u"1: 12.5 Start "_s + today, u"2: 25 Start "_s + today};
        QTest::newRow("from the version before the barcode, upgraded")
            << u"backup"_s
            << QStringList{u"DROP INDEX VinylByBarcode"_s, u"DROP INDEX VinylByMusicBrainzReleaseId"_s,
                           u"ALTER TABLE Vinyl DROP COLUMN barcode"_s, u"ALTER TABLE Vinyl DROP COLUMN musicBrainzReleaseId"_s,
                           u"PRAGMA user_version = 4"_s,
                           u"UPDATE PlatterboxBackup SET value = '1' WHERE key = 'format'"_s,
                           u"DELETE FROM PlatterboxBackup WHERE key = 'checksum'"_s}
            << QString() << QStringList{u"1: 12.5 Edit 2024-03-01"_s, u"2: 25 Edit 2024-03-02"_s};
    }

    void backupsAreRefusedOrUpgraded()
    {
        QFETCH(QString, kind);
        QFETCH(QStringList, sql);
        QFETCH(QString, message);
        QFETCH(QStringList, history);
        TestApp t;
        fillCollection(t);
        QTemporaryDir out;
        const QString file = out.filePath(u"backup.platterbox"_s);
        if (kind == u"text"_s)
            QVERIFY(writeBytes(file, "[VINYLCOLLECTION]\n"));
        else if (kind == u"store"_s)
            QVERIFY(Store::open(file).ok());
        else if (kind == u"backup"_s)
            QVERIFY(Backup::write(t.app().backupPaths(), file, {}, true).ok());
        if (!sql.isEmpty()) {
            QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, kind);
            db.setDatabaseName(file);
            QVERIFY(db.open());
            QCOMPARE(runSql(db, sql), QString());
            db.close();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(kind);
        }
        const QByteArray before = exportOf(t.store());
        auto restored = Backup::restore(file, t.app().backupPaths());
        if (message.isEmpty()) {
            // Restored through an upgrade: the records as they were, without the attributes of
            // versions after the backup's, and the history the backup holds or starts.
            QVERIFY2(restored.ok(), qPrintable(restored.errorMessage()));
            QCOMPARE(exportOf(t.store()), before);
            QCOMPARE(lookUpAttributes(t.store()), (QStringList{u"1: - -"_s, u"2: - -"_s}));
            QCOMPARE(valueHistory(t.store()), history);
            QCOMPARE(QDir(t.dataDir()).entryList({u"restore-*"_s}, QDir::Files | QDir::Hidden), QStringList());
            return;
        }
        QVERIFY(!restored.ok());
        QVERIFY2(restored.errorMessage().contains(message), qPrintable(restored.errorMessage()));
        QCOMPARE(exportOf(t.store()), before);
    }

    void undoPutsBackWhatEachImportChanged_data()
    {
        QTest::addColumn<QByteArrayList>("zones"); // the time zone of each import
        QTest::newRow("one zone") << QByteArrayList{"America/New_York", "America/New_York", "America/New_York",
                                                    "America/New_York"};
        QTest::newRow("west, then east") << QByteArrayList{"America/Los_Angeles", "America/Los_Angeles",
                                                           "America/Los_Angeles", "Asia/Tokyo"};
        QTest::newRow("east, then west") << QByteArrayList{"Asia/Tokyo", "Asia/Tokyo", "Asia/Tokyo",
                                                           "America/Los_Angeles"};
    }

    // Every import keeps the store before it; undo puts the newest back and goes one further
    // each time, whatever the time zone was; only the newest three are kept.
    void undoPutsBackWhatEachImportChanged()
    {
        QFETCH(QByteArrayList, zones);
        TestApp t;
        fillCollection(t);
        Snapshots snapshots = t.app().snapshots();
        QList<QByteArray> before;
        for (int i = 0; i < zones.size(); ++i) {
            const ScopedTimeZone zone(zones.at(i));
            before.append(collectionOf(t.store()));
            QVERIFY(importAlbum(t, i).ok());
        }
        QCOMPARE(snapshotFiles(t).size(), Snapshots::kKept);
        QCOMPARE(snapshots.latest()->info.source, u"file 3.csv"_s);
        for (int i = 3; i >= 1; --i) {
            auto undone = snapshots.undoLatest();
            QVERIFY2(undone.ok(), qPrintable(undone.errorMessage()));
            QCOMPARE(undone->source, u"file %1.csv"_s.arg(i));
            const ScopedTimeZone zone(zones.at(i)); // the export's dates read in the zone they were
            QCOMPARE(collectionOf(t.store()), before.at(i));
        }
        QVERIFY(!snapshots.latest().has_value());
        QVERIFY(!snapshots.undoLatest().ok());
        QCOMPARE(t.count(), 3); // the first import is older than the snapshots kept
    }

    void aChangeThatDoesNotHappenKeepsNoSnapshot_data()
    {
        QTest::addColumn<QString>("change");
        QTest::newRow("restore of a text file") << u"text"_s;
        QTest::newRow("restore of a damaged backup") << u"damaged"_s;
        QTest::newRow("import cancelled") << u"cancel"_s;
    }

    // Three refused or cancelled changes leave the snapshots of the imports before them.
    void aChangeThatDoesNotHappenKeepsNoSnapshot()
    {
        QFETCH(QString, change);
        TestApp t;
        fillCollection(t);
        for (int i = 0; i < Snapshots::kKept; ++i)
            QVERIFY(importAlbum(t, i).ok());
        const QStringList kept = snapshotFiles(t);
        const QByteArray before = exportOf(t.store());
        QTemporaryDir out;
        const QString file = out.filePath(u"backup.platterbox"_s);
        if (change == u"text"_s) {
            QVERIFY(writeBytes(file, "[VINYLCOLLECTION]\n"));
        } else {
            QVERIFY(Backup::backUp(t.app().backupPaths(), file).ok());
            flipByte(file, QFileInfo(file).size() / 2);
        }
        for (int i = 0; i < 3; ++i) {
            if (change == u"cancel"_s) {
                // Cancelled as soon as the snapshot before it is there.
                auto counts = importAlbum(t, 9, [&](qint64, qint64) { return snapshotFiles(t) == kept; });
                QVERIFY(!counts || counts->linesApplied == 0);
            } else {
                QVERIFY(!t.app().snapshots().restore(file).ok());
            }
        }
        QCOMPARE(snapshotFiles(t), kept);
        QCOMPARE(exportOf(t.store()), before);
        QCOMPARE(t.app().snapshots().latest()->info.source, u"file 2.csv"_s);
    }

    // An import, then a new cover on the edit screen: undoing the import shows the cover the
    // record had, from its full-size file.
    void undoAfterAnEditBringsBackTheCover()
    {
        TestApp t;
        fillCollection(t);
        const Vinyl first = t.store().fetchVinyl(FetchRequest(Entity::Vinyl).sortedBy(u"id"_s)).valueOr({}).value(0);
        const QString file = text(first.frontImagePath);
        QVERIFY(importAlbum(t, 1).ok());
        t.app().state()->setCurrentRecord(first);
        {
            EditVinylViewController edit(&t.app());
            edit.setCoverImage(CoverSide::Front, QImage::fromData(jpeg(Qt::green, 300)));
            edit.SaveVinylButtonClicked();
        }
        QVERIFY(t.app().snapshots().undoLatest().ok());
        QVERIFY(QFile::exists(file));
        const auto restored = t.store().vinylByRowId(first.rowId);
        QVERIFY(restored && restored->has_value());
        QCOMPARE(text((*restored)->frontImagePath), file);
        t.app().state()->setCurrentRecord(**restored);
        EditVinylViewController shown(&t.app());
        QCOMPARE(shown.frontImage().size(), QSize(600, 600));
    }

    // A byte changed anywhere in a backup, in a record's text, a cover or the description:
    // the restore is refused and the collection is as it was.
    void aBackupWithAnyByteChangedIsRefused()
    {
        TestApp t;
        fillCollection(t);
        QTemporaryDir out;
        const QString file = out.filePath(u"backup.platterbox"_s);
        QVERIFY(Backup::backUp(t.app().backupPaths(), file).ok());
        const QByteArray pristine = fileBytes(file);
        QList<qint64> offsets{pristine.indexOf("second line"), pristine.indexOf("sha256:") + 20, pristine.size() - 1};
        for (qint64 step = 1; step <= 40; ++step)
            offsets.append(pristine.size() * step / 41);
        const QByteArray before = exportOf(t.store());
        for (const qint64 offset : std::as_const(offsets)) {
            QVERIFY(writeBytes(file, pristine));
            flipByte(file, offset);
            auto restored = Backup::restore(file, t.app().backupPaths());
            QVERIFY2(!restored.ok(), qPrintable(u"byte %1 of %2"_s.arg(offset).arg(pristine.size())));
            QCOMPARE(exportOf(t.store()), before);
        }
        QVERIFY(writeBytes(file, pristine));
        flipByte(file, offsets.first());
        QVERIFY(Backup::restore(file, t.app().backupPaths()).errorMessage().contains(u"backup.platterbox is damaged"_s));
    }

    void aBackupNeverReplacesTheCollection_data()
    {
        QTest::addColumn<QString>("target"); // inside the data folder
        QTest::newRow("the store") << u"Platterbox.sqlite"_s;
        QTest::newRow("its write-ahead log") << u"Platterbox.sqlite-wal"_s;
        QTest::newRow("its index") << u"Platterbox.sqlite-shm"_s;
        QTest::newRow("a snapshot") << u"Snapshots/snapshot"_s;
        QTest::newRow("a new file among the snapshots") << u"Snapshots/mine.platterbox"_s;
        QTest::newRow("the store through a link") << u"link"_s;
    }

    void aBackupNeverReplacesTheCollection()
    {
        QFETCH(QString, target);
        TestApp t;
        fillCollection(t);
        QVERIFY(importAlbum(t, 1).ok());
        const QDir data(t.dataDir());
        QVERIFY(QFileInfo(t.store().filePath()).fileName() == u"Platterbox.sqlite"_s);
        QString path = data.filePath(target);
        if (target == u"Snapshots/snapshot"_s)
            path = t.app().snapshots().latest()->path;
        if (target == u"link"_s)
            QVERIFY(QFile::link(t.store().filePath(), path));
        const QByteArray before = exportOf(t.store());
        auto written = Backup::backUp(t.app().backupPaths(), path);
        QVERIFY(!written.ok());
        QVERIFY2(written.errorMessage().contains(u"choose"_s), qPrintable(written.errorMessage()));
        QCOMPARE(exportOf(t.store()), before);
        QVERIFY(t.app().snapshots().latest().has_value());
        QTemporaryDir out;
        QVERIFY(Backup::backUp(t.app().backupPaths(), out.filePath(u"fine.platterbox"_s)).ok());
    }

    void aKilledBackupRestoreOrUndoLeavesAWholeCollection_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("point"); // when the process is killed
        for (const QString &command : {u"backup"_s, u"restore"_s, u"undo-import"_s}) {
            for (const QString &point : {u"started"_s, u"file begun"_s, u"store written"_s})
                QTest::addRow("%s, %s", qPrintable(command), qPrintable(point)) << command << point;
        }
    }

    // The command-line tool killed at several points of its work: the collection opens and is
    // the one before or the one after, never a mix; a backup is whole or not there.
    void aKilledBackupRestoreOrUndoLeavesAWholeCollection()
    {
        QFETCH(QString, command);
        QFETCH(QString, point);
        TestApp t;
        fillMany(t, u"Before"_s);
        QVERIFY(importAlbum(t, 1).ok());
        QTemporaryDir out;
        const QString backup = out.filePath(u"other.platterbox"_s);
        {
            TestApp other;
            fillMany(other, u"Other"_s);
            QVERIFY(Backup::write(other.app().backupPaths(), backup, {}, true).ok());
        }
        const QByteArray before = exportOf(t.store());
        QByteArray after;
        if (command == u"restore"_s) {
            TestApp other;
            QVERIFY(Backup::restore(backup, other.app().backupPaths()).ok());
            after = exportOf(other.store());
        } else if (command == u"undo-import"_s) {
            TestApp undone;
            QVERIFY(Backup::restore(t.app().snapshots().latest()->path, undone.app().backupPaths()).ok());
            after = exportOf(undone.store());
        }
        const QString target = out.filePath(u"new.platterbox"_s);
        QStringList arguments{u"--data-dir"_s, t.dataDir(), command};
        if (command != u"undo-import"_s)
            arguments << (command == u"backup"_s ? target : backup);
        const QString wal = t.store().filePath() + u"-wal"_s;
        const qint64 walBefore = QFileInfo(wal).size();
        const QString begunIn = command == u"backup"_s ? out.path() : t.app().snapshots().folder();
        const auto reached = [&] {
            if (point == u"file begun"_s)
                return !QDir(begunIn).entryList({u".platterbox-backup-*"_s}, QDir::Files | QDir::Hidden).isEmpty();
            if (point == u"store written"_s)
                return QFileInfo(wal).size() > walBefore;
            return true;
        };
        QProcess process;
        process.start(QStringLiteral(PLATTERBOX_CLI), arguments);
        QVERIFY(process.waitForStarted());
        const QDeadlineTimer deadline(60000);
        while (process.state() == QProcess::Running && !reached() && !deadline.hasExpired())
            process.waitForFinished(1);
        process.kill();
        process.waitForFinished();

        auto reopened = Store::open(t.store().filePath());
        QVERIFY2(reopened.ok(), qPrintable(reopened.errorMessage()));
        const QByteArray now = exportOf(**reopened);
        if (command == u"backup"_s) {
            QCOMPARE(now, before);
            QVERIFY(!QFile::exists(target) || Backup::inspect(target).ok());
        } else {
            QVERIFY2(now == before || now == after, qPrintable(command + u" killed at "_s + point));
        }
    }

    // A cover file only the replaced collection named stays while a snapshot needs it.
    void coverFilesStayWhileASnapshotNamesThem()
    {
        TestApp t;
        fillCollection(t);
        const QString file = text(t.store().fetchVinyl(FetchRequest(Entity::Vinyl)).valueOr({}).value(0).frontImagePath);
        QTemporaryDir out;
        const QString empty = out.filePath(u"empty.platterbox"_s);
        {
            TestApp blank;
            QVERIFY(Backup::write(blank.app().backupPaths(), empty, {}, true).ok());
        }
        Snapshots snapshots = t.app().snapshots();
        QVERIFY(snapshots.restore(empty).ok());
        QCOMPARE(t.count(), 0);
        QVERIFY(QFile::exists(file));
        QVERIFY(snapshots.undoLatest().ok());
        QCOMPARE(t.count(), 2);
        QVERIFY(QFile::exists(file));
    }
};

QTEST_MAIN(TestBackup)
#include "tst_backup.moc"
