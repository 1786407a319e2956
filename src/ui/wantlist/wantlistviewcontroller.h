#pragma once

#include "shell/screencontroller.h"
#include "store/wantedalbums.h"

#include <QVariantList>

// The albums the collector is looking for, sought first first, then by artist; a search narrows
// them by album or artist. Picking one opens its form; "Add" opens an empty one. Read again each
// time the screen comes back.
class WantlistViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    // [{album, artist, detail, priority}] of the albums the search finds.
    Q_PROPERTY(QVariantList albums READ albums NOTIFY albumsChanged)
    Q_PROPERTY(QString summary READ summary NOTIFY albumsChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY albumsChanged)

public:
    explicit WantlistViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] QVariantList albums() const;
    [[nodiscard]] QString summary() const;
    [[nodiscard]] QString searchText() const { return m_search; }
    void setSearchText(const QString &text);

    void viewWillAppear() override;
    Q_INVOKABLE void addClicked();
    Q_INVOKABLE void rowPicked(int row);
    // Asks, then takes the album off the wantlist.
    Q_INVOKABLE void deleteRow(int row);

signals:
    void albumsChanged();

protected:
    void viewDidLoad() override { reload(); }

private:
    void reload();
    void openForm(qint64 rowId);

    QList<WantedAlbum> m_all;
    QList<WantedAlbum> m_shown;
    QString m_search;
};
