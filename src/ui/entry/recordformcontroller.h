#pragma once

#include "collection/recordform.h"
#include "lookup/lookupfill.h"
#include "shell/screencontroller.h"

#include <QDate>
#include <QImage>
#include <QStringList>
#include <QUrl>

// What the add and the edit screen share: the form's texts, the picker lists, the character
// filters, the release-date entry and the two cover pictures with their paste, camera,
// folder and remove buttons. The screens add their own save.
class RecordFormController : public ScreenController
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QString albumName READ albumName WRITE setAlbumName NOTIFY formChanged)
    Q_PROPERTY(QString artist READ artist WRITE setArtist NOTIFY formChanged)
    Q_PROPERTY(QString releaseDate READ releaseDate WRITE setReleaseDate NOTIFY formChanged)
    Q_PROPERTY(QString recordLabel READ recordLabel WRITE setRecordLabel NOTIFY formChanged)
    Q_PROPERTY(QString quantity READ quantity WRITE setQuantity NOTIFY formChanged)
    Q_PROPERTY(QString recordLength READ recordLength WRITE setRecordLength NOTIFY formChanged)
    Q_PROPERTY(QString producer READ producer WRITE setProducer NOTIFY formChanged)
    Q_PROPERTY(QString barcode READ barcode WRITE setBarcode NOTIFY formChanged)
    Q_PROPERTY(QString vinylCondition READ vinylCondition WRITE setVinylCondition NOTIFY formChanged)
    Q_PROPERTY(QString coverCondition READ coverCondition WRITE setCoverCondition NOTIFY formChanged)
    Q_PROPERTY(QString recordSpeed READ recordSpeed WRITE setRecordSpeed NOTIFY formChanged)
    Q_PROPERTY(QString doubleAlbum READ doubleAlbum WRITE setDoubleAlbum NOTIFY formChanged)
    Q_PROPERTY(QString cost READ cost WRITE setCost NOTIFY formChanged)
    Q_PROPERTY(QString value READ value WRITE setValue NOTIFY formChanged)
    Q_PROPERTY(QString notes READ notes WRITE setNotes NOTIFY formChanged)

    Q_PROPERTY(QStringList ListOfVinylConditions READ listOfVinylConditions NOTIFY loaded)
    Q_PROPERTY(QStringList ListOfCoverConditions READ listOfCoverConditions NOTIFY loaded)
    Q_PROPERTY(QStringList ListOfRecordSpeeds READ listOfRecordSpeeds CONSTANT)
    Q_PROPERTY(QStringList ListOfSingleDouble READ listOfSingleDouble CONSTANT)
    // "wheel", "compact", "inline" or "" for the release-date picker.
    Q_PROPERTY(QString datePickerStyle READ datePickerStyle NOTIFY loaded)

    // Image sources for the two cover views ("" when empty).
    Q_PROPERTY(QString frontImageSource READ frontImageSource NOTIFY imagesChanged)
    Q_PROPERTY(QString backImageSource READ backImageSource NOTIFY imagesChanged)
    Q_PROPERTY(bool hasFrontImage READ hasFrontImage NOTIFY imagesChanged)
    Q_PROPERTY(bool hasBackImage READ hasBackImage NOTIFY imagesChanged)
    // The tracks a look-up brought, stored with the record when it is saved: "1. Salt Roads  4.12".
    Q_PROPERTY(QStringList lookedUpTracks READ lookedUpTrackLines NOTIFY formChanged)

