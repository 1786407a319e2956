#pragma once

#include "store/samplecollection.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <QTemporaryDir>

#include <functional>
#include <memory>

class AppDelegate;
class QObject;
class QQmlApplicationEngine;
class QQuickItem;
class QQuickWindow;
class ScreenController;

// What a tour step can do with the running app: open screens, reach their controllers and
// items, and wait until the window has settled.
class TourContext
{
public:
    TourContext(AppDelegate &app, QQuickWindow &window) : m_app(app), m_window(window) {}

    AppDelegate &app() { return m_app; }
    QQuickWindow &window() { return m_window; }

    // Back to the main menu, then (optionally) open a screen.
    void home();
    void show(const QString &screen);
    // The screen on top of the stack and its controller.
    QQuickItem *topScreen();
    ScreenController *topController();
    // An item of the top screen by objectName.
    QObject *find(const QString &objectName);
    // What the top screen shows cut short: elided texts, and cards narrower than their grid
    // promises. Empty when everything shows whole.
    QStringList cutTexts();
    // Lets animations, bindings and cover loading finish.
    void settle(int milliseconds = 400);

private:
    AppDelegate &m_app;
    QQuickWindow &m_window;
};

// One PNG of the tour: the file name (without folder) and what to do before the picture.
struct TourStep
{
    QString fileName;
    std::function<void(TourContext &)> prepare;
    // False for a picture of work in progress: taken as soon as prepare returns.
    bool settleFirst = true;
};

// The collection the tour pictures.
SampleOptions tourSample();

// The app on a temporary data folder holding the tour's collection, and its main window.
class TourApp
{
public:
    TourApp();
    ~TourApp();

    // Empty when the app and its window are up.
    [[nodiscard]] QString errorMessage() const { return m_error; }
    AppDelegate &app() { return *m_app; }
    QQuickWindow &window() { return *m_window; }

private:
    QTemporaryDir m_data;
    std::unique_ptr<AppDelegate> m_app;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
    QString m_error;
};
// Every screen at one width, in the order the tour takes them.
QList<TourStep> tourSteps();

// Each subsystem adds its screens in a file of its own.
void addShellSteps(QList<TourStep> &steps);
void addEntrySteps(QList<TourStep> &steps);
void addEntryListSteps(QList<TourStep> &steps);
void addLookupSteps(QList<TourStep> &steps);
void addBrowseSteps(QList<TourStep> &steps);
void addReportsSteps(QList<TourStep> &steps);
void addValuationSteps(QList<TourStep> &steps);
void addExchangeSteps(QList<TourStep> &steps);
void addFeedbackSteps(QList<TourStep> &steps);
void addStatsSteps(QList<TourStep> &steps);
// Once more at a wide desktop window (1,600 px): the screens that use the room.
void addWideSteps(QList<TourStep> &steps);
// Last, once, at phone size: these grow the collection.
void addExchangeProgressSteps(QList<TourStep> &steps);
void addReportProgressSteps(QList<TourStep> &steps);
