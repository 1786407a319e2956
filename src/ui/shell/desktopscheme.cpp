#include "shell/desktopscheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPalette>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
const QString kPortalService = u"org.freedesktop.portal.Desktop"_s;
const QString kPortalPath = u"/org/freedesktop/portal/desktop"_s;
const QString kSettingsInterface = u"org.freedesktop.portal.Settings"_s;
const QString kAppearance = u"org.freedesktop.appearance"_s;
const QString kColorScheme = u"color-scheme"_s;

// Receives the portal's SettingChanged signal, which the bus delivers to a slot by its signature.
class PortalListener : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    void colorSchemeChanged(const QVariant &value);

public slots:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value)
    {
        if (group == kAppearance && key == kColorScheme)
            emit colorSchemeChanged(QVariant::fromValue(value));
    }
};

// Only a bus that is already running is asked: without an address the D-Bus library would try
// to start one for this display.
bool sessionBusRunning()
{
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        return true;
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtime.isEmpty() && QFileInfo::exists(QDir(runtime).filePath(u"bus"_s));
}
} // namespace

DesktopScheme::DesktopScheme(QObject *parent) : QObject(parent)
{
    if (QCoreApplication::instance())
        QCoreApplication::instance()->installEventFilter(this);
    m_dark = dark();
    // Connecting to the bus happens after the window's start, never before it.
    QTimer::singleShot(0, this, &DesktopScheme::askPortal);
}

bool DesktopScheme::dark() const
{
    if (m_portal)
        return *m_portal;
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) && darkPalette(QGuiApplication::palette());
}

std::optional<bool> DesktopScheme::darkFromPortal(const QVariant &value)
{
    QVariant v = value;
    // Portals answer Read with the value in one variant or, in older versions, in two.
    while (v.metaType() == QMetaType::fromType<QDBusVariant>())
        v = qvariant_cast<QDBusVariant>(v).variant();
    bool ok = false;
    const uint scheme = v.toUInt(&ok);
    if (!ok)
        return std::nullopt;
    if (scheme == 1)
        return true;
    if (scheme == 2)
        return false;
    return std::nullopt;
}

bool DesktopScheme::darkPalette(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

bool DesktopScheme::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == QCoreApplication::instance())
        setPortalAnswer(m_portal);
    return QObject::eventFilter(watched, event);
}

void DesktopScheme::askPortal()
{
    if (!sessionBusRunning())
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    auto *listener = new PortalListener(this);
    connect(listener, &PortalListener::colorSchemeChanged, this,
            [this](const QVariant &value) { setPortalAnswer(darkFromPortal(value)); });
    bus.connect(kPortalService, kPortalPath, kSettingsInterface, u"SettingChanged"_s, listener,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read = QDBusMessage::createMethodCall(kPortalService, kPortalPath, kSettingsInterface, u"Read"_s);
    read << kAppearance << kColorScheme;
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *call) {
        const QDBusMessage reply = call->reply();
        // No portal or no such setting: the platform palette stays in charge.
        if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty())
            setPortalAnswer(darkFromPortal(reply.arguments().constFirst()));
        call->deleteLater();
    });
}

void DesktopScheme::setPortalAnswer(std::optional<bool> dark)
{
    m_portal = dark;
    const bool now = this->dark();
    if (now == m_dark)
        return;
    m_dark = now;
    emit changed();
}

#include "desktopscheme.moc"
