#pragma once

#include "breakdowntableviewcontroller.h"

// The breakdown lists' share button: the shown records as an A4 PDF document in the
// documents folder.
namespace FilteredListPdf {

Result<void> write(const BreakdownPdfRequest &request);
// Gives the breakdown lists this writer; every executable that shows screens calls it once.
void install();

} // namespace FilteredListPdf
