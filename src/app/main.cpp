// Platterbox: a personal catalogue of a vinyl-record collection.
#include "app/appshell.h"
#include "app/windowgeometry.h"
#include "shell/appdelegate.h"
#include "shell/desktopplatformservices.h"
#include "store/datafolder.h"
#include "store/logging.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    installConsoleFormat();
    QApplication application(argc, argv);
    QApplication::setOrganizationName(u"Platterbox"_s);
    QApplication::setApplicationName(u"Platterbox"_s);
    // The desktop entry, the icon and the metainfo are named after this (packaging/).
    QApplication::setDesktopFileName(u"com.example.platterbox"_s);
    QApplication::setWindowIcon(QIcon(u":/packaging/icons/com.example.platterbox-256.png"_s));

    QStringList arguments = QApplication::arguments();
    bool chosen = false;
    bool malformed = false;
    const QString dataDirOption = DataFolder::takeOption(arguments, &malformed);
    if (malformed) {
        qCritical().noquote() << u"usage: platterbox-app [--data-dir DIR] (DIR must not be empty)"_s;
        return 2;
    }
    const QString dataDir = DataFolder::resolve(dataDirOption, &chosen);
    auto app = AppDelegate::create(dataDir, chosen, std::make_unique<DesktopPlatformServices>());
    if (!app) {
        // Only a store that cannot be opened ends the program.
        const QString message = u"Unresolved error "_s + app.errorMessage();
        qCritical().noquote() << message;
        QMessageBox::critical(nullptr, u"Platterbox"_s, message);
        return 1;
    }

    QQmlApplicationEngine engine;
    AppShell::prepareEngine(engine, **app);
    Settings &settings = (*app)->settings();
    const QRect geometry = WindowGeometry::restore(settings);
    engine.setInitialProperties({{u"x"_s, geometry.x()},
                                 {u"y"_s, geometry.y()},
                                 {u"width"_s, geometry.width()},
                                 {u"height"_s, geometry.height()}});
    engine.load(AppShell::mainQmlUrl());
    auto *window = engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(engine.rootObjects().first());
    if (!window)
        return 1;
    if (WindowGeometry::wasMaximized(settings))
        window->showMaximized();
    const int code = QApplication::exec();
    WindowGeometry::save(*window, settings);
    return code;
}
