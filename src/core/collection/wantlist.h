#pragma once

#include "collection/recordform.h"
#include "store/result.h"
#include "store/wantedalbums.h"

#include <QList>
#include <QString>
#include <QStringList>

class Store;

// The rules of the wantlist: what a wanted album needs, how it reads in a list, how it joins the
// collection once the collector has it, and which wanted albums a new record is.
namespace Wantlist {

// Texts the user sees.
inline const QString kNotSavedTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Album not Saved!"));
inline const QString kRequiredMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Enter at least the album and the artist."));
inline const QString kGone = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The album is no longer on the wantlist."));
inline const QString kGotItTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Got It"));
inline const QString kGotItPrompt = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "What did \"%1\" cost?"));
inline const QString kGotItDone = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "\"%1\" is in the collection now, numbered %2."));
inline const QString kTakeOffTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "On Your Wantlist"));
inline const QString kTakeOffMessage =
    QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "\"%1\" by %2 is on your wantlist. Take it off, now that it is in the collection?"));
inline const QString kTakeOffButton = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Take Off"));
inline const QString kKeepButton = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Keep"));
inline const QString kDeleteButton = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Delete"));
inline const QString kDeleteTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Delete Wanted Album?"));
inline const QString kDeleteMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Take \"%1\" by %2 off the wantlist?"));
// Priority 1 to 3, in that order.
inline const QStringList kPriorityNames = {QStringLiteral("High"), QStringLiteral("Medium"), QStringLiteral("Low")};

// A wanted album from the form: the record form's fields (the album and the artist required),
// the most the collector would pay (money in the current locale, empty for no limit) and a
// priority of 1 to 3. Fails, naming the field, on a number that does not read.
[[nodiscard]] Result<WantedAlbum> fromForm(const RecordFormFields &fields, const QString &maxPrice, int priority);
// The form's fields over a stored wanted album, as the record edit screen writes a record.
[[nodiscard]] Result<void> applyForm(const RecordFormFields &fields, const QString &maxPrice, int priority,
                                     WantedAlbum &wanted);
// The form texts showing a wanted album; absent numbers show as empty fields.
[[nodiscard]] RecordFormFields formFields(const WantedAlbum &wanted);
[[nodiscard]] QString maxPriceText(const WantedAlbum &wanted);

// "3 albums wanted", "1 of 3 albums wanted" while a search hides some, or what an empty
// wantlist is for.
[[nodiscard]] QString summary(qsizetype shown, qsizetype total);
// What a list row says under the album: "High · up to $25.00 · Ember Row · 1974".
[[nodiscard]] QString detailLine(const WantedAlbum &wanted);
// Whether the album's name or artist holds the text, case aside; an empty text matches all.
[[nodiscard]] bool matchesSearch(const WantedAlbum &wanted, const QString &search);

// The collector has the album: it becomes a record numbered as a new record is, with its
// fields, tracks and covers and the cost paid (none when nullopt), and leaves the wantlist; its
// value starts the record's value history. All of it happens or none.
[[nodiscard]] Result<Vinyl> gotIt(Store &store, qint64 wantedRowId, std::optional<float> cost);

// The wanted albums that are this record: the same release of the online music database, or
// the same name and artist (case and surrounding spaces aside).
[[nodiscard]] Result<QList<WantedAlbum>> matching(const Store &store, const Vinyl &record);

} // namespace Wantlist
