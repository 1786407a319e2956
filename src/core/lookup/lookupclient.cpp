#include "lookup/lookupclient.h"

#include "lookup/lookuptexts.h"
#include "store/appconfig.h"
#include "store/translations.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFutureWatcher>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QUuid>
#include <QtConcurrent>

#include <algorithm>
#include <mutex>
#include <optional>
#include <tuple>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono;

namespace {

const QString kDefaultMusicBrainz = u"https://musicbrainz.org/ws/2/"_s;
const QString kDefaultCoverArt = u"https://coverartarchive.org/"_s;
const QString kReleaseIncludes = u"artist-credits+labels+recordings+release-groups+artist-rels"_s;

// MusicBrainz asks every program for at most one request a second.
constexpr milliseconds kMusicBrainzInterval{1000};
// A "503 slow down" is retried this many times; a wait asked for beyond the longest is not waited.
constexpr int kMaxRetries = 3;
constexpr seconds kDefaultRetryWait{1};
constexpr seconds kLongestRetryWait{10};
constexpr int kMaxRedirects = 5;

// When the next request to MusicBrainz may leave, shared by every client of the program (and
// every thread), so two screens looking up at once still keep to the pace.
struct Pacing
{
    std::mutex mutex;
    steady_clock::time_point nextSlot;
};

Pacing &pacing()
{
    static Pacing shared;
    return shared;
}

// Takes the next free slot and returns when it is.
steady_clock::time_point reserveMusicBrainzSlot()
{
    Pacing &p = pacing();
    const std::lock_guard lock(p.mutex);
    const auto slot = std::max(steady_clock::now(), p.nextSlot);
    p.nextSlot = slot + kMusicBrainzInterval;
    return slot;
}

void holdOffMusicBrainz(milliseconds wait)
{
    Pacing &p = pacing();
    const std::lock_guard lock(p.mutex);
    p.nextSlot = std::max(p.nextSlot, steady_clock::now() + wait);
}

struct ServiceAddress
{
    QUrl url;
    QString problem;
};

ServiceAddress serviceAddress(const char *variable, const QString &fallback)
{
    QString text = qEnvironmentVariable(variable);
    if (text.isEmpty())
        text = fallback;
    QUrl url(text, QUrl::StrictMode);
    if (!url.isValid() || url.host().isEmpty() || (url.scheme() != "http"_L1 && url.scheme() != "https"_L1))
        return {QUrl(fallback), translated(LookupTexts::kBadServiceAddress).arg(QString::fromLatin1(variable), text)};
    // Paths are resolved against the base, which only keeps its last segment with a slash.
    if (!url.path().endsWith(u'/'))
        url.setPath(url.path() + u'/');
    return {url, {}};
}

// The Lucene query of a barcode search, or why the text is no barcode.
Result<QString> barcodeQuery(const QString &barcode)
{
    static const QRegularExpression separators(u"[\\s-]"_s);
    static const QRegularExpression digitsOnly(u"^[0-9]{6,14}$"_s);
    const QString digits = QString(barcode).remove(separators);
    if (!digitsOnly.match(digits).hasMatch())
        return Error{translated(LookupTexts::kNotABarcode).arg(barcode.trimmed())};
    QStringList codes{digits};
    if (digits.size() == 12)
        codes << u'0' + digits;
    else if (digits.size() == 13 && digits.startsWith(u'0'))
        codes << digits.mid(1);
    return QString(u"barcode:"_s + codes.join(u" OR barcode:"_s));
}

// A quoted phrase: inside quotes only the quote and the backslash mean anything to Lucene.
QString phrase(QString text)
{
    text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    return u'"' + text + u'"';
}

Result<QString> textQuery(const QString &input)
{
    const QString text = input.simplified();
    if (text.isEmpty())
        return Error{LookupTexts::kEmptySearch};
    const qsizetype dash = text.indexOf(" - "_L1);
    if (dash > 0 && dash + 3 < text.size())
        return QString(u"artist:"_s + phrase(text.left(dash)) + u" AND release:"_s + phrase(text.mid(dash + 3)));
    return QString(u"release:"_s + phrase(text) + u" OR catno:"_s + phrase(text));
}

bool isReleaseId(const QString &id)
{
    return id.size() == 36 && !QUuid::fromString(id).isNull();
}

} // namespace

