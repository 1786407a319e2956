#include "reportpdf.h"

#include "coverpictures.h"
#include "logging.h"
#include "reportbuilder.h"
#include "reportpages.h"
#include "reporttexts.h"

#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;
using ReportBuilder::kPageHeight;
using ReportBuilder::kPageWidth;

namespace {

// QPdfWriter rounds the page to whole points (595 x 842). Its media boxes are written with six
// decimals, so the exact A4 size goes in place without moving any byte of the file; this
// device does that on the way to the file.
class ExactA4Output : public QIODevice
{
public:
    explicit ExactA4Output(QIODevice &file) : m_file(file) { open(QIODevice::WriteOnly); }

    // Writes what is still held back; false when the file refused some of it.
    bool finish()
    {
        const bool written = m_file.write(m_pending) == m_pending.size();
        m_pending.clear();
        return written && !m_failed;
    }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override
    {
        m_pending.append(data, size);
        m_pending.replace(kRounded, kExact);
        // A media box may be cut between two writes: its start waits for the rest.
        const qsizetype held = std::min<qsizetype>(m_pending.size(), kRounded.size() - 1);
        const qsizetype ready = m_pending.size() - held;
        if (ready > 0) {
            if (m_file.write(m_pending.constData(), ready) != ready)
                m_failed = true;
            m_pending.remove(0, ready);
        }
        return m_failed ? -1 : size;
    }

private:
    static inline const QByteArray kRounded = "/MediaBox [0 0 595.000000 842.000000]"_ba;
    static inline const QByteArray kExact = "/MediaBox [0 0 595.200000 841.800000]"_ba;
    QIODevice &m_file;
    QByteArray m_pending;
    bool m_failed = false;
};

Error cancelled()
{
    return Error{ReportTexts::kCancelled};
}

// Passes the layout's progress on and remembers whether the user cancelled.
class CancelWatch
{
public:
    explicit CancelWatch(const BackgroundJob::Progress &progress) : m_progress(progress) {}
    [[nodiscard]] bool cancelled() const { return m_cancelled; }
    [[nodiscard]] BackgroundJob::Progress relay()
    {
        return [this](qint64 done, qint64 total) {
            m_cancelled = m_cancelled || (m_progress && !m_progress(done, total));
            return !m_cancelled;
        };
    }

private:
    const BackgroundJob::Progress &m_progress;
    bool m_cancelled = false;
};

} // namespace

namespace ReportPdf {

Result<void> write(const ReportContent &content, const QString &filePath, CoverReader *covers,
                   const BackgroundJob::Progress &progress)
{
    QSaveFile file(filePath);
    QString problem;
    CancelWatch watch(progress);
    if (file.open(QIODevice::WriteOnly)) {
        ExactA4Output output(file);
        int pages = 0;
        bool pageRefused = false;
        {
            QPdfWriter writer(&output);
            // One device unit per point: the pages are laid out in points on the A4 page.
            writer.setResolution(72);
            writer.setPageLayout(QPageLayout(QPageSize(QSizeF(kPageWidth, kPageHeight), QPageSize::Point),
                                             QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
            QPainter painter;
            CoverPictures pictures(covers, ReportBuilder::kViewWidth / 6);
            ReportPages layout(content, pictures, true);
            const auto laidOut = layout.layOut(
                [&](QTextDocument &piece, int page, const PageStart &) {
                    pageRefused = pages == 0 ? !painter.begin(&writer) : !writer.newPage();
                    if (pageRefused)
                        return false;
                    ++pages;
                    ReportPages::draw(piece, page, painter);
                    return true;
                },
                {}, watch.relay());
            if (painter.isActive())
                painter.end();
            if (!laidOut)
                problem = laidOut.errorMessage();
            else if (pageRefused)
                problem = u"a page could not be started"_s;
        }
        if (watch.cancelled()) {
            file.cancelWriting();
            return cancelled();
        }
        if (problem.isEmpty() && pages < 1)
            problem = u"the document has no pages"_s;
        if (problem.isEmpty() && (!output.finish() || !file.commit()))
            problem = file.errorString();
        if (!problem.isEmpty())
            file.cancelWriting();
    } else {
        problem = file.errorString();
    }
    if (!problem.isEmpty()) {
        consoleLine(ReportTexts::kPdfNotWritten + problem);
        return Error{ReportTexts::kPdfNotWritten + problem};
    }
    consoleLine(ReportTexts::kPdfWritten + filePath);
    return {};
}

Result<void> print(const ReportContent &content, QPrinter &printer, CoverReader *covers,
                   const BackgroundJob::Progress &progress)
{
    printer.setFullPage(true);
    const QRectF paper = printer.pageLayout().fullRectPixels(printer.resolution());
    const double scale = std::min(paper.width() / kPageWidth, paper.height() / kPageHeight);
    QPainter painter;
    bool started = false;
    bool pageRefused = false;
    CancelWatch watch(progress);
    CoverPictures pictures(covers, ReportBuilder::kViewWidth / 6);
    ReportPages layout(content, pictures, true);
    const auto laidOut = layout.layOut(
        [&](QTextDocument &piece, int page, const PageStart &) {
            pageRefused = !started ? !painter.begin(&printer) : !printer.newPage();
            if (pageRefused)
                return false;
            started = true;
            painter.save();
            painter.scale(scale, scale);
            ReportPages::draw(piece, page, painter);
            painter.restore();
            return true;
        },
        {}, watch.relay());
    if (watch.cancelled() || pageRefused)
        printer.abort();
    if (painter.isActive())
        painter.end();
    if (watch.cancelled())
        return cancelled();
    if (!laidOut)
        return laidOut;
    if (pageRefused)
        return Error{u"The printer could not be used."_s};
    return {};
}

} // namespace ReportPdf
