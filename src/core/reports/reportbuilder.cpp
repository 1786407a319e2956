#include "reports/reportbuilder.h"

#include "reports/coverpictures.h"
#include "reports/reporttexts.h"
#include "store/currentrecord.h"
#include "store/formatters.h"
#include "store/store.h"
#include "store/translations.h"

#include <QLocale>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> dateText(const Vinyl &vinyl)
{
    if (!vinyl.releaseDate)
        return std::nullopt;
    return Formatters::mediumDate(*vinyl.releaseDate);
}

// An amount as the filtered-list documents show it: the float's shortest text read back as a
// number and given in the local currency. The text is written with a point in every locale,
// so it is read back with one.
Result<QString> currencyText(std::optional<float> amount, const QString &what, const Vinyl &vinyl)
{
    bool ok = false;
    const double parsed = QLocale::c().toDouble(Formatters::shortest(number(amount)), &ok);
    if (!ok || !std::isfinite(parsed))
        return Error{translated(ReportTexts::kUnreadableAmount).arg(what, text(vinyl.name))};
    return Formatters::currency(parsed);
}

// attribute is English, marked for translation.
Error noTitleValue(const QString &attribute)
{
    return Error{translated(ReportTexts::kNoTitleValue).arg(translated(attribute))};
}

} // namespace

namespace ReportBuilder {

QString filteredListTitle(const BreakdownKind &kind, const Vinyl &first, bool *hasValue)
{
    std::optional<QString> value;
    QString title;
    switch (kind.group) {
    case BreakdownKind::Group::Artist:
        title = ReportTexts::kFilteredByArtist;
        value = first.artist;
        break;
    case BreakdownKind::Group::Label:
        title = ReportTexts::kFilteredByLabel;
        value = first.recordLabel;
        break;
    case BreakdownKind::Group::Producer:
        title = ReportTexts::kFilteredByProducer;
        value = first.producer;
        break;
    case BreakdownKind::Group::Year:
        title = ReportTexts::kFilteredByYear;
        value = dateText(first);
        break;
    }
    if (hasValue)
        *hasValue = value.has_value();
    return translated(title) + value.value_or(QString());
}

std::optional<FetchRequest> reportRequest(const QString &originScreen, const CurrentRecord &group, bool ascending)
{
    FetchRequest request(Entity::Vinyl);
    if (originScreen == ReportOrigins::List) {
        request.sortedBy(u"name"_s, ascending).sortedBy(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "artist")), ascending);
    } else if (originScreen == ReportOrigins::ArtistBreakdown) {
        request.where(Predicate::equal(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "artist")), group.artist)).sortedBy(u"name"_s, ascending);
    } else if (originScreen == ReportOrigins::YearBreakdown) {
        // The exact stored date and time, not the year the breakdown list shows.
        if (!group.releaseDate)
            return std::nullopt;
        request.where(Predicate::equal(u"releaseDate"_s, *group.releaseDate)).sortedBy(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "artist")), ascending);
    } else if (originScreen == ReportOrigins::ProducerBreakdown) {
        request.where(Predicate::equal(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "producer")), group.producer)).sortedBy(u"name"_s, ascending);
    } else if (originScreen == ReportOrigins::LabelBreakdown) {
        // Always by artist then name: the label report does not follow the order toggle.
        request.where(Predicate::equal(u"recordLabel"_s, group.recordLabel)).sortedBy(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "artist"))).sortedBy(u"name"_s);
    } else {
        return std::nullopt;
    }
    return request;
}

Result<QList<Vinyl>> fetchReport(Store &store, const QString &originScreen, const CurrentRecord &group, bool ascending)
{
    const auto request = reportRequest(originScreen, group, ascending);
    if (!request)
        return QList<Vinyl>();
    return store.fetchVinyl(*request);
}

Result<ReportRecords> readReport(Store &store, const QString &originScreen, const CurrentRecord &group, bool ascending,
                                 const std::function<bool(const ReportRecords &)> &reading)
{
    ReportRecords read;
    auto request = reportRequest(originScreen, group, ascending);
    if (!request)
        return read;
    // Counted first: a list grown record by record moves every record read before, again and again.
    if (const auto count = store.count(*request); count && *count > 0) {
        read.expected = *count;
        read.records.reserve(*count);
        read.coverSizes.reserve(*count);
    }
    request->withImages();
    const auto done = store.forEachVinyl(*request, [&](Vinyl &vinyl) {
        read.coverSizes.append({CoverPictures::storedSize(vinyl.frontImage.value_or(QByteArray())),
                                CoverPictures::storedSize(vinyl.backImage.value_or(QByteArray()))});
        vinyl.frontImage.reset();
        vinyl.backImage.reset();
        vinyl.imagesLoaded = false;
        read.records.append(std::move(vinyl));
        return !reading || reading(read);
    });
    if (!done)
        return done.error();
    return read;
}

QString reportTitle(const QString &originScreen, const Vinyl &first, bool *hasValue)
{
    std::optional<QString> value;
    QString title;
    if (originScreen == ReportOrigins::ArtistBreakdown) {
        title = ReportTexts::kReportByArtist;
        value = first.artist;
    } else if (originScreen == ReportOrigins::YearBreakdown) {
        title = ReportTexts::kReportByDate;
        value = dateText(first);
    } else if (originScreen == ReportOrigins::ProducerBreakdown) {
        title = ReportTexts::kReportByProducer;
        value = first.producer;
    } else if (originScreen == ReportOrigins::LabelBreakdown) {
        title = ReportTexts::kReportByLabel;
        value = first.recordLabel;
    } else {
        title = ReportTexts::kCompleteList;
        value = QString();
    }
    if (hasValue)
        *hasValue = value.has_value();
    return translated(title) + value.value_or(QString());
}

