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
// One group per year, in the order the dates are walked.
[[nodiscard]] QList<YearGroup> yearGroups(const QList<qint64> &releaseDateMillis);
// Year groups whose representative's long date contains text (ignoring case).
[[nodiscard]] QList<int> filterYearGroups(const QList<YearGroup> &groups, const QString &text);
// Records of a year: millis must be sorted ascending.
[[nodiscard]] qint64 countInYear(const QList<qint64> &sortedMillis, const YearGroup &group);

// Store reads of the group lists: one column, no covers, no per-row objects.
namespace GroupQueries {
// The attribute of every record, ordered by orderBy ascending (absent values first).
Result<QList<std::optional<QString>>> attributeValues(const Store &store, const QString &attribute,
                                                      const QString &orderBy);
// Records per present value of the attribute, in one grouped count.
Result<QHash<QString, qint64>> countsByValue(const Store &store, const QString &attribute);
// Every present release date, ascending.
Result<QList<qint64>> releaseDates(const Store &store);
} // namespace GroupQueries
