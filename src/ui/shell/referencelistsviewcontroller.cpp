#include "shell/referencelistsviewcontroller.h"

#include "shell/appdelegate.h"

using namespace Qt::StringLiterals;

ReferenceListsViewController::ReferenceListsViewController(AppDelegate *app, QObject *parent)
    : ScreenController(app, parent)
{
    loadIfReady();
}

bool ReferenceListsViewController::conditionListsAvailable() const
{
    return app() && app()->navigator()->hasScreen(u"VinylConditionTableView"_s);
}

void ReferenceListsViewController::VinylConditionButtonClicked()
{
    app()->navigator()->show(u"VinylConditionTableView"_s);
}

void ReferenceListsViewController::CoverConditionButtonClicked()
{
    app()->navigator()->show(u"CoverConditionTableView"_s);
}
