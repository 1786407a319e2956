#include "collection/loans.h"

#include "store/formatters.h"
#include "store/store.h"

#include <QJsonObject>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Loans {

Result<Loan> lend(Store &store, qint64 vinylRowId, const QString &borrower, QDate lent, QDate due, const QString &note)
{
    Loan loan{0, vinylRowId, borrower.simplified(), lent, due, {}, note.trimmed()};
    if (loan.borrower.isEmpty())
        return Error{kNoBorrower};
    if (!lent.isValid())
        return Error{kNoDay};
    if (due.isValid() && due < lent)
        return Error{kDueBeforeLent};
    auto record = store.vinylByRowId(vinylRowId, false);
    if (!record)
        return record.error();
    if (!*record)
        return Error{kNoRecord};
    if (auto r = store.insert(loan); !r)
        return r.error();
    return loan;
}

Result<void> giveBack(Store &store, qint64 vinylRowId, QDate day)
{
    auto loans = store.loans(vinylRowId);
    if (!loans)
        return loans.error();
    if (loans->isEmpty() || !loans->first().isOut())
        return Error{Store::kNotLent};
    if (!day.isValid() || day < loans->first().lent)
        return Error{kBackBeforeLent};
    return store.returnLoan(vinylRowId, day);
}

bool isOverdue(const Loan &loan, QDate today)
{
    return loan.isOut() && loan.due.isValid() && loan.due < today;
}

QString status(const Loan &loan, QDate today)
{
    QString text = u"Lent to %1 since %2"_s.arg(loan.borrower, Formatters::mediumDay(loan.lent));
    if (loan.due.isValid()) {
        // The year is said only when it is not the year lent.
        const bool sameYear = loan.due.year() == loan.lent.year();
        text += u", due "_s + (sameYear ? Formatters::dayAndMonth(loan.due) : Formatters::mediumDay(loan.due));
    }
    if (isOverdue(loan, today))
        text += u" (overdue)"_s;
    return text;
}

QString historyLine(const Loan &loan)
{
    return u"%1, %2 \u2013 %3"_s.arg(loan.borrower, Formatters::mediumDay(loan.lent),
                                     loan.isOut() ? u"now"_s : Formatters::mediumDay(loan.returned));
}

QString summary(const QList<LoanOut> &out, QDate today)
{
    if (out.isEmpty())
        return u"No record is lent out."_s;
    const QLocale locale;
    const auto overdue = std::count_if(out.cbegin(), out.cend(), [&](const LoanOut &o) { return isOverdue(o.loan, today); });
    QString text = out.size() == 1 ? u"1 record is lent out"_s
                                   : u"%1 records are lent out"_s.arg(locale.toString(qint64(out.size())));
    if (overdue > 0)
        text += u", %1 overdue"_s.arg(locale.toString(qint64(overdue)));
    return text + u'.';
}

QJsonArray json(const QList<LoanOut> &out, QDate today)
{
    QJsonArray array;
    for (const LoanOut &entry : out) {
        const Loan &loan = entry.loan;
        array.append(QJsonObject{
            {u"album"_s, entry.name},
            {u"artist"_s, entry.artist},
            {u"borrower"_s, loan.borrower},
            {u"lent"_s, loan.lent.toString(Qt::ISODate)},
            {u"due"_s, loan.due.isValid() ? QJsonValue(loan.due.toString(Qt::ISODate)) : QJsonValue()},
            {u"overdue"_s, isOverdue(loan, today)},
            {u"note"_s, loan.note},
        });
    }
    return array;
}

} // namespace Loans
