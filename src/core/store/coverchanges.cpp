#include "store/coverchanges.h"

#include <atomic>

namespace {
std::atomic<CoverChanges::Listener> s_listener{nullptr};
}

namespace CoverChanges {

void setListener(Listener listener)
{
    s_listener = listener;
}

void changed(qint64 rowId)
{
    if (const Listener listener = s_listener)
        listener(rowId);
}

} // namespace CoverChanges
