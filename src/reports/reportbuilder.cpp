#include "reportbuilder.h"

#include "appstate.h"
#include "coverpictures.h"
#include "formatters.h"
#include "logging.h"
#include "reporttexts.h"
#include "store.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QLocale>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextCursor>
#include <QTextDocument>

#include <cmath>

using namespace Qt::StringLiterals;

namespace ReportBuilder {
namespace {

// Appends the report's runs to a document: one cursor, one body format for every line.
class TextWriter
{
public:
    TextWriter(QTextDocument &document, CoverPictures &covers) : m_document(document), m_cursor(&document), m_covers(covers)
    {
        m_document.clear();
        QFont font(u"sans-serif"_s);
        font.setStyleHint(QFont::SansSerif);
        font.setPointSizeF(12);
        m_body.setFont(font);
        m_body.setForeground(Qt::black);
    }

    // The title block: the title and a blank line, centred, black, Arial.
    void title(const QString &text, int pointSize)
    {
        QTextBlockFormat centred;
        centred.setAlignment(Qt::AlignHCenter);
        m_cursor.setBlockFormat(centred);
        QTextCharFormat format;
        QFont font(u"Arial"_s);
        font.setStyleHint(QFont::SansSerif);
        font.setPointSizeF(pointSize);
        format.setFont(font);
        format.setForeground(Qt::black);
        m_cursor.insertText(text + u"\n\n"_s, format);
        QTextBlockFormat left;
        left.setAlignment(Qt::AlignLeft);
        m_cursor.setBlockFormat(left);
        m_cursor.setCharFormat(m_body);
    }

    void line(const QString &text) { m_cursor.insertText(text + u'\n', m_body); }
    void line(const QString &label, const std::optional<QString> &value)
    {
        if (value)
            line(label + *value);
    }
    void text(const QString &text) { m_cursor.insertText(text, m_body); }

    // The cover inline at one sixth of the view's width; false when the record has none.
    bool picture(const Vinyl &vinyl, CoverSide side)
    {
        const QImage image = m_covers.cover(vinyl, side);
        if (image.isNull())
            return false;
        const QString name = u"cover:%1"_s.arg(m_pictures++);
        m_document.addResource(QTextDocument::ImageResource, QUrl(name), image);
        QTextImageFormat format;
        format.setName(name);
        format.setWidth(m_covers.width());
        format.setHeight(m_covers.width() * image.height() / image.width());
        m_cursor.insertImage(format);
        return true;
    }

private:
    QTextDocument &m_document;
    QTextCursor m_cursor;
    CoverPictures &m_covers;
    QTextCharFormat m_body;
    int m_pictures = 0;
};

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
        return Error{ReportTexts::kUnreadableAmount.arg(what, text(vinyl.name))};
    return Formatters::currency(parsed);
}

Error noTitleValue(const QString &attribute)
{
    return Error{ReportTexts::kNoTitleValue.arg(attribute)};
}

} // namespace

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
    return title + value.value_or(QString());
}

