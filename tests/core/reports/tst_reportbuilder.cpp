#include "collection/breakdown.h"
#include "reports/coverpictures.h"
#include "reports/reportbuilder.h"
#include "reports/reportpages.h"
#include "reports/reportpdf.h"
#include "reports/reporttexts.h"
#include "store/samplecollection.h"
#include "store/store.h"
#include "store/version.h"
#include "testsupport.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFile>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Vinyl)

namespace {
const QDateTime kMarch5 = QDateTime(QDate(1975, 3, 5), QTime(0, 0));
const QString kPicture = QString(QChar::ObjectReplacementCharacter);
constexpr double kCoverWidth = 65;

QByteArray pngBytes(int width, int height)
{
    return encodedPicture(solidPicture(QSize(width, height), Qt::red));
}

Vinyl sparse()
{
    Vinyl v;
    v.artist = u"ABBA"_s;
    v.name = u"Arrival"_s;
    v.imagesLoaded = true;
    return v;
}

Vinyl full()
{
    Vinyl v = sparse();
    v.releaseDate = kMarch5;
    v.recordLabel = u"Polar"_s;
    v.albumDuration = 42.5;
    v.producer = u"Benny"_s;
    v.vinylCondition = u"Mint"_s;
    v.coverCondition = u"Good"_s;
    v.recordSpeed = u"33"_s;
    v.doubleAlbum = u"Single"_s;
    v.quantity = 2;
    v.cost = 12.5f;
    v.value = 10.5f;
    v.notes = u"First press"_s;
    v.frontImage = pngBytes(60, 60);
    v.backImage = pngBytes(60, 30);
    return v;
}

// Lays the report out with covers of the printed width and gives `take` each page; the pages
// `take` made of it, or the layout's error alone.
template<typename T, typename Take>
QList<T> eachPage(const ReportContent &content, bool decodePictures, Take take)
{
    CoverPictures covers(nullptr, kCoverWidth);
    ReportPages pages(content, covers, decodePictures);
    QList<T> made;
    const auto laidOut = pages.layOut([&](const ReportPage &page) {
        made.append(take(page));
        return true;
    });
    if constexpr (std::is_same_v<T, QString>)
        return laidOut ? made : QStringList{laidOut.errorMessage()};
    else
        return laidOut ? made : QList<T>();
}

QStringList lines(const ReportContent &content)
{
    return eachPage<QString>(content, true, [](const ReportPage &page) { return page.text(); }).join(u'\n').split(u'\n');
}

// Pages lie one under the other at the text engine's own measure of a page height.
const qreal kLaidPageHeight = std::round(ReportBuilder::kPageHeight * 64) / 64;

// Where each page's lines are, as the pages are laid out one after the other.
QStringList placedPages(const ReportContent &content, bool decodePictures)
{
    return eachPage<QString>(content, decodePictures, [](const ReportPage &page) { return page.placedLines().join(u'\n'); });
}

// A white page `width` pixels wide.
QImage whitePage(int width)
{
    QImage image(width, qRound(width * ReportBuilder::kPageHeight / ReportBuilder::kPageWidth), QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

// The painter draws in points, smoothly, on a page `width` pixels wide.
void scaleToPoints(QPainter &painter, int width)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(width / ReportBuilder::kPageWidth, width / ReportBuilder::kPageWidth);
}

// The page drawn `width` pixels wide.
QImage drawn(const ReportPage &page, int width)
{
    QImage image = whitePage(width);
    QPainter painter(&image);
    scaleToPoints(painter, width);
    page.draw(painter);
    return image;
}

// The share of pixels in which two pictures of one size differ visibly.
double differingShare(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return 1;
    qint64 differing = 0;
    for (int y = 0; y < a.height(); ++y) {
        const QRgb *p = reinterpret_cast<const QRgb *>(a.constScanLine(y));
        const QRgb *q = reinterpret_cast<const QRgb *>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x) {
            if (std::abs(qRed(p[x]) - qRed(q[x])) > 64 || std::abs(qGreen(p[x]) - qGreen(q[x])) > 64
                || std::abs(qBlue(p[x]) - qBlue(q[x])) > 64)
                ++differing;
        }
    }
    return double(differing) / (qint64(a.width()) * a.height());
}

// The whole report as one long document, written the way a report was made before pages were
// measured with font metrics: what the pages must look like, page for page.
class OneLongDocument
{
public:
    explicit OneLongDocument(const ReportContent &content) : m_device(&m_sink)
    {
        m_device.setResolution(72);
        m_device.setPageLayout(QPageLayout(QPageSize(QSizeF(ReportBuilder::kPageWidth, ReportBuilder::kPageHeight),
                                                     QPageSize::Point),
                                           QPageLayout::Portrait, QMarginsF()));
        QTextCursor cursor(&m_document);
        QTextCharFormat body;
        QFont bodyFont(u"sans-serif"_s);
        bodyFont.setStyleHint(QFont::SansSerif);
        bodyFont.setPointSizeF(12);
        body.setFont(bodyFont);
        body.setForeground(Qt::black);
        QTextCharFormat title;
        QFont titleFont(u"Arial"_s);
        titleFont.setStyleHint(QFont::SansSerif);
        titleFont.setPointSizeF(content.titlePointSize());
        title.setFont(titleFont);
        title.setForeground(Qt::black);
        QTextBlockFormat centred;
        centred.setAlignment(Qt::AlignHCenter);
        QTextBlockFormat left;
        left.setAlignment(Qt::AlignLeft);

        cursor.setBlockFormat(centred);
        cursor.insertText(content.title() + u"\n\n"_s, title);
        cursor.setBlockFormat(left);
        CoverPictures covers(nullptr, kCoverWidth);
        int pictures = 0;
        for (int i = 0; i < content.recordCount(); ++i) {
            for (const QString &line : content.lines(i).valueOr({}))
                cursor.insertText(line + u'\n', body);
            for (CoverSide side : {CoverSide::Front, CoverSide::Back}) {
                const CoverPicture picture = covers.cover(content.record(i), side);
                if (!picture.exists())
                    continue;
                const QString name = u"cover:%1"_s.arg(pictures++);
                m_document.addResource(QTextDocument::ImageResource, QUrl(name), picture.image);
                QTextImageFormat format;
                format.setName(name);
                format.setWidth(kCoverWidth);
                format.setHeight(kCoverWidth * picture.size.height() / picture.size.width());
                cursor.insertImage(format);
                if (side == CoverSide::Front || content.blanksAfterBackCover())
                    cursor.insertText(u"   "_s, body);
            }
            cursor.insertText(u"\n\n"_s, body);
        }
        m_document.documentLayout()->setPaintDevice(&m_device);
        m_document.setDocumentMargin(ReportBuilder::kTextInset);
        m_document.setPageSize(QSizeF(ReportBuilder::kPageWidth, ReportBuilder::kPageHeight));
    }

