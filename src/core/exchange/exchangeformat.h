#pragma once

#include <QDateTime>
#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

// The exchange file: UTF-8 text, lines ended by a line feed, a "[VINYLCOLLECTION]" section of
// record lines followed by a "[TRACKCOLLECTION]" section of track lines. Fields are separated
// by "^" and written in the alphabetical order of the attribute names; there is no quoting, so
// the writer keeps carets and line breaks out of every field.
namespace Exchange {

inline const QString kRecordMarker = QStringLiteral("[VINYLCOLLECTION]");
inline const QString kTrackMarker = QStringLiteral("[TRACKCOLLECTION]");
inline constexpr QChar kSeparator = u'^';
inline constexpr int kRecordFieldCount = 17;
inline constexpr int kTrackFieldCount = 5;
// Release dates travel as local time.
inline const QString kDateFormat = QStringLiteral("yyyy.MM.dd HH:mm:ss");
inline const QString kFileName = QStringLiteral("VinylCollection.csv");

// Field positions of a record line.
enum RecordField {
    AlbumDuration, Artist, Cost, CoverConditionField, DoubleAlbum, Id, Name, Notes, Producer, Quantity,
    RecordLabel, RecordSpeed, ReleaseDate, Value, VinylConditionField, FrontImage, BackImage
};
// Field positions of a track line.
enum TrackField { Duration, Song, TrackNumber, VinylID, WrittenBy };

// Whether a line of the UTF-8 text (ended by LF, CR LF or CR) is `line`.
[[nodiscard]] bool hasLine(QByteArrayView text, QByteArrayView line);
// Whether a line of the text is "[VINYLCOLLECTION]".
[[nodiscard]] bool hasRecordSection(QByteArrayView text);
// Whether a line of the text is "[TRACKCOLLECTION]".
[[nodiscard]] bool hasTrackSection(QByteArrayView text);

// A UTF-8 line as a person reads it: any field too long to read (a picture's base64) becomes
// "[picture: 12,345 characters]".
[[nodiscard]] QString shortenedLine(QByteArrayView line);
// The text for a screen: whole when it is short, otherwise a labelled summary (size, line
// count) and its first lines shortened as above.
[[nodiscard]] QString preview(QByteArrayView utf8, qsizetype maxCharacters);

// Notes keep their line breaks as "~"; carets, apostrophes go and "&" becomes "and".
[[nodiscard]] QString cleanNotes(const QString &notes);
// The reader's side of the notes field: every "~" becomes a line feed again.
[[nodiscard]] QString restoreNotes(const QString &field);

[[nodiscard]] QString formatDate(const QDateTime &date);
// Reads a date written by formatDate (a trailing " +0000" of older files is ignored).
[[nodiscard]] std::optional<QDateTime> parseDate(QString field);

// True for a text that would break a line apart: it holds a caret, CR or LF.
[[nodiscard]] bool breaksLine(const QString &text);
// The text without carets, CRs and LFs.
[[nodiscard]] QString withoutLineBreakers(const QString &text);

// Standard base64 (RFC 4648 alphabet, "=" padding) read strictly: nullopt for any other
// character, a length that is not a multiple of four, or padding before the end. Reads the
// field in place; the covers of a whole collection pass through here.
[[nodiscard]] std::optional<QByteArray> decodeBase64(QByteArrayView text);

} // namespace Exchange
