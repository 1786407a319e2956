// The benchmark: times the heavy paths at 1,000, 10,000 and 32,767 records (the lists also at
// 327,670) through the real
// logic and controllers, each against the same work done by bare SQLite or raw file I/O, and
// writes results.json. Run with no arguments (or an output folder) for the whole table; the
// "--resident DIR" form opens a collection's screens in a fresh process and prints its peak
// resident memory, so the figure is not raised by the benchmark's own export and import; the
// "--complete-report DIR" form writes the complete printed report the same way, and the
// "--import FILE [--preview]" form imports an exchange file into an empty store (previewed
// first, as the import screen does).
#include "bench.h"
#include "benchoperations.h"
#include "shell/appdelegate.h"

#include <QDir>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QProcess>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// Peak resident memory of a fresh process that opens the collection in `dataDir` with every
// list screen loaded.
std::optional<double> residentWithCollectionOpen(const QString &dataDir)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {u"--resident"_s, dataDir});
    if (!child.waitForFinished(120000) || child.exitCode() != 0)
        return std::nullopt;
    bool ok = false;
    const double mb = QString::fromUtf8(child.readAllStandardOutput()).trimmed().toDouble(&ok);
    return ok ? std::optional<double>(mb) : std::nullopt;
}

int runResident(const QString &dataDir)
{
    if (!openEveryScreen(dataDir))
        return 1;
    std::printf("%.1f\n", peakRssMb());
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    // The console lines of export and import would drown the table.
    QLoggingCategory::setFilterRules(u"platterbox.info=false"_s);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.value(1) == u"--resident"_s)
        return runResident(arguments.value(2));
    if (arguments.value(1) == u"--complete-report"_s)
        return runCompleteReport(arguments.value(2));
    if (arguments.value(1) == u"--import"_s)
        return runImport(arguments.value(2), arguments.value(3) == u"--preview"_s);

    const QString outDir = arguments.value(1, u"build/bench"_s);
    QDir().mkpath(outDir);

    BenchReport report;
    report.print();
    // PLATTERBOX_BENCH_ONLY="crafted" imports the crafted files alone, with no collection.
    const QStringList only = qEnvironmentVariable("PLATTERBOX_BENCH_ONLY").split(u',', Qt::SkipEmptyParts);
    if (only.isEmpty() || only.contains(u"crafted"_s))
        measureCraftedFiles(report, outDir);
    if (only == QStringList{u"crafted"_s})
        return report.writeJson(QDir(outDir).filePath(u"results.json"_s), peakRssMb()) ? 0 : 1;
    std::optional<double> resident;
    // PLATTERBOX_BENCH_SIZES="1000,10000" runs a quicker subset.
    QList<int> sizes{1000, 10000, 32767, 327670};
    if (const QString chosen = qEnvironmentVariable("PLATTERBOX_BENCH_SIZES"); !chosen.isEmpty()) {
        sizes.clear();
        for (const QString &size : chosen.split(u','))
            sizes.append(size.toInt());
    }
    for (int records : sizes) {
        auto collection = BenchCollection::make(records);
        if (!collection) {
            std::fprintf(stderr, "bench: could not make a collection of %d records\n", records);
            return 1;
        }
        measureAll(report, *collection);
        if (records == sizes.last()) {
            collection->close();
            resident = residentWithCollectionOpen(collection->dataDir());
        }
    }
    if (!resident) {
        std::fprintf(stderr, "bench: the resident-memory run failed\n");
        return 1;
    }
    const QString json = QDir(outDir).filePath(u"results.json"_s);
    if (!report.writeJson(json, *resident)) {
        std::fprintf(stderr, "bench: cannot write %s\n", qPrintable(json));
        return 1;
    }
    std::printf("peak resident memory with the full collection (%d records) open: %.0f MB (target %d MB)\n"
                "peak resident memory of the benchmark itself (incl. export and import): %.0f MB\n"
                "results: %s\n",
                sizes.last(), *resident, sizes.last() > 32767 ? 150 : 300, peakRssMb(), qPrintable(json));
    return 0;
}
