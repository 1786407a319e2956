#pragma once

// A small HTTP/1.1 server on 127.0.0.1 standing in for MusicBrainz and the Cover Art Archive, for
// the look-up's tests: it serves answers the tests write themselves.
#include "store/textfile.h"

#include <QElapsedTimer>
#include <QHash>
#include <QHostAddress>
#include <QList>
#include <QMetaType>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <memory>

// One answer of the fake service.
struct Canned
{
    Canned(int status = 200, QByteArray body = {}, QByteArray headers = {})
        : status(status), body(std::move(body)), headers(std::move(headers))
    {
    }
    static Canned never()
    {
        Canned canned;
        canned.hang = true;
        return canned;
    }
    static Canned unsized(QByteArray body)
    {
        Canned canned(200, std::move(body));
        canned.sizeUnknown = true;
        return canned;
    }

    int status;
    QByteArray body;
    QByteArray headers;       // extra header lines, each ending in \r\n
    bool hang = false;        // never answers
    bool sizeUnknown = false; // no Content-Length: the body ends when the connection closes
};

// A small HTTP/1.1 server on 127.0.0.1 standing in for MusicBrainz and the Cover Art Archive.
// It answers each path with its list of answers in turn (the last one repeats), anything else
// with 404, and notes what it received and when.
class FakeService : public QObject
{
public:
    struct Received
    {
        QString target; // decoded path and query
        QByteArray userAgent;
        qint64 atMs;
    };

    FakeService()
    {
        m_clock.start();
        connect(&m_server, &QTcpServer::newConnection, this, &FakeService::accept);
        m_server.listen(QHostAddress::LocalHost);
    }
    [[nodiscard]] QString base() const { return QStringLiteral("http://127.0.0.1:%1/").arg(m_server.serverPort()); }
    void answer(const QString &path, const QList<Canned> &answers) { m_routes[path] = answers; }

    QList<Received> received;

private:
    void accept()
    {
        while (QTcpSocket *socket = m_server.nextPendingConnection()) {
            auto pending = std::make_shared<QByteArray>();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket, pending] { serve(socket, *pending); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    }

    void serve(QTcpSocket *socket, QByteArray &pending)
    {
        pending += socket->readAll();
        for (qsizetype end; (end = pending.indexOf("\r\n\r\n")) >= 0;) {
            const QList<QByteArray> lines = pending.left(end).split('\n');
            pending.remove(0, end + 4);
            Received request{QUrl::fromPercentEncoding(lines.first().split(' ').value(1)), {}, m_clock.elapsed()};
            for (const QByteArray &line : lines) {
                if (line.toLower().startsWith("user-agent:"))
                    request.userAgent = line.mid(11).trimmed();
            }
            received.append(request);
            QList<Canned> &answers = m_routes[request.target.section(u'?', 0, 0)];
            respond(socket, answers.isEmpty() ? Canned(404, R"({"error": "Not Found"})")
                            : answers.size() > 1 ? answers.takeFirst() : answers.first());
        }
    }

    static void respond(QTcpSocket *socket, const Canned &canned)
    {
        if (canned.hang)
            return;
        QByteArray head = "HTTP/1.1 " + QByteArray::number(canned.status) + " Answer\r\n" + canned.headers;
        head += canned.sizeUnknown ? QByteArrayLiteral("Connection: close\r\n\r\n")
                                   : "Content-Length: " + QByteArray::number(canned.body.size()) + "\r\n\r\n";
        socket->write(head + canned.body);
        if (canned.sizeUnknown)
            socket->disconnectFromHost();
    }

    QTcpServer m_server;
    QElapsedTimer m_clock;
    QHash<QString, QList<Canned>> m_routes;
};

// Points every look-up client made from now on at the fake service.
inline void pointClientsAt(const QString &base)
{
    qputenv("PLATTERBOX_MUSICBRAINZ_URL", (base + QStringLiteral("ws/2")).toUtf8()); // without its slash: the client adds it
    qputenv("PLATTERBOX_COVERART_URL", base.toUtf8());
}

// The answers of invented releases, in the services' own JSON shapes (tests/core/lookup/data).
inline QByteArray catalogueAnswer(const QString &name)
{
    return TextFile::readUtf8(QStringLiteral(PB_LOOKUP_DATA "/") + name).valueOr(QByteArray());
}

inline const QString kSaltRoadsId = QStringLiteral("5a1d3c2e-7b4f-4e8a-9c61-0f2b3d4e5a60");
inline const QString kSecondPressingId = QStringLiteral("8e7d6c5b-4a39-4281-9f0e-d1c2b3a49586");

// "Salt Roads": the two pressings a search finds (whatever it asks), the first one's release,
// and its front cover at both sizes the archive is asked for. Everything else answers 404.
inline void serveSaltRoads(FakeService &service, const QByteArray &frontCover)
{
    service.answer(QStringLiteral("/ws/2/release/"), {{200, catalogueAnswer(QStringLiteral("search-salt-roads.json"))}});
    service.answer(QStringLiteral("/ws/2/release/") + kSaltRoadsId,
                   {{200, catalogueAnswer(QStringLiteral("release-salt-roads.json"))}});
    for (const char *side : {"front-500", "front-250"})
        service.answer(QStringLiteral("/release/%1/%2").arg(kSaltRoadsId, QLatin1String(side)), {{200, frontCover}});
}

Q_DECLARE_METATYPE(Canned)
