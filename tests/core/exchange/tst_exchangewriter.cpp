#include "exchange/exchangewriter.h"
#include "store/samplecollection.h"
#include "store/store.h"
#include "testsupport.h"

#include <QBuffer>
#include <QImage>
#include <QTest>
#include <QTimeZone>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A record with every attribute set; rows of the tests change some of them.
Vinyl fullRecord()
{
    Vinyl v;
    v.albumDuration = 45.5;
    v.artist = u"Some Artist"_s;
    v.cost = 12.5f;
    v.coverCondition = u"Near Mint"_s;
    v.doubleAlbum = u"Single"_s;
    v.id = 3;
    v.name = u"Some Album"_s;
    v.producer = u"Some Producer"_s;
    v.quantity = 1;
    v.recordLabel = u"Some Label"_s;
    v.recordSpeed = u"33 1/3"_s;
    v.releaseDate = QDateTime(QDate(1975, 3, 5), QTime(14, 30, 15));
    v.value = 20.0f;
    v.vinylCondition = u"Very Good"_s;
    v.imagesLoaded = true;
    return v;
}

// Sets the named attributes; an invalid QVariant makes the attribute absent.
void change(Vinyl &v, const QVariantMap &changes)
{
    for (auto it = changes.begin(); it != changes.end(); ++it) {
        const QVariant &x = it.value();
        auto str = [&x]() { return x.isValid() ? std::optional<QString>(x.toString()) : std::nullopt; };
        const QString &key = it.key();
        if (key == u"artist") v.artist = str();
        else if (key == u"name") v.name = str();
        else if (key == u"notes") v.notes = str();
        else if (key == u"coverCondition") v.coverCondition = str();
        else if (key == u"producer") v.producer = str();
        else if (key == u"recordLabel") v.recordLabel = str();
        else if (key == u"id") v.id = x.isValid() ? std::optional<qint16>(qint16(x.toInt())) : std::nullopt;
        else if (key == u"value") v.value = x.isValid() ? std::optional<float>(x.toFloat()) : std::nullopt;
        else if (key == u"albumDuration") v.albumDuration = x.isValid() ? std::optional<double>(x.toDouble()) : std::nullopt;
        else if (key == u"releaseDate") v.releaseDate = x.isValid() ? std::optional<QDateTime>(x.toDateTime()) : std::nullopt;
        else QFAIL(qPrintable(u"unknown attribute "_s + key));
    }
}

QStringList lines(const QByteArray &data)
{
    return QString::fromUtf8(data).split(u'\n');
}

QByteArray pngCover(QColor color)
{
    return encodedPicture(solidPicture(QSize(40, 30), color));
}

} // namespace

