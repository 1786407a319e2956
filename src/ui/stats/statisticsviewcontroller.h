#pragma once

#include "collection/statistics.h"
#include "shell/screencontroller.h"
#include "store/backgroundjob.h"

#include <QVariantList>

// The statistics screen: the collection's figures and its charts. The aggregates run on a
// worker thread on a connection of their own, so the screen opens at once; they run again
// each time the screen comes back (a list it opened may have changed the collection).
// Tapping a bar of an artist or label chart opens that artist's or label's list; a decade
// shows its years, and a year opens the year's list.
class StatisticsViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool loading READ loading NOTIFY loadingChanged)
    // [{title, text}]: records, copies, total cost, total value, the gain or loss, and the
    // records on loan.
    Q_PROPERTY(QVariantList figures READ figures NOTIFY statisticsChanged)
    // One entry per chart: {name, title, look ("columns", "bars", "pie", "line"), currency,
    // tappable, canGoBack, labels, values}; a line chart has points [{x: ms, y}] instead.
    Q_PROPERTY(QVariantList charts READ charts NOTIFY statisticsChanged)

public:
    explicit StatisticsViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] bool loading() const { return m_job.running(); }
    [[nodiscard]] QVariantList figures() const;
    [[nodiscard]] QVariantList charts() const;
    [[nodiscard]] const Statistics &statistics() const { return m_statistics; }
    // The running aggregates, for tests and the benchmark to wait on.
    [[nodiscard]] BackgroundJob &job() { return m_job; }

    void viewWillAppear() override;
    // A bar (or slice) of a chart was tapped.
    Q_INVOKABLE void barTapped(const QString &chart, int index);
    // Back from a decade's years to every decade.
    Q_INVOKABLE void showAllDecades();

signals:
    void loadingChanged();
    void statisticsChanged();

protected:
    void viewDidLoad() override;

private:
    // What the store had seen when figures were read: the same again means nothing changed.
    struct StoreState
    {
        QString file;
        qint64 writes = -1;
        qint64 othersChanges = -1;
        bool operator==(const StoreState &) const = default;
    };
    struct Shown
    {
        StoreState state;
        Statistics statistics;
    };
    // The figures last read, with the state they were read in; one for the app.
    static Shown &lastShown();

    void load();
    void open(const QString &screen);

    Statistics m_statistics;
    Statistics m_computed; // written by the worker, taken when it has finished
    StoreState m_computedFor;
    QString m_decade;      // the decade whose years are shown, "" for every decade
    bool m_appeared = false;
    // Last, so that it is destroyed first: its destructor waits for the worker writing m_computed.
    BackgroundJob m_job;
};
