#include "lookup/lookupanswers.h"

#include "collection/recordform.h"
#include "lookup/lookuptexts.h"
#include "store/translations.h"

#include <QBuffer>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace LookupAnswers {

namespace {

Result<QJsonObject> rootObject(const QByteArray &json, const QString &notThatAnswer)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError)
        return Error{translated(LookupTexts::kNotJson).arg(parseError.errorString())};
    if (!document.isObject())
        return Error{notThatAnswer};
    return document.object();
}

// Names joined with their join phrases: "Ana Ström", " & ", "The Quiet". A credit may name the
// artist differently from the artist's own name; the credited name is what the sleeve says.
QString artistCredit(const QJsonArray &credits)
{
    QString text;
    for (const QJsonValue &value : credits) {
        const QJsonObject credit = value.toObject();
        QString name = credit.value("name"_L1).toString();
        if (name.isEmpty())
            name = credit.value("artist"_L1).toObject().value("name"_L1).toString();
        text += name + credit.value("joinphrase"_L1).toString();
    }
    return text.trimmed();
}

// Runs of equal formats, counted: two 12" discs and a 7" read `2×12" Vinyl + 7" Vinyl`.
QString formatText(const QJsonArray &media)
{
    QList<std::pair<QString, int>> runs;
    for (const QJsonValue &medium : media) {
        const QString format = medium.toObject().value("format"_L1).toString();
        if (format.isEmpty())
            continue;
        if (!runs.isEmpty() && runs.last().first == format)
            ++runs.last().second;
        else
            runs.append({format, 1});
    }
    QStringList parts;
    for (const auto &[format, count] : runs)
        parts << (count > 1 ? u"%1×%2"_s.arg(count).arg(format) : format);
    return parts.join(u" + "_s);
}

int trackCount(const QJsonObject &release)
{
    // Search answers count the tracks of the release; look-up answers count them per medium.
    if (release.value("track-count"_L1).isDouble())
        return release.value("track-count"_L1).toInt();
    int count = 0;
    for (const QJsonValue &medium : release.value("media"_L1).toArray())
        count += medium.toObject().value("track-count"_L1).toInt();
    return count;
}

LookupCandidate candidate(const QJsonObject &release)
{
    const QJsonArray labelInfos = release.value("label-info"_L1).toArray();
    const QJsonObject labelInfo = labelInfos.isEmpty() ? QJsonObject() : labelInfos.first().toObject();
    LookupCandidate row;
    row.releaseId = release.value("id"_L1).toString();
    row.title = release.value("title"_L1).toString();
    row.artist = artistCredit(release.value("artist-credit"_L1).toArray());
    row.label = labelInfo.value("label"_L1).toObject().value("name"_L1).toString();
    row.catalogNumber = labelInfo.value("catalog-number"_L1).toString();
    row.date = release.value("date"_L1).toString();
    row.country = release.value("country"_L1).toString();
    row.format = formatText(release.value("media"_L1).toArray());
    row.trackCount = trackCount(release);
    row.barcode = release.value("barcode"_L1).toString();
    row.score = release.value("score"_L1).toInt();
    return row;
}

bool isVinyl(const QString &format)
{
    return format.contains("Vinyl"_L1);
}

// Two vinyl discs make a double album, three a triple, four a quad; anything else one album.
QString albumType(const QJsonArray &media)
{
    qsizetype vinylCount = 0;
    for (const QJsonValue &medium : media)
        vinylCount += isVinyl(medium.toObject().value("format"_L1).toString()) ? 1 : 0;
    const QStringList &types = RecordForm::kSingleDouble;
    return vinylCount >= 2 && vinylCount <= types.size() ? types.at(vinylCount - 1) : types.first();
}

// The first vinyl disc sets the speed: a 12" plays at 33, a 7" at 45; other sizes are not guessed.
QString recordSpeed(const QJsonArray &media)
{
    for (const QJsonValue &medium : media) {
        const QString format = medium.toObject().value("format"_L1).toString();
        if (!isVinyl(format))
            continue;
        if (format.startsWith("12\""_L1))
            return RecordForm::kRecordSpeeds.at(0);
        if (format.startsWith("7\""_L1))
            return RecordForm::kRecordSpeeds.at(1);
        return {};
    }
    return {};
}

