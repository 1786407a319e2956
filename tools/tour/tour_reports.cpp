// Tour steps of the reports screens.
#include "tour.h"

void addReportsSteps(QList<TourStep> &steps)
{
    Q_UNUSED(steps);
}
