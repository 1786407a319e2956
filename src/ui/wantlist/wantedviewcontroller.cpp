#include "wantlist/wantedviewcontroller.h"

#include "collection/wantlist.h"
#include "shell/appdelegate.h"
#include "store/logging.h"
#include "store/translations.h"

using namespace Qt::StringLiterals;

namespace {

QImage picture(const std::optional<QByteArray> &bytes)
{
    return bytes ? QImage::fromData(*bytes) : QImage();
}

} // namespace

WantedViewController::WantedViewController(AppDelegate *app, QObject *parent)
    // A wanted album is a sketch: a look-up fills every field its release has, as when adding.
    : RecordFormController(FormScreen::Add, app, parent)
{
    loadIfReady();
}

void WantedViewController::viewDidLoad()
{
    RecordFormController::viewDidLoad();
    const qint64 rowId = app()->state()->currentWantedRowId();
    if (rowId == 0)
        return;
    Store &store = app()->persistentContainer();
    auto wanted = WantedAlbums::byRowId(store, rowId);
    auto tracks = WantedAlbums::tracks(store, rowId);
    if (!wanted || !tracks) {
        showAlert(kStoreErrorTitle, !wanted ? wanted.errorMessage() : tracks.errorMessage());
        return;
    }
    if (!*wanted) {
        showAlert(Wantlist::kNotSavedTitle, Wantlist::kGone);
        return;
    }
    m_wanted = **wanted;
    m_storedTracks = *tracks;
    m_maxPrice = Wantlist::maxPriceText(m_wanted);
    m_priority = m_wanted.priority;
    setFields(Wantlist::formFields(m_wanted));
    showStoredCovers(picture(m_wanted.album.frontImage), picture(m_wanted.album.backImage));
    emit loaded();
    emit wantedChanged();
}

void WantedViewController::setMaxPrice(const QString &text)
{
    if (text == m_maxPrice)
        return;
    m_maxPrice = text;
    emit wantedChanged();
}

QString WantedViewController::priorityName() const
{
    return Wantlist::kPriorityNames.value(m_priority - 1);
}

void WantedViewController::setPriorityName(const QString &name)
{
    const int index = int(Wantlist::kPriorityNames.indexOf(name));
    if (index < 0 || index + 1 == m_priority)
        return;
    m_priority = index + 1;
    emit wantedChanged();
}

QStringList WantedViewController::priorityNames() const
{
    return Wantlist::kPriorityNames;
}

QString WantedViewController::gotItPrompt() const
{
    return translated(Wantlist::kGotItPrompt).arg(text(m_wanted.album.name));
}

bool WantedViewController::takeCovers(Vinyl &album)
{
    for (const CoverSide side : {CoverSide::Front, CoverSide::Back}) {
        if (!isNew() && !coverChanged(side))
            continue;
        const QImage image = side == CoverSide::Front ? frontImage() : backImage();
        std::optional<QByteArray> &cover = side == CoverSide::Front ? album.frontImage : album.backImage;
        cover.reset();
        if (image.isNull())
            continue;
        const auto jpeg = RecordForm::thumbnailJpeg(image);
        if (!jpeg) {
            showAlert(Wantlist::kNotSavedTitle, jpeg.errorMessage());
            return false;
        }
        cover = jpeg.value();
    }
    album.imagesLoaded = true;
    return true;
}

void WantedViewController::save()
{
    if (m_returning || refusedAsReadOnly())
        return;
    Store &store = app()->persistentContainer();
    WantedAlbum wanted = m_wanted;
    if (isNew()) {
        auto made = Wantlist::fromForm(fields(), m_maxPrice, m_priority);
        if (!made) {
            showAlert(Wantlist::kNotSavedTitle, made.errorMessage());
            return;
        }
        wanted = std::move(made.value());
    } else if (auto r = Wantlist::applyForm(fields(), m_maxPrice, m_priority, wanted); !r) {
        showAlert(Wantlist::kNotSavedTitle, r.errorMessage());
        return;
    }
    if (!takeCovers(wanted.album))
        return;
    if (!lookedUpReleaseId().isEmpty())
        wanted.album.musicBrainzReleaseId = lookedUpReleaseId();
    // The tracks a look-up brought go with the album when it has none of its own.
    const QList<Track> newTracks = m_storedTracks.isEmpty() ? lookedUpTracks() : QList<Track>();
    const auto saved = store.transaction([&]() -> Result<void> {
        if (isNew())
            return WantedAlbums::insert(store, wanted, newTracks);
        if (auto r = WantedAlbums::update(store, wanted); !r)
            return r;
        return WantedAlbums::addTracks(store, wanted.rowId, newTracks);
    });
    if (!saved) {
        showAlert(kStoreErrorTitle, saved.errorMessage());
        return;
    }
    m_wanted = wanted;
    returnToWantlist();
}

bool WantedViewController::gotIt(const QString &cost)
{
    if (m_returning || isNew() || refusedAsReadOnly())
        return true;
    std::optional<float> paid;
    if (!cost.trimmed().isEmpty()) {
        const auto parsed = RecordForm::parseMoney(RecordForm::kCostField, cost);
        if (!parsed) {
            showAlert(Wantlist::kGotItTitle, parsed.errorMessage());
            return false;
        }
        paid = parsed.value();
    }
    const auto record = Wantlist::gotIt(app()->persistentContainer(), m_wanted.rowId, paid);
    if (!record) {
        showAlert(Wantlist::kGotItTitle, record.errorMessage());
        return false;
    }
    m_collectedRowId = record->rowId;
    const QString done = translated(Wantlist::kGotItDone).arg(text(record->name)).arg(number(record->id));
    consoleLine(done);
    m_returning = true;
    showAlert(Wantlist::kGotItTitle, done, {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "OK"))}, [this](int) {
        m_returning = false;
        returnToWantlist();
    });
    return true;
}

void WantedViewController::deleteClicked()
{
    if (m_returning || isNew() || refusedAsReadOnly())
        return;
    showAlert(Wantlist::kDeleteTitle,
              translated(Wantlist::kDeleteMessage).arg(text(m_wanted.album.name), text(m_wanted.album.artist)),
              {Wantlist::kKeepButton, Wantlist::kDeleteButton}, [this](int button) {
                  if (button != 1)
                      return;
                  if (auto r = WantedAlbums::remove(app()->persistentContainer(), m_wanted.rowId); !r) {
                      showAlert(kStoreErrorTitle, r.errorMessage());
                      return;
                  }
                  returnToWantlist();
              });
}

void WantedViewController::returnToWantlist()
{
    if (m_returning)
        return;
    m_returning = true;
    app()->navigator()->unwind(u"unwindToWantlist"_s);
}
