// The browse screens at the collection's ceiling: 32,767 records with covers. Their speed is
// measured by `make bench`; here they must load, search and count every record.
#include "grouptableviewcontroller.h"
#include "listvinyltableviewcontroller.h"
#include "samplecollection.h"
#include "testsupport.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestBrowseScale : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void collectionListLoadsAndFilters();
    void groupListsLoadAndCount();

private:
    std::unique_ptr<TestApp> m_app;
};

void TestBrowseScale::initTestCase()
{
    useTestLocale();
    m_app = std::make_unique<TestApp>();
    QVERIFY(m_app->ok());
    SampleOptions options;
    options.records = 32767;
    options.tracksPerRecord = 0;
    options.covers = true;
    QVERIFY(addSampleCollection(m_app->store(), options));
}

void TestBrowseScale::collectionListLoadsAndFilters()
{
    ListVinylTableViewController list(&m_app->app());
    QCOMPARE(list.model()->rowCount(), 32767);
    list.updateSearchResults(u"n"_s);
    list.updateSearchResults(u"no"_s);
    QVERIFY(list.model()->rowCount() > 0);
    QVERIFY(list.model()->rowCount() < 32767);
    list.updateSearchResults(QString());
    QCOMPARE(list.model()->rowCount(), 32767);
    list.sortOptionSelected(2);
    list.updateSearchResults(u"197"_s);
    QVERIFY(list.model()->rowCount() > 0);
}

void TestBrowseScale::groupListsLoadAndCount()
{
    ArtistGroupTableViewController artists(&m_app->app());
    YearGroupTableViewController years(&m_app->app());
    artists.viewWillAppear();
    years.viewWillAppear();
    artists.updateSearchResults(u"a"_s);
    QVERIFY(artists.model()->rowCount() > 0);

    qint64 total = 0;
    for (const GroupRow &row : years.model()->rows())
        total += row.countText.toLongLong();
    // Every sample record is dated, so the years account for all of them.
    QCOMPARE(total, 32767);
}

QTEST_MAIN(TestBrowseScale)
#include "tst_browsescale.moc"
