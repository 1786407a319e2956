// Platterbox: a personal catalogue of a vinyl-record collection.
#include "appdelegate.h"
#include "appshell.h"
#include "desktopplatformservices.h"

#include <QApplication>
#include <QMessageBox>
#include <QQmlApplicationEngine>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    AppShell::installConsoleFormat();
    QApplication application(argc, argv);
    QApplication::setOrganizationName(u"Platterbox"_s);
    QApplication::setApplicationName(u"Platterbox"_s);

    QStringList arguments = QApplication::arguments();
    bool chosen = false;
    bool malformed = false;
    const QString dataDirOption = AppShell::takeDataDirOption(arguments, &malformed);
    if (malformed) {
        qCritical().noquote() << u"usage: platterbox-app [--data-dir DIR] (DIR must not be empty)"_s;
        return 2;
    }
    const QString dataDir = AppDelegate::resolveDataDir(dataDirOption, &chosen);
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
    engine.load(AppShell::mainQmlUrl());
    if (engine.rootObjects().isEmpty())
        return 1;
    return QApplication::exec();
}
