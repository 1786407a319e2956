#include "browse/listvinyltableviewcontroller.h"

#include "collection/browsetexts.h"
#include "shell/appdelegate.h"
#include "store/logging.h"
#include "store/settings.h"
#include "store/store.h"
#include "store/translations.h"

#include <algorithm>


using namespace Qt::StringLiterals;

namespace {
struct SortOption
{
    QString title;
    QString consoleLine;
    QString sortName;
    QString placeholder;
    QString sortAction; // what the Sort button does under this choice, for a screen reader
};

const QList<SortOption> &sortOptionTable()
{
    static const QList<SortOption> table = {
        {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "By Name")), u"Option 1 selected"_s, BrowseTexts::kSortName, BrowseTexts::kSearchByName,
         QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Sort by name"))},
        {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "By Year")), u"Option 2 selected"_s, BrowseTexts::kSortYear, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Search by Year")),
         QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Sort by year"))},
        {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "By Record Label")), u"Option 3 selected"_s, BrowseTexts::kSortRecordLabel, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Search by Record Label")),
         QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Sort by record label"))},
        {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "By Artist")), u"Option 4 selected"_s, BrowseTexts::kSortArtist, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Search by Artist")),
         QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Sort by artist"))},
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
    return translated(BrowseTexts::kListTitle);
}

QStringList ListVinylTableViewController::sortOptions() const
{
    QStringList titles;
    for (const SortOption &option : sortOptionTable())
        titles.append(translated(option.title));
    return titles;
}

QString ListVinylTableViewController::sortAction() const
{
    for (const SortOption &option : sortOptionTable()) {
        if (option.sortName == m_sortName)
            return translated(option.sortAction);
    }
    return translated(BrowseTexts::kSortButtonTitle);
}

bool ListVinylTableViewController::canAdd() const
{
    return app() && app()->navigator()->hasScreen(BrowseTexts::kAddScreen);
}

void ListVinylTableViewController::viewDidLoad()
{
    app()->state()->setOriginScreen(OriginScreens::List);
    m_placeholder = translated(sortOptionTable().first().placeholder);
    m_sortAsc = true;
    m_sortName = BrowseTexts::kSortName;
    app()->state()->editCurrentRecord().images.clear();
    emit placeholderChanged();
    // Read from the settings now that the app is known.
    emit tableChosenChanged();
    refresh();
}

void ListVinylTableViewController::sortOptionSelected(int option)
{
    if (option < 1 || option > sortOptionTable().size())
        return;
    const SortOption &chosen = sortOptionTable().at(option - 1);
    consoleLine(chosen.consoleLine);
    m_sortName = chosen.sortName;
    m_placeholder = translated(chosen.placeholder);
    emit placeholderChanged();
    refresh();
}

bool ListVinylTableViewController::tableChosen() const
{
    return app() && app()->settings().boolValue(SettingsKeys::ListShowsTable);
}

void ListVinylTableViewController::setTableChosen(bool on)
{
    if (!app() || on == tableChosen())
        return;
    app()->settings().setValue(SettingsKeys::ListShowsTable, on);
    emit tableChosenChanged();
}

QStringList ListVinylTableViewController::columnTitles() const
{
    QStringList titles;
    for (const CollectionList::TableColumn &column : CollectionList::tableColumns())
        titles.append(translated(column.title));
    return titles;
}

int ListVinylTableViewController::sortColumn() const
{
    const auto &columns = CollectionList::tableColumns();
    for (int i = 0; i < columns.size(); ++i) {
        if (columns.at(i).sortName == m_sortName)
            return i;
    }
    return -1;
}

void ListVinylTableViewController::columnHeaderClicked(int column)
{
    const auto &columns = CollectionList::tableColumns();
    if (!app() || !m_sortAsc || column < 0 || column >= columns.size())
        return;
    const QString &sortName = columns.at(column).sortName;
    m_sortAsc = sortName == m_sortName ? !*m_sortAsc : true;
    m_sortName = sortName;
    // The orders without a text of their own search the name.
    m_placeholder = translated(BrowseTexts::kSearchByName);
    for (const SortOption &option : sortOptionTable()) {
        if (option.sortName == sortName)
            m_placeholder = translated(option.placeholder);
    }
    emit placeholderChanged();
    reload();
    if (searching())
        updateSearchResults(m_searchText);
}

void ListVinylTableViewController::refresh()
{
    if (!app() || !m_sortAsc)
        return;
    // Every refresh reverses the direction, so choosing the same sort twice reverses the
    // order and the first display (after the direction was set to ascending) is descending.
    m_sortAsc = !*m_sortAsc;
    reload();
}

