// Timing of export and import at the collection's ceiling: 32,767 records with 20 tracks and
// two covers each. Slow, so it runs only when PLATTERBOX_BENCH is set.
#include "exchangereader.h"
#include "exchangewriter.h"
#include "samplecollection.h"
#include "store.h"
#include "testsupport.h"

#include <QElapsedTimer>
#include <QTest>

class TestExchangeBench : public QObject
{
    Q_OBJECT

private slots:
    void exportAndImportAtTheCeiling()
    {
        if (qEnvironmentVariableIsEmpty("PLATTERBOX_BENCH"))
            QSKIP("set PLATTERBOX_BENCH to run");
        useTestLocale();
        const int records = qEnvironmentVariableIntValue("PLATTERBOX_BENCH") > 1 ? qEnvironmentVariableIntValue("PLATTERBOX_BENCH") : 32767;
        TestApp source;
        QElapsedTimer timer;
        timer.start();
        QVERIFY(addSampleCollection(source.store(), {records, 20, true, 1975}).ok());
        qInfo("sample collection: %lld ms", timer.restart());

        auto withImages = ExchangeWriter::build(source.store(), true);
        QVERIFY(withImages.ok());
        qInfo("export with images: %lld ms, %lld bytes", timer.restart(), qint64(withImages->size()));
        auto withoutImages = ExchangeWriter::build(source.store(), false);
        QVERIFY(withoutImages.ok());
        qInfo("export without images: %lld ms, %lld bytes", timer.restart(), qint64(withoutImages->size()));

        const QByteArray text = *withImages;
        TestApp target;
        timer.restart();
        auto first = ExchangeReader::importAll(target.store(), text);
        QVERIFY(first.ok());
        qInfo("import into an empty store: %lld ms (%lld records, %lld tracks added)", timer.restart(),
              first->recordsAdded, first->tracksAdded);
        auto second = ExchangeReader::importAll(target.store(), text);
        QVERIFY(second.ok());
        qInfo("same file again: %lld ms (%lld records, %lld tracks unchanged)", timer.restart(), second->recordsUnchanged,
              second->tracksUnchanged);
        QCOMPARE(second->recordsAdded, 0);
        QCOMPARE(second->tracksAdded, 0);
    }
};

QTEST_MAIN(TestExchangeBench)
#include "tst_exchangebench.moc"
