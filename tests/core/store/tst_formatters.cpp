#include "store/formatters.h"
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

    // Numbers are read as the locale writes them; grouping in the wrong place does not read.
    void numbersReadInTheLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<double>>("number");
        QTest::addColumn<std::optional<double>>("amount");
        const std::optional<double> none;
        QTest::newRow("en plain") << u"en_US"_s << u"12.5"_s << std::optional(12.5) << std::optional(12.5);
        QTest::newRow("en grouped") << u"en_US"_s << u"1,234.5"_s << std::optional(1234.5) << std::optional(1234.5);
        QTest::newRow("en pasted dollars") << u"en_US"_s << u"$12.50"_s << none << std::optional(12.5);
        QTest::newRow("en two points") << u"en_US"_s << u"1.2.3"_s << none << none;
        QTest::newRow("en comma as a point") << u"en_US"_s << u"12,50"_s << none << none;
        QTest::newRow("en letters") << u"en_US"_s << u"12abc"_s << none << none;
        QTest::newRow("en exponent") << u"en_US"_s << u"1e-05"_s << std::optional(0.00001) << std::optional(0.00001);
        QTest::newRow("de grouped") << u"de_DE"_s << u"1.234,50"_s << std::optional(1234.5) << std::optional(1234.5);
        QTest::newRow("de plain") << u"de_DE"_s << u"12,5"_s << std::optional(12.5) << std::optional(12.5);
        QTest::newRow("de euros") << u"de_DE"_s << u"12,50\u00A0\u20AC"_s << none << std::optional(12.5);
        QTest::newRow("de point is no decimal point") << u"de_DE"_s << u"12.5"_s << none << none;
        QTest::newRow("fr narrow no-break space") << u"fr_FR"_s << u"12\u202F345,50"_s << std::optional(12345.5)
                                                  << std::optional(12345.5);
        QTest::newRow("fr no-break space") << u"fr_FR"_s << u"12\u00A0345,5"_s << std::optional(12345.5)
                                           << std::optional(12345.5);
        QTest::newRow("fr typed space") << u"fr_FR"_s << u"12 345,50"_s << std::optional(12345.5)
                                        << std::optional(12345.5);
        QTest::newRow("fr short group") << u"fr_FR"_s << u"12 34,5"_s << none << none;
    }
    void numbersReadInTheLocale()
    {
        QFETCH(QString, locale);
        QFETCH(QString, text);
        QFETCH(std::optional<double>, number);
        QFETCH(std::optional<double>, amount);
        ScopedLocale scoped(locale);
        QCOMPARE(Formatters::parseDecimal(text), number);
        QCOMPARE(Formatters::parseAmount(text), amount);
    }

    // What the formatters write reads back to the same number.
    void writtenNumbersReadBack_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("length");
        QTest::newRow("en_US") << u"en_US"_s << u"45.5"_s;
        QTest::newRow("de_DE") << u"de_DE"_s << u"45,5"_s;
        QTest::newRow("fr_FR") << u"fr_FR"_s << u"45,5"_s;
        QTest::newRow("hi_IN") << u"hi_IN"_s << u"45.5"_s;
        QTest::newRow("ar_EG") << u"ar_EG"_s << u"45\u066B5"_s;
    }
    void writtenNumbersReadBack()
    {
        QFETCH(QString, locale);
        QFETCH(QString, length);
        ScopedLocale scoped(locale);
        QCOMPARE(Formatters::shortestInLocale(45.5), length);
        QCOMPARE(Formatters::parseDecimal(length), std::optional(45.5));
        for (const double amount : {-1234567.5, 0.1, 12345.5}) {
            QCOMPARE(Formatters::parseDecimal(Formatters::twoDecimals(amount)), std::optional(amount));
            QCOMPARE(Formatters::parseAmount(Formatters::currency(amount)), std::optional(amount));
        }
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
};

QTEST_MAIN(FormattersTest)
#include "tst_formatters.moc"
