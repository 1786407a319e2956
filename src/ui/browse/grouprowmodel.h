#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

// One row of a group list: the group's name (or year) and its record count as shown.
struct GroupRow
{
    QString name;
    QString countText;
};

class GroupRowModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Group rows belong to their list screen")

public:
    enum Roles { NameLabelRole = Qt::UserRole + 1, CountLabelRole };

    explicit GroupRowModel(QObject *parent = nullptr);

    void setRows(QList<GroupRow> rows);
    // New counts for the rows shown (same rows, same order); the rows stay in place.
    void updateCounts(const QStringList &countTexts);
    [[nodiscard]] const QList<GroupRow> &rows() const { return m_rows; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QList<GroupRow> m_rows;
};
