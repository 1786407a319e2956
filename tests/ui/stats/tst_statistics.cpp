// The statistics: every chart's series on a small collection made by hand, the screen's taps,
// and `platterbox stats --json`.
#include "cli/cli.h"
#include "collection/loans.h"
#include "collection/statistics.h"
#include "stats/statisticsviewcontroller.h"
#include "store/fetchrequest.h"
#include "store/keptfigures.h"
#include "store/store.h"
#include "testsupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(ChartSeries)

namespace {

struct Record
{
    QString name;
    std::optional<QString> artist;
    std::optional<QString> label;
    std::optional<QDate> released;
    std::optional<qint16> quantity;
    std::optional<float> cost;
    std::optional<float> value;
    std::optional<QString> vinylCondition;
    std::optional<QString> coverCondition;
    std::optional<QString> speed;
    std::optional<QString> type;
};

QDateTime at(int y, int m, int d, int hour = 12, int minute = 0)
{
    return QDateTime(QDate(y, m, d), QTime(hour, minute));
}

// Five records: one with a loss, one without a cost, one with nothing but a name and a cost;
// grades in and out of the reference lists (which are not in code-point order); quotes on three
// days, two of them on one day and one late in the evening.
void fillCollection(Store &store)
{
    const QList<Record> records = {
        {u"Blue Train"_s, u"John Coltrane"_s, u"Blue Note"_s, QDate(1957, 9, 15), 1, 10, 50, u"Mint"_s, u"Near Mint"_s,
         u"33 RPM"_s, u"Single Album"_s},
        {u"Giant Steps"_s, u"John Coltrane"_s, u"Atlantic"_s, QDate(1960, 1, 27), 2, 20, 30, u"Near Mint"_s,
         u"Near Mint"_s, u"33 RPM"_s, u"Single Album"_s},
        {u"Kind of Blue"_s, u"Miles Davis"_s, u"Columbia"_s, QDate(1959, 8, 17), 1, 30, 25, u"Very Good"_s, u"Good"_s,
         u"33 RPM"_s, u"Double Album"_s},
        {u"Help!"_s, u"The Beatles"_s, u"Parlophone"_s, QDate(1965, 1, 1), 1, std::nullopt, 12.5f, u"Scratched"_s,
         u""_s, u"45 RPM"_s, std::nullopt},
        {u"Untitled"_s, u""_s, std::nullopt, std::nullopt, std::nullopt, 5, std::nullopt, std::nullopt, std::nullopt,
         std::nullopt, std::nullopt},
    };
    QList<qint64> rowIds;
    for (const Record &r : records) {
        Vinyl v;
        v.name = r.name;
        v.artist = r.artist;
        v.recordLabel = r.label;
        if (r.released)
            v.releaseDate = QDateTime(*r.released, QTime(0, 0));
        v.quantity = r.quantity;
        v.cost = r.cost;
        v.value = r.value;
        v.vinylCondition = r.vinylCondition;
        v.coverCondition = r.coverCondition;
        v.recordSpeed = r.speed;
        v.doubleAlbum = r.type;
        v.imagesLoaded = true;
        QVERIFY(store.insert(v).ok());
        rowIds.append(v.rowId);
    }
    for (const auto &[entity, grades] : {std::pair{Entity::VinylCondition, QStringList{u"Mint"_s, u"Near Mint"_s, u"Very Good"_s, u"Good"_s}},
                                         std::pair{Entity::CoverCondition, QStringList{u"Near Mint"_s, u"Good"_s, u"Mint"_s}}}) {
        for (const QString &grade : grades) {
            Condition condition{0, grade};
            QVERIFY(store.insert(entity, condition).ok());
        }
    }
    const QList<Quote> quotes = {
        {0, rowIds[0], at(2024, 1, 10), 30, QuoteSources::Edit},
        {0, rowIds[1], at(2024, 1, 10, 9), 25, QuoteSources::Edit},
        {0, rowIds[1], at(2024, 1, 10, 18), 30, QuoteSources::Valuation},
        {0, rowIds[2], at(2024, 2, 1, 23, 30), 25, QuoteSources::Import},
        {0, rowIds[0], at(2024, 3, 1), 50, QuoteSources::Valuation},
        {0, rowIds[3], at(2024, 3, 1), 12.5, QuoteSources::Edit},
    };
    for (Quote quote : quotes)
        QVERIFY(store.insert(quote).ok());
}

} // namespace

