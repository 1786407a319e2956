#pragma once

#include <QQuickAsyncImageProvider>
#include <QString>

// Serves "image://cover/<rowId>/front" and ".../back": the record's cover decoded off the
// UI thread from its own read connection, scaled to the requested size and kept in a small
// cache. A record without that cover gets the "black-vinyl-record" picture.
class CoverImageProvider : public QQuickAsyncImageProvider
{
public:
    static inline const QString kProviderId = QStringLiteral("cover");

    explicit CoverImageProvider(QString storeFilePath);
    QQuickImageResponse *requestImageResponse(const QString &id, const QSize &requestedSize) override;

    // Drops cached pictures of a record whose covers changed.
    static void forget(qint64 rowId);
    // After the whole collection was replaced (restore, undo).
    static void forgetAll();
    // "image://cover/<rowId>/front" (".../front/dark" while the dark variant is in use)
    [[nodiscard]] static QString source(qint64 rowId, bool front = true);

private:
    QString m_storeFilePath;
};

// The fallback picture as the list cells use it.
inline const QString kBlackVinylRecord = QStringLiteral("qrc:/resources/black-vinyl-record.png");
