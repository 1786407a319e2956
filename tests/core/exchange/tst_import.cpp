// Imports of CSV files and Discogs collection and wantlist exports, and the preview that decides what an import
// does.
#include "exchange/collectioncsv.h"
#include "exchange/csv.h"
#include "exchange/discogscsv.h"
#include "exchange/fileattributes.h"
#include "exchange/importfile.h"
#include "exchange/importmerge.h"
#include "exchange/wantlistcsv.h"
#include "exchange/importpreviewmodel.h"
#include "store/fetchrequest.h"
#include "store/firstlaunch.h"
#include "store/recordnumbers.h"
#include "store/store.h"
#include "store/textfile.h"
#include "store/wantedalbums.h"
#include "testsupport.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <QSqlQuery>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QList<RecordLine> recordLines(const ImportFile &file)
{
    QList<RecordLine> all;
    for (qsizetype i = 0; i < file.recordCount(); ++i)
        all.append(file.record(i));
    return all;
}

QList<Vinyl> records(Store &store)
{
    return store.fetchVinyl(FetchRequest(Entity::Vinyl).sortedBy(u"name"_s).sortedBy(u"id"_s)).valueOr({});
}

QList<Track> tracks(Store &store)
{
    return store.fetchTracks(FetchRequest(Entity::Tracks).sortedBy(u"vinylID"_s).sortedBy(u"trackNumber"_s)).valueOr({});
}

ImportFile discogsExport()
{
    auto text = TextFile::readUtf8(QStringLiteral(PB_TEST_DATA "/discogs-collection.csv"));
    return ImportFiles::read(text.valueOr(QByteArray()));
}

// Every attribute the files carry, as the CSV export writes it.
template<typename Entity>
QStringList fileTexts(const QList<FileAttribute<Entity>> &table, const Entity &object)
{
    QStringList texts;
    for (const auto &attribute : table)
        texts << attribute.name + u'=' + FileAttributes::fileText(attribute, object);
    return texts;
}


const QString kDiscogs = u"Catalog#,Artist,Title,Label,Format,Released,release_id,Collection Media Condition,"
                         "Collection Sleeve Condition,Collection Notes\n"
                         "A-1,Alpha (2),First,Lab,\"2xLP, Album\",1975,11,Very Good Plus (VG+),Generic,\n"
                         "B-2,Beta,Second,Lab,LP,1980-05-06,12,Mint (M),Mint (M),\"Two\nlines\"\n"
                         "C-3,Gamma,Third,Lab,\"7\"\", Single\",0,13,Good (G),No Cover,\n"_s;
const QString kRecordLine = u"45.5^Some Artist^12.5^Near Mint^Single^3^Some Album^^Some Producer^2^Some Label^33 RPM^^20.0^Very Good^^"_s;

qint64 recordCount(Store &store)
{
    return store.count(FetchRequest(Entity::Vinyl)).valueOr(-1) * 1000 + store.count(FetchRequest(Entity::Tracks)).valueOr(-1);
}

} // namespace

