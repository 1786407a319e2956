#pragma once

#include <QString>
#include <QUrl>

class AppDelegate;
class QQmlEngine;

// What the app, the screen tour and the QML tests share to show the screens.
namespace AppShell {

// Console lines are printed as they are, without a category prefix.
void installConsoleFormat();
// Material look, import path and the cover image provider.
void prepareEngine(QQmlEngine &engine, AppDelegate &app);
// The window with its navigation stack.
[[nodiscard]] QUrl mainQmlUrl();
// Reads "--data-dir DIR" (or "--data-dir=DIR") out of the arguments, removing it. A missing or
// empty DIR sets malformed.
[[nodiscard]] QString takeDataDirOption(QStringList &arguments, bool *malformed = nullptr);

} // namespace AppShell
