#include "cli/cli.h"
#include "testsupport.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
struct Run
{
    int code = -1;
    QString out;
    QString err;
};

Run run(const QStringList &arguments)
{
    Run r;
    QTextStream out(&r.out);
    QTextStream err(&r.err);
    r.code = runCli(arguments, out, err);
    return r;
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

class TestExchangeCli : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    void exitCodes_data()
    {
        QTest::addColumn<QStringList>("arguments"); // DIR is the data folder, FILE a file in it
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("export") << QStringList{u"export"_s, u"FILE"_s} << int(CliOk) << QString();
        QTest::newRow("export without images") << QStringList{u"export"_s, u"FILE"_s, u"--no-images"_s} << int(CliOk) << QString();
        QTest::newRow("export without a file") << QStringList{u"export"_s} << int(CliBadUsage) << u"usage:"_s;
        QTest::newRow("export into a missing folder") << QStringList{u"export"_s, u"DIR/no/such/folder.csv"_s}
                                                      << int(CliBadInput) << u"cannot write"_s;
        QTest::newRow("import a missing file") << QStringList{u"import"_s, u"DIR/missing.csv"_s} << int(CliBadInput)
                                               << u"Cannot read"_s;
        QTest::newRow("import a folder") << QStringList{u"import"_s, u"DIR"_s} << int(CliBadInput) << u"is a folder"_s;
        QTest::newRow("CSV export") << QStringList{u"export"_s, u"FILE"_s, u"--csv"_s} << int(CliOk) << QString();
        QTest::newRow("one file without --csv") << QStringList{u"export"_s, u"FILE"_s, u"--one-file"_s} << int(CliBadUsage)
                                                << u"usage:"_s;
        QTest::newRow("import two files") << QStringList{u"import"_s, u"a"_s, u"b"_s} << int(CliBadUsage) << u"usage:"_s;
    }

    void exitCodes()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QString, message);
        QTemporaryDir dir;
        for (QString &a : arguments)
            a.replace(u"FILE"_s, dir.filePath(u"out.csv"_s)).replace(u"DIR"_s, dir.path());
        const Run r = run(QStringList{u"--data-dir"_s, dir.path()} + arguments);
        QCOMPARE(r.code, code);
        if (!message.isEmpty())
            QVERIFY2(r.err.contains(message), qPrintable(r.err));
    }

    // A file the import cannot take leaves the store as it was and says why (exit 1).
    void refusedFilesChangeNothing_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("message");
        QTest::newRow("saved as Windows-1252")
            << QByteArray("[VINYLCOLLECTION]\n0.0^Beyonc\xe9^0.0^^^1^Lemonade^^^1^^^^0.0^^^\n") << u"Line 2 is not UTF-8"_s;
        QTest::newRow("no record section") << QByteArray("[TRACKCOLLECTION]\n3.0^Song^1^1^\n")
                                           << u"no [VINYLCOLLECTION] section in "_s;
    }

    void refusedFilesChangeNothing()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        QTemporaryDir dir;
        QCOMPARE(run({u"--data-dir"_s, dir.path(), u"demo"_s, u"2"_s}).code, int(CliOk));
        const QString file = dir.filePath(u"in.csv"_s);
        QFile out(file);
        QVERIFY(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size());
        out.close();
        const QString before = run({u"--data-dir"_s, dir.path(), u"stats"_s}).out;
        const Run r = run({u"--data-dir"_s, dir.path(), u"import"_s, file});
        QCOMPARE(r.code, int(CliBadInput));
        QVERIFY2(r.err.contains(message), qPrintable(r.err));
        QCOMPARE(run({u"--data-dir"_s, dir.path(), u"stats"_s}).out, before);
    }

    void backupRestoreAndUndo()
    {
        QTemporaryDir dir;
        const QStringList data{u"--data-dir"_s, dir.path()};
        const auto records = [&] { return run(data + QStringList{u"stats"_s}).out.section(u'\n', 0, 0); };
        QCOMPARE(run(data + QStringList{u"demo"_s, u"3"_s}).code, int(CliOk));
        const QString file = dir.filePath(u"three.platterbox"_s);
        const Run backup = run(data + QStringList{u"backup"_s, file});
        QCOMPARE(backup.code, int(CliOk));
        QCOMPARE(backup.out, u"Backed up 3 records and 0 cover files to %1\n"_s.arg(file));
        QCOMPARE(run(data + QStringList{u"demo"_s, u"2"_s}).code, int(CliOk));

        QCOMPARE(run(data + QStringList{u"restore"_s, file}).code, int(CliOk));
        QCOMPARE(records(), u"Records: 3"_s);
        const Run undo = run(data + QStringList{u"undo-import"_s});
        QCOMPARE(undo.code, int(CliOk));
        QVERIFY2(undo.out.startsWith(u"The collection is back as it was before the restore of three.platterbox on "_s),
                 qPrintable(undo.out));
        QCOMPARE(records(), u"Records: 5"_s);

        const Run nothing = run(data + QStringList{u"undo-import"_s});
        QCOMPARE(nothing.code, int(CliBadInput));
        QCOMPARE(nothing.err, u"platterbox: There is no import or restore to undo.\n"_s);
        const Run notABackup = run(data + QStringList{u"restore"_s, dir.filePath(u"Platterbox.sqlite"_s)});
        QCOMPARE(notABackup.code, int(CliBadInput));
        QCOMPARE(records(), u"Records: 5"_s);
    }

    void exportThenImportIntoAnotherStore()
    {
        QTemporaryDir source, target;
        QCOMPARE(run({u"--data-dir"_s, source.path(), u"demo"_s, u"5"_s}).code, int(CliOk));
        const QString file = source.filePath(u"collection.csv"_s);
        QCOMPARE(run({u"--data-dir"_s, source.path(), u"export"_s, file, u"--no-images"_s}).code, int(CliOk));

        QCOMPARE(run({u"--data-dir"_s, target.path(), u"import"_s, file}).code, int(CliOk));
        // Imported again, every line is unchanged (a song can recur on a record).
        const Run imported = run({u"--data-dir"_s, target.path(), u"import"_s, file});
        QVERIFY2(imported.out.startsWith(u"Platterbox exchange file: 5 records, "_s), qPrintable(imported.out));
        QVERIFY2(imported.out.contains(u"\n0 new, 0 updated, "_s), qPrintable(imported.out));
        const Run stats = run({u"--data-dir"_s, target.path(), u"stats"_s});
        QVERIFY2(stats.out.startsWith(u"Records: 5\n"_s), qPrintable(stats.out));

        // The records come back exactly (tracks with a repeated song title on one record merge).
        const QString again = target.filePath(u"again.csv"_s);
        QCOMPARE(run({u"--data-dir"_s, target.path(), u"export"_s, again, u"--no-images"_s}).code, int(CliOk));
        const auto records = [](const QByteArray &data) { return data.left(data.indexOf("[TRACKCOLLECTION]")); };
        QCOMPARE(records(readAll(again)), records(readAll(file)));
    }

    // The dry run prints what the import would do and changes nothing; the import prints what it did.
    void dryRunThenImport()
    {
        QTemporaryDir dir;
        const QString file = QStringLiteral(PB_TEST_DATA "/discogs-collection.csv");
        const QString head = u"Discogs collection export: 12 records\nNot read: Rating, CollectionFolder, Date Added, Shelf\n"_s;
        const Run dry = run({u"--data-dir"_s, dir.path(), u"import"_s, file, u"--dry-run"_s});
        QCOMPARE(dry.code, int(CliOk));
        QCOMPARE(dry.out, head + u"12 new, 0 updated, 0 unchanged, 0 problems\nDry run: nothing was changed.\n"_s);
        QVERIFY(run({u"--data-dir"_s, dir.path(), u"stats"_s}).out.startsWith(u"Records: 0\n"_s));

        const Run imported = run({u"--data-dir"_s, dir.path(), u"import"_s, file});
        QCOMPARE(imported.out, head + u"12 new, 0 updated, 0 unchanged, 0 problems\nData File Import Completed\n"_s);
        QVERIFY(run({u"--data-dir"_s, dir.path(), u"stats"_s}).out.startsWith(u"Records: 12\n"_s));
        const Run again = run({u"--data-dir"_s, dir.path(), u"import"_s, file, u"--dry-run"_s});
        QVERIFY2(again.out.contains(u"\n0 new, 0 updated, 12 unchanged, 0 problems\n"_s), qPrintable(again.out));
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
        QTemporaryDir dir;
        QCOMPARE(run({u"--data-dir"_s, dir.path(), u"demo"_s, u"2"_s}).code, int(CliOk));
        const QString file = dir.filePath(u"collection.csv"_s);
        QStringList arguments{u"--data-dir"_s, dir.path(), u"export"_s, file, u"--csv"_s};
        if (oneFile)
            arguments << u"--one-file"_s;
        const Run r = run(arguments);
        QCOMPARE(r.code, int(CliOk));
        const QString tracksFile = dir.filePath(u"collection-tracks.csv"_s);
        QCOMPARE(r.out, u"Wrote "_s + file + u"\n"_s + (oneFile ? QString() : u"Wrote "_s + tracksFile + u"\n"_s));
        QCOMPARE(QFile::exists(tracksFile), !oneFile);
        const QByteArray tracksHeader = "vinylID,trackNumber,song,duration,writtenBy\r\n";
        const QByteArray section = "\r\n\r\n" + tracksHeader, ownFile = "\xEF\xBB\xBF" + tracksHeader;
        QCOMPARE(readAll(file).contains(section), oneFile);
        if (!oneFile)
            QVERIFY(readAll(tracksFile).startsWith(ownFile));
    }
};

QTEST_MAIN(TestExchangeCli)
#include "tst_exchangecli.moc"
