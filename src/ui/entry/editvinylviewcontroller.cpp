#include "entry/editvinylviewcontroller.h"

#include "collection/loans.h"
#include "feedback/reviewservice.h"
#include "shell/appdelegate.h"
#include "shell/coverimageprovider.h"
#include "shell/platformservices.h"
#include "store/fetchrequest.h"
#include "store/formatters.h"
#include "store/logging.h"
#include "store/valuehistory.h"
#include "store/translations.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

bool insideFolder(const QString &path, const QString &folder)
{
    const QString canonicalFolder = QFileInfo(folder).canonicalFilePath();
    const QString canonicalFile = QFileInfo(path).canonicalFilePath();
    return !canonicalFolder.isEmpty() && !canonicalFile.isEmpty()
           && canonicalFile.startsWith(canonicalFolder + u'/');
}

FetchRequest tracksOf(qint16 vinylId)
{
    return FetchRequest(Entity::Tracks).where(Predicate::equal(u"vinylID"_s, int(vinylId)));
}

} // namespace

EditVinylViewController::EditVinylViewController(AppDelegate *app, QObject *parent)
    : RecordFormController(FormScreen::Edit, app, parent)
{
    m_reviewTimer.setSingleShot(true);
    m_reviewTimer.setInterval(5000);
    // The timer belongs to this screen, so no request is made once the screen is gone.
    connect(&m_reviewTimer, &QTimer::timeout, this, [this] {
        ReviewService(this->app()->settings(), this->app()->platform()).requestReview();
    });
    loadIfReady();
}

void EditVinylViewController::viewDidLoad()
{
    RecordFormController::viewDidLoad();
    fillForm();
    m_reviewTimer.start();
}

void EditVinylViewController::fillForm()
{
    const CurrentRecord &record = app()->state()->currentRecord();
    forgetLookup();
    setFields(RecordForm::fieldsFromRecord(record));
    // The form shows the full-size cover file when there is one; the record keeps only a
    // small copy.
    const auto cover = [](const std::optional<QImage> &stored, const QString &path) {
        if (!stored)
            return QImage();
        if (!path.isEmpty() && QFileInfo::exists(path)) {
            if (auto full = RecordForm::readPicture(path))
                return full.value();
        }
        return *stored;
    };
    showStoredCovers(cover(record.frontImage, record.frontImagePath), cover(record.backImage, record.backImagePath));
    loadValueHistory();
    loadLoans();
}

void EditVinylViewController::loadLoans()
{
    Store &store = app()->persistentContainer();
    auto loans = store.loans(app()->state()->currentRecord().rowId);
    auto borrowers = store.borrowers();
    for (const QString &error : {loans.errorMessage(), borrowers.errorMessage()}) {
        if (!error.isEmpty())
            consoleLine(error);
    }
    m_loans = loans.valueOr({});
    m_borrowers = borrowers.valueOr({});
    emit loansChanged();
}

QString EditVinylViewController::loanStatus() const
{
    return onLoan() ? Loans::status(m_loans.first(), QDate::currentDate()) : QString();
}

bool EditVinylViewController::overdue() const
{
    return onLoan() && Loans::isOverdue(m_loans.first(), QDate::currentDate());
}

QStringList EditVinylViewController::loanHistory() const
{
    QStringList lines;
    for (const Loan &loan : m_loans) {
        if (!loan.isOut())
            lines.append(Loans::historyLine(loan));
    }
    return lines;
}

QString EditVinylViewController::todayText() const
{
    return Formatters::mediumDay(QDate::currentDate());
}

bool EditVinylViewController::lend(const QString &borrower, const QString &lentText, const QString &dueText,
                                   const QString &note)
{
    // An empty day is no day: today for the day lent, none for the day due.
    const auto day = [this](const QString &text, QDate empty) -> std::optional<QDate> {
        if (text.trimmed().isEmpty())
            return empty;
        if (const auto parsed = Formatters::parseMediumDate(text.trimmed()))
            return parsed->date();
        showAlert(kNotLentTitle, translated(kNotADayMessage).arg(text.trimmed(), todayText()));
        return std::nullopt;
    };
    const auto lent = day(lentText, QDate::currentDate());
    if (!lent)
        return false;
    const auto due = day(dueText, QDate());
    if (!due)
        return false;
    auto loan = Loans::lend(app()->persistentContainer(), app()->state()->currentRecord().rowId, borrower, *lent, *due,
                            note);
    if (!loan) {
        showAlert(kNotLentTitle, loan.errorMessage());
        return false;
    }
    loadLoans();
    return true;
}

