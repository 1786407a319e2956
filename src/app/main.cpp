// Platterbox: a personal catalogue of a vinyl-record collection.
#include "app/appshell.h"
#include "app/windowgeometry.h"
#include "shell/appdelegate.h"
#include "shell/desktopplatformservices.h"
#include "store/datafolder.h"
#include "store/logging.h"
#include "store/translations.h"
#include "store/version.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QMessageBox>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// The window's own options. Qt's (-platform, -style, ...) are QApplication's, which takes them
// out of the arguments when it is made.
struct AppOptions
{
    // Descriptions are English, translated when the help is printed.
    QCommandLineOption dataDir{
        u"data-dir"_s,
        QStringLiteral(QT_TRANSLATE_NOOP("App", "Work on the collection in DIR instead of $PLATTERBOX_DATA_DIR or the app's data folder.")),
        u"DIR"_s};
    QCommandLineOption help{{u"h"_s, u"help"_s}, QStringLiteral(QT_TRANSLATE_NOOP("App", "Print these options and exit."))};
    QCommandLineOption version{u"version"_s,
                               QStringLiteral(QT_TRANSLATE_NOOP("App", "Print the name and version and exit."))};

    void addTo(QCommandLineParser &parser) const
    {
        parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
        parser.addOptions({dataDir, help, version});
    }

    [[nodiscard]] QString helpText() const
    {
        QString text = QCoreApplication::translate(
            "App", "usage: platterbox-app [--data-dir DIR]\n\nThe Platterbox window.\n\noptions:\n");
        for (const QCommandLineOption &option : {dataDir, help, version}) {
            QStringList names;
            for (const QString &name : option.names())
                names << (name.size() == 1 ? u"-"_s : u"--"_s) + name;
            QString name = names.join(u", "_s);
            if (!option.valueName().isEmpty())
                name += u' ' + option.valueName();
            text += u"  "_s + name.leftJustified(16) + u"  "_s
                + QCoreApplication::translate("App", option.description().toUtf8().constData()) + u'\n';
        }
        return text;
    }
};

void print(FILE *stream, const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stream);
}

} // namespace

int main(int argc, char *argv[])
{
    installConsoleFormat();
    const AppOptions options;
    // --help and --version are answered before the application is made: they open no window and
    // need no display. Qt's own options are not known yet, so this parse's errors wait for the next.
    {
        QStringList raw;
        for (int i = 0; i < argc; ++i)
            raw << QString::fromLocal8Bit(argv[i]);
        QCommandLineParser parser;
        options.addTo(parser);
        (void)parser.parse(raw);
        if (parser.isSet(options.help)) {
            // A core application is enough to read the help in the user's language.
            const QCoreApplication translating(argc, argv);
            installTranslations();
            print(stdout, options.helpText());
            return 0;
        }
        if (parser.isSet(options.version)) {
            print(stdout, Version::nameAndNumber() + u'\n');
            return 0;
        }
    }

    QApplication application(argc, argv);
    QApplication::setOrganizationName(u"Platterbox"_s);
    QApplication::setApplicationName(u"Platterbox"_s);
    QApplication::setApplicationVersion(Version::number());
    installTranslations();
    // The desktop entry, the icon and the metainfo are named after this (packaging/). The data
    // folder comes from the organization and application names above, never from this id.
    QApplication::setDesktopFileName(u"org.platterbox.Platterbox"_s);
    QApplication::setWindowIcon(QIcon(u":/packaging/icons/org.platterbox.Platterbox-256.png"_s));

    QCommandLineParser parser;
    options.addTo(parser);
    QString problem;
    if (!parser.parse(QApplication::arguments()))
        problem = parser.errorText();
    else if (!parser.positionalArguments().isEmpty())
        problem = QCoreApplication::translate("App", "unexpected argument '%1'.").arg(parser.positionalArguments().first());
    // An empty folder name must not quietly mean the collector's own collection.
    else if (parser.isSet(options.dataDir) && parser.value(options.dataDir).trimmed().isEmpty())
        problem = QCoreApplication::translate("App", "--data-dir needs a folder.");
    if (!problem.isEmpty()) {
        print(stderr, u"platterbox-app: "_s + problem + u"\n\n"_s + options.helpText());
        return 2;
    }
    bool chosen = false;
    const QString dataDir = DataFolder::resolve(parser.value(options.dataDir), &chosen);
    auto app = AppDelegate::create(dataDir, chosen, std::make_unique<DesktopPlatformServices>());
    if (!app) {
        // Only a store that cannot be opened ends the program.
        const QString message = translated(u"Unresolved error "_s) + translated(app.errorMessage());
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
