#include "collection/recordrows.h"
#include "store/store.h"
#include "testsupport.h"

#include <QTest>

using namespace Qt::StringLiterals;

// The windows a list reads a page at a time put together give the whole list in the store's
// order, whether a window is read from the start or backwards from the end.
class TestRecordRows : public QObject
{
    Q_OBJECT

private:
    static QList<qint64> ids(const QList<Vinyl> &records)
    {
        QList<qint64> list;
        for (const Vinyl &v : records)
            list.append(v.rowId);
        return list;
    }

    // 150 records: names repeat (so ties fall to the row identity), some absent; four days.
    static void fill(Store &store)
    {
        for (int i = 0; i < 150; ++i) {
            Vinyl v;
            if (i % 11 != 0)
                v.name = u"Album %1"_s.arg(i % 17);
            v.artist = i % 2 ? u"Ärzte"_s : u"arzte"_s;
            v.releaseDate = QDateTime(QDate(1970 + i % 4, 1, 1), QTime(0, 0));
            if (i % 7 != 0) {
                v.recordSpeed = i % 3 ? u"33"_s : u"45"_s;
                v.quantity = qint16(i % 4);
                v.value = float(i % 9) * 2.5f;
            }
            v.imagesLoaded = true;
            (void)store.insert(v);
        }
    }

private slots:
    void initTestCase() { useTestLocale(); }

    void windowsMakeTheWholeOrder_data()
    {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<bool>("ascending");
        QTest::addColumn<QString>("search");
        QTest::addColumn<qint64>("first");
        QTest::addColumn<int>("n");
        for (const bool ascending : {true, false}) {
            const char *direction = ascending ? "ascending" : "descending";
            QTest::addRow("first page, %s", direction) << u"name"_s << ascending << QString() << qint64(0) << 64;
            QTest::addRow("across the middle, %s", direction) << u"name"_s << ascending << QString() << qint64(60) << 30;
            QTest::addRow("last row, %s", direction) << u"name"_s << ascending << QString() << qint64(149) << 64;
            QTest::addRow("by date, last page, %s", direction) << u"releaseDate"_s << ascending << QString() << qint64(100) << 64;
            QTest::addRow("searched, late window, %s", direction) << u"artist"_s << ascending << u"ä"_s << qint64(50) << 20;
            // Few distinct values, some absent: long runs of ties across the window's edges.
            QTest::addRow("by speed, across the middle, %s", direction) << u"recordSpeed"_s << ascending << QString() << qint64(60) << 30;
            QTest::addRow("by copies, last page, %s", direction) << u"quantity"_s << ascending << QString() << qint64(100) << 64;
            QTest::addRow("by value, across the middle, %s", direction) << u"value"_s << ascending << QString() << qint64(70) << 20;
            QTest::addRow("by total value, last page, %s", direction) << Store::kTotalValue << ascending << QString() << qint64(90) << 64;
        }
        QTest::addRow("past the end") << u"name"_s << true << QString() << qint64(200) << 64;
    }
    void windowsMakeTheWholeOrder()
    {
        QFETCH(QString, attribute);
        QFETCH(bool, ascending);
        QFETCH(QString, search);
        QFETCH(qint64, first);
        QFETCH(int, n);
        TestApp app;
        fill(app.store());
        FetchRequest request = FetchRequest().onlyCardAttributes().sortedBy(attribute, ascending);
        if (!search.isEmpty())
            request.where(Predicate::contains(attribute, search));
        const QList<Vinyl> records = *app.store().fetchVinyl(request);
        const QList<qint64> whole = ids(records);
        // The figures' orders: by the figure (an absent one first, total value counting it as 0),
        // ties by the order the records were added in, reversed with the direction.
        const auto figure = [&](const Vinyl &v) -> std::optional<double> {
            if (attribute == u"quantity"_s)
                return v.quantity ? std::optional<double>(*v.quantity) : std::nullopt;
            if (attribute == u"value"_s)
                return v.value ? std::optional<double>(*v.value) : std::nullopt;
            return double(v.quantity.value_or(0)) * double(v.value.value_or(0));
        };
        if (attribute == u"quantity"_s || attribute == u"value"_s || attribute == Store::kTotalValue) {
            for (qsizetype i = 1; i < records.size(); ++i) {
                const auto a = figure(records.at(i - 1));
                const auto b = figure(records.at(i));
                QVERIFY(ascending ? a <= b : a >= b);
                QVERIFY(a != b || (records.at(i - 1).rowId < records.at(i).rowId) == ascending);
            }
        }
        auto rows = FetchedRows::make(app.store(), request);
        QVERIFY(rows);
        QCOMPARE(rows->count(), whole.size());
        QCOMPARE(ids(*rows->read(first, n)), whole.mid(first, n));
    }

    void daysListTheirRecordsInOrder()
    {
        TestApp app;
        fill(app.store());
        auto days = RecordQueries::releaseDays(app.store());
        QVERIFY(days);
        QCOMPARE(days->size(), 4);
        // The latest two days, latest first, as a descending search by year would list them.
        DayRows rows(app.store(), {days->at(3), days->at(2)});
        const auto byDay = [&](int day) {
            return ids(*app.store().fetchVinyl(
                FetchRequest().where(Predicate::equal(u"releaseDate"_s, days->at(day).millis)).sortedBy(u"releaseDate"_s)));
        };
        const QList<qint64> whole = byDay(3) + byDay(2);
        QCOMPARE(rows.count(), whole.size());
        QCOMPARE(ids(*rows.read(30, 20)), whole.mid(30, 20));
        QVERIFY(app.store().remove(Entity::Vinyl, whole.first()));
        rows.removeRow(0);
        QCOMPARE(rows.count(), whole.size() - 1);
        QCOMPARE(ids(*rows.read(36, 2)), whole.mid(37, 2));
    }
};

QTEST_MAIN(TestRecordRows)
#include "tst_recordrows.moc"
