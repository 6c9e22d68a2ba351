#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// The string functions of the program's rules. Positions count from 1.

namespace tarvex {

/// `length` characters from `start`; what lies beyond the text is left out. A start below 1 throws RuntimeError
/// (InvalidCall).
std::string_view Mid(std::string_view text, long start, std::size_t length);
/// The last `length` characters, or all of them.
std::string_view Right(std::string_view text, std::size_t length);
std::string_view Left(std::string_view text, std::size_t length);

/// The whole text as a number, as a settings value or a box of a form gives it: blanks around it, a sign, a decimal
/// fraction and an exponent are allowed. Throws RuntimeError (TypeMismatch) for anything else, (Overflow) for a number
/// that no double holds.
double toNumber(std::string_view text);
/// The same, rounded to the nearest whole number (halves to the even one). Throws RuntimeError (Overflow) beyond 16 or
/// 32 bits.
short toInteger(std::string_view text);
int toLong(std::string_view text);

/// The number that a text begins with, in decimal, with a fraction and an exponent ("E" or "D") if it has them; blanks,
/// tabs and line ends between its characters don't count. 0 where it begins with none. Beyond all numbers: infinite.
double Val(std::string_view text);

/// Lone CR and lone LF become CR LF; pairs stay.
std::string withWindowsLineEnds(std::string_view text);

} // namespace tarvex
