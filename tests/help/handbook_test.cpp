#include "help/handbook.h"

#include "help/handbook_place.h"
#include "help/window_help.h"
#include "help_program.h"
#include "shell/help_topics.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct HandbookTest : HelpTest {
    Handbook& book = help.handbook;
    std::string target() const { return book.Target.get(); }
    void keyword(const std::string& word) { t.program().operations.HelpKeyword(word); }
    void topic(int number) { t.program().operations.HelpTopic(number); }
};

TEST_F(HandbookTest, TheHelpMenuOpensItAtItsFirstPage)
{
    t.menus().mnuHelpContents.Click();
    EXPECT_TRUE(book.form.Visible);
    EXPECT_EQ(target(), "first.html");
    EXPECT_EQ(book.form.Caption.get(), "Welcome - Tarvex handbook");
    EXPECT_FALSE(book.Back.Enabled);
    EXPECT_FALSE(book.Forward.Enabled);
}

TEST_F(HandbookTest, ItIsNotReadBeforeItIsWanted) { EXPECT_FALSE(book.Ready); }

TEST_F(HandbookTest, TheUsersOwnHelpFileIsHandedToTheSystem)
{
    t.files.addFile("c:\\tarvex\\Tarvex.hlp", "?");
    t.menus().mnuHelpContents.Click();
    EXPECT_THAT(t.desktop.programFilesOpened, ElementsAre("Tarvex.hlp"));
    EXPECT_FALSE(book.form.Visible);
}

TEST_F(HandbookTest, AKeywordLeadsToItsPlace)
{
    keyword("BTN S1");
    EXPECT_EQ(target(), "btn.html#s1");
    EXPECT_TRUE(book.form.Visible);
}

TEST_F(HandbookTest, AWordThatNoPageClaimsIsSearchedFor)
{
    keyword("newcomer");
    EXPECT_EQ(book.Ways.SelectedItem, Handbook::searchTab);
    EXPECT_EQ(book.Search.Text.get(), "newcomer");
    ASSERT_EQ(book.Hits.get().size(), 1U);
    EXPECT_EQ(target(), "tour.html") << "the best page is shown at once";
    EXPECT_EQ(book.SearchResult.Caption.get(), "1 page");
}

TEST_F(HandbookTest, AWordThatIsNowhereSaysSo)
{
    keyword("xyzzy");
    EXPECT_EQ(book.SearchResult.Caption.get(), "No page has all these words");
    EXPECT_EQ(target(), "first.html");
    EXPECT_TRUE(book.form.Visible);
}

TEST_F(HandbookTest, AWholeSelectedFileIsNotSearchedFor)
{
    keyword(std::string(1'000'000, 'y'));
    EXPECT_EQ(book.Search.Text.get(), "");
    EXPECT_EQ(target(), "first.html");
}

TEST_F(HandbookTest, ATopicLeadsToItsPageAndAnUnknownOneToTheFirst)
{
    topic(2500);
    EXPECT_EQ(target(), "safein.html");
    topic(1);
    EXPECT_EQ(target(), "first.html");
}

TEST_F(HandbookTest, SafeinsHelpEntriesLeadToTheirTopics)
{
    t.menus().mnuInsertRAW.Click();
    EXPECT_TRUE(t.program().safein.mnuRawOverview.Enabled);
    t.program().safein.mnuRawOverview.Click();
    EXPECT_EQ(target(), "safein.html");
}

TEST_F(HandbookTest, TheHelpMenuOfTheTemplateEditorOpensIt)
{
    t.files.addDirectory("c:\\tarvex\\Templates");
    t.menus().mnuAppsTemplate.Click();
    t.program().templateEditor.mnuHelpContents.Click();
    EXPECT_TRUE(book.form.Visible);
}

TEST_F(HandbookTest, TheHelpMenuOfTheImageViewerOpensIt)
{
    t.program().imageViewer.mnuHelpContents.Click();
    EXPECT_TRUE(book.form.Visible);
}

