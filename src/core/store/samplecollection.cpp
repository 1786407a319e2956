#include "store/samplecollection.h"

#include "store/recordnumbers.h"
#include "store/store.h"
#include "store/wantedalbums.h"

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QPainter>
#include <QStringList>

#include <cmath>
#include <random>

using namespace Qt::StringLiterals;

namespace {

const QStringList kAdjectives = {u"Electric"_s, u"Silent"_s, u"Golden"_s, u"Midnight"_s, u"Crimson"_s, u"Velvet"_s,
                                 u"Broken"_s, u"Endless"_s, u"Paper"_s, u"Neon"_s, u"Quiet"_s, u"Wild"_s,
                                 u"Blue"_s, u"Hollow"_s, u"Northern"_s, u"Distant"_s, u"Burning"_s, u"Lonely"_s,
                                 u"Cosmic"_s, u"Sunday"_s};
const QStringList kNouns = {u"Harbour"_s, u"Garden"_s, u"Highway"_s, u"Mirror"_s, u"Orchard"_s, u"Parade"_s,
                            u"Signal"_s, u"Tides"_s, u"Lanterns"_s, u"Engines"_s, u"Rivers"_s, u"Letters"_s,
                            u"Satellites"_s, u"Shadows"_s, u"Horizon"_s, u"Carnival"_s, u"Machines"_s, u"Echoes"_s,
                            u"Fields"_s, u"Dreams"_s};
const QStringList kFirstNames = {u"Ada"_s, u"Miles"_s, u"Nina"_s, u"Otis"_s, u"Joni"_s, u"Ray"_s, u"Etta"_s,
                                 u"Lou"_s, u"Patti"_s, u"Marvin"_s, u"Carole"_s, u"Iggy"_s, u"Aretha"_s, u"Van"_s};
const QStringList kLastNames = {u"Holloway"_s, u"Marsh"_s, u"Devereaux"_s, u"Quill"_s, u"Brennan"_s, u"Okafor"_s,
                                u"Lindqvist"_s, u"Moreau"_s, u"Sato"_s, u"Whitlock"_s, u"Castillo"_s, u"Novak"_s};
const QStringList kLabelWords = {u"Groove"_s, u"Spindle"_s, u"Oak"_s, u"Pylon"_s, u"Lantern"_s, u"Comet"_s,
                                 u"Harbor"_s, u"Stylus"_s, u"Monarch"_s, u"Fathom"_s};
const QStringList kLabelKinds = {u"Records"_s, u"Sound"_s, u"Music"_s, u"Recordings"_s};
const QStringList kGrades = {u"Mint"_s, u"Near Mint/Mint"_s, u"Near Mint"_s, u"Very Fine/Near Mint"_s,
                             u"Very Fine"_s, u"Fine"_s, u"Very Good/Fine"_s, u"Very Good"_s};
const QStringList kSpeeds = {u"33 RPM"_s, u"45 RPM"_s, u"78 RPM"_s};
const QStringList kAlbumTypes = {u"Single Album"_s, u"Double Album"_s};

class Picker
{
public:
    explicit Picker(quint32 seed) : m_engine(seed) {}
    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(m_engine); }
    const QString &from(const QStringList &list) { return list[below(int(list.size()))]; }
    double between(double lo, double hi) { return std::uniform_real_distribution<double>(lo, hi)(m_engine); }

private:
    std::mt19937 m_engine;
};

QString artistName(Picker &pick, int index)
{
    // Bands and solo artists; a fixed pool so that artists own several albums each.
    Picker local(quint32(index * 7919 + 17));
    if (index % 3 == 0)
        return local.from(kFirstNames) + u' ' + local.from(kLastNames);
    Q_UNUSED(pick);
    return u"The "_s + local.from(kAdjectives) + u' ' + local.from(kNouns);
}

QByteArray encodeJpeg(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 80);
    return bytes;
}

