// The command-line tool: the same store and logic as the app, without a window.
#include "cli/cli.h"
#include "store/logging.h"
#include "store/translations.h"
#include "store/version.h"

#include <QGuiApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    installConsoleFormat();
    QGuiApplication application(argc, argv);
    QGuiApplication::setOrganizationName(QStringLiteral("Platterbox"));
    QGuiApplication::setApplicationName(QStringLiteral("Platterbox"));
    QGuiApplication::setApplicationVersion(Version::number());
    installTranslations();
    QTextStream out(stdout);
    QTextStream err(stderr);
    QStringList arguments = QGuiApplication::arguments();
    arguments.removeFirst();
    return runCli(arguments, out, err);
}
