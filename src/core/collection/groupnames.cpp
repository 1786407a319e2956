#include "collection/groupnames.h"

#include "collection/textorder.h"
#include "store/formatters.h"
#include "store/store.h"

#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

void GroupNameList::load(const QList<std::optional<QString>> &valuesInFetchOrder)
{
    bool firstTaken = false;
    for (const std::optional<QString> &value : valuesInFetchOrder) {
        ++m_numberOfRecords;
        // The first present value of the walk is listed whatever it is, the empty text
        // included, so a collection whose first record has an empty name shows that group.
        if (!firstTaken && value) {
            if (!m_held.contains(*value)) {
                m_held.insert(*value);
                m_names.append(*value);
                firstTaken = true;
            }
        }
        if (!value || value->isEmpty())
            continue;
        if (m_numberOfRecords < 2)
            continue;
        if (m_held.contains(*value))
            continue;
        m_held.insert(*value);
        m_names.append(*value);
    }
}

void GroupNameList::order(bool ascending)
{
    std::sort(m_names.begin(), m_names.end(), [](const QString &a, const QString &b) { return codePointLess(a, b); });
    if (!ascending)
        std::reverse(m_names.begin(), m_names.end());
}

QStringList filterGroupNames(const QStringList &names, const QString &text)
{
    if (text.isEmpty())
        return names;
    const QString needle = text.toLower();
    QStringList found;
    for (const QString &name : names) {
        if (!name.isEmpty() && name.toLower().contains(needle))
            found.append(name);
    }
    return found;
}

QString groupHeaderText(qsizetype all, qsizetype found, bool searching, const QString &word)
{
    const QString one = u"1 "_s + word;
    const QString plural = u" "_s + word + u"'s"_s;
    if (all != 1) {
        if (!searching)
            return QString::number(all) + plural;
        return found == 1 ? one : QString::number(found) + plural;
    }
    return searching ? QString::number(found) + u" "_s + word : one;
}

YearBounds yearBounds(const QDateTime &date)
{
    const int year = date.toLocalTime().date().year();
    return {QDateTime(QDate(year, 1, 1), QTime(0, 0)), QDateTime(QDate(year + 1, 1, 1), QTime(0, 0))};
}

QList<int> filterYearGroups(const QList<YearGroup> &groups, const QString &text)
{
    QList<int> found;
    const QString needle = text.toLower();
    for (int i = 0; i < groups.size(); ++i) {
        if (groups.at(i).searchKey.contains(needle))
            found.append(i);
    }
    return found;
}

namespace GroupQueries {
namespace {
// Column names come from the screens' own tables, never from user input; this guards the
// SQL text all the same.
bool isGroupColumn(const QString &name)
{
    static const QStringList columns = {u"artist"_s, u"recordLabel"_s, u"producer"_s, u"releaseDate"_s, u"name"_s};
    return columns.contains(name);
}

// The groupings whose names and counts the store keeps in its tallies.
bool isTallied(const QString &attribute)
{
    return attribute == u"artist" || attribute == u"recordLabel" || attribute == u"producer";
}

Error queryError(const QSqlQuery &query)
{
    return Error{query.lastError().text()};
}
} // namespace

Result<QList<std::optional<QString>>> groupWalk(const Store &store, const QString &attribute, const QString &orderBy)
{
    if (!isTallied(attribute) || !isGroupColumn(orderBy))
        return Error{u"Unknown attribute "_s + attribute};
    QList<std::optional<QString>> walk;
    QSqlQuery query(store.database());
    query.setForwardOnly(true);
    if (!query.exec(u"SELECT "_s + attribute + u" FROM Vinyl WHERE "_s + attribute + u" IS NOT NULL ORDER BY "_s
                    + orderBy + u", rowid LIMIT 1"_s))
        return queryError(query);
    if (query.next())
        walk.append(query.value(0).toString());
    query.finish();
    // The names come from the store's tallies, one row a name, rather than from every record.
    if (!query.prepare(u"SELECT name FROM Tallies WHERE kind = ? AND name > '' ORDER BY name"_s))
        return queryError(query);
    query.bindValue(0, attribute);
    if (!query.exec())
        return queryError(query);
    while (query.next())
        walk.append(query.value(0).toString());
    return walk;
}

Result<QList<qint64>> countsOf(const Store &store, const QString &attribute, const QStringList &values)
{
    if (!isTallied(attribute))
        return Error{u"Unknown attribute "_s + attribute};
    QSqlQuery query(store.database());
    query.setForwardOnly(true);
    if (!query.prepare(u"SELECT records FROM Tallies WHERE kind = ? AND name = ?"_s))
        return queryError(query);
    QList<qint64> counts;
    counts.reserve(values.size());
    for (const QString &value : values) {
        query.bindValue(0, attribute);
        query.bindValue(1, value);
        if (!query.exec())
            return queryError(query);
        counts.append(query.next() ? query.value(0).toLongLong() : 0);
    }
    return counts;
}

Result<QList<YearGroup>> yearGroups(const Store &store, bool ascending)
{
    QSqlQuery query(store.database());
    query.setForwardOnly(true);
    if (!query.prepare(ascending ? u"SELECT MIN(releaseDate) FROM Vinyl WHERE releaseDate >= ?"_s
                                 : u"SELECT MAX(releaseDate) FROM Vinyl WHERE releaseDate < ?"_s))
        return queryError(query);
    QList<YearGroup> groups;
    QSet<QString> seen;
    // The walk jumps from each year it finds to the next: a read per year, not per record.
    qint64 cursor = ascending ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
    for (;;) {
        query.bindValue(0, cursor);
        if (!query.exec())
            return queryError(query);
        if (!query.next() || query.isNull(0))
            break;
        const qint64 millis = query.value(0).toLongLong();
        const QDateTime date = QDateTime::fromMSecsSinceEpoch(millis);
        const YearBounds bounds = yearBounds(date);
        const qint64 start = bounds.start.toMSecsSinceEpoch();
        const qint64 end = bounds.end.toMSecsSinceEpoch();
        const qint64 next = ascending ? end : start;
        // A date the local calendar cannot place moves the walk by one millisecond instead.
        cursor = ascending ? std::max(next, millis + 1) : std::min(next, millis);
        const QString year = Formatters::year(date);
        if (seen.contains(year))
            continue;
        seen.insert(year);
        groups.append({millis, year, Formatters::longDate(date).toLower(), start, end});
    }
    return groups;
}

Result<qint64> countReleased(const Store &store, qint64 startMillis, qint64 endMillis)
{
    QSqlQuery query(store.database());
    query.setForwardOnly(true);
    if (!query.prepare(u"SELECT COUNT(*) FROM Vinyl WHERE releaseDate >= ? AND releaseDate < ?"_s))
        return queryError(query);
    query.bindValue(0, startMillis);
    query.bindValue(1, endMillis);
    if (!query.exec())
        return queryError(query);
    return query.next() ? query.value(0).toLongLong() : 0;
}
} // namespace GroupQueries
