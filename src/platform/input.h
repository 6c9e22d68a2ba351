#pragma once

// How mouse and keyboard events report what was held: sums of the values below.

namespace tarvex {

namespace mouseButton {
constexpr int none = 0;
constexpr int left = 1;
constexpr int right = 2;
constexpr int middle = 4;
} // namespace mouseButton

namespace shiftKey {
constexpr int none = 0;
constexpr int shift = 1;
constexpr int ctrl = 2;
constexpr int alt = 4;
} // namespace shiftKey

} // namespace tarvex
