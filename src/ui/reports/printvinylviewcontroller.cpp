#include "reports/printvinylviewcontroller.h"

#include "reports/coverpictures.h"
#include "reports/reportbuilder.h"
#include "reports/reportpageprovider.h"
#include "reports/reportpages.h"
#include "reports/reportpdf.h"
#include "reports/reporttexts.h"
#include "shell/appdelegate.h"
#include "shell/platformservices.h"
#include "store/logging.h"
#include "store/store.h"
#include "store/translations.h"

#include <QPainter>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace {
// Draws the report's pages on the printer the user chose, each page fitted to the paper.
// A cancel aborts the print job.
Result<void> print(const ReportContent &content, QPrinter &printer, CoverReader *covers,
                   const BackgroundJob::Progress &progress)
{
    printer.setFullPage(true);
    const QRectF paper = printer.pageLayout().fullRectPixels(printer.resolution());
    const double scale = std::min(paper.width() / ReportBuilder::kPageWidth, paper.height() / ReportBuilder::kPageHeight);
    QPainter painter;
    const ReportPdf::DrawnPages drawn = ReportPdf::drawPages(content, printer, painter, scale, covers, progress);
    if (drawn.cancelled || drawn.pageRefused)
        printer.abort();
    if (painter.isActive())
        painter.end();
    if (drawn.cancelled)
        return ReportPdf::cancelledError();
    if (!drawn.laidOut)
        return drawn.laidOut;
    if (drawn.pageRefused)
        return Error{QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The printer could not be used."))};
    return {};
}
} // namespace

int ReportPageModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_pageCount;
}

QVariant ReportPageModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    switch (role) {
    case PageSourceRole: return ReportPageProvider::source(m_reportKey, index.row());
    case PageNumberRole: return index.row() + 1;
    default: return {};
    }
}

QHash<int, QByteArray> ReportPageModel::roleNames() const
{
    return {{PageSourceRole, "pageSource"}, {PageNumberRole, "pageNumber"}};
}

void ReportPageModel::reset(const QString &reportKey)
{
    beginResetModel();
    m_reportKey = reportKey;
    m_pageCount = 0;
    endResetModel();
}

void ReportPageModel::setPageCount(int count)
{
    if (count <= m_pageCount)
        return;
    beginInsertRows({}, m_pageCount, count - 1);
    m_pageCount = count;
    endInsertRows();
}

PrintVinylViewController::PrintVinylViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    connect(&m_task, &BackgroundJob::progressChanged, this, &PrintVinylViewController::showProgress);
    connect(&m_task, &BackgroundJob::finished, this, &PrintVinylViewController::taskDone);
    loadIfReady();
}

PrintVinylViewController::~PrintVinylViewController()
{
    disconnect(&m_task, nullptr, this, nullptr);
    stopTask();
    ReportPageProvider::withdraw(m_reportKey);
}

QString PrintVinylViewController::title() const
{
    return translated(ReportTexts::kReportTitle);
}

void PrintVinylViewController::viewDidLoad()
{
    fetch();
}

void PrintVinylViewController::fetch()
{
    m_vinylList.clear();
    m_coverSizes.clear();
    clearReport();
    const AppState &state = *app()->state();
    if (!ReportBuilder::reportRequest(state.originScreen(), state.currentRecord(), state.sortAscending())) {
        // Another origin selects nothing: the list stays empty until the rebuild button reports it.
        m_printButtonVisible = false;
        emit reportChanged();
        return;
    }
    // A long list is read on the worker too: the window keeps painting from the first moment.
    // The records of the first page go to the screen as soon as they are read, and it shows
    // that page while the rest are read; the pages are laid out on the other core meanwhile.
    auto fetched = std::make_shared<Fetched>();
    m_fetched = fetched;
    m_taskTitle = ReportTexts::kLayingOut;
    m_taskKind = Task::Fetch;
    m_task.start([this, fetched, store = app()->persistentContainer().filePath(), origin = state.originScreen(),
                  group = state.currentRecord(),
                  ascending = state.sortAscending()](const BackgroundJob::Progress &progress) {
        auto opened = Store::open(store);
        if (!opened)
            return Result<void>(opened.error());
        PagesWhileReading pages(origin);
        auto records = ReportBuilder::readReport(**opened, origin, group, ascending, [&](const ReportRecords &read) {
            pages.add(read.records.constLast(), read.coverSizes.constLast());
            if (read.records.size() == kFirstPageRecords) {
                // Copies of these records: sharing the list would copy it whole at the next record.
                ReportRecords first;
                first.records = QList<Vinyl>(read.records.cbegin(), read.records.cend());
                first.coverSizes = QList<CoverSizes>(read.coverSizes.cbegin(), read.coverSizes.cend());
                QMetaObject::invokeMethod(
                    this, [this, first = std::move(first)] { showFirstPage(first); }, Qt::QueuedConnection);
            }
            return progress(read.records.size(), std::max(read.expected, read.records.size()));
        });
        if (!records)
            return Result<void>(records.error());
        if (!progress(records->records.size(), records->records.size()))
            return Result<void>(); // cancelled
        if (auto content = ReportContent::printedReport(origin, records->records)) {
            content->setCoverSizes(records->coverSizes);
            fetched->pages = pages.pages(*content);
        }
        fetched->read = std::move(*records);
        return Result<void>();
    });
    emit progressChanged();
}

