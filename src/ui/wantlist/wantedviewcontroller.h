#pragma once

#include "entry/recordformcontroller.h"
#include "store/wantedalbums.h"

// The form of a wanted album: the record form with the most the collector would pay and a
// priority. It adds a new album or edits the one picked on the wantlist; "Got It" moves that one
// into the collection at the cost the collector paid.
class WantedViewController : public RecordFormController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isNew READ isNew NOTIFY loaded)
    Q_PROPERTY(QString maxPrice READ maxPrice WRITE setMaxPrice NOTIFY wantedChanged)
    Q_PROPERTY(QString priorityName READ priorityName WRITE setPriorityName NOTIFY wantedChanged)
    Q_PROPERTY(QStringList priorityNames READ priorityNames CONSTANT)
    // The album's stored tracks.
    Q_PROPERTY(QStringList storedTracks READ storedTrackLines NOTIFY loaded)
    // "What did "Salt Roads" cost?"
    Q_PROPERTY(QString gotItPrompt READ gotItPrompt NOTIFY loaded)

public:
    explicit WantedViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] bool isNew() const { return m_wanted.rowId == 0; }
    [[nodiscard]] QString maxPrice() const { return m_maxPrice; }
    void setMaxPrice(const QString &text);
    [[nodiscard]] QString priorityName() const;
    void setPriorityName(const QString &name);
    [[nodiscard]] int priority() const { return m_priority; }
    [[nodiscard]] QStringList priorityNames() const;
    [[nodiscard]] QStringList storedTrackLines() const { return trackLines(m_storedTracks); }
    [[nodiscard]] QString gotItPrompt() const;

    Q_INVOKABLE void save();
    // The collector has the album; `cost` is what was paid, in the current locale (empty: not said).
    // False, after an alert, when it is refused.
    Q_INVOKABLE bool gotIt(const QString &cost);
    // Asks, then takes the album off the wantlist.
    Q_INVOKABLE void deleteClicked();
    Q_INVOKABLE void RemoveFrontImage() override { clearCover(CoverSide::Front); }
    Q_INVOKABLE void RemoveBackImage() override { clearCover(CoverSide::Back); }

    // A wanted album is not stored in the collection, so no copy of a stored record is offered.
    [[nodiscard]] bool asksAboutStoredCopies() const override { return false; }

    // The record Got It made (0 before).
    [[nodiscard]] qint64 collectedRowId() const { return m_collectedRowId; }

signals:
    void wantedChanged();

protected:
    void viewDidLoad() override;
    [[nodiscard]] bool recordHasTracks() const override { return !m_storedTracks.isEmpty(); }

private:
    // The covers as the album keeps them: squeezed like a record's; false after an alert.
    bool takeCovers(Vinyl &album);
    void returnToWantlist();

    WantedAlbum m_wanted;
    QList<Track> m_storedTracks;
    QString m_maxPrice;
    int m_priority = 2;
    qint64 m_collectedRowId = 0;
    bool m_returning = false;
};