public:
    explicit RecordFormController(FormScreen screen, AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] const RecordFormFields &fields() const { return m_fields; }
    void setFields(const RecordFormFields &fields);

    [[nodiscard]] QString albumName() const { return m_fields.name; }
    [[nodiscard]] QString artist() const { return m_fields.artist; }
    [[nodiscard]] QString releaseDate() const { return m_fields.releaseDate; }
    [[nodiscard]] QString recordLabel() const { return m_fields.recordLabel; }
    [[nodiscard]] QString quantity() const { return m_fields.quantity; }
    [[nodiscard]] QString recordLength() const { return m_fields.recordLength; }
    [[nodiscard]] QString producer() const { return m_fields.producer; }
    [[nodiscard]] QString barcode() const { return m_fields.barcode; }
    [[nodiscard]] QString vinylCondition() const { return m_fields.vinylCondition; }
    [[nodiscard]] QString coverCondition() const { return m_fields.coverCondition; }
    [[nodiscard]] QString recordSpeed() const { return m_fields.recordSpeed; }
    [[nodiscard]] QString doubleAlbum() const { return m_fields.doubleAlbum; }
    [[nodiscard]] QString cost() const { return m_fields.cost; }
    [[nodiscard]] QString value() const { return m_fields.value; }
    [[nodiscard]] QString notes() const { return m_fields.notes; }
    void setAlbumName(const QString &text) { setField(m_fields.name, text); }
    void setArtist(const QString &text) { setField(m_fields.artist, text); }
    void setReleaseDate(const QString &text) { setField(m_fields.releaseDate, text); }
    void setRecordLabel(const QString &text) { setField(m_fields.recordLabel, text); }
    void setQuantity(const QString &text) { setField(m_fields.quantity, text); }
    void setRecordLength(const QString &text) { setField(m_fields.recordLength, text); }
    void setProducer(const QString &text) { setField(m_fields.producer, text); }
    void setBarcode(const QString &text) { setField(m_fields.barcode, text); }
    void setVinylCondition(const QString &text) { setField(m_fields.vinylCondition, text); }
    void setCoverCondition(const QString &text) { setField(m_fields.coverCondition, text); }
    void setRecordSpeed(const QString &text) { setField(m_fields.recordSpeed, text); }
    void setDoubleAlbum(const QString &text) { setField(m_fields.doubleAlbum, text); }
    void setCost(const QString &text) { setField(m_fields.cost, text); }
    void setValue(const QString &text) { setField(m_fields.value, text); }
    void setNotes(const QString &text) { setField(m_fields.notes, text); }

    [[nodiscard]] QStringList listOfVinylConditions() const { return m_conditions; }
    // Fed from the record-condition grades as well: one list of grades for record and cover.
    [[nodiscard]] QStringList listOfCoverConditions() const { return m_conditions; }
    [[nodiscard]] QStringList listOfRecordSpeeds() const { return RecordForm::kRecordSpeeds; }
    [[nodiscard]] QStringList listOfSingleDouble() const { return RecordForm::kSingleDouble; }
    [[nodiscard]] QString datePickerStyle() const { return m_datePickerStyle; }

    [[nodiscard]] QImage frontImage() const { return m_frontImage; }
    [[nodiscard]] QImage backImage() const { return m_backImage; }
    [[nodiscard]] bool hasFrontImage() const { return !m_frontImage.isNull(); }
    [[nodiscard]] bool hasBackImage() const { return !m_backImage.isNull(); }
    [[nodiscard]] QString frontImageSource() const { return m_frontSource; }
    [[nodiscard]] QString backImageSource() const { return m_backSource; }

    // Character filters: whether the edit from `before` to `after` is accepted.
    Q_INVOKABLE bool quantityEditAccepted(const QString &before, const QString &after) const;
    Q_INVOKABLE bool decimalEditAccepted(const QString &before, const QString &after) const;
    Q_INVOKABLE bool notesEditAccepted(const QString &before, const QString &after) const;
    Q_INVOKABLE bool barcodeEditAccepted(const QString &before, const QString &after) const;

    // Release date: the field begins editing, the picker's date changes, "Done", "Today".
    Q_INVOKABLE virtual void DateEntered() {}
    Q_INVOKABLE void ReleaseDateChanged(QDate date);
    Q_INVOKABLE void doneDateIssuedClick(QDate date);
    Q_INVOKABLE void todayIssuedClick();
    Q_INVOKABLE void clearReleaseDate();

    // Cover picture sources.
    Q_INVOKABLE void FrontPasteFromClipboard();
    Q_INVOKABLE void RearPasteFromClipboard();
    Q_INVOKABLE void OpenFrontFolder();
    Q_INVOKABLE void OpenBackFolder();
    Q_INVOKABLE void OpenFrontCamera();
    Q_INVOKABLE void OpenBackCamera();
    Q_INVOKABLE virtual void RemoveFrontImage() {}
    Q_INVOKABLE virtual void RemoveBackImage() {}

    // The document picker chose a file.
    Q_INVOKABLE void documentPicked(const QUrl &url);
    // The camera page took a picture into `filePath` (see cameraCaptureFile()), or was cancelled.
    Q_INVOKABLE void imagePicked(const QString &filePath);
    Q_INVOKABLE void imagePickerCancelled();
    // Where the camera page writes the photo it takes.
    Q_INVOKABLE QString cameraCaptureFile() const;

    // Which side the next photo or document goes to.
    [[nodiscard]] bool isFrontImage() const { return m_isFrontImage; }
    [[nodiscard]] bool isBackImage() const { return m_isBackImage; }

    // Puts a picture into a cover view, as a pick does.
    void setCoverImage(CoverSide side, const QImage &image);

    [[nodiscard]] FormScreen screen() const { return m_screen; }

    // The look-up sheet. What choosing a release would change in this form: every field the
    // release has on the add screen, only what is empty on the edit screen.
    [[nodiscard]] QList<LookupFill::Change> lookupChanges(const LookedUpRecord &found);
    // Fills the form from the release (covers at the size the archive sent them); the tracks
    // and the release id wait for the save. `coverProblem`, when not empty, is shown in an alert.
    void takeLookup(const LookedUpRecord &found, const LookupCovers &covers, const QString &coverProblem = {});
    // Whether a release the collection has already is asked about first (one more copy of it?):
    // on the add screen, which stores a record.
    [[nodiscard]] virtual bool asksAboutStoredCopies() const { return m_screen == FormScreen::Add; }
    // The sheet added a copy to a stored record instead: the add screen's work is done.
    virtual void lookupCopyAdded(const Vinyl &stored) { Q_UNUSED(stored); }
    [[nodiscard]] QStringList lookedUpTrackLines() const;