LookupClient::LookupClient(QObject *parent) : QObject(parent)
{
    const ServiceAddress musicBrainz = serviceAddress("PLATTERBOX_MUSICBRAINZ_URL", kDefaultMusicBrainz);
    const ServiceAddress coverArt = serviceAddress("PLATTERBOX_COVERART_URL", kDefaultCoverArt);
    m_musicBrainzBase = musicBrainz.url;
    m_coverArtBase = coverArt.url;
    m_addressProblem = !musicBrainz.problem.isEmpty() ? musicBrainz.problem : coverArt.problem;

    m_sendTimer.setSingleShot(true);
    m_sendTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_sendTimer, &QTimer::timeout, this, &LookupClient::sendWhenAllowed);
    m_timeoutTimer.setSingleShot(true);
    connect(&m_timeoutTimer, &QTimer::timeout, this, &LookupClient::timeOut);
}

LookupClient::~LookupClient()
{
    dropReply();
}

QByteArray LookupClient::userAgent()
{
    QString version = QCoreApplication::applicationVersion();
    if (version.isEmpty())
        version = QStringLiteral(PLATTERBOX_VERSION);
    return u"Platterbox/%1 ( %2 )"_s.arg(version, AppConfig::lookupContact).toUtf8();
}

void LookupClient::searchBarcode(const QString &barcode)
{
    if (begin())
        searchReleases(barcodeQuery(barcode));
}

void LookupClient::searchText(const QString &text)
{
    if (begin())
        searchReleases(textQuery(text));
}

void LookupClient::searchReleases(const Result<QString> &query)
{
    if (!query)
        return failSoon(query.errorMessage());
    QUrl url = m_musicBrainzBase.resolved(QUrl(u"release/"_s));
    // Encoded in full: a "+" or "&" the collector typed is part of the query, not a separator.
    url.setQuery(u"query="_s + QString::fromLatin1(QUrl::toPercentEncoding(*query)) + u"&fmt=json"_s, QUrl::StrictMode);
    get(Service::MusicBrainz, url, [this](const Answer &answer) {
        if (answer.status == 404)
            return fail(translated(LookupTexts::kErrorStatus).arg(serviceName()).arg(answer.status));
        finishOffThread([this, body = answer.body]() -> Outcome {
            auto rows = LookupAnswers::candidatesFromSearch(body);
            if (!rows)
                return [this, message = rows.errorMessage()] { emit failed(message); };
            return [this, rows = *std::move(rows)] { emit candidatesFound(rows); };
        });
    });
}

void LookupClient::fetchRelease(const QString &releaseId)
{
    if (!begin())
        return;
    if (!isReleaseId(releaseId))
        return failSoon(translated(LookupTexts::kNotAReleaseId).arg(releaseId));
    QUrl url = m_musicBrainzBase.resolved(QUrl(u"release/"_s + releaseId.toLower()));
    url.setQuery(u"inc="_s + kReleaseIncludes + u"&fmt=json"_s, QUrl::StrictMode);
    get(Service::MusicBrainz, url, [this, releaseId](const Answer &answer) {
        if (answer.status == 404)
            return fail(translated(LookupTexts::kNoSuchRelease).arg(releaseId));
        finishOffThread([this, body = answer.body]() -> Outcome {
            auto release = LookupAnswers::releaseFromLookup(body);
            if (!release)
                return [this, message = release.errorMessage()] { emit failed(message); };
            return [this, release = *std::move(release)] { emit releaseFetched(release); };
        });
    });
}

void LookupClient::fetchCovers(const QString &releaseId)
{
    if (!begin())
        return;
    if (!isReleaseId(releaseId))
        return failSoon(translated(LookupTexts::kNotAReleaseId).arg(releaseId));
    const QString id = releaseId.toLower();
    fetchCover(id, u"front-500"_s, [this, id](QByteArray front) {
        fetchCover(id, u"back-500"_s, [this, front](QByteArray back) { decodeCovers(front, back); });
    });
}

void LookupClient::fetchFrontThumbnail(const QString &releaseId)
{
    if (!begin())
        return;
    if (!isReleaseId(releaseId))
        return failSoon(translated(LookupTexts::kNotAReleaseId).arg(releaseId));
    fetchCover(releaseId.toLower(), u"front-250"_s, [this](QByteArray front) { decodeCovers(front, QByteArray()); });
}

