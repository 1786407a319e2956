#include "loans/loansviewcontroller.h"

#include "collection/loans.h"
#include "shell/appdelegate.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

LoansViewController::LoansViewController(AppDelegate *app, QObject *parent) : RecordListController(app, parent)
{
    loadIfReady();
}

void LoansViewController::viewWillAppear()
{
    if (app())
        reloadRecords();
}

void LoansViewController::reloadRecords()
{
    auto out = app()->persistentContainer().loansOut();
    if (!out)
        showAlert(kStoreErrorTitle, out.errorMessage());
    m_out = out.valueOr({});
    emit loansChanged();
}

QVariantList LoansViewController::loans() const
{
    const QDate today = QDate::currentDate();
    QVariantList rows;
    for (const LoanOut &entry : m_out) {
        const QString status = Loans::status(entry.loan, today);
        // The row as one sentence for a screen reader.
        QStringList spoken{entry.name, entry.artist, status};
        spoken.removeAll(QString());
        rows.append(QVariantMap{{u"album"_s, entry.name},
                                {u"artist"_s, entry.artist},
                                {u"status"_s, status},
                                {u"overdue"_s, Loans::isOverdue(entry.loan, today)},
                                {u"accessibleLabel"_s, spoken.join(tr(", ", "between the parts of a loan read out"))}});
    }
    return rows;
}

QString LoansViewController::summary() const
{
    return Loans::summary(m_out, QDate::currentDate());
}

void LoansViewController::rowPicked(int row)
{
    if (app() && row >= 0 && row < m_out.size())
        openRecord(m_out.at(row).loan.vinylRowId, OriginScreens::Loans);
}
