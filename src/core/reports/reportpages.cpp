#include "reports/reportpages.h"

#include "reports/coverpictures.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;
using ReportBuilder::kPageHeight;
using ReportBuilder::kPageWidth;

namespace {

QTextCharFormat bodyFormat()
{
    QFont font(u"sans-serif"_s);
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(12);
    QTextCharFormat format;
    format.setFont(font);
    format.setForeground(Qt::black);
    return format;
}

QTextCharFormat titleFormat(int pointSize)
{
    QFont font(u"Arial"_s);
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(pointSize);
    QTextCharFormat format;
    format.setFont(font);
    format.setForeground(Qt::black);
    return format;
}

QTextBlockFormat aligned(Qt::Alignment alignment)
{
    QTextBlockFormat format;
    format.setAlignment(alignment);
    return format;
}

// Stands in for a cover while only sizes are read: the layout needs a picture, not its pixels.
const QImage &placeholderPicture()
{
    static const QImage picture = [] {
        QImage image(1, 1, QImage::Format_RGB32);
        image.fill(Qt::white);
        return image;
    }();
    return picture;
}

int pageOf(qreal y)
{
    return int(std::floor(y / kPageHeight));
}

// The page the last line laid out so far is on (-1 before any).
int lastLinePage(QTextDocument &document)
{
    const QTextBlock block = document.lastBlock();
    document.documentLayout()->blockBoundingRect(block); // lays the document out up to it
    const QTextLayout *layout = block.layout();
    if (!layout || layout->lineCount() == 0)
        return -1;
    return pageOf(layout->position().y() + layout->lineAt(layout->lineCount() - 1).y());
}

// The block whose first line is the first line of `page`; none when the page starts inside a
// block that began on an earlier page, or has no lines yet.
std::optional<int> blockAtPageTop(QTextDocument &document, int page)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextLayout *layout = block.layout();
        for (int i = 0; layout && i < layout->lineCount(); ++i) {
            const int linePage = pageOf(layout->position().y() + layout->lineAt(i).y());
            if (linePage >= page) {
                if (i == 0 && linePage == page)
                    return block.blockNumber();
                return std::nullopt;
            }
        }
    }
    return std::nullopt;
}

} // namespace

