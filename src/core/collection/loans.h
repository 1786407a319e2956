#pragma once

#include "store/entities.h"
#include "store/result.h"

#include <QDate>
#include <QJsonArray>
#include <QList>
#include <QString>
#include <QStringList>

class Store;

// Lending records out and taking them back: what a loan needs, what it reads as, and when it
// is overdue. Days are the collector's calendar days; "today" is always given, so the rules do
// not depend on the clock.
namespace Loans {

inline const QString kNoBorrower = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Say who borrows the record."));
inline const QString kDueBeforeLent = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The day it is due back comes before the day it is lent."));
inline const QString kBackBeforeLent = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The record cannot come back before the day it was lent."));
inline const QString kNoRecord = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The record is no longer in the collection."));
// Asked before a record lent out is deleted.
inline const QString kDeleteLentTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Delete a Record on Loan?"));
inline const QString kDeleteLentMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "\"%1\" is lent to %2. Delete it and its loans anyway?"));
inline const QString kKeepButton = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Keep"));
inline const QString kDeleteButton = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Delete"));
inline const QString kNoDay = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Choose the day the record is lent."));

// Lends the record: the borrower's name without spaces around it; a due day, when given, on or
// after the day lent. Refused while the record is out.
[[nodiscard]] Result<Loan> lend(Store &store, qint64 vinylRowId, const QString &borrower, QDate lent, QDate due = {},
                                const QString &note = {});
// Takes the record back on that day.
[[nodiscard]] Result<void> giveBack(Store &store, qint64 vinylRowId, QDate day);

// Out, and due back before today.
[[nodiscard]] bool isOverdue(const Loan &loan, QDate today);
// "Lent to Sam since Mar 3, 2026, due Apr 1", in the current locale; "… (overdue)" when it is.
[[nodiscard]] QString status(const Loan &loan, QDate today);
// A past loan as the record's history lists it: "Sam, Mar 3, 2026 – Mar 20, 2026".
[[nodiscard]] QString historyLine(const Loan &loan);
// "2 records are lent out, 1 overdue." or "No record is lent out."
[[nodiscard]] QString summary(const QList<LoanOut> &out, QDate today);
// The records out for scripts: album, artist, borrower, ISO days, overdue.
[[nodiscard]] QJsonArray json(const QList<LoanOut> &out, QDate today);

} // namespace Loans
