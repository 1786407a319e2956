// The collection list and the group lists over one dozen records: every order, group and count
// exactly. How the lists fare at the collection's ceiling is measured by `make bench`.
#include "browse/grouptableviewcontroller.h"
#include "browse/listvinyltableviewcontroller.h"
#include "browsetestdata.h"
#include "testsupport.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Qt::StringLiterals;

class TestBrowseDozen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void listOrdersAndFinds_data();
    void listOrdersAndFinds();
    void groupsNameAndCountTheirRecords_data();
    void groupsNameAndCountTheirRecords();

private:
    std::unique_ptr<TestApp> m_app;
};

void TestBrowseDozen::initTestCase()
{
    useTestLocale();
    m_app = std::make_unique<TestApp>();
    QVERIFY(m_app->ok());
    // Name, artist, label, producer, release date. Lower case sorts after upper case.
    const QList<QStringList> records = {
        {u"Abbey Road"_s, u"The Beatles"_s, u"Apple"_s, u"George Martin"_s, u"1969-09-26"_s},
        {u"Let It Be"_s, u"The Beatles"_s, u"Apple"_s, u"Phil Spector"_s, u"1970-05-08"_s},
        {u"Revolver"_s, u"The Beatles"_s, u"Parlophone"_s, u"George Martin"_s, u"1966-08-05"_s},
        {u"Blue"_s, u"Joni Mitchell"_s, u"Reprise"_s, u"Joni Mitchell"_s, u"1971-06-22"_s},
        {u"Court and Spark"_s, u"Joni Mitchell"_s, u"Asylum"_s, u"Joni Mitchell"_s, u"1974-01-17"_s},
        {u"Hejira"_s, u"Joni Mitchell"_s, u"Asylum"_s, u"Joni Mitchell"_s, u"1976-11-22"_s},
        {u"Horses"_s, u"Patti Smith"_s, u"Arista"_s, u"John Cale"_s, u"1975-11-10"_s},
        {u"Marquee Moon"_s, u"Television"_s, u"Elektra"_s, u"Andy Johns"_s, u"1977-02-08"_s},
        {u"Pet Sounds"_s, u"The Beach Boys"_s, u"Capitol"_s, u"Brian Wilson"_s, u"1966-05-16"_s},
        {u"Zuma"_s, u"Neil Young"_s, u"Reprise"_s, u"David Briggs"_s, u"1975-11-03"_s},
        {u"abbey road demos"_s, u"the beatles"_s, u"apple"_s, u"george martin"_s, u"2019-09-27"_s},
    };
    for (const QStringList &r : records) {
        RecordBuilder(r[0]).artist(r[1]).label(r[2]).producer(r[3])
            .date(QDateTime(QDate::fromString(r[4], Qt::ISODate), QTime(0, 0))).store(m_app->store());
    }
    // Nothing but a name: it sorts first by date and belongs to no group.
    RecordBuilder(u"Untitled"_s).store(m_app->store());
}

void TestBrowseDozen::listOrdersAndFinds_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<QString>("searchText");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("header");

    QTest::addRow("by name") << 1 << QString()
                             << QStringList{u"Abbey Road"_s, u"Blue"_s, u"Court and Spark"_s, u"Hejira"_s, u"Horses"_s,
                                            u"Let It Be"_s, u"Marquee Moon"_s, u"Pet Sounds"_s, u"Revolver"_s,
                                            u"Untitled"_s, u"Zuma"_s, u"abbey road demos"_s}
                             << u"# Vinyl Records = 12 of 12"_s;
    QTest::addRow("by date, undated first") << 2 << QString()
                             << QStringList{u"Untitled"_s, u"Pet Sounds"_s, u"Revolver"_s, u"Abbey Road"_s,
                                            u"Let It Be"_s, u"Blue"_s, u"Court and Spark"_s, u"Zuma"_s, u"Horses"_s,
                                            u"Hejira"_s, u"Marquee Moon"_s, u"abbey road demos"_s}
                             << u"# Vinyl Records = 12 of 12"_s;
    // A search looks at what the list is sorted by, and found records keep the list's order.
    QTest::addRow("name in any case") << 1 << u"ABBEY"_s << QStringList{u"Abbey Road"_s, u"abbey road demos"_s}
                                      << u"# Vinyl Records = 2 of 12"_s;
    QTest::addRow("name never matches the artist") << 1 << u"beatles"_s << QStringList{} << u"# Vinyl Records = 0 of 12"_s;
    QTest::addRow("year") << 2 << u"1975"_s << QStringList{u"Zuma"_s, u"Horses"_s} << u"# Vinyl Records = 2 of 12"_s;
    QTest::addRow("month as written") << 2 << u"Jan"_s << QStringList{u"Court and Spark"_s} << u"# Vinyl Records = 1 of 12"_s;
    QTest::addRow("date is case-sensitive") << 2 << u"jan"_s << QStringList{} << u"# Vinyl Records = 0 of 12"_s;
    QTest::addRow("label in any case") << 3 << u"RIST"_s << QStringList{u"Horses"_s} << u"# Vinyl Records = 1 of 12"_s;
    QTest::addRow("artist in any case") << 4 << u"patti"_s << QStringList{u"Horses"_s} << u"# Vinyl Records = 1 of 12"_s;
}

