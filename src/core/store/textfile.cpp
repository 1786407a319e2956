#include "store/textfile.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

// Length of the well-formed UTF-8 sequence at bytes[i], or 0 (RFC 3629: no overlong forms,
// no surrogates, nothing past U+10FFFF).
qsizetype sequenceLength(const QByteArray &bytes, qsizetype i)
{
    const auto at = [&](qsizetype k) { return k < bytes.size() ? uchar(bytes[k]) : 0u; };
    const uint b0 = at(i);
    const auto continuation = [&](qsizetype k, uint low = 0x80, uint high = 0xBF) {
        const uint b = at(k);
        return b >= low && b <= high && k < bytes.size();
    };
    if (b0 < 0x80)
        return 1;
    if (b0 >= 0xC2 && b0 <= 0xDF)
        return continuation(i + 1) ? 2 : 0;
    if (b0 >= 0xE0 && b0 <= 0xEF) {
        const uint low = b0 == 0xE0 ? 0xA0 : 0x80;
        const uint high = b0 == 0xED ? 0x9F : 0xBF;
        return continuation(i + 1, low, high) && continuation(i + 2) ? 3 : 0;
    }
    if (b0 >= 0xF0 && b0 <= 0xF4) {
        const uint low = b0 == 0xF0 ? 0x90 : 0x80;
        const uint high = b0 == 0xF4 ? 0x8F : 0xBF;
        return continuation(i + 1, low, high) && continuation(i + 2) && continuation(i + 3) ? 4 : 0;
    }
    return 0;
}

} // namespace

namespace TextFile {

Result<QByteArray> utf8(QByteArray bytes)
{
    static const QByteArray byteOrderMark("\xEF\xBB\xBF", 3);
    if (bytes.startsWith(byteOrderMark))
        bytes.remove(0, byteOrderMark.size());
    qint64 line = 1;
    const char *const data = bytes.constData();
    for (qsizetype i = 0; i < bytes.size();) {
        const char c = data[i];
        if (uchar(c) < 0x80) {
            line += c == '\n';
            ++i;
            continue;
        }
        const qsizetype length = sequenceLength(bytes, i);
        if (length == 0)
            return Error{u"Line %1 is not UTF-8 text: the file was saved in another encoding. "
                         "Save it again as UTF-8 and import it once more."_s.arg(line)};
        i += length;
    }
    return bytes;
}

Result<QByteArray> readUtf8(const QString &path)
{
    if (QFileInfo(path).isDir())
        return Error{u"%1 is a folder, not a file."_s.arg(path)};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error{u"Cannot read %1: %2"_s.arg(path, file.errorString())};
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return Error{u"Cannot read %1: %2"_s.arg(path, file.errorString())};
    auto text = utf8(std::move(bytes));
    if (!text)
        return Error{QFileInfo(path).fileName() + u": "_s + text.errorMessage()};
    return text;
}

} // namespace TextFile
