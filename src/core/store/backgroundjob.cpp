#include "store/backgroundjob.h"

#include <QCoreApplication>
#include <QLocale>
#include <QtConcurrent/QtConcurrentRun>

using namespace Qt::StringLiterals;

BackgroundJob::BackgroundJob(QObject *parent) : QObject(parent)
{
    // The worker only stores numbers; the screen hears of them a few times a second.
    m_poll.setInterval(100);
    connect(&m_poll, &QTimer::timeout, this, &BackgroundJob::progressChanged);
    connect(&m_watcher, &QFutureWatcher<Result<void>>::finished, this, [this] {
        m_poll.stop();
        m_running = false;
        const Result<void> result = m_watcher.future().result();
        emit progressChanged();
        emit finished(result);
    });
}

BackgroundJob::~BackgroundJob()
{
    cancel();
    m_watcher.disconnect();
    m_watcher.waitForFinished();
}

bool BackgroundJob::start(Work work, bool countsItems)
{
    if (m_running)
        return false;
    m_running = true;
    m_countsItems = countsItems;
    m_cancelled = false;
    m_done = 0;
    m_total = 0;
    m_watcher.setFuture(QtConcurrent::run([this, work = std::move(work)]() -> Result<void> {
        return work([this](qint64 done, qint64 total) {
            m_done = done;
            m_total = total;
            return !m_cancelled.load();
        });
    }));
    m_poll.start();
    emit progressChanged();
    return true;
}

double BackgroundJob::progress() const
{
    const qint64 total = m_total;
    return total > 0 ? std::clamp(double(m_done) / double(total), 0.0, 1.0) : 0.0;
}

QString BackgroundJob::progressText() const
{
    const qint64 total = m_total;
    if (total <= 0)
        return {};
    const QLocale locale;
    if (!m_countsItems)
        return locale.toString(qRound(100 * progress())) + locale.percent();
    return u"%1 of %2"_s.arg(locale.toString(qint64(m_done)), locale.toString(total));
}

void BackgroundJob::waitForFinished()
{
    if (!m_running)
        return;
    m_watcher.waitForFinished();
    QCoreApplication::sendPostedEvents(&m_watcher);
}