Result<void> buildFilteredList(QTextDocument &document, const BreakdownKind &kind, const QList<Vinyl> &records,
                               CoverPictures &covers)
{
    if (records.isEmpty())
        return Error{ReportTexts::kEmptyMessage};
    bool hasValue = false;
    const QString title = filteredListTitle(kind, records.first(), &hasValue);
    if (!hasValue)
        return noTitleValue(kind.group == BreakdownKind::Group::Artist  ? u"artist"_s
                            : kind.group == BreakdownKind::Group::Label ? u"record label"_s
                            : kind.group == BreakdownKind::Group::Producer ? u"producer"_s
                                                                           : u"release date"_s);

    TextWriter out(document, covers);
    out.title(title, 21);
    for (const Vinyl &vinyl : records) {
        auto cost = currencyText(vinyl.cost, u"cost"_s, vinyl);
        auto value = currencyText(vinyl.value, u"value"_s, vinyl);
        if (!cost)
            return cost.error();
        if (!value)
            return value.error();
        out.line(u"Artist: "_s, vinyl.artist);
        out.line(u"Album Name: "_s, vinyl.name);
        out.line(u"Release Date: "_s, dateText(vinyl));
        out.line(u"Record Label: "_s, vinyl.recordLabel);
        out.line(u"Record Length (min): "_s + Formatters::shortest(number(vinyl.albumDuration)));
        out.line(u"Producer: "_s, vinyl.producer);
        out.line(u"Vinyl Condition: "_s, vinyl.vinylCondition);
        out.line(u"Cover Condition: "_s, vinyl.coverCondition);
        out.line(u"Record Speed: "_s, vinyl.recordSpeed);
        out.line(u"Single/Double: "_s, vinyl.doubleAlbum);
        out.line(u"Quantity: "_s + QString::number(number(vinyl.quantity)));
        out.line(u"Cost: "_s + *cost);
        out.line(u"Est. Value: "_s + *value);
        out.line(u"Notes: "_s, vinyl.notes);
        if (out.picture(vinyl, CoverSide::Front))
            out.text(u"   "_s);
        if (out.picture(vinyl, CoverSide::Back))
            out.text(u"   "_s);
        out.text(u"\n\n"_s);
    }
    return {};
}

