#include "entry/trackscontrollers.h"

#include "shell/appdelegate.h"
#include "store/store.h"

using namespace Qt::StringLiterals;

namespace {
const QString kUnwind = u"unwindToTrackTableView"_s;
const QString kErrorTitle = u"Error"_s;
} // namespace

TracksTableViewController::TracksTableViewController(AppDelegate *app, QObject *parent)
    : ScreenController(app, parent)
{
    loadIfReady();
}

qint64 TracksTableViewController::vinylRowId() const
{
    return app() ? app()->state()->currentRecord().rowId : 0;
}

void TracksTableViewController::setSearchText(const QString &text)
{
    if (text == m_searchText)
        return;
    m_searchText = text;
    m_model.setRows(filterTracks(m_all, m_searchText));
    emit searchTextChanged();
}

void TracksTableViewController::loadTracks()
{
    if (!app())
        return;
    auto tracks = fetchTracksOf(app()->persistentContainer(), app()->state()->currentRecord().id, m_sortAsc);
    if (!tracks) {
        showAlert(kErrorTitle, tracks.errorMessage());
        return;
    }
    m_all.clear();
    m_all.reserve(tracks->size());
    for (const Track &track : *tracks)
        m_all.append(trackRow(track));
    m_model.setRows(filterTracks(m_all, m_searchText));
    emit listChanged();
}

void TracksTableViewController::SortButtonTapped()
{
    m_sortAsc = !m_sortAsc;
    loadTracks();
}

void TracksTableViewController::AddButtonTapped()
{
    app()->navigator()->show(u"AddTracksView"_s);
}

void TracksTableViewController::rowSelected(int row)
{
    if (row < 0 || row >= m_model.rowCount())
        return;
    app()->state()->setCurrentTrackRowId(m_model.rows().at(row).rowId);
    // A later save on the record editor returns to the main menu from here.
    app()->state()->setOriginScreen(OriginScreens::Menu);
    app()->navigator()->show(u"EditTracksView"_s);
}

void TracksTableViewController::deleteRow(int row)
{
    if (row < 0 || row >= m_model.rowCount())
        return;
    const qint64 rowId = m_model.rows().at(row).rowId;
    Store &store = app()->persistentContainer();
    auto removed = store.transaction([&] { return store.remove(Entity::Tracks, rowId); });
    if (!removed) {
        showAlert(kErrorTitle, removed.errorMessage());
        return;
    }
    m_model.removeRowAt(row);
    m_all.removeIf([rowId](const TrackRow &r) { return r.rowId == rowId; });
    emit listChanged();
}

void TrackFormController::setForm(const TrackForm &form)
{
    m_trackNumber = form.trackNumber;
    m_song = form.song;
    m_duration = form.duration;
    m_writtenBy = form.writtenBy;
    emit formChanged();
}

AddTracksViewController::AddTracksViewController(AppDelegate *app, QObject *parent)
    : TrackFormController(app, parent)
{
    loadIfReady();
}

void AddTracksViewController::SaveTrack()
{
    auto track = trackFromAddForm(form(), app()->state()->currentRecord().id);
    if (!track) {
        showAlert(TrackTexts::NotSavedTitle, track.errorMessage());
        return;
    }
    Store &store = app()->persistentContainer();
    auto saved = store.transaction([&] { return store.insert(*track); });
    if (!saved) {
        showAlert(TrackTexts::NotSavedTitle, saved.errorMessage());
        return;
    }
    app()->navigator()->unwind(kUnwind);
}

EditTracksViewController::EditTracksViewController(AppDelegate *app, QObject *parent)
    : TrackFormController(app, parent)
{
    loadIfReady();
}

std::optional<Track> EditTracksViewController::openedTrack() const
{
    const qint64 rowId = app()->state()->currentTrackRowId();
    // Only the tracks of the current record are candidates (one indexed query).
    auto tracks = fetchTracksOf(app()->persistentContainer(), app()->state()->currentRecord().id, true);
    if (!tracks)
        return std::nullopt;
    for (const Track &track : *tracks) {
        if (track.rowId == rowId)
            return track;
    }
    return std::nullopt;
}

void EditTracksViewController::viewDidLoad()
{
    if (const auto track = openedTrack())
        setForm(formFromTrack(*track));
}

void EditTracksViewController::SaveTrack()
{
    const auto opened = openedTrack();
    if (!opened) {
        showAlert(TrackTexts::NotSavedTitle, TrackTexts::TrackGone);
        return;
    }
    auto track = trackFromEditForm(form(), *opened, app()->state()->currentRecord().id);
    if (!track) {
        showAlert(TrackTexts::NotSavedTitle, track.errorMessage());
        return;
    }
    Store &store = app()->persistentContainer();
    auto saved = store.transaction([&] { return store.update(*track); });
    if (!saved) {
        showAlert(TrackTexts::NotSavedTitle, saved.errorMessage());
        return;
    }
    app()->navigator()->unwind(kUnwind);
}
