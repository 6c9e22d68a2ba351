#pragma once

/// Codes of the keys that windows react to; letters and digits have the code of their upper-case character.
namespace tarvex::keyCode {
constexpr int none = 0;
constexpr int escape = 27;
constexpr int f1 = 112; ///< the other function keys follow
constexpr int f4 = 115;
} // namespace tarvex::keyCode
