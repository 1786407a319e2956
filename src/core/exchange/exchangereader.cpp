#include "exchange/exchangereader.h"

#include "exchange/exchangeformat.h"
#include "store/logging.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// The fields of one line, read in place; positions past the end read as empty. Only the
// fields a line can hold are kept.
class Fields
{
public:
    explicit Fields(QByteArrayView line)
    {
        constexpr char separator = char(Exchange::kSeparator.unicode());
        for (qsizetype start = 0; m_count < kMaxFields;) {
            const qsizetype end = line.indexOf(separator, start);
            m_fields[m_count++] = line.sliced(start, (end < 0 ? line.size() : end) - start);
            if (end < 0)
                break;
            start = end + 1;
        }
    }
    [[nodiscard]] QString at(int i) const { return QString::fromUtf8(view(i)); }
    [[nodiscard]] QByteArrayView view(int i) const { return i < m_count ? m_fields[i] : QByteArrayView(); }

private:
    static constexpr int kMaxFields = Exchange::kRecordFieldCount;
    std::array<QByteArrayView, kMaxFields> m_fields;
    int m_count = 0;
};

std::optional<double> toDouble(QByteArrayView text)
{
    bool ok = false;
    const double d = text.toDouble(&ok);
    return ok && std::isfinite(d) ? std::optional<double>(d) : std::nullopt;
}

std::optional<float> toFloat(QByteArrayView text)
{
    bool ok = false;
    const float f = text.toFloat(&ok);
    return ok && std::isfinite(f) ? std::optional<float>(f) : std::nullopt;
}

std::optional<qint16> toInt16(QByteArrayView text)
{
    bool ok = false;
    const short n = text.toShort(&ok);
    return ok ? std::optional<qint16>(n) : std::nullopt;
}

// Calls visit(line, number) for every line of the text; a LF, a CR LF or a lone CR ends a
// line (and counts as one). One pass: each byte is looked at once, whatever the line ends.
template<typename Visit>
void forEachLine(QByteArrayView text, Visit &&visit)
{
    const char *const end = text.data() + text.size();
    qint64 number = 0;
    for (const char *start = text.data();;) {
        const char *const stop = std::find_if(start, end, [](char c) { return c == '\n' || c == '\r'; });
        visit(QByteArrayView(start, stop - start), ++number);
        if (stop == end)
            return;
        start = stop + 1 + (*stop == '\r' && stop + 1 != end && stop[1] == '\n');
    }
}

RecordLine recordLine(const Fields &f, qint64 number, QByteArrayView document)
{
    using namespace Exchange;
    RecordLine line;
    line.line = number;
    Vinyl &v = line.values;
    const auto apply = [&f](int field, auto &&set) {
        const QByteArrayView text = f.view(field);
        if (!text.isEmpty())
            set(text);
    };
    // A number that does not convert clears these three on a stored record.
    const auto numberOrClear = [&line](auto &attribute, auto converted, const QString &name) {
        if (converted)
            attribute = converted;
        else
            line.cleared.append(name);
    };
    apply(AlbumDuration, [&](QByteArrayView t) { v.albumDuration = toDouble(t); });
    apply(Artist, [&](QByteArrayView t) { v.artist = QString::fromUtf8(t); });
    apply(Cost, [&](QByteArrayView t) { numberOrClear(v.cost, toFloat(t), u"cost"_s); });
    apply(CoverConditionField, [&](QByteArrayView t) { v.coverCondition = QString::fromUtf8(t); });
    apply(DoubleAlbum, [&](QByteArrayView t) { v.doubleAlbum = QString::fromUtf8(t); });
    apply(Id, [&](QByteArrayView t) { numberOrClear(v.id, toInt16(t), u"id"_s); });
    apply(Name, [&](QByteArrayView t) { v.name = QString::fromUtf8(t); });
    apply(Notes, [&](QByteArrayView t) { v.notes = restoreNotes(QString::fromUtf8(t)); });
    apply(Producer, [&](QByteArrayView t) { v.producer = QString::fromUtf8(t); });
    apply(Quantity, [&](QByteArrayView t) { v.quantity = toInt16(t); });
    apply(RecordLabel, [&](QByteArrayView t) { v.recordLabel = QString::fromUtf8(t); });
    apply(RecordSpeed, [&](QByteArrayView t) { v.recordSpeed = QString::fromUtf8(t); });
    apply(ReleaseDate, [&](QByteArrayView t) { v.releaseDate = parseDate(QString::fromUtf8(t)); });
    apply(Value, [&](QByteArrayView t) { numberOrClear(v.value, toFloat(t), u"value"_s); });
    apply(VinylConditionField, [&](QByteArrayView t) { v.vinylCondition = QString::fromUtf8(t); });
    // Covers stay in the text until the line is merged: a whole collection's covers are large.
    const auto span = [&](int field) {
        const QByteArrayView view = f.view(field);
        return view.isEmpty() ? TextSpan{} : TextSpan{view.data() - document.constData(), view.size()};
    };
    line.frontImage = span(FrontImage);
    line.backImage = span(BackImage);
    return line;
}