class TestStatistics : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    void everyChartsSeries_data()
    {
        QTest::addColumn<QString>("chart");
        QTest::addColumn<ChartSeries>("expected");
        QTest::newRow("decades") << u"recordsPerDecade"_s << ChartSeries{{u"1950s"_s, 2}, {u"1960s"_s, 2}};
        QTest::newRow("years") << u"recordsPerYear"_s
                               << ChartSeries{{u"1957"_s, 1}, {u"1959"_s, 1}, {u"1960"_s, 1}, {u"1965"_s, 1}};
        QTest::newRow("artists by records, ties by name")
            << u"topArtistsByRecords"_s
            << ChartSeries{{u"John Coltrane"_s, 2}, {u"Miles Davis"_s, 1}, {u"The Beatles"_s, 1}};
        QTest::newRow("artists by value of every copy")
            << u"topArtistsByValue"_s << ChartSeries{{u"John Coltrane"_s, 110}, {u"Miles Davis"_s, 25}, {u"The Beatles"_s, 12.5}};
        QTest::newRow("labels by records")
            << u"topLabelsByRecords"_s
            << ChartSeries{{u"Atlantic"_s, 1}, {u"Blue Note"_s, 1}, {u"Columbia"_s, 1}, {u"Parlophone"_s, 1}};
        QTest::newRow("labels by value")
            << u"topLabelsByValue"_s
            << ChartSeries{{u"Atlantic"_s, 60}, {u"Blue Note"_s, 50}, {u"Columbia"_s, 25}, {u"Parlophone"_s, 12.5}};
        QTest::newRow("record grades in the list's order, unlisted after")
            << u"recordConditions"_s
            << ChartSeries{{u"Mint"_s, 1}, {u"Near Mint"_s, 1}, {u"Very Good"_s, 1}, {u"Good"_s, 0}, {u"Scratched"_s, 1}};
        QTest::newRow("cover grades, empty left out")
            << u"coverConditions"_s << ChartSeries{{u"Near Mint"_s, 2}, {u"Good"_s, 1}, {u"Mint"_s, 0}};
        QTest::newRow("speeds") << u"speeds"_s << ChartSeries{{u"33 RPM"_s, 3}, {u"45 RPM"_s, 1}};
        QTest::newRow("album types") << u"albumTypes"_s << ChartSeries{{u"Single Album"_s, 2}, {u"Double Album"_s, 1}};
        // Each record's last quote of a day, times its copies; 23:30 in New York is still that day.
        QTest::newRow("value over time")
            << u"valueOverTime"_s
            << ChartSeries{{u"2024-01-10"_s, 90}, {u"2024-02-01"_s, 115}, {u"2024-03-01"_s, 147.5}};
        QTest::newRow("gains against a cost, losses left out")
            << u"topGains"_s
            << ChartSeries{{u"Blue Train \u2013 John Coltrane"_s, 40}, {u"Giant Steps \u2013 John Coltrane"_s, 20}};
    }
    void everyChartsSeries()
    {
        QFETCH(QString, chart);
        QFETCH(ChartSeries, expected);
        TestApp t;
        fillCollection(t.store());
        const auto statistics = StatisticsQueries::compute(t.store());
        QVERIFY2(statistics.ok(), qPrintable(statistics.errorMessage()));
        const auto definition = std::find_if(chartDefinitions().begin(), chartDefinitions().end(),
                                             [&](const ChartDefinition &d) { return d.name == chart; });
        QVERIFY(definition != chartDefinitions().end());
        QCOMPARE(*statistics.*(definition->series), expected);
    }

    void aTopTenKeepsTen()
    {
        TestApp t;
        for (int i = 0; i < 12; ++i) {
            for (int copy = 0; copy <= i; ++copy)
                t.addVinyl(u"R"_s, u"Artist %1"_s.arg(i, 2, 10, QChar(u'0')));
        }
        const auto statistics = StatisticsQueries::compute(t.store());
        QVERIFY2(statistics.ok(), qPrintable(statistics.errorMessage()));
        QCOMPARE(statistics->topArtistsByRecords.size(), 10);
        QCOMPARE(statistics->topArtistsByRecords.first(), (ChartPoint{u"Artist 11"_s, 12}));
        QCOMPARE(statistics->topArtistsByRecords.last(), (ChartPoint{u"Artist 02"_s, 3}));
    }

    // The figures the store keeps current through each kind of write match the same figures
    // worked out afresh from the records and quotes, as an upgraded store works them out.
    void keptFiguresFollowEveryWrite_data()
    {
        QTest::addColumn<QString>("write");
        for (const char *write : {"nothing", "more copies of a record with quotes", "copies cleared", "artist and value",
                                  "a quote older than the others", "a quote between two", "a record deleted",
                                  "a record added to a day with quotes"})
            QTest::newRow(write) << QString::fromLatin1(write);
    }
    void keptFiguresFollowEveryWrite()
    {
        QFETCH(QString, write);
        TestApp t;
        Store &store = t.store();
        fillCollection(store);
        const auto record = [&](const QString &name) {
            const auto all = store.fetchVinyl(FetchRequest());
            const auto found = std::find_if(all->begin(), all->end(), [&](const Vinyl &v) { return v.name == name; });
            return store.vinylByRowId(found->rowId)->value_or(Vinyl());
        };
        const auto quote = [&](qint64 rowId, const QDateTime &at, double value) {
            Quote q{0, rowId, at, value, QuoteSources::Edit};
            return store.insert(q).ok();
        };
        Vinyl changed = record(u"Giant Steps"_s);
        if (write == u"more copies of a record with quotes") {
            changed.quantity = 5;
            QVERIFY(store.update(changed).ok());
        } else if (write == u"copies cleared") {
            changed.quantity.reset();
            QVERIFY(store.update(changed).ok());
        } else if (write == u"artist and value") {
            changed.artist = u"Trane"_s;
            changed.value = 80;
            QVERIFY(store.update(changed).ok() && quote(changed.rowId, at(2024, 4, 2), 80));
        } else if (write == u"a quote older than the others") {
            QVERIFY(quote(changed.rowId, at(2023, 12, 31, 23, 50), 10));
        } else if (write == u"a quote between two") {
            QVERIFY(quote(changed.rowId, at(2024, 1, 10, 12), 27));
        } else if (write == u"a record deleted") {
            QVERIFY(store.remove(Entity::Vinyl, changed.rowId).ok());
        } else if (write == u"a record added to a day with quotes") {
            t.addVinyl(u"Added"_s, u"John Coltrane"_s);
            Vinyl added = record(u"Added"_s);
            added.quantity = 3;
            QVERIFY(store.update(added).ok() && quote(added.rowId, at(2024, 2, 1, 8), 4));
        }
        const auto kept = StatisticsQueries::compute(store);
        QVERIFY2(kept.ok(), qPrintable(kept.errorMessage()));
        QCOMPARE(runSql(store.database(), KeptFigures::recount()), QString());
        const auto afresh = StatisticsQueries::compute(store);
        QVERIFY2(afresh.ok(), qPrintable(afresh.errorMessage()));
        QCOMPARE(statisticsJson(*kept), statisticsJson(*afresh));
        if (write == u"nothing")
            QCOMPARE(afresh->valueOverTime, (ChartSeries{{u"2024-01-10"_s, 90}, {u"2024-02-01"_s, 115}, {u"2024-03-01"_s, 147.5}}));
    }

    // The screen gets the same figures off the UI thread; taps open the matching list.
    void screenShowsFiguresAndOpensLists_data()
    {
        QTest::addColumn<QString>("chart");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("picked");
        QTest::newRow("an artist") << u"topArtistsByValue"_s << 1 << u"ArtistBreakdownTableView"_s << u"Miles Davis"_s;
        QTest::newRow("a label") << u"topLabelsByRecords"_s << 2 << u"LabelBreakdownTableView"_s << u"Columbia"_s;
        QTest::newRow("a year of a decade") << u"recordsPerDecade"_s << 1 << u"YearBreakdownTableView"_s << u"1965"_s;
        QTest::newRow("a grade opens nothing") << u"recordConditions"_s << 0 << QString() << QString();
        QTest::newRow("past the last bar") << u"topArtistsByValue"_s << 3 << QString() << QString();
    }
    void screenShowsFiguresAndOpensLists()
    {
        QFETCH(QString, chart);
        QFETCH(int, index);
        QFETCH(QString, screen);
        QFETCH(QString, picked);
        TestApp t;
        fillCollection(t.store());
        // Two records out, one of them due back yesterday.
        const QList<Vinyl> records = *t.store().fetchVinyl(FetchRequest());
        const QDate today = QDate::currentDate();
        QVERIFY(Loans::lend(t.store(), records.at(0).rowId, u"Sam"_s, today.addDays(-9), today.addDays(-1)).ok());
        QVERIFY(Loans::lend(t.store(), records.at(1).rowId, u"Lena"_s, today, today).ok());
        StatisticsViewController statistics(&t.app());
        statistics.job().waitForFinished();
        QVERIFY(!statistics.loading());
        QStringList figures;
        for (const QVariant &figure : statistics.figures())
            figures << figure.toMap().value(u"title"_s).toString() + u' ' + figure.toMap().value(u"text"_s).toString();
        QCOMPARE(figures, (QStringList{u"Records 5"_s, u"Copies 5"_s, u"Total Cost $80.00"_s, u"Total Value $147.50"_s,
                                       u"Gain $67.50"_s, u"On Loan 2 (1 overdue)"_s}));

        if (chart == u"recordsPerDecade"_s) {
            statistics.barTapped(chart, index); // the 1960s show their years
            QCOMPARE(statistics.charts().at(1).toMap().value(u"labels"_s).toStringList(),
                     (QStringList{u"1960"_s, u"1965"_s}));
        }
        statistics.barTapped(chart, index);
        QCOMPARE(t.app().navigator()->lastShown(), screen);
        const CurrentRecord &current = t.app().state()->currentRecord();
        if (screen == u"ArtistBreakdownTableView"_s)
            QCOMPARE(current.artist, picked);
        else if (screen == u"LabelBreakdownTableView"_s)
            QCOMPARE(current.recordLabel, picked);
        else if (screen == u"YearBreakdownTableView"_s)
            QCOMPARE(current.releaseDate, std::optional(QDateTime(QDate(picked.toInt(), 1, 1), QTime(0, 0))));
    }

    // Shown again with the store unchanged, the figures read last stand without a new read; a
    // change made here or by another program reads them again.
    void figuresAreReadAgainOnlyAfterAChange()
    {
        TestApp t;
        fillCollection(t.store());
        const auto records = [](const StatisticsViewController &screen) { return screen.statistics().figures.records; };
        {
            StatisticsViewController first(&t.app());
            QVERIFY(first.loading());
            first.job().waitForFinished();
            QCOMPARE(records(first), 5);
        }
        StatisticsViewController again(&t.app());
        QVERIFY(!again.loading());
        QCOMPARE(records(again), 5);

        Vinyl added;
        added.name = u"Added"_s;
        added.imagesLoaded = true;
        QVERIFY(t.store().insert(added));
        again.viewWillAppear();
        again.viewWillAppear();
        QVERIFY(again.loading());
        again.job().waitForFinished();
        QCOMPARE(records(again), 6);

        auto other = Store::open(t.store().filePath());
        QVERIFY(other);
        QVERIFY((*other)->remove(Entity::Vinyl, added.rowId));
        StatisticsViewController afterOther(&t.app());
        QVERIFY(afterOther.loading());
        afterOther.job().waitForFinished();
        QCOMPARE(records(afterOther), 5);
    }

    // The screen as the window shows it: a card per chart, each drawn without a QML warning.
    void screenDrawsEveryChart()
    {
        TestApp t;
        fillCollection(t.store());
        TestWindow window(t.app());
        QVERIFY(window.window());
        QVERIFY(QTest::qWaitForWindowExposed(window.window()));
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        t.app().navigator()->show(u"StatisticsView"_s);
        QTRY_COMPARE(window.topName(), u"StatisticsView"_s);
        auto *controller = window.topScreen()->findChild<StatisticsViewController *>();
        QVERIFY(controller);
        controller->job().waitForFinished();
        for (const ChartDefinition &chart : chartDefinitions()) {
            if (chart.name != u"recordsPerYear"_s)
                QTRY_VERIFY2(window.item(chart.name), qPrintable(chart.name));
        }
        // Every chart is drawn in a frame rendered now.
        QVERIFY(window.waitForTransition());
        QVERIFY(!window.window()->grabWindow().isNull());
    }

    void statsJsonHasEveryFigureAndSeries()
    {
        TestApp t;
        fillCollection(t.store());
        const CliRun plain = runCommand({u"--data-dir"_s, t.dataDir(), u"stats"_s});
        QCOMPARE(plain.out, u"Records: 5\nCopies: 5\nTotal value: $147.50\n"_s);

        const CliRun run = runCommand({u"--data-dir"_s, t.dataDir(), u"stats"_s, u"--json"_s});
        QCOMPARE(run.code, int(CliOk));
        QJsonParseError error;
        const QJsonObject json = QJsonDocument::fromJson(run.out.toUtf8(), &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
        const QJsonObject figures = json.value(u"figures"_s).toObject();
        QCOMPARE(figures.value(u"records"_s).toInteger(), 5);
        QCOMPARE(figures.value(u"copies"_s).toInteger(), 5);
        QCOMPARE(figures.value(u"totalCost"_s).toDouble(), 80.0);
        QCOMPARE(figures.value(u"totalValue"_s).toDouble(), 147.5);
        QCOMPARE(figures.value(u"difference"_s).toDouble(), 67.5);
        QCOMPARE(figures.value(u"differenceText"_s).toString(), u"Gain: $67.50"_s);
        const QJsonObject charts = json.value(u"charts"_s).toObject();
        QCOMPARE(charts.size(), chartDefinitions().size());
        for (const ChartDefinition &definition : chartDefinitions())
            QVERIFY2(charts.value(definition.name).isArray(), qPrintable(definition.name));
        QCOMPARE(charts.value(u"valueOverTime"_s).toArray().last().toObject(),
                 (QJsonObject{{u"label"_s, u"2024-03-01"_s}, {u"value"_s, 147.5}}));
    }
};

QTEST_MAIN(TestStatistics)
#include "tst_statistics.moc"
