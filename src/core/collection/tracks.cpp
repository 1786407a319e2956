#include "collection/tracks.h"

#include "store/formatters.h"
#include "store/store.h"
#include "store/translations.h"

using namespace Qt::StringLiterals;

QString TrackTexts::badDuration()
{
    return translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Duration must be a number, such as %1."))).arg(Formatters::shortestInLocale(3.5));
}

QString trimBlanks(const QString &text)
{
    qsizetype begin = 0;
    qsizetype end = text.size();
    auto blank = [](QChar c) { return c == u' ' || c == u'\t'; };
    while (begin < end && blank(text.at(begin)))
        ++begin;
    while (end > begin && blank(text.at(end - 1)))
        --end;
    const QString trimmed = text.mid(begin, end - begin);
    // Always a present text: an emptied field stores the empty text, not "absent".
    return trimmed.isNull() ? u""_s : trimmed;
}

Result<QList<Track>> fetchTracksOf(const Store &store, qint16 vinylId, bool ascending)
{
    return store.fetchTracks(FetchRequest(Entity::Tracks)
                                 .where(Predicate::equal(u"vinylID"_s, int(vinylId)))
                                 .sortedBy(u"trackNumber"_s, ascending));
}

namespace {

// Empty text: no number. Otherwise the whole text (blanks around it ignored) must read.
Result<std::optional<qint16>> parseTrackNumber(const QString &text)
{
    const QString t = trimBlanks(text);
    if (t.isEmpty())
        return std::optional<qint16>();
    bool ok = false;
    const short n = t.toShort(&ok);
    if (!ok)
        return Error{TrackTexts::BadTrackNumber};
    return std::optional<qint16>(n);
}

Result<std::optional<double>> parseDuration(const QString &text)
{
    const QString t = trimBlanks(text);
    if (t.isEmpty())
        return std::optional<double>();
    if (const auto minutes = Formatters::parseDecimal(t))
        return std::optional<double>(*minutes);
    return Error{TrackTexts::badDuration()};
}

} // namespace

Result<Track> trackFromAddForm(const TrackForm &form, qint16 vinylId)
{
    if (form.song.isEmpty())
        return Error{TrackTexts::RequiredMessage};
    auto number = parseTrackNumber(form.trackNumber);
    if (!number)
        return number.error();
    auto duration = parseDuration(form.duration);
    if (!duration)
        return duration.error();
    Track track;
    track.vinylID = vinylId;
    track.song = trimBlanks(form.song);
    track.trackNumber = *number;
    track.duration = *duration;
    if (!form.writtenBy.isEmpty())
        track.writtenBy = trimBlanks(form.writtenBy);
    return track;
}

Result<Track> trackFromEditForm(const TrackForm &form, Track opened, qint16 vinylId)
{
    auto number = parseTrackNumber(form.trackNumber);
    if (!number)
        return number.error();
    auto duration = parseDuration(form.duration);
    if (!duration)
        return duration.error();
    opened.vinylID = vinylId;
    opened.song = trimBlanks(form.song);
    opened.trackNumber = *number;
    opened.duration = *duration;
    opened.writtenBy = trimBlanks(form.writtenBy);
    return opened;
}

TrackForm formFromTrack(const Track &track)
{
    TrackForm form;
    form.song = text(track.song);
    if (track.trackNumber)
        form.trackNumber = QString::number(*track.trackNumber);
    if (track.duration)
        form.duration = Formatters::shortestInLocale(*track.duration);
    form.writtenBy = text(track.writtenBy);
    return form;
}

TrackRow trackRow(const Track &track)
{
    TrackRow row;
    row.rowId = track.rowId;
    row.song = text(track.song);
    row.songLabel = row.song;
    // Unset numbers read 0, as everywhere; a track without a writer shows no writer line.
    row.trackNumberLabel = translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Track # %1"))).arg(number(track.trackNumber));
    row.durationLabel = translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Duration: %1"))).arg(Formatters::twoDecimals(number(track.duration)));
    row.writtenByLabel = text(track.writtenBy).isEmpty() ? QString() : translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Written By: %1"))).arg(*track.writtenBy);
    return row;
}

QList<TrackRow> filterTracks(const QList<TrackRow> &rows, const QString &searchText)
{
    if (searchText.isEmpty())
        return rows;
    const QString needle = searchText.toLower();
    QList<TrackRow> found;
    for (const TrackRow &row : rows) {
        if (!row.song.isEmpty() && row.song.toLower().contains(needle))
            found.append(row);
    }
    return found;
}
