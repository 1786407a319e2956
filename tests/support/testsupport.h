#pragma once

#include "shell/appdelegate.h"
#include "shell/recordingplatformservices.h"
#include "store/entities.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

class QQmlApplicationEngine;
class QQuickItem;
class QQuickWindow;

// A fresh app on a temporary data folder with the recording platform fake, for tests that
// drive screens through their controllers.
class TestApp
{
public:
    TestApp();

    [[nodiscard]] bool ok() const { return m_app != nullptr; }
    AppDelegate &app() { return *m_app; }
    Store &store() { return m_app->persistentContainer(); }
    RecordingPlatformServices &platform() { return *m_platform; }
    [[nodiscard]] QString dataDir() const { return m_dir.path(); }

    // Inserts a record with the given attributes set (others absent); returns it with rowId.
    Vinyl addVinyl(const QString &name, const QString &artist = QString(), const QString &label = QString(),
                   qint16 id = 0);

private:
    QTemporaryDir m_dir;
    RecordingPlatformServices *m_platform = nullptr;
    std::unique_ptr<AppDelegate> m_app;
};

// The app's main window on a TestApp, for tests that press keys and click on the real screens.
class TestWindow
{
public:
    explicit TestWindow(AppDelegate &app);
    ~TestWindow();

    // Null when the window did not load.
    [[nodiscard]] QQuickWindow *window() const { return m_window; }
    // The screen on top of the navigation stack and its objectName.
    [[nodiscard]] QQuickItem *topScreen() const;
    [[nodiscard]] QString topName() const;
    // Waits until the navigation stack's transition is over: keys and clicks reach the screen
    // then, however slow the machine. False when it never ends.
    [[nodiscard]] bool waitForTransition() const;
    // An item of the screen shown by objectName, also among the items a Repeater or a view made.
    [[nodiscard]] QQuickItem *item(const QString &objectName) const;

private:
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
};

// Sets the en_US locale; the time zone comes from TZ, which CTest sets to America/New_York.
void useTestLocale();

// Another locale ("de_DE") while it lives; en_US again afterwards.
class ScopedLocale
{
public:
    explicit ScopedLocale(const QString &name);
    ~ScopedLocale();
    ScopedLocale(const ScopedLocale &) = delete;
    ScopedLocale &operator=(const ScopedLocale &) = delete;
};

// Captures the console lines written while it lives.
class ConsoleCapture
{
public:
    ConsoleCapture();
    ~ConsoleCapture();
    [[nodiscard]] QStringList lines() const;
};

// A picture of one colour.
[[nodiscard]] QImage solidPicture(QSize size, QColor color);
// The bytes of a picture in a file format ("PNG", "JPEG"), as a file or an answer holds them.
[[nodiscard]] QByteArray encodedPicture(const QImage &image, const char *format = "PNG", int quality = -1);
