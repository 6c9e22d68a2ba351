#include "help/web_links.h"

#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

const std::array<std::string_view, webLinkCount> builtInAddresses = {
    "file:web-tarvex.html", "file:web-professional.html", "file:web-questions.html",
    "https://support.thrustmaster.com/", "file:web-author.html"};

namespace {

constexpr std::size_t longestAddress = 2000;

bool isAsciiLetterOrDigit(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); }

bool startsWithoutCase(std::string_view text, std::string_view start)
{
    return lowerUtf8(std::string(text.substr(0, start.size()))) == start;
}

/// The characters that an address may consist of. Neither blanks, control characters and quotes nor "\" are among them.
bool isPlainAddress(std::string_view address)
{
    constexpr std::string_view others = "-._~:/?#[]@!&()*+,;=%$";
    return address.size() <= longestAddress && std::ranges::all_of(address, [&](char c) {
               return isAsciiLetterOrDigit(c) || others.find(c) != std::string_view::npos;
           });
}

/// A host by its name, with a port perhaps; without a user's name in front, which could look like another host.
bool namesHost(std::string_view rest)
{
    const std::string_view host = rest.substr(0, rest.find_first_of("/?#"));
    return !host.empty() && isAsciiLetterOrDigit(host.front()) && std::ranges::all_of(host, [](char c) {
        return isAsciiLetterOrDigit(c) || c == '.' || c == '-' || c == ':';
    });
}

bool isPageName(std::string_view name)
{
    return name.ends_with(".html") && name.front() != '.' && std::ranges::all_of(name, [](char c) {
               return isAsciiLetterOrDigit(c) || c == '-' || c == '_' || c == '.';
           });
}

std::string_view trimmed(std::string_view line)
{
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = line.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return line.substr(first, line.find_last_not_of(blanks) - first + 1);
}

std::string_view lineAt(std::string_view text, std::size_t index)
{
    for (; index > 0; --index) {
        const std::size_t end = text.find('\n');
        if (end == std::string_view::npos) return {};
        text.remove_prefix(end + 1);
    }
    return text.substr(0, text.find('\n'));
}

/// The line of an entry, of the file or built in; the user learns that the file is missing.
std::string addressLine(Editor& editor, std::size_t index)
{
    const Platform& platform = editor.platform;
    const std::string path = platform.programDirectory + "\\Website.txt";
    if (platform.files.fileExists(path)) return std::string(lineAt(platform.files.read(path), index));
    platform.dialogues.show(
        {.title = "Couldn't find file",
         .text = "I couldn't find the file " + path +
                 ", which contains the location of the Tarvex Pro website (URL) and other sites listed in this menu. "
                 "You need to create a text file for it, containing these URLs. In the meanwhile, I'll try connecting "
                 "you to the default site.",
         .icon = BoxIcon::Exclamation});
    return std::string(builtInAddresses.at(index));
}

} // namespace

std::optional<std::string> openableAddress(HelpSystem& system, std::string_view line)
{
    const std::string_view address = trimmed(line);
    for (const std::string_view scheme : {"https://", "http://"}) {
        if (!startsWithoutCase(address, scheme)) continue;
        const bool safe = isPlainAddress(address) && namesHost(address.substr(scheme.size()));
        return safe ? std::optional<std::string>(address) : std::nullopt;
    }
    constexpr std::string_view file = "file:";
    if (!startsWithoutCase(address, file)) return {};
    const std::string_view page = address.substr(file.size());
    if (page.empty() || !isPageName(page)) return {};
    const std::string shown = system.browserAddress(std::string(page));
    return shown.empty() ? std::nullopt : std::optional(shown);
}

void mnuWebTarvex_Click(Editor& editor, HelpSystem& system, int Index)
{
    const Steps step(editor.shared.errors, "ED_mnuWebTarvex_Click");
    step([&] {
        const std::string line = addressLine(editor, static_cast<std::size_t>(Index));
        const auto address = openableAddress(system, line);
        if (address && system.openAddress(*address)) return;
        const std::string shown(trimmed(line).substr(0, 200));
        editor.platform.dialogues.show(
            {.title = "Ooops!",
             .text = address ? "I couldn't find a browser that opens " + *address
                             : "This isn't an address that I can open: \"" + shown +
                                   "\". An address begins with http:// or https://, one on each line of Website.txt.",
             .icon = BoxIcon::Exclamation});
    });
}

} // namespace tarvex
