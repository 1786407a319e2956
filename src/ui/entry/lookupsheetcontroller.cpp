#include "entry/lookupsheetcontroller.h"

#include "entry/recordformcontroller.h"
#include "lookup/barcodereader.h"
#include "lookup/lookuptexts.h"
#include "shell/appdelegate.h"
#include "shell/platformservices.h"
#include "store/translations.h"

#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QtConcurrent>

using namespace Qt::StringLiterals;

namespace {

const QString kCandidatesPage = u"candidates"_s;
const QString kDuplicatePage = u"duplicate"_s;
const QString kReviewPage = u"review"_s;

// Digits with the spaces and hyphens a barcode is printed with.
bool looksLikeBarcode(const QString &text)
{
    static const QRegularExpression barcode(u"^[0-9][0-9 -]*$"_s);
    return barcode.match(text).hasMatch();
}

QString copiesText(qint16 quantity)
{
    const int copies = std::max<int>(quantity, 1);
    return copies == 1 ? u"1 copy"_s : u"%1 copies"_s.arg(QLocale().toString(copies));
}

} // namespace

LookupSheetController::LookupSheetController(QObject *parent) : QObject(parent)
{
    connect(&m_client, &LookupClient::candidatesFound, this, &LookupSheetController::candidatesFound);
    connect(&m_client, &LookupClient::releaseFetched, this, &LookupSheetController::releaseFetched);
    connect(&m_client, &LookupClient::coversFetched, this, &LookupSheetController::coversFetched);
    connect(&m_client, &LookupClient::failed, this, &LookupSheetController::lookupFailed);
    connect(&m_thumbnails, &LookupClient::coversFetched, this,
            [this](const LookupCovers &covers) { m_candidates.setCover(m_nextThumbnail - 1, covers.front); });
    // A cover that cannot be had leaves its row without one; the next is asked for all the same.
    connect(&m_thumbnails, &LookupClient::finished, this, &LookupSheetController::fetchNextThumbnail,
            Qt::QueuedConnection);
    connect(&m_photo, &QFutureWatcherBase::finished, this, [this] {
        if (m_step != Step::Photo || m_photo.isCanceled() || m_photo.future().resultCount() == 0)
            return;
        const Result<QString> digits = m_photo.result();
        if (!digits)
            return stop(digits.errorMessage());
        setQuery(digits.value());
        Search();
    });
}

void LookupSheetController::setForm(RecordFormController *form)
{
    if (m_form == form)
        return;
    m_form = form;
    emit formChanged();
}

void LookupSheetController::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    m_query = query;
    emit queryChanged();
}

QVariantList LookupSheetController::changes() const
{
    QVariantList rows;
    for (const LookupFill::Change &change : m_changes)
        rows.append(QVariantMap{{u"what"_s, change.what}, {u"becomes"_s, change.becomes}});
    return rows;
}

bool LookupSheetController::canScan() const
{
    return m_form && m_form->app() && m_form->app()->platform().hasCamera();
}

void LookupSheetController::Search()
{
    const QString text = m_query.simplified();
    m_thumbnails.cancel();
    m_candidates.setCandidates({});
    setPage(kCandidatesPage);
    const bool barcode = looksLikeBarcode(text);
    m_searched = barcode ? text : u"\""_s + text + u'"';
    start(Step::Search, translated(LookupTexts::kSearching).arg(m_searched));
    if (barcode)
        m_client.searchBarcode(text);
    else
        m_client.searchText(text);
}

void LookupSheetController::BarcodeScanned(const QString &digits)
{
    setQuery(digits);
    Search();
}

void LookupSheetController::PhotoChosen(const QUrl &file)
{
    const QString path = file.isLocalFile() ? file.toLocalFile() : file.toString();
    m_client.cancel();
    start(Step::Photo, translated(LookupTexts::kReadingPhoto).arg(QFileInfo(path).fileName()));
    m_photo.setFuture(QtConcurrent::run([path]() -> Result<QString> {
        const auto read = BarcodeReader::readFile(path);
        if (!read)
            return read.error();
        return read->digits;
    }));
}

void LookupSheetController::CandidateChosen(int row)
{
    if (row < 0 || row >= m_candidates.rowCount() || !m_form)
        return;
    const LookupCandidate chosen = m_candidates.candidate(row);
    m_release.reset();
    m_duplicate.reset();
    m_found.reset();
    start(Step::Release, translated(LookupTexts::kFetching).arg(chosen.title));
    m_client.fetchRelease(chosen.releaseId);
}

