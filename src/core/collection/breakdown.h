#pragma once

#include "collection/recordcard.h"
#include "store/currentrecord.h"
#include "store/entities.h"
#include "store/fetchrequest.h"
#include "store/recordcaptions.h"

#include <QList>
#include <QString>

#include <optional>

// What tells the four breakdown lists (the records of one artist, label, producer or year)
// apart.
struct BreakdownKind
{
    enum class Group { Artist, Label, Producer, Year };

    Group group = Group::Artist;
    QString title; // English, marked for translation; empty: the list is titled with the record label itself
    QString originScreen;
    QString placeholder; // English, marked for translation
    QString unwind; // the editor's named return to this list
    QString fileName; // the shared PDF document
    // The artist list's footer follows the search; the others always give the group's value.
    bool footerFollowsSearch = false;
    // Cards show "Album:  " (two blanks) and the speed beside the producer: the artist list
    // while searching, the others while not.
    bool detailWhileSearching = false;
    bool dateFallback = false; // "Release Date: N/A" for a record without a date
    bool naFallbacks = false; // "Producer: N/A" and "Speed: N/A" for absent texts
};

namespace BreakdownKinds {
extern const BreakdownKind Artist;
extern const BreakdownKind Label;
extern const BreakdownKind Producer;
extern const BreakdownKind Year;
} // namespace BreakdownKinds

// The breakdown lists' rules, apart from any screen.
namespace Breakdown {

// The fetch of a group's records: its predicates and the four sort keys (name, release date,
// label, value) in one direction. nullopt when the group cannot match anything (a year
// group picked without a release date).
[[nodiscard]] std::optional<FetchRequest> request(const BreakdownKind &kind, const CurrentRecord &group, bool ascending);

[[nodiscard]] QString title(const BreakdownKind &kind, const CurrentRecord &group);
[[nodiscard]] RecordCard makeCard(const Vinyl &vinyl, const BreakdownKind &kind, bool searching,
                                  const RecordCaptions &captions);

// Indices of list (kept in order) whose lower-cased name contains the lower-cased text;
// nameKeys are the records' lower-cased names, absent for a record without a name.
[[nodiscard]] QList<int> searchByName(const QList<std::optional<QString>> &nameKeys, const QList<int> &list,
                                      const QString &text);

// value x quantity summed over the records, in float as the group's figure is kept.
[[nodiscard]] float groupValue(const QList<Vinyl> &records);
// The same in double precision, over some of the records.
[[nodiscard]] double valueOf(const QList<Vinyl> &records, const QList<int> &list);
// "Valuation for displayed vinyl's: $31.50" (artist list) or "Value: $31.50".
[[nodiscard]] QString footerText(const BreakdownKind &kind, float groupValue, double shownValue, bool searching);

} // namespace Breakdown
