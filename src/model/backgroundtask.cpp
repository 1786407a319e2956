#include "backgroundtask.h"

#include <QLocale>
#include <QThread>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
// Often enough for a moving bar, rarely enough to cost the window nothing.
constexpr int kTickMilliseconds = 100;
} // namespace

struct BackgroundTask::Outcome
{
    Result<void> result;
};

BackgroundTask::BackgroundTask(QObject *parent) : QObject(parent)
{
    m_ticker.setInterval(kTickMilliseconds);
    connect(&m_ticker, &QTimer::timeout, this, &BackgroundTask::progressChanged);
}

BackgroundTask::~BackgroundTask()
{
    stop();
}

bool BackgroundTask::start(Work work, Done done)
{
    if (m_thread)
        return false;
    m_progress = std::make_shared<TaskProgress>();
    m_outcome = std::make_shared<Outcome>();
    m_done = std::move(done);
    m_thread = QThread::create([work = std::move(work), progress = m_progress, outcome = m_outcome] {
        outcome->result = work(*progress);
    });
    const quint64 generation = ++m_generation;
    connect(m_thread, &QThread::finished, this, [this, generation] {
        if (generation == m_generation)
            finish(true);
    });
    m_thread->start();
    m_ticker.start();
    emit progressChanged();
    return true;
}

void BackgroundTask::cancel()
{
    if (m_thread && m_progress)
        m_progress->cancel();
}

void BackgroundTask::stop()
{
    if (!m_thread)
        return;
    m_progress->cancel();
    finish(false);
}

void BackgroundTask::finish(bool report)
{
    if (!m_thread)
        return;
    m_ticker.stop();
    m_thread->wait();
    delete m_thread;
    m_thread = nullptr;
    const bool cancelled = m_progress->cancelled();
    const Result<void> result = m_outcome->result;
    Done done = std::move(m_done);
    m_done = {};
    if (!report)
        return;
    emit progressChanged();
    if (done)
        done(result, cancelled);
}

double BackgroundTask::fraction() const
{
    const qint64 all = total();
    return all > 0 ? std::clamp(double(done()) / double(all), 0.0, 1.0) : 0.0;
}

QString BackgroundTask::countText() const
{
    return countText(done(), total());
}

QString BackgroundTask::countText(qint64 done, qint64 total)
{
    const QLocale locale;
    return u"%1 of %2"_s.arg(locale.toString(done), locale.toString(total));
}
