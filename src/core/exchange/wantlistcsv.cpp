#include "exchange/wantlistcsv.h"

#include "collection/wantlist.h"
#include "exchange/collectioncsv.h"
#include "exchange/discogscsv.h"
#include "exchange/fileattributes.h"
#include "exchange/importmerge.h"
#include "store/snapshots.h"
#include "store/store.h"
#include "store/translations.h"

#include <QLocale>
#include <QHash>

using namespace Qt::StringLiterals;

namespace WantlistCsv {

namespace {

const QByteArray kByteOrderMark("\xEF\xBB\xBF");
const QString kPriorityColumn = u"priority"_s;
const QString kPriorityTitle = u"Priority"_s;

// The most the collector would pay reads and writes as the record's amounts do.
const FileAttribute<WantedAlbum> &maxPriceAttribute()
{
    static const FileAttribute<WantedAlbum> attribute{u"maxPrice"_s, u"Most I Would Pay"_s, &WantedAlbum::maxPrice};
    return attribute;
}

// A header names a column by the attribute's name or its title on the form, any letter case.
bool names(const QString &header, const QString &name, const QString &title)
{
    const QString trimmed = header.trimmed();
    return trimmed.compare(name, Qt::CaseInsensitive) == 0 || trimmed.compare(title, Qt::CaseInsensitive) == 0;
}

// "1" to "3", or the name the wantlist shows ("High"); an empty field is the middle one.
std::optional<qint16> priorityOf(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return qint16(2);
    for (qint16 p = WantedAlbums::kHighestPriority; p <= WantedAlbums::kLowestPriority; ++p) {
        if (trimmed == QString::number(p) || trimmed.compare(Wantlist::kPriorityNames.value(p - 1), Qt::CaseInsensitive) == 0)
            return p;
    }
    return std::nullopt;
}

// Albums are the same when their name and artist are, case and surrounding spaces aside.
QString key(const Vinyl &album)
{
    return Store::folded(text(album.name).simplified()) + u'\n' + Store::folded(text(album.artist).simplified());
}

// Adds the lines that are neither problems nor wanted already; `into` is null for a preview.
Result<WantlistCounts> merge(const Store &store, const WantlistFile &file, Store *into)
{
    auto wanted = WantedAlbums::all(store);
    if (!wanted)
        return wanted.error();
    QHash<QString, qint64> keys; // the line that brought each album; 0 for one wanted before
    for (const WantedAlbum &w : std::as_const(*wanted))
        keys.insert(key(w.album), 0);
    WantlistCounts counts;
    const auto skip = [&counts](qint64 line, const QString &reason) {
        if (counts.problems.size() < ImportCounts::kListedProblems)
            counts.problems.append({line, reason});
        else
            ++counts.moreProblems;
    };
    for (qsizetype i = 0; i < file.count(); ++i) {
        WantedLine line = file.line(i);
        if (!line.problem.isEmpty()) {
            skip(line.line, line.problem);
            continue;
        }
        const QString k = key(line.wanted.album);
        if (const auto earlier = keys.constFind(k); earlier != keys.cend()) {
            skip(line.line, *earlier == 0 ? kAlreadyWanted : translated(kSameAsLine).arg(*earlier));
            continue;
        }
        keys.insert(k, line.line);
        if (into) {
            if (auto inserted = WantedAlbums::insert(*into, line.wanted); !inserted)
                return inserted.error();
        }
        ++counts.added;
    }
    return counts;
}

QString counted(const QString &pattern, const WantlistCounts &counts)
{
    const QLocale locale;
    return pattern.arg(locale.toString(counts.added), counts.added == 1 ? u"wanted album"_s : u"wanted albums"_s,
                       locale.toString(counts.skipped()));
}

} // namespace

WantedLine WantlistFile::line(qsizetype index) const
{
    const RecordLine record = m_file.record(index);
    WantedLine line;
    line.line = record.line;
    line.problem = record.problem;
    line.wanted.album = record.values;
    // Only the collection numbers its records.
    line.wanted.album.id.reset();
    if (!line.problem.isEmpty())
        return line;
    QStringList problems;
    if (text(line.wanted.album.name).trimmed().isEmpty())
        problems.append(u"no name"_s);
    if (text(line.wanted.album.artist).trimmed().isEmpty())
        problems.append(kNoArtist);
    // The records of a CSV file are the rows after its header, in order.
    if ((m_maxPrice >= 0 || m_priority >= 0) && index + 1 < m_rows.size()) {
        const Csv::Row row = Csv::rowAt(m_file.text, m_rows.at(index + 1));
        if (const QString price = row.fields.value(m_maxPrice); m_maxPrice >= 0 && !price.trimmed().isEmpty()) {
            if (auto read = FileAttributes::read(maxPriceAttribute(), price, line.wanted); !read)
                problems.append(read.errorMessage());
        }
        if (m_priority >= 0) {
            const QString given = row.fields.value(m_priority);
            if (const auto priority = priorityOf(given))
                line.wanted.priority = *priority;
            else
                problems.append(translated(kNotAPriority).arg(FileAttributes::excerpt(given)));
        }
    }
    line.problem = problems.join(u"; "_s);
    return line;
}

QString WantlistFile::summary() const
{
    const QString name = format() == ImportFormat::Discogs ? u"Discogs export"_s : ImportFiles::formatName(format());
    if (format() == ImportFormat::Unknown)
        return name;
    const qsizetype n = count();
    return name + u": "_s + QLocale().toString(qint64(n)) + (n == 1 ? u" album"_s : u" albums"_s);
}

WantlistFile read(QByteArray utf8)
{
    WantlistFile wantlist;
    ImportFile &file = wantlist.m_file;
    file.text = std::move(utf8);
    QList<Csv::RowStart> rows = Csv::rowStarts(file.text);
    if (rows.isEmpty())
        return wantlist;
    const Csv::Row header = Csv::rowAt(file.text, rows.first());
    if (!header.error.isEmpty())
        return wantlist;
    if (DiscogsCsv::recognises(header.fields)) {
        DiscogsCsv::read(rows, file, DiscogsCsv::Export::Wantlist);
    } else if (CollectionCsv::sectionOf(header.fields) == CollectionCsv::Section::Records) {
        CollectionCsv::read(rows, file);
        for (qsizetype c = 0; c < header.fields.size(); ++c) {
            const QString &name = header.fields.at(c);
            if (names(name, maxPriceAttribute().name, maxPriceAttribute().title))
                wantlist.m_maxPrice = c;
            else if (names(name, kPriorityColumn, kPriorityTitle))
                wantlist.m_priority = c;
            else
                continue;
            file.ignoredColumns.removeAll(name.trimmed());
        }
        // A wanted album has no tracks: a tracks section of the file is not read.
        if (file.trackCount() > 0)
            file.ignoredColumns.append(u"the tracks"_s);
    }
    wantlist.m_rows = std::move(rows);
    return wantlist;
}

Result<WantlistCounts> preview(const Store &store, const WantlistFile &file)
{
    return merge(store, file, nullptr);
}

Result<WantlistCounts> apply(Store &store, const WantlistFile &file)
{
    Result<WantlistCounts> counts = Error{};
    const auto done = store.transaction([&]() -> Result<void> {
        counts = merge(store, file, &store);
        return counts ? Result<void>() : Result<void>(counts.error());
    });
    if (!done)
        return done.error();
    return counts;
}

Result<WantlistCounts> applyAfterSnapshot(Store &store, const WantlistFile &file, Snapshots &snapshots,
                                          const QString &source)
{
    if (auto writable = store.checkWritable(); !writable)
        return writable.error();
    const auto taken = snapshots.take(Snapshots::kKindImport, source);
    if (!taken)
        return Error{translated(ImportMessages::kNotKept).arg(taken.errorMessage())};
    auto counts = apply(store, file);
    if (counts && counts->added > 0)
        snapshots.keep();
    else
        snapshots.drop(*taken);
    return counts;
}

QString countsText(const WantlistCounts &counts)
{
    return counted(u"%1 %2 added, %3 skipped"_s, counts);
}

QString previewText(const WantlistCounts &counts)
{
    return counted(u"%1 %2 to add, %3 to skip"_s, counts);
}

Result<QByteArray> write(const Store &store)
{
    auto wanted = WantedAlbums::all(store);
    if (!wanted)
        return wanted.error();
    QStringList header;
    for (const RecordAttribute &attribute : FileAttributes::records())
        header.append(attribute.name);
    header << maxPriceAttribute().name << kPriorityColumn;
    QByteArray out = kByteOrderMark + Csv::line(header).toUtf8();
    for (const WantedAlbum &w : std::as_const(*wanted)) {
        QStringList fields;
        for (const RecordAttribute &attribute : FileAttributes::records())
            fields.append(FileAttributes::fileText(attribute, w.album));
        fields << FileAttributes::fileText(maxPriceAttribute(), w) << QString::number(w.priority);
        out += Csv::line(fields).toUtf8();
    }
    return out;
}

} // namespace WantlistCsv
