#include "feedback/reviewservice.h"

#include "shell/platformservices.h"
#include "store/settings.h"

ReviewService::ReviewService(Settings &defaults, PlatformServices &platform, Clock clock)
    : m_defaults(defaults), m_platform(platform), m_clock(std::move(clock))
{
    if (!m_clock)
        m_clock = [] { return QDateTime::currentDateTime(); };
}

std::optional<QDateTime> ReviewService::lastRequest() const
{
    const QVariant stored = m_defaults.value(SettingsKeys::ReviewServiceLastRequest);
    // Only a stored date counts; the INI store keeps a QDateTime as its own type.
    if (stored.typeId() != QMetaType::QDateTime)
        return std::nullopt;
    const QDateTime date = stored.toDateTime();
    return date.isValid() ? std::optional<QDateTime>(date) : std::nullopt;
}

void ReviewService::setLastRequest(const std::optional<QDateTime> &date)
{
    if (date)
        m_defaults.setValue(SettingsKeys::ReviewServiceLastRequest, *date);
    else
        m_defaults.remove(SettingsKeys::ReviewServiceLastRequest);
}

bool ReviewService::canRequestReview() const
{
    const auto last = lastRequest();
    if (!last)
        return true;
    // Seven calendar days back from now, so a change of daylight-saving time in between
    // does not move the limit by an hour.
    const QDateTime now = m_clock();
    const QDateTime sevenDaysAgo = now.addDays(-7);
    return *last < sevenDaysAgo;
}

void ReviewService::requestReview()
{
    if (!canRequestReview())
        return;
    m_platform.requestReviewPrompt();
    setLastRequest(m_clock());
}
