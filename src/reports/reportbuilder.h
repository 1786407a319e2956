#pragma once

#include "breakdown.h"
#include "entities.h"
#include "fetchrequest.h"
#include "result.h"

#include <QList>
#include <QString>

#include <optional>

class CoverPictures;
class Store;
class QTextDocument;
struct CurrentRecord;

// The rich texts of the reports, built into a QTextDocument: a title block centred in Arial,
// then each record's lines in a 12-point sans-serif font, black, left aligned, with its
// covers inline. Lines of absent attributes are left out.
namespace ReportBuilder {

// A4 in points, the page of every PDF document we write.
inline constexpr double kPageWidth = 595.2;
inline constexpr double kPageHeight = 841.8;
// The phone view the covers are sized against: one sixth of its width.
inline constexpr double kViewWidth = 390.0;
// The text's own inset from the page edges, in points.
inline constexpr double kTextInset = 18.0;

// Filtered-list document of a breakdown list: the records shown, in order.
[[nodiscard]] QString filteredListTitle(const BreakdownKind &kind, const Vinyl &first, bool *hasValue = nullptr);
Result<void> buildFilteredList(QTextDocument &document, const BreakdownKind &kind, const QList<Vinyl> &records,
                               CoverPictures &covers);

// The printed report: which records, in which order, for the screen it was opened from.
// nullopt when the origin (or an absent group value) selects nothing.
[[nodiscard]] std::optional<FetchRequest> reportRequest(const QString &originScreen, const CurrentRecord &group,
                                                        bool ascending);
// The report's records: an empty list when the origin selects nothing.
[[nodiscard]] Result<QList<Vinyl>> fetchReport(Store &store, const QString &originScreen, const CurrentRecord &group,
                                               bool ascending);
[[nodiscard]] QString reportTitle(const QString &originScreen, const Vinyl &first, bool *hasValue = nullptr);
// "Qty: 2 - Cost: 12.5 - Total Value (Qty * Value): $21.00"
[[nodiscard]] QString amountsLine(const Vinyl &vinyl);
Result<void> buildReport(QTextDocument &document, const QString &originScreen, const QList<Vinyl> &records,
                         CoverPictures &covers);

// Lays the document out on A4 pages without margins and writes it; the console line says
// how it went. The document's layout is changed for the PDF device.
Result<void> writePdf(QTextDocument &document, const QString &filePath);

} // namespace ReportBuilder
