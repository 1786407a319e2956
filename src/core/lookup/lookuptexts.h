#pragma once

#include <QString>

// Messages of the catalogue look-up, in one place so tests can refer to them. "%1" is the
// service ("MusicBrainz", "the Cover Art Archive") where a message names one.
namespace LookupTexts {
using namespace Qt::StringLiterals;

inline const QString kMusicBrainz = u"MusicBrainz"_s;
inline const QString kCoverArtArchive = u"the Cover Art Archive"_s;

// What the user typed cannot be asked for.
inline const QString kNotABarcode = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "\"%1\" is not a barcode: a barcode has 6 to 14 digits."));
inline const QString kEmptySearch = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Type an artist and a title (\"Artist - Title\"), a title or a catalog number."));
inline const QString kNotAReleaseId = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "\"%1\" is not a MusicBrainz release id."));
inline const QString kBadServiceAddress = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 is not a web address: \"%2\"."));

// The service did not give a usable answer.
inline const QString kUnreachable = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Could not reach %1 (%2)."));
inline const QString kErrorStatus = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Error from %1: HTTP status %2."));
inline const QString kTimedOut = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "No answer from %1 within %2 seconds."));
inline const QString kBusy = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "No answer from %1: it is too busy (asked to slow down %2 times). Try again in a minute."));
inline const QString kTooLarge = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The answer from %1 is larger than %2 MB and was not read."));
inline const QString kNoSuchRelease = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "MusicBrainz has no release %1."));
inline const QString kCancelled = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The look-up was cancelled."));

// The answer arrived but cannot be read.
inline const QString kNotJson = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "MusicBrainz sent an answer that is not JSON (%1)."));
inline const QString kNoReleaseList = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "MusicBrainz sent an answer without a list of releases."));
inline const QString kNoRelease = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "MusicBrainz sent an answer that is not a release."));
inline const QString kNotAPicture = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The %1 cover from the Cover Art Archive could not be read as a picture (%2)."));
inline const QString kPictureTooLarge = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The %1 cover from the Cover Art Archive is larger than %2 × %2 pixels and was not read."));
inline const QString kFront = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "front"));

// Adding a copy of a stored record.
inline const QString kRecordGone = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The record is no longer in the collection."));
inline const QString kTooManyCopies = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 already has %2 copies, the most a record can hold."));
inline const QString kBack = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "back"));

// The Look Up sheet of the add and edit screens.
inline const QString kSearching = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Searching MusicBrainz for %1…"));
inline const QString kReadingPhoto = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Reading the barcode in %1…"));
inline const QString kReleasesFound = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 releases found. Choose yours."));
inline const QString kOneReleaseFound = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "1 release found. Choose it if it is yours."));
inline const QString kNothingFound = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "No release found for %1."));
inline const QString kFetching = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Fetching \"%1\" with its tracks and covers…"));
inline const QString kAlreadyInCollection = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 is already in the collection (%2)."));
inline const QString kNothingToFill = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The record already has everything this release gives: there is nothing to fill in."));
inline const QString kCoversNotLoadedTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Covers not Loaded"));
inline const QString kCoversNotLoaded = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 The record is filled in without its covers."));
} // namespace LookupTexts
