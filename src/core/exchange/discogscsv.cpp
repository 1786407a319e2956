#include "exchange/discogscsv.h"

#include "exchange/fileattributes.h"
#include "store/translations.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace DiscogsCsv {

namespace {

// The columns read; any other is named in the preview as not read.
enum Column { CatalogNumber, Artist, Title, Label, Format, Released, ReleaseId, MediaCondition, SleeveCondition, Notes };
const QStringList kColumns = {u"Catalog#"_s, u"Artist"_s, u"Title"_s, u"Label"_s, u"Format"_s, u"Released"_s,
                              u"release_id"_s, u"Collection Media Condition"_s, u"Collection Sleeve Condition"_s,
                              u"Collection Notes"_s};

// Condition texts that are no grade are named in the preview up to this many.
constexpr qsizetype kListedConditions = 20;
const QString kUnlistedConditions = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "other texts that are no grade: kept in the notes"));

// The lines of a release's copies named in the preview, at most; the rest are counted.
constexpr qsizetype kListedCopies = 20;
const QString kMoreCopies = u"%1 more"_s;

// The album types and speeds are the record form's own texts.
const QStringList kAlbumTypes = {u"Single Album"_s, u"Double Album"_s, u"Triple Album"_s, u"Quad Album"_s};

// "Prince (2)" -> "Prince": the number the site gives namesakes, wherever a name ends.
QString withoutNumberSuffix(QString name)
{
    // Most names have no parenthesis, and need no look for one.
    if (!name.contains(u'('))
        return name.trimmed();
    static const QRegularExpression suffix(u"\\s\\(\\d+\\)(?=$|\\s|,)"_s);
    return name.remove(suffix).trimmed();
}

QString firstLabel(const QString &labels)
{
    return labels.section(u", "_s, 0, 0);
}

// "2xLP, Album" -> "Double Album"; one disc, or more than four, is a single album.
QString albumType(const QString &format)
{
    if (!format.contains(u'x'))
        return kAlbumTypes.first();
    static const QRegularExpression discs(u"(?:^|[\\s,+])(\\d+)x(?:LP|Vinyl|\\d+\")"_s);
    const int count = discs.match(format).captured(1).toInt();
    return count >= 2 && count <= 4 ? kAlbumTypes.at(count - 1) : kAlbumTypes.first();
}

// A speed the format names wins; else an LP plays at 33 and a 7" at 45; else none.
QString recordSpeed(const QString &format)
{
    static const QRegularExpression named(u"(\\d+)(?:\\s*(?:\u2153|1/3))?\\s*RPM"_s);
    // Each pattern needs a text the format often lacks; a look for that is far cheaper.
    for (auto it = format.contains(u"RPM"_s) ? named.globalMatch(format) : QRegularExpressionMatchIterator(); it.hasNext();) {
        const QString rpm = it.next().captured(1);
        if (rpm == u"33" || rpm == u"45" || rpm == u"78")
            return rpm + u" RPM"_s;
    }
    static const QRegularExpression lp(u"(?:^|[\\s,+])(?:\\d+x)?LP(?=$|[\\s,+])"_s);
    static const QRegularExpression seven(u"(?:^|[\\s,+])(?:\\d+x)?7\""_s);
    if (format.contains(u"LP"_s) && lp.match(format).hasMatch())
        return u"33 RPM"_s;
    if (format.contains(u"7\""_s) && seven.match(format).hasMatch())
        return u"45 RPM"_s;
    return {};
}

const ConditionGrade *gradeOf(const QString &condition)
{
    const QString trimmed = condition.trimmed();
    for (const ConditionGrade &entry : conditionGrades()) {
        if (entry.condition.compare(trimmed, Qt::CaseInsensitive) == 0)
            return &entry;
    }
    return nullptr;
}

// One row's fields by column; columns the file lacks read as empty.
class RowFields
{
public:
    RowFields(const Csv::Row &row, const QList<qsizetype> &positions) : m_row(row), m_positions(positions) {}
    [[nodiscard]] QString at(Column c) const
    {
        const qsizetype i = m_positions.at(c);
        return i >= 0 ? m_row.fields.value(i).trimmed() : QString();
    }

private:
    const Csv::Row &m_row;
    const QList<qsizetype> &m_positions;
};

const QString kNoTitle = u"no name (the Title is empty)"_s;
const QString kNotADate = u"Released \"%1\" is not a date"_s;

// Sets the grade of a condition text, or keeps the text in the notes when it is no grade.
void takeCondition(const QString &condition, const QString &noteTitle, std::optional<QString> &grade, QStringList &notes)
{
    if (condition.isEmpty())
        return;
    const ConditionGrade *entry = gradeOf(condition);
    if (entry && !entry->grade.isEmpty())
        grade = entry->grade;
    else
        notes.append(noteTitle + condition);
}

