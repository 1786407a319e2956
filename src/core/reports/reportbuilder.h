#pragma once

#include "collection/breakdown.h"
#include "store/entities.h"
#include "store/fetchrequest.h"
#include "store/recordcaptions.h"
#include "store/result.h"

#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <optional>

class Store;
struct CurrentRecord;

// The sizes of a record's covers as stored, front and back; invalid where it has none.
using CoverSizes = std::array<QSize, 2>;

// A report's records without their covers, and the stored sizes of their covers.
struct ReportRecords
{
    QList<Vinyl> records;
    QList<CoverSizes> coverSizes; // one per record
    qsizetype expected = 0;       // the records counted before they were read
};

// The texts of the reports: which records, their title and the lines of each record.
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

// The printed report: which records, in which order, for the screen it was opened from.
// nullopt when the origin (or an absent group value) selects nothing.
[[nodiscard]] std::optional<FetchRequest> reportRequest(const QString &originScreen, const CurrentRecord &group,
                                                        bool ascending);
// The report's records (without covers): an empty list when the origin selects nothing.
[[nodiscard]] Result<QList<Vinyl>> fetchReport(Store &store, const QString &originScreen, const CurrentRecord &group,
                                               bool ascending);
// The report's records read in one pass, each with its covers' sizes (read from the covers as
// the record is read, then dropped): all that laying the pages out needs. `reading` hears of
// the records read so far after each one; false stops the reading.
[[nodiscard]] Result<ReportRecords> readReport(Store &store, const QString &originScreen, const CurrentRecord &group,
                                               bool ascending,
                                               const std::function<bool(const ReportRecords &)> &reading = {});
[[nodiscard]] QString reportTitle(const QString &originScreen, const Vinyl &first, bool *hasValue = nullptr);
// "Qty: 2 - Cost: 12.5 - Total Value (Qty * Value): $21.00", from the translated ReportTexts::kAmounts.
[[nodiscard]] QString amountsLine(const Vinyl &vinyl, const QString &amounts);

} // namespace ReportBuilder

// One report document as text: a title block centred in Arial, then for each record its
// lines (12-point sans-serif, black, left aligned; lines of absent attributes left out), a
// line with its covers and a blank line. Only the records' texts are held; covers are read
// when a page is drawn (ReportPages).
class ReportContent
{
public:
    // The breakdown list's share document; an error for an empty list or a first record
    // without the title attribute.
    static Result<ReportContent> filteredList(const BreakdownKind &kind, QList<Vinyl> records);
    // The printed report of the screen it was opened from.
    static Result<ReportContent> printedReport(const QString &originScreen, QList<Vinyl> records);

    [[nodiscard]] QString title() const { return m_title; }
    // What a PDF file of it is called in its document information ("Collection report").
    [[nodiscard]] QString documentTitle() const;
    [[nodiscard]] int titlePointSize() const { return m_titlePointSize; }
    [[nodiscard]] int recordCount() const { return int(m_records.size()); }
    [[nodiscard]] const Vinyl &record(int index) const { return m_records.at(index); }
    // The text lines of a record, before its covers.
    [[nodiscard]] Result<QStringList> lines(int index) const;
    // The filtered list puts three blanks after the back cover too.
    [[nodiscard]] bool blanksAfterBackCover() const { return m_kind == Kind::FilteredList; }
    // The covers' stored sizes, read with the records (one per record): the pages are then laid
    // out without reading the covers again.
    void setCoverSizes(QList<CoverSizes> sizes);
    // The stored size of a record's cover (invalid: it has none); nullopt when it was not read.
    [[nodiscard]] std::optional<QSize> coverSize(int index, CoverSide side) const;

private:
    enum class Kind { FilteredList, PrintedReport };
    enum class Line { Artist, Album, Date, Producer, Label };

    ReportContent(Kind kind, QString title, int titlePointSize, QList<Vinyl> records);

    Kind m_kind;
    QString m_title;
    int m_titlePointSize;
    QList<Vinyl> m_records;
    QList<CoverSizes> m_coverSizes;
    QList<Line> m_order; // the printed report's line order
    QString m_amounts;
    RecordCaptions m_captions;
};
