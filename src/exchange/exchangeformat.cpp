#include "exchangeformat.h"

using namespace Qt::StringLiterals;

namespace Exchange {

QString cleanNotes(const QString &notes)
{
    QString cleaned = notes;
    // A CR or CR LF is a line break too; it must not end the record line.
    cleaned.replace(u"\r\n"_s, u"\n"_s);
    cleaned.replace(u'\r', u'\n');
    cleaned.remove(kSeparator);
    cleaned.replace(u'&', u"and"_s);
    cleaned.remove(u'\'');
    cleaned.replace(u'\n', u'~');
    return cleaned;
}

QString restoreNotes(const QString &field)
{
    QString notes = field;
    notes.replace(u'~', u'\n');
    return notes;
}

QString formatDate(const QDateTime &date)
{
    return date.toLocalTime().toString(kDateFormat);
}

std::optional<QDateTime> parseDate(QString field)
{
    field.remove(u" +0000"_s);
    QDateTime date = QDateTime::fromString(field, kDateFormat);
    if (!date.isValid())
        return std::nullopt;
    return date;
}

bool breaksLine(const QString &text)
{
    for (const QChar c : text) {
        if (c == kSeparator || c == u'\n' || c == u'\r')
            return true;
    }
    return false;
}

QString withoutLineBreakers(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (c != kSeparator && c != u'\n' && c != u'\r')
            result.append(c);
    }
    return result;
}

} // namespace Exchange

#include <QFile>
#include <QFileInfo>

namespace Exchange {

Result<QString> readFile(const QString &path)
{
    QFile file(path);
    if (QFileInfo(path).isDir())
        return Error{u"%1 is a folder, not a file."_s.arg(path)};
    if (!file.open(QIODevice::ReadOnly))
        return Error{u"Cannot read %1: %2"_s.arg(path, file.errorString())};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return Error{u"Cannot read %1: %2"_s.arg(path, file.errorString())};
    return QString::fromUtf8(bytes);
}

} // namespace Exchange
