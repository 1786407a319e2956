#include "browse/grouptableviewcontroller.h"

#include "collection/browsetexts.h"
#include "collection/textorder.h"
#include "shell/appdelegate.h"
#include "store/logging.h"

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
    return BrowseTexts::kGroupPlaceholder;
}

QString GroupTableViewController::sortButtonTitle() const
{
    return BrowseTexts::kSortButtonTitle;
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
    readCounts();
    m_model.updateCounts(countTexts());
}

void GroupTableViewController::load()
{
    if (!app() || !m_sortAsc)
        return;
    Store &store = app()->persistentContainer();
    if (m_kind.byYear) {
        // A failed read keeps the years listed before.
        if (auto dates = GroupQueries::releaseDates(store)) {
            m_dates = std::move(dates.value());
            QList<qint64> walk = m_dates;
            if (!*m_sortAsc)
                std::reverse(walk.begin(), walk.end());
            m_years = yearGroups(walk);
        } else {
            consoleLine(dates.errorMessage());
        }
    } else {
        if (auto values = GroupQueries::attributeValues(store, m_kind.attribute, m_kind.fetchOrder))
            m_names.load(values.value());
        else
            consoleLine(values.errorMessage());
        m_names.order(*m_sortAsc);
        readCounts();
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

void GroupTableViewController::readCounts()
{
    Store &store = app()->persistentContainer();
    if (m_kind.byYear) {
        if (auto dates = GroupQueries::releaseDates(store))
            m_dates = std::move(dates.value());
    } else if (auto counts = GroupQueries::countsByValue(store, m_kind.attribute)) {
        m_counts = std::move(counts.value());
    }
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

QStringList GroupTableViewController::countTexts() const
{
    QStringList texts;
    const qsizetype n = shownCount();
    texts.reserve(n);
    for (qsizetype row = 0; row < n; ++row) {
        if (m_kind.byYear) {
            const int index = searching() ? m_filteredYears.at(row) : int(row);
            texts.append(QString::number(countInYear(m_dates, m_years.at(index))));
        } else {
            const QString &name = searching() ? m_filteredNames.at(row) : m_names.names().at(row);
            texts.append(QString::number(m_counts.value(name, 0)));
        }
    }
    return texts;
}

void GroupTableViewController::showRows()
{
    const QStringList counts = countTexts();
    QList<GroupRow> rows;
    rows.reserve(counts.size());
    for (qsizetype row = 0; row < counts.size(); ++row) {
        QString name;
        if (m_kind.byYear)
            name = m_years.at(searching() ? m_filteredYears.at(row) : int(row)).yearText;
        else
            name = searching() ? m_filteredNames.at(row) : m_names.names().at(row);
        rows.append({name, counts.at(row)});
    }
    m_model.setRows(std::move(rows));
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