// Why a row cannot be imported ("" when it can): what recordLine() finds, without the rest.
QString problemOf(const RowFields &f)
{
    if (f.at(Title).isEmpty())
        return kNoTitle;
    if (const QString released = f.at(Released); !released.isEmpty() && released != u"0"
                                                  && !FileAttributes::isIsoDate(released))
        return kNotADate.arg(FileAttributes::excerpt(released));
    return {};
}

RecordLine recordLine(const RowFields &f, qint64 line)
{
    RecordLine r;
    r.line = line;
    Vinyl &v = r.values;
    if (const QString title = f.at(Title); !title.isEmpty())
        v.name = title;
    else
        r.problem = kNoTitle;
    if (const QString artist = withoutNumberSuffix(f.at(Artist)); !artist.isEmpty())
        v.artist = artist;
    if (const QString label = withoutNumberSuffix(firstLabel(f.at(Label))); !label.isEmpty())
        v.recordLabel = label;
    if (const QString released = f.at(Released); !released.isEmpty() && released != u"0") {
        v.releaseDate = FileAttributes::parseIsoDate(released);
        if (!v.releaseDate && r.problem.isEmpty())
            r.problem = kNotADate.arg(FileAttributes::excerpt(released));
    }
    const QString format = f.at(Format);
    v.doubleAlbum = albumType(format);
    if (const QString speed = recordSpeed(format); !speed.isEmpty())
        v.recordSpeed = speed;

    QStringList notes;
    if (const QString collectionNotes = f.at(Notes); !collectionNotes.isEmpty())
        notes.append(collectionNotes);
    if (const QString catalog = f.at(CatalogNumber); !catalog.isEmpty())
        notes.append(u"Catalog#: "_s + catalog);
    if (const QString release = f.at(ReleaseId); !release.isEmpty())
        notes.append(u"release_id: "_s + release);
    takeCondition(f.at(MediaCondition), u"Media condition: "_s, v.vinylCondition, notes);
    takeCondition(f.at(SleeveCondition), u"Sleeve condition: "_s, v.coverCondition, notes);
    if (!notes.isEmpty())
        v.notes = notes.join(u'\n');
    v.quantity = 1;
    return r;
}

// Another copy of a release: one more of the record, whose notes keep this copy's too.
void addCopy(Vinyl &v, const RowFields &f)
{
    v.quantity = qint16(std::min(32767, number(v.quantity) + 1));
    if (const QString notes = f.at(Notes); !notes.isEmpty() && !text(v.notes).contains(notes))
        v.notes = text(v.notes) + u'\n' + notes;
}

// "lines 5 and 9", "lines 5, 9 and 12"; of more copies than kListedCopies, the first lines and
// how many more: "lines 5, 9, … 80 and 1,204 more".
QString linesText(const QList<qint64> &lines, qint64 copies)
{
    QStringList numbers;
    for (qint64 line : lines)
        numbers.append(QString::number(line));
    if (copies > lines.size())
        return u"lines "_s + numbers.join(u", "_s) + u" and "_s + kMoreCopies.arg(QLocale().toString(copies - lines.size()));
    const QString last = numbers.takeLast();
    return u"lines "_s + numbers.join(u", "_s) + u" and "_s + last;
}

// How each condition text of the file was taken, in the table's order; `conditions` holds
// the texts found, by their lower-case form.
// `unlisted` when more texts that are no grade were found than are listed.
QStringList conditionRemarks(QHash<QString, QString> conditions, bool unlisted)
{
    QStringList remarks;
    for (const ConditionGrade &entry : conditionGrades()) {
        if (!conditions.remove(entry.condition.toLower()))
            continue;
        remarks.append(entry.grade.isEmpty() ? translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "\"%1\" is no grade: kept in the notes"))).arg(entry.condition)
                                             : u"\"%1\" \u2192 %2"_s.arg(entry.condition, entry.grade));
    }
    QStringList unknown = conditions.values();
    unknown.sort();
    for (const QString &condition : std::as_const(unknown))
        remarks.append(translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "\"%1\" is no grade: kept in the notes"))).arg(FileAttributes::excerpt(condition)));
    if (unlisted)
        remarks.append(translated(kUnlistedConditions));
    return remarks;
}

// The record lines: each a row, and a release's record the copies of its later rows too.
class DiscogsLines final : public ImportLines
{
public:
    QList<Csv::RowStart> rows; // rows.first() is the header
    qsizetype columns = 0;     // in the header
    QList<qsizetype> positions;
    QList<qint32> recordRows; // the row of each record line
    // The row of the next copy of a row's release; -1 for none. Empty while no release has two.
    QList<qint32> nextCopy;

