#include "exportviewcontroller.h"

#include "appdelegate.h"
#include "exchangeformat.h"
#include "exchangewriter.h"
#include "platformservices.h"

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
    if (m_writer->finished())
        finishBuild();
    else
        QTimer::singleShot(0, this, &ExportViewController::buildStep);
}

void ExportViewController::finishBuild()
{
    const int unreadable = m_writer->unreadableImages();
    m_dataString = m_writer->data();
    m_writer.reset();
    m_exportText = Exchange::preview(m_dataString, kPreviewCharacters);
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

void ExportViewController::SaveFile()
{
    if (!app() || m_dataString.isEmpty())
        return;
    const QString path = QDir(app()->tempDir()).filePath(Exchange::kFileName);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(m_dataString) != m_dataString.size() || !file.commit()) {
        showAlert(u"Save To Files"_s, u"The file could not be written: "_s + file.errorString());
        return;
    }
    ShareItems items;
    items.filePaths << path;
    app()->platform().share(items);
}

void ExportViewController::WriteTextFile()
{
    if (!app() || m_dataString.isEmpty())
        return;
    if (!app()->platform().canSendMail()) {
        showAlert(kMailTitle, kMailUnavailable);
        return;
    }
    MailMessage mail;
    mail.subject = kMailSubject;
    mail.body = kMailBody;
    mail.attachments.append(MailAttachment{m_dataString, kMailMimeType, Exchange::kFileName});
    app()->platform().composeMail(mail);
}
