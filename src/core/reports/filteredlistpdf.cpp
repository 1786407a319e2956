#include "reports/filteredlistpdf.h"

#include "reports/coverpictures.h"
#include "reports/reportbuilder.h"
#include "reports/reportpdf.h"

#include <QDir>
#include <QFileInfo>

namespace FilteredListPdf {

Result<void> write(const BreakdownPdfRequest &request, const BackgroundJob::Progress &progress)
{
    auto content = ReportContent::filteredList(request.kind, request.records);
    if (!content)
        return content.error();
    CoverReader covers(request.storeFilePath);
    QDir().mkpath(QFileInfo(request.outputFilePath).absolutePath());
    return ReportPdf::write(*content, request.outputFilePath, &covers, progress);
}

} // namespace FilteredListPdf
