#include "store/collectiontotals.h"

#include "store/keptfigures.h"
#include "store/store.h"

#include <QSqlError>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

Result<CollectionTotals> collectionTotals(const Store &store)
{
    QSqlQuery q(store.database());
    // The store keeps these current on every write; an empty store has no row to read.
    if (!q.exec(u"SELECT TOTAL(records), TOTAL(copies), TOTAL(%1) FROM Tallies WHERE kind = '%2'"_s.arg(
            KeptFigures::amount(u"worth"_s), KeptFigures::kCollection))
        || !q.next())
        return Error{QStringLiteral("Cannot total the collection: ") + q.lastError().text()};
    return CollectionTotals{q.value(0).toLongLong(), qint64(q.value(1).toDouble()), q.value(2).toDouble()};
}
