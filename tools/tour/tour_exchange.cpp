// Tour steps of the exchange screens: the import/export menu, the export screen after a build
// and the import screen with a loaded file.
#include "appdelegate.h"
#include "exchangewriter.h"
#include "exportviewcontroller.h"
#include "importviewcontroller.h"
#include "tour.h"

#include <QDir>
#include <QFile>
#include <QMetaObject>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {
void closeAlert(TourContext &c)
{
    if (QObject *alert = c.find(u"alert"_s))
        QMetaObject::invokeMethod(alert, "close");
    c.settle(300);
}

void buildExport(TourContext &c)
{
    c.home();
    c.show(u"ImportExportView"_s);
    c.show(u"ExportView"_s);
    if (auto *controller = qobject_cast<ExportViewController *>(c.topController())) {
        controller->CreateUpdateFile();
        for (int i = 0; i < 100 && controller->building(); ++i)
            c.settle(50);
    }
}

void loadImportFile(TourContext &c)
{
    c.home();
    c.show(u"ImportExportView"_s);
    c.show(u"ImportView"_s);
    const QString path = QDir(AppDelegate::tempDir()).filePath(u"platterbox-tour-import.csv"_s);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(ExchangeWriter::build(c.app().persistentContainer(), false).valueOr({}));
    file.close();
    if (auto *controller = qobject_cast<ImportViewController *>(c.topController()))
        controller->documentPicked(QUrl::fromLocalFile(path));
    c.settle(300);
}
} // namespace

void addExchangeSteps(QList<TourStep> &steps)
{
    steps.append({u"import-export-menu.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"ImportExportView"_s);
                  }});
    steps.append({u"export-before-build.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"ImportExportView"_s);
                      c.show(u"ExportView"_s);
                  }});
    steps.append({u"export-built-alert.png"_s, [](TourContext &c) {
                      buildExport(c);
                      c.settle(1400);
                  }});
    steps.append({u"export-built.png"_s, [](TourContext &c) { closeAlert(c); }});
    steps.append({u"import-file-loaded-alert.png"_s, [](TourContext &c) { loadImportFile(c); }});
    steps.append({u"import-file-loaded.png"_s, [](TourContext &c) { closeAlert(c); }});
}
