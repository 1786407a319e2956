#pragma once

#include "result.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <atomic>
#include <functional>
#include <memory>

class QThread;

// How far a piece of work off the UI thread has come, and whether the user asked it to stop.
// The worker writes it; the UI thread reads it.
class TaskProgress
{
public:
    void setTotal(qint64 total) { m_total = total; }
    void setDone(qint64 done) { m_done = done; }
    void advance() { ++m_done; }
    [[nodiscard]] qint64 done() const { return m_done; }
    [[nodiscard]] qint64 total() const { return m_total; }

    void cancel() { m_cancelled = true; }
    [[nodiscard]] bool cancelled() const { return m_cancelled; }

private:
    std::atomic<qint64> m_done{0};
    std::atomic<qint64> m_total{0};
    std::atomic<bool> m_cancelled{false};
};

// Runs one piece of work at a time on a thread of its own, for a controller that shows a
// progress bar with a count and a Cancel button. The work polls progress.cancelled() and
// stops soon after; what it returns reaches `done` on the owner's thread. Destroying the
// task cancels the work and waits for it.
class BackgroundTask : public QObject
{
    Q_OBJECT

public:
    using Work = std::function<Result<void>(TaskProgress &progress)>;
    // result is the work's, unless it was cancelled.
    using Done = std::function<void(const Result<void> &result, bool cancelled)>;

    explicit BackgroundTask(QObject *parent = nullptr);
    ~BackgroundTask() override;

    // Starts the work unless some is running; false when it could not start.
    bool start(Work work, Done done);
    void cancel();
    // Cancels the running work (if any) and waits until it has stopped, without reporting.
    void stop();

    [[nodiscard]] bool running() const { return m_thread != nullptr; }
    [[nodiscard]] qint64 done() const { return m_progress ? m_progress->done() : 0; }
    [[nodiscard]] qint64 total() const { return m_progress ? m_progress->total() : 0; }
    // 0 to 1.
    [[nodiscard]] double fraction() const;
    // "12,400 of 32,767" in the current locale.
    [[nodiscard]] QString countText() const;
    [[nodiscard]] static QString countText(qint64 done, qint64 total);

signals:
    // While running, a few times a second; once more when it has finished.
    void progressChanged();

private:
    // Joins the finished thread; `report` hands the outcome to the owner.
    void finish(bool report);

    struct Outcome;
    std::shared_ptr<TaskProgress> m_progress;
    std::shared_ptr<Outcome> m_outcome;
    QThread *m_thread = nullptr;
    quint64 m_generation = 0;
    Done m_done;
    QTimer m_ticker;
};