void ListVinylTableViewController::reload()
{
    m_kept.clear();
    m_texts = {};
    auto rows = FetchedRows::make(app()->persistentContainer(), wholeRequest());
    if (!rows)
        consoleLine(rows.errorMessage());
    m_wholeRows = rows ? std::make_shared<FetchedRows>(std::move(*rows)) : nullptr;
    // A search typed before stays in the field but finds again only when typed on.
    m_foundRows = m_wholeRows;
    markLoans(m_model);
    showList();
}

FetchRequest ListVinylTableViewController::wholeRequest() const
{
    FetchRequest request(Entity::Vinyl);
    request.onlyCardAttributes();
    if (const QString attribute = CollectionList::sortAttribute(m_sortName); !attribute.isEmpty())
        request.sortedBy(attribute, m_sortAsc.value_or(true));
    return request;
}

void ListVinylTableViewController::SortButtonTapped()
{
    if (!m_sortAsc)
        return;
    if (!searching()) {
        refresh();
        return;
    }
    // The records found are ordered by name, whatever the sort choice.
    if (!app() || !m_foundRows)
        return;
    FetchRequest found = wholeRequest();
    const QString attribute = CollectionList::searchAttribute(m_sortName);
    QSet<qint64> days;
    const bool byDay = m_foundRows != m_wholeRows && m_sortName == BrowseTexts::kSortYear;
    if (byDay) {
        for (const DayCount &day : daysMatching(m_searchText))
            days.insert(day.millis);
    } else if (m_foundRows != m_wholeRows && !attribute.isEmpty()) {
        found.where(Predicate::contains(attribute, m_searchText));
    }
    auto ids = RecordQueries::rowIdsByName(app()->persistentContainer(), found, *m_sortAsc, byDay ? &days : nullptr);
    if (!ids) {
        consoleLine(ids.errorMessage());
        return;
    }
    m_foundRows = std::make_shared<ListedRows>(app()->persistentContainer(), std::move(*ids));
    showList();
}

void ListVinylTableViewController::updateSearchResults(const QString &text)
{
    m_searchText = text;
    if (!app() || !m_wholeRows) {
        showList();
        return;
    }
    Store &store = app()->persistentContainer();
    const QString attribute = CollectionList::searchAttribute(m_sortName);
    if (text.isEmpty()) {
        m_foundRows = m_wholeRows;
    } else if (m_sortName == BrowseTexts::kSortYear) {
        m_foundRows = std::make_shared<DayRows>(store, daysMatching(text));
    } else if (!attribute.isEmpty()) {
        auto found = FetchedRows::make(store, FetchRequest(wholeRequest()).where(Predicate::contains(attribute, text)));
        if (found)
            m_foundRows = std::make_shared<FetchedRows>(std::move(*found));
        else
            consoleLine(found.errorMessage());
    }
    showList();
}

QList<DayCount> ListVinylTableViewController::daysMatching(const QString &text)
{
    Store &store = app()->persistentContainer();
    if (m_daysWriteCount != store.writeCount()) {
        auto days = RecordQueries::releaseDays(store);
        if (!days)
            consoleLine(days.errorMessage());
        m_days = days.valueOr({});
        m_dayTexts.clear();
        m_dayTexts.reserve(m_days.size());
        for (const DayCount &day : std::as_const(m_days))
            m_dayTexts.append(m_texts.mediumDate(QDateTime::fromMSecsSinceEpoch(day.millis)));
        m_daysWriteCount = store.writeCount();
    }
    QList<DayCount> found;
    for (qsizetype i = 0; i < m_days.size(); ++i) {
        if (m_dayTexts.at(i).contains(text, Qt::CaseSensitive))
            found.append(m_days.at(i));
    }
    if (!m_sortAsc.value_or(true))
        std::reverse(found.begin(), found.end());
    return found;
}

void ListVinylTableViewController::deleteRow(int row)
{
    if (!app() || row < 0 || row >= m_model.rowCount() || refusedAsReadOnly())
        return;
    const qint64 rowId = m_model.card(row).rowId;
    const auto stillThere = [this, row, rowId] {
        if (row < m_model.rowCount() && m_model.card(row).rowId == rowId)
            deleteRowNow(row);
    };
    if (!askedBeforeDeletingLent(rowId, stillThere))
        deleteRowNow(row);
}

