#pragma once

#include "exchange/importfile.h"
#include "exchange/importmerge.h"

#include <QAbstractListModel>
#include <QHash>
#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

// The lines of a previewed import, each as new, updated (the fields that change, old and new
// value), unchanged or a problem (why). The texts of a row are made when it is first shown, so
// a file of many thousand lines shows at once and scrolls smoothly.
class ImportPreviewModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The preview belongs to the import screen")

public:
    enum Roles {
        KindRole = Qt::UserRole + 1, // ImportOutcome::Kind
        KindLabelRole,
        LineLabelRole,
        TitleLabelRole,
        DetailLabelRole,
        // The line as one sentence for a screen reader: what happens, the album, the line, why.
        AccessibleLabelRole,
    };
    // Every kind of line rather than one.
    static constexpr int kAllKinds = -1;

    // English, translated where they are shown.
    static inline const QString kNew = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "New"));
    static inline const QString kUpdated = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Updated"));
    static inline const QString kUnchanged = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Unchanged"));
    static inline const QString kProblem = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Problem"));

    explicit ImportPreviewModel(QObject *parent = nullptr);

    void setPreview(std::shared_ptr<const ImportFile> file, QList<ImportOutcome> outcomes, QList<ImportDetail> details);
    void clear();
    // Shows only the lines of one kind, or every line (kAllKinds).
    void showKind(int kind);
    [[nodiscard]] int shownKind() const { return m_kind; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    struct Row
    {
        QString kindLabel;
        QString lineLabel;
        QString titleLabel;
        QString detailLabel;
    };
    [[nodiscard]] Row makeRow(const ImportOutcome &outcome) const;
    void select();

    std::shared_ptr<const ImportFile> m_file;
    QList<ImportOutcome> m_outcomes;
    QList<ImportDetail> m_details;
    QList<int> m_shown; // outcome indices, in the order shown
    int m_kind = kAllKinds;
    mutable QHash<int, Row> m_rows; // by outcome index, made when first shown
};
