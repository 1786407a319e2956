#include "entry/addvinylviewcontroller.h"

#include "collection/wantlist.h"
#include "shell/appdelegate.h"
#include "store/formatters.h"
#include "store/logging.h"
#include "store/recordnumbers.h"
#include "store/valuehistory.h"
#include "store/translations.h"

using namespace Qt::StringLiterals;

AddVinylViewController::AddVinylViewController(AppDelegate *app, QObject *parent)
    : RecordFormController(FormScreen::Add, app, parent)
{
    loadIfReady();
}

void AddVinylViewController::DateEntered()
{
    setReleaseDate(Formatters::mediumDate(QDateTime::currentDateTime()));
}

void AddVinylViewController::RemoveFrontImage()
{
    clearCover(CoverSide::Front);
}

void AddVinylViewController::RemoveBackImage()
{
    clearCover(CoverSide::Back);
}

void AddVinylViewController::SaveNewVinylButtonClicked()
{
    // Saved already and leaving: a second tap must not store the record twice.
    if (m_returning || m_savedRowId != 0 || refusedAsReadOnly())
        return;
    if (!RecordForm::hasRequiredFields(fields())) {
        showAlert(RecordForm::kNotSavedTitle, RecordForm::kRequiredFieldsMessage);
        return;
    }
    auto vinyl = RecordForm::newVinylFromForm(fields());
    if (!vinyl) {
        showAlert(RecordForm::kNotSavedTitle, vinyl.errorMessage());
        return;
    }
    for (const CoverSide side : {CoverSide::Front, CoverSide::Back}) {
        const QImage image = side == CoverSide::Front ? frontImage() : backImage();
        if (image.isNull())
            continue;
        const auto jpeg = RecordForm::thumbnailJpeg(image);
        if (!jpeg) {
            showAlert(RecordForm::kNotSavedTitle, jpeg.errorMessage());
            return;
        }
        (side == CoverSide::Front ? vinyl->frontImage : vinyl->backImage) = jpeg.value();
    }
    vinyl->imagesLoaded = true;
    if (!lookedUpReleaseId().isEmpty())
        vinyl->musicBrainzReleaseId = lookedUpReleaseId();

    Store &store = app()->persistentContainer();
    QString refusal;
    const auto saved = store.transaction([&]() -> Result<void> {
        // The number is chosen inside the transaction, so it is still free when written.
        const auto id = newRecordId(store);
        if (!id) {
            refusal = id.errorMessage();
            return id.error();
        }
        vinyl->id = id.value();
        if (auto r = store.insert(vinyl.value()); !r)
            return r;
        // The tracks a look-up brought are stored with the record.
        for (Track track : lookedUpTracks()) {
            track.vinylID = vinyl->id;
            if (auto r = store.insert(track); !r)
                return r;
        }
        // A record entered with a value starts its value history with it.
        return ValueHistory::noteSave(store, *vinyl, std::nullopt, QuoteSources::Edit);
    });
    if (!saved) {
        if (!refusal.isEmpty())
            showAlert(RecordForm::kNotSavedTitle, refusal);
        else
            showAlert(kStoreErrorTitle, saved.errorMessage());
        return;
    }
    m_savedRowId = vinyl->rowId;
    offerToTakeOffWantlist(*vinyl);
}

void AddVinylViewController::offerToTakeOffWantlist(const Vinyl &saved)
{
    Store &store = app()->persistentContainer();
    const auto wanted = Wantlist::matching(store, saved);
    if (!wanted || wanted->isEmpty()) {
        returnToOpener();
        return;
    }
    showAlert(Wantlist::kTakeOffTitle, translated(Wantlist::kTakeOffMessage).arg(text(saved.name), text(saved.artist)),
              {Wantlist::kKeepButton, Wantlist::kTakeOffButton}, [this, &store, found = *wanted](int button) {
                  for (const WantedAlbum &album : found) {
                      if (button != 1)
                          break;
                      if (auto r = WantedAlbums::remove(store, album.rowId); !r)
                          consoleLine(r.errorMessage());
                  }
                  returnToOpener();
              });
}

void AddVinylViewController::lookupCopyAdded(const Vinyl &stored)
{
    m_savedRowId = stored.rowId;
    returnToOpener();
}

void AddVinylViewController::returnToOpener()
{
    // A save leaves the screen once, however often it is asked to.
    if (m_returning)
        return;
    m_returning = true;
    const QString origin = app()->state()->originScreen();
    consoleLine(origin);
    app()->navigator()->unwind(origin == OriginScreens::List ? u"unwindToList"_s : u"unwindToMenu"_s);
}
