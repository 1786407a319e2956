#include "store/valuehistory.h"

#include "store/store.h"

namespace ValueHistory {

bool changes(std::optional<float> before, std::optional<float> after)
{
    return number(before) != number(after);
}

Result<void> noteSave(Store &store, const Vinyl &saved, std::optional<float> before, const QString &source,
                      const QDateTime &at)
{
    if (!changes(before, saved.value))
        return {};
    Quote quote{0, saved.rowId, at, double(number(saved.value)), source};
    return store.insert(quote);
}

} // namespace ValueHistory
