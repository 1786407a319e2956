#pragma once

#include "lookup/lookupanswers.h"

#include <QAbstractListModel>
#include <QImage>
#include <QList>
#include <QtQml/qqmlregistration.h>

// The releases a look-up found, as the sheet lists them: title, artist, the details that tell
// one pressing from another, and a small front cover once it has come.
class LookupCandidateModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("")

public:
    // AccessibleLabelRole: the release as one sentence for a screen reader.
    enum Roles { TitleRole = Qt::UserRole + 1, ArtistRole, DetailsRole, CoverSourceRole, AccessibleLabelRole };

    explicit LookupCandidateModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void setCandidates(const QList<LookupCandidate> &candidates);
    // The small front cover of a row; a null picture leaves the row without one.
    void setCover(int row, const QImage &cover);
    [[nodiscard]] const LookupCandidate &candidate(int row) const { return m_rows.at(row).candidate; }

private:
    struct Row
    {
        LookupCandidate candidate;
        QString details;     // "Harbour Light Records HLR-041 · 2019-04-12 · SE · 12\" Vinyl · 6 tracks"
        QString coverSource; // a data URL of the small cover, "" until it has come
    };
    QList<Row> m_rows;
};