// One to three quotes between 2020 and 2024, ending at the record's value: bought near its
// cost, valued again later. Picked apart from the records so their attributes stay as they were.
Result<void> addSampleValueHistory(Store &store, const Vinyl &v, quint32 seed)
{
    Picker pick(seed);
    const int count = 1 + pick.below(3);
    QDate day = QDate(2020, 1, 1).addDays(pick.below(900));
    for (int n = 1; n <= count; ++n) {
        const bool last = n == count;
        const double value = last ? double(number(v.value)) : std::round(double(number(v.cost)) * pick.between(0.8, 1.6) * 2) / 2;
        Quote quote{0, v.rowId, QDateTime(day, QTime(12, 0)), value, n == 1 ? QuoteSources::Edit : QuoteSources::Valuation};
        if (auto r = store.insert(quote); !r)
            return r;
        day = day.addDays(30 + pick.below(300));
    }
    return {};
}

} // namespace

QByteArray sampleCoverJpeg(int variant, bool front)
{
    QImage image(100, 100, QImage::Format_RGB32);
    const QColor base = QColor::fromHsv((variant * 47) % 360, 150 + (variant % 5) * 20, 200);
    image.fill(front ? base : base.darker(160));
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    if (front) {
        p.setPen(Qt::NoPen);
        p.setBrush(base.lighter(140));
        p.drawEllipse(QPointF(30 + variant % 40, 35 + variant % 30), 24, 24);
        p.setBrush(QColor(20, 20, 20, 180));
        p.drawRect(0, 70, 100, 30);
        p.setPen(QPen(Qt::white, 2));
        for (int i = 0; i < 4; ++i)
            p.drawLine(8, 78 + i * 5, 40 + (variant * (i + 3)) % 50, 78 + i * 5);
    } else {
        p.setPen(QPen(base.lighter(180), 1));
        for (int i = 0; i < 12; ++i)
            p.drawLine(10, 10 + i * 7, 60 + (variant * (i + 1)) % 30, 10 + i * 7);
    }
    p.end();
    return encodeJpeg(image);
}

namespace {
// A few of the records are lent out from the given day on: the third since three weeks, due back
// in ten days after it was lent (so overdue), and back once before; the seventh since a week.
Result<void> addSampleLoans(Store &store, const Vinyl &v, int index, QDate today)
{
    if (!today.isValid())
        return {};
    QList<Loan> loans;
    if (index == 2) {
        loans << Loan{0, v.rowId, u"Sam Okafor"_s, today.addDays(-90), today.addDays(-76), today.addDays(-70), QString()}
              << Loan{0, v.rowId, u"Lena Brandt"_s, today.addDays(-21), today.addDays(-11), {}, u"With the inner sleeve"_s};
    } else if (index == 6) {
        loans << Loan{0, v.rowId, u"Sam Okafor"_s, today.addDays(-7), {}, {}, QString()};
    }
    for (Loan &loan : loans) {
        if (auto r = store.insert(loan); !r)
            return r;
    }
    return {};
}

// Albums sought, of every priority; the first listed has a cover and its tracks.
Result<void> addSampleWantlist(Store &store)
{
    struct Sought
    {
        QString name, artist, label;
        int year;
        qint16 priority;
        std::optional<float> maxPrice;
    };
    const QList<Sought> sought = {
        {u"Harbour Lights at Dusk"_s, u"The Velvet Orchard"_s, u"Ember Row"_s, 1971, 1, 45.0f},
        {u"Copper Skies"_s, u"Nina Quill"_s, u"Blue Heron"_s, 1968, 1, 120.0f},
        {u"Quiet Engines"_s, u"Jonah Reyes Trio"_s, QString(), 1979, 2, 25.0f},
        {u"Søndag Morgen"_s, u"Ines Dahl"_s, u"Nordlys"_s, 1983, 3, std::nullopt},
    };
    for (qsizetype i = 0; i < sought.size(); ++i) {
        const Sought &s = sought.at(i);
        WantedAlbum wanted;
        wanted.album.name = s.name;
        wanted.album.artist = s.artist;
        if (!s.label.isEmpty())
            wanted.album.recordLabel = s.label;
        wanted.album.releaseDate = QDateTime(QDate(s.year, 1, 1), QTime(0, 0));
        wanted.priority = s.priority;
        wanted.maxPrice = s.maxPrice;
        QList<Track> tracks;
        if (s.name == u"Copper Skies"_s) {
            wanted.album.frontImage = sampleCoverJpeg(5, true);
            for (qint16 n = 1; n <= 4; ++n)
                tracks.append(Track{0, 3.5 + n / 4.0, u"Lantern Song %1"_s.arg(n), n, std::nullopt, std::nullopt});
        }
        if (auto r = WantedAlbums::insert(store, wanted, tracks); !r)
            return r;
    }
    return {};
}
} // namespace

