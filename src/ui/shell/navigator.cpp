#include "shell/navigator.h"

#include "store/logging.h"

#include <QFile>
#include <QHash>

using namespace Qt::StringLiterals;

namespace {
const QStringList kScreenFolders = {u"shell"_s, u"entry"_s, u"browse"_s, u"reports"_s,
                                    u"valuation"_s, u"exchange"_s, u"feedback"_s, u"stats"_s, u"loans"_s,
                                    u"wantlist"_s};

QString resourcePath(const QString &screen)
{
    for (const QString &folder : kScreenFolders) {
        const QString path = u":/qt/qml/Platterbox/"_s + folder + u'/' + screen + u".qml"_s;
        if (QFile::exists(path))
            return path;
    }
    return {};
}
} // namespace

Navigator::Navigator(QObject *parent) : QObject(parent) {}

bool Navigator::hasScreen(const QString &screen) const
{
    return !resourcePath(screen).isEmpty();
}

QUrl Navigator::screenUrl(const QString &screen) const
{
    const QString path = resourcePath(screen);
    return path.isEmpty() ? QUrl() : QUrl(u"qrc"_s + path);
}

QString Navigator::screenForUnwind(const QString &segue)
{
    static const QHash<QString, QString> screens = {
        {u"unwindToMenu"_s, u"MainMenuView"_s},
        {u"unwindToList"_s, u"ListVinylTableView"_s},
        {u"unwindToArtistTableView"_s, u"ArtistBreakdownTableView"_s},
        {u"unwindToLabelTableView"_s, u"LabelBreakdownTableView"_s},
        {u"unwindToProducerTableView"_s, u"ProducerBreakdownTableView"_s},
        {u"unwindToYearTableView"_s, u"YearBreakdownTableView"_s},
        {u"unwindToLoans"_s, u"LoansView"_s},
        {u"unwindToWantlist"_s, u"WantlistView"_s},
        {u"unwindToTrackTableView"_s, u"TracksTableView"_s},
        {u"unwindToEdit"_s, u"EditVinylView"_s},
        {u"unwindToVinylConditionTableView"_s, u"VinylConditionTableView"_s},
        {u"unwindToCoverConditionTableView"_s, u"CoverConditionTableView"_s},
    };
    return screens.value(segue, u"MainMenuView"_s);
}

void Navigator::show(const QString &screen)
{
    const QUrl url = screenUrl(screen);
    m_lastShown = screen;
    if (url.isEmpty()) {
        consoleLine(u"No screen named "_s + screen);
        return;
    }
    emit showRequested(screen, url);
}

void Navigator::unwind(const QString &segue)
{
    m_lastUnwind = segue;
    emit unwindRequested(screenForUnwind(segue), segue);
}

void Navigator::back()
{
    emit backRequested();
}
