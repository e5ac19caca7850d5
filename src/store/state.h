// What the whole program knows of its settings between start and end: read once at program start, changed by
// the setup.
#pragma once

#include "runtime/checkedInt32.h"

#include <array>
#include <cstdint>
#include <string>

namespace store {

/// 0 German, 10000 English; added to every text id.
inline runtime::CheckedInt32 languageOffset = 0;
/// Non-zero: a calculator is made for every new toolbar.
inline std::int16_t unitCalcActive = 0;
/// Unit names and number formats of the calculator, left and right.
inline std::array<std::string, 2> unitName;
inline std::array<std::string, 2> unitAccuracy;
/// This run has come to the end of its writes to the settings file (store/settings): that is whole, and worth
/// more than a kestrel.sav that is still there.
inline bool wholeByThisRun = false;

} // namespace store
