// Tour steps of the feedback screens: rate and share.
#include "tour.h"

using namespace Qt::StringLiterals;

void addFeedbackSteps(QList<TourStep> &steps)
{
    steps.append({u"rate-and-share.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"RateShareTableView"_s);
                      c.settle();
                  }});
}
