#pragma once

#include <QQuickAsyncImageProvider>
#include <QString>

#include <memory>

class PagedReport;

// Serves "image://reportpage/<report>/<page>": a page of a report on screen, drawn off the UI
// thread at the width asked for. A screen publishes its report while it shows it; only the
// pages on screen exist as pictures.
class ReportPageProvider : public QQuickAsyncImageProvider
{
public:
    static inline const QString kProviderId = QStringLiteral("reportpage");

    QQuickImageResponse *requestImageResponse(const QString &id, const QSize &requestedSize) override;

    // Makes the report's pages reachable; returns the key of its sources.
    static QString publish(std::shared_ptr<const PagedReport> report);
    // Serves another report under a key published before: one whose pages begin as its do.
    static void replace(const QString &key, std::shared_ptr<const PagedReport> report);
    static void withdraw(const QString &key);
    // "image://reportpage/<key>/<page>"
    [[nodiscard]] static QString source(const QString &key, int page);
};
