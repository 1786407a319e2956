// What a tour step can do with the running app, and the tour's steps in the order they run.
#include "app/appshell.h"
#include "shell/appdelegate.h"
#include "shell/recordingplatformservices.h"
#include "shell/screencontroller.h"
#include "tour.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

void TourContext::home()
{
    m_app.navigator()->unwind(u"unwindToMenu"_s);
    settle(100);
}

void TourContext::show(const QString &screen)
{
    m_app.navigator()->show(screen);
    settle();
}

QQuickItem *TourContext::topScreen()
{
    QObject *root = m_window.property("stack").value<QObject *>();
    return root ? root->property("currentItem").value<QQuickItem *>() : nullptr;
}

ScreenController *TourContext::topController()
{
    QQuickItem *screen = topScreen();
    return screen ? screen->findChild<ScreenController *>() : nullptr;
}

QObject *TourContext::find(const QString &objectName)
{
    QQuickItem *screen = topScreen();
    return screen ? screen->findChild<QObject *>(objectName) : nullptr;
}

namespace {
void collectCutTexts(QQuickItem *item, QStringList &cut)
{
    // What is hidden, see-through or folded away to nothing shows no text.
    if (!item->isVisible() || item->opacity() <= 0 || item->width() < 1 || item->height() < 1)
        return;
    if (item->inherits("QQuickText") && item->property("truncated").toBool())
        cut.append(u"text cut: \"%1\" (%2 px wide)"_s.arg(item->property("text").toString()).arg(item->width()));
    // A grid of cards keeps its promised card width wherever it shows more than one column.
    const QVariant cardWidth = item->property("cardWidth");
    if (cardWidth.isValid() && item->property("columns").toInt() > 1) {
        const qreal card = item->property("cellWidth").toReal() - 2 * item->property("cardInsetX").toReal();
        if (card < cardWidth.toReal())
            cut.append(u"%1: cards %2 px wide, under %3"_s.arg(item->objectName()).arg(card).arg(cardWidth.toReal()));
    }
    for (QQuickItem *child : item->childItems())
        collectCutTexts(child, cut);
}
} // namespace

QStringList TourContext::cutTexts()
{
    QStringList cut;
    if (QQuickItem *screen = topScreen())
        collectCutTexts(screen, cut);
    cut.removeDuplicates();
    return cut;
}

void TourContext::settle(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

SampleOptions tourSample()
{
    SampleOptions sample;
    sample.records = 240;
    sample.tracksPerRecord = 10;
    sample.loansFrom = QDate::currentDate();
    sample.wantlist = true;
    return sample;
}

TourApp::TourApp()
{
    auto app = AppDelegate::create(m_data.path(), true, std::make_unique<RecordingPlatformServices>());
    if (!app) {
        m_error = app.errorMessage();
        return;
    }
    m_app = std::move(app).value();
    if (auto r = addSampleCollection(m_app->persistentContainer(), tourSample()); !r) {
        m_error = r.errorMessage();
        return;
    }
    m_engine = std::make_unique<QQmlApplicationEngine>();
    AppShell::prepareEngine(*m_engine, *m_app);
    m_engine->load(AppShell::mainQmlUrl());
    if (!m_engine->rootObjects().isEmpty())
        m_window = qobject_cast<QQuickWindow *>(m_engine->rootObjects().first());
    if (!m_window)
        m_error = u"the main window did not load"_s;
}

// The window goes before the app it shows.
TourApp::~TourApp()
{
    m_engine.reset();
}

QList<TourStep> tourSteps()
{
    QList<TourStep> steps;
    addShellSteps(steps);
    addEntrySteps(steps);
    addEntryListSteps(steps);
    addLookupSteps(steps);
    addBrowseSteps(steps);
    addReportsSteps(steps);
    addValuationSteps(steps);
    addExchangeSteps(steps);
    addFeedbackSteps(steps);
    addStatsSteps(steps);
    return steps;
}
