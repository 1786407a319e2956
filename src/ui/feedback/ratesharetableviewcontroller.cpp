#include "feedback/ratesharetableviewcontroller.h"

#include "shell/appdelegate.h"
#include "shell/platformservices.h"
#include "store/appconfig.h"
#include "store/translations.h"

#include <QUrlQuery>

using namespace Qt::StringLiterals;

RateShareTableViewController::RateShareTableViewController(AppDelegate *app, QObject *parent)
    : ScreenController(app, parent),
      m_productURL(AppConfig::storePage),
      m_instructions(kInstructions),
      m_website(AppConfig::website)
{
    loadIfReady();
}

QStringList RateShareTableViewController::rowTitles()
{
    QStringList titles{QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Rate Platterbox")),
                       QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Share Platterbox with a Friend")),
                       QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Share the Platterbox Website")),
                       QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Visit the Platterbox Website")),
                       QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Send Feedback"))};
    for (QString &title : titles)
        title = translated(title);
    return titles;
}

QUrl RateShareTableViewController::reviewUrl()
{
    QUrl url(AppConfig::storePage);
    if (!url.isValid())
        return {};
    QUrlQuery query;
    query.addQueryItem(u"action"_s, u"write-review"_s);
    url.setQuery(query);
    return url;
}

void RateShareTableViewController::rowSelected(int row)
{
    if (!app())
        return;
    PlatformServices &platform = app()->platform();
    switch (row) {
    case Rate:
        if (const QUrl url = reviewUrl(); url.isValid())
            platform.openUrl(url);
        break;
    case ShareStoreLink: shareIfTextPossible({m_productURL.toString()}); break;
    case ShareInstructions: shareIfTextPossible({m_instructions, m_website}); break;
    case OpenWebsite:
        if (const QUrl url(m_website); url.isValid())
            platform.openUrl(url);
        break;
    case FeedbackMail:
        if (!platform.canSendMail()) {
            showAlert(kNoMailTitle, kNoMailMessage);
            break;
        }
        platform.composeMail({{AppConfig::supportAddress}, QString(), kMailBody, true, {}});
        break;
    default: break;
    }
}

// Both shares are offered only where text messages can be sent, though the share itself
// would not need them.
void RateShareTableViewController::shareIfTextPossible(const QStringList &items)
{
    if (!app()->platform().canSendText()) {
        showAlert(kNoTextTitle, kNoTextMessage);
        return;
    }
    ShareItems share;
    share.texts = items;
    app()->platform().share(share);
}
