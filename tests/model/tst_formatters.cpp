#include "formatters.h"
#include "testsupport.h"

#include <QTest>

using namespace Qt::StringLiterals;

class FormattersTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    void currencyAndTwoDecimals_data()
    {
        QTest::addColumn<double>("amount");
        QTest::addColumn<QString>("currency");
        QTest::addColumn<QString>("twoDecimals");
        QTest::newRow("12.5") << 12.5 << u"$12.50"_s << u"12.50"_s;
        QTest::newRow("grouping") << 1234.5 << u"$1,234.50"_s << u"1,234.50"_s;
        QTest::newRow("zero") << 0.0 << u"$0.00"_s << u"0.00"_s;
        QTest::newRow("beyond 16 bits") << 40000.0 << u"$40,000.00"_s << u"40,000.00"_s;
    }
    void currencyAndTwoDecimals()
    {
        QFETCH(double, amount);
        QFETCH(QString, currency);
        QFETCH(QString, twoDecimals);
        QCOMPARE(Formatters::currency(amount), currency);
        QCOMPARE(Formatters::twoDecimals(amount), twoDecimals);
    }

    void dates()
    {
        const QDateTime date(QDate(1975, 3, 5), QTime(0, 0));
        QCOMPARE(Formatters::mediumDate(date), u"Mar 5, 1975"_s);
        QCOMPARE(Formatters::longDate(date), u"March 5, 1975"_s);
        QCOMPARE(Formatters::year(date), u"1975"_s);
        QCOMPARE(Formatters::monthYear(date), u"March-1975"_s);
        // Late in the evening local time is still that day, whatever UTC says.
        QCOMPARE(Formatters::mediumDate(QDateTime(QDate(1975, 12, 31), QTime(23, 30))), u"Dec 31, 1975"_s);
    }

    void mediumDateReadsBack_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("expected");
        QTest::newRow("medium") << u"Jan 5, 2021"_s << QDate(2021, 1, 5);
        QTest::newRow("not a date") << u"yesterday"_s << QDate();
        QTest::newRow("trailing text") << u"Jan 5, 2021 extra"_s << QDate();
        QTest::newRow("empty") << u""_s << QDate();
    }
    void mediumDateReadsBack()
    {
        QFETCH(QString, text);
        QFETCH(QDate, expected);
        const auto parsed = Formatters::parseMediumDate(text);
        QCOMPARE(parsed.has_value(), expected.isValid());
        if (parsed) {
            QCOMPARE(parsed->date(), expected);
            QCOMPARE(parsed->time(), QTime(0, 0));
        }
    }

    void decimalsReadBack_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<double>("expected");
        QTest::newRow("plain") << u"12.5"_s << true << 12.5;
        QTest::newRow("grouped") << u"1,234.5"_s << true << 1234.5;
        QTest::newRow("two points") << u"1.2.3"_s << false << 0.0;
        QTest::newRow("letters") << u"12abc"_s << false << 0.0;
    }
    void decimalsReadBack()
    {
        QFETCH(QString, text);
        QFETCH(bool, ok);
        QFETCH(double, expected);
        const auto parsed = Formatters::parseDecimal(text);
        QCOMPARE(parsed.has_value(), ok);
        if (ok)
            QCOMPARE(*parsed, expected);
    }

    void shortestDoubleText_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("expected");
        QTest::newRow("whole") << 45.0 << u"45.0"_s;
        QTest::newRow("half") << 45.5 << u"45.5"_s;
        QTest::newRow("zero") << 0.0 << u"0.0"_s;
        QTest::newRow("small") << 0.00001 << u"1e-05"_s;
        QTest::newRow("ten thousandth") << 0.0001 << u"0.0001"_s;
        QTest::newRow("duration") << 3.45 << u"3.45"_s;
        QTest::newRow("huge") << 1e16 << u"1e+16"_s;
        QTest::newRow("negative") << -5.0 << u"-5.0"_s;
    }
    void shortestDoubleText()
    {
        QFETCH(double, value);
        QFETCH(QString, expected);
        QCOMPARE(Formatters::shortest(value), expected);
    }

    void shortestFloatText_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<QString>("expected");
        QTest::newRow("12.5") << 12.5f << u"12.5"_s;
        QTest::newRow("not widened") << 19.99f << u"19.99"_s;
        QTest::newRow("zero") << 0.0f << u"0.0"_s;
        QTest::newRow("2^24") << 16777216.0f << u"1.6777216e+07"_s;
    }
    void shortestFloatText()
    {
        QFETCH(float, value);
        QFETCH(QString, expected);
        QCOMPARE(Formatters::shortest(value), expected);
    }

    void posixLocaleFallsBackToEnglish()
    {
        QLocale::setDefault(QLocale::c());
        QCOMPARE(Formatters::icuLocaleName(), u"en_US"_s);
        QCOMPARE(Formatters::currency(12.5), u"$12.50"_s);
        useTestLocale();
    }

    void followsTheCurrentLocale()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(Formatters::twoDecimals(1234.5), u"1.234,50"_s);
        useTestLocale();
        QCOMPARE(Formatters::twoDecimals(1234.5), u"1,234.50"_s);
    }
};

QTEST_MAIN(FormattersTest)
#include "tst_formatters.moc"
