#include "shell/mainmenuviewcontroller.h"

#include "collection/loans.h"
#include "shell/appdelegate.h"
#include "shell/coverimageprovider.h"
#include "store/collectiontotals.h"
#include "store/firstlaunch.h"
#include "store/formatters.h"
#include "store/logging.h"
#include "store/translations.h"
#include "store/wantedalbums.h"

#include <QLocale>

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

// How many records the start screen lists as added last.
constexpr int kRecentCount = 5;

QVariantMap figure(const QString &label, const QString &value)
{
    return {{u"label"_s, label}, {u"value"_s, value}};
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
    readGlance();
}

void MainMenuViewController::readGlance()
{
    if (!app())
        return;
    const Store &store = app()->persistentContainer();
    const QLocale locale;
    m_figures.clear();
    if (auto totals = collectionTotals(store)) {
        m_figures << figure(tr("Records"), locale.toString(totals->records))
                  << figure(tr("Copies"), locale.toString(totals->copies))
                  << figure(tr("Total value"), Formatters::currencyOrZero(totals->value));
    } else {
        consoleLine(totals.errorMessage());
    }
    if (auto out = store.loansOut()) {
        const QDate today = QDate::currentDate();
        const auto overdue = std::count_if(out->cbegin(), out->cend(), [&](const LoanOut &o) { return Loans::isOverdue(o.loan, today); });
        m_figures << figure(overdue > 0 ? tr("On loan, %1 overdue").arg(locale.toString(qint64(overdue))) : tr("On loan"),
                            locale.toString(qint64(out->size())));
    }
    if (auto wanted = WantedAlbums::count(store))
        m_figures << figure(tr("Wanted"), locale.toString(*wanted));

    m_recentRecords.clear();
    auto recent = store.fetchVinyl(
        FetchRequest(Entity::Vinyl).onlyCardAttributes().sortedBy(Store::kAddedOrder, false).limitedTo(kRecentCount));
    if (!recent)
        consoleLine(recent.errorMessage());
    for (const Vinyl &vinyl : recent ? *recent : QList<Vinyl>()) {
        m_recentRecords << QVariantMap{{u"rowId"_s, vinyl.rowId},
                                       {u"album"_s, text(vinyl.name)},
                                       {u"artist"_s, text(vinyl.artist)},
                                       {u"coverSource"_s, CoverImageProvider::source(vinyl.rowId)}};
    }
    emit glanceChanged();
}

void MainMenuViewController::openRecent(int index)
{
    if (index < 0 || index >= m_recentRecords.size())
        return;
    if (!openInEditor(m_recentRecords.at(index).toMap().value(u"rowId"_s).toLongLong(), OriginScreens::Menu))
        readGlance();
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
