#pragma once

#include <QtGlobal>

// Whoever keeps decoded covers (the window's image provider) hears here when something other
// than a screen changes a record's pictures in the store, so nothing stale is shown. Safe
// from any thread: an import tells it from its worker.
namespace CoverChanges {

using Listener = void (*)(qint64 rowId);

void setListener(Listener listener);
// The pictures of this record changed.
void changed(qint64 rowId);

} // namespace CoverChanges
