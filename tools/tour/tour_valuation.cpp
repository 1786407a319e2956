// Tour steps of the valuation screen: the whole collection, then a row picked.
#include "tour.h"
#include "valuation/valuationviewcontroller.h"

#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace {
void openValuation(TourContext &c, bool pickRow)
{
    c.home();
    c.show(u"ValuationView"_s);
    c.settle(700);
    if (!pickRow)
        return;
    if (QQuickItem *screen = c.topScreen()) {
        if (auto *valuation = screen->findChild<ValuationViewController *>())
            valuation->rowSelected(1);
    }
    c.settle();
}
} // namespace

void addValuationSteps(QList<TourStep> &steps)
{
    steps.append({u"valuation.png"_s, [](TourContext &c) { openValuation(c, false); }});
    steps.append({u"valuation-row-picked.png"_s, [](TourContext &c) { openValuation(c, true); }});
}
