#pragma once

#include "store/entities.h"
#include "store/result.h"

#include <QList>
#include <QString>

class Store;

namespace ConditionTexts {
inline const QString NotSavedTitle = QStringLiteral("Record not Saved!");
inline const QString RequiredMessage = QStringLiteral("Required Fields in RED not Entered");
inline const QString DuplicateMessage = QStringLiteral("Duplicates not allowed");
inline const QString SearchPlaceholder = QStringLiteral("Search by Condition");
inline const QString AddTitle = QStringLiteral("Add Condition");
inline const QString EditTitle = QStringLiteral("Edit Condition");
} // namespace ConditionTexts

// What tells the record-condition list from the cover-condition list.
struct ConditionListKind
{
    Entity entity;
    QString listTitle;     // title of the table screen
    QString tableScreen;   // QML screen names
    QString addScreen;
    QString editScreen;
    QString unwindSegue;   // return to the table screen
};

[[nodiscard]] const ConditionListKind &vinylConditionKind();
[[nodiscard]] const ConditionListKind &coverConditionKind();

// The list's entries ordered by their text.
Result<QList<Condition>> fetchConditionList(const Store &store, Entity entity, bool ascending);
// Entries whose text, lower-cased, contains the search text lower-cased (all when empty).
[[nodiscard]] QList<Condition> filterConditions(const QList<Condition> &entries, const QString &searchText);

// Adds a grade. An empty text, or one equal (exactly as typed) to an existing entry, is
// refused with the message to show. The stored text has its blanks trimmed; the duplicate
// test looks at the text as typed, so " Mint" passes beside "Mint" and is stored as "Mint".
Result<Condition> addCondition(Store &store, Entity entity, const QString &typed);
// Renames a grade: every entry that had the old text takes the typed text, trimmed.
// Records keep the condition text they have.
Result<void> renameCondition(Store &store, Entity entity, const QString &oldText, const QString &typed);
