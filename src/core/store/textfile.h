#pragma once

#include "store/result.h"

#include <QByteArray>
#include <QString>

// Text files the collector brings in (exchange files, spreadsheets' exports) are read as UTF-8
// and nothing else: a file saved in another encoding would otherwise come in with broken
// accented names.
namespace TextFile {

// The bytes, checked to be UTF-8, without a leading byte-order mark; they stay bytes, so a
// large file is never held twice. Fails, naming the first line that is not UTF-8, for anything else.
[[nodiscard]] Result<QByteArray> utf8(QByteArray bytes);
// Reads a whole file and checks it as above; the error names the file.
[[nodiscard]] Result<QByteArray> readUtf8(const QString &path);

} // namespace TextFile
