#pragma once

#include "browse/recordlistcontroller.h"
#include "store/entities.h"

#include <QVariantList>

// The records lent out, the longest out first, overdue ones marked; picking one opens it in the
// editor, where it can be taken back. Read again each time the screen comes back.
class LoansViewController : public RecordListController
{
    Q_OBJECT
    QML_ELEMENT
    // [{album, artist, status, overdue}]
    Q_PROPERTY(QVariantList loans READ loans NOTIFY loansChanged)
    // "2 records are lent out, 1 overdue." or "No record is lent out."
    Q_PROPERTY(QString summary READ summary NOTIFY loansChanged)

public:
    explicit LoansViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] QVariantList loans() const;
    [[nodiscard]] QString summary() const;
    void viewWillAppear() override;
    Q_INVOKABLE void rowPicked(int row);

signals:
    void loansChanged();

protected:
    void viewDidLoad() override { reloadRecords(); }
    void reloadRecords() override;

private:
    QList<LoanOut> m_out;
};
