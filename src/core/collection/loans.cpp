#include "collection/loans.h"

#include "store/formatters.h"
#include "store/store.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
// The loans' texts in the user's language.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Loans)
};
} // namespace

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
    QString text = Text::tr("Lent to %1 since %2").arg(loan.borrower, Formatters::mediumDay(loan.lent));
    if (loan.due.isValid()) {
        // The year is said only when it is not the year lent.
        const bool sameYear = loan.due.year() == loan.lent.year();
        text += Text::tr(", due %1").arg(sameYear ? Formatters::dayAndMonth(loan.due) : Formatters::mediumDay(loan.due));
    }
    if (isOverdue(loan, today))
        text += Text::tr(" (overdue)");
    return text;
}

QString historyLine(const Loan &loan)
{
    return u"%1, %2 \u2013 %3"_s.arg(loan.borrower, Formatters::mediumDay(loan.lent),
                                     loan.isOut() ? Text::tr("now") : Formatters::mediumDay(loan.returned));
}

QString summary(const QList<LoanOut> &out, QDate today)
{
    if (out.isEmpty())
        return Text::tr("No record is lent out.");
    const auto overdue = std::count_if(out.cbegin(), out.cend(), [&](const LoanOut &o) { return isOverdue(o.loan, today); });
    // English has no translation to choose its plural form, so the singular is a text of its own.
    const int lent = int(out.size());
    if (overdue == 0)
        return lent == 1 ? Text::tr("%Ln record is lent out.", nullptr, lent) : Text::tr("%Ln records are lent out.", nullptr, lent);
    const QString text = lent == 1 ? Text::tr("%Ln record is lent out, %1 overdue.", nullptr, lent)
                                   : Text::tr("%Ln records are lent out, %1 overdue.", nullptr, lent);
    return text.arg(QLocale().toString(qint64(overdue)));
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
