#include "lookup/lookupfill.h"
#include "lookup/lookuptexts.h"
#include "store/store.h"
#include "testsupport.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// A release as the catalogue answers it, with two tracks of known length.
LookupRelease saltRoads()
{
    LookupRelease r;
    r.summary.releaseId = u"5a1d3c2e-7b4f-4e8a-9c61-0f2b3d4e5a60"_s;
    r.summary.title = u"Salt Roads"_s;
    r.summary.artist = u"Ana Ström & The Quiet"_s;
    r.summary.label = u"Harbour Light Records"_s;
    r.summary.catalogNumber = u"HLR-041"_s;
    r.summary.barcode = u"7391234567893"_s;
    r.releaseDate = LookupAnswers::dateFromText(u"2019-04-12"_s);
    r.producer = u"Mira Kostova"_s;
    r.doubleAlbum = u"Single Album"_s;
    r.recordSpeed = u"33 RPM"_s;
    r.tracks = {{u"Lanterns"_s, u"A1"_s, 1, 1, 201000}, {u"Tidewater"_s, u"A2"_s, 2, 1, 254333}};
    return r;
}

LookedUpRecord found(const LookupRelease &release = saltRoads(), bool covers = true)
{
    LookupCovers pictures;
    if (covers) {
        pictures.front = solidPicture(QSize(500, 500), Qt::darkRed);
        pictures.back = solidPicture(QSize(500, 500), Qt::darkBlue);
    }
    return LookedUp::record(release, pictures).value();
}

QStringList changeNames(const QList<LookupFill::Change> &changes)
{
    QStringList names;
    for (const LookupFill::Change &c : changes)
        names << c.what;
    return names;
}

} // namespace