void LookupSheetController::AddCopyButtonClicked()
{
    if (!m_duplicate || !m_form)
        return;
    Store &store = m_form->app()->persistentContainer();
    if (const auto writable = store.checkWritable(); !writable)
        return stop(writable.errorMessage());
    const auto added = LookedUp::addCopy(store, m_duplicate->rowId);
    if (!added)
        return stop(added.errorMessage());
    emit closeRequested();
    m_form->lookupCopyAdded(*added);
}

void LookupSheetController::AddSeparateButtonClicked()
{
    if (!m_release)
        return;
    setPage(kCandidatesPage);
    start(Step::Covers, translated(LookupTexts::kFetching).arg(m_release->summary.title));
    m_client.fetchCovers(m_release->summary.releaseId);
}

void LookupSheetController::FillInButtonClicked()
{
    if (!m_found || !m_form)
        return;
    m_form->takeLookup(*m_found, m_covers);
    emit closeRequested();
}

void LookupSheetController::BackToCandidates()
{
    setPage(kCandidatesPage);
    setMessage({});
}

void LookupSheetController::Cancel()
{
    m_client.cancel();
    m_thumbnails.cancel();
    m_photo.cancel();
    m_step = Step::None;
    if (m_busy) {
        m_busy = false;
        emit busyChanged();
    }
    emit closeRequested();
}

void LookupSheetController::candidatesFound(const QList<LookupCandidate> &found)
{
    m_candidates.setCandidates(found);
    stop(found.isEmpty() ? translated(LookupTexts::kNothingFound).arg(m_searched)
         : found.size() == 1 ? LookupTexts::kOneReleaseFound
                             : translated(LookupTexts::kReleasesFound).arg(found.size()));
    m_nextThumbnail = 0;
    fetchNextThumbnail();
}

void LookupSheetController::fetchNextThumbnail()
{
    if (m_thumbnails.isBusy() || m_nextThumbnail >= m_candidates.rowCount())
        return;
    m_thumbnails.fetchFrontThumbnail(m_candidates.candidate(m_nextThumbnail++).releaseId);
}

void LookupSheetController::releaseFetched(const LookupRelease &release)
{
    m_release = release;
    if (m_form && m_form->asksAboutStoredCopies()) {
        const auto stored = LookedUp::inCollection(m_form->app()->persistentContainer(), release);
        if (!stored)
            return stop(stored.errorMessage());
        if (*stored) {
            m_duplicate = **stored;
            m_duplicateMessage = translated(LookupTexts::kAlreadyInCollection).arg(LookedUp::nameOf(*m_duplicate),
                                                                       copiesText(m_duplicate->quantity.value_or(0)));
            setPage(kDuplicatePage);
            return stop({});
        }
    }
    m_step = Step::Covers;
    m_client.fetchCovers(release.summary.releaseId);
}

void LookupSheetController::coversFetched(const LookupCovers &covers)
{
    fill(covers, {});
}

void LookupSheetController::lookupFailed(const QString &message)
{
    // Covers that cannot be had do not keep the rest of the release from the form.
    if (m_step == Step::Covers)
        return fill({}, message);
    stop(message);
}

void LookupSheetController::fill(const LookupCovers &covers, const QString &coverProblem)
{
    if (!m_release || !m_form)
        return stop({});
    auto found = LookedUp::record(*m_release, covers);
    if (!found)
        return stop(found.errorMessage());
    m_covers = covers;
    m_found = *std::move(found);
    const QString problem = coverProblem.isEmpty() ? QString() : translated(LookupTexts::kCoversNotLoaded).arg(coverProblem);
    if (m_form->screen() == FormScreen::Add) {
        stop({});
        m_form->takeLookup(*m_found, m_covers, problem);
        emit closeRequested();
        return;
    }
    m_changes = m_form->lookupChanges(*m_found);
    setPage(kReviewPage);
    stop(m_changes.isEmpty() ? LookupTexts::kNothingToFill : problem);
}

void LookupSheetController::start(Step step, const QString &message)
{
    m_step = step;
    setMessage(message);
    if (!m_busy) {
        m_busy = true;
        emit busyChanged();
    }
}

void LookupSheetController::stop(const QString &message)
{
    m_step = Step::None;
    setMessage(message);
    if (m_busy) {
        m_busy = false;
        emit busyChanged();
    }
}

void LookupSheetController::setPage(const QString &page)
{
    m_page = page;
    emit pageChanged();
}

void LookupSheetController::setMessage(const QString &message)
{
    if (m_message == message)
        return;
    m_message = message;
    emit messageChanged();
}
