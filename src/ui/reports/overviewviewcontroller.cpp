#include "reports/overviewviewcontroller.h"

#include "reports/reporttexts.h"
#include "store/translations.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {
const QString kResource = u":/resources/overview.pdf"_s;
}

OverviewViewController::OverviewViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    loadIfReady();
}

QString OverviewViewController::title() const
{
    return translated(ReportTexts::kOverviewTitle);
}

QUrl OverviewViewController::documentSource()
{
    return QUrl(u"qrc"_s + kResource);
}

bool OverviewViewController::documentFound()
{
    return QFile::exists(kResource);
}

void OverviewViewController::viewDidLoad()
{
    if (!documentFound())
        showAlert(ReportTexts::kOverviewTitle, translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The overview document is missing from this build."))));
}
