#pragma once

#include "browse/recordcardmodel.h"
#include "browse/recordlistcontroller.h"
#include "collection/breakdown.h"
#include "reports/filteredlistpdf.h"
#include "store/backgroundjob.h"
#include "store/result.h"
#include "store/translations.h"

#include <functional>
#include <optional>

// Runs off the UI thread; it counts the records written and stops when cancelled, leaving
// no file.
using BreakdownPdfWriter = std::function<Result<void>(const BreakdownPdfRequest &, const BackgroundJob::Progress &)>;

// The records of one group picked in a group list: a name search, an order toggle over four
// sort keys, swipe to delete, a header counting the records and a footer giving their value.
// A picked record opens the editor, which returns here by the list's named return. The four
// breakdown screens are this class with their own BreakdownKind.
class BreakdownTableViewController : public RecordListController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Use one of the four breakdown list controllers")
    Q_PROPERTY(QString title READ title NOTIFY listChanged)
    Q_PROPERTY(RecordCardModel *model READ model CONSTANT)
    Q_PROPERTY(QString placeholder READ placeholder CONSTANT)
    Q_PROPERTY(QString headerText READ headerText NOTIFY listChanged)
    Q_PROPERTY(QString footerText READ footerText NOTIFY listChanged)
    Q_PROPERTY(bool canSharePdf READ canSharePdf NOTIFY loaded)
    Q_PROPERTY(QString sortButtonTitle READ sortButtonTitle CONSTANT)
    Q_PROPERTY(QString shareButtonTitle READ shareButtonTitle CONSTANT)
    // While the PDF document is written: a progress bar with a count and a Cancel button.
    Q_PROPERTY(bool sharing READ sharing NOTIFY shareProgressChanged)
    Q_PROPERTY(QString shareProgressText READ shareProgressText NOTIFY shareProgressChanged)
    Q_PROPERTY(double shareProgress READ shareProgress NOTIFY shareProgressChanged)

public:
    [[nodiscard]] QString title() const;
    [[nodiscard]] RecordCardModel *model() { return &m_model; }
    [[nodiscard]] QString placeholder() const { return translated(m_kind.placeholder); }
    [[nodiscard]] QString headerText() const { return m_headerText; }
    [[nodiscard]] QString footerText() const { return m_footerText; }
    [[nodiscard]] QString sortButtonTitle() const;
    [[nodiscard]] QString shareButtonTitle() const;
    [[nodiscard]] bool searching() const { return !m_searchText.isEmpty(); }
    [[nodiscard]] const BreakdownKind &kind() const { return m_kind; }
    [[nodiscard]] bool sharing() const { return m_share.running(); }
    // "12,400 of 32,767" records written.
    [[nodiscard]] QString shareProgressText() const { return m_share.progressText(); }
    [[nodiscard]] double shareProgress() const { return m_share.progress(); }

    // The records shown, in the order shown (without covers).
    [[nodiscard]] QList<Vinyl> shownRecords() const;
    // <documents folder>/<the list's file name>
    [[nodiscard]] QString outputFilePath() const;

    // Sharing needs a PDF writer; the reports part installs it at start-up.
    static void setPdfWriter(BreakdownPdfWriter writer);
    [[nodiscard]] static bool canSharePdf();

    Q_INVOKABLE void SortButtonTapped();
    Q_INVOKABLE void updateSearchResults(const QString &text);
    // Swipe action "delete" on a shown row.
    Q_INVOKABLE void deleteRow(int row);
    // Copies the shown row's record into CurrentRecord and opens the editor.
    Q_INVOKABLE void rowSelected(int row);
    // The editor came back by this list's named return.
    Q_INVOKABLE void unwound(const QString &segue);
    void viewWillAppear() override { markLoans(m_model); }
    // The share / print button: the shown records as a PDF document, written off the UI
    // thread and then shared.
    Q_INVOKABLE void ShareButtonClicked();
    // Stops writing the document; nothing is shared and no file is left.
    Q_INVOKABLE void CancelShareButtonTapped();

    // Fetches the group's records again.
    void load();

signals:
    void listChanged();
    void shareProgressChanged();
    // Writing the document has finished, whether shared, cancelled or failed.
    void shareFinished();

protected:
    BreakdownTableViewController(const BreakdownKind &kind, AppDelegate *app, QObject *parent);
    void viewDidLoad() override;
    void reloadRecords() override { load(); }

private:
    void deleteRowNow(int row);
    void shareWritten(const Result<void> &written);
    void reloadTable();
    [[nodiscard]] const RecordCard &cardOf(int record, bool searching);
    [[nodiscard]] const QList<int> &shownList() const { return searching() ? m_filteredList : m_vinylList; }

    const BreakdownKind &m_kind;
    RecordCardModel m_model;
    // The records of the last fetch and their cards (index 0: not searching, 1: searching),
    // each card made when first shown; VinylList and FilteredVinylList index into them.
    QList<Vinyl> m_records;
    QList<std::optional<QString>> m_nameKeys;
    QList<std::optional<RecordCard>> m_cards[2];
    QList<int> m_vinylList;
    QList<int> m_filteredList;
    std::optional<bool> m_sortAsc;
    QString m_searchText;
    float m_value = 0;
    // Header and footer change when the list is reloaded, not when a row is deleted.
    QString m_headerText;
    const RecordCaptions m_captions = RecordCaptions::translatedNow();
    QString m_footerText;
    BackgroundJob m_share;
    QString m_shareFile;
};

class ArtistBreakdownTableViewController : public BreakdownTableViewController
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit ArtistBreakdownTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
    Q_INVOKABLE void ShareArtistButtonClicked() { ShareButtonClicked(); }
};

class LabelBreakdownTableViewController : public BreakdownTableViewController
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit LabelBreakdownTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
    Q_INVOKABLE void ShareLabelButtonClicked() { ShareButtonClicked(); }
};

class ProducerBreakdownTableViewController : public BreakdownTableViewController
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit ProducerBreakdownTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
    Q_INVOKABLE void ShareProducerButtonClicked() { ShareButtonClicked(); }
};

class YearBreakdownTableViewController : public BreakdownTableViewController
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit YearBreakdownTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
    Q_INVOKABLE void ShareYearButtonClicked() { ShareButtonClicked(); }
};
