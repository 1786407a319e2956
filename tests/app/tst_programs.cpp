// The two programs as a user or a script starts them: --version and --help answer without a
// window or a data folder, and standard error carries only Platterbox's own messages.
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class ProgramsTest : public QObject
{
    Q_OBJECT

private slots:
    void runWithoutASessionOrADisplay_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("arguments"); // DIR: a data folder that does not exist
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("output"); // how standard output begins
        QTest::addColumn<QString>("error");  // standard error, all of it
        QTest::addColumn<bool>("opens");     // whether the data folder is made
        const QString app = QStringLiteral(PB_APP_PROGRAM);
        const QString cli = QStringLiteral(PB_CLI_PROGRAM);
        const QString version = u"Platterbox " PB_PROJECT_VERSION "\n"_s;
        QTest::newRow("app --version") << app << QStringList{u"--version"_s} << 0 << version << QString() << false;
        QTest::newRow("app --help") << app << QStringList{u"--data-dir"_s, u"DIR"_s, u"--help"_s} << 0
                                    << u"usage: platterbox-app [--data-dir DIR]\n"_s << QString() << false;
        QTest::newRow("app -h") << app << QStringList{u"-h"_s} << 0 << u"usage: platterbox-app [--data-dir DIR]\n"_s
                                << QString() << false;
        QTest::newRow("command-line --version") << cli << QStringList{u"--version"_s} << 0 << version << QString() << false;
        QTest::newRow("a command's --help") << cli << QStringList{u"--data-dir"_s, u"DIR"_s, u"stats"_s, u"--help"_s} << 0
                                            << u"usage: platterbox [--data-dir DIR] stats [--json]\n"_s << QString() << false;
        QTest::newRow("a command's usage error") << cli << QStringList{u"--data-dir"_s, u"DIR"_s, u"stats"_s, u"x"_s} << 2
                                                 << QString() << u"usage: platterbox [--data-dir DIR] stats [--json]\n"_s << false;
        // Qt would otherwise say on every run that it picked a runtime folder itself.
        QTest::newRow("a command on the collection") << cli << QStringList{u"--data-dir"_s, u"DIR"_s, u"stats"_s} << 0
                                                     << u"Records: 0\n"_s << QString() << true;
    }

    // Run as cron or a login without a session runs them: no XDG_RUNTIME_DIR, and no display, so
    // the window program would fail at once had it made its application to answer.
    void runWithoutASessionOrADisplay()
    {
        QFETCH(QString, program);
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QString, output);
        QFETCH(QString, error);
        QFETCH(bool, opens);
        QTemporaryDir scratch;
        const QString folder = scratch.filePath(u"collection"_s);
        arguments.replaceInStrings(u"DIR"_s, folder);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &name : {u"XDG_RUNTIME_DIR"_s, u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            environment.remove(name);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        QVERIFY2(process.waitForFinished(), qPrintable(program));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        const QString err = QString::fromLocal8Bit(process.readAllStandardError());
        QCOMPARE(err, error);
        QCOMPARE(process.exitCode(), code);
        const QString out = QString::fromLocal8Bit(process.readAllStandardOutput());
        QCOMPARE(out.left(output.size()), output);
        QCOMPARE(QFileInfo::exists(folder), opens);
    }
};

QTEST_GUILESS_MAIN(ProgramsTest)
#include "tst_programs.moc"