    [[nodiscard]] int pageCount() { return m_document.pageCount(); }

    // Each line of a page with its distance from the top of the page: "14.00 Artist: ABBA".
    QString placedLines(int page)
    {
        QStringList lines;
        m_document.documentLayout()->documentSize();
        for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next()) {
            const QTextLayout *layout = block.layout();
            for (int i = 0; i < layout->lineCount(); ++i) {
                const QTextLine line = layout->lineAt(i);
                const qreal y = layout->position().y() + line.y();
                if (int(y / kLaidPageHeight) == page)
                    lines.append(QString::number(y - page * kLaidPageHeight, 'f', 2) + u' '
                                 + block.text().mid(line.textStart(), line.textLength()));
            }
        }
        return lines.join(u'\n');
    }

    QStringList placedPages()
    {
        QStringList texts;
        for (int page = 0; page < pageCount(); ++page)
            texts.append(placedLines(page));
        return texts;
    }

    QImage draw(int page, int width)
    {
        QImage image = whitePage(width);
        QPainter painter(&image);
        scaleToPoints(painter, width);
        const QRectF rect(0, page * kLaidPageHeight, ReportBuilder::kPageWidth, kLaidPageHeight);
        painter.translate(0, -rect.top());
        m_document.drawContents(&painter, rect);
        return image;
    }

private:
    QBuffer m_sink;
    QPdfWriter m_device;
    QTextDocument m_document;
};
} // namespace

