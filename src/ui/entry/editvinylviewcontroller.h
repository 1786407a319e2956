#pragma once

#include "entry/recordformcontroller.h"

#include <QTimer>
#include <QVariantList>

// Shows the record the user opened (CurrentRecord) in the record form and stores changes to
// exactly that record. Also removes covers, shares the record as text with its covers and
// leads to the record's tracks, notes and cover zoom. Five seconds after it opens it asks
// for the app-review prompt, which ReviewService allows once a week.
class EditVinylViewController : public RecordFormController
{
    Q_OBJECT
    QML_ELEMENT
    // The record's quotes, newest first: [{dateText, valueText, source}].
    Q_PROPERTY(QVariantList valueHistory READ valueHistory NOTIFY valueHistoryChanged)
    // The same quotes for a line chart, oldest first: [{x: milliseconds since the epoch, y}].
    Q_PROPERTY(QVariantList valueHistoryPoints READ valueHistoryPoints NOTIFY valueHistoryChanged)

public:
    explicit EditVinylViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    Q_INVOKABLE void SaveVinylButtonClicked();
    // Both ask "Do You Want to Remove This Image?" and remove the stored cover on "Yes".
    Q_INVOKABLE void RemoveFrontImage() override;
    Q_INVOKABLE void RemoveBackImage() override;
    Q_INVOKABLE void shareButtonClicked();
    // A double tap on a cover opens the zoom screen.
    Q_INVOKABLE void TapFrontImage();
    Q_INVOKABLE void TracksButtonClicked();
    Q_INVOKABLE void NotesButtonClicked();
    // Back from tracks, notes or zoom: the form shows CurrentRecord again.
    Q_INVOKABLE void unwindToEdit();

    // The timer of the review request (single shot, 5 s); tests shorten it.
    [[nodiscard]] QTimer &reviewTimer() { return m_reviewTimer; }

    [[nodiscard]] QVariantList valueHistory() const;
    [[nodiscard]] QVariantList valueHistoryPoints() const;

signals:
    void valueHistoryChanged();

protected:
    void viewDidLoad() override;
    [[nodiscard]] bool recordHasTracks() const override;

private:
    void fillForm();
    void askToRemove(CoverSide side);
    void removeCover(CoverSide side);
    void returnToOpener();
    void loadValueHistory();
    Result<void> addLookedUpTracks(Store &store, const Vinyl &vinyl);

    QTimer m_reviewTimer;
    QList<Quote> m_quotes; // newest first
};

inline const QString kRemoveFrontTitle = QStringLiteral("Remove Front Cover Image");
inline const QString kRemoveBackTitle = QStringLiteral("Remove Back Cover Image");
inline const QString kRemoveImageMessage = QStringLiteral("Do You Want to Remove This Image?");
