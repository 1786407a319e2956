#pragma once

#include "store/result.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

class Store;

// The rules of the group lists (artists, labels, producers, years), apart from any screen.

// The group names of one attribute. The list lives as long as its screen: a load only ever
// appends, so a name whose records were all deleted stays listed (with a count of 0) until
// the screen is built again.
class GroupNameList
{
public:
    // Walks the attribute's values in fetch order. The first present value walked becomes a
    // group even when it is the empty text; after that, empty and absent values form no
    // group, and each other value is listed once (exact, case-sensitive match).
    void load(const QList<std::optional<QString>> &valuesInFetchOrder);
    // Orders the names by code point, ascending or descending.
    void order(bool ascending);

    [[nodiscard]] const QStringList &names() const { return m_names; }
    // Records walked by every load so far.
    [[nodiscard]] qint64 numberOfRecords() const { return m_numberOfRecords; }

private:
    QStringList m_names;
    QSet<QString> m_held;
    qint64 m_numberOfRecords = 0;
};

// Names (in their order) that are not empty and contain text, ignoring case; all names for
// an empty text.
[[nodiscard]] QStringList filterGroupNames(const QStringList &names, const QString &text);

// "12 Artist's", "1 Artist", "0 Artist": the header of a group list. all counts the listed
// groups, found those kept by the search; word is "Artist", "Label", "Producer" or "Year".
[[nodiscard]] QString groupHeaderText(qsizetype all, qsizetype found, bool searching, const QString &word);

// 1 January 00:00 of the date's year and of the next year, local time.
struct YearBounds
{
    QDateTime start;
    QDateTime end;
};
[[nodiscard]] YearBounds yearBounds(const QDateTime &date);

// One row of the year list: the first record walked of a year stands for it.
struct YearGroup
{
    qint64 representativeMillis = 0;
    QString yearText; // "1975"
    QString searchKey; // the representative's long date, lower-cased
    qint64 startMillis = 0; // the year's bounds, for counting
    qint64 endMillis = 0;
};
// Year groups whose representative's long date contains text (ignoring case).
[[nodiscard]] QList<int> filterYearGroups(const QList<YearGroup> &groups, const QString &text);

// Store reads of the group lists, each from an index: group names, never a row per record.
namespace GroupQueries {
// The values a walk of the records by orderBy would list (see GroupNameList::load): the first
// present value of the walk, then every distinct non-empty value in code-point order.
Result<QList<std::optional<QString>>> groupWalk(const Store &store, const QString &attribute, const QString &orderBy);
// Records holding each of the values (exact match), in their order.
Result<QList<qint64>> countsOf(const Store &store, const QString &attribute, const QStringList &values);
// One group per year of the release dates, walked earliest first or latest first: the first
// date walked of a year stands for it. Read a year at a time from the release-date index.
Result<QList<YearGroup>> yearGroups(const Store &store, bool ascending);
// Records released from start (included) to end (excluded).
Result<qint64> countReleased(const Store &store, qint64 startMillis, qint64 endMillis);
} // namespace GroupQueries