void EditVinylViewController::returned()
{
    if (auto back = Loans::giveBack(app()->persistentContainer(), app()->state()->currentRecord().rowId,
                                    QDate::currentDate());
        !back)
        showAlert(kNotReturnedTitle, back.errorMessage());
    loadLoans();
}

void EditVinylViewController::loadValueHistory()
{
    auto quotes = app()->persistentContainer().quotes(app()->state()->currentRecord().rowId);
    if (!quotes)
        consoleLine(quotes.errorMessage());
    m_quotes = quotes.valueOr({});
    emit valueHistoryChanged();
}

QVariantList EditVinylViewController::valueHistory() const
{
    QVariantList rows;
    for (const Quote &quote : m_quotes)
        rows.append(QVariantMap{{u"dateText"_s, Formatters::mediumDate(quote.quoted)},
                                {u"valueText"_s, Formatters::currencyOrZero(quote.value)},
                                {u"source"_s, quote.source}});
    return rows;
}

QVariantList EditVinylViewController::valueHistoryPoints() const
{
    QVariantList points;
    for (auto quote = m_quotes.crbegin(); quote != m_quotes.crend(); ++quote)
        points.append(QVariantMap{{u"x"_s, double(quote->quoted.toMSecsSinceEpoch())}, {u"y"_s, quote->value}});
    return points;
}

void EditVinylViewController::unwindToEdit()
{
    fillForm();
}

void EditVinylViewController::SaveVinylButtonClicked()
{
    if (refusedAsReadOnly())
        return;
    if (!RecordForm::hasRequiredFields(fields())) {
        showAlert(RecordForm::kNotSavedTitle, RecordForm::kRequiredFieldsMessage);
        return;
    }
    Store &store = app()->persistentContainer();
    const qint64 rowId = app()->state()->currentRecord().rowId;
    const auto found = store.vinylByRowId(rowId);
    if (!found) {
        showAlert(kStoreErrorTitle, found.errorMessage());
        return;
    }
    if (!found->has_value()) {
        // The record was deleted meanwhile: nothing to store.
        returnToOpener();
        return;
    }
    Vinyl vinyl = **found;
    const std::optional<float> valueBefore = vinyl.value;
    if (const auto applied = RecordForm::applyFormToVinyl(fields(), vinyl); !applied) {
        showAlert(RecordForm::kNotSavedTitle, applied.errorMessage());
        return;
    }

    // Covers: the small copy in the record, and a full-size file per side.
    const QString documents = app()->documentsDir();
    QDir().mkpath(documents);
    // The full-size files this save writes; the files they replace stay, for a snapshot may still
    // name them: the snapshots' sweep removes a file once nothing names it.
    QStringList written;
    for (const CoverSide side : {CoverSide::Front, CoverSide::Back}) {
        const bool front = side == CoverSide::Front;
        const QImage image = front ? frontImage() : backImage();
        if (image.isNull())
            continue;
        const auto thumbnail = RecordForm::thumbnailJpeg(image);
        if (!thumbnail) {
            showAlert(RecordForm::kNotSavedTitle, thumbnail.errorMessage());
            for (const QString &path : std::as_const(written))
                QFile::remove(path);
            return;
        }
        (front ? vinyl.frontImage : vinyl.backImage) = thumbnail.value();
        // An unchanged cover keeps its file; a changed one gets a file of its own.
        std::optional<QString> &pathAttribute = front ? vinyl.frontImagePath : vinyl.backImagePath;
        if (!coverChanged(side) && insideFolder(text(pathAttribute), documents))
            continue;
        const QString newPath = QDir(documents).filePath(
            QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper() + u".jpg"_s);
        const QByteArray full = RecordForm::fullSizeJpeg(image).valueOr(QByteArray());
        QFile out(newPath);
        if (!full.isEmpty() && out.open(QIODevice::WriteOnly) && out.write(full) == full.size() && out.flush()) {
            out.close();
            pathAttribute = newPath;
            written.append(newPath);
        } else {
            // The record keeps the file it had; the small copy is still stored.
            out.close();
            QFile::remove(newPath);
            consoleLine(u"Cover file not written: "_s + newPath);
        }
    }

    if (!vinyl.musicBrainzReleaseId && !lookedUpReleaseId().isEmpty())
        vinyl.musicBrainzReleaseId = lookedUpReleaseId();
    const auto saved = store.transaction([&]() -> Result<void> {
        if (auto r = store.update(vinyl); !r)
            return r;
        if (auto r = addLookedUpTracks(store, vinyl); !r)
            return r;
        return ValueHistory::noteSave(store, vinyl, valueBefore, QuoteSources::Edit);
    });
    if (!saved) {
        for (const QString &path : std::as_const(written))
            QFile::remove(path);
        showAlert(kStoreErrorTitle, saved.errorMessage());
        return;
    }
    CoverImageProvider::forget(rowId);
    if (const auto stored = store.vinylByRowId(rowId); stored && stored->has_value())
        app()->state()->setCurrentRecord(**stored);
    returnToOpener();
}