TEST_F(HandbookTest, TheHelpButtonsOfWindowsWithPagesLeadToTheirTopics)
{
    std::vector<int> topics;
    t.program().operations.HelpTopic = [&](int number) { topics.push_back(number); };
    Preferences& preferences = t.program().preferences;
    for (const int page : {Preferences::fileLocations, Preferences::miscellaneous, Preferences::extras}) {
        preferences.SSTab1.Tab = page;
        preferences.Command6.Click();
    }
    EXPECT_THAT(topics, ElementsAre(5200, 5206, 5208));
}

TEST_F(HandbookTest, EveryWindowButTheKeyTesterHasATopicThatItsPageHas)
{
    const std::pair<const char*, int> topics[] = {
        {"ColourSelector", 1400},
        {"Differences", 3200},
        {"EnterFavouritename", 8200},
        {"EnterGameName", 7300},
        {"FilesHome", 5200},
        {"Handbook", 6300},
        {"Heading", 9060},
        {"Import", 5300},
        {"InfoWindow", 6300},
        {"InsertOptions", 4100},
        {"JoyPlot", 7021},
        {"JoystickWiz", 9030},
        {"MacroWizard", 9010},
        {"PrintPreview", 6210},
        {"RAWform", 2500},
        {"SelectPictureForm", 6200},
        {"SingleTextForm", 9070},
        {"SlashWizard", 9040},
        {"Speedy", 9020},
        {"TCAform", 7100},
        {"TemplateForm", 6100},
        {"Title", 9050},
        {"ViewImage", 6200},
        {"frmAbout", 6300},
        {"frmTip", 6300},
        {"KeyTestForm", 0},
        {"nonsense", 0},
    };
    for (const auto& [window, topic] : topics) {
        EXPECT_EQ(topicOfWindow(window), topic) << window;
        EXPECT_TRUE(topic == 0 || std::ranges::binary_search(helpTopics, topic)) << window;
    }
    EXPECT_TRUE(std::ranges::is_sorted(helpTopics));
}

TEST_F(HandbookTest, ANewcomerIsShownTheTourAfterThePreferences)
{
    system.files["index.txt"] += "topic\t100\ttour.html\n";
    t.program().operations.ShowTour();
    EXPECT_EQ(target(), "tour.html");
    EXPECT_TRUE(book.form.Visible);
}

TEST(FirstUse, LeadsThroughThePreferencesToTheTour)
{
    TestMachine machine;
    machine.files.addFile("c:\\tqs\\b50load.exe", "");
    FakeHelpSystem system;
    system.files["index.txt"] += "topic\t100\ttour.html\n";
    Program program(machine.platform);
    program.help.useSystem(system);
    bool preferencesFirst = false;
    machine.dialogues.whileModal = [&] { preferencesFirst = preferencesFirst || !program.help.handbook.form.Visible; };
    EXPECT_TRUE(program.start());
    EXPECT_THAT(machine.dialogues.modalForms, ElementsAre("Preferences", "frmTip"));
    EXPECT_TRUE(preferencesFirst);
    EXPECT_EQ(program.help.handbook.Target.get(), "tour.html");
    EXPECT_TRUE(program.help.handbook.form.Visible);
}

TEST(FirstUse, TheTourComesToTheFrontAfterTheTip)
{
    TestMachine machine;
    machine.files.addFile("c:\\tqs\\b50load.exe", "");
    FakeHelpSystem system;
    system.files["index.txt"] += "topic\t100\ttour.html\n";
    Program program(machine.platform);
    program.help.useSystem(system);
    std::size_t formsAtTheFront = 0;
    const Connection front =
        program.help.handbook.form.frontWanted.connect([&] { formsAtTheFront = machine.dialogues.modalForms.size(); });
    EXPECT_TRUE(program.start());
    EXPECT_EQ(formsAtTheFront, 2U) << "after the preferences and the tip";
}

