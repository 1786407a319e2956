#pragma once

#include "store/entities.h"
#include "store/result.h"

#include <QList>
#include <QString>

class Store;

// User-visible texts of the track screens.
namespace TrackTexts {
inline const QString NotSavedTitle = QStringLiteral("Record not Saved!");
inline const QString RequiredMessage = QStringLiteral("Required Fields in RED not Entered");
inline const QString BadTrackNumber = QStringLiteral("Track # must be a whole number between -32768 and 32767.");
// "Duration must be a number, such as 3.5." with the example in the current locale.
[[nodiscard]] QString badDuration();
inline const QString TrackGone = QStringLiteral("This track no longer exists.");
inline const QString SearchPlaceholder = QStringLiteral("Search by Song");
} // namespace TrackTexts

// What the user typed on the add or edit track screen.
struct TrackForm
{
    QString trackNumber;
    QString song;
    QString duration;
    QString writtenBy;
};

// Text with leading and trailing spaces and tabs removed (other white space is kept); never null.
[[nodiscard]] QString trimBlanks(const QString &text);

// The tracks of one record (by its id), ordered by track number.
Result<QList<Track>> fetchTracksOf(const Store &store, qint16 vinylId, bool ascending);

// A new track of the record from the add screen's fields. An empty song, or a track number
// or duration that does not read as a number, gives the error to show; nothing is stored.
Result<Track> trackFromAddForm(const TrackForm &form, qint16 vinylId);
// The edited track: the fields written over the one the user opened.
Result<Track> trackFromEditForm(const TrackForm &form, Track opened, qint16 vinylId);
// The fields of a stored track as the form shows them.
[[nodiscard]] TrackForm formFromTrack(const Track &track);

// One row of the track list, its texts computed once.
struct TrackRow
{
    qint64 rowId = 0;
    QString song;
    QString songLabel;
    QString trackNumberLabel;
    QString durationLabel;
    QString writtenByLabel;
};

[[nodiscard]] TrackRow trackRow(const Track &track);
// Rows whose song, lower-cased, contains the search text lower-cased; an empty search keeps all.
[[nodiscard]] QList<TrackRow> filterTracks(const QList<TrackRow> &rows, const QString &searchText);
