#pragma once

#include "store/entities.h"
#include "store/result.h"

#include <QDateTime>

#include <optional>

class Store;

// Each record's dated values: every save that changes a record's value adds a quote of the new
// value, so what the record was worth stays known after it changes.
namespace ValueHistory {

// Whether a save from `before` to `after` changes the record's value; absent reads 0.
[[nodiscard]] bool changes(std::optional<float> before, std::optional<float> after);

// Adds a quote of `saved`'s value when it differs from `before` (nullopt for a new record).
// Called inside the save's transaction, so the value and its quote are kept together or not at all.
Result<void> noteSave(Store &store, const Vinyl &saved, std::optional<float> before, const QString &source,
                      const QDateTime &at = QDateTime::currentDateTime());

} // namespace ValueHistory