class TestImport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    void readsRfc4180_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<QStringList>>("rows");
        QTest::addColumn<QList<qint64>>("lines");
        QTest::newRow("plain, LF") << u"a,b\nc,d"_s << QList<QStringList>{{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}} << QList<qint64>{1, 2};
        QTest::newRow("quoted comma, CR LF") << u"a,\"b,c\"\r\nd,e\r\n"_s
                                             << QList<QStringList>{{u"a"_s, u"b,c"_s}, {u"d"_s, u"e"_s}} << QList<qint64>{1, 2};
        QTest::newRow("doubled quotes") << u"\"say \"\"hi\"\"\",\"\"\"\""_s << QList<QStringList>{{u"say \"hi\""_s, u"\""_s}}
                                        << QList<qint64>{1};
        QTest::newRow("line breaks inside quotes") << u"\"one\r\ntwo\rthree\",x\r\nnext,y"_s
                                                   << QList<QStringList>{{u"one\ntwo\nthree"_s, u"x"_s}, {u"next"_s, u"y"_s}}
                                                   << QList<qint64>{1, 4};
        QTest::newRow("byte-order mark") << u"\uFEFFCatalog#,Artist"_s << QList<QStringList>{{u"Catalog#"_s, u"Artist"_s}}
                                         << QList<qint64>{1};
        QTest::newRow("empty fields kept, blank rows left out")
            << u"a,,c\n\n,,\nd,e,\n"_s << QList<QStringList>{{u"a"_s, u""_s, u"c"_s}, {u"d"_s, u"e"_s, u""_s}}
            << QList<qint64>{1, 4};
        QTest::newRow("quote inside an unquoted field") << u"7\" single,x"_s << QList<QStringList>{{u"7\" single"_s, u"x"_s}}
                                                       << QList<qint64>{1};
    }

    void readsRfc4180()
    {
        QFETCH(QString, text);
        QFETCH(QList<QStringList>, rows);
        QFETCH(QList<qint64>, lines);
        const QList<Csv::Row> read = Csv::parse(text);
        QList<QStringList> fields;
        QList<qint64> starts;
        for (const Csv::Row &row : read) {
            QVERIFY2(row.error.isEmpty(), qPrintable(row.error));
            fields << row.fields;
            starts << row.line;
        }
        QCOMPARE(fields, rows);
        QCOMPARE(starts, lines);
    }

    // The realistic export: every record it holds, as stored after the import.
    void discogsExportBecomesRecords_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("artist");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QDateTime>("released");
        QTest::addColumn<QString>("albumType");
        QTest::addColumn<QString>("speed");
        QTest::addColumn<QString>("media");
        QTest::addColumn<QString>("sleeve");
        QTest::addColumn<int>("quantity");
        QTest::addColumn<QString>("notes");
        QTest::newRow("label list, quoted commas") << u"The Dark Side Of The Moon"_s << u"Pink Floyd"_s << u"Harvest"_s
            << localDate(1973, 3, 23) << u"Single Album"_s << u"33 RPM"_s << u"Near Mint"_s << u"Very Good/Fine"_s << 1
            << u"Both posters, both stickers\nCatalog#: SHVL 804\nrelease_id: 90211"_s;
        QTest::newRow("repeated release, year only") << u"Rumours"_s << u"Fleetwood Mac"_s << u"Warner Bros. Records"_s
            << localDate(1977, 1, 1) << u"Single Album"_s << u"33 RPM"_s << u"Very Good/Fine"_s << u"Very Good/Fine"_s << 2
            << u"Catalog#: K 56344\nrelease_id: 90212\nSecond copy from a charity shop"_s;
        QTest::newRow("doubled quotes, suffixed label") << u"Thriller"_s << u"Michael Jackson"_s << u"Epic"_s
            << localDate(1982, 11, 30) << u"Single Album"_s << u"33 RPM"_s << u"Mint"_s << u"Mint"_s << 1
            << u"Still sealed, hype sticker \"Includes Beat It\"\nCatalog#: EPC 85930\nrelease_id: 90213"_s;
        QTest::newRow("2xLP, multi-line note") << u"The Wall"_s << u"Pink Floyd"_s << u"Harvest"_s << localDate(1979, 11, 30)
            << u"Double Album"_s << u"33 RPM"_s << u"Very Good"_s << u"Good/Very Good"_s << 1
            << u"Inner sleeves have ring wear\nSide 3 slightly warped\nBought at a fair, 2004\nCatalog#: SHDW 411\nrelease_id: 90214"_s;
        QTest::newRow("3xLP box") << u"All Things Must Pass"_s << u"George Harrison"_s << u"Apple Records"_s << localDate(1970, 1, 1)
            << u"Triple Album"_s << u"33 RPM"_s << u"Good"_s << u"Fair"_s << 1
            << u"Box split on one edge\nCatalog#: STCH 639\nrelease_id: 90215"_s;
        QTest::newRow("7\" at 45 RPM, generic sleeve") << u"Hey Jude"_s << u"The Beatles"_s << u"Parlophone"_s
            << localDate(1968, 8, 30) << u"Single Album"_s << u"45 RPM"_s << u"Poor"_s << QString() << 1
            << u"Plays with crackle\nCatalog#: R 5722\nrelease_id: 90216\nSleeve condition: Generic"_s;
        QTest::newRow("7\" without a speed, suffixed artist") << u"You Really Got Me"_s << u"The Kinks"_s << u"Pye Records"_s
            << localDate(1964, 1, 1) << u"Single Album"_s << u"45 RPM"_s << u"Good/Very Good"_s << QString() << 1
            << u"Catalog#: 7N 35000\nrelease_id: 90217\nSleeve condition: No Cover"_s;
        QTest::newRow("zero month and day") << u"Local Anaesthetic"_s << u"Nirvana"_s << u"Vertigo"_s << localDate(1971, 1, 1)
            << u"Single Album"_s << u"33 RPM"_s << u"Very Good"_s << QString() << 1
            << u"Catalog#: TA 1234\nrelease_id: 90218\nSleeve condition: Not Graded"_s;
        QTest::newRow("comma in the artist, year and month") << u"D\u00e9j\u00e0 Vu"_s << u"Crosby, Stills, Nash & Young"_s
            << u"Atlantic"_s << localDate(1970, 3, 1) << u"Single Album"_s << u"33 RPM"_s << u"Near Mint"_s << u"Near Mint"_s << 1
            << u"Textured cover, name \"D\u00e9j\u00e0 Vu\" embossed\nCatalog#: SD 7200\nrelease_id: 90219"_s;
        QTest::newRow("12\" names its speed") << u"Groove Is In The Heart"_s << u"Dee-Lite"_s << u"Elektra"_s << localDate(1990, 1, 1)
            << u"Single Album"_s << u"33 RPM"_s << u"Very Good/Fine"_s << u"Very Good"_s << 1
            << u"Catalog#: TX 501\nrelease_id: 90220"_s;
        QTest::newRow("78 RPM, released 0") << u"Tiger Rag"_s << u"Harry Roy & His Orchestra"_s << u"Parlophone"_s
            << QDateTime() << u"Single Album"_s << u"78 RPM"_s << u"Fair"_s << QString() << 1
            << u"Paper sleeve only\nCatalog#: DB 4321\nrelease_id: 90221\nSleeve condition: Generic"_s;
    }

    void discogsExportBecomesRecords()
    {
        QFETCH(QString, name);
        QFETCH(QString, artist);
        QFETCH(QString, label);
        QFETCH(QDateTime, released);
        QFETCH(QString, albumType);
        QFETCH(QString, speed);
        QFETCH(QString, media);
        QFETCH(QString, sleeve);
        QFETCH(int, quantity);
        QFETCH(QString, notes);
        TestApp t;
        auto counts = ImportMerge::apply(t.store(), discogsExport());
        QVERIFY2(counts.ok(), qPrintable(counts.errorMessage()));
        QCOMPARE(counts->recordsAdded, 12);
        auto found = t.store().fetchVinyl(FetchRequest(Entity::Vinyl).where(Predicate::equal(u"name"_s, name)));
        QCOMPARE(found.valueOr({}).size(), 1);
        const Vinyl v = found->first();
        QCOMPARE(text(v.artist), artist);
        QCOMPARE(text(v.recordLabel), label);
        QCOMPARE(v.releaseDate.value_or(QDateTime()), released);
        QCOMPARE(text(v.doubleAlbum), albumType);
        QCOMPARE(text(v.recordSpeed), speed);
        QCOMPARE(text(v.vinylCondition), media);
        QCOMPARE(v.coverCondition.has_value(), !sleeve.isEmpty());
        QCOMPARE(text(v.coverCondition), sleeve);
        QCOMPARE(number(v.quantity), qint16(quantity));
        QCOMPARE(text(v.notes), notes);
    }

    void discogsExportIsRecognisedAndExplained()
    {
        const ImportFile file = discogsExport();
        QCOMPARE(file.format, ImportFormat::Discogs);
        QCOMPARE(file.ignoredColumns, (QStringList{u"Rating"_s, u"CollectionFolder"_s, u"Date Added"_s, u"Shelf"_s}));
        QCOMPARE(file.recordCount(), 12);
        QCOMPARE(file.record(1).remark, u"2 copies: lines 3 and 15"_s);
        QCOMPARE(file.record(3).line, 5);
        QCOMPARE(file.record(4).line, 8); // after the three lines of the note above
        // Every condition text the site uses turns up, each said once, in the table's order.
        QCOMPARE(file.remarks.size(), DiscogsCsv::conditionGrades().size());
        QCOMPARE(file.remarks.first(), u"\"Mint (M)\" \u2192 Mint"_s);
        QCOMPARE(file.remarks.last(), u"\"Not Graded\" is no grade: kept in the notes"_s);
    }

    void conditionGradesAreReferenceListGrades()
    {
        for (const DiscogsCsv::ConditionGrade &entry : DiscogsCsv::conditionGrades())
            QVERIFY2(entry.grade.isEmpty() || seedConditionGrades().contains(entry.grade), qPrintable(entry.grade));
    }

    // One Discogs row with the fields given; the record line it reads as.
    void discogsFields_data()
    {
        QTest::addColumn<QString>("row"); // Artist,Title,Label,Format,Released
        QTest::addColumn<QStringList>("expected"); // artist, label, doubleAlbum, recordSpeed, releaseDate; or the problem
        QTest::newRow("4xLP") << u"A,T,L,\"4xLP, Box\",1999"_s
                              << QStringList{u"A"_s, u"L"_s, u"Quad Album"_s, u"33 RPM"_s, u"1999-01-01"_s};
        QTest::newRow("more than four discs") << u"A,T,L,\"6xLP, Box\",1999-12-31"_s
                                              << QStringList{u"A"_s, u"L"_s, u"Single Album"_s, u"33 RPM"_s, u"1999-12-31"_s};
        QTest::newRow("named speed wins over LP") << u"A,T,L,\"LP, 45 RPM\",0"_s
                                                  << QStringList{u"A"_s, u"L"_s, u"Single Album"_s, u"45 RPM"_s, QString()};
        QTest::newRow("2x7\"") << u"A,T,L,\"2x7\"\", EP\","_s
                               << QStringList{u"A"_s, u"L"_s, u"Double Album"_s, u"45 RPM"_s, QString()};
        QTest::newRow("no speed known") << u"A,T,L,\"CD, Album\",2001-05"_s
                                        << QStringList{u"A"_s, u"L"_s, u"Single Album"_s, QString(), u"2001-05-01"_s};
        QTest::newRow("several suffixes") << u"\"Foo (12), Bar (2)\",T,\"Lab (3), Other (4)\",LP,1980"_s
                                          << QStringList{u"Foo, Bar"_s, u"Lab"_s, u"Single Album"_s, u"33 RPM"_s, u"1980-01-01"_s};
        QTest::newRow("unknown month and day") << u"A,T,L,LP,1975-00-00"_s
                                               << QStringList{u"A"_s, u"L"_s, u"Single Album"_s, u"33 RPM"_s, u"1975-01-01"_s};
        QTest::newRow("month out of range") << u"A,T,L,LP,1975-13"_s << QStringList{u"Released \"1975-13\" is not a date"_s};
        QTest::newRow("unquoted comma") << u"A,T,L,LP, Album,1980,5"_s
                                        << QStringList{u"the line cannot be read: it has 7 fields where the header has 6 "
                                                       "(a comma outside quotes?)"_s};
    }

    void discogsFields()
    {
        QFETCH(QString, row);
        QFETCH(QStringList, expected);
        const ImportFile file = ImportFiles::read((u"Artist,Title,Label,Format,Released,release_id\n"_s + row + u'\n').toUtf8());
        QCOMPARE(file.format, ImportFormat::Discogs);
        QCOMPARE(file.recordCount(), 1);
        const RecordLine line = file.record(0);
        if (expected.size() == 1) {
            QCOMPARE(line.problem, expected.first());
            return;
        }
        QCOMPARE(line.problem, QString());
        const Vinyl &v = line.values;
        const QString date = v.releaseDate ? v.releaseDate->date().toString(Qt::ISODate) : QString();
        QCOMPARE((QStringList{text(v.artist), text(v.recordLabel), text(v.doubleAlbum), text(v.recordSpeed), date}), expected);
    }

    // Rows of one release: each becomes the record, a copy of it or a problem with its line,
    // and the import does what the preview says.
    void discogsRowsOfOneRelease_data()
    {
        QTest::addColumn<QString>("rows"); // Artist,Title,Label,Format,Released,release_id
        QTest::addColumn<QStringList>("lines"); // "line: name x quantity" or "line: problem"
        QTest::newRow("first row has no title") << u"A,,L,LP,1980,7\nA,T,L,LP,1980,7\nA,T,L,LP,1980,7\n"_s
                                                << QStringList{u"2: no name (the Title is empty)"_s, u"3: T x 2"_s};
        QTest::newRow("first row is no date") << u"A,T,L,LP,soon,7\nA,T,L,LP,1980,7\n"_s
                                              << QStringList{u"2: Released \"soon\" is not a date"_s, u"3: T x 1"_s};
        QTest::newRow("a later row is no date") << u"A,T,L,LP,1980,7\nA,T,L,LP,1975-13,7\nA,T,L,LP,1980,7\n"_s
                                                << QStringList{u"2: T x 2"_s, u"3: Released \"1975-13\" is not a date"_s};
    }

    void discogsRowsOfOneRelease()
    {
        QFETCH(QString, rows);
        QFETCH(QStringList, lines);
        const ImportFile file = ImportFiles::read((u"Artist,Title,Label,Format,Released,release_id\n"_s + rows).toUtf8());
        QStringList read;
        for (const RecordLine &line : recordLines(file)) {
            const Vinyl &v = line.values;
            read << u"%1: "_s.arg(line.line) + (line.problem.isEmpty() ? u"%1 x %2"_s.arg(text(v.name)).arg(number(v.quantity)) : line.problem);
        }
        QCOMPARE(read, lines);
        TestApp t;
        auto preview = ImportMerge::preview(t.store(), file);
        auto applied = ImportMerge::apply(t.store(), file);
        QVERIFY(preview.ok() && applied.ok());
        QCOMPARE(ImportMerge::countsText(*applied), ImportMerge::countsText(preview->counts));
        QCOMPARE(applied->problems.size() + records(t.store()).size(), lines.size());
    }

    // A spreadsheet with the form's titles in its own order, and one that cannot all be read.
    void spreadsheetLines_data()
    {
        QTest::addColumn<QString>("csv");
        QTest::addColumn<QStringList>("values"); // name|artist|recordLabel|releaseDate|quantity|value per line
        QTest::addColumn<QStringList>("problems");
        QTest::addColumn<QStringList>("ignored");
        QTest::newRow("form titles, other order")
            << u"Record Label,Album Name,Est. Value,Release Date,Artist,Quantity,Shelf\r\n"
               "Apple,Abbey Road,45.5,1969-09-26,The Beatles,2,A1\r\n"
               "\"Harvest, EMI\",Animals,\"1,250.75\",\"Jan 23, 1977\",Pink Floyd,,B2\r\n"_s
            << QStringList{u"Abbey Road|The Beatles|Apple|1969-09-26|2|45.5"_s,
                           u"Animals|Pink Floyd|Harvest, EMI|1977-01-23||1250.75"_s}
            << QStringList{QString(), QString()} << QStringList{u"Shelf"_s};
        QTest::newRow("attribute names, any letter case")
            << u"ARTIST,name,quantity\nX,Y,3\n"_s << QStringList{u"Y|X|||3|"_s} << QStringList{QString()} << QStringList();
        QTest::newRow("problems name the field")
            << u"name,quantity,releaseDate,value\n,1,,\nA,40000,,\nB,two,31.02.1975,\nC,1,,1e40\n\"D,1,,\n"_s
            << QStringList{u"||||1|"_s, u"A|||||"_s, u"B|||||"_s, u"C|||||"_s, u"D,1,,\n|||||"_s}
            << QStringList{u"no name"_s, u"Quantity \"40000\" is out of range"_s,
                           u"Quantity \"two\" is not a number; Release Date \"31.02.1975\" is not a date"_s,
                           u"Est. Value \"1e40\" is out of range"_s,
                           u"the line cannot be read: the quote opened on line 6 is never closed"_s}
            << QStringList();
    }

    void spreadsheetLines()
    {
        QFETCH(QString, csv);
        QFETCH(QStringList, values);
        QFETCH(QStringList, problems);
        QFETCH(QStringList, ignored);
        const ImportFile file = ImportFiles::read(csv.toUtf8());
        QCOMPARE(file.format, ImportFormat::Spreadsheet);
        QCOMPARE(file.ignoredColumns, ignored);
        QStringList readValues, readProblems;
        for (const RecordLine &line : recordLines(file)) {
            const Vinyl &v = line.values;
            readValues << QStringList{text(v.name), text(v.artist), text(v.recordLabel),
                                      v.releaseDate ? v.releaseDate->date().toString(Qt::ISODate) : QString(),
                                      v.quantity ? QString::number(*v.quantity) : QString(),
                                      v.value ? QString::number(*v.value) : QString()}.join(u'|');
            readProblems << line.problem;
        }
        QCOMPARE(readProblems, problems);
        if (problems.first().isEmpty())
            QCOMPARE(readValues, values);
    }

    // What the CSV export writes comes back whole into an empty store, the pictures aside.
    void csvExportImportsBackTheSameCollection_data()
    {
        QTest::addColumn<bool>("tracksInRecordsFile");
        QTest::newRow("tracks in a second file") << false;
        QTest::newRow("tracks in a second section") << true;
    }

    void csvExportImportsBackTheSameCollection()
    {
        QFETCH(bool, tracksInRecordsFile);
        TestApp source;
        Vinyl full;
        full.name = u"Blue, \"Grey\" & Green"_s;
        full.artist = u"Someone"_s;
        full.notes = u"Line one, with a comma\nLine \"two\""_s;
        full.releaseDate = localDate(1969, 7, 20);
        full.id = -5;
        full.value = 0.1f;
        full.cost = 1234.5f;
        full.albumDuration = 41.25;
        full.quantity = 3;
        full.recordLabel = u"Label"_s;
        full.producer = u"P"_s;
        full.vinylCondition = u"Near Mint"_s;
        full.coverCondition = u"Very Good"_s;
        full.recordSpeed = u"33 RPM"_s;
        full.doubleAlbum = u"Double Album"_s;
        full.barcode = u"0724384260910"_s;
        full.musicBrainzReleaseId = u"4f1c2a3b-0d5e-4c6f-9a8b-7e6d5c4b3a21"_s;
        full.frontImage = QByteArray("picture");
        full.imagesLoaded = true;
        QVERIFY(source.store().insert(full).ok());
        Vinyl sparse; // most attributes absent
        sparse.name = u" leading space"_s;
        sparse.id = 7;
        sparse.value = 0.0f;
        QVERIFY(source.store().insert(sparse).ok());
        for (qint16 n : {2, 1}) {
            Track track;
            track.vinylID = 7;
            track.trackNumber = n;
            track.song = u"Song, part %1"_s.arg(n);
            track.duration = 3.1 * n;
            track.writtenBy = n == 1 ? u"W"_s : QString();
            QVERIFY(source.store().insert(track).ok());
        }

        auto files = CollectionCsv::write(source.store(), tracksInRecordsFile);
        QVERIFY(files.ok());
        QVERIFY(files->records.startsWith("\xEF\xBB\xBFid,name,artist,releaseDate,"));
        // The look-up's two come last, so that older files keep their column order.
        QVERIFY(files->records.contains(",notes,barcode,musicBrainzReleaseId\r\n"));
        QCOMPARE(files->tracks.isEmpty(), tracksInRecordsFile);
        TestApp target;
        for (const QByteArray &bytes : {files->records, files->tracks}) {
            if (bytes.isEmpty())
                continue;
            const ImportFile file = ImportFiles::read(TextFile::utf8(bytes).valueOr({}));
            QCOMPARE(file.format, ImportFormat::Spreadsheet);
            auto counts = ImportMerge::apply(target.store(), file);
            QVERIFY(counts.ok());
            QVERIFY(counts->problems.isEmpty());
        }

        const QList<Vinyl> before = records(source.store()), after = records(target.store());
        QCOMPARE(after.size(), before.size());
        for (qsizetype i = 0; i < before.size(); ++i)
            QCOMPARE(fileTexts(FileAttributes::records(), after.at(i)), fileTexts(FileAttributes::records(), before.at(i)));
        const QList<Track> tracksBefore = tracks(source.store()), tracksAfter = tracks(target.store());
        QCOMPARE(tracksAfter.size(), tracksBefore.size());
        for (qsizetype i = 0; i < tracksBefore.size(); ++i)
            QCOMPARE(fileTexts(FileAttributes::tracks(), tracksAfter.at(i)), fileTexts(FileAttributes::tracks(), tracksBefore.at(i)));
    }

    // A stored record's barcode and release id are replaced by a file that has the columns,
    // by attribute name or by title, and kept by an older file without them or with them empty.
    void barcodeAndReleaseIdColumnsAreReadWhenPresent_data()
    {
        QTest::addColumn<QString>("csv");
        QTest::addColumn<QString>("barcode");
        QTest::addColumn<QString>("releaseId");
        const QString storedBarcode = u"5012345678900"_s, storedId = u"4f1c2a3b-0d5e-4c6f-9a8b-7e6d5c4b3a21"_s;
        const QString newId = u"9b8a7c6d-5e4f-4a3b-8c2d-1e0f9a8b7c6d"_s;
        QTest::newRow("an older file without them") << u"name,artist,notes\nAlbum,Artist,re-read\n"_s
                                                    << storedBarcode << storedId;
        QTest::newRow("attribute names") << u"name,artist,barcode,musicBrainzReleaseId\nAlbum,Artist,0724384260910,"_s + newId
                                         << u"0724384260910"_s << newId;
        QTest::newRow("titles, other order") << u"MusicBrainz Release ID,Barcode,Album Name,Artist\n"_s + newId
                                                    + u",0724384260910,Album,Artist\n"_s
                                             << u"0724384260910"_s << newId;
        QTest::newRow("empty cells") << u"name,artist,barcode,musicBrainzReleaseId\nAlbum,Artist,,\n"_s << storedBarcode
                                     << storedId;
    }

    void barcodeAndReleaseIdColumnsAreReadWhenPresent()
    {
        QFETCH(QString, csv);
        QFETCH(QString, barcode);
        QFETCH(QString, releaseId);
        TestApp t;
        Vinyl v = t.addVinyl(u"Album"_s, u"Artist"_s);
        v.barcode = u"5012345678900"_s;
        v.musicBrainzReleaseId = u"4f1c2a3b-0d5e-4c6f-9a8b-7e6d5c4b3a21"_s;
        QVERIFY(t.store().update(v).ok());
        const ImportFile file = ImportFiles::read(csv.toUtf8());
        QCOMPARE(file.ignoredColumns, QStringList());
        auto counts = ImportMerge::apply(t.store(), file);
        QVERIFY(counts.ok());
        QVERIFY(counts->problems.isEmpty());
        const QList<Vinyl> after = records(t.store());
        QCOMPARE(after.size(), 1);
        QCOMPARE(after.first().barcode, std::optional<QString>(barcode));
        QCOMPARE(after.first().musicBrainzReleaseId, std::optional<QString>(releaseId));
    }

    void tracksFileSitsBesideTheRecordsFile()
    {
        QCOMPARE(CollectionCsv::tracksPath(u"/tmp/my.collection.csv"_s), u"/tmp/my.collection-tracks.csv"_s);
        QCOMPARE(CollectionCsv::tracksPath(u"out"_s), u"out-tracks"_s);
    }

    // The preview makes the decisions the import then makes, and changes nothing.
    void previewDecidesWhatTheImportDoes_data()
    {
        QTest::addColumn<QString>("before"); // a file imported first
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("counts");
        QTest::newRow("Discogs into an empty store") << QString() << kDiscogs << u"3 new, 0 updated, 0 unchanged, 0 problems"_s;
        QTest::newRow("Discogs again") << kDiscogs << kDiscogs << u"0 new, 0 updated, 3 unchanged, 0 problems"_s;
        QTest::newRow("Discogs with a change and a new line")
            << kDiscogs << QString(kDiscogs).replace(u"Mint (M),Mint (M)"_s, u"Mint (M),Good (G)"_s) + u"D,Delta,Fourth,L,LP,,14,,,\n"_s
            << u"1 new, 1 updated, 2 unchanged, 0 problems"_s;
        QTest::newRow("exchange: two lines of one album stay two")
            << u"[VINYLCOLLECTION]\n"_s + kRecordLine
            << u"[VINYLCOLLECTION]\n"_s + kRecordLine + u'\n' + QString(kRecordLine).replace(u"^3^"_s, u"^4^"_s)
                   + u"\n[TRACKCOLLECTION]\n3.0^Song^1^3^\n"_s
            << u"2 new, 0 updated, 1 unchanged, 0 problems"_s;
        QTest::newRow("exchange: a track changes")
            << u"[VINYLCOLLECTION]\n[TRACKCOLLECTION]\n3.0^Song^1^3^\n"_s
            << u"[VINYLCOLLECTION]\n[TRACKCOLLECTION]\n3.5^Song^1^3^\n"_s << u"0 new, 1 updated, 0 unchanged, 0 problems"_s;
        const QString songTwice = u"[VINYLCOLLECTION]\n[TRACKCOLLECTION]\n3.0^Intro^1^3^\n4.0^Intro^5^3^\n"_s;
        const QString twoUnchanged = u"0 new, 0 updated, 2 unchanged, 0 problems"_s;
        QTest::newRow("exchange again: a song twice on a record") << songTwice << songTwice << twoUnchanged;
        QTest::newRow("CSV without an artist again") << u"name\nOne\nTwo\n"_s << u"name\nOne\nTwo\n"_s << twoUnchanged;
        QTest::newRow("CSV") << u"name,artist\nOne,A\n"_s << u"artist,name,quantity\nA,One,2\nB,Two,\nC,,1\n"_s
                             << u"1 new, 1 updated, 0 unchanged, 1 problem"_s;
        const qint64 many = ImportCounts::kListedProblems + 2; // more than are listed: counted all the same
        QTest::newRow("CSV: every line a problem") << QString() << u"name,id\n"_s + u",1\n"_s.repeated(many)
                                                   << u"0 new, 0 updated, 0 unchanged, %1 problems"_s.arg(QLocale().toString(many));
    }

    void previewDecidesWhatTheImportDoes()
    {
        QFETCH(QString, before);
        QFETCH(QString, file);
        QFETCH(QString, counts);
        TestApp t;
        if (!before.isEmpty())
            QVERIFY(ImportMerge::apply(t.store(), ImportFiles::read(before.toUtf8())).ok());
        const qint64 stored = recordCount(t.store());
        const qint64 writes = t.store().writeCount();

        const ImportFile read = ImportFiles::read(file.toUtf8());
        auto preview = ImportMerge::preview(t.store(), read);
        QVERIFY2(preview.ok(), qPrintable(preview.errorMessage()));
        QCOMPARE(ImportMerge::countsText(preview->counts), counts);
        QCOMPARE(preview->outcomes.size(), read.lineCount());
        QCOMPARE(recordCount(t.store()), stored);
        QCOMPARE(t.store().writeCount(), writes);

        auto applied = ImportMerge::apply(t.store(), read);
        QVERIFY(applied.ok());
        QCOMPARE(ImportMerge::countsText(*applied), counts);
        QCOMPARE(recordCount(t.store()), stored + 1000 * applied->recordsAdded + applied->tracksAdded);
    }

    void updateNamesEveryFieldWithItsOldAndNewValue()
    {
        TestApp t;
        QVERIFY(ImportMerge::apply(t.store(), ImportFiles::read((u"name,artist,releaseDate,recordLabel,quantity,cost\n"
                                                                 "One,A,1975-03-05,Old,1,2.5\n"_s).toUtf8())).ok());
        auto preview = ImportMerge::preview(t.store(), ImportFiles::read((u"Quantity,Album Name,Artist,Record Label,"
                                                                          "Release Date,Cost\n2,One,A,New,1976-06-01,2.5\n"_s).toUtf8()));
        QVERIFY(preview.ok());
        QCOMPARE(preview->outcomes.size(), 1);
        const ImportOutcome &outcome = preview->outcomes.first();
        QCOMPARE(outcome.kind, ImportOutcome::Updated);
        QStringList changes;
        for (const FieldChange &change : preview->details.value(outcome.detail).changes)
            changes << change.field + u": "_s + change.before + u" -> "_s + change.after;
        QCOMPARE(changes, (QStringList{u"Release Date: Mar 5, 1975 -> Jun 1, 1976"_s, u"Record Label: Old -> New"_s,
                                       u"Quantity: 1 -> 2"_s}));
    }

    void previewListShowsEveryKindOfLine()
    {
        TestApp t;
        QVERIFY(ImportMerge::apply(t.store(), ImportFiles::read(kDiscogs.toUtf8())).ok());
        const QString text = QString(kDiscogs).replace(u"Mint (M),Mint (M)"_s, u"Mint (M),Good (G)"_s)
                             + u"D,Delta,Fourth,L,LP,1999,14,,,\nE,Eps,,L,LP,,15,,,\nA-1,Alpha (2),First,Lab,\"2xLP, Album\",1975,11,"
                               "Very Good Plus (VG+),Generic,\n"_s;
        auto file = std::make_shared<const ImportFile>(ImportFiles::read(text.toUtf8()));
        auto preview = ImportMerge::preview(t.store(), *file);
        QVERIFY(preview.ok());

        ImportPreviewModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setPreview(file, preview->outcomes, preview->details);
        QCOMPARE(model.rowCount(), 5);
        const auto row = [&model](int r) {
            QStringList texts;
            for (int role : {ImportPreviewModel::KindLabelRole, ImportPreviewModel::LineLabelRole,
                             ImportPreviewModel::TitleLabelRole, ImportPreviewModel::DetailLabelRole})
                texts << model.data(model.index(r), role).toString();
            return texts;
        };
        QCOMPARE(row(0), (QStringList{u"Updated"_s, u"Line 2"_s, u"First \u2014 Alpha"_s,
                                      u"Quantity: 1 \u2192 2\n2 copies: lines 2 and 8"_s}));
        QCOMPARE(row(1), (QStringList{u"Updated"_s, u"Line 3"_s, u"Second \u2014 Beta"_s,
                                      u"Cover Condition: Mint \u2192 Good"_s}));
        QCOMPARE(row(2).first(), u"Unchanged"_s);
        QCOMPARE(row(3), (QStringList{u"New"_s, u"Line 6"_s, u"Fourth \u2014 Delta"_s, u"L \u00b7 Jan 1, 1999"_s}));
        QCOMPARE(row(4), (QStringList{u"Problem"_s, u"Line 7"_s, u"Eps"_s, u"no name (the Title is empty)"_s}));

        model.showKind(ImportOutcome::Problem);
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.data(model.index(0), ImportPreviewModel::LineLabelRole).toString(), u"Line 7"_s);
    }

    // Tracks find their record by its number, so a new record from a CSV file gets one.
    void newRecordsTakeTheNextFreeNumbers_data()
    {
        QTest::addColumn<int>("storedId");
        QTest::addColumn<QString>("csv");
        QTest::addColumn<QString>("numbers"); // of the records after the import, by name
        QTest::addColumn<QString>("problems");
        QTest::newRow("after the stored ones") << 7 << u"name\nA\nB\n"_s << u"A=8 B=9 Stored=7"_s << QString();
        QTest::newRow("after those the file gives") << 7 << u"name,id\nA,\nB,20\n"_s << u"A=21 B=20 Stored=7"_s << QString();
        QTest::newRow("none left") << 32766 << u"name\nA\nB\n"_s << u"A=32767 Stored=32766"_s
                                   << u"Line 3: "_s + kNoRecordNumberLeft;
    }

    void newRecordsTakeTheNextFreeNumbers()
    {
        QFETCH(int, storedId);
        QFETCH(QString, csv);
        QFETCH(QString, numbers);
        QFETCH(QString, problems);
        TestApp t;
        t.addVinyl(u"Stored"_s, u"A"_s, u"L"_s, qint16(storedId));
        auto applied = ImportMerge::apply(t.store(), ImportFiles::read(csv.toUtf8()));
        QVERIFY(applied.ok());
        QStringList byName;
        for (const Vinyl &v : t.store().fetchVinyl(FetchRequest(Entity::Vinyl).sortedBy(u"name"_s)).valueOr({}))
            byName << text(v.name) + u'=' + QString::number(number(v.id));
        QCOMPARE(byName.join(u' '), numbers);
        QStringList skipped;
        for (const ImportProblem &problem : applied->problems)
            skipped << ImportMerge::problemText(problem);
        QCOMPARE(skipped.join(u'\n'), problems);
    }

    // An import stopped part way (a cancel, or a line the store refuses) leaves the store holding
    // a whole first part of the file, and says how much: never some lines of a part.
    void stoppedImportKeepsAFirstPartOfTheFile_data()
    {
        QTest::addColumn<bool>("cancel");
        QTest::addColumn<int>("stopLine"); // the line index the cancel or refusal comes at
        QTest::newRow("cancelled at once") << true << 300;
        QTest::newRow("cancelled late") << true << 18000;
        QTest::newRow("the store refuses an early line") << false << 500;
        QTest::newRow("the store refuses a late line") << false << 18000;
    }

    void stoppedImportKeepsAFirstPartOfTheFile()
    {
        QFETCH(bool, cancel);
        QFETCH(int, stopLine);
        TestApp t;
        t.addVinyl(u"Kept"_s, u"A"_s, u"Label"_s, 1);
        // Line 0 updates the stored record; line i > 0 adds "Album i".
        QString csv = u"name,artist,recordLabel\nKept,A,Changed\n"_s;
        for (int i = 1; i <= 20000; ++i)
            csv += u"Album %1,A,L\n"_s.arg(i);
        QSqlQuery q(t.store().database());
        if (!cancel)
            QVERIFY(q.exec(u"CREATE TRIGGER refuse BEFORE INSERT ON Vinyl WHEN NEW.name = 'Album %1' "
                           "BEGIN SELECT RAISE(ABORT, 'refused'); END"_s.arg(stopLine)));
        const auto progress = [=](qint64 done, qint64) { return !cancel || done < stopLine; };
        auto applied = ImportMerge::apply(t.store(), ImportFiles::read(csv.toUtf8()), progress);

        const auto counted = [&t](const QString &attribute, const QString &value) {
            return t.store().count(FetchRequest(Entity::Vinyl).where(Predicate::equal(attribute, value))).valueOr(-1);
        };
        // The lines of the file the store holds: the update of line 0 and the albums added.
        const qint64 kept = counted(u"recordLabel"_s, u"Changed"_s) + counted(u"recordLabel"_s, u"L"_s);
        // Batches are thousands of lines long: an early stop keeps nothing, a late one keeps some.
        QVERIFY(kept < stopLine);
        QCOMPARE(kept > 0, stopLine > 16384);
        if (kept > 0)
            QCOMPARE(counted(u"name"_s, u"Album %1"_s.arg(kept - 1)), 1);
        if (cancel) {
            QVERIFY(applied.ok());
            QVERIFY(applied->stopped);
            QCOMPARE(applied->linesApplied, kept);
            QCOMPARE(applied->added() + applied->updated(), kept);
        } else {
            QVERIFY(!applied.ok());
            QVERIFY2(applied.errorMessage().contains(u"refused"_s), qPrintable(applied.errorMessage()));
            QVERIFY(applied.errorMessage().endsWith(
                kept > 0 ? ImportMessages::kPartlyImported.arg(QLocale().toString(kept)) : ImportMessages::kNothingImported));
        }
    }

    // A Discogs wantlist export (byte-order mark, CR LF, quoted fields, accented names) becomes
    // wanted albums; each line is added or skipped with its reason, and nothing joins the collection.
    void discogsWantlistBecomesWantedAlbums_data()
    {
        QTest::addColumn<qint64>("line");
        QTest::addColumn<QStringList>("album"); // empty for a line skipped
        QTest::addColumn<QString>("skipped");
        QTest::newRow("double album, label of two, month without a day")
            << qint64(2)
            << QStringList{u"name=Kirsebær Nætter"_s, u"artist=Mølle & Søn"_s, u"releaseDate=1974-05-01T00:00:00"_s,
                           u"recordLabel=Nordlys"_s, u"quantity=1"_s, u"recordSpeed=33 RPM"_s, u"doubleAlbum=Double Album"_s,
                           u"notes=Only the first pressing, with the \"red\" label\nCatalog#: HRV 101\nrelease_id: 700101"_s}
            << QString();
        QTest::newRow("single at 45") << qint64(3)
                                      << QStringList{u"name=Été Indien"_s, u"artist=Chloé Ardèche"_s,
                                                     u"releaseDate=1981-01-01T00:00:00"_s, u"recordLabel=Salamandre"_s,
                                                     u"quantity=1"_s, u"recordSpeed=45 RPM"_s, u"doubleAlbum=Single Album"_s,
                                                     u"notes=Catalog#: EM-7\nrelease_id: 700102"_s}
                                      << QString();
        QTest::newRow("no title") << qint64(4) << QStringList() << u"no name (the Title is empty)"_s;
        QTest::newRow("notes over two lines") << qint64(5)
                                              << QStringList{u"name=Lamps Along The Quay"_s, u"artist=Quiet Harbour, The"_s,
                                                             u"releaseDate=2003-10-21T00:00:00"_s, u"recordLabel=Tinplate"_s,
                                                             u"quantity=1"_s, u"recordSpeed=33 RPM"_s,
                                                             u"doubleAlbum=Single Album"_s,
                                                             u"notes=Two\nlines\nCatalog#: TP-44\nrelease_id: 700104"_s}
                                              << QString();
        QTest::newRow("an earlier line's album, letter case aside") << qint64(7) << QStringList() << WantlistCsv::kSameAsLine.arg(3);
    }
    void discogsWantlistBecomesWantedAlbums()
    {
        QFETCH(qint64, line);
        QFETCH(QStringList, album);
        QFETCH(QString, skipped);
        TestApp t;
        const WantlistCsv::WantlistFile file =
            WantlistCsv::read(TextFile::readUtf8(QStringLiteral(PB_TEST_DATA "/discogs-wantlist.csv")).valueOr({}));
        QCOMPARE(file.summary(), u"Discogs export: 5 albums"_s);
        QCOMPARE(file.ignoredColumns(), QStringList{u"Rating"_s});
        auto counts = WantlistCsv::apply(t.store(), file);
        QVERIFY(counts.ok());
        QCOMPARE(WantlistCsv::countsText(*counts), u"3 wanted albums added, 2 skipped"_s);
        QCOMPARE(t.count(), 0);

        const auto problem = std::find_if(counts->problems.begin(), counts->problems.end(),
                                          [line](const ImportProblem &p) { return p.line == line; });
        QCOMPARE(problem == counts->problems.end() ? QString() : problem->reason, skipped);
        if (album.isEmpty())
            return;
        const QList<WantedAlbum> wanted = WantedAlbums::all(t.store()).valueOr({});
        const auto found = std::find_if(wanted.begin(), wanted.end(),
                                        [&](const WantedAlbum &w) { return w.album.name == album.first().mid(5); });
        QVERIFY(found != wanted.end());
        // The release id is the other site's: it never becomes the MusicBrainz release id.
        QCOMPARE(attributeTexts(found->album), album);
        QCOMPARE(found->priority, qint16(2));
        QVERIFY(!found->maxPrice);
    }

    // The wantlist's CSV file reads back the same albums, in every locale: its numbers are the
    // same whatever the locale writes or reads. A second import adds nothing.
    void wantlistCsvReadsBackTheSameAlbums_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::newRow("en_US") << u"en_US"_s;
        QTest::newRow("de_DE") << u"de_DE"_s;
        QTest::newRow("fr_FR") << u"fr_FR"_s;
    }
    void wantlistCsvReadsBackTheSameAlbums()
    {
        QFETCH(QString, locale);
        const ScopedLocale scoped(locale);
        TestApp source;
        WantedAlbum full;
        full.album.name = u"Copper Weather, \"Live\""_s;
        full.album.artist = u"Ada Lindqvist"_s;
        full.album.releaseDate = localDate(1977, 6, 1);
        full.album.recordLabel = u"Tinplate"_s;
        full.album.notes = u"Gatefold, with the insert\nSecond line"_s;
        full.album.recordSpeed = u"33 RPM"_s;
        full.album.value = 18.75f;
        full.maxPrice = 1234.5f;
        full.priority = 1;
        WantedAlbum sparse;
        sparse.album.name = u"Salt And Static"_s;
        sparse.album.artist = u"Foghorn Choir"_s;
        sparse.priority = 3;
        WantedAlbum cheap;
        cheap.album.name = u"Été Indien"_s;
        cheap.album.artist = u"Chloé Ardèche"_s;
        cheap.maxPrice = 0.99f;
        for (WantedAlbum *w : {&full, &sparse, &cheap})
            QVERIFY(WantedAlbums::insert(source.store(), *w).ok());

        auto written = WantlistCsv::write(source.store());
        QVERIFY(written.ok());
        QVERIFY(written->startsWith("\xEF\xBB\xBFid,name,artist,releaseDate,"));
        QVERIFY(written->contains(",musicBrainzReleaseId,maxPrice,priority\r\n"));
        QVERIFY(written->contains(",18.75,\"Gatefold, with the insert\nSecond line\",,,1234.5,1\r\n"));
        QVERIFY(written->contains(",,0.99,2\r\n"));

        TestApp target;
        const WantlistCsv::WantlistFile file = WantlistCsv::read(TextFile::utf8(*written).valueOr({}));
        QCOMPARE(file.format(), ImportFormat::Spreadsheet);
        QVERIFY(file.ignoredColumns().isEmpty());
        auto counts = WantlistCsv::apply(target.store(), file);
        QVERIFY(counts.ok());
        QCOMPARE(WantlistCsv::countsText(*counts), u"3 wanted albums added, 0 skipped"_s);
        const auto shown = [](const QList<WantedAlbum> &list) {
            QStringList texts;
            for (const WantedAlbum &w : list)
                texts << attributeTexts(w.album).join(u'|') + u"|max="_s + (w.maxPrice ? QString::number(*w.maxPrice) : u"-"_s)
                             + u"|priority="_s + QString::number(w.priority);
            return texts;
        };
        QCOMPARE(shown(WantedAlbums::all(target.store()).valueOr({})), shown(WantedAlbums::all(source.store()).valueOr({})));

        counts = WantlistCsv::apply(target.store(), file);
        QVERIFY(counts.ok());
        QCOMPARE(WantlistCsv::countsText(*counts), u"0 wanted albums added, 3 skipped"_s);
        QCOMPARE(WantedAlbums::count(target.store()).valueOr(-1), 3);
    }

    // A number or priority that does not read skips its line with the field named, and a file
    // whose every line is skipped adds nothing.
    void wantlistLinesThatCannotBeWanted_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("problem");
        QTest::newRow("no artist") << u"Blue Hour,,10,1"_s << WantlistCsv::kNoArtist;
        QTest::newRow("no name") << u" ,Somebody,10,1"_s << u"no name"_s;
        QTest::newRow("price") << u"Blue Hour,Somebody,ten,1"_s << u"Most I Would Pay \"ten\" is not a number"_s;
        QTest::newRow("priority") << u"Blue Hour,Somebody,10,4"_s << WantlistCsv::kNotAPriority.arg(u"4"_s);
        QTest::newRow("priority by name") << u"Blue Hour,Somebody,10,low"_s << QString();
    }
    void wantlistLinesThatCannotBeWanted()
    {
        QFETCH(QString, line);
        QFETCH(QString, problem);
        TestApp t;
        const auto file = WantlistCsv::read((u"Album Name,Artist,Most I Would Pay,Priority\n"_s + line + u'\n').toUtf8());
        auto counts = WantlistCsv::apply(t.store(), file);
        QVERIFY(counts.ok());
        QCOMPARE(counts->added, problem.isEmpty() ? 1 : 0);
        QCOMPARE(counts->problems.value(0).reason, problem);
        if (problem.isEmpty())
            QCOMPARE(WantedAlbums::all(t.store()).valueOr({}).value(0).priority, qint16(3));
    }
};

QTEST_MAIN(TestImport)
#include "tst_import.moc"
