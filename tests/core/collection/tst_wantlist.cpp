// The wantlist: wanted albums kept apart from the collection, their form, and Got It.
#include "collection/statistics.h"
#include "collection/wantlist.h"
#include "store/recordnumbers.h"
#include "store/store.h"
#include "store/wantedalbums.h"
#include "testsupport.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

WantedAlbum wantedAlbum(const QString &name, const QString &artist, qint16 priority = 2)
{
    WantedAlbum w;
    w.album.name = name;
    w.album.artist = artist;
    w.priority = priority;
    return w;
}

Track track(qint16 number, const QString &song, double minutes)
{
    Track t;
    t.trackNumber = number;
    t.song = song;
    t.duration = minutes;
    return t;
}

} // namespace

class TestWantlist : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    // Wanted albums sit beside the collection and never count in it.
    void wantedAlbumsNeverCountInTheCollection()
    {
        TestApp t;
        QVERIFY(t.ok());
        RecordBuilder(u"Owned"_s).artist(u"Ada Vell"_s).value(20, 2).cost(5).store(t.store());
        for (const auto &name : {u"Sought A"_s, u"Sought B"_s}) {
            WantedAlbum w = wantedAlbum(name, u"Ada Vell"_s);
            w.album.value = 100;
            w.album.quantity = 1;
            QVERIFY(WantedAlbums::insert(t.store(), w, {track(1, u"Song"_s, 3)}).ok());
        }
        QCOMPARE(t.count(), 1);
        QCOMPARE(t.count(Entity::Tracks), 0);
        QCOMPARE(*WantedAlbums::count(t.store()), 2);
        const auto stats = StatisticsQueries::compute(t.store());
        QVERIFY(stats.ok());
        QCOMPARE(stats->figures.records, 1);
        QCOMPARE(stats->figures.totalValue, 40.0);
        QCOMPARE(stats->topArtistsByRecords.first().value, 1.0);
    }

    // Sought first first, then by artist and name; covers only when asked for.
    void listOrderAndCovers()
    {
        TestApp t;
        const QByteArray cover = encodedPicture(solidPicture({8, 8}, Qt::red), "JPEG");
        WantedAlbum low = wantedAlbum(u"Zeta"_s, u"Brook"_s, 3);
        WantedAlbum high = wantedAlbum(u"Omega"_s, u"Cato"_s, 1);
        WantedAlbum mid = wantedAlbum(u"Alpha"_s, u"Ames"_s, 2);
        high.album.frontImage = cover;
        for (WantedAlbum *w : {&low, &high, &mid})
            QVERIFY(WantedAlbums::insert(t.store(), *w).ok());
        QStringList names;
        for (const WantedAlbum &w : *WantedAlbums::all(t.store())) {
            names << *w.album.name;
            QVERIFY(!w.album.frontImage);
        }
        QCOMPARE(names, (QStringList{u"Omega"_s, u"Alpha"_s, u"Zeta"_s}));
        QCOMPARE((*WantedAlbums::byRowId(t.store(), high.rowId))->album.frontImage, cover);

        // Saved without its covers read, an album keeps them.
        WantedAlbum edited = **WantedAlbums::byRowId(t.store(), high.rowId, false);
        edited.maxPrice = 30;
        QVERIFY(WantedAlbums::update(t.store(), edited).ok());
        const WantedAlbum stored = **WantedAlbums::byRowId(t.store(), high.rowId);
        QCOMPARE(stored.maxPrice, std::optional<float>(30));
        QCOMPARE(stored.album.frontImage, cover);
    }

    // Got It: the album becomes the next record with its fields, tracks, covers and cost.
    void gotItMovesTheAlbumIntoTheCollection()
    {
        TestApp t;
        RecordBuilder(u"Owned"_s).id(7).store(t.store());
        const QByteArray front = encodedPicture(solidPicture({8, 8}, Qt::blue), "JPEG");
        WantedAlbum w = wantedAlbum(u"Salt Lanterns"_s, u"Mira Okonjo"_s, 1);
        w.album.recordLabel = u"Ember Row"_s;
        w.album.releaseDate = localDate(1974, 5, 2);
        w.album.value = 42;
        w.album.musicBrainzReleaseId = u"5b0c1f7e-0000-4000-8000-000000000001"_s;
        w.album.frontImage = front;
        w.maxPrice = 50;
        QVERIFY(WantedAlbums::insert(t.store(), w, {track(2, u"Tide"_s, 4.5), track(1, u"Lamp"_s, 3.25)}).ok());

        const auto record = Wantlist::gotIt(t.store(), w.rowId, 38.5f);
        QVERIFY2(record.ok(), qPrintable(record.errorMessage()));
        const Vinyl stored = t.vinyl(record->rowId);
        QCOMPARE(stored.id, std::optional<qint16>(8));
        QCOMPARE(attributeTexts(stored, {u"name"_s, u"artist"_s, u"recordLabel"_s, u"releaseDate"_s, u"cost"_s, u"value"_s}),
                 (QStringList{u"name=Salt Lanterns"_s, u"artist=Mira Okonjo"_s, u"releaseDate=1974-05-02T00:00:00"_s,
                              u"recordLabel=Ember Row"_s, u"cost=38.5"_s, u"value=42.0"_s}));
        QCOMPARE(stored.musicBrainzReleaseId, w.album.musicBrainzReleaseId);
        QCOMPARE(stored.frontImage, front);
        QCOMPARE(sqlColumn(t.store().database(), u"SELECT trackNumber || ' ' || song FROM Tracks WHERE vinylID = 8 "
                                                  "ORDER BY trackNumber"_s),
                 (QStringList{u"1 Lamp"_s, u"2 Tide"_s}));
        QCOMPARE(t.store().quotes(record->rowId)->size(), 1);
        QCOMPARE(*WantedAlbums::count(t.store()), 0);
        QCOMPARE(sqlColumn(t.store().database(), u"SELECT count(*) FROM WantedTracks"_s), QStringList{u"0"_s});
    }

    // A Got It that cannot be done changes nothing.
    void gotItRefused_data()
    {
        QTest::addColumn<bool>("gone");
        QTest::addColumn<QString>("message");
        QTest::newRow("album gone") << true << Wantlist::kGone;
        QTest::newRow("no record number left") << false << kNoRecordNumberLeft;
    }
    void gotItRefused()
    {
        QFETCH(bool, gone);
        QFETCH(QString, message);
        TestApp t;
        RecordBuilder(u"Last"_s).id(32767).store(t.store());
        WantedAlbum w = wantedAlbum(u"Salt Lanterns"_s, u"Mira Okonjo"_s);
        QVERIFY(WantedAlbums::insert(t.store(), w, {track(1, u"Lamp"_s, 3)}).ok());
        const qint64 rowId = gone ? w.rowId + 1 : w.rowId;
        const auto record = Wantlist::gotIt(t.store(), rowId, 10.0f);
        QVERIFY(!record.ok());
        QCOMPARE(record.errorMessage(), message);
        QCOMPARE(t.count(), 1);
        QCOMPARE(t.count(Entity::Tracks), 0);
        QCOMPARE(*WantedAlbums::count(t.store()), 1);
    }

    // The form: album and artist required, the most to pay in the collector's locale.
    void fromForm_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("artist");
        QTest::addColumn<QString>("maxPrice");
        QTest::addColumn<int>("priority");
        QTest::addColumn<QString>("result");
        QTest::newRow("en_US") << u"en_US"_s << u"Mira Okonjo"_s << u"$1,234.50"_s << 1 << u"1234.5 1"_s;
        QTest::newRow("de_DE") << u"de_DE"_s << u"Mira Okonjo"_s << u"1.234,50 €"_s << 2 << u"1234.5 2"_s;
        QTest::newRow("fr_FR") << u"fr_FR"_s << u"Mira Okonjo"_s << u"1 234,50"_s << 3 << u"1234.5 3"_s;
        QTest::newRow("no limit, priority clamped") << u"en_US"_s << u"Mira Okonjo"_s << u""_s << 9 << u"none 3"_s;
        QTest::newRow("no artist") << u"en_US"_s << u"  "_s << u"5"_s << 1 << Wantlist::kRequiredMessage;
        QTest::newRow("price not a number") << u"en_US"_s << u"Mira Okonjo"_s << u"a lot"_s << 1 << u"error"_s;
    }
    void fromForm()
    {
        QFETCH(QString, locale);
        QFETCH(QString, artist);
        QFETCH(QString, maxPrice);
        QFETCH(int, priority);
        QFETCH(QString, result);
        ScopedLocale scoped(locale);
        RecordFormFields fields;
        fields.name = u"Salt Lanterns"_s;
        fields.artist = artist;
        const auto wanted = Wantlist::fromForm(fields, maxPrice, priority);
        if (result == u"error"_s) {
            QVERIFY(!wanted.ok());
            QVERIFY2(wanted.errorMessage().contains(u"Most I Would Pay"_s), qPrintable(wanted.errorMessage()));
            return;
        }
        if (!wanted.ok()) {
            QCOMPARE(wanted.errorMessage(), result);
            return;
        }
        const QString limit = wanted->maxPrice ? QString::number(*wanted->maxPrice) : u"none"_s;
        QCOMPARE(limit + u' ' + QString::number(wanted->priority), result);
        QVERIFY(!wanted->album.albumDuration);
        // The form shows the album again as it was entered.
        QCOMPARE(Wantlist::formFields(*wanted), fields);
    }

    // A new record is on the wantlist when it is the same release, or the same album by the same
    // artist whatever the case.
    void matching_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("artist");
        QTest::addColumn<QString>("releaseId");
        QTest::addColumn<QStringList>("found");
        const QString release = u"5b0c1f7e-0000-4000-8000-000000000001"_s;
        QTest::newRow("same album, other case") << u"salt  LANTERNS "_s << u"mira okonjo"_s << QString()
                                                << QStringList{u"Salt Lanterns"_s};
        QTest::newRow("accented letters fold") << u"ÉTÉ"_s << u"Zoë"_s << QString() << QStringList{u"Été"_s};
        QTest::newRow("same release, other name") << u"Lanterns (Deluxe)"_s << u"M. Okonjo"_s << release
                                                  << QStringList{u"Salt Lanterns"_s};
        QTest::newRow("other artist") << u"Salt Lanterns"_s << u"Someone Else"_s << QString() << QStringList();
    }
    void matching()
    {
        QFETCH(QString, name);
        QFETCH(QString, artist);
        QFETCH(QString, releaseId);
        QFETCH(QStringList, found);
        TestApp t;
        WantedAlbum salt = wantedAlbum(u"Salt Lanterns"_s, u"Mira Okonjo"_s);
        salt.album.musicBrainzReleaseId = u"5b0c1f7e-0000-4000-8000-000000000001"_s;
        WantedAlbum ete = wantedAlbum(u"Été"_s, u"Zoë"_s);
        QVERIFY(WantedAlbums::insert(t.store(), salt).ok());
        QVERIFY(WantedAlbums::insert(t.store(), ete).ok());
        Vinyl record;
        record.name = name;
        record.artist = artist;
        if (!releaseId.isEmpty())
            record.musicBrainzReleaseId = releaseId;
        QStringList names;
        for (const WantedAlbum &w : *Wantlist::matching(t.store(), record))
            names << *w.album.name;
        QCOMPARE(names, found);
    }
};

QTEST_MAIN(TestWantlist)
#include "tst_wantlist.moc"
