#pragma once

#include "platform/help_system.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tarvex {

/// A system with a handbook, a browser and a registry in the test's hands.
struct FakeHelpSystem final : HelpSystem {
    std::map<std::string, std::string> files{
        {"index.txt", "chapter\tStart\n"
                      "page\tfirst.html\tWelcome\tThe first page has few words.\n"
                      "page\tbtn.html\tThe BTN statement\tBTN gives a button what it sends. A button can send macros.\n"
                      "chapter\tWindows\n"
                      "page\tsafein.html\tSafein\tSafein knows every key and its raw code.\n"
                      "page\ttour.html\tA tour\tA tour for the newcomer.\n"
                      "keyword\tBTN\tbtn.html\n"
                      "keyword\tBTN S1\tbtn.html#s1\n"
                      "keyword\traw code\tsafein.html#raw\n"
                      "keyword\ttour\ttour.html\n"
                      "topic\t2500\tsafein.html\n"}};
    std::string why = "there is no file /usr/share/tarvex-help/handbook/tarvex.qch";
    bool hasBrowser = true;
    std::vector<std::string> opened; ///< addresses
    std::map<std::pair<std::string, std::string>, std::string> registry;
    std::uint32_t nextChance = 0;

    std::optional<std::string> handbookFile(const std::string& name) override
    {
        const auto file = files.find(name);
        return file == files.end() ? std::nullopt : std::optional(file->second);
    }
    std::string whyNoHandbook() override { return why; }
    std::string browserAddress(const std::string& page) override
    {
        return files.empty() ? "" : "file:///usr/share/tarvex-help/handbook/" + page;
    }
    bool openAddress(const std::string& address) override
    {
        if (hasBrowser) opened.push_back(address);
        return hasBrowser;
    }
    std::optional<std::string> registryText(std::string_view key, std::string_view name) override
    {
        const auto value = registry.find({std::string(key), std::string(name)});
        return value == registry.end() ? std::nullopt : std::optional(value->second);
    }
    std::uint32_t chance() override { return nextChance; }
};

} // namespace tarvex
