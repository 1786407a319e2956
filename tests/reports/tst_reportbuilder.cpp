#include "breakdown.h"
#include "coverpictures.h"
#include "reportbuilder.h"
#include "reporttexts.h"
#include "testsupport.h"

#include <QBuffer>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Vinyl)

namespace {
const QDateTime kMarch5 = QDateTime(QDate(1975, 3, 5), QTime(0, 0));
const QString kPicture = QString(QChar::ObjectReplacementCharacter);

QByteArray pngBytes(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
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

QStringList lines(const QTextDocument &document)
{
    return document.toPlainText().split(u'\n');
}
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
        CoverPictures covers(m_app.store(), 65);
        QTextDocument document;
        QVERIFY(ReportBuilder::buildFilteredList(document, BreakdownKinds::Artist, {vinyl}, covers));
        QCOMPARE(lines(document), expected);
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
        CoverPictures covers(m_app.store(), 65);
        QTextDocument document;
        const auto built = ReportBuilder::buildFilteredList(document, *kinds[group], {bare}, covers);
        QVERIFY(!built);
        QVERIFY(built.errorMessage().contains(u"has no"_s));
    }

    void titleBlockIsCentredArialAndLinesAreLeftSansSerif()
    {
        CoverPictures covers(m_app.store(), 65);
        QTextDocument document;
        QVERIFY(ReportBuilder::buildFilteredList(document, BreakdownKinds::Year, {full()}, covers));
        const QTextBlock title = document.begin();
        QCOMPARE(title.blockFormat().alignment(), Qt::AlignHCenter);
        QCOMPARE(title.begin().fragment().charFormat().font().family(), u"Arial"_s);
        QCOMPARE(title.begin().fragment().charFormat().font().pointSizeF(), 21.0);
        const QTextBlock line = title.next().next();
        QCOMPARE(line.text(), u"Artist: ABBA"_s);
        QVERIFY(!(line.blockFormat().alignment() & Qt::AlignHCenter));
        QCOMPARE(line.begin().fragment().charFormat().font().pointSizeF(), 12.0);
        QCOMPARE(line.begin().fragment().charFormat().foreground().color(), QColor(Qt::black));
    }

    void amountsLine_data()
    {
        QTest::addColumn<int>("quantity");
        QTest::addColumn<float>("cost");
        QTest::addColumn<float>("value");
        QTest::addColumn<QString>("line");
        QTest::newRow("two copies") << 2 << 12.5f << 10.5f << u"Qty: 2 - Cost: 12.5 - Total Value (Qty * Value): $21.00"_s;
        QTest::newRow("nothing known") << 0 << 0.0f << 0.0f << u"Qty: 0 - Cost: 0.0 - Total Value (Qty * Value): $0.00"_s;
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
        QCOMPARE(ReportBuilder::amountsLine(v), line);
    }

    void reportLineOrderFollowsOrigin_data()
    {
        QTest::addColumn<QString>("origin");
        QTest::addColumn<QStringList>("expected");
        const QString artist = u"Artist: ABBA"_s, album = u"Album Name: Arrival"_s, date = u"Release Date: Mar 5, 1975"_s,
                      producer = u"Producer: Benny"_s, label = u"Record Label: Polar"_s,
                      amounts = u"Qty: 2 - Cost: 12.5 - Total Value (Qty * Value): $21.00"_s,
                      pictures = kPicture + u"   "_s + kPicture;
        QTest::newRow("List") << u"List"_s
                              << QStringList{u"Complete List of Vinyl"_s, QString(), artist, album, date, producer, label,
                                             amounts, pictures, QString(), QString()};
        QTest::newRow("ArtistBreakdown") << u"ArtistBreakdown"_s
                                         << QStringList{u"Vinyl's Filtered by Artist: ABBA"_s, QString(), artist, album,
                                                        date, producer, label, amounts, pictures, QString(), QString()};
        QTest::newRow("YearBreakdown") << u"YearBreakdown"_s
                                       << QStringList{u"Vinyl's Filtered by Release Date: Mar 5, 1975"_s, QString(), date,
                                                      artist, album, producer, label, amounts, pictures, QString(),
                                                      QString()};
        QTest::newRow("ProducerBreakdown") << u"ProducerBreakdown"_s
                                           << QStringList{u"Vinyl's Filtered by Producer: Benny"_s, QString(), producer,
                                                          artist, album, date, label, amounts, pictures, QString(),
                                                          QString()};
        QTest::newRow("LabelBreakdown: label line twice")
            << u"LabelBreakdown"_s
            << QStringList{u"Vinyl's Filtered by Record Label: Polar"_s, QString(), label, artist, album, date, producer,
                           label, amounts, pictures, QString(), QString()};
    }

    void reportLineOrderFollowsOrigin()
    {
        QFETCH(QString, origin);
        QFETCH(QStringList, expected);
        CoverPictures covers(m_app.store(), 65);
        QTextDocument document;
        QVERIFY(ReportBuilder::buildReport(document, origin, {full()}, covers));
        QCOMPARE(lines(document), expected);
        QCOMPARE(document.begin().begin().fragment().charFormat().font().pointSizeF(), 17.0);
    }

    void reportOfSparseRecordKeepsOnlyWhatIsKnown()
    {
        CoverPictures covers(m_app.store(), 65);
        QTextDocument document;
        QVERIFY(ReportBuilder::buildReport(document, u"List"_s, {sparse(), sparse()}, covers));
        const QStringList record{u"Artist: ABBA"_s, u"Album Name: Arrival"_s,
                                 u"Qty: 0 - Cost: 0.0 - Total Value (Qty * Value): $0.00"_s, QString(), QString()};
        const QStringList expected = QStringList{u"Complete List of Vinyl"_s, QString()} + record + record + QStringList{QString()};
        QCOMPARE(lines(document), expected);
    }

    void emptyListIsAnErrorNotACrash()
    {
        CoverPictures covers(m_app.store(), 65);
        QTextDocument document;
        QCOMPARE(ReportBuilder::buildReport(document, u"List"_s, {}, covers).errorMessage(), ReportTexts::kEmptyMessage);
        QCOMPARE(ReportBuilder::buildFilteredList(document, BreakdownKinds::Label, {}, covers).errorMessage(),
                 ReportTexts::kEmptyMessage);
    }

    void coversAreScaledToTheirPrintedWidth_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QSize>("size");
        QTest::newRow("large square") << pngBytes(600, 600) << QSize(130, 130);
        QTest::newRow("wide") << pngBytes(400, 200) << QSize(130, 65);
        QTest::newRow("small is enlarged") << pngBytes(20, 40) << QSize(130, 260);
        QTest::newRow("not a picture") << QByteArray("garbage") << QSize();
        QTest::newRow("none") << QByteArray() << QSize();
    }

    void coversAreScaledToTheirPrintedWidth()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QSize, size);
        CoverPictures covers(m_app.store(), 65);
        Vinyl v;
        v.imagesLoaded = true;
        v.frontImage = bytes;
        const QImage image = covers.cover(v, CoverSide::Front);
        QCOMPARE(image.isNull() ? QSize() : image.size(), size);
    }

private:
    TestApp m_app;
};

QTEST_MAIN(TestReportBuilder)
#include "tst_reportbuilder.moc"
