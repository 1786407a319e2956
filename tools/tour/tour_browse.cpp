// Tour steps of the browse screens.
#include "tour.h"

void addBrowseSteps(QList<TourStep> &steps)
{
    Q_UNUSED(steps);
}
