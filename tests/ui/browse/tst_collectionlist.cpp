#include "browse/listvinyltableviewcontroller.h"
#include "collection/browsetexts.h"
#include "store/samplecollection.h"
#include "testsupport.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// What each card's producer line names first: the producer, or the label when sorted by label.
QStringList firstFields(const QAbstractItemModel &model)
{
    QStringList names;
    for (const QString &line : column(model, "producerLabel"))
        names.append(line.section(u": "_s, 1).section(u"  "_s, 0, 0));
    return names;
}
} // namespace

class TestCollectionList : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }
    void cleanup() { m_app.reset(); }

    void init()
    {
        m_app = std::make_unique<TestApp>();
        QVERIFY(m_app->ok());
        Store &store = m_app->store();
        RecordBuilder(u"Abbey Road"_s).artist(u"The Beatles"_s).label(u"Apple"_s).producer(u"George Martin"_s)
            .date(localDate(1969, 9, 26)).store(store);
        RecordBuilder(u"Cabaret"_s).artist(u"Liza Minnelli"_s).label(u"ABC"_s).producer(u"Fred Ebb"_s)
            .date(localDate(1972, 2, 13)).store(store);
        RecordBuilder(u"Wish You Were Here"_s).artist(u"Pink Floyd"_s).label(u"Harvest"_s).producer(u"Pink Floyd"_s)
            .date(localDate(1975, 9, 12)).store(store);
        RecordBuilder(u"Blue"_s).artist(u"Joni Mitchell"_s).label(u"Reprise"_s).producer(u"Joni Mitchell"_s)
            .date(localDate(1975, 1, 22)).store(store);
    }

    void firstDisplayIsDescendingAndEveryRefreshReverses()
    {
        ConsoleCapture console;
        ListVinylTableViewController list(&m_app->app());
        QAbstractItemModelTester tester(list.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);

        const QStringList ascending = {u"Abbey Road"_s, u"Blue"_s, u"Cabaret"_s, u"Wish You Were Here"_s};
        QStringList descending = ascending;
        std::reverse(descending.begin(), descending.end());

        QCOMPARE(list.title(), u"List Vinyl's"_s);
        QCOMPARE(m_app->app().state()->originScreen(), u"List"_s);
        QCOMPARE(albumNames(*list.model()), descending);
        list.sortOptionSelected(1);
        QCOMPARE(albumNames(*list.model()), ascending);
        list.sortOptionSelected(1);
        QCOMPARE(albumNames(*list.model()), descending);
        // The sort button without a search refreshes too, and so reverses again.
        list.SortButtonTapped();
        QCOMPARE(albumNames(*list.model()), ascending);
        list.unwindToList();
        QCOMPARE(albumNames(*list.model()), descending);
        QCOMPARE(console.lines(), QStringList({u"Option 1 selected"_s, u"Option 1 selected"_s}));
    }

    void sortChoicesOrderAndLabelTheSearch_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<QString>("consoleLine");
        QTest::addColumn<QString>("placeholder");
        QTest::addColumn<QStringList>("producerLines"); // identifies the order

        // "Nobody" produced a record with nothing else known: it comes first wherever it lacks
        // what the list is sorted by.
        QTest::addRow("by name") << 1 << u"Option 1 selected"_s << u"Search by Name"_s
                                 << QStringList{u"George Martin"_s, u"Joni Mitchell"_s, u"Fred Ebb"_s, u"Nobody"_s, u"Pink Floyd"_s};
        QTest::addRow("by year") << 2 << u"Option 2 selected"_s << u"Search by Year"_s
                                 << QStringList{u"Nobody"_s, u"George Martin"_s, u"Fred Ebb"_s, u"Joni Mitchell"_s, u"Pink Floyd"_s};
        QTest::addRow("by record label") << 3 << u"Option 3 selected"_s << u"Search by Record Label"_s
                                         << QStringList{QString(), u"ABC"_s, u"Apple"_s, u"Harvest"_s, u"Reprise"_s};
        QTest::addRow("by artist") << 4 << u"Option 4 selected"_s << u"Search by Artist"_s
                                   << QStringList{u"Nobody"_s, u"Joni Mitchell"_s, u"Fred Ebb"_s, u"Pink Floyd"_s, u"George Martin"_s};
    }

    void sortChoicesOrderAndLabelTheSearch()
    {
        QFETCH(int, option);
        QFETCH(QString, consoleLine);
        QFETCH(QString, placeholder);
        QFETCH(QStringList, producerLines);

        RecordBuilder(u"Undated"_s).producer(u"Nobody"_s).store(m_app->store());
        ListVinylTableViewController list(&m_app->app());
        ConsoleCapture console;
        list.sortOptionSelected(option); // the second refresh: ascending
        QCOMPARE(console.lines(), QStringList{consoleLine});
        QCOMPARE(list.placeholder(), placeholder);

        QCOMPARE(firstFields(*list.model()), producerLines);
    }

    void tableHeadersSortAndASecondClickReverses_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QStringList>("ascending");
        QTest::addColumn<QStringList>("descending");
        // Searching "o" after the second click: the column's own text, or the name.
        QTest::addColumn<QStringList>("foundDescending");
        const QString abbey = u"Abbey Road"_s, cabaret = u"Cabaret"_s, wish = u"Wish You Were Here"_s, blue = u"Blue"_s;
        const QString esta = u"Ésta"_s, abba = u"abba gold"_s, zoe = u"Zoë"_s;
        // Code-point order: capitals, then small letters, then accented capitals.
        QTest::newRow("album") << 0 << QStringList{abbey, blue, cabaret, wish, zoe, abba, esta}
                               << QStringList{esta, abba, zoe, wish, cabaret, blue, abbey}
                               << QStringList{abba, zoe, wish, abbey};
        QTest::newRow("label") << 3 << QStringList{cabaret, abbey, wish, blue, zoe, abba, esta}
                               << QStringList{esta, abba, zoe, blue, wish, abbey, cabaret} << QStringList{esta, abba};
        // Absent speeds and figures first ascending; ties in the order records were added in. The
        // second click mirrors the whole list, ties too.
        QTest::newRow("speed") << 4 << QStringList{abbey, cabaret, wish, blue, abba, esta, zoe}
                               << QStringList{zoe, esta, abba, blue, wish, cabaret, abbey}
                               << QStringList{zoe, abba, wish, abbey};
        QTest::newRow("value") << 6 << QStringList{abbey, cabaret, wish, blue, esta, zoe, abba}
                               << QStringList{abba, zoe, esta, blue, wish, cabaret, abbey}
                               << QStringList{abba, zoe, wish, abbey};
        QTest::newRow("total") << 7 << QStringList{abbey, cabaret, wish, blue, abba, zoe, esta}
                               << QStringList{esta, zoe, abba, blue, wish, cabaret, abbey}
                               << QStringList{zoe, abba, wish, abbey};
    }

    void tableHeadersSortAndASecondClickReverses()
    {
        QFETCH(int, column);
        QFETCH(QStringList, ascending);
        QFETCH(QStringList, descending);
        QFETCH(QStringList, foundDescending);
        Store &store = m_app->store();
        RecordBuilder(u"Ésta"_s).artist(u"Édith Piaf"_s).label(u"Éditions"_s).speed(u"45"_s).value(10.0f, 3)
            .date(localDate(1960, 5, 2)).store(store);
        RecordBuilder(u"abba gold"_s).artist(u"ABBA"_s).label(u"polar"_s).speed(u"33"_s).value(25.0f, 1).store(store);
        RecordBuilder(u"Zoë"_s).artist(u"Zoë"_s).label(u"Zebra"_s).speed(u"78"_s).value(12.5f, 2).store(store);

        ListVinylTableViewController list(&m_app->app());
        QAbstractItemModelTester tester(list.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        const auto cells = [&](int row) { return list.model()->card(row).cells; };
        const auto albums = [&]() {
            QStringList names;
            for (int row = 0; row < list.model()->rowCount(); ++row)
                names.append(cells(row).value(0));
            return names;
        };
        list.columnHeaderClicked(column);
        QCOMPARE(list.sortColumn(), column);
        QCOMPARE(albums(), ascending);
        list.columnHeaderClicked(column);
        QCOMPARE(albums(), descending);
        QCOMPARE(cells(int(descending.indexOf(u"Ésta"_s))),
                 QStringList({u"Ésta"_s, u"Édith Piaf"_s, u"1960"_s, u"Éditions"_s, u"45"_s, u"3"_s, u"$10.00"_s, u"$30.00"_s}));

        list.updateSearchResults(u"o"_s);
        QCOMPARE(albums(), foundDescending);
        QCOMPARE(list.placeholder(), column == 3 ? u"Search by Record Label"_s : u"Search by Name"_s);
        // Another header finds again, in its order.
        list.columnHeaderClicked(0);
        QCOMPARE(albums(), QStringList({u"Abbey Road"_s, u"Wish You Were Here"_s, u"Zoë"_s, u"abba gold"_s}));

        // The table is chosen for every later visit.
        QVERIFY(!list.tableChosen());
        list.setTableChosen(true);
        QVERIFY(ListVinylTableViewController(&m_app->app()).tableChosen());
    }

    void sortButtonWhileSearchingOrdersFoundRecordsByName()
    {
        ListVinylTableViewController list(&m_app->app());
        list.sortOptionSelected(2); // by year, ascending
        list.updateSearchResults(u"19"_s);
        QCOMPARE(column(*list.model(), "releaseDateLabel"),
                 QStringList({u"Release Date: Sep 26, 1969"_s, u"Release Date: Feb 13, 1972"_s,
                              u"Release Date: Jan 22, 1975"_s, u"Release Date: Sep 12, 1975"_s}));

        // The direction stays ascending: the sort button only re-orders the found records by name.
        list.SortButtonTapped();
        QVERIFY(list.sortAsc());
        QCOMPARE(column(*list.model(), "releaseDateLabel"),
                 QStringList({u"Release Date: Sep 26, 1969"_s, u"Release Date: Jan 22, 1975"_s,
                              u"Release Date: Feb 13, 1972"_s, u"Release Date: Sep 12, 1975"_s}));
        QCOMPARE(list.headerText(), u"# Vinyl Records = 4 of 4"_s);
    }

    void cardTextsFollowTheSortChoice_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<QString>("nameLabel");
        QTest::addColumn<QString>("producerLabel");
        // What a screen reader says of the card: its lines as one sentence.
        QTest::addColumn<QString>("spoken");

        const QString rest = u", Cost: $12.50 Total Value: $30.00, Length: 45.0 min Type: Single Album"_s;
        QTest::addRow("name") << 1 << u"Album: Rumours  Artist: Fleetwood Mac"_s << u"Producer: Ken Caillat  Speed: 33 RPM"_s
                              << u"Album: Rumours Artist: Fleetwood Mac, Release Date: Feb 4, 1977, Producer: Ken Caillat Speed: 33 RPM"_s + rest;
        QTest::addRow("year leaves the name line") << 2 << QString() << u"Producer: Ken Caillat  Speed: 33 RPM"_s
                                                   << u"Release Date: Feb 4, 1977, Producer: Ken Caillat Speed: 33 RPM"_s + rest;
        QTest::addRow("record label") << 3 << QString() << u"Record Label: Warner  Speed: 33 RPM"_s
                                      << u"Release Date: Feb 4, 1977, Record Label: Warner Speed: 33 RPM"_s + rest;
        QTest::addRow("artist") << 4 << u"Artist: Fleetwood Mac  Album: Rumours"_s << u"Producer: Ken Caillat  Speed: 33 RPM"_s
                                << u"Artist: Fleetwood Mac Album: Rumours, Release Date: Feb 4, 1977, Producer: Ken Caillat Speed: 33 RPM"_s + rest;
    }

    void cardTextsFollowTheSortChoice()
    {
        QFETCH(int, option);
        QFETCH(QString, nameLabel);
        QFETCH(QString, producerLabel);
        QFETCH(QString, spoken);

        TestApp app;
        RecordBuilder(u"Rumours"_s).artist(u"Fleetwood Mac"_s).label(u"Warner"_s).producer(u"Ken Caillat"_s)
            .speed(u"33 RPM"_s).type(u"Single Album"_s).date(localDate(1977, 2, 4)).cost(12.5f).value(10, 3)
            .duration(45).store(app.store());
        ListVinylTableViewController list(&app.app());
        list.sortOptionSelected(option);
        const RecordCard card = list.model()->card(0);
        QCOMPARE(card.nameLabel, nameLabel);
        QCOMPARE(card.releaseDateLabel, u"Release Date: Feb 4, 1977"_s);
        QCOMPARE(card.producerLabel, producerLabel);
        QCOMPARE(card.costLabel, u"Cost: $12.50  Total Value: $30.00"_s);
        QCOMPARE(card.speedLabel, u"Length: 45.0 min  Type: Single Album"_s);
        QCOMPARE(list.model()->index(0).data(RecordCardModel::CoverSourceRole).toString(), u"image://cover/%1/front"_s.arg(card.rowId));
        QCOMPARE(list.model()->index(0).data(RecordCardModel::AccessibleLabelRole).toString(), spoken);
    }

    void cardOfASparseRecord()
    {
        TestApp app;
        app.addVinyl(u"Untitled"_s);
        ListVinylTableViewController list(&app.app());
        const RecordCard card = list.model()->card(0);
        QCOMPARE(card.nameLabel, u"Album: Untitled  Artist: "_s);
        QCOMPARE(card.releaseDateLabel, u"Release Date: N/A"_s);
        QCOMPARE(card.producerLabel, u"Producer:   Speed: "_s);
        QCOMPARE(card.costLabel, u"Cost: $0.00  Total Value: $0.00"_s);
        QCOMPARE(card.speedLabel, u"Length: 0.0 min  Type: "_s);
    }

    void deletingWhileSearchingKeepsTheRecordInTheWholeList()
    {
        ListVinylTableViewController list(&m_app->app());
        QAbstractItemModelTester tester(list.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        list.sortOptionSelected(1);
        list.updateSearchResults(u"ab"_s);
        list.deleteRow(0); // Abbey Road

        QCOMPARE(m_app->store().count(FetchRequest(Entity::Vinyl)).valueOr(-1), 3);
        QCOMPARE(albumNames(*list.model()), QStringList{u"Cabaret"_s});
        QCOMPARE(list.headerText(), u"# Vinyl Records = 1 of 4"_s);

        // Until the next refresh the whole list still holds the deleted record.
        list.updateSearchResults(QString());
        QCOMPARE(list.model()->rowCount(), 4);
        list.SortButtonTapped();
        QCOMPARE(list.model()->rowCount(), 3);
        QCOMPARE(list.headerText(), u"# Vinyl Records = 3 of 3"_s);
    }

    void deletingWithoutSearchRemovesFromTheWholeList()
    {
        ListVinylTableViewController list(&m_app->app());
        QAbstractItemModelTester tester(list.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        list.deleteRow(0); // Wish You Were Here (descending)
        list.deleteRow(7); // no such row: nothing happens
        QCOMPARE(albumNames(*list.model()), QStringList({u"Cabaret"_s, u"Blue"_s, u"Abbey Road"_s}));
        QCOMPARE(list.headerText(), u"# Vinyl Records = 3 of 3"_s);
        QCOMPARE(m_app->store().count(FetchRequest(Entity::Vinyl)).valueOr(-1), 3);
    }

    void pickingARowFillsCurrentRecordAndOpensTheEditor()
    {
        TestApp app;
        Vinyl v = RecordBuilder(u"Rumours"_s).artist(u"Fleetwood Mac"_s).value(10, 2).v;
        v.frontImage = sampleCoverJpeg(1, true);
        QVERIFY(app.store().insert(v));
        app.addVinyl(u"Tusk"_s);

        ListVinylTableViewController list(&app.app());
        list.updateSearchResults(u"rum"_s);
        app.app().state()->setOriginScreen(u"Menu"_s);
        list.rowPicked(0);

        // The list reads no covers: picking reads the whole record.
        const CurrentRecord &current = app.app().state()->currentRecord();
        QCOMPARE(current.rowId, v.rowId);
        QCOMPARE(current.images.size(), 1);
        QCOMPARE(app.app().state()->originScreen(), u"List"_s);
        QCOMPARE(app.app().navigator()->lastShown(), u"EditVinylView"_s);
    }

    void pickingARecordDeletedElsewhereAlertsAndRefreshes()
    {
        ListVinylTableViewController list(&m_app->app());
        const qint64 rowId = list.model()->card(0).rowId;
        QVERIFY(m_app->store().remove(Entity::Vinyl, rowId));
        list.rowPicked(0);
        QCOMPARE(list.lastAlertTitle(), BrowseTexts::kRecordNotFoundTitle);
        QCOMPARE(list.model()->rowCount(), 3);
        QCOMPARE(m_app->app().navigator()->lastShown(), QString());
    }

    void emptyCollection()
    {
        TestApp app;
        ListVinylTableViewController list(&app.app());
        QCOMPARE(list.model()->rowCount(), 0);
        QCOMPARE(list.headerText(), u"# Vinyl Records = 0 of 0"_s);
        list.updateSearchResults(u"x"_s);
        list.SortButtonTapped();
        list.rowPicked(0);
        list.deleteRow(0);
        QCOMPARE(list.headerText(), u"# Vinyl Records = 0 of 0"_s);
    }

    // Any case of a letter of any script finds it, in what the list is sorted by; a date is
    // searched as the card writes it.
    void searchFindsEveryCaseOfALetter_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("producers"); // each found card's producer (label when sorted by it)

        QTest::addRow("name, lower-case of a capital") << 1 << u"å"_s << QStringList{u"Anders"_s};
        QTest::addRow("name, capital of a lower-case") << 1 << u"ÉTÉ"_s << QStringList{u"Benoît"_s};
        QTest::addRow("artist") << 4 << u"åSA"_s << QStringList{u"Anders"_s};
        QTest::addRow("record label") << 3 << u"öL"_s << QStringList{u"Öland"_s};
        QTest::addRow("year, as the date reads") << 2 << u"Jun"_s << QStringList{u"Benoît"_s, u"Anders"_s};
        QTest::addRow("year, case kept") << 2 << u"jun"_s << QStringList{};
    }

    void searchFindsEveryCaseOfALetter()
    {
        QFETCH(int, option);
        QFETCH(QString, text);
        QFETCH(QStringList, producers);

        TestApp app;
        RecordBuilder(u"Fråga"_s).artist(u"Åsa"_s).label(u"Öland"_s).producer(u"Anders"_s).date(localDate(1980, 6, 2))
            .store(app.store());
        RecordBuilder(u"ÉTÉ"_s).artist(u"Zaz"_s).label(u"Ébène"_s).producer(u"Benoît"_s).date(localDate(1979, 6, 1))
            .store(app.store());
        RecordBuilder(u"abba"_s).artist(u"ABBA"_s).label(u"Polar"_s).producer(u"Benny"_s).date(localDate(1975, 3, 1))
            .store(app.store());
        ListVinylTableViewController list(&app.app());
        QAbstractItemModelTester tester(list.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        list.sortOptionSelected(option); // ascending
        list.updateSearchResults(text);

        QCOMPARE(firstFields(*list.model()), producers);
        QCOMPARE(list.headerText(), u"# Vinyl Records = %1 of 3"_s.arg(producers.size()));
    }

    void readsOnlyThePagesShownAndFollowsEdits()
    {
        TestApp app;
        SampleOptions options;
        options.records = 300;
        QVERIFY(addSampleCollection(app.store(), options).ok());
        const auto byName = app.store().fetchVinyl(FetchRequest().sortedBy(u"name"_s));
        QVERIFY(byName && byName->size() == 300);

        ListVinylTableViewController list(&app.app());
        QAbstractItemModelTester tester(list.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        list.sortOptionSelected(1); // ascending by name
        QCOMPARE(list.model()->rowCount(), 300);
        const qint64 pageRows = PageCache<RecordCard>::kPageRows;

        // The last row is read with the rows around it, not with those before.
        qint64 read = list.model()->cardsRead();
        QCOMPARE(list.model()->card(299).rowId, byName->last().rowId);
        QCOMPARE(list.model()->card(150).rowId, byName->at(150).rowId);
        QVERIFY(list.model()->cardsRead() - read <= 2 * pageRows);

        // A record saved elsewhere shows when the list comes back, reading the rows shown only.
        Vinyl edited = byName->at(0);
        edited.producer = u"Edited Producer"_s;
        QVERIFY(app.store().update(edited));
        read = list.model()->cardsRead();
        list.unwindToList();
        list.unwindToList(); // every refresh reverses: back to ascending
        QVERIFY(list.model()->card(0).producerLabel.startsWith(u"Producer: Edited Producer"_s));
        QVERIFY(list.model()->cardsRead() - read <= 2 * pageRows);
    }

private:
    std::unique_ptr<TestApp> m_app;
};

QTEST_MAIN(TestCollectionList)
#include "tst_collectionlist.moc"
