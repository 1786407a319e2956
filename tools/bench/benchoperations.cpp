#include "benchoperations.h"

#include "bench.h"
#include "browse/breakdowntableviewcontroller.h"
#include "browse/grouptableviewcontroller.h"
#include "browse/listvinyltableviewcontroller.h"
#include "browse/recordcardmodel.h"
#include "cli/cli.h"
#include "collection/statistics.h"
#include "exchange/csv.h"
#include "exchange/exchangeformat.h"
#include "exchange/exchangereader.h"
#include "exchange/exchangewriter.h"
#include "exchange/exportviewcontroller.h"
#include "exchange/importfile.h"
#include "exchange/importmerge.h"
#include "exchange/importviewcontroller.h"
#include "floors.h"
#include "reports/coverpictures.h"
#include "reports/filteredlistpdf.h"
#include "reports/printvinylviewcontroller.h"
#include "reports/reportbuilder.h"
#include "reports/reportpages.h"
#include "reports/reportpdf.h"
#include "shell/appdelegate.h"
#include "shell/appstate.h"
#include "shell/recordingplatformservices.h"
#include "stats/statisticsviewcontroller.h"
#include "store/samplecollection.h"
#include "store/store.h"
#include "store/textfile.h"
#include "valuation/valuationviewcontroller.h"

#include <QAbstractItemModel>
#include <QDir>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRuns = 5;
// Rows a phone shows at once.
constexpr int kScreenful = 12;

// What the collection list reads of each record.
const QString kListColumns = u"rowid, "_s + Store::kCardAttributes.join(u", "_s);
// What the other lists read (every attribute but the covers).
const QString kRecordColumns = u"rowid, id, name, artist, releaseDate, recordLabel, producer, quantity, albumDuration, "
                               "vinylCondition, coverCondition, recordSpeed, doubleAlbum, cost, value, notes, "
                               "frontImagePath, backImagePath, barcode, musicBrainzReleaseId"_s;

// Reads every role of the first screenful, as the list view does when it first paints.
void readFirstScreenful(const QAbstractItemModel &model)
{
    const QList<int> roles = model.roleNames().keys();
    volatile qsizetype sink = 0;
    for (int row = 0; row < std::min(kScreenful, model.rowCount()); ++row)
        for (int role : roles)
            sink = sink + model.data(model.index(row, 0), role).toString().size();
}

// The collection's ceiling, and ten times it: the size lists must still open in two frames.
constexpr int kCeiling = 32767;
constexpr int kTenfold = 327670;
// A frame of a 60 Hz screen: what reaching a list's first screenful may take at the ceiling.
constexpr double kFrameMs = 16;

void add(BenchReport &report, const BenchCollection &c, const QString &name, double ms, std::optional<double> floorMs,
         std::optional<double> targetMs, std::optional<double> targetRatio)
{
    // Targets are set for the collection's ceiling only.
    const bool ceiling = c.records() == kCeiling;
    report.add({name, c.records(), ms, floorMs, ceiling ? targetMs : std::nullopt, ceiling ? targetRatio : std::nullopt,
                std::nullopt, std::nullopt});
}

// A list's first screenful: a frame at the ceiling, two at ten times it.
void addFrame(BenchReport &report, const BenchCollection &c, const QString &name, double ms, std::optional<double> floorMs)
{
    const std::optional<double> target = c.records() == kCeiling  ? std::optional<double>(kFrameMs)
                                         : c.records() == kTenfold ? std::optional<double>(2 * kFrameMs)
                                                                   : std::nullopt;
    report.add({name, c.records(), ms, floorMs, target, std::nullopt, std::nullopt, std::nullopt});
}