    qsizetype recordCount() const override { return recordRows.size(); }
    qsizetype trackCount() const override { return 0; }
    TrackLine track(QByteArrayView, qsizetype) const override { return {}; }
    RecordLine record(QByteArrayView utf8, qsizetype index) const override
    {
        const qint32 first = recordRows.at(index);
        const Csv::Row row = Csv::rowAt(utf8, rows.at(first));
        if (const QString problem = Csv::rowProblem(row, columns); !problem.isEmpty())
            return RecordLine{row.line, {}, {}, {}, {}, problem, {}};
        RecordLine line = recordLine(RowFields(row, positions), row.line);
        if (!line.problem.isEmpty() || nextCopy.isEmpty() || nextCopy.at(first) < 0)
            return line;
        QList<qint64> lines{line.line};
        qint64 copies = 1;
        for (qint32 copy = nextCopy.at(first); copy >= 0; copy = nextCopy.at(copy), ++copies) {
            const Csv::Row copyRow = Csv::rowAt(utf8, rows.at(copy));
            addCopy(line.values, RowFields(copyRow, positions));
            if (lines.size() < kListedCopies)
                lines.append(copyRow.line);
        }
        line.remark = u"%1 copies: %2"_s.arg(QLocale().toString(copies), linesText(lines, copies));
        return line;
    }
};

} // namespace

const QList<ConditionGrade> &conditionGrades()
{
    // A "Plus" lies halfway to the next grade up.
    static const QList<ConditionGrade> table = {
        {u"Mint (M)"_s, u"Mint"_s},
        {u"Near Mint (NM or M-)"_s, u"Near Mint"_s},
        {u"Very Good Plus (VG+)"_s, u"Very Good/Fine"_s},
        {u"Very Good (VG)"_s, u"Very Good"_s},
        {u"Good Plus (G+)"_s, u"Good/Very Good"_s},
        {u"Good (G)"_s, u"Good"_s},
        {u"Fair (F)"_s, u"Fair"_s},
        {u"Poor (P)"_s, u"Poor"_s},
        {u"Generic"_s, QString()},
        {u"No Cover"_s, QString()},
        {u"Not Graded"_s, QString()},
    };
    return table;
}

bool recognises(const QStringList &header)
{
    return Csv::column(header, kColumns.at(Title)) >= 0 && Csv::column(header, kColumns.at(Artist)) >= 0
           && Csv::column(header, kColumns.at(ReleaseId)) >= 0;
}

void read(QList<Csv::RowStart> rows, ImportFile &file, Export kind)
{
    file.format = ImportFormat::Discogs;
    auto lines = std::make_shared<DiscogsLines>();
    const QStringList header = Csv::rowAt(file.text, rows.first()).fields;
    lines->columns = header.size();
    for (const QString &name : kColumns)
        lines->positions.append(Csv::column(header, name));
    if (kind == Export::Wantlist && lines->positions.at(Notes) < 0)
        lines->positions[Notes] = Csv::column(header, u"Notes"_s);
    for (qsizetype i = 0; i < header.size(); ++i) {
        if (!lines->positions.contains(i) && !header.at(i).trimmed().isEmpty())
            file.ignoredColumns.append(header.at(i).trimmed());
    }

    QHash<QString, qint32> lastCopy; // release_id -> the row of its latest copy
    QHash<QString, QString> conditions;
    std::array<QString, 2> previousCondition;
    bool unlisted = false;
    for (qint32 i = 1; i < rows.size(); ++i) {
        const Csv::Row row = Csv::rowAt(file.text, rows.at(i));
        if (!Csv::rowProblem(row, lines->columns).isEmpty()) {
            lines->recordRows.append(i);
            continue;
        }
        const RowFields f(row, lines->positions);
        for (Column c : {MediaCondition, SleeveCondition}) {
            const QString condition = f.at(c);
            // Rows mostly repeat the grade of the row before: it is counted already.
            QString &previous = previousCondition[c == MediaCondition ? 0 : 1];
            if (condition.isEmpty() || condition == previous)
                continue;
            previous = condition;
            // Texts that are no grade are listed up to a number; a crafted file may hold millions.
            if (gradeOf(condition) || conditions.size() < kListedConditions + conditionGrades().size()
                || conditions.contains(condition.toLower()))
                conditions.insert(condition.toLower(), condition);
            else
                unlisted = true;
        }
        const QString release = kind == Export::Wantlist ? QString() : f.at(ReleaseId);
        const auto last = release.isEmpty() ? lastCopy.end() : lastCopy.find(release);
        // A row with a problem is listed on its own: the release's record is its first good row.
        const bool good = problemOf(f).isEmpty();
        if (last == lastCopy.end() || !good) {
            if (!release.isEmpty() && good)
                lastCopy.insert(release, i);
            lines->recordRows.append(i);
            continue;
        }
        if (lines->nextCopy.isEmpty())
            lines->nextCopy.fill(-1, rows.size());
        lines->nextCopy[*last] = i;
        *last = i;
    }
    file.remarks = conditionRemarks(conditions, unlisted);
    lines->rows = std::move(rows);
    file.lines = std::move(lines);
}

} // namespace DiscogsCsv
