#include "exchange/collectioncsv.h"

#include "exchange/exchangewriter.h"
#include "exchange/fileattributes.h"
#include "store/fetchrequest.h"
#include "store/store.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace CollectionCsv {

namespace {

const QByteArray kByteOrderMark("\xEF\xBB\xBF");
constexpr qint64 kProgressEvery = 256;
// Tracks are read in blocks of record numbers, never all at once.
constexpr int kTrackBlock = 2048;

// The attribute of each column of a header; nullptr for a column nothing is read from.
template<typename Entity>
QList<const FileAttribute<Entity> *> columnsOf(const QList<FileAttribute<Entity>> &table, const QStringList &header,
                                              QStringList &ignored)
{
    QList<const FileAttribute<Entity> *> columns;
    for (const QString &name : header) {
        columns.append(FileAttributes::find(table, name));
        if (!columns.last() && !name.trimmed().isEmpty())
            ignored.append(name.trimmed());
    }
    return columns;
}

// Reads the fields of a row into `values`; the problems found, each naming its field.
template<typename Entity>
QStringList readFields(const QList<const FileAttribute<Entity> *> &columns, const Csv::Row &row, Entity &values)
{
    QStringList problems;
    for (qsizetype c = 0; c < columns.size() && c < row.fields.size(); ++c) {
        if (!columns.at(c) || row.fields.at(c).isEmpty())
            continue;
        if (auto read = FileAttributes::read(*columns.at(c), row.fields.at(c), values); !read)
            problems.append(read.errorMessage());
    }
    return problems;
}

// What a line must give: a record its name, a track its song and the number of its record.
QStringList missing(const Vinyl &v)
{
    return text(v.name).isEmpty() ? QStringList{u"no name"_s} : QStringList();
}

QStringList missing(const Track &t)
{
    QStringList problems;
    if (text(t.song).isEmpty())
        problems.append(u"no song"_s);
    if (!t.vinylID)
        problems.append(u"no Vinyl ID: the track belongs to no record"_s);
    return problems;
}

// A record or track line from a row under the columns of its header.
template<typename Line, typename Entity>
Line lineOf(const QList<const FileAttribute<Entity> *> &columns, const Csv::Row &row)
{
    Line line;
    line.line = row.line;
    line.problem = Csv::rowProblem(row, columns.size());
    if (line.problem.isEmpty()) {
        const QStringList unread = readFields(columns, row, line.values);
        line.problem = (missing(line.values) + unread).join(u"; "_s);
    }
    return line;
}

// The record rows, then the track rows, each read under the columns of its header.
class SpreadsheetLines final : public ImportLines
{
public:
    QList<Csv::RowStart> rows; // every row of the file, its header lines too
    QList<const RecordAttribute *> recordColumns;
    QList<const TrackAttribute *> trackColumns;
    qsizetype firstRecord = 0;
    qsizetype records = 0;
    qsizetype firstTrack = 0;
    qsizetype tracks = 0;

    qsizetype recordCount() const override { return records; }
    qsizetype trackCount() const override { return tracks; }
    RecordLine record(QByteArrayView utf8, qsizetype index) const override
    {
        return lineOf<RecordLine>(recordColumns, Csv::rowAt(utf8, rows.at(firstRecord + index)));
    }
    TrackLine track(QByteArrayView utf8, qsizetype index) const override
    {
        return lineOf<TrackLine>(trackColumns, Csv::rowAt(utf8, rows.at(firstTrack + index)));
    }
};

template<typename Entity>
QByteArray headerLine(const QList<FileAttribute<Entity>> &table)
{
    QStringList names;
    for (const FileAttribute<Entity> &attribute : table)
        names.append(attribute.name);
    return Csv::line(names).toUtf8();
}

template<typename Entity>
QByteArray line(const QList<FileAttribute<Entity>> &table, const Entity &object)
{
    QStringList fields;
    for (const FileAttribute<Entity> &attribute : table)
        fields.append(FileAttributes::fileText(attribute, object));
    return Csv::line(fields).toUtf8();
}

} // namespace

