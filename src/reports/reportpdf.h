#pragma once

#include "backgroundjob.h"
#include "result.h"

#include <QString>

class CoverReader;
class QPrinter;
class ReportContent;

// Writing a report out a page at a time: memory stays the same whatever its length.
namespace ReportPdf {

// Writes the report as an A4 PDF file; the console line says how it went. The file appears
// only once it is complete: a cancelled or failed write leaves no file (an older file of that
// name stays as it was). Covers of records fetched without them are read through `covers`.
Result<void> write(const ReportContent &content, const QString &filePath, CoverReader *covers,
                   const BackgroundJob::Progress &progress = {});

// Draws the report's pages on the printer the user chose, each page fitted to the paper.
// A cancel aborts the print job.
Result<void> print(const ReportContent &content, QPrinter &printer, CoverReader *covers,
                   const BackgroundJob::Progress &progress = {});

} // namespace ReportPdf
