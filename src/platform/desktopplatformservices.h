#pragma once

#include "platformservices.h"

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
