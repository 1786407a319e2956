#pragma once

#include "collection/tracks.h"
#include "entry/trackslistmodel.h"
#include "shell/screencontroller.h"

// The tracks of the record in CurrentRecord: search by song, sort by track number,
// swipe to delete, pick a track to edit it.
class TracksTableViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(TracksListModel *model READ model CONSTANT)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(bool SortAsc READ sortAsc NOTIFY listChanged)
    Q_PROPERTY(int TrackCount READ trackCount NOTIFY listChanged)
    Q_PROPERTY(qint64 vinylRowId READ vinylRowId NOTIFY listChanged)
    Q_PROPERTY(QString searchPlaceholder READ searchPlaceholder CONSTANT)

public:
    explicit TracksTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] TracksListModel *model() { return &m_model; }
    [[nodiscard]] QString searchText() const { return m_searchText; }
    void setSearchText(const QString &text);
    [[nodiscard]] bool sortAsc() const { return m_sortAsc; }
    [[nodiscard]] int trackCount() const { return int(m_all.size()); }
    [[nodiscard]] qint64 vinylRowId() const;
    [[nodiscard]] QString searchPlaceholder() const { return TrackTexts::SearchPlaceholder; }

    // Fetches the tracks again and shows them (filtered while searching).
    Q_INVOKABLE void loadTracks();
    Q_INVOKABLE void SortButtonTapped();
    Q_INVOKABLE void AddButtonTapped();
    // Opens the track shown in this row in the track editor.
    Q_INVOKABLE void rowSelected(int row);
    // Deletes the track shown in this row.
    Q_INVOKABLE void deleteRow(int row);
    void viewWillAppear() override { loadTracks(); }

signals:
    void searchTextChanged();
    void listChanged();

protected:
    void viewDidLoad() override { loadTracks(); }

private:
    TracksListModel m_model;
    QList<TrackRow> m_all;
    QString m_searchText;
    bool m_sortAsc = true;
};

// Shared form of the add and edit track screens.
class TrackFormController : public ScreenController
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QString trackNumber MEMBER m_trackNumber NOTIFY formChanged)
    Q_PROPERTY(QString song MEMBER m_song NOTIFY formChanged)
    Q_PROPERTY(QString duration MEMBER m_duration NOTIFY formChanged)
    Q_PROPERTY(QString writtenBy MEMBER m_writtenBy NOTIFY formChanged)
    Q_PROPERTY(QString title READ title CONSTANT)

public:
    using ScreenController::ScreenController;

    [[nodiscard]] virtual QString title() const = 0;
    [[nodiscard]] TrackForm form() const { return {m_trackNumber, m_song, m_duration, m_writtenBy}; }
    void setForm(const TrackForm &form);

    Q_INVOKABLE virtual void SaveTrack() = 0;

signals:
    void formChanged();

protected:
    QString m_trackNumber;
    QString m_song;
    QString m_duration;
    QString m_writtenBy;
};

// "Add Track": a new track of the record in CurrentRecord.
class AddTracksViewController : public TrackFormController
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit AddTracksViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
    [[nodiscard]] QString title() const override { return QStringLiteral("Add Track"); }
    Q_INVOKABLE void SaveTrack() override;
};

// "Edit Track": the track the user picked in the list (AppState's current track row).
class EditTracksViewController : public TrackFormController
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit EditTracksViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
    [[nodiscard]] QString title() const override { return QStringLiteral("Edit Track"); }
    Q_INVOKABLE void SaveTrack() override;

protected:
    void viewDidLoad() override;

private:
    // The opened track as stored now; nullopt when it is gone.
    std::optional<Track> openedTrack() const;
};