QString amountsLine(const Vinyl &vinyl, const QString &amounts)
{
    const float total = number(vinyl.value) * float(number(vinyl.quantity));
    return amounts.arg(QString::number(number(vinyl.quantity)), Formatters::shortest(number(vinyl.cost)),
                       Formatters::currency(total));
}

} // namespace ReportBuilder

ReportContent::ReportContent(Kind kind, QString title, int titlePointSize, QList<Vinyl> records)
    : m_kind(kind), m_title(std::move(title)), m_titlePointSize(titlePointSize), m_records(std::move(records)),
      m_amounts(translated(ReportTexts::kAmounts)), m_captions(RecordCaptions::translatedNow())
{
}

QString ReportContent::documentTitle() const
{
    return translated(m_kind == Kind::FilteredList ? ReportTexts::kFilteredListDocument
                                                   : ReportTexts::kCollectionReportDocument);
}

Result<ReportContent> ReportContent::filteredList(const BreakdownKind &kind, QList<Vinyl> records)
{
    if (records.isEmpty())
        return Error{ReportTexts::kEmptyMessage};
    bool hasValue = false;
    QString title = ReportBuilder::filteredListTitle(kind, records.first(), &hasValue);
    if (!hasValue)
        return noTitleValue(kind.group == BreakdownKind::Group::Artist     ? QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "artist"))
                            : kind.group == BreakdownKind::Group::Label    ? QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "record label"))
                            : kind.group == BreakdownKind::Group::Producer ? QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "producer"))
                                                                           : QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "release date")));
    return ReportContent(Kind::FilteredList, std::move(title), 21, std::move(records));
}

Result<ReportContent> ReportContent::printedReport(const QString &originScreen, QList<Vinyl> records)
{
    if (records.isEmpty())
        return Error{ReportTexts::kEmptyMessage};
    bool hasValue = false;
    QString title = ReportBuilder::reportTitle(originScreen, records.first(), &hasValue);
    if (!hasValue)
        return noTitleValue(originScreen == ReportOrigins::YearBreakdown       ? QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "release date"))
                            : originScreen == ReportOrigins::LabelBreakdown    ? QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "record label"))
                            : originScreen == ReportOrigins::ProducerBreakdown ? QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "producer"))
                                                                               : QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "artist")));
    ReportContent content(Kind::PrintedReport, std::move(title), 17, std::move(records));
    content.m_order = {Line::Artist, Line::Album, Line::Date, Line::Producer, Line::Label};
    if (originScreen == ReportOrigins::YearBreakdown)
        content.m_order = {Line::Date, Line::Artist, Line::Album, Line::Producer, Line::Label};
    else if (originScreen == ReportOrigins::ProducerBreakdown)
        content.m_order = {Line::Producer, Line::Artist, Line::Album, Line::Date, Line::Label};
    else if (originScreen == ReportOrigins::LabelBreakdown) // the label line comes twice, as users know it
        content.m_order = {Line::Label, Line::Artist, Line::Album, Line::Date, Line::Producer, Line::Label};
    return content;
}

void ReportContent::setCoverSizes(QList<CoverSizes> sizes)
{
    m_coverSizes = sizes.size() == m_records.size() ? std::move(sizes) : QList<CoverSizes>();
}

std::optional<QSize> ReportContent::coverSize(int index, CoverSide side) const
{
    if (index < 0 || index >= m_coverSizes.size())
        return std::nullopt;
    return m_coverSizes.at(index)[side == CoverSide::Back ? 1 : 0];
}

Result<QStringList> ReportContent::lines(int index) const
{
    const Vinyl &vinyl = m_records.at(index);
    const RecordCaptions &captions = m_captions;
    QStringList out;
    auto line = [&out](const QString &label, const std::optional<QString> &value) {
        if (value)
            out.append(label + *value);
    };
    if (m_kind == Kind::PrintedReport) {
        for (Line kind : m_order) {
            switch (kind) {
            case Line::Artist: line(captions.artist, vinyl.artist); break;
            case Line::Album: line(captions.albumName, vinyl.name); break;
            case Line::Date: line(captions.releaseDate, dateText(vinyl)); break;
            case Line::Producer: line(captions.producer, vinyl.producer); break;
            case Line::Label: line(captions.recordLabel, vinyl.recordLabel); break;
            }
        }
        out.append(ReportBuilder::amountsLine(vinyl, m_amounts));
        return out;
    }
    auto cost = currencyText(vinyl.cost, translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "cost"))), vinyl);
    if (!cost)
        return cost.error();
    auto value = currencyText(vinyl.value, translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "value"))), vinyl);
    if (!value)
        return value.error();
    line(captions.artist, vinyl.artist);
    line(captions.albumName, vinyl.name);
    line(captions.releaseDate, dateText(vinyl));
    line(captions.recordLabel, vinyl.recordLabel);
    out.append(captions.recordLength + Formatters::shortest(number(vinyl.albumDuration)));
    line(captions.producer, vinyl.producer);
    line(captions.vinylCondition, vinyl.vinylCondition);
    line(captions.coverCondition, vinyl.coverCondition);
    line(captions.recordSpeed, vinyl.recordSpeed);
    line(captions.singleDouble, vinyl.doubleAlbum);
    out.append(captions.quantity + QString::number(number(vinyl.quantity)));
    out.append(captions.cost + *cost);
    out.append(captions.estimatedValue + *value);
    line(captions.notes, vinyl.notes);
    return out;
}
