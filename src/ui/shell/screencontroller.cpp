#include "shell/screencontroller.h"

#include "collection/browsetexts.h"
#include "shell/appdelegate.h"
#include "store/translations.h"

namespace {
// An alert in the user's language. Messages are often a named text and a cause joined line by
// line ("The file could not be read.\n" + the cause), so each line is looked up on its own.
QString translatedLines(const QString &text)
{
    QStringList lines = text.split(u'\n');
    for (QString &line : lines)
        line = translated(line);
    return lines.join(u'\n');
}
} // namespace

ScreenController::ScreenController(AppDelegate *app, QObject *parent) : QObject(parent), m_app(app) {}

void ScreenController::loadIfReady()
{
    if (m_loaded || !m_app)
        return;
    m_loaded = true;
    viewDidLoad();
    emit loaded();
}

void ScreenController::componentComplete()
{
    if (!m_app)
        m_app = AppDelegate::current();
    loadIfReady();
}

void ScreenController::showAlert(const QString &title, const QString &message, const QStringList &buttons,
                                 AlertAction onAnswer)
{
    m_lastAlertTitle = title;
    m_lastAlertMessage = message;
    m_pendingAnswer = std::move(onAnswer);
    QStringList captions = buttons;
    for (QString &caption : captions)
        caption = translated(caption);
    emit alert(translated(title), translatedLines(message), captions);
}

bool ScreenController::refusedAsReadOnly()
{
    if (!m_app || !m_app->readOnly())
        return false;
    showAlert(kReadOnlyTitle, m_app->readOnlyNotice());
    return true;
}

bool ScreenController::openInEditor(qint64 rowId, const QString &origin)
{
    auto record = m_app->persistentContainer().vinylByRowId(rowId);
    if (!record) {
        showAlert(kStoreErrorTitle, record.errorMessage());
        return true;
    }
    if (!record.value()) {
        showAlert(BrowseTexts::kRecordNotFoundTitle, BrowseTexts::kRecordNotFoundMessage);
        return false;
    }
    m_app->state()->setCurrentRecord(**record);
    m_app->state()->setOriginScreen(origin);
    m_app->navigator()->show(BrowseTexts::kEditScreen);
    return true;
}

void ScreenController::answerAlert(int buttonIndex)
{
    AlertAction action = std::move(m_pendingAnswer);
    m_pendingAnswer = {};
    if (action)
        action(buttonIndex);
}
