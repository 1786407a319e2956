#pragma once

#include "collection/conditionlists.h"
#include "entry/conditionlistmodel.h"
#include "shell/screencontroller.h"

// The record-condition and cover-condition screens share one implementation; the named
// classes only pick their list's kind.

class ConditionTableViewController : public ScreenController
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(ConditionListModel *model READ model CONSTANT)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(bool SortAsc READ sortAsc NOTIFY listChanged)
    Q_PROPERTY(int ConditionCount READ conditionCount NOTIFY listChanged)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString searchPlaceholder READ searchPlaceholder CONSTANT)

public:
    ConditionTableViewController(const ConditionListKind &kind, AppDelegate *app, QObject *parent);

    [[nodiscard]] ConditionListModel *model() { return &m_model; }
    [[nodiscard]] QString searchText() const { return m_searchText; }
    void setSearchText(const QString &text);
    [[nodiscard]] bool sortAsc() const { return m_sortAsc; }
    [[nodiscard]] int conditionCount() const { return int(m_all.size()); }
    [[nodiscard]] QString title() const { return m_kind.listTitle; }
    [[nodiscard]] QString searchPlaceholder() const { return ConditionTexts::SearchPlaceholder; }

    Q_INVOKABLE void load();
    Q_INVOKABLE void SortButtonTapped();
    Q_INVOKABLE void AddButtonTapped();
    Q_INVOKABLE void rowSelected(int row);
    Q_INVOKABLE void deleteRow(int row);
    void viewWillAppear() override { load(); }
    // The search ends when the screen is covered or left.
    void viewWillDisappear() override { setSearchText(QString()); }

signals:
    void searchTextChanged();
    void listChanged();

protected:
    void viewDidLoad() override { load(); }

private:
    const ConditionListKind &m_kind;
    ConditionListModel m_model;
    QList<Condition> m_all;
    QString m_searchText;
    bool m_sortAsc = true;
};

// "Add Condition" and "Edit Condition": one text field.
class ConditionFormController : public ScreenController
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QString condition READ condition WRITE setCondition NOTIFY conditionChanged)
    Q_PROPERTY(QString title READ title CONSTANT)

public:
    ConditionFormController(const ConditionListKind &kind, bool editing, AppDelegate *app, QObject *parent);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString condition() const { return m_condition; }
    void setCondition(const QString &text);

    Q_INVOKABLE void SaveCondition();

signals:
    void conditionChanged();

protected:
    void viewDidLoad() override;

private:
    const ConditionListKind &m_kind;
    bool m_editing = false;
    QString m_condition;
    QString m_originalText; // the edited entry's text when the screen opened
};

// The list of record-condition grades.
class VinylConditionTableViewController : public ConditionTableViewController
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit VinylConditionTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr)
        : ConditionTableViewController(vinylConditionKind(), app, parent)
    {
        loadIfReady();
    }
};

// Adds a record-condition grade.
class AddVinylConditionViewController : public ConditionFormController
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit AddVinylConditionViewController(AppDelegate *app = nullptr, QObject *parent = nullptr)
        : ConditionFormController(vinylConditionKind(), false, app, parent)
    {
        loadIfReady();
    }
};

// Renames the record-condition grade picked in its list.
class EditVinylConditionViewController : public ConditionFormController
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit EditVinylConditionViewController(AppDelegate *app = nullptr, QObject *parent = nullptr)
        : ConditionFormController(vinylConditionKind(), true, app, parent)
    {
        loadIfReady();
    }
};

// The list of cover-condition grades.
class CoverConditionTableViewController : public ConditionTableViewController
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit CoverConditionTableViewController(AppDelegate *app = nullptr, QObject *parent = nullptr)
        : ConditionTableViewController(coverConditionKind(), app, parent)
    {
        loadIfReady();
    }
};

// Adds a cover-condition grade.
class AddCoverConditionViewController : public ConditionFormController
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit AddCoverConditionViewController(AppDelegate *app = nullptr, QObject *parent = nullptr)
        : ConditionFormController(coverConditionKind(), false, app, parent)
    {
        loadIfReady();
    }
};

// Renames the cover-condition grade picked in its list.
class EditCoverConditionViewController : public ConditionFormController
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit EditCoverConditionViewController(AppDelegate *app = nullptr, QObject *parent = nullptr)
        : ConditionFormController(coverConditionKind(), true, app, parent)
    {
        loadIfReady();
    }
};
