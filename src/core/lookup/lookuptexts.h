#pragma once

#include <QString>

// Messages of the catalogue look-up, in one place so tests can refer to them. "%1" is the
// service ("MusicBrainz", "the Cover Art Archive") where a message names one.
namespace LookupTexts {
using namespace Qt::StringLiterals;

inline const QString kMusicBrainz = u"MusicBrainz"_s;
inline const QString kCoverArtArchive = u"the Cover Art Archive"_s;

// What the user typed cannot be asked for.
inline const QString kNotABarcode = u"\"%1\" is not a barcode: a barcode has 6 to 14 digits."_s;
inline const QString kEmptySearch = u"Type an artist and a title (\"Artist - Title\"), a title or a catalog number."_s;
inline const QString kNotAReleaseId = u"\"%1\" is not a MusicBrainz release id."_s;
inline const QString kBadServiceAddress = u"%1 is not a web address: \"%2\"."_s;

// The service did not give a usable answer.
inline const QString kUnreachable = u"Could not reach %1 (%2)."_s;
inline const QString kErrorStatus = u"Error from %1: HTTP status %2."_s;
inline const QString kTimedOut = u"No answer from %1 within %2 seconds."_s;
inline const QString kBusy = u"No answer from %1: it is too busy (asked to slow down %2 times). Try again in a minute."_s;
inline const QString kTooLarge = u"The answer from %1 is larger than %2 MB and was not read."_s;
inline const QString kNoSuchRelease = u"MusicBrainz has no release %1."_s;
inline const QString kCancelled = u"The look-up was cancelled."_s;

// The answer arrived but cannot be read.
inline const QString kNotJson = u"MusicBrainz sent an answer that is not JSON (%1)."_s;
inline const QString kNoReleaseList = u"MusicBrainz sent an answer without a list of releases."_s;
inline const QString kNoRelease = u"MusicBrainz sent an answer that is not a release."_s;
inline const QString kNotAPicture = u"The %1 cover from the Cover Art Archive could not be read as a picture (%2)."_s;
inline const QString kPictureTooLarge = u"The %1 cover from the Cover Art Archive is larger than %2 × %2 pixels and was not read."_s;
inline const QString kFront = u"front"_s;

// Adding a copy of a stored record.
inline const QString kRecordGone = u"The record is no longer in the collection."_s;
inline const QString kTooManyCopies = u"%1 already has %2 copies, the most a record can hold."_s;
inline const QString kBack = u"back"_s;

// The Look Up sheet of the add and edit screens.
inline const QString kSearching = u"Searching MusicBrainz for %1…"_s;
inline const QString kReadingPhoto = u"Reading the barcode in %1…"_s;
inline const QString kReleasesFound = u"%1 releases found. Choose yours."_s;
inline const QString kOneReleaseFound = u"1 release found. Choose it if it is yours."_s;
inline const QString kNothingFound = u"No release found for %1."_s;
inline const QString kFetching = u"Fetching \"%1\" with its tracks and covers…"_s;
inline const QString kAlreadyInCollection = u"%1 is already in the collection (%2)."_s;
inline const QString kNothingToFill = u"The record already has everything this release gives: there is nothing to fill in."_s;
inline const QString kCoversNotLoadedTitle = u"Covers not Loaded"_s;
inline const QString kCoversNotLoaded = u"%1 The record is filled in without its covers."_s;
} // namespace LookupTexts
