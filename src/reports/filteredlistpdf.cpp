#include "filteredlistpdf.h"

#include "appdelegate.h"
#include "coverpictures.h"
#include "reportbuilder.h"

#include <QDir>
#include <QFileInfo>
#include <QTextDocument>

namespace FilteredListPdf {

Result<void> write(const BreakdownPdfRequest &request)
{
    if (!request.app)
        return Error{QStringLiteral("No collection is open.")};
    CoverPictures covers(request.app->persistentContainer(), ReportBuilder::kViewWidth / 6);
    QTextDocument document;
    if (auto built = ReportBuilder::buildFilteredList(document, request.kind, request.records, covers); !built)
        return built;
    QDir().mkpath(QFileInfo(request.outputFilePath).absolutePath());
    return ReportBuilder::writePdf(document, request.outputFilePath);
}

void install()
{
    BreakdownTableViewController::setPdfWriter(&write);
}

} // namespace FilteredListPdf
