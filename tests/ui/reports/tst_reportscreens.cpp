#include "browse/breakdowntableviewcontroller.h"
#include "cli/cli.h"
#include "reports/coverpictures.h"
#include "reports/filteredlistpdf.h"
#include "reports/overviewviewcontroller.h"
#include "reports/printvinylviewcontroller.h"
#include "reports/reportbuilder.h"
#include "reports/reportpages.h"
#include "reports/reportpdf.h"
#include "reports/reporttexts.h"
#include "store/samplecollection.h"
#include "testsupport.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QPdfDocument>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QDateTime kMarch5 = QDateTime(QDate(1975, 3, 5), QTime(0, 0));

void add(TestApp &t, const QString &name, const QString &artist, const QString &label, const QDateTime &date = {})
{
    RecordBuilder record(name);
    record.artist(artist).label(label).producer(u"Benny"_s).v.quantity = 1;
    if (date.isValid())
        record.date(date);
    record.store(t.store());
}

// Waits until the screen has read its records and laid its report out (or printed it).
bool settled(PrintVinylViewController &report)
{
    QSignalSpy finished(&report, &PrintVinylViewController::taskFinished);
    while (report.busy()) {
        if (!finished.wait(60000))
            return false;
    }
    return true;
}

// The report's text as its pages show it.
QString reportText(PrintVinylViewController &report)
{
    if (!settled(report) || !report.report())
        return {};
    QStringList pages;
    for (int page = 0; page < report.report()->pageCount(); ++page)
        pages.append(report.report()->text(page));
    return pages.join(u'\n');
}

// The album names of the report, in the order it lists them.
QStringList albums(PrintVinylViewController &report)
{
    QStringList names;
    for (const QString &line : reportText(report).split(u'\n')) {
        if (line.startsWith(u"Album Name: "_s))
            names.append(line.mid(12));
    }
    return names;
}

QString pdfText(const QString &path)
{
    QPdfDocument pdf;
    if (pdf.load(path) != QPdfDocument::Error::None)
        return {};
    QString text;
    for (int page = 0; page < pdf.pageCount(); ++page)
        text += pdf.getAllText(page).text() + u'\n';
    return text;
}
} // namespace

class TestReportScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }
    void cleanup() { BreakdownTableViewController::setPdfWriter({}); }

    void reportFollowsOriginAndOrder_data()
    {
        QTest::addColumn<QString>("origin");
        QTest::addColumn<bool>("ascending");
        QTest::addColumn<QStringList>("albums");
        QTest::newRow("complete list A to Z") << u"List"_s << true
                                              << QStringList{u"Abbey Road"_s, u"Arrival"_s, u"Voulez-Vous"_s, u"Zen"_s};
        QTest::newRow("complete list Z to A") << u"List"_s << false
                                              << QStringList{u"Zen"_s, u"Voulez-Vous"_s, u"Arrival"_s, u"Abbey Road"_s};
        QTest::newRow("artist, descending") << u"ArtistBreakdown"_s << false
                                            << QStringList{u"Voulez-Vous"_s, u"Arrival"_s};
        QTest::newRow("year: exact date only") << u"YearBreakdown"_s << true << QStringList{u"Arrival"_s, u"Abbey Road"_s};
        QTest::newRow("label ignores the toggle") << u"LabelBreakdown"_s << false
                                                  << QStringList{u"Arrival"_s, u"Voulez-Vous"_s};
        QTest::newRow("unknown origin selects nothing") << u"Menu"_s << true << QStringList{};
    }

    void reportFollowsOriginAndOrder()
    {
        QFETCH(QString, origin);
        QFETCH(bool, ascending);
        QFETCH(QStringList, albums);
        TestApp t;
        add(t, u"Arrival"_s, u"ABBA"_s, u"Polar"_s, kMarch5);
        add(t, u"Voulez-Vous"_s, u"ABBA"_s, u"Polar"_s, kMarch5.addSecs(3600)); // same day, other time
        add(t, u"Abbey Road"_s, u"Beatles"_s, u"Apple"_s, kMarch5);
        add(t, u"Zen"_s, u"Zed"_s, u"Zebra"_s);
        CurrentRecord &group = t.app().state()->editCurrentRecord();
        group.artist = u"ABBA"_s;
        group.recordLabel = u"Polar"_s;
        group.releaseDate = kMarch5;
        t.app().state()->setOriginScreen(origin);
        t.app().state()->setSortAscending(ascending);

        PrintVinylViewController report(&t.app());
        QCOMPARE(::albums(report), albums);
        QCOMPARE(report.printButtonVisible(), !albums.isEmpty());
        QVERIFY(report.lastAlertTitle().isEmpty());
        if (albums.isEmpty()) {
            // The rebuild button reports the empty case.
            report.CreateFileClick();
            QCOMPARE(report.lastAlertTitle(), u"Empty Data Set!"_s);
        }
    }

    void emptyCollectionHidesPrintButtonAndAlerts()
    {
        TestApp t;
        t.app().state()->setOriginScreen(u"List"_s);
        PrintVinylViewController report(&t.app());
        QVERIFY(settled(report));
        QCOMPARE(report.lastAlertTitle(), u"Empty Data Set!"_s);
        QCOMPARE(report.lastAlertMessage(), u"No Vinyl's to Print!"_s);
        QVERIFY(!report.printButtonVisible());
        report.EmailFileClick();
        QVERIFY(t.platform().printedJobs.isEmpty());
    }

    void printingLogsTheOutcome_data()
    {
        QTest::addColumn<bool>("answer");
        QTest::addColumn<QString>("line");
        QTest::newRow("printed") << true << u"Image is Printed"_s;
        QTest::newRow("cancelled") << false << u"nil"_s;
    }

    void printingLogsTheOutcome()
    {
        QFETCH(bool, answer);
        QFETCH(QString, line);
        TestApp t;
        add(t, u"Arrival"_s, u"ABBA"_s, u"Polar"_s);
        t.app().state()->setOriginScreen(u"List"_s);
        t.platform().printAnswer = answer;
        PrintVinylViewController report(&t.app());
        QVERIFY(settled(report));
        ConsoleCapture console;
        report.EmailFileClick();
        QVERIFY(settled(report));
        QCOMPARE(t.platform().printedJobs, QStringList{u"Vinyl Collection"_s});
        QCOMPARE(console.lines(), QStringList{line});
        if (answer)
            QVERIFY(pdfText(t.platform().printedFiles.value(0)).contains(u"Album Name: Arrival"_s));
    }

    void breakdownShareWritesAndSharesTheDocument()
    {
        TestApp t;
        QVERIFY(addSampleCollection(t.store(), sampleOptions(60, 0, true, 7)));
        add(t, u"Arrival"_s, u"ABBA"_s, u"Polar"_s);
        add(t, u"Voulez-Vous"_s, u"ABBA"_s, u"Polar"_s);
        BreakdownTableViewController::setPdfWriter(&FilteredListPdf::write);
        t.app().state()->editCurrentRecord().artist = u"ABBA"_s;
        ArtistBreakdownTableViewController list(&t.app());
        const QString path = QDir(t.app().documentsDir()).filePath(u"VinylFilteredByArtist.pdf"_s);
        for (int round = 0; round < 2; ++round) { // sharing again overwrites the same file
            ConsoleCapture console;
            QSignalSpy finished(&list, &BreakdownTableViewController::shareFinished);
            list.ShareArtistButtonClicked();
            QVERIFY(list.sharing());
            QVERIFY(finished.wait());
            QCOMPARE(console.lines(), QStringList{u"wrote PDF file with multiple pages to: "_s + path});
            QCOMPARE(list.shareProgressText(), u"2 of 2"_s);
        }
        QCOMPARE(t.platform().shared.size(), 2);
        QCOMPARE(t.platform().shared.last().filePaths, QStringList{path});
        QPdfDocument pdf;
        QCOMPARE(pdf.load(path), QPdfDocument::Error::None);
        QCOMPARE(pdf.pageCount(), 1);
    }

    void cancelledShareLeavesNoFileAndSharesNothing()
    {
        TestApp t;
        QVERIFY(addSampleCollection(t.store(), sampleOptions(1000, 0, true, 5)));
        BreakdownTableViewController::setPdfWriter(&FilteredListPdf::write);
        t.app().state()->setCurrentRecord(t.store().fetchVinyl(FetchRequest(Entity::Vinyl).limitedTo(1))->first());
        LabelBreakdownTableViewController list(&t.app());
        QVERIFY(list.model()->rowCount() > 10);
        QSignalSpy finished(&list, &BreakdownTableViewController::shareFinished);
        ConsoleCapture console;
        list.ShareLabelButtonClicked();
        list.CancelShareButtonTapped();
        QVERIFY(finished.wait());
        QVERIFY(!list.sharing());
        QVERIFY(t.platform().shared.isEmpty());
        QVERIFY(list.lastAlertTitle().isEmpty());
        QVERIFY(console.lines().isEmpty());
        QVERIFY(!QFile::exists(list.outputFilePath()));
        QVERIFY(QDir(t.app().documentsDir()).entryList(QDir::Files).isEmpty());
    }

    void breakdownShareOfNothingAlerts()
    {
        TestApp t;
        BreakdownTableViewController::setPdfWriter(&FilteredListPdf::write);
        t.app().state()->editCurrentRecord().producer = u"Nobody"_s;
        ProducerBreakdownTableViewController list(&t.app());
        list.ShareProducerButtonClicked();
        QCOMPARE(list.lastAlertTitle(), u"Empty Data Set!"_s);
        QCOMPARE(list.lastAlertMessage(), u"No Vinyl's to Print!"_s);
        QVERIFY(t.platform().shared.isEmpty());
    }

    void longListRunsOnA4Pages_data()
    {
        QTest::addColumn<int>("records");
        QTest::addColumn<bool>("covers");
        QTest::newRow("200 records with covers") << 200 << true;
        QTest::newRow("300 records without covers") << 300 << false;
    }

    void longListRunsOnA4Pages()
    {
        QFETCH(int, records);
        QFETCH(bool, covers);
        TestApp t;
        QVERIFY(addSampleCollection(t.store(), sampleOptions(records, 0, covers, 3)));
        t.app().state()->setOriginScreen(u"List"_s);
        PrintVinylViewController report(&t.app());
        QAbstractItemModelTester tester(report.pages());
        QSignalSpy resets(report.pages(), &QAbstractItemModel::modelReset);
        QSignalSpy inserted(report.pages(), &QAbstractItemModel::rowsInserted);
        QVERIFY(settled(report));
        QCOMPARE(report.progressText(), u"%1 of %1"_s.arg(records));
        QCOMPARE(report.pages()->rowCount(), report.report()->pageCount());
        // The first page shows alone while the records are read, and stays when the rest come.
        QCOMPARE(resets.count(), 1);
        QVERIFY(inserted.count() >= 2);
        QCOMPARE(inserted.first().at(1).toInt(), 0);
        QCOMPARE(inserted.first().at(2).toInt(), 0);
        const QString path = t.dataDir() + u"/report.pdf"_s;
        CoverReader reader(t.store().filePath());
        QVERIFY(ReportPdf::write(report.report()->content(), path, &reader));
        QPdfDocument pdf;
        QCOMPARE(pdf.load(path), QPdfDocument::Error::None);
        QVERIFY2(pdf.pageCount() > records / 10, qPrintable(QString::number(pdf.pageCount())));
        // The screen shows the pages the document has.
        QCOMPARE(report.pages()->rowCount(), pdf.pageCount());
        for (int page : {0, pdf.pageCount() - 1}) {
            QCOMPARE(qRound(pdf.pagePointSize(page).width() * 10), 5952); // A4
            QCOMPARE(qRound(pdf.pagePointSize(page).height() * 10), 8418);
        }
        // Every record reaches the document: the last album of the list is on the last page.
        const QString lastAlbum = report.vinylList().last().name.value_or(QString());
        QVERIFY(pdf.getAllText(pdf.pageCount() - 1).text().contains(lastAlbum));
    }

    void overviewDocumentIsBuiltIn()
    {
        TestApp t;
        OverviewViewController overview(&t.app());
        QVERIFY(overview.lastAlertTitle().isEmpty());
        QPdfDocument pdf;
        QFile resource(u":/resources/overview.pdf"_s);
        QVERIFY(resource.open(QIODevice::ReadOnly));
        pdf.load(&resource);
        QCOMPARE(pdf.status(), QPdfDocument::Status::Ready);
        QVERIFY(pdf.pageCount() >= 2);
        QVERIFY(pdf.getAllText(0).text().contains(u"Platterbox"_s));
    }

    void reportCommand_data()
    {
        QTest::addColumn<QStringList>("arguments"); // OUT is a file in the data folder
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("pages"); // -1: no file
        QTest::newRow("complete list") << QStringList{u"--pdf"_s, u"OUT"_s} << int(CliOk) << u"Wrote 3 records"_s << 1;
        QTest::newRow("artist, descending") << QStringList{u"--pdf"_s, u"OUT"_s, u"--artist"_s, u"ABBA"_s,
                                                           u"--descending"_s}
                                            << int(CliOk) << u"Wrote 2 records"_s << 1;
        QTest::newRow("exact date") << QStringList{u"--pdf"_s, u"OUT"_s, u"--origin"_s, u"YearBreakdown"_s, u"--date"_s,
                                                   u"1975-03-05"_s}
                                    << int(CliOk) << u"Wrote 1 records"_s << 1;
        QTest::newRow("nothing matches") << QStringList{u"--pdf"_s, u"OUT"_s, u"--label"_s, u"Nope"_s} << int(CliBadInput)
                                         << u"No Vinyl's to Print!"_s << -1;
        QTest::newRow("bad date") << QStringList{u"--pdf"_s, u"OUT"_s, u"--date"_s, u"5.3.1975"_s} << int(CliBadInput)
                                  << u"--date wants a date"_s << -1;
        QTest::newRow("no output") << QStringList{u"--artist"_s, u"ABBA"_s} << int(CliBadUsage) << u"usage:"_s << -1;
        QTest::newRow("origin without its group") << QStringList{u"--pdf"_s, u"OUT"_s, u"--origin"_s, u"LabelBreakdown"_s}
                                                  << int(CliBadUsage) << u"needs --label"_s << -1;
        QTest::newRow("group of another origin")
            << QStringList{u"--pdf"_s, u"OUT"_s, u"--origin"_s, u"ArtistBreakdown"_s, u"--producer"_s, u"Benny"_s}
            << int(CliBadUsage) << u"does not go with"_s << -1;
        QTest::newRow("two groups") << QStringList{u"--pdf"_s, u"OUT"_s, u"--artist"_s, u"A"_s, u"--label"_s, u"B"_s}
                                    << int(CliBadUsage) << u"only one of"_s << -1;
        QTest::newRow("unknown origin") << QStringList{u"--pdf"_s, u"OUT"_s, u"--origin"_s, u"Menu"_s} << int(CliBadUsage)
                                        << u"usage:"_s << -1;
        QTest::newRow("unwritable file") << QStringList{u"--pdf"_s, u"/no/such/dir/r.pdf"_s} << int(CliBadInput)
                                         << u"Could not create PDF file"_s << -1;
    }

    void reportCommand()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QString, message);
        QFETCH(int, pages);
        // The command opens its own store on the same data folder.
        TestApp seed;
        add(seed, u"Arrival"_s, u"ABBA"_s, u"Polar"_s, kMarch5);
        add(seed, u"Voulez-Vous"_s, u"ABBA"_s, u"Polar"_s, kMarch5.addSecs(60));
        add(seed, u"Zen"_s, u"Zed"_s, u"Zebra"_s);
        const QString out = seed.dataDir() + u"/report.pdf"_s;
        arguments.replaceInStrings(u"OUT"_s, out);
        const CliRun run = runCommand(QStringList{u"--data-dir"_s, seed.dataDir(), u"report"_s} + arguments);
        QCOMPARE(run.code, code);
        const QString said = run.out + run.err;
        QVERIFY2(said.contains(message), qPrintable(said));
        QPdfDocument pdf;
        if (pages < 0) {
            QVERIFY(!QFile::exists(out));
        } else {
            QCOMPARE(pdf.load(out), QPdfDocument::Error::None);
            QCOMPARE(pdf.pageCount(), pages);
        }
    }
};

QTEST_MAIN(TestReportScreens)
#include "tst_reportscreens.moc"
