#include "entry/conditioncontrollers.h"

#include "shell/appdelegate.h"
#include "store/store.h"

using namespace Qt::StringLiterals;

namespace {
const QString kErrorTitle = u"Error"_s;
}

ConditionTableViewController::ConditionTableViewController(const ConditionListKind &kind, AppDelegate *app,
                                                           QObject *parent)
    : ScreenController(app, parent)
    , m_kind(kind)
{
}

void ConditionTableViewController::setSearchText(const QString &text)
{
    if (text == m_searchText)
        return;
    m_searchText = text;
    m_model.setEntries(filterConditions(m_all, m_searchText));
    emit searchTextChanged();
}

void ConditionTableViewController::load()
{
    if (!app())
        return;
    auto entries = fetchConditionList(app()->persistentContainer(), m_kind.entity, m_sortAsc);
    if (!entries) {
        showAlert(kErrorTitle, entries.errorMessage());
        return;
    }
    m_all = *entries;
    m_model.setEntries(filterConditions(m_all, m_searchText));
    emit listChanged();
}

void ConditionTableViewController::SortButtonTapped()
{
    m_sortAsc = !m_sortAsc;
    load();
}

void ConditionTableViewController::AddButtonTapped()
{
    app()->navigator()->show(m_kind.addScreen);
}

void ConditionTableViewController::rowSelected(int row)
{
    if (row < 0 || row >= m_model.rowCount())
        return;
    app()->state()->setOriginScreen(OriginScreens::Menu);
    app()->state()->setCurrentConditionRowId(m_model.entries().at(row).rowId);
    app()->navigator()->show(m_kind.editScreen);
}

void ConditionTableViewController::deleteRow(int row)
{
    if (row < 0 || row >= m_model.rowCount())
        return;
    const qint64 rowId = m_model.entries().at(row).rowId;
    Store &store = app()->persistentContainer();
    // Records keep the condition text they have: only the grade leaves the list.
    auto removed = store.transaction([&] { return store.remove(m_kind.entity, rowId); });
    if (!removed) {
        showAlert(kErrorTitle, removed.errorMessage());
        return;
    }
    m_model.removeRowAt(row);
    m_all.removeIf([rowId](const Condition &c) { return c.rowId == rowId; });
    emit listChanged();
}

ConditionFormController::ConditionFormController(const ConditionListKind &kind, bool editing, AppDelegate *app,
                                                 QObject *parent)
    : ScreenController(app, parent)
    , m_kind(kind)
    , m_editing(editing)
{
}

QString ConditionFormController::title() const
{
    return m_editing ? ConditionTexts::EditTitle : ConditionTexts::AddTitle;
}

void ConditionFormController::setCondition(const QString &text)
{
    if (text == m_condition)
        return;
    m_condition = text;
    emit conditionChanged();
}

void ConditionFormController::viewDidLoad()
{
    if (!m_editing)
        return;
    auto entries = app()->persistentContainer().fetchConditions(FetchRequest(m_kind.entity));
    if (!entries)
        return;
    const qint64 rowId = app()->state()->currentConditionRowId();
    for (const Condition &entry : *entries) {
        if (entry.rowId == rowId) {
            m_originalText = text(entry.condition);
            setCondition(m_originalText);
            return;
        }
    }
}

void ConditionFormController::SaveCondition()
{
    Store &store = app()->persistentContainer();
    if (m_editing) {
        if (auto renamed = renameCondition(store, m_kind.entity, m_originalText, m_condition); !renamed) {
            showAlert(ConditionTexts::NotSavedTitle, renamed.errorMessage());
            return;
        }
    } else if (auto added = addCondition(store, m_kind.entity, m_condition); !added) {
        showAlert(ConditionTexts::NotSavedTitle, added.errorMessage());
        return;
    }
    app()->navigator()->unwind(m_kind.unwindSegue);
}
