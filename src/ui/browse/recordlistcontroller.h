#pragma once

#include "browse/recordcardmodel.h"
#include "shell/screencontroller.h"

#include <QString>

#include <functional>

// What the collection list and the breakdown lists share about a record's row: picked, it
// opens the record in the editor; swiped away, it deletes the record (asking first when the
// record is lent out).
class RecordListController : public ScreenController
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    using ScreenController::ScreenController;

protected:
    // Opens the record in the editor, coming from the list named origin, whether or not a
    // search is active. A record that is gone is said so, and the list reloads.
    void openRecord(qint64 rowId, const QString &origin);
    // Deletes the record in its own transaction and forgets its covers; false, with the
    // alert shown, when the store refused.
    bool deleteRecord(qint64 rowId);
    // A record lent out is deleted only when the user says so, asked with the borrower named:
    // answers true when it asked, and runs `remove` on "Delete". False when the record is in.
    bool askedBeforeDeletingLent(qint64 rowId, std::function<void()> remove);
    // Reads the list again from the store.
    virtual void reloadRecords() {}
    // Marks the cards of the records lent out now, saying who has them: one indexed read of a
    // few rows.
    void markLoans(RecordCardModel &model);
};
