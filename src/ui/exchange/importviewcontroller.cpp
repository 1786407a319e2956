#include "exchange/importviewcontroller.h"

#include "exchange/exchangeformat.h"
#include "shell/appdelegate.h"
#include "store/logging.h"
#include "store/snapshots.h"
#include "store/store.h"
#include "store/textfile.h"
#include "store/translations.h"

#include <QFileInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

// What a job is given and what it hands back; the worker writes the results before it ends.
struct ImportViewController::Work
{
    QString path;
    QString storePath;
    std::shared_ptr<const ImportFile> file;
    ImportMerge::Preview preview;
    QString shownText;
    ImportCounts applied;
    // A file picked for the wantlist, and what importing it would do or did.
    std::shared_ptr<const WantlistCsv::WantlistFile> wantlist;
    WantlistCsv::WantlistCounts wantlistCounts;
};

namespace {
QString unreadableNote(qint64 count)
{
    if (count == 0)
        return {};
    return u"\n\n"_s + (count == 1 ? translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "1 cover picture could not be read and was left out.")))
                                   : translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 cover pictures could not be read and were left out."))).arg(count));
}

QString notRead(const QStringList &columns)
{
    return columns.isEmpty() ? QString() : translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Not read: "))) + columns.join(u", "_s);
}

// "Skipped:" and the first lines skipped, each with its reason.
QString skippedLines(const QList<ImportProblem> &problems, qint64 count, qsizetype listedAtMost)
{
    if (problems.isEmpty())
        return {};
    QString text = u"\n\nSkipped:"_s;
    const qsizetype listed = std::min(problems.size(), listedAtMost);
    for (qsizetype i = 0; i < listed; ++i)
        text += u'\n' + ImportMerge::problemText(problems.at(i));
    if (count > listed)
        text += u'\n' + translated(ImportMessages::kMoreProblems).arg(QLocale().toString(count - listed));
    return text;
}

QString remarks(const ImportFile &file)
{
    QStringList lines;
    if (!file.ignoredColumns.isEmpty())
        lines.append(notRead(file.ignoredColumns));
    if (!file.remarks.isEmpty())
        lines.append(translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Conditions: %1"))).arg(file.remarks.join(u"; "_s)));
    return lines.join(u'\n');
}
} // namespace

ImportViewController::ImportViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    connect(&m_job, &BackgroundJob::progressChanged, this, &ImportViewController::progressChanged);
    connect(&m_job, &BackgroundJob::finished, this, [this](const Result<void> &result) {
        if (m_importing)
            importDone(result);
        else
            previewDone(result);
    });
    loadIfReady();
}

ImportViewController::~ImportViewController()
{
    // An import the user started runs to its end; a preview is only stopped.
    disconnect(&m_job, nullptr, this, nullptr);
    if (m_importing)
        m_job.waitForFinished();
}

QString ImportViewController::helpText()
{
    return translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "YOU CAN IMPORT THE FILE CREATED BY THIS APP, A DISCOGS COLLECTION EXPORT OR A CSV FILE."))) + u'\n'
           + translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "1: Select the file you saved to your iCloud drive"))) + u'\n' + translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "2: Import the file into your device")))
           + u"\n\n"_s + translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "With Into the Wantlist on, a Discogs wantlist export or a CSV file adds its albums to the wantlist.")));
}

void ImportViewController::setIntoWantlist(bool on)
{
    if (on == m_intoWantlist || !loadFileButtonEnabled())
        return;
    m_intoWantlist = on;
    emit changed();
}

void ImportViewController::LoadFile()
{
    if (loadFileButtonEnabled())
        emit openDocumentPicker();
}

void ImportViewController::documentPicked(const QUrl &url)
{
    if (!app() || busy())
        return;
    auto work = std::make_shared<Work>();
    work->path = url.isLocalFile() ? url.toLocalFile() : url.toString();
    work->storePath = app()->persistentContainer().filePath();
    m_work = work;
    m_filename = QFileInfo(work->path).fileName();
    if (m_intoWantlist) {
        m_job.start([work](const BackgroundJob::Progress &) -> Result<void> {
            auto bytes = TextFile::readUtf8(work->path);
            if (!bytes)
                return bytes.error();
            auto file = std::make_shared<const WantlistCsv::WantlistFile>(WantlistCsv::read(std::move(*bytes)));
            if (file->format() == ImportFormat::Unknown)
                return Error{WantlistCsv::kNotAWantlist};
            auto store = Store::open(work->storePath);
            if (!store)
                return store.error();
            auto counts = WantlistCsv::preview(**store, *file);
            if (!counts)
                return counts.error();
            work->wantlist = std::move(file);
            work->wantlistCounts = std::move(*counts);
            return {};
        }, false);
        emit changed();
        return;
    }
    m_job.start([work](const BackgroundJob::Progress &progress) -> Result<void> {
        auto bytes = TextFile::readUtf8(work->path);
        if (!bytes)
            return bytes.error();
        auto file = std::make_shared<const ImportFile>(ImportFiles::read(std::move(*bytes)));
        work->shownText = Exchange::preview(file->text, kPreviewCharacters);
        auto store = Store::open(work->storePath);
        if (!store)
            return store.error();
        auto preview = ImportMerge::preview(**store, *file, progress);
        if (!preview)
            return preview.error();
        work->file = std::move(file);
        work->preview = std::move(*preview);
        return {};
    });
    emit changed();
}

