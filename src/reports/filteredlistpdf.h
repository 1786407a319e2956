#pragma once

#include "breakdowntableviewcontroller.h"

// The breakdown lists' share button: the shown records as an A4 PDF document in the
// documents folder.
namespace FilteredListPdf {

// Writes the document a page at a time (run it off the UI thread): progress counts the
// records written; a cancel leaves no file.
Result<void> write(const BreakdownPdfRequest &request, const BackgroundJob::Progress &progress);
// Gives the breakdown lists this writer; every executable that shows screens calls it once.
void install();

} // namespace FilteredListPdf
