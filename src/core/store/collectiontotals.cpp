#include "store/collectiontotals.h"

#include "store/store.h"

#include <QSqlError>
#include <QSqlQuery>

Result<CollectionTotals> collectionTotals(const Store &store)
{
    QSqlQuery q(store.database());
    // value is a 32-bit float in the app; the product is taken in double here.
    if (!q.exec(QStringLiteral("SELECT COUNT(*), TOTAL(quantity), TOTAL(quantity * value) FROM Vinyl")) || !q.next())
        return Error{QStringLiteral("Cannot total the collection: ") + q.lastError().text()};
    return CollectionTotals{q.value(0).toLongLong(), qint64(q.value(1).toDouble()), q.value(2).toDouble()};
}