void measureCollectionList(BenchReport &report, BenchCollection &c)
{
    const QString file = c.store().filePath();
    // Opening the store, loading the list (its first display is descending by name) and
    // painting the first screenful.
    const double open = medianMs(
        kRuns,
        [&] {
            c.open();
            ListVinylTableViewController list(&c.app());
            readFirstScreenful(*list.model());
        },
        [&] { c.close(); });
    if (!c.isOpen())
        c.open();
    c.close();
    // The floors read the same screenful by the bare C API, from the same index.
    const auto screenful = [](const QString &order) -> QString {
        return u"SELECT "_s + kListColumns + u" FROM Vinyl ORDER BY "_s + order + u", rowid LIMIT %1"_s.arg(kScreenful);
    };
    const double openFloor = Floors::select(file, screenful(u"name DESC, nameFolded DESC"_s), kRuns, Floors::Open::Timed);
    c.open();
    addFrame(report, c, u"open to the first screenful of the list"_s, open, openFloor);

    ListVinylTableViewController list(&c.app());
    const QList<std::pair<int, QString>> sorts{
        {1, u"name"_s}, {2, u"releaseDate"_s}, {3, u"recordLabel"_s}, {4, u"artist"_s}};
    for (const auto &[option, column] : sorts) {
        const double ms = medianMs(kRuns, [&] {
            list.sortOptionSelected(option);
            readFirstScreenful(*list.model());
        });
        const QString folded = Store::kSearchedAttributes.contains(column) ? u", "_s + Store::foldedColumn(column) : QString();
        addFrame(report, c, u"list Refresh by "_s + column, ms, Floors::select(file, screenful(column + folded), kRuns));
    }

    // A click on the table's Value header: by value, each click the other way.
    const double byValue = medianMs(kRuns, [&] {
        list.columnHeaderClicked(6);
        readFirstScreenful(*list.model());
    });
    addFrame(report, c, u"change the sort (table, by value)"_s, byValue, Floors::select(file, screenful(u"value"_s), kRuns));

    // Jumping to the end of a list just opened: its last screenful.
    const double last = medianMs(
        kRuns,
        [&] {
            const QAbstractItemModel &model = *list.model();
            volatile qsizetype sink = 0;
            for (int row = std::max(0, model.rowCount() - kScreenful); row < model.rowCount(); ++row)
                sink = sink + model.data(model.index(row, 0), RecordCardModel::NameLabelRole).toString().size();
        },
        [&] { list.sortOptionSelected(1); });
    addFrame(report, c, u"jump to the last row of the list"_s, last, std::nullopt);

    list.sortOptionSelected(1);
    const double keystroke = medianMs(
        kRuns,
        [&] {
            list.updateSearchResults(u"n"_s);
            readFirstScreenful(*list.model());
        },
        [&] { list.updateSearchResults(QString()); });
    const double keystrokeFloor =
        Floors::select(file, u"SELECT COUNT(*) FROM Vinyl WHERE instr(nameFolded, 'n') > 0"_s, kRuns);
    addFrame(report, c, u"search keystroke on the full list"_s, keystroke, keystrokeFloor);
}

template<typename Controller>
void measureGroupList(BenchReport &report, BenchCollection &c, const QString &name, const QStringList &floorSql)
{
    const double ms = medianMs(kRuns, [&] {
        Controller controller(&c.app());
        readFirstScreenful(*controller.model());
    });
    double floorMs = 0;
    for (const QString &sql : floorSql)
        floorMs += Floors::select(c.store().filePath(), sql, kRuns);
    addFrame(report, c, name, ms, floorMs);
}

// The floor of a group list whose names the store tallies: its first record in the list's
// order, then every name with its count, from the tallies.
QStringList talliedGroupFloor(const QString &attribute, const QString &orderBy)
{
    return {u"SELECT %1 FROM Vinyl WHERE %1 IS NOT NULL ORDER BY %2, rowid LIMIT 1"_s.arg(attribute, orderBy),
            u"SELECT name, records FROM Tallies WHERE kind = '%1' AND name > '' ORDER BY name"_s.arg(attribute)};
}

void measureGroupLists(BenchReport &report, BenchCollection &c)
{
    measureGroupList<ArtistGroupTableViewController>(report, c, u"artist group list load and counts"_s,
                                                     talliedGroupFloor(u"artist"_s, u"artist"_s));
    measureGroupList<LabelGroupTableViewController>(report, c, u"label group list load and counts"_s,
                                                    talliedGroupFloor(u"recordLabel"_s, u"recordLabel"_s));
    measureGroupList<ProducerGroupTableViewController>(report, c, u"producer group list load and counts"_s,
                                                       talliedGroupFloor(u"producer"_s, u"releaseDate"_s));
    measureGroupList<YearGroupTableViewController>(
        report, c, u"year group list load and counts"_s,
        {u"SELECT releaseDate FROM Vinyl WHERE releaseDate IS NOT NULL ORDER BY releaseDate"_s});
}

// The artist with the most records.
std::optional<QString> largestArtist(Store &store)
{
    QSqlQuery query(store.database());
    if (!query.exec(u"SELECT artist FROM Vinyl WHERE artist IS NOT NULL GROUP BY artist ORDER BY COUNT(*) DESC LIMIT 1"_s)
        || !query.next())
        return std::nullopt;
    return query.value(0).toString();
}

void measureBreakdown(BenchReport &report, BenchCollection &c)
{
    const auto artist = largestArtist(c.store());
    if (!artist)
        return;
    auto records = c.store().fetchVinyl(FetchRequest(Entity::Vinyl).where(Predicate::equal(u"artist"_s, *artist)).limitedTo(1));
    if (!records || records->isEmpty())
        return;
    c.app().state()->setCurrentRecord(records->first());
    volatile qsizetype sink = 0;
    const double ms = medianMs(kRuns, [&] {
        ArtistBreakdownTableViewController breakdown(&c.app());
        readFirstScreenful(*breakdown.model());
        sink = sink + breakdown.footerText().size();
    });
    QString quoted = *artist;
    quoted.replace(u'\'', u"''"_s);
    const double floorMs = Floors::select(c.store().filePath(),
                                          u"SELECT "_s + kRecordColumns + u" FROM Vinyl WHERE artist = '"_s + quoted
                                              + u"' ORDER BY name, releaseDate, recordLabel, value"_s,
                                          kRuns);
    addFrame(report, c, u"largest artist breakdown and footer"_s, ms, floorMs);
}

