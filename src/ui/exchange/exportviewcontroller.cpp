#include "exchange/exportviewcontroller.h"

#include "exchange/exchangeformat.h"
#include "exchange/exchangewriter.h"
#include "shell/appdelegate.h"
#include "shell/platformservices.h"
#include "store/store.h"
#include "store/translations.h"

#include <QDir>
#include <QSaveFile>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
constexpr int kCompletionDelayMilliseconds = 1000;

QString unreadableNote(int count)
{
    if (count == 0)
        return {};
    return u"\n\n"_s + (count == 1 ? u"1 cover picture could not be read and was left out."_s
                                   : u"%1 cover pictures could not be read and were left out."_s.arg(count));
}

} // namespace

// What the worker hands back: the exchange text or the CSV files.
struct ExportViewController::Built
{
    QByteArray exchange;
    CollectionCsv::Files csv;
    int unreadable = 0;
    // What the text view shows; made on the worker, as it reads the whole file.
    QString preview;
};

ExportViewController::ExportViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    connect(&m_job, &BackgroundJob::progressChanged, this, [this] {
        if (!m_building)
            return;
        m_progress = m_job.progress();
        emit changed();
    });
    connect(&m_job, &BackgroundJob::finished, this, &ExportViewController::buildDone);
    loadIfReady();
}

ExportViewController::~ExportViewController()
{
    // Nothing is kept of a build the user leaves.
    disconnect(&m_job, nullptr, this, nullptr);
    m_job.cancel();
}

QString ExportViewController::helpText()
{
    return translated(QStringLiteral(QT_TRANSLATE_NOOP(
        "Platterbox",
        "Step 1: Create the Export File\nStep 2: Option 1: Click 'Save To Files' button\n"
        "             Option 2: Click the Email File button to email the file to yourself and then from your "
        "email save the file to your iCloud Drive. There are size limits to email attachments for most carriers.")));
}

void ExportViewController::CreateUpdateFile()
{
    const bool images = m_exportImages;
    startBuild([images](Store &store, Built &built, const BackgroundJob::Progress &progress) -> Result<void> {
        auto text = ExchangeWriter::build(store, images, &built.unreadable, progress);
        if (!text)
            return text.error();
        built.exchange = std::move(*text);
        return {};
    });
}

void ExportViewController::CreateUpdateFileWithoutImages()
{
    m_exportImages = false;
    CreateUpdateFile();
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
    if (!m_exportButtonEnabled)
        return;
    const bool tracksInRecordsFile = m_tracksInRecordsFile;
    startBuild([tracksInRecordsFile](Store &store, Built &built, const BackgroundJob::Progress &progress) -> Result<void> {
        auto files = CollectionCsv::write(store, tracksInRecordsFile, progress);
        if (!files)
            return files.error();
        built.csv = std::move(*files);
        return {};
    });
}

void ExportViewController::startBuild(std::function<Result<void>(Store &, Built &, const BackgroundJob::Progress &)> work)
{
    if (!app() || m_building)
        return;
    auto built = std::make_shared<Built>();
    m_built = built;
    m_building = true;
    m_exportButtonEnabled = false;
    m_exportText.clear();
    m_progress = 0.0;
    emit changed();
    // The worker reads the store over a connection of its own.
    m_job.start([built, work = std::move(work), storePath = app()->persistentContainer().filePath()](
                    const BackgroundJob::Progress &progress) -> Result<void> {
        auto store = Store::open(storePath);
        if (!store)
            return store.error();
        if (auto r = work(**store, *built, progress); !r)
            return r;
        // The text view shows the records file without its byte-order mark.
        QByteArrayView shown = built->exchange.isEmpty() ? QByteArrayView(built->csv.records) : QByteArrayView(built->exchange);
        if (built->exchange.isEmpty() && shown.startsWith("\xEF\xBB\xBF"))
            shown = shown.sliced(3);
        built->preview = Exchange::preview(shown, kPreviewCharacters);
        return {};
    });
}

void ExportViewController::buildDone(const Result<void> &result)
{
    const std::shared_ptr<Built> built = std::move(m_built);
    if (m_job.cancelled()) {
        m_building = false;
        m_exportButtonEnabled = true;
        m_progress = 0.0;
        emit changed();
        emit buildFinished();
        return;
    }
    if (!result || !built) {
        failBuild(result.errorMessage());
        return;
    }
    m_dataString = std::move(built->exchange);
    m_csvFiles = std::move(built->csv);
    m_exportText = std::move(built->preview);
    m_building = false;
    m_saveFileButtonEnabled = true;
    m_emailButtonEnabled = true;
    m_exportButtonEnabled = false;
    m_progress = 1.0;
    emit changed();
    emit buildFinished();
    QTimer::singleShot(kCompletionDelayMilliseconds, this, [this, unreadable = built->unreadable]() {
        showAlert(kTitle, kDone + unreadableNote(unreadable));
    });
}

void ExportViewController::failBuild(const QString &message)
{
    m_building = false;
    m_exportButtonEnabled = true;
    m_progress = 0.0;
    emit changed();
    emit buildFinished();
    showAlert(kTitle, translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The collection could not be read: %1"))).arg(message));
}

void ExportViewController::CancelButtonTapped()
{
    m_job.cancel();
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
            showAlert(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Save To Files")), u"The file could not be written: "_s + file.errorString());
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
