#include "collection/recordrows.h"

#include "collection/textorder.h"
#include "store/store.h"

#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>

using namespace Qt::StringLiterals;

Result<FetchedRows> FetchedRows::make(const Store &store, FetchRequest request)
{
    request.limit = 0;
    request.offset = 0;
    request.reversed = false;
    auto count = store.count(request);
    if (!count)
        return count.error();
    return FetchedRows(store, std::move(request), *count);
}

Result<QList<Vinyl>> FetchedRows::read(qint64 first, int n) const
{
    first = std::clamp<qint64>(first, 0, m_count);
    n = int(std::clamp<qint64>(n, 0, m_count - first));
    if (n == 0)
        return QList<Vinyl>();
    FetchRequest window = m_request;
    window.limit = n;
    const qint64 after = m_count - first - n; // rows after the window
    if (after < first) {
        window.offset = after;
        window.reversed = true;
        auto rows = m_store->fetchVinyl(window);
        if (rows)
            std::reverse(rows->begin(), rows->end());
        return rows;
    }
    window.offset = first;
    return m_store->fetchVinyl(window);
}

void FetchedRows::removeRow(qint64 row)
{
    if (row >= 0 && row < m_count)
        --m_count;
}

DayRows::DayRows(const Store &store, QList<DayCount> days) : m_store(&store), m_days(std::move(days))
{
    index();
}

void DayRows::index()
{
    m_starts.clear();
    m_starts.reserve(m_days.size());
    m_count = 0;
    for (const DayCount &day : std::as_const(m_days)) {
        m_starts.append(m_count);
        m_count += day.records;
    }
}

void DayRows::removeRow(qint64 row)
{
    if (row < 0 || row >= m_count)
        return;
    const qsizetype day = std::upper_bound(m_starts.begin(), m_starts.end(), row) - m_starts.begin() - 1;
    if (--m_days[day].records == 0)
        m_days.removeAt(day);
    index();
}

void ListedRows::removeRow(qint64 row)
{
    if (row >= 0 && row < m_rowIds.size())
        m_rowIds.removeAt(row);
}

Result<QList<Vinyl>> DayRows::read(qint64 first, int n) const
{
    QList<Vinyl> rows;
    if (first < 0 || first >= m_count || n <= 0)
        return rows;
    // The day holding the first row, then day after day until the window is full.
    qsizetype day = std::upper_bound(m_starts.begin(), m_starts.end(), first) - m_starts.begin() - 1;
    qint64 offset = first - m_starts.at(day);
    for (; day < m_days.size() && rows.size() < n; ++day, offset = 0) {
        const FetchRequest request = FetchRequest(Entity::Vinyl)
                                         .onlyCardAttributes()
                                         .where(Predicate::equal(u"releaseDate"_s, m_days.at(day).millis))
                                         .sortedBy(u"releaseDate"_s)
                                         .startingAt(offset)
                                         .limitedTo(int(n - rows.size()));
        auto read = m_store->fetchVinyl(request);
        if (!read)
            return read.error();
        rows.append(*read);
    }
    return rows;
}

Result<QList<Vinyl>> ListedRows::read(qint64 first, int n) const
{
    QList<Vinyl> rows;
    for (qint64 i = std::max<qint64>(first, 0); i < m_rowIds.size() && rows.size() < n; ++i) {
        auto record = m_store->vinylByRowId(m_rowIds.at(i), false);
        if (!record)
            return record.error();
        // A record deleted since the list was made leaves an empty row rather than shifting the rest.
        Vinyl vinyl = record->value_or(Vinyl());
        vinyl.rowId = m_rowIds.at(i);
        rows.append(std::move(vinyl));
    }
    return rows;
}

namespace RecordQueries {

Result<QList<DayCount>> releaseDays(const Store &store)
{
    QSqlQuery query(store.database());
    query.setForwardOnly(true);
    if (!query.exec(u"SELECT releaseDate, COUNT(*) FROM Vinyl WHERE releaseDate IS NOT NULL GROUP BY releaseDate "
                    "ORDER BY releaseDate"_s))
        return Error{query.lastError().text()};
    QList<DayCount> days;
    while (query.next())
        days.append({query.value(0).toLongLong(), query.value(1).toLongLong()});
    return days;
}

namespace {
struct Named
{
    qint64 rowId;
    QString name;
};

void orderByName(QList<Named> &rows, bool ascending)
{
    std::stable_sort(rows.begin(), rows.end(), [ascending](const Named &a, const Named &b) {
        return ascending ? codePointLess(a.name, b.name) : codePointLess(b.name, a.name);
    });
}
} // namespace

Result<QList<qint64>> rowIdsByName(const Store &store, const FetchRequest &request, bool ascending,
                                   const QSet<qint64> *days)
{
    const QStringList attributes = days ? QStringList{u"name"_s, u"releaseDate"_s} : QStringList{u"name"_s};
    auto values = store.fetchValues(request, attributes);
    if (!values)
        return values.error();
    QList<Named> rows;
    rows.reserve(values->size());
    for (const QVariantList &row : std::as_const(*values)) {
        if (days && (row.at(2).isNull() || !days->contains(row.at(2).toLongLong())))
            continue;
        rows.append({row.at(0).toLongLong(), row.at(1).toString()});
    }
    orderByName(rows, ascending);
    QList<qint64> ids;
    ids.reserve(rows.size());
    for (const Named &row : std::as_const(rows))
        ids.append(row.rowId);
    return ids;
}

} // namespace RecordQueries