class TestReportBuilder : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        useTestLocale();
        QVERIFY(m_app.ok());
    }

    void filteredListLeavesOutAbsentLines_data()
    {
        QTest::addColumn<Vinyl>("vinyl");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("sparse record") << sparse()
                                       << QStringList{u"Vinyl Filtered by Artist: ABBA"_s, QString(),
                                                      u"Artist: ABBA"_s, u"Album Name: Arrival"_s,
                                                      u"Record Length (min): 0.0"_s, u"Quantity: 0"_s,
                                                      u"Cost: $0.00"_s, u"Est. Value: $0.00"_s, QString(),
                                                      QString(), QString()};
        QTest::newRow("every attribute and both covers")
            << full()
            << QStringList{u"Vinyl Filtered by Artist: ABBA"_s, QString(), u"Artist: ABBA"_s, u"Album Name: Arrival"_s,
                           u"Release Date: Mar 5, 1975"_s, u"Record Label: Polar"_s, u"Record Length (min): 42.5"_s,
                           u"Producer: Benny"_s, u"Vinyl Condition: Mint"_s, u"Cover Condition: Good"_s,
                           u"Record Speed: 33"_s, u"Single/Double: Single"_s, u"Quantity: 2"_s, u"Cost: $12.50"_s,
                           u"Est. Value: $10.50"_s, u"Notes: First press"_s, kPicture + u"   "_s + kPicture + u"   "_s,
                           QString(), QString()};
        Vinyl empties = sparse();
        empties.producer = QString(); // present but empty: the line stays
        QTest::newRow("empty text is not absent")
            << empties
            << QStringList{u"Vinyl Filtered by Artist: ABBA"_s, QString(), u"Artist: ABBA"_s, u"Album Name: Arrival"_s,
                           u"Record Length (min): 0.0"_s, u"Producer: "_s, u"Quantity: 0"_s, u"Cost: $0.00"_s,
                           u"Est. Value: $0.00"_s, QString(), QString(), QString()};
    }

    void filteredListLeavesOutAbsentLines()
    {
        QFETCH(Vinyl, vinyl);
        QFETCH(QStringList, expected);
        const auto content = ReportContent::filteredList(BreakdownKinds::Artist, {vinyl});
        QVERIFY(content);
        QCOMPARE(lines(*content), expected);
    }

    void filteredListTitles_data()
    {
        QTest::addColumn<int>("group");
        QTest::addColumn<QString>("title");
        QTest::newRow("artist") << int(BreakdownKind::Group::Artist) << u"Vinyl Filtered by Artist: ABBA"_s;
        QTest::newRow("label") << int(BreakdownKind::Group::Label) << u"Vinyl Filtered by Record Label: Polar"_s;
        QTest::newRow("producer") << int(BreakdownKind::Group::Producer) << u"Vinyl Filtered by Producer: Benny"_s;
        QTest::newRow("year: the full date") << int(BreakdownKind::Group::Year) << u"Vinyl Filtered by Year: Mar 5, 1975"_s;
    }

    void filteredListTitles()
    {
        QFETCH(int, group);
        QFETCH(QString, title);
        const BreakdownKind *kinds[] = {&BreakdownKinds::Artist, &BreakdownKinds::Label, &BreakdownKinds::Producer,
                                        &BreakdownKinds::Year};
        QCOMPARE(ReportBuilder::filteredListTitle(*kinds[group], full()), title);
        // Without the title attribute on the first record there is no document, and no crash.
        Vinyl bare;
        bare.name = u"Untitled"_s;
        const auto built = ReportContent::filteredList(*kinds[group], {bare});
        QVERIFY(!built);
        QVERIFY(built.errorMessage().contains(u"has no"_s));
    }

    void amountsLine_data()
    {
        QTest::addColumn<int>("quantity");
        QTest::addColumn<float>("cost");
        QTest::addColumn<float>("value");
        QTest::addColumn<QString>("line");
        QTest::newRow("float cost stays short") << 3 << 9.99f << 0.1f
                                                << u"Qty: 3 - Cost: 9.99 - Total Value (Qty * Value): $0.30"_s;
        QTest::newRow("grouped total") << 100 << 1000.0f << 25.25f
                                       << u"Qty: 100 - Cost: 1000.0 - Total Value (Qty * Value): $2,525.00"_s;
    }

    void amountsLine()
    {
        QFETCH(int, quantity);
        QFETCH(float, cost);
        QFETCH(float, value);
        QFETCH(QString, line);
        Vinyl v;
        v.quantity = qint16(quantity);
        v.cost = cost;
        v.value = value;
        QCOMPARE(ReportBuilder::amountsLine(v, ReportTexts::kAmounts), line);
    }

    void reportLineOrderFollowsOrigin_data()
    {
        QTest::addColumn<QString>("origin");
        QTest::addColumn<QList<Vinyl>>("records");
        QTest::addColumn<QStringList>("expected");
        const QString artist = u"Artist: ABBA"_s, album = u"Album Name: Arrival"_s, date = u"Release Date: Mar 5, 1975"_s,
                      producer = u"Producer: Benny"_s, label = u"Record Label: Polar"_s,
                      amounts = u"Qty: 2 - Cost: 12.5 - Total Value (Qty * Value): $21.00"_s,
                      pictures = kPicture + u"   "_s + kPicture;
        QTest::newRow("List") << u"List"_s << QList<Vinyl>{full()}
                              << QStringList{u"Complete List of Vinyl"_s, QString(), artist, album, date, producer, label,
                                             amounts, pictures, QString(), QString()};
        QTest::newRow("ArtistBreakdown") << u"ArtistBreakdown"_s << QList<Vinyl>{full()}
                                         << QStringList{u"Vinyl's Filtered by Artist: ABBA"_s, QString(), artist, album,
                                                        date, producer, label, amounts, pictures, QString(), QString()};
        QTest::newRow("YearBreakdown") << u"YearBreakdown"_s << QList<Vinyl>{full()}
                                       << QStringList{u"Vinyl's Filtered by Release Date: Mar 5, 1975"_s, QString(), date,
                                                      artist, album, producer, label, amounts, pictures, QString(),
                                                      QString()};
        QTest::newRow("ProducerBreakdown") << u"ProducerBreakdown"_s << QList<Vinyl>{full()}
                                           << QStringList{u"Vinyl's Filtered by Producer: Benny"_s, QString(), producer,
                                                          artist, album, date, label, amounts, pictures, QString(),
                                                          QString()};
        QTest::newRow("LabelBreakdown: label line twice")
            << u"LabelBreakdown"_s << QList<Vinyl>{full()}
            << QStringList{u"Vinyl's Filtered by Record Label: Polar"_s, QString(), label, artist, album, date, producer,
                           label, amounts, pictures, QString(), QString()};
        // Only what is known, twice over.
        const QStringList sparseLines{artist, album, u"Qty: 0 - Cost: 0.0 - Total Value (Qty * Value): $0.00"_s, QString(), QString()};
        QTest::newRow("sparse records") << u"List"_s << QList<Vinyl>{sparse(), sparse()}
                                        << QStringList{u"Complete List of Vinyl"_s, QString()} + sparseLines + sparseLines
                                               + QStringList{QString()};
    }

    void reportLineOrderFollowsOrigin()
    {
        QFETCH(QString, origin);
        QFETCH(QList<Vinyl>, records);
        QFETCH(QStringList, expected);
        const auto content = ReportContent::printedReport(origin, records);
        QVERIFY(content);
        QCOMPARE(content->titlePointSize(), 17);
        QCOMPARE(lines(*content), expected);
    }

    // A cover takes its printed width on the page; its picture is decoded at that width, or
    // kept as it is when narrower (the page scales it), never enlarged in memory.
    void coversAreScaledToTheirPrintedWidth_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QSize>("size");   // printed, in pixels
        QTest::addColumn<QSize>("pixels"); // of the decoded picture
        QTest::newRow("large square") << pngBytes(600, 600) << QSize(130, 130) << QSize(130, 130);
        QTest::newRow("wide") << pngBytes(400, 200) << QSize(130, 65) << QSize(130, 65);
        QTest::newRow("large JPEG decoded scaled") << encodedPicture(solidPicture(QSize(520, 390), Qt::blue), "JPEG")
                                                   << QSize(130, 98) << QSize(130, 98);
        QTest::newRow("small is printed as large, not enlarged") << pngBytes(20, 40) << QSize(130, 260) << QSize(20, 40);
        QTest::newRow("small JPEG") << encodedPicture(solidPicture(QSize(100, 100), Qt::blue), "JPEG")
                                    << QSize(130, 130) << QSize(100, 100);
        QTest::newRow("odd height rounds") << pngBytes(300, 199) << QSize(130, 86) << QSize(130, 86);
        QTest::newRow("not a picture") << QByteArray("garbage") << QSize() << QSize();
        QTest::newRow("JPEG start, no frame") << QByteArray("\xFF\xD8\xFF\xE0\x00\x04" "ab", 8) << QSize() << QSize();
        QTest::newRow("none") << QByteArray() << QSize() << QSize();
    }

    void coversAreScaledToTheirPrintedWidth()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QSize, size);
        QFETCH(QSize, pixels);
        CoverPictures covers(nullptr, kCoverWidth);
        Vinyl v;
        v.imagesLoaded = true;
        v.frontImage = bytes;
        const CoverPicture decoded = covers.cover(v, CoverSide::Front);
        QCOMPARE(decoded.size, size);
        QCOMPARE(decoded.image.isNull() ? QSize() : decoded.image.size(), pixels);
        // Reading only the header gives the same size, so pages break where they will print.
        QCOMPARE(covers.cover(v, CoverSide::Front, false).size, size);
    }

    // Pages measured with font metrics must be the pages the text engine makes of one long
    // document, line for line, and look the same: where a long block runs over one or several
    // page breaks, where a record has one cover, a flat one or none.
    void pagesAreTheLongDocumentsPages_data()
    {
        QTest::addColumn<bool>("printed");
        QTest::addColumn<int>("records");
        QTest::addColumn<int>("longText"); // characters of the notes (filtered list) or names (printed)
        QTest::newRow("printed report with covers") << true << 40 << 0;
        QTest::newRow("printed report, names over two lines") << true << 12 << 150;
        QTest::newRow("filtered list, notes over page breaks") << false << 30 << 1500;
        QTest::newRow("filtered list, notes longer than a page") << false << 4 << 9000;
    }

    void pagesAreTheLongDocumentsPages()
    {
        QFETCH(bool, printed);
        QFETCH(int, records);
        QFETCH(int, longText);
        QList<Vinyl> list;
        for (int i = 0; i < records; ++i) {
            Vinyl v = full();
            v.name = u"Album %1"_s.arg(i);
            if (i % 3 == 1)
                v.backImage.reset();
            if (i % 5 == 2)
                v.frontImage.reset();
            if (i % 7 == 3)
                v.frontImage = pngBytes(60, 4);
            v.notes = u"First press"_s;
            if (longText > 0 && printed)
                v.name = *v.name + u" word"_s.repeated(longText / 5);
            else if (longText > 0)
                v.notes = u"word "_s.repeated(longText / 5 + i);
            list.append(v);
        }
        const auto content = printed ? ReportContent::printedReport(u"List"_s, list)
                                     : ReportContent::filteredList(BreakdownKinds::Artist, list);
        QVERIFY(content);
        OneLongDocument document(*content);
        const QStringList expected = document.placedPages();
        QVERIFY(expected.size() > 2);
        QCOMPARE(placedPages(*content, true), expected);
        // Reading only the covers' sizes breaks the pages at the same places.
        QCOMPARE(placedPages(*content, false), expected);
        // Fonts, alignment, covers: every page looks as the document's page does.
        const QList<QImage> pages = eachPage<QImage>(*content, true, [](const ReportPage &page) { return drawn(page, 400); });
        QCOMPARE(pages.size(), expected.size());
        for (int page = 0; page < pages.size(); ++page)
            QVERIFY2(differingShare(pages.at(page), document.draw(page, 400)) < 0.002, qPrintable(QString::number(page)));
    }

    // The screen draws each page again from where it starts; the page must come out as it
    // did when the report was laid out.
    // However the pages were found: reading each cover for its size, with the sizes read with
    // the records, or measured in batches on other threads while the records were read.
    void pagesDrawnAgainFromWhereTheyStart_data()
    {
        QTest::addColumn<int>("found");
        QTest::newRow("covers read for their sizes") << 0;
        QTest::newRow("sizes read with the records") << 1;
        QTest::newRow("laid out while the records are read") << 2;
    }

    void pagesDrawnAgainFromWhereTheyStart()
    {
        QFETCH(int, found);
        TestApp t;
        QVERIFY(addSampleCollection(t.store(), sampleOptions(45, 0, true, 11)));
        PagesWhileReading whileReading(u"List"_s, 8);
        auto records = ReportBuilder::readReport(t.store(), u"List"_s, {}, true, [&](const ReportRecords &read) {
            whileReading.add(read.records.constLast(), read.coverSizes.constLast());
            return true;
        });
        QVERIFY(records && records->records.size() == 45 && records->expected == 45);
        auto content = ReportContent::printedReport(u"List"_s, records->records);
        QVERIFY(content);
        if (found > 0)
            content->setCoverSizes(records->coverSizes);
        CoverReader reader(t.store().filePath());
        CoverPictures covers(&reader, ReportBuilder::kViewWidth / 6);
        ReportPages pages(*content, covers, true);
        // As a whole document is drawn: covers decoded ahead on another thread.
        pages.setDecodeAhead(true);
        QStringList texts;
        QList<QImage> images;
        QVERIFY(pages.layOut([&](const ReportPage &page) {
            texts.append(page.text());
            images.append(drawn(page, 300));
            return true;
        }));

        const auto starts = found == 2 ? whileReading.pages(*content) : std::nullopt;
        QCOMPARE(starts.has_value(), found == 2);
        PagedReport report = starts ? PagedReport(std::move(content).value(), t.store().filePath(), *starts)
                                    : PagedReport(std::move(content).value(), t.store().filePath());
        if (!starts) {
            QCOMPARE(report.pageCount(), 1); // the first page is known before the layout
            QList<qint64> counted;
            QVERIFY(report.paginate([&counted](qint64 done, qint64 total) {
                counted.append(done);
                return total == 45;
            }));
            QCOMPARE(counted.constLast(), 45);
            QVERIFY(std::is_sorted(counted.cbegin(), counted.cend()));
        }
        QCOMPARE(report.pageCount(), texts.size());
        for (int page = texts.size() - 1; page >= 0; --page) {
            QCOMPARE(report.text(page), texts.at(page));
            QCOMPARE(report.render(page, 300), images.at(page));
        }
        QVERIFY(report.text(0).startsWith(u"Complete List of Vinyl\n"_s));
        QVERIFY(report.text(0).contains(u'\n' + kPicture + u"   "_s + kPicture + u'\n'));
        QCOMPARE(report.render(1, 300).size(), QSize(300, 424));
        QVERIFY(report.render(texts.size(), 300).isNull());
    }

    // A PDF file says what it is and what made it in its document information, as a viewer's
    // title bar and document properties show it. Records that share a cover (copies of an album,
    // a picture used for many) print the one picture, which the document holds once; distinct
    // covers each have theirs.
    void pdfFilesNameThemselvesAndHoldEachPictureOnce_data()
    {
        QTest::addColumn<bool>("filteredList");
        QTest::addColumn<bool>("shared");
        QTest::addColumn<int>("pictures");
        QTest::addColumn<QString>("title");
        QTest::newRow("filtered list") << true << true << 2 << u"Filtered list"_s;
        QTest::newRow("printed report, one front and one back for all") << false << true << 2 << u"Collection report"_s;
        QTest::newRow("printed report, every record its own") << false << false << 60 << u"Collection report"_s;
    }

    void pdfFilesNameThemselvesAndHoldEachPictureOnce()
    {
        QFETCH(bool, filteredList);
        QFETCH(bool, shared);
        QFETCH(int, pictures);
        QFETCH(QString, title);
        QList<Vinyl> list;
        for (int i = 0; i < 30; ++i) {
            Vinyl v = full();
            if (!shared) {
                v.frontImage = pngBytes(60 + i, 60);
                v.backImage = pngBytes(60, 30 + i);
            }
            list.append(v);
        }
        const auto content = filteredList ? ReportContent::filteredList(BreakdownKinds::Artist, list)
                                          : ReportContent::printedReport(u"List"_s, list);
        QVERIFY(content);
        const QString path = m_app.dataDir() + u"/info.pdf"_s;
        QVERIFY(ReportPdf::write(*content, path, nullptr));
        QCOMPARE(fileBytes(path).count("/Subtype /Image"), pictures);
        const QString pdfinfo = QStandardPaths::findExecutable(u"pdfinfo"_s);
        QVERIFY2(!pdfinfo.isEmpty(), "pdfinfo (poppler-utils, scripts/install-deps) is missing");
        QProcess info;
        info.start(pdfinfo, {u"-enc"_s, u"UTF-8"_s, path});
        QVERIFY(info.waitForFinished());
        QCOMPARE(info.exitCode(), 0);
        QMap<QString, QString> fields;
        for (const QString &line : QString::fromUtf8(info.readAllStandardOutput()).split(u'\n'))
            fields.insert(line.section(u':', 0, 0), line.section(u':', 1).trimmed());
        QCOMPARE(fields.value(u"Title"_s), title);
        QCOMPARE(fields.value(u"Creator"_s), Version::nameAndNumber());
        QVERIFY(fields.value(u"Creator"_s).startsWith(u"Platterbox "_s));
    }

    void cancelledWriteLeavesNoFile_data()
    {
        QTest::addColumn<QByteArray>("before"); // the file's content before; null: no file
        QTest::newRow("no file appears") << QByteArray();
        QTest::newRow("an older file stays as it was") << QByteArray("older document");
    }

    void cancelledWriteLeavesNoFile()
    {
        QFETCH(QByteArray, before);
        const QString path = m_app.dataDir() + u"/cancelled.pdf"_s;
        QFile::remove(path);
        if (!before.isNull())
            QVERIFY(writeBytes(path, before));
        const auto content = ReportContent::printedReport(u"List"_s, QList<Vinyl>(30, full()));
        QVERIFY(content);
        ConsoleCapture console;
        QVERIFY(!ReportPdf::write(*content, path, nullptr, [](qint64, qint64) { return false; }));
        QVERIFY(console.lines().isEmpty());
        QCOMPARE(QFile::exists(path), !before.isNull());
        QCOMPARE(fileBytes(path), before.isNull() ? QByteArray() : before);
    }

private:
    TestApp m_app;
};

QTEST_MAIN(TestReportBuilder)
#include "tst_reportbuilder.moc"