// With images, the covers' exchange encodings: the bytes the file carries, kept in the row
// after the covers themselves.
QString exportFloorSql(bool images)
{
    return u"SELECT "_s + kRecordColumns + (images ? u", frontImageExchange, backImageExchange"_s : QString())
           + u" FROM Vinyl ORDER BY name, artist, releaseDate"_s;
}

const QString kTrackFloorSql = u"SELECT vinylID, trackNumber, song, writtenBy, duration FROM Tracks ORDER BY vinylID, trackNumber"_s;

// Builds the exchange text and saves it, as the export screen's "Save To Files" does.
QByteArray measureExport(BenchReport &report, BenchCollection &c, bool images, const QString &file)
{
    QByteArray text;
    const auto exportOnce = [&] {
        auto built = ExchangeWriter::build(c.store(), images);
        text = built ? std::move(built).value() : QByteArray();
        QFile out(file);
        if (out.open(QIODevice::WriteOnly))
            out.write(text);
    };
    if (images) {
        // The first export after the covers were stored makes their exchange encodings; later
        // ones copy them.
        QElapsedTimer first;
        first.start();
        exportOnce();
        add(report, c, u"export with images, encoding every cover"_s, double(first.nsecsElapsed()) / 1e6, std::nullopt,
            std::nullopt, std::nullopt);
    }
    const double ms = medianMs(kRuns, exportOnce);
    const double floorMs = Floors::select(c.store().filePath(), exportFloorSql(images), kRuns)
                           + Floors::select(c.store().filePath(), kTrackFloorSql, kRuns)
                           + Floors::writeFile(file + u".floor"_s, text, kRuns);
    QFile::remove(file + u".floor"_s);
    add(report, c, images ? u"export with images"_s : u"export without images"_s, ms, floorMs, std::nullopt,
        images ? 1.5 : 3);
    return text;
}

// Reads the exchange file and merges it, as the import screen does.
bool importFile(Store &store, const QString &file)
{
    auto text = TextFile::readUtf8(file);
    return text && ExchangeReader::importAll(store, std::move(*text)).ok();
}

void measureImport(BenchReport &report, BenchCollection &c, const QString &file, qint64 coverBytes)
{
    QTemporaryDir scratch;
    std::unique_ptr<AppDelegate> target;
    int round = 0;
    bool ok = true;
    auto freshStore = [&] {
        target.reset();
        const QString dir = QDir(scratch.path()).filePath(QString::number(round++));
        auto app = AppDelegate::create(dir, true, std::make_unique<RecordingPlatformServices>());
        target = app ? std::move(app).value() : nullptr;
    };
    const double empty = medianMs(kRuns, [&] { ok = ok && target && importFile(target->persistentContainer(), file); },
                                  freshStore);
    const double update = medianMs(kRuns, [&] { ok = ok && importFile(target->persistentContainer(), file); });
    const QString importedStore = target->persistentContainer().filePath();
    target.reset();
    if (!ok)
        std::fprintf(stderr, "bench: an import failed\n");

    const QByteArray cover(coverBytes, 'x');
    const double readFloor = Floors::readFile(file, kRuns);
    const double insertFloor = Floors::insert(scratch.path(), c.store().filePath(), cover, kRuns) + readFloor;
    const double updateFloor = Floors::update(importedStore, c.store().filePath(), cover, kRuns) + readFloor;
    add(report, c, u"import into an empty store"_s, empty, insertFloor, std::nullopt, 1.3);
    add(report, c, u"import again into the full store"_s, update, updateFloor, std::nullopt, 1.3);
}

// Runs this benchmark again with `arguments` (one operation) and reads back the "<ms> <peak MB>"
// it prints: the peak resident memory is then that operation's own.
std::optional<std::pair<double, double>> inOwnProcess(const QStringList &arguments)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), arguments);
    const bool finished = child.waitForFinished(30 * 60 * 1000);
    const QStringList figures = QString::fromUtf8(child.readAllStandardOutput()).split(u' ', Qt::SkipEmptyParts);
    bool msOk = false, mbOk = false;
    const double ms = figures.value(0).toDouble(&msOk);
    const double mb = figures.value(1).toDouble(&mbOk);
    if (!finished || child.exitCode() != 0 || !msOk || !mbOk) {
        std::fprintf(stderr, "bench: %s failed: %s\n", qPrintable(arguments.value(0)),
                     child.readAllStandardError().constData());
        return std::nullopt;
    }
    return std::pair{ms, mb};
}

