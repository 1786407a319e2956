#pragma once

#include "browse/recordcardmodel.h"
#include "browse/recordlistcontroller.h"
#include "collection/collectionlist.h"
#include "collection/recordrows.h"

#include <QStringList>

#include <memory>
#include <optional>

// The whole collection as a list of record cards: four sort choices, a search whose
// meaning follows the sort choice, swipe to delete, and a picked record opens the editor.
// On a desktop-wide window the same rows can show as a table whose headers sort it.
class ListVinylTableViewController : public RecordListController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(RecordCardModel *model READ model CONSTANT)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY placeholderChanged)
    Q_PROPERTY(QString headerText READ headerText NOTIFY listChanged)
    Q_PROPERTY(QString sortName READ sortName NOTIFY listChanged)
    Q_PROPERTY(bool sortAsc READ sortAsc NOTIFY listChanged)
    Q_PROPERTY(QStringList sortOptions READ sortOptions CONSTANT)
    // What the Sort button does now ("Sort by artist"), its name for a screen reader.
    Q_PROPERTY(QString sortAction READ sortAction NOTIFY listChanged)
    Q_PROPERTY(bool canAdd READ canAdd NOTIFY loaded)
    // The table rather than the cards was chosen (kept in the settings); the view shows it
    // where the window is wide enough.
    Q_PROPERTY(bool tableChosen READ tableChosen WRITE setTableChosen NOTIFY tableChosenChanged)
    Q_PROPERTY(QStringList columnTitles READ columnTitles CONSTANT)
    // The column the list is sorted by, or -1.
    Q_PROPERTY(int sortColumn READ sortColumn NOTIFY listChanged)

public:
    explicit ListVinylTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] RecordCardModel *model() { return &m_model; }
    [[nodiscard]] QString placeholder() const { return m_placeholder; }
    [[nodiscard]] QString headerText() const;
    [[nodiscard]] QString sortName() const { return m_sortName; }
    [[nodiscard]] bool sortAsc() const { return m_sortAsc.value_or(true); }
    [[nodiscard]] QStringList sortOptions() const;
    [[nodiscard]] QString sortAction() const;
    [[nodiscard]] bool canAdd() const;
    [[nodiscard]] bool searching() const { return !m_searchText.isEmpty(); }
    [[nodiscard]] bool tableChosen() const;
    void setTableChosen(bool on);
    [[nodiscard]] QStringList columnTitles() const;
    [[nodiscard]] int sortColumn() const;

    // A sort choice of the "Sort Options" menu: 1 "By Name", 2 "By Year", 3 "By Record
    // Label", 4 "By Artist".
    Q_INVOKABLE void sortOptionSelected(int option);
    Q_INVOKABLE void SortButtonTapped();
    Q_INVOKABLE void fallbackMenuTapped() { SortButtonTapped(); }
    // A click on a table column's header: sorts ascending by that column, or reverses the
    // order when it is sorted by it already. A search typed finds again in the new order.
    Q_INVOKABLE void columnHeaderClicked(int column);
    Q_INVOKABLE void updateSearchResults(const QString &text);
    // Swipe action "delete" on a shown row.
    Q_INVOKABLE void deleteRow(int row);
    // Fills CurrentRecord from the shown row's record and opens the editor.
    Q_INVOKABLE void rowPicked(int row);
    Q_INVOKABLE void addButtonTapped();
    // The editor came back by "unwindToList".
    Q_INVOKABLE void unwindToList() { refresh(); }
    void viewWillAppear() override { markLoans(m_model); }

    // Fetches again: flips the direction, then sorts by the sort choice.
    void refresh();

signals:
    void tableChosenChanged();
    void placeholderChanged();
    void listChanged();

protected:
    void viewDidLoad() override;
    void reloadRecords() override { refresh(); }

private:
    void deleteRowNow(int row);
    // A record deleted while searching: the whole list keeps showing it until the next
    // refresh, where it stood (after storePosition rows of the store).
    struct KeptRow
    {
        qint64 storePosition = 0;
        RecordCard card;
    };

    // Reads the whole list again in the current sort choice and direction.
    void reload();
    void showList();
    // The whole list in the store's order (no window), for the sort choice and direction.
    [[nodiscard]] FetchRequest wholeRequest() const;
    [[nodiscard]] QList<RecordCard> wholeCards(qint64 first, int n);
    [[nodiscard]] QList<RecordCard> cardsOf(const Result<QList<Vinyl>> &records);
    // The kept row shown at a row of the whole list, or -1; storeRow: the store's row there.
    [[nodiscard]] int keptAt(qint64 row, qint64 *storeRow = nullptr) const;
    [[nodiscard]] qint64 wholeCount() const;
    // Release days whose medium date text holds text, in the list's direction.
    [[nodiscard]] QList<DayCount> daysMatching(const QString &text);

    RecordCardModel m_model;
    std::shared_ptr<RecordRows> m_wholeRows;
    // The records a search found; the whole list's own rows after a refresh.
    std::shared_ptr<RecordRows> m_foundRows;
    QList<KeptRow> m_kept; // by storePosition
    // Every release day and its medium date text, read again once the store has changed.
    QList<DayCount> m_days;
    QStringList m_dayTexts;
    std::optional<qint64> m_daysWriteCount;
    CollectionList::TextCache m_texts;
    std::optional<bool> m_sortAsc;
    QString m_sortName;
    QString m_placeholder;
    QString m_searchText;
};
