#pragma once

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace tarvex::benchmarks {

/// An example file over and over, cut to whole lines, up to `size` characters.
inline std::string exampleText(const std::string& name, std::size_t size)
{
    std::ifstream file(TARVEX_SOURCE_DIRECTORY "/examples/" + name, std::ios::binary);
    const std::string example{std::istreambuf_iterator<char>(file), {}};
    if (example.empty()) throw std::runtime_error("there is no example " + name);
    std::string text;
    while (text.size() < size) text += example;
    text.resize(text.rfind("\r\n", size - 2) + 2);
    return text;
}

constexpr const char* largestJoystickExample = "lance.f22";
constexpr const char* largestMacroExample = "lance.m22";

} // namespace tarvex::benchmarks
