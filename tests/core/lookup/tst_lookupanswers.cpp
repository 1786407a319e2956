// The catalogue's answers: how a release is read, and what it fills in on the record forms.
#include "fakecatalogue.h"
#include "lookup/lookupanswers.h"
#include "lookup/lookupfill.h"
#include "lookup/lookuptexts.h"
#include "store/store.h"
#include "store/textfile.h"
#include "testsupport.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// A release answer of the given media, written inline for the rules that hang on the formats.
QByteArray withMedia(const QByteArray &media, const QByteArray &more = {})
{
    return R"({"id": "5a1d3c2e-7b4f-4e8a-9c61-0f2b3d4e5a60", "title": "Salt Roads", )" + more + R"("media": [)" + media + "]}";
}

QString precisionName(LookupDate::Precision precision)
{
    static const QStringList names{u"unknown"_s, u"year"_s, u"month"_s, u"day"_s};
    return names.at(int(precision));
}

// One field of a mapped release as text, so each row of the table checks one rule.
QString describe(const LookupRelease &release, const QString &field)
{
    if (field == "artist"_L1)
        return release.summary.artist;
    if (field == "label"_L1)
        return release.summary.label + u" / "_s + release.summary.catalogNumber;
    if (field == "format"_L1)
        return release.summary.format + u", "_s + QString::number(release.summary.trackCount) + u" tracks"_s;
    if (field == "releaseDate"_L1) {
        const QDateTime midnight = release.releaseDate.localMidnight();
        return precisionName(release.releaseDate.precision) + u' '
            + (midnight.timeSpec() == Qt::LocalTime ? midnight.toString(Qt::ISODate) : u"not local"_s);
    }
    if (field == "producer"_L1)
        return release.producer;
    if (field == "type"_L1)
        return release.doubleAlbum + u", "_s + release.recordSpeed;
    QStringList tracks;
    for (const LookupTrack &t : release.tracks)
        tracks << u"%1:%2 %3 %4 %5"_s.arg(t.medium).arg(t.position).arg(t.number, t.title,
                                                                          t.lengthMs ? QString::number(*t.lengthMs) : u"-"_s);
    return tracks.join(u" | "_s);
}

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

