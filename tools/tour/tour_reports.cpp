// Tour steps of the reports: the printed report opened from the collection list and from an
// artist's breakdown list, the report while it prints, the empty report, and the overview guide.
#include "browse/grouptableviewcontroller.h"
#include "reports/printvinylviewcontroller.h"
#include "shell/appdelegate.h"
#include "tour.h"

#include <QElapsedTimer>
#include <QMetaObject>
#include <QQuickItem>

#include <cstdio>

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
// Starts printing the complete list and returns while it is under way, once the progress bar
// shows a count.
void printInProgress(TourContext &c)
{
    openReportFrom(c, u"ListVinylTableView"_s);
    auto *report = qobject_cast<PrintVinylViewController *>(c.topController());
    if (!report)
        return;
    for (int i = 0; i < 500 && report->busy(); ++i)
        c.settle(10);
    report->EmailFileClick();
    QElapsedTimer shown;
    shown.start();
    // Two ticks of the bar, so it shows the count reached.
    while (report->busy() && (report->progress() < 0.2 || shown.elapsed() < 250))
        c.settle(5);
    if (!report->busy())
        fprintf(stderr, "tour: printing finished before its picture\n");
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

void addReportProgressSteps(QList<TourStep> &steps)
{
    steps.append({u"report-printing.png"_s, printInProgress, false});
}
