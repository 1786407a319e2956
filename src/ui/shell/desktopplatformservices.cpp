#include "shell/desktopplatformservices.h"

#include "store/logging.h"

#include <QApplication>
#include <QBuffer>
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
#include <QTextDocument>
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
        QGuiApplication::clipboard()->setMimeData(shareMimeData(items).release());
        QMessageBox::information(nullptr, QObject::tr("Share"), QObject::tr("Copied to the clipboard."));
    }
}

void DesktopPlatformServices::composeMail(const MailMessage &message)
{
    // xdg-email hands attachments to the mail client; without it a mailto: link carries the text.
    const QString body = mailClientBody(message);
    QStringList arguments{u"--utf8"_s, u"--subject"_s, message.subject, u"--body"_s, body};
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
    query.addQueryItem(u"body"_s, body);
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

std::unique_ptr<QMimeData> shareMimeData(const ShareItems &items)
{
    auto data = std::make_unique<QMimeData>();
    data->setText(items.texts.join(u"\n"_s));
    QString html;
    for (const QString &text : items.texts)
        html += u"<p>"_s + text.toHtmlEscaped().replace(u"\n"_s, u"<br>"_s) + u"</p>"_s;
    for (const QImage &image : items.images) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        html += u"<p><img src=\"data:image/png;base64,"_s + QString::fromLatin1(png.toBase64()) + u"\"></p>"_s;
    }
    data->setHtml(html);
    if (!items.images.isEmpty())
        data->setImageData(items.images.first());
    return data;
}

QString mailClientBody(const MailMessage &message)
{
    if (!message.bodyIsHtml)
        return message.body;
    QTextDocument document;
    document.setHtml(message.body);
    return document.toPlainText();
}
