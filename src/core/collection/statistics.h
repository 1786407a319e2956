#pragma once

#include "store/result.h"

#include <QJsonObject>
#include <QList>
#include <QString>

#include <functional>

class Store;

// What the collection is made of and what it is worth: the figures and the series of every
// chart of the statistics screen and of `platterbox stats --json`. Each chart is one SQL
// aggregate, so the screen opens as quickly at 32,767 records as at 30.

// One bar, slice or point of a chart.
struct ChartPoint
{
    QString label; // what the chart writes beside it: "1960s", an artist, "2024-03-01"
    double value = 0;

    bool operator==(const ChartPoint &) const = default;
};
using ChartSeries = QList<ChartPoint>;

struct CollectionFigures
{
    qint64 records = 0;
    qint64 copies = 0;    // the sum of quantities
    double totalCost = 0; // cost x quantity
    double totalValue = 0; // value x quantity
    qint64 onLoan = 0;  // records lent out
    qint64 overdue = 0; // of those, due back before today

    // What the collection gained against what it cost (negative: a loss).
    [[nodiscard]] double difference() const { return totalValue - totalCost; }
};

struct Statistics
{
    CollectionFigures figures;
    ChartSeries recordsPerDecade; // "1960s", in time order; records without a release date left out
    ChartSeries recordsPerYear;   // "1965", in time order: the years of the decades
    ChartSeries topArtistsByRecords;
    ChartSeries topArtistsByValue;
    ChartSeries topLabelsByRecords;
    ChartSeries topLabelsByValue;
    // Every grade of the reference list in its order, then grades only records use.
    ChartSeries recordConditions;
    ChartSeries coverConditions;
    ChartSeries speeds;     // most records first
    ChartSeries albumTypes; // most records first
    // The sum of each record's latest quote (times its copies) on each day a quote was made,
    // labelled with the day as "yyyy-MM-dd".
    ChartSeries valueOverTime;
    // "Name - Artist", by (value - cost) x quantity; only records with a cost that gained.
    ChartSeries topGains;
};

// How a chart is drawn and what tapping one of its bars opens; one row per chart.
struct ChartDefinition
{
    enum class Look { Columns, Bars, Pie, Line };
    enum class Opens { Nothing, ArtistList, LabelList, DecadeYears, YearList };

    QString name;  // its key in the JSON and its name on the screen
    QString title; // "Records per Decade", English, marked for translation
    Look look = Look::Columns;
    bool currency = false; // the values are amounts
    Opens opens = Opens::Nothing;
    ChartSeries Statistics::*series = nullptr;
};
// Every chart, in the order the screen shows them; recordsPerYear is shown a decade at a time.
[[nodiscard]] const QList<ChartDefinition> &chartDefinitions();

namespace StatisticsQueries {

// Reports the aggregates done and the aggregates in all; returning false cancels.
using Progress = std::function<bool(qint64 done, qint64 total)>;

// Every figure and series, read from the store with one aggregate per chart.
Result<Statistics> compute(const Store &store, const Progress &progress = {});
// The aggregates compute() runs, in its order, for the benchmark's floor.
[[nodiscard]] QStringList statements();

} // namespace StatisticsQueries

namespace StatisticsTexts {
inline const QString kGain = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Gain"));
inline const QString kLoss = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Loss"));
// "Gain" or "Loss": what the difference between value and cost is called.
[[nodiscard]] QString differenceTitle(double difference);
// The amount of a gain or a loss, without a sign: "$12.50".
[[nodiscard]] QString differenceText(double difference);
// The decade a year of recordsPerYear falls in, as recordsPerDecade labels it: "1960s".
[[nodiscard]] QString decadeOf(const QString &yearLabel);
} // namespace StatisticsTexts

// Every figure (numbers and currency texts) and every chart's series, for `stats --json`.
[[nodiscard]] QJsonObject statisticsJson(const Statistics &statistics);
