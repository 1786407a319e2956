#pragma once

#include <QString>

#include <utility>
#include <variant>

// What went wrong, in words fit for an alert or a console line.
struct Error
{
    QString message;
};

// A value or the error that prevented it. Used by every function that can fail on
// user input, file content or the store, so failures travel to the controller that
// turns them into an alert instead of stopping the program.
template<typename T>
class [[nodiscard]] Result
{
public:
    Result(T value) : m_state(std::move(value)) {}
    Result(Error error) : m_state(std::move(error)) {}

    [[nodiscard]] bool ok() const { return std::holds_alternative<T>(m_state); }
    explicit operator bool() const { return ok(); }

    [[nodiscard]] const T &value() const & { return std::get<T>(m_state); }
    [[nodiscard]] T &value() & { return std::get<T>(m_state); }
    // By value, so that `for (x : *fetch())` over a temporary result stays valid.
    [[nodiscard]] T value() && { return std::get<T>(std::move(m_state)); }
    [[nodiscard]] T valueOr(T fallback) const { return ok() ? value() : std::move(fallback); }
    [[nodiscard]] const Error &error() const { return std::get<Error>(m_state); }
    [[nodiscard]] QString errorMessage() const { return ok() ? QString() : error().message; }

    const T &operator*() const & { return value(); }
    T &operator*() & { return value(); }
    T operator*() && { return std::move(*this).value(); }
    const T *operator->() const { return &value(); }
    T *operator->() { return &value(); }

private:
    std::variant<T, Error> m_state;
};

template<>
class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(Error error) : m_failed(true), m_error(std::move(error)) {}

    [[nodiscard]] bool ok() const { return !m_failed; }
    explicit operator bool() const { return ok(); }
    [[nodiscard]] const Error &error() const { return m_error; }
    [[nodiscard]] QString errorMessage() const { return m_error.message; }

private:
    bool m_failed = false;
    Error m_error;
};