class TestLookupAnswers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    void mapsARelease_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("expected");

        const QByteArray salt = catalogueAnswer(u"release-salt-roads.json"_s);
        const QByteArray ferries = catalogueAnswer(u"release-night-ferries.json"_s);
        QTest::newRow("credit joined") << salt << u"artist"_s << u"Ana Ström & The Quiet"_s;
        QTest::newRow("first label") << ferries << u"label"_s << u"Harbour Light Records / QT 2LP 7"_s;
        QTest::newRow("full date") << salt << u"releaseDate"_s << u"day 2019-04-12T00:00:00"_s;
        QTest::newRow("year and month") << ferries << u"releaseDate"_s << u"month 1987-11-01T00:00:00"_s;
        QTest::newRow("one producer") << salt << u"producer"_s << u"Mira Kostova"_s;
        QTest::newRow("producers once each, no engineer") << ferries << u"producer"_s << u"Jon Ellery, Sanna Vik"_s;
        QTest::newRow("one 12-inch") << salt << u"type"_s << u"Single Album, 33 RPM"_s;
        QTest::newRow("two 12-inch") << ferries << u"type"_s << u"Double Album, 33 RPM"_s;
        QTest::newRow("double format") << ferries << u"format"_s << u"2×12\" Vinyl, 8 tracks"_s;
        QTest::newRow("four sides") << ferries << u"tracks"_s
                                    << u"1:1 A1 Harbour Lights 233000 | 1:2 A2 Deck Chairs 198000 | 1:3 B1 Northbound 305000 | "
                                       "1:4 B2 Fog Horn 176000 | 2:5 C1 Night Ferries 412000 | 2:6 C2 Ticket Stubs 221000 | "
                                       "2:7 D1 Open Water 267000 | 2:8 D2 Undertow -"_s;

        QTest::newRow("7-inch") << withMedia(R"({"format": "7\u0022 Vinyl"})") << u"type"_s << u"Single Album, 45 RPM"_s;
        QTest::newRow("10-inch: no speed") << withMedia(R"({"format": "10\u0022 Vinyl"})") << u"type"_s << u"Single Album, "_s;
        QTest::newRow("three records") << withMedia(R"({"format": "12\u0022 Vinyl"}, {"format": "12\u0022 Vinyl"}, {"format": "12\u0022 Vinyl"})")
                                       << u"type"_s << u"Triple Album, 33 RPM"_s;
        QTest::newRow("two CDs") << withMedia(R"({"format": "CD"}, {"format": "CD"})") << u"type"_s << u"Single Album, "_s;
        QTest::newRow("mixed sizes") << withMedia(R"({"format": "12\u0022 Vinyl", "track-count": 9}, {"format": "12\u0022 Vinyl"}, {"format": "7\u0022 Vinyl", "track-count": 2})")
                                     << u"format"_s << u"2×12\" Vinyl + 7\" Vinyl, 11 tracks"_s;
        QTest::newRow("year only") << withMedia({}, R"("date": "1975", )") << u"releaseDate"_s << u"year 1975-01-01T00:00:00"_s;
        QTest::newRow("no such month") << withMedia({}, R"("date": "1975-13", )") << u"releaseDate"_s << u"unknown "_s;
        QTest::newRow("credit without name") << withMedia({}, R"("artist-credit": [{"artist": {"name": "The Quiet"}}], )")
                                             << u"artist"_s << u"The Quiet"_s;
        QTest::newRow("odd track fields") << withMedia(R"({"tracks": [{"title": 7, "number": "1", "length": "long", "recording": {"title": "Gull Song"}}, 3]})")
                                          << u"tracks"_s << u"1:1 1 Gull Song - | 1:2   -"_s;
        QTest::newRow("label-info without label") << withMedia({}, R"("label-info": [{"catalog-number": "HLR-041", "label": null}], )")
                                                  << u"label"_s << u" / HLR-041"_s;
    }

    void mapsARelease()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, field);
        QFETCH(QString, expected);
        const Result<LookupRelease> release = LookupAnswers::releaseFromLookup(json);
        QVERIFY2(release.ok(), qPrintable(release.errorMessage()));
        QCOMPARE(describe(*release, field), expected);
    }

    void readsBothCandidatesOfASearch()
    {
        const auto rows = LookupAnswers::candidatesFromSearch(catalogueAnswer(u"search-salt-roads.json"_s));
        QVERIFY2(rows.ok(), qPrintable(rows.errorMessage()));
        const QList<LookupCandidate> expected{
            {u"5a1d3c2e-7b4f-4e8a-9c61-0f2b3d4e5a60"_s, u"Salt Roads"_s, u"Ana Ström & The Quiet"_s, u"Harbour Light Records"_s,
             u"HLR-041"_s, u"2019-04-12"_s, u"SE"_s, u"12\u0022 Vinyl"_s, 6, u"7391234567893"_s, 100},
            {u"8e7d6c5b-4a39-4281-9f0e-d1c2b3a49586"_s, u"Salt Roads"_s, u"Ana Ström & The Quiet"_s, u"Driftwood Pressings"_s,
             u"DWP 2201"_s, u"2022"_s, u"DE"_s, u"2×12\u0022 Vinyl"_s, 8, u"0736211234567"_s, 87}};
        QCOMPARE(*rows, expected);
    }

    void refusesUnreadableAnswers_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<bool>("isSearch");
        QTest::addColumn<QString>("expectedStart"); // empty: read, with the one row that has an id

        const QString notJson = LookupTexts::kNotJson.section(u'(', 0, 0);
        QTest::newRow("search cut off") << QByteArray(R"({"releases": [{"id": "x")") << true << notJson;
        QTest::newRow("search is a list") << QByteArray("[1, 2]") << true << LookupTexts::kNoReleaseList;
        QTest::newRow("search without releases") << QByteArray(R"({"error": "Invalid query"})") << true << LookupTexts::kNoReleaseList;
        QTest::newRow("rows without id skipped") << QByteArray(R"({"releases": [{"title": "x"}, 4, {"id": "y"}]})") << true << QString();
        QTest::newRow("release empty") << QByteArray() << false << notJson;
        QTest::newRow("release without id") << QByteArray(R"({"title": "Salt Roads"})") << false << LookupTexts::kNoRelease;
        QTest::newRow("release is a list") << QByteArray(R"([{"id": "x"}])") << false << LookupTexts::kNoRelease;
    }

    void refusesUnreadableAnswers()
    {
        QFETCH(QByteArray, json);
        QFETCH(bool, isSearch);
        QFETCH(QString, expectedStart);
        const QString error = isSearch ? LookupAnswers::candidatesFromSearch(json).errorMessage()
                                       : LookupAnswers::releaseFromLookup(json).errorMessage();
        QVERIFY2(expectedStart.isEmpty() ? error.isEmpty() : error.startsWith(expectedStart), qPrintable(error));
        if (expectedStart.isEmpty())
            QCOMPARE(LookupAnswers::candidatesFromSearch(json)->size(), 1);
    }

    // How a release found in the catalogue fills the add and the edit screen's form.
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

QTEST_MAIN(TestLookupAnswers)
#include "tst_lookupanswers.moc"
