#pragma once

#include <QList>
#include <QRect>
#include <QString>

#include <optional>

class QWindow;
class Settings;

// Where the main window opens: where it was last left when that still lies on a screen;
// otherwise phone-sized on a phone (the whole screen) and about 1200 x 800 on a larger one,
// centred on the screen it opens on.
namespace WindowGeometry {

// The settings key of the last geometry (a QRect) and whether the window was maximised.
inline const QString kGeometryKey = QStringLiteral("WindowGeometry");
inline const QString kMaximizedKey = QStringLiteral("WindowMaximized");

// `screens` are the available areas of the screens, the one the window opens on first.
[[nodiscard]] QRect initial(const QList<QRect> &screens, const std::optional<QRect> &saved);

// The geometry to open with, from the settings and the screens of this session.
[[nodiscard]] QRect restore(const Settings &settings);
[[nodiscard]] bool wasMaximized(const Settings &settings);
void save(const QWindow &window, Settings &settings);

} // namespace WindowGeometry
