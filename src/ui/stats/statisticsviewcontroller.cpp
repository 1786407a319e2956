#include "stats/statisticsviewcontroller.h"

#include "shell/appdelegate.h"
#include "store/formatters.h"
#include "store/store.h"
#include "store/translations.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

// A chart as the screen shows it now: the decade chart may show one decade's years instead.
struct ShownChart
{
    QString name;
    QString title;
    ChartDefinition::Look look;
    bool currency = false;
    ChartDefinition::Opens opens = ChartDefinition::Opens::Nothing;
    bool canGoBack = false;
    ChartSeries series;
};

QList<ShownChart> shownCharts(const Statistics &statistics, const QString &decade)
{
    QList<ShownChart> list;
    for (const ChartDefinition &chart : chartDefinitions()) {
        if (chart.name == u"recordsPerYear"_s)
            continue;
        ShownChart shown{chart.name, translated(chart.title), chart.look, chart.currency, chart.opens, false, statistics.*chart.series};
        if (chart.opens == ChartDefinition::Opens::DecadeYears && !decade.isEmpty()) {
            shown.title = translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Records in the %1"))).arg(decade);
            shown.opens = ChartDefinition::Opens::YearList;
            shown.canGoBack = true;
            shown.series.clear();
            for (const ChartPoint &year : statistics.recordsPerYear) {
                if (StatisticsTexts::decadeOf(year.label) == decade)
                    shown.series.append(year);
            }
        }
        list.append(shown);
    }
    return list;
}

QString lookName(ChartDefinition::Look look)
{
    switch (look) {
    case ChartDefinition::Look::Columns: return u"columns"_s;
    case ChartDefinition::Look::Bars: return u"bars"_s;
    case ChartDefinition::Look::Pie: return u"pie"_s;
    case ChartDefinition::Look::Line: return u"line"_s;
    }
    return u"columns"_s;
}

} // namespace

StatisticsViewController::Shown &StatisticsViewController::lastShown()
{
    static Shown shown;
    return shown;
}

StatisticsViewController::StatisticsViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    connect(&m_job, &BackgroundJob::finished, this, [this](const Result<void> &result) {
        emit loadingChanged();
        if (!result) {
            if (!m_job.cancelled())
                showAlert(kStoreErrorTitle, result.errorMessage());
            return;
        }
        m_statistics = std::move(m_computed);
        m_computed = {};
        lastShown() = {m_computedFor, m_statistics};
        emit statisticsChanged();
    });
    loadIfReady();
}

void StatisticsViewController::viewDidLoad()
{
    load();
}

void StatisticsViewController::viewWillAppear()
{
    // The first appearance follows the load that viewDidLoad started.
    if (m_appeared)
        load();
    m_appeared = true;
}

void StatisticsViewController::load()
{
    if (!app())
        return;
    const Store &store = app()->persistentContainer();
    const QString storeFile = store.filePath();
    // The figures last shown stand while the store has not changed since: nothing written
    // through this connection and nothing committed by another program.
    const StoreState state{storeFile, store.writeCount(), store.othersChanges().valueOr(-1)};
    if (state.othersChanges >= 0 && lastShown().state == state && !m_job.running()) {
        m_statistics = lastShown().statistics;
        emit statisticsChanged();
        return;
    }
    m_computedFor = state;
    // The worker reads through a connection of its own; the app's connection stays with the UI.
    const bool started = m_job.start(
        [this, storeFile](const BackgroundJob::Progress &progress) -> Result<void> {
            auto store = Store::open(storeFile);
            if (!store)
                return store.error();
            auto computed = StatisticsQueries::compute(**store, progress);
            if (!computed)
                return computed.error();
            m_computed = std::move(computed).value();
            return {};
        },
        false);
    if (started)
        emit loadingChanged();
}

QVariantList StatisticsViewController::figures() const
{
    const CollectionFigures &f = m_statistics.figures;
    const QLocale locale;
    const auto figure = [](const QString &title, const QString &text) {
        return QVariantMap{{u"title"_s, translated(title)}, {u"text"_s, text}};
    };
    return {figure(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Records")), locale.toString(f.records)),
            figure(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Copies")), locale.toString(f.copies)),
            figure(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Total Cost")), Formatters::currencyOrZero(f.totalCost)),
            figure(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Total Value")), Formatters::currencyOrZero(f.totalValue)),
            figure(StatisticsTexts::differenceTitle(f.difference()), StatisticsTexts::differenceText(f.difference())),
            figure(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "On Loan")), f.overdue > 0 ? translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 (%2 overdue)"))).arg(locale.toString(f.onLoan), locale.toString(f.overdue))
                                               : locale.toString(f.onLoan))};
}

QVariantList StatisticsViewController::charts() const
{
    QVariantList list;
    for (const ShownChart &chart : shownCharts(m_statistics, m_decade)) {
        QVariantMap entry{{u"name"_s, chart.name},
                          {u"title"_s, chart.title},
                          {u"look"_s, lookName(chart.look)},
                          {u"currency"_s, chart.currency},
                          {u"tappable"_s, chart.opens != ChartDefinition::Opens::Nothing},
                          {u"canGoBack"_s, chart.canGoBack}};
        QStringList labels;
        QVariantList values, points;
        for (const ChartPoint &point : chart.series) {
            labels.append(point.label);
            values.append(point.value);
            if (chart.look == ChartDefinition::Look::Line) {
                const QDateTime day(QDate::fromString(point.label, Qt::ISODate), QTime(0, 0));
                points.append(QVariantMap{{u"x"_s, double(day.toMSecsSinceEpoch())}, {u"y"_s, point.value}});
            }
        }
        entry.insert(u"labels"_s, labels);
        entry.insert(u"values"_s, values);
        if (chart.look == ChartDefinition::Look::Line)
            entry.insert(u"points"_s, points);
        list.append(entry);
    }
    return list;
}

void StatisticsViewController::barTapped(const QString &chart, int index)
{
    if (!app())
        return;
    for (const ShownChart &shown : shownCharts(m_statistics, m_decade)) {
        if (shown.name != chart || index < 0 || index >= shown.series.size())
            continue;
        const QString label = shown.series.at(index).label;
        CurrentRecord &current = app()->state()->editCurrentRecord();
        switch (shown.opens) {
        case ChartDefinition::Opens::Nothing: return;
        case ChartDefinition::Opens::DecadeYears:
            m_decade = label;
            emit statisticsChanged();
            return;
        case ChartDefinition::Opens::ArtistList:
            current.artist = label;
            open(u"ArtistBreakdownTableView"_s);
            return;
        case ChartDefinition::Opens::LabelList:
            current.recordLabel = label;
            open(u"LabelBreakdownTableView"_s);
            return;
        case ChartDefinition::Opens::YearList:
            current.releaseDate = QDateTime(QDate(label.toInt(), 1, 1), QTime(0, 0));
            open(u"YearBreakdownTableView"_s);
            return;
        }
    }
}

void StatisticsViewController::showAllDecades()
{
    if (m_decade.isEmpty())
        return;
    m_decade.clear();
    emit statisticsChanged();
}

void StatisticsViewController::open(const QString &screen)
{
    app()->state()->notifyCurrentRecordChanged();
    app()->navigator()->show(screen);
}
