// The group lists (artists, labels, producers, years) and the breakdown list of the group picked.
#include "browse/breakdowntableviewcontroller.h"
#include "browse/grouptableviewcontroller.h"
#include "collection/browsetexts.h"
#include "collection/groupnames.h"
#include "shell/appdelegate.h"
#include "testsupport.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// "-" stands for a record without the attribute.
QList<std::optional<QString>> values(const QStringList &texts)
{
    QList<std::optional<QString>> list;
    for (const QString &t : texts)
        list.append(t == u"-"_s ? std::nullopt : std::optional<QString>(t));
    return list;
}

enum Kind { Artist, Label, Producer, Year };

std::unique_ptr<GroupTableViewController> openGroups(Kind kind, AppDelegate &app)
{
    switch (kind) {
    case Artist: return std::make_unique<ArtistGroupTableViewController>(&app);
    case Label: return std::make_unique<LabelGroupTableViewController>(&app);
    case Producer: return std::make_unique<ProducerGroupTableViewController>(&app);
    case Year: return std::make_unique<YearGroupTableViewController>(&app);
    }
    return {};
}

std::unique_ptr<BreakdownTableViewController> openBreakdown(Kind kind, AppDelegate &app)
{
    switch (kind) {
    case Artist: return std::make_unique<ArtistBreakdownTableViewController>(&app);
    case Label: return std::make_unique<LabelBreakdownTableViewController>(&app);
    case Producer: return std::make_unique<ProducerBreakdownTableViewController>(&app);
    case Year: return std::make_unique<YearBreakdownTableViewController>(&app);
    }
    return {};
}

// Picks the group "Floyd" (artist, label and producer alike) or the year 1979.
void pickGroup(AppDelegate &app)
{
    CurrentRecord &current = app.state()->editCurrentRecord();
    current.artist = u"Floyd"_s;
    current.recordLabel = u"Floyd"_s;
    current.producer = u"Floyd"_s;
    current.releaseDate = localDate(1979, 6, 1);
}

// Three records of the group "Floyd" (every way) from 1979 and one outsider whose artist,
// label and producer mention "the".
void addGroup(Store &store)
{
    for (const QString &name : {u"The Wall"_s, u"Other Side"_s, u"Animals"_s}) {
        RecordBuilder(name).artist(u"Floyd"_s).label(u"Floyd"_s).producer(u"Floyd"_s).date(localDate(1979, 11, 30))
            .value(10.5f, 3).store(store);
    }
    RecordBuilder(u"Outsider"_s).artist(u"The Others"_s).label(u"Theta"_s).producer(u"Athens"_s)
        .date(localDate(1990, 1, 1)).store(store);
}
} // namespace

