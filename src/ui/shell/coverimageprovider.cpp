#include "shell/coverimageprovider.h"

#include "shell/theme.h"
#include "store/coverchanges.h"
#include "store/store.h"

#include <QCache>
#include <QMutex>
#include <QPainter>
#include <QRunnable>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QThread>
#include <QThreadPool>
#include <QThreadStorage>

using namespace Qt::StringLiterals;

namespace {

QMutex s_cacheMutex;
QCache<QString, QImage> s_cache(400);
QAtomicInteger<quint64> s_connectionCounter;

QString cacheKey(qint64 rowId, bool front, const QSize &size, bool dark)
{
    return u"%1/%2/%3x%4%5"_s.arg(rowId).arg(front ? 'f' : 'b').arg(size.width()).arg(size.height()).arg(dark ? u"d"_s : QString());
}

QThreadPool &coverPool()
{
    static QThreadPool pool;
    pool.setMaxThreadCount(2);
    return pool;
}

// Each pool thread keeps one read connection to the store file.
struct ThreadConnection
{
    QString name;
    QString storeFile;
    ~ThreadConnection()
    {
        if (!name.isEmpty())
            QSqlDatabase::removeDatabase(name);
    }
};
QThreadStorage<ThreadConnection *> s_connections;

QByteArray readCover(const QString &storeFile, qint64 rowId, bool front)
{
    if (!s_connections.hasLocalData()) {
        auto *c = new ThreadConnection{u"platterbox-covers-"_s + QString::number(++s_connectionCounter), storeFile};
        QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, c->name);
        Store::configureReader(db, storeFile);
        db.open();
        s_connections.setLocalData(c);
    }
    QSqlDatabase db = QSqlDatabase::database(s_connections.localData()->name, false);
    if (!db.isOpen() || s_connections.localData()->storeFile != storeFile)
        return {};
    QSqlQuery q(db);
    q.prepare(front ? u"SELECT frontImage FROM Vinyl WHERE rowid = ?"_s : u"SELECT backImage FROM Vinyl WHERE rowid = ?"_s);
    q.bindValue(0, rowId);
    if (!q.exec() || !q.next())
        return {};
    return q.value(0).toByteArray();
}

// The black record of a record without a cover; on a dark window it lies on a lighter square,
// so that it does not vanish into the background.
QImage fallbackPicture(const QSize &size, bool dark)
{
    QImage image(u":/resources/black-vinyl-record.png"_s);
    if (size.isValid() && !size.isEmpty())
        image = image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    const QColor backdrop = Theme::color(Theme::CoverBackdrop, dark);
    if (backdrop.alpha() == 0)
        return image;
    QImage framed(image.size(), QImage::Format_ARGB32_Premultiplied);
    framed.fill(Qt::transparent);
    QPainter painter(&framed);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(backdrop);
    const qreal corner = framed.width() / 12.0;
    painter.drawRoundedRect(QRectF(framed.rect()), corner, corner);
    painter.drawImage(0, 0, image);
    painter.end();
    return framed;
}

class CoverResponse : public QQuickImageResponse, public QRunnable
{
public:
    CoverResponse(QString storeFile, qint64 rowId, bool front, QSize size)
        : m_storeFile(std::move(storeFile)), m_rowId(rowId), m_front(front), m_size(size)
    {
        setAutoDelete(false);
    }

    QQuickTextureFactory *textureFactory() const override { return QQuickTextureFactory::textureFactoryForImage(m_image); }

    void run() override
    {
        const bool dark = Theme::darkInUse();
        const QString key = cacheKey(m_rowId, m_front, m_size, dark);
        {
            QMutexLocker lock(&s_cacheMutex);
            if (const QImage *cached = s_cache.object(key)) {
                m_image = *cached;
                emit finished();
                return;
            }
        }
        QImage image;
        if (m_rowId > 0)
            image = QImage::fromData(readCover(m_storeFile, m_rowId, m_front));
        if (image.isNull()) {
            image = fallbackPicture(m_size, dark);
        } else if (m_size.isValid() && !m_size.isEmpty()) {
            image = image.scaled(m_size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        }
        {
            QMutexLocker lock(&s_cacheMutex);
            s_cache.insert(key, new QImage(image), 1);
        }
        m_image = image;
        emit finished();
    }

private:
    QString m_storeFile;
    qint64 m_rowId;
    bool m_front;
    QSize m_size;
    QImage m_image;
};

} // namespace

CoverImageProvider::CoverImageProvider(QString storeFilePath) : m_storeFilePath(std::move(storeFilePath))
{
    // An import changes pictures from its worker: the cached ones of those records go.
    CoverChanges::setListener(&CoverImageProvider::forget);
}

QQuickImageResponse *CoverImageProvider::requestImageResponse(const QString &id, const QSize &requestedSize)
{
    // id: "<rowId>/front" or "<rowId>/back"
    const QStringList parts = id.split(u'/');
    const qint64 rowId = parts.value(0).toLongLong();
    const bool front = parts.value(1) != u"back"_s;
    auto *response = new CoverResponse(m_storeFilePath, rowId, front, requestedSize);
    coverPool().start(response);
    return response;
}

void CoverImageProvider::forget(qint64 rowId)
{
    QMutexLocker lock(&s_cacheMutex);
    const QString prefix = QString::number(rowId) + u'/';
    const QStringList keys = s_cache.keys();
    for (const QString &key : keys) {
        if (key.startsWith(prefix))
            s_cache.remove(key);
    }
}

void CoverImageProvider::forgetAll()
{
    QMutexLocker lock(&s_cacheMutex);
    s_cache.clear();
}

QString CoverImageProvider::source(qint64 rowId, bool front)
{
    // QML keeps pictures by their address, and the placeholder of a record without a cover is
    // drawn for the variant in use: a dark window asks at another address.
    return u"image://cover/%1/%2%3"_s.arg(rowId).arg(front ? u"front"_s : u"back"_s,
                                                     Theme::darkInUse() ? u"/dark"_s : QString());
}
