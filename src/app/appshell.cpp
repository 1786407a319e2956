#include "appshell.h"

#include "appdelegate.h"
#include "breakdowntableviewcontroller.h"
#include "coverimageprovider.h"
#include "filteredlistpdf.h"
#include "reportpageprovider.h"

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
    return QUrl(u"qrc:/qt/qml/Platterbox/app/Main.qml"_s);
}

} // namespace AppShell