TrackLine trackLine(const Fields &f, qint64 number)
{
    using namespace Exchange;
    TrackLine line;
    line.line = number;
    Track &t = line.values;
    t.duration = toDouble(f.view(Duration));
    t.trackNumber = toInt16(f.view(TrackNumber));
    t.vinylID = toInt16(f.view(VinylID));
    if (const QByteArrayView song = f.view(Song); !song.isEmpty())
        t.song = QString::fromUtf8(song);
    if (const QByteArrayView writtenBy = f.view(WrittenBy); !writtenBy.isEmpty())
        t.writtenBy = QString::fromUtf8(writtenBy);
    return line;
}

// The line that starts at `offset`, without its end.
QByteArrayView lineAt(QByteArrayView utf8, qsizetype offset)
{
    const QByteArrayView rest = utf8.sliced(offset);
    return rest.first(std::find_if(rest.begin(), rest.end(), [](char c) { return c == '\n' || c == '\r'; }) - rest.begin());
}

} // namespace

namespace ExchangeReader {

ImportFile read(QByteArray utf8)
{
    ImportFile file;
    file.format = ImportFormat::Exchange;
    file.text = std::move(utf8);
    static const QByteArray recordMarker = Exchange::kRecordMarker.toUtf8();
    static const QByteArray trackMarker = Exchange::kTrackMarker.toUtf8();

    // The lists are made once, not grown; what no line takes is never touched.
    const qsizetype lines = file.text.count('\n') + 1;
    file.recordStarts.reserve(lines);
    file.trackStarts.reserve(lines);
    enum class Section { None, Records, Tracks } section = Section::None;
    bool seenRecords = false;
    forEachLine(file.text, [&](QByteArrayView line, qint64 number) {
        if (line == recordMarker) {
            if (!seenRecords)
                section = Section::Records;
            seenRecords = true;
            return;
        }
        if (line == trackMarker) {
            if (section != Section::Tracks)
                consoleLine(ImportMessages::kFoundTracks);
            section = Section::Tracks;
            return;
        }
        if (line.isEmpty())
            return;
        if (section != Section::None)
            (section == Section::Records ? file.recordStarts : file.trackStarts).append({line.data() - file.text.constData(), number});
    });
    return file;
}

RecordLine recordLineAt(QByteArrayView utf8, LineStart start)
{
    return recordLine(Fields(lineAt(utf8, start.offset)), start.number, utf8);
}

TrackLine trackLineAt(QByteArrayView utf8, LineStart start)
{
    return trackLine(Fields(lineAt(utf8, start.offset)), start.number);
}

Result<ImportCounts> importAll(Store &store, QByteArray utf8)
{
    return ImportMerge::apply(store, read(std::move(utf8)));
}

} // namespace ExchangeReader
