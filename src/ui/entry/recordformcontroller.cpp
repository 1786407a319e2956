#include "entry/recordformcontroller.h"

#include "lookup/lookuptexts.h"
#include "shell/appdelegate.h"
#include "shell/platformservices.h"
#include "store/formatters.h"
#include "store/logging.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QUuid>

using namespace Qt::StringLiterals;
using RecordForm::FilteredField;

RecordFormController::RecordFormController(FormScreen screen, AppDelegate *app, QObject *parent)
    : ScreenController(app, parent), m_screen(screen)
{
}

void RecordFormController::viewDidLoad()
{
    loadPickers();
}

void RecordFormController::loadPickers()
{
    m_conditions.clear();
    const auto entries = RecordForm::conditionEntries(app()->persistentContainer());
    if (entries)
        m_conditions = entries.value();
    else
        consoleLine(entries.errorMessage());
    m_datePickerStyle = RecordForm::datePickerStyle(app()->settings());
}

void RecordFormController::setFields(const RecordFormFields &fields)
{
    if (m_fields == fields)
        return;
    m_fields = fields;
    emit formChanged();
}

void RecordFormController::setField(QString &field, const QString &text)
{
    if (field == text)
        return;
    field = text;
    emit formChanged();
}

bool RecordFormController::quantityEditAccepted(const QString &before, const QString &after) const
{
    return RecordForm::acceptsInsertion(FilteredField::Quantity, m_screen, RecordForm::insertedText(before, after));
}

bool RecordFormController::decimalEditAccepted(const QString &before, const QString &after) const
{
    return RecordForm::acceptsInsertion(FilteredField::Decimal, m_screen, RecordForm::insertedText(before, after));
}

bool RecordFormController::notesEditAccepted(const QString &before, const QString &after) const
{
    return RecordForm::acceptsInsertion(FilteredField::Notes, m_screen, RecordForm::insertedText(before, after));
}

bool RecordFormController::barcodeEditAccepted(const QString &before, const QString &after) const
{
    return RecordForm::acceptsInsertion(FilteredField::Barcode, m_screen, RecordForm::insertedText(before, after));
}

void RecordFormController::ReleaseDateChanged(QDate date)
{
    setReleaseDate(Formatters::mediumDate(QDateTime(date, QTime(0, 0))));
}

void RecordFormController::doneDateIssuedClick(QDate date)
{
    ReleaseDateChanged(date);
    emit endEditing();
}

void RecordFormController::todayIssuedClick()
{
    ReleaseDateChanged(QDate::currentDate());
    emit endEditing();
}

void RecordFormController::clearReleaseDate()
{
    setReleaseDate(QString());
}

void RecordFormController::FrontPasteFromClipboard()
{
    const QImage image = app()->platform().clipboardImage();
    if (image.isNull()) {
        showAlert(RecordForm::kClipboardTitle, RecordForm::kNoClipboardImageMessage);
        return;
    }
    setCoverImage(CoverSide::Front, image);
}

void RecordFormController::RearPasteFromClipboard()
{
    const QImage image = app()->platform().clipboardImage();
    if (image.isNull()) {
        showAlert(RecordForm::kClipboardTitle, RecordForm::kNoClipboardImageMessage);
        return;
    }
    setCoverImage(CoverSide::Back, image);
}

void RecordFormController::OpenFrontFolder()
{
    m_isFrontImage = true;
    m_isBackImage = false;
    emit openFolderRequested();
}

void RecordFormController::OpenBackFolder()
{
    m_isFrontImage = false;
    m_isBackImage = true;
    emit openFolderRequested();
}

void RecordFormController::OpenFrontCamera()
{
    openCamera(CoverSide::Front);
}

void RecordFormController::OpenBackCamera()
{
    openCamera(CoverSide::Back);
}

void RecordFormController::openCamera(CoverSide side)
{
    if (!app()->platform().hasCamera()) {
        showAlert(RecordForm::kCameraTitle, RecordForm::kNoCameraMessage);
        return;
    }
    // Each camera button sends its photo to its own side.
    m_isFrontImage = side == CoverSide::Front;
    m_isBackImage = side == CoverSide::Back;
    m_isFromCamera = true;
    emit openCameraRequested();
}

void RecordFormController::documentPicked(const QUrl &url)
{
    consoleLine(u"Chosen"_s);
    const QString path = url.isLocalFile() ? url.toLocalFile() : url.toString();
    const auto picture = RecordForm::readPicture(path);
    if (!picture) {
        showAlert(RecordForm::kPictureTitle, picture.errorMessage());
        return;
    }
    // The folder buttons leave their side chosen for a later photo as well.
    setCoverImage(m_isFrontImage ? CoverSide::Front : CoverSide::Back, picture.value());
}

