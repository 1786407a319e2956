#pragma once

#include "store/result.h"

#include <QtGlobal>

class Store;

// The number a new record takes: the highest id + 1, 1 in an empty store, 0 when the store
// cannot be read. Numbers are 16-bit, so once a record is numbered 32767 no further number
// exists: that is an error for the caller to show, not a crash.
Result<qint16> newRecordId(const Store &store);

inline const QString kNoRecordNumberLeft = QStringLiteral(
    "The collection already holds a record numbered 32767, the highest record number there is. "
    "Delete the record with the highest number to add another.");
