#include "reports/reportpages.h"

#include "reports/coverpictures.h"

#include <QBuffer>
#include <QCache>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>
#include <QTextLayout>
#include <QtConcurrent/QtConcurrentRun>

#include <array>
#include <cmath>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using ReportBuilder::kPageHeight;
using ReportBuilder::kPageWidth;

namespace {

const QString kPicture = QString(QChar::ObjectReplacementCharacter);
const QString kCoverGap = u"   "_s;

// The text engine measures in 64ths of a point; a page's height and width are rounded to them.
double toFixed(double points)
{
    return std::round(points * 64) / 64;
}

// The inset and the covers are given in pixels of the phone view, which the text engine prints
// at 96 to the inch: 0.75 of a point, rounded to whole points.
constexpr double kPointsPerViewPixel = 72.0 / 96.0;

QFont reportFont(const QString &family, double pointSize)
{
    QFont font(family);
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(pointSize);
    return font;
}

// A text block's lines break where the text engine breaks them in a document.
QTextOption documentTextOption(Qt::Alignment alignment)
{
    static const QTextOption option = QTextDocument().defaultTextOption();
    QTextOption aligned = option;
    aligned.setAlignment(alignment);
    return aligned;
}

// A line of a stored text never breaks a block: line and paragraph breaks in it break the line.
QString withLineBreaks(QString text)
{
    text.replace(u"\r\n"_s, QString(QChar::LineSeparator));
    for (QChar &c : text) {
        if (c == u'\n' || c == u'\r' || c == QChar::ParagraphSeparator)
            c = QChar::LineSeparator;
    }
    return text;
}

// The device every page is measured for: an A4 PDF page at one unit per point. Nothing is ever
// drawn on it; pages are drawn on the real device with the same measures.
class LayoutDevice
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

// Places lines one below the other on pages: a line that would reach below the text's bottom
// begins the next page, unless it is the first line of its page.
class PageFlow
{
public:
    PageFlow(double top, double bottom) : m_top(top), m_bottom(bottom), m_y(top) {}

    // Places a line of this height; true when it begins a new page.
    bool place(double height)
    {
        const bool breaks = !m_empty && m_y + height > m_bottom;
        if (breaks)
            m_y = m_top;
        m_lineTop = m_y;
        m_y += height;
        m_empty = false;
        return breaks;
    }
    [[nodiscard]] double lineTop() const { return m_lineTop; }

private:
    const double m_top;
    const double m_bottom;
    double m_y;
    double m_lineTop = 0;
    bool m_empty = true;
};

} // namespace

// The measures of a report's page and its two fonts (12-point sans-serif, black, for the
// records; the title in Arial), taken once for the whole report.
class ReportTypesetter
{
public:
    explicit ReportTypesetter(int titlePointSize)
        : m_body(reportFont(u"sans-serif"_s, 12)), m_title(reportFont(u"Arial"_s, titlePointSize)),
          m_bodyMetrics(m_body, m_device.device()), m_titleMetrics(m_title, m_device.device())
    {
        m_advances.fill(-1);
        m_spaces = m_bodyMetrics.horizontalAdvance(kCoverGap);
    }

    [[nodiscard]] double inset() const { return m_inset; }
    [[nodiscard]] double textWidth() const { return m_textWidth; }
    // The text ends a page's line height above its bottom edge at most.
    [[nodiscard]] double bottom() const { return m_pageHeight - m_inset; }
    [[nodiscard]] double contentHeight() const { return m_pageHeight - 2 * m_inset; }
    [[nodiscard]] const QFontMetricsF &metrics(bool title) const { return title ? m_titleMetrics : m_bodyMetrics; }
    [[nodiscard]] double lineHeight(bool title) const
    {
        const QFontMetricsF &m = metrics(title);
        return std::ceil(m.ascent() + m.descent() + std::max(0.0, m.leading()));
    }
    [[nodiscard]] double coverGap() const { return m_spaces; }