void TestBrowseDozen::listOrdersAndFinds()
{
    QFETCH(int, option);
    QFETCH(QString, searchText);
    QFETCH(QStringList, names);
    QFETCH(QString, header);
    ListVinylTableViewController list(&m_app->app());
    QAbstractItemModelTester tester(list.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    list.sortOptionSelected(option); // ascending
    list.updateSearchResults(searchText);
    QStringList shown; // the card's lines follow the sort choice; the record's name does not
    for (int row = 0; row < list.model()->rowCount(); ++row) {
        const QVariant rowId = list.model()->data(list.model()->index(row), RecordCardModel::RowIdRole);
        shown.append(text(m_app->store().vinylByRowId(rowId.toLongLong()).valueOr({}).value_or(Vinyl()).name));
    }
    QCOMPARE(shown, names);
    QCOMPARE(list.headerText(), header);
}

void TestBrowseDozen::groupsNameAndCountTheirRecords_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("counts");
    QTest::addColumn<QString>("header");

    QTest::addRow("artists") << 0
                             << QStringList{u"Joni Mitchell"_s, u"Neil Young"_s, u"Patti Smith"_s, u"Television"_s,
                                            u"The Beach Boys"_s, u"The Beatles"_s, u"the beatles"_s}
                             << QStringList{u"3"_s, u"1"_s, u"1"_s, u"1"_s, u"1"_s, u"3"_s, u"1"_s} << u"7 Artist's"_s;
    QTest::addRow("labels") << 1
                            << QStringList{u"Apple"_s, u"Arista"_s, u"Asylum"_s, u"Capitol"_s, u"Elektra"_s,
                                           u"Parlophone"_s, u"Reprise"_s, u"apple"_s}
                            << QStringList{u"2"_s, u"1"_s, u"2"_s, u"1"_s, u"1"_s, u"1"_s, u"2"_s, u"1"_s}
                            << u"8 Label's"_s;
    QTest::addRow("producers") << 2
                               << QStringList{u"Andy Johns"_s, u"Brian Wilson"_s, u"David Briggs"_s,
                                              u"George Martin"_s, u"John Cale"_s, u"Joni Mitchell"_s,
                                              u"Phil Spector"_s, u"george martin"_s}
                               << QStringList{u"1"_s, u"1"_s, u"1"_s, u"2"_s, u"1"_s, u"3"_s, u"1"_s, u"1"_s}
                               << u"8 Producer's"_s;
    QTest::addRow("years") << 3
                           << QStringList{u"1966"_s, u"1969"_s, u"1970"_s, u"1971"_s, u"1974"_s, u"1975"_s,
                                          u"1976"_s, u"1977"_s, u"2019"_s}
                           << QStringList{u"2"_s, u"1"_s, u"1"_s, u"1"_s, u"1"_s, u"2"_s, u"1"_s, u"1"_s, u"1"_s}
                           << u"9 Year's"_s;
}

void TestBrowseDozen::groupsNameAndCountTheirRecords()
{
    QFETCH(int, kind);
    QFETCH(QStringList, names);
    QFETCH(QStringList, counts);
    QFETCH(QString, header);
    std::unique_ptr<GroupTableViewController> groups;
    switch (kind) {
    case 0: groups = std::make_unique<ArtistGroupTableViewController>(&m_app->app()); break;
    case 1: groups = std::make_unique<LabelGroupTableViewController>(&m_app->app()); break;
    case 2: groups = std::make_unique<ProducerGroupTableViewController>(&m_app->app()); break;
    default: groups = std::make_unique<YearGroupTableViewController>(&m_app->app()); break;
    }
    QAbstractItemModelTester tester(groups->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(column(*groups->model(), "nameLabel"), names);
    QCOMPARE(column(*groups->model(), "countLabel"), counts);
    QCOMPARE(groups->headerText(), header);
    QCOMPARE(groups->placeholder(), u"Search By Artist"_s); // the search looks at the names in every list
}

QTEST_MAIN(TestBrowseDozen)
#include "tst_browsedozen.moc"