void RecordFormController::imagePicked(const QString &filePath)
{
    m_isFromCamera = false;
    const auto picture = RecordForm::readPicture(filePath);
    QFile::remove(filePath); // the camera's file was only the way the photo came
    if (!picture) {
        showAlert(RecordForm::kPictureTitle, picture.errorMessage());
        return;
    }
    if (m_isFrontImage) {
        m_isFrontImage = false;
        setCoverImage(CoverSide::Front, picture.value());
    } else if (m_isBackImage) {
        m_isBackImage = false;
        setCoverImage(CoverSide::Back, picture.value());
    }
}

void RecordFormController::imagePickerCancelled()
{
    m_isFromCamera = false;
}

QString RecordFormController::cameraCaptureFile() const
{
    return QDir(AppDelegate::tempDir()).filePath(u"camera-"_s + QUuid::createUuid().toString(QUuid::WithoutBraces)
                                                 + u".jpg"_s);
}

void RecordFormController::setCoverImage(CoverSide side, const QImage &image)
{
    if (side == CoverSide::Front) {
        m_frontImage = image;
        m_frontSource = previewSource(image);
        m_frontChanged = true;
    } else {
        m_backImage = image;
        m_backSource = previewSource(image);
        m_backChanged = true;
    }
    emit imagesChanged();
}

void RecordFormController::clearCover(CoverSide side)
{
    setCoverImage(side, QImage());
}

void RecordFormController::showStoredCovers(const QImage &front, const QImage &back)
{
    setCoverImage(CoverSide::Front, front);
    setCoverImage(CoverSide::Back, back);
    m_frontChanged = false;
    m_backChanged = false;
}

bool RecordFormController::coverChanged(CoverSide side) const
{
    return side == CoverSide::Front ? m_frontChanged : m_backChanged;
}

QString RecordFormController::previewSource(const QImage &image)
{
    if (image.isNull())
        return {};
    // The view shows a screen-sized copy; the full picture stays in the controller.
    const QImage preview = image.width() > 800 || image.height() > 800
                               ? image.scaled(800, 800, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                               : image;
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    preview.save(&buffer, "JPEG", 90);
    return u"data:image/jpeg;base64,"_s + QString::fromLatin1(data.toBase64());
}

LookupFill::FormState RecordFormController::lookupFormState() const
{
    return {m_fields, recordHasTracks(), hasFrontImage(), hasBackImage()};
}

QList<LookupFill::Change> RecordFormController::lookupChanges(const LookedUpRecord &found)
{
    return LookupFill::emptyFields(lookupFormState(), found).changes;
}

void RecordFormController::takeLookup(const LookedUpRecord &found, const LookupCovers &covers,
                                      const QString &coverProblem)
{
    bool takeTracks = true;
    bool takeFront = !covers.front.isNull();
    bool takeBack = !covers.back.isNull();
    if (m_screen == FormScreen::Add) {
        setFields(LookupFill::newRecordForm(m_fields, found));
    } else {
        const LookupFill::EmptyFieldsFill fill = LookupFill::emptyFields(lookupFormState(), found);
        setFields(fill.fields);
        takeTracks = fill.tracks;
        takeFront = takeFront && fill.frontCover;
        takeBack = takeBack && fill.backCover;
    }
    if (takeFront)
        setCoverImage(CoverSide::Front, covers.front);
    if (takeBack)
        setCoverImage(CoverSide::Back, covers.back);
    m_lookedUpTracks = takeTracks ? found.tracks : QList<Track>();
    m_lookedUpReleaseId = text(found.vinyl.musicBrainzReleaseId);
    emit formChanged();
    if (!coverProblem.isEmpty())
        showAlert(LookupTexts::kCoversNotLoadedTitle, coverProblem);
}

void RecordFormController::forgetLookup()
{
    m_lookedUpTracks.clear();
    m_lookedUpReleaseId.clear();
    emit formChanged();
}

QStringList RecordFormController::lookedUpTrackLines() const
{
    return trackLines(m_lookedUpTracks);
}

QStringList RecordFormController::trackLines(const QList<Track> &tracks)
{
    QStringList lines;
    for (const Track &track : tracks) {
        QString line = u"%1. %2"_s.arg(number(track.trackNumber)).arg(text(track.song));
        if (track.duration)
            line += u"  "_s + Formatters::twoDecimals(*track.duration);
        lines.append(line);
    }
    return lines;
}
