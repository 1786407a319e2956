#pragma once

#include "collection/breakdown.h"
#include "store/backgroundjob.h"
#include "store/entities.h"
#include "store/result.h"

#include <QList>
#include <QString>

// What the PDF writer of a breakdown list is handed: the records shown (in the order shown,
// without their covers), the file to write and the store to read the covers from.
struct BreakdownPdfRequest
{
    const BreakdownKind &kind;
    QList<Vinyl> records;
    QString outputFilePath;
    QString storeFilePath;
};

// The breakdown lists' share document: the shown records as an A4 PDF document in the
// documents folder.
namespace FilteredListPdf {

// Writes the document a page at a time (run it off the UI thread): progress counts the
// records written; a cancel leaves no file.
Result<void> write(const BreakdownPdfRequest &request, const BackgroundJob::Progress &progress);

} // namespace FilteredListPdf
