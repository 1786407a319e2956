#pragma once

#include "store/backgroundjob.h"
#include "store/result.h"

#include <QString>

class CoverReader;
class QPagedPaintDevice;
class QPainter;
class ReportContent;

// Writing a report out a page at a time: memory stays the same whatever its length.
namespace ReportPdf {

// Writes the report as an A4 PDF file; the console line says how it went. The file appears
// only once it is complete: a cancelled or failed write leaves no file (an older file of that
// name stays as it was). Covers of records fetched without them are read through `covers`.
Result<void> write(const ReportContent &content, const QString &filePath, CoverReader *covers,
                   const BackgroundJob::Progress &progress = {});

// How drawing the pages went: the layout's result, the pages drawn, whether the device refused
// a page and whether the user cancelled.
struct DrawnPages
{
    Result<void> laidOut;
    int pages = 0;
    bool pageRefused = false;
    bool cancelled = false;
};

// Lays the report out and draws its pages on device (a PDF writer or a printer) with painter,
// which the caller ends, scaled by scale from points.
DrawnPages drawPages(const ReportContent &content, QPagedPaintDevice &device, QPainter &painter, double scale,
                     CoverReader *covers, const BackgroundJob::Progress &progress);
// The error of a cancelled report.
[[nodiscard]] Error cancelledError();

} // namespace ReportPdf