    // True when the text certainly fits on one line: a sum of its characters' advances well
    // within the line. Kerning and ligatures move a text's width by far less than the margin;
    // characters other scripts shape, and controls, leave the answer to the text engine.
    [[nodiscard]] bool fitsOnOneLine(const QString &text) const
    {
        double width = 0;
        for (const QChar c : text) {
            const char16_t u = c.unicode();
            if (u < 0x20 || (u >= 0x7F && u < 0xA0) || u >= m_advances.size())
                return false;
            double &advance = m_advances[u];
            if (advance < 0)
                advance = m_bodyMetrics.horizontalAdvance(c);
            width += advance;
        }
        return width <= 0.9 * m_textWidth;
    }

    // The text shaped and broken into lines as the text engine breaks a block, each line placed
    // at the block's top-left corner.
    [[nodiscard]] std::shared_ptr<QTextLayout> layOut(const QString &text, bool title) const
    {
        return std::shared_ptr<QTextLayout>(newLayout(text, title));
    }

    // A record's line of text shaped for drawing. The same lines come back again and again in a
    // long report (the artists, labels and producers of many records): the lines drawn lately are
    // kept shaped, a few thousand of them.
    [[nodiscard]] const QTextLayout &shaped(const QString &text) const
    {
        if (const QTextLayout *known = m_shaped.object(text))
            return *known;
        QTextLayout *layout = newLayout(text, false);
        m_shaped.insert(text, layout);
        return *layout;
    }

private:
    [[nodiscard]] QTextLayout *newLayout(const QString &text, bool title) const
    {
        auto *layout = new QTextLayout(withLineBreaks(text), title ? m_title : m_body, m_device.device());
        layout->setTextOption(documentTextOption(title ? Qt::AlignHCenter : Qt::AlignLeft));
        // The glyphs stay with the layout: it is drawn after it is laid out.
        layout->setCacheEnabled(true);
        layout->beginLayout();
        for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
            line.setLeadingIncluded(true);
            line.setLineWidth(m_textWidth);
            line.setPosition(QPointF(0, 0));
        }
        layout->endLayout();
        return layout;
    }

    mutable LayoutDevice m_device;
    const double m_inset = std::round(ReportBuilder::kTextInset * kPointsPerViewPixel);
    const double m_pageHeight = toFixed(kPageHeight);
    const double m_textWidth = toFixed(kPageWidth) - 2 * m_inset;
    const QFont m_body;
    const QFont m_title;
    const QFontMetricsF m_bodyMetrics;
    const QFontMetricsF m_titleMetrics;
    double m_spaces = 0;
    // The advance of each character of the Latin scripts, measured when first met; -1 before.
    mutable std::array<double, 0x300> m_advances;
    mutable QCache<QString, QTextLayout> m_shaped{4096};
};

// A block measured: its lines' heights and what it shows.
struct ReportPages::Block
{
    bool title = false;
    QString text;
    int lineCount = 1;
    std::shared_ptr<QTextLayout> wrapped;
    // A cover line: each cover placed from the line's left end, their baseline and height.
    bool isCovers = false;
    QList<ReportPage::Cover> covers;
    double ascent = 0;
    double height = 0;

    [[nodiscard]] double lineHeight(int line) const
    {
        return wrapped ? wrapped->lineAt(line).height() : height;
    }
};

void ReportPage::draw(QPainter &painter) const
{
    const ReportTypesetter &t = *m_typesetter;
    painter.save();
    painter.setPen(Qt::black);
    for (const Line &line : m_lines) {
        if (!line.covers.isEmpty()) {
            for (const Cover &cover : line.covers)
                painter.drawImage(cover.rect.translated(t.inset(), line.y + line.ascent), cover.image);
        } else if (line.wrapped) {
            line.wrapped->lineAt(line.lineInBlock).draw(&painter, QPointF(t.inset(), line.y));
        } else if (!line.text.isEmpty()) {
            t.shaped(line.text).lineAt(0).draw(&painter, QPointF(t.inset(), line.y));
        }
    }
    painter.restore();
}