bool EditVinylViewController::recordHasTracks() const
{
    const auto count = app()->persistentContainer().count(tracksOf(app()->state()->currentRecord().id));
    return count.valueOr(0) > 0;
}

// The tracks a look-up brought go to a record that still has none when it is saved.
Result<void> EditVinylViewController::addLookedUpTracks(Store &store, const Vinyl &vinyl)
{
    if (lookedUpTracks().isEmpty())
        return {};
    const auto count = store.count(tracksOf(number(vinyl.id)));
    if (!count)
        return count.error();
    if (count.value() > 0)
        return {};
    for (Track track : lookedUpTracks()) {
        track.vinylID = vinyl.id;
        if (auto r = store.insert(track); !r)
            return r;
    }
    return {};
}

void EditVinylViewController::returnToOpener()
{
    static const QHash<QString, QString> segues = {
        {OriginScreens::Menu, u"unwindToMenu"_s},
        {OriginScreens::List, u"unwindToList"_s},
        {OriginScreens::ArtistBreakdown, u"unwindToArtistTableView"_s},
        {OriginScreens::YearBreakdown, u"unwindToYearTableView"_s},
        {OriginScreens::ProducerBreakdown, u"unwindToProducerTableView"_s},
        {OriginScreens::LabelBreakdown, u"unwindToLabelTableView"_s},
        {OriginScreens::Loans, u"unwindToLoans"_s},
    };
    const QString segue = segues.value(app()->state()->originScreen());
    if (!segue.isEmpty())
        app()->navigator()->unwind(segue);
}

void EditVinylViewController::RemoveFrontImage()
{
    askToRemove(CoverSide::Front);
}

void EditVinylViewController::RemoveBackImage()
{
    askToRemove(CoverSide::Back);
}

void EditVinylViewController::askToRemove(CoverSide side)
{
    showAlert(side == CoverSide::Front ? kRemoveFrontTitle : kRemoveBackTitle, kRemoveImageMessage,
              {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Yes")), QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "No"))}, [this, side](int button) {
                  if (button == 0)
                      removeCover(side);
              });
}

void EditVinylViewController::removeCover(CoverSide side)
{
    // Stored at once, without waiting for Save; the file paths stay as they are.
    Store &store = app()->persistentContainer();
    const qint64 rowId = app()->state()->currentRecord().rowId;
    const auto found = store.vinylByRowId(rowId);
    if (found && found->has_value()) {
        Vinyl vinyl = **found;
        (side == CoverSide::Front ? vinyl.frontImage : vinyl.backImage).reset();
        const auto saved = store.transaction([&] { return store.update(vinyl); });
        if (!saved) {
            showAlert(kStoreErrorTitle, saved.errorMessage());
            return;
        }
        CoverImageProvider::forget(rowId);
    } else if (!found) {
        consoleLine(found.errorMessage());
    }
    // CurrentRecord loses the picture too, so a return from tracks or notes does not bring it back.
    CurrentRecord &record = app()->state()->editCurrentRecord();
    (side == CoverSide::Front ? record.frontImage : record.backImage).reset();
    record.images.clear();
    if (record.frontImage)
        record.images.append(*record.frontImage);
    if (record.backImage)
        record.images.append(*record.backImage);
    app()->state()->notifyCurrentRecordChanged();
    clearCover(side);
}

void EditVinylViewController::shareButtonClicked()
{
    PlatformServices &platform = app()->platform();
    if (!platform.canSendText()) {
        showAlert(RecordForm::kCantSendTextTitle, RecordForm::kCantSendTextMessage, {u"Click"_s});
        return;
    }
    const auto text = RecordForm::shareText(fields());
    if (!text) {
        showAlert(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Record not Shared")), text.errorMessage());
        return;
    }
    // Always three items, text, front and back, so a receiver can tell the covers apart.
    ShareItems items;
    items.texts.append(text.value());
    for (const QImage &image : {frontImage(), backImage()})
        items.images.append(image.isNull() ? RecordForm::missingCoverPicture() : image);
    platform.share(items);
}

void EditVinylViewController::TapFrontImage()
{
    app()->navigator()->show(u"ZoomView"_s);
}

void EditVinylViewController::TracksButtonClicked()
{
    app()->navigator()->show(u"TracksTableView"_s);
}

void EditVinylViewController::NotesButtonClicked()
{
    app()->navigator()->show(u"NotesView"_s);
}