// The import of the exchange file into an empty store, in a process of its own: it must hold
// little beyond the file.
void measureImportMemory(BenchReport &report, BenchCollection &c, const QString &file)
{
    const auto figures = inOwnProcess({u"--import"_s, file});
    if (!figures)
        return;
    const double fileMb = double(QFileInfo(file).size()) / (1024.0 * 1024.0);
    const bool ceiling = c.records() == 32767;
    report.add({u"import into an empty store, own process"_s, c.records(), figures->first, std::nullopt, std::nullopt,
                std::nullopt, figures->second, ceiling ? std::optional<double>(fileMb + 150) : std::nullopt});
}

// Average stored size of one cover, for floors that write covers.
qint64 averageCoverBytes(Store &store)
{
    QSqlQuery query(store.database());
    if (!query.exec(u"SELECT AVG(LENGTH(frontImage) + LENGTH(backImage)) / 2 FROM Vinyl"_s) || !query.next())
        return 0;
    return query.value(0).toLongLong();
}

// A Discogs collection export of the collection's records, as a collector who keeps both has.
QByteArray discogsExportOf(Store &store)
{
    QByteArray csv = "Catalog#,Artist,Title,Label,Format,Rating,Released,release_id,CollectionFolder,Date Added,"
                     "Collection Media Condition,Collection Sleeve Condition,Collection Notes\r\n";
    int release = 0;
    for (const Vinyl &v : store.fetchVinyl(FetchRequest(Entity::Vinyl)).valueOr({})) {
        ++release;
        const QString released = v.releaseDate ? v.releaseDate->date().toString(Qt::ISODate) : u"0"_s;
        csv += Csv::line({u"CAT %1"_s.arg(release), text(v.artist), text(v.name), text(v.recordLabel), u"LP, Album"_s,
                          u"4"_s, released, QString::number(release), u"Uncategorized"_s, u"2020-01-01 10:00:00"_s,
                          u"Very Good Plus (VG+)"_s, u"Generic"_s, text(v.notes)})
                   .toUtf8();
    }
    return csv;
}

// A Discogs export of every record: read and previewed against the collection (every line an
// update), as the import screen does before its counts show; then imported into an empty store.
void measureDiscogsImport(BenchReport &report, BenchCollection &c)
{
    const QString file = QDir(c.dataDir()).filePath(u"discogs.csv"_s);
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(discogsExportOf(c.store())) < 0)
        std::fprintf(stderr, "bench: cannot write the Discogs export\n");
    out.close();
    const auto read = [&file] { return ImportFiles::read(TextFile::readUtf8(file).valueOr(QByteArray())); };
    bool ok = true;
    const double preview = medianMs(kRuns, [&] { ok = ok && ImportMerge::preview(c.store(), read()).ok(); });

    QTemporaryDir scratch;
    std::unique_ptr<AppDelegate> target;
    int round = 0;
    const auto freshStore = [&] {
        target.reset();
        auto app = AppDelegate::create(QDir(scratch.path()).filePath(QString::number(round++)), true,
                                       std::make_unique<RecordingPlatformServices>());
        target = app ? std::move(app).value() : nullptr;
    };
    const double apply = medianMs(
        kRuns, [&] { ok = ok && target && ImportMerge::apply(target->persistentContainer(), read()).ok(); }, freshStore);
    target.reset();
    if (!ok)
        std::fprintf(stderr, "bench: a Discogs preview or import failed\n");
    const double readFloor = Floors::readFile(file, kRuns);
    add(report, c, u"Discogs export: read and preview"_s, preview, readFloor, 300, std::nullopt);
    add(report, c, u"Discogs export: import into an empty store"_s, apply, readFloor, std::nullopt, std::nullopt);
    QFile::remove(file);
}

// The exchange file with and without covers, exported and imported again.
void measureExchangeFile(BenchReport &report, BenchCollection &c)
{
    const QString file = QDir(c.dataDir()).filePath(u"VinylCollection.csv"_s);
    measureExport(report, c, false, file);
    measureExport(report, c, true, file);
    measureImport(report, c, file, averageCoverBytes(c.store()));
    measureImportMemory(report, c, file);
    QFile::remove(file);
}

// The valuation screen opening: every record by name, the copies and their total value.
void measureValuation(BenchReport &report, BenchCollection &c)
{
    volatile qsizetype sink = 0;
    const double ms = medianMs(kRuns, [&] {
        ValuationViewController valuation(&c.app());
        readFirstScreenful(*valuation.model());
        sink = sink + valuation.quantityText().size() + valuation.totalValueText().size();
    });
    const double floorMs = Floors::select(
        c.store().filePath(),
        u"SELECT "_s + kListColumns + u" FROM Vinyl ORDER BY name, nameFolded, rowid LIMIT %1"_s.arg(kScreenful), kRuns);
    addFrame(report, c, u"valuation totals and first screenful"_s, ms, floorMs);
}