QString ReportPage::text() const
{
    QStringList lines;
    for (int i = 0; i < m_lines.size(); ++i) {
        const Line &line = m_lines.at(i);
        if (i > 0 && line.lineInBlock > 0 && m_lines.at(i - 1).record == line.record
            && m_lines.at(i - 1).block == line.block)
            lines.last() += line.text;
        else
            lines.append(line.text);
    }
    return lines.join(u'\n');
}

QStringList ReportPage::placedLines() const
{
    QStringList placed;
    for (const Line &line : m_lines)
        placed.append(QString::number(line.y, 'f', 2) + u' ' + line.text);
    return placed;
}

ReportPages::ReportPages(const ReportContent &content, CoverPictures &covers, bool decodePictures)
    : m_content(content), m_covers(covers), m_decodePictures(decodePictures),
      m_typesetter(std::make_unique<ReportTypesetter>(content.titlePointSize()))
{
}

ReportPages::~ReportPages() = default;

Result<void> ReportPages::measureRecord(int record, QList<Block> &blocks)
{
    const ReportTypesetter &t = *m_typesetter;
    blocks.clear();
    auto addText = [&](const QString &text, bool title) {
        Block block;
        block.title = title;
        block.text = text;
        block.height = t.lineHeight(title);
        if (!text.isEmpty() && (title || !t.fitsOnOneLine(text))) {
            block.wrapped = t.layOut(text, title);
            block.lineCount = std::max(1, block.wrapped->lineCount());
            if (block.lineCount == 1 && !title)
                block.wrapped.reset(); // it fits after all: drawn as any other line
        }
        blocks.append(block);
    };
    if (record < 0) {
        // The title and the blank line after it, both in the title's font.
        addText(m_content.title(), true);
        addText(QString(), true);
        return {};
    }
    if (record >= m_content.recordCount()) {
        addText(QString(), false);
        return {};
    }
    const auto lines = m_content.lines(record);
    if (!lines)
        return lines.error();
    for (const QString &line : *lines)
        addText(line, false);

    // The covers side by side, three spaces after the front one (and after the back one in the
    // filtered list), standing on the line's baseline.
    if (m_decodePictures && m_decodeAhead)
        decodeAheadOf(record);
    Block covers;
    covers.isCovers = true;
    const QFontMetricsF &metrics = t.metrics(false);
    // A cover taller than a page is printed smaller, to fit on one.
    const int tallest = int(std::floor(t.contentHeight() - metrics.descent()));
    const Vinyl &vinyl = m_content.record(record);
    double x = 0;
    bool spaces = false;
    for (CoverSide side : {CoverSide::Front, CoverSide::Back}) {
        // Sizes read with the records spare reading the covers when only sizes are wanted.
        const std::optional<QSize> stored = m_decodePictures ? std::nullopt : m_content.coverSize(record, side);
        const CoverPicture picture = stored ? CoverPicture{CoverPictures::scaledSize(*stored, m_covers.pixelWidth()), {}}
                                            : m_covers.cover(vinyl, side, m_decodePictures);
        if (!picture.exists())
            continue;
        // The width and height are given in view pixels, each rounded to whole points.
        const double width = m_covers.width();
        QSize size = QSize(qRound(width), qRound(width * picture.size.height() / picture.size.width()))
                     * kPointsPerViewPixel;
        if (size.height() > tallest)
            size = QSize(std::max(1, qRound(double(size.width()) * tallest / size.height())), tallest);
        covers.covers.append({QRectF(x, -size.height(), size.width(), size.height()), picture.image});
        covers.text += kPicture;
        covers.ascent = std::max(covers.ascent, double(size.height()));
        x += size.width();
        if (side == CoverSide::Front || m_content.blanksAfterBackCover()) {
            covers.text += kCoverGap;
            x += t.coverGap();
            spaces = true;
        }
    }
    if (covers.covers.isEmpty() || spaces) {
        // Text on the line gives it the font's ascent and descent.
        covers.ascent = std::max(covers.ascent, metrics.ascent());
        covers.height = std::ceil(covers.ascent + metrics.descent() + std::max(0.0, metrics.leading()));
    } else {
        covers.height = std::ceil(covers.ascent);
    }
    blocks.append(covers);
    addText(QString(), false);
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

Result<void> ReportPages::layOut(const PageSink &sink, const PageStart &from, const BackgroundJob::Progress &progress)
{
    const int records = m_content.recordCount();
    if (from.record < -1 || from.record > records || from.block < 0 || from.line < 0)
        return Error{QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "No such page."))};
    const ReportTypesetter &t = *m_typesetter;
    ReportPage page;
    page.m_typesetter = &t;
    page.m_start = from;
    PageFlow flow(t.inset(), t.bottom());
    QList<Block> blocks;
    for (int record = from.record; record <= records; ++record) {
        if (progress && !progress(std::clamp(record, 0, records), records))
            return {};
        if (auto measured = measureRecord(record, blocks); !measured)
            return measured;
        const bool first = record == from.record;
        for (int b = first ? from.block : 0; b < blocks.size(); ++b) {
            const Block &block = blocks.at(b);
            for (int l = first && b == from.block ? from.line : 0; l < block.lineCount; ++l) {
                if (flow.place(block.lineHeight(l))) {
                    if (!sink(page))
                        return {};
                    page.m_lines.clear();
                    page.m_start = PageStart{record, b, l};
                }
                ReportPage::Line line;
                line.record = record;
                line.block = b;
                line.y = flow.lineTop();
                line.title = block.title;
                line.lineInBlock = l;
                if (block.isCovers) {
                    line.ascent = block.ascent;
                    line.covers = block.covers;
                    line.text = block.text;
                } else if (block.wrapped) {
                    const QTextLine textLine = block.wrapped->lineAt(l);
                    line.wrapped = block.wrapped;
                    line.text = block.text.mid(textLine.textStart(), textLine.textLength());
                } else {
                    line.text = block.text;
                }
                page.m_lines.append(std::move(line));
            }
        }
    }
    if (!page.m_lines.isEmpty() && !sink(page))
        return {};
    if (progress)
        progress(records, records);
    return {};
}