// How a release found in the catalogue fills the add and the edit screen's form.
class TestLookupFill : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    // The add screen takes everything the release has, and keeps what is the collector's own.
    void fillsANewRecordsForm()
    {
        RecordFormFields form;
        form.quantity = u"2"_s;
        form.vinylCondition = u"Near Mint"_s;
        form.cost = u"12.50"_s;
        const RecordFormFields filled = LookupFill::newRecordForm(form, found());
        RecordFormFields expected = form;
        expected.name = u"Salt Roads"_s;
        expected.artist = u"Ana Ström & The Quiet"_s;
        expected.releaseDate = u"Apr 12, 2019"_s;
        expected.recordLabel = u"Harbour Light Records"_s;
        expected.recordLength = u"7.6"_s; // 3:21 + 4:14.333
        expected.producer = u"Mira Kostova"_s;
        expected.barcode = u"7391234567893"_s;
        expected.recordSpeed = u"33 RPM"_s;
        expected.doubleAlbum = u"Single Album"_s;
        expected.notes = u"Catalog number: HLR-041"_s;
        QCOMPARE(filled, expected);

        form.notes = u"Signed sleeve"_s;
        QCOMPARE(LookupFill::newRecordForm(form, found()).notes, u"Signed sleeve"_s);
    }

    // The edit screen fills only what is empty, and says what it fills.
    void fillsOnlyWhatIsEmpty_data()
    {
        QTest::addColumn<RecordFormFields>("form");
        QTest::addColumn<bool>("hasTracks");
        QTest::addColumn<bool>("hasCovers");
        QTest::addColumn<QStringList>("changes");
        RecordFormFields stored;
        stored.name = u"Salt Roads"_s;
        stored.artist = u"Ana Strom"_s;
        stored.recordLabel = u"Harbour Light"_s;
        stored.recordLength = u"0"_s; // how the edit screen shows a record without a run length
        stored.quantity = u"1"_s;
        const QStringList allButTheRequired{u"Release Date"_s, u"Run Length (min)"_s, u"Producer"_s, u"Barcode"_s,
                                            u"Record Speed"_s, u"Single/Double"_s, u"Notes"_s};
        QTest::newRow("bare record") << stored << false << false
                                     << allButTheRequired + QStringList{LookupFill::kTracks, LookupFill::kFrontCover, LookupFill::kBackCover};
        QTest::newRow("with tracks and covers") << stored << true << true << allButTheRequired;
        RecordFormFields full = stored;
        full.releaseDate = u"Jan 1, 2019"_s;
        full.recordLength = u"41.5"_s;
        full.producer = u"  Someone  "_s;
        full.barcode = u"123456789012"_s;
        full.recordSpeed = u"45 RPM"_s;
        full.doubleAlbum = u"Double Album"_s;
        full.notes = u"Mine"_s;
        QTest::newRow("nothing empty") << full << true << true << QStringList();
    }

    void fillsOnlyWhatIsEmpty()
    {
        QFETCH(RecordFormFields, form);
        QFETCH(bool, hasTracks);
        QFETCH(bool, hasCovers);
        QFETCH(QStringList, changes);
        const auto fill = LookupFill::emptyFields({form, hasTracks, hasCovers, hasCovers}, found());
        QCOMPARE(changeNames(fill.changes), changes);
        QCOMPARE(fill.tracks, !hasTracks);
        QCOMPARE(fill.frontCover, !hasCovers);
        // What was filled in stays as the collector wrote it.
        QCOMPARE(fill.fields.name, form.name);
        QCOMPARE(fill.fields.artist, form.artist);
        QCOMPARE(fill.fields.producer, form.producer.trimmed().isEmpty() ? u"Mira Kostova"_s : form.producer);
    }

    // The run length is the tracks' only when every track has a believable length.
    void runLengthFromTheTracks_data()
    {
        QTest::addColumn<QList<std::optional<qint64>>>("lengths");
        QTest::addColumn<double>("runLength"); // -1: none
        QTest::newRow("all known") << QList<std::optional<qint64>>{201000, 254333} << 7.6;
        QTest::newRow("one unknown") << QList<std::optional<qint64>>{201000, std::nullopt} << -1.0;
        QTest::newRow("absurd") << QList<std::optional<qint64>>{201000, std::numeric_limits<qint64>::max()} << -1.0;
        QTest::newRow("no tracks") << QList<std::optional<qint64>>{} << -1.0;
    }

    void runLengthFromTheTracks()
    {
        QFETCH(QList<std::optional<qint64>>, lengths);
        QFETCH(double, runLength);
        LookupRelease release = saltRoads();
        release.tracks.clear();
        for (const auto &length : lengths)
            release.tracks.append({u"Track"_s, QString(), int(release.tracks.size() + 1), 1, length});
        const Vinyl v = found(release).vinyl;
        QCOMPARE(v.albumDuration.value_or(-1), runLength);
    }

    // One more copy: a record without a quantity counts as one; the largest quantity stays.
    void addsACopy_data()
    {
        QTest::addColumn<std::optional<qint16>>("quantity");
        QTest::addColumn<std::optional<qint16>>("after");
        QTest::addColumn<QString>("error");
        QTest::newRow("none") << std::optional<qint16>() << std::optional<qint16>(2) << QString();
        QTest::newRow("three") << std::optional<qint16>(3) << std::optional<qint16>(4) << QString();
        QTest::newRow("largest") << std::optional<qint16>(32767) << std::optional<qint16>(32767)
                                 << u"\"Salt Roads\" by Ana Ström & The Quiet (record 7) already has 32,767 copies, the most a record can hold."_s;
    }

    void addsACopy()
    {
        QFETCH(std::optional<qint16>, quantity);
        QFETCH(std::optional<qint16>, after);
        QFETCH(QString, error);
        TestApp t;
        Vinyl v = t.addVinyl(u"Salt Roads"_s, u"Ana Ström & The Quiet"_s, u"Harbour Light Records"_s, 7);
        v.quantity = quantity;
        QVERIFY(t.store().update(v));
        const auto added = LookedUp::addCopy(t.store(), v.rowId);
        QCOMPARE(added.errorMessage(), error);
        QCOMPARE(t.store().vinylByRowId(v.rowId).value()->quantity, after);
    }
};

QTEST_MAIN(TestLookupFill)
#include "tst_lookupfill.moc"
