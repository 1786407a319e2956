// The track list and editors, and the two condition lists.
#include "entry/trackscontrollers.h"
#include "shell/appdelegate.h"
#include "store/store.h"
#include "tour.h"

using namespace Qt::StringLiterals;

namespace {

// Makes a sample record that has tracks the current record.
void pickRecordWithTracks(TourContext &c)
{
    Store &store = c.app().persistentContainer();
    const auto tracks = store.fetchTracks(FetchRequest(Entity::Tracks).limitedTo(1));
    if (!tracks || tracks->isEmpty())
        return;
    const auto records = store.fetchVinyl(
        FetchRequest(Entity::Vinyl).where(Predicate::equal(u"id"_s, int(number(tracks->first().vinylID)))).limitedTo(1));
    if (!records || records->isEmpty())
        return;
    if (const auto full = store.vinylByRowId(records->first().rowId); full && full->has_value())
        c.app().state()->setCurrentRecord(**full);
}

} // namespace

void addEntryListSteps(QList<TourStep> &steps)
{
    steps.append({u"tracks-list.png"_s, [](TourContext &c) {
                      c.home();
                      pickRecordWithTracks(c);
                      c.show(u"TracksTableView"_s);
                      c.settle(800);
                  }});
    steps.append({u"tracks-list-search.png"_s, [](TourContext &c) {
                      c.home();
                      pickRecordWithTracks(c);
                      c.show(u"TracksTableView"_s);
                      if (auto *list = qobject_cast<TracksTableViewController *>(c.topController()))
                          list->setSearchText(u"e"_s);
                      c.settle(800);
                  }});
    steps.append({u"track-add.png"_s, [](TourContext &c) {
                      c.home();
                      pickRecordWithTracks(c);
                      c.show(u"TracksTableView"_s);
                      c.show(u"AddTracksView"_s);
                  }});
    steps.append({u"track-add-bad-number.png"_s, [](TourContext &c) {
                      c.home();
                      pickRecordWithTracks(c);
                      c.show(u"TracksTableView"_s);
                      c.show(u"AddTracksView"_s);
                      if (auto *add = qobject_cast<AddTracksViewController *>(c.topController())) {
                          add->setForm({u"two"_s, u"Night Walk"_s, u"4.2"_s, QString()});
                          add->SaveTrack();
                      }
                      c.settle(600);
                  }});
    steps.append({u"track-edit.png"_s, [](TourContext &c) {
                      c.home();
                      pickRecordWithTracks(c);
                      c.show(u"TracksTableView"_s);
                      if (auto *list = qobject_cast<TracksTableViewController *>(c.topController()))
                          list->rowSelected(0);
                      c.settle();
                  }});
    steps.append({u"vinyl-condition-list.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"VinylConditionTableView"_s);
                  }});
    steps.append({u"cover-condition-list.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"CoverConditionTableView"_s);
                  }});
    steps.append({u"vinyl-condition-add.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"VinylConditionTableView"_s);
                      c.show(u"AddVinylConditionView"_s);
                  }});
    steps.append({u"vinyl-condition-edit.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"VinylConditionTableView"_s);
                      if (auto *top = c.topController())
                          QMetaObject::invokeMethod(top, "rowSelected", Q_ARG(int, 0));
                      c.settle();
                  }});
}
