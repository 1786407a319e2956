#pragma once

#include "collection/tracks.h"

#include <QAbstractListModel>
#include <QList>
#include <QtQml/qqmlregistration.h>

// The rows the track list shows (the search result while searching).
class TracksListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("")

public:
    enum Roles { RowIdRole = Qt::UserRole + 1, SongLabelRole, TrackNumberLabelRole, DurationLabelRole, WrittenByLabelRole,
                 // The track as one sentence for a screen reader.
                 AccessibleLabelRole };

    explicit TracksListModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void setRows(QList<TrackRow> rows);
    void removeRowAt(int row);
    [[nodiscard]] const QList<TrackRow> &rows() const { return m_rows; }

private:
    QList<TrackRow> m_rows;
};
