#include "exchange/exchangeformat.h"
#include "exchange/exchangereader.h"
#include "exchange/exchangewriter.h"
#include "store/fetchrequest.h"
#include "store/store.h"
#include "store/textfile.h"
#include "testsupport.h"

#include <QBuffer>
#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

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

class TestExchangeReader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    // Which lines of a text become records and tracks.
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
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<QVariant>("expected"); // invalid: absent afterwards

        QTest::newRow("empty cost keeps it") << 2 << QString() << u"cost"_s << QVariant(12.5f);
        QTest::newRow("empty label keeps it") << 10 << QString() << u"recordLabel"_s << QVariant(u"Some Label"_s);
        QTest::newRow("empty notes keep them") << 7 << QString() << u"notes"_s << QVariant(u"Side A\nSide B"_s);
        QTest::newRow("new cost") << 2 << u"7.25"_s << u"cost"_s << QVariant(7.25f);
        QTest::newRow("cost that does not convert clears it") << 2 << u"cheap"_s << u"cost"_s << QVariant();
        QTest::newRow("value that does not convert clears it") << 13 << u"1,5"_s << u"value"_s << QVariant();
        QTest::newRow("id out of range clears it") << 5 << u"40000"_s << u"id"_s << QVariant();
        QTest::newRow("quantity that does not convert keeps it") << 9 << u"two"_s << u"quantity"_s << QVariant(qint16(2));
        QTest::newRow("bad date keeps it") << 12 << u"1975-03-05"_s << u"releaseDate"_s
                                           << QVariant(QDateTime(QDate(1975, 3, 5), QTime(14, 30, 15)));
        QTest::newRow("date with +0000") << 12 << u"1980.12.24 08:00:00 +0000"_s << u"releaseDate"_s
                                         << QVariant(QDateTime(QDate(1980, 12, 24), QTime(8, 0)));
    }

    void updatesTheMatchedRecord()
    {
        QFETCH(int, field);
        QFETCH(QString, text);
        QFETCH(QString, attribute);
        QFETCH(QVariant, expected);
        TestApp t;
        QVERIFY(ExchangeReader::importAll(t.store(), (u"[VINYLCOLLECTION]\n"_s + kLine).toUtf8()).ok());
        QStringList fields = kLine.split(u'^');
        fields[field] = text;
        auto counts = ExchangeReader::importAll(t.store(), (u"[VINYLCOLLECTION]\n"_s + fields.join(u'^')).toUtf8());
        QVERIFY(counts.ok());
        QCOMPARE(counts->recordsAdded, 0);
        const QList<Vinyl> stored = records(t.store());
        QCOMPARE(stored.size(), 1);
        const Vinyl &v = stored.first();
        QVariant actual;
        if (attribute == u"cost" && v.cost) actual = *v.cost;
        if (attribute == u"value" && v.value) actual = *v.value;
        if (attribute == u"id" && v.id) actual = QVariant::fromValue(*v.id);
        if (attribute == u"quantity" && v.quantity) actual = QVariant::fromValue(*v.quantity);
        if (attribute == u"recordLabel" && v.recordLabel) actual = *v.recordLabel;
        if (attribute == u"notes" && v.notes) actual = *v.notes;
        if (attribute == u"releaseDate" && v.releaseDate) actual = *v.releaseDate;
        QCOMPARE(actual, expected);
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

    void importingTwiceChangesNoCount()
    {
        TestApp t;
        const QString file = u"[VINYLCOLLECTION]\n"_s + kLine + u"\n"_s + QString(kLine).replace(u"Some Album"_s, u"Other"_s)
                             + u"\n[TRACKCOLLECTION]\n3.45^First^1^3^W\n4.1^Second^2^3^\n"_s;
        QVERIFY(ExchangeReader::importAll(t.store(), file.toUtf8()).ok());
        const qint64 writes = t.store().writeCount();
        auto again = ExchangeReader::importAll(t.store(), file.toUtf8());
        QVERIFY(again.ok());
        QCOMPARE(again->recordsAdded, 0);
        QCOMPARE(again->recordsUnchanged, 2);
        QCOMPARE(again->tracksUnchanged, 2);
        QCOMPARE(records(t.store()).size(), 2);
        QCOMPARE(tracks(t.store()).size(), 2);
        QCOMPARE(t.store().writeCount(), writes); // nothing changed, so nothing was written

        // One changed writer is the one write of a third import.
        auto changed = ExchangeReader::importAll(t.store(), (QString(file).replace(u"^1^3^W"_s, u"^1^3^Z"_s)).toUtf8());
        QVERIFY(changed.ok());
        QCOMPARE(t.store().writeCount(), writes + 1);
        QCOMPARE(tracks(t.store()).value(0).writtenBy, u"Z"_s);
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
        stored.imagesLoaded = true;
        QVERIFY(t.store().insert(stored).ok());

        const QString png = base64Png();
        const QString line = kLine.chopped(2) + u'^' + (front ? png : QString()) + u'^' + (back ? png : QString());
        auto counts = ExchangeReader::importAll(t.store(), (u"[VINYLCOLLECTION]\n"_s + line + u"\n"_s).toUtf8());
        QVERIFY(counts.ok());
        QCOMPARE(counts->recordsUpdated, 1);
        const Vinyl v = records(t.store()).value(0);
        const QByteArray pngBytes = QByteArray::fromBase64(png.toLatin1());
        QCOMPARE(v.frontImage.value_or(QByteArray()), front ? pngBytes : QByteArray("old front"));
        QCOMPARE(v.backImage.value_or(QByteArray()), back ? pngBytes : QByteArray("old back"));
        QCOMPARE(v.producer, u"Some Producer"_s); // the rest of the line applied too

        const qint64 writes = t.store().writeCount();
        QVERIFY(ExchangeReader::importAll(t.store(), (u"[VINYLCOLLECTION]\n"_s + line + u"\n"_s).toUtf8()).ok());
        QCOMPARE(t.store().writeCount(), writes); // the same covers again change nothing
    }

    // An exported file carries JPEGs made of the stored pictures: imported back, they change nothing.
    void exportedCoversImportBackUnchanged()
    {
        TestApp t;
        const QString png = base64Png();
        QVERIFY(ExchangeReader::importAll(t.store(), (u"[VINYLCOLLECTION]\n"_s + kLine.chopped(1) + png + u'^').toUtf8()).ok());
        auto counts = ExchangeReader::importAll(t.store(), ExchangeWriter::build(t.store(), true).valueOr({}));
        QVERIFY(counts.ok());
        QCOMPARE(counts->recordsUnchanged, 1);
        QCOMPARE(records(t.store()).value(0).frontImage, QByteArray::fromBase64(png.toLatin1()));
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

    // An imported cover replaces the picture; the full-size file showed the old one, so the
    // record no longer names it and the form shows the imported picture.
    void importedCoverLetsTheOldFullSizeFileGo()
    {
        TestApp t;
        Vinyl v = t.addVinyl(u"Some Album"_s, u"Some Artist"_s);
        v.imagesLoaded = true;
        v.frontImage = QByteArray("old picture");
        v.frontImagePath = t.dataDir() + u"/Documents/OLD.jpg"_s;
        v.backImagePath = t.dataDir() + u"/Documents/BACK.jpg"_s;
        QVERIFY(t.store().update(v).ok());

        QStringList fields = kLine.split(u'^');
        fields[15] = base64Png();
        QVERIFY(ExchangeReader::importAll(t.store(), (u"[VINYLCOLLECTION]\n"_s + fields.join(u'^')).toUtf8()).ok());
        const Vinyl after = records(t.store()).value(0);
        QVERIFY(!after.frontImagePath.has_value());
        QCOMPARE(after.backImagePath, v.backImagePath); // the back cover did not change
        QCOMPARE(after.frontImage->toBase64(), fields[15].toLatin1());
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

        auto counts = ExchangeReader::importAll(t.store(), (u"[TRACKCOLLECTION]\n3.5^First^^3^New\n"_s).toUtf8());
        QVERIFY(counts.ok());
        QCOMPARE(counts->tracksUpdated, 1);
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
};

QTEST_MAIN(TestExchangeReader)
#include "tst_exchangereader.moc"
