#include "collection/groupnames.h"

#include "collection/textorder.h"
#include "store/formatters.h"
#include "store/store.h"

#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>

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

QList<YearGroup> yearGroups(const QList<qint64> &releaseDateMillis)
{
    QList<YearGroup> groups;
    QSet<QString> seen;
    // Dates usually arrive sorted, so most fall in the year just seen; that test avoids
    // formatting every date.
    qint64 lastStart = 0;
    qint64 lastEnd = 0;
    for (qint64 millis : releaseDateMillis) {
        if (!groups.isEmpty() && millis >= lastStart && millis < lastEnd)
            continue;
        const QDateTime date = QDateTime::fromMSecsSinceEpoch(millis);
        const YearBounds bounds = yearBounds(date);
        lastStart = bounds.start.toMSecsSinceEpoch();
        lastEnd = bounds.end.toMSecsSinceEpoch();
        const QString year = Formatters::year(date);
        if (seen.contains(year))
            continue;
        seen.insert(year);
        groups.append({millis, year, Formatters::longDate(date).toLower(), lastStart, lastEnd});
    }
    return groups;
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

qint64 countInYear(const QList<qint64> &sortedMillis, const YearGroup &group)
{
    const auto first = std::lower_bound(sortedMillis.begin(), sortedMillis.end(), group.startMillis);
    const auto last = std::lower_bound(first, sortedMillis.end(), group.endMillis);
    return last - first;
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

Error queryError(const QSqlQuery &query)
{
    return Error{query.lastError().text()};
}
} // namespace

Result<QList<std::optional<QString>>> attributeValues(const Store &store, const QString &attribute,
                                                      const QString &orderBy)
{
    if (!isGroupColumn(attribute) || !isGroupColumn(orderBy))
        return Error{u"Unknown attribute "_s + attribute};
    QSqlQuery query(store.database());
    query.setForwardOnly(true);
    if (!query.exec(u"SELECT "_s + attribute + u" FROM Vinyl ORDER BY "_s + orderBy + u" ASC, rowid ASC"_s))
        return queryError(query);
    QList<std::optional<QString>> values;
    while (query.next()) {
        const QVariant v = query.value(0);
        values.append(v.isNull() ? std::nullopt : std::optional<QString>(v.toString()));
    }
    return values;
}

Result<QHash<QString, qint64>> countsByValue(const Store &store, const QString &attribute)
{
    if (!isGroupColumn(attribute))
        return Error{u"Unknown attribute "_s + attribute};
    QSqlQuery query(store.database());
    query.setForwardOnly(true);
    if (!query.exec(u"SELECT "_s + attribute + u", COUNT(*) FROM Vinyl WHERE "_s + attribute
                    + u" IS NOT NULL GROUP BY "_s + attribute))
        return queryError(query);
    QHash<QString, qint64> counts;
    while (query.next())
        counts.insert(query.value(0).toString(), query.value(1).toLongLong());
    return counts;
}

Result<QList<qint64>> releaseDates(const Store &store)
{
    QSqlQuery query(store.database());
    query.setForwardOnly(true);
    if (!query.exec(u"SELECT releaseDate FROM Vinyl WHERE releaseDate IS NOT NULL ORDER BY releaseDate ASC"_s))
        return queryError(query);
    QList<qint64> dates;
    while (query.next())
        dates.append(query.value(0).toLongLong());
    return dates;
}
} // namespace GroupQueries
