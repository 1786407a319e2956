#include "exportviewcontroller.h"

#include "appdelegate.h"
#include "exchangeformat.h"
#include "exchangewriter.h"
#include "platformservices.h"
#include "store.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSaveFile>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
// One slice of building: short enough that the window keeps drawing.
constexpr int kSliceMilliseconds = 30;
constexpr int kLinesPerStep = 16;
constexpr int kCompletionDelayMilliseconds = 1000;

QString unreadableNote(int count)
{
    if (count == 0)
        return {};
    return u"\n\n"_s + (count == 1 ? u"1 cover picture could not be read and was left out."_s
                                   : u"%1 cover pictures could not be read and were left out."_s.arg(count));
}

} // namespace

ExportViewController::ExportViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    connect(&m_csvJob, &BackgroundJob::progressChanged, this, [this] {
        m_progress = m_csvJob.progress();
        emit changed();
    });
    connect(&m_csvJob, &BackgroundJob::finished, this, &ExportViewController::finishCsvBuild);
    loadIfReady();
}

ExportViewController::~ExportViewController() = default;

QString ExportViewController::helpText()
{
    return u"Step 1: Create the Export File\n"_s + u"Step 2: Option 1: Click 'Save To Files' button\n"_s
           + u"             Option 2: Click the Email File button to email the file to yourself and then from your "
             "email save the file to your iCloud Drive. There are size limits to email attachments for most carriers."_s;
}

void ExportViewController::CreateUpdateFile()
{
    build();
}

void ExportViewController::CreateUpdateFileWithoutImages()
{
    m_exportImages = false;
    build();
}

void ExportViewController::setTracksInRecordsFile(bool on)
{
    if (m_tracksInRecordsFile == on)
        return;
    m_tracksInRecordsFile = on;
    emit changed();
}

void ExportViewController::CreateCsvFile()
{
    if (!app() || m_building || !m_exportButtonEnabled)
        return;
    auto result = std::make_shared<CollectionCsv::Files>();
    m_csvResult = result;
    const QString storePath = app()->persistentContainer().filePath();
    const bool tracksInRecordsFile = m_tracksInRecordsFile;
    m_building = true;
    m_exportButtonEnabled = false;
    m_exportText.clear();
    m_progress = 0.0;
    emit changed();
    m_csvJob.start([=](const BackgroundJob::Progress &progress) -> Result<void> {
        auto store = Store::open(storePath);
        if (!store)
            return store.error();
        auto files = CollectionCsv::write(**store, tracksInRecordsFile, progress);
        if (!files)
            return files.error();
        *result = std::move(*files);
        return {};
    });
}

void ExportViewController::finishCsvBuild(const Result<void> &result)
{
    if (!result) {
        failBuild(result.errorMessage());
        return;
    }
    m_csvFiles = std::move(*m_csvResult);
    m_csvResult.reset();
    // The text view shows the records file without its byte-order mark.
    finishBuild(m_csvFiles.records.mid(3), 0);
}

void ExportViewController::build()
{
    if (!app() || m_building)
        return;
    m_writer = std::make_unique<ExchangeWriter>(app()->persistentContainer(), m_exportImages);
    m_building = true;
    m_exportButtonEnabled = false;
    m_exportText.clear();
    m_progress = 0.0;
    emit changed();
    if (auto started = m_writer->start(); !started) {
        failBuild(started.errorMessage());
        return;
    }
    QTimer::singleShot(0, this, &ExportViewController::buildStep);
}

void ExportViewController::buildStep()
{
    if (!m_writer)
        return;
    QElapsedTimer slice;
    slice.start();
    while (!m_writer->finished() && slice.elapsed() < kSliceMilliseconds) {
        if (auto step = m_writer->writeSome(kLinesPerStep); !step) {
            failBuild(step.errorMessage());
            return;
        }
    }
    m_progress = m_writer->fraction();
    emit changed();
    if (m_writer->finished()) {
        const int unreadable = m_writer->unreadableImages();
        m_dataString = m_writer->data();
        m_writer.reset();
        finishBuild(m_dataString, unreadable);
    }
    else
        QTimer::singleShot(0, this, &ExportViewController::buildStep);
}

void ExportViewController::finishBuild(const QByteArray &shown, int unreadable)
{
    m_exportText = Exchange::preview(shown, kPreviewCharacters);
    m_building = false;
    m_saveFileButtonEnabled = true;
    m_emailButtonEnabled = true;
    m_exportButtonEnabled = false;
    m_progress = 1.0;
    emit changed();
    emit buildFinished();
    QTimer::singleShot(kCompletionDelayMilliseconds, this,
                       [this, unreadable]() { showAlert(kTitle, kDone + unreadableNote(unreadable)); });
}

void ExportViewController::failBuild(const QString &message)
{
    m_writer.reset();
    m_building = false;
    m_exportButtonEnabled = true;
    m_progress = 0.0;
    emit changed();
    emit buildFinished();
    showAlert(kTitle, u"The collection could not be read: "_s + message);
}

QList<std::pair<QString, QByteArray>> ExportViewController::builtFiles() const
{
    if (!m_dataString.isEmpty())
        return {{Exchange::kFileName, m_dataString}};
    QList<std::pair<QString, QByteArray>> files;
    if (!m_csvFiles.records.isEmpty())
        files.append({kRecordsCsvName, m_csvFiles.records});
    if (!m_csvFiles.tracks.isEmpty())
        files.append({kTracksCsvName, m_csvFiles.tracks});
    return files;
}

void ExportViewController::SaveFile()
{
    const auto files = builtFiles();
    if (!app() || files.isEmpty())
        return;
    ShareItems items;
    for (const auto &[name, data] : files) {
        const QString path = QDir(app()->tempDir()).filePath(name);
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.commit()) {
            showAlert(u"Save To Files"_s, u"The file could not be written: "_s + file.errorString());
            return;
        }
        items.filePaths << path;
    }
    app()->platform().share(items);
}

void ExportViewController::WriteTextFile()
{
    const auto files = builtFiles();
    if (!app() || files.isEmpty())
        return;
    if (!app()->platform().canSendMail()) {
        showAlert(kMailTitle, kMailUnavailable);
        return;
    }
    MailMessage mail;
    mail.subject = kMailSubject;
    mail.body = kMailBody;
    const QString mimeType = m_dataString.isEmpty() ? kCsvMimeType : kMailMimeType;
    for (const auto &[name, data] : files)
        mail.attachments.append(MailAttachment{data, mimeType, name});
    app()->platform().composeMail(mail);
}
