#pragma once

#include "store/entities.h"

#include <QList>
#include <QString>
#include <QVariant>

// A fetch: entity, AND-combined predicates, sort keys, an optional window (offset and limit),
// and whether the cover images are read. Attribute names are the entity's attribute names.
struct Predicate
{
    // Contains: the text attribute holds the value as a substring, ignoring case in every
    // script ("å" finds "Å"); answered from the attribute's case-folded index, for the
    // attributes the lists search (name, artist, recordLabel).
    enum class Op { Equal, GreaterOrEqual, Less, Contains };

    QString attribute;
    Op op = Op::Equal;
    QVariant value; // QString, QDateTime, integer or floating point; a null QVariant matches absent values

    static Predicate equal(const QString &attribute, const QVariant &value) { return {attribute, Op::Equal, value}; }
    static Predicate atLeast(const QString &attribute, const QVariant &value) { return {attribute, Op::GreaterOrEqual, value}; }
    static Predicate lessThan(const QString &attribute, const QVariant &value) { return {attribute, Op::Less, value}; }
    static Predicate contains(const QString &attribute, const QString &text) { return {attribute, Op::Contains, text}; }
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
    qint64 offset = 0; // rows of the order skipped before the first one read
    // Reads the order backwards (every key and the final row-identity key flipped): the last
    // rows of a long list are read as the first ones of its reverse, from the same index.
    bool reversed = false;
    bool includeImages = false;
    bool cardAttributesOnly = false;

    explicit FetchRequest(Entity e = Entity::Vinyl) : entity(e) {}
    FetchRequest &where(Predicate p) { predicates.append(std::move(p)); return *this; }
    FetchRequest &sortedBy(const QString &attribute, bool ascending = true) { sortKeys.append({attribute, ascending}); return *this; }
    FetchRequest &limitedTo(int n) { limit = n; return *this; }
    FetchRequest &startingAt(qint64 first) { offset = first; return *this; }
    FetchRequest &backwards(bool on = true) { reversed = on; return *this; }
    FetchRequest &withImages(bool on = true) { includeImages = on; return *this; }
    // Reads only the attributes of a record card (Store::kCardAttributes): a long list reads
    // them from covering indexes without touching the records' rows.
    FetchRequest &onlyCardAttributes() { cardAttributesOnly = true; return *this; }
};
