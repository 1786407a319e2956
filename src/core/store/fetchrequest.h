#pragma once

#include "store/entities.h"

#include <QList>
#include <QString>
#include <QVariant>

// A fetch: entity, AND-combined predicates, sort keys, an optional limit, and whether the
// cover images are read. Attribute names are the entity's attribute names.
struct Predicate
{
    enum class Op { Equal, GreaterOrEqual, Less };

    QString attribute;
    Op op = Op::Equal;
    QVariant value; // QString, QDateTime, integer or floating point; a null QVariant matches absent values

    static Predicate equal(const QString &attribute, const QVariant &value) { return {attribute, Op::Equal, value}; }
    static Predicate atLeast(const QString &attribute, const QVariant &value) { return {attribute, Op::GreaterOrEqual, value}; }
    static Predicate lessThan(const QString &attribute, const QVariant &value) { return {attribute, Op::Less, value}; }
};

struct SortKey
{
    QString attribute;
    bool ascending = true;
};

struct FetchRequest
{
    Entity entity = Entity::Vinyl;
    QList<Predicate> predicates;
    QList<SortKey> sortKeys;
    int limit = 0; // 0: no limit
    bool includeImages = false;
    bool cardAttributesOnly = false;

    explicit FetchRequest(Entity e = Entity::Vinyl) : entity(e) {}
    FetchRequest &where(Predicate p) { predicates.append(std::move(p)); return *this; }
    FetchRequest &sortedBy(const QString &attribute, bool ascending = true) { sortKeys.append({attribute, ascending}); return *this; }
    FetchRequest &limitedTo(int n) { limit = n; return *this; }
    FetchRequest &withImages(bool on = true) { includeImages = on; return *this; }
    // Reads only the attributes of a record card (Store::kCardAttributes): a long list reads
    // them from covering indexes without touching the records' rows.
    FetchRequest &onlyCardAttributes() { cardAttributesOnly = true; return *this; }
};
