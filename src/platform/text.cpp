#include "platform/text.h"

#include "platform/errors.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace tarvex {

namespace {

[[noreturn]] void throwTypeMismatch() { throw RuntimeError(ErrorCode::TypeMismatch, "Type mismatch"); }
[[noreturn]] void throwOverflow() { throw RuntimeError(ErrorCode::Overflow, "Overflow"); }

std::string_view withoutBlanks(std::string_view text)
{
    constexpr std::string_view blanks = " \t";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

template <typename Whole> Whole rounded(std::string_view text)
{
    const double value = std::nearbyint(toNumber(text)); // halves go to the even neighbour
    if (value < std::numeric_limits<Whole>::min() || value > std::numeric_limits<Whole>::max()) throwOverflow();
    return static_cast<Whole>(value);
}

/// The value of a number that no double holds: too large, or with a negative exponent too small.
double outOfRange(std::string_view digits)
{
    const std::size_t exponent = digits.find_first_of("eE");
    const std::size_t significant = std::min(digits.find_first_not_of('0'), digits.size() - 1);
    const bool tiny =
        exponent != digits.npos ? digits.substr(exponent + 1).starts_with('-') : digits[significant] == '.';
    return tiny ? 0 : std::numeric_limits<double>::infinity();
}

} // namespace

std::string_view Mid(std::string_view text, long start, std::size_t length)
{
    if (start < 1) throw RuntimeError(ErrorCode::InvalidCall, "Invalid procedure call or argument");
    const auto skipped = static_cast<std::size_t>(start - 1);
    return skipped < text.size() ? text.substr(skipped, length) : std::string_view();
}

std::string_view Right(std::string_view text, std::size_t length)
{
    return length < text.size() ? text.substr(text.size() - length) : text;
}

std::string_view Left(std::string_view text, std::size_t length) { return text.substr(0, length); }

double toNumber(std::string_view text)
{
    std::string_view digits = withoutBlanks(text);
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+')) digits.remove_prefix(1);
    const bool startsRight = !digits.empty() && (digits[0] == '.' || (digits[0] >= '0' && digits[0] <= '9'));
    if (!startsRight) throwTypeMismatch(); // also keeps "inf" and "nan" out

    double value = 0;
    const char* end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, value);
    if (result.ec == std::errc::invalid_argument || result.ptr != end) throwTypeMismatch();
    if (result.ec == std::errc::result_out_of_range) throwOverflow();
    return negative ? -value : value;
}

short toInteger(std::string_view text) { return rounded<short>(text); }

int toLong(std::string_view text) { return rounded<int>(text); }

double Val(std::string_view text)
{
    std::string digits;
    for (const char character : text) {
        if (std::string_view(" \t\r\n").find(character) != std::string_view::npos) continue;
        digits += character == 'd' || character == 'D' ? 'e' : character;
    }
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+')) digits.erase(0, 1);
    const bool startsRight = !digits.empty() && (digits[0] == '.' || (digits[0] >= '0' && digits[0] <= '9'));
    if (!startsRight) return 0; // also keeps "inf", "nan" and a second sign out

    double value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec == std::errc::invalid_argument) return 0;
    if (result.ec == std::errc::result_out_of_range) value = outOfRange(digits);
    return negative ? -value : value;
}

std::string withWindowsLineEnds(std::string_view text)
{
    std::string result;
    result.reserve(text.size() + text.size() / 16);
    const auto endsLine = [](char character) { return character == '\r' || character == '\n'; };
    for (auto at = text.begin(); at != text.end();) {
        const auto lineEnd = std::find_if(at, text.end(), endsLine);
        result.append(at, lineEnd);
        if (lineEnd == text.end()) break;
        result += "\r\n";
        const bool isPair = *lineEnd == '\r' && lineEnd + 1 != text.end() && lineEnd[1] == '\n';
        at = lineEnd + (isPair ? 2 : 1);
    }
    return result;
}

} // namespace tarvex
