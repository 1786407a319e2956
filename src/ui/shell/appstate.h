#pragma once

#include "reports/reporttexts.h"
#include "store/currentrecord.h"
#include "store/entities.h"

#include <QDateTime>
#include <QImage>
#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

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

    // The wanted album handed from the wantlist to its form; 0 for a new one.
    [[nodiscard]] qint64 currentWantedRowId() const { return m_currentWantedRowId; }
    void setCurrentWantedRowId(qint64 rowId) { m_currentWantedRowId = rowId; }

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
    qint64 m_currentWantedRowId = 0;
};

// The screens a record is picked from; the lists a report can be made from keep the report's names.
namespace OriginScreens {
inline const QString Menu = QStringLiteral("Menu");
inline const QString List = ReportOrigins::List;
inline const QString ArtistBreakdown = ReportOrigins::ArtistBreakdown;
inline const QString LabelBreakdown = ReportOrigins::LabelBreakdown;
inline const QString ProducerBreakdown = ReportOrigins::ProducerBreakdown;
inline const QString YearBreakdown = ReportOrigins::YearBreakdown;
inline const QString Loans = QStringLiteral("Loans");
} // namespace OriginScreens
