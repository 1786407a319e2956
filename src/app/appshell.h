#pragma once

#include <QString>
#include <QUrl>

class AppDelegate;
class QQmlEngine;

// What the app, the screen tour and the QML tests share to show the screens.
namespace AppShell {

// Material look, import path and the cover image provider.
void prepareEngine(QQmlEngine &engine, AppDelegate &app);
// The window with its navigation stack.
[[nodiscard]] QUrl mainQmlUrl();

} // namespace AppShell
