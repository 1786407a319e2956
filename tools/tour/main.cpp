// The screen tour: every screen of the app, with a sample collection loaded, as PNG files; in the
// light variant at every width, then in the dark one at phone and desktop width (dark/).
#include "shell/theme.h"
#include "store/logging.h"
#include "store/translations.h"
#include "tour.h"

#include <QCursor>
#include <QDir>
#include <QApplication>
#include <QQuickWindow>
#include <QScreen>
#include <QSGRendererInterface>
#include <QTimeZone>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    installConsoleFormat();
    if (qEnvironmentVariableIsEmpty("PLATTERBOX_TOUR_GL"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    // The charts draw through Graphics View, which needs the widgets' application object.
    QApplication application(argc, argv);
    // PLATTERBOX_TOUR_LANG=de pictures the screens in German, in German formats; English otherwise.
    if (qEnvironmentVariable("PLATTERBOX_TOUR_LANG") == u"de"_s) {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        if (!installTranslations(QLocale()))
            fprintf(stderr, "tour: the German translation did not load\n");
    } else {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }
    const QString outDir = QApplication::arguments().value(1, u"build/tour"_s);
    QDir().mkpath(outDir);

    TourApp tour;
    if (!tour.errorMessage().isEmpty()) {
        fprintf(stderr, "tour: %s\n", qPrintable(tour.errorMessage()));
        return 1;
    }
    QQuickWindow *window = &tour.window();

    // The light set is light whatever the desktop prefers; the dark set follows it.
    Theme::instance()->setChoice(Theme::Choice::Light);
    QList<TourStep> steps = tourSteps();
    // Work in progress is pictured once, at phone size, after every other screen: it grows the
    // collection.
    QList<TourStep> lastSteps;
    addExchangeProgressSteps(lastSteps);
    addReportProgressSteps(lastSteps);
    QList<TourStep> wideSteps;
    addWideSteps(wideSteps);
    // PLATTERBOX_TOUR_ONLY=text takes only the pictures whose paths in the tour's folder hold text
    // ("settings", "dark/", "dark/desktop/statistics").
    const QString only = qEnvironmentVariable("PLATTERBOX_TOUR_ONLY");

    // Every screen at the three widths the screens adapt to: phone (the window's own size, in
    // the folder itself), tablet and desktop (in sub-folders).
    struct TourSize
    {
        QString folder;
        QSize size;
    };
    // Then the edges of the three: the narrowest phone, and each side of where the layout
    // changes; at every one of them each text shows whole and every card keeps its width.
    const QList<TourSize> sizes = {
        {QString(), window->size()},
        {u"tablet"_s, QSize(834, 1194)},
        {u"desktop"_s, QSize(1400, 900)},
        {u"width-320"_s, QSize(320, 640)},
        {u"width-600"_s, QSize(600, 960)},
        {u"width-990"_s, QSize(990, 760)},
        {u"width-1100"_s, QSize(1100, 760)},
    };

    // The pointer rests outside the window, so no card shows the hover tint.
    QCursor::setPos(window->screen()->geometry().bottomRight());

    TourContext context(tour.app(), *window);
    int written = 0;
    int expected = 0;
    int cut = 0;
    const auto picture = [&](const QDir &dir, const TourStep &step) {
        const QString path = dir.filePath(step.fileName);
        if (!only.isEmpty() && !QDir(outDir).relativeFilePath(path).contains(only))
            return;
        ++expected;
        step.prepare(context);
        if (step.settleFirst)
            context.settle();
        if (step.settleFirst) {
            for (const QString &problem : context.cutTexts()) {
                ++cut;
                fprintf(stderr, "tour: %s at %d px: %s\n", qPrintable(step.fileName), window->width(), qPrintable(problem));
            }
        }
        if (window->grabWindow().save(path)) {
            ++written;
            printf("%s\n", qPrintable(QDir::cleanPath(path)));
        } else {
            fprintf(stderr, "tour: could not write %s\n", qPrintable(path));
        }
    };
    for (const TourSize &size : sizes) {
        const QDir dir(QDir(outDir).filePath(size.folder));
        QDir().mkpath(dir.path());
        window->resize(size.size);
        context.settle(600);
        for (const TourStep &step : steps)
            picture(dir, step);
    }
    // The same screens in the dark variant, beside the light ones: at phone and desktop width.
    const QList<TourSize> darkSizes = {sizes.at(0), sizes.at(2)};
    Theme::instance()->setChoice(Theme::Choice::Dark);
    for (const TourSize &size : darkSizes) {
        const QDir dir(QDir(outDir).filePath(u"dark/"_s + size.folder));
        QDir().mkpath(dir.path());
        window->resize(size.size);
        context.settle(600);
        for (const TourStep &step : steps)
            picture(dir, step);
    }
    Theme::instance()->setChoice(Theme::Choice::Light);
    const QDir wide(QDir(outDir).filePath(u"desktop-1600"_s));
    QDir().mkpath(wide.path());
    window->resize(QSize(1600, 1000));
    context.settle(600);
    for (const TourStep &step : wideSteps)
        picture(wide, step);
    window->resize(sizes.first().size);
    context.settle(600);
    for (const TourStep &step : lastSteps)
        picture(QDir(outDir), step);
    printf("%d screens written to %s\n", written, qPrintable(outDir));
    if (cut > 0)
        fprintf(stderr, "tour: %d texts or cards cut short\n", cut);
    return written == expected && cut == 0 ? 0 : 1;
}
