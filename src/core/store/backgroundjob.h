#pragma once

#include "store/result.h"

#include <QFutureWatcher>
#include <QObject>
#include <QTimer>

#include <atomic>
#include <functional>

// Runs one long piece of work on a worker thread while the window keeps painting: the work
// reports progress and hears a cancel through the callback it is given; the screen reads
// `progress` and `progressText` ("12,400 of 32,767") and gets finished() on its own thread.
//
// The work must not touch the app's store connection: it opens connections of its own.
class BackgroundJob : public QObject
{
    Q_OBJECT

public:
    // Called with the work done and the work in all; returning false means cancelled.
    using Progress = std::function<bool(qint64 done, qint64 total)>;
    using Work = std::function<Result<void>(const Progress &)>;

    explicit BackgroundJob(QObject *parent = nullptr);
    ~BackgroundJob() override;

    // Starts the work unless a job runs already; false when one does. Work whose progress
    // counts no items a person would count (pages, shares) is shown as a percentage.
    bool start(Work work, bool countsItems = true);
    void cancel() { m_cancelled = true; }
    [[nodiscard]] bool running() const { return m_running; }
    [[nodiscard]] bool cancelled() const { return m_cancelled; }
    [[nodiscard]] double progress() const;
    // "done of total" with the locale's grouping (or "45%"), "" before the first report.
    [[nodiscard]] QString progressText() const;
    // Blocks until the running work has ended (tests, and leaving a screen).
    void waitForFinished();

signals:
    void progressChanged();
    void finished(const Result<void> &result);

private:
    QFutureWatcher<Result<void>> m_watcher;
    QTimer m_poll;
    std::atomic<qint64> m_done{0};
    std::atomic<qint64> m_total{0};
    std::atomic<bool> m_cancelled{false};
    bool m_running = false;
    bool m_countsItems = true;
};