void PrintVinylViewController::showFirstPage(const ReportRecords &first)
{
    // Only while the rest is still being read and no report is shown yet.
    if (!busy() || m_taskKind != Task::Fetch || m_report)
        return;
    auto content = ReportContent::printedReport(app()->state()->originScreen(), first.records);
    if (!content)
        return; // the whole list says why when it is read
    content->setCoverSizes(first.coverSizes);
    m_report = std::make_shared<PagedReport>(std::move(content).value(), app()->persistentContainer().filePath());
    m_reportKey = ReportPageProvider::publish(m_report);
    m_pages.reset(m_reportKey);
    m_pages.setPageCount(1);
}

void PrintVinylViewController::stopTask()
{
    m_task.cancel();
    m_task.waitForFinished();
}

void PrintVinylViewController::clearReport()
{
    stopTask();
    ReportPageProvider::withdraw(m_reportKey);
    m_reportKey.clear();
    m_report.reset();
    m_pages.reset({});
}

void PrintVinylViewController::buildReport(bool alertWhenEmpty, bool keepFirstPage,
                                           std::optional<QList<PageStart>> pages)
{
    if (!app())
        return;
    // The first page shown while the records were read stays: the report begins with it.
    const QString shownKey = keepFirstPage && m_report ? m_reportKey : QString();
    if (shownKey.isEmpty())
        clearReport();
    else
        m_report.reset();
    if (m_vinylList.isEmpty()) {
        clearReport();
        m_printButtonVisible = false;
        emit reportChanged();
        if (alertWhenEmpty)
            showAlert(ReportTexts::kEmptyTitle, ReportTexts::kEmptyMessage);
        return;
    }
    auto content = ReportContent::printedReport(app()->state()->originScreen(), m_vinylList);
    if (!content) {
        clearReport();
        emit reportChanged();
        showAlert(ReportTexts::kNotBuiltTitle, content.errorMessage());
        return;
    }
    content->setCoverSizes(m_coverSizes);
    m_printButtonVisible = true;
    const QString storeFile = app()->persistentContainer().filePath();
    m_report = pages ? std::make_shared<PagedReport>(std::move(content).value(), storeFile, std::move(*pages))
                     : std::make_shared<PagedReport>(std::move(content).value(), storeFile);
    if (shownKey.isEmpty()) {
        m_reportKey = ReportPageProvider::publish(m_report);
        m_pages.reset(m_reportKey);
    } else {
        ReportPageProvider::replace(m_reportKey, m_report);
    }
    m_pages.setPageCount(m_report->pageCount());
    emit reportChanged();
    if (pages)
        return; // laid out while the records were read

    m_taskTitle = ReportTexts::kLayingOut;
    m_taskKind = Task::Layout;
    m_task.start([report = m_report](const BackgroundJob::Progress &progress) { return report->paginate(progress); });
}

void PrintVinylViewController::taskDone(const Result<void> &result)
{
    showProgress();
    const bool cancelled = m_task.cancelled();
    if (m_taskKind == Task::Fetch) {
        if (cancelled)
            return;
        std::optional<QList<PageStart>> pages;
        if (result) {
            m_vinylList = std::move(m_fetched->read.records);
            m_coverSizes = std::move(m_fetched->read.coverSizes);
            pages = std::move(m_fetched->pages);
        } else {
            consoleLine(result.errorMessage());
        }
        m_fetched.reset();
        buildReport(true, true, std::move(pages));
        if (!busy())
            emit taskFinished();
        return;
    }
    emit taskFinished();
    if (m_taskKind == Task::Layout) {
        if (!result && !cancelled)
            showAlert(ReportTexts::kNotBuiltTitle, result.errorMessage());
        return;
    }
    if (cancelled)
        consoleLine(ReportTexts::kPrintCancelled);
    else if (result)
        consoleLine(ReportTexts::kPrinted);
    else
        showAlert(ReportTexts::kNotPrintedTitle, result.errorMessage());
}

void PrintVinylViewController::showProgress()
{
    if (m_report)
        m_pages.setPageCount(m_report->pageCount());
    emit progressChanged();
}

void PrintVinylViewController::CreateFileClick()
{
    // The records are still being read; the report follows by itself.
    if (busy() && m_taskKind == Task::Fetch)
        return;
    buildReport(true);
}

void PrintVinylViewController::EmailFileClick()
{
    if (!app() || m_vinylList.isEmpty() || !m_report || busy())
        return;
    std::shared_ptr<QPrinter> printer = app()->platform().choosePrinter(translated(ReportTexts::kPrintJob));
    if (!printer) {
        consoleLine(ReportTexts::kPrintCancelled);
        return;
    }
    m_taskTitle = ReportTexts::kPrinting;
    m_taskKind = Task::Printing;
    m_task.start([report = m_report, printer, store = app()->persistentContainer().filePath()](
                     const BackgroundJob::Progress &progress) {
        CoverReader covers(store);
        return print(report->content(), *printer, &covers, progress);
    });
}

void PrintVinylViewController::CancelButtonTapped()
{
    m_task.cancel();
}
