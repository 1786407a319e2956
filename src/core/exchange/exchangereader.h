#pragma once

#include "exchange/importfile.h"
#include "exchange/importmerge.h"
#include "store/result.h"

#include <QString>

class Store;

namespace ImportMessages {
inline const QString kFoundTracks = QStringLiteral("Found [TRACKCOLLECTION]");
} // namespace ImportMessages

// Reads an exchange file. Record lines are the non-empty lines between "[VINYLCOLLECTION]" and
// "[TRACKCOLLECTION]"; a text without "[VINYLCOLLECTION]" has no record lines. Track lines are
// the non-empty lines after "[TRACKCOLLECTION]". Missing trailing fields read as empty.
//
// An empty field leaves the attribute as it was (for a new record: unset). A number that does
// not convert leaves it too, except cost, value and id, which it clears on a stored record; a
// date that does not parse leaves it. Records are matched by name and artist and tracks by
// vinylID and song (ImportMerge), so importing the same file again updates rather than
// duplicates.
namespace ExchangeReader {

// Reads the UTF-8 bytes in place: only where each line starts is kept; its fields become
// strings when the line is merged, and the covers stay bytes.
[[nodiscard]] ImportFile read(QByteArray utf8);

// The record or track line that starts there in the bytes.
[[nodiscard]] RecordLine recordLineAt(QByteArrayView utf8, LineStart start);
[[nodiscard]] TrackLine trackLineAt(QByteArrayView utf8, LineStart start);

// Reads and merges the whole file (command line, tests, benchmark).
Result<ImportCounts> importAll(Store &store, QByteArray utf8);

} // namespace ExchangeReader
