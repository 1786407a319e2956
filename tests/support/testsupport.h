#pragma once

#include "shell/appdelegate.h"
#include "shell/recordingplatformservices.h"
#include "store/entities.h"
#include "store/samplecollection.h"
#include "store/store.h"

#include <QAbstractItemModel>
#include <QByteArray>
#include <QColor>
#include <QDateTime>
#include <QFile>
#include <QImage>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

class QQmlApplicationEngine;
class QSqlDatabase;
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
    // The stored record, covers included; an empty record when there is none.
    [[nodiscard]] Vinyl vinyl(qint64 rowId);
    // How many records (or tracks, grades) the store holds; -1 when it cannot say.
    [[nodiscard]] qint64 count(Entity entity = Entity::Vinyl);

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

// A local date and time, as the collector entered it.
inline QDateTime localDate(int year, int month, int day, int hour = 0, int minute = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute));
}

// A record with a name and whatever the test sets, stored by store() so it has its rowId.
struct RecordBuilder
{
    Vinyl v;
    explicit RecordBuilder(const QString &name) { v.name = name; v.imagesLoaded = true; }
    RecordBuilder &artist(const QString &s) { v.artist = s; return *this; }
    RecordBuilder &label(const QString &s) { v.recordLabel = s; return *this; }
    RecordBuilder &producer(const QString &s) { v.producer = s; return *this; }
    RecordBuilder &date(const QDateTime &d) { v.releaseDate = d; return *this; }
    RecordBuilder &value(float value, qint16 quantity) { v.value = value; v.quantity = quantity; return *this; }
    RecordBuilder &cost(float c) { v.cost = c; return *this; }
    RecordBuilder &speed(const QString &s) { v.recordSpeed = s; return *this; }
    RecordBuilder &type(const QString &s) { v.doubleAlbum = s; return *this; }
    RecordBuilder &duration(double minutes) { v.albumDuration = minutes; return *this; }
    RecordBuilder &notes(const QString &s) { v.notes = s; return *this; }
    RecordBuilder &id(qint16 number) { v.id = number; return *this; }
    Vinyl store(Store &store)
    {
        (void)store.insert(v);
        return v;
    }
};

// The record's attributes as a file writes them ("name=Blue", "cost=12.5"; the release date with
// its time, "releaseDate=1975-03-05T14:30:15"), in the form's order, absent ones left out; only
// the attributes named, when names are given.
[[nodiscard]] QStringList attributeTexts(const Vinyl &v, const QStringList &names = {});

// The values of one role of a list model, top to bottom.
[[nodiscard]] QStringList column(const QAbstractItemModel &model, const QByteArray &role);
// The album names of the record cards shown ("Album: X  Artist: Y" -> X).
[[nodiscard]] QStringList albumNames(const QAbstractItemModel &model);

// Runs the statements in turn: the first that fails, with its error, or an empty text.
[[nodiscard]] QString runSql(const QSqlDatabase &db, const QStringList &statements);
// The first column of each row a query gives, as text.
[[nodiscard]] QStringList sqlColumn(const QSqlDatabase &db, const QString &query);

// The bytes of a file; empty when it cannot be read.
[[nodiscard]] QByteArray fileBytes(const QString &path);
// Writes the bytes to the file, replacing what it held; false when it cannot.
bool writeBytes(const QString &path, const QByteArray &bytes);

// Takes every write permission off a file or folder while it lives.
class ScopedReadOnly
{
public:
    explicit ScopedReadOnly(const QString &path);
    ~ScopedReadOnly();
    [[nodiscard]] bool ok() const { return m_ok; }
    ScopedReadOnly(const ScopedReadOnly &) = delete;
    ScopedReadOnly &operator=(const ScopedReadOnly &) = delete;

private:
    QString m_path;
    QFile::Permissions m_before;
    bool m_ok = false;
};

// What the command line answered: its exit code and what it wrote to each stream.
struct CliRun
{
    int code = -1;
    QString out;
    QString err;
};
[[nodiscard]] CliRun runCommand(const QStringList &arguments);

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

// Another time zone for the process ("Asia/Tokyo") while it lives; the test's own afterwards.
class ScopedTimeZone
{
public:
    explicit ScopedTimeZone(const QByteArray &zone);
    ~ScopedTimeZone();
    ScopedTimeZone(const ScopedTimeZone &) = delete;
    ScopedTimeZone &operator=(const ScopedTimeZone &) = delete;

private:
    QByteArray m_before;
};

// Captures the console lines written while it lives.
class ConsoleCapture
{
public:
    ConsoleCapture();
    ~ConsoleCapture();
    [[nodiscard]] QStringList lines() const;
};

// A sample collection of that many records, tracks each, with or without covers.
inline SampleOptions sampleOptions(int records, int tracksPerRecord, bool covers, quint32 seed)
{
    SampleOptions options;
    options.records = records;
    options.tracksPerRecord = tracksPerRecord;
    options.covers = covers;
    options.seed = seed;
    return options;
}

// A picture of one colour.
[[nodiscard]] QImage solidPicture(QSize size, QColor color);
// The bytes of a picture in a file format ("PNG", "JPEG"), as a file or an answer holds them.
[[nodiscard]] QByteArray encodedPicture(const QImage &image, const char *format = "PNG", int quality = -1);
