#include "entry/lookupcandidatemodel.h"

#include "lookup/lookuprecord.h"

#include <QBuffer>

using namespace Qt::StringLiterals;

namespace {

// The list shows covers at 64 pixels; a copy of twice that stays sharp on a dense screen.
constexpr int kShownCoverSide = 128;

QString dataUrl(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.scaled(kShownCoverSide, kShownCoverSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        .save(&buffer, "JPEG", 85);
    return u"data:image/jpeg;base64,"_s + QString::fromLatin1(bytes.toBase64());
}

} // namespace

LookupCandidateModel::LookupCandidateModel(QObject *parent) : QAbstractListModel(parent) {}

int LookupCandidateModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant LookupCandidateModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case TitleRole:
        return row.candidate.title;
    case ArtistRole:
        return row.candidate.artist;
    case DetailsRole:
        return row.details;
    case CoverSourceRole:
        return row.coverSource;
    case AccessibleLabelRole: {
        QStringList parts{row.candidate.title, row.candidate.artist, row.details};
        parts.removeAll(QString());
        return parts.join(tr(", ", "between the parts of a release read out"));
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> LookupCandidateModel::roleNames() const
{
    return {{TitleRole, "title"}, {ArtistRole, "artist"}, {DetailsRole, "details"}, {CoverSourceRole, "coverSource"},
            {AccessibleLabelRole, "accessibleLabel"}};
}

void LookupCandidateModel::setCandidates(const QList<LookupCandidate> &candidates)
{
    beginResetModel();
    m_rows.clear();
    for (const LookupCandidate &c : candidates)
        m_rows.append({c, LookedUp::details(c).join(u" · "_s), {}});
    endResetModel();
}

void LookupCandidateModel::setCover(int row, const QImage &cover)
{
    if (row < 0 || row >= m_rows.size() || cover.isNull())
        return;
    m_rows[row].coverSource = dataUrl(cover);
    const QModelIndex changed = index(row);
    emit dataChanged(changed, changed, {CoverSourceRole});
}
