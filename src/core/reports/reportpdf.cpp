#include "reports/reportpdf.h"

#include "reports/coverpictures.h"
#include "reports/reportbuilder.h"
#include "reports/reportpages.h"
#include "reports/reporttexts.h"
#include "store/logging.h"
#include "store/version.h"

#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
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

Error cancelledError()
{
    return Error{ReportTexts::kCancelled};
}

DrawnPages drawPages(const ReportContent &content, QPagedPaintDevice &device, QPainter &painter, double scale,
                     CoverReader *covers, const BackgroundJob::Progress &progress)
{
    DrawnPages drawn;
    CancelWatch watch(progress);
    CoverPictures pictures(covers, ReportBuilder::kViewWidth / 6);
    ReportPages layout(content, pictures, true);
    layout.setDecodeAhead(true);
    drawn.laidOut = layout.layOut(
        [&](const ReportPage &page) {
            drawn.pageRefused = drawn.pages == 0 ? !painter.begin(&device) : !device.newPage();
            if (drawn.pageRefused)
                return false;
            ++drawn.pages;
            if (scale == 1.0) {
                page.draw(painter);
                return true;
            }
            painter.save();
            painter.scale(scale, scale);
            page.draw(painter);
            painter.restore();
            return true;
        },
        {}, watch.relay());
    drawn.cancelled = watch.cancelled();
    return drawn;
}

Result<void> write(const ReportContent &content, const QString &filePath, CoverReader *covers,
                   const BackgroundJob::Progress &progress)
{
    QSaveFile file(filePath);
    QString problem;
    bool cancelled = false;
    if (file.open(QIODevice::WriteOnly)) {
        ExactA4Output output(file);
        int pages = 0;
        bool pageRefused = false;
        {
            QPdfWriter writer(&output);
            writer.setTitle(content.documentTitle());
            writer.setCreator(Version::nameAndNumber());
            // One device unit per point: the pages are laid out in points on the A4 page.
            writer.setResolution(72);
            writer.setPageLayout(QPageLayout(QPageSize(QSizeF(kPageWidth, kPageHeight), QPageSize::Point),
                                             QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
            QPainter painter;
            const DrawnPages drawn = drawPages(content, writer, painter, 1.0, covers, progress);
            pages = drawn.pages;
            pageRefused = drawn.pageRefused;
            cancelled = drawn.cancelled;
            const Result<void> &laidOut = drawn.laidOut;
            if (painter.isActive())
                painter.end();
            if (!laidOut)
                problem = laidOut.errorMessage();
            else if (pageRefused)
                problem = u"a page could not be started"_s;
        }
        if (cancelled) {
            file.cancelWriting();
            return cancelledError();
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

} // namespace ReportPdf
