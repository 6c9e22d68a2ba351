// The texts in resources/wizards fit the windows that show them.
#include "support/test_program.h"
#include "wizards/wizard_pages.h"
#include "wizards/wizards.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>

namespace tarvex {
namespace {

std::string textOf(const std::string& name)
{
    std::ifstream file(std::string(TARVEX_SOURCE_DIRECTORY) + "/resources/wizards/" + name + ".txt", std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<WizardPage> pagesOf(const std::string& name) { return readWizardPages(textOf(name)); }

std::set<int> buttonsOn(const std::vector<WizardPage>& pages)
{
    std::set<int> numbers;
    for (const WizardPage& page : pages)
        for (const WizardBlock& block : page.blocks)
            if (block.kind == WizardBlock::Kind::Button) numbers.insert(block.number);
    return numbers;
}

TEST(WizardTexts, HaveAPageForEachPageNumber)
{
    EXPECT_EQ(pagesOf("macro").size(), static_cast<std::size_t>(MacroWizard::lastPage + 1));
    EXPECT_EQ(pagesOf("joystick").size(), static_cast<std::size_t>(JoystickWiz::lastPage + 1));
    EXPECT_EQ(pagesOf("slash").size(), static_cast<std::size_t>(SlashWizard::lastPage + 1));
    TestProgram t;
    EXPECT_EQ(pagesOf("speedy").size(), static_cast<std::size_t>(t.program().wizards.speedy.SSTab1.Count()));
}

TEST(WizardTexts, OfferEveryActionOfTheirWindows)
{
    EXPECT_THAT(buttonsOn(pagesOf("macro")), testing::ElementsAre(0, 2, 3, 4, 5, 6, 7, 8)); // 1 is Speedy's
    EXPECT_THAT(buttonsOn(pagesOf("speedy")), testing::ElementsAre(0, 1, 2, 3, 4, 5, 7, 8));
    EXPECT_THAT(buttonsOn(pagesOf("joystick")), testing::ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9));
    EXPECT_TRUE(buttonsOn(pagesOf("slash")).empty());
}

TEST(WizardTexts, EveryPageHasATitleAndSomethingToRead)
{
    for (const char* name : {"macro", "joystick", "slash", "speedy"}) {
        for (const WizardPage& page : pagesOf(name)) {
            EXPECT_FALSE(page.title.empty()) << name;
            ASSERT_FALSE(page.blocks.empty()) << page.title;
            EXPECT_EQ(page.blocks.front().kind, WizardBlock::Kind::Paragraph) << page.title;
            for (const WizardBlock& block : page.blocks) EXPECT_FALSE(block.text.starts_with('[')) << block.text;
        }
    }
}

TEST(WizardTexts, TeachWithTheKnownExamples)
{
    const std::string joystick = textOf("joystick");
    for (const char* line : {"    MDEF F22ADF\n", "    RATE 80\n", "    BTN S1  Autopilot\n",
                             "    BTN H1U  Autopilot\n", "    Autopilot = a\n"})
        EXPECT_NE(joystick.find(line), std::string::npos) << line;
    const std::string slash = textOf("slash");
    for (const char* line : {"    BTN S1 /I Eject\n", "    BTN S3 Rem Leave this line with a Rem statement here\n"})
        EXPECT_NE(slash.find(line), std::string::npos) << line;
    bool found = false;
    for (const WizardPage& page : pagesOf("slash"))
        for (const WizardBlock& block : page.blocks)
            found = found || block.text.find("They refer to the position of the rocker switch on the WCS MkII or the "
                                             "Dogfight switch (T7,T8) on the TQS") != std::string::npos;
    EXPECT_TRUE(found);
}

} // namespace
} // namespace tarvex
