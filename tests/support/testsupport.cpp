#include "testsupport.h"

#include "app/appshell.h"
#include "store/store.h"

#include <QBuffer>
#include <QLocale>
#include <QMutex>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

TestApp::TestApp()
{
    auto platform = std::make_unique<RecordingPlatformServices>();
    m_platform = platform.get();
    auto app = AppDelegate::create(m_dir.path(), true, std::move(platform));
    if (app)
        m_app = std::move(app).value();
}

Vinyl TestApp::addVinyl(const QString &name, const QString &artist, const QString &label, qint16 id)
{
    Vinyl v;
    v.name = name;
    if (!artist.isNull())
        v.artist = artist;
    if (!label.isNull())
        v.recordLabel = label;
    v.id = id;
    v.imagesLoaded = true;
    (void)store().insert(v);
    return v;
}

TestWindow::TestWindow(AppDelegate &app) : m_engine(std::make_unique<QQmlApplicationEngine>())
{
    AppShell::prepareEngine(*m_engine, app);
    m_engine->load(AppShell::mainQmlUrl());
    if (!m_engine->rootObjects().isEmpty())
        m_window = qobject_cast<QQuickWindow *>(m_engine->rootObjects().first());
}

TestWindow::~TestWindow() = default;

QQuickItem *TestWindow::topScreen() const
{
    QObject *stack = m_window ? m_window->property("stack").value<QObject *>() : nullptr;
    return stack ? stack->property("currentItem").value<QQuickItem *>() : nullptr;
}

QString TestWindow::topName() const
{
    QQuickItem *screen = topScreen();
    return screen ? screen->objectName() : QString();
}

bool TestWindow::waitForTransition() const
{
    QObject *stack = m_window ? m_window->property("stack").value<QObject *>() : nullptr;
    return stack && QTest::qWaitFor([stack] { return !stack->property("busy").toBool(); });
}

namespace {
QQuickItem *findItem(QQuickItem *under, const QString &objectName)
{
    if (auto *found = under->findChild<QQuickItem *>(objectName))
        return found;
    // Items a Repeater or a view made are children of their parent item only.
    for (QQuickItem *child : under->childItems()) {
        if (child->objectName() == objectName)
            return child;
        if (QQuickItem *found = findItem(child, objectName))
            return found;
    }
    return nullptr;
}
} // namespace

QQuickItem *TestWindow::item(const QString &objectName) const
{
    QQuickItem *screen = topScreen();
    return screen ? findItem(screen, objectName) : nullptr;
}

void useTestLocale()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

ScopedLocale::ScopedLocale(const QString &name)
{
    QLocale::setDefault(QLocale(name));
}

ScopedLocale::~ScopedLocale()
{
    useTestLocale();
}

namespace {
QMutex s_mutex;
QStringList s_lines;
QtMessageHandler s_previous = nullptr;
int s_active = 0;

void capture(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    {
        QMutexLocker lock(&s_mutex);
        if (qstrcmp(context.category, "platterbox") == 0)
            s_lines.append(message);
    }
    if (s_previous)
        s_previous(type, context, message);
}
} // namespace

ConsoleCapture::ConsoleCapture()
{
    QMutexLocker lock(&s_mutex);
    s_lines.clear();
    if (s_active++ == 0)
        s_previous = qInstallMessageHandler(capture);
}

ConsoleCapture::~ConsoleCapture()
{
    QMutexLocker lock(&s_mutex);
    if (--s_active == 0)
        qInstallMessageHandler(s_previous);
}

QStringList ConsoleCapture::lines() const
{
    QMutexLocker lock(&s_mutex);
    return s_lines;
}

QImage solidPicture(QSize size, QColor color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

QByteArray encodedPicture(const QImage &image, const char *format, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, quality);
    return bytes;
}
