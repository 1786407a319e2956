// Tour steps of the exchange screens.
#include "tour.h"

void addExchangeSteps(QList<TourStep> &steps)
{
    Q_UNUSED(steps);
}
