#pragma once

#include "entities.h"

#include <QDateTime>
#include <QImage>
#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

// The record (or group) the user picked last. Strings are never absent here: an absent
// attribute becomes the empty text.
struct CurrentRecord
{
    qint64 rowId = 0; // the picked object's identity, so editors address exactly that record
    qint16 id = 0;
    QString name;
    QString artist;
    std::optional<QDateTime> releaseDate;
    QString recordLabel;
    qint16 quantity = 0;
    double albumDuration = 0;
    QString producer;
    QString vinylCondition;
    QString coverCondition;
    QString recordSpeed;
    QString doubleAlbum;
    float cost = 0;
    float value = 0;
    QString notes;
    std::optional<QImage> frontImage;
    std::optional<QImage> backImage;
    QList<QImage> images; // front then back, those present
    QString frontImagePath;
    QString backImagePath;
};

// Process-wide state shared by the screens: CurrentRecord, OriginScreen, SortAscending and
// the track being edited.
class AppState : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("AppState belongs to AppDelegate")
    Q_PROPERTY(QString originScreen READ originScreen WRITE setOriginScreen NOTIFY originScreenChanged)
    Q_PROPERTY(bool sortAscending READ sortAscending WRITE setSortAscending NOTIFY sortAscendingChanged)
    Q_PROPERTY(QString currentRecordName READ currentRecordName NOTIFY currentRecordChanged)

public:
    explicit AppState(QObject *parent = nullptr);

    [[nodiscard]] const CurrentRecord &currentRecord() const { return m_current; }
    // Writers of single group fields (the group lists) and of whole records.
    CurrentRecord &editCurrentRecord() { return m_current; }
    void notifyCurrentRecordChanged() { emit currentRecordChanged(); }

    // Copies every field of the picked record; covers are decoded. A record without covers
    // leaves the images empty and keeps the previous cover paths.
    void setCurrentRecord(const Vinyl &vinyl);

    [[nodiscard]] QString originScreen() const { return m_originScreen; }
    void setOriginScreen(const QString &screen);

    [[nodiscard]] bool sortAscending() const { return m_sortAscending; }
    void setSortAscending(bool ascending);

    [[nodiscard]] qint64 currentTrackRowId() const { return m_currentTrackRowId; }
    void setCurrentTrackRowId(qint64 rowId) { m_currentTrackRowId = rowId; }

    // The condition-list entry handed from a condition list to its editor.
    [[nodiscard]] qint64 currentConditionRowId() const { return m_currentConditionRowId; }
    void setCurrentConditionRowId(qint64 rowId) { m_currentConditionRowId = rowId; }

    [[nodiscard]] QString currentRecordName() const { return m_current.name; }

signals:
    void originScreenChanged();
    void sortAscendingChanged();
    void currentRecordChanged();

private:
    CurrentRecord m_current;
    QString m_originScreen;
    bool m_sortAscending = true;
    qint64 m_currentTrackRowId = 0;
    qint64 m_currentConditionRowId = 0;
};

namespace OriginScreens {
inline const QString Menu = QStringLiteral("Menu");
inline const QString List = QStringLiteral("List");
inline const QString ArtistBreakdown = QStringLiteral("ArtistBreakdown");
inline const QString LabelBreakdown = QStringLiteral("LabelBreakdown");
inline const QString ProducerBreakdown = QStringLiteral("ProducerBreakdown");
inline const QString YearBreakdown = QStringLiteral("YearBreakdown");
} // namespace OriginScreens
