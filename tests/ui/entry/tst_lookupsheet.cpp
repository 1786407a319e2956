// The Look Up sheet on the add and edit screens, against a fake catalogue on 127.0.0.1, and the
// camera's barcode scanner that feeds it.
#include "barcodepicture.h"
#include "entry/addvinylviewcontroller.h"
#include "entry/barcodescanner.h"
#include "entry/editvinylviewcontroller.h"
#include "entry/lookupsheetcontroller.h"
#include "fakecatalogue.h"
#include "lookup/lookuptexts.h"
#include "store/fetchrequest.h"
#include "store/wantedalbums.h"
#include "testsupport.h"
#include "wantlist/wantedviewcontroller.h"

#include <cstring>
#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>
#include <QVideoFrame>
#include <QVideoSink>

using namespace Qt::StringLiterals;

namespace {

QList<Track> tracksOf(TestApp &t, qint16 vinylId)
{
    return t.store()
        .fetchTracks(FetchRequest(Entity::Tracks).where(Predicate::equal(u"vinylID"_s, int(vinylId))).sortedBy(u"trackNumber"_s))
        .valueOr({});
}

// A new camera frame showing the picture, as a VideoOutput's sink receives it (the sink tells
// only a frame that differs from the last).
QVideoFrame frameOf(const QImage &picture)
{
    const QImage argb = picture.convertToFormat(QImage::Format_ARGB32);
    QVideoFrame frame(QVideoFrameFormat(argb.size(), QVideoFrameFormat::pixelFormatFromImageFormat(argb.format())));
    if (!frame.map(QVideoFrame::WriteOnly))
        return {};
    for (int y = 0; y < argb.height(); ++y)
        std::memcpy(frame.bits(0) + y * frame.bytesPerLine(0), argb.constScanLine(y), argb.width() * 4);
    frame.unmap();
    return frame;
}

} // namespace

class TestLookupSheet : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FakeService> m_service;

    void serveSaltRoads()
    {
        ::serveSaltRoads(*m_service, encodedPicture(solidPicture(QSize(500, 500), Qt::darkRed), "JPEG"));
    }

    // Searches and waits for the releases found.
    static bool search(LookupSheetController &sheet, const QString &query)
    {
        sheet.setQuery(query);
        sheet.Search();
        return QTest::qWaitFor([&] { return !sheet.isBusy(); });
    }

