#pragma once

#include <QStringList>

class Settings;
class Store;

// The 13 grades both condition lists start with, best first.
[[nodiscard]] const QStringList &seedConditionGrades();

// On the very first launch: sets the launched-before flag, logs "First Launch" and seeds
// VinylCondition then CoverCondition. Later launches log "Not First Launch" and change
// nothing. A grade that cannot be saved is logged and skipped. Returns true on a first launch.
bool runFirstLaunch(Settings &settings, Store &store);
