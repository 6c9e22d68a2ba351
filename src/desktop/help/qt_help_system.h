#pragma once

#include "platform/help_system.h"

#include <QString>

#include <memory>
#include <string>

namespace tarvex {

class HelpCollection;

/// Where the parts of the help are; native paths.
struct HelpPlaces {
    QString handbook;   ///< the folder with the collection and the pages for a browser
    QString library;    ///< the file of the library that reads collections
    QString winePrefix; ///< empty: none
};

/// Beside the running program, as it is built and installed.
HelpPlaces helpPlaces(const std::string& winePrefix);

/// The handbook, the desktop's browser and the registry of a Wine prefix. Nothing is read before it is wanted.
class QtHelpSystem final : public HelpSystem {
public:
    explicit QtHelpSystem(HelpPlaces places);
    ~QtHelpSystem() override;

    std::optional<std::string> handbookFile(const std::string& name) override;
    std::string whyNoHandbook() override { return m_why; }
    std::string browserAddress(const std::string& page) override;
    bool openAddress(const std::string& address) override;
    std::optional<std::string> registryText(std::string_view key, std::string_view name) override;
    std::uint32_t chance() override;

private:
    bool openCollection();

    HelpPlaces m_places;
    std::unique_ptr<HelpCollection> m_collection;
    std::string m_why;
};

} // namespace tarvex