signals:
    void formChanged();
    void imagesChanged();
    // The release-date picker closes ("Done", "Today").
    void endEditing();
    // The view opens its document picker or its camera page.
    void openFolderRequested();
    void openCameraRequested();

protected:
    void viewDidLoad() override;
    // Reloads the condition list and the date-picker style.
    void loadPickers();

    // Whether a side shows a picture chosen on this screen rather than the stored one.
    [[nodiscard]] bool coverChanged(CoverSide side) const;
    void clearCover(CoverSide side);
    // The pictures the form shows, without counting them as newly chosen.
    void showStoredCovers(const QImage &front, const QImage &back);
    // Whether the record on the form has tracks in the store (the edit screen's).
    [[nodiscard]] virtual bool recordHasTracks() const { return false; }
    // What the last look-up chosen brought that the form does not show; kept until saved.
    [[nodiscard]] const QList<Track> &lookedUpTracks() const { return m_lookedUpTracks; }
    [[nodiscard]] const QString &lookedUpReleaseId() const { return m_lookedUpReleaseId; }
    // The form shows the stored record again: what a look-up brought is dropped.
    void forgetLookup();
    // "1. Salt Roads  4.12", one line per track.
    [[nodiscard]] static QStringList trackLines(const QList<Track> &tracks);

private:
    void setField(QString &field, const QString &text);
    [[nodiscard]] LookupFill::FormState lookupFormState() const;
    void openCamera(CoverSide side);
    static QString previewSource(const QImage &image);

    FormScreen m_screen;
    RecordFormFields m_fields;
    QStringList m_conditions;
    QString m_datePickerStyle;
    QImage m_frontImage;
    QImage m_backImage;
    QString m_frontSource;
    QString m_backSource;
    bool m_frontChanged = false;
    bool m_backChanged = false;
    bool m_isFrontImage = false;
    bool m_isBackImage = false;
    bool m_isFromCamera = false;
    QList<Track> m_lookedUpTracks;
    QString m_lookedUpReleaseId;
};
