#include "reports/reportpageprovider.h"

#include "reports/reportbuilder.h"
#include "reports/reportpages.h"

#include <QHash>
#include <QMutex>
#include <QRunnable>
#include <QThreadPool>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// A page drawn when no width is asked for.
constexpr int kDefaultWidth = 600;

QMutex s_mutex;
QHash<QString, std::shared_ptr<const PagedReport>> s_reports;
quint64 s_published = 0;

QThreadPool &pagePool()
{
    static QThreadPool pool;
    pool.setMaxThreadCount(2);
    return pool;
}

class PageResponse : public QQuickImageResponse, public QRunnable
{
public:
    PageResponse(std::shared_ptr<const PagedReport> report, int page, QSize size)
        : m_report(std::move(report)), m_page(page), m_size(size)
    {
        setAutoDelete(false);
    }

    QQuickTextureFactory *textureFactory() const override { return QQuickTextureFactory::textureFactoryForImage(m_image); }

    void run() override
    {
        int width = m_size.width() > 0 ? m_size.width() : kDefaultWidth;
        if (m_size.width() <= 0 && m_size.height() > 0)
            width = int(std::lround(m_size.height() * ReportBuilder::kPageWidth / ReportBuilder::kPageHeight));
        if (m_report)
            m_image = m_report->render(m_page, width);
        emit finished();
    }

private:
    std::shared_ptr<const PagedReport> m_report;
    int m_page;
    QSize m_size;
    QImage m_image;
};

} // namespace

QQuickImageResponse *ReportPageProvider::requestImageResponse(const QString &id, const QSize &requestedSize)
{
    // id: "<key>/<page>"
    const QStringList parts = id.split(u'/');
    std::shared_ptr<const PagedReport> report;
    {
        QMutexLocker lock(&s_mutex);
        report = s_reports.value(parts.value(0));
    }
    auto *response = new PageResponse(std::move(report), parts.value(1).toInt(), requestedSize);
    pagePool().start(response);
    return response;
}

QString ReportPageProvider::publish(std::shared_ptr<const PagedReport> report)
{
    QMutexLocker lock(&s_mutex);
    const QString key = QString::number(++s_published);
    s_reports.insert(key, std::move(report));
    return key;
}

void ReportPageProvider::replace(const QString &key, std::shared_ptr<const PagedReport> report)
{
    QMutexLocker lock(&s_mutex);
    if (s_reports.contains(key))
        s_reports.insert(key, std::move(report));
}

void ReportPageProvider::withdraw(const QString &key)
{
    QMutexLocker lock(&s_mutex);
    s_reports.remove(key);
}

QString ReportPageProvider::source(const QString &key, int page)
{
    return u"image://%1/%2/%3"_s.arg(kProviderId, key).arg(page);
}
