#pragma once

#include "store/result.h"

class Store;

// How much the collection holds: records, copies (the sum of quantities) and the value of
// all copies (quantity x value). Summed in wide types in one query, so no count overflows.
struct CollectionTotals
{
    qint64 records = 0;
    qint64 copies = 0;
    double value = 0;
};

Result<CollectionTotals> collectionTotals(const Store &store);
