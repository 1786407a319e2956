// The browse screens at the collection's ceiling: 32,767 records. Timings are printed so a
// change that makes a list slow shows up; the limits only catch work that grows per row on
// every keystroke or a list fetch that reads covers.
#include "grouptableviewcontroller.h"
#include "listvinyltableviewcontroller.h"
#include "samplecollection.h"
#include "testsupport.h"

#include <QElapsedTimer>
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

namespace {
qint64 timed(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return timer.elapsed();
}
} // namespace

void TestBrowseScale::initTestCase()
{
    useTestLocale();
    m_app = std::make_unique<TestApp>();
    QVERIFY(m_app->ok());
    SampleOptions options;
    options.records = 32767;
    options.tracksPerRecord = 0;
    options.covers = true;
    const qint64 ms = timed([&] { QVERIFY(addSampleCollection(m_app->store(), options)); });
    qInfo("generated 32767 records with covers in %lld ms", ms);
}

void TestBrowseScale::collectionListLoadsAndFilters()
{
    // The store's own part of a load, to tell it apart from the list's.
    const qint64 fetch = timed([&] {
        QCOMPARE(m_app->store().fetchVinyl(FetchRequest(Entity::Vinyl).sortedBy(u"name"_s, false))->size(), 32767);
    });
    std::unique_ptr<ListVinylTableViewController> list;
    const qint64 load = timed([&] { list = std::make_unique<ListVinylTableViewController>(&m_app->app()); });
    QCOMPARE(list->model()->rowCount(), 32767);

    const qint64 firstKey = timed([&] { list->updateSearchResults(u"n"_s); });
    const qint64 secondKey = timed([&] { list->updateSearchResults(u"no"_s); });
    QVERIFY(list->model()->rowCount() > 0);
    QVERIFY(list->model()->rowCount() < 32767);
    const qint64 clear = timed([&] { list->updateSearchResults(QString()); });
    const qint64 resort = timed([&] { list->sortOptionSelected(4); });
    const qint64 yearKey = timed([&] {
        list->sortOptionSelected(2);
        list->updateSearchResults(u"197"_s);
    });

    qInfo("collection list: store fetch alone %lld ms, load %lld ms, keystroke 'n' %lld ms, 'no' %lld ms, clear %lld ms, "
          "sort by artist %lld ms, sort by year + search %lld ms",
          fetch, load, firstKey, secondKey, clear, resort, yearKey);
    // A keystroke scans prepared keys in memory: far below a frame budget even in a
    // sanitizer build.
    QVERIFY2(secondKey < 250, qPrintable(u"keystroke took %1 ms"_s.arg(secondKey)));
    QVERIFY2(load < 20000, qPrintable(u"load took %1 ms"_s.arg(load)));
}

void TestBrowseScale::groupListsLoadAndCount()
{
    std::unique_ptr<ArtistGroupTableViewController> artists;
    std::unique_ptr<YearGroupTableViewController> years;
    const qint64 artistLoad = timed([&] { artists = std::make_unique<ArtistGroupTableViewController>(&m_app->app()); });
    const qint64 yearLoad = timed([&] { years = std::make_unique<YearGroupTableViewController>(&m_app->app()); });
    const qint64 recount = timed([&] {
        artists->viewWillAppear();
        years->viewWillAppear();
    });
    const qint64 key = timed([&] { artists->updateSearchResults(u"a"_s); });
    qInfo("group lists: artists load %lld ms, years load %lld ms, both recounts %lld ms, artist keystroke %lld ms",
          artistLoad, yearLoad, recount, key);

    qint64 total = 0;
    for (const GroupRow &row : years->model()->rows())
        total += row.countText.toLongLong();
    // Every sample record is dated, so the years account for all of them.
    QCOMPARE(total, 32767);
    QVERIFY2(recount < 2000, qPrintable(u"recount took %1 ms"_s.arg(recount)));
}

QTEST_MAIN(TestBrowseScale)
#include "tst_browsescale.moc"
