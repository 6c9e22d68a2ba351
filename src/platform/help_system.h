#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvex {

/// What the help needs of the system around the program. This one has nothing: no handbook, no browser, no registry.
class HelpSystem {
public:
    virtual ~HelpSystem() = default;

    /// A file of the handbook by its name in there, as bytes; nothing when there is no handbook or no such file in it.
    virtual std::optional<std::string> handbookFile(const std::string&) { return {}; }
    /// Why the handbook can't be read, for the user; empty once a file of it was.
    virtual std::string whyNoHandbook() { return "it isn't part of this copy of the program"; }
    /// Address of a page of the handbook that the system's browser opens; empty where there is none.
    virtual std::string browserAddress(const std::string&) { return {}; }
    /// Has the system open an address, in its browser as a rule. False: it can't.
    virtual bool openAddress(const std::string&) { return false; }
    /// A text in the machine part of the Windows registry; `key` has "\" between its parts. Nothing without one.
    virtual std::optional<std::string> registryText(std::string_view, std::string_view) { return {}; }
    /// A number by chance.
    virtual std::uint32_t chance() { return 0; }
};

} // namespace tarvex
