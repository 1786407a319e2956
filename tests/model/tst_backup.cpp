#include "appdelegate.h"
#include "backup.h"
#include "exchangereader.h"
#include "exchangewriter.h"
#include "fetchrequest.h"
#include "snapshots.h"
#include "testsupport.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QSqlQuery>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray jpeg(Qt::GlobalColor colour, int size)
{
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 80);
    return bytes;
}

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray exportOf(Store &store)
{
    return ExchangeWriter::build(store, true).valueOr({});
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
        const QString file = QDir(t.app().documentsDir()).filePath(u"0000000%1-AAAA-BBBB-CCCC-DDDDDDDDDDDD.jpg"_s.arg(i));
        writeFile(file, jpeg(Qt::blue, 600));
        v.frontImagePath = file;
        QVERIFY(t.store().update(v).ok());
        for (int n = 1; n <= 3; ++n) {
            Track track;
            track.vinylID = qint16(i);
            track.trackNumber = qint16(n);
            track.song = u"So What"_s;
            QVERIFY(t.store().insert(track).ok());
        }
    }
}

qint64 recordCount(Store &store)
{
    return store.count(FetchRequest(Entity::Vinyl)).valueOr(-1);
}

} // namespace

class TestBackup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    // Backup, then restore into an empty data folder: the same export to the byte, the same
    // cover files, and the records name the files in their new folder.
    void restoreIntoAnEmptyFolderGivesTheSameCollection()
    {
        TestApp source;
        fillCollection(source);
        QTemporaryDir out;
        const QString file = out.filePath(u"collection.platterbox"_s);
        auto written = Backup::write(source.app().backupPaths(), file, {}, true);
        QVERIFY2(written.ok(), qPrintable(written.errorMessage()));
        QCOMPARE(written->records, 2);
        QCOMPARE(written->coverFiles, 2);

        TestApp target;
        target.addVinyl(u"Replaced"_s, u"Whoever"_s);
        auto restored = Backup::restore(file, target.app().backupPaths());
        QVERIFY2(restored.ok(), qPrintable(restored.errorMessage()));
        QCOMPARE(exportOf(target.store()), exportOf(source.store()));
        for (const Vinyl &v : target.store().fetchVinyl(FetchRequest(Entity::Vinyl)).valueOr({})) {
            const QString path = text(v.frontImagePath);
            QVERIFY2(path.startsWith(target.app().documentsDir() + u'/'), qPrintable(path));
            QCOMPARE(fileBytes(path), fileBytes(QDir(source.app().documentsDir()).filePath(QFileInfo(path).fileName())));
        }
    }

    void refusedBackupsLeaveTheStoreAlone_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("message");
        QTest::newRow("a text file") << u"text"_s << u"is not a Platterbox backup"_s;
        QTest::newRow("a store that is not a backup") << u"store"_s << u"is not a Platterbox backup"_s;
        QTest::newRow("damaged") << u"damaged"_s << u"is damaged"_s;
        QTest::newRow("from a newer version") << u"newer"_s << u"newer version of Platterbox"_s;
        QTest::newRow("missing") << u"missing"_s << u"is not a file"_s;
    }

    void refusedBackupsLeaveTheStoreAlone()
    {
        QFETCH(QString, kind);
        QFETCH(QString, message);
        TestApp t;
        fillCollection(t);
        QTemporaryDir out;
        const QString file = out.filePath(u"backup.platterbox"_s);
        if (kind == u"text"_s) {
            writeFile(file, "[VINYLCOLLECTION]\n");
        } else if (kind == u"store"_s) {
            QVERIFY(Store::open(file).ok());
        } else if (kind != u"missing"_s) {
            QVERIFY(Backup::write(t.app().backupPaths(), file, {}, true).ok());
            QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, kind);
            db.setDatabaseName(file);
            QVERIFY(db.open());
            QSqlQuery q(db);
            if (kind == u"newer"_s) {
                QVERIFY(q.exec(u"PRAGMA user_version = 99"_s));
            } else {
                // An index that no longer matches its table.
                QVERIFY(q.exec(u"PRAGMA writable_schema = ON"_s));
                QVERIFY(q.exec(u"UPDATE sqlite_master SET sql = replace(sql, 'Vinyl(name', 'Vinyl(artist') "
                               "WHERE name = 'VinylByName'"_s));
            }
            q.finish();
            db.close();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(kind);
        }
        const QByteArray before = exportOf(t.store());
        auto restored = Backup::restore(file, t.app().backupPaths());
        QVERIFY(!restored.ok());
        QVERIFY2(restored.errorMessage().contains(message), qPrintable(restored.errorMessage()));
        QCOMPARE(exportOf(t.store()), before);
    }

    // Every import keeps the store before it; undo puts the newest back and goes one further
    // each time; only the newest three are kept.
    void undoPutsBackWhatEachImportChanged()
    {
        TestApp t;
        fillCollection(t);
        Snapshots snapshots = t.app().snapshots();
        QList<QByteArray> before;
        for (int i = 0; i < 4; ++i) {
            before.append(exportOf(t.store()));
            QVERIFY(snapshots.take(Snapshots::kKindImport, u"file %1.csv"_s.arg(i)).ok());
            const QString line = u"[VINYLCOLLECTION]\n0.0^Artist %1^0.0^^^9^Album %1^^^1^^^^0.0^^^\n"_s.arg(i);
            QVERIFY(ExchangeReader::importAll(t.store(), line.toUtf8()).ok());
        }
        QCOMPARE(QDir(snapshots.folder()).entryList(QDir::Files).size(), Snapshots::kKept);
        QCOMPARE(snapshots.latest()->info.source, u"file 3.csv"_s);
        for (int i = 3; i >= 1; --i) {
            auto undone = snapshots.undoLatest();
            QVERIFY2(undone.ok(), qPrintable(undone.errorMessage()));
            QCOMPARE(undone->source, u"file %1.csv"_s.arg(i));
            QCOMPARE(exportOf(t.store()), before.at(i));
        }
        QVERIFY(!snapshots.latest().has_value());
        QVERIFY(!snapshots.undoLatest().ok());
        QCOMPARE(recordCount(t.store()), 3); // the first import is older than the snapshots kept
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
        QVERIFY(snapshots.take(Snapshots::kKindRestore, u"empty.platterbox"_s).ok());
        QVERIFY(Backup::restore(empty, t.app().backupPaths()).ok());
        QCOMPARE(recordCount(t.store()), 0);
        QVERIFY(QFile::exists(file));
        QVERIFY(snapshots.undoLatest().ok());
        QCOMPARE(recordCount(t.store()), 2);
        QVERIFY(QFile::exists(file));
    }
};

QTEST_MAIN(TestBackup)
#include "tst_backup.moc"
