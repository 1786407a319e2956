#pragma once

#include "result.h"

#include <QByteArray>
#include <QString>

// Text files the collector brings in (exchange files, spreadsheets' exports) are read as UTF-8
// and nothing else: a file saved in another encoding would otherwise come in with broken
// accented names.
namespace TextFile {

// The bytes as text. A leading byte-order mark is dropped. Fails, naming the first line that
// is not UTF-8, for anything else.
[[nodiscard]] Result<QString> decodeUtf8(const QByteArray &bytes);
// Reads a whole file and decodes it as above; the error names the file.
[[nodiscard]] Result<QString> readUtf8(const QString &path);

} // namespace TextFile
