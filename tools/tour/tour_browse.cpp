// The collection list under each sort choice and while searching, the group lists and the
// breakdown lists, on the sample collection.
#include "browse/breakdowntableviewcontroller.h"
#include "browse/grouptableviewcontroller.h"
#include "browse/listvinyltableviewcontroller.h"
#include "tour.h"

#include <QQuickItem>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace {
ListVinylTableViewController *openCollectionList(TourContext &c, bool table = false)
{
    c.home();
    c.show(u"ListVinylTableView"_s);
    auto *list = qobject_cast<ListVinylTableViewController *>(c.topController());
    if (list)
        list->setTableChosen(table);
    return list;
}

// The table, sorted by value, highest first (under the desktop width: the cards).
void openCollectionTable(TourContext &c)
{
    if (auto *list = openCollectionList(c, true)) {
        list->columnHeaderClicked(6);
        list->columnHeaderClicked(6);
    }
    c.settle(700);
}

void search(TourContext &c, const QString &text)
{
    if (QObject *field = c.find(u"SearchField"_s))
        field->setProperty("text", text);
    c.settle();
}

void openGroupTab(TourContext &c, int tab)
{
    c.home();
    c.show(u"GroupListsView"_s);
    if (QQuickItem *screen = c.topScreen())
        screen->setProperty("currentTab", tab);
    c.settle();
}

template<typename GroupController>
void openBreakdown(TourContext &c, int tab, int row)
{
    openGroupTab(c, tab);
    if (QQuickItem *screen = c.topScreen()) {
        if (auto *groups = screen->findChild<GroupController *>())
            groups->rowSelected(row);
    }
    c.settle(700);
}
} // namespace

void addBrowseSteps(QList<TourStep> &steps)
{
    steps.append({u"collection-list-by-name.png"_s, [](TourContext &c) {
                      openCollectionList(c);
                      c.settle(700);
                  }});
    const QList<std::pair<int, QString>> sorts = {
        {2, u"collection-list-by-year.png"_s},
        {3, u"collection-list-by-record-label.png"_s},
        {4, u"collection-list-by-artist.png"_s},
    };
    for (const auto &[option, file] : sorts) {
        steps.append({file, [option](TourContext &c) {
                          if (auto *list = openCollectionList(c))
                              list->sortOptionSelected(option);
                          c.settle(700);
                      }});
    }
    steps.append({u"list-table.png"_s, openCollectionTable});
    steps.append({u"list-table-searching.png"_s, [](TourContext &c) {
                      openCollectionTable(c);
                      search(c, u"th"_s);
                      c.settle(700);
                  }});
    steps.append({u"collection-list-searching.png"_s, [](TourContext &c) {
                      openCollectionList(c);
                      search(c, u"th"_s);
                      c.settle(700);
                  }});
    steps.append({u"collection-list-searching-year.png"_s, [](TourContext &c) {
                      if (auto *list = openCollectionList(c))
                          list->sortOptionSelected(2);
                      search(c, u"Mar"_s);
                      c.settle(700);
                  }});

    const QStringList tabs = {u"artist"_s, u"label"_s, u"producer"_s, u"year"_s};
    for (int tab = 0; tab < tabs.size(); ++tab) {
        steps.append({u"group-list-"_s + tabs.at(tab) + u".png"_s, [tab](TourContext &c) { openGroupTab(c, tab); }});
    }
    steps.append({u"group-list-artist-searching.png"_s, [](TourContext &c) {
                      openGroupTab(c, 0);
                      search(c, u"the"_s);
                  }});

    steps.append({u"breakdown-artist.png"_s, [](TourContext &c) {
                      openBreakdown<ArtistGroupTableViewController>(c, 0, 1);
                  }});
    steps.append({u"breakdown-label.png"_s, [](TourContext &c) {
                      openBreakdown<LabelGroupTableViewController>(c, 1, 0);
                  }});
    steps.append({u"breakdown-producer.png"_s, [](TourContext &c) {
                      openBreakdown<ProducerGroupTableViewController>(c, 2, 0);
                  }});
    steps.append({u"breakdown-year.png"_s, [](TourContext &c) {
                      openBreakdown<YearGroupTableViewController>(c, 3, 2);
                  }});
    steps.append({u"breakdown-artist-searching.png"_s, [](TourContext &c) {
                      openBreakdown<ArtistGroupTableViewController>(c, 0, 1);
                      search(c, u"a"_s);
                  }});
}

void addWideSteps(QList<TourStep> &steps)
{
    steps.append({u"list-table.png"_s, openCollectionTable});
}
