#include "testsupport.h"

#include "app/appshell.h"
#include "cli/cli.h"
#include "exchange/fileattributes.h"
#include "store/store.h"

#include <QBuffer>
#include <QLocale>
#include <QMutex>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSqlError>
#include <QSqlQuery>
#include <QTest>

#include <ctime>

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

Vinyl TestApp::vinyl(qint64 rowId)
{
    const auto found = store().vinylByRowId(rowId);
    return found && found->has_value() ? **found : Vinyl{};
}

qint64 TestApp::count(Entity entity)
{
    return store().count(FetchRequest(entity)).valueOr(-1);
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

QStringList attributeTexts(const Vinyl &v, const QStringList &names)
{
    QStringList texts;
    for (const RecordAttribute &attribute : FileAttributes::records()) {
        if (!FileAttributes::has(attribute, v) || (!names.isEmpty() && !names.contains(attribute.name)))
            continue;
        // A file keeps only the day of a date; here its time counts too.
        texts << attribute.name + u'='
                     + (attribute.name == QLatin1String("releaseDate") ? v.releaseDate->toLocalTime().toString(Qt::ISODate)
                                                                       : FileAttributes::fileText(attribute, v));
    }
    return texts;
}

QStringList column(const QAbstractItemModel &model, const QByteArray &role)
{
    const int roleId = model.roleNames().key(role, -1);
    QStringList values;
    for (int row = 0; row < model.rowCount(); ++row)
        values.append(model.data(model.index(row, 0), roleId).toString());
    return values;
}

QStringList albumNames(const QAbstractItemModel &model)
{
    QStringList names;
    for (const QString &label : column(model, "nameLabel")) {
        const QString rest = label.section(QStringLiteral("  Artist: "), 0, 0);
        names.append(rest.mid(rest.indexOf(QLatin1Char(':')) + 1).trimmed());
    }
    return names;
}

QString runSql(const QSqlDatabase &db, const QStringList &statements)
{
    QSqlQuery q(db);
    for (const QString &statement : statements) {
        if (!q.exec(statement))
            return statement + QStringLiteral(": ") + q.lastError().text();
    }
    return {};
}

QStringList sqlColumn(const QSqlDatabase &db, const QString &query)
{
    QStringList values;
    QSqlQuery q(db);
    q.exec(query);
    while (q.next())
        values << q.value(0).toString();
    return values;
}

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

ScopedReadOnly::ScopedReadOnly(const QString &path) : m_path(path), m_before(QFile::permissions(path))
{
    m_ok = QFile::setPermissions(path, m_before & ~(QFile::WriteOwner | QFile::WriteUser | QFile::WriteGroup | QFile::WriteOther));
}

ScopedReadOnly::~ScopedReadOnly()
{
    QFile::setPermissions(m_path, m_before);
}

CliRun runCommand(const QStringList &arguments)
{
    CliRun run;
    QTextStream out(&run.out), err(&run.err);
    run.code = runCli(arguments, out, err);
    out.flush();
    err.flush();
    return run;
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
void setTimeZone(const QByteArray &zone)
{
    qputenv("TZ", zone);
    tzset();
}
} // namespace

ScopedTimeZone::ScopedTimeZone(const QByteArray &zone) : m_before(qgetenv("TZ"))
{
    setTimeZone(zone);
}

ScopedTimeZone::~ScopedTimeZone()
{
    setTimeZone(m_before);
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
