#include "browse/recordlistcontroller.h"

#include "collection/browsetexts.h"
#include "collection/loans.h"
#include "shell/appdelegate.h"
#include "shell/coverimageprovider.h"
#include "store/logging.h"
#include "store/translations.h"

void RecordListController::openRecord(qint64 rowId, const QString &origin)
{
    if (!openInEditor(rowId, origin))
        reloadRecords();
}

bool RecordListController::deleteRecord(qint64 rowId)
{
    Store &store = app()->persistentContainer();
    auto removed = store.transaction([&]() { return store.remove(Entity::Vinyl, rowId); });
    if (!removed) {
        showAlert(kStoreErrorTitle, removed.errorMessage());
        return false;
    }
    (void)app()->saveContext();
    CoverImageProvider::forget(rowId);
    return true;
}

bool RecordListController::askedBeforeDeletingLent(qint64 rowId, std::function<void()> remove)
{
    Store &store = app()->persistentContainer();
    auto loans = store.loans(rowId);
    if (!loans || loans->isEmpty() || !loans->first().isOut())
        return false;
    auto record = store.vinylByRowId(rowId, false);
    const QString album = record && *record ? text((*record)->name) : QString();
    showAlert(Loans::kDeleteLentTitle, translated(Loans::kDeleteLentMessage).arg(album, loans->first().borrower),
              {Loans::kKeepButton, Loans::kDeleteButton}, [remove = std::move(remove)](int button) {
                  if (button == 1)
                      remove();
              });
    return true;
}

void RecordListController::markLoans(RecordCardModel &model)
{
    if (!app())
        return;
    const auto out = app()->persistentContainer().loansOut();
    if (!out)
        consoleLine(out.errorMessage());
    QHash<qint64, RecordCardModel::LoanMark> marks;
    const QDate today = QDate::currentDate();
    for (const LoanOut &entry : out.valueOr({}))
        marks.insert(entry.loan.vinylRowId, {Loans::status(entry.loan, today), Loans::isOverdue(entry.loan, today)});
    model.setLoanMarks(std::move(marks));
}