// The statistics screen opening: every figure and chart aggregated on its worker, then
// handed to the screen; the floor runs the same aggregates through the bare C API.
void measureStatistics(BenchReport &report, BenchCollection &c)
{
    volatile qsizetype sink = 0;
    // A value saved again before each run: the figures kept from the last showing no longer stand.
    auto first = c.store().fetchVinyl(FetchRequest(Entity::Vinyl).limitedTo(1));
    const auto changeTheStore = [&] {
        if (first && !first->isEmpty())
            (void)c.store().update(first->first());
    };
    const double ms = medianMs(
        kRuns,
        [&] {
            StatisticsViewController statistics(&c.app());
            statistics.job().waitForFinished();
            sink = sink + statistics.figures().size() + statistics.charts().size();
        },
        changeTheStore);
    double floorMs = 0;
    for (const QString &sql : StatisticsQueries::statements())
        floorMs += Floors::select(c.store().filePath(), sql, kRuns);
    add(report, c, u"statistics figures and charts"_s, ms, floorMs, 100, std::nullopt);
    // Shown again with nothing changed since.
    StatisticsViewController shown(&c.app());
    shown.job().waitForFinished();
    const double again = medianMs(kRuns, [&] {
        StatisticsViewController statistics(&c.app());
        statistics.job().waitForFinished();
        sink = sink + statistics.figures().size() + statistics.charts().size();
    });
    add(report, c, u"statistics shown again, nothing changed"_s, again, std::nullopt, kFrameMs, std::nullopt);
}

constexpr int kReportRecords = 1000;

// The first thousand records by name, as a long breakdown list or report would hold them.
QList<Vinyl> reportRecords(Store &store)
{
    auto records = store.fetchVinyl(FetchRequest(Entity::Vinyl).sortedBy(u"name"_s).limitedTo(kReportRecords));
    return records ? std::move(records).value() : QList<Vinyl>();
}

void measureReports(BenchReport &report, BenchCollection &c)
{
    if (c.records() < kReportRecords)
        return;
    const QString file = QDir(c.dataDir()).filePath(u"bench.pdf"_s);
    bool ok = true;
    const double filtered = medianMs(kRuns, [&] {
        ok = ok
             && FilteredListPdf::write({BreakdownKinds::Artist, reportRecords(c.store()), file, c.store().filePath()}, {})
                    .ok();
    });
    const double printed = medianMs(kRuns, [&] {
        auto content = ReportContent::printedReport(OriginScreens::List, reportRecords(c.store()));
        CoverReader covers(c.store().filePath());
        ok = ok && content && ReportPdf::write(*content, file, &covers).ok();
    });
    if (!ok)
        std::fprintf(stderr, "bench: a PDF document failed\n");

    // The floor reads the same records with their covers and writes a file of the document's size.
    QFile pdf(file);
    const QByteArray bytes = pdf.open(QIODevice::ReadOnly) ? pdf.readAll() : QByteArray();
    const double floorMs =
        Floors::select(c.store().filePath(),
                       u"SELECT "_s + kRecordColumns + u", frontImage, backImage FROM Vinyl ORDER BY name, rowid LIMIT %1"_s.arg(kReportRecords),
                       kRuns)
        + Floors::writeFile(file + u".floor"_s, bytes, kRuns);
    QFile::remove(file);
    QFile::remove(file + u".floor"_s);
    add(report, c, u"filtered-list PDF of 1,000 records"_s, filtered, floorMs, 3000, std::nullopt);
    add(report, c, u"printed report of 1,000 records"_s, printed, floorMs, 3000, std::nullopt);
}

// The printed-report screen opened on the complete list: the time until its first page is
// drawn, and until every page is laid out (off the UI thread, the window painting meanwhile).
void measureReportScreen(BenchReport &report, BenchCollection &c)
{
    c.app().state()->setOriginScreen(OriginScreens::List);
    double firstPage = 0;
    double allPages = 0;
    bool ok = true;
    QElapsedTimer timer;
    timer.start();
    {
        // The window's thread sleeps until an event comes, as its event loop does (with a time
        // limit, processEvents() returns at once when none is waiting, and would spin).
        PrintVinylViewController screen(&c.app());
        while (screen.pages()->rowCount() == 0 && screen.busy())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        ok = screen.report() && !screen.report()->render(0, 600).isNull();
        firstPage = double(timer.nsecsElapsed()) / 1e6;
        while (screen.busy())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        allPages = double(timer.nsecsElapsed()) / 1e6;
    }
    if (!ok)
        std::fprintf(stderr, "bench: the report screen failed\n");
    add(report, c, u"report screen: first page drawn"_s, firstPage, std::nullopt, 300, std::nullopt);
    add(report, c, u"report screen: every page laid out"_s, allPages, std::nullopt, 1000, std::nullopt);
}