void ListVinylTableViewController::deleteRowNow(int row)
{
    // The rows beside it are read before anything changes, so the view's last look at them
    // is of the list as it was.
    (void)m_model.card(row - 1);
    (void)m_model.card(row + 1);
    const RecordCard card = m_model.card(row);
    if (searching()) {
        // Deleted while searching, the record leaves the found records only; the whole list
        // keeps it where it stood until the next refresh.
        auto position = app()->persistentContainer().position(wholeRequest(), card.rowId);
        if (!deleteRecord(card.rowId))
            return;
        if (position) {
            for (KeptRow &kept : m_kept) {
                if (kept.storePosition > *position)
                    --kept.storePosition;
            }
            const auto at = std::upper_bound(m_kept.begin(), m_kept.end(), *position,
                                             [](qint64 p, const KeptRow &kept) { return p < kept.storePosition; });
            m_kept.insert(at, {*position, card});
            if (m_foundRows != m_wholeRows)
                m_wholeRows->removeRow(*position);
        }
        m_foundRows->removeRow(row);
    } else {
        qint64 storeRow = 0;
        const int kept = keptAt(row, &storeRow);
        if (!deleteRecord(card.rowId))
            return;
        if (kept >= 0) {
            m_kept.removeAt(kept);
        } else {
            m_wholeRows->removeRow(storeRow);
            for (KeptRow &other : m_kept) {
                if (other.storePosition > storeRow)
                    --other.storePosition;
            }
        }
    }
    m_model.removeCard(row);
    emit listChanged();
}

void ListVinylTableViewController::rowPicked(int row)
{
    if (!app() || row < 0 || row >= m_model.rowCount())
        return;
    openRecord(m_model.card(row).rowId, OriginScreens::List);
}

void ListVinylTableViewController::addButtonTapped()
{
    if (app() && !refusedAsReadOnly())
        app()->navigator()->show(BrowseTexts::kAddScreen);
}

qint64 ListVinylTableViewController::wholeCount() const
{
    return (m_wholeRows ? m_wholeRows->count() : 0) + m_kept.size();
}

QString ListVinylTableViewController::headerText() const
{
    const qint64 shown = searching() ? (m_foundRows ? m_foundRows->count() : 0) : wholeCount();
    return CollectionList::headerText(shown, wholeCount());
}

int ListVinylTableViewController::keptAt(qint64 row, qint64 *storeRow) const
{
    qint64 before = 0;
    for (int i = 0; i < m_kept.size(); ++i) {
        const qint64 shownAt = m_kept.at(i).storePosition + i;
        if (shownAt == row)
            return i;
        if (shownAt < row)
            ++before;
    }
    if (storeRow)
        *storeRow = row - before;
    return -1;
}

QList<RecordCard> ListVinylTableViewController::cardsOf(const Result<QList<Vinyl>> &records)
{
    QList<RecordCard> cards;
    if (!records) {
        consoleLine(records.errorMessage());
        return cards;
    }
    cards.reserve(records->size());
    for (const Vinyl &vinyl : *records)
        cards.append(CollectionList::makeCard(vinyl, m_sortName, m_texts));
    return cards;
}

QList<RecordCard> ListVinylTableViewController::wholeCards(qint64 first, int n)
{
    if (!m_wholeRows)
        return {};
    if (m_kept.isEmpty())
        return cardsOf(m_wholeRows->read(first, n));
    // The store's rows of the window, with the kept rows put back where they stood.
    qint64 storeFirst = first;
    int keptInside = 0;
    for (int i = 0; i < m_kept.size(); ++i) {
        const qint64 shownAt = m_kept.at(i).storePosition + i;
        if (shownAt < first)
            --storeFirst;
        else if (shownAt < first + n)
            ++keptInside;
    }
    const QList<RecordCard> stored = cardsOf(m_wholeRows->read(storeFirst, n - keptInside));
    QList<RecordCard> cards;
    qsizetype next = 0;
    for (qint64 row = first; row < first + n; ++row) {
        if (const int kept = keptAt(row); kept >= 0)
            cards.append(m_kept.at(kept).card);
        else if (next < stored.size())
            cards.append(stored.at(next++));
    }
    return cards;
}

void ListVinylTableViewController::showList()
{
    if (searching() && m_foundRows) {
        std::shared_ptr<RecordRows> rows = m_foundRows;
        m_model.setPages(rows->count(), [this, rows](qint64 first, int n) { return cardsOf(rows->read(first, n)); });
    } else {
        m_model.setPages(wholeCount(), [this](qint64 first, int n) { return wholeCards(first, n); });
    }
    emit listChanged();
}
