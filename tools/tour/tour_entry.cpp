// Tour steps of the entry screens.
#include "tour.h"

void addEntrySteps(QList<TourStep> &steps)
{
    Q_UNUSED(steps);
}
