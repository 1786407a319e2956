#include "browse/listvinyltableviewcontroller.h"

#include "collection/browsetexts.h"
#include "shell/appdelegate.h"
#include "store/logging.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace {
struct SortOption
{
    QString title;
    QString consoleLine;
    QString sortName;
    QString placeholder;
};

const QList<SortOption> &sortOptionTable()
{
    static const QList<SortOption> table = {
        {u"By Name"_s, u"Option 1 selected"_s, BrowseTexts::kSortName, u"Search by Name"_s},
        {u"By Year"_s, u"Option 2 selected"_s, BrowseTexts::kSortYear, u"Search by Year"_s},
        {u"By Record Label"_s, u"Option 3 selected"_s, BrowseTexts::kSortRecordLabel, u"Search by Record Label"_s},
        {u"By Artist"_s, u"Option 4 selected"_s, BrowseTexts::kSortArtist, u"Search by Artist"_s},
    };
    return table;
}
} // namespace

ListVinylTableViewController::ListVinylTableViewController(AppDelegate *app, QObject *parent)
    : RecordListController(app, parent)
{
    loadIfReady();
}

QString ListVinylTableViewController::title() const
{
    return BrowseTexts::kListTitle;
}

QStringList ListVinylTableViewController::sortOptions() const
{
    QStringList titles;
    for (const SortOption &option : sortOptionTable())
        titles.append(option.title);
    return titles;
}

bool ListVinylTableViewController::canAdd() const
{
    return app() && app()->navigator()->hasScreen(BrowseTexts::kAddScreen);
}

void ListVinylTableViewController::viewDidLoad()
{
    app()->state()->setOriginScreen(OriginScreens::List);
    m_placeholder = sortOptionTable().first().placeholder;
    m_sortAsc = true;
    m_sortName = BrowseTexts::kSortName;
    app()->state()->editCurrentRecord().images.clear();
    emit placeholderChanged();
    refresh();
}

void ListVinylTableViewController::sortOptionSelected(int option)
{
    if (option < 1 || option > sortOptionTable().size())
        return;
    const SortOption &chosen = sortOptionTable().at(option - 1);
    consoleLine(chosen.consoleLine);
    m_sortName = chosen.sortName;
    m_placeholder = chosen.placeholder;
    emit placeholderChanged();
    refresh();
}

void ListVinylTableViewController::refresh()
{
    if (!app() || !m_sortAsc)
        return;
    // Nothing asks the model for a card until showList() tells it of the new rows.
    m_records.clear();
    m_cards.clear();
    m_texts = {};
    m_vinylList.clear();
    m_filteredList.clear();
    // Every refresh reverses the direction, so choosing the same sort twice reverses the
    // order and the first display (after the direction was set to ascending) is descending.
    m_sortAsc = !*m_sortAsc;

    FetchRequest request(Entity::Vinyl);
    request.onlyCardAttributes();
    if (const QString attribute = CollectionList::sortAttribute(m_sortName); !attribute.isEmpty())
        request.sortedBy(attribute, *m_sortAsc);
    auto fetched = app()->persistentContainer().fetchVinyl(request);
    if (!fetched) {
        consoleLine(fetched.errorMessage());
    } else {
        m_records = std::move(fetched).value();
        m_vinylList.resize(m_records.size());
        std::iota(m_vinylList.begin(), m_vinylList.end(), 0);
        m_cards.resize(m_records.size());
    }
    m_filteredList = m_vinylList;
    showList();
}

void ListVinylTableViewController::SortButtonTapped()
{
    if (!m_sortAsc)
        return;
    if (!searching()) {
        refresh();
        return;
    }
    CollectionList::sortByName(m_records, m_filteredList, *m_sortAsc);
    showList();
}

void ListVinylTableViewController::updateSearchResults(const QString &text)
{
    m_searchText = text;
    if (auto found = CollectionList::search(m_records, m_vinylList, m_sortName, text, m_texts))
        m_filteredList = std::move(*found);
    showList();
}

void ListVinylTableViewController::deleteRow(int row)
{
    QList<int> &list = searching() ? m_filteredList : m_vinylList;
    if (!app() || row < 0 || row >= list.size() || refusedAsReadOnly())
        return;
    if (!deleteRecord(m_records.at(list.at(row)).rowId))
        return;
    // Deleted while searching, the record leaves the found records only; the whole list
    // keeps it until the next refresh.
    list.removeAt(row);
    m_model.removeCard(row);
    emit listChanged();
}

void ListVinylTableViewController::rowPicked(int row)
{
    const QList<int> &list = shownList();
    if (!app() || row < 0 || row >= list.size())
        return;
    openRecord(m_records.at(list.at(row)).rowId, OriginScreens::List);
}

void ListVinylTableViewController::addButtonTapped()
{
    if (app() && !refusedAsReadOnly())
        app()->navigator()->show(BrowseTexts::kAddScreen);
}

QString ListVinylTableViewController::headerText() const
{
    return CollectionList::headerText(shownList().size(), m_vinylList.size());
}

void ListVinylTableViewController::showList()
{
    m_model.setCards(shownList(), [this](int record) -> const RecordCard & { return cardOf(record); });
    emit listChanged();
}

const RecordCard &ListVinylTableViewController::cardOf(int record)
{
    std::optional<RecordCard> &card = m_cards[record];
    if (!card)
        card = CollectionList::makeCard(m_records.at(record), m_sortName, m_texts);
    return *card;
}