Result<RecordMeasure> ReportPages::measure(int record)
{
    QList<Block> blocks;
    if (auto measured = measureRecord(record, blocks); !measured)
        return measured.error();
    RecordMeasure measure;
    for (const Block &block : std::as_const(blocks)) {
        measure.lineCounts.append(block.lineCount);
        for (int line = 0; line < block.lineCount; ++line)
            measure.heights.append(block.lineHeight(line));
    }
    return measure;
}

QList<PageStart> ReportPages::pagesOf(const QList<RecordMeasure> &measures) const
{
    PageFlow flow(m_typesetter->inset(), m_typesetter->bottom());
    QList<PageStart> starts{PageStart{}};
    for (int i = 0; i < measures.size(); ++i) {
        const RecordMeasure &measure = measures.at(i);
        qsizetype height = 0;
        for (int block = 0; block < measure.lineCounts.size(); ++block) {
            for (int line = 0; line < measure.lineCounts.at(block); ++line) {
                if (flow.place(measure.heights.at(height++)))
                    starts.append(PageStart{i - 1, block, line});
            }
        }
    }
    return starts;
}

PagedReport::PagedReport(ReportContent content, QString storeFilePath)
    : m_content(std::move(content)), m_storeFilePath(std::move(storeFilePath)), m_pages{PageStart{}}
{
}

