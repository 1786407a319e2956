#include "exchange/importfile.h"
#include "exchange/importmerge.h"
#include "exchange/importpreviewmodel.h"
#include "store/fetchrequest.h"
#include "store/recordnumbers.h"
#include "store/store.h"
#include "store/textfile.h"
#include "testsupport.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <QSqlQuery>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString kDiscogs = u"Catalog#,Artist,Title,Label,Format,Released,release_id,Collection Media Condition,"
                         "Collection Sleeve Condition,Collection Notes\n"
                         "A-1,Alpha (2),First,Lab,\"2xLP, Album\",1975,11,Very Good Plus (VG+),Generic,\n"
                         "B-2,Beta,Second,Lab,LP,1980-05-06,12,Mint (M),Mint (M),\"Two\nlines\"\n"
                         "C-3,Gamma,Third,Lab,\"7\"\", Single\",0,13,Good (G),No Cover,\n"_s;
const QString kRecordLine = u"45.5^Some Artist^12.5^Near Mint^Single^3^Some Album^^Some Producer^2^Some Label^33 RPM^^20.0^Very Good^^"_s;

qint64 recordCount(Store &store)
{
    return store.count(FetchRequest(Entity::Vinyl)).valueOr(-1) * 1000 + store.count(FetchRequest(Entity::Tracks)).valueOr(-1);
}

} // namespace

