#pragma once

#include <QString>

// The program's name and version as the build knows them (the project version in CMake).
namespace Version {

// "1.0"
[[nodiscard]] QString number();
// "Platterbox 1.0": what --version prints and the Creator of every PDF file Platterbox writes.
[[nodiscard]] QString nameAndNumber();

} // namespace Version
