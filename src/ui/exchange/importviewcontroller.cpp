#include "exchange/importviewcontroller.h"

#include "exchange/exchangeformat.h"
#include "shell/appdelegate.h"
#include "store/logging.h"
#include "store/snapshots.h"
#include "store/store.h"
#include "store/textfile.h"

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
};

namespace {
QString unreadableNote(qint64 count)
{
    if (count == 0)
        return {};
    return u"\n\n"_s + (count == 1 ? u"1 cover picture could not be read and was left out."_s
                                   : u"%1 cover pictures could not be read and were left out."_s.arg(count));
}

QString remarks(const ImportFile &file)
{
    QStringList lines;
    if (!file.ignoredColumns.isEmpty())
        lines.append(u"Not read: "_s + file.ignoredColumns.join(u", "_s));
    if (!file.remarks.isEmpty())
        lines.append(u"Conditions: "_s + file.remarks.join(u"; "_s));
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
    return u"YOU CAN IMPORT THE FILE CREATED BY THIS APP, A DISCOGS COLLECTION EXPORT OR A CSV FILE.\n"_s
           + u"1: Select the file you saved to your iCloud drive\n"_s + u"2: Import the file into your device"_s;
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
    if (!result || !work || !work->file) {
        m_filename.clear();
        emit changed();
        emit previewFinished();
        if (!m_job.cancelled()) {
            consoleLine(result.errorMessage());
            showAlert(kTitle, u"The file could not be read.\n"_s + result.errorMessage());
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
    const QString source = m_filename;
    m_work = work;
    m_importing = true;
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
        showAlert(kCancelledTitle, ImportMessages::kStopped.arg(locale.toString(m_counts.linesApplied),
                                                                locale.toString(work->file->lineCount()),
                                                                m_countsLabel));
        return;
    }
    showAlert(kTitle, completionMessage(), {u"OK"_s}, [this](int) {
        if (app())
            app()->navigator()->unwind(u"unwindToMenu"_s);
    });
}

QString ImportViewController::completionMessage() const
{
    QString message = kCompleted + u"\n\n"_s + ImportMerge::countsText(m_counts);
    const QList<ImportProblem> &problems = m_counts.problems;
    if (!problems.isEmpty()) {
        message += u"\n\nSkipped:"_s;
        const qsizetype listed = std::min<qsizetype>(problems.size(), kListedProblems);
        for (qsizetype i = 0; i < listed; ++i)
            message += u'\n' + ImportMerge::problemText(problems.at(i));
        if (m_counts.problemCount() > listed)
            message += u'\n' + ImportMessages::kMoreProblems.arg(QLocale().toString(m_counts.problemCount() - listed));
    }
    return message + unreadableNote(m_counts.unreadableImages);
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
