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
    // "Lent to Sam since Mar 3, 2026, due Apr 1"; empty while the record is in.
    Q_PROPERTY(QString loanStatus READ loanStatus NOTIFY loansChanged)
    Q_PROPERTY(bool onLoan READ onLoan NOTIFY loansChanged)
    Q_PROPERTY(bool overdue READ overdue NOTIFY loansChanged)
    // The record's past loans, the latest first: "Sam, Mar 3, 2026 – Mar 20, 2026".
    Q_PROPERTY(QStringList loanHistory READ loanHistory NOTIFY loansChanged)
    // The names records were lent to before, offered again as the borrower is typed.
    Q_PROPERTY(QStringList borrowers READ borrowers NOTIFY loansChanged)
    // Today in the medium date style, the day a loan starts unless told otherwise.
    Q_PROPERTY(QString todayText READ todayText CONSTANT)

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
    // Lends the record: days typed in the medium date style, the due day optional. Alerts and
    // answers false when the loan cannot be made.
    Q_INVOKABLE bool lend(const QString &borrower, const QString &lentText, const QString &dueText,
                          const QString &note);
    // The record is back today.
    Q_INVOKABLE void returned();
    // Back from tracks, notes or zoom: the form shows CurrentRecord again.
    Q_INVOKABLE void unwindToEdit();

    // The timer of the review request (single shot, 5 s); tests shorten it.
    [[nodiscard]] QTimer &reviewTimer() { return m_reviewTimer; }

    [[nodiscard]] QVariantList valueHistory() const;
    [[nodiscard]] QVariantList valueHistoryPoints() const;
    [[nodiscard]] QString loanStatus() const;
    [[nodiscard]] bool onLoan() const { return !m_loans.isEmpty() && m_loans.first().isOut(); }
    [[nodiscard]] bool overdue() const;
    [[nodiscard]] QStringList loanHistory() const;
    [[nodiscard]] QStringList borrowers() const { return m_borrowers; }
    [[nodiscard]] QString todayText() const;

signals:
    void valueHistoryChanged();
    void loansChanged();

protected:
    void viewDidLoad() override;
    [[nodiscard]] bool recordHasTracks() const override;

private:
    void fillForm();
    void askToRemove(CoverSide side);
    void removeCover(CoverSide side);
    void returnToOpener();
    void loadValueHistory();
    void loadLoans();
    Result<void> addLookedUpTracks(Store &store, const Vinyl &vinyl);

    QTimer m_reviewTimer;
    QList<Quote> m_quotes; // newest first
    QList<Loan> m_loans;   // the open one first, then the latest
    QStringList m_borrowers;
};

inline const QString kRemoveFrontTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Remove Front Cover Image"));
inline const QString kRemoveBackTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Remove Back Cover Image"));
inline const QString kNotLentTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Not Lent"));
inline const QString kNotReturnedTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Not Returned"));
inline const QString kNotADayMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "\"%1\" is not a day: write it as %2."));
inline const QString kRemoveImageMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Do You Want to Remove This Image?"));
