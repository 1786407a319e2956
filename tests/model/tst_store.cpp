#include "recordnumbers.h"
#include "samplecollection.h"
#include "store.h"
#include "testsupport.h"

#include <QSqlQuery>
#include <QTest>

using namespace Qt::StringLiterals;

class StoreTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Store> openMemory()
    {
        auto store = Store::open(u":memory:"_s);
        if (!store)
            qWarning() << store.errorMessage();
        return store ? std::move(store).value() : nullptr;
    }

    QStringList names(const QList<Vinyl> &rows)
    {
        QStringList result;
        for (const Vinyl &v : rows)
            result << (v.name ? *v.name : u"<absent>"_s);
        return result;
    }

private slots:
    void initTestCase() { useTestLocale(); }

    void absentAndEmptyTextStayDistinct()
    {
        auto store = openMemory();
        QVERIFY(store);
        Vinyl empty;
        empty.name = u"Empty artist"_s;
        empty.artist = u""_s;
        empty.imagesLoaded = true;
        Vinyl absent;
        absent.name = u"No artist"_s;
        absent.imagesLoaded = true;
        QVERIFY(store->insert(empty).ok());
        QVERIFY(store->insert(absent).ok());

        auto withEmpty = store->fetchVinyl(FetchRequest().where(Predicate::equal(u"artist"_s, u""_s)));
        QVERIFY(withEmpty.ok());
        QCOMPARE(names(*withEmpty), QStringList{u"Empty artist"_s});
        auto withAbsent = store->fetchVinyl(FetchRequest().where(Predicate::equal(u"artist"_s, QVariant())));
        QCOMPARE(names(*withAbsent), QStringList{u"No artist"_s});

        auto all = store->fetchVinyl(FetchRequest().sortedBy(u"name"_s));
        QCOMPARE(all->size(), 2);
        QVERIFY(all->at(0).artist.has_value());
        QVERIFY(all->at(0).artist->isEmpty());
        QVERIFY(!all->at(1).artist.has_value());
        QCOMPARE(number(all->at(1).quantity), qint16(0)); // absent numbers read 0
    }

    void stringsSortInCodePointOrderWithAbsentFirst_data()
    {
        QTest::addColumn<bool>("ascending");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("ascending") << true
                                   << QStringList{u"<absent>"_s, u""_s, u"ABBA"_s, u"Zappa"_s, u"abba"_s, u"\u00e9clair"_s};
        QTest::newRow("descending") << false
                                    << QStringList{u"\u00e9clair"_s, u"abba"_s, u"Zappa"_s, u"ABBA"_s, u""_s, u"<absent>"_s};
    }
    void stringsSortInCodePointOrderWithAbsentFirst()
    {
        QFETCH(bool, ascending);
        QFETCH(QStringList, expected);
        auto store = openMemory();
        for (const QString &name : {u"abba"_s, u"Zappa"_s, u"\u00e9clair"_s, u"ABBA"_s, u""_s, u"<absent>"_s}) {
            Vinyl v;
            if (name != u"<absent>"_s)
                v.name = name;
            v.imagesLoaded = true;
            QVERIFY(store->insert(v).ok());
        }
        auto rows = store->fetchVinyl(FetchRequest().sortedBy(u"name"_s, ascending));
        QVERIFY(rows.ok());
        QCOMPARE(names(*rows), expected);
    }

    void equalityIsExactAndCaseSensitive()
    {
        TestApp app;
        app.addVinyl(u"One"_s, u"ABBA"_s);
        app.addVinyl(u"Two"_s, u"abba"_s);
        app.addVinyl(u"Three"_s, u"ABBA "_s);
        auto rows = app.store().fetchVinyl(FetchRequest().where(Predicate::equal(u"artist"_s, u"ABBA"_s)));
        QCOMPARE(names(*rows), QStringList{u"One"_s});
    }

    void predicatesCombineWithAnd()
    {
        TestApp app;
        app.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s);
        app.addVinyl(u"Blue"_s, u"Joni"_s, u"Asylum"_s);
        app.addVinyl(u"Court"_s, u"Joni"_s, u"Asylum"_s);
        auto rows = app.store().fetchVinyl(FetchRequest()
                                               .where(Predicate::equal(u"name"_s, u"Blue"_s))
                                               .where(Predicate::equal(u"recordLabel"_s, u"Asylum"_s)));
        QCOMPARE(rows->size(), 1);
        QCOMPARE(text(rows->first().recordLabel), u"Asylum"_s);
        auto counted = app.store().count(FetchRequest().where(Predicate::equal(u"artist"_s, u"Joni"_s)));
        QCOMPARE(*counted, 3);
    }

    void yearBoundsAreLocalMidnight_data()
    {
        QTest::addColumn<QDateTime>("released");
        QTest::addColumn<bool>("in1975");
        QTest::newRow("first moment") << QDateTime(QDate(1975, 1, 1), QTime(0, 0)) << true;
        QTest::newRow("31 December 23:30") << QDateTime(QDate(1975, 12, 31), QTime(23, 30)) << true;
        QTest::newRow("1 January next year 00:00") << QDateTime(QDate(1976, 1, 1), QTime(0, 0)) << false;
        QTest::newRow("31 December before") << QDateTime(QDate(1974, 12, 31), QTime(23, 59, 59)) << false;
    }
    void yearBoundsAreLocalMidnight()
    {
        QFETCH(QDateTime, released);
        QFETCH(bool, in1975);
        TestApp app;
        Vinyl v;
        v.name = u"Dated"_s;
        v.releaseDate = released;
        v.imagesLoaded = true;
        QVERIFY(app.store().insert(v).ok());
        const QDateTime from(QDate(1975, 1, 1), QTime(0, 0));
        const QDateTime to(QDate(1976, 1, 1), QTime(0, 0));
        auto rows = app.store().fetchVinyl(FetchRequest()
                                               .where(Predicate::atLeast(u"releaseDate"_s, from))
                                               .where(Predicate::lessThan(u"releaseDate"_s, to)));
        QCOMPARE(rows->size(), in1975 ? 1 : 0);
        if (in1975)
            QCOMPARE(*rows->first().releaseDate, released);
    }

    void listFetchesLeaveCoversUnreadAndUpdatesKeepThem()
    {
        TestApp app;
        Vinyl v;
        v.name = u"Covered"_s;
        v.frontImage = sampleCoverJpeg(1, true);
        v.imagesLoaded = true;
        QVERIFY(app.store().insert(v).ok());

        auto listed = app.store().fetchVinyl(FetchRequest());
        QVERIFY(!listed->first().frontImage.has_value());
        Vinyl changed = listed->first();
        changed.notes = u"cleaned"_s;
        QVERIFY(app.store().update(changed).ok());

        auto full = app.store().vinylByRowId(v.rowId);
        QVERIFY(full.ok() && full->has_value());
        QCOMPARE((*full)->frontImage.value_or(QByteArray()), *v.frontImage);
        QCOMPARE(text((*full)->notes), u"cleaned"_s);
        QCOMPARE(*app.store().coverImage(v.rowId, CoverSide::Front), *v.frontImage);
        QVERIFY(app.store().coverImage(v.rowId, CoverSide::Back)->isEmpty());
    }

    void cardFetchReadsWhatACardShowsAndCannotBeSaved()
    {
        TestApp app;
        Vinyl v = app.addVinyl(u"Card"_s, u"Artist"_s, u"Label"_s, 3);
        v.notes = u"long notes"_s;
        v.cost = 12.5f;
        v.value = 30.0f;
        v.quantity = 2;
        v.doubleAlbum = u"Yes"_s;
        QVERIFY(app.store().update(v).ok());

        auto full = app.store().fetchVinyl(FetchRequest());
        auto cards = app.store().fetchVinyl(FetchRequest().onlyCardAttributes());
        QVERIFY(full.ok() && cards.ok());
        const Vinyl &a = full->first();
        const Vinyl &c = cards->first();
        QCOMPARE(c.rowId, a.rowId);
        QCOMPARE(c.name, a.name);
        QCOMPARE(c.artist, a.artist);
        QCOMPARE(c.recordLabel, a.recordLabel);
        QCOMPARE(c.quantity, a.quantity);
        QCOMPARE(c.doubleAlbum, a.doubleAlbum);
        QCOMPARE(c.cost, a.cost);
        QCOMPARE(c.value, a.value);
        QVERIFY(!c.notes.has_value());

        Vinyl changed = c;
        changed.name = u"Renamed"_s;
        QVERIFY(!app.store().update(changed).ok());
        QCOMPARE(text(app.store().fetchVinyl(FetchRequest())->first().notes), u"long notes"_s);
    }

    void firstVersionStoreIsUpgradedKeepingItsRecords()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(u"Platterbox.sqlite"_s);
        {
            auto store = Store::open(path);
            QVERIFY(store.ok());
            Vinyl v;
            v.name = u"Kept"_s;
            v.imagesLoaded = true;
            QVERIFY((*store)->insert(v).ok());
            QSqlQuery q((*store)->database());
            QVERIFY(q.exec(u"DROP INDEX VinylByName"_s));
            QVERIFY(q.exec(u"CREATE INDEX VinylByName ON Vinyl(name)"_s));
            for (const QString &cover : {u"frontImage"_s, u"backImage"_s}) {
                QVERIFY(q.exec(u"DROP TRIGGER %1Changed"_s.arg(cover)));
                QVERIFY(q.exec(u"ALTER TABLE Vinyl DROP COLUMN %1Exchange"_s.arg(cover)));
            }
            QVERIFY(q.exec(u"PRAGMA user_version = 1"_s));
        }
        auto reopened = Store::open(path);
        QVERIFY(reopened.ok());
        QSqlQuery q((*reopened)->database());
        QVERIFY(q.exec(u"SELECT count(*) FROM pragma_index_info('VinylByName')"_s) && q.next());
        QCOMPARE(q.value(0).toInt(), int(Store::kCardAttributes.size()));
        q.finish();
        QCOMPARE(names(*(*reopened)->fetchVinyl(FetchRequest())), QStringList{u"Kept"_s});
    }

    void failedActionRollsBackWhole()
    {
        TestApp app;
        auto result = app.store().transaction([&]() -> Result<void> {
            app.addVinyl(u"Half done"_s);
            return Error{u"stopped"_s};
        });
        QVERIFY(!result.ok());
        QCOMPARE(*app.store().count(FetchRequest()), 0);
    }

    void unknownAttributeIsAnErrorNotACrash()
    {
        TestApp app;
        auto rows = app.store().fetchVinyl(FetchRequest().where(Predicate::equal(u"name; DROP TABLE Vinyl"_s, 1)));
        QVERIFY(!rows.ok());
        QVERIFY(app.store().count(FetchRequest()).ok());
    }

    void newRecordNumber_data()
    {
        QTest::addColumn<QList<int>>("existing");
        QTest::addColumn<int>("expected");
        QTest::newRow("empty store") << QList<int>{} << 1;
        QTest::newRow("1, 2 and 7") << QList<int>{1, 2, 7} << 8;
        QTest::newRow("highest deleted is reused") << QList<int>{1, 2} << 3;
        QTest::newRow("negative only") << QList<int>{-5} << -4;
    }
    void newRecordNumber()
    {
        QFETCH(QList<int>, existing);
        QFETCH(int, expected);
        TestApp app;
        for (int id : existing)
            app.addVinyl(u"R%1"_s.arg(id), {}, {}, qint16(id));
        if (QTest::currentDataTag() == QByteArray("highest deleted is reused")) {
            Vinyl seven = app.addVinyl(u"R7"_s, {}, {}, 7);
            QVERIFY(app.store().remove(Entity::Vinyl, seven.rowId).ok());
        }
        auto id = newRecordId(app.store());
        QVERIFY(id.ok());
        QCOMPARE(int(*id), expected);
    }

    void noNumberAfter32767()
    {
        TestApp app;
        app.addVinyl(u"Last"_s, {}, {}, 32767);
        auto id = newRecordId(app.store());
        QVERIFY(!id.ok());
        QCOMPARE(id.errorMessage(), kNoRecordNumberLeft);
    }

    void schemaVersionIsRecordedAndNewerStoresRefused()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(u"Platterbox.sqlite"_s);
        {
            auto store = Store::open(path);
            QVERIFY(store.ok());
            QSqlQuery q((*store)->database());
            QVERIFY(q.exec(u"PRAGMA user_version"_s) && q.next());
            QCOMPARE(q.value(0).toInt(), Store::kSchemaVersion);
            QVERIFY(q.exec(u"PRAGMA user_version = 99"_s));
        }
        auto reopened = Store::open(path);
        QVERIFY(!reopened.ok());
        QVERIFY(reopened.errorMessage().contains(u"newer"_s));
    }

    void sampleCollectionIsDeterministicAndNumbered()
    {
        TestApp a, b;
        SampleOptions options;
        options.records = 30;
        options.tracksPerRecord = 3;
        QVERIFY(addSampleCollection(a.store(), options).ok());
        QVERIFY(addSampleCollection(b.store(), options).ok());
        auto rowsA = a.store().fetchVinyl(FetchRequest().sortedBy(u"id"_s));
        auto rowsB = b.store().fetchVinyl(FetchRequest().sortedBy(u"id"_s));
        QCOMPARE(names(*rowsA), names(*rowsB));
        QCOMPARE(number(rowsA->first().id), qint16(1));
        QCOMPARE(number(rowsA->last().id), qint16(30));
        QCOMPARE(*a.store().count(FetchRequest(Entity::Tracks)), 90);
        QVERIFY(!QImage::fromData(*a.store().coverImage(rowsA->first().rowId, CoverSide::Front)).isNull());
    }
};

QTEST_MAIN(StoreTest)
#include "tst_store.moc"