TEST_F(HandbookTest, ANewcomerWithoutAHandbookIsShownNothing)
{
    system.files.clear();
    t.program().operations.ShowTour();
    EXPECT_FALSE(book.form.Visible);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(HandbookTest, TheTipOfTheInsertMenuLeadsToWhatEscDoes)
{
    system.files["index.txt"] += "keyword\tEscape\tsafein.html#esc\n";
    EXPECT_TRUE(t.menus().mnuInsertQuickTip.Enabled);
    t.menus().mnuInsertQuickTip.Click();
    EXPECT_EQ(target(), "safein.html#esc");
}

TEST_F(HandbookTest, TheLogicTabsHelpIsAKeyword)
{
    system.files["index.txt"] += "keyword\tlogic\ttour.html\n";
    t.program().operations.HelpKeyword("logic");
    EXPECT_EQ(target(), "tour.html");
}

TEST_F(HandbookTest, BackAndForwardGoThroughWhatWasVisited)
{
    topic(2500);
    keyword("tour");
    followHandbookLink(book, "btn.html");
    EXPECT_TRUE(book.Back.Enabled);
    book.Back.Click();
    EXPECT_EQ(target(), "tour.html");
    book.Back.Click();
    EXPECT_EQ(target(), "safein.html");
    EXPECT_FALSE(book.Back.Enabled);
    book.Back.Click();
    EXPECT_EQ(target(), "safein.html");
    EXPECT_TRUE(book.Forward.Enabled);
    book.Forward.Click();
    EXPECT_EQ(target(), "tour.html");
    followHandbookLink(book, "first.html");
    EXPECT_FALSE(book.Forward.Enabled) << "another way was taken";
    book.Forward.Click();
    EXPECT_EQ(target(), "first.html");
}

TEST_F(HandbookTest, ThePageThatIsShownIsNotVisitedTwice)
{
    topic(2500);
    topic(2500);
    EXPECT_EQ(book.visited.size(), 1U);
}

TEST_F(HandbookTest, OnlyTheLastTwoHundredPagesAreKept)
{
    t.menus().mnuHelpContents.Click();
    for (int i = 0; i < 150; ++i) {
        followHandbookLink(book, "btn.html");
        followHandbookLink(book, "tour.html");
    }
    EXPECT_EQ(book.visited.size(), 200U);
    EXPECT_EQ(target(), "tour.html");
}

TEST_F(HandbookTest, LinksGoToPagesPlacesAndTheWeb)
{
    t.menus().mnuHelpContents.Click();
    followHandbookLink(book, "safein.html#raw");
    EXPECT_EQ(target(), "safein.html#raw");
    followHandbookLink(book, "#top");
    EXPECT_EQ(target(), "safein.html#top");
    followHandbookLink(book, "https://example.com/");
    EXPECT_THAT(system.opened, ElementsAre("https://example.com/"));
    followHandbookLink(book, "javascript:alert(1)");
    followHandbookLink(book, "/etc/passwd");
    EXPECT_EQ(target(), "safein.html#top");
    EXPECT_EQ(system.opened.size(), 1U);
}

TEST_F(HandbookTest, ALinkBeforeThereIsAPageLeadsNowhere)
{
    followHandbookLink(book, "#top");
    followHandbookLink(book, "btn.html");
    EXPECT_EQ(target(), "");
}

TEST_F(HandbookTest, TheFilterLetsWordsThroughThatBeginSo)
{
    t.menus().mnuHelpContents.Click();
    EXPECT_EQ(book.ShownWords.get().size(), book.index.keywords().size());
    book.Filter.Text = "bt";
    std::vector<std::string> words;
    for (const std::size_t word : book.ShownWords.get()) words.push_back(book.index.keywords()[word].word);
    EXPECT_THAT(words, ElementsAre("BTN", "BTN S1"));
    book.Filter.Text = "btnx";
    EXPECT_TRUE(book.ShownWords.get().empty());
}

TEST_F(HandbookTest, TypingSearchesAtOnce)
{
    t.menus().mnuHelpContents.Click();
    book.Search.Text = "button";
    EXPECT_EQ(book.Hits.get().size(), 1U);
    book.Search.Text = "a";
    EXPECT_EQ(book.SearchResult.Caption.get(), "4 pages");
    book.Search.Text = " ";
    EXPECT_EQ(book.SearchResult.Caption.get(), "");
    EXPECT_TRUE(book.Hits.get().empty());
}

TEST_F(HandbookTest, AMissingCollectionIsExplainedAndTriedAgainNextTime)
{
    const auto files = std::exchange(system.files, {});
    t.menus().mnuHelpContents.Click();
    EXPECT_FALSE(book.form.Visible);
    EXPECT_EQ(t.lastBox().title, "Where's the handbook?");
    EXPECT_EQ(t.lastBox().text,
              "I'm afraid I can't open the handbook: there is no file /usr/share/tarvex-help/handbook/tarvex.qch. "
              "Everything else works without it. Installing Tarvex again puts the handbook back.");
    keyword("BTN");
    topic(2500);
    EXPECT_EQ(t.dialogues.boxes.size(), 3U);
    system.files = files;
    t.menus().mnuHelpContents.Click();
    EXPECT_TRUE(book.form.Visible);
}

TEST_F(HandbookTest, ACollectionWithoutPagesIsExplained)
{
    system.files = {{"index.txt", "no index at all"}};
    system.why = "";
    t.menus().mnuHelpContents.Click();
    EXPECT_FALSE(book.form.Visible);
    EXPECT_THAT(t.lastBox().text, HasSubstr("its index holds no pages"));
}

TEST_F(HandbookTest, ACopyOfTheProgramWithoutOneSaysSo)
{
    TestProgram other;
    other.menus().mnuHelpContents.Click();
    EXPECT_THAT(other.lastBox().text, HasSubstr("isn't part of this copy"));
}

TEST_F(HandbookTest, ClosedAndOpenedAgainItIsWhereItWas)
{
    topic(2500);
    book.form.Close();
    EXPECT_FALSE(book.form.Visible);
    EXPECT_EQ(book.WindowOpen, 0);
    t.menus().mnuHelpContents.Click();
    EXPECT_EQ(target(), "safein.html");
    EXPECT_TRUE(book.form.Visible);
}

TEST_F(HandbookTest, PlaceAndPageAreKeptForTheNextRun)
{
    keyword("BTN S1");
    book.form.Left = 1500.0F;
    book.form.Top = 900.0F;
    book.form.Width = 9000.0F;
    book.form.Height = 6000.0F;
    book.form.Close();
    Handbook next(t.editor());
    next.system = &system;
    wireHandbook(next);
    showHandbook(next);
    EXPECT_EQ(next.Target.get(), "btn.html#s1");
    EXPECT_EQ(next.form.Left, 1500.0F);
    EXPECT_EQ(next.form.Top, 900.0F);
    EXPECT_EQ(next.form.Width, 9000.0F);
    EXPECT_EQ(next.form.Height, 6000.0F);
}

TEST_F(HandbookTest, APlaceOffTheScreenADamagedSizeAndAPageThatIsGoneAreReplaced)
{
    for (const auto& [key, value] : {std::pair("Left", "-99999"), std::pair("Top", "99999"), std::pair("Width", "-7"),
                                     std::pair("Height", "x"), std::pair("Page", "gone.html")})
        t.program().shared.platformIni.writeString("Handbook", key, value);
    t.menus().mnuHelpContents.Click();
    EXPECT_EQ(target(), "first.html");
    EXPECT_EQ(book.form.Left, placeOffScreen);
    EXPECT_EQ(book.form.Top, placeOffScreen);
    EXPECT_EQ(book.form.Width, 0.0F) << "the view's own";
}

TEST_F(HandbookTest, TheExitKeepsThePlaceToo)
{
    topic(2500);
    t.menus().mnuFileExit.Click();
    EXPECT_EQ(t.program().shared.platformIni.readString("Handbook", "Page", ""), "safein.html");
}

TEST_F(HandbookTest, AnotherWayFromAPageForgetsTheOneThatWasTakenBefore)
{
    topic(2500);
    keyword("tour");
    book.Back.Click();
    followHandbookLink(book, "btn.html");
    book.Back.Click();
    EXPECT_EQ(target(), "safein.html");
}

TEST_F(HandbookTest, HomeShowsTheFirstPageAndTheWindowComesUpInItsPlace)
{
    EXPECT_EQ(book.form.Left.get(), 80 * twipsPerPixel);
    EXPECT_EQ(book.form.Top.get(), 50 * twipsPerPixel);
    topic(2500);
    book.Home.Click();
    EXPECT_EQ(target(), "first.html");
}

TEST_F(HandbookTest, TwoHundredLettersAreSearchedForAndMoreAreNot)
{
    keyword(std::string(200, 'q'));
    EXPECT_EQ(book.Search.Text.get(), std::string(200, 'q'));
    keyword(std::string(201, 'q'));
    EXPECT_EQ(book.Search.Text.get(), "");
}

TEST_F(HandbookTest, TheHelpOfAWindowIsItsPageAndAWindowWithoutOneHasNone)
{
    EXPECT_FALSE(showWindowHelp(help, "KeyTestForm"));
    EXPECT_FALSE(book.form.Visible);
    EXPECT_TRUE(showWindowHelp(help, "RAWform"));
    EXPECT_TRUE(book.form.Visible);
    EXPECT_EQ(target(), "safein.html");
}

TEST_F(HandbookTest, TheInformationWindowComesBackWhereItWasClosed)
{
    ToolForm& form = help.info.form;
    form.open();
    form.Top = 1500;
    form.Left = 2250;
    form.Width = 6000;
    form.Height = 4500;
    form.unload();
    EXPECT_EQ(t.ini("Online Help", "InfoWindowTop"), "1500");
    EXPECT_EQ(t.ini("Online Help", "InfoWindowLeft"), "2250");
    for (Property<float>* value : {&form.Top, &form.Left, &form.Width, &form.Height}) *value = 3000;
    form.open();
    EXPECT_EQ(form.Top.get(), 1500);
    EXPECT_EQ(form.Left.get(), 2250);
    EXPECT_EQ(form.Width.get(), 6000);
    EXPECT_EQ(form.Height.get(), 4500);
}

TEST_F(HandbookTest, WithoutOneEachWayToItExplainsThatOnceAndShowsNothing)
{
    system.files.clear();
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"contents", [this] { t.menus().mnuHelpContents.Click(); }},
        {"first page", [this] { book.Home.Click(); }},
        {"page", [this] { showHandbookPage(book, "btn.html"); }},
        {"keyword", [this] { keyword("BTN"); }},
        {"topic", [this] { topic(2500); }},
        {"search", [this] { searchHandbook(book, "button"); }},
    };
    for (const auto& [way, go] : ways) {
        t.dialogues.boxes.clear();
        go();
        EXPECT_EQ(t.dialogues.boxes.size(), 1U) << way;
        EXPECT_FALSE(book.form.Visible) << way;
    }
}

