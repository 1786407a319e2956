#include "cli.h"
#include "testsupport.h"

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

    void demoThenStats()
    {
        QTemporaryDir dir;
        QCOMPARE(run({u"--data-dir"_s, dir.path(), u"demo"_s, u"500"_s}).code, int(CliOk));
        const Run stats = run({u"--data-dir"_s, dir.path(), u"stats"_s});
        QCOMPARE(stats.code, int(CliOk));
        QVERIFY(stats.out.startsWith(u"Records: 500\nCopies: "_s));
        QVERIFY(stats.out.contains(u"Total value: $"_s));
    }

    void emptyStoreStats()
    {
        QTemporaryDir dir;
        const Run stats = run({u"--data-dir="_s + dir.path(), u"stats"_s});
        QCOMPARE(stats.out, u"Records: 0\nCopies: 0\nTotal value: $0.00\n"_s);
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
        QVERIFY(run({u"--data-dir"_s, dir.path(), u"stats"_s}).out.startsWith(u"Records: 5\n"_s));
    }
};

QTEST_MAIN(CliTest)
#include "tst_cli.moc"
