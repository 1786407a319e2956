#include "wantlist/wantlistviewcontroller.h"

#include "collection/wantlist.h"
#include "shell/appdelegate.h"
#include "store/translations.h"

using namespace Qt::StringLiterals;

WantlistViewController::WantlistViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    loadIfReady();
}

void WantlistViewController::viewWillAppear()
{
    if (app())
        reload();
}

void WantlistViewController::reload()
{
    auto all = WantedAlbums::all(app()->persistentContainer());
    if (!all)
        showAlert(kStoreErrorTitle, all.errorMessage());
    m_all = all.valueOr({});
    setSearchText(m_search);
    emit albumsChanged();
}

void WantlistViewController::setSearchText(const QString &text)
{
    m_search = text;
    m_shown.clear();
    for (const WantedAlbum &wanted : std::as_const(m_all)) {
        if (Wantlist::matchesSearch(wanted, text))
            m_shown.append(wanted);
    }
    emit albumsChanged();
}

QVariantList WantlistViewController::albums() const
{
    QVariantList rows;
    for (const WantedAlbum &wanted : m_shown) {
        const QString detail = Wantlist::detailLine(wanted);
        // The row as one sentence for a screen reader.
        QStringList spoken{text(wanted.album.name), text(wanted.album.artist), detail};
        spoken.removeAll(QString());
        rows.append(QVariantMap{{u"album"_s, text(wanted.album.name)},
                                {u"artist"_s, text(wanted.album.artist)},
                                {u"detail"_s, detail},
                                {u"priority"_s, wanted.priority},
                                {u"accessibleLabel"_s, spoken.join(tr(", ", "between the parts of a wanted album read out"))}});
    }
    return rows;
}

QString WantlistViewController::summary() const
{
    return Wantlist::summary(m_shown.size(), m_all.size());
}

void WantlistViewController::addClicked()
{
    if (!refusedAsReadOnly())
        openForm(0);
}

void WantlistViewController::rowPicked(int row)
{
    if (row >= 0 && row < m_shown.size())
        openForm(m_shown.at(row).rowId);
}

void WantlistViewController::openForm(qint64 rowId)
{
    app()->state()->setCurrentWantedRowId(rowId);
    app()->navigator()->show(u"WantedView"_s);
}

void WantlistViewController::deleteRow(int row)
{
    if (row < 0 || row >= m_shown.size() || refusedAsReadOnly())
        return;
    const WantedAlbum wanted = m_shown.at(row);
    showAlert(Wantlist::kDeleteTitle, translated(Wantlist::kDeleteMessage).arg(text(wanted.album.name), text(wanted.album.artist)),
              {Wantlist::kKeepButton, Wantlist::kDeleteButton}, [this, rowId = wanted.rowId](int button) {
                  if (button != 1)
                      return;
                  if (auto r = WantedAlbums::remove(app()->persistentContainer(), rowId); !r)
                      showAlert(kStoreErrorTitle, r.errorMessage());
                  reload();
              });
}
