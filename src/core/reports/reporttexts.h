#pragma once

#include <QString>

// Texts of the reports, in one place so tests can refer to them.
namespace ReportTexts {
using namespace Qt::StringLiterals;

inline const QString kEmptyTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Empty Data Set!"));
inline const QString kEmptyMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "No Vinyl's to Print!"));
inline const QString kNotBuiltTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Report not Created"));
inline const QString kNotPrintedTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Report not Printed"));
inline const QString kPdfWritten = u"wrote PDF file with multiple pages to: "_s;
inline const QString kPdfNotWritten = u"Could not create PDF file: "_s;
inline const QString kPrinted = u"Image is Printed"_s;
inline const QString kPrintCancelled = u"nil"_s;
inline const QString kNoTitleValue = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The first record has no %1, so the document has no title."));
inline const QString kUnreadableAmount = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The %1 of \"%2\" cannot be read as a number."));
inline const QString kReportTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Print Vinyl"));
inline const QString kOverviewTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Vinyl Collection Overview"));
inline const QString kPrintJob = u"Vinyl Collection"_s;
inline const QString kCancelled = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Cancelled."));

// The Title of each kind of PDF file in its document information.
inline const QString kFilteredListDocument = u"Filtered list"_s;
inline const QString kCollectionReportDocument = u"Collection report"_s;

// What the progress bar of a report says it is doing.
inline const QString kLayingOut = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Laying out pages"));
inline const QString kPrinting = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Printing"));

// Title lines of the printed report.
inline const QString kCompleteList = u"Complete List of Vinyl"_s;
inline const QString kReportByArtist = u"Vinyl's Filtered by Artist: "_s;
inline const QString kReportByDate = u"Vinyl's Filtered by Release Date: "_s;
inline const QString kReportByProducer = u"Vinyl's Filtered by Producer: "_s;
inline const QString kReportByLabel = u"Vinyl's Filtered by Record Label: "_s;

// Title lines of the filtered-list documents.
inline const QString kFilteredByArtist = u"Vinyl Filtered by Artist: "_s;
inline const QString kFilteredByLabel = u"Vinyl Filtered by Record Label: "_s;
inline const QString kFilteredByProducer = u"Vinyl Filtered by Producer: "_s;
inline const QString kFilteredByYear = u"Vinyl Filtered by Year: "_s;
} // namespace ReportTexts

// The lists a printed report is made from, by the names the screens and `report --origin` give
// them: the whole list, or one group of a breakdown list.
namespace ReportOrigins {
inline const QString List = QStringLiteral("List");
inline const QString ArtistBreakdown = QStringLiteral("ArtistBreakdown");
inline const QString LabelBreakdown = QStringLiteral("LabelBreakdown");
inline const QString ProducerBreakdown = QStringLiteral("ProducerBreakdown");
inline const QString YearBreakdown = QStringLiteral("YearBreakdown");
} // namespace ReportOrigins
