#include "browse/grouptableviewcontroller.h"
#include "collection/groupnames.h"
#include "shell/appdelegate.h"
#include "testsupport.h"

#include <QAbstractItemModelTester>
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
} // namespace

class TestGroupLists : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

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
        std::unique_ptr<GroupTableViewController> groups;
        switch (kind) {
        case 0: groups = std::make_unique<ArtistGroupTableViewController>(&app.app()); break;
        case 1: groups = std::make_unique<LabelGroupTableViewController>(&app.app()); break;
        case 2: groups = std::make_unique<ProducerGroupTableViewController>(&app.app()); break;
        default: groups = std::make_unique<YearGroupTableViewController>(&app.app()); break;
        }
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
};

QTEST_MAIN(TestGroupLists)
#include "tst_grouplists.moc"
