#pragma once

#include "reports/reportbuilder.h"
#include "store/backgroundjob.h"
#include "store/result.h"

#include <QFuture>
#include <QImage>
#include <QList>
#include <QMutex>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class CoverPictures;
class QPainter;
class QTextLayout;
class ReportTypesetter;

// Where a page of a report starts: the record (-1 holds the title block, records are numbered
// from 0), the block in it (a record's text lines, its covers, then a blank line) and the
// line of that block (a long text wraps over several lines, and a page may begin among them).
struct PageStart
{
    int record = -1;
    int block = 0;
    int line = 0;
    friend bool operator==(const PageStart &, const PageStart &) = default;
};

// One page of a report, laid out: its lines, each placed from the page's top-left corner in
// points. A page is drawn while the ReportPages that made it lives.
class ReportPage
{
public:
    [[nodiscard]] const PageStart &start() const { return m_start; }
    // Draws the page with its top-left corner at the painter's origin, in points.
    void draw(QPainter &painter) const;
    // The text on the page: one line per block (U+FFFC for a cover), as a test reads it.
    [[nodiscard]] QString text() const;
    // Each line with its distance from the top of the page: "14.00 Artist: ABBA".
    [[nodiscard]] QStringList placedLines() const;

private:
    friend class ReportPages;
    struct Cover
    {
        QRectF rect;
        QImage image;
    };
    struct Line
    {
        int record = 0;
        int block = 0;
        qreal y = 0;
        qreal ascent = 0;
        bool title = false;
        // What the line shows: its part of the block's text, or U+FFFC for each cover.
        QString text;
        // A text that wraps keeps its layout, shared by its lines; a text on one line is
        // shaped when it is drawn.
        std::shared_ptr<QTextLayout> wrapped;
        int lineInBlock = 0;
        QList<Cover> covers;
    };

    PageStart m_start;
    QList<Line> m_lines;
    const ReportTypesetter *m_typesetter = nullptr;
};

// The heights of a record's lines, block by block: all that pages are made of.
struct RecordMeasure
{
    QList<int> lineCounts; // of each block
    QList<double> heights; // of each line, the blocks' lines one after the other
};

// Lays a report out on A4 pages without margins (the text keeps an inset of its own), one
// page after the other, holding only the page being made. Lines are measured with the fonts'
// metrics, as the text engine would place them in one long document: every line of a record
// has the line height of its font, a cover line the height of its tallest cover, and a text
// is shaped only when it might not fit on one line, or when it is drawn. A record's covers are
// read when its cover line is placed.
class ReportPages
{
public:
    // decodePictures false reads only the covers' sizes: enough to know where pages break.
    ReportPages(const ReportContent &content, CoverPictures &covers, bool decodePictures);
    ~ReportPages();
    ReportPages(const ReportPages &) = delete;
    ReportPages &operator=(const ReportPages &) = delete;

    // Called with each page in turn; returning false stops the layout.
    using PageSink = std::function<bool(const ReportPage &page)>;
    // Lays the pages out from `from` (the first page of the report by default). Progress
    // counts the records written; a cancel stops it between two records without an error.
    Result<void> layOut(const PageSink &sink, const PageStart &from = {}, const BackgroundJob::Progress &progress = {});

    // Decodes the covers of the next records on another thread while this one lays pages out
    // and draws them: for a whole document, not for a page drawn on its own.
    void setDecodeAhead(bool ahead) { m_decodeAhead = ahead; }

    // The record's lines measured (-1: the title block; recordCount(): the closing blank line).
    [[nodiscard]] Result<RecordMeasure> measure(int record);
    // Where each page starts, for records measured one after the other (the title block first,
    // the closing blank line last): the pages layOut() makes.
    [[nodiscard]] QList<PageStart> pagesOf(const QList<RecordMeasure> &measures) const;

private:
    struct Block;

    // The blocks of a record (-1: the title block; recordCount(): the blank line closing the
    // report), each with its lines measured.
    Result<void> measureRecord(int record, QList<Block> &blocks);
    // Keeps the covers of the records after `record` decoding ahead.
    void decodeAheadOf(int record);

    const ReportContent &m_content;
    CoverPictures &m_covers;
    bool m_decodePictures;
    bool m_decodeAhead = false;
    int m_decodedUntil = 0; // the records before it are decoding or decoded ahead
    std::unique_ptr<ReportTypesetter> m_typesetter;
};

// A report laid out once, whose pages can then be drawn again one at a time from any thread
// (the printed-report screen shows them as pictures). Keeps where each page starts, not the pages.
class PagedReport
{
public:
    PagedReport(ReportContent content, QString storeFilePath);
    // A report whose pages were laid out already (see PagesWhileReading).
    PagedReport(ReportContent content, QString storeFilePath, QList<PageStart> pages);

    [[nodiscard]] const ReportContent &content() const { return m_content; }
    // Pages found so far. The first is known from the start (a report's first page begins with
    // its title), so it can be drawn before the rest is laid out.
    [[nodiscard]] int pageCount() const;
    // Lays the whole report out (reading only the covers' sizes), recording where each page
    // starts as it goes; run off the UI thread.
    Result<void> paginate(const BackgroundJob::Progress &progress);
    // A page drawn on white, `width` pixels wide; null when there is no such page (yet).
    [[nodiscard]] QImage render(int page, int width) const;
    [[nodiscard]] QString text(int page) const;

private:
    // Lays out the page and hands it to `use`; false when there is no such page.
    bool withPage(int page, const std::function<void(const ReportPage &)> &use) const;

    const ReportContent m_content;
    const QString m_storeFilePath;
    mutable QMutex m_mutex;
    QList<PageStart> m_pages;
};

// Lays a printed report's pages out while its records are read: batches of records are
// measured on other threads as they arrive, and the pages are made of the measures once the
// last record is in. The pages are those PagedReport::paginate() finds, without waiting for
// the reading to end before laying out.
class PagesWhileReading
{
public:
    // Records are measured in batches of `batch`.
    explicit PagesWhileReading(QString originScreen, int batch = 256);
    ~PagesWhileReading();
    PagesWhileReading(const PagesWhileReading &) = delete;
    PagesWhileReading &operator=(const PagesWhileReading &) = delete;

    // The next record of the report, with its covers' stored sizes.
    void add(const Vinyl &record, const CoverSizes &coverSizes);
    // Where each page of the report of the records added starts; nullopt when they could not
    // be measured (the report is then laid out as any other).
    [[nodiscard]] std::optional<QList<PageStart>> pages(const ReportContent &content);

private:
    void measureBatch();

    const QString m_origin;
    const int m_batchSize;
    QList<Vinyl> m_batch;
    QList<CoverSizes> m_batchSizes;
    QList<QFuture<std::optional<QList<RecordMeasure>>>> m_measuring;
};
