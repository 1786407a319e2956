#include "entry/addvinylviewcontroller.h"
#include "entry/editvinylviewcontroller.h"
#include "entry/notesviewcontroller.h"
#include "entry/zoomviewcontroller.h"
#include "browse/listvinyltableviewcontroller.h"
#include "loans/loansviewcontroller.h"
#include "store/recordnumbers.h"
#include "testsupport.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void fillRequired(RecordFormController &form, const QString &name = u"Blue"_s)
{
    form.setAlbumName(name);
    form.setArtist(u"Joni Mitchell"_s);
    form.setRecordLabel(u"Reprise"_s);
}

QImage photo(QColor color, QSize size = QSize(300, 200))
{
    return solidPicture(size, color);
}

QByteArray jpeg(const QImage &image)
{
    return encodedPicture(image, "JPEG");
}

// Opens the record in CurrentRecord, as the collection list does before showing the editor.
void pick(TestApp &t, qint64 rowId, const QString &origin = OriginScreens::List)
{
    t.app().state()->setCurrentRecord(t.vinyl(rowId));
    t.app().state()->setOriginScreen(origin);
}

QStringList coverFiles(TestApp &t)
{
    return QDir(t.app().documentsDir()).entryList({u"*.jpg"_s}, QDir::Files);
}

} // namespace

class TestRecordScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTestLocale(); }

    void addStoresTheRecordAndReturnsToItsOpener_data()
    {
        QTest::addColumn<QString>("origin");
        QTest::addColumn<QString>("segue");
        QTest::newRow("from the list") << OriginScreens::List << u"unwindToList"_s;
        QTest::newRow("from the menu") << OriginScreens::Menu << u"unwindToMenu"_s;
        QTest::newRow("from elsewhere") << OriginScreens::ArtistBreakdown << u"unwindToMenu"_s;
    }

    void addStoresTheRecordAndReturnsToItsOpener()
    {
        QFETCH(QString, origin);
        QFETCH(QString, segue);
        TestApp t;
        t.app().state()->setOriginScreen(origin);
        AddVinylViewController add(&t.app());
        fillRequired(add);
        add.setCost(u"$1,250.5"_s);
        add.setNotes(u" first pressing "_s);
        add.setBarcode(u"0724384260910"_s);
        add.setCoverImage(CoverSide::Front, photo(Qt::red, QSize(3000, 2000)));
        ConsoleCapture console;

        add.SaveNewVinylButtonClicked();
        add.SaveNewVinylButtonClicked(); // a second tap while leaving stores nothing more

        QCOMPARE(t.count(), 1);
        QCOMPARE(t.app().navigator()->lastUnwind(), segue);
        QVERIFY(console.lines().contains(origin));
        const Vinyl v = t.vinyl(add.savedRowId());
        QCOMPARE(attributeTexts(v), (QStringList{u"id=1"_s, u"name=Blue"_s, u"artist=Joni Mitchell"_s, u"recordLabel=Reprise"_s,
                                                 u"albumDuration=0.0"_s, u"cost=1250.5"_s, u"notes= first pressing "_s,
                                                 u"barcode=0724384260910"_s}));
        QVERIFY(!v.backImage);
        QVERIFY(v.frontImage.value_or(QByteArray()).startsWith("\xFF\xD8")); // a JPEG
        QCOMPARE(QImage::fromData(v.frontImage.value_or(QByteArray())).size(), QSize(100, 100));
        QVERIFY(!v.frontImagePath);
    }

    // A save the form cannot make alerts, stores nothing and stays on the screen with the form
    // as the collector left it; corrected, the same screen saves. With no record number left
    // after 32767 there is nothing to correct.
    void refusedSaveKeepsTheScreenAndTheForm_data()
    {
        QTest::addColumn<bool>("edit");
        QTest::addColumn<int>("storedId");
        QTest::addColumn<QString>("artist");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("quantity");
        QTest::addColumn<QString>("cost");
        QTest::addColumn<QString>("message");
        const QString required = u"Required Fields in RED not Entered"_s;
        const QString tooMany = u"Quantity \"40000\" is not a whole number from 0 to 32767."_s;
        QTest::newRow("add, no artist") << false << 1 << QString() << u"Reprise"_s << u"1"_s << QString() << required;
        QTest::newRow("add, quantity 40000") << false << 1 << u"Joni"_s << u"Reprise"_s << u"40000"_s << QString() << tooMany;
        QTest::newRow("add, cost 1.2.3") << false << 1 << u"Joni"_s << u"Reprise"_s << u"2"_s << u"1.2.3"_s
                                         << u"Cost \"1.2.3\" is not an amount."_s;
        QTest::newRow("add, no number left") << false << 32767 << u"Joni"_s << u"Reprise"_s << u"1"_s << QString()
                                             << kNoRecordNumberLeft;
        QTest::newRow("edit, no label") << true << 1 << u"Changed"_s << QString() << u"1"_s << QString() << required;
        QTest::newRow("edit, quantity 40000") << true << 1 << u"Changed"_s << u"Reprise"_s << u"40000"_s << QString() << tooMany;
    }

    void refusedSaveKeepsTheScreenAndTheForm()
    {
        QFETCH(bool, edit);
        QFETCH(int, storedId);
        QFETCH(QString, artist);
        QFETCH(QString, label);
        QFETCH(QString, quantity);
        QFETCH(QString, cost);
        QFETCH(QString, message);
        TestApp t;
        const Vinyl stored = t.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, qint16(storedId));
        pick(t, stored.rowId);
        std::unique_ptr<RecordFormController> form;
        if (edit)
            form = std::make_unique<EditVinylViewController>(&t.app());
        else
            form = std::make_unique<AddVinylViewController>(&t.app());
        const auto save = [&] {
            QMetaObject::invokeMethod(form.get(), edit ? "SaveVinylButtonClicked" : "SaveNewVinylButtonClicked");
        };
        if (!edit)
            fillRequired(*form);
        form->setArtist(artist);
        form->setRecordLabel(label);
        form->setQuantity(quantity);
        form->setCost(cost);
        const RecordFormFields before = form->fields();
        const qint64 writes = t.store().writeCount();

        save();

        QCOMPARE(form->lastAlertTitle(), u"Record not Saved!"_s);
        QCOMPARE(form->lastAlertMessage(), message);
        QCOMPARE(t.store().writeCount(), writes);
        QCOMPARE(t.app().navigator()->lastUnwind(), QString());
        QCOMPARE(form->fields(), before);
        if (storedId == 32767)
            return;

        form->setArtist(u"Joni"_s);
        form->setRecordLabel(u"Reprise"_s);
        form->setQuantity(u"2"_s);
        form->setCost(u"2.5"_s);
        save();
        QCOMPARE(t.app().navigator()->lastUnwind(), u"unwindToList"_s);
        QCOMPARE(t.count(), edit ? 1 : 2);
        QCOMPARE(t.vinyl(edit ? stored.rowId : static_cast<AddVinylViewController &>(*form).savedRowId()).quantity,
                 std::optional<qint16>(2));
    }

    // Each number field reads what the locale writes; what the edit screen shows, saved again,
    // stores the same numbers.
    void numberFieldsReadTheLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("number");
        QTest::addColumn<QString>("shownAmount");
        QTest::addColumn<QString>("shownLength");
        QTest::newRow("en_US") << u"en_US"_s << u"1,234.50"_s << 1234.5 << u"1,234.50"_s << u"1234.5"_s;
        QTest::newRow("en_US pasted dollars") << u"en_US"_s << u"$12.50"_s << 12.5 << u"12.50"_s << u"12.5"_s;
        QTest::newRow("de_DE") << u"de_DE"_s << u"1.234,50"_s << 1234.5 << u"1.234,50"_s << u"1234,5"_s;
        QTest::newRow("fr_FR") << u"fr_FR"_s << u"12 345,50"_s << 12345.5 << u"12\u202F345,50"_s << u"12345,5"_s;
    }

    void numberFieldsReadTheLocale()
    {
        QFETCH(QString, locale);
        QFETCH(QString, typed);
        QFETCH(double, number);
        QFETCH(QString, shownAmount);
        QFETCH(QString, shownLength);
        ScopedLocale scoped(locale);
        TestApp t;
        AddVinylViewController add(&t.app());
        fillRequired(add);
        add.setCost(typed);
        add.setValue(typed);
        add.setRecordLength(QString(typed).remove(u'$'));
        add.SaveNewVinylButtonClicked();
        QCOMPARE(add.lastAlertTitle(), QString());
        const qint64 rowId = add.savedRowId();
        QCOMPARE(t.vinyl(rowId).cost, std::optional<float>(float(number)));
        QCOMPARE(t.vinyl(rowId).albumDuration, std::optional<double>(number));

        pick(t, rowId);
        EditVinylViewController edit(&t.app());
        QCOMPARE(edit.cost(), shownAmount);
        QCOMPARE(edit.value(), shownAmount);
        QCOMPARE(edit.recordLength(), shownLength);
        edit.setCost(u"0"_s);
        edit.SaveVinylButtonClicked();
        QCOMPARE(t.vinyl(rowId).cost, std::optional<float>(0.0f));
        QCOMPARE(t.vinyl(rowId).value, std::optional<float>(float(number)));
        QCOMPARE(t.vinyl(rowId).albumDuration, std::optional<double>(number));

        pick(t, rowId);
        EditVinylViewController again(&t.app());
        again.setCost(typed);
        again.setRecordLength(shownLength);
        again.SaveVinylButtonClicked();
        QCOMPARE(again.lastAlertTitle(), QString());
        QCOMPARE(t.vinyl(rowId).cost, std::optional<float>(float(number)));
        QCOMPARE(t.vinyl(rowId).albumDuration, std::optional<double>(number));
    }

    void releaseDateEntry()
    {
        TestApp t;
        const QString today = QLocale().toString(QDate::currentDate(), u"MMM d, yyyy"_s);
        AddVinylViewController add(&t.app());
        QSignalSpy closed(&add, &RecordFormController::endEditing);
        add.DateEntered(); // the add screen shows today's date as the picker opens
        QCOMPARE(add.releaseDate(), today);
        add.ReleaseDateChanged(QDate(1971, 6, 22));
        QCOMPARE(add.releaseDate(), u"Jun 22, 1971"_s);
        QCOMPARE(closed.count(), 0);
        add.doneDateIssuedClick(QDate(1969, 12, 31));
        QCOMPARE(add.releaseDate(), u"Dec 31, 1969"_s);
        QCOMPARE(closed.count(), 1);

        // Picked, then cleared: the record has no date.
        fillRequired(add);
        add.clearReleaseDate();
        add.SaveNewVinylButtonClicked();
        QVERIFY(!t.vinyl(add.savedRowId()).releaseDate);

        Vinyl v = t.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, 2);
        v.releaseDate = QDateTime(QDate(1971, 6, 22), QTime(0, 0));
        QVERIFY(t.store().update(v).ok());
        pick(t, v.rowId);
        EditVinylViewController edit(&t.app());
        edit.DateEntered(); // the edit screen keeps the field's date
        QCOMPARE(edit.releaseDate(), u"Jun 22, 1971"_s);
        edit.todayIssuedClick();
        QCOMPARE(edit.releaseDate(), today);
    }

    void missingPictureSourcesAreExplained()
    {
        TestApp t;
        AddVinylViewController add(&t.app());
        QSignalSpy camera(&add, &RecordFormController::openCameraRequested);
        add.OpenFrontCamera();
        QCOMPARE(add.lastAlertTitle(), u"Camera"_s);
        QCOMPARE(add.lastAlertMessage(), u"There is no camera available"_s);
        QCOMPARE(camera.count(), 0);
        add.RearPasteFromClipboard();
        QCOMPARE(add.lastAlertTitle(), u"Clipboard"_s);
        QCOMPARE(add.lastAlertMessage(), u"There is no image in the Clipboard"_s);

        t.platform().clipboard = photo(Qt::green);
        add.RearPasteFromClipboard();
        QVERIFY(add.hasBackImage() && !add.hasFrontImage());

        QTemporaryDir dir;
        const QString notAPicture = dir.filePath(u"notes.txt"_s);
        QVERIFY(writeBytes(notAPicture, "not a picture"));
        add.OpenFrontFolder();
        add.documentPicked(QUrl::fromLocalFile(notAPicture));
        QCOMPARE(add.lastAlertTitle(), u"Picture not Loaded"_s);
        QVERIFY(!add.hasFrontImage());
    }

    void photosLandOnTheSideOfTheirButton()
    {
        TestApp t;
        t.platform().hasCameraAnswer = true;
        AddVinylViewController add(&t.app());
        QTemporaryDir dir;
        const auto shoot = [&](QColor color) {
            const QString path = dir.filePath(u"shot.jpg"_s);
            photo(color).save(path);
            add.imagePicked(path);
        };
        add.OpenBackFolder(); // leaves the back side chosen
        add.OpenFrontCamera();
        shoot(Qt::blue);
        QVERIFY(add.hasFrontImage());
        QVERIFY(!add.hasBackImage());
        add.OpenBackCamera();
        shoot(Qt::yellow);
        QVERIFY(add.hasBackImage());
        add.RemoveFrontImage();
        QVERIFY(!add.hasFrontImage());
    }

    void editAddressesTheOpenedRecord()
    {
        TestApp t;
        // Two records alike in name, date and label: the one opened is the one changed.
        const Vinyl first = t.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, 1);
        const Vinyl second = t.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, 2);
        pick(t, second.rowId, OriginScreens::YearBreakdown);
        EditVinylViewController edit(&t.app());
        QCOMPARE(edit.albumName(), u"Blue"_s);
        QCOMPARE(edit.quantity(), u"0"_s);
        edit.setAlbumName(u"Blue (remaster)"_s);
        edit.setProducer(QString());
        edit.SaveVinylButtonClicked();

        QCOMPARE(t.app().navigator()->lastUnwind(), u"unwindToYearTableView"_s);
        QCOMPARE(t.vinyl(second.rowId).name, std::optional<QString>(u"Blue (remaster)"_s));
        QCOMPARE(t.vinyl(second.rowId).producer, std::optional<QString>(QString(u""_s)));
        QCOMPARE(t.vinyl(first.rowId).name, std::optional<QString>(u"Blue"_s));
        QVERIFY(!t.vinyl(first.rowId).producer);
    }

    // The edit screen shows the barcode and stores what it then holds; the release id, which it
    // does not show, stays whatever the barcode becomes.
    void editKeepsTheBarcodeAsShownAndTheReleaseId_data()
    {
        QTest::addColumn<QString>("before"); // "-": absent
        QTest::addColumn<QString>("typed");  // "-": the field is left as shown
        QTest::addColumn<QString>("after");
        QTest::newRow("none, left empty") << u"-"_s << u"-"_s << u"-"_s;
        QTest::newRow("left as shown") << u"5012345678900"_s << u"-"_s << u"5012345678900"_s;
        QTest::newRow("emptied") << u"5012345678900"_s << QString() << u""_s;
    }

    void editKeepsTheBarcodeAsShownAndTheReleaseId()
    {
        QFETCH(QString, before);
        QFETCH(QString, typed);
        QFETCH(QString, after);
        const auto attribute = [](const QString &text) {
            return text == u"-"_s ? std::nullopt : std::optional<QString>(text.isNull() ? u""_s : text);
        };
        const QString releaseId = u"4f1c2a3b-0d5e-4c6f-9a8b-7e6d5c4b3a21"_s;
        TestApp t;
        Vinyl v = t.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, 1);
        v.barcode = attribute(before);
        v.musicBrainzReleaseId = releaseId;
        QVERIFY(t.store().update(v).ok());
        pick(t, v.rowId);
        EditVinylViewController edit(&t.app());
        QCOMPARE(edit.barcode(), text(v.barcode));
        if (typed != u"-"_s)
            edit.setBarcode(typed);
        edit.SaveVinylButtonClicked();
        QCOMPARE(t.app().navigator()->lastUnwind(), u"unwindToList"_s);
        QCOMPARE(t.vinyl(v.rowId).barcode, attribute(after));
        QCOMPARE(t.vinyl(v.rowId).musicBrainzReleaseId, std::optional<QString>(releaseId));
    }

    void aDeletedRecordIsNotRecreated()
    {
        TestApp t;
        const Vinyl v = t.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, 1);
        pick(t, v.rowId);
        EditVinylViewController edit(&t.app());
        QVERIFY(t.store().remove(Entity::Vinyl, v.rowId).ok());
        edit.SaveVinylButtonClicked();
        QCOMPARE(t.count(), 0);
        QCOMPARE(t.app().navigator()->lastUnwind(), u"unwindToList"_s);
    }

    void aNewCoverGetsAFileOfItsOwn()
    {
        TestApp t;
        const Vinyl v = t.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, 1);
        pick(t, v.rowId);
        const QRegularExpression uuidName(u"^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}\\.jpg$"_s);

        EditVinylViewController edit(&t.app());
        edit.setCoverImage(CoverSide::Front, photo(Qt::red, QSize(1200, 1200)));
        edit.SaveVinylButtonClicked();
        const QStringList firstFiles = coverFiles(t);
        QCOMPARE(firstFiles.size(), 1);
        QVERIFY2(uuidName.match(firstFiles.first()).hasMatch(), qPrintable(firstFiles.first()));
        const Vinyl saved = t.vinyl(v.rowId);
        QCOMPARE(saved.frontImagePath, std::optional<QString>(QDir(t.app().documentsDir()).filePath(firstFiles.first())));
        QCOMPARE(QImage(*saved.frontImagePath).size(), QSize(1200, 1200));
        QCOMPARE(QImage::fromData(*saved.frontImage).size(), QSize(100, 100));
        QVERIFY(!saved.backImagePath && !saved.backImage);

        // Saved again unchanged: the same file. A new picture: a new file, and the one it
        // replaces stays for the snapshots that may name it.
        EditVinylViewController again(&t.app());
        again.SaveVinylButtonClicked();
        QCOMPARE(coverFiles(t), firstFiles);
        EditVinylViewController changed(&t.app());
        changed.setCoverImage(CoverSide::Front, photo(Qt::green, QSize(800, 800)));
        changed.SaveVinylButtonClicked();
        QCOMPARE(coverFiles(t).size(), 2);
        QCOMPARE(QImage(*t.vinyl(v.rowId).frontImagePath).size(), QSize(800, 800));
    }

    void coverFilesOutsideTheAppAreNeverDeleted()
    {
        TestApp t;
        QTemporaryDir elsewhere;
        const QString foreign = elsewhere.filePath(u"mine.jpg"_s);
        QVERIFY(photo(Qt::gray).save(foreign));
        Vinyl v = t.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, 1);
        v.frontImage = jpeg(photo(Qt::gray));
        v.frontImagePath = foreign;
        QVERIFY(t.store().update(v).ok());
        pick(t, v.rowId);
        EditVinylViewController edit(&t.app());
        edit.SaveVinylButtonClicked();
        QVERIFY(QFileInfo::exists(foreign));
        QCOMPARE(coverFiles(t).size(), 1);
    }

    void removingACoverAsksFirst_data()
    {
        QTest::addColumn<bool>("front");
        QTest::addColumn<int>("answer");
        QTest::newRow("front, yes") << true << 0;
        QTest::newRow("front, no") << true << 1;
        QTest::newRow("back, yes") << false << 0;
    }

    void removingACoverAsksFirst()
    {
        QFETCH(bool, front);
        QFETCH(int, answer);
        TestApp t;
        Vinyl v = t.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, 1);
        v.frontImage = jpeg(photo(Qt::red));
        v.backImage = jpeg(photo(Qt::blue));
        v.frontImagePath = u"/nowhere/front.jpg"_s;
        v.backImagePath = u"/nowhere/back.jpg"_s;
        QVERIFY(t.store().update(v).ok());
        pick(t, v.rowId);
        EditVinylViewController edit(&t.app());
        QVERIFY(edit.hasFrontImage() && edit.hasBackImage());

        front ? edit.RemoveFrontImage() : edit.RemoveBackImage();
        QCOMPARE(edit.lastAlertTitle(), front ? u"Remove Front Cover Image"_s : u"Remove Back Cover Image"_s);
        QCOMPARE(edit.lastAlertMessage(), u"Do You Want to Remove This Image?"_s);
        edit.answerAlert(answer);

        const bool removed = answer == 0;
        const Vinyl after = t.vinyl(v.rowId);
        QCOMPARE(bool(after.frontImage), !(front && removed));
        QCOMPARE(bool(after.backImage), !(!front && removed));
        QCOMPARE(front ? edit.hasFrontImage() : edit.hasBackImage(), !removed);
        QCOMPARE(after.frontImagePath, v.frontImagePath);
        QCOMPARE(after.backImagePath, v.backImagePath);
        // A return from the notes screen does not bring the picture back.
        edit.unwindToEdit();
        QCOMPARE(front ? edit.hasFrontImage() : edit.hasBackImage(), !removed);
    }

    // Lent from its form, the record shows who has it there and on the loans screen, which
    // opens it again; deleting it while it is out asks first, naming the borrower.
    void aRecordIsLentFromItsFormAndTakenBack()
    {
        TestApp t;
        const Vinyl v = t.addVinyl(u"Salt Roads"_s, u"Ada Moss"_s, u"Reprise"_s, 1);
        pick(t, v.rowId);
        EditVinylViewController edit(&t.app());
        QVERIFY(!edit.onLoan());
        QVERIFY(!edit.lend(u"Sam"_s, QString(), u"soon"_s, QString()));
        QCOMPARE(edit.lastAlertTitle(), kNotLentTitle);
        QCOMPARE(edit.lastAlertMessage(), kNotADayMessage.arg(u"soon"_s, edit.todayText()));
        QVERIFY(!edit.lend(u""_s, QString(), QString(), QString()));
        QVERIFY(!edit.onLoan());

        QVERIFY(edit.lend(u"Sam"_s, u"Mar 3, 2026"_s, u"Apr 1, 2026"_s, QString()));
        QVERIFY(edit.onLoan());
        const QDate today = QDate::currentDate();
        QCOMPARE(edit.overdue(), today > QDate(2026, 4, 1));
        QVERIFY(edit.loanStatus().startsWith(u"Lent to Sam since Mar 3, 2026, due Apr 1"_s));
        QCOMPARE(edit.borrowers(), QStringList{u"Sam"_s});

        LoansViewController loans(&t.app());
        QCOMPARE(loans.loans().size(), 1);
        QCOMPARE(loans.loans().first().toMap().value(u"album"_s).toString(), u"Salt Roads"_s);
        loans.rowPicked(0);
        QCOMPARE(t.app().navigator()->lastShown(), u"EditVinylView"_s);
        EditVinylViewController opened(&t.app());
        opened.SaveVinylButtonClicked();
        QCOMPARE(t.app().navigator()->lastUnwind(), u"unwindToLoans"_s);

        // Its card says so, and who has it.
        ListVinylTableViewController list(&t.app());
        const QModelIndex card = list.model()->index(0, 0);
        QCOMPARE(card.data(RecordCardModel::LoanBadgeRole).toString(), today > QDate(2026, 4, 1) ? u"Overdue"_s : u"On Loan"_s);
        QCOMPARE(card.data(RecordCardModel::LoanLabelRole).toString(), edit.loanStatus());
        list.deleteRow(0);
        QCOMPARE(list.lastAlertMessage(), u"\"Salt Roads\" is lent to Sam. Delete it and its loans anyway?"_s);
        list.answerAlert(0);
        QVERIFY(t.store().vinylByRowId(v.rowId)->has_value());

        opened.returned();
        QVERIFY(!opened.onLoan());
        QCOMPARE(opened.loanHistory().size(), 1);
        loans.viewWillAppear();
        QCOMPARE(loans.summary(), u"No record is lent out."_s);
        list.viewWillAppear();
        QCOMPARE(list.model()->index(0, 0).data(RecordCardModel::LoanBadgeRole).toString(), QString());
        list.deleteRow(0);
        QVERIFY(!t.store().vinylByRowId(v.rowId)->has_value());
    }

    void sharesTheFormAsTextAndPictures()
    {
        TestApp t;
        Vinyl v = t.addVinyl(u"Blue"_s, QString(), u"Reprise"_s, 1);
        v.backImage = jpeg(photo(Qt::blue));
        QVERIFY(t.store().update(v).ok());
        pick(t, v.rowId);
        EditVinylViewController edit(&t.app());
        edit.shareButtonClicked();
        QCOMPARE(t.platform().shared.size(), 1);
        const ShareItems items = t.platform().shared.first();
        QCOMPARE(items.texts.size(), 1);
        QVERIFY(items.texts.first().startsWith(u"Album Name: Blue\nYear Issued: N/A\nRelease Date: N/A\n"_s));
        QVERIFY(items.texts.first().contains(u"\nCost: $0.00\nValue: $0.00\n"_s));
        // Front and back always: a missing front is the no-cover picture.
        QCOMPARE(items.images.size(), 2);
        QCOMPARE(items.images.at(0), QImage(u":/resources/black-vinyl-record.png"_s));
        QCOMPARE(items.images.at(1).size(), QSize(300, 200));

        t.platform().canSendTextAnswer = false;
        edit.shareButtonClicked();
        QCOMPARE(edit.lastAlertTitle(), u"Can't Send Text Message"_s);
        QCOMPARE(edit.lastAlertMessage(), u"Your device is not able to send text messages."_s);
        QCOMPARE(t.platform().shared.size(), 1);
    }

    void asksForAReviewAfterOpening()
    {
        TestApp t;
        const Vinyl v = t.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, 1);
        pick(t, v.rowId);
        EditVinylViewController edit(&t.app());
        QVERIFY(edit.reviewTimer().isActive());
        edit.reviewTimer().setInterval(10);
        QTRY_COMPARE(t.platform().reviewPrompts, 1);
        QVERIFY(t.app().settings().contains(SettingsKeys::ReviewServiceLastRequest));
    }

    void notesAreSavedAndShownByTheEditor_data()
    {
        QTest::addColumn<QString>("notes");
        QTest::newRow("text") << u"Signed on the back"_s;
        QTest::newRow("empty") << QString();
    }

    void notesAreSavedAndShownByTheEditor()
    {
        QFETCH(QString, notes);
        TestApp t;
        Vinyl v = t.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, 1);
        v.notes = u"old notes"_s;
        QVERIFY(t.store().update(v).ok());
        const Vinyl twin = t.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, 2);
        pick(t, v.rowId);
        EditVinylViewController edit(&t.app());
        NotesViewController notesScreen(&t.app());
        QCOMPARE(notesScreen.notes(), u"old notes"_s);
        notesScreen.setNotes(notes);
        notesScreen.SaveVinylButtonClicked();

        QCOMPARE(t.vinyl(v.rowId).notes, std::optional<QString>(notes.isNull() ? u""_s : notes));
        QVERIFY(!t.vinyl(twin.rowId).notes);
        QCOMPARE(t.app().navigator()->lastUnwind(), u"unwindToEdit"_s);
        edit.unwindToEdit();
        QCOMPARE(edit.notes(), notes);
    }

    void zoomShowsAndSharesTheCovers()
    {
        TestApp t;
        Vinyl v = t.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s, 1);
        pick(t, v.rowId);
        QCOMPARE(ZoomViewController(&t.app()).images(), QStringList());

        v.frontImage = jpeg(photo(Qt::red));
        v.backImage = jpeg(photo(Qt::blue));
        QVERIFY(t.store().update(v).ok());
        pick(t, v.rowId);
        ZoomViewController zoom(&t.app());
        QCOMPARE(zoom.images().size(), 2);
        zoom.shareButtonClicked();
        QCOMPARE(t.platform().shared.size(), 1);
        QCOMPARE(t.platform().shared.first().images.size(), 2);
        QVERIFY(t.platform().shared.first().texts.isEmpty());

        t.platform().canSendTextAnswer = false;
        zoom.shareButtonClicked();
        QCOMPARE(zoom.lastAlertTitle(), u"Can't Send Text Message"_s);
        QCOMPARE(t.platform().shared.size(), 1);
    }
};

QTEST_MAIN(TestRecordScreens)
#include "tst_recordscreens.moc"