QString producers(const QJsonArray &relations)
{
    QStringList names;
    for (const QJsonValue &value : relations) {
        const QJsonObject relation = value.toObject();
        if (relation.value("type"_L1).toString() != "producer"_L1)
            continue;
        const QString name = relation.value("artist"_L1).toObject().value("name"_L1).toString();
        if (!name.isEmpty() && !names.contains(name))
            names << name;
    }
    return names.join(u", "_s);
}

QList<LookupTrack> tracks(const QJsonArray &media)
{
    QList<LookupTrack> all;
    int mediumNumber = 0;
    for (const QJsonValue &medium : media) {
        ++mediumNumber;
        for (const QJsonValue &value : medium.toObject().value("tracks"_L1).toArray()) {
            const QJsonObject track = value.toObject();
            LookupTrack row;
            row.title = track.value("title"_L1).toString();
            if (row.title.isEmpty())
                row.title = track.value("recording"_L1).toObject().value("title"_L1).toString();
            row.number = track.value("number"_L1).toString();
            row.position = int(all.size()) + 1;
            row.medium = mediumNumber;
            const QJsonValue length = track.value("length"_L1);
            if (length.isDouble() && length.toDouble() >= 0 && length.toDouble() < 1e10)
                row.lengthMs = qint64(length.toDouble());
            all.append(row);
        }
    }
    return all;
}

} // namespace

Result<QList<LookupCandidate>> candidatesFromSearch(const QByteArray &json)
{
    auto root = rootObject(json, LookupTexts::kNoReleaseList);
    if (!root)
        return root.error();
    const QJsonValue releases = root->value("releases"_L1);
    if (!releases.isArray())
        return Error{LookupTexts::kNoReleaseList};
    QList<LookupCandidate> rows;
    for (const QJsonValue &release : releases.toArray()) {
        LookupCandidate row = candidate(release.toObject());
        if (!row.releaseId.isEmpty())
            rows.append(std::move(row));
    }
    return rows;
}

Result<LookupRelease> releaseFromLookup(const QByteArray &json)
{
    auto root = rootObject(json, LookupTexts::kNoRelease);
    if (!root)
        return root.error();
    if (root->value("id"_L1).toString().isEmpty())
        return Error{LookupTexts::kNoRelease};
    const QJsonArray media = root->value("media"_L1).toArray();
    LookupRelease release;
    release.summary = candidate(*root);
    release.releaseDate = dateFromText(release.summary.date);
    release.producer = producers(root->value("relations"_L1).toArray());
    release.doubleAlbum = albumType(media);
    release.recordSpeed = recordSpeed(media);
    release.tracks = tracks(media);
    return release;
}

LookupDate dateFromText(const QString &text)
{
    static const QRegularExpression pattern(u"^(\\d{4})(?:-(\\d{2})(?:-(\\d{2}))?)?$"_s);
    const QRegularExpressionMatch match = pattern.match(text.trimmed());
    if (!match.hasMatch())
        return {};
    const bool hasMonth = match.hasCaptured(2);
    const bool hasDay = match.hasCaptured(3);
    const QDate day(match.captured(1).toInt(), hasMonth ? match.captured(2).toInt() : 1,
                    hasDay ? match.captured(3).toInt() : 1);
    if (!day.isValid())
        return {};
    using P = LookupDate::Precision;
    return {day, hasDay ? P::Day : hasMonth ? P::Month : P::Year};
}

Result<QImage> coverFromBytes(const QByteArray &bytes, const QString &side)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAllocationLimit(kImageAllocationLimitMb);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > kMaxCoverSide || size.height() > kMaxCoverSide)
        return Error{translated(LookupTexts::kPictureTooLarge).arg(side).arg(kMaxCoverSide)};
    const QImage image = reader.read();
    if (image.isNull())
        return Error{translated(LookupTexts::kNotAPicture).arg(side, reader.errorString())};
    return image;
}

} // namespace LookupAnswers
