// Tour steps of the exchange screens: the import/export menu, the export screen after a build,
// the import screen with a loaded file, the preview and completion of a Discogs import, and the
// question before undoing it; and, once every other screen is pictured, an export and an import
// of a large collection in progress.
#include "exchange/exchangewriter.h"
#include "exchange/exportviewcontroller.h"
#include "exchange/importexportviewcontroller.h"
#include "exchange/importfile.h"
#include "exchange/importmerge.h"
#include "exchange/importviewcontroller.h"
#include "shell/appdelegate.h"
#include "tour.h"

#include "store/samplecollection.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMetaObject>
#include <QUrl>

#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {
void closeAlert(TourContext &c)
{
    if (QObject *alert = c.find(u"alert"_s))
        QMetaObject::invokeMethod(alert, "close");
    c.settle(300);
}

void buildExport(TourContext &c)
{
    c.home();
    c.show(u"ImportExportView"_s);
    c.show(u"ExportView"_s);
    if (auto *controller = qobject_cast<ExportViewController *>(c.topController())) {
        controller->CreateUpdateFile();
        for (int i = 0; i < 100 && controller->building(); ++i)
            c.settle(50);
    }
}

// A Discogs export of which the first three releases were imported before: one of them has
// changed since, and two lines cannot be imported.
const QByteArray kDiscogsHeader = "Catalog#,Artist,Title,Label,Format,Rating,Released,release_id,CollectionFolder,"
                                  "Date Added,Collection Media Condition,Collection Sleeve Condition,Collection Notes\r\n";
const QByteArray kDiscogsEarlier =
    "SHVL 804,Pink Floyd,The Dark Side Of The Moon,\"Harvest, EMI\",\"LP, Album, Gat\",5,1973-03-23,90211,Uncategorized,"
    "2019-05-02 18:11:40,Near Mint (NM or M-),Very Good Plus (VG+),\"Both posters, both stickers\"\r\n"
    "K 56344,Fleetwood Mac,Rumours,Warner Bros. Records,\"LP, Album\",4,1977,90212,Uncategorized,2019-05-02 18:15:02,"
    "Very Good Plus (VG+),Very Good Plus (VG+),\r\n"
    "R 5722,The Beatles,Hey Jude,Parlophone,\"7\"\", Single, 45 RPM\",4,1968-08-30,90216,Singles,2020-01-21 11:00:12,"
    "Good (G),Generic,Plays with crackle\r\n";
const QByteArray kDiscogsLater =
    "SHDW 411,Pink Floyd,The Wall,Harvest,\"2xLP, Album, Gat\",5,1979-11-30,90214,Uncategorized,2019-06-11 09:05:44,"
    "Very Good (VG),Good Plus (G+),\"Inner sleeves have ring wear\r\nSide 3 slightly warped\"\r\n"
    "7N 35000,The Kinks (2),You Really Got Me,Pye Records (3),\"7\"\", Single\",3,1964,90217,Singles,2020-01-21 11:03:50,"
    "Good Plus (G+),No Cover,\r\n"
    "SD 7200,\"Crosby, Stills, Nash & Young\",D\xc3\xa9j\xc3\xa0 Vu,Atlantic,\"LP, Album\",5,1970-03,90219,Uncategorized,"
    "2020-02-02 14:25:31,Near Mint (NM or M-),Near Mint (NM or M-),\r\n"
    "TX 501,Dee-Lite,,Elektra (2),\"12\"\", 33 \xe2\x85\x93 RPM\",3,1990,90220,Uncategorized,2021-07-07 07:07:07,"
    "Very Good Plus (VG+),Very Good (VG),\r\n"
    "DB 4321,Harry Roy & His Orchestra,Tiger Rag,Parlophone (2),\"Shellac, 10\"\", 78 RPM\",,1935-14,90221,Shellac,"
    "2021-07-08 12:00:00,Fair (F),Generic,Paper sleeve only\r\n";

QString writeTemp(const QString &name, const QByteArray &bytes)
{
    const QString path = QDir(AppDelegate::tempDir()).filePath(name);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
    return path;
}

ImportViewController *openImport(TourContext &c)
{
    c.home();
    c.show(u"ImportExportView"_s);
    c.show(u"ImportView"_s);
    return qobject_cast<ImportViewController *>(c.topController());
}

// Waits until the reading or the import on the worker thread is done.
void waitWhileBusy(TourContext &c, ImportViewController *controller)
{
    for (int i = 0; i < 200 && controller && controller->busy(); ++i)
        c.settle(50);
    c.settle(300);
}