void ImportViewController::previewDone(const Result<void> &result)
{
    const std::shared_ptr<Work> work = std::move(m_work);
    if (result && work && work->wantlist && !m_job.cancelled()) {
        wantlistPreviewDone(*work);
        return;
    }
    if (!result || !work || !work->file) {
        m_filename.clear();
        emit changed();
        emit previewFinished();
        if (!m_job.cancelled()) {
            consoleLine(result.errorMessage());
            showAlert(kTitle, translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The file could not be read."))) + u'\n' + result.errorMessage());
        }
        return;
    }
    m_file = work->file;
    m_counts = work->preview.counts;
    m_importText = work->shownText;
    m_formatLabel = ImportFiles::summary(*m_file);
    m_countsLabel = ImportMerge::countsText(m_counts);
    m_remarksLabel = remarks(*m_file);
    m_preview.setPreview(m_file, std::move(work->preview.outcomes), std::move(work->preview.details));
    emit changed();
    emit previewFinished();
    showAlert(kTitle, kLoaded);
}

void ImportViewController::ImportTextFile()
{
    if (!app() || !importButtonEnabled() || refusedAsReadOnly())
        return;
    auto work = std::make_shared<Work>();
    work->storePath = app()->persistentContainer().filePath();
    work->file = m_file;
    work->wantlist = m_wantlist;
    const QString source = m_filename;
    m_work = work;
    m_importing = true;
    if (m_wantlist) {
        // The albums are added all at once: there is nothing to stop half-way.
        m_job.start([work, source, snapshots = app()->snapshots()](const BackgroundJob::Progress &) mutable -> Result<void> {
            auto store = Store::open(work->storePath);
            if (!store)
                return store.error();
            auto counts = WantlistCsv::applyAfterSnapshot(**store, *work->wantlist, snapshots, source);
            if (!counts)
                return counts.error();
            work->wantlistCounts = std::move(*counts);
            return {};
        }, false);
        emit changed();
        return;
    }
    m_job.start([work, source, snapshots = app()->snapshots()](const BackgroundJob::Progress &progress) mutable
                -> Result<void> {
        auto store = Store::open(work->storePath);
        if (!store)
            return store.error();
        auto counts = ImportMerge::applyAfterSnapshot(**store, *work->file, snapshots, source, progress);
        if (!counts)
            return counts.error();
        work->applied = std::move(*counts);
        return {};
    });
    emit changed();
}

void ImportViewController::importDone(const Result<void> &result)
{
    const std::shared_ptr<Work> work = std::move(m_work);
    m_importing = false;
    emit changed();
    emit importFinished();
    if (work && work->wantlist) {
        wantlistImportDone(result, *work);
        return;
    }
    if (m_job.cancelled() && (!result || (work->applied.stopped && work->applied.linesApplied == 0))) {
        showAlert(kCancelledTitle, ImportMessages::kCancelled);
        return;
    }
    if (!result) {
        showAlert(kTitle, kStoreErrorTitle + result.errorMessage());
        return;
    }
    m_counts = work->applied;
    m_countsLabel = ImportMerge::countsText(m_counts);
    emit changed();
    if (m_counts.stopped) {
        const QLocale locale;
        showAlert(kCancelledTitle, translated(ImportMessages::kStopped).arg(locale.toString(m_counts.linesApplied),
                                                                locale.toString(work->file->lineCount()),
                                                                m_countsLabel));
        return;
    }
    showAlert(kTitle, completionMessage(), {translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "OK")))}, [this](int) {
        if (app())
            app()->navigator()->unwind(u"unwindToMenu"_s);
    });
}

QString ImportViewController::completionMessage() const
{
    return kCompleted + u"\n\n"_s + ImportMerge::countsText(m_counts)
           + skippedLines(m_counts.problems, m_counts.problemCount(), kListedProblems) + unreadableNote(m_counts.unreadableImages);
}

void ImportViewController::wantlistPreviewDone(const Work &work)
{
    m_wantlist = work.wantlist;
    m_formatLabel = m_wantlist->summary();
    m_countsLabel = WantlistCsv::previewText(work.wantlistCounts);
    m_remarksLabel = notRead(m_wantlist->ignoredColumns());
    emit changed();
    emit previewFinished();
    showAlert(kTitle, kLoaded);
}

void ImportViewController::wantlistImportDone(const Result<void> &result, const Work &work)
{
    if (!result) {
        showAlert(kTitle, kStoreErrorTitle + result.errorMessage());
        return;
    }
    const WantlistCsv::WantlistCounts &counts = work.wantlistCounts;
    m_countsLabel = WantlistCsv::countsText(counts);
    emit changed();
    showAlert(kTitle, kWantlistCompleted + u"\n\n"_s + m_countsLabel
                          + skippedLines(counts.problems, counts.skipped(), kListedProblems),
              {translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "OK")))}, [this](int) {
                  if (app())
                      app()->navigator()->unwind(u"unwindToMenu"_s);
              });
}

void ImportViewController::CancelButtonTapped()
{
    m_job.cancel();
}

void ImportViewController::ShowLines(int kind)
{
    m_preview.showKind(kind);
    emit changed();
}
