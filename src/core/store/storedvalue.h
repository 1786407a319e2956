#pragma once

#include <QDateTime>
#include <QVariant>

#include <optional>
#include <type_traits>

// An attribute as the store binds it: absent as NULL, dates as milliseconds since the epoch (so
// that they compare and sort as numbers), floats widened to the double SQLite keeps.
template<typename T>
QVariant storedValue(const std::optional<T> &value)
{
    if (!value)
        return QVariant();
    if constexpr (std::is_same_v<T, QDateTime>)
        return value->toMSecsSinceEpoch();
    else if constexpr (std::is_same_v<T, float>)
        return double(*value);
    else
        return QVariant::fromValue(*value);
}
