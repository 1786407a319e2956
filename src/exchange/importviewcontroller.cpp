#include "importviewcontroller.h"

#include "appdelegate.h"
#include "exchangeformat.h"
#include "textfile.h"
#include "exchangereader.h"
#include "logging.h"
#include "snapshots.h"

#include <QFileInfo>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
QString unreadableNote(qint64 count)
{
    if (count == 0)
        return {};
    return u"\n\n"_s + (count == 1 ? u"1 cover picture could not be read and was left out."_s
                                   : u"%1 cover pictures could not be read and were left out."_s.arg(count));
}
} // namespace

ImportViewController::ImportViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    connect(&m_snapshotJob, &BackgroundJob::finished, this, [this](const Result<void> &kept) {
        if (!kept) {
            m_importing = false;
            m_importButtonEnabled = true;
            emit changed();
            showAlert(kTitle, u"Nothing was imported: the collection could not be kept before the import, so it could "
                              "not be undone.\n"_s + kept.errorMessage());
            return;
        }
        startMerge();
    });
    loadIfReady();
}

ImportViewController::~ImportViewController() = default;

QString ImportViewController::helpText()
{
    return u"YOU CAN ONLY IMPORT THE FILE CREATED BY THIS APP.\n"_s
           + u"1: Select the file you saved to your iCloud drive\n"_s + u"2: Import the file into your device"_s;
}

void ImportViewController::LoadFile()
{
    if (m_loadFileButtonEnabled)
        emit openDocumentPicker();
}

void ImportViewController::documentPicked(const QUrl &url)
{
    const QString path = url.isLocalFile() ? url.toLocalFile() : url.toString();
    auto text = TextFile::readUtf8(path);
    if (!text) {
        consoleLine(text.errorMessage());
        showAlert(kTitle, u"The file could not be read.\n"_s + text.errorMessage());
        return;
    }
    m_filename = QFileInfo(path).fileName();
    m_document = *text;
    if (m_document.isNull())
        m_document = u""_s;
    m_importText = Exchange::preview(m_document.toUtf8(), kPreviewCharacters);
    m_importButtonEnabled = true;
    m_loadFileButtonEnabled = false;
    emit changed();
    showAlert(kTitle, kLoaded);
}

void ImportViewController::ImportTextFile()
{
    if (!app() || m_document.isNull() || m_importing)
        return;
    m_importing = true;
    m_importButtonEnabled = false;
    m_progress = 0.0;
    emit changed();
    Snapshots snapshots = app()->snapshots();
    const QString source = m_filename;
    m_snapshotJob.start([snapshots, source](const BackgroundJob::Progress &progress) mutable -> Result<void> {
        auto kept = snapshots.take(Snapshots::kKindImport, source, progress);
        return kept ? Result<void>() : Result<void>(kept.error());
    });
}

void ImportViewController::startMerge()
{
    m_reader = std::make_unique<ExchangeReader>(app()->persistentContainer(), m_document);
    if (auto started = m_reader->start(); !started) {
        failImport(started.errorMessage());
        return;
    }
    QTimer::singleShot(0, this, &ImportViewController::importStep);
}

void ImportViewController::importStep()
{
    if (!m_reader)
        return;
    if (!m_reader->finished()) {
        if (auto step = m_reader->importSome(kBatchLines); !step) {
            failImport(step.errorMessage());
            return;
        }
    }
    m_progress = m_reader->fraction();
    emit changed();
    if (m_reader->finished())
        finishImport();
    else
        QTimer::singleShot(0, this, &ImportViewController::importStep);
}

void ImportViewController::finishImport()
{
    const qint64 unreadable = m_reader->counts().unreadableImages;
    m_reader.reset();
    m_importing = false;
    m_importButtonEnabled = true;
    m_progress = 1.0;
    emit changed();
    emit importFinished();
    showAlert(kTitle, kCompleted + unreadableNote(unreadable), {u"OK"_s}, [this](int) {
        if (app())
            app()->navigator()->unwind(u"unwindToMenu"_s);
    });
}

void ImportViewController::failImport(const QString &message)
{
    const qint64 done = m_reader ? m_reader->linesDone() : 0;
    m_reader.reset();
    m_importing = false;
    m_importButtonEnabled = true;
    emit changed();
    emit importFinished();
    showAlert(kTitle, kStoreErrorTitle + message
                          + u"\n\nThe import stopped; the %1 lines before it were imported."_s.arg(done));
}
