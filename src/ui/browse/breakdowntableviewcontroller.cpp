#include "browse/breakdowntableviewcontroller.h"

#include "collection/browsetexts.h"
#include "collection/collectionlist.h"
#include "collection/textorder.h"
#include "shell/appdelegate.h"
#include "shell/platformservices.h"
#include "store/logging.h"
#include "store/translations.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
BreakdownPdfWriter &pdfWriter()
{
    static BreakdownPdfWriter writer;
    return writer;
}
} // namespace

BreakdownTableViewController::BreakdownTableViewController(const BreakdownKind &kind, AppDelegate *app, QObject *parent)
    : RecordListController(app, parent), m_kind(kind)
{
    m_headerText = CollectionList::headerText(0, 0);
    m_footerText = Breakdown::footerText(m_kind, 0, 0, false);
    connect(&m_share, &BackgroundJob::progressChanged, this, &BreakdownTableViewController::shareProgressChanged);
    connect(&m_share, &BackgroundJob::finished, this, &BreakdownTableViewController::shareWritten);
}

void BreakdownTableViewController::setPdfWriter(BreakdownPdfWriter writer)
{
    pdfWriter() = std::move(writer);
}

bool BreakdownTableViewController::canSharePdf()
{
    return bool(pdfWriter());
}

QString BreakdownTableViewController::title() const
{
    return app() ? Breakdown::title(m_kind, app()->state()->currentRecord()) : translated(m_kind.title);
}

QString BreakdownTableViewController::sortButtonTitle() const
{
    return translated(BrowseTexts::kSortButtonTitle);
}

QString BreakdownTableViewController::shareButtonTitle() const
{
    return translated(BrowseTexts::kPrintButtonTitle);
}

QString BreakdownTableViewController::outputFilePath() const
{
    return app() ? QDir(app()->documentsDir()).filePath(m_kind.fileName) : m_kind.fileName;
}

void BreakdownTableViewController::viewDidLoad()
{
    app()->state()->setOriginScreen(m_kind.originScreen);
    m_sortAsc = true;
    app()->state()->editCurrentRecord().images.clear();
    load();
}

void BreakdownTableViewController::load()
{
    if (!app() || !m_sortAsc)
        return;
    m_records.clear();
    m_nameKeys.clear();
    m_cards[0].clear();
    m_cards[1].clear();
    m_vinylList.clear();
    m_filteredList.clear();
    markLoans(m_model);

    // A failed fetch leaves the list empty.
    if (const auto request = Breakdown::request(m_kind, app()->state()->currentRecord(), *m_sortAsc)) {
        if (auto fetched = app()->persistentContainer().fetchVinyl(*request))
            m_records = std::move(fetched.value());
        else
            consoleLine(fetched.errorMessage());
    }
    for (int i = 0; i < m_records.size(); ++i) {
        const Vinyl &vinyl = m_records.at(i);
        m_nameKeys.append(vinyl.name ? std::optional<QString>(vinyl.name->toLower()) : std::nullopt);
        m_vinylList.append(i);
    }
    m_cards[0].resize(m_records.size());
    m_cards[1].resize(m_records.size());
    m_value = Breakdown::groupValue(m_records);
    m_filteredList = Breakdown::searchByName(m_nameKeys, m_vinylList, m_searchText);
    reloadTable();
}

void BreakdownTableViewController::SortButtonTapped()
{
    if (!m_sortAsc)
        return;
    m_sortAsc = !*m_sortAsc;
    app()->state()->setSortAscending(*m_sortAsc);
    if (!searching()) {
        load();
        return;
    }
    const bool ascending = *m_sortAsc;
    std::stable_sort(m_filteredList.begin(), m_filteredList.end(), [&](int a, int b) {
        const QString nameA = text(m_records.at(a).name);
        const QString nameB = text(m_records.at(b).name);
        return ascending ? codePointLess(nameA, nameB) : codePointLess(nameB, nameA);
    });
    reloadTable();
}

void BreakdownTableViewController::updateSearchResults(const QString &text)
{
    m_searchText = text;
    m_filteredList = Breakdown::searchByName(m_nameKeys, m_vinylList, text);
    reloadTable();
}

