#include "store/recordnumbers.h"

#include "store/store.h"

#include <limits>

Result<qint16> newRecordId(const Store &store)
{
    const auto highest = store.fetchVinyl(FetchRequest(Entity::Vinyl).sortedBy(QStringLiteral("id"), false).limitedTo(1));
    if (!highest)
        return qint16(0);
    if (highest->isEmpty())
        return qint16(1);
    const int next = int(number(highest->first().id)) + 1;
    if (next > std::numeric_limits<qint16>::max())
        return Error{kNoRecordNumberLeft};
    return qint16(next);
}
