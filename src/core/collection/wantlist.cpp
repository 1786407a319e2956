#include "collection/wantlist.h"

#include "store/formatters.h"
#include "store/recordnumbers.h"
#include "store/store.h"
#include "store/translations.h"
#include "store/valuehistory.h"

using namespace Qt::StringLiterals;

namespace Wantlist {

namespace {

Result<void> applyWantedFields(const QString &maxPrice, int priority, WantedAlbum &wanted)
{
    std::optional<float> limit;
    if (!maxPrice.trimmed().isEmpty()) {
        const auto parsed = RecordForm::parseMoney(u"Most I Would Pay"_s, maxPrice);
        if (!parsed)
            return parsed.error();
        limit = parsed.value();
    }
    wanted.maxPrice = limit;
    wanted.priority = qint16(std::clamp(priority, int(WantedAlbums::kHighestPriority), int(WantedAlbums::kLowestPriority)));
    return {};
}

QString key(const std::optional<QString> &text)
{
    return Store::folded(::text(text).simplified());
}

} // namespace

Result<WantedAlbum> fromForm(const RecordFormFields &fields, const QString &maxPrice, int priority)
{
    if (RecordForm::trimSpacesAndTabs(fields.name).isEmpty() || RecordForm::trimSpacesAndTabs(fields.artist).isEmpty())
        return Error{kRequiredMessage};
    auto album = RecordForm::newVinylFromForm(fields);
    if (!album)
        return album.error();
    WantedAlbum wanted;
    wanted.album = std::move(album.value());
    // A wanted album has no length until someone says it.
    if (fields.recordLength.isEmpty())
        wanted.album.albumDuration.reset();
    if (auto r = applyWantedFields(maxPrice, priority, wanted); !r)
        return r.error();
    return wanted;
}

Result<void> applyForm(const RecordFormFields &fields, const QString &maxPrice, int priority, WantedAlbum &wanted)
{
    if (RecordForm::trimSpacesAndTabs(fields.name).isEmpty() || RecordForm::trimSpacesAndTabs(fields.artist).isEmpty())
        return Error{kRequiredMessage};
    WantedAlbum changed = wanted;
    if (auto r = RecordForm::applyFormToVinyl(fields, changed.album); !r)
        return r;
    if (auto r = applyWantedFields(maxPrice, priority, changed); !r)
        return r;
    wanted = std::move(changed);
    return {};
}

RecordFormFields formFields(const WantedAlbum &wanted)
{
    const Vinyl &v = wanted.album;
    RecordFormFields fields;
    fields.name = text(v.name);
    fields.artist = text(v.artist);
    fields.releaseDate = v.releaseDate ? Formatters::mediumDate(*v.releaseDate) : QString();
    fields.recordLabel = text(v.recordLabel);
    fields.quantity = v.quantity ? RecordForm::quantityText(*v.quantity) : QString();
    fields.recordLength = v.albumDuration && *v.albumDuration > 0 ? RecordForm::recordLengthText(*v.albumDuration) : QString();
    fields.producer = text(v.producer);
    fields.barcode = text(v.barcode);
    fields.vinylCondition = text(v.vinylCondition);
    fields.coverCondition = text(v.coverCondition);
    fields.recordSpeed = text(v.recordSpeed);
    fields.doubleAlbum = text(v.doubleAlbum);
    fields.cost = v.cost ? RecordForm::amountText(*v.cost) : QString();
    fields.value = v.value ? RecordForm::amountText(*v.value) : QString();
    fields.notes = text(v.notes);
    return fields;
}

QString maxPriceText(const WantedAlbum &wanted)
{
    return wanted.maxPrice ? RecordForm::amountText(*wanted.maxPrice) : QString();
}

QString summary(qsizetype shown, qsizetype total)
{
    if (total == 0)
        return translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Nothing on the wantlist yet: add the albums you are looking for, with the most you would pay.")));
    const QString albums = total == 1 ? translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "1 album wanted")))
                                        : translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 albums wanted"))).arg(total);
    return shown == total ? albums : translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 of %2"))).arg(shown).arg(albums);
}

QString detailLine(const WantedAlbum &wanted)
{
    QStringList parts{kPriorityNames.value(wanted.priority - 1)};
    if (wanted.maxPrice)
        parts << u"up to "_s + Formatters::currency(*wanted.maxPrice);
    if (!text(wanted.album.recordLabel).isEmpty())
        parts << *wanted.album.recordLabel;
    if (wanted.album.releaseDate)
        parts << QString::number(wanted.album.releaseDate->date().year());
    return parts.join(u" · "_s);
}

bool matchesSearch(const WantedAlbum &wanted, const QString &search)
{
    const QString folded = Store::folded(search.trimmed());
    return folded.isEmpty() || key(wanted.album.name).contains(folded) || key(wanted.album.artist).contains(folded);
}

Result<Vinyl> gotIt(Store &store, qint64 wantedRowId, std::optional<float> cost)
{
    Vinyl record;
    const auto moved = store.transaction([&]() -> Result<void> {
        auto wanted = WantedAlbums::byRowId(store, wantedRowId, true);
        if (!wanted)
            return wanted.error();
        if (!*wanted)
            return Error{kGone};
        auto tracks = WantedAlbums::tracks(store, wantedRowId);
        if (!tracks)
            return tracks.error();
        const auto id = newRecordId(store);
        if (!id)
            return id.error();
        record = (*wanted)->album;
        record.rowId = 0;
        record.id = id.value();
        record.cost = cost;
        record.imagesLoaded = true;
        if (auto r = store.insert(record); !r)
            return r;
        for (Track track : *tracks) {
            track.rowId = 0;
            track.vinylID = record.id;
            if (auto r = store.insert(track); !r)
                return r;
        }
        if (auto r = ValueHistory::noteSave(store, record, std::nullopt, QuoteSources::Edit); !r)
            return r;
        return WantedAlbums::remove(store, wantedRowId);
    });
    if (!moved)
        return moved.error();
    return record;
}

Result<QList<WantedAlbum>> matching(const Store &store, const Vinyl &record)
{
    auto all = WantedAlbums::all(store);
    if (!all)
        return all.error();
    const QString releaseId = text(record.musicBrainzReleaseId);
    const QString name = key(record.name);
    const QString artist = key(record.artist);
    QList<WantedAlbum> found;
    for (const WantedAlbum &wanted : *all) {
        const bool sameRelease = !releaseId.isEmpty() && text(wanted.album.musicBrainzReleaseId) == releaseId;
        const bool sameAlbum = !name.isEmpty() && key(wanted.album.name) == name && key(wanted.album.artist) == artist;
        if (sameRelease || sameAlbum)
            found.append(wanted);
    }
    return found;
}

} // namespace Wantlist
