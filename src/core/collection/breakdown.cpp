#include "collection/breakdown.h"

#include "collection/collectionlist.h"
#include "collection/groupnames.h"
#include "store/formatters.h"

using namespace Qt::StringLiterals;

namespace BreakdownKinds {
const BreakdownKind Artist{BreakdownKind::Group::Artist, u"List by Artist"_s, u"ArtistBreakdown"_s,
                           u"Search by Album Name"_s, u"unwindToArtistTableView"_s, u"VinylFilteredByArtist.pdf"_s,
                           true, true, true, false};
const BreakdownKind Label{BreakdownKind::Group::Label, QString(), u"LabelBreakdown"_s, u"Search by Record Label"_s,
                          u"unwindToLabelTableView"_s, u"VinylFilteredByRecordLabel.pdf"_s, false, false, true, true};
const BreakdownKind Producer{BreakdownKind::Group::Producer, u"List by Producer"_s, u"ProducerBreakdown"_s,
                             u"Search by Producer"_s, u"unwindToProducerTableView"_s, u"VinylFilteredByProducer.pdf"_s,
                             false, false, false, false};
const BreakdownKind Year{BreakdownKind::Group::Year, u"List by Year"_s, u"YearBreakdown"_s, u"Search by Release Date"_s,
                         u"unwindToYearTableView"_s, u"VinylFilteredByYear.pdf"_s, false, false, false, false};
} // namespace BreakdownKinds

namespace Breakdown {

std::optional<FetchRequest> request(const BreakdownKind &kind, const CurrentRecord &group, bool ascending)
{
    FetchRequest request(Entity::Vinyl);
    switch (kind.group) {
    case BreakdownKind::Group::Artist:
        request.where(Predicate::equal(u"artist"_s, group.artist));
        break;
    case BreakdownKind::Group::Label:
        request.where(Predicate::equal(u"recordLabel"_s, group.recordLabel));
        break;
    case BreakdownKind::Group::Producer:
        request.where(Predicate::equal(u"producer"_s, group.producer));
        break;
    case BreakdownKind::Group::Year: {
        if (!group.releaseDate)
            return std::nullopt;
        const YearBounds bounds = yearBounds(*group.releaseDate);
        request.where(Predicate::atLeast(u"releaseDate"_s, bounds.start));
        request.where(Predicate::lessThan(u"releaseDate"_s, bounds.end));
        break;
    }
    }
    for (const QString &key : {u"name"_s, u"releaseDate"_s, u"recordLabel"_s, u"value"_s})
        request.sortedBy(key, ascending);
    return request;
}

QString title(const BreakdownKind &kind, const CurrentRecord &group)
{
    return kind.title.isEmpty() ? group.recordLabel : kind.title;
}

RecordCard makeCard(const Vinyl &vinyl, const BreakdownKind &kind, bool searching)
{
    const bool detail = kind.detailWhileSearching == searching;
    const QString producer = kind.naFallbacks ? vinyl.producer.value_or(u"N/A"_s) : text(vinyl.producer);
    const QString speed = kind.naFallbacks ? vinyl.recordSpeed.value_or(u"N/A"_s) : text(vinyl.recordSpeed);

    RecordCard card;
    card.rowId = vinyl.rowId;
    card.nameLabel = (detail ? u"Album:  "_s : u"Album: "_s) + text(vinyl.name) + u"  Artist: "_s + text(vinyl.artist);
    if (vinyl.releaseDate)
        card.releaseDateLabel = u"Release Date: "_s + Formatters::mediumDate(*vinyl.releaseDate);
    else if (kind.dateFallback)
        card.releaseDateLabel = u"Release Date: N/A"_s;
    card.producerLabel = u"Producer: "_s + producer;
    if (detail)
        card.producerLabel += u"  Speed: "_s + text(vinyl.recordSpeed);
    const double total = double(number(vinyl.quantity)) * double(number(vinyl.value));
    card.costLabel = u"Cost: "_s + Formatters::currencyOrZero(double(number(vinyl.cost))) + u"  Total Value: "_s
        + Formatters::currencyOrZero(total);
    card.speedLabel = u"Speed: "_s + speed + u"  Type: "_s + text(vinyl.doubleAlbum);
    return card;
}

QList<int> searchByName(const QList<std::optional<QString>> &nameKeys, const QList<int> &list, const QString &text)
{
    if (text.isEmpty())
        return list;
    const QString needle = text.toLower();
    QList<int> found;
    for (int index : list) {
        const std::optional<QString> &key = nameKeys.at(index);
        if (key && key->contains(needle))
            found.append(index);
    }
    return found;
}

float groupValue(const QList<Vinyl> &records)
{
    float sum = 0;
    for (const Vinyl &vinyl : records)
        sum += number(vinyl.value) * float(number(vinyl.quantity));
    return sum;
}

double valueOf(const QList<Vinyl> &records, const QList<int> &list)
{
    double sum = 0;
    for (int index : list) {
        const Vinyl &vinyl = records.at(index);
        sum += double(number(vinyl.value)) * double(number(vinyl.quantity));
    }
    return sum;
}

QString footerText(const BreakdownKind &kind, float groupValue, double shownValue, bool searching)
{
    if (!kind.footerFollowsSearch)
        return u"Value: "_s + Formatters::currencyOrZero(double(groupValue));
    const double amount = searching ? shownValue : double(groupValue);
    return u"Valuation for displayed vinyl's: "_s + Formatters::currencyOrZero(amount);
}

} // namespace Breakdown
