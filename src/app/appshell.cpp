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
    bool found = false;
    bool bad = false;
    QString dir;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &a = arguments[i];
        if (a == u"--data-dir"_s) {
            found = true;
            bad = i + 1 >= arguments.size();
            dir = bad ? QString() : arguments[i + 1];
            arguments.remove(i, bad ? 1 : 2);
            break;
        }
        if (a.startsWith(u"--data-dir="_s)) {
            found = true;
            dir = a.mid(11);
            arguments.removeAt(i);
            break;
        }
    }
    // An empty folder name must not quietly mean the collector's own collection.
    if (found && dir.trimmed().isEmpty())
        bad = true;
    if (malformed)
        *malformed = bad;
    return bad ? QString() : dir;
}

} // namespace AppShell