// The complete printed report with covers, in a process of its own so its peak resident
// memory is its own: the report must not grow with the collection.
void measureCompleteReport(BenchReport &report, BenchCollection &c)
{
    const auto figures = inOwnProcess({u"--complete-report"_s, c.dataDir()});
    if (!figures)
        return;
    const bool ceiling = c.records() == 32767;
    report.add({u"complete printed report with covers"_s, c.records(), figures->first, std::nullopt,
                ceiling ? std::optional<double>(10000) : std::nullopt, std::nullopt, figures->second,
                ceiling ? std::optional<double>(150) : std::nullopt});
}

// The longest the event loop went without turning from `start` until `busy` ends: what the
// window would freeze for while the work runs on its worker.
double longestPauseMs(const std::function<void()> &start, const std::function<bool()> &busy)
{
    QElapsedTimer clock;
    clock.start();
    qint64 last = 0;
    qint64 longest = 0;
    const auto turned = [&] {
        const qint64 now = clock.nsecsElapsed();
        longest = std::max(longest, now - last);
        last = now;
    };
    QTimer tick;
    tick.setInterval(5);
    QObject::connect(&tick, &QTimer::timeout, turned);
    tick.start();
    QCoreApplication::processEvents();
    last = clock.nsecsElapsed();
    start();
    turned();
    while (busy()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        turned();
    }
    return double(longest) / 1e6;
}

void addPause(BenchReport &report, const BenchCollection &c, const QString &what, double ms)
{
    add(report, c, u"UI pause: "_s + what, ms, std::nullopt, 50, std::nullopt);
}

// The window keeps turning while the report is laid out, the exchange file is built and the
// file is imported: each runs on a worker, started from its screen.
void measureUiPauses(BenchReport &report, BenchCollection &c)
{
    c.app().state()->setOriginScreen(OriginScreens::List);
    {
        std::unique_ptr<PrintVinylViewController> screen;
        const double ms = longestPauseMs([&] { screen = std::make_unique<PrintVinylViewController>(&c.app()); },
                                         [&] { return screen && screen->busy(); });
        addPause(report, c, u"report laying out its pages"_s, ms);
    }
    const QString file = QDir(c.dataDir()).filePath(u"pauses.csv"_s);
    {
        ExportViewController screen(&c.app());
        const double ms = longestPauseMs([&] { screen.CreateUpdateFile(); }, [&] { return screen.building(); });
        addPause(report, c, u"export building the file"_s, ms);
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly) || out.write(screen.dataString()) < 0)
            std::fprintf(stderr, "bench: cannot write the exported file\n");
    }
    QTemporaryDir scratch;
    auto target = AppDelegate::create(scratch.path(), true, std::make_unique<RecordingPlatformServices>());
    if (target) {
        ImportViewController screen(target->get());
        const double reading = longestPauseMs([&] { screen.documentPicked(QUrl::fromLocalFile(file)); },
                                              [&] { return screen.busy(); });
        addPause(report, c, u"import reading and previewing"_s, reading);
        const double importing = longestPauseMs([&] { screen.ImportTextFile(); }, [&] { return screen.busy(); });
        addPause(report, c, u"import into an empty store"_s, importing);
    }
    QFile::remove(file);
}

// Exchange and CSV files that a careless program or a hostile sender could make, previewed and imported
// as the import screen does. Their line ends must not make reading slow, and no shape may hold
// more than a small multiple of the file's size.
struct CraftedFile
{
    QString name;
    QByteArray head;                      // the section marker or header line
    std::function<QByteArray(int)> line; // line n, with its line end
    qint64 bytes;                         // the file's size, reached by repeating lines
};

