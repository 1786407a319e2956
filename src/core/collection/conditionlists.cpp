#include "collection/conditionlists.h"

#include "collection/tracks.h" // trimBlanks
#include "store/store.h"

using namespace Qt::StringLiterals;

const ConditionListKind &vinylConditionKind()
{
    static const ConditionListKind kind{Entity::VinylCondition, u"Vinyl Condition"_s, u"VinylConditionTableView"_s,
                                        u"AddVinylConditionView"_s, u"EditVinylConditionView"_s,
                                        u"unwindToVinylConditionTableView"_s};
    return kind;
}

const ConditionListKind &coverConditionKind()
{
    static const ConditionListKind kind{Entity::CoverCondition, u"Cover Condition"_s, u"CoverConditionTableView"_s,
                                        u"AddCoverConditionView"_s, u"EditCoverConditionView"_s,
                                        u"unwindToCoverConditionTableView"_s};
    return kind;
}

Result<QList<Condition>> fetchConditionList(const Store &store, Entity entity, bool ascending)
{
    return store.fetchConditions(FetchRequest(entity).sortedBy(u"condition"_s, ascending));
}

QList<Condition> filterConditions(const QList<Condition> &entries, const QString &searchText)
{
    if (searchText.isEmpty())
        return entries;
    const QString needle = searchText.toLower();
    QList<Condition> found;
    for (const Condition &entry : entries) {
        if (text(entry.condition).toLower().contains(needle))
            found.append(entry);
    }
    return found;
}

Result<Condition> addCondition(Store &store, Entity entity, const QString &typed)
{
    if (typed.isEmpty())
        return Error{ConditionTexts::RequiredMessage};
    auto existing = store.fetchConditions(FetchRequest(entity).where(Predicate::equal(u"condition"_s, typed)));
    if (!existing)
        return existing.error();
    if (!existing->isEmpty())
        return Error{ConditionTexts::DuplicateMessage};
    Condition entry;
    entry.condition = trimBlanks(typed);
    auto saved = store.transaction([&] { return store.insert(entity, entry); });
    if (!saved)
        return saved.error();
    return entry;
}

Result<void> renameCondition(Store &store, Entity entity, const QString &oldText, const QString &typed)
{
    auto matches = store.fetchConditions(FetchRequest(entity).where(Predicate::equal(u"condition"_s, oldText)));
    if (!matches)
        return matches.error();
    const QString newText = trimBlanks(typed);
    return store.transaction([&]() -> Result<void> {
        for (Condition entry : *matches) {
            entry.condition = newText;
            if (auto updated = store.update(entity, entry); !updated)
                return updated;
        }
        return {};
    });
}