Result<void> addSampleCollection(Store &store, const SampleOptions &options)
{
    return store.transaction([&]() -> Result<void> {
        auto firstId = newRecordId(store);
        if (!firstId)
            return firstId.error();
        if (int(*firstId) + options.records - 1 > 32767)
            return Error{kNoRecordNumberLeft};

        // Covers are drawn once per variant and shared, so a large collection is quick to make.
        constexpr int kCoverVariants = 48;
        QList<QByteArray> fronts, backs;
        if (options.covers) {
            for (int i = 0; i < kCoverVariants; ++i) {
                fronts << sampleCoverJpeg(i, true);
                backs << sampleCoverJpeg(i, false);
            }
        }

        Picker pick(options.seed);
        const int artistCount = std::max(3, options.records / 6);
        const int labelCount = std::max(2, std::min(40, options.records / 10));
        const int producerCount = std::max(2, std::min(80, options.records / 5));
        for (int i = 0; i < options.records; ++i) {
            Vinyl v;
            v.id = qint16(*firstId + i);
            v.name = pick.from(kAdjectives) + u' ' + pick.from(kNouns);
            if (pick.below(4) == 0)
                v.name = *v.name + u' ' + QString::number(pick.below(9) + 2);
            v.artist = artistName(pick, pick.below(artistCount));
            const int label = pick.below(labelCount);
            v.recordLabel = kLabelWords[label % kLabelWords.size()] + u' ' + kLabelKinds[(label / 10) % kLabelKinds.size()];
            const int producer = pick.below(producerCount);
            v.producer = kFirstNames[producer % kFirstNames.size()] + u' ' + kLastNames[(producer / 7) % kLastNames.size()];
            v.releaseDate = QDateTime(QDate(1955 + pick.below(68), 1 + pick.below(12), 1 + pick.below(28)), QTime(0, 0));
            v.quantity = qint16(1 + (pick.below(10) == 0 ? pick.below(3) + 1 : 0));
            v.albumDuration = 28 + pick.below(60) + (pick.below(2) ? 0.5 : 0.0);
            v.vinylCondition = pick.from(kGrades);
            v.coverCondition = pick.from(kGrades);
            v.recordSpeed = pick.below(8) == 0 ? kSpeeds[1] : kSpeeds[0];
            v.doubleAlbum = pick.below(5) == 0 ? kAlbumTypes[1] : kAlbumTypes[0];
            v.cost = float(5 + pick.below(40)) + (pick.below(2) ? 0.5f : 0.99f);
            v.value = float(8 + pick.below(120)) + (pick.below(2) ? 0.0f : 0.5f);
            if (pick.below(3) == 0)
                v.notes = u"Bought at a record fair; inner sleeve included."_s;
            if (options.covers) {
                v.frontImage = fronts[i % kCoverVariants];
                v.backImage = backs[(i * 7) % kCoverVariants];
            }
            v.imagesLoaded = true;
            if (auto r = store.insert(v); !r)
                return r;
            if (auto r = addSampleValueHistory(store, v, options.seed + quint32(i)); !r)
                return r;
            for (int t = 1; t <= options.tracksPerRecord; ++t) {
                Track track;
                track.vinylID = v.id;
                track.trackNumber = qint16(t);
                track.song = pick.from(kAdjectives) + u' ' + pick.from(kNouns);
                track.writtenBy = pick.from(kFirstNames) + u' ' + pick.from(kLastNames);
                track.duration = double(2 + pick.below(6)) + pick.below(60) / 100.0;
                if (auto r = store.insert(track); !r)
                    return r;
            }
            if (auto r = addSampleLoans(store, v, i, options.loansFrom); !r)
                return r;
        }
        return options.wantlist ? addSampleWantlist(store) : Result<void>{};
    });
}