// The device every piece is laid out for: an A4 PDF page at one unit per point. Nothing is
// ever drawn on it; pages are drawn on the real device with the same measures.
class ReportPages::LayoutDevice
{
public:
    LayoutDevice() : m_writer(&m_sink)
    {
        m_writer.setResolution(72);
        m_writer.setPageLayout(QPageLayout(QPageSize(QSizeF(kPageWidth, kPageHeight), QPageSize::Point),
                                           QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    }
    QPaintDevice *device() { return &m_writer; }

private:
    QBuffer m_sink;
    QPdfWriter m_writer;
};

class ReportPages::Piece
{
public:
    explicit Piece(QPaintDevice *device)
    {
        document.setUndoRedoEnabled(false);
        document.documentLayout()->setPaintDevice(device);
        // The pages have no margins; the text keeps a small inset of its own so no printer cuts it.
        document.setDocumentMargin(ReportBuilder::kTextInset);
        document.setPageSize(QSizeF(kPageWidth, kPageHeight));
    }

    QTextDocument document;
    QTextCursor cursor{&document};
    QList<Position> blocks; // where each block of the piece is in the report
    int pictures = 0;
};

ReportPages::ReportPages(const ReportContent &content, CoverPictures &covers, bool decodePictures)
    : m_content(content), m_covers(covers), m_decodePictures(decodePictures), m_device(std::make_unique<LayoutDevice>())
{
}

ReportPages::~ReportPages() = default;

Result<int> ReportPages::blockCount(int record)
{
    if (record < 0)
        return 2; // the title and a blank line
    if (record >= m_content.recordCount())
        return 1; // the empty line after the last record
    if (m_linesOf != record) {
        auto lines = m_content.lines(record);
        if (!lines)
            return lines.error();
        m_lines = std::move(lines).value();
        m_linesOf = record;
    }
    return int(m_lines.size()) + 2; // the lines, the covers and a blank line
}

Result<bool> ReportPages::advance(Position &at)
{
    const auto count = blockCount(at.record);
    if (!count)
        return count.error();
    if (at.block + 1 < *count) {
        ++at.block;
        return true;
    }
    if (at.record >= m_content.recordCount())
        return false;
    ++at.record;
    at.block = 0;
    return true;
}

Result<void> ReportPages::write(Piece &piece, const Position &at)
{
    QTextCursor &cursor = piece.cursor;
    const bool inTitle = at.record < 0;
    const QTextCharFormat body = bodyFormat();
    if (piece.blocks.isEmpty()) {
        // A piece starting inside the report gives its first block the formats it has there.
        if (!inTitle) {
            cursor.setBlockFormat(aligned(Qt::AlignLeft));
            cursor.setBlockCharFormat(body);
        }
    } else {
        // Ends the block before, as the line break closing it would.
        const bool afterTitle = piece.blocks.constLast().record < 0;
        cursor.insertBlock(cursor.blockFormat(), afterTitle ? titleFormat(m_content.titlePointSize()) : body);
        if (afterTitle && !inTitle)
            cursor.setBlockFormat(aligned(Qt::AlignLeft));
    }
    piece.blocks.append(at);

    if (inTitle) {
        if (at.block == 0) {
            cursor.setBlockFormat(aligned(Qt::AlignHCenter));
            cursor.insertText(m_content.title(), titleFormat(m_content.titlePointSize()));
        }
        return {};
    }
    if (at.record >= m_content.recordCount())
        return {};
    const auto count = blockCount(at.record);
    if (!count)
        return count.error();
    const int lines = int(m_lines.size());
    if (at.block < lines) {
        cursor.insertText(m_lines.at(at.block), body);
    } else if (at.block == lines) {
        if (m_decodePictures && m_decodeAhead)
            decodeAheadOf(at.record);
        const Vinyl &vinyl = m_content.record(at.record);
        for (CoverSide side : {CoverSide::Front, CoverSide::Back}) {
            const CoverPicture picture = m_covers.cover(vinyl, side, m_decodePictures);
            if (!picture.exists())
                continue;
            const QString name = u"cover:%1"_s.arg(piece.pictures++);
            piece.document.addResource(QTextDocument::ImageResource, QUrl(name),
                                       m_decodePictures ? picture.image : placeholderPicture());
            QTextImageFormat format;
            format.setName(name);
            format.setWidth(m_covers.width());
            format.setHeight(m_covers.width() * picture.size.height() / picture.size.width());
            cursor.insertImage(format);
            if (side == CoverSide::Front || m_content.blanksAfterBackCover())
                cursor.insertText(u"   "_s, body);
        }
    }
    return {};
}

void ReportPages::decodeAheadOf(int record)
{
    // Two batches ahead: one decoding while the other is drawn.
    constexpr int kBatch = 24;
    const int until = std::min(m_content.recordCount(), record + 2 * kBatch);
    m_decodedUntil = std::max(m_decodedUntil, record);
    while (m_decodedUntil < until) {
        const int end = std::min(m_decodedUntil + kBatch, m_content.recordCount());
        QList<const Vinyl *> batch;
        for (int i = m_decodedUntil; i < end; ++i)
            batch.append(&m_content.record(i));
        m_covers.decodeAhead(batch);
        m_decodedUntil = end;
    }
}

Result<bool> ReportPages::writeRestOfRecord(Piece &piece, Position &at)
{
    // One edit: the piece is laid out once for the whole record, not once per line.
    piece.cursor.beginEditBlock();
    Result<bool> more = true;
    for (;;) {
        more = advance(at);
        if (!more || !*more)
            break;
        if (auto written = write(piece, at); !written) {
            more = written.error();
            break;
        }
        const auto count = blockCount(at.record);
        if (!count) {
            more = count.error();
            break;
        }
        if (at.block + 1 >= *count)
            break;
    }
    piece.cursor.endEditBlock();
    return more;
}

Result<void> ReportPages::layOut(const PageSink &sink, const PageStart &from, const BackgroundJob::Progress &progress)
{
    const int records = m_content.recordCount();
    if (from.record < -1 || from.record > records || from.block < 0 || from.pagesIn < 0)
        return Error{u"No such page."_s};
    Position at{from.record, from.block};
    Position start = at;
    auto piece = std::make_unique<Piece>(m_device->device());
    if (auto written = write(*piece, at); !written)
        return written;
    int page = from.pagesIn;
    bool ended = false;
    for (;;) {
        // A page is complete once a line lies below it.
        while (!ended && lastLinePage(piece->document) <= page) {
            if (progress && !progress(std::clamp(at.record, 0, records), records))
                return {};
            const auto more = writeRestOfRecord(*piece, at);
            if (!more)
                return more.error();
            ended = !*more;
        }
        const int lastPage = ended ? piece->document.pageCount() - 1 : page;
        for (; page <= lastPage; ++page) {
            if (!sink(piece->document, page, PageStart{start.record, start.block, page}))
                return {};
        }
        if (ended) {
            if (progress)
                progress(records, records);
            return {};
        }
        // Pages already handed over are dropped with their piece; the next piece starts at the
        // top of the next page, so it lays out exactly as one long document would.
        if (const auto top = blockAtPageTop(piece->document, page)) {
            start = at = piece->blocks.at(*top);
            piece = std::make_unique<Piece>(m_device->device());
            if (auto written = write(*piece, at); !written)
                return written;
            page = 0;
        }
    }
}

void ReportPages::draw(QTextDocument &piece, int pageInPiece, QPainter &painter)
{
    const QRectF rect(0, pageInPiece * kPageHeight, kPageWidth, kPageHeight);
    painter.save();
    painter.translate(0, -rect.top());
    piece.drawContents(&painter, rect);
    painter.restore();
}

QString ReportPages::text(QTextDocument &piece, int pageInPiece)
{
    QStringList lines;
    piece.documentLayout()->documentSize(); // lays everything out
    for (QTextBlock block = piece.begin(); block.isValid(); block = block.next()) {
        const QTextLayout *layout = block.layout();
        QString line;
        bool onPage = false;
        for (int i = 0; layout && i < layout->lineCount(); ++i) {
            const QTextLine textLine = layout->lineAt(i);
            if (pageOf(layout->position().y() + textLine.y()) != pageInPiece)
                continue;
            onPage = true;
            line += block.text().mid(textLine.textStart(), textLine.textLength());
        }
        if (onPage)
            lines.append(line);
    }
    return lines.join(u'\n');
}

PagedReport::PagedReport(ReportContent content, QString storeFilePath)
    : m_content(std::move(content)), m_storeFilePath(std::move(storeFilePath))
{
}

int PagedReport::pageCount() const
{
    QMutexLocker lock(&m_mutex);
    return int(m_pages.size());
}

Result<void> PagedReport::paginate(const BackgroundJob::Progress &progress)
{
    {
        QMutexLocker lock(&m_mutex);
        m_pages.clear();
    }
    CoverReader reader(m_storeFilePath);
    CoverPictures covers(&reader, ReportBuilder::kViewWidth / 6);
    ReportPages pages(m_content, covers, false);
    return pages.layOut(
        [this](QTextDocument &, int, const PageStart &start) {
            QMutexLocker lock(&m_mutex);
            m_pages.append(start);
            return true;
        },
        {}, progress);
}

bool PagedReport::withPage(int page, const std::function<void(QTextDocument &, int)> &use) const
{
    PageStart start;
    {
        QMutexLocker lock(&m_mutex);
        if (page < 0 || page >= m_pages.size())
            return false;
        start = m_pages.at(page);
    }
    CoverReader reader(m_storeFilePath);
    CoverPictures covers(&reader, ReportBuilder::kViewWidth / 6);
    ReportPages pages(m_content, covers, true);
    bool found = false;
    const auto laidOut = pages.layOut(
        [&](QTextDocument &piece, int pageInPiece, const PageStart &) {
            use(piece, pageInPiece);
            found = true;
            return false;
        },
        start);
    return laidOut && found;
}

QImage PagedReport::render(int page, int width) const
{
    QImage image;
    if (width <= 0)
        return image;
    withPage(page, [&](QTextDocument &piece, int pageInPiece) {
        const double scale = width / kPageWidth;
        image = QImage(width, int(std::lround(kPageHeight * scale)), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
        painter.scale(scale, scale);
        ReportPages::draw(piece, pageInPiece, painter);
    });
    return image;
}

QString PagedReport::text(int page) const
{
    QString text;
    withPage(page, [&](QTextDocument &piece, int pageInPiece) { text = ReportPages::text(piece, pageInPiece); });
    return text;
}
