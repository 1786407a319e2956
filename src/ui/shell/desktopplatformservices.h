#pragma once

#include "shell/platformservices.h"

#include <memory>

class QMimeData;

// The desktop build's services: shares are saved where the user picks, mail goes to the
// mail client, web pages to the system browser, printing through the print dialog.
class DesktopPlatformServices : public PlatformServices
{
public:
    bool canSendText() const override { return true; }
    bool canSendMail() const override { return true; }
    void share(const ShareItems &items) override;
    void composeMail(const MailMessage &message) override;
    void openUrl(const QUrl &url) override;
    bool hasCamera() const override;
    QImage clipboardImage() const override;
    std::unique_ptr<QPrinter> choosePrinter(const QString &jobName) override;
    void requestReviewPrompt() override;
};

// What a share of texts and pictures puts on the clipboard: the texts as plain text; the texts
// and every picture, in order, as HTML for rich-text targets; the first picture as an image
// for targets that take one picture.
[[nodiscard]] std::unique_ptr<QMimeData> shareMimeData(const ShareItems &items);

// The body a mail client is given: an HTML body becomes the plain text it shows.
[[nodiscard]] QString mailClientBody(const MailMessage &message);
