#pragma once

#include "browse/recordcardmodel.h"
#include "browse/recordlistcontroller.h"
#include "collection/collectionlist.h"

#include <QStringList>

#include <optional>

// The whole collection as a list of record cards: four sort choices, a search whose
// meaning follows the sort choice, swipe to delete, and a picked record opens the editor.
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
    Q_PROPERTY(bool canAdd READ canAdd NOTIFY loaded)

public:
    explicit ListVinylTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] RecordCardModel *model() { return &m_model; }
    [[nodiscard]] QString placeholder() const { return m_placeholder; }
    [[nodiscard]] QString headerText() const;
    [[nodiscard]] QString sortName() const { return m_sortName; }
    [[nodiscard]] bool sortAsc() const { return m_sortAsc.value_or(true); }
    [[nodiscard]] QStringList sortOptions() const;
    [[nodiscard]] bool canAdd() const;
    [[nodiscard]] bool searching() const { return !m_searchText.isEmpty(); }

    // A sort choice of the "Sort Options" menu: 1 "By Name", 2 "By Year", 3 "By Record
    // Label", 4 "By Artist".
    Q_INVOKABLE void sortOptionSelected(int option);
    Q_INVOKABLE void SortButtonTapped();
    Q_INVOKABLE void fallbackMenuTapped() { SortButtonTapped(); }
    Q_INVOKABLE void updateSearchResults(const QString &text);
    // Swipe action "delete" on a shown row.
    Q_INVOKABLE void deleteRow(int row);
    // Fills CurrentRecord from the shown row's record and opens the editor.
    Q_INVOKABLE void rowPicked(int row);
    Q_INVOKABLE void addButtonTapped();
    // The editor came back by "unwindToList".
    Q_INVOKABLE void unwindToList() { refresh(); }

    // Fetches again: flips the direction, then sorts by the sort choice.
    void refresh();

signals:
    void placeholderChanged();
    void listChanged();

protected:
    void viewDidLoad() override;
    void reloadRecords() override { refresh(); }

private:
    void showList();
    [[nodiscard]] const QList<int> &shownList() const { return searching() ? m_filteredList : m_vinylList; }

    [[nodiscard]] const RecordCard &cardOf(int record);

    RecordCardModel m_model;
    // The records of the last fetch; VinylList and FilteredVinylList index into them. A
    // record's card is made the first time the view asks for it.
    QList<Vinyl> m_records;
    QList<std::optional<RecordCard>> m_cards;
    CollectionList::TextCache m_texts;
    QList<int> m_vinylList;
    QList<int> m_filteredList;
    std::optional<bool> m_sortAsc;
    QString m_sortName;
    QString m_placeholder;
    QString m_searchText;
};
