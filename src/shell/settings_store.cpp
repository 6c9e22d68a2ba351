#include "shell/settings_store.h"

#include "platform/text.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <type_traits>

namespace tarvex {

namespace {

// A count in a damaged file must not make the program ask for billions of keys.
constexpr int mostOfAFamily = std::numeric_limits<std::int16_t>::max();

/// As the size of a buffer: no limit.
constexpr std::size_t wholeText = std::numeric_limits<std::size_t>::max();

std::size_t bufferOf(SettingForm form)
{
    switch (form) {
    case SettingForm::ShortText:
    case SettingForm::ColourText:
        return 50;
    case SettingForm::IntegerText:
        return 10;
    default:
        return 100;
    }
}

std::int16_t to16Bits(int value)
{
    if (value < std::numeric_limits<std::int16_t>::min() || value > std::numeric_limits<std::int16_t>::max())
        throw RuntimeError(ErrorCode::Overflow, "Overflow");
    return static_cast<std::int16_t>(value);
}

std::string textOf(float value)
{
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    return {buffer, end};
}
std::string textOf(int value) { return std::to_string(value); }

int numberOf(std::string_view text)
{
    int number = 0;
    while (text.starts_with(' ')) text.remove_prefix(1);
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

bool namesSomething(const FileSystem& files, const std::string& path)
{
    return files.fileExists(path) || files.directoryExists(path);
}

/// A path that is longer than its buffer is taken whole where only the whole one leads anywhere.
SettingText fittedText(const FileSystem& files, SettingForm form, std::string whole)
{
    SettingText text = SettingText::cutTo(bufferOf(form) - 1, std::move(whole));
    if (!text.isCut() || namesSomething(files, text) || !namesSomething(files, text.whole())) return text;
    return {text.whole()};
}

/// One key of one row: what a family and a single setting have in common.
struct Key {
    const FileSystem& files;
    ProfileFile& file;
    const SettingRow& row;
    std::string name;

    std::string text(std::string_view defaultValue) const
    {
        return file.readString(row.section, name, defaultValue, bufferOf(row.form));
    }

    void readInto(std::int16_t& value) const
    {
        if (row.form == SettingForm::IntegerText)
            value = toInteger(text(row.readDefault));
        else
            value = to16Bits(file.readInt(row.section, name, numberOf(row.readDefault)));
    }
    void readInto(Colour& value) const { value = toLong(text(row.readDefault)); }
    void readInto(float& value) const
    {
        const std::string atTheTime = textOf(value);
        value = static_cast<float>(toNumber(text(row.readDefault == present ? atTheTime : row.readDefault)));
    }
    void readInto(SettingText& value) const
    {
        value = fittedText(files, row.form, file.readString(row.section, name, row.readDefault, wholeText));
    }

    void write(const SettingText& value) const { file.writeString(row.section, name, value.whole()); }
    /// A number that the file spells in its own way keeps its spelling.
    template <typename Number> void write(Number value) const
    {
        const std::string text = textOf(value);
        const bool blank = row.readDefault.starts_with(' ') && !text.starts_with('-'); // in the place of the sign
        file.writeString(row.section, name, blank ? " " + text : text,
                         [&](const std::string& stored) { return says(stored, value); });
    }

    bool says(const std::string& stored, std::int16_t value) const
    {
        if (row.form != SettingForm::IntegerText) return !stored.empty() && profileInt(stored) == value;
        return saysNumber([&] { return toInteger(fitted(stored)) == value; });
    }
    bool says(const std::string& stored, Colour value) const
    {
        return saysNumber([&] { return toLong(fitted(stored)) == value; });
    }
    bool says(const std::string& stored, float value) const
    {
        return saysNumber([&] { return static_cast<float>(toNumber(fitted(stored))) == value; });
    }
    std::string_view fitted(std::string_view stored) const { return utf8Left(stored, bufferOf(row.form) - 1); }
    template <typename Compare> static bool saysNumber(Compare compare)
    {
        try {
            return compare();
        } catch (const RuntimeError&) {
            return false; // no number at all
        }
    }
};

template <typename Member> constexpr bool isTextFamily = std::is_same_v<Member, std::vector<SettingText> Settings::*>;
template <typename Member>
constexpr bool isNumberFamily = std::is_same_v<Member, std::vector<std::int16_t> Settings::*>;

std::string indexed(std::string_view stem, std::size_t index) { return std::string(stem) + std::to_string(index); }

} // namespace

SettingsStore::SettingsStore(FileSystem& files, std::string programDirectory, Settings& settings, ErrorRecord& errors)
    : m_files(files), m_programDirectory(std::move(programDirectory)), m_settings(settings), m_errors(errors)
{
}

SettingsStore::Batch::Batch(SettingsStore& store)
{
    for (const IniFile which : {IniFile::Tarvex, IniFile::Lists, IniFile::Layouts, IniFile::Tca})
        m_files[static_cast<std::size_t>(which)].emplace(store.file(which));
}

std::vector<SettingsStore::WriteFailure> SettingsStore::writeFailures() const
{
    std::vector<WriteFailure> failures;
    for (const auto& profile : m_profiles) {
        if (profile && !profile->whyNotWritten().empty())
            failures.push_back({profile->path(), profile->whyNotWritten()});
    }
    return failures;
}

std::string SettingsStore::pathOf(IniFile which) const
{
    return m_programDirectory + "\\" + std::string(fileNameOf(which));
}

ProfileFile& SettingsStore::file(IniFile which)
{
    auto& profile = m_profiles[static_cast<std::size_t>(which)];
    if (!profile) profile = std::make_unique<ProfileFile>(m_files, pathOf(which));
    return *profile;
}

int SettingsStore::countOf(const SettingRow& row) const
{
    if (const int* fixed = std::get_if<int>(&row.count)) return *fixed;
    if (const auto* member = std::get_if<std::int16_t Settings::*>(&row.count))
        return std::clamp<int>(m_settings.**member, 0, mostOfAFamily);
    return 0;
}

void SettingsStore::readRow(const SettingRow& row)
{
    ProfileFile& profile = file(row.file);
    std::visit(
        [&](auto member) {
            using Member = decltype(member);
            if constexpr (std::is_same_v<Member, std::monostate>) {
                profile.readInt(row.section, row.key, numberOf(row.readDefault)); // read, and thrown away
            } else if constexpr (isTextFamily<Member>) {
                auto& texts = m_settings.*member;
                texts.clear();
                for (std::string& whole : profile.readStrings(
                         row.section, row.key, static_cast<std::size_t>(countOf(row)), row.readDefault, wholeText))
                    texts.push_back(fittedText(m_files, row.form, std::move(whole)));
            } else if constexpr (isNumberFamily<Member>) {
                auto& values = m_settings.*member;
                values.assign(static_cast<std::size_t>(countOf(row)), {});
                for (std::size_t i = 0; i < values.size(); ++i)
                    Key{m_files, profile, row, indexed(row.key, i + 1)}.readInto(values[i]);
            } else {
                Key{m_files, profile, row, std::string(row.key)}.readInto(m_settings.*member);
            }
        },
        row.member);
}

void SettingsStore::writeRow(const SettingRow& row)
{
    ProfileFile& profile = file(row.file);
    std::visit(
        [&](auto member) {
            using Member = decltype(member);
            if constexpr (std::is_same_v<Member, std::monostate>) {
                profile.writeString(row.section, row.key, "");
            } else if constexpr (isTextFamily<Member>) {
                std::vector<std::string> texts;
                for (const SettingText& text : m_settings.*member) texts.push_back(text.whole());
                profile.writeStrings(row.section, row.key, texts);
            } else if constexpr (isNumberFamily<Member>) {
                const auto& values = m_settings.*member;
                for (std::size_t i = 0; i < values.size(); ++i)
                    Key{m_files, profile, row, indexed(row.key, i + 1)}.write(values[i]);
            } else {
                Key{m_files, profile, row, std::string(row.key)}.write(m_settings.*member);
            }
        },
        row.member);
}

void SettingsStore::read(Access procedure, std::string_view tag)
{
    const Steps step(m_errors, tag);
    for (const SettingRow& row : settingsTable()) {
        if (contains(row.readers, procedure)) step([&] { readRow(row); });
    }
}

void SettingsStore::write(Access procedure, std::string_view tag)
{
    const Steps step(m_errors, tag);
    std::optional<ProfileFile::Batch> batch; // a procedure's keys all stand in one file
    for (const SettingRow& row : settingsTable()) {
        if (!contains(row.writers, procedure)) continue;
        if (!batch) batch.emplace(file(row.file));
        step([&] { writeRow(row); });
    }
}

void SettingsStore::GetOptions()
{
    read(Access::GetOptions, "MODULE GetOptions");
    if (m_settings.AllowAggressiveFocus == 1) m_settings.CompOnTop = 1;
}

void SettingsStore::SaveOptions() { write(Access::SaveOptions, "MODULE SaveOptions"); }

void SettingsStore::GetColours() { read(Access::GetColours, "MODULE GetColours"); }

void SettingsStore::ColoursSortOut()
{
    for (const SettingRow& row : settingsTable()) {
        if (!contains(row.writers, Access::ColoursSortOut)) continue;
        if (const auto* colour = std::get_if<Colour Settings::*>(&row.member))
            m_settings.** colour = toLong(row.factory);
        else if (const auto* number = std::get_if<std::int16_t Settings::*>(&row.member))
            m_settings.** number = toInteger(row.factory);
        else if (const auto* text = std::get_if<SettingText Settings::*>(&row.member))
            m_settings.** text = row.factory;
    }
    m_settings.InsertWithColour = 1;
    write(Access::ColoursSortOut, "MUM ColoursSortOut");
}

} // namespace tarvex
