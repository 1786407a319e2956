#include "collection/valuation.h"
#include "testsupport.h"
#include "valuation/valuationviewcontroller.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
Vinyl addValued(TestApp &t, const QString &name, const QString &artist, const QString &label,
                std::optional<qint16> quantity, std::optional<float> value)
{
    Vinyl v = t.addVinyl(name, artist, label);
    v.quantity = quantity;
    v.value = value;
    (void)t.store().update(v);
    return v;
}
} // namespace

class TestValuation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    void searchAddress_data()
    {
        QTest::addColumn<QString>("artist");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("query");
        QTest::newRow("ampersand spelled out") << u"X"_s << u"Rock & Roll"_s
                                               << u"what+is+a+X+Rock+and+Roll+vinyl+record+album+worth"_s;
        QTest::newRow("doubled spaces") << u"The  Band"_s << u"Stage  Fright"_s
                                        << u"what+is+a+The+Band+Stage+Fright+vinyl+record+album+worth"_s;
        QTest::newRow("curly apostrophe removed") << u"Kid"_s << u"Don\u2019t Stop"_s
                                                  << u"what+is+a+Kid+Dont+Stop+vinyl+record+album+worth"_s;
        QTest::newRow("no artist picked") << QString() << u"Blue"_s << u"what+is+a+Blue+vinyl+record+album+worth"_s;
        QTest::newRow("quotes and percent encoded") << u"X"_s << u"12\" 100% Live"_s
                                                    << u"what+is+a+X+12%22+100%25+Live+vinyl+record+album+worth"_s;
        QTest::newRow("plus and accents encoded") << u"Bj\u00f6rk"_s << u"A+B"_s
                                                  << u"what+is+a+Bj%C3%B6rk+A%2BB+vinyl+record+album+worth"_s;
    }
    void searchAddress()
    {
        QFETCH(QString, artist);
        QFETCH(QString, name);
        QFETCH(QString, query);
        const QString address = Valuation::searchAddress(artist, name);
        QVERIFY(address.endsWith(u"?q="_s + query));
    }

    // A new value is read as the locale writes amounts and stored in every matching record;
    // one that does not read is refused and kept for correcting.
    void newValueReadsTheLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("typeable");
        QTest::addColumn<std::optional<float>>("stored");
        QTest::newRow("en plain") << u"en_US"_s << u"12.50"_s << true << std::optional<float>(12.5f);
        QTest::newRow("en pasted dollars") << u"en_US"_s << u"$12.50"_s << false << std::optional<float>(12.5f);
        QTest::newRow("en two points") << u"en_US"_s << u"1.2.3"_s << true << std::optional<float>();
        QTest::newRow("en letters") << u"en_US"_s << u"12a"_s << false << std::optional<float>();
        QTest::newRow("de grouped") << u"de_DE"_s << u"1.234,50"_s << true << std::optional<float>(1234.5f);
        QTest::newRow("de point") << u"de_DE"_s << u"12.5"_s << true << std::optional<float>();
        QTest::newRow("fr grouped") << u"fr_FR"_s << u"12 345,50"_s << true << std::optional<float>(12345.5f);
    }
    void newValueReadsTheLocale()
    {
        QFETCH(QString, locale);
        QFETCH(QString, text);
        QFETCH(bool, typeable);
        QFETCH(std::optional<float>, stored);
        ScopedLocale scoped(locale);
        QCOMPARE(ValuationViewController::typedValuePattern().match(text).capturedLength() == text.size(), typeable);

        TestApp t;
        addValued(t, u"Zero"_s, u"Ann"_s, u"Label"_s, 0, 7.0f);
        ValuationViewController screen(&t.app());
        screen.rowSelected(0);
        screen.setNewValueText(text);
        screen.SaveNewCardButtonClicked();
        const Vinyl v = t.store().fetchVinyl(FetchRequest()).valueOr({}).value(0);
        if (stored) {
            QCOMPARE(screen.lastAlertTitle(), QString());
            QCOMPARE(v.value, stored);
            QCOMPARE(number(v.quantity), qint16(1)); // a valued record counts at least once
            QCOMPARE(screen.newValueText(), QString());
        } else {
            QCOMPARE(screen.lastAlertTitle(), u"Record not Saved!"_s);
            QCOMPARE(screen.lastAlertMessage(), u"New Value \"%1\" is not an amount."_s.arg(text));
            QCOMPARE(v.value, std::optional<float>(7.0f));
            QCOMPARE(number(v.quantity), qint16(0));
            QCOMPARE(screen.newValueText(), text);
        }
    }

    void emptyCollection()
    {
        TestApp t;
        ValuationViewController screen(&t.app());
        QCOMPARE(screen.quantityText(), u"0"_s);
        QCOMPARE(screen.totalValueText(), u"$0.00"_s);
        QCOMPARE(screen.model()->rowCount(), 0);
        QVERIFY(!screen.saveEnabled());
    }

    void totalsCountCopiesAndRowsShowTheirLines()
    {
        TestApp t;
        Vinyl dated = addValued(t, u"B side"_s, u"Ann"_s, u"Label"_s, 2, 10.5f);
        dated.releaseDate = QDateTime(QDate(1975, 3, 5), QTime(0, 0));
        QVERIFY(t.store().update(dated).ok());
        addValued(t, u"A side"_s, u"Bob"_s, u"Label"_s, 0, 40.0f); // held none: counts nothing
        addValued(t, u"C side"_s, u"Cy"_s, QString(), std::nullopt, std::nullopt);
        ValuationViewController screen(&t.app());
        QAbstractItemModelTester tester(screen.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(screen.quantityText(), u"2"_s);
        QCOMPARE(screen.totalValueText(), u"$21.00"_s);

        const auto line = [&](int row, int role) { return screen.model()->data(screen.model()->index(row), role).toString(); };
        QCOMPARE(line(0, ValuationRowModel::Label1Role), u"Name: A side"_s); // by name
        QCOMPARE(line(0, ValuationRowModel::Label5Role), u"Value: $40.00"_s);
        QCOMPARE(line(1, ValuationRowModel::Label4Role), u"Date Released: March-1975"_s);
        QCOMPARE(line(2, ValuationRowModel::Label3Role), u"Record Label: "_s);
        QCOMPARE(line(2, ValuationRowModel::Label4Role), u"Date Released: N/A"_s);
        QCOMPARE(line(2, ValuationRowModel::Label5Role), u"Value: $0.00"_s);
    }

    void copiesPastTheSmallIntegerRangeAreShown()
    {
        TestApp t;
        for (int i = 0; i < 3; ++i)
            addValued(t, u"Many %1"_s.arg(i), u"A"_s, u"L"_s, 32767, 1.0f);
        ValuationViewController screen(&t.app());
        QCOMPARE(screen.quantityText(), u"98301"_s);
    }

    void savingValuesEveryMatchingRecordAndRaisesQuantity()
    {
        TestApp t;
        addValued(t, u"Twin"_s, u"Ann"_s, u"Label"_s, 0, 5.0f);
        addValued(t, u"Twin"_s, u"Ann"_s, u"Label"_s, 3, 5.0f);
        addValued(t, u"Twin"_s, u"Ann"_s, u"Other"_s, 1, 5.0f); // another label: untouched
        ValuationViewController screen(&t.app());
        QVERIFY(!screen.saveEnabled());
        screen.rowSelected(0);
        QVERIFY(screen.saveEnabled());
        QCOMPARE(screen.nameText(), u"Twin"_s);

        screen.setNewValueText(u"$12.50"_s);
        screen.SaveNewCardButtonClicked();
        QCOMPARE(screen.lastAlertTitle(), QString());
        QCOMPARE(screen.newValueText(), QString());
        const QList<Vinyl> rows = t.store().fetchVinyl(FetchRequest().sortedBy(u"recordLabel"_s)).valueOr({});
        QCOMPARE(number(rows.at(0).value), 12.5f);
        QCOMPARE(number(rows.at(1).value), 12.5f);
        QCOMPARE(number(rows.at(2).value), 5.0f);
        QCOMPARE(rows.at(0).quantity.value_or(0) + rows.at(1).quantity.value_or(0), 4); // 0 became 1
        QCOMPARE(screen.quantityText(), u"5"_s);
        QCOMPARE(screen.totalValueText(), u"$55.00"_s); // 4 x 12.50 + 1 x 5
    }

    void alertsLeaveTheStoreAlone_data()
    {
        QTest::addColumn<bool>("search");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("message");
        QTest::newRow("search without a name") << true << u"No Search"_s << u"Required Fields Name Not Entered"_s;
        QTest::newRow("save without a value") << false << u"Record not Saved!"_s << u"New Value not Entered"_s;
    }
    void alertsLeaveTheStoreAlone()
    {
        QFETCH(bool, search);
        QFETCH(QString, title);
        QFETCH(QString, message);
        TestApp t;
        addValued(t, u"Kept"_s, u"Ann"_s, u"Label"_s, 1, 3.0f);
        ValuationViewController screen(&t.app());
        if (search) {
            screen.FindValueOnWeb();
        } else {
            screen.rowSelected(0);
            screen.SaveNewCardButtonClicked();
        }
        QCOMPARE(screen.lastAlertTitle(), title);
        QCOMPARE(screen.lastAlertMessage(), message);
        QVERIFY(t.platform().openedUrls.isEmpty());
        QCOMPARE(number(t.store().fetchVinyl(FetchRequest()).valueOr({}).value(0).value), 3.0f);
    }

    void lookUpsOpenPages()
    {
        TestApp t;
        addValued(t, u"Rock & Roll 12\" 100%"_s, u"X"_s, u"Label"_s, 1, 3.0f);
        ValuationViewController screen(&t.app());
        screen.rowSelected(0);
        screen.FindValueOnWeb();
        screen.PopsikePriceGuide();
        screen.ValueYourMusicPriceGuide();
        QCOMPARE(screen.lastAlertTitle(), QString());
        QCOMPARE(t.platform().openedUrls.size(), 3);
        QVERIFY(t.platform().openedUrls.at(0).toEncoded().endsWith(
            "what+is+a+X+Rock+and+Roll+12%22+100%25+vinyl+record+album+worth"));
        QVERIFY(!t.platform().openedUrls.at(1).toString().contains(u"Rock"_s));
        QVERIFY(!t.platform().openedUrls.at(2).toString().contains(u"Rock"_s));
    }

    void sharesTheTotalsWhereTextCanBeSent()
    {
        TestApp t;
        addValued(t, u"Kept"_s, u"Ann"_s, u"Label"_s, 2, 3.0f);
        ValuationViewController screen(&t.app());
        screen.shareButtonClicked();
        QCOMPARE(t.platform().shared.size(), 1);
        QCOMPARE(t.platform().shared.first().texts, QStringList{u"Records held: 2\nTotal value: $6.00\n"_s});

        t.platform().canSendTextAnswer = false;
        screen.shareButtonClicked();
        QCOMPARE(screen.lastAlertTitle(), u"Can't Send Text Message"_s);
        QCOMPARE(screen.lastAlertMessage(), u"Your device is not able to send text messages."_s);
        QCOMPARE(t.platform().shared.size(), 1);
    }
};

QTEST_MAIN(TestValuation)
#include "tst_valuation.moc"
