#pragma once

#include <QJsonArray>
#include <QString>

#include <functional>
#include <optional>

// One line of the benchmark table and of results.json.
struct Measurement
{
    QString name;
    int records = 0;
    double ms = 0;
    std::optional<double> floorMs;
    std::optional<double> targetMs;
    std::optional<double> targetRatio;
    // Peak resident memory of an operation measured in a process of its own.
    std::optional<double> peakRssMb;
    std::optional<double> targetPeakRssMb;
};

// Runs `work` `runs` times (after `prepare` each time, untimed) and returns the median in ms.
double medianMs(int runs, const std::function<void()> &work, const std::function<void()> &prepare = {});

// Collects measurements, prints the table and writes results.json.
class BenchReport
{
public:
    void add(Measurement m);
    void print() const;
    bool writeJson(const QString &path, double peakRssMb) const;

private:
    QList<Measurement> m_measurements;
};

// Peak resident memory of this process so far, in MB.
double peakRssMb();
