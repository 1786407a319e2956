#include "exchange/importpreviewmodel.h"

#include "store/formatters.h"
#include "store/translations.h"

using namespace Qt::StringLiterals;

ImportPreviewModel::ImportPreviewModel(QObject *parent) : QAbstractListModel(parent) {}

void ImportPreviewModel::setPreview(std::shared_ptr<const ImportFile> file, QList<ImportOutcome> outcomes,
                                    QList<ImportDetail> details)
{
    beginResetModel();
    m_file = std::move(file);
    m_outcomes = std::move(outcomes);
    m_details = std::move(details);
    m_rows.clear();
    m_kind = kAllKinds;
    select();
    endResetModel();
}

void ImportPreviewModel::clear()
{
    setPreview(nullptr, {}, {});
}

void ImportPreviewModel::showKind(int kind)
{
    if (kind == m_kind)
        return;
    beginResetModel();
    m_kind = kind;
    select();
    endResetModel();
}

void ImportPreviewModel::select()
{
    m_shown.clear();
    for (int i = 0; i < m_outcomes.size(); ++i) {
        if (m_kind == kAllKinds || m_outcomes.at(i).kind == m_kind)
            m_shown.append(i);
    }
}

int ImportPreviewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

namespace {
QString lineText(qint64 line)
{
    return translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Line %1"))).arg(line);
}
} // namespace

ImportPreviewModel::Row ImportPreviewModel::makeRow(const ImportOutcome &outcome) const
{
    static const QString kinds[] = {kNew, kUpdated, kUnchanged, kProblem};
    Row row;
    row.kindLabel = translated(kinds[outcome.kind]);
    QString remark;
    QString problem; // the line's own
    if (outcome.track) {
        const TrackLine line = m_file->track(outcome.index);
        problem = line.problem;
        const Track &t = line.values;
        row.lineLabel = lineText(line.line);
        row.titleLabel = text(t.song);
        if (t.trackNumber)
            row.titleLabel = translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Track %1: %2"))).arg(*t.trackNumber).arg(row.titleLabel);
        if (t.vinylID)
            row.titleLabel += translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", " (record %1)"))).arg(*t.vinylID);
    } else {
        const RecordLine line = m_file->record(outcome.index);
        problem = line.problem;
        const Vinyl &v = line.values;
        row.lineLabel = lineText(line.line);
        row.titleLabel = text(v.name);
        if (!text(v.artist).isEmpty())
            row.titleLabel += (row.titleLabel.isEmpty() ? QString() : u" \u2014 "_s) + *v.artist;
        if (outcome.kind == ImportOutcome::New) {
            QStringList about;
            for (const QString &part : {text(v.recordLabel), v.releaseDate ? Formatters::mediumDate(*v.releaseDate) : QString(),
                                        text(v.vinylCondition)}) {
                if (!part.isEmpty())
                    about.append(part);
            }
            remark = about.join(u" \u00b7 "_s);
        }
        if (!line.remark.isEmpty() && outcome.kind != ImportOutcome::Problem)
            remark += (remark.isEmpty() ? QString() : u"\n"_s) + line.remark;
    }
    const ImportDetail detail = outcome.detail >= 0 ? m_details.value(outcome.detail) : ImportDetail();
    if (outcome.kind == ImportOutcome::Problem)
        remark = outcome.detail >= 0 ? detail.problem : problem;
    QStringList details;
    for (const FieldChange &change : detail.changes)
        details.append(u"%1: %2 \u2192 %3"_s.arg(translated(change.field), change.before, change.after));
    if (!remark.isEmpty())
        details.append(remark);
    row.detailLabel = details.join(u'\n');
    return row;
}

QVariant ImportPreviewModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const int outcome = m_shown.at(index.row());
    if (role == KindRole)
        return int(m_outcomes.at(outcome).kind);
    auto made = m_rows.constFind(outcome);
    if (made == m_rows.cend())
        made = m_rows.insert(outcome, makeRow(m_outcomes.at(outcome)));
    switch (role) {
    case KindLabelRole:
        return made->kindLabel;
    case LineLabelRole:
        return made->lineLabel;
    case Qt::DisplayRole:
    case TitleLabelRole:
        return made->titleLabel;
    case DetailLabelRole:
        return made->detailLabel;
    case AccessibleLabelRole: {
        QStringList parts{made->kindLabel, made->titleLabel, made->lineLabel, made->detailLabel};
        parts.removeAll(QString());
        return parts.join(tr(", ", "between the parts of an import line read out"));
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> ImportPreviewModel::roleNames() const
{
    return {
        {KindRole, "kind"},
        {KindLabelRole, "kindLabel"},
        {LineLabelRole, "lineLabel"},
        {TitleLabelRole, "titleLabel"},
        {DetailLabelRole, "detailLabel"},
        {AccessibleLabelRole, "accessibleLabel"},
    };
}
