#include "cli/cli.h"
#include "store/store.h"
#include "testsupport.h"

#include <QScopeGuard>
#include <QTest>

using namespace Qt::StringLiterals;

class CliTest : public QObject
{
    Q_OBJECT

private:
    struct Run
    {
        int code;
        QString out;
        QString err;
    };
    Run run(const QStringList &arguments)
    {
        QString out, err;
        QTextStream outStream(&out), errStream(&err);
        const int code = runCli(arguments, outStream, errStream);
        return {code, out, err};
    }

private slots:
    void initTestCase() { useTestLocale(); }

    void emptyStoreStats()
    {
        QTemporaryDir dir;
        const Run stats = run({u"--data-dir="_s + dir.path(), u"stats"_s});
        QCOMPARE(stats.out, u"Records: 0\nCopies: 0\nTotal value: $0.00\n"_s);
    }

    // A collection in a folder that cannot be written is looked at, exported and backed up;
    // every change exits 1 with the one message, and nothing is written into the folder.
    void readOnlyCollectionIsReadButNotChanged_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("made"); // the file the command writes outside the folder
        QTest::newRow("stats") << QStringList{u"stats"_s} << QString();
        QTest::newRow("export") << QStringList{u"export"_s, u"OUT/c.txt"_s} << u"OUT/c.txt"_s;
        QTest::newRow("report") << QStringList{u"report"_s, u"--pdf"_s, u"OUT/r.pdf"_s} << u"OUT/r.pdf"_s;
        QTest::newRow("backup") << QStringList{u"backup"_s, u"OUT/c.backup"_s} << u"OUT/c.backup"_s;
        QTest::newRow("import") << QStringList{u"import"_s, u"OUT/new.csv"_s} << QString();
        QTest::newRow("demo") << QStringList{u"demo"_s, u"2"_s} << QString();
        QTest::newRow("restore") << QStringList{u"restore"_s, u"OUT/c.backup"_s} << QString();
        QTest::newRow("undo-import") << QStringList{u"undo-import"_s} << QString();
    }
    void readOnlyCollectionIsReadButNotChanged()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, made);
        QTemporaryDir dir, out;
        QCOMPARE(run({u"--data-dir"_s, dir.path(), u"demo"_s, u"3"_s}).code, int(CliOk));
        QCOMPARE(run({u"--data-dir"_s, dir.path(), u"backup"_s, out.filePath(u"c.backup"_s)}).code, int(CliOk));
        QFile csv(out.filePath(u"new.csv"_s));
        QVERIFY(csv.open(QIODevice::WriteOnly) && csv.write("name,artist\nNew,One\n") > 0);
        csv.close();
        const QFile::Permissions permissions = QFile::permissions(dir.path());
        QVERIFY(QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup));
        const auto restore = qScopeGuard([&] { QFile::setPermissions(dir.path(), permissions); });
        const auto listing = [&] {
            QStringList entries;
            for (const QFileInfo &entry : QDir(dir.path()).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name))
                entries << entry.fileName() + u' ' + QString::number(entry.size()) + u' ' + entry.lastModified().toString(Qt::ISODateWithMs);
            return entries;
        };
        const QStringList before = listing();

        arguments.replaceInStrings(u"OUT"_s, out.path());
        const Run result = run(QStringList{u"--data-dir"_s, dir.path()} + arguments);
        if (made.isEmpty() && arguments.first() != u"stats"_s) {
            QCOMPARE(result.code, int(CliBadInput));
            QCOMPARE(result.err, u"platterbox: "_s + Store::kReadOnlyMessage.arg(Store::kReadOnlyFolder.arg(dir.path())) + u"\n"_s);
        } else {
            QVERIFY2(result.code == CliOk, qPrintable(result.err));
            QVERIFY(made.isEmpty() || QFileInfo(made.replace(u"OUT"_s, out.path())).size() > 0);
        }
        QCOMPARE(listing(), before);
        QVERIFY(run({u"--data-dir"_s, dir.path(), u"stats"_s}).out.startsWith(u"Records: 3\n"_s));
    }

    void badUsageAndBadInput_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::newRow("no command") << QStringList{} << int(CliBadUsage);
        QTest::newRow("unknown command") << QStringList{u"dance"_s} << int(CliBadUsage);
        QTest::newRow("demo without N") << QStringList{u"demo"_s} << int(CliBadUsage);
        QTest::newRow("demo with words") << QStringList{u"demo"_s, u"many"_s} << int(CliBadUsage);
        QTest::newRow("demo beyond the numbers") << QStringList{u"demo"_s, u"40000"_s} << int(CliBadInput);
        QTest::newRow("stats with extra") << QStringList{u"stats"_s, u"x"_s} << int(CliBadUsage);
        QTest::newRow("data dir without folder") << QStringList{u"--data-dir"_s} << int(CliBadUsage);
        // An empty folder must not mean the collector's own collection.
        QTest::newRow("data dir empty after =") << QStringList{u"--data-dir="_s, u"demo"_s, u"3"_s} << int(CliBadUsage);
        QTest::newRow("data dir empty") << QStringList{u"--data-dir"_s, u""_s, u"demo"_s, u"3"_s} << int(CliBadUsage);
    }
    void badUsageAndBadInput()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QTemporaryDir dir;
        QStringList all = arguments;
        if (!arguments.contains(u"--data-dir"_s) && !arguments.contains(u"--data-dir="_s))
            all.prepend(dir.path()), all.prepend(u"--data-dir"_s);
        // Where the app's own data folder would be, had the option fallen back to it.
        QTemporaryDir home;
        qputenv("XDG_DATA_HOME", home.path().toUtf8());
        const Run result = run(all);
        qunsetenv("XDG_DATA_HOME");
        QCOMPARE(result.code, code);
        QVERIFY(!result.err.isEmpty());
        QVERIFY(QDir(home.path()).isEmpty());
    }

    void helpAnswersOnStandardOutputWithoutAStore()
    {
        QTemporaryDir dir;
        for (const QString &flag : {u"--help"_s, u"-h"_s}) {
            const Run help = run({u"--data-dir"_s, dir.path(), flag});
            QCOMPARE(help.code, int(CliOk));
            QVERIFY(help.out.startsWith(u"usage: platterbox [--data-dir DIR] COMMAND\n"_s));
            QVERIFY(help.err.isEmpty());
        }
        QVERIFY(!QFile::exists(dir.filePath(u"Platterbox.sqlite"_s)));
    }

    void demoContinuesNumbering()
    {
        QTemporaryDir dir;
        QCOMPARE(run({u"--data-dir"_s, dir.path(), u"demo"_s, u"3"_s}).code, int(CliOk));
        QCOMPARE(run({u"--data-dir"_s, dir.path(), u"demo"_s, u"32765"_s}).code, int(CliBadInput));
        QCOMPARE(run({u"--data-dir"_s, dir.path(), u"demo"_s, u"2"_s}).code, int(CliOk));
        const Run stats = run({u"--data-dir"_s, dir.path(), u"stats"_s});
        QCOMPARE(stats.code, int(CliOk));
        QVERIFY(stats.out.startsWith(u"Records: 5\nCopies: "_s) && stats.out.contains(u"Total value: $"_s));
    }
};

QTEST_MAIN(CliTest)
#include "tst_cli.moc"
