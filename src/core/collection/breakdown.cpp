#include "collection/breakdown.h"

#include "collection/collectionlist.h"
#include "collection/groupnames.h"
#include "store/formatters.h"
#include "store/translations.h"

using namespace Qt::StringLiterals;

namespace BreakdownKinds {
const BreakdownKind Artist{BreakdownKind::Group::Artist, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "List by Artist")), u"ArtistBreakdown"_s,
                           QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Search by Album Name")), u"unwindToArtistTableView"_s, u"VinylFilteredByArtist.pdf"_s,
                           true, true, true, false};
const BreakdownKind Label{BreakdownKind::Group::Label, QString(), u"LabelBreakdown"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Search by Record Label")),
                          u"unwindToLabelTableView"_s, u"VinylFilteredByRecordLabel.pdf"_s, false, false, true, true};
const BreakdownKind Producer{BreakdownKind::Group::Producer, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "List by Producer")), u"ProducerBreakdown"_s,
                             QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Search by Producer")), u"unwindToProducerTableView"_s, u"VinylFilteredByProducer.pdf"_s,
                             false, false, false, false};
const BreakdownKind Year{BreakdownKind::Group::Year, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "List by Year")), u"YearBreakdown"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Search by Release Date")),
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
    return kind.title.isEmpty() ? group.recordLabel : translated(kind.title);
}

RecordCard makeCard(const Vinyl &vinyl, const BreakdownKind &kind, bool searching, const RecordCaptions &captions)
{
    const bool detail = kind.detailWhileSearching == searching;
    const QString producer = kind.naFallbacks ? vinyl.producer.value_or(captions.notAvailable) : text(vinyl.producer);
    const QString speed = kind.naFallbacks ? vinyl.recordSpeed.value_or(captions.notAvailable) : text(vinyl.recordSpeed);

    RecordCard card;
    card.rowId = vinyl.rowId;
    // The wider gap after the album's caption is the detailed card's look.
    card.nameLabel = captions.album + (detail ? u" "_s : QString()) + text(vinyl.name) + u"  "_s + captions.artist
        + text(vinyl.artist);
    if (vinyl.releaseDate)
        card.releaseDateLabel = captions.releaseDate + Formatters::mediumDate(*vinyl.releaseDate);
    else if (kind.dateFallback)
        card.releaseDateLabel = captions.releaseDate + captions.notAvailable;
    card.producerLabel = captions.producer + producer;
    if (detail)
        card.producerLabel += u"  "_s + captions.speed + text(vinyl.recordSpeed);
    const double total = double(number(vinyl.quantity)) * double(number(vinyl.value));
    card.costLabel = captions.cost + Formatters::currencyOrZero(double(number(vinyl.cost))) + u"  "_s
        + captions.totalValue + Formatters::currencyOrZero(total);
    card.speedLabel = captions.speed + speed + u"  "_s + captions.type + text(vinyl.doubleAlbum);
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
        return translated(RecordCaptions().value) + Formatters::currencyOrZero(double(groupValue));
    const double amount = searching ? shownValue : double(groupValue);
    return translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Valuation for displayed vinyl's: ")))
        + Formatters::currencyOrZero(amount);
}

} // namespace Breakdown