class TestImportPreview : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    // The preview makes the decisions the import then makes, and changes nothing.
    void previewDecidesWhatTheImportDoes_data()
    {
        QTest::addColumn<QString>("before"); // a file imported first
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("counts");
        QTest::newRow("Discogs into an empty store") << QString() << kDiscogs << u"3 new, 0 updated, 0 unchanged, 0 problems"_s;
        QTest::newRow("Discogs again") << kDiscogs << kDiscogs << u"0 new, 0 updated, 3 unchanged, 0 problems"_s;
        QTest::newRow("Discogs with a change and a new line")
            << kDiscogs << QString(kDiscogs).replace(u"Mint (M),Mint (M)"_s, u"Mint (M),Good (G)"_s) + u"D,Delta,Fourth,L,LP,,14,,,\n"_s
            << u"1 new, 1 updated, 2 unchanged, 0 problems"_s;
        QTest::newRow("exchange: two lines of one album stay two")
            << u"[VINYLCOLLECTION]\n"_s + kRecordLine
            << u"[VINYLCOLLECTION]\n"_s + kRecordLine + u'\n' + QString(kRecordLine).replace(u"^3^"_s, u"^4^"_s)
                   + u"\n[TRACKCOLLECTION]\n3.0^Song^1^3^\n"_s
            << u"2 new, 0 updated, 1 unchanged, 0 problems"_s;
        QTest::newRow("exchange: a track changes")
            << u"[VINYLCOLLECTION]\n[TRACKCOLLECTION]\n3.0^Song^1^3^\n"_s
            << u"[VINYLCOLLECTION]\n[TRACKCOLLECTION]\n3.5^Song^1^3^\n"_s << u"0 new, 1 updated, 0 unchanged, 0 problems"_s;
        const QString songTwice = u"[VINYLCOLLECTION]\n[TRACKCOLLECTION]\n3.0^Intro^1^3^\n4.0^Intro^5^3^\n"_s;
        const QString twoUnchanged = u"0 new, 0 updated, 2 unchanged, 0 problems"_s;
        QTest::newRow("exchange again: a song twice on a record") << songTwice << songTwice << twoUnchanged;
        QTest::newRow("CSV without an artist again") << u"name\nOne\nTwo\n"_s << u"name\nOne\nTwo\n"_s << twoUnchanged;
        QTest::newRow("CSV") << u"name,artist\nOne,A\n"_s << u"artist,name,quantity\nA,One,2\nB,Two,\nC,,1\n"_s
                             << u"1 new, 1 updated, 0 unchanged, 1 problem"_s;
        const qint64 many = ImportCounts::kListedProblems + 2; // more than are listed: counted all the same
        QTest::newRow("CSV: every line a problem") << QString() << u"name,id\n"_s + u",1\n"_s.repeated(many)
                                                   << u"0 new, 0 updated, 0 unchanged, %1 problems"_s.arg(QLocale().toString(many));
    }

    void previewDecidesWhatTheImportDoes()
    {
        QFETCH(QString, before);
        QFETCH(QString, file);
        QFETCH(QString, counts);
        TestApp t;
        if (!before.isEmpty())
            QVERIFY(ImportMerge::apply(t.store(), ImportFiles::read(before.toUtf8())).ok());
        const qint64 stored = recordCount(t.store());
        const qint64 writes = t.store().writeCount();

        const ImportFile read = ImportFiles::read(file.toUtf8());
        auto preview = ImportMerge::preview(t.store(), read);
        QVERIFY2(preview.ok(), qPrintable(preview.errorMessage()));
        QCOMPARE(ImportMerge::countsText(preview->counts), counts);
        QCOMPARE(preview->outcomes.size(), read.lineCount());
        QCOMPARE(recordCount(t.store()), stored);
        QCOMPARE(t.store().writeCount(), writes);

        auto applied = ImportMerge::apply(t.store(), read);
        QVERIFY(applied.ok());
        QCOMPARE(ImportMerge::countsText(*applied), counts);
        QCOMPARE(recordCount(t.store()), stored + 1000 * applied->recordsAdded + applied->tracksAdded);
    }

    void updateNamesEveryFieldWithItsOldAndNewValue()
    {
        TestApp t;
        QVERIFY(ImportMerge::apply(t.store(), ImportFiles::read((u"name,artist,releaseDate,recordLabel,quantity,cost\n"
                                                                 "One,A,1975-03-05,Old,1,2.5\n"_s).toUtf8())).ok());
        auto preview = ImportMerge::preview(t.store(), ImportFiles::read((u"Quantity,Album Name,Artist,Record Label,"
                                                                          "Release Date,Cost\n2,One,A,New,1976-06-01,2.5\n"_s).toUtf8()));
        QVERIFY(preview.ok());
        QCOMPARE(preview->outcomes.size(), 1);
        const ImportOutcome &outcome = preview->outcomes.first();
        QCOMPARE(outcome.kind, ImportOutcome::Updated);
        QStringList changes;
        for (const FieldChange &change : preview->details.value(outcome.detail).changes)
            changes << change.field + u": "_s + change.before + u" -> "_s + change.after;
        QCOMPARE(changes, (QStringList{u"Release Date: Mar 5, 1975 -> Jun 1, 1976"_s, u"Record Label: Old -> New"_s,
                                       u"Quantity: 1 -> 2"_s}));
    }

    void previewListShowsEveryKindOfLine()
    {
        TestApp t;
        QVERIFY(ImportMerge::apply(t.store(), ImportFiles::read(kDiscogs.toUtf8())).ok());
        const QString text = QString(kDiscogs).replace(u"Mint (M),Mint (M)"_s, u"Mint (M),Good (G)"_s)
                             + u"D,Delta,Fourth,L,LP,1999,14,,,\nE,Eps,,L,LP,,15,,,\nA-1,Alpha (2),First,Lab,\"2xLP, Album\",1975,11,"
                               "Very Good Plus (VG+),Generic,\n"_s;
        auto file = std::make_shared<const ImportFile>(ImportFiles::read(text.toUtf8()));
        auto preview = ImportMerge::preview(t.store(), *file);
        QVERIFY(preview.ok());

        ImportPreviewModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setPreview(file, preview->outcomes, preview->details);
        QCOMPARE(model.rowCount(), 5);
        const auto row = [&model](int r) {
            QStringList texts;
            for (int role : {ImportPreviewModel::KindLabelRole, ImportPreviewModel::LineLabelRole,
                             ImportPreviewModel::TitleLabelRole, ImportPreviewModel::DetailLabelRole})
                texts << model.data(model.index(r), role).toString();
            return texts;
        };
        QCOMPARE(row(0), (QStringList{u"Updated"_s, u"Line 2"_s, u"First \u2014 Alpha"_s,
                                      u"Quantity: 1 \u2192 2\n2 copies: lines 2 and 8"_s}));
        QCOMPARE(row(1), (QStringList{u"Updated"_s, u"Line 3"_s, u"Second \u2014 Beta"_s,
                                      u"Cover Condition: Mint \u2192 Good"_s}));
        QCOMPARE(row(2).first(), u"Unchanged"_s);
        QCOMPARE(row(3), (QStringList{u"New"_s, u"Line 6"_s, u"Fourth \u2014 Delta"_s, u"L \u00b7 Jan 1, 1999"_s}));
        QCOMPARE(row(4), (QStringList{u"Problem"_s, u"Line 7"_s, u"Eps"_s, u"no name (the Title is empty)"_s}));

        model.showKind(ImportOutcome::Problem);
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.data(model.index(0), ImportPreviewModel::LineLabelRole).toString(), u"Line 7"_s);
    }

    // Tracks find their record by its number, so a new record from a CSV file gets one.
    void newRecordsTakeTheNextFreeNumbers_data()
    {
        QTest::addColumn<int>("storedId");
        QTest::addColumn<QString>("csv");
        QTest::addColumn<QString>("numbers"); // of the records after the import, by name
        QTest::addColumn<QString>("problems");
        QTest::newRow("after the stored ones") << 7 << u"name\nA\nB\n"_s << u"A=8 B=9 Stored=7"_s << QString();
        QTest::newRow("after those the file gives") << 7 << u"name,id\nA,\nB,20\n"_s << u"A=21 B=20 Stored=7"_s << QString();
        QTest::newRow("none left") << 32766 << u"name\nA\nB\n"_s << u"A=32767 Stored=32766"_s
                                   << u"Line 3: "_s + kNoRecordNumberLeft;
    }

    void newRecordsTakeTheNextFreeNumbers()
    {
        QFETCH(int, storedId);
        QFETCH(QString, csv);
        QFETCH(QString, numbers);
        QFETCH(QString, problems);
        TestApp t;
        t.addVinyl(u"Stored"_s, u"A"_s, u"L"_s, qint16(storedId));
        auto applied = ImportMerge::apply(t.store(), ImportFiles::read(csv.toUtf8()));
        QVERIFY(applied.ok());
        QStringList byName;
        for (const Vinyl &v : t.store().fetchVinyl(FetchRequest(Entity::Vinyl).sortedBy(u"name"_s)).valueOr({}))
            byName << text(v.name) + u'=' + QString::number(number(v.id));
        QCOMPARE(byName.join(u' '), numbers);
        QStringList skipped;
        for (const ImportProblem &problem : applied->problems)
            skipped << ImportMerge::problemText(problem);
        QCOMPARE(skipped.join(u'\n'), problems);
    }

    // An import stopped part way (a cancel, or a line the store refuses) leaves the store holding
    // a whole first part of the file, and says how much: never some lines of a part.
    void stoppedImportKeepsAFirstPartOfTheFile_data()
    {
        QTest::addColumn<bool>("cancel");
        QTest::addColumn<int>("stopLine"); // the line index the cancel or refusal comes at
        QTest::newRow("cancelled at once") << true << 300;
        QTest::newRow("cancelled late") << true << 9000;
        QTest::newRow("the store refuses an early line") << false << 500;
        QTest::newRow("the store refuses a late line") << false << 9000;
    }

    void stoppedImportKeepsAFirstPartOfTheFile()
    {
        QFETCH(bool, cancel);
        QFETCH(int, stopLine);
        TestApp t;
        t.addVinyl(u"Kept"_s, u"A"_s, u"Label"_s, 1);
        // Line 0 updates the stored record; line i > 0 adds "Album i".
        QString csv = u"name,artist,recordLabel\nKept,A,Changed\n"_s;
        for (int i = 1; i <= 10000; ++i)
            csv += u"Album %1,A,L\n"_s.arg(i);
        QSqlQuery q(t.store().database());
        if (!cancel)
            QVERIFY(q.exec(u"CREATE TRIGGER refuse BEFORE INSERT ON Vinyl WHEN NEW.name = 'Album %1' "
                           "BEGIN SELECT RAISE(ABORT, 'refused'); END"_s.arg(stopLine)));
        const auto progress = [=](qint64 done, qint64) { return !cancel || done < stopLine; };
        auto applied = ImportMerge::apply(t.store(), ImportFiles::read(csv.toUtf8()), progress);

        const auto counted = [&t](const QString &attribute, const QString &value) {
            return t.store().count(FetchRequest(Entity::Vinyl).where(Predicate::equal(attribute, value))).valueOr(-1);
        };
        // The lines of the file the store holds: the update of line 0 and the albums added.
        const qint64 kept = counted(u"recordLabel"_s, u"Changed"_s) + counted(u"recordLabel"_s, u"L"_s);
        // Batches are hundreds of lines long: an early stop keeps nothing, a late one keeps some.
        QVERIFY(kept < stopLine);
        QCOMPARE(kept > 0, stopLine > 4000);
        if (kept > 0)
            QCOMPARE(counted(u"name"_s, u"Album %1"_s.arg(kept - 1)), 1);
        if (cancel) {
            QVERIFY(applied.ok());
            QVERIFY(applied->stopped);
            QCOMPARE(applied->linesApplied, kept);
            QCOMPARE(applied->added() + applied->updated(), kept);
        } else {
            QVERIFY(!applied.ok());
            QVERIFY2(applied.errorMessage().contains(u"refused"_s), qPrintable(applied.errorMessage()));
            QVERIFY(applied.errorMessage().endsWith(
                kept > 0 ? ImportMessages::kPartlyImported.arg(QLocale().toString(kept)) : ImportMessages::kNothingImported));
        }
    }
};

QTEST_MAIN(TestImportPreview)
#include "tst_importpreview.moc"
