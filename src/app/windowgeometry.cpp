#include "app/windowgeometry.h"

#include "store/settings.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace WindowGeometry {

namespace {
const QSize kDesktopSize(1200, 800);
// Narrower screens are phones: the window takes the whole screen there.
constexpr int kPhoneScreenWidth = 600;
// A saved window must keep at least this much of itself on a screen to be used again.
constexpr int kMinimumVisible = 100;
} // namespace

QRect initial(const QList<QRect> &screens, const std::optional<QRect> &saved)
{
    if (saved && saved->isValid()) {
        for (const QRect &screen : screens) {
            const QRect visible = screen.intersected(*saved);
            if (visible.width() >= kMinimumVisible && visible.height() >= kMinimumVisible) {
                // Wholly on the screen it is on, and never larger.
                const QSize size = saved->size().boundedTo(screen.size());
                const int x = std::clamp(saved->x(), screen.left(), screen.left() + screen.width() - size.width());
                const int y = std::clamp(saved->y(), screen.top(), screen.top() + screen.height() - size.height());
                return QRect(QPoint(x, y), size);
            }
        }
    }
    if (screens.isEmpty())
        return QRect(QPoint(0, 0), kDesktopSize);
    const QRect screen = screens.first();
    if (screen.width() < kPhoneScreenWidth)
        return screen;
    QRect window(QPoint(0, 0), kDesktopSize.boundedTo(screen.size() * 9 / 10));
    window.moveCenter(screen.center());
    return window;
}

QRect restore(const Settings &settings)
{
    std::optional<QRect> saved;
    if (settings.contains(kGeometryKey))
        saved = settings.value(kGeometryKey).toRect();
    QList<QRect> screens;
    if (QScreen *primary = QGuiApplication::primaryScreen())
        screens.append(primary->availableGeometry());
    for (QScreen *screen : QGuiApplication::screens()) {
        if (screen != QGuiApplication::primaryScreen())
            screens.append(screen->availableGeometry());
    }
    return initial(screens, saved);
}

bool wasMaximized(const Settings &settings)
{
    return settings.boolValue(kMaximizedKey);
}

void save(const QWindow &window, Settings &settings)
{
    const bool maximized = window.windowStates().testFlag(Qt::WindowMaximized);
    // A maximised window keeps the size it had before, for when it is restored.
    if (!maximized)
        settings.setValue(kGeometryKey, window.geometry());
    settings.setValue(kMaximizedKey, maximized);
    settings.sync();
}

} // namespace WindowGeometry
