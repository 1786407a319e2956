#include "collection/statistics.h"

#include "store/formatters.h"
#include "store/store.h"

#include <QJsonArray>
#include <QSqlError>
#include <QSqlQuery>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTop = 10;

// The grades of a condition attribute, counted once, in the order of the reference list that
// names them; grades the list lacks follow in code-point order.
QString conditionSql(const QString &attribute, const QString &list)
{
    return uR"(SELECT grade, n FROM (
                 WITH used AS MATERIALIZED (
                     SELECT %1 AS grade, COUNT(*) AS n FROM Vinyl WHERE %1 <> '' GROUP BY %1),
                 listed AS (
                     SELECT condition AS grade, MIN(rowid) AS position FROM %2 WHERE condition <> '' GROUP BY condition)
                 SELECT listed.grade AS grade, COALESCE(used.n, 0) AS n, listed.position AS position
                     FROM listed LEFT JOIN used ON used.grade = listed.grade
                 UNION ALL
                 SELECT grade, n, NULL FROM used WHERE grade NOT IN (SELECT grade FROM listed))
             ORDER BY position IS NULL, position, grade)"_s.arg(attribute, list);
}

QString topSql(const QString &attribute, const QString &measure)
{
    return u"SELECT %1, %2 AS measure FROM Vinyl WHERE %1 <> '' GROUP BY %1 HAVING measure > 0 "
           "ORDER BY measure DESC, %1 LIMIT %3"_s.arg(attribute, measure).arg(kTop);
}

// The value held per artist or label. The amounts are read from the statistics' covering index
// in one pass: walked in the attribute's own order instead, each record's row would be read.
QString topByValueSql(const QString &attribute)
{
    return u"WITH figures AS MATERIALIZED (SELECT %1 AS grouped, quantity * value AS worth FROM Vinyl WHERE +%1 <> '') "
           "SELECT grouped, TOTAL(worth) AS measure FROM figures GROUP BY grouped HAVING measure > 0 "
           "ORDER BY measure DESC, grouped LIMIT %2"_s.arg(attribute).arg(kTop);
}

QString countSql(const QString &attribute)
{
    return u"SELECT %1, COUNT(*) AS n FROM Vinyl WHERE %1 <> '' GROUP BY %1 ORDER BY n DESC, %1"_s.arg(attribute);
}

using Reader = std::function<void(QSqlQuery &, Statistics &)>;

struct Aggregate
{
    QString sql;
    Reader read;
};

// Rows of (label, value) into one series.
Reader intoSeries(ChartSeries Statistics::*series)
{
    return [series](QSqlQuery &q, Statistics &s) {
        while (q.next())
            (s.*series).append({q.value(0).toString(), q.value(1).toDouble()});
    };
}

const QList<Aggregate> &aggregates()
{
    static const QList<Aggregate> list = {
        {u"SELECT COUNT(*), TOTAL(quantity), TOTAL(quantity * cost), TOTAL(quantity * value) FROM Vinyl"_s,
         [](QSqlQuery &q, Statistics &s) {
             if (q.next())
                 s.figures = {q.value(0).toLongLong(), qint64(q.value(1).toDouble()), q.value(2).toDouble(),
                              q.value(3).toDouble()};
         }},
        // Years in local time, as the year lists group them; decades are summed from the years.
        // Records are counted per release day first, so each day is turned into its year once.
        {u"SELECT CAST(strftime('%Y', day / 1000, 'unixepoch', 'localtime') AS INTEGER) AS year, SUM(n) FROM "
         "(SELECT releaseDate AS day, COUNT(*) AS n FROM Vinyl WHERE releaseDate IS NOT NULL GROUP BY releaseDate) "
         "GROUP BY year ORDER BY year"_s,
         [](QSqlQuery &q, Statistics &s) {
             while (q.next()) {
                 const QString year = QString::number(q.value(0).toInt());
                 const double records = q.value(1).toDouble();
                 s.recordsPerYear.append({year, records});
                 const QString decade = StatisticsTexts::decadeOf(year);
                 if (s.recordsPerDecade.isEmpty() || s.recordsPerDecade.last().label != decade)
                     s.recordsPerDecade.append({decade, 0});
                 s.recordsPerDecade.last().value += records;
             }
         }},
        {topSql(u"artist"_s, u"COUNT(*)"_s), intoSeries(&Statistics::topArtistsByRecords)},
        {topByValueSql(u"artist"_s), intoSeries(&Statistics::topArtistsByValue)},
        {topSql(u"recordLabel"_s, u"COUNT(*)"_s), intoSeries(&Statistics::topLabelsByRecords)},
        {topByValueSql(u"recordLabel"_s), intoSeries(&Statistics::topLabelsByValue)},
        {conditionSql(u"vinylCondition"_s, u"VinylCondition"_s), intoSeries(&Statistics::recordConditions)},
        {conditionSql(u"coverCondition"_s, u"CoverCondition"_s), intoSeries(&Statistics::coverConditions)},
        {countSql(u"recordSpeed"_s), intoSeries(&Statistics::speeds)},
        {countSql(u"doubleAlbum"_s), intoSeries(&Statistics::albumTypes)},
        // Each record's last quote of a day replaces what it added before; the running sum of
        // those changes is the collection's value on each day. The quantities are read once
        // from a covering index: looking each record up in its wide row costs far more.
        {uR"(WITH daily AS (
                 SELECT vinylRowId, date(quoted / 1000, 'unixepoch', 'localtime') AS day, value, MAX(quoted)
                 FROM Quotes GROUP BY vinylRowId, day),
             held AS MATERIALIZED (SELECT rowid AS vinylRowId, quantity FROM Vinyl),
             changes AS (
                 SELECT day, (daily.value - COALESCE(LAG(daily.value) OVER (PARTITION BY daily.vinylRowId ORDER BY day), 0))
                             * COALESCE(held.quantity, 0) AS change
                 FROM daily JOIN held ON held.vinylRowId = daily.vinylRowId)
             SELECT day, SUM(SUM(change)) OVER (ORDER BY day) FROM changes GROUP BY day ORDER BY day)"_s,
         intoSeries(&Statistics::valueOverTime)},
        {u"SELECT name, artist, (value - cost) * quantity AS gain FROM Vinyl WHERE cost > 0 AND gain > 0 "
         "ORDER BY gain DESC, name, artist LIMIT %1"_s.arg(kTop),
         [](QSqlQuery &q, Statistics &s) {
             while (q.next())
                 s.topGains.append({q.value(0).toString() + u" \u2013 "_s + q.value(1).toString(), q.value(2).toDouble()});
         }},
    };
    return list;
}

