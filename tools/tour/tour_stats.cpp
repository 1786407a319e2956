// Tour steps of the statistics screen, its lower charts, a decade opened into its years, the
// edit screen of a record with a value history and of one lent out (overdue), the loans, the
// list card of a record lent out, the wantlist and a wanted album's form.
#include "shell/appdelegate.h"
#include "stats/statisticsviewcontroller.h"
#include "store/store.h"
#include "wantlist/wantlistviewcontroller.h"
#include "tour.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

namespace {

void openStatistics(TourContext &c)
{
    c.home();
    c.show(u"StatisticsView"_s);
    if (auto *statistics = qobject_cast<StatisticsViewController *>(c.topController()))
        statistics->job().waitForFinished();
    c.settle(900);
}

// The screen scrolled to its last charts.
void scrollToEnd(TourContext &c)
{
    if (QQuickItem *screen = c.topScreen()) {
        for (QQuickItem *flickable : screen->findChildren<QQuickItem *>()) {
            if (flickable->inherits("QQuickFlickable")) {
                const qreal end = flickable->property("contentHeight").toReal() - flickable->height();
                flickable->setProperty("contentY", std::max<qreal>(0, end));
            }
        }
    }
    c.settle(600);
}

// Opens the record in the editor, coming from `origin`, scrolled as the form scrolls to a field
// being edited so that the part named `shown` is in sight.
void openRecordShowing(TourContext &c, qint64 rowId, const QString &origin, const QString &shown)
{
    const auto record = c.app().persistentContainer().vinylByRowId(rowId);
    if (!record || !record->has_value())
        return;
    c.app().state()->setCurrentRecord(**record);
    c.app().state()->setOriginScreen(origin);
    c.show(u"EditVinylView"_s);
    c.settle(600);
    QObject *form = c.find(u"RecordForm"_s);
    QObject *part = c.find(shown);
    if (form && part) {
        form->setProperty("editedItem", QVariant::fromValue(part));
        QMetaObject::invokeMethod(form, "showEdited");
        form->setProperty("editedItem", QVariant::fromValue<QQuickItem *>(nullptr));
    }
    c.settle(600);
}

// A record with at least three quotes, opened from the collection list.
void openRecordWithHistory(TourContext &c)
{
    c.home();
    QSqlQuery q(c.app().persistentContainer().database());
    if (!q.exec(u"SELECT vinylRowId FROM Quotes GROUP BY vinylRowId HAVING COUNT(*) >= 3 ORDER BY vinylRowId LIMIT 1"_s)
        || !q.next())
        return;
    const qint64 rowId = q.value(0).toLongLong();
    q.finish();
    openRecordShowing(c, rowId, OriginScreens::List, u"ValueHistory"_s);
}

// The record lent out longest (the sample collection's is overdue), opened from the loans.
void openLentRecord(TourContext &c)
{
    c.home();
    const auto out = c.app().persistentContainer().loansOut();
    if (out && !out->isEmpty())
        openRecordShowing(c, out->first().loan.vinylRowId, OriginScreens::Loans, u"LoanPanel"_s);
}

} // namespace

void addStatsSteps(QList<TourStep> &steps)
{
    steps.append({u"statistics.png"_s, openStatistics});
    steps.append({u"statistics-lower.png"_s, [](TourContext &c) {
                      openStatistics(c);
                      scrollToEnd(c);
                  }});
    steps.append({u"statistics-decade-years.png"_s, [](TourContext &c) {
                      openStatistics(c);
                      if (auto *statistics = qobject_cast<StatisticsViewController *>(c.topController()))
                          statistics->barTapped(u"recordsPerDecade"_s, 1);
                      c.settle(600);
                  }});
    steps.append({u"edit-record-value-history.png"_s, openRecordWithHistory});
    steps.append({u"loans.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"LoansView"_s);
                      c.settle(600);
                  }});
    steps.append({u"edit-record-on-loan.png"_s, openLentRecord});
    // The list found the record lent out longest: its card says who has it.
    steps.append({u"collection-list-lent.png"_s, [](TourContext &c) {
                      c.home();
                      const auto out = c.app().persistentContainer().loansOut();
                      c.show(u"ListVinylTableView"_s);
                      QObject *field = c.find(u"SearchField"_s);
                      if (field && out && !out->isEmpty())
                          field->setProperty("text", out->first().name);
                      c.settle(700);
                  }});
    steps.append({u"wantlist.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"WantlistView"_s);
                      c.settle(600);
                  }});
    steps.append({u"wanted-album.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"WantlistView"_s);
                      if (auto *wantlist = qobject_cast<WantlistViewController *>(c.topController()))
                          wantlist->rowPicked(0);
                      c.settle(900);
                  }});
}
