#pragma once

#include "collection/conditionlists.h"

#include <QAbstractListModel>
#include <QList>
#include <QtQml/qqmlregistration.h>

// Rows of a condition list.
class ConditionListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("")

public:
    enum Roles { RowIdRole = Qt::UserRole + 1, ConditionLabelRole };

    explicit ConditionListModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void setEntries(QList<Condition> entries);
    void removeRowAt(int row);
    [[nodiscard]] const QList<Condition> &entries() const { return m_entries; }

private:
    QList<Condition> m_entries;
};
