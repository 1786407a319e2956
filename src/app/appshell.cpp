#include "app/appshell.h"

#include "browse/breakdowntableviewcontroller.h"
#include "reports/filteredlistpdf.h"
#include "reports/reportpageprovider.h"
#include "shell/appdelegate.h"
#include "shell/coverimageprovider.h"

#include <QQmlEngine>
#include <QQuickStyle>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace AppShell {

void prepareEngine(QQmlEngine &engine, AppDelegate &app)
{
    QQuickStyle::setStyle(u"Material"_s);
    BreakdownTableViewController::setPdfWriter(&FilteredListPdf::write);
    engine.addImportPath(u"qrc:/qt/qml"_s);
    engine.addImageProvider(CoverImageProvider::kProviderId,
                            new CoverImageProvider(app.persistentContainer().filePath()));
    engine.addImageProvider(ReportPageProvider::kProviderId, new ReportPageProvider);
}

QUrl mainQmlUrl()
{
    return QUrl(u"qrc:/qt/qml/Platterbox/shell/Main.qml"_s);
}

} // namespace AppShell
