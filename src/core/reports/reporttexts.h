#pragma once

#include <QString>

// Texts of the reports, in one place so tests can refer to them. Those marked for translation
// are English here and translated where they are written.
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
inline const QString kPrintJob = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Vinyl Collection"));
inline const QString kCancelled = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Cancelled."));

// The Title of each kind of PDF file in its document information.
inline const QString kFilteredListDocument = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Filtered list"));
inline const QString kCollectionReportDocument = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Collection report"));

// A record's amounts on the printed report, in place of the filtered list's lines.
inline const QString kAmounts = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Qty: %1 - Cost: %2 - Total Value (Qty * Value): %3"));

// What the progress bar of a report says it is doing.
inline const QString kLayingOut = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Laying out pages"));
inline const QString kPrinting = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Printing"));

// Title lines of the printed report.
inline const QString kCompleteList = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Complete List of Vinyl"));
inline const QString kReportByArtist = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Vinyl's Filtered by Artist: "));
inline const QString kReportByDate = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Vinyl's Filtered by Release Date: "));
inline const QString kReportByProducer = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Vinyl's Filtered by Producer: "));
inline const QString kReportByLabel = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Vinyl's Filtered by Record Label: "));

// Title lines of the filtered-list documents.
inline const QString kFilteredByArtist = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Vinyl Filtered by Artist: "));
inline const QString kFilteredByLabel = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Vinyl Filtered by Record Label: "));
inline const QString kFilteredByProducer = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Vinyl Filtered by Producer: "));
inline const QString kFilteredByYear = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Vinyl Filtered by Year: "));
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