void BreakdownTableViewController::deleteRow(int row)
{
    QList<int> &list = searching() ? m_filteredList : m_vinylList;
    if (!app() || row < 0 || row >= list.size() || refusedAsReadOnly())
        return;
    const qint64 rowId = m_records.at(list.at(row)).rowId;
    const auto stillThere = [this, row, rowId] {
        const QList<int> &now = searching() ? m_filteredList : m_vinylList;
        if (row < now.size() && m_records.at(now.at(row)).rowId == rowId)
            deleteRowNow(row);
    };
    if (!askedBeforeDeletingLent(rowId, stillThere))
        deleteRowNow(row);
}

void BreakdownTableViewController::deleteRowNow(int row)
{
    QList<int> &list = searching() ? m_filteredList : m_vinylList;
    if (!deleteRecord(m_records.at(list.at(row)).rowId))
        return;
    // Only the list the row was deleted from changes; header, footer and the other list keep
    // their figures until the next load.
    list.removeAt(row);
    m_model.removeCard(row);
}

void BreakdownTableViewController::rowSelected(int row)
{
    const QList<int> &list = shownList();
    if (!app() || row < 0 || row >= list.size())
        return;
    openRecord(m_records.at(list.at(row)).rowId, m_kind.originScreen);
}

void BreakdownTableViewController::unwound(const QString &segue)
{
    Q_UNUSED(segue);
    if (app())
        app()->state()->setOriginScreen(m_kind.originScreen);
    load();
}

QList<Vinyl> BreakdownTableViewController::shownRecords() const
{
    QList<Vinyl> records;
    for (int index : shownList())
        records.append(m_records.at(index));
    return records;
}

void BreakdownTableViewController::ShareButtonClicked()
{
    if (!app() || !canSharePdf() || sharing())
        return;
    if (!app()->platform().canSendText()) {
        showAlert(BrowseTexts::kCantSendTextTitle, BrowseTexts::kCantSendTextMessage);
        return;
    }
    if (shownList().isEmpty()) {
        showAlert(BrowseTexts::kEmptyDataSetTitle, BrowseTexts::kEmptyDataSetMessage);
        return;
    }
    const BreakdownPdfRequest request{m_kind, shownRecords(), outputFilePath(),
                                     app()->persistentContainer().filePath()};
    m_shareFile = request.outputFilePath;
    m_share.start([request, writer = pdfWriter()](const BackgroundJob::Progress &progress) {
        return writer(request, progress);
    });
}

void BreakdownTableViewController::shareWritten(const Result<void> &written)
{
    emit shareFinished();
    if (m_share.cancelled() || !app())
        return;
    if (!written) {
        showAlert(BrowseTexts::kPdfNotWrittenTitle, written.errorMessage());
        return;
    }
    ShareItems items;
    items.filePaths.append(m_shareFile);
    app()->platform().share(items);
}

void BreakdownTableViewController::CancelShareButtonTapped()
{
    m_share.cancel();
}

void BreakdownTableViewController::reloadTable()
{
    const QList<int> &list = shownList();
    const bool whileSearching = searching();
    m_model.setCards(list, [this, whileSearching](int record) -> const RecordCard & {
        return cardOf(record, whileSearching);
    });
    m_headerText = CollectionList::headerText(list.size(), m_vinylList.size());
    m_footerText = Breakdown::footerText(m_kind, m_value, Breakdown::valueOf(m_records, m_filteredList), searching());
    emit listChanged();
}

const RecordCard &BreakdownTableViewController::cardOf(int record, bool whileSearching)
{
    std::optional<RecordCard> &card = m_cards[whileSearching ? 1 : 0][record];
    if (!card)
        card = Breakdown::makeCard(m_records.at(record), m_kind, whileSearching, m_captions);
    return *card;
}

ArtistBreakdownTableViewController::ArtistBreakdownTableViewController(AppDelegate *app, QObject *parent)
    : BreakdownTableViewController(BreakdownKinds::Artist, app, parent)
{
    loadIfReady();
}

LabelBreakdownTableViewController::LabelBreakdownTableViewController(AppDelegate *app, QObject *parent)
    : BreakdownTableViewController(BreakdownKinds::Label, app, parent)
{
    loadIfReady();
}

ProducerBreakdownTableViewController::ProducerBreakdownTableViewController(AppDelegate *app, QObject *parent)
    : BreakdownTableViewController(BreakdownKinds::Producer, app, parent)
{
    loadIfReady();
}

YearBreakdownTableViewController::YearBreakdownTableViewController(AppDelegate *app, QObject *parent)
    : BreakdownTableViewController(BreakdownKinds::Year, app, parent)
{
    loadIfReady();
}
