// The exchange file: how the collection is written, and how a file's lines are read and merged
// into the store.
#include "exchange/exchangeformat.h"
#include "exchange/exchangereader.h"
#include "exchange/exchangewriter.h"
#include "store/fetchrequest.h"
#include "store/samplecollection.h"
#include "store/store.h"
#include "store/textfile.h"
#include "testsupport.h"

#include <QImage>
#include <QTest>
#include <QTimeZone>

#include <algorithm>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Vinyl)

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

// The full record with what a row changes.
template<typename Change>
Vinyl fullRecordWith(Change change)
{
    Vinyl v = fullRecord();
    change(v);
    return v;
}

QStringList lines(const QByteArray &data)
{
    return QString::fromUtf8(data).split(u'\n');
}

QByteArray pngCover(QColor color)
{
    return encodedPicture(solidPicture(QSize(40, 30), color));
}


const QString kLine = u"45.5^Some Artist^12.5^Near Mint^Single^3^Some Album^Side A~Side B^Some Producer^2^Some Label^33 1/3^1975.03.05 14:30:15^20.0^Very Good^^"_s;

QList<Vinyl> records(Store &store)
{
    return store.fetchVinyl(FetchRequest(Entity::Vinyl).withImages()).valueOr({});
}

QList<Track> tracks(Store &store)
{
    return store.fetchTracks(FetchRequest(Entity::Tracks)).valueOr({});
}

QString base64Png()
{
    return QString::fromLatin1(encodedPicture(solidPicture(QSize(8, 6), Qt::blue)).toBase64());
}

} // namespace

class TestExchangeFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    // Writing the collection: one line a record, then one a track.
    void writesRecordLine_data()
    {
        QTest::addColumn<Vinyl>("record");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("consoleLine"); // expected among the console lines, if not empty

        const QString head = u"45.5^Some Artist^12.5^Near Mint^Single^3^Some Album^"_s;
        const QString tail = u"^Some Producer^1^Some Label^33 1/3^1975.03.05 14:30:15^20.0^Very Good^^"_s;
        QTest::newRow("every field") << fullRecord() << head + tail << u"Notes is missing or empty."_s;
        QTest::newRow("negative id") << fullRecordWith([](Vinyl &v) { v.id = -5; })
                                     << u"45.5^Some Artist^12.5^Near Mint^Single^-5^Some Album^"_s + tail << QString();
        QTest::newRow("value 0 and whole duration")
            << fullRecordWith([](Vinyl &v) { v.value = 0.0f; v.albumDuration = 40.0; })
            << u"40.0^Some Artist^12.5^Near Mint^Single^3^Some Album^^Some Producer^1^Some Label^33 1/3^1975.03.05 14:30:15^0.0^Very Good^^"_s
            << QString();
        QTest::newRow("tiny duration uses an exponent") << fullRecordWith([](Vinyl &v) { v.albumDuration = 1e-05; })
                                                        << u"1e-05"_s + head.mid(4) + tail << QString();
        QTest::newRow("caret in the artist is removed")
            << fullRecordWith([](Vinyl &v) { v.artist = u"AC^DC"_s; })
            << u"45.5^ACDC^12.5^Near Mint^Single^3^Some Album^"_s + tail << u"A caret or line break was removed from artist."_s;
        QTest::newRow("line breaks in the name are removed")
            << fullRecordWith([](Vinyl &v) { v.name = u"Two\r\nLines\n"_s; })
            << u"45.5^Some Artist^12.5^Near Mint^Single^3^TwoLines^"_s + tail << u"A caret or line break was removed from name."_s;
        QTest::newRow("text beyond ASCII is written as stored")
            << fullRecordWith([](Vinyl &v) { v.artist = u"Mot\u00f6rhead \u266b"_s; v.notes = u"Caf\u00e9 & \u00c9t\u00e9^"_s; })
            << u"45.5^Mot\u00f6rhead \u266b^12.5^Near Mint^Single^3^Some Album^Caf\u00e9 and \u00c9t\u00e9"_s + tail << QString();
        QTest::newRow("caret beside text beyond ASCII is removed")
            << fullRecordWith([](Vinyl &v) { v.name = u"\u00c0 ^ la carte"_s; })
            << u"45.5^Some Artist^12.5^Near Mint^Single^3^\u00c0  la carte^"_s + tail
            << u"A caret or line break was removed from name."_s;
        QTest::newRow("notes are cleaned") << fullRecordWith([](Vinyl &v) { v.notes = u"Rock & Roll^\nDon't\r\nskip"_s; })
                                           << head + u"Rock and Roll~Dont~skip"_s + tail << QString();
        QTest::newRow("empty notes") << fullRecordWith([](Vinyl &v) { v.notes = u""_s; }) << head + tail
                                     << u"Notes is missing or empty."_s;
        QTest::newRow("no release date")
            << fullRecordWith([](Vinyl &v) { v.releaseDate.reset(); })
            << head + u"^Some Producer^1^Some Label^33 1/3^^20.0^Very Good^^"_s << u"Release Date is missing or empty."_s;
        QTest::newRow("release date is written in local time")
            << fullRecordWith([](Vinyl &v) { v.releaseDate = QDateTime(QDate(1980, 1, 2), QTime(3, 4, 5), QTimeZone::utc()); })
            << head + u"^Some Producer^1^Some Label^33 1/3^1980.01.01 22:04:05^20.0^Very Good^^"_s << QString();
        QTest::newRow("absent condition and empty producer")
            << fullRecordWith([](Vinyl &v) { v.coverCondition.reset(); v.producer = u""_s; })
            << u"45.5^Some Artist^12.5^^Single^3^Some Album^^^1^Some Label^33 1/3^1975.03.05 14:30:15^20.0^Very Good^^"_s
            << u"Producer is missing or empty."_s;
        QTest::newRow("absent id and value read as 0")
            << fullRecordWith([](Vinyl &v) { v.id.reset(); v.value.reset(); })
            << u"45.5^Some Artist^12.5^Near Mint^Single^0^Some Album^^Some Producer^1^Some Label^33 1/3^1975.03.05 14:30:15^0.0^Very Good^^"_s
            << u"Value is missing or empty."_s;
        QTest::newRow("absent artist") << fullRecordWith([](Vinyl &v) { v.artist.reset(); })
                                       << u"45.5^^12.5^Near Mint^Single^3^Some Album^"_s + tail << u"Artist is missing or empty."_s;
    }

    void writesRecordLine()
    {
        QFETCH(Vinyl, record);
        QFETCH(QString, line);
        QFETCH(QString, consoleLine);
        TestApp t;
        QVERIFY(t.store().insert(record).ok());
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

    // Record lines are ordered by name, artist and date, in code-point order; the tracks follow
    // by record number, then track number, whatever the records' order. Record numbers far apart
    // and an absent one exercise every block of the reader.
    void recordsInOrderThenTracksByRecordNumber()
    {
        TestApp t;
        const QList<std::tuple<QString, QString, int, qint16>> records = {
            {u"b"_s, u"x"_s, 1990, 5}, {u"a"_s, u"y"_s, 1980, 2}, {u"B"_s, u"x"_s, 1970, 9}, {u"a"_s, u"x"_s, 1999, 6},
            {u"a"_s, u"x"_s, 1950, 7}};
        for (const auto &[name, artist, year, id] : records) {
            Vinyl v = fullRecord();
            v.name = name;
            v.artist = artist;
            v.releaseDate = QDateTime(QDate(year, 1, 1), QTime(0, 0));
            v.id = id;
            QVERIFY(t.store().insert(v).ok());
        }
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
        QStringList order;
        for (const QString &line : written.mid(1, 5))
            order << line.section(u'^', 6, 6) + line.section(u'^', 1, 1) + line.section(u'^', 12, 12).left(4)
                         + u'#' + line.section(u'^', 5, 5);
        QCOMPARE(order, QStringList({u"Bx1970#9"_s, u"ax1950#7"_s, u"ax1999#6"_s, u"ay1980#2"_s, u"bx1990#5"_s}));
        QCOMPARE(written.at(6), u"[TRACKCOLLECTION]"_s);
        QCOMPARE(written.mid(7),
                 QStringList({u"3.45^s^7^0^w"_s, u"3.45^s^4^-30000^w"_s, u"3.45^s^1^2^w"_s, u"3.45^s^2^2^w"_s,
                              u"3.45^s^3^2^w"_s, u"3.45^s^1^9^w"_s, u"3.45^s^2^9^w"_s, u"3.45^s^1^32000^w"_s, QString()}));
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

    // An export writes each readable cover as a JPEG in base64 and leaves an unreadable one out
    // with a console line. It keeps each cover's encoding beside it; the next export must still
    // carry the cover the record holds then, however it was changed.
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
        ConsoleCapture console;
        const auto first = ExchangeWriter::build(t.store(), true, &unreadable);
        QVERIFY(first.ok());
        QCOMPARE(unreadable, 1);
        QVERIFY(console.lines().contains(u"backImage of \"Some Album\" is not a readable image; left out."_s));
        const QString line = lines(*first).at(1);
        QCOMPARE(line.count(u'^'), 16);
        QVERIFY(line.endsWith(u'^')); // the unreadable back cover is left out
        QVERIFY(!line.section(u'^', 15, 15).contains(u'\n'));
        const QByteArray jpeg = QByteArray::fromBase64(line.section(u'^', 15, 15).toLatin1());
        QVERIFY(jpeg.startsWith("\xFF\xD8"));
        QCOMPARE(QImage::fromData(jpeg).size(), QSize(40, 30));
        // Kept by the export that read the record: the next one copies it.
        const auto keptAfterFirst = t.store().exchangeEncodings(v.rowId);
        QVERIFY(keptAfterFirst.ok());
        QVERIFY((*keptAfterFirst)[0].kept && (*keptAfterFirst)[1].kept);
        QCOMPARE(*(*keptAfterFirst)[0].kept, ExchangeWriter::exchangeEncoding(pngCover(Qt::red)));
        QCOMPARE(*(*keptAfterFirst)[1].kept, QByteArray());

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
        // Without pictures both cover fields stay empty.
        QVERIFY(lines(ExchangeWriter::build(t.store(), false).valueOr({})).at(1).endsWith(u"Very Good^^"_s));
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
        QVERIFY(addSampleCollection(t.store(), sampleOptions(300, 4, false, 7)).ok());
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

    // Reading a file. Which lines of a text become records and tracks.
    void readsTheSections_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("records");
        QTest::addColumn<int>("tracks");
        const QString file = u"[VINYLCOLLECTION]\n"_s + kLine + u"\n[TRACKCOLLECTION]\n3.45^First^1^3^W\n4.1^Second^2^3^\n"_s;
        QTest::newRow("LF") << file << 1 << 2;
        QTest::newRow("CR LF") << QString(file).replace(u"\n"_s, u"\r\n"_s) << 1 << 2;
        QTest::newRow("CR") << QString(file).replace(u"\n"_s, u"\r"_s) << 1 << 2;
        QTest::newRow("empty lines are skipped") << QString(file).replace(u"\n"_s, u"\n\n"_s) << 1 << 2;
        QTest::newRow("no record marker") << QString(file).remove(u"[VINYLCOLLECTION]\n"_s) << 0 << 2;
        QTest::newRow("no track marker: tracks are not records")
            << u"[VINYLCOLLECTION]\n"_s + kLine + u"\n"_s << 1 << 0;
        QTest::newRow("sections in the other order")
            << u"[TRACKCOLLECTION]\n3.45^First^1^3^W\n[VINYLCOLLECTION]\n"_s + kLine << 1 << 1;
        QTest::newRow("not an exchange file") << u"hello\nworld\n"_s << 0 << 0;
        QTest::newRow("empty file") << QString() << 0 << 0;
    }

    void readsTheSections()
    {
        QFETCH(QString, text);
        QFETCH(int, records);
        QFETCH(int, tracks);
        TestApp t;
        auto counts = ExchangeReader::importAll(t.store(), text.toUtf8());
        QVERIFY(counts.ok());
        QCOMPARE(t.store().count(FetchRequest(Entity::Vinyl)).valueOr(-1), records);
        QCOMPARE(t.store().count(FetchRequest(Entity::Tracks)).valueOr(-1), tracks);
    }

    void readsEveryRecordField()
    {
        TestApp t;
        const QString line = QString(kLine).replace(u"Very Good^^"_s, u"Very Good^"_s + base64Png() + u"^!!!"_s);
        ConsoleCapture console;
        auto counts = ExchangeReader::importAll(t.store(), (u"[VINYLCOLLECTION]\n"_s + line + u"\n"_s).toUtf8());
        QVERIFY(counts.ok());
        QCOMPARE(counts->recordsAdded, 1);
        QCOMPARE(counts->unreadableImages, 1);
        const QList<Vinyl> stored = records(t.store());
        QCOMPARE(stored.size(), 1);
        const Vinyl &v = stored.first();
        QCOMPARE(attributeTexts(v),
                 (QStringList{u"id=3"_s, u"name=Some Album"_s, u"artist=Some Artist"_s, u"releaseDate=1975-03-05T14:30:15"_s,
                              u"recordLabel=Some Label"_s, u"quantity=2"_s, u"albumDuration=45.5"_s, u"producer=Some Producer"_s,
                              u"vinylCondition=Very Good"_s, u"coverCondition=Near Mint"_s, u"recordSpeed=33 1/3"_s,
                              u"doubleAlbum=Single"_s, u"cost=12.5"_s, u"value=20.0"_s, u"notes=Side A\nSide B"_s}));
        QCOMPARE(QImage::fromData(v.frontImage.value_or(QByteArray())).size(), QSize(8, 6));
        QVERIFY(!v.backImage.has_value()); // malformed base64 stores nothing
        QVERIFY(console.lines().contains(u"backImage on line 2 is not a readable image; left out."_s));
    }

    // A second line for the stored record (same name and artist) with one field changed.
    void updatesTheMatchedRecord_data()
    {
        QTest::addColumn<int>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected"); // as attributeTexts writes it; the name alone: absent

        QTest::newRow("empty cost keeps it") << 2 << QString() << u"cost=12.5"_s;
        QTest::newRow("empty label keeps it") << 10 << QString() << u"recordLabel=Some Label"_s;
        QTest::newRow("empty notes keep them") << 7 << QString() << u"notes=Side A\nSide B"_s;
        QTest::newRow("new cost") << 2 << u"7.25"_s << u"cost=7.25"_s;
        QTest::newRow("cost that does not convert clears it") << 2 << u"cheap"_s << u"cost"_s;
        QTest::newRow("value that does not convert clears it") << 13 << u"1,5"_s << u"value"_s;
        QTest::newRow("id out of range clears it") << 5 << u"40000"_s << u"id"_s;
        QTest::newRow("quantity that does not convert keeps it") << 9 << u"two"_s << u"quantity=2"_s;
        QTest::newRow("bad date keeps it") << 12 << u"1975-03-05"_s << u"releaseDate=1975-03-05T14:30:15"_s;
        QTest::newRow("date with +0000") << 12 << u"1980.12.24 08:00:00 +0000"_s << u"releaseDate=1980-12-24T08:00:00"_s;
    }

    void updatesTheMatchedRecord()
    {
        QFETCH(int, field);
        QFETCH(QString, text);
        QFETCH(QString, expected);
        TestApp t;
        QVERIFY(ExchangeReader::importAll(t.store(), (u"[VINYLCOLLECTION]\n"_s + kLine).toUtf8()).ok());
        QStringList fields = kLine.split(u'^');
        fields[field] = text;
        auto counts = ExchangeReader::importAll(t.store(), (u"[VINYLCOLLECTION]\n"_s + fields.join(u'^')).toUtf8());
        QVERIFY(counts.ok());
        QCOMPARE(counts->recordsAdded, 0);
        const QList<Vinyl> stored = records(t.store());
        QCOMPARE(stored.size(), 1);
        const QString attribute = expected.section(u'=', 0, 0);
        QCOMPARE(attributeTexts(stored.first(), {attribute}).value(0, attribute), expected);
    }

    // Numbers that do not convert, and the fields a short line does not reach, stay unset.
    void unreadableAndMissingFieldsStayUnset()
    {
        TestApp t;
        QStringList fields = kLine.split(u'^');
        fields[2] = fields[5] = fields[13] = u"x"_s;
        const QString file = u"[VINYLCOLLECTION]\n"_s + fields.join(u'^') + u"\n1.0^Artist^2.0\n"_s;
        QVERIFY(ExchangeReader::importAll(t.store(), file.toUtf8()).ok());
        const QList<Vinyl> read = records(t.store());
        QCOMPARE(read.size(), 2);
        const Vinyl &unconverted = read.at(0).name ? read.at(0) : read.at(1);
        QVERIFY(!unconverted.cost && !unconverted.id && !unconverted.value);
        QCOMPARE(unconverted.name, u"Some Album"_s);
        const Vinyl &shortLine = read.at(0).name ? read.at(1) : read.at(0);
        QCOMPARE(shortLine.artist, u"Artist"_s);
        QCOMPARE(shortLine.cost, 2.0f);
        QVERIFY(!shortLine.name && !shortLine.id && !shortLine.frontImage);
    }

    void base64Fields_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<std::optional<QByteArray>>("bytes");
        for (const QByteArray &plain : {QByteArray("a"), QByteArray("ab"), QByteArray("abc"), QByteArray("abcd"),
                                        QByteArray("\xff\xd8\xff\x00\x10", 5)})
            QTest::addRow("%d bytes", int(plain.size())) << QString::fromLatin1(plain.toBase64()) << std::optional(plain);
        QTest::newRow("empty") << QString() << std::optional(QByteArray());
        QTest::newRow("plus and slash") << u"+/+/"_s << std::optional(QByteArray("\xfb\xff\xbf", 3));
        QTest::newRow("length not a multiple of four") << u"YWJ"_s << std::optional<QByteArray>();
        QTest::newRow("padding inside") << u"YW=jZA=="_s << std::optional<QByteArray>();
        QTest::newRow("only padding") << u"===="_s << std::optional<QByteArray>();
        QTest::newRow("URL alphabet") << u"-_-_"_s << std::optional<QByteArray>();
        QTest::newRow("not ASCII") << u"YWJ\u00e9"_s << std::optional<QByteArray>();
        QTest::newRow("line break") << u"YW\nJj"_s << std::optional<QByteArray>();
    }
    void base64Fields()
    {
        QFETCH(QString, field);
        QFETCH(std::optional<QByteArray>, bytes);
        QCOMPARE(Exchange::decodeBase64(field.toUtf8()), bytes);
    }

    // A line's cover replaces the stored picture of its side only; the full-size file showed the
    // old picture, so the record no longer names it and the form shows the imported picture.
    void importAgainReplacesOnlyTheCoversALineGives_data()
    {
        QTest::addColumn<bool>("front");
        QTest::addColumn<bool>("back");
        QTest::newRow("no covers in the line") << false << false;
        QTest::newRow("front only") << true << false;
        QTest::newRow("back only") << false << true;
        QTest::newRow("both") << true << true;
    }
    void importAgainReplacesOnlyTheCoversALineGives()
    {
        QFETCH(bool, front);
        QFETCH(bool, back);
        TestApp t;
        Vinyl stored;
        stored.name = u"Some Album"_s;
        stored.artist = u"Some Artist"_s;
        stored.frontImage = QByteArray("old front");
        stored.backImage = QByteArray("old back");
        stored.frontImagePath = t.dataDir() + u"/Documents/FRONT.jpg"_s;
        stored.backImagePath = t.dataDir() + u"/Documents/BACK.jpg"_s;
        stored.imagesLoaded = true;
        QVERIFY(t.store().insert(stored).ok());

        const QString png = base64Png();
        const QString line = kLine.chopped(2) + u'^' + (front ? png : QString()) + u'^' + (back ? png : QString());
        const QByteArray file = (u"[VINYLCOLLECTION]\n"_s + line + u"\n[TRACKCOLLECTION]\n3.45^First^1^3^W\n"_s).toUtf8();
        auto counts = ExchangeReader::importAll(t.store(), file);
        QVERIFY(counts.ok());
        QCOMPARE(counts->recordsUpdated, 1);
        const Vinyl v = records(t.store()).value(0);
        const QByteArray pngBytes = QByteArray::fromBase64(png.toLatin1());
        QCOMPARE(v.frontImage.value_or(QByteArray()), front ? pngBytes : QByteArray("old front"));
        QCOMPARE(v.backImage.value_or(QByteArray()), back ? pngBytes : QByteArray("old back"));
        QCOMPARE(v.frontImagePath, front ? std::nullopt : stored.frontImagePath);
        QCOMPARE(v.backImagePath, back ? std::nullopt : stored.backImagePath);
        QCOMPARE(v.producer, u"Some Producer"_s); // the rest of the line applied too

        const qint64 writes = t.store().writeCount();
        QVERIFY(ExchangeReader::importAll(t.store(), file).ok());
        QCOMPARE(t.store().writeCount(), writes); // the same covers and track again change nothing

        // An export carries JPEGs made of the stored pictures: imported back, they change nothing.
        auto exported = ExchangeReader::importAll(t.store(), ExchangeWriter::build(t.store(), true).valueOr({}));
        QVERIFY(exported.ok());
        QCOMPARE(exported->recordsUnchanged, 1);
        const Vinyl after = records(t.store()).value(0);
        QCOMPARE(after.frontImage, v.frontImage);
        QCOMPARE(after.backImage, v.backImage);
    }

    void recordsMatchByNameAndArtistExactly()
    {
        TestApp t;
        t.addVinyl(u"Some Album"_s, u"some artist"_s); // differs in case only
        t.addVinyl(u"Some Album"_s);                   // no artist at all
        QVERIFY(ExchangeReader::importAll(t.store(), (u"[VINYLCOLLECTION]\n"_s + kLine).toUtf8()).ok());
        QCOMPARE(records(t.store()).size(), 3);
    }

    // Two pressings of one album (same name and artist) stay two records, and the tracks of
    // each stay with it, however often the file is imported and whatever is stored already.
    void linesOfOneFileNeverBecomeOneRecord_data()
    {
        QTest::addColumn<QList<int>>("storedIds"); // records "Some Album" by "Some Artist" already stored
        QTest::addColumn<QStringList>("expectedLabels"); // by id 1, 2, 3
        QTest::newRow("into an empty store") << QList<int>{} << QStringList{u"Label 1"_s, u"Label 2"_s};
        QTest::newRow("into the store it came from") << QList<int>{1, 2} << QStringList{u"Label 1"_s, u"Label 2"_s};
        QTest::newRow("the stored record with the line's id is updated")
            << QList<int>{3, 2} << QStringList{u"Label 1"_s, u"Label 2"_s};
        QTest::newRow("one stored record: the second line adds one")
            << QList<int>{2} << QStringList{u"Label 1"_s, u"Label 2"_s};
    }

    void linesOfOneFileNeverBecomeOneRecord()
    {
        QFETCH(QList<int>, storedIds);
        QFETCH(QStringList, expectedLabels);
        TestApp t;
        for (int id : storedIds)
            t.addVinyl(u"Some Album"_s, u"Some Artist"_s, u"Stored %1"_s.arg(id), qint16(id));
        QString file = u"[VINYLCOLLECTION]\n"_s;
        for (int id : {1, 2}) {
            QStringList fields = kLine.split(u'^');
            fields[5] = QString::number(id);
            fields[10] = u"Label %1"_s.arg(id);
            file += fields.join(u'^') + u'\n';
        }
        file += u"[TRACKCOLLECTION]\n3.0^Untitled^1^1^\n4.0^Untitled^2^1^\n5.0^Untitled^1^2^\n"_s;
        for (int run = 0; run < 2; ++run)
            QVERIFY(ExchangeReader::importAll(t.store(), file.toUtf8()).ok());

        QMap<int, QString> labelById;
        for (const Vinyl &v : records(t.store()))
            labelById.insert(number(v.id), text(v.recordLabel));
        QCOMPARE(labelById.value(1), expectedLabels.at(0));
        QCOMPARE(labelById.value(2), expectedLabels.at(1));
        QCOMPARE(records(t.store()).size(), std::max<qsizetype>(2, storedIds.size()));
        QMap<int, int> tracksById;
        for (const Track &track : tracks(t.store()))
            ++tracksById[number(track.vinylID)];
        QCOMPARE(tracksById.value(1), 2); // two tracks of one title stay two
        QCOMPARE(tracksById.value(2), 1);
    }

    void textThatIsNotUtf8IsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("error"); // empty: read
        QTest::newRow("plain") << QByteArray("[VINYLCOLLECTION]\n") << QString();
        QTest::newRow("accents") << QByteArray("a\nCaf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x8e\xb5") << QString();
        QTest::newRow("byte-order mark") << QByteArray("\xef\xbb\xbf[VINYLCOLLECTION]") << QString();
        QTest::newRow("Windows-1252") << QByteArray("[VINYLCOLLECTION]\nx\nCaf\xe9\n") << u"Line 3 "_s;
        QTest::newRow("overlong") << QByteArray("\xc0\xaf") << u"Line 1 "_s;
        QTest::newRow("surrogate") << QByteArray("a\n\xed\xa0\x80") << u"Line 2 "_s;
        QTest::newRow("cut short") << QByteArray("a\xc3") << u"Line 1 "_s;
    }

    void textThatIsNotUtf8IsRefused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, error);
        const auto text = TextFile::utf8(bytes);
        QCOMPARE(text.ok(), error.isEmpty());
        if (!error.isEmpty())
            QVERIFY2(text.errorMessage().startsWith(error), qPrintable(text.errorMessage()));
        else
            QVERIFY(text->startsWith('[') || text->startsWith('a'));
    }

    void trackIsUpdatedByVinylIdAndSong()
    {
        TestApp t;
        Track stored;
        stored.vinylID = 3;
        stored.song = u"First"_s;
        stored.trackNumber = 1;
        stored.duration = 2.0;
        stored.writtenBy = u"Old"_s;
        QVERIFY(t.store().insert(stored).ok());
        Track other = stored;
        other.vinylID = 4; // same song, other record
        QVERIFY(t.store().insert(other).ok());

        const qint64 writes = t.store().writeCount();
        auto counts = ExchangeReader::importAll(t.store(), (u"[TRACKCOLLECTION]\n3.5^First^^3^New\n"_s).toUtf8());
        QVERIFY(counts.ok());
        QCOMPARE(counts->tracksUpdated, 1);
        QCOMPARE(t.store().writeCount(), writes + 1); // the one changed track is the one write
        const QList<Track> all = tracks(t.store());
        QCOMPARE(all.size(), 2);
        const Track &updated = all.at(0).vinylID == 3 ? all.at(0) : all.at(1);
        QCOMPARE(updated.duration, 3.5);
        QCOMPARE(updated.trackNumber, qint16(1)); // empty field kept
        QCOMPARE(updated.writtenBy, u"New"_s);
        const Track &untouched = all.at(0).vinylID == 4 ? all.at(0) : all.at(1);
        QCOMPARE(untouched.writtenBy, u"Old"_s);
    }

    // Notes travel with their line breaks as "~", so a "~" the collector typed comes back as a
    // line break; carets and apostrophes go and "&" becomes "and". The other fields, the date
    // and the numbers come back as they were, and a second export is the first one again.
    void roundTripKeepsTheTextAsTheFormatAllows_data()
    {
        QTest::addColumn<QString>("notes");
        QTest::addColumn<QString>("imported");
        QTest::newRow("line breaks of every kind") << u"One\nTwo\r\nThree\rFour"_s << u"One\nTwo\nThree\nFour"_s;
        QTest::newRow("a tilde becomes a line break") << u"Line one\nLine two ~ with a tilde"_s
                                                      << u"Line one\nLine two \n with a tilde"_s;
        QTest::newRow("caret, apostrophe, ampersand") << u"Rock & Roll's ^best"_s << u"Rock and Rolls best"_s;
    }

    void roundTripKeepsTheTextAsTheFormatAllows()
    {
        QFETCH(QString, notes);
        QFETCH(QString, imported);
        TestApp source;
        Vinyl v;
        v.name = u"Blue & Grey"_s;
        v.artist = u"Someone"_s;
        v.notes = notes;
        v.releaseDate = QDateTime(QDate(1969, 7, 20), QTime(20, 17, 40));
        v.id = -5;
        v.value = 0.0f;
        v.cost = 0.1f;
        v.albumDuration = 1e-05;
        v.quantity = 3;
        v.coverCondition = u"Good"_s;
        v.imagesLoaded = true;
        QVERIFY(source.store().insert(v).ok());
        Track track;
        track.vinylID = -5;
        track.trackNumber = 2;
        track.song = u"Song"_s;
        track.duration = 6.2;
        QVERIFY(source.store().insert(track).ok());
        const QByteArray first = ExchangeWriter::build(source.store(), true).valueOr({});

        TestApp target;
        QVERIFY(ExchangeReader::importAll(target.store(), first).ok());
        const QList<Vinyl> read = records(target.store());
        QCOMPARE(read.size(), 1);
        QCOMPARE(read.first().notes, std::optional(imported));
        QCOMPARE(QString::fromUtf8(ExchangeWriter::build(target.store(), true).valueOr({})), QString::fromUtf8(first));
    }

    // Lines are read a few hundred at a time beside the merge: a file whose tracks begin in the
    // middle of such a stretch comes back whole, every track and cover with its record, in order.
    void aLongFileComesBackWhole()
    {
        TestApp source;
        QVERIFY(addSampleCollection(source.store(), sampleOptions(700, 2, true, 3)).ok());
        const QByteArray first = ExchangeWriter::build(source.store(), true).valueOr({});

        TestApp target;
        const auto imported = ExchangeReader::importAll(target.store(), first);
        QVERIFY(imported.ok());
        QCOMPARE(imported->recordsAdded, qint64(700));
        QCOMPARE(imported->tracksAdded, qint64(1400));
        // Each cover is written again as it came, not encoded once more into other bytes.
        QCOMPARE(QString::fromUtf8(ExchangeWriter::build(target.store(), true).valueOr({})), QString::fromUtf8(first));
    }
};

QTEST_MAIN(TestExchangeFile)
#include "tst_exchangefile.moc"
