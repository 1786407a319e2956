// Tour steps of the feedback screens.
#include "tour.h"

void addFeedbackSteps(QList<TourStep> &steps)
{
    Q_UNUSED(steps);
}