void LookupClient::decodeCovers(const QByteArray &front, const QByteArray &back)
{
    finishOffThread([this, front, back]() -> Outcome {
        LookupCovers covers;
        for (const auto &[bytes, image, side] : {std::tuple(front, &covers.front, LookupTexts::kFront),
                                                 std::tuple(back, &covers.back, LookupTexts::kBack)}) {
            if (bytes.isNull())
                continue;
            auto decoded = LookupAnswers::coverFromBytes(bytes, side);
            if (!decoded)
                return [this, message = decoded.errorMessage()] { emit failed(message); };
            *image = *std::move(decoded);
        }
        return [this, covers] { emit coversFetched(covers); };
    });
}

// A missing cover is no error: the archive answers 404 and the side stays empty (a null array).
void LookupClient::fetchCover(const QString &releaseId, const QString &side, std::function<void(QByteArray)> then)
{
    const QUrl url = m_coverArtBase.resolved(QUrl(u"release/%1/%2"_s.arg(releaseId, side)));
    get(Service::CoverArtArchive, url, [then = std::move(then)](const Answer &answer) {
        then(answer.status == 404 ? QByteArray() : answer.body);
    });
}

void LookupClient::cancel()
{
    if (!m_busy)
        return;
    ++m_generation;
    dropReply();
    m_busy = false;
    emit finished();
}

bool LookupClient::begin()
{
    cancel();
    m_busy = true;
    if (m_addressProblem.isEmpty())
        return true;
    failSoon(m_addressProblem);
    return false;
}

void LookupClient::get(Service service, const QUrl &url, AnswerHandler onAnswer)
{
    m_service = service;
    m_url = url;
    m_attempt = 0;
    m_onAnswer = std::move(onAnswer);
    retryLater(milliseconds(0));
}

// Waits for the request's turn: MusicBrainz requests keep the shared pace, others go at once.
void LookupClient::retryLater(milliseconds wait)
{
    if (m_service == Service::MusicBrainz) {
        holdOffMusicBrainz(wait);
        m_sendAt = reserveMusicBrainzSlot();
    } else {
        m_sendAt = steady_clock::now() + wait;
    }
    sendWhenAllowed();
}

void LookupClient::sendWhenAllowed()
{
    const auto early = ceil<milliseconds>(m_sendAt - steady_clock::now());
    if (early > milliseconds(0))
        return m_sendTimer.start(early);
    transmit();
}

void LookupClient::transmit()
{
    if (!m_manager)
        m_manager = new QNetworkAccessManager(this);
    QNetworkRequest request(m_url);
    request.setHeader(QNetworkRequest::UserAgentHeader, userAgent());
    if (m_service == Service::MusicBrainz)
        request.setRawHeader("Accept", "application/json");
    // The archive answers with a redirect to where the picture is kept.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(kMaxRedirects);

    m_body.clear();
    m_abort = Abort::None;
    m_reply = m_manager->get(request);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &LookupClient::checkDeclaredSize);
    connect(m_reply, &QNetworkReply::readyRead, this, &LookupClient::readChunk);
    connect(m_reply, &QNetworkReply::finished, this, &LookupClient::replyFinished);
    m_timeoutTimer.start(m_timeout);
}

qint64 LookupClient::sizeCap() const
{
    return m_service == Service::MusicBrainz ? LookupAnswers::kMaxJsonBytes : LookupAnswers::kMaxImageBytes;
}

void LookupClient::checkDeclaredSize()
{
    const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
    if (length.isValid() && length.toLongLong() > sizeCap()) {
        m_abort = Abort::TooLarge;
        m_reply->abort();
    }
}

// Read as it comes, so an endless answer is stopped at the cap rather than held in memory.
void LookupClient::readChunk()
{
    m_body += m_reply->readAll();
    if (m_body.size() > sizeCap()) {
        m_abort = Abort::TooLarge;
        m_reply->abort();
    }
}

void LookupClient::timeOut()
{
    if (!m_reply)
        return;
    m_abort = Abort::TimedOut;
    m_reply->abort();
}

