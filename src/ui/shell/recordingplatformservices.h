#pragma once

#include "shell/platformservices.h"

#include <QList>
#include <QTemporaryDir>

// A PlatformServices for tests: answers as configured and records every call.
class RecordingPlatformServices : public PlatformServices
{
public:
    bool canSendTextAnswer = true;
    bool canSendMailAnswer = true;
    bool hasCameraAnswer = false;
    QImage clipboard;
    bool printAnswer = true;

    QList<ShareItems> shared;
    QList<MailMessage> mails;
    QList<QUrl> openedUrls;
    QStringList printedJobs;
    // The PDF file each printer handed out prints to.
    QStringList printedFiles;
    int reviewPrompts = 0;

    bool canSendText() const override { return canSendTextAnswer; }
    bool canSendMail() const override { return canSendMailAnswer; }
    void share(const ShareItems &items) override { shared.append(items); }
    void composeMail(const MailMessage &message) override { mails.append(message); }
    void openUrl(const QUrl &url) override { openedUrls.append(url); }
    bool hasCamera() const override { return hasCameraAnswer; }
    QImage clipboardImage() const override { return clipboard; }
    // A printer that writes a PDF file (none when printAnswer is false).
    std::unique_ptr<QPrinter> choosePrinter(const QString &jobName) override;
    void requestReviewPrompt() override { ++reviewPrompts; }

private:
    QTemporaryDir m_printouts;
};