Section sectionOf(const QStringList &header)
{
    const auto names = [&header](const auto &table, const QString &attribute) {
        for (const QString &field : header) {
            const auto *found = FileAttributes::find(table, field);
            if (found && found->name == attribute)
                return true;
        }
        return false;
    };
    if (names(FileAttributes::records(), u"name"_s))
        return Section::Records;
    if (names(FileAttributes::tracks(), u"vinylID"_s) && names(FileAttributes::tracks(), u"song"_s))
        return Section::Tracks;
    return Section::None;
}

void read(QList<Csv::RowStart> rows, ImportFile &file)
{
    file.format = ImportFormat::Spreadsheet;
    auto lines = std::make_shared<SpreadsheetLines>();
    const QStringList header = Csv::rowAt(file.text, rows.first()).fields;
    const qsizetype after = rows.size() - 1;
    if (sectionOf(header) != Section::Records) {
        lines->trackColumns = columnsOf(FileAttributes::tracks(), header, file.ignoredColumns);
        lines->firstTrack = 1;
        lines->tracks = after;
    } else {
        lines->recordColumns = columnsOf(FileAttributes::records(), header, file.ignoredColumns);
        lines->firstRecord = 1;
        lines->records = after;
        // A track header line after the records starts the tracks' section.
        for (qsizetype i = 1; i < rows.size(); ++i) {
            const Csv::Row row = Csv::rowAt(file.text, rows.at(i));
            if (FileAttributes::find(FileAttributes::tracks(), row.fields.first())
                && sectionOf(row.fields) == Section::Tracks) {
                lines->trackColumns = columnsOf(FileAttributes::tracks(), row.fields, file.ignoredColumns);
                lines->records = i - 1;
                lines->firstTrack = i + 1;
                lines->tracks = rows.size() - i - 1;
                break;
            }
        }
    }
    lines->rows = std::move(rows);
    file.lines = std::move(lines);
}

Result<Files> write(Store &store, bool tracksInRecordsFile, const Progress &progress)
{
    auto records = store.fetchVinyl(
        FetchRequest(Entity::Vinyl).sortedBy(u"name"_s).sortedBy(u"artist"_s).sortedBy(u"releaseDate"_s));
    if (!records)
        return records.error();
    auto trackCount = store.count(FetchRequest(Entity::Tracks));
    if (!trackCount)
        return trackCount.error();
    const qint64 total = records->size() + *trackCount;
    qint64 done = 0;
    const auto step = [&]() {
        ++done;
        return !progress || done % kProgressEvery != 0 || progress(done, total);
    };
    const Error cancelled{ExportMessages::kCancelled};

    Files files;
    files.records = kByteOrderMark + headerLine(FileAttributes::records());
    for (const Vinyl &v : std::as_const(*records)) {
        files.records += line(FileAttributes::records(), v);
        if (!step())
            return cancelled;
    }

    QByteArray &tracks = tracksInRecordsFile ? files.records : files.tracks;
    tracks += tracksInRecordsFile ? QByteArray("\r\n") : kByteOrderMark;
    tracks += headerLine(FileAttributes::tracks());
    // Absent record numbers sort first, then the blocks in ascending order.
    QList<FetchRequest> blocks{FetchRequest(Entity::Tracks).where(Predicate::equal(u"vinylID"_s, QVariant()))};
    for (int from = -32768; from <= 32767; from += kTrackBlock)
        blocks.append(FetchRequest(Entity::Tracks)
                          .where(Predicate::atLeast(u"vinylID"_s, from))
                          .where(Predicate::lessThan(u"vinylID"_s, from + kTrackBlock)));
    for (FetchRequest &block : blocks) {
        auto fetched = store.fetchTracks(block.sortedBy(u"vinylID"_s).sortedBy(u"trackNumber"_s));
        if (!fetched)
            return fetched.error();
        for (const Track &t : std::as_const(*fetched)) {
            tracks += line(FileAttributes::tracks(), t);
            if (!step())
                return cancelled;
        }
    }
    if (progress)
        progress(total, total);
    return files;
}

QString tracksPath(const QString &recordsPath)
{
    const QString suffix = QFileInfo(recordsPath).suffix();
    if (suffix.isEmpty())
        return recordsPath + u"-tracks"_s;
    return recordsPath.chopped(suffix.size() + 1) + u"-tracks."_s + suffix;
}

} // namespace CollectionCsv
