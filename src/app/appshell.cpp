#include "appshell.h"

#include "appdelegate.h"
#include "coverimageprovider.h"
#include "filteredlistpdf.h"
#include "reportpageprovider.h"

#include <QQmlEngine>
#include <QQuickStyle>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace AppShell {

void installConsoleFormat()
{
    qSetMessagePattern(u"%{message}"_s);
}

void prepareEngine(QQmlEngine &engine, AppDelegate &app)
{
    QQuickStyle::setStyle(u"Material"_s);
    FilteredListPdf::install();
    engine.addImportPath(u"qrc:/qt/qml"_s);
    engine.addImageProvider(CoverImageProvider::kProviderId,
                            new CoverImageProvider(app.persistentContainer().filePath()));
    engine.addImageProvider(ReportPageProvider::kProviderId, new ReportPageProvider);
}

QUrl mainQmlUrl()
{
    return QUrl(u"qrc:/qt/qml/Platterbox/app/Main.qml"_s);
}

QString takeDataDirOption(QStringList &arguments, bool *malformed)
{
    if (malformed)
        *malformed = false;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &a = arguments[i];
        if (a == u"--data-dir"_s) {
            if (i + 1 >= arguments.size()) {
                if (malformed)
                    *malformed = true;
                arguments.removeAt(i);
                return {};
            }
            const QString dir = arguments[i + 1];
            arguments.remove(i, 2);
            return dir;
        }
        if (a.startsWith(u"--data-dir="_s)) {
            const QString dir = a.mid(11);
            arguments.removeAt(i);
            return dir;
        }
    }
    return {};
}

} // namespace AppShell