class TestExchangeWriter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    void writesRecordLine_data()
    {
        QTest::addColumn<QVariantMap>("changes");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("consoleLine"); // expected among the console lines, if not empty

        const QString tail = u"^Some Producer^1^Some Label^33 1/3^1975.03.05 14:30:15^20.0^Very Good^^"_s;
        QTest::newRow("every field") << QVariantMap{} << u"45.5^Some Artist^12.5^Near Mint^Single^3^Some Album^"_s + tail
                                     << u"Notes is missing or empty."_s;
        QTest::newRow("negative id") << QVariantMap{{u"id"_s, -5}}
                                     << u"45.5^Some Artist^12.5^Near Mint^Single^-5^Some Album^"_s + tail << QString();
        QTest::newRow("value 0 and whole duration")
            << QVariantMap{{u"value"_s, 0.0}, {u"albumDuration"_s, 40.0}}
            << u"40.0^Some Artist^12.5^Near Mint^Single^3^Some Album^^Some Producer^1^Some Label^33 1/3^1975.03.05 14:30:15^0.0^Very Good^^"_s
            << QString();
        QTest::newRow("tiny duration uses an exponent")
            << QVariantMap{{u"albumDuration"_s, 1e-05}}
            << u"1e-05^Some Artist^12.5^Near Mint^Single^3^Some Album^"_s + tail << QString();
        QTest::newRow("caret in the artist is removed")
            << QVariantMap{{u"artist"_s, u"AC^DC"_s}}
            << u"45.5^ACDC^12.5^Near Mint^Single^3^Some Album^"_s + tail
            << u"A caret or line break was removed from artist."_s;
        QTest::newRow("line breaks in the name are removed")
            << QVariantMap{{u"name"_s, u"Two\r\nLines\n"_s}}
            << u"45.5^Some Artist^12.5^Near Mint^Single^3^TwoLines^"_s + tail
            << u"A caret or line break was removed from name."_s;
        QTest::newRow("notes are cleaned")
            << QVariantMap{{u"notes"_s, u"Rock & Roll^\nDon't\r\nskip"_s}}
            << u"45.5^Some Artist^12.5^Near Mint^Single^3^Some Album^Rock and Roll~Dont~skip"_s + tail << QString();
        QTest::newRow("empty notes")
            << QVariantMap{{u"notes"_s, u""_s}} << u"45.5^Some Artist^12.5^Near Mint^Single^3^Some Album^"_s + tail
            << u"Notes is missing or empty."_s;
        QTest::newRow("no release date")
            << QVariantMap{{u"releaseDate"_s, QVariant()}}
            << u"45.5^Some Artist^12.5^Near Mint^Single^3^Some Album^^Some Producer^1^Some Label^33 1/3^^20.0^Very Good^^"_s
            << u"Release Date is missing or empty."_s;
        QTest::newRow("release date is written in local time")
            << QVariantMap{{u"releaseDate"_s, QDateTime(QDate(1980, 1, 2), QTime(3, 4, 5), QTimeZone::utc())}}
            << u"45.5^Some Artist^12.5^Near Mint^Single^3^Some Album^^Some Producer^1^Some Label^33 1/3^1980.01.01 22:04:05^20.0^Very Good^^"_s
            << QString();
        QTest::newRow("absent condition and empty producer")
            << QVariantMap{{u"coverCondition"_s, QVariant()}, {u"producer"_s, u""_s}}
            << u"45.5^Some Artist^12.5^^Single^3^Some Album^^^1^Some Label^33 1/3^1975.03.05 14:30:15^20.0^Very Good^^"_s
            << u"Producer is missing or empty."_s;
        QTest::newRow("absent id and value read as 0")
            << QVariantMap{{u"id"_s, QVariant()}, {u"value"_s, QVariant()}}
            << u"45.5^Some Artist^12.5^Near Mint^Single^0^Some Album^^Some Producer^1^Some Label^33 1/3^1975.03.05 14:30:15^0.0^Very Good^^"_s
            << u"Value is missing or empty."_s;
        QTest::newRow("absent artist")
            << QVariantMap{{u"artist"_s, QVariant()}} << u"45.5^^12.5^Near Mint^Single^3^Some Album^"_s + tail
            << u"Artist is missing or empty."_s;
    }

    void writesRecordLine()
    {
        QFETCH(QVariantMap, changes);
        QFETCH(QString, line);
        QFETCH(QString, consoleLine);
        TestApp t;
        Vinyl v = fullRecord();
        change(v, changes);
        QVERIFY(t.store().insert(v).ok());

        ConsoleCapture console;
        auto data = ExchangeWriter::build(t.store(), true);
        QVERIFY(data.ok());
        const QStringList written = lines(*data);
        QCOMPARE(written.size(), 4); // marker, record, marker, "" after the last line feed
        QCOMPARE(written.at(1), line);
        QCOMPARE(written.at(1).count(u'^'), 16);
        if (!consoleLine.isEmpty())
            QVERIFY2(console.lines().contains(consoleLine), qPrintable(console.lines().join(u" | "_s)));
    }

    void recordsAreOrderedByNameArtistAndDate()
    {
        TestApp t;
        const QList<std::tuple<QString, QString, int>> records = {
            {u"b"_s, u"x"_s, 1990}, {u"a"_s, u"y"_s, 1980}, {u"B"_s, u"x"_s, 1970}, {u"a"_s, u"x"_s, 1999}, {u"a"_s, u"x"_s, 1950}};
        for (const auto &[name, artist, year] : records) {
            Vinyl v = fullRecord();
            v.name = name;
            v.artist = artist;
            v.releaseDate = QDateTime(QDate(year, 1, 1), QTime(0, 0));
            QVERIFY(t.store().insert(v).ok());
        }
        auto data = ExchangeWriter::build(t.store(), false);
        QVERIFY(data.ok());
        QStringList order;
        for (const QString &line : lines(*data).mid(1, 5))
            order << line.section(u'^', 6, 6) + line.section(u'^', 1, 1) + line.section(u'^', 12, 12).left(4);
        QCOMPARE(order, QStringList({u"Bx1970"_s, u"ax1950"_s, u"ax1999"_s, u"ay1980"_s, u"bx1990"_s}));
    }

    void tracksAreGroupedByVinylIdThenTrackNumber()
    {
        TestApp t;
        // Record lines are ordered by name, so record 9 comes before record 2 there; the tracks
        // still follow vinylID. Ids far apart and an absent one exercise every block of the reader.
        Vinyl first = fullRecord();
        first.name = u"A"_s;
        first.id = 9;
        Vinyl second = fullRecord();
        second.name = u"B"_s;
        second.id = 2;
        QVERIFY(t.store().insert(first).ok());
        QVERIFY(t.store().insert(second).ok());
        const QList<std::pair<std::optional<qint16>, qint16>> tracks = {
            {9, 2}, {2, 3}, {32000, 1}, {9, 1}, {-30000, 4}, {2, 1}, {std::nullopt, 7}, {2, 2}};
        for (const auto &[vinylID, number] : tracks) {
            Track track;
            track.vinylID = vinylID;
            track.trackNumber = number;
            track.song = u"s"_s;
            track.writtenBy = u"w"_s;
            track.duration = 3.45;
            QVERIFY(t.store().insert(track).ok());
        }
        auto data = ExchangeWriter::build(t.store(), false);
        QVERIFY(data.ok());
        const QStringList written = lines(*data);
        QCOMPARE(written.at(1).section(u'^', 5, 5), u"9"_s);
        QCOMPARE(written.at(3), u"[TRACKCOLLECTION]"_s);
        QCOMPARE(written.mid(4, 8),
                 QStringList({u"3.45^s^7^0^w"_s, u"3.45^s^4^-30000^w"_s, u"3.45^s^1^2^w"_s, u"3.45^s^2^2^w"_s,
                              u"3.45^s^3^2^w"_s, u"3.45^s^1^9^w"_s, u"3.45^s^2^9^w"_s, u"3.45^s^1^32000^w"_s}));
        QCOMPARE(written.size(), 13);
    }

    void trackTextFields_data()
    {
        QTest::addColumn<QVariant>("song");
        QTest::addColumn<QVariant>("writtenBy");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("console");
        QTest::newRow("both set") << QVariant(u"Song"_s) << QVariant(u"Writer"_s) << u"4.1^Song^1^3^Writer"_s << QStringList();
        QTest::newRow("empty texts are logged") << QVariant(u""_s) << QVariant(u""_s) << u"4.1^^1^3^"_s
                                                << QStringList({u"Song is missing or empty."_s, u"Written By is missing or empty."_s});
        QTest::newRow("absent texts write nothing") << QVariant() << QVariant() << u"4.1^^1^3^"_s << QStringList();
        QTest::newRow("caret in a song") << QVariant(u"A^B"_s) << QVariant(u"W"_s) << u"4.1^AB^1^3^W"_s
                                         << QStringList({u"A caret or line break was removed from song."_s});
    }

    void trackTextFields()
    {
        QFETCH(QVariant, song);
        QFETCH(QVariant, writtenBy);
        QFETCH(QString, line);
        QFETCH(QStringList, console);
        Track track;
        track.duration = 4.1;
        track.trackNumber = 1;
        track.vinylID = 3;
        if (song.isValid())
            track.song = song.toString();
        if (writtenBy.isValid())
            track.writtenBy = writtenBy.toString();
        ConsoleCapture capture;
        QCOMPARE(ExchangeWriter::trackLine(track), line);
        QCOMPARE(capture.lines(), console);
    }

    void coversAreReencodedAsJpegBase64()
    {
        TestApp t;
        Vinyl v = fullRecord();
        v.frontImage = pngCover(Qt::red);
        v.backImage = QByteArray("not a picture");
        QVERIFY(t.store().insert(v).ok());

        ConsoleCapture console;
        int unreadable = 0;
        auto data = ExchangeWriter::build(t.store(), true, &unreadable);
        QVERIFY(data.ok());
        const QString line = lines(*data).at(1);
        QCOMPARE(line.count(u'^'), 16);
        const QByteArray front = QByteArray::fromBase64(line.section(u'^', 15, 15).toLatin1());
        QVERIFY(front.startsWith("\xFF\xD8")); // JPEG
        const QImage decoded = QImage::fromData(front);
        QCOMPARE(decoded.size(), QSize(40, 30));
        QVERIFY(!line.section(u'^', 15, 15).contains(u'\n'));
        QVERIFY(line.endsWith(u'^')); // the unreadable back cover is left out
        QCOMPARE(unreadable, 1);
        QVERIFY(console.lines().contains(u"backImage of \"Some Album\" is not a readable image; left out."_s));

        auto without = ExchangeWriter::build(t.store(), false);
        QVERIFY(without.ok());
        QVERIFY(lines(*without).at(1).endsWith(u"Very Good^^"_s));
    }

    // An export keeps each cover's encoding beside it; the next export must still carry the
    // cover the record holds then, however it was changed.
    void keptEncodingsFollowTheCover_data()
    {
        QTest::addColumn<int>("change");
        QTest::addColumn<bool>("sameFile");
        QTest::newRow("nothing changed") << 0 << true;
        QTest::newRow("record saved whole, covers unchanged") << 1 << true;
        QTest::newRow("front cover replaced on the whole record") << 2 << false;
        QTest::newRow("front cover given to a record read without covers") << 3 << false;
    }

    void keptEncodingsFollowTheCover()
    {
        QFETCH(int, change);
        QFETCH(bool, sameFile);
        TestApp t;
        Vinyl v = fullRecord();
        v.frontImage = pngCover(Qt::red);
        v.backImage = QByteArray("not a picture");
        QVERIFY(t.store().insert(v).ok());
        int unreadable = 0;
        const auto first = ExchangeWriter::build(t.store(), true, &unreadable);
        QVERIFY(first.ok());
        QCOMPARE(unreadable, 1);

        auto stored = t.store().vinylByRowId(v.rowId, change != 3);
        QVERIFY(stored.ok() && stored->has_value());
        Vinyl edited = **stored;
        edited.notes = u"edited"_s;
        if (change >= 2)
            edited.frontImage = pngCover(Qt::blue);
        if (change > 0)
            QVERIFY(t.store().update(edited).ok());

        unreadable = 0;
        const auto second = ExchangeWriter::build(t.store(), true, &unreadable);
        QVERIFY(second.ok());
        QCOMPARE(unreadable, 1);
        const QString front = lines(*second).at(1).section(u'^', 15, 15);
        const QByteArray cover = change >= 2 ? pngCover(Qt::blue) : pngCover(Qt::red);
        QCOMPARE(front.toLatin1(), ExchangeWriter::exchangeEncoding(cover).toBase64());
        QCOMPARE(*second == *first, sameFile && change == 0);
        if (sameFile)
            QCOMPARE(lines(*second).at(1).section(u'^', 15), lines(*first).at(1).section(u'^', 15));
    }

    void buildReportsProgressAndStopsWhenCancelled_data()
    {
        QTest::addColumn<int>("cancelAfter"); // progress reports answered before the cancel; -1: none
        QTest::newRow("runs to the end") << -1;
        QTest::newRow("cancelled at once") << 0;
        QTest::newRow("cancelled among the tracks") << 2;
    }

    void buildReportsProgressAndStopsWhenCancelled()
    {
        QFETCH(int, cancelAfter);
        TestApp t;
        QVERIFY(addSampleCollection(t.store(), {300, 4, false, 7}).ok());
        QList<qint64> done;
        const auto built = ExchangeWriter::build(t.store(), true, nullptr, [&](qint64 lines, qint64 total) {
            if (total != 1500)
                return false;
            done.append(lines);
            return cancelAfter < 0 || done.size() <= cancelAfter;
        });
        QVERIFY(std::is_sorted(done.cbegin(), done.cend()));
        if (cancelAfter < 0) {
            QVERIFY(built.ok());
            QCOMPARE(done.constLast(), 1500);
            QCOMPARE(*built, ExchangeWriter::build(t.store(), true).valueOr({}));
        } else {
            QCOMPARE(built.errorMessage(), ExportMessages::kCancelled);
            QCOMPARE(done.size(), cancelAfter + 1);
        }
    }
};

QTEST_MAIN(TestExchangeWriter)
#include "tst_exchangewriter.moc"
