#include "fakecatalogue.h"
#include "lookup/lookupclient.h"
#include "lookup/lookuptexts.h"
#include "store/appconfig.h"
#include "store/textfile.h"
#include "testsupport.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString &kSaltRoads = kSaltRoadsId;
const QString kSearchPath = u"/ws/2/release/"_s;

QByteArray png(QSize size)
{
    return encodedPicture(solidPicture(size, Qt::darkCyan));
}

} // namespace


class TestLookupClient : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_service = std::make_unique<FakeService>();
        pointClientsAt(m_service->base());
    }

    // Every request, redirected cover downloads included, names the program, its version and a contact.
    void cleanup()
    {
        QVERIFY(LookupClient::userAgent().startsWith("Platterbox/"));
        QVERIFY(LookupClient::userAgent().contains(AppConfig::lookupContact.toUtf8()));
        for (const FakeService::Received &request : std::as_const(m_service->received))
            QCOMPARE(request.userAgent, LookupClient::userAgent());
        m_service.reset();
    }

    void searchesByBarcodeAndText_data()
    {
        QTest::addColumn<bool>("isBarcode");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("query");

        QTest::newRow("UPC-A also as EAN-13") << true << u"7 36211 23456 7"_s << u"barcode:736211234567 OR barcode:0736211234567"_s;
        QTest::newRow("EAN-13 with 0 also as UPC-A") << true << u"0736211234567"_s << u"barcode:0736211234567 OR barcode:736211234567"_s;
        QTest::newRow("EAN-13") << true << u"7391234567893"_s << u"barcode:7391234567893"_s;
        QTest::newRow("artist - title") << false << u"Ana Ström & The Quiet - Salt Roads"_s
                                        << u"artist:\"Ana Ström & The Quiet\" AND release:\"Salt Roads\""_s;
        QTest::newRow("title or catalog number") << false << u"HLR-041 \"+1\""_s
                                                 << u"release:\"HLR-041 \\\"+1\\\"\" OR catno:\"HLR-041 \\\"+1\\\"\""_s;
    }

    void searchesByBarcodeAndText()
    {
        QFETCH(bool, isBarcode);
        QFETCH(QString, input);
        QFETCH(QString, query);
        m_service->answer(kSearchPath, {{200, catalogueAnswer(u"search-salt-roads.json"_s)}});
        LookupClient client;
        const auto rows = isBarcode ? searchBarcodeAndWait(client, input) : searchTextAndWait(client, input);
        QVERIFY2(rows.ok(), qPrintable(rows.errorMessage()));
        QCOMPARE(rows->size(), 2);
        QCOMPARE(m_service->received.size(), 1);
        QCOMPARE(m_service->received.first().target, kSearchPath + u"?query="_s + query + u"&fmt=json"_s);
    }

    void refusesWhatCannotBeAsked_data()
    {
        QTest::addColumn<int>("kind"); // 0 barcode, 1 text, 2 release, 3 covers
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("message");

        QTest::newRow("letters") << 0 << u"73912345X7893"_s << LookupTexts::kNotABarcode.arg(u"73912345X7893"_s);
        QTest::newRow("too short") << 0 << u"12345"_s << LookupTexts::kNotABarcode.arg(u"12345"_s);
        QTest::newRow("blank text") << 1 << u"  "_s << LookupTexts::kEmptySearch;
        QTest::newRow("release path") << 2 << u"../artist/x"_s << LookupTexts::kNotAReleaseId.arg(u"../artist/x"_s);
        QTest::newRow("covers of nothing") << 3 << QString() << LookupTexts::kNotAReleaseId.arg(QString());
    }

    void refusesWhatCannotBeAsked()
    {
        QFETCH(int, kind);
        QFETCH(QString, input);
        QFETCH(QString, message);
        LookupClient client;
        const QString error = kind == 0 ? searchBarcodeAndWait(client, input).errorMessage()
                              : kind == 1 ? searchTextAndWait(client, input).errorMessage()
                              : kind == 2 ? fetchReleaseAndWait(client, input).errorMessage()
                                          : fetchCoversAndWait(client, input).errorMessage();
        QCOMPARE(error, message);
        QVERIFY(m_service->received.isEmpty());
    }

    void fetchesTheDoubleAlbum()
    {
        const QString id = u"c3f1e2d4-5a6b-4c7d-8e9f-a0b1c2d3e4f5"_s;
        const QByteArray json = catalogueAnswer(u"release-night-ferries.json"_s);
        m_service->answer(u"/ws/2/release/"_s + id, {{200, json}});
        LookupClient client;
        const auto release = fetchReleaseAndWait(client, id);
        QVERIFY2(release.ok(), qPrintable(release.errorMessage()));
        QCOMPARE(*release, *LookupAnswers::releaseFromLookup(json));
        QCOMPARE(release->tracks.size(), 8);
        QCOMPARE(m_service->received.first().target,
                 u"/ws/2/release/%1?inc=artist-credits+labels+recordings+release-groups+artist-rels&fmt=json"_s.arg(id));

        QCOMPARE(fetchReleaseAndWait(client, kSaltRoads).errorMessage(), LookupTexts::kNoSuchRelease.arg(kSaltRoads));
    }

    void fetchesCovers_data()
    {
        QTest::addColumn<QByteArray>("front"); // served behind a redirect; empty: the archive has none
        QTest::addColumn<QByteArray>("back");
        QTest::addColumn<QSize>("frontSize");
        QTest::addColumn<QSize>("backSize");
        QTest::addColumn<QString>("error");

        const QByteArray front = png({50, 40});
        const QByteArray back = png({30, 30});
        const QSize none(0, 0); // a null image
        QTest::newRow("both") << front << back << QSize(50, 40) << QSize(30, 30) << QString();
        QTest::newRow("none") << QByteArray() << QByteArray() << none << none << QString();
        QTest::newRow("front only") << front << QByteArray() << QSize(50, 40) << none << QString();
        QTest::newRow("not a picture") << QByteArray("<html>moved</html>") << back << QSize() << QSize()
                                       << LookupTexts::kNotAPicture.arg(LookupTexts::kFront).section(u'(', 0, 0);
        QTest::newRow("too many pixels") << front << png({6000, 2}) << QSize() << QSize()
                                         << LookupTexts::kPictureTooLarge.arg(LookupTexts::kBack).arg(LookupAnswers::kMaxCoverSide);
    }

    void fetchesCovers()
    {
        QFETCH(QByteArray, front);
        QFETCH(QByteArray, back);
        QFETCH(QSize, frontSize);
        QFETCH(QSize, backSize);
        QFETCH(QString, error);
        const QString release = u"/release/"_s + kSaltRoads;
        if (!front.isEmpty()) {
            const QByteArray location = (m_service->base() + u"images/front.png"_s).toUtf8();
            m_service->answer(release + u"/front-500"_s, {{307, {}, "Location: " + location + "\r\n"}});
            m_service->answer(u"/images/front.png"_s, {{200, front}});
        }
        if (!back.isEmpty())
            m_service->answer(release + u"/back-500"_s, {{200, back}});

        LookupClient client;
        const auto covers = fetchCoversAndWait(client, kSaltRoads);
        QVERIFY2(covers.errorMessage().startsWith(error), qPrintable(covers.errorMessage()));
        if (error.isEmpty()) {
            QCOMPARE(covers->front.size(), frontSize);
            QCOMPARE(covers->back.size(), backSize);
        }
    }

    // A "slow down" is waited out as long as the service asks, then the request goes again.
    void waitsOutABusyService()
    {
        m_service->answer(kSearchPath, {{503, {}, "Retry-After: 2\r\n"}, {200, catalogueAnswer(u"search-salt-roads.json"_s)}});
        LookupClient client;
        QVERIFY(searchTextAndWait(client, u"Salt Roads"_s).ok());
        QCOMPARE(m_service->received.size(), 2);
        QCOMPARE_GE(m_service->received.at(1).atMs - m_service->received.at(0).atMs, 1950);
    }

    // Three screens looking up at once still send one request a second between them, and none
    // before they ask.
    void pacesRequestsOneASecond()
    {
        m_service->answer(kSearchPath, {{200, catalogueAnswer(u"search-salt-roads.json"_s)}});
        LookupClient clients[3];
        QCoreApplication::processEvents();
        QVERIFY(m_service->received.isEmpty());
        QSignalSpy done(&clients[2], &LookupClient::candidatesFound);
        for (LookupClient &client : clients)
            client.searchText(u"Salt Roads"_s);
        QVERIFY(done.wait(10000));
        QTRY_COMPARE(m_service->received.size(), 3);
        for (int i = 1; i < 3; ++i)
            QCOMPARE_GE(m_service->received.at(i).atMs - m_service->received.at(i - 1).atMs, 950);
    }

    void reportsFailures_data()
    {
        QTest::addColumn<Canned>("answer");
        QTest::addColumn<bool>("closedPort");
        QTest::addColumn<QString>("message"); // or the start of it, where the rest comes from Qt

        const QString mb = LookupTexts::kMusicBrainz;
        const QByteArray tooLarge(LookupAnswers::kMaxJsonBytes + 1, ' ');
        QTest::newRow("timeout") << Canned::never() << false << LookupTexts::kTimedOut.arg(mb, u"0.4"_s);
        QTest::newRow("malformed JSON") << Canned(200, R"({"releases": [{"id": )") << false
                                        << LookupTexts::kNotJson.section(u'(', 0, 0);
        QTest::newRow("too large, said so") << Canned(200, tooLarge) << false << LookupTexts::kTooLarge.arg(mb).arg(4);
        QTest::newRow("too large, unsaid") << Canned::unsized(tooLarge) << false << LookupTexts::kTooLarge.arg(mb).arg(4);
        QTest::newRow("server error") << Canned(500, "oops") << false << LookupTexts::kErrorStatus.arg(mb).arg(500);
        QTest::newRow("busy four times") << Canned(503) << false << LookupTexts::kBusy.arg(mb).arg(4);
        QTest::newRow("unreachable") << Canned() << true << LookupTexts::kUnreachable.section(u'(', 0, 0).arg(mb);
    }

    void reportsFailures()
    {
        QFETCH(Canned, answer);
        QFETCH(bool, closedPort);
        QFETCH(QString, message);
        m_service->answer(kSearchPath, {answer});
        if (closedPort) {
            QTcpServer closed;
            QVERIFY(closed.listen(QHostAddress::LocalHost));
            const QString base = u"http://127.0.0.1:%1/"_s.arg(closed.serverPort());
            closed.close();
            pointClientsAt(base);
        }
        LookupClient client;
        if (answer.hang)
            client.setTimeout(400ms);
        const QString error = searchTextAndWait(client, u"Salt Roads"_s).errorMessage();
        QVERIFY2(error.startsWith(message), qPrintable(error));
    }

    // A cancelled look-up says nothing more, not even when its timeout comes, and the next one works.
    void cancelStopsTheLookUp()
    {
        m_service->answer(kSearchPath, {Canned::never(), {200, catalogueAnswer(u"search-salt-roads.json"_s)}});
        LookupClient client;
        client.setTimeout(300ms);
        QSignalSpy finished(&client, &LookupClient::finished);
        QSignalSpy failed(&client, &LookupClient::failed);
        client.searchText(u"Salt Roads"_s);
        QTRY_COMPARE(m_service->received.size(), 1);
        client.cancel();
        QCOMPARE(finished.size(), 1);
        QVERIFY(!client.isBusy());
        QVERIFY(searchTextAndWait(client, u"Salt Roads"_s).ok());
        QCOMPARE(failed.size(), 0);
        QCOMPARE(finished.size(), 2);
    }

private:
    std::unique_ptr<FakeService> m_service;
};

QTEST_GUILESS_MAIN(TestLookupClient)
#include "tst_lookupclient.moc"