QList<CraftedFile> craftedFiles()
{
    constexpr qint64 kTenMb = 10 * 1024 * 1024;
    // 100,000 track lines of 50 bytes, each numbered so that none matches another.
    const auto trackLine = [](const char *end) {
        // Explicit return types: a sum of byte arrays is a builder that must not outlive them.
        return [end](int n) -> QByteArray {
            QByteArray line = "3.45^Song " + QByteArray::number(n).rightJustified(6, '0') + "^1^1^";
            return line.leftJustified(50 - qstrlen(end), 'w') + end;
        };
    };
    const QByteArray records = Exchange::kRecordMarker.toUtf8() + '\n';
    const QByteArray tracks = Exchange::kTrackMarker.toUtf8() + '\n';
    const QByteArray badFields = QByteArray("x^").repeated(Exchange::kRecordFieldCount - 1) + "x\n";
    return {
        {u"100,000 track lines ending in LF"_s, tracks, trackLine("\n"), 5'000'000},
        {u"100,000 track lines ending in CR LF"_s, tracks, trackLine("\r\n"), 5'000'000},
        {u"100,000 track lines ending in CR"_s, tracks, trackLine("\r"), 5'000'000},
        {u"10 MB of empty lines"_s, records, [](int) { return QByteArray("\n"); }, kTenMb},
        {u"10 MB of \"^\" record lines"_s, records, [](int) { return QByteArray("^\n"); }, kTenMb},
        {u"10 MB of one-field track lines"_s, tracks, [](int) { return QByteArray("1\n"); }, kTenMb},
        {u"10 MB of record lines, every field bad"_s, records, [badFields](int) { return badFields; }, kTenMb},
        {u"one record line of 10 MB"_s, records,
         [](int) -> QByteArray { return "^^^^^^One long line^" + QByteArray(kTenMb, 'n') + '\n'; }, kTenMb},
        {u"10 MB of one-field CSV rows"_s, "name\n", [](int) { return QByteArray("a\n"); }, kTenMb},
        {u"10 MB of Discogs rows, each a problem"_s, "Artist,Title,release_id\n",
         [](int n) -> QByteArray { return "A,," + QByteArray::number(n) + '\n'; }, kTenMb},
        {u"one CSV field of 10 MB"_s, "name\n", [](int) -> QByteArray { return '"' + QByteArray(kTenMb, 'n') + "\"\n"; },
         kTenMb},
        {u"one CSV row of 10 MB of commas"_s, "name\n", [](int) -> QByteArray { return 'x' + QByteArray(kTenMb, ',') + '\n'; },
         kTenMb},
        {u"10 MB of Discogs copies of one release"_s, "Artist,Title,release_id\n", [](int) { return QByteArray("A,T,1\n"); },
         kTenMb},
    };
}

} // namespace

void measureCraftedFiles(BenchReport &report, const QString &folder)
{
    for (const CraftedFile &crafted : craftedFiles()) {
        QByteArray bytes = crafted.head;
        bytes.reserve(crafted.bytes + crafted.head.size());
        int lines = 0;
        while (bytes.size() < crafted.bytes)
            bytes += crafted.line(lines++);
        const QString file = QDir(folder).filePath(u"crafted.csv"_s);
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size()) {
            std::fprintf(stderr, "bench: cannot write %s\n", qPrintable(file));
            return;
        }
        out.close();
        bytes.clear();
        bytes.squeeze();
        if (const auto figures = inOwnProcess({u"--import"_s, file, u"--preview"_s}))
            report.add({u"crafted: "_s + crafted.name, lines, figures->first, std::nullopt, std::nullopt, std::nullopt,
                        figures->second, 200});
        QFile::remove(file);
    }
}

int runImport(const QString &file, bool previewFirst)
{
    QTemporaryDir scratch;
    auto target = AppDelegate::create(scratch.path(), true, std::make_unique<RecordingPlatformServices>());
    if (!target)
        return 1;
    QElapsedTimer timer;
    timer.start();
    Store &store = (*target)->persistentContainer();
    if (previewFirst) {
        // As the import screen does: the preview stays while the file is merged.
        const ImportFile read = ImportFiles::read(TextFile::readUtf8(file).valueOr(QByteArray()));
        const auto preview = ImportMerge::preview(store, read);
        if (read.format == ImportFormat::Unknown || !preview || !ImportMerge::apply(store, read))
            return 1;
    } else if (!importFile(store, file)) {
        return 1;
    }
    std::printf("%.1f %.1f\n", double(timer.nsecsElapsed()) / 1e6, peakRssMb());
    return 0;
}

int runCompleteReport(const QString &dataDir)
{
    const QString pdf = QDir(dataDir).filePath(u"complete-report.pdf"_s);
    QString said;
    QTextStream out(&said), err(&said);
    QElapsedTimer timer;
    timer.start();
    const int code = runCli({u"--data-dir"_s, dataDir, u"report"_s, u"--pdf"_s, pdf}, out, err);
    const double ms = double(timer.nsecsElapsed()) / 1e6;
    QFile::remove(pdf);
    out.flush();
    if (code != CliOk) {
        std::fprintf(stderr, "%s\n", qPrintable(said));
        return 1;
    }
    std::printf("%.1f %.1f\n", ms, peakRssMb());
    return 0;
}

