// Tour steps of the reports: the printed report opened from the collection list and from an
// artist's breakdown list, the empty report, and the overview guide.
#include "appdelegate.h"
#include "grouptableviewcontroller.h"
#include "tour.h"

#include <QMetaObject>
#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace {
void openReportFrom(TourContext &c, const QString &list)
{
    c.home();
    c.show(list);
    c.settle();
    c.show(u"PrintVinylView"_s);
    c.settle(900);
}

void openArtistReport(TourContext &c)
{
    c.home();
    c.show(u"GroupListsView"_s);
    c.settle();
    if (QQuickItem *screen = c.topScreen()) {
        if (auto *groups = screen->findChild<ArtistGroupTableViewController *>())
            groups->rowSelected(1);
    }
    c.settle(700);
    c.show(u"PrintVinylView"_s);
    c.settle(900);
}
} // namespace

void addReportsSteps(QList<TourStep> &steps)
{
    steps.append({u"report-complete-list.png"_s, [](TourContext &c) { openReportFrom(c, u"ListVinylTableView"_s); }});
    steps.append({u"report-by-artist.png"_s, openArtistReport});
    steps.append({u"report-empty.png"_s, [](TourContext &c) {
                      c.home();
                      c.app().state()->setOriginScreen(u"YearBreakdown"_s);
                      c.app().state()->editCurrentRecord().releaseDate = QDateTime(QDate(1900, 1, 1), QTime(0, 0));
                      c.show(u"PrintVinylView"_s);
                      c.settle(700);
                  }});
    steps.append({u"overview.png"_s, [](TourContext &c) {
                      if (QObject *alert = c.find(u"alert"_s))
                          QMetaObject::invokeMethod(alert, "close");
                      c.home();
                      c.show(u"OverviewView"_s);
                      c.settle(1500);
                  }});
}
