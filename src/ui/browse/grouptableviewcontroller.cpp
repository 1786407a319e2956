#include "browse/grouptableviewcontroller.h"

#include "collection/browsetexts.h"
#include "collection/textorder.h"
#include "shell/appdelegate.h"
#include "store/logging.h"
#include "store/translations.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace GroupKinds {
const GroupKind Artist{u"artist"_s, u"artist"_s, u"Artist"_s, u"Artist"_s, u"ArtistBreakdownTableView"_s,
                       &CurrentRecord::artist};
const GroupKind Label{u"recordLabel"_s, u"recordLabel"_s, u"Label"_s, u"Label"_s, u"LabelBreakdownTableView"_s,
                      &CurrentRecord::recordLabel};
// Producers are walked in release order; the names are ordered afterwards anyway.
const GroupKind Producer{u"producer"_s, u"releaseDate"_s, u"Producer"_s, u"Producer"_s,
                         u"ProducerBreakdownTableView"_s, &CurrentRecord::producer};
const GroupKind Year{u"releaseDate"_s, u"releaseDate"_s, u"Year"_s, u"Year"_s, u"YearBreakdownTableView"_s, nullptr,
                     true};
} // namespace GroupKinds

GroupTableViewController::GroupTableViewController(const GroupKind &kind, AppDelegate *app, QObject *parent)
    : ScreenController(app, parent), m_kind(kind)
{
}

QString GroupTableViewController::placeholder() const
{
    // One placeholder for all four lists: the search always looks at the group names.
    return translated(BrowseTexts::kGroupPlaceholder);
}

QString GroupTableViewController::sortButtonTitle() const
{
    return translated(BrowseTexts::kSortButtonTitle);
}

void GroupTableViewController::viewDidLoad()
{
    m_sortAsc = true;
    load();
}

void GroupTableViewController::viewWillAppear()
{
    if (!m_sortAsc)
        return;
    m_model.updateCounts();
}

void GroupTableViewController::load()
{
    if (!app() || !m_sortAsc)
        return;
    Store &store = app()->persistentContainer();
    if (m_kind.byYear) {
        // A failed read keeps the years listed before.
        if (auto years = GroupQueries::yearGroups(store, *m_sortAsc))
            m_years = std::move(years.value());
        else
            consoleLine(years.errorMessage());
    } else {
        if (auto walk = GroupQueries::groupWalk(store, m_kind.attribute, m_kind.fetchOrder))
            m_names.load(walk.value());
        else
            consoleLine(walk.errorMessage());
        m_names.order(*m_sortAsc);
    }
    m_filteredNames = m_names.names();
    m_filteredYears.clear();
    for (int i = 0; i < m_years.size(); ++i)
        m_filteredYears.append(i);
    if (searching())
        updateSearchResults(m_searchText);
    else
        showRows();
}

void GroupTableViewController::SortButtonTapped()
{
    if (!m_sortAsc)
        return;
    m_sortAsc = !*m_sortAsc;
    app()->state()->setSortAscending(*m_sortAsc);
    if (!searching()) {
        load();
        return;
    }
    if (m_kind.byYear) {
        std::sort(m_filteredYears.begin(), m_filteredYears.end(), [this](int a, int b) {
            return m_years.at(a).representativeMillis < m_years.at(b).representativeMillis;
        });
        if (!*m_sortAsc)
            std::reverse(m_filteredYears.begin(), m_filteredYears.end());
    } else {
        std::sort(m_filteredNames.begin(), m_filteredNames.end(),
                  [](const QString &a, const QString &b) { return codePointLess(a, b); });
        if (!*m_sortAsc)
            std::reverse(m_filteredNames.begin(), m_filteredNames.end());
    }
    showRows();
}

