#pragma once

#include "store/entities.h"
#include "store/fetchrequest.h"
#include "store/result.h"

#include <QList>
#include <QSet>
#include <QString>

class Store;

// Where the rows of a record list come from: how many there are and the records of a window
// of them, in list order, read from the store's indexes (record cards' attributes only).
class RecordRows
{
public:
    virtual ~RecordRows() = default;
    [[nodiscard]] virtual qint64 count() const = 0;
    // Records first .. first + n - 1 (fewer past the end).
    [[nodiscard]] virtual Result<QList<Vinyl>> read(qint64 first, int n) const = 0;
    // The record of a row was deleted: the rows after it move up.
    virtual void removeRow(qint64 row) = 0;
};

// The records a fetch request matches, in its order, counted by the store. A window past the
// middle is read backwards from the end, so the last row costs what the first does.
class FetchedRows : public RecordRows
{
public:
    // request: its predicates and sort keys; the window is this class's.
    static Result<FetchedRows> make(const Store &store, FetchRequest request);
    [[nodiscard]] qint64 count() const override { return m_count; }
    [[nodiscard]] Result<QList<Vinyl>> read(qint64 first, int n) const override;
    void removeRow(qint64 row) override;
    [[nodiscard]] const FetchRequest &request() const { return m_request; }

private:
    FetchedRows(const Store &store, FetchRequest request, qint64 count)
        : m_store(&store), m_request(std::move(request)), m_count(count)
    {
    }
    const Store *m_store;
    FetchRequest m_request;
    qint64 m_count;
};

// One release day and its records.
struct DayCount
{
    qint64 millis = 0;
    qint64 records = 0;
};

// The records of some release days, day by day in the given order, each day's records in
// the order they were added.
class DayRows : public RecordRows
{
public:
    DayRows(const Store &store, QList<DayCount> days);
    [[nodiscard]] qint64 count() const override { return m_count; }
    [[nodiscard]] Result<QList<Vinyl>> read(qint64 first, int n) const override;
    void removeRow(qint64 row) override;

private:
    void index();

    const Store *m_store;
    QList<DayCount> m_days;
    QList<qint64> m_starts; // the first row of each day
    qint64 m_count = 0;
};

// Records named by their row identities, in that order.
class ListedRows : public RecordRows
{
public:
    ListedRows(const Store &store, QList<qint64> rowIds) : m_store(&store), m_rowIds(std::move(rowIds)) {}
    [[nodiscard]] qint64 count() const override { return m_rowIds.size(); }
    [[nodiscard]] Result<QList<Vinyl>> read(qint64 first, int n) const override;
    void removeRow(qint64 row) override;

private:
    const Store *m_store;
    QList<qint64> m_rowIds;
};

namespace RecordQueries {
// Every release day with its number of records, earliest first: one grouped read of the
// release-date index.
Result<QList<DayCount>> releaseDays(const Store &store);
// The row identities of the request's records, ordered by name (an absent name as the empty
// text, code-point order) in the direction asked, ties in the request's own order; only those
// released on one of days when given.
Result<QList<qint64>> rowIdsByName(const Store &store, const FetchRequest &request, bool ascending,
                                   const QSet<qint64> *days = nullptr);
} // namespace RecordQueries
