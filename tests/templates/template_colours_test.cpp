// The templates in resources/templates: each text has a coloured form, made by scripts/make-templates.
#include "documents/text/pane.h"
#include "documents/text/rtf/rtf.h"
#include "language/colour_template.h"
#include "shell/settings_store.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tarvex {
namespace {

namespace fs = std::filesystem;
const fs::path folder = fs::path(TARVEX_SOURCE_DIRECTORY) / "resources/templates";

std::string bytesOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<fs::path> texts()
{
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.path().extension() == ".txt") found.push_back(entry.path());
    return found;
}

struct TemplateColours : TestMachine {
    Settings settings;
    ErrorRecord errors;
    Mum mum;
    SettingsStore store{files, programDirectory, settings, errors};

    TemplateColours() { store.ColoursSortOut(); }
    /// The text in the colours that the Template Editor gives it.
    void colour(Pane& pane)
    {
        bool held = false;
        ColourTemplateText({pane, "t.txt", [] {}, settings, errors, mum, [&held](const Hold&) { held = true; }});
        EXPECT_FALSE(held);
    }
};

TEST(TemplateFiles, AreFifteenOrMoreEachPlainAndColoured)
{
    EXPECT_GE(texts().size(), 15U);
    for (fs::path path : texts()) EXPECT_TRUE(fs::exists(path.replace_extension(".rtf"))) << path;
}

TEST(TemplateFiles, TheColouredFormHasTheSameTextInTheColoursOfTheProgram)
{
    TemplateColours t;
    for (fs::path path : texts()) {
        Pane plain;
        plain.setText(bytesOf(path));
        t.colour(plain);
        Pane coloured;
        coloured.setTextRTF(readRtf(bytesOf(path.replace_extension(".rtf")), coloured.formats()));
        ASSERT_EQ(coloured.Text(), plain.Text()) << path;
        int colours = 0;
        for (std::size_t i = 0; i < plain.TextLength(); ++i) {
            ASSERT_EQ(coloured.formatAt(i).colour, plain.formatAt(i).colour) << path << " at " << i;
            if (coloured.formatAt(i).colour != 0) ++colours;
        }
        EXPECT_GT(colours, 0) << path;
    }
}

TEST(TemplateFiles, HaveNamesThatDosPathsKeepWhenTheyAreLowerCased)
{
    for (const fs::path& path : texts()) {
        const std::string name = path.filename().string();
        EXPECT_EQ(name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-."), std::string::npos) << name;
    }
}

} // namespace
} // namespace tarvex
