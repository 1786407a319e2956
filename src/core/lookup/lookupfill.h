#pragma once

#include "collection/recordform.h"
#include "lookup/lookuprecord.h"

#include <QList>
#include <QString>

// How a release found in the catalogue fills the record form: all of a new record's form on the
// add screen, only what is still empty on the edit screen.
namespace LookupFill {

// One thing the look-up puts into a form, as the collector is shown it before it happens:
// what ("Producer") and what it becomes ("Nina Holm").
struct Change
{
    QString what;
    QString becomes;

    bool operator==(const Change &) const = default;
};

// What the edit screen's form holds, beside its texts.
struct FormState
{
    RecordFormFields fields;
    bool hasTracks = false;
    bool hasFrontCover = false;
    bool hasBackCover = false;
};

// What the edit screen takes from a release: the form with its empty fields filled, and which
// of the tracks and covers it takes (those the record does not have yet).
struct EmptyFieldsFill
{
    RecordFormFields fields;
    bool tracks = false;
    bool frontCover = false;
    bool backCover = false;
    QList<Change> changes; // in the form's order; empty when the release adds nothing
};

inline const QString kTracks = QStringLiteral("Tracks");
inline const QString kFrontCover = QStringLiteral("Front Cover");
inline const QString kBackCover = QStringLiteral("Back Cover");
inline const QString kCoverFromArchive = QStringLiteral("the picture from the Cover Art Archive");

// The add screen's form after choosing a release: album name, artist, release date, label, run
// length, producer, barcode, speed and album type as the release has them; the notes take the
// catalog number unless the collector already wrote notes; quantity, conditions, cost and value
// stay as the form has them.
[[nodiscard]] RecordFormFields newRecordForm(const RecordFormFields &form, const LookedUpRecord &found);

// The edit screen's form after choosing a release: only fields that are empty (a run length of
// 0 counts as empty) take the release's text; tracks and covers only when the record has none.
[[nodiscard]] EmptyFieldsFill emptyFields(const FormState &form, const LookedUpRecord &found);

// "12 tracks", "1 track".
[[nodiscard]] QString trackCountText(qsizetype count);

} // namespace LookupFill
