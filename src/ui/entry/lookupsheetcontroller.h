#pragma once

#include "entry/lookupcandidatemodel.h"
#include "entry/recordformcontroller.h"
#include "lookup/lookupclient.h"
#include "lookup/lookupfill.h"
#include "lookup/lookuprecord.h"

#include <QFutureWatcher>
#include <QObject>
#include <QPointer>
#include <QUrl>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <optional>

// The Look Up sheet of the add and edit screens: a barcode, a catalog number or "Artist - Title"
// (typed, scanned or read from a photo) is searched in the catalogue, the releases found are
// listed with their small covers as they come, and the one chosen fills the screen's form.
// On the add screen a release the collection already has (the same release, or the same album
// name and artist) is asked about first: one more copy of the stored record, a separate record,
// or neither. On the edit screen the sheet shows what the release would fill in (only what is
// empty) before it does. Nothing is stored except the extra copy; the form is saved as ever.
class LookupSheetController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    // The form the chosen release fills (the screen's controller).
    Q_PROPERTY(RecordFormController *form READ form WRITE setForm NOTIFY formChanged)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    // "candidates", "duplicate" (the already-in-the-collection question) or "review" (what the
    // edit screen's form would take).
    Q_PROPERTY(QString page READ page NOTIFY pageChanged)
    Q_PROPERTY(bool busy READ isBusy NOTIFY busyChanged)
    // What is happening or went wrong, in a line: "Searching MusicBrainz…", "2 releases found".
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(LookupCandidateModel *candidates READ candidates CONSTANT)
    // The question of the "duplicate" page.
    Q_PROPERTY(QString duplicateMessage READ duplicateMessage NOTIFY pageChanged)
    // The "review" page's lines: [{what, becomes}].
    Q_PROPERTY(QVariantList changes READ changes NOTIFY pageChanged)
    Q_PROPERTY(bool canScan READ canScan NOTIFY formChanged)

public:
    explicit LookupSheetController(QObject *parent = nullptr);

    [[nodiscard]] RecordFormController *form() const { return m_form; }
    void setForm(RecordFormController *form);
    [[nodiscard]] QString query() const { return m_query; }
    void setQuery(const QString &query);
    [[nodiscard]] QString page() const { return m_page; }
    [[nodiscard]] bool isBusy() const { return m_busy; }
    [[nodiscard]] QString message() const { return m_message; }
    [[nodiscard]] LookupCandidateModel *candidates() { return &m_candidates; }
    [[nodiscard]] QString duplicateMessage() const { return m_duplicateMessage; }
    [[nodiscard]] QVariantList changes() const;
    [[nodiscard]] bool canScan() const;

    // Searches for what the field holds: digits are a barcode, anything else a catalog number,
    // a title or "Artist - Title".
    Q_INVOKABLE void Search();
    // The camera read a barcode: it is searched at once.
    Q_INVOKABLE void BarcodeScanned(const QString &digits);
    // A photo of the sleeve was chosen: its barcode is read off the UI thread, then searched.
    Q_INVOKABLE void PhotoChosen(const QUrl &file);
    Q_INVOKABLE void CandidateChosen(int row);
    // The "duplicate" page's answers.
    Q_INVOKABLE void AddCopyButtonClicked();
    Q_INVOKABLE void AddSeparateButtonClicked();
    // The "review" page's answer.
    Q_INVOKABLE void FillInButtonClicked();
    // Back from the "duplicate" or "review" page to the releases found.
    Q_INVOKABLE void BackToCandidates();
    // Stops whatever runs; the sheet closes.
    Q_INVOKABLE void Cancel();

signals:
    void formChanged();
    void queryChanged();
    void pageChanged();
    void busyChanged();
    void messageChanged();
    // The sheet's work is done (the form is filled, or a copy was added): it closes.
    void closeRequested();

private:
    enum class Step { None, Photo, Search, Release, Covers };

    void start(Step step, const QString &message);
    void stop(const QString &message);
    void setPage(const QString &page);
    void setMessage(const QString &message);
    void candidatesFound(const QList<LookupCandidate> &found);
    void releaseFetched(const LookupRelease &release);
    void coversFetched(const LookupCovers &covers);
    void lookupFailed(const QString &message);
    void fetchNextThumbnail();
    void fill(const LookupCovers &covers, const QString &coverProblem);

    QPointer<RecordFormController> m_form;
    LookupClient m_client;
    LookupClient m_thumbnails; // the candidates' small covers, one after another
    LookupCandidateModel m_candidates;
    QFutureWatcher<Result<QString>> m_photo;

    QString m_query;
    QString m_searched; // what the last search asked for, for its messages
    QString m_page = QStringLiteral("candidates");
    QString m_message;
    bool m_busy = false;
    Step m_step = Step::None;
    int m_nextThumbnail = 0;

    std::optional<LookupRelease> m_release; // the release chosen
    std::optional<Vinyl> m_duplicate;       // the stored record that has it already
    QString m_duplicateMessage;
    std::optional<LookedUpRecord> m_found;  // the record the chosen release makes (edit screen)
    LookupCovers m_covers;
    QList<LookupFill::Change> m_changes;
};
