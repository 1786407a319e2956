#include "shell/mainmenuviewcontroller.h"

#include "shell/appdelegate.h"
#include "store/firstlaunch.h"
#include "store/translations.h"

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
        {u"ListButton"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "List Vinyl's")), u"ListVinylTableView"_s},
        {u"ListGroupButton"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Groups")), u"GroupListsView"_s},
        {u"AddButton"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Add Vinyl")), u"AddVinylView"_s, true},
        {u"ValuationButton"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Valuation")), u"ValuationView"_s},
        {u"StatisticsButton"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Statistics")), u"StatisticsView"_s},
        {u"WantlistButton"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Wantlist")), u"WantlistView"_s},
        {u"LoansButton"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Loans")), u"LoansView"_s},
        {u"ReferenceListButton"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Reference Lists")), u"ReferenceListsView"_s},
        {u"ImportExportButton"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Import / Export")), u"ImportExportView"_s},
        {u"RateShareButton"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Rate & Share")), u"RateShareTableView"_s},
        {u"OverviewButton"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Overview")), u"OverviewView"_s},
        {u"DefaultsButton"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Settings")), u"DefaultsView"_s},
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
        list.append(QVariantMap{{u"name"_s, b.name}, {u"title"_s, translated(b.title)}, {u"screen"_s, b.screen}, {u"enabled"_s, enabled}});
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
