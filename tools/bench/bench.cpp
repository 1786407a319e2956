#include "bench.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>

double medianMs(int runs, const std::function<void()> &work, const std::function<void()> &prepare)
{
    QList<double> times;
    for (int i = 0; i < runs; ++i) {
        if (prepare)
            prepare();
        QElapsedTimer timer;
        timer.start();
        work();
        times.append(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times.isEmpty() ? 0 : times[times.size() / 2];
}

void BenchReport::add(Measurement m)
{
    const auto ratio = m.floorMs && *m.floorMs > 0 ? QString::asprintf("%.2f", m.ms / *m.floorMs) : QStringLiteral("-");
    QString peak;
    if (m.peakRssMb)
        peak = QString::asprintf(" peak %.0f MB", *m.peakRssMb)
               + (m.targetPeakRssMb ? QString::asprintf(" (target %.0f)", *m.targetPeakRssMb) : QString());
    std::printf("%-44s %6d %10.2f %10s %7s %8s%s\n", qPrintable(m.name), m.records, m.ms,
                m.floorMs ? qPrintable(QString::asprintf("%.2f", *m.floorMs)) : "-", qPrintable(ratio),
                m.targetMs ? qPrintable(QString::asprintf("%.0f", *m.targetMs))
                           : (m.targetRatio ? qPrintable(QString::asprintf("x%g", *m.targetRatio)) : "-"),
                qPrintable(peak));
    std::fflush(stdout);
    m_measurements.append(std::move(m));
}

void BenchReport::print() const
{
    std::printf("%-44s %6s %10s %10s %7s %8s\n", "operation", "records", "ms", "floor ms", "ratio", "target");
}

bool BenchReport::writeJson(const QString &path, double peakRss) const
{
    QJsonArray operations;
    auto orNull = [](const std::optional<double> &v) { return v ? QJsonValue(*v) : QJsonValue(QJsonValue::Null); };
    for (const Measurement &m : m_measurements) {
        std::optional<double> ratio;
        if (m.floorMs && *m.floorMs > 0)
            ratio = m.ms / *m.floorMs;
        operations.append(QJsonObject{{QStringLiteral("name"), m.name},
                                      {QStringLiteral("records"), m.records},
                                      {QStringLiteral("ms"), m.ms},
                                      {QStringLiteral("floor_ms"), orNull(m.floorMs)},
                                      {QStringLiteral("ratio"), orNull(ratio)},
                                      {QStringLiteral("target_ms"), orNull(m.targetMs)},
                                      {QStringLiteral("target_ratio"), orNull(m.targetRatio)},
                                      {QStringLiteral("peak_rss_mb"), orNull(m.peakRssMb)},
                                      {QStringLiteral("target_peak_rss_mb"), orNull(m.targetPeakRssMb)}});
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const QJsonObject root{{QStringLiteral("peak_rss_mb"), peakRss}, {QStringLiteral("operations"), operations}};
    return file.write(QJsonDocument(root).toJson()) > 0;
}

double peakRssMb()
{
    // VmHWM, not getrusage: a child's ru_maxrss starts from its parent's peak at fork.
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').value(0).toDouble() / 1024.0; // the value is in kB
    }
    return 0;
}
