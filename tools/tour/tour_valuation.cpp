// Tour steps of the valuation screens.
#include "tour.h"

void addValuationSteps(QList<TourStep> &steps)
{
    Q_UNUSED(steps);
}
