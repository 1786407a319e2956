#pragma once

#include "entry/recordformcontroller.h"

// The screen on which a new record is entered. Saving gives the record the next record
// number, stores the covers squeezed into the record and returns to the screen that
// opened this one. A refused save keeps the form as it is.
class AddVinylViewController : public RecordFormController
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit AddVinylViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    Q_INVOKABLE void SaveNewVinylButtonClicked();
    // The release-date field shows today's date as soon as its picker opens.
    Q_INVOKABLE void DateEntered() override;
    // The add screen removes a cover at once, without asking.
    Q_INVOKABLE void RemoveFrontImage() override;
    Q_INVOKABLE void RemoveBackImage() override;

    // The look-up sheet added a copy to a stored record: the screen returns to its opener.
    void lookupCopyAdded(const Vinyl &stored) override;

    // The record the last successful save stored (0 before).
    [[nodiscard]] qint64 savedRowId() const { return m_savedRowId; }

private:
    // A record that is on the wantlist may come off it: asked before the screen returns.
    void offerToTakeOffWantlist(const Vinyl &saved);
    void returnToOpener();

    qint64 m_savedRowId = 0;
    bool m_returning = false;
};