class TestGroupLists : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }
    void cleanup() { BreakdownTableViewController::setPdfWriter({}); }

    void groupNamesFromTheWalk_data()
    {
        QTest::addColumn<QStringList>("walk");
        QTest::addColumn<bool>("ascending");
        QTest::addColumn<QStringList>("names");

        QTest::addRow("case makes two groups") << QStringList{u"ABBA"_s, u"abba"_s, u"abba"_s} << true
                                               << QStringList{u"ABBA"_s, u"abba"_s};
        QTest::addRow("code-point order") << QStringList{u"abba"_s, u"Zappa"_s, u"Öster"_s, u"Bowie"_s} << true
                                          << QStringList{u"Bowie"_s, u"Zappa"_s, u"abba"_s, u"Öster"_s};
        QTest::addRow("descending") << QStringList{u"a"_s, u"c"_s, u"b"_s} << false << QStringList{u"c"_s, u"b"_s, u"a"_s};
        QTest::addRow("empty first record is a group") << QStringList{u""_s, u"x"_s, u""_s} << true
                                                       << QStringList{u""_s, u"x"_s};
        QTest::addRow("empty later is not") << QStringList{u"a"_s, u""_s, u"b"_s} << true << QStringList{u"a"_s, u"b"_s};
        QTest::addRow("absent counts nowhere") << QStringList{u"-"_s, u"a"_s, u"-"_s} << true << QStringList{u"a"_s};
        QTest::addRow("first present value decides") << QStringList{u"-"_s, u""_s, u"a"_s} << true
                                                     << QStringList{u""_s, u"a"_s};
        QTest::addRow("nothing") << QStringList{} << true << QStringList{};
    }

    void groupNamesFromTheWalk()
    {
        QFETCH(QStringList, walk);
        QFETCH(bool, ascending);
        QFETCH(QStringList, names);

        GroupNameList list;
        list.load(values(walk));
        list.order(ascending);
        QCOMPARE(list.names(), names);
        QCOMPARE(list.numberOfRecords(), walk.size());
    }

    void headerWording_data()
    {
        QTest::addColumn<int>("all");
        QTest::addColumn<int>("found");
        QTest::addColumn<bool>("searching");
        QTest::addColumn<QString>("header");

        QTest::addRow("none") << 0 << 0 << false << u"0 Artist's"_s;
        QTest::addRow("one") << 1 << 1 << false << u"1 Artist"_s;
        QTest::addRow("two") << 2 << 2 << false << u"2 Artist's"_s;
        QTest::addRow("one listed, found") << 1 << 1 << true << u"1 Artist"_s;
        QTest::addRow("one listed, not found") << 1 << 0 << true << u"0 Artist"_s;
        QTest::addRow("many, one found") << 5 << 1 << true << u"1 Artist"_s;
        QTest::addRow("many, none found") << 5 << 0 << true << u"0 Artist's"_s;
        QTest::addRow("many, two found") << 5 << 2 << true << u"2 Artist's"_s;
    }

    void headerWording()
    {
        QFETCH(int, all);
        QFETCH(int, found);
        QFETCH(bool, searching);
        QFETCH(QString, header);
        QCOMPARE(groupHeaderText(all, found, searching, u"Artist"_s), header);
    }

    void searchNarrowsNamesIgnoringCase()
    {
        TestApp app;
        for (const QString &artist : {u"ABBA"_s, u"abba"_s, u"Blondie"_s, u"Cabaret Voltaire"_s, u"Åsa"_s, u"åsa"_s})
            app.addVinyl(u"Album"_s, artist);
        app.addVinyl(u"Another"_s, u"åsa"_s);
        ArtistGroupTableViewController screen(&app.app());
        QAbstractItemModelTester tester(screen.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);

        screen.updateSearchResults(u"aB"_s);
        QCOMPARE(column(*screen.model(), "nameLabel"), QStringList({u"ABBA"_s, u"Cabaret Voltaire"_s, u"abba"_s}));
        QCOMPARE(column(*screen.model(), "countLabel"), QStringList({u"1"_s, u"1"_s, u"1"_s}));
        QCOMPARE(screen.headerText(), u"3 Artist's"_s);
        screen.updateSearchResults(u"ÅS"_s);
        QCOMPARE(column(*screen.model(), "nameLabel"), QStringList({u"Åsa"_s, u"åsa"_s}));
        QCOMPARE(column(*screen.model(), "countLabel"), QStringList({u"1"_s, u"2"_s}));
        screen.updateSearchResults(u"blond"_s);
        QCOMPARE(screen.headerText(), u"1 Artist"_s);
        screen.updateSearchResults(QString());
        QCOMPARE(screen.headerText(), u"6 Artist's"_s);
    }

    void sortToggleReversesAndIsShared()
    {
        TestApp app;
        for (const QString &artist : {u"Can"_s, u"Alvvays"_s, u"Beach House"_s, u"Cocteau Twins"_s})
            app.addVinyl(u"Album"_s, artist);
        ArtistGroupTableViewController screen(&app.app());
        QAbstractItemModelTester tester(screen.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(column(*screen.model(), "nameLabel"),
                 QStringList({u"Alvvays"_s, u"Beach House"_s, u"Can"_s, u"Cocteau Twins"_s}));

        screen.SortButtonTapped();
        QCOMPARE(app.app().state()->sortAscending(), false);
        QCOMPARE(column(*screen.model(), "nameLabel"),
                 QStringList({u"Cocteau Twins"_s, u"Can"_s, u"Beach House"_s, u"Alvvays"_s}));

        // While searching only the found names are re-ordered.
        screen.updateSearchResults(u"c"_s);
        QCOMPARE(column(*screen.model(), "nameLabel"), QStringList({u"Cocteau Twins"_s, u"Can"_s, u"Beach House"_s}));
        screen.SortButtonTapped();
        QCOMPARE(app.app().state()->sortAscending(), true);
        QCOMPARE(column(*screen.model(), "nameLabel"), QStringList({u"Beach House"_s, u"Can"_s, u"Cocteau Twins"_s}));
    }

    void sortBeforeLoadDoesNothing()
    {
        ArtistGroupTableViewController screen;
        screen.SortButtonTapped();
        screen.rowSelected(0);
        QCOMPARE(screen.model()->rowCount(), 0);
    }

    void countsFollowTheStoreAndNamesStayAtZero()
    {
        TestApp app;
        const Vinyl gone = app.addVinyl(u"Only One"_s, u"Nico"_s);
        app.addVinyl(u"First"_s, u"Suicide"_s);
        app.addVinyl(u"Second"_s, u"Suicide"_s);
        ArtistGroupTableViewController screen(&app.app());
        QAbstractItemModelTester tester(screen.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(column(*screen.model(), "countLabel"), QStringList({u"1"_s, u"2"_s}));

        // Back from a breakdown list where the last record of an artist was deleted.
        QVERIFY(app.store().remove(Entity::Vinyl, gone.rowId));
        app.addVinyl(u"Third"_s, u"Suicide"_s);
        screen.viewWillAppear();
        QCOMPARE(column(*screen.model(), "nameLabel"), QStringList({u"Nico"_s, u"Suicide"_s}));
        QCOMPARE(column(*screen.model(), "countLabel"), QStringList({u"0"_s, u"3"_s}));

        // Reloading by the sort button keeps the name; a new screen drops it.
        screen.SortButtonTapped();
        screen.SortButtonTapped();
        QCOMPARE(column(*screen.model(), "nameLabel"), QStringList({u"Nico"_s, u"Suicide"_s}));
        ArtistGroupTableViewController rebuilt(&app.app());
        QCOMPARE(column(*rebuilt.model(), "nameLabel"), QStringList({u"Suicide"_s}));
    }

    void producersAreWalkedInReleaseOrder()
    {
        TestApp app;
        // The earliest record carries an empty producer, so the empty text becomes a group even
        // though it does not sort first among the producers' records.
        RecordBuilder(u"Late"_s).producer(u"Brian Eno"_s).date(localDate(1980, 1, 1)).store(app.store());
        RecordBuilder(u"Early"_s).producer(u""_s).date(localDate(1970, 1, 1)).store(app.store());
        RecordBuilder(u"Middle"_s).producer(u""_s).date(localDate(1975, 1, 1)).store(app.store());
        ProducerGroupTableViewController screen(&app.app());
        QCOMPARE(column(*screen.model(), "nameLabel"), QStringList({u""_s, u"Brian Eno"_s}));
        QCOMPARE(column(*screen.model(), "countLabel"), QStringList({u"2"_s, u"1"_s}));
        QCOMPARE(screen.headerText(), u"2 Producer's"_s);
    }

    void pickingAGroupOpensItsBreakdown_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("name");

        QTest::addRow("artist") << 0 << u"ArtistBreakdownTableView"_s << u"Nico"_s;
        QTest::addRow("label") << 1 << u"LabelBreakdownTableView"_s << u"Verve"_s;
        QTest::addRow("producer") << 2 << u"ProducerBreakdownTableView"_s << u"Andy Warhol"_s;
        QTest::addRow("year") << 3 << u"YearBreakdownTableView"_s << u"1967"_s;
    }

    void pickingAGroupOpensItsBreakdown()
    {
        QFETCH(int, kind);
        QFETCH(QString, screen);
        QFETCH(QString, name);

        TestApp app;
        const QDateTime released = localDate(1967, 3, 12);
        RecordBuilder(u"Chelsea Girl"_s).artist(u"Nico"_s).label(u"Verve"_s).producer(u"Andy Warhol"_s).date(released)
            .store(app.store());
        auto groups = openGroups(Kind(kind), app.app());
        QCOMPARE(column(*groups->model(), "nameLabel"), QStringList{name});
        QCOMPARE(column(*groups->model(), "countLabel"), QStringList{u"1"_s});
        groups->rowSelected(0);
        QCOMPARE(app.app().navigator()->lastShown(), screen);

        const CurrentRecord &current = app.app().state()->currentRecord();
        const QStringList written = {current.artist, current.recordLabel, current.producer,
                                     current.releaseDate ? current.releaseDate->toString(u"yyyy"_s) : QString()};
        for (int i = 0; i < written.size(); ++i)
            QCOMPARE(written.at(i), i == kind ? name : QString());
        if (kind == 3)
            QCOMPARE(*current.releaseDate, released);
    }

    void yearsCountTheirRecords()
    {
        TestApp app;
        RecordBuilder(u"Last Night"_s).date(localDate(1975, 12, 31, 23, 30)).store(app.store());
        RecordBuilder(u"New Year"_s).date(localDate(1976, 1, 1)).store(app.store());
        RecordBuilder(u"First Day"_s).date(localDate(1975, 1, 1)).store(app.store());
        app.addVinyl(u"Undated"_s);
        YearGroupTableViewController years(&app.app());
        QAbstractItemModelTester tester(years.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(column(*years.model(), "nameLabel"), QStringList({u"1975"_s, u"1976"_s}));
        QCOMPARE(column(*years.model(), "countLabel"), QStringList({u"2"_s, u"1"_s}));
        QCOMPARE(years.headerText(), u"2 Year's"_s);

        years.SortButtonTapped();
        QCOMPARE(column(*years.model(), "nameLabel"), QStringList({u"1976"_s, u"1975"_s}));
        QCOMPARE(column(*years.model(), "countLabel"), QStringList({u"1"_s, u"2"_s}));
    }

    void yearSearchUsesTheRepresentativesLongDate()
    {
        TestApp app;
        RecordBuilder(u"A"_s).date(localDate(1975, 3, 5)).store(app.store());
        RecordBuilder(u"B"_s).date(localDate(1975, 6, 1)).store(app.store());
        RecordBuilder(u"C"_s).date(localDate(1980, 6, 9)).store(app.store());
        YearGroupTableViewController years(&app.app());

        years.updateSearchResults(u"MARCH"_s);
        QCOMPARE(column(*years.model(), "nameLabel"), QStringList{u"1975"_s});
        QCOMPARE(years.headerText(), u"1 Year"_s);
        // June of 1975 is not found: the year's first record is from March.
        years.updateSearchResults(u"june"_s);
        QCOMPARE(column(*years.model(), "nameLabel"), QStringList{u"1980"_s});
        years.updateSearchResults(u"19"_s);
        QCOMPARE(column(*years.model(), "nameLabel"), QStringList({u"1975"_s, u"1980"_s}));
        years.SortButtonTapped();
        QCOMPARE(column(*years.model(), "nameLabel"), QStringList({u"1980"_s, u"1975"_s}));
    }

    // The breakdown list of the group picked: its title, origin, return and file by kind; its
    // footer, which only the artist list's search changes; its search, of the album names only.
    void breakdownListOfEachKind_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("origin");
        QTest::addColumn<QString>("unwind");
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("searchedFooter"); // while "wall" is searched

        // Three records of quantity 3 and value 10.5 each, and one without a value.
        const QString value = u"Value: $94.50"_s;
        QTest::addRow("artist") << int(Artist) << u"List by Artist"_s << u"ArtistBreakdown"_s << u"unwindToArtistTableView"_s
                                << u"VinylFilteredByArtist.pdf"_s << u"Valuation for displayed vinyl's: $31.50"_s;
        QTest::addRow("label: the group's name") << int(Label) << u"Floyd"_s << u"LabelBreakdown"_s
                                                 << u"unwindToLabelTableView"_s << u"VinylFilteredByRecordLabel.pdf"_s << value;
        QTest::addRow("producer") << int(Producer) << u"List by Producer"_s << u"ProducerBreakdown"_s
                                  << u"unwindToProducerTableView"_s << u"VinylFilteredByProducer.pdf"_s << value;
        QTest::addRow("year") << int(Year) << u"List by Year"_s << u"YearBreakdown"_s << u"unwindToYearTableView"_s
                              << u"VinylFilteredByYear.pdf"_s << value;
    }

    void breakdownListOfEachKind()
    {
        QFETCH(int, kind);
        QFETCH(QString, title);
        QFETCH(QString, origin);
        QFETCH(QString, unwind);
        QFETCH(QString, fileName);
        QFETCH(QString, searchedFooter);

        TestApp app;
        addGroup(app.store());
        pickGroup(app.app());
        // Inside the group too, a record whose artist, label and producer say "the" is not found.
        RecordBuilder(u"Meddle"_s).artist(u"Floyd"_s).label(u"Floyd"_s).producer(u"Floyd"_s).date(localDate(1979, 1, 1))
            .store(app.store());
        auto list = openBreakdown(Kind(kind), app.app());
        QAbstractItemModelTester tester(list->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(list->title(), title);
        QCOMPARE(app.app().state()->originScreen(), origin);
        QCOMPARE(list->kind().unwind, unwind);
        QCOMPARE(Navigator::screenForUnwind(unwind), u"%1BreakdownTableView"_s.arg(
                                                         QStringList{u"Artist"_s, u"Label"_s, u"Producer"_s, u"Year"_s}.at(kind)));
        QCOMPARE(list->outputFilePath(), app.app().documentsDir() + u'/' + fileName);
        QCOMPARE(list->headerText(), u"# Vinyl Records = 4 of 4"_s);
        QCOMPARE(list->footerText(), kind == Artist ? u"Valuation for displayed vinyl's: $94.50"_s : u"Value: $94.50"_s);

        list->updateSearchResults(u"wall"_s);
        QCOMPARE(list->footerText(), searchedFooter);
        list->updateSearchResults(u"THE"_s);
        QCOMPARE(albumNames(*list->model()), QStringList({u"Other Side"_s, u"The Wall"_s}));
        QCOMPARE(list->headerText(), u"# Vinyl Records = 2 of 4"_s);
        list->updateSearchResults(u"floyd"_s);
        QCOMPARE(list->model()->rowCount(), 0);
    }

    void fourSortKeysInOneDirection()
    {
        TestApp app;
        Store &store = app.store();
        // Same name: then release date, then label, then value decide.
        RecordBuilder(u"Live"_s).artist(u"X"_s).date(localDate(1980, 1, 1)).label(u"B"_s).value(1, 1).producer(u"4"_s).store(store);
        RecordBuilder(u"Live"_s).artist(u"X"_s).date(localDate(1970, 1, 1)).label(u"B"_s).value(2, 1).producer(u"3"_s).store(store);
        RecordBuilder(u"Live"_s).artist(u"X"_s).date(localDate(1970, 1, 1)).label(u"A"_s).value(9, 1).producer(u"2"_s).store(store);
        RecordBuilder(u"Live"_s).artist(u"X"_s).date(localDate(1970, 1, 1)).label(u"B"_s).value(1, 1).producer(u"1"_s).store(store);
        RecordBuilder(u"Alive"_s).artist(u"X"_s).date(localDate(1999, 1, 1)).producer(u"0"_s).store(store);
        app.app().state()->editCurrentRecord().artist = u"X"_s;

        ArtistBreakdownTableViewController list(&app.app());
        QAbstractItemModelTester tester(list.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        const auto order = [&list] {
            QString producers;
            for (const QString &line : column(*list.model(), "producerLabel"))
                producers += line.back();
            return producers;
        };
        QCOMPARE(order(), u"02134"_s);
        list.SortButtonTapped();
        QCOMPARE(order(), u"43120"_s);
        QCOMPARE(app.app().state()->sortAscending(), false);
        list.SortButtonTapped();
        QCOMPARE(order(), u"02134"_s);
        QCOMPARE(app.app().state()->sortAscending(), true);
    }

    void deletingWhileSearchingKeepsHeaderAndFooter()
    {
        TestApp app;
        addGroup(app.store());
        pickGroup(app.app());
        ArtistBreakdownTableViewController list(&app.app());
        QAbstractItemModelTester tester(list.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        list.updateSearchResults(u"the"_s);
        QCOMPARE(list.footerText(), u"Valuation for displayed vinyl's: $63.00"_s);

        list.deleteRow(1); // The Wall
        QCOMPARE(albumNames(*list.model()), QStringList{u"Other Side"_s});
        QCOMPARE(list.headerText(), u"# Vinyl Records = 2 of 3"_s);
        QCOMPARE(list.footerText(), u"Valuation for displayed vinyl's: $63.00"_s);
        QCOMPARE(app.store().count(FetchRequest(Entity::Vinyl).where(Predicate::equal(u"artist"_s, u"Floyd"_s))).valueOr(-1), 2);

        // The next load counts what the store holds.
        list.updateSearchResults(QString());
        list.SortButtonTapped();
        QCOMPARE(list.headerText(), u"# Vinyl Records = 2 of 2"_s);
        QCOMPARE(list.footerText(), u"Valuation for displayed vinyl's: $63.00"_s);
    }

    void cardTexts_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("searching");
        QTest::addColumn<bool>("dated");
        QTest::addColumn<QStringList>("lines");

        const QString dated = u"Release Date: Nov 30, 1979"_s;
        QTest::addRow("artist") << int(Artist) << false << true
                                << QStringList{u"Album: Wall  Artist: Floyd"_s, dated, u"Producer: Bob"_s,
                                               u"Cost: $12.00  Total Value: $31.50"_s, u"Speed: 33 RPM  Type: Double Album"_s};
        QTest::addRow("artist searching") << int(Artist) << true << true
                                          << QStringList{u"Album:  Wall  Artist: Floyd"_s, dated,
                                                         u"Producer: Bob  Speed: 33 RPM"_s,
                                                         u"Cost: $12.00  Total Value: $31.50"_s,
                                                         u"Speed: 33 RPM  Type: Double Album"_s};
        QTest::addRow("artist undated") << int(Artist) << false << false
                                        << QStringList{u"Album: Wall  Artist: Floyd"_s, u"Release Date: N/A"_s,
                                                       u"Producer: Bob"_s, u"Cost: $12.00  Total Value: $31.50"_s,
                                                       u"Speed: 33 RPM  Type: Double Album"_s};
        QTest::addRow("producer") << int(Producer) << false << true
                                  << QStringList{u"Album:  Wall  Artist: Floyd"_s, dated, u"Producer: Bob  Speed: 33 RPM"_s,
                                                 u"Cost: $12.00  Total Value: $31.50"_s, u"Speed: 33 RPM  Type: Double Album"_s};
        QTest::addRow("producer searching, undated") << int(Producer) << true << false
                                                     << QStringList{u"Album: Wall  Artist: Floyd"_s, QString(),
                                                                    u"Producer: Bob"_s, u"Cost: $12.00  Total Value: $31.50"_s,
                                                                    u"Speed: 33 RPM  Type: Double Album"_s};
    }

    void cardTexts()
    {
        QFETCH(int, kind);
        QFETCH(bool, searching);
        QFETCH(bool, dated);
        QFETCH(QStringList, lines);

        TestApp app;
        RecordBuilder record(u"Wall"_s);
        record.artist(u"Floyd"_s).producer(u"Bob"_s).cost(12).value(10.5f, 3).speed(u"33 RPM"_s).type(u"Double Album"_s);
        if (dated)
            record.date(localDate(1979, 11, 30));
        record.store(app.store());
        app.app().state()->editCurrentRecord().artist = u"Floyd"_s;
        app.app().state()->editCurrentRecord().producer = u"Bob"_s;
        auto list = openBreakdown(Kind(kind), app.app());
        list->updateSearchResults(searching ? u"wall"_s : QString());
        const RecordCard card = list->model()->card(0);
        QCOMPARE(QStringList({card.nameLabel, card.releaseDateLabel, card.producerLabel, card.costLabel, card.speedLabel}),
                 lines);
    }

    void pickingARowCopiesEveryField()
    {
        TestApp app;
        Vinyl earlier = RecordBuilder(u"Earlier"_s).artist(u"Floyd"_s).speed(u"78 RPM"_s).v;
        earlier.vinylCondition = u"Poor"_s;
        QVERIFY(app.store().insert(earlier));
        Vinyl wall = RecordBuilder(u"The Wall"_s).artist(u"Floyd"_s).speed(u"33 RPM"_s).type(u"Double Album"_s)
                         .value(10.5f, 3).duration(81).v;
        wall.vinylCondition = u"Mint"_s;
        wall.coverCondition = u"Good"_s;
        wall.notes = u"Gatefold"_s;
        QVERIFY(app.store().insert(wall));
        app.app().state()->editCurrentRecord().artist = u"Floyd"_s;

        ArtistBreakdownTableViewController list(&app.app());
        list.rowSelected(0); // Earlier
        list.updateSearchResults(u"wall"_s);
        list.rowSelected(0);

        const CurrentRecord &current = app.app().state()->currentRecord();
        QCOMPARE(current.rowId, wall.rowId);
        QCOMPARE(current.name, u"The Wall"_s);
        QCOMPARE(current.vinylCondition, u"Mint"_s);
        QCOMPARE(current.coverCondition, u"Good"_s);
        QCOMPARE(current.recordSpeed, u"33 RPM"_s);
        QCOMPARE(current.doubleAlbum, u"Double Album"_s);
        QCOMPARE(current.notes, u"Gatefold"_s);
        QCOMPARE(current.albumDuration, 81.0);
        QCOMPARE(current.quantity, qint16(3));
        QCOMPARE(app.app().state()->originScreen(), u"ArtistBreakdown"_s);
        QCOMPARE(app.app().navigator()->lastShown(), u"EditVinylView"_s);
    }

    void theEditorsReturnReloads()
    {
        TestApp app;
        addGroup(app.store());
        pickGroup(app.app());
        LabelBreakdownTableViewController list(&app.app());
        QAbstractItemModelTester tester(list.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        app.app().state()->setOriginScreen(u"Menu"_s);
        RecordBuilder(u"Meddle"_s).label(u"Floyd"_s).store(app.store());
        list.unwound(u"unwindToLabelTableView"_s);
        QCOMPARE(list.headerText(), u"# Vinyl Records = 4 of 4"_s);
        QCOMPARE(app.app().state()->originScreen(), u"LabelBreakdown"_s);
    }

    void yearListKeepsToLocalYear()
    {
        TestApp app;
        RecordBuilder(u"New Year's Day"_s).date(localDate(1975, 1, 1)).store(app.store());
        RecordBuilder(u"New Year's Eve"_s).date(localDate(1975, 12, 31, 23, 30)).store(app.store());
        RecordBuilder(u"Next Year"_s).date(localDate(1976, 1, 1)).store(app.store());
        RecordBuilder(u"Year Before"_s).date(localDate(1974, 12, 31, 23, 59)).store(app.store());
        app.app().state()->editCurrentRecord().releaseDate = localDate(1975, 7, 4, 12, 0);
        YearBreakdownTableViewController list(&app.app());
        QCOMPARE(albumNames(*list.model()), QStringList({u"New Year's Day"_s, u"New Year's Eve"_s}));

        // A year group picked without a date matches nothing.
        app.app().state()->editCurrentRecord().releaseDate.reset();
        list.load();
        QCOMPARE(list.model()->rowCount(), 0);
    }

    void sharing()
    {
        TestApp app;
        addGroup(app.store());
        pickGroup(app.app());
        ArtistBreakdownTableViewController list(&app.app());
        QVERIFY(!list.canSharePdf());
        list.ShareArtistButtonClicked();
        QVERIFY(app.platform().shared.isEmpty());

        QList<QStringList> requested;
        BreakdownTableViewController::setPdfWriter([&requested](const BreakdownPdfRequest &request,
                                                                const BackgroundJob::Progress &) -> Result<void> {
            QStringList names;
            for (const Vinyl &v : request.records)
                names.append(text(v.name));
            requested.append(names);
            QFile file(request.outputFilePath);
            if (!file.open(QIODevice::WriteOnly))
                return Error{u"cannot write"_s};
            file.write("%PDF-1.4\n");
            return {};
        });
        QVERIFY(list.canSharePdf());

        app.platform().canSendTextAnswer = false;
        list.ShareArtistButtonClicked();
        QCOMPARE(list.lastAlertTitle(), u"Can't Send Text Message"_s);
        QCOMPARE(list.lastAlertMessage(), u"Your device is not able to send text messages."_s);
        QVERIFY(requested.isEmpty());
        QVERIFY(!QFile::exists(list.outputFilePath()));

        app.platform().canSendTextAnswer = true;
        list.updateSearchResults(u"the"_s);
        list.ShareArtistButtonClicked();
        QSignalSpy finished(&list, &BreakdownTableViewController::shareFinished);
        QVERIFY(finished.wait());
        QCOMPARE(requested, QList<QStringList>{QStringList({u"Other Side"_s, u"The Wall"_s})});
        QCOMPARE(app.platform().shared.size(), 1);
        QCOMPARE(app.platform().shared.first().filePaths, QStringList{list.outputFilePath()});
    }
};

QTEST_MAIN(TestGroupLists)
#include "tst_grouplists.moc"
