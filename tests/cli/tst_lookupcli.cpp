#include "barcodepicture.h"
#include "cli/cli.h"
#include "fakecatalogue.h"
#include "store/fetchrequest.h"
#include "store/store.h"
#include "store/textfile.h"
#include "testsupport.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QString &kSaltRoads = kSaltRoadsId;


} // namespace

// `platterbox lookup` against a fake catalogue on 127.0.0.1.
class LookupCliTest : public QObject
{
    Q_OBJECT

private:
    struct Run
    {
        int code;
        QString out;
        QString err;
    };
    Run run(QStringList arguments)
    {
        arguments.prepend(u"--data-dir="_s + m_dir->path());
        QString out, err;
        QTextStream outStream(&out), errStream(&err);
        const int code = runCli(arguments, outStream, errStream);
        return {code, out, err};
    }
    QList<Vinyl> records()
    {
        auto store = Store::open(QDir(m_dir->path()).filePath(Store::kFileName));
        return store ? (*store)->fetchVinyl(FetchRequest(Entity::Vinyl)).valueOr(QList<Vinyl>()) : QList<Vinyl>();
    }
    void serveSaltRoads()
    {
        ::serveSaltRoads(*m_service, encodedPicture(solidPicture(QSize(600, 600), Qt::darkRed), "JPEG"));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<FakeService> m_service;

private slots:
    void initTestCase() { useTestLocale(); }
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_service = std::make_unique<FakeService>();
        pointClientsAt(m_service->base());
    }

    void listsTheCandidatesAndChangesNothing()
    {
        serveSaltRoads();
        const Run listed = run({u"lookup"_s, u"7391234567893"_s});
        QCOMPARE(listed.code, 0);
        const QStringList lines = listed.out.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines.first(), u"1. Ana Ström & The Quiet - Salt Roads (Harbour Light Records HLR-041, 2019-04-12, SE, 12\" Vinyl, 6 tracks)"_s);
        QVERIFY(lines.last().startsWith(u"2. "_s));
        QVERIFY(records().isEmpty());
    }

    // A photo of the sleeve: its code is read and looked up.
    void readsTheBarcodeFromAPhoto()
    {
        serveSaltRoads();
        const QString photo = QDir(m_dir->path()).filePath(u"sleeve.png"_s);
        QVERIFY(barcodePicture(ZXing::BarcodeFormat::EAN13, u"739123456789"_s).save(photo)); // check digit 0
        const Run listed = run({u"lookup"_s, u"--image"_s, photo});
        QCOMPARE(listed.code, 0);
        QVERIFY(listed.out.startsWith(u"Read EAN-13 7391234567890 from "_s));
        QVERIFY(m_service->received.first().target.contains(u"barcode:7391234567890"_s));
    }

    // --add stores the chosen release with its tracks and covers, once.
    void addsTheReleaseOnce()
    {
        serveSaltRoads();
        const Run added = run({u"lookup"_s, u"--search"_s, u"Ana Ström - Salt Roads"_s, u"--add"_s});
        QCOMPARE(added.err, QString());
        QCOMPARE(added.code, 0);
        QCOMPARE(added.out, u"Added \"Salt Roads\" by Ana Ström & The Quiet (record 1) with 6 tracks and 1 cover\n"_s);
        const QList<Vinyl> stored = records();
        QCOMPARE(stored.size(), 1);
        const Vinyl &v = stored.first();
        QCOMPARE(v.recordLabel.value_or(QString()), u"Harbour Light Records"_s);
        QCOMPARE(v.barcode.value_or(QString()), u"7391234567893"_s);
        QCOMPARE(v.musicBrainzReleaseId.value_or(QString()), kSaltRoads);
        QCOMPARE(v.notes.value_or(QString()), u"Catalog number: HLR-041"_s);
        QCOMPARE(v.releaseDate.value_or(QDateTime()), QDateTime(QDate(2019, 4, 12), QTime(0, 0)));
        QCOMPARE(v.albumDuration.value_or(0), 24.9); // the six tracks' 24:52.833
        auto store = Store::open(QDir(m_dir->path()).filePath(Store::kFileName));
        QVERIFY(store);
        const auto tracks = (*store)->fetchTracks(FetchRequest(Entity::Tracks).sortedBy(u"trackNumber"_s));
        QCOMPARE(tracks->size(), 6);
        // Durations in minutes, as the track form keeps them: 3:21 is 3.35, 4:14.333 is 4.24.
        QCOMPARE(tracks->at(1).song.value_or(QString()), u"Tidewater"_s);
        QCOMPARE(tracks->at(0).duration.value_or(0), 3.35);
        QCOMPARE(tracks->at(1).duration.value_or(0), 4.24);
        QCOMPARE(tracks->at(1).vinylID.value_or(0), v.id.value_or(-1));
        QVERIFY((*store)->vinylByRowId(v.rowId).value()->frontImage);

        const Run again = run({u"lookup"_s, u"7391234567893"_s, u"--add"_s});
        QCOMPARE(again.code, 1);
        QCOMPARE(again.err, u"platterbox: already in the collection: \"Salt Roads\" by Ana Ström & The Quiet (record 1); nothing was added\n"_s);
        QCOMPARE(records().size(), 1);
    }

    // Every failure says why, and leaves the collection as it was.
    void failuresChangeNothing_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("searchAnswer"); // empty: the service is not there
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("error");
        const QByteArray none = R"({"created": "2024-05-02T10:11:12.000Z", "count": 0, "offset": 0, "releases": []})";
        QTest::newRow("no release") << QStringList{u"lookup"_s, u"4006381333931"_s, u"--add"_s} << none << 1
                                    << u"platterbox: no release found for 4006381333931\n"_s;
        QTest::newRow("unreachable") << QStringList{u"lookup"_s, u"4006381333931"_s, u"--add"_s} << QByteArray() << 1
                                     << u"platterbox: "_s;
        QTest::newRow("pick past the list") << QStringList{u"lookup"_s, u"4006381333931"_s, u"--add"_s, u"--pick"_s, u"3"_s}
                                            << catalogueAnswer(u"search-salt-roads.json"_s) << 1
                                            << u"platterbox: there are only 2 candidates\n"_s;
        QTest::newRow("nothing to look up") << QStringList{u"lookup"_s} << none << 2 << u"usage: "_s;
        QTest::newRow("two things") << QStringList{u"lookup"_s, u"4006381333931"_s, u"--search"_s, u"A - B"_s} << none << 2
                                    << u"usage: "_s;
        QTest::newRow("pick without add") << QStringList{u"lookup"_s, u"4006381333931"_s, u"--pick"_s, u"2"_s} << none << 2
                                          << u"usage: "_s;
        QTest::newRow("not a barcode") << QStringList{u"lookup"_s, u"12ab"_s} << none << 2
                                       << u"platterbox: \"12ab\" is not a barcode: give its 8, 12 or 13 digits\n"_s;
    }

    void failuresChangeNothing()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, searchAnswer);
        QFETCH(int, code);
        QFETCH(QString, error);
        if (searchAnswer.isEmpty())
            pointClientsAt(u"http://127.0.0.1:1/"_s); // nothing listens there
        else
            m_service->answer(u"/ws/2/release/"_s, {{200, searchAnswer}});
        const Run failed = run(arguments);
        QCOMPARE(failed.code, code);
        QVERIFY2(failed.err.startsWith(error), qPrintable(failed.err));
        QVERIFY(records().isEmpty());
    }
};

QTEST_MAIN(LookupCliTest)
#include "tst_lookupcli.moc"
