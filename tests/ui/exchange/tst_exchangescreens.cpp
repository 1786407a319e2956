#include "exchange/exportviewcontroller.h"
#include "exchange/importexportviewcontroller.h"
#include "exchange/importviewcontroller.h"
#include "store/samplecollection.h"
#include "store/snapshots.h"
#include "store/store.h"
#include "store/wantedalbums.h"
#include "testsupport.h"

#include <QDir>
#include <QImage>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// The exchange file of the one record addRecord(t, "One", 1) makes, with or without covers: its
// cover is not a picture, or is left out.
const QString kOneRecordFile = u"[VINYLCOLLECTION]\n0.0^Artist^0.0^^^1^One^^^0^Label^^2001.02.03 04:05:06^0.0^^^\n"
                               "[TRACKCOLLECTION]\n"_s;

// A JPEG that stays large however it is compressed.
QByteArray picture()
{
    QImage image(300, 300, QImage::Format_RGB32);
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 300; ++x)
            image.setPixel(x, y, qRgb(x * 7 % 256, y * 13 % 256, (x * y) % 256));
    return encodedPicture(image, "JPEG", 95);
}

void addRecord(TestApp &t, const QString &name, qint16 id, const QByteArray &cover = "not a picture")
{
    Vinyl v = t.addVinyl(name, u"Artist"_s, u"Label"_s, id);
    v.releaseDate = QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6));
    v.frontImage = cover;
    QVERIFY(t.store().update(v).ok());
}

QString writeFile(const QTemporaryDir &dir, const QString &name, const QByteArray &bytes)
{
    const QString path = dir.filePath(name);
    return writeBytes(path, bytes) ? path : QString();
}

// Picks the file and waits for its preview.
bool pick(ImportViewController &controller, const QString &path)
{
    QSignalSpy finished(&controller, &ImportViewController::previewFinished);
    controller.documentPicked(QUrl::fromLocalFile(path));
    return finished.wait(10000);
}

bool import(ImportViewController &controller)
{
    QSignalSpy finished(&controller, &ImportViewController::importFinished);
    controller.ImportTextFile();
    return finished.wait(10000);
}

bool build(ExportViewController &controller, bool withImages = true)
{
    QSignalSpy finished(&controller, &ExportViewController::buildFinished);
    if (withImages)
        controller.CreateUpdateFile();
    else
        controller.CreateUpdateFileWithoutImages();
    return finished.wait(5000);
}
} // namespace

class TestExchangeScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    // The built file is shown with its completion alert, then saved through the share sheet and
    // mailed as an attachment, or the collector is told mail cannot be sent.
    void buildShowsSavesAndMailsTheFile_data()
    {
        QTest::addColumn<bool>("canSendMail");
        QTest::newRow("mail available") << true;
        QTest::newRow("mail unavailable") << false;
    }

    void buildShowsSavesAndMailsTheFile()
    {
        QFETCH(bool, canSendMail);
        TestApp t;
        t.platform().canSendMailAnswer = canSendMail;
        addRecord(t, u"One"_s, 1);
        ExportViewController controller(&t.app());
        QVERIFY(controller.exportButtonEnabled());
        QVERIFY(!controller.saveFileButtonEnabled());
        QVERIFY(!controller.emailButtonEnabled());
        QVERIFY(controller.exportImages());
        QVERIFY(build(controller));
        QCOMPARE(controller.exportText(), kOneRecordFile);
        QCOMPARE(controller.dataString(), kOneRecordFile.toUtf8());
        QVERIFY(!controller.exportButtonEnabled());
        QVERIFY(controller.saveFileButtonEnabled());
        QVERIFY(controller.emailButtonEnabled());
        QCOMPARE(controller.progress(), 1.0);
        QVERIFY(!controller.building());
        QTRY_COMPARE(controller.lastAlertTitle(), u"Data Export"_s);
        // The record's cover is not a picture: the file is built without it and the user is told.
        QCOMPARE(controller.lastAlertMessage(), u"Process Complete - File Ready to Save to Files or Email\n\n"
                                                "1 cover picture could not be read and was left out."_s);

        controller.SaveFile();
        QCOMPARE(t.platform().shared.size(), 1);
        const QString path = t.platform().shared.first().filePaths.value(0);
        QCOMPARE(path, QDir(AppDelegate::tempDir()).filePath(u"VinylCollection.csv"_s));
        QCOMPARE(fileBytes(path), controller.dataString());

        controller.WriteTextFile();
        if (!canSendMail) {
            QVERIFY(t.platform().mails.isEmpty());
            QCOMPARE(controller.lastAlertTitle(), u"Sending Email"_s);
            QCOMPARE(controller.lastAlertMessage(), u"Email not Setup or Unavailable"_s);
            return;
        }
        QCOMPARE(t.platform().mails.size(), 1);
        const MailMessage &mail = t.platform().mails.first();
        QVERIFY(mail.to.isEmpty());
        QCOMPARE(mail.attachments.size(), 1);
        QCOMPARE(mail.attachments.first().fileName, u"VinylCollection.csv"_s);
        QCOMPARE(mail.attachments.first().mimeType, u"csv"_s);
        QCOMPARE(mail.attachments.first().data, kOneRecordFile.toUtf8());
    }

    // Cancel keeps nothing of the build: nothing to save or mail, no alert, and the file can
    // be built again.
    void cancelledExportKeepsNothing()
    {
        TestApp t;
        QVERIFY(addSampleCollection(t.store(), sampleOptions(200, 10, true, 5)).ok());
        ExportViewController controller(&t.app());
        QSignalSpy alerts(&controller, &ExportViewController::alert);
        QSignalSpy finished(&controller, &ExportViewController::buildFinished);
        controller.CreateUpdateFile();
        QVERIFY(controller.building());
        controller.CancelButtonTapped();
        QVERIFY(finished.wait(10000));
        QVERIFY(controller.dataString().isEmpty());
        QVERIFY(controller.exportText().isEmpty());
        QVERIFY(!controller.saveFileButtonEnabled());
        QVERIFY(!controller.emailButtonEnabled());
        QVERIFY(controller.exportButtonEnabled());
        // Built again: two markers, 200 records and their 2,000 tracks, and only this build's
        // alert (a cancelled build's would have come first).
        QVERIFY(build(controller));
        QCOMPARE(controller.dataString().count('\n'), 2202);
        QTRY_COMPARE(controller.lastAlertTitle(), u"Data Export"_s);
        QCOMPARE(alerts.size(), 1);
    }

    void leavingImagesOutSticks()
    {
        TestApp t;
        addRecord(t, u"One"_s, 1, picture());
        ExportViewController controller(&t.app());
        QVERIFY(build(controller, false));
        QVERIFY(!controller.exportImages());
        QVERIFY(build(controller, true));
        QCOMPARE(controller.dataString(), kOneRecordFile.toUtf8());
        QTRY_COMPARE(controller.lastAlertMessage(), ExportViewController::kDone);
    }

    // A file too large to show whole is shown as a labelled summary of its first lines, with
    // each picture shortened to its size, never as the bare first marker line.
    void largeTextShowsALabelledSummary()
    {
        TestApp t;
        addRecord(t, u"With a cover"_s, 1000, picture());
        for (int i = 0; i < 700; ++i)
            t.addVinyl(u"A long enough album name to fill the line %1"_s.arg(i), u"Artist"_s, u"Label"_s, qint16(i));
        ExportViewController controller(&t.app());
        QVERIFY(build(controller));
        const QString shown = controller.exportText();
        QVERIFY(controller.dataString().size() > ExportViewController::kPreviewCharacters);
        QVERIFY(shown.size() < ExportViewController::kPreviewCharacters + 1000);
        QVERIFY(shown.startsWith(u"This file is too large to show whole: "_s));
        QVERIFY(shown.contains(u"\n\n[VINYLCOLLECTION]\n"_s));
        QVERIFY(shown.contains(u"^With a cover^"_s));
        QVERIFY(shown.contains(u"[picture: "_s));
        QVERIFY(shown.endsWith(u" more lines in the file)"_s));
    }

    // A file that is not a backup is refused; then back up, restore over a changed collection,
    // and undo the restore: each step asks or tells the collector what happens, and the
    // collection ends as it was before the restore.
    void backUpRestoreAndUndoFromTheScreen()
    {
        TestApp t;
        addRecord(t, u"Kept"_s, 1);
        QTemporaryDir dir;
        const QUrl file = QUrl::fromLocalFile(dir.filePath(u"mine.platterbox"_s));
        ImportExportViewController controller(&t.app());
        QVERIFY(!controller.undoButtonEnabled());
        // What is not a backup is refused first, and changes nothing.
        controller.restoreFrom(QUrl::fromLocalFile(writeFile(dir, u"collection.csv"_s, "[VINYLCOLLECTION]\n")));
        QTRY_VERIFY(!controller.busy());
        QCOMPARE(controller.lastAlertTitle(), u"Restore"_s);
        QCOMPARE(controller.lastAlertMessage(), u"collection.csv is not a Platterbox backup.\nNothing was changed."_s);
        QCOMPARE(t.count(), 1);
        QVERIFY(!controller.undoButtonEnabled());

        controller.backUpTo(file);
        QTRY_VERIFY(!controller.busy());
        QCOMPARE(controller.lastAlertMessage(), u"1 record and 0 cover files were backed up to \"mine.platterbox\"."_s);

        addRecord(t, u"Added later"_s, 2);
        controller.restoreFrom(file);
        QTRY_VERIFY(!controller.busy());
        QVERIFY2(controller.lastAlertMessage().startsWith(u"Replace the whole collection with the backup \"mine.platterbox\" of "_s),
                 qPrintable(controller.lastAlertMessage()));
        controller.answerAlert(0);
        QTRY_VERIFY(!controller.busy());
        QCOMPARE(controller.lastAlertMessage(), u"The collection was restored from \"mine.platterbox\"."_s);
        QCOMPARE(t.count(), 1);
        QVERIFY(controller.undoButtonEnabled());

        controller.UndoLastImportButtonTapped();
        QVERIFY2(controller.lastAlertMessage().startsWith(
                     u"Put the collection back as it was before the restore of \"mine.platterbox\" on "_s),
                 qPrintable(controller.lastAlertMessage()));
        controller.answerAlert(0);
        QTRY_VERIFY(!controller.busy());
        QCOMPARE(controller.lastAlertMessage(), u"The collection is back as it was."_s);
        QCOMPARE(t.count(), 2);
        QVERIFY(!controller.undoButtonEnabled());
    }

    void csvExportSharesItsFiles_data()
    {
        QTest::addColumn<bool>("tracksInRecordsFile");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("tracks in their own file") << false << QStringList{u"VinylRecords.csv"_s, u"VinylTracks.csv"_s};
        QTest::newRow("tracks in the records file") << true << QStringList{u"VinylRecords.csv"_s};
    }

    void csvExportSharesItsFiles()
    {
        QFETCH(bool, tracksInRecordsFile);
        QFETCH(QStringList, names);
        TestApp t;
        addRecord(t, u"One"_s, 1);
        ExportViewController controller(&t.app());
        controller.setTracksInRecordsFile(tracksInRecordsFile);
        QSignalSpy finished(&controller, &ExportViewController::buildFinished);
        controller.CreateCsvFile();
        QVERIFY(finished.wait(5000));
        QVERIFY(!controller.exportButtonEnabled());
        QVERIFY(controller.exportText().startsWith(u"id,name,artist,releaseDate,"_s));
        QVERIFY(controller.exportText().contains(u"1,One,Artist,2001-02-03,Label,"_s));
        QTRY_COMPARE(controller.lastAlertMessage(), ExportViewController::kDone);

        controller.SaveFile();
        QCOMPARE(t.platform().shared.size(), 1);
        QStringList shared;
        for (const QString &path : t.platform().shared.first().filePaths)
            shared << QFileInfo(path).fileName();
        QCOMPARE(shared, names);
        controller.WriteTextFile();
        QCOMPARE(t.platform().mails.value(0).attachments.size(), names.size());
        QCOMPARE(t.platform().mails.value(0).attachments.value(0).mimeType, u"text/csv"_s);
    }

    void importScreenPreviewsAndImportsAFile()
    {
        TestApp t;
        QTemporaryDir dir;
        const QString path = writeFile(dir, u"picked.csv"_s,
                                       "[VINYLCOLLECTION]\r\n1.0^Artist^2.0^^^5^Album^^^1^^^^3.0^^^\r\n[TRACKCOLLECTION]\r\n1.5^Song^1^5^\r\n");
        ImportViewController controller(&t.app());
        QVERIFY(!controller.importButtonEnabled());
        QVERIFY(controller.loadFileButtonEnabled());
        QSignalSpy picker(&controller, &ImportViewController::openDocumentPicker);
        controller.LoadFile();
        QCOMPARE(picker.size(), 1);

        QVERIFY(pick(controller, path));
        QCOMPARE(controller.lastAlertTitle(), u"Data Import File"_s);
        QCOMPARE(controller.lastAlertMessage(), u"File Loaded and Ready to Import"_s);
        QCOMPARE(controller.filename(), u"picked.csv"_s);
        QCOMPARE(controller.formatLabel(), u"Platterbox exchange file: 1 record, 1 track"_s);
        QCOMPARE(controller.countsLabel(), u"2 new, 0 updated, 0 unchanged, 0 problems"_s);
        QCOMPARE(controller.previewLines()->rowCount(), 2);
        QVERIFY(controller.importText().startsWith(u"[VINYLCOLLECTION]"_s));
        QVERIFY(controller.importButtonEnabled());
        QVERIFY(!controller.loadFileButtonEnabled());
        QCOMPARE(t.count(), 0); // the preview changed nothing

        QVERIFY(import(controller));
        QCOMPARE(controller.lastAlertMessage(), u"Data File Import Completed\n\n2 new, 0 updated, 0 unchanged, 0 problems"_s);
        QCOMPARE(t.count(), 1);
        QCOMPARE(t.count(Entity::Tracks), 1);
        // The store before the import was kept, so that the import can be undone.
        const auto snapshot = t.app().snapshots().latest();
        QVERIFY(snapshot.has_value());
        QCOMPARE(snapshot->info.kind, u"import"_s);
        QCOMPARE(snapshot->info.source, u"picked.csv"_s);
        QCOMPARE(snapshot->info.records, qint64(0));
        controller.answerAlert(0);
        QCOMPARE(t.app().navigator()->lastUnwind(), u"unwindToMenu"_s);
    }

    void completionListsTheSkippedLines()
    {
        TestApp t;
        QTemporaryDir dir;
        const QString path = writeFile(dir, u"export.csv"_s, "Artist,Title,Label,Format,Released,release_id\n"
                                                            "A,One,L,LP,1975,1\nB,,L,LP,1976,2\nC,Three,L,LP,1977-13,3\n");
        ImportViewController controller(&t.app());
        QVERIFY(pick(controller, path));
        QCOMPARE(controller.formatLabel(), u"Discogs collection export: 3 records"_s);
        QCOMPARE(controller.countsLabel(), u"1 new, 0 updated, 0 unchanged, 2 problems"_s);
        controller.ShowLines(ImportOutcome::Problem);
        QCOMPARE(controller.previewLines()->rowCount(), 2);
        QVERIFY(import(controller));
        QCOMPARE(controller.lastAlertMessage(), u"Data File Import Completed\n\n1 new, 0 updated, 0 unchanged, 2 problems\n\n"
                                                "Skipped:\nLine 3: no name (the Title is empty)\n"
                                                "Line 4: Released \"1977-13\" is not a date"_s);
        QCOMPARE(t.count(), 1);
    }

    // A cancelled import keeps whole batches of lines, and says how many.
    void cancelledImportSaysWhatItKept()
    {
        TestApp t;
        QTemporaryDir dir;
        QByteArray csv("name,artist\n");
        for (int i = 0; i < 20000; ++i)
            csv += "Album " + QByteArray::number(i) + ",A\n";
        ImportViewController controller(&t.app());
        QVERIFY(pick(controller, writeFile(dir, u"many.csv"_s, csv)));
        QSignalSpy finished(&controller, &ImportViewController::importFinished);
        controller.ImportTextFile();
        QVERIFY(controller.busy());
        controller.CancelButtonTapped();
        QVERIFY(finished.wait(10000));
        QCOMPARE(controller.lastAlertTitle(), u"Import Cancelled"_s);
        const qint64 kept = t.count();
        QVERIFY(kept < 20000);
        const QLocale locale;
        QCOMPARE(controller.lastAlertMessage(),
                 kept == 0 ? ImportMessages::kCancelled
                           : ImportMessages::kStopped.arg(locale.toString(kept), u"20,000"_s,
                                                          ImportMerge::countsText(controller.counts())));
        QVERIFY(controller.importButtonEnabled()); // it can be started again
    }

    // With the switch on, the picked file's albums go onto the wantlist, with no line-by-line
    // preview, and never into the collection; the switch stays as it is while a file is loaded.
    void importScreenPutsAFileOnTheWantlist()
    {
        TestApp t;
        t.addVinyl(u"Blue Hour"_s, u"Somebody"_s);
        QTemporaryDir dir;
        const QString path = writeFile(dir, u"wanted.csv"_s, "name,artist,maxPrice,priority,shelf\n"
                                                            "Blue Hour,Somebody,12.5,1,A\nGreen Hour,Somebody,,3,B\n,Nobody,,,C\n");
        ImportViewController controller(&t.app());
        controller.setIntoWantlist(true);
        QVERIFY(pick(controller, path));
        QCOMPARE(controller.lastAlertMessage(), u"File Loaded and Ready to Import"_s);
        QCOMPARE(controller.formatLabel(), u"CSV file: 3 albums"_s);
        QCOMPARE(controller.countsLabel(), u"2 wanted albums to add, 1 to skip"_s);
        QCOMPARE(controller.remarksLabel(), u"Not read: shelf"_s);
        QCOMPARE(controller.previewLines()->rowCount(), 0);
        QVERIFY(!controller.loadFileButtonEnabled());
        controller.setIntoWantlist(false);
        QVERIFY(controller.intoWantlist());
        QCOMPARE(WantedAlbums::count(t.store()).valueOr(-1), 0);

        QVERIFY(import(controller));
        QCOMPARE(controller.lastAlertMessage(),
                 u"Wantlist Import Completed\n\n2 wanted albums added, 1 skipped\n\nSkipped:\nLine 4: no name"_s);
        QCOMPARE(WantedAlbums::count(t.store()).valueOr(-1), 2);
        QCOMPARE(t.count(), 1);
        const auto snapshot = t.app().snapshots().latest();
        QVERIFY(snapshot.has_value());
        QCOMPARE(snapshot->info.source, u"wanted.csv"_s);
        controller.answerAlert(0);
        QCOMPARE(t.app().navigator()->lastUnwind(), u"unwindToMenu"_s);
    }

    // A file that cannot be read leaves the screen as it was; one that is not a collection is
    // imported as nothing.
    void unreadableFileChangesNothingAndOtherTextImportsNothing()
    {
        TestApp t;
        QTemporaryDir dir;
        ImportViewController controller(&t.app());
        {
            ConsoleCapture console;
            QVERIFY(pick(controller, dir.filePath(u"missing.csv"_s)));
            QCOMPARE(console.lines().size(), 1);
        }
        QCOMPARE(controller.lastAlertTitle(), u"Data Import File"_s);
        QVERIFY(controller.lastAlertMessage().startsWith(u"The file could not be read."_s));
        QVERIFY(!controller.importButtonEnabled());
        QVERIFY(controller.loadFileButtonEnabled());
        QVERIFY(controller.filename().isEmpty());

        QVERIFY(pick(controller, writeFile(dir, u"notes.txt"_s, "just some text\n")));
        QCOMPARE(controller.formatLabel(), u"Not a file Platterbox can read"_s);
        QVERIFY(import(controller));
        QVERIFY(controller.lastAlertMessage().startsWith(u"Data File Import Completed"_s));
        QCOMPARE(t.count(), 0);
    }
};

QTEST_MAIN(TestExchangeScreens)
#include "tst_exchangescreens.moc"
