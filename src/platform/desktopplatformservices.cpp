#include "desktopplatformservices.h"

#include "logging.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QCameraDevice>
#include <QMediaDevices>
#include <QMessageBox>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace {
bool interactive()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance()) && QGuiApplication::platformName() != u"offscreen"_s;
}
} // namespace

void DesktopPlatformServices::share(const ShareItems &items)
{
    if (!interactive())
        return;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const QString &path : items.filePaths) {
        const QString target = QFileDialog::getSaveFileName(nullptr, QObject::tr("Save"),
                                                            documents + u'/' + QFileInfo(path).fileName());
        if (target.isEmpty())
            continue;
        QFile::remove(target);
        if (QFile::copy(path, target)
            && QMessageBox::question(nullptr, QObject::tr("Saved"), QObject::tr("Open %1 now?").arg(target))
                   == QMessageBox::Yes)
            QDesktopServices::openUrl(QUrl::fromLocalFile(target));
    }
    if (!items.texts.isEmpty() || !items.images.isEmpty()) {
        QMimeData *data = new QMimeData;
        data->setText(items.texts.join(u"\n"_s));
        if (!items.images.isEmpty())
            data->setImageData(items.images.first());
        QGuiApplication::clipboard()->setMimeData(data);
        QMessageBox::information(nullptr, QObject::tr("Share"), QObject::tr("Copied to the clipboard."));
    }
}

void DesktopPlatformServices::composeMail(const MailMessage &message)
{
    // xdg-email hands attachments to the mail client; without it a mailto: link carries the text.
    QStringList arguments{u"--utf8"_s, u"--subject"_s, message.subject, u"--body"_s, message.body};
    QTemporaryDir *folder = new QTemporaryDir; // kept until the process ends: the client reads it later
    for (const MailAttachment &attachment : message.attachments) {
        const QString path = folder->filePath(attachment.fileName);
        QFile file(path);
        if (file.open(QIODevice::WriteOnly) && file.write(attachment.data) == attachment.data.size())
            arguments << u"--attach"_s << path;
    }
    arguments << message.to;
    if (QProcess::startDetached(u"xdg-email"_s, arguments))
        return;
    QUrl url(u"mailto:"_s + message.to.join(u','));
    QUrlQuery query;
    query.addQueryItem(u"subject"_s, message.subject);
    query.addQueryItem(u"body"_s, message.body);
    url.setQuery(query);
    QDesktopServices::openUrl(url);
}

void DesktopPlatformServices::openUrl(const QUrl &url)
{
    if (!QDesktopServices::openUrl(url))
        consoleLine(u"Could not open "_s + url.toString());
}

bool DesktopPlatformServices::hasCamera() const
{
    return !QMediaDevices::videoInputs().isEmpty();
}

QImage DesktopPlatformServices::clipboardImage() const
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    if (!data || !data->hasImage())
        return {};
    return qvariant_cast<QImage>(data->imageData());
}

std::unique_ptr<QPrinter> DesktopPlatformServices::choosePrinter(const QString &jobName)
{
    if (!interactive())
        return nullptr;
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(jobName);
    QPrintDialog dialog(printer.get());
    dialog.setOption(QAbstractPrintDialog::PrintToFile, true);
    if (dialog.exec() != QDialog::Accepted)
        return nullptr;
    return printer;
}

void DesktopPlatformServices::requestReviewPrompt()
{
    consoleLine(u"Review prompt requested"_s);
}
