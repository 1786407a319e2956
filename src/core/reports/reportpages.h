#pragma once

#include "reports/reportbuilder.h"
#include "store/backgroundjob.h"
#include "store/result.h"

#include <QImage>
#include <QList>
#include <QMutex>
#include <QString>

#include <functional>
#include <memory>

class CoverPictures;
class QPainter;
class QTextDocument;

// Where a page of a report starts: the block at the top of the piece of document the page
// was laid out in (record -1 holds the title block, records are numbered from 0) and how
// many pages into that piece the page is.
struct PageStart
{
    int record = -1;
    int block = 0;
    int pagesIn = 0;
    friend bool operator==(const PageStart &, const PageStart &) = default;
};

// Lays a report out on A4 pages without margins (the text keeps an inset of its own), one
// page after the other, holding only the pages being made. The document is written in small
// pieces, each a QTextDocument that starts at the top of a page and lives for a page or two;
// a record's covers are read when its cover line is written and dropped with the piece.
class ReportPages
{
public:
    // decodePictures false reads only the covers' sizes: enough to know where pages break.
    ReportPages(const ReportContent &content, CoverPictures &covers, bool decodePictures);
    ~ReportPages();
    ReportPages(const ReportPages &) = delete;
    ReportPages &operator=(const ReportPages &) = delete;

    // Called with each page in turn: the piece it is in, its number there and where it
    // starts. Returning false stops the layout.
    using PageSink = std::function<bool(QTextDocument &piece, int pageInPiece, const PageStart &start)>;
    // Lays the pages out from `from` (the first page of the report by default). Progress
    // counts the records written; a cancel stops it between two records without an error.
    Result<void> layOut(const PageSink &sink, const PageStart &from = {}, const BackgroundJob::Progress &progress = {});

    // Decodes the covers of the next records on another thread while this one lays pages out
    // and draws them: for a whole document, not for a page drawn on its own.
    void setDecodeAhead(bool ahead) { m_decodeAhead = ahead; }

    // Draws a page of a piece with the page's top-left corner at the painter's origin, in points.
    static void draw(QTextDocument &piece, int pageInPiece, QPainter &painter);
    // The text on a page: one line per block (U+FFFC for a cover), as a test reads it.
    [[nodiscard]] static QString text(QTextDocument &piece, int pageInPiece);

private:
    class Piece;
    class LayoutDevice;
    struct Position
    {
        int record;
        int block;
    };

    [[nodiscard]] Result<int> blockCount(int record);
    // The block after `at`; false at the end of the document.
    [[nodiscard]] Result<bool> advance(Position &at);
    Result<void> write(Piece &piece, const Position &at);
    // Writes the blocks after `at` to the end of their record; false at the end of the report.
    Result<bool> writeRestOfRecord(Piece &piece, Position &at);
    // Keeps the covers of the records after `record` decoding ahead.
    void decodeAheadOf(int record);

    const ReportContent &m_content;
    CoverPictures &m_covers;
    bool m_decodePictures;
    bool m_decodeAhead = false;
    int m_decodedUntil = 0; // the records before it are decoding or decoded ahead
    std::unique_ptr<LayoutDevice> m_device;
    // The lines of the record being written.
    int m_linesOf = -2;
    QStringList m_lines;
};

// A report laid out once, whose pages can then be drawn again one at a time from any thread
// (the printed-report screen shows them as pictures). Keeps where each page starts, not the pages.
class PagedReport
{
public:
    PagedReport(ReportContent content, QString storeFilePath);

    [[nodiscard]] const ReportContent &content() const { return m_content; }
    // Pages found so far.
    [[nodiscard]] int pageCount() const;
    // Lays the whole report out (reading only the covers' sizes), recording where each page
    // starts as it goes; run off the UI thread.
    Result<void> paginate(const BackgroundJob::Progress &progress);
    // A page drawn on white, `width` pixels wide; null when there is no such page (yet).
    [[nodiscard]] QImage render(int page, int width) const;
    [[nodiscard]] QString text(int page) const;

private:
    // Lays out the piece of `page` and hands it to `use`; false when there is no such page.
    bool withPage(int page, const std::function<void(QTextDocument &, int)> &use) const;

    const ReportContent m_content;
    const QString m_storeFilePath;
    mutable QMutex m_mutex;
    QList<PageStart> m_pages;
};