private slots:
    void initTestCase() { useTestLocale(); }
    void init()
    {
        m_service = std::make_unique<FakeService>();
        pointClientsAt(m_service->base());
    }

    // A barcode lists the pressings with their covers as they come; choosing one fills the add
    // form, and only the save stores it, with its tracks.
    void aChosenReleaseFillsTheAddForm()
    {
        serveSaltRoads();
        TestApp t;
        AddVinylViewController form(&t.app());
        LookupSheetController sheet;
        sheet.setForm(&form);
        QAbstractItemModelTester tester(sheet.candidates(), QAbstractItemModelTester::FailureReportingMode::QtTest);

        QVERIFY(search(sheet, u"7391234567893"_s));
        QCOMPARE(sheet.message(), LookupTexts::kReleasesFound.arg(2));
        auto *rows = sheet.candidates();
        QCOMPARE(rows->rowCount(), 2);
        QCOMPARE(rows->data(rows->index(0), LookupCandidateModel::DetailsRole).toString(),
                 u"Harbour Light Records HLR-041 · 2019-04-12 · SE · 12\" Vinyl · 6 tracks"_s);
        QCOMPARE(rows->data(rows->index(1), LookupCandidateModel::DetailsRole).toString(),
                 u"Driftwood Pressings DWP 2201 · 2022 · DE · 2×12\" Vinyl · 8 tracks"_s);
        // The first has a cover; the second has none (404), and its row stays without one.
        QTRY_VERIFY(rows->data(rows->index(0), LookupCandidateModel::CoverSourceRole).toString().startsWith(u"data:image/"_s));
        QTRY_VERIFY(std::any_of(m_service->received.cbegin(), m_service->received.cend(),
                                [](const auto &r) { return r.target.endsWith(kSecondPressingId + u"/front-250"_s); }));
        QCOMPARE(rows->data(rows->index(1), LookupCandidateModel::CoverSourceRole).toString(), QString());

        QSignalSpy closed(&sheet, &LookupSheetController::closeRequested);
        sheet.CandidateChosen(0);
        QVERIFY(closed.wait(10000));
        // What each field takes from the release is the fill's; the sheet puts it on the form.
        QCOMPARE(form.albumName(), u"Salt Roads"_s);
        QCOMPARE(form.releaseDate(), u"Apr 12, 2019"_s);
        QCOMPARE(form.quantity(), QString()); // as for any new record
        QVERIFY(form.hasFrontImage());
        QVERIFY(!form.hasBackImage());
        QCOMPARE(form.lookedUpTrackLines().size(), 6);
        QCOMPARE(form.lookedUpTrackLines().first(), u"1. Lanterns  3.35"_s);
        QCOMPARE(t.count(), 0);

        form.SaveNewVinylButtonClicked();
        const Vinyl saved = t.vinyl(form.savedRowId());
        QCOMPARE(saved.musicBrainzReleaseId.value_or(QString()), kSaltRoadsId);
        QVERIFY(saved.frontImage);
        const QList<Track> tracks = tracksOf(t, number(saved.id));
        QCOMPARE(tracks.size(), 6);
        QCOMPARE(tracks.at(5).song.value_or(QString()), u"Last Ferry"_s);
        QCOMPARE(tracks.at(5).trackNumber.value_or(0), 6);
    }

    // A release the collection has is asked about before anything is filled or stored.
    void aReleaseInTheCollectionIsAskedAbout_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<qint16>("quantity");
        QTest::addColumn<QString>("albumName"); // what the add form shows afterwards
        QTest::addColumn<QString>("unwind");
        QTest::newRow("one more copy") << u"copy"_s << qint16(2) << QString() << u"unwindToList"_s;
        QTest::newRow("a separate record") << u"separate"_s << qint16(1) << u"Salt Roads"_s << QString();
        QTest::newRow("cancel") << u"cancel"_s << qint16(1) << QString() << QString();
    }

    void aReleaseInTheCollectionIsAskedAbout()
    {
        QFETCH(QString, answer);
        QFETCH(qint16, quantity);
        QFETCH(QString, albumName);
        QFETCH(QString, unwind);
        serveSaltRoads();
        TestApp t;
        Vinyl mine = t.addVinyl(u"Salt Roads"_s, u"Ana Ström & The Quiet"_s, u"Harbour Light"_s, 4);
        mine.quantity = 1;
        QVERIFY(t.store().update(mine));
        t.app().state()->setOriginScreen(OriginScreens::List);
        AddVinylViewController form(&t.app());
        LookupSheetController sheet;
        sheet.setForm(&form);
        QVERIFY(search(sheet, u"Ana Ström - Salt Roads"_s));
        sheet.CandidateChosen(0);
        QTRY_COMPARE(sheet.page(), u"duplicate"_s);
        QCOMPARE(sheet.duplicateMessage(),
                 u"\"Salt Roads\" by Ana Ström & The Quiet (record 4) is already in the collection (1 copy)."_s);

        QSignalSpy closed(&sheet, &LookupSheetController::closeRequested);
        if (answer == "copy"_L1)
            sheet.AddCopyButtonClicked();
        else if (answer == "separate"_L1)
            sheet.AddSeparateButtonClicked();
        else
            sheet.BackToCandidates();
        QTRY_VERIFY(!sheet.isBusy());
        QCOMPARE(closed.isEmpty(), answer == "cancel"_L1);
        QCOMPARE(t.vinyl(mine.rowId).quantity.value_or(0), quantity);
        QCOMPARE(t.count(), 1);
        QCOMPARE(form.albumName(), albumName);
        QCOMPARE(t.app().navigator()->lastUnwind(), unwind);
    }

    // On the wantlist a release the collection has fills the form all the same, and the album
    // is saved with its tracks and its release id, in the wantlist, not the collection.
    void aReleaseFoundFillsAWantedAlbum()
    {
        serveSaltRoads();
        TestApp t;
        t.addVinyl(u"Salt Roads"_s, u"Ana Ström & The Quiet"_s, u"Harbour Light"_s, 4);
        WantedViewController form(&t.app());
        LookupSheetController sheet;
        sheet.setForm(&form);
        QVERIFY(search(sheet, u"Ana Ström - Salt Roads"_s));
        QSignalSpy closed(&sheet, &LookupSheetController::closeRequested);
        sheet.CandidateChosen(0);
        QVERIFY(closed.wait(10000));
        QCOMPARE(form.albumName(), u"Salt Roads"_s);
        form.save();
        const QList<WantedAlbum> wanted = WantedAlbums::all(t.store()).valueOr({});
        QCOMPARE(wanted.size(), 1);
        QCOMPARE(text(wanted.first().album.musicBrainzReleaseId), kSaltRoadsId);
        QVERIFY((*WantedAlbums::byRowId(t.store(), wanted.first().rowId))->album.frontImage);
        QCOMPARE(WantedAlbums::tracks(t.store(), wanted.first().rowId)->size(), 6);
        QCOMPARE(t.count(), 1);
    }

    // The edit screen shows what the release would fill in, only what is empty, before it does;
    // the tracks go to the record with the save.
    void theEditScreenFillsOnlyWhatIsEmpty()
    {
        serveSaltRoads();
        TestApp t;
        Vinyl mine = t.addVinyl(u"Salt Roads"_s, u"Ana Strom"_s, u"Harbour Light"_s, 9);
        mine.producer = u"Lena Berg"_s;
        QVERIFY(t.store().update(mine));
        t.app().state()->setCurrentRecord(t.vinyl(mine.rowId));
        t.app().state()->setOriginScreen(OriginScreens::List);
        EditVinylViewController form(&t.app());
        LookupSheetController sheet;
        sheet.setForm(&form);
        QVERIFY(search(sheet, u"7391234567893"_s));
        sheet.CandidateChosen(0);
        QTRY_COMPARE(sheet.page(), u"review"_s);
        QStringList changes;
        for (const QVariant &change : sheet.changes())
            changes << change.toMap().value(u"what"_s).toString() + u": "_s + change.toMap().value(u"becomes"_s).toString();
        QCOMPARE(changes, (QStringList{u"Release Date: Apr 12, 2019"_s, u"Run Length (min): 24.9"_s,
                                       u"Barcode: 7391234567893"_s, u"Record Speed: 33 RPM"_s,
                                       u"Single/Double: Single Album"_s, u"Notes: Catalog number: HLR-041"_s,
                                       u"Tracks: 6 tracks"_s, u"Front Cover: the picture from the Cover Art Archive"_s}));
        QCOMPARE(form.releaseDate(), QString()); // nothing before the collector says so

        sheet.FillInButtonClicked();
        QCOMPARE(form.artist(), u"Ana Strom"_s);
        QCOMPARE(form.producer(), u"Lena Berg"_s);
        QCOMPARE(form.releaseDate(), u"Apr 12, 2019"_s);
        QVERIFY(form.hasFrontImage());
        form.SaveVinylButtonClicked();
        QCOMPARE(tracksOf(t, 9).size(), 6);
        const Vinyl saved = t.vinyl(mine.rowId);
        QCOMPARE(saved.musicBrainzReleaseId.value_or(QString()), kSaltRoadsId);
        QCOMPARE(saved.producer.value_or(QString()), u"Lena Berg"_s);
    }

    // A photo of the sleeve is read off the UI thread and its code searched.
    void aPhotoIsReadAndSearched()
    {
        serveSaltRoads();
        TestApp t;
        AddVinylViewController form(&t.app());
        LookupSheetController sheet;
        sheet.setForm(&form);
        const QString photo = QDir(t.dataDir()).filePath(u"sleeve.png"_s);
        QVERIFY(barcodePicture(ZXing::BarcodeFormat::EAN13, u"739123456789"_s).save(photo));
        sheet.PhotoChosen(QUrl::fromLocalFile(photo));
        QTRY_COMPARE(sheet.candidates()->rowCount(), 2);
        QCOMPARE(sheet.query(), u"7391234567890"_s);
    }

    // Whatever goes wrong is said in the sheet, and the form and the store stay as they were;
    // covers that cannot be had leave the rest of the release on the form.
    void failuresSayWhy_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QByteArray>("searchAnswer"); // empty: nothing listens
        QTest::addColumn<QByteArray>("releaseAnswer");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("albumName");
        QTest::addColumn<QString>("alert");
        const QByteArray search = catalogueAnswer(u"search-salt-roads.json"_s);
        const QByteArray release = catalogueAnswer(u"release-salt-roads.json"_s);
        const QByteArray none = R"({"created": "2024-05-02T10:11:12.000Z", "count": 0, "offset": 0, "releases": []})";
        QTest::newRow("unreachable") << u"7391234567893"_s << QByteArray() << QByteArray()
                                     << u"Could not reach MusicBrainz"_s << QString() << QString();
        QTest::newRow("nothing found") << u"4006381333931"_s << none << QByteArray()
                                       << u"No release found for 4006381333931."_s << QString() << QString();
        QTest::newRow("a title") << u"Nothing Like It"_s << none << QByteArray()
                                 << u"No release found for \"Nothing Like It\"."_s << QString() << QString();
        QTest::newRow("release not JSON") << u"7391234567893"_s << search << QByteArray("<html>")
                                          << u"MusicBrainz sent an answer that is not JSON"_s << QString() << QString();
        QTest::newRow("cover not a picture") << u"7391234567893"_s << search << release << QString() << u"Salt Roads"_s
                                             << LookupTexts::kCoversNotLoadedTitle;
    }

    void failuresSayWhy()
    {
        QFETCH(QString, query);
        QFETCH(QByteArray, searchAnswer);
        QFETCH(QByteArray, releaseAnswer);
        QFETCH(QString, message);
        QFETCH(QString, albumName);
        QFETCH(QString, alert);
        if (searchAnswer.isEmpty())
            pointClientsAt(u"http://127.0.0.1:1/"_s);
        m_service->answer(u"/ws/2/release/"_s, {{200, searchAnswer}});
        m_service->answer(u"/ws/2/release/"_s + kSaltRoadsId, {{200, releaseAnswer}});
        m_service->answer(u"/release/"_s + kSaltRoadsId + u"/front-500"_s, {{200, "not a picture"}});
        TestApp t;
        AddVinylViewController form(&t.app());
        LookupSheetController sheet;
        sheet.setForm(&form);
        QVERIFY(search(sheet, query));
        if (sheet.candidates()->rowCount() > 0) {
            sheet.CandidateChosen(0);
            QTRY_VERIFY(!sheet.isBusy());
        }
        QVERIFY2(sheet.message().startsWith(message), qPrintable(sheet.message()));
        QCOMPARE(form.albumName(), albumName);
        QCOMPARE(form.lastAlertTitle(), alert);
        QVERIFY(!form.hasFrontImage());
        QCOMPARE(t.count(), 0);
    }

    // The scanner on camera frames.
    void tellsEachCodeOnceWhileItStaysInView()
    {
        QVideoSink sink;
        BarcodeScanner scanner;
        scanner.setVideoSink(&sink);
        QSignalSpy found(&scanner, &BarcodeScanner::found);
        const QImage sleeve = barcodePicture(ZXing::BarcodeFormat::EAN13, u"4006381333931"_s);
        const QImage other = barcodePicture(ZXing::BarcodeFormat::UPCA, u"036000291452"_s);

        for (int decodes = 0; decodes < 3; ++decodes) {
            QTRY_VERIFY((sink.setVideoFrame(frameOf(sleeve)), scanner.isDecoding()));
            // Arrives while a frame is decoded: dropped, never decoded later.
            sink.setVideoFrame(frameOf(other));
            QTRY_VERIFY(!scanner.isDecoding());
        }
        QCOMPARE(found.count(), 1);
        QCOMPARE(found.at(0), (QVariantList{u"4006381333931"_s, u"EAN-13"_s}));

        QTRY_VERIFY((sink.setVideoFrame(frameOf(other)), found.count() == 2));
        QCOMPARE(found.at(1), (QVariantList{u"036000291452"_s, u"UPC-A"_s}));

        // Scanning again from the start tells the first sleeve again.
        scanner.reset();
        QTRY_VERIFY((sink.setVideoFrame(frameOf(sleeve)), found.count() == 3));
        QCOMPARE(found.at(2).at(0), u"4006381333931"_s);
    }
};

QTEST_MAIN(TestLookupSheet)
#include "tst_lookupsheet.moc"
