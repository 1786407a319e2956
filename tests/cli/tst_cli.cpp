// The command line through its entry function: each command, its refusals, and what it leaves
// behind. `platterbox lookup` asks a fake catalogue on 127.0.0.1.
#include "barcodepicture.h"
#include "cli/cli.h"
#include "fakecatalogue.h"
#include "exchange/wantlistcsv.h"
#include "store/fetchrequest.h"
#include "store/store.h"
#include "store/textfile.h"
#include "store/wantedalbums.h"
#include "testsupport.h"

#include <QDate>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class CliTest : public QObject
{
    Q_OBJECT

private:
    CliRun run(const QStringList &arguments) { return runCommand(QStringList{u"--data-dir="_s + m_dir->path()} + arguments); }
    QList<Vinyl> records()
    {
        auto store = Store::open(QDir(m_dir->path()).filePath(Store::kFileName));
        return store ? (*store)->fetchVinyl(FetchRequest(Entity::Vinyl)).valueOr(QList<Vinyl>()) : QList<Vinyl>();
    }
    qint64 wantedCount()
    {
        auto store = Store::open(QDir(m_dir->path()).filePath(Store::kFileName));
        return store ? WantedAlbums::count(**store).valueOr(-1) : -1;
    }
    // The sample collection comes with a wantlist; some tests start from an empty one.
    void emptyWantlist()
    {
        auto store = Store::open(QDir(m_dir->path()).filePath(Store::kFileName));
        QVERIFY(store.ok());
        QCOMPARE(runSql((*store)->database(), {u"DELETE FROM Wanted"_s, u"DELETE FROM WantedTracks"_s}), QString());
    }
    void serveSaltRoads()
    {
        ::serveSaltRoads(*m_service, encodedPicture(solidPicture(QSize(600, 600), Qt::darkRed), "JPEG"));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<FakeService> m_service;

private slots:
    void initTestCase() { useTestLocale(); }
    // Each test has a data folder of its own and a fake catalogue.
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_service = std::make_unique<FakeService>();
        pointClientsAt(m_service->base());
    }

    void emptyStoreStats()
    {
        QCOMPARE(run({u"stats"_s}).out, u"Records: 0\nCopies: 0\nTotal value: $0.00\n"_s);
        QCOMPARE(run({u"loans"_s}).out, u"No record is lent out.\n"_s);
        QCOMPARE(run({u"loans"_s, u"--json"_s}).out, u"[\n]\n"_s);
    }

    // The sample collection lends two records out, one of them overdue.
    void loansListsWhatIsOutTheLongestFirst()
    {
        QCOMPARE(run({u"demo"_s, u"8"_s}).code, int(CliOk));
        const CliRun human = run({u"loans"_s});
        QCOMPARE(human.code, int(CliOk));
        const QStringList lines = human.out.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines.at(0), u"2 records are lent out, 1 overdue."_s);
        QVERIFY2(lines.at(1).contains(u": Lent to Lena Brandt since "_s) && lines.at(1).endsWith(u"(overdue)"_s), qPrintable(lines.at(1)));
        QVERIFY2(lines.at(2).contains(u": Lent to Sam Okafor since "_s) && !lines.at(2).contains(u"due"_s), qPrintable(lines.at(2)));

        const QJsonArray json = QJsonDocument::fromJson(run({u"loans"_s, u"--json"_s}).out.toUtf8()).array();
        QCOMPARE(json.size(), 2);
        QCOMPARE(json.at(0)[u"borrower"_s].toString(), u"Lena Brandt"_s);
        QVERIFY(json.at(0)[u"overdue"_s].toBool());
        QCOMPARE(json.at(0)[u"lent"_s].toString(), QDate::currentDate().addDays(-21).toString(Qt::ISODate));
        QVERIFY(json.at(1)[u"due"_s].isNull());
    }

    // A collection in a folder that cannot be written is looked at, exported and backed up;
    // every change exits 1 with the one message, and nothing is written into the folder.
    void readOnlyCollectionIsReadButNotChanged_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("made"); // the file the command writes outside the folder
        QTest::newRow("stats") << QStringList{u"stats"_s} << QString();
        QTest::newRow("loans") << QStringList{u"loans"_s} << QString();
        QTest::newRow("export") << QStringList{u"export"_s, u"OUT/c.txt"_s} << u"OUT/c.txt"_s;
        QTest::newRow("report") << QStringList{u"report"_s, u"--pdf"_s, u"OUT/r.pdf"_s} << u"OUT/r.pdf"_s;
        QTest::newRow("backup") << QStringList{u"backup"_s, u"OUT/c.backup"_s} << u"OUT/c.backup"_s;
        QTest::newRow("import") << QStringList{u"import"_s, u"OUT/new.csv"_s} << QString();
        QTest::newRow("wantlist import") << QStringList{u"import"_s, u"--wantlist"_s, u"OUT/new.csv"_s} << QString();
        QTest::newRow("demo") << QStringList{u"demo"_s, u"2"_s} << QString();
        QTest::newRow("restore") << QStringList{u"restore"_s, u"OUT/c.backup"_s} << QString();
        QTest::newRow("undo-import") << QStringList{u"undo-import"_s} << QString();
    }
    void readOnlyCollectionIsReadButNotChanged()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, made);
        QTemporaryDir out;
        QCOMPARE(run({u"demo"_s, u"3"_s}).code, int(CliOk));
        QCOMPARE(run({u"backup"_s, out.filePath(u"c.backup"_s)}).code, int(CliOk));
        QVERIFY(writeBytes(out.filePath(u"new.csv"_s), "name,artist\nNew,One\n"));
        const ScopedReadOnly readOnly(m_dir->path());
        QVERIFY(readOnly.ok());
        const auto listing = [&] {
            QStringList entries;
            for (const QFileInfo &entry : QDir(m_dir->path()).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name))
                entries << entry.fileName() + u' ' + QString::number(entry.size()) + u' ' + entry.lastModified().toString(Qt::ISODateWithMs);
            return entries;
        };
        const QStringList before = listing();

        arguments.replaceInStrings(u"OUT"_s, out.path());
        const CliRun result = run(arguments);
        if (made.isEmpty() && arguments.first() != u"stats"_s && arguments.first() != u"loans"_s) {
            QCOMPARE(result.code, int(CliBadInput));
            QCOMPARE(result.err, u"platterbox: "_s + Store::kReadOnlyMessage.arg(Store::kReadOnlyFolder.arg(m_dir->path())) + u"\n"_s);
        } else {
            QVERIFY2(result.code == CliOk, qPrintable(result.err));
            QVERIFY(made.isEmpty() || QFileInfo(made.replace(u"OUT"_s, out.path())).size() > 0);
        }
        QCOMPARE(listing(), before);
        QVERIFY(run({u"stats"_s}).out.startsWith(u"Records: 3\n"_s));
    }

    // A command line that is wrong says so on standard error and touches no data folder: the
    // one given is never even created, and the app's own is not used in its place. A command's
    // usage error shows the usage its --help shows.
    void badUsageAndBadInput_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<bool>("commandUsage"); // the command's usage ends the message
        QTest::newRow("no command") << QStringList{} << int(CliBadUsage) << false;
        QTest::newRow("unknown command") << QStringList{u"dance"_s} << int(CliBadUsage) << false;
        QTest::newRow("demo without N") << QStringList{u"demo"_s} << int(CliBadUsage) << true;
        QTest::newRow("demo with words") << QStringList{u"demo"_s, u"many"_s} << int(CliBadUsage) << true;
        QTest::newRow("demo beyond the numbers") << QStringList{u"demo"_s, u"40000"_s} << int(CliBadInput) << false;
        QTest::newRow("stats with extra") << QStringList{u"stats"_s, u"x"_s} << int(CliBadUsage) << true;
        QTest::newRow("loans with extra") << QStringList{u"loans"_s, u"--all"_s} << int(CliBadUsage) << true;
        QTest::newRow("export without a file") << QStringList{u"export"_s} << int(CliBadUsage) << true;
        QTest::newRow("one file without --csv") << QStringList{u"export"_s, u"out.csv"_s, u"--one-file"_s}
                                                << int(CliBadUsage) << true;
        QTest::newRow("wantlist export without --csv") << QStringList{u"export"_s, u"out.csv"_s, u"--wantlist"_s}
                                                       << int(CliBadUsage) << true;
        QTest::newRow("wantlist export in one file")
            << QStringList{u"export"_s, u"out.csv"_s, u"--csv"_s, u"--wantlist"_s, u"--one-file"_s} << int(CliBadUsage) << true;
        QTest::newRow("import two files") << QStringList{u"import"_s, u"a"_s, u"b"_s} << int(CliBadUsage) << true;
        QTest::newRow("report without --pdf") << QStringList{u"report"_s, u"--descending"_s} << int(CliBadUsage) << true;
        QTest::newRow("report of a date that is none")
            << QStringList{u"report"_s, u"--pdf"_s, u"r.pdf"_s, u"--date"_s, u"May"_s} << int(CliBadInput) << false;
        QTest::newRow("backup without a file") << QStringList{u"backup"_s} << int(CliBadUsage) << true;
        QTest::newRow("restore an option") << QStringList{u"restore"_s, u"--now"_s} << int(CliBadUsage) << true;
        QTest::newRow("undo-import with extra") << QStringList{u"undo-import"_s, u"x"_s} << int(CliBadUsage) << true;
        QTest::newRow("lookup of a word") << QStringList{u"lookup"_s, u"vinyl"_s} << int(CliBadUsage) << true;
        QTest::newRow("--version with extra") << QStringList{u"--version"_s, u"x"_s} << int(CliBadUsage) << false;
        QTest::newRow("help of no command") << QStringList{u"help"_s, u"dance"_s} << int(CliBadUsage) << false;
        QTest::newRow("data dir without folder") << QStringList{u"--data-dir"_s} << int(CliBadUsage) << false;
        // An empty folder must not mean the collector's own collection.
        QTest::newRow("data dir empty after =") << QStringList{u"--data-dir="_s, u"demo"_s, u"3"_s} << int(CliBadUsage) << false;
        QTest::newRow("data dir empty") << QStringList{u"--data-dir"_s, u""_s, u"demo"_s, u"3"_s} << int(CliBadUsage) << false;
    }
    void badUsageAndBadInput()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(bool, commandUsage);
        const QString folder = m_dir->filePath(u"collection"_s);
        QStringList all = arguments;
        if (!arguments.contains(u"--data-dir"_s) && !arguments.contains(u"--data-dir="_s))
            all = QStringList{u"--data-dir"_s, folder} + arguments;
        // Where the app's own data folder would be, had the option fallen back to it.
        QTemporaryDir home;
        qputenv("XDG_DATA_HOME", home.path().toUtf8());
        const CliRun result = runCommand(all);
        qunsetenv("XDG_DATA_HOME");
        QCOMPARE(result.code, code);
        QCOMPARE(result.out, QString());
        QVERIFY(!result.err.isEmpty());
        QVERIFY(!QFileInfo::exists(folder));
        QVERIFY(QDir(home.path()).isEmpty());
        if (commandUsage) {
            const QString usage = runCommand({arguments.first(), u"--help"_s}).out.section(u"\n\n"_s, 0, 0) + u'\n';
            QVERIFY2(result.err.endsWith(usage), qPrintable(result.err));
        }
    }

    // Asked for, the version, the overall usage or a command's usage is the answer: on standard
    // output, with success, before any data folder is made or opened.
    void answersWithoutADataFolder_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("output"); // how standard output begins
        const QString overall = u"usage: platterbox [--data-dir DIR] COMMAND [ARGUMENTS]\n"
                                "       platterbox COMMAND --help\n"_s;
        QTest::newRow("--version") << QStringList{u"--version"_s} << u"Platterbox " PB_PROJECT_VERSION "\n"_s;
        QTest::newRow("--help") << QStringList{u"--help"_s} << overall;
        QTest::newRow("-h") << QStringList{u"-h"_s} << overall;
        QTest::newRow("help") << QStringList{u"help"_s} << overall;
        QTest::newRow("a command's --help")
            << QStringList{u"demo"_s, u"--help"_s}
            << u"usage: platterbox [--data-dir DIR] demo N\n\nAdd N sample records (made-up albums with tracks and covers).\n"_s;
        QTest::newRow("help of a command")
            << QStringList{u"help"_s, u"export"_s}
            << u"usage: platterbox [--data-dir DIR] export FILE [--no-images]\n"
               "       platterbox [--data-dir DIR] export FILE --csv [--one-file]\n"
               "       platterbox [--data-dir DIR] export FILE --csv --wantlist\n\nWrite "_s;
        QTest::newRow("--help after a command's arguments")
            << QStringList{u"import"_s, u"in.csv"_s, u"--dry-run"_s, u"--help"_s}
            << u"usage: platterbox [--data-dir DIR] import FILE [--dry-run]\n"_s;
        QTest::newRow("-h of a command that takes none") << QStringList{u"undo-import"_s, u"-h"_s}
                                                         << u"usage: platterbox [--data-dir DIR] undo-import\n\n"_s;
    }
    void answersWithoutADataFolder()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, output);
        const QString folder = m_dir->filePath(u"collection"_s);
        const CliRun answer = runCommand(QStringList{u"--data-dir"_s, folder} + arguments);
        QCOMPARE(answer.code, int(CliOk));
        QCOMPARE(answer.out.left(output.size()), output);
        QCOMPARE(answer.err, QString());
        QVERIFY(!QFileInfo::exists(folder));
    }

    void demoContinuesNumbering()
    {
        QCOMPARE(run({u"demo"_s, u"3"_s}).code, int(CliOk));
        QCOMPARE(run({u"demo"_s, u"32765"_s}).code, int(CliBadInput));
        QCOMPARE(run({u"demo"_s, u"2"_s}).code, int(CliOk));
        const CliRun stats = run({u"stats"_s});
        QCOMPARE(stats.code, int(CliOk));
        QVERIFY(stats.out.startsWith(u"Records: 5\nCopies: "_s) && stats.out.contains(u"Total value: $"_s));
    }

    // A file the import cannot take, or an export that cannot be written, leaves the store as
    // it was and says why (exit 1).
    void refusedFilesChangeNothing_data()
    {
        QTest::addColumn<QStringList>("arguments"); // DIR is the data folder, FILE the file in it
        QTest::addColumn<QByteArray>("bytes");      // written to FILE
        QTest::addColumn<QString>("message");
        const QStringList import{u"import"_s, u"FILE"_s};
        QTest::newRow("saved as Windows-1252")
            << import << QByteArray("[VINYLCOLLECTION]\n0.0^Beyonc\xe9^0.0^^^1^Lemonade^^^1^^^^0.0^^^\n") << u"Line 2 is not UTF-8"_s;
        QTest::newRow("no record section") << import << QByteArray("[TRACKCOLLECTION]\n3.0^Song^1^1^\n")
                                           << u"no [VINYLCOLLECTION] section in "_s;
        QTest::newRow("exchange file into the wantlist")
            << QStringList{u"import"_s, u"--wantlist"_s, u"FILE"_s}
            << QByteArray("[VINYLCOLLECTION]\n0.0^Someone^0.0^^^1^Album^^^1^^^^0.0^^^\n")
            << u"platterbox: "_s + WantlistCsv::kNotAWantlist + u" in "_s;
        QTest::newRow("import a missing file") << QStringList{u"import"_s, u"DIR/missing.csv"_s} << QByteArray()
                                               << u"Cannot read"_s;
        QTest::newRow("import a folder") << QStringList{u"import"_s, u"DIR"_s} << QByteArray() << u"is a folder"_s;
        QTest::newRow("export into a missing folder") << QStringList{u"export"_s, u"DIR/no/such/folder.csv"_s}
                                                      << QByteArray() << u"cannot write"_s;
    }

    void refusedFilesChangeNothing()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        QCOMPARE(run({u"demo"_s, u"2"_s}).code, int(CliOk));
        const QString file = m_dir->filePath(u"in.csv"_s);
        QVERIFY(writeBytes(file, bytes));
        for (QString &a : arguments)
            a.replace(u"FILE"_s, file).replace(u"DIR"_s, m_dir->path());
        const QString before = run({u"stats"_s}).out;
        const qint64 wantedBefore = wantedCount();
        const CliRun r = run(arguments);
        QCOMPARE(r.code, int(CliBadInput));
        QVERIFY2(r.err.contains(message), qPrintable(r.err));
        QCOMPARE(run({u"stats"_s}).out, before);
        QCOMPARE(wantedCount(), wantedBefore);
    }

    void backupRestoreAndUndo()
    {
        const auto records = [&] { return run({u"stats"_s}).out.section(u'\n', 0, 0); };
        QCOMPARE(run({u"demo"_s, u"3"_s}).code, int(CliOk));
        const QString file = m_dir->filePath(u"three.platterbox"_s);
        const CliRun backup = run({u"backup"_s, file});
        QCOMPARE(backup.code, int(CliOk));
        QCOMPARE(backup.out, u"Backed up 3 records and 0 cover files to %1\n"_s.arg(file));
        QCOMPARE(run({u"demo"_s, u"2"_s}).code, int(CliOk));

        QCOMPARE(run({u"restore"_s, file}).code, int(CliOk));
        QCOMPARE(records(), u"Records: 3"_s);
        const CliRun undo = run({u"undo-import"_s});
        QCOMPARE(undo.code, int(CliOk));
        QVERIFY2(undo.out.startsWith(u"The collection is back as it was before the restore of three.platterbox on "_s),
                 qPrintable(undo.out));
        QCOMPARE(records(), u"Records: 5"_s);

        const CliRun nothing = run({u"undo-import"_s});
        QCOMPARE(nothing.code, int(CliBadInput));
        QCOMPARE(nothing.err, u"platterbox: There is no import or restore to undo.\n"_s);
        const CliRun notABackup = run({u"restore"_s, m_dir->filePath(u"Platterbox.sqlite"_s)});
        QCOMPARE(notABackup.code, int(CliBadInput));
        QCOMPARE(records(), u"Records: 5"_s);
    }

    void exportThenImportIntoAnotherStore()
    {
        QTemporaryDir target;
        QCOMPARE(run({u"demo"_s, u"5"_s}).code, int(CliOk));
        const QString file = m_dir->filePath(u"collection.csv"_s);
        QCOMPARE(run({u"export"_s, file, u"--no-images"_s}).code, int(CliOk));

        const CliRun imported = runCommand({u"--data-dir"_s, target.path(), u"import"_s, file});
        QVERIFY2(imported.out.startsWith(u"Platterbox exchange file: 5 records, "_s), qPrintable(imported.out));
        // The records come back exactly (tracks with a repeated song title on one record merge).
        const QString again = target.filePath(u"again.csv"_s);
        QCOMPARE(runCommand({u"--data-dir"_s, target.path(), u"export"_s, again, u"--no-images"_s}).code, int(CliOk));
        const auto records = [](const QByteArray &data) { return data.left(data.indexOf("[TRACKCOLLECTION]")); };
        QCOMPARE(records(fileBytes(again)), records(fileBytes(file)));
    }

    // The dry run prints what the import would do and changes nothing; the import prints what it did.
    void dryRunThenImport()
    {
        const QString file = QStringLiteral(PB_TEST_DATA "/discogs-collection.csv");
        const QString head = u"Discogs collection export: 12 records\nNot read: Rating, CollectionFolder, Date Added, Shelf\n"_s;
        const CliRun dry = run({u"import"_s, file, u"--dry-run"_s});
        QCOMPARE(dry.code, int(CliOk));
        QCOMPARE(dry.out, head + u"12 new, 0 updated, 0 unchanged, 0 problems\nDry run: nothing was changed.\n"_s);
        QVERIFY(run({u"stats"_s}).out.startsWith(u"Records: 0\n"_s));

        const CliRun imported = run({u"import"_s, file});
        QCOMPARE(imported.out, head + u"12 new, 0 updated, 0 unchanged, 0 problems\nData File Import Completed\n"_s);
        QVERIFY(run({u"stats"_s}).out.startsWith(u"Records: 12\n"_s));
        const CliRun again = run({u"import"_s, file, u"--dry-run"_s});
        QVERIFY2(again.out.contains(u"\n0 new, 0 updated, 12 unchanged, 0 problems\n"_s), qPrintable(again.out));
    }

    // A wantlist import adds wanted albums and never records; its dry run changes nothing, undo
    // takes the albums off again, and the wantlist's CSV file brings the same albums into
    // another store.
    void wantlistImportExportAndUndo()
    {
        QCOMPARE(run({u"demo"_s, u"2"_s}).code, int(CliOk));
        emptyWantlist();
        const QString file = QStringLiteral(PB_TEST_DATA "/discogs-wantlist.csv");
        const QString head = u"Discogs export: 5 albums\nNot read: Rating\n"_s;
        const QString skipped = u"Line 4: no name (the Title is empty)\nLine 7: the same album as line 3\n"_s;
        const CliRun dry = run({u"import"_s, u"--wantlist"_s, file, u"--dry-run"_s});
        QCOMPARE(dry.code, int(CliOk));
        QCOMPARE(dry.out, head + u"3 wanted albums to add, 2 to skip\n"_s + skipped + u"Dry run: nothing was changed.\n"_s);
        QCOMPARE(wantedCount(), 0);

        const CliRun imported = run({u"import"_s, u"--wantlist"_s, file});
        QCOMPARE(imported.code, int(CliOk));
        QCOMPARE(imported.out, head + u"3 wanted albums added, 2 skipped\n"_s + skipped);
        QCOMPARE(wantedCount(), 3);
        QVERIFY(run({u"stats"_s}).out.startsWith(u"Records: 2\n"_s));
        const CliRun again = run({u"import"_s, file, u"--wantlist"_s});
        QVERIFY2(again.out.contains(u"\n0 wanted albums added, 5 skipped\n"_s), qPrintable(again.out));

        QTemporaryDir target;
        const QString exported = m_dir->filePath(u"wantlist.csv"_s);
        QCOMPARE(run({u"export"_s, exported, u"--csv"_s, u"--wantlist"_s}).out, u"Wrote %1\n"_s.arg(exported));
        const CliRun copied = runCommand({u"--data-dir"_s, target.path(), u"import"_s, u"--wantlist"_s, exported});
        QCOMPARE(copied.out, u"CSV file: 3 albums\n3 wanted albums added, 0 skipped\n"_s);
        const QString again2 = target.filePath(u"again.csv"_s);
        QCOMPARE(runCommand({u"--data-dir"_s, target.path(), u"export"_s, again2, u"--csv"_s, u"--wantlist"_s}).code, int(CliOk));
        QCOMPARE(fileBytes(again2), fileBytes(exported));
        QCOMPARE(runCommand({u"--data-dir"_s, target.path(), u"stats"_s}).out.section(u'\n', 0, 0), u"Records: 0"_s);

        QCOMPARE(run({u"undo-import"_s}).code, int(CliOk));
        QCOMPARE(wantedCount(), 0);
        QVERIFY(run({u"stats"_s}).out.startsWith(u"Records: 2\n"_s));
    }

    void csvExportWritesTracksBesideOrInside_data()
    {
        QTest::addColumn<bool>("oneFile");
        QTest::newRow("second file") << false;
        QTest::newRow("second section") << true;
    }

    void csvExportWritesTracksBesideOrInside()
    {
        QFETCH(bool, oneFile);
        QCOMPARE(run({u"demo"_s, u"2"_s}).code, int(CliOk));
        const QString file = m_dir->filePath(u"collection.csv"_s);
        QStringList arguments{u"export"_s, file, u"--csv"_s};
        if (oneFile)
            arguments << u"--one-file"_s;
        const CliRun r = run(arguments);
        QCOMPARE(r.code, int(CliOk));
        const QString tracksFile = m_dir->filePath(u"collection-tracks.csv"_s);
        QCOMPARE(r.out, u"Wrote "_s + file + u"\n"_s + (oneFile ? QString() : u"Wrote "_s + tracksFile + u"\n"_s));
        QCOMPARE(QFile::exists(tracksFile), !oneFile);
        const QByteArray tracksHeader = "vinylID,trackNumber,song,duration,writtenBy\r\n";
        const QByteArray section = "\r\n\r\n" + tracksHeader, ownFile = "\xEF\xBB\xBF" + tracksHeader;
        QCOMPARE(fileBytes(file).contains(section), oneFile);
        if (!oneFile)
            QVERIFY(fileBytes(tracksFile).startsWith(ownFile));
    }

    // `platterbox lookup`
    void listsTheCandidatesAndChangesNothing()
    {
        serveSaltRoads();
        const CliRun listed = run({u"lookup"_s, u"7391234567893"_s});
        QCOMPARE(listed.code, 0);
        const QStringList lines = listed.out.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines.first(), u"1. Ana Ström & The Quiet - Salt Roads (Harbour Light Records HLR-041, 2019-04-12, SE, 12\" Vinyl, 6 tracks)"_s);
        QVERIFY(lines.last().startsWith(u"2. "_s));
        QVERIFY(records().isEmpty());
    }

    // A photo of the sleeve: its code is read and looked up.
    void readsTheBarcodeFromAPhoto()
    {
        serveSaltRoads();
        const QString photo = QDir(m_dir->path()).filePath(u"sleeve.png"_s);
        QVERIFY(barcodePicture(ZXing::BarcodeFormat::EAN13, u"739123456789"_s).save(photo)); // check digit 0
        const CliRun listed = run({u"lookup"_s, u"--image"_s, photo});
        QCOMPARE(listed.code, 0);
        QVERIFY(listed.out.startsWith(u"Read EAN-13 7391234567890 from "_s));
        QVERIFY(m_service->received.first().target.contains(u"barcode:7391234567890"_s));
    }

    // --add stores the chosen release with its tracks and covers, once.
    void addsTheReleaseOnce()
    {
        serveSaltRoads();
        const CliRun added = run({u"lookup"_s, u"--search"_s, u"Ana Ström - Salt Roads"_s, u"--add"_s});
        QCOMPARE(added.err, QString());
        QCOMPARE(added.code, 0);
        QCOMPARE(added.out, u"Added \"Salt Roads\" by Ana Ström & The Quiet (record 1) with 6 tracks and 1 cover\n"_s);
        const QList<Vinyl> stored = records();
        QCOMPARE(stored.size(), 1);
        const Vinyl &v = stored.first();
        // The run length is the six tracks' 24:52.833.
        QCOMPARE(attributeTexts(v),
                 (QStringList{u"id=1"_s, u"name=Salt Roads"_s, u"artist=Ana Ström & The Quiet"_s, u"releaseDate=2019-04-12T00:00:00"_s,
                              u"recordLabel=Harbour Light Records"_s, u"albumDuration=24.9"_s, u"producer=Mira Kostova"_s,
                              u"recordSpeed=33 RPM"_s, u"doubleAlbum=Single Album"_s, u"notes=Catalog number: HLR-041"_s,
                              u"barcode=7391234567893"_s, u"musicBrainzReleaseId="_s + kSaltRoadsId}));
        auto store = Store::open(QDir(m_dir->path()).filePath(Store::kFileName));
        QVERIFY(store);
        const auto tracks = (*store)->fetchTracks(FetchRequest(Entity::Tracks).sortedBy(u"trackNumber"_s));
        QCOMPARE(tracks->size(), 6);
        // Durations in minutes, as the track form keeps them: 3:21 is 3.35, 4:14.333 is 4.24.
        QCOMPARE(tracks->at(1).song.value_or(QString()), u"Tidewater"_s);
        QCOMPARE(tracks->at(0).duration.value_or(0), 3.35);
        QCOMPARE(tracks->at(1).duration.value_or(0), 4.24);
        QCOMPARE(tracks->at(1).vinylID.value_or(0), v.id.value_or(-1));
        QVERIFY((*store)->vinylByRowId(v.rowId).value()->frontImage);

        const CliRun again = run({u"lookup"_s, u"7391234567893"_s, u"--add"_s});
        QCOMPARE(again.code, 1);
        QCOMPARE(again.err, u"platterbox: already in the collection: \"Salt Roads\" by Ana Ström & The Quiet (record 1); nothing was added\n"_s);
        QCOMPARE(records().size(), 1);
    }

    // Every failure says why, and leaves the collection as it was.
    void failuresChangeNothing_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("searchAnswer"); // empty: the service is not there
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("error");
        const QByteArray none = R"({"created": "2024-05-02T10:11:12.000Z", "count": 0, "offset": 0, "releases": []})";
        QTest::newRow("no release") << QStringList{u"lookup"_s, u"4006381333931"_s, u"--add"_s} << none << 1
                                    << u"platterbox: no release found for 4006381333931\n"_s;
        QTest::newRow("unreachable") << QStringList{u"lookup"_s, u"4006381333931"_s, u"--add"_s} << QByteArray() << 1
                                     << u"platterbox: "_s;
        QTest::newRow("pick past the list") << QStringList{u"lookup"_s, u"4006381333931"_s, u"--add"_s, u"--pick"_s, u"3"_s}
                                            << catalogueAnswer(u"search-salt-roads.json"_s) << 1
                                            << u"platterbox: there are only 2 candidates\n"_s;
        QTest::newRow("nothing to look up") << QStringList{u"lookup"_s} << none << 2 << u"usage: "_s;
        QTest::newRow("two things") << QStringList{u"lookup"_s, u"4006381333931"_s, u"--search"_s, u"A - B"_s} << none << 2
                                    << u"usage: "_s;
        QTest::newRow("pick without add") << QStringList{u"lookup"_s, u"4006381333931"_s, u"--pick"_s, u"2"_s} << none << 2
                                          << u"usage: "_s;
        QTest::newRow("not a barcode") << QStringList{u"lookup"_s, u"12ab"_s} << none << 2
                                       << u"platterbox: \"12ab\" is not a barcode: give its 8, 12 or 13 digits\n"_s;
    }

    void failuresChangeNothing()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, searchAnswer);
        QFETCH(int, code);
        QFETCH(QString, error);
        if (searchAnswer.isEmpty())
            pointClientsAt(u"http://127.0.0.1:1/"_s); // nothing listens there
        else
            m_service->answer(u"/ws/2/release/"_s, {{200, searchAnswer}});
        const CliRun failed = run(arguments);
        QCOMPARE(failed.code, code);
        QVERIFY2(failed.err.startsWith(error), qPrintable(failed.err));
        QVERIFY(records().isEmpty());
    }
};

QTEST_MAIN(CliTest)
#include "tst_cli.moc"