TEST_F(HandbookTest, TheFilterComparesWithoutCaseUpToTheWholeWord)
{
    system.files["index.txt"] += "keyword\tAZ[`\tbtn.html\n";
    t.menus().mnuHelpContents.Click();
    const auto shown = [this](const std::string& filter) {
        book.Filter.Text = filter;
        return book.ShownWords.get().size();
    };
    for (const char* filter : {"az", "AZ", "aZ[`", "AZ[`"}) EXPECT_EQ(shown(filter), 1U) << filter;
    for (const char* filter : {"az{", "az[@", "az[`x"}) EXPECT_EQ(shown(filter), 0U) << filter;
}

TEST_F(HandbookTest, OfItsSizeTwoHundredPixelsAreKeptAndLessIsDamaged)
{
    const auto sized = [this](float width, float height) {
        Form form;
        t.program().shared.platformIni.writeString("Handbook", "Width", std::to_string(std::lround(width)));
        t.program().shared.platformIni.writeString("Handbook", "Height", std::to_string(std::lround(height)));
        readHandbookPlace(form, t.program().shared.platformIni, t.desktop);
        return std::pair(form.Width.get(), form.Height.get());
    };
    constexpr float least = 200 * twipsPerPixel;
    EXPECT_EQ(sized(least, least), std::pair(least, least));
    EXPECT_EQ(sized(least - 1, 9000), std::pair(0.0F, 0.0F));
    EXPECT_EQ(sized(9000, least - 1), std::pair(0.0F, 0.0F));
}

TEST_F(HandbookTest, TwoPagesAreOneStepApart)
{
    topic(2500);
    keyword("tour");
    EXPECT_TRUE(book.Back.Enabled);
    book.Back.Click();
    EXPECT_TRUE(book.Forward.Enabled);
    book.Forward.Click();
    EXPECT_EQ(target(), "tour.html");
    EXPECT_FALSE(book.Forward.Enabled);
}

} // namespace
} // namespace tarvex
