#include "lookup/lookupfill.h"

#include "store/formatters.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

// A form field the look-up can fill: its caption on the form, where its text lives, and the text
// a looked-up record gives it.
struct FillableField
{
    QString caption;
    QString RecordFormFields::*text;
    std::function<QString(const Vinyl &)> fromRecord;
};

const QList<FillableField> &fillableFields()
{
    static const QList<FillableField> fields{
        {u"Album Name"_s, &RecordFormFields::name, [](const Vinyl &v) { return text(v.name); }},
        {u"Artist"_s, &RecordFormFields::artist, [](const Vinyl &v) { return text(v.artist); }},
        {u"Release Date"_s, &RecordFormFields::releaseDate,
         [](const Vinyl &v) { return v.releaseDate ? Formatters::mediumDate(*v.releaseDate) : QString(); }},
        {u"Record Label"_s, &RecordFormFields::recordLabel, [](const Vinyl &v) { return text(v.recordLabel); }},
        {u"Run Length (min)"_s, &RecordFormFields::recordLength,
         [](const Vinyl &v) { return v.albumDuration ? RecordForm::recordLengthText(*v.albumDuration) : QString(); }},
        {u"Producer"_s, &RecordFormFields::producer, [](const Vinyl &v) { return text(v.producer); }},
        {u"Barcode"_s, &RecordFormFields::barcode, [](const Vinyl &v) { return text(v.barcode); }},
        {u"Record Speed"_s, &RecordFormFields::recordSpeed, [](const Vinyl &v) { return text(v.recordSpeed); }},
        {u"Single/Double"_s, &RecordFormFields::doubleAlbum, [](const Vinyl &v) { return text(v.doubleAlbum); }},
        {u"Notes"_s, &RecordFormFields::notes, [](const Vinyl &v) { return text(v.notes); }},
    };
    return fields;
}

bool isEmptyField(const FillableField &field, const RecordFormFields &form)
{
    const QString shown = (form.*field.text).trimmed();
    if (field.text == &RecordFormFields::recordLength) {
        // The edit screen shows a record without a run length as 0.
        const auto minutes = RecordForm::parseRecordLength(shown);
        return shown.isEmpty() || (minutes && minutes.value() == 0);
    }
    return shown.isEmpty();
}

} // namespace

namespace LookupFill {

RecordFormFields newRecordForm(const RecordFormFields &form, const LookedUpRecord &found)
{
    RecordFormFields filled = form;
    for (const FillableField &field : fillableFields()) {
        if (field.text == &RecordFormFields::notes && !form.notes.trimmed().isEmpty())
            continue; // the collector's own notes win over the catalog number
        filled.*field.text = field.fromRecord(found.vinyl);
    }
    return filled;
}

EmptyFieldsFill emptyFields(const FormState &form, const LookedUpRecord &found)
{
    EmptyFieldsFill fill;
    fill.fields = form.fields;
    for (const FillableField &field : fillableFields()) {
        const QString text = field.fromRecord(found.vinyl);
        if (text.isEmpty() || !isEmptyField(field, form.fields))
            continue;
        fill.fields.*field.text = text;
        fill.changes.append({field.caption, text});
    }
    if (!form.hasTracks && !found.tracks.isEmpty()) {
        fill.tracks = true;
        fill.changes.append({kTracks, trackCountText(found.tracks.size())});
    }
    if (!form.hasFrontCover && found.vinyl.frontImage) {
        fill.frontCover = true;
        fill.changes.append({kFrontCover, kCoverFromArchive});
    }
    if (!form.hasBackCover && found.vinyl.backImage) {
        fill.backCover = true;
        fill.changes.append({kBackCover, kCoverFromArchive});
    }
    return fill;
}

QString trackCountText(qsizetype count)
{
    return count == 1 ? u"1 track"_s : u"%1 tracks"_s.arg(count);
}

} // namespace LookupFill
