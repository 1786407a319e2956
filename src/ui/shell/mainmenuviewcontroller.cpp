#include "shell/mainmenuviewcontroller.h"

#include "shell/appdelegate.h"
#include "store/firstlaunch.h"

using namespace Qt::StringLiterals;

namespace {
struct MenuButton
{
    QString name;
    QString title;
    QString screen;
    bool changes = false; // its screen only changes the collection: off while it is read-only
};

const QList<MenuButton> &buttons()
{
    static const QList<MenuButton> list = {
        {u"ListButton"_s, u"List Vinyl's"_s, u"ListVinylTableView"_s},
        {u"ListGroupButton"_s, u"Groups"_s, u"GroupListsView"_s},
        {u"AddButton"_s, u"Add Vinyl"_s, u"AddVinylView"_s, true},
        {u"ValuationButton"_s, u"Valuation"_s, u"ValuationView"_s},
        {u"StatisticsButton"_s, u"Statistics"_s, u"StatisticsView"_s},
        {u"WantlistButton"_s, u"Wantlist"_s, u"WantlistView"_s},
        {u"LoansButton"_s, u"Loans"_s, u"LoansView"_s},
        {u"ReferenceListButton"_s, u"Reference Lists"_s, u"ReferenceListsView"_s},
        {u"ImportExportButton"_s, u"Import / Export"_s, u"ImportExportView"_s},
        {u"RateShareButton"_s, u"Rate & Share"_s, u"RateShareTableView"_s},
        {u"OverviewButton"_s, u"Overview"_s, u"OverviewView"_s},
        {u"DefaultsButton"_s, u"Settings"_s, u"DefaultsView"_s},
    };
    return list;
}
} // namespace

MainMenuViewController::MainMenuViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    loadIfReady();
}

void MainMenuViewController::viewDidLoad()
{
    runFirstLaunch(app()->settings(), app()->persistentContainer());
}

QVariantList MainMenuViewController::menuButtons() const
{
    QVariantList list;
    for (const MenuButton &b : buttons()) {
        const bool enabled = app() && app()->navigator()->hasScreen(b.screen) && !(b.changes && app()->readOnly());
        list.append(QVariantMap{{u"name"_s, b.name}, {u"title"_s, b.title}, {u"screen"_s, b.screen}, {u"enabled"_s, enabled}});
    }
    return list;
}

void MainMenuViewController::viewWillAppear()
{
    if (m_menuUnfolded) {
        m_menuUnfolded = false;
        emit menuUnfoldedChanged();
    }
    app()->state()->setOriginScreen(OriginScreens::Menu);
}

void MainMenuViewController::HandleButtonClick()
{
    m_menuUnfolded = !m_menuUnfolded;
    emit menuUnfoldedChanged();
}

void MainMenuViewController::open(const QString &buttonName)
{
    for (const MenuButton &b : buttons()) {
        if (b.name == buttonName && !(b.changes && refusedAsReadOnly()))
            app()->navigator()->show(b.screen);
    }
}
