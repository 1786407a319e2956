#include "collection/statistics.h"

#include "store/formatters.h"
#include "store/keptfigures.h"
#include "store/store.h"
#include "store/translations.h"

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
                 WITH used AS (SELECT name AS grade, records AS n FROM Tallies WHERE kind = '%1' AND name <> ''),
                 listed AS (
                     SELECT condition AS grade, MIN(rowid) AS position FROM %2 WHERE condition <> '' GROUP BY condition)
                 SELECT listed.grade AS grade, COALESCE(used.n, 0) AS n, listed.position AS position
                     FROM listed LEFT JOIN used ON used.grade = listed.grade
                 UNION ALL
                 SELECT grade, n, NULL FROM used WHERE grade NOT IN (SELECT grade FROM listed))
             ORDER BY position IS NULL, position, grade)"_s.arg(attribute, list);
}

// The ten names of a grouping with most of `measure` (a column of the tallies).
QString topSql(const QString &kind, const QString &measure)
{
    return u"SELECT name, %2 FROM Tallies WHERE kind = '%1' AND name <> '' AND %3 > 0 ORDER BY %3 DESC, name LIMIT %4"_s
        .arg(kind, measure == u"records" ? measure : KeptFigures::amount(measure), measure)
        .arg(kTop);
}

QString countSql(const QString &kind)
{
    return u"SELECT name, records FROM Tallies WHERE kind = '%1' AND name <> '' ORDER BY records DESC, name"_s.arg(kind);
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
        {u"SELECT records, copies, %1, %2 FROM Tallies WHERE kind = '%3'"_s.arg(
             KeptFigures::amount(u"cost"_s), KeptFigures::amount(u"worth"_s), KeptFigures::kCollection),
         [](QSqlQuery &q, Statistics &s) {
             if (q.next())
                 s.figures = {q.value(0).toLongLong(), qint64(q.value(1).toDouble()), q.value(2).toDouble(),
                              q.value(3).toDouble()};
         }},
        // Loan days are the collector's calendar days: overdue is judged by the local day.
        {u"SELECT count(*), total(due IS NOT NULL AND due < date('now', 'localtime')) FROM Loans "
         "INDEXED BY LoansOutByDay WHERE returned IS NULL"_s,
         [](QSqlQuery &q, Statistics &s) {
             if (q.next()) {
                 s.figures.onLoan = q.value(0).toLongLong();
                 s.figures.overdue = qint64(q.value(1).toDouble());
             }
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
        {topSql(u"artist"_s, u"records"_s), intoSeries(&Statistics::topArtistsByRecords)},
        {topSql(u"artist"_s, u"worth"_s), intoSeries(&Statistics::topArtistsByValue)},
        {topSql(u"recordLabel"_s, u"records"_s), intoSeries(&Statistics::topLabelsByRecords)},
        {topSql(u"recordLabel"_s, u"worth"_s), intoSeries(&Statistics::topLabelsByValue)},
        {conditionSql(u"vinylCondition"_s, u"VinylCondition"_s), intoSeries(&Statistics::recordConditions)},
        {conditionSql(u"coverCondition"_s, u"CoverCondition"_s), intoSeries(&Statistics::coverConditions)},
        {countSql(u"recordSpeed"_s), intoSeries(&Statistics::speeds)},
        {countSql(u"doubleAlbum"_s), intoSeries(&Statistics::albumTypes)},
        // The value's steps summed per day of the time zone the collector is in now, and run up.
        {u"SELECT day, SUM(SUM(change)) OVER (ORDER BY day) / 100.0 FROM (SELECT date(quarterHour * 900, "
         "'unixepoch', 'localtime') AS day, change FROM ValueSteps) GROUP BY day ORDER BY day"_s,
         intoSeries(&Statistics::valueOverTime)},
        // Read from the gains' own index, largest first.
        {u"SELECT name, artist, (value - cost) * quantity FROM Vinyl WHERE cost > 0 AND (value - cost) * quantity > 0 "
         "ORDER BY (value - cost) * quantity DESC, name, artist LIMIT %1"_s.arg(kTop),
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
        {u"valueOverTime"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Value over Time")), Look::Line, true, Opens::Nothing, &Statistics::valueOverTime},
        {u"recordsPerDecade"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Records per Decade")), Look::Columns, false, Opens::DecadeYears,
         &Statistics::recordsPerDecade},
        {u"recordsPerYear"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Records per Year")), Look::Columns, false, Opens::YearList, &Statistics::recordsPerYear},
        {u"topArtistsByRecords"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Top 10 Artists by Records")), Look::Bars, false, Opens::ArtistList,
         &Statistics::topArtistsByRecords},
        {u"topArtistsByValue"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Top 10 Artists by Value")), Look::Bars, true, Opens::ArtistList,
         &Statistics::topArtistsByValue},
        {u"topLabelsByRecords"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Top 10 Labels by Records")), Look::Bars, false, Opens::LabelList,
         &Statistics::topLabelsByRecords},
        {u"topLabelsByValue"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Top 10 Labels by Value")), Look::Bars, true, Opens::LabelList,
         &Statistics::topLabelsByValue},
        {u"recordConditions"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Record Condition")), Look::Bars, false, Opens::Nothing, &Statistics::recordConditions},
        {u"coverConditions"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Cover Condition")), Look::Bars, false, Opens::Nothing, &Statistics::coverConditions},
        {u"speeds"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Speeds")), Look::Pie, false, Opens::Nothing, &Statistics::speeds},
        {u"albumTypes"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Album Types")), Look::Pie, false, Opens::Nothing, &Statistics::albumTypes},
        {u"topGains"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Top 10 Gains against Cost")), Look::Bars, true, Opens::Nothing, &Statistics::topGains},
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
            return Error{QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Cancelled."))};
        if (!q.exec(list.at(i).sql))
            return Error{translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Cannot total the collection: %1"))).arg(q.lastError().text())};
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
        {u"onLoan"_s, f.onLoan},
        {u"overdue"_s, f.overdue},
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
