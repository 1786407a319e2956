#pragma once

#include "browse/grouprowmodel.h"
#include "collection/groupnames.h"
#include "shell/screencontroller.h"

#include <QHash>

#include <optional>

struct CurrentRecord;

// What tells the four group lists apart.
struct GroupKind
{
    QString attribute; // the grouped attribute ("releaseDate" groups by year)
    QString fetchOrder; // the attribute the load walks the records by
    QString word; // header word: "Artist" gives "12 Artist's" / "1 Artist"
    QString tabTitle;
    QString breakdownScreen; // opened for a picked group
    QString CurrentRecord::*selectionField; // the field a picked name goes to; null for years
    bool byYear = false;
};

namespace GroupKinds {
extern const GroupKind Artist;
extern const GroupKind Label;
extern const GroupKind Producer;
extern const GroupKind Year;
} // namespace GroupKinds

// A list of the groups of one attribute with their record counts, a name search and an
// order toggle. Picking a group records it in CurrentRecord and opens its breakdown list.
// The four group screens are this class with their own GroupKind.
class GroupTableViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Use one of the four group list controllers")
    Q_PROPERTY(GroupRowModel *model READ model CONSTANT)
    Q_PROPERTY(QString headerText READ headerText NOTIFY listChanged)
    Q_PROPERTY(QString placeholder READ placeholder CONSTANT)
    Q_PROPERTY(QString tabTitle READ tabTitle CONSTANT)
    Q_PROPERTY(QString sortButtonTitle READ sortButtonTitle CONSTANT)

public:
    [[nodiscard]] GroupRowModel *model() { return &m_model; }
    [[nodiscard]] QString headerText() const;
    [[nodiscard]] QString placeholder() const;
    [[nodiscard]] QString tabTitle() const { return m_kind.tabTitle; }
    [[nodiscard]] QString sortButtonTitle() const;
    [[nodiscard]] bool searching() const { return !m_searchText.isEmpty(); }

    Q_INVOKABLE void SortButtonTapped();
    Q_INVOKABLE void updateSearchResults(const QString &text);
    Q_INVOKABLE void rowSelected(int row);
    // Back to the main menu ("unwindToMenu").
    Q_INVOKABLE void UnwindSegue();
    // Counts follow the store each time the list shows again (after a breakdown list).
    void viewWillAppear() override;

    // Reads the groups again (the direction applies to the order of the names).
    void load();

signals:
    void listChanged();

protected:
    GroupTableViewController(const GroupKind &kind, AppDelegate *app, QObject *parent);
    void viewDidLoad() override;

private:
    void showRows();
    // The record counts of the rows shown first .. first + n - 1.
    [[nodiscard]] QStringList countTexts(qint64 first, int n) const;
    [[nodiscard]] qsizetype allCount() const;
    [[nodiscard]] qsizetype shownCount() const;

    const GroupKind &m_kind;
    GroupRowModel m_model;
    std::optional<bool> m_sortAsc;
    QString m_searchText;

    // Name groups.
    GroupNameList m_names;
    QStringList m_filteredNames;

    // Year groups: one representative per year.
    QList<YearGroup> m_years;
    QList<int> m_filteredYears;
};

class ArtistGroupTableViewController : public GroupTableViewController
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit ArtistGroupTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
};

class LabelGroupTableViewController : public GroupTableViewController
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit LabelGroupTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
};

class ProducerGroupTableViewController : public GroupTableViewController
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit ProducerGroupTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
};

class YearGroupTableViewController : public GroupTableViewController
{
    Q_OBJECT
    QML_ELEMENT
public:
    explicit YearGroupTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
};