// Amounts to the cent, so that a float's noise ("12.9899997711") stays out of the JSON.
double cents(double amount)
{
    return std::round(amount * 100) / 100;
}

} // namespace

const QList<ChartDefinition> &chartDefinitions()
{
    using Look = ChartDefinition::Look;
    using Opens = ChartDefinition::Opens;
    static const QList<ChartDefinition> list = {
        {u"valueOverTime"_s, u"Value over Time"_s, Look::Line, true, Opens::Nothing, &Statistics::valueOverTime},
        {u"recordsPerDecade"_s, u"Records per Decade"_s, Look::Columns, false, Opens::DecadeYears,
         &Statistics::recordsPerDecade},
        {u"recordsPerYear"_s, u"Records per Year"_s, Look::Columns, false, Opens::YearList, &Statistics::recordsPerYear},
        {u"topArtistsByRecords"_s, u"Top 10 Artists by Records"_s, Look::Bars, false, Opens::ArtistList,
         &Statistics::topArtistsByRecords},
        {u"topArtistsByValue"_s, u"Top 10 Artists by Value"_s, Look::Bars, true, Opens::ArtistList,
         &Statistics::topArtistsByValue},
        {u"topLabelsByRecords"_s, u"Top 10 Labels by Records"_s, Look::Bars, false, Opens::LabelList,
         &Statistics::topLabelsByRecords},
        {u"topLabelsByValue"_s, u"Top 10 Labels by Value"_s, Look::Bars, true, Opens::LabelList,
         &Statistics::topLabelsByValue},
        {u"recordConditions"_s, u"Record Condition"_s, Look::Bars, false, Opens::Nothing, &Statistics::recordConditions},
        {u"coverConditions"_s, u"Cover Condition"_s, Look::Bars, false, Opens::Nothing, &Statistics::coverConditions},
        {u"speeds"_s, u"Speeds"_s, Look::Pie, false, Opens::Nothing, &Statistics::speeds},
        {u"albumTypes"_s, u"Album Types"_s, Look::Pie, false, Opens::Nothing, &Statistics::albumTypes},
        {u"topGains"_s, u"Top 10 Gains against Cost"_s, Look::Bars, true, Opens::Nothing, &Statistics::topGains},
    };
    return list;
}

namespace StatisticsQueries {

Result<Statistics> compute(const Store &store, const Progress &progress)
{
    Statistics statistics;
    const QList<Aggregate> &list = aggregates();
    QSqlQuery q(store.database());
    q.setForwardOnly(true);
    for (qsizetype i = 0; i < list.size(); ++i) {
        if (progress && !progress(i, list.size()))
            return Error{u"Cancelled."_s};
        if (!q.exec(list.at(i).sql))
            return Error{u"Cannot total the collection: "_s + q.lastError().text()};
        list.at(i).read(q, statistics);
        q.finish();
    }
    if (progress)
        progress(list.size(), list.size());
    return statistics;
}

QStringList statements()
{
    QStringList sql;
    for (const Aggregate &aggregate : aggregates())
        sql.append(aggregate.sql);
    return sql;
}

} // namespace StatisticsQueries

namespace StatisticsTexts {

QString differenceTitle(double difference)
{
    return difference < 0 ? kLoss : kGain;
}

QString differenceText(double difference)
{
    return Formatters::currencyOrZero(std::abs(difference));
}

QString decadeOf(const QString &yearLabel)
{
    return QString::number(yearLabel.toInt() / 10 * 10) + u's';
}

} // namespace StatisticsTexts

QJsonObject statisticsJson(const Statistics &statistics)
{
    const CollectionFigures &f = statistics.figures;
    const QJsonObject figures{
        {u"records"_s, f.records},
        {u"copies"_s, f.copies},
        {u"totalCost"_s, cents(f.totalCost)},
        {u"totalValue"_s, cents(f.totalValue)},
        {u"difference"_s, cents(f.difference())},
        {u"totalCostText"_s, Formatters::currencyOrZero(f.totalCost)},
        {u"totalValueText"_s, Formatters::currencyOrZero(f.totalValue)},
        {u"differenceText"_s,
         QString(StatisticsTexts::differenceTitle(f.difference()) + u": "_s + StatisticsTexts::differenceText(f.difference()))},
    };
    QJsonObject charts;
    for (const ChartDefinition &chart : chartDefinitions()) {
        QJsonArray points;
        for (const ChartPoint &point : statistics.*chart.series)
            points.append(QJsonObject{{u"label"_s, point.label}, {u"value"_s, chart.currency ? cents(point.value) : point.value}});
        charts.insert(chart.name, points);
    }
    return QJsonObject{{u"figures"_s, figures}, {u"charts"_s, charts}};
}
