#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <memory>

class QPrinter;

// What a share hands over: texts, images and files, in the order given.
struct ShareItems
{
    QStringList texts;
    QList<QImage> images;
    QStringList filePaths;
};

struct MailAttachment
{
    QByteArray data;
    QString mimeType;
    QString fileName;
};

struct MailMessage
{
    QStringList to;
    QString subject;
    QString body;
    bool bodyIsHtml = false;
    QList<MailAttachment> attachments;
};

// The device services the screens use. The desktop implementation talks to the system;
// RecordingPlatformServices records every call for tests.
class PlatformServices
{
public:
    virtual ~PlatformServices() = default;

    [[nodiscard]] virtual bool canSendText() const = 0;
    [[nodiscard]] virtual bool canSendMail() const = 0;
    virtual void share(const ShareItems &items) = 0;
    virtual void composeMail(const MailMessage &message) = 0;
    // Opens a web page in the system browser.
    virtual void openUrl(const QUrl &url) = 0;

    [[nodiscard]] virtual bool hasCamera() const = 0;
    // The clipboard's image; a null image when it holds none.
    [[nodiscard]] virtual QImage clipboardImage() const = 0;

    // Shows the print dialog; the printer set up as the user chose, or none when they
    // cancelled. The caller draws the pages on it (from any one thread).
    virtual std::unique_ptr<QPrinter> choosePrinter(const QString &jobName) = 0;

    // Asks for the app-review prompt (the caller decides how often).
    virtual void requestReviewPrompt() = 0;
};
