#include "exchange/importfile.h"

#include "exchange/collectioncsv.h"
#include "exchange/csv.h"
#include "exchange/discogscsv.h"
#include "exchange/exchangeformat.h"
#include "exchange/exchangereader.h"
#include "store/translations.h"

#include <QLocale>

using namespace Qt::StringLiterals;

RecordLine ImportFile::record(qsizetype index) const
{
    if (lines)
        return lines->record(text, index);
    return ExchangeReader::recordLineAt(text, recordStarts.at(index));
}

TrackLine ImportFile::track(qsizetype index) const
{
    if (lines)
        return lines->track(text, index);
    return ExchangeReader::trackLineAt(text, trackStarts.at(index));
}

namespace ImportFiles {

QString formatName(ImportFormat format)
{
    switch (format) {
    case ImportFormat::Exchange:
        return translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Platterbox exchange file")));
    case ImportFormat::Discogs:
        return translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Discogs collection export")));
    case ImportFormat::Spreadsheet:
        return translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "CSV file")));
    case ImportFormat::Unknown:
        break;
    }
    return translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Not a file Platterbox can read")));
}

QString summary(const ImportFile &file)
{
    if (file.format == ImportFormat::Unknown)
        return formatName(file.format);
    const QLocale locale;
    const auto count = [&locale](qsizetype n, const QString &one, const QString &many) -> QString {
        return locale.toString(qint64(n)) + u' ' + translated(n == 1 ? one : many);
    };
    QString text = formatName(file.format) + u": "_s + count(file.recordCount(), QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "record")), QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "records")));
    if (file.trackCount() > 0)
        text += u", "_s + count(file.trackCount(), QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "track")), QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "tracks")));
    return text;
}

ImportFile read(QByteArray utf8)
{
    if (Exchange::hasRecordSection(utf8) || Exchange::hasTrackSection(utf8))
        return ExchangeReader::read(std::move(utf8));
    ImportFile file;
    file.text = std::move(utf8);
    QList<Csv::RowStart> rows = Csv::rowStarts(file.text);
    if (rows.isEmpty())
        return file;
    const Csv::Row header = Csv::rowAt(file.text, rows.first());
    if (!header.error.isEmpty())
        return file;
    if (DiscogsCsv::recognises(header.fields))
        DiscogsCsv::read(std::move(rows), file);
    else if (CollectionCsv::sectionOf(header.fields) != CollectionCsv::Section::None)
        CollectionCsv::read(std::move(rows), file);
    return file;
}

} // namespace ImportFiles
