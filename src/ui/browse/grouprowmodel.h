#pragma once

#include "collection/pagecache.h"

#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

// One row of a group list: the group's name (or year) and its record count as shown.
struct GroupRow
{
    QString name;
    QString countText;
};

// The rows of a group list: the names are given, their counts are read a page at a time as
// the view shows them.
class GroupRowModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Group rows belong to their list screen")

public:
    // AccessibleLabelRole: the row as one sentence for a screen reader, name and count.
    enum Roles { NameLabelRole = Qt::UserRole + 1, CountLabelRole, AccessibleLabelRole };

    explicit GroupRowModel(QObject *parent = nullptr);

    // The count texts of names first .. first + n - 1.
    using CountReader = std::function<QStringList(qint64 first, int n)>;
    void setRows(QStringList names, CountReader counts);
    // The same names; their counts are read again as they are shown.
    void updateCounts();
    // Group counts read since the model was made.
    [[nodiscard]] qint64 countsRead() const { return m_pages.rowsRead(); }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QStringList m_names;
    mutable PageCache<GroupRow> m_pages;
};
