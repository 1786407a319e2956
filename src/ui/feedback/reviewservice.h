#pragma once

#include <QDateTime>

#include <functional>
#include <optional>

class PlatformServices;
class Settings;

// Asks the platform for its app-review prompt at most once in seven days. The date of the
// last request lives in the user defaults under "ReviewService.lastRequest".
class ReviewService
{
public:
    using Clock = std::function<QDateTime()>;

    // The clock defaults to the current time; tests pass their own.
    ReviewService(Settings &defaults, PlatformServices &platform, Clock clock = {});

    // The stored date, or none when nothing (or something that is not a date) is stored.
    [[nodiscard]] std::optional<QDateTime> lastRequest() const;
    void setLastRequest(const std::optional<QDateTime> &date);

    // True when no request was made yet or the last one is more than seven calendar days
    // old; exactly seven days ago does not yet count.
    [[nodiscard]] bool canRequestReview() const;
    // Asks for the prompt when allowed and remembers now as the last request, whether or not
    // the platform shows anything.
    void requestReview();

private:
    Settings &m_defaults;
    PlatformServices &m_platform;
    Clock m_clock;
};
