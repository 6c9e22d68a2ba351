#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// The name that the program sees for the name of a native file: UTF-8, read as Windows-1252 where the bytes aren't
/// that. What a DOS path can't hold ("\", ":", control characters, a blank at the end) is moved to the private code
/// points from U+F000 on, so that no name can be taken for a longer path.
std::string dosNameFromNative(std::string_view name);
/// The native name for a name that no file has yet; the reverse of the above for valid UTF-8.
std::string nativeNameFromDos(std::string_view name);

/// The names in one directory, as the program finds them: without regard to case, the exact spelling first, and an
/// alias such as "mig~2.b50" for a file that another one of the same name in another case would hide.
class DosNames {
public:
    explicit DosNames(std::vector<std::string> nativeNames);

    /// The native name for a name or an alias. Nothing when no file fits.
    std::optional<std::string> find(std::string_view dosName) const;
    /// The name that leads to this file, also after it has been lower-cased. A file that isn't in the directory gives
    /// its plain name.
    std::string nameOf(const std::string& nativeName) const;

private:
    using Group = std::vector<std::string>; ///< names that differ by case only, in byte order
    const std::string* findPlain(std::string_view dosName) const;
    const std::string* findAlias(std::string_view dosName) const;

    std::map<std::string, Group, std::less<>> m_groups; ///< by lower-cased DOS name
};

} // namespace tarvex
