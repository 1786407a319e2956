#pragma once

#include "lookup/lookupanswers.h"
#include "store/result.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <functional>

class QNetworkAccessManager;
class QNetworkReply;

// Looks a record up in the MusicBrainz catalogue and fetches its covers from the Cover Art
// Archive, asynchronously on the thread that owns the client.
//
// One look-up at a time per client: each call starts a look-up and ends with exactly one of
// candidatesFound(), releaseFetched(), coversFetched() or failed(), then finished(); a call
// made while a look-up runs cancels that one first. The outcome always arrives later, from the
// event loop, never inside the call. Nothing is sent before a look-up is asked for.
//
// These are other people's services, used by their rules: every request names Platterbox, its
// version and a contact in its User-Agent; all clients of the program together send at most one
// request a second to MusicBrainz; a "503 slow down" is waited out (its Retry-After, else a
// second) and retried up to three times. Answers are untrusted: at most 4 MB of JSON and 20 MB
// of picture are read, and pictures are decoded with an allocation limit, off this thread.
//
// The addresses come from PLATTERBOX_MUSICBRAINZ_URL (default https://musicbrainz.org/ws/2/)
// and PLATTERBOX_COVERART_URL (default https://coverartarchive.org/), read when the client is
// made; tests point them at a server on 127.0.0.1.
//
// A caller without an event loop of its own, such as the command line, starts a look-up and
// spins a QEventLoop until finished(); the ...AndWait() functions below do exactly that and
// return the outcome as a Result. They must not be used on the UI thread.
class LookupClient : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds kDefaultTimeout{15000};

    explicit LookupClient(QObject *parent = nullptr);
    ~LookupClient() override;

    // Releases with this barcode. Spaces and hyphens are ignored. A 12-digit UPC-A is also
    // asked for in its 13-digit form (a leading 0), and a 13-digit code starting with 0 in its
    // 12-digit form: readers report one, the catalogue often stores the other.
    void searchBarcode(const QString &barcode);
    // Releases matching "Artist - Title"; a text without " - " is a release title or a catalog
    // number.
    void searchText(const QString &text);
    // The release with its artist credit, label, producers and every track (a candidate's
    // releaseId).
    void fetchRelease(const QString &releaseId);
    // The release's front and back covers (500 pixels); a side the archive lacks stays null.
    void fetchCovers(const QString &releaseId);
    // The release's small front cover (250 pixels), for a list of candidates: coversFetched()
    // with only the front, null when the archive has none.
    void fetchFrontThumbnail(const QString &releaseId);
    // Stops the running look-up: no outcome signal follows, only finished().
    void cancel();

    [[nodiscard]] bool isBusy() const { return m_busy; }
    // How long one request may take before the look-up fails; 15 seconds unless set.
    void setTimeout(std::chrono::milliseconds timeout) { m_timeout = timeout; }
    [[nodiscard]] std::chrono::milliseconds timeout() const { return m_timeout; }

    // "Platterbox/1.0 ( support@platterbox.example.com )", sent with every request.
    [[nodiscard]] static QByteArray userAgent();

signals:
    void candidatesFound(const QList<LookupCandidate> &candidates);
    void releaseFetched(const LookupRelease &release);
    void coversFetched(const LookupCovers &covers);
    // Why the look-up gave nothing, in words fit for an alert (LookupTexts).
    void failed(const QString &message);
    // After every outcome signal, and after cancel().
    void finished();

private:
    enum class Service { MusicBrainz, CoverArtArchive };
    // An HTTP answer the look-up reads: a success, or 404 (which means "none" for covers).
    struct Answer
    {
        int status = 0;
        QByteArray body;
    };
    using AnswerHandler = std::function<void(const Answer &)>;
    // An outcome computed off this thread, emitted here.
    using Outcome = std::function<void()>;
    enum class Abort { None, TooLarge, TimedOut };

    bool begin();
    void searchReleases(const Result<QString> &query);
    void get(Service service, const QUrl &url, AnswerHandler onAnswer);
    void sendWhenAllowed();
    void transmit();
    void readChunk();
    void checkDeclaredSize();
    void timeOut();
    void replyFinished();
    void retryLater(std::chrono::milliseconds wait);
    void fetchCover(const QString &releaseId, const QString &side, std::function<void(QByteArray)> then);
    void decodeCovers(const QByteArray &front, const QByteArray &back);
    void finishOffThread(std::function<Outcome()> work);
    void conclude(const Outcome &emitOutcome);
    void fail(const QString &message);
    void failSoon(const QString &message);
    void dropReply();
    [[nodiscard]] QString serviceName() const;
    [[nodiscard]] qint64 sizeCap() const;

    QNetworkAccessManager *m_manager = nullptr;
    QPointer<QNetworkReply> m_reply;
    QTimer m_sendTimer;
    QTimer m_timeoutTimer;
    std::chrono::milliseconds m_timeout = kDefaultTimeout;
    QUrl m_musicBrainzBase;
    QUrl m_coverArtBase;
    QString m_addressProblem;

    // The request of the running look-up.
    Service m_service = Service::MusicBrainz;
    QUrl m_url;
    int m_attempt = 0;
    std::chrono::steady_clock::time_point m_sendAt;
    AnswerHandler m_onAnswer;
    QByteArray m_body;
    Abort m_abort = Abort::None;

    bool m_busy = false;
    quint64 m_generation = 0; // outcomes of an earlier, cancelled look-up are dropped
};

// For callers without an event loop (the command line): start the look-up and wait for its end.
[[nodiscard]] Result<QList<LookupCandidate>> searchBarcodeAndWait(LookupClient &client, const QString &barcode);
[[nodiscard]] Result<QList<LookupCandidate>> searchTextAndWait(LookupClient &client, const QString &text);
[[nodiscard]] Result<LookupRelease> fetchReleaseAndWait(LookupClient &client, const QString &releaseId);
[[nodiscard]] Result<LookupCovers> fetchCoversAndWait(LookupClient &client, const QString &releaseId);
