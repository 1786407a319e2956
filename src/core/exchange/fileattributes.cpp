#include "exchange/fileattributes.h"

#include "store/formatters.h"
#include "store/wantedalbums.h"

#include <array>
#include <cfloat>
#include <cmath>

using namespace Qt::StringLiterals;

namespace FileAttributes {

const QList<RecordAttribute> &records()
{
    static const QList<RecordAttribute> table = {
        {u"id"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Record Number")), &Vinyl::id},
        {u"name"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Album Name")), &Vinyl::name},
        {u"artist"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Artist")), &Vinyl::artist},
        {u"releaseDate"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Release Date")), &Vinyl::releaseDate},
        {u"recordLabel"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Record Label")), &Vinyl::recordLabel},
        {u"quantity"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Quantity")), &Vinyl::quantity},
        {u"albumDuration"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Run Length (min)")), &Vinyl::albumDuration},
        {u"producer"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Producer")), &Vinyl::producer},
        {u"vinylCondition"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Vinyl Condition")), &Vinyl::vinylCondition},
        {u"coverCondition"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Cover Condition")), &Vinyl::coverCondition},
        {u"recordSpeed"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Record Speed")), &Vinyl::recordSpeed},
        {u"doubleAlbum"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Single/Double")), &Vinyl::doubleAlbum},
        {u"cost"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Cost")), &Vinyl::cost},
        {u"value"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Est. Value")), &Vinyl::value},
        {u"notes"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Notes")), &Vinyl::notes},
        // Last, so that a file written before they were kept reads as it always did.
        {u"barcode"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Barcode")), &Vinyl::barcode},
        {u"musicBrainzReleaseId"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "MusicBrainz Release ID")), &Vinyl::musicBrainzReleaseId},
    };
    return table;
}

const QList<TrackAttribute> &tracks()
{
    static const QList<TrackAttribute> table = {
        {u"vinylID"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Vinyl ID")), &Track::vinylID},
        {u"trackNumber"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Track #")), &Track::trackNumber},
        {u"song"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Song")), &Track::song},
        {u"duration"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Duration")), &Track::duration},
        {u"writtenBy"_s, QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Written By")), &Track::writtenBy},
    };
    return table;
}

template<typename Entity>
const FileAttribute<Entity> *find(const QList<FileAttribute<Entity>> &table, const QString &header)
{
    const QString wanted = header.trimmed();
    for (const FileAttribute<Entity> &attribute : table) {
        if (wanted.compare(attribute.name, Qt::CaseInsensitive) == 0 || wanted.compare(attribute.title, Qt::CaseInsensitive) == 0)
            return &attribute;
    }
    return nullptr;
}

namespace {

template<typename T>
QString plainText(const T &value)
{
    if constexpr (std::is_same_v<T, QString>)
        return value;
    else if constexpr (std::is_same_v<T, QDateTime>)
        return value.toLocalTime().date().toString(Qt::ISODate);
    else if constexpr (std::is_same_v<T, qint16>)
        return QString::number(value);
    else
        return Formatters::shortest(value);
}

// A number with a "." decimal point, or in the locale's own style.
std::optional<double> readNumber(const QString &text)
{
    bool ok = false;
    double number = text.trimmed().toDouble(&ok);
    if (!ok) {
        const auto local = Formatters::parseDecimal(text.trimmed());
        if (!local)
            return std::nullopt;
        number = *local;
    }
    return std::isnan(number) ? std::nullopt : std::optional<double>(number);
}

Error notA(const QString &title, const QString &text, const QString &what)
{
    return Error{u"%1 \"%2\" is not %3"_s.arg(title, excerpt(text), what)};
}

Error outOfRange(const QString &title, const QString &text)
{
    return Error{u"%1 \"%2\" is out of range"_s.arg(title, excerpt(text))};
}

} // namespace

template<typename Entity>
QString fileText(const FileAttribute<Entity> &attribute, const Entity &object)
{
    return std::visit([&](auto member) {
        const auto &value = object.*member;
        return value ? plainText(*value) : QString();
    }, attribute.member);
}

template<typename Entity>
QString shownText(const FileAttribute<Entity> &attribute, const Entity &object)
{
    return std::visit([&](auto member) -> QString {
        const auto &value = object.*member;
        if (!value)
            return u"(none)"_s;
        using T = std::decay_t<decltype(*value)>;
        if constexpr (std::is_same_v<T, QDateTime>)
            return Formatters::mediumDate(*value);
        else if constexpr (std::is_same_v<T, float>)
            return Formatters::twoDecimals(*value);
        else
            return plainText(*value);
    }, attribute.member);
}

template<typename Entity>
Result<void> read(const FileAttribute<Entity> &attribute, const QString &text, Entity &into)
{
    return std::visit([&](auto member) -> Result<void> {
        auto &value = into.*member;
        using T = std::decay_t<decltype(*value)>;
        if constexpr (std::is_same_v<T, QString>) {
            value = text;
        } else if constexpr (std::is_same_v<T, QDateTime>) {
            const QString trimmed = text.trimmed();
            auto date = parseIsoDate(trimmed);
            // The medium style only as it is written: its parser would take "31.02.1975" too.
            if (const auto local = date ? std::nullopt : Formatters::parseMediumDate(trimmed);
                local && Formatters::mediumDate(*local) == trimmed)
                date = local;
            if (!date)
                return notA(attribute.title, text, u"a date"_s);
            value = date;
        } else {
            const auto number = readNumber(text);
            if (!number)
                return notA(attribute.title, text, u"a number"_s);
            if constexpr (std::is_same_v<T, qint16>) {
                if (*number != std::trunc(*number))
                    return notA(attribute.title, text, u"a whole number"_s);
                if (*number < -32768 || *number > 32767)
                    return outOfRange(attribute.title, text);
                value = qint16(*number);
            } else if constexpr (std::is_same_v<T, float>) {
                if (!std::isfinite(*number) || std::fabs(*number) > FLT_MAX)
                    return outOfRange(attribute.title, text);
                value = float(*number);
            } else {
                if (!std::isfinite(*number))
                    return outOfRange(attribute.title, text);
                value = *number;
            }
        }
        return {};
    }, attribute.member);
}

template<typename Entity>
bool has(const FileAttribute<Entity> &attribute, const Entity &object)
{
    return std::visit([&](auto member) { return (object.*member).has_value(); }, attribute.member);
}

template<typename Entity>
bool same(const FileAttribute<Entity> &attribute, const Entity &a, const Entity &b)
{
    return std::visit([&](auto member) { return a.*member == b.*member; }, attribute.member);
}

template<typename Entity>
void copy(const FileAttribute<Entity> &attribute, const Entity &from, Entity &to)
{
    std::visit([&](auto member) { to.*member = from.*member; }, attribute.member);
}

template<typename Entity>
void clear(const FileAttribute<Entity> &attribute, Entity &object)
{
    std::visit([&](auto member) { (object.*member).reset(); }, attribute.member);
}

namespace {

// The year, month and day of "1975", "1975-3" or "1975-03-21" (an absent or zero month or day
// is the first), or nothing when the text is not of that form. Read by hand: an import reads a
// date on every line, and a regular expression took a tenth of a Discogs preview.
std::optional<std::array<int, 3>> yearMonthDay(QStringView text)
{
    const QList<QStringView> parts = text.split(u'-');
    if (parts.size() > 3 || parts.at(0).size() != 4)
        return std::nullopt;
    std::array<int, 3> numbers{0, 1, 1};
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const QStringView part = parts.at(i);
        if (part.isEmpty() || (i > 0 && part.size() > 2))
            return std::nullopt;
        int n = 0;
        for (const QChar c : part) {
            if (c < u'0' || c > u'9')
                return std::nullopt;
            n = n * 10 + (c.unicode() - u'0');
        }
        numbers[i] = i == 0 ? n : std::max(1, n);
    }
    return numbers;
}

} // namespace

std::optional<QDateTime> parseIsoDate(const QString &text)
{
    const auto parts = yearMonthDay(text);
    if (!parts) {
        const QDateTime dateTime = QDateTime::fromString(text, Qt::ISODate);
        return dateTime.isValid() ? std::optional<QDateTime>(dateTime.toLocalTime()) : std::nullopt;
    }
    const auto [year, month, day] = *parts;
    const QDate date(year, month, day);
    if (!date.isValid() || year == 0)
        return std::nullopt;
    return QDateTime(date, QTime(0, 0));
}

bool isIsoDate(const QString &text)
{
    if (const auto parts = yearMonthDay(text)) {
        const auto [year, month, day] = *parts;
        return year != 0 && QDate(year, month, day).isValid();
    }
    return QDateTime::fromString(text, Qt::ISODate).isValid();
}

#define PB_FILE_ATTRIBUTE_FUNCTIONS(Entity)                                                                          \
    template const FileAttribute<Entity> *find(const QList<FileAttribute<Entity>> &, const QString &);              \
    template QString fileText(const FileAttribute<Entity> &, const Entity &);                                        \
    template QString shownText(const FileAttribute<Entity> &, const Entity &);                                       \
    template Result<void> read(const FileAttribute<Entity> &, const QString &, Entity &);                            \
    template bool has(const FileAttribute<Entity> &, const Entity &);                                                \
    template bool same(const FileAttribute<Entity> &, const Entity &, const Entity &);                               \
    template void copy(const FileAttribute<Entity> &, const Entity &, Entity &);                                     \
    template void clear(const FileAttribute<Entity> &, Entity &);
PB_FILE_ATTRIBUTE_FUNCTIONS(Vinyl)
PB_FILE_ATTRIBUTE_FUNCTIONS(Track)
// The most the collector would pay for a wanted album reads and writes as a record's amounts do.
PB_FILE_ATTRIBUTE_FUNCTIONS(WantedAlbum)
#undef PB_FILE_ATTRIBUTE_FUNCTIONS

QString excerpt(const QString &text)
{
    return text.size() <= kExcerptLength ? text : text.first(kExcerptLength - 1) + u'\u2026';
}

} // namespace FileAttributes
