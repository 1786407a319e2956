// Each record's value history: which saves add a quote, and how the edit and valuation screens
// show it.
#include "entry/addvinylviewcontroller.h"
#include "entry/editvinylviewcontroller.h"
#include "exchange/importfile.h"
#include "exchange/importmerge.h"
#include "store/formatters.h"
#include "store/store.h"
#include "testsupport.h"
#include "valuation/valuationviewcontroller.h"

#include <QSqlQuery>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Every quote of the store as "value source".
QStringList allQuotes(Store &store)
{
    QStringList quotes;
    QSqlQuery q(store.database());
    q.exec(u"SELECT value, source FROM Quotes ORDER BY rowid"_s);
    while (q.next())
        quotes << QString::number(q.value(0).toDouble()) + u' ' + q.value(1).toString();
    return quotes;
}

Vinyl addValued(TestApp &t)
{
    Vinyl v = t.addVinyl(u"Blue Train"_s, u"John Coltrane"_s, u"Blue Note"_s, 1);
    v.quantity = 1;
    v.value = 10;
    (void)t.store().update(v);
    return v;
}

void importCsv(TestApp &t, const QString &text)
{
    const auto imported = ImportMerge::apply(t.store(), ImportFiles::read(text.toUtf8()));
    QVERIFY2(imported.ok(), qPrintable(imported.errorMessage()));
}

} // namespace

class TestValueHistory : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    // A save that changes a record's value adds one quote, naming where the value came from;
    // a save that leaves the value alone adds none.
    void savesThatChangeTheValueAddAQuote_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("change");
        QTest::addColumn<QStringList>("quotes");
        QTest::newRow("edit screen, new value") << u"edit"_s << true << QStringList{u"12.5 Edit"_s};
        QTest::newRow("edit screen, another field") << u"edit"_s << false << QStringList{};
        QTest::newRow("add screen with a value") << u"add"_s << true << QStringList{u"40 Edit"_s};
        QTest::newRow("add screen without a value") << u"add"_s << false << QStringList{};
        QTest::newRow("valuation, new value") << u"valuation"_s << true << QStringList{u"20 Valuation"_s};
        QTest::newRow("valuation, the same value") << u"valuation"_s << false << QStringList{};
        QTest::newRow("import, new value") << u"import"_s << true << QStringList{u"55 Import"_s};
        QTest::newRow("import, the same value") << u"import"_s << false << QStringList{};
        QTest::newRow("import, a new valued record") << u"import new"_s << true << QStringList{u"7 Import"_s};
    }
    void savesThatChangeTheValueAddAQuote()
    {
        QFETCH(QString, path);
        QFETCH(bool, change);
        QFETCH(QStringList, quotes);
        TestApp t;
        const Vinyl stored = addValued(t);
        QString alert;
        if (path == u"edit"_s) {
            t.app().state()->setCurrentRecord(stored);
            EditVinylViewController edit(&t.app());
            change ? edit.setValue(u"12.50"_s) : edit.setProducer(u"Rudy Van Gelder"_s);
            edit.SaveVinylButtonClicked();
            alert = edit.lastAlertTitle();
        } else if (path == u"add"_s) {
            AddVinylViewController add(&t.app());
            add.setAlbumName(u"Night Signals"_s);
            add.setArtist(u"The Harbour Lights"_s);
            add.setRecordLabel(u"Meridian"_s);
            if (change)
                add.setValue(u"40"_s);
            add.SaveNewVinylButtonClicked();
            alert = add.lastAlertTitle();
        } else if (path == u"valuation"_s) {
            ValuationViewController valuation(&t.app());
            valuation.rowSelected(0);
            valuation.setNewValueText(change ? u"20"_s : u"10"_s);
            valuation.SaveNewCardButtonClicked();
            alert = valuation.lastAlertTitle();
        } else if (path == u"import"_s) {
            importCsv(t, change ? u"name,artist,value\nBlue Train,John Coltrane,55\n"_s
                                : u"name,artist,value,producer\nBlue Train,John Coltrane,10,Rudy\n"_s);
        } else {
            importCsv(t, u"name,artist,value\nNight Signals,The Harbour Lights,7\n"_s);
        }
        QCOMPARE(alert, QString());
        QCOMPARE(allQuotes(t.store()), quotes);
    }

    void deletingARecordDeletesItsQuotes()
    {
        TestApp t;
        const Vinyl kept = addValued(t);
        const Vinyl gone = t.addVinyl(u"Gone"_s);
        for (const Vinyl &v : {kept, gone}) {
            Quote quote{0, v.rowId, QDateTime::currentDateTime(), 10, QuoteSources::Edit};
            QVERIFY(t.store().insert(quote).ok());
        }
        QVERIFY(t.store().transaction([&] { return t.store().remove(Entity::Vinyl, gone.rowId); }).ok());
        QCOMPARE(t.store().quotes(gone.rowId)->size(), 0);
        QCOMPARE(t.store().quotes(kept.rowId)->size(), 1);
    }

    // Newest first with date, amount and source; the chart gets them oldest first.
    void editScreenListsTheQuotes()
    {
        TestApp t;
        const Vinyl v = addValued(t);
        for (const auto &[day, value, source] : {std::tuple{QDate(2023, 5, 2), 8.0, QuoteSources::Start},
                                                 std::tuple{QDate(2024, 3, 1), 10.0, QuoteSources::Valuation}}) {
            Quote quote{0, v.rowId, QDateTime(day, QTime(9, 0)), value, source};
            QVERIFY(t.store().insert(quote).ok());
        }
        t.app().state()->setCurrentRecord(v);
        EditVinylViewController edit(&t.app());
        QStringList rows;
        for (const QVariant &row : edit.valueHistory()) {
            const QVariantMap map = row.toMap();
            rows << map.value(u"dateText"_s).toString() + u" | "_s + map.value(u"valueText"_s).toString() + u" | "_s
                        + map.value(u"source"_s).toString();
        }
        QCOMPARE(rows, (QStringList{u"Mar 1, 2024 | $10.00 | Valuation"_s, u"May 2, 2023 | $8.00 | Start"_s}));
        const QVariantList points = edit.valueHistoryPoints();
        QCOMPARE(points.size(), 2);
        QCOMPARE(points.first().toMap().value(u"y"_s).toDouble(), 8.0);
    }

    void valuationShowsThePickedRecordsLastQuote()
    {
        TestApp t;
        addValued(t);
        ValuationViewController valuation(&t.app());
        QCOMPARE(valuation.lastQuoteText(), QString());
        valuation.rowSelected(0);
        QCOMPARE(valuation.lastQuoteText(), u"Not valued yet"_s);
        valuation.setNewValueText(u"20"_s);
        valuation.SaveNewCardButtonClicked();
        QCOMPARE(valuation.lastQuoteText(), QString(u"Last valued "_s + Formatters::mediumDate(QDateTime::currentDateTime())));
    }
};

QTEST_MAIN(TestValueHistory)
#include "tst_valuehistory.moc"
