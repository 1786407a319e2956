#pragma once

#include "collection/recordcard.h"
#include "store/entities.h"
#include "store/recordcaptions.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>

// The collection list's rules, apart from any screen: which attribute a sort choice sorts
// by, what a search keeps, the card texts and the header.
namespace CollectionList {

// The store attribute a sort choice ("Name", "Year", "RecordLabel", "Artist", and the table's
// "Speed", "Quantity", "Value", "Total") sorts by; empty for any other choice (store order).
[[nodiscard]] QString sortAttribute(const QString &sortName);
// The text attribute a search reads under a sort choice: the sorted text itself, and the name
// under the orders of figures and speeds; empty under "Year" (searched by its date text) and
// any other choice.
[[nodiscard]] QString searchAttribute(const QString &sortName);

// A column of the collection table: its header and the sort choice a click on it makes.
struct TableColumn
{
    QString title; // English, marked for translation
    QString sortName;
};
// Album, Artist, Year, Label, Speed, Quantity, Value, Total: the order of RecordCard::cells.
[[nodiscard]] const QList<TableColumn> &tableColumns();

// Remembers the texts of amounts and dates already formatted during one load: collections
// repeat prices and release days a lot, and formatting is most of a card's cost. Holds the
// cards' captions in the language of the moment it was made.
class TextCache
{
public:
    [[nodiscard]] QString currency(double amount);
    [[nodiscard]] QString mediumDate(const QDateTime &date);
    [[nodiscard]] QString year(const QDateTime &date);
    [[nodiscard]] const RecordCaptions &captions() const { return m_captions; }

private:
    RecordCaptions m_captions = RecordCaptions::translatedNow();
    QHash<double, QString> m_currency;
    QHash<qint64, QString> m_dates;
    QHash<qint64, QString> m_years;
};

// The card of a record under a sort choice, with its row's cells in the table.
[[nodiscard]] RecordCard makeCard(const Vinyl &vinyl, const QString &sortName, TextCache &texts);

// The records of list (indices into records, kept in list order) that a search for text keeps
// under a sort choice; nullopt when the sort choice has no search (the filtered list stays).
// Name, label and artist match case-insensitively; "Year" matches the medium date text
// exactly as typed. It scans memory only, so a keystroke never waits on the store.
[[nodiscard]] std::optional<QList<int>> search(const QList<Vinyl> &records, const QList<int> &list,
                                               const QString &sortName, const QString &text, TextCache &texts);

// Orders list (indices into records) by name in code-point order, an absent name as empty; stable.
void sortByName(const QList<Vinyl> &records, QList<int> &list, bool ascending);

// "# Vinyl Records = 3 of 12"
[[nodiscard]] QString headerText(qsizetype shown, qsizetype all);


} // namespace CollectionList
