#include "collection/collectionlist.h"

#include "collection/browsetexts.h"
#include "collection/textorder.h"
#include "store/formatters.h"
#include "store/store.h"
#include "store/translations.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CollectionList {

QString sortAttribute(const QString &sortName)
{
    static const QList<std::pair<QString, QString>> attributes = {
        {BrowseTexts::kSortName, u"name"_s},         {BrowseTexts::kSortYear, u"releaseDate"_s},
        {BrowseTexts::kSortRecordLabel, u"recordLabel"_s}, {BrowseTexts::kSortArtist, u"artist"_s},
        {BrowseTexts::kSortSpeed, u"recordSpeed"_s}, {BrowseTexts::kSortQuantity, u"quantity"_s},
        {BrowseTexts::kSortValue, u"value"_s},       {BrowseTexts::kSortTotal, Store::kTotalValue},
    };
    for (const auto &[name, attribute] : attributes) {
        if (name == sortName)
            return attribute;
    }
    return {};
}

QString searchAttribute(const QString &sortName)
{
    const QString sorted = sortAttribute(sortName);
    if (sorted.isEmpty() || sortName == BrowseTexts::kSortYear)
        return {};
    return Store::kSearchedAttributes.contains(sorted) ? sorted : u"name"_s;
}

const QList<TableColumn> &tableColumns()
{
    static const QList<TableColumn> columns = {
        {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Album")), BrowseTexts::kSortName},      {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Artist")), BrowseTexts::kSortArtist},
        {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Year")), BrowseTexts::kSortYear},       {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Label")), BrowseTexts::kSortRecordLabel},
        {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Speed")), BrowseTexts::kSortSpeed},     {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Quantity")), BrowseTexts::kSortQuantity},
        {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Value")), BrowseTexts::kSortValue},     {QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Total")), BrowseTexts::kSortTotal},
    };
    return columns;
}

QString TextCache::currency(double amount)
{
    auto it = m_currency.constFind(amount);
    if (it == m_currency.constEnd())
        it = m_currency.insert(amount, Formatters::currencyOrZero(amount));
    return *it;
}

QString TextCache::mediumDate(const QDateTime &date)
{
    const qint64 key = date.toMSecsSinceEpoch();
    auto it = m_dates.constFind(key);
    if (it == m_dates.constEnd())
        it = m_dates.insert(key, Formatters::mediumDate(date));
    return *it;
}

QString TextCache::year(const QDateTime &date)
{
    const qint64 key = date.toMSecsSinceEpoch();
    auto it = m_years.constFind(key);
    if (it == m_years.constEnd())
        it = m_years.insert(key, Formatters::year(date));
    return *it;
}

RecordCard makeCard(const Vinyl &vinyl, const QString &sortName, TextCache &texts)
{
    const RecordCaptions &captions = texts.captions();
    RecordCard card;
    card.rowId = vinyl.rowId;
    // Sorted by year or label the name line is left as laid out (empty): the card leads
    // with what the list is sorted by instead. The table's further orders keep the name.
    if (sortName == BrowseTexts::kSortName || sortName == BrowseTexts::kSortSpeed
        || sortName == BrowseTexts::kSortQuantity || sortName == BrowseTexts::kSortValue
        || sortName == BrowseTexts::kSortTotal)
        card.nameLabel = captions.album + text(vinyl.name) + u"  "_s + captions.artist + text(vinyl.artist);
    else if (sortName == BrowseTexts::kSortArtist)
        card.nameLabel = captions.artist + text(vinyl.artist) + u"  "_s + captions.album + text(vinyl.name);
    card.releaseDateLabel =
        captions.releaseDate + (vinyl.releaseDate ? texts.mediumDate(*vinyl.releaseDate) : captions.notAvailable);
    card.producerLabel = (sortName == BrowseTexts::kSortRecordLabel ? captions.recordLabel + text(vinyl.recordLabel)
                                                                    : captions.producer + text(vinyl.producer))
        + u"  "_s + captions.speed + text(vinyl.recordSpeed);
    const double total = double(number(vinyl.quantity)) * double(number(vinyl.value));
    card.costLabel = captions.cost + texts.currency(double(number(vinyl.cost))) + u"  "_s + captions.totalValue
        + texts.currency(total);
    card.speedLabel = captions.length + Formatters::shortest(number(vinyl.albumDuration)) + captions.minutes
        + u"  "_s + captions.type + text(vinyl.doubleAlbum);
    card.cells = {text(vinyl.name),
                  text(vinyl.artist),
                  vinyl.releaseDate ? texts.year(*vinyl.releaseDate) : QString(),
                  text(vinyl.recordLabel),
                  text(vinyl.recordSpeed),
                  QString::number(number(vinyl.quantity)),
                  texts.currency(double(number(vinyl.value))),
                  texts.currency(total)};
    return card;
}

std::optional<QList<int>> search(const QList<Vinyl> &records, const QList<int> &list, const QString &sortName,
                                 const QString &text, TextCache &texts)
{
    if (text.isEmpty())
        return list;

    std::optional<QString> Vinyl::*attribute = nullptr;
    if (sortName == BrowseTexts::kSortName)
        attribute = &Vinyl::name;
    else if (sortName == BrowseTexts::kSortRecordLabel)
        attribute = &Vinyl::recordLabel;
    else if (sortName == BrowseTexts::kSortArtist)
        attribute = &Vinyl::artist;
    else if (sortName != BrowseTexts::kSortYear)
        return std::nullopt;

    QList<int> found;
    for (int index : list) {
        const Vinyl &vinyl = records.at(index);
        const bool matches = attribute
            ? (vinyl.*attribute && (vinyl.*attribute)->contains(text, Qt::CaseInsensitive))
            : (vinyl.releaseDate && texts.mediumDate(*vinyl.releaseDate).contains(text, Qt::CaseSensitive));
        if (matches)
            found.append(index);
    }
    return found;
}

void sortByName(const QList<Vinyl> &records, QList<int> &list, bool ascending)
{
    const auto nameOf = [&](int index) {
        const std::optional<QString> &name = records.at(index).name;
        return name ? QStringView(*name) : QStringView();
    };
    std::stable_sort(list.begin(), list.end(), [&](int a, int b) {
        return ascending ? codePointLess(nameOf(a), nameOf(b)) : codePointLess(nameOf(b), nameOf(a));
    });
}

QString headerText(qsizetype shown, qsizetype all)
{
    return translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "# Vinyl Records = %1 of %2")))
        .arg(QString::number(shown), QString::number(all));
}

} // namespace CollectionList
