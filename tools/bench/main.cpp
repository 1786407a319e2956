// The benchmark: times the heavy paths at 1,000, 10,000 and 32,767 records against the store's
// own floor, and writes results.json.
#include "appdelegate.h"
#include "bench.h"
#include "floors.h"
#include "recordingplatformservices.h"
#include "samplecollection.h"

#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {
constexpr int kRuns = 5;

struct Collection
{
    QTemporaryDir dir;
    std::unique_ptr<AppDelegate> app;
};

std::unique_ptr<Collection> makeCollection(int records)
{
    auto c = std::make_unique<Collection>();
    auto app = AppDelegate::create(c->dir.path(), true, std::make_unique<RecordingPlatformServices>());
    if (!app)
        return nullptr;
    c->app = std::move(app).value();
    SampleOptions options;
    options.records = records;
    options.tracksPerRecord = 20;
    if (!addSampleCollection(c->app->persistentContainer(), options))
        return nullptr;
    return c;
}

const QString kListColumns = u"rowid, id, name, artist, releaseDate, recordLabel, producer, quantity, albumDuration, "
                             "vinylCondition, coverCondition, recordSpeed, doubleAlbum, cost, value, notes, "
                             "frontImagePath, backImagePath"_s;

void measure(BenchReport &report, int records)
{
    QElapsedTimer timer;
    timer.start();
    auto c = makeCollection(records);
    if (!c) {
        std::fprintf(stderr, "bench: could not make a collection of %d records\n", records);
        return;
    }
    std::fprintf(stderr, "made %d records in %.1f s\n", records, timer.elapsed() / 1000.0);
    Store &store = c->app->persistentContainer();
    const bool ceiling = records == 32767;
    auto target = [&](double ms) { return ceiling ? std::optional<double>(ms) : std::nullopt; };

    const double fetchFloor = Floors::select(store.filePath(), u"SELECT "_s + kListColumns + u" FROM Vinyl ORDER BY name DESC"_s, kRuns);
    report.add({u"store fetch of the whole collection by name"_s, records,
                medianMs(kRuns, [&] { (void)store.fetchVinyl(FetchRequest().sortedBy(u"name"_s, false)); }),
                fetchFloor, std::nullopt, ceiling ? std::optional<double>(2) : std::nullopt});
    Q_UNUSED(target);
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const QString outDir = QGuiApplication::arguments().value(1, u"build/bench"_s);
    QDir().mkpath(outDir);

    BenchReport report;
    report.print();
    for (int records : {1000, 10000, 32767})
        measure(report, records);
    const QString json = QDir(outDir).filePath(u"results.json"_s);
    if (!report.writeJson(json, peakRssMb())) {
        std::fprintf(stderr, "bench: cannot write %s\n", qPrintable(json));
        return 1;
    }
    std::printf("peak resident memory: %.0f MB\nresults: %s\n", peakRssMb(), qPrintable(json));
    return 0;
}