std::optional<FetchRequest> reportRequest(const QString &originScreen, const CurrentRecord &group, bool ascending)
{
    FetchRequest request(Entity::Vinyl);
    if (originScreen == OriginScreens::List) {
        request.sortedBy(u"name"_s, ascending).sortedBy(u"artist"_s, ascending);
    } else if (originScreen == OriginScreens::ArtistBreakdown) {
        request.where(Predicate::equal(u"artist"_s, group.artist)).sortedBy(u"name"_s, ascending);
    } else if (originScreen == OriginScreens::YearBreakdown) {
        // The exact stored date and time, not the year the breakdown list shows.
        if (!group.releaseDate)
            return std::nullopt;
        request.where(Predicate::equal(u"releaseDate"_s, *group.releaseDate)).sortedBy(u"artist"_s, ascending);
    } else if (originScreen == OriginScreens::ProducerBreakdown) {
        request.where(Predicate::equal(u"producer"_s, group.producer)).sortedBy(u"name"_s, ascending);
    } else if (originScreen == OriginScreens::LabelBreakdown) {
        // Always by artist then name: the label report does not follow the order toggle.
        request.where(Predicate::equal(u"recordLabel"_s, group.recordLabel)).sortedBy(u"artist"_s).sortedBy(u"name"_s);
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

QString reportTitle(const QString &originScreen, const Vinyl &first, bool *hasValue)
{
    std::optional<QString> value;
    QString title;
    if (originScreen == OriginScreens::ArtistBreakdown) {
        title = ReportTexts::kReportByArtist;
        value = first.artist;
    } else if (originScreen == OriginScreens::YearBreakdown) {
        title = ReportTexts::kReportByDate;
        value = dateText(first);
    } else if (originScreen == OriginScreens::ProducerBreakdown) {
        title = ReportTexts::kReportByProducer;
        value = first.producer;
    } else if (originScreen == OriginScreens::LabelBreakdown) {
        title = ReportTexts::kReportByLabel;
        value = first.recordLabel;
    } else {
        title = ReportTexts::kCompleteList;
        value = QString();
    }
    if (hasValue)
        *hasValue = value.has_value();
    return title + value.value_or(QString());
}

QString amountsLine(const Vinyl &vinyl)
{
    const float total = number(vinyl.value) * float(number(vinyl.quantity));
    return u"Qty: "_s + QString::number(number(vinyl.quantity)) + u" - Cost: "_s + Formatters::shortest(number(vinyl.cost))
        + u" - Total Value (Qty * Value): "_s + Formatters::currency(total);
}

Result<void> buildReport(QTextDocument &document, const QString &originScreen, const QList<Vinyl> &records,
                         CoverPictures &covers)
{
    if (records.isEmpty())
        return Error{ReportTexts::kEmptyMessage};
    bool hasValue = false;
    const QString title = reportTitle(originScreen, records.first(), &hasValue);
    if (!hasValue)
        return noTitleValue(originScreen == OriginScreens::YearBreakdown ? u"release date"_s
                                : originScreen == OriginScreens::LabelBreakdown ? u"record label"_s
                                : originScreen == OriginScreens::ProducerBreakdown ? u"producer"_s
                                                                                    : u"artist"_s);

    enum Line { Artist, Album, Date, Producer, Label };
    QList<Line> order{Artist, Album, Date, Producer, Label};
    if (originScreen == OriginScreens::YearBreakdown)
        order = {Date, Artist, Album, Producer, Label};
    else if (originScreen == OriginScreens::ProducerBreakdown)
        order = {Producer, Artist, Album, Date, Label};
    else if (originScreen == OriginScreens::LabelBreakdown)
        order = {Label, Artist, Album, Date, Producer, Label}; // the label line comes twice, as users know it

    TextWriter out(document, covers);
    out.title(title, 17);
    for (const Vinyl &vinyl : records) {
        for (Line line : order) {
            switch (line) {
            case Artist: out.line(u"Artist: "_s, vinyl.artist); break;
            case Album: out.line(u"Album Name: "_s, vinyl.name); break;
            case Date: out.line(u"Release Date: "_s, dateText(vinyl)); break;
            case Producer: out.line(u"Producer: "_s, vinyl.producer); break;
            case Label: out.line(u"Record Label: "_s, vinyl.recordLabel); break;
            }
        }
        out.line(amountsLine(vinyl));
        if (out.picture(vinyl, CoverSide::Front))
            out.text(u"   "_s);
        out.picture(vinyl, CoverSide::Back);
        out.text(u"\n\n"_s);
    }
    return {};
}

Result<void> writePdf(QTextDocument &document, const QString &filePath)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    int pages = 0;
    {
        QPdfWriter writer(&buffer);
        // One device unit per point: the document is laid out in points on the A4 page.
        writer.setResolution(72);
        writer.setPageLayout(QPageLayout(QPageSize(QSizeF(kPageWidth, kPageHeight), QPageSize::Point),
                                         QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
        document.documentLayout()->setPaintDevice(&writer);
        // The pages have no margins; the text keeps a small inset of its own so no printer cuts it.
        document.setDocumentMargin(kTextInset);
        document.setPageSize(QSizeF(kPageWidth, kPageHeight));
        document.markContentsDirty(0, document.characterCount());
        pages = document.pageCount();
        if (pages >= 1) {
            QPainter painter(&writer);
            for (int page = 0; page < pages; ++page) {
                if (page > 0)
                    writer.newPage();
                const QRectF rect(0, page * kPageHeight, kPageWidth, kPageHeight);
                painter.save();
                painter.translate(0, -rect.top());
                document.drawContents(&painter, rect);
                painter.restore();
            }
        }
        document.documentLayout()->setPaintDevice(nullptr);
    }
    // QPdfWriter rounds the page to whole points (595 x 842). Its media boxes are written with
    // six decimals, so the exact A4 size goes in place without moving any byte of the file.
    QByteArray pdf = buffer.data();
    pdf.replace("/MediaBox [0 0 595.000000 842.000000]", "/MediaBox [0 0 595.200000 841.800000]");
    QString problem;
    if (pages < 1) {
        problem = u"the document has no pages"_s;
    } else {
        QSaveFile file(filePath);
        if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size() || !file.commit())
            problem = file.errorString();
    }
    if (!problem.isEmpty()) {
        consoleLine(ReportTexts::kPdfNotWritten + problem);
        return Error{ReportTexts::kPdfNotWritten + problem};
    }
    consoleLine(ReportTexts::kPdfWritten + filePath);
    return {};
}

} // namespace ReportBuilder