PagedReport::PagedReport(ReportContent content, QString storeFilePath, QList<PageStart> pages)
    : m_content(std::move(content)), m_storeFilePath(std::move(storeFilePath)), m_pages(std::move(pages))
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
        m_pages = {PageStart{}};
    }
    // Covers whose sizes were read with the records are not read again.
    std::optional<CoverReader> reader;
    if (!m_content.coverSize(0, CoverSide::Front))
        reader.emplace(m_storeFilePath);
    CoverPictures covers(reader ? &*reader : nullptr, ReportBuilder::kViewWidth / 6);
    ReportPages pages(m_content, covers, false);
    bool first = true;
    return pages.layOut(
        [&](const ReportPage &page) {
            if (std::exchange(first, false))
                return true; // known from the start
            QMutexLocker lock(&m_mutex);
            m_pages.append(page.start());
            return true;
        },
        {}, progress);
}

bool PagedReport::withPage(int page, const std::function<void(const ReportPage &)> &use) const
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
        [&](const ReportPage &laid) {
            use(laid);
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
    withPage(page, [&](const ReportPage &laid) {
        const double scale = width / kPageWidth;
        image = QImage(width, int(std::lround(kPageHeight * scale)), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
        painter.scale(scale, scale);
        laid.draw(painter);
    });
    return image;
}

QString PagedReport::text(int page) const
{
    QString text;
    withPage(page, [&](const ReportPage &laid) { text = laid.text(); });
    return text;
}

PagesWhileReading::PagesWhileReading(QString originScreen, int batch)
    : m_origin(std::move(originScreen)), m_batchSize(std::max(1, batch))
{
}

PagesWhileReading::~PagesWhileReading()
{
    for (auto &measuring : m_measuring)
        measuring.waitForFinished();
}

void PagesWhileReading::add(const Vinyl &record, const CoverSizes &coverSizes)
{
    if (m_batch.isEmpty()) {
        m_batch.reserve(m_batchSize);
        m_batchSizes.reserve(m_batchSize);
    }
    m_batch.append(record);
    m_batchSizes.append(coverSizes);
    if (m_batch.size() == m_batchSize)
        measureBatch();
}

void PagesWhileReading::measureBatch()
{
    if (m_batch.isEmpty())
        return;
    m_measuring.append(QtConcurrent::run(
        [origin = m_origin, records = std::exchange(m_batch, {}),
         sizes = std::exchange(m_batchSizes, {})]() -> std::optional<QList<RecordMeasure>> {
            // The batch as a report of its own: its records' lines are those of the whole one.
            auto content = ReportContent::printedReport(origin, records);
            if (!content)
                return std::nullopt;
            content->setCoverSizes(sizes);
            CoverPictures covers(nullptr, ReportBuilder::kViewWidth / 6);
            ReportPages pages(*content, covers, false);
            QList<RecordMeasure> measures;
            measures.reserve(records.size());
            for (int i = 0; i < records.size(); ++i) {
                auto measure = pages.measure(i);
                if (!measure)
                    return std::nullopt;
                measures.append(std::move(measure).value());
            }
            return measures;
        }));
}

std::optional<QList<PageStart>> PagesWhileReading::pages(const ReportContent &content)
{
    measureBatch();
    CoverPictures covers(nullptr, ReportBuilder::kViewWidth / 6);
    ReportPages pages(content, covers, false);
    QList<RecordMeasure> measures;
    measures.reserve(content.recordCount() + 2);
    auto title = pages.measure(-1);
    if (!title)
        return std::nullopt;
    measures.append(std::move(title).value());
    for (auto &measuring : m_measuring) {
        const std::optional<QList<RecordMeasure>> batch = measuring.result();
        if (!batch)
            return std::nullopt;
        measures.append(*batch);
    }
    m_measuring.clear();
    if (measures.size() != content.recordCount() + 1)
        return std::nullopt;
    auto end = pages.measure(content.recordCount());
    if (!end)
        return std::nullopt;
    measures.append(std::move(end).value());
    return pages.pagesOf(measures);
}