void loadImportFile(TourContext &c)
{
    ImportViewController *controller = openImport(c);
    const QString path = writeTemp(u"platterbox-tour-import.csv"_s,
                                   ExchangeWriter::build(c.app().persistentContainer(), false).valueOr({}));
    if (controller)
        controller->documentPicked(QUrl::fromLocalFile(path));
    waitWhileBusy(c, controller);
}

void previewDiscogsExport(TourContext &c)
{
    Store &store = c.app().persistentContainer();
    (void)ImportMerge::apply(store, ImportFiles::read(kDiscogsHeader + kDiscogsEarlier));
    QByteArray changed = kDiscogsEarlier;
    changed.replace("Good (G),Generic", "Very Good (VG),Generic");
    ImportViewController *controller = openImport(c);
    const QString path = writeTemp(u"discogs-collection.csv"_s, "\xEF\xBB\xBF" + kDiscogsHeader + changed + kDiscogsLater);
    if (controller)
        controller->documentPicked(QUrl::fromLocalFile(path));
    waitWhileBusy(c, controller);
    closeAlert(c);
}

// After the import, the import/export menu offers to undo it and asks first.
void askToUndoImport(TourContext &c)
{
    closeAlert(c);
    c.home();
    c.show(u"ImportExportView"_s);
    if (auto *controller = qobject_cast<ImportExportViewController *>(c.topController()))
        controller->UndoLastImportButtonTapped();
    c.settle(400);
}

// Returns while the work still runs, once its bar has moved and shows the count reached.
void waitForProgress(TourContext &c, const std::function<bool()> &busy, const std::function<double()> &progress)
{
    QElapsedTimer shown;
    shown.start();
    while (busy() && (progress() < 0.15 || shown.elapsed() < 250))
        c.settle(5);
    if (!busy())
        fprintf(stderr, "tour: the work finished before its picture\n");
}

// Building the exchange file of a collection grown large enough to take a while.
void exportInProgress(TourContext &c)
{
    SampleOptions more;
    more.records = 4000;
    more.tracksPerRecord = 10;
    if (auto added = addSampleCollection(c.app().persistentContainer(), more); !added)
        fprintf(stderr, "tour: %s\n", qPrintable(added.errorMessage()));
    c.home();
    c.show(u"ImportExportView"_s);
    c.show(u"ExportView"_s);
    auto *controller = qobject_cast<ExportViewController *>(c.topController());
    if (!controller)
        return;
    controller->CreateUpdateFile();
    waitForProgress(c, [controller] { return controller->building(); }, [controller] { return controller->progress(); });
}

// Importing that collection's file again, every line compared with the store.
void importInProgress(TourContext &c)
{
    c.home();
    const QString path = writeTemp(u"platterbox-tour-large.csv"_s,
                                   ExchangeWriter::build(c.app().persistentContainer(), false).valueOr({}));
    ImportViewController *controller = openImport(c);
    if (!controller)
        return;
    controller->documentPicked(QUrl::fromLocalFile(path));
    waitWhileBusy(c, controller);
    closeAlert(c);
    controller->ImportTextFile();
    waitForProgress(c, [controller] { return controller->busy(); }, [controller] { return controller->progress(); });
}

void importDiscogsExport(TourContext &c)
{
    auto *controller = qobject_cast<ImportViewController *>(c.topController());
    if (controller)
        controller->ImportTextFile();
    waitWhileBusy(c, controller);
}
} // namespace

void addExchangeSteps(QList<TourStep> &steps)
{
    steps.append({u"import-export-menu.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"ImportExportView"_s);
                  }});
    steps.append({u"export-before-build.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"ImportExportView"_s);
                      c.show(u"ExportView"_s);
                  }});
    steps.append({u"export-built-alert.png"_s, [](TourContext &c) {
                      buildExport(c);
                      c.settle(1400);
                  }});
    steps.append({u"export-built.png"_s, [](TourContext &c) { closeAlert(c); }});
    steps.append({u"import-file-loaded-alert.png"_s, [](TourContext &c) { loadImportFile(c); }});
    steps.append({u"import-file-loaded.png"_s, [](TourContext &c) { closeAlert(c); }});
    steps.append({u"import-discogs-preview.png"_s, previewDiscogsExport});
    steps.append({u"import-discogs-completed.png"_s, importDiscogsExport});
    steps.append({u"import-undo-confirmation.png"_s, askToUndoImport});
}

void addExchangeProgressSteps(QList<TourStep> &steps)
{
    steps.append({u"export-in-progress.png"_s, exportInProgress, false});
    steps.append({u"import-in-progress.png"_s, importInProgress, false});
}
