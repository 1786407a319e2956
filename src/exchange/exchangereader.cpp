#include "exchangereader.h"

#include "exchangeformat.h"
#include "logging.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// The fields of one line; positions past the end read as empty.
class Fields
{
public:
    explicit Fields(QStringView line) : m_fields(line.split(Exchange::kSeparator)) {}
    [[nodiscard]] QString at(int i) const { return view(i).toString(); }
    [[nodiscard]] QStringView view(int i) const { return i < m_fields.size() ? m_fields.at(i) : QStringView(); }

private:
    QList<QStringView> m_fields;
};

std::optional<double> toDouble(const QString &text)
{
    bool ok = false;
    const double d = text.toDouble(&ok);
    return ok && std::isfinite(d) ? std::optional<double>(d) : std::nullopt;
}

std::optional<float> toFloat(const QString &text)
{
    bool ok = false;
    const float f = text.toFloat(&ok);
    return ok && std::isfinite(f) ? std::optional<float>(f) : std::nullopt;
}

std::optional<qint16> toInt16(const QString &text)
{
    bool ok = false;
    const short n = text.toShort(&ok);
    return ok ? std::optional<qint16>(n) : std::nullopt;
}

RecordLine recordLine(const Fields &f, qint64 number, const QString &document)
{
    using namespace Exchange;
    RecordLine line;
    line.line = number;
    Vinyl &v = line.values;
    const auto apply = [&f](int field, auto &&set) {
        const QString text = f.at(field);
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
    apply(AlbumDuration, [&](const QString &t) { v.albumDuration = toDouble(t); });
    apply(Artist, [&](const QString &t) { v.artist = t; });
    apply(Cost, [&](const QString &t) { numberOrClear(v.cost, toFloat(t), u"cost"_s); });
    apply(CoverConditionField, [&](const QString &t) { v.coverCondition = t; });
    apply(DoubleAlbum, [&](const QString &t) { v.doubleAlbum = t; });
    apply(Id, [&](const QString &t) { numberOrClear(v.id, toInt16(t), u"id"_s); });
    apply(Name, [&](const QString &t) { v.name = t; });
    apply(Notes, [&](const QString &t) { v.notes = restoreNotes(t); });
    apply(Producer, [&](const QString &t) { v.producer = t; });
    apply(Quantity, [&](const QString &t) { v.quantity = toInt16(t); });
    apply(RecordLabel, [&](const QString &t) { v.recordLabel = t; });
    apply(RecordSpeed, [&](const QString &t) { v.recordSpeed = t; });
    apply(ReleaseDate, [&](const QString &t) { v.releaseDate = parseDate(t); });
    apply(Value, [&](const QString &t) { numberOrClear(v.value, toFloat(t), u"value"_s); });
    apply(VinylConditionField, [&](const QString &t) { v.vinylCondition = t; });
    // Covers stay in the text until the line is merged: a whole collection's covers are large.
    const auto span = [&](int field) {
        const QStringView view = f.view(field);
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
    t.duration = toDouble(f.at(Duration));
    t.trackNumber = toInt16(f.at(TrackNumber));
    t.vinylID = toInt16(f.at(VinylID));
    if (const QString song = f.at(Song); !song.isEmpty())
        t.song = song;
    if (const QString writtenBy = f.at(WrittenBy); !writtenBy.isEmpty())
        t.writtenBy = writtenBy;
    return line;
}

} // namespace

namespace ExchangeReader {

ImportFile read(QString document)
{
    ImportFile file;
    file.format = ImportFormat::Exchange;
    // A CR LF or a lone CR ends a line like a LF does (and counts as one line).
    document.replace(u"\r\n"_s, u"\n"_s);
    document.replace(u'\r', u'\n');
    file.text = std::move(document);

    enum class Section { None, Records, Tracks } section = Section::None;
    bool seenRecords = false;
    qint64 number = 0;
    for (QStringView line : QStringView(file.text).split(u'\n')) {
        ++number;
        if (line == Exchange::kRecordMarker) {
            if (!seenRecords)
                section = Section::Records;
            seenRecords = true;
            continue;
        }
        if (line == Exchange::kTrackMarker) {
            if (section != Section::Tracks)
                consoleLine(ImportMessages::kFoundTracks);
            section = Section::Tracks;
            continue;
        }
        if (line.isEmpty())
            continue;
        if (section == Section::Records)
            file.records.append(recordLine(Fields(line), number, file.text));
        else if (section == Section::Tracks)
            file.tracks.append(trackLine(Fields(line), number));
    }
    return file;
}

Result<ImportCounts> importAll(Store &store, const QString &document)
{
    return ImportMerge::apply(store, read(document));
}

} // namespace ExchangeReader