namespace {
// Adds `count` copies of the collection's records (no record numbers, no tracks): record
// numbers end at the ceiling, and the lists never read tracks.
bool copyRecords(Store &store, int count)
{
    const QString columns = u"name, artist, releaseDate, recordLabel, producer, quantity, albumDuration, "
                            "vinylCondition, coverCondition, recordSpeed, doubleAlbum, cost, value, notes, "
                            "nameFolded, artistFolded, recordLabelFolded"_s;
    QSqlQuery query(store.database());
    const qint64 originals = store.count(FetchRequest(Entity::Vinyl)).valueOr(0);
    for (qint64 copied = 0; copied < count && originals > 0; copied += originals) {
        const qint64 n = std::min<qint64>(originals, count - copied);
        if (!query.exec(u"INSERT INTO Vinyl (%1) SELECT %1 FROM Vinyl ORDER BY rowid LIMIT %2"_s.arg(columns).arg(n)))
            return false;
    }
    return true;
}
} // namespace

Store &BenchCollection::store()
{
    return m_app->persistentContainer();
}

std::unique_ptr<BenchCollection> BenchCollection::make(int records)
{
    std::unique_ptr<BenchCollection> c(new BenchCollection(records));
    QElapsedTimer timer;
    timer.start();
    if (!c->m_dir.isValid() || !c->open())
        return nullptr;
    SampleOptions options;
    options.records = std::min(records, kCeiling);
    options.tracksPerRecord = 20;
    // Beyond the ceiling the records are made without covers, so the run stays short.
    options.covers = records <= kCeiling;
    if (!addSampleCollection(c->store(), options))
        return nullptr;
    if (records > kCeiling && !copyRecords(c->store(), records - kCeiling))
        return nullptr;
    std::fprintf(stderr, "made %d records (%s) in %.1f s\n", records,
                 records > kCeiling ? "the first 32,767 with 20 tracks each, then copies of them, no covers"
                                    : "20 tracks and two covers each",
                 timer.elapsed() / 1000.0);
    return c;
}

bool BenchCollection::open()
{
    m_app.reset();
    auto app = AppDelegate::create(m_dir.path(), true, std::make_unique<RecordingPlatformServices>());
    if (!app)
        return false;
    m_app = std::move(app).value();
    return true;
}

void BenchCollection::close()
{
    m_app.reset();
}

void measureAll(BenchReport &report, BenchCollection &c)
{
    // PLATTERBOX_BENCH_ONLY="list,exchange" measures some groups of operations only; a group
    // is named by its first name or by the wider one after it ("discogs" or "exchange").
    const QStringList only = qEnvironmentVariable("PLATTERBOX_BENCH_ONLY").split(u',', Qt::SkipEmptyParts);
    const QList<std::pair<QStringList, void (*)(BenchReport &, BenchCollection &)>> groups{
        {{u"list"_s}, measureCollectionList},
        {{u"groups"_s}, measureGroupLists},
        {{u"breakdown"_s}, measureBreakdown},
        {{u"discogs"_s, u"exchange"_s}, measureDiscogsImport},
        {{u"export"_s, u"exchange"_s}, measureExchangeFile},
        {{u"valuation"_s}, measureValuation},
        {{u"statistics"_s}, measureStatistics},
        {{u"documents"_s, u"reports"_s}, measureReports},
        {{u"report-screen"_s, u"reports"_s}, measureReportScreen},
        {{u"complete-report"_s, u"reports"_s}, measureCompleteReport},
        {{u"pauses"_s}, measureUiPauses},
    };
    // Ten times the ceiling is for the lists; the other paths are measured up to the ceiling.
    const QStringList lists{u"list"_s, u"groups"_s, u"breakdown"_s, u"valuation"_s};
    for (const auto &[names, measure] : groups) {
        const bool chosen = only.isEmpty() || std::any_of(names.begin(), names.end(), [&](const QString &n) { return only.contains(n); });
        if (chosen && (c.records() <= kCeiling || lists.contains(names.first())))
            measure(report, c);
    }
}

bool openEveryScreen(const QString &dataDir)
{
    auto created = AppDelegate::create(dataDir, true, std::make_unique<RecordingPlatformServices>());
    if (!created)
        return false;
    std::unique_ptr<AppDelegate> app = std::move(created).value();
    ListVinylTableViewController list(app.get());
    readFirstScreenful(*list.model());
    ArtistGroupTableViewController artists(app.get());
    LabelGroupTableViewController labels(app.get());
    ProducerGroupTableViewController producers(app.get());
    YearGroupTableViewController years(app.get());
    if (const auto artist = largestArtist(app->persistentContainer())) {
        auto records = app->persistentContainer().fetchVinyl(
            FetchRequest(Entity::Vinyl).where(Predicate::equal(u"artist"_s, *artist)).limitedTo(1));
        if (records && !records->isEmpty())
            app->state()->setCurrentRecord(records->first());
        ArtistBreakdownTableViewController breakdown(app.get());
        readFirstScreenful(*breakdown.model());
    }
    return list.model()->rowCount() > 0;
}