void GroupTableViewController::updateSearchResults(const QString &text)
{
    m_searchText = text;
    if (m_kind.byYear) {
        m_filteredYears.clear();
        if (text.isEmpty()) {
            for (int i = 0; i < m_years.size(); ++i)
                m_filteredYears.append(i);
        } else {
            m_filteredYears = filterYearGroups(m_years, text);
        }
    } else {
        m_filteredNames = filterGroupNames(m_names.names(), text);
    }
    showRows();
}

void GroupTableViewController::rowSelected(int row)
{
    if (!app() || row < 0 || row >= shownCount())
        return;
    CurrentRecord &current = app()->state()->editCurrentRecord();
    if (m_kind.byYear) {
        const int index = searching() ? m_filteredYears.at(row) : row;
        current.releaseDate = QDateTime::fromMSecsSinceEpoch(m_years.at(index).representativeMillis);
    } else {
        current.*m_kind.selectionField = searching() ? m_filteredNames.at(row) : m_names.names().at(row);
    }
    app()->state()->notifyCurrentRecordChanged();
    app()->navigator()->show(m_kind.breakdownScreen);
}

void GroupTableViewController::UnwindSegue()
{
    if (app())
        app()->navigator()->unwind(u"unwindToMenu"_s);
}

qsizetype GroupTableViewController::allCount() const
{
    return m_kind.byYear ? m_years.size() : m_names.names().size();
}

qsizetype GroupTableViewController::shownCount() const
{
    if (!searching())
        return allCount();
    return m_kind.byYear ? m_filteredYears.size() : m_filteredNames.size();
}

QString GroupTableViewController::headerText() const
{
    const qsizetype found = m_kind.byYear ? m_filteredYears.size() : m_filteredNames.size();
    return groupHeaderText(allCount(), found, searching(), m_kind.word);
}

QStringList GroupTableViewController::countTexts(qint64 first, int n) const
{
    QStringList texts;
    if (!app())
        return texts;
    const Store &store = app()->persistentContainer();
    if (m_kind.byYear) {
        for (qint64 row = first; row < first + n; ++row) {
            const YearGroup &year = m_years.at(searching() ? m_filteredYears.at(row) : int(row));
            auto count = GroupQueries::countReleased(store, year.startMillis, year.endMillis);
            texts.append(QString::number(count.valueOr(0)));
        }
        return texts;
    }
    const QStringList &names = searching() ? m_filteredNames : m_names.names();
    auto counts = GroupQueries::countsOf(store, m_kind.attribute, names.mid(first, n));
    for (qint64 count : counts.valueOr({}))
        texts.append(QString::number(count));
    return texts;
}

void GroupTableViewController::showRows()
{
    QStringList names;
    if (m_kind.byYear) {
        const qsizetype n = searching() ? m_filteredYears.size() : m_years.size();
        names.reserve(n);
        for (qsizetype row = 0; row < n; ++row)
            names.append(m_years.at(searching() ? m_filteredYears.at(row) : int(row)).yearText);
    } else {
        names = searching() ? m_filteredNames : m_names.names();
    }
    m_model.setRows(std::move(names), [this](qint64 first, int n) { return countTexts(first, n); });
    emit listChanged();
}

ArtistGroupTableViewController::ArtistGroupTableViewController(AppDelegate *app, QObject *parent)
    : GroupTableViewController(GroupKinds::Artist, app, parent)
{
    loadIfReady();
}

LabelGroupTableViewController::LabelGroupTableViewController(AppDelegate *app, QObject *parent)
    : GroupTableViewController(GroupKinds::Label, app, parent)
{
    loadIfReady();
}

ProducerGroupTableViewController::ProducerGroupTableViewController(AppDelegate *app, QObject *parent)
    : GroupTableViewController(GroupKinds::Producer, app, parent)
{
    loadIfReady();
}

YearGroupTableViewController::YearGroupTableViewController(AppDelegate *app, QObject *parent)
    : GroupTableViewController(GroupKinds::Year, app, parent)
{
    loadIfReady();
}
