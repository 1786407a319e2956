// The two programs as a user or a script starts them: --version and --help answer without a
// window or a data folder, standard error carries only Platterbox's own messages, and people read
// the system's language while scripts read the same bytes in every language.
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

    void speaksTheSystemLanguage_data()
    {
        QTest::addColumn<QString>("lang");
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("output");
        QTest::addColumn<QString>("error");
        const QString german = u"de_DE.UTF-8"_s;
        const QString cli = QStringLiteral(PB_CLI_PROGRAM);
        QTest::newRow("German figures") << german << cli << QStringList{u"stats"_s} << 0
                                        << u"Platten: 0\nExemplare: 0\nGesamtwert: 0,00\u00a0\u20ac\n"_s << QString();
        QTest::newRow("a German error") << german << cli << QStringList{u"demo"_s, u"0"_s} << 1 << QString()
                                        << u"platterbox: N muss zwischen 1 und 32767 liegen\n"_s;
        QTest::newRow("German usage") << german << cli << QStringList{u"stats"_s, u"x"_s} << 2 << QString()
                                      << u"Aufruf: platterbox [--data-dir DIR] stats [--json]\n"_s;
        QTest::newRow("English in the C locale") << u"C"_s << cli << QStringList{u"stats"_s} << 0
                                                 << u"Records: 0\nCopies: 0\nTotal value: $0.00\n"_s << QString();
        QTest::newRow("English in Britain") << u"en_GB.UTF-8"_s << cli << QStringList{u"demo"_s, u"0"_s} << 1 << QString()
                                            << u"platterbox: N must be between 1 and 32767\n"_s;
        // The window program's help is read before it has a window.
        QTest::newRow("the window's German help")
            << german << QStringLiteral(PB_APP_PROGRAM) << QStringList{u"--help"_s} << 0
            << u"Aufruf: platterbox-app [--data-dir DIR]\n\nDas Fenster von Platterbox.\n\nOptionen:\n"
               "  --data-dir DIR    Mit der Sammlung in DIR arbeiten statt in $PLATTERBOX_DATA_DIR oder im "
               "Datenordner der App.\n"
               "  -h, --help        Diese Optionen ausgeben und beenden.\n"
               "  --version         Name und Version ausgeben und beenden.\n"_s
            << QString();
        // A language without a translation reads English, in its own formats.
        QTest::newRow("English in France") << u"fr_FR.UTF-8"_s << cli << QStringList{u"stats"_s} << 0
                                           << u"Records: 0\nCopies: 0\nTotal value: 0,00\u00a0\u20ac\n"_s << QString();
    }

    void speaksTheSystemLanguage()
    {
        QFETCH(QString, lang);
        QFETCH(QString, program);
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QString, output);
        QFETCH(QString, error);
        QTemporaryDir scratch;
        QProcess process;
        process.setProcessEnvironment(speaking(lang));
        process.start(program, QStringList{u"--data-dir"_s, scratch.path()} + arguments);
        QVERIFY(process.waitForFinished());
        QCOMPARE(QString::fromUtf8(process.readAllStandardError()), error);
        QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), output);
        QCOMPARE(process.exitCode(), code);
    }

    // What scripts read is the same in every language, byte for byte.
    void scriptsReadTheSameInEveryLanguage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("stats --json") << QStringList{u"stats"_s, u"--json"_s};
        QTest::newRow("loans --json") << QStringList{u"loans"_s, u"--json"_s};
    }

    void scriptsReadTheSameInEveryLanguage()
    {
        QFETCH(QStringList, arguments);
        QTemporaryDir scratch;
        const QStringList dataDir{u"--data-dir"_s, scratch.path()};
        QProcess process;
        process.setProcessEnvironment(speaking(u"C"_s));
        process.start(QStringLiteral(PB_CLI_PROGRAM), dataDir + QStringList{u"demo"_s, u"30"_s});
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 0);
        QByteArray english;
        for (const QString &lang : {u"C"_s, u"de_DE.UTF-8"_s}) {
            process.setProcessEnvironment(speaking(lang));
            process.start(QStringLiteral(PB_CLI_PROGRAM), dataDir + arguments);
            QVERIFY(process.waitForFinished());
            QCOMPARE(process.exitCode(), 0);
            const QByteArray out = process.readAllStandardOutput();
            QVERIFY(out.size() > 100);
            if (english.isEmpty())
                english = out;
            else
                QCOMPARE(out, english);
        }
    }

private:
    // The environment of a user whose only language setting is LANG.
    static QProcessEnvironment speaking(const QString &lang)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &name : {u"LANGUAGE"_s, u"LC_ALL"_s, u"LC_MESSAGES"_s, u"LC_NUMERIC"_s, u"LC_MONETARY"_s})
            environment.remove(name);
        environment.insert(u"LANG"_s, lang);
        return environment;
    }
};

QTEST_GUILESS_MAIN(ProgramsTest)
#include "tst_programs.moc"
