#pragma once

#include "shell/screencontroller.h"

#include <QStringList>
#include <QUrl>

// Five rows that recommend and rate the app: the store's review page, the store link shared,
// the website shared with a line of instructions, the website opened, a feedback mail.
class RateShareTableViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList rowTitles READ rowTitles CONSTANT)

public:
    enum Row { Rate, ShareStoreLink, ShareInstructions, OpenWebsite, FeedbackMail };

    static inline const QString kInstructions =
        QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Click the following link to visit the Platterbox App website"));
    static inline const QString kNoTextTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Can't Send Text Message"));
    static inline const QString kNoTextMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Your Device is not able to send text messages."));
    static inline const QString kNoMailTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Can't Send Email"));
    static inline const QString kNoMailMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Your Device is not able to send Email."));
    static inline const QString kMailBody = QStringLiteral("<p>Enter your comments about Platterbox app below: </p>");

    explicit RateShareTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] static QStringList rowTitles();
    // The store page with the review query.
    [[nodiscard]] static QUrl reviewUrl();

    Q_INVOKABLE void rowSelected(int row);

private:
    void shareIfTextPossible(const QStringList &items);

    const QUrl m_productURL;
    const QString m_instructions;
    const QString m_website;
};