void LookupClient::replyFinished()
{
    QNetworkReply *reply = m_reply;
    m_reply = nullptr;
    m_timeoutTimer.stop();
    reply->deleteLater();
    const QString service = serviceName();

    if (m_abort == Abort::TooLarge)
        return fail(translated(LookupTexts::kTooLarge).arg(service).arg(sizeCap() / (1024 * 1024)));
    if (m_abort == Abort::TimedOut)
        return fail(translated(LookupTexts::kTimedOut).arg(service, QString::number(double(m_timeout.count()) / 1000.0)));

    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == 503) {
        bool hasWait = false;
        const seconds asked(reply->rawHeader("Retry-After").trimmed().toInt(&hasWait));
        const seconds wait = hasWait && asked >= seconds(0) ? asked : kDefaultRetryWait;
        if (m_attempt >= kMaxRetries || wait > kLongestRetryWait)
            return fail(translated(LookupTexts::kBusy).arg(service).arg(m_attempt + 1));
        ++m_attempt;
        return retryLater(wait);
    }
    const bool success = status >= 200 && status < 300;
    // No HTTP answer at all, or one that broke off.
    if (status == 0 || (success && reply->error() != QNetworkReply::NoError))
        return fail(translated(LookupTexts::kUnreachable).arg(service, reply->errorString()));
    if (!success && status != 404)
        return fail(translated(LookupTexts::kErrorStatus).arg(service).arg(status));

    m_body += reply->readAll();
    if (m_body.size() > sizeCap())
        return fail(translated(LookupTexts::kTooLarge).arg(service).arg(sizeCap() / (1024 * 1024)));
    const AnswerHandler onAnswer = std::move(m_onAnswer);
    m_onAnswer = nullptr;
    onAnswer(Answer{status, std::exchange(m_body, {})});
}

// Reading an answer and decoding pictures takes a while on large answers: never on this thread.
// The watcher goes with the client, so a client deleted meanwhile is not called back.
void LookupClient::finishOffThread(std::function<Outcome()> work)
{
    auto *watcher = new QFutureWatcher<Outcome>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, generation = m_generation] {
        watcher->deleteLater();
        if (generation == m_generation && m_busy)
            conclude(watcher->result());
    });
    watcher->setFuture(QtConcurrent::run(std::move(work)));
}

void LookupClient::conclude(const Outcome &emitOutcome)
{
    ++m_generation;
    m_busy = false;
    emitOutcome();
    emit finished();
}

void LookupClient::fail(const QString &message)
{
    dropReply();
    conclude([this, message] { emit failed(message); });
}

void LookupClient::failSoon(const QString &message)
{
    QTimer::singleShot(0, this, [this, message, generation = m_generation] {
        if (generation == m_generation && m_busy)
            fail(message);
    });
}

void LookupClient::dropReply()
{
    m_sendTimer.stop();
    m_timeoutTimer.stop();
    m_onAnswer = nullptr;
    if (QNetworkReply *reply = m_reply) {
        m_reply = nullptr;
        disconnect(reply, nullptr, this, nullptr);
        reply->abort();
        reply->deleteLater();
    }
}

QString LookupClient::serviceName() const
{
    return m_service == Service::MusicBrainz ? LookupTexts::kMusicBrainz : LookupTexts::kCoverArtArchive;
}

namespace {

// Starts a look-up and spins a local event loop until the client says it has finished.
template<typename T>
Result<T> waitFor(LookupClient &client, void (LookupClient::*succeeded)(const T &), const std::function<void()> &start)
{
    std::optional<Result<T>> outcome;
    QEventLoop loop;
    QObject::connect(&client, succeeded, &loop, [&outcome](const T &value) { outcome.emplace(value); });
    QObject::connect(&client, &LookupClient::failed, &loop,
                     [&outcome](const QString &message) { outcome.emplace(Error{message}); });
    QObject::connect(&client, &LookupClient::finished, &loop, &QEventLoop::quit);
    start();
    if (client.isBusy())
        loop.exec();
    return outcome ? *std::move(outcome) : Result<T>(Error{LookupTexts::kCancelled});
}

} // namespace

Result<QList<LookupCandidate>> searchBarcodeAndWait(LookupClient &client, const QString &barcode)
{
    return waitFor(client, &LookupClient::candidatesFound, [&] { client.searchBarcode(barcode); });
}

Result<QList<LookupCandidate>> searchTextAndWait(LookupClient &client, const QString &text)
{
    return waitFor(client, &LookupClient::candidatesFound, [&] { client.searchText(text); });
}

Result<LookupRelease> fetchReleaseAndWait(LookupClient &client, const QString &releaseId)
{
    return waitFor(client, &LookupClient::releaseFetched, [&] { client.fetchRelease(releaseId); });
}

Result<LookupCovers> fetchCoversAndWait(LookupClient &client, const QString &releaseId)
{
    return waitFor(client, &LookupClient::coversFetched, [&] { client.fetchCovers(releaseId); });
}
